#include <string>
#include <vector>

#include "core/color_display.h"
#include "core/color_ramp.h"
#include "core/color_sets.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "pixel_at.h"

namespace ombrelia {

namespace {

class ColorDisplay : public EditorTest {
  protected:
    static std::int32_t colorAt(int height) {
        auto h = static_cast<std::int16_t>(height);
        return static_cast<std::int32_t>(HeightToColor(h));
    }
};

TEST_F(ColorDisplay, the_picker_has_255_at_the_top) {
    ColorRange(6, 2, 1) = 1;
    PaintPicker();
    const Surface& strip = Form1.Picker.Canvas;
    ASSERT_EQ(strip.height(), 256);
    for (int h = 0; h <= 255; ++h) {
        EXPECT_EQ(pixelAt(strip, 0, 255 - h), colorAt(h)) << h;
        EXPECT_EQ(pixelAt(strip, strip.width() - 1, 255 - h), colorAt(h)) << h;
    }
}

TEST_F(ColorDisplay, the_gradient_of_the_page_runs_to_the_right) {
    ColorRange(6, 2, 1) = 1;
    PaintPrefPicker();
    const Surface& strip = Form1.PrefPicker.Canvas;
    ASSERT_EQ(strip.width(), 256);
    for (int h = 0; h <= 255; ++h) {
        EXPECT_EQ(pixelAt(strip, h, 0), colorAt(h)) << h;
        EXPECT_EQ(pixelAt(strip, h, strip.height() - 1), colorAt(h)) << h;
    }
}

TEST_F(ColorDisplay, the_picked_colour_follows_the_height) {
    for (const int height : {0, 31, 40, 255}) {
        DrawHeight = static_cast<std::int16_t>(height);
        UpdatePickedColor();
        EXPECT_EQ(Form1.PickerChoice.Y1, (255 - height) + Form1.Picker.Top + 2);
        EXPECT_EQ(Form1.PickerChoice.Y2, Form1.PickerChoice.Y1);
        EXPECT_EQ(static_cast<std::int32_t>(Form1.PickedColor.BackColor), colorAt(height));
        EXPECT_EQ(Form1.Label19.Caption, metresText(height));
    }
}

TEST_F(ColorDisplay, a_height_out_of_range_is_cut_before_it_is_named) {
    DrawHeight = 300;
    UpdatePickedColor();
    EXPECT_EQ(DrawHeight, 255);
    EXPECT_EQ(Form1.Label19.Caption, "2912m");
}

TEST_F(ColorDisplay, swatches_and_markers_follow_the_table) {
    for (int row = 1; row <= 6; ++row) {
        ColorRange(row, 1, 0) = static_cast<std::int16_t>(row * 11);
        ColorRange(row, 1, 1) = static_cast<std::int16_t>(row);
        ColorRange(row, 2, 3) = static_cast<std::int16_t>(row * 2);
    }
    ShowColorSet();
    for (int i = 0; i <= 11; ++i) {
        const int row = i / 2 + 1;
        const int end = i % 2 + 1;
        EXPECT_EQ(Form1.Rng1(i).BackColor, rgb(static_cast<unsigned>(ColorRange(row, end, 1)),
                                               static_cast<unsigned>(ColorRange(row, end, 2)),
                                               static_cast<unsigned>(ColorRange(row, end, 3))))
            << i;
    }
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(Form1.Range(i).Left,
                  Form1.PrefPicker.Left + (i + 1) * 11 - Form1.Range(i).Width / 2);
    }
}

TEST_F(ColorDisplay, the_list_begins_with_the_current_colours_and_is_sorted) {
    SaveColorSet("b mine");
    SaveColorSet("A mine");
    SaveColorSet("");
    platform.Settings["Settings"]["Colorpal no"] = "wrong case";
    ListColorSets();
    EXPECT_EQ(Form1.Combo1.List,
              (std::vector<std::string>{"Current Colors", "", "A mine", "Default", "Earth",
                                        "Grayscale", "Height Chart", "Rainbow", "Redscale",
                                        "The Blues", "Valentine", "b mine"}));
}

TEST_F(ColorDisplay, the_list_is_sorted_by_name_and_not_by_key) {
    platform.Settings["Settings"] = {{"ColorPal1", "z"}, {"ColorPal2", "a"}, {"Other", "x"}};
    ListColorSets();
    EXPECT_EQ(Form1.Combo1.List, (std::vector<std::string>{"Current Colors", "a", "z"}));
}

}  // namespace

}  // namespace ombrelia
