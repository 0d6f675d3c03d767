// Palette, projection, and the order of all faces of a picture against the second way.
#include <algorithm>

#include "games/maze/maze_test.h"
#include "games/maze/plain_maze_picture.h"
#include "pixel_at.h"
#include "platform/dispatch.h"

namespace ombrelia::maze {

namespace {

class MazeView : public MazeTest {
  protected:
    PlainMaze asPlain(bool isHex) const {
        PlainMaze maze = plainSizeOf(isHex, NumColumns, NumRows);
        maze.page.resize(static_cast<std::size_t>(MaxX) + 1);
        for (int x = 0; x <= MaxX; ++x) {
            for (int y = 0; y <= MaxY; ++y) {
                maze.page[static_cast<std::size_t>(x)].push_back(MazePage(x, y));
            }
        }
        return maze;
    }

    int pictureWidth() const {
        return static_cast<int>(frm3DMaze.Width - frm3DMaze.VScroll1.Width);
    }
    int pictureHeight() const {
        return static_cast<int>(frm3DMaze.Height - frm3DMaze.Text1.Height);
    }

    // All faces that a new picture of this tilt fills.
    std::vector<std::string> facesAt(int tiltValue) {
        frm3DMaze.VScroll1.Value = tiltValue;
        deliver(frm3DMaze.VScroll1, Event::Change);
        note();
        painter.notes.clear();
        finish();
        EXPECT_EQ(painter.notes.front(), "clear");
        painter.notes.erase(painter.notes.begin());
        std::erase_if(painter.notes, [](const std::string& n) { return n.starts_with("line"); });
        return painter.notes;
    }
};

TEST_F(MazeView, faces_are_filled_in_the_order_of_the_second_way) {
    constexpr int kSizes[][2] = {{440, 320}, {140, 200}, {320, 90}, {640, 480}};
    for (const MazeStyle style : {MazeStyle::Square, MazeStyle::Hexagonal}) {
        const bool isHex = style == MazeStyle::Hexagonal;
        for (const auto& size : kSizes) {
            setMazePainter(nullptr);
            open(style, size[0], size[1]);
            finish();
            for (const int tiltValue : {30, 45, 60}) {
                SCOPED_TRACE(std::to_string(isHex) + " " + std::to_string(size[0]) + " " +
                             std::to_string(tiltValue));
                const auto faces = facesAt(tiltValue);
                const auto second =
                    plainPicture(asPlain(isHex), pictureWidth(), pictureHeight(), 90 - tiltValue);
                ASSERT_EQ(faces.size(), second.size());
                const auto difference =
                    std::mismatch(faces.begin(), faces.end(), second.begin()).first;
                ASSERT_EQ(difference, faces.end()) << difference - faces.begin();
            }
        }
    }
}

TEST_F(MazeView, shades_are_red_without_a_palette_and_grey_with_one) {
    constexpr unsigned kRamp[] = {0, 19, 39, 59, 78, 98, 118, 137, 157, 177, 196, 216, 236};
    note();
    SetupPalette();
    EXPECT_EQ(UsesPalette, 0);
    EXPECT_TRUE(painter.notes.empty());
    for (int i = 0; i < 13; ++i) {
        EXPECT_EQ(brushOf(i), rgb(kRamp[i], 0, 0)) << i;
    }
    EXPECT_EQ(brushOf(13), rgb(255, 255, 0));
    EXPECT_EQ(brushOf(14), rgb(0, 255, 0));
    EXPECT_EQ(brushOf(15), rgb(255, 0, 0));

    platform.Display = {8, 1, 20};
    SetupPalette();
    EXPECT_EQ(UsesPalette, -1);
    EXPECT_EQ(painter.notes, std::vector<std::string>{"create"});
    for (std::uint8_t i = 0; i < 13; ++i) {
        const auto v = static_cast<std::uint8_t>(kRamp[i]);
        EXPECT_EQ(painter.palette.entries[i], (MazePalette::Entry{v, v, v, 4}));
        EXPECT_EQ(brushOf(i), 0x1000000U + i);
    }
    EXPECT_EQ(painter.palette.entries[13], (MazePalette::Entry{255, 255, 0, 4}));
}

TEST_F(MazeView, the_color_table_has_a_slot_too_many) {
    SetupPalette();
    EXPECT_EQ(ColorTable(15), rgb(255, 0, 0));
    EXPECT_EQ(ColorTable(16), 0U);
}

TEST_F(MazeView, a_palette_is_used_where_sixteen_colours_are_free_and_bits_are_few) {
    struct Case {
        DisplayColors display;
        int uses;
    };
    for (const Case& c :
         {Case{{32, 1, -1}, 0}, Case{{31, 1, 0}, 0}, Case{{24, 1, -1}, -1}, Case{{8, 1, 240}, -1},
          Case{{8, 1, 241}, 0}, Case{{1, 4, 0}, -1}, Case{{1, 4, 1}, 0}}) {
        platform.Display = c.display;
        SetupPalette();
        EXPECT_EQ(UsesPalette, c.uses) << c.display.bitsPerPixel << ' ' << c.display.fixedColors;
    }
}

TEST_F(MazeView, every_painting_selects_the_palette_and_gives_it_back) {
    platform.Display = {8, 1, 20};
    note();
    open(MazeStyle::Square);
    finish();
    int held = 0;
    for (const std::string& n : painter.notes) {
        held += n == "select" ? 1 : n == "restore" ? -1 : 0;
        EXPECT_TRUE(n == "select" || n == "restore" || n == "create" || n == "clear" || held > 0)
            << n;
    }
    EXPECT_EQ(held, 0);
}

TEST_F(MazeView, the_palette_is_seen_grey_on_the_window) {
    platform.Display = {8, 1, 20};
    open(MazeStyle::Square);
    finish();
    const Surface& canvas = frm3DMaze.Picture.Canvas;
    int red = 0;
    for (int x = 0; x < pictureWidth(); ++x) {
        const auto color = static_cast<Color>(pixelAt(canvas, x, 200));
        red += (color & 0xFFU) != (color >> 8U & 0xFFU) ? 1 : 0;
    }
    EXPECT_LT(red, 8);  // the track's first stroke alone has a hue
}

TEST_F(MazeView, the_distance_is_the_larger_side) {
    NumColumns = 6;
    NumRows = 6;
    ComputeView(MazeStyle::Square);
    EXPECT_EQ(RelDist, 6.25);
    NumRows = 9;
    ComputeView(MazeStyle::Square);
    EXPECT_EQ(RelDist, 9.25);
}

TEST_F(MazeView, the_smallest_maze_keeps_its_distance_from_a_division_by_zero) {
    NumColumns = 2;
    NumRows = 2;
    ComputeView(MazeStyle::Square);
    EXPECT_EQ(ViewXMax, 2.25);
    NumColumns = 3;
    ComputeView(MazeStyle::Hexagonal);
    EXPECT_GT(ViewXMax, 5);
}

TEST_F(MazeView, a_block_on_the_centre_line_shows_no_side) {
    note();
    ViewXMax = 4.25;
    ViewYMax = 4.25;
    DrawBlockSides({{{2.125, 0}, {2.125, 0}, {2.125, 1}, {2.125, 1}}});
    DrawBlockSides({{{2, 0}, {2.25, 0}, {2.25, 0.25}, {2, 0.25}}});
    EXPECT_TRUE(painter.notes.empty());
}

}  // namespace

}  // namespace ombrelia::maze
