#include "core/color_ramp.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "pixel_at.h"
#include "views/map2d/magnifier.h"

namespace ombrelia {

namespace {

class Magnifier : public EditorTest {
  protected:
    Magnifier() {
        for (int y = 0; y <= 257; ++y) {
            for (int x = 0; x <= 257; ++x) {
                HeightMap(x, y) = static_cast<std::int16_t>((x * 11 + y * 17) % 256);
            }
        }
    }

    static std::int32_t colorAt(int x, int y) {
        std::int16_t h = HeightMap(x, y);
        return static_cast<std::int32_t>(HeightToColor(h));
    }

    // The sample in column k and row m fills 7 x 7 pixels.
    static void expectSample(int k, int m, std::int32_t color) {
        const Surface& lens = Form1.ZoomView.Canvas;
        EXPECT_EQ(pixelAt(lens, 7 * k + 11, 7 * m + 10), color) << k << ' ' << m;
        EXPECT_EQ(pixelAt(lens, 7 * k + 17, 7 * m + 16), color) << k << ' ' << m;
    }
};

TEST_F(Magnifier, samples_lie_to_the_right_of_and_below_the_pointer) {
    showUnderPointer(20, 30);
    const int steps[] = {0, 1, 2, 3, 4};  // 0, 0.875, 1.75, 2.625, 3.5 rounded from a whole cell
    for (const int k : steps) {
        for (const int m : steps) {
            expectSample(k, m, colorAt(20 + k, 30 + m));
        }
    }
    // 3.5 more goes to the even cell.
    showUnderPointer(21, 31);
    expectSample(4, 4, colorAt(24, 34));
    EXPECT_EQ(pixelAt(Form1.ZoomView.Canvas, 46, 45), colorAt(24, 34));  // the last edge
    EXPECT_EQ(pixelAt(Form1.ZoomView.Canvas, 10, 10), 0);
    EXPECT_EQ(pixelAt(Form1.ZoomView.Canvas, 47, 20), 0);
}

TEST_F(Magnifier, the_readout_rounds_ties_to_even) {
    showUnderPointer(10.5F, 11.5F);
    EXPECT_EQ(Form1.Label22.Caption, metresText(HeightMap(10, 12)));
    showUnderPointer(65, 65);
    EXPECT_EQ(Form1.Label22.Caption, metresText(HeightMap(65, 65)));
}

TEST_F(Magnifier, samples_beyond_the_map_repeat_the_colour_before) {
    showUnderPointer(65, 65);
    for (int k = 0; k < 5; ++k) {
        for (int m = 0; m < 5; ++m) {
            expectSample(k, m, colorAt(65, 65));
        }
    }
    showUnderPointer(65, 62);
    expectSample(0, 3, colorAt(65, 65));
    expectSample(0, 4, colorAt(65, 65));
    expectSample(1, 0, colorAt(65, 65));  // the column before ended there
}

TEST_F(Magnifier, a_pointer_outside_leaves_the_readout_and_shows_black) {
    Form1.Label22.Caption = "before";
    showUnderPointer(-20, 10);
    showUnderPointer(10, 66);
    showUnderPointer(65.1F, 10);
    EXPECT_EQ(Form1.Label22.Caption, "before");
    expectSample(0, 0, 0);
    expectSample(4, 4, 0);
}

TEST_F(Magnifier, cells_out_of_range_are_cut_back) {
    HeightMap(5, 5) = 300;
    showUnderPointer(5, 5);
    EXPECT_EQ(HeightMap(5, 5), 255);
    EXPECT_EQ(Form1.Label22.Caption, "3497m");  // read before the look-up
}

}  // namespace

}  // namespace ombrelia
