#include <algorithm>
#include <string>
#include <vector>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "files/bitmap_export.h"
#include "files/bitmap_import.h"
#include "files/import_test.h"
#include "platform/bitmap_bytes.h"
#include "platform/dispatch.h"
#include "platform/failure.h"
#include "platform/picture_sink.h"
#include "platform/window_life.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

class BitmapImport : public ImportTest {};

TEST_F(BitmapImport, the_smaller_side_chooses_size_and_way) {
    for (int n = 1; n <= 700; ++n) {
        const ImportPlan plan = planImport(n);
        EXPECT_EQ(plan.isDirect, n <= 65 || n == 129 || n == 193 || n == 257) << n;
        EXPECT_EQ(plan.target, n < 129 ? 65 : (n < 193 ? 129 : (n < 257 ? 193 : 257))) << n;
    }
}

TEST_F(BitmapImport, a_height_is_the_mean_of_the_components) {
    EXPECT_EQ(heightOfColor(255), 85);
    EXPECT_EQ(heightOfColor(255 << 8), 85);
    EXPECT_EQ(heightOfColor(255 << 16), 85);
    EXPECT_EQ(heightOfColor(0xFFFFFF), 255);
    EXPECT_EQ(heightOfColor(0), 0);
    EXPECT_EQ(heightOfColor(-1), 0);
    for (int sum = 0; sum <= 765; ++sum) {
        const int red = std::min(sum, 255);
        const int green = std::clamp(sum - 255, 0, 255);
        const int blue = std::max(sum - 510, 0);
        // A third and two thirds are the only rests.
        EXPECT_EQ(heightOfColor(red + 256 * green + 65536 * blue), sum / 3 + (sum % 3 == 2 ? 1 : 0))
            << sum;
    }
}

TEST_F(BitmapImport, saved_maps_of_each_size_come_back) {
    for (const int size : {65, 129, 193, 257}) {
        MapSize = static_cast<std::int16_t>(size);
        for (int y = 0; y <= 257; ++y) {
            for (int x = 0; x <= 257; ++x) {
                HeightMap(x, y) = static_cast<std::int16_t>((x * 3 + y * 31 + x * y / 7) % 256);
            }
        }
        const HeightGrid saved = HeightMap;
        const std::string path = folder / std::to_string(size);
        std::int16_t result = 0;
        WriteTerrainBitmap(path, MapSize, result);
        MapSize = 257;
        fillMap(40);
        import(path);
        ASSERT_TRUE(platform.Failures.empty());
        EXPECT_EQ(MapSize, size);
        for (int y = 0; y <= size; ++y) {
            for (int x = 0; x <= size; ++x) {
                const bool isInside = x < size && y < size;
                ASSERT_EQ(HeightMap(x, y), isInside ? saved(x, y) : 0) << x << "," << y;
            }
        }
    }
}

TEST_F(BitmapImport, known_pictures_give_known_maps) {
    struct Row {
        int width, height, mapSize;
        bool isDirect;
    };
    for (const Row& row :
         {Row{300, 500, 257, false}, Row{130, 130, 129, false}, Row{128, 128, 65, false},
          Row{600, 600, 257, false}, Row{40, 40, 65, true}, Row{400, 65, 65, true},
          Row{1, 1, 65, true}, Row{257, 300, 257, true}, Row{256, 257, 193, false}}) {
        importPixels(row.width, row.height, [](int, int) { return rgb(9, 9, 9); });
        EXPECT_EQ(MapSize, row.mapSize) << row.width << "x" << row.height;
        EXPECT_EQ(ImportTarget, row.mapSize);
        EXPECT_EQ(ImportDirect, row.isDirect ? 1 : 0);
        EXPECT_EQ(HeightMap(0, 0), 9);
    }
}

TEST_F(BitmapImport, a_small_picture_stands_in_the_corner) {
    fillMap(40);
    importPixels(40, 40, [](int, int) { return rgb(255, 0, 0); });
    for (int y = 0; y <= 65; ++y) {
        for (int x = 0; x <= 65; ++x) {
            ASSERT_EQ(HeightMap(x, y), x < 40 && y < 40 ? 85 : 0) << x << "," << y;
        }
    }
    EXPECT_EQ(HeightMap(66, 0), 40);
}

TEST_F(BitmapImport, a_long_small_picture_fills_its_long_side) {
    importPixels(400, 3, [](int x, int) { return rgb(0, 0, static_cast<unsigned>(3 * (x % 80))); });
    EXPECT_EQ(HeightMap(65, 0), 65);
    EXPECT_EQ(HeightMap(65, 2), 65);
    EXPECT_EQ(HeightMap(65, 3), 0);
}

TEST_F(BitmapImport, the_far_ends_read_beyond_the_picture) {
    importPixels(600, 600, [](int, int) { return rgb(255, 255, 255); });
    EXPECT_EQ(HeightMap(256, 256), 255);
    for (int i = 0; i <= 257; ++i) {
        ASSERT_EQ(HeightMap(257, i), 0);
        ASSERT_EQ(HeightMap(i, 257), 0);
    }
}

TEST_F(BitmapImport, each_size_has_its_title) {
    const std::pair<int, const char*> rows[] = {
        {50, "Miniature"}, {130, "Small"}, {200, "Medium"}, {300, "Large"}};
    for (const auto& [side, word] : rows) {
        importPixels(side, side, [](int, int) { return rgb(1, 1, 1); });
        EXPECT_EQ(Form1.Label11.Caption, std::string("Ombrelia Terrain Editor - ") + word + " Map");
    }
}

TEST_F(BitmapImport, the_picture_is_on_the_screen_afterwards) {
    importPixels(193, 193, [](int x, int y) {
        const auto grey = static_cast<unsigned>((x + y) / 2);
        return rgb(grey, grey, grey);
    });
    EXPECT_EQ(Form1.Mapview2.Width, 257);
    EXPECT_EQ(Form1.Mapview2.Canvas.width(), 257);
    const Surface imported = Form1.Mapview2.Canvas;
    MarkMapForRepaint();
    UpdateMapView(1);
    for (int y = 0; y <= 193; ++y) {
        ASSERT_TRUE(
            std::equal(imported.row(y), imported.row(y) + 194, Form1.Mapview2.Canvas.row(y)))
            << y;
    }
    EXPECT_EQ(ProgressState, 2);
    EXPECT_EQ(StopFlag, 0);
}

TEST_F(BitmapImport, the_menus_page_comes_up_and_its_button_is_up) {
    OptionStates(button::kMenu).State = kHover;
    SliderValues(0).Value = 0;
    importPixels(65, 65, [](int, int) { return rgb(1, 1, 1); });
    EXPECT_EQ(OptionStates(button::kMenu).State, kUp);
    EXPECT_EQ(SliderValues(0).Value, 11 * 128);
}

TEST_F(BitmapImport, an_import_leaves_the_tools_enabled) {
    SetToolsEnabled(false);
    int yields = 0;
    platform.OnYield = [&] {
        if (isImporting()) {
            ++yields;
            EXPECT_TRUE(Form1.MapView.Enabled);
            EXPECT_EQ(ProgressState, 1);
            EXPECT_EQ(ProgressTotal, 129);
        }
    };
    importPixels(130, 140, [](int, int) { return rgb(1, 1, 1); });
    EXPECT_EQ(yields, 131);
    EXPECT_TRUE(Form1.MapView.Enabled);
}

TEST_F(BitmapImport, the_back_buffer_is_lent_to_the_picture) {
    int yields = 0;
    const auto look = [&](int width, int height, int more) {
        platform.OnYield = [&yields, width, height, more] {
            if (isImporting()) {
                ++yields;
                EXPECT_EQ(Form1.Mapview2.Canvas.width(), width);
                EXPECT_EQ(Form1.Mapview2.Canvas.height(), height);
                EXPECT_EQ(Form1.Mapview2.Width, width + more);
                EXPECT_EQ(Form1.Mapview2.Height, height + more);
            }
        };
    };
    look(700, 300, 0);
    importPixels(700, 300, [](int, int) { return rgb(1, 1, 1); });
    look(70, 65, 1);
    importPixels(70, 65, [](int, int) { return rgb(1, 1, 1); });
    EXPECT_GT(yields, 66);
    EXPECT_EQ(Form1.Mapview2.Width, 257);
    EXPECT_EQ(Form1.Mapview2.Height, 257);
    EXPECT_EQ(Form1.Mapview2.Canvas.width(), 257);
    EXPECT_EQ(Form1.Mapview2.Canvas.ScaleWidth, 257);
}

TEST_F(BitmapImport, the_dialog_is_the_described_one_after_the_small_windows) {
    loadWindow(SizeSelect);
    loadWindow(Form3);
    platform.Calls.clear();
    import("");
    EXPECT_EQ(platform.Calls,
              (std::vector<std::string>{
                  "unload SizeSelect", "unload Form3",
                  "open Select Image to Import | Image Files (*.bmp)|*.bmp|All Files (*.*)|*.*"}));
}

TEST_F(BitmapImport, cancel_and_a_name_without_a_file_change_nothing) {
    for (const std::string& name : {std::string(), folder / "none.bmp"}) {
        const Desk before;
        import(name);
        before.expectSame();
        EXPECT_TRUE(platform.Failures.empty());
    }
}

TEST_F(BitmapImport, what_cannot_be_read_is_told_and_changes_nothing) {
    const std::string good = trueColorBitmap(pictureOf(70, 70, [](int, int) { return 7U; }));
    writeContent(folder / "empty.bmp", "");
    writeContent(folder / "text.bmp", "This is no picture at all.");
    writeContent(folder / "cut.bmp", good.substr(0, good.size() / 2));
    platform.Files[folder / "vanished.bmp"] = true;
    BitmapParts huge;
    huge.width = 100000;
    huge.height = 100000;
    writeContent(folder / "huge.bmp", huge.file());
    const std::pair<std::string, const char*> rows[] = {
        {folder / "empty.bmp", "It is empty"},
        {folder / "text.bmp", "It is not a picture of a kind that can be read"},
        {folder / "cut.bmp", "It is cut off before its end"},
        {folder / "vanished.bmp", "No such file or directory"},
        {folder / "huge.bmp", "It has 100000 x 100000 pixels, which is more than can be held"},
        {folder.path(), "It is not an ordinary file"}};
    for (const auto& [path, reason] : rows) {
        const Desk before;
        platform.Failures.clear();
        import(path);
        ASSERT_EQ(platform.Failures.size(), 1U) << path;
        EXPECT_EQ(platform.Failures.front(), "The picture \"" + path + "\" could not be loaded: " +
                                                 reason + ". The map is unharmed.");
        before.expectSame();
    }
    writeContent(folder / "good.bmp", good);
    import(folder / "good.bmp");
    EXPECT_EQ(HeightMap(3, 3), 2);
}

TEST_F(BitmapImport, a_stop_ends_the_closing_refresh_but_not_the_import) {
    int yields = 0;
    platform.OnYield = [&] {
        if (++yields == 3) {
            run(button::kStop);
        }
    };
    importPixels(65, 65, [](int, int) { return rgb(30, 30, 30); });
    EXPECT_EQ(yields, 66 + 1);
    EXPECT_EQ(HeightMap(64, 64), 30);
    EXPECT_EQ(ShadowMap(0, 0), 30);
    EXPECT_EQ(ShadowMap(0, 1), -1);
    EXPECT_EQ(StopFlag, 0);
    EXPECT_EQ(ProgressState, 2);
    EXPECT_TRUE(Form1.MapView.Enabled);
}

// Reads as long as the wish goes on, at most so many frames.
class SlowLoader : public PictureLoader {
  public:
    explicit SlowLoader(int frames) : frames_(frames) {}
    bool loadPicture(const std::string& path, PictureWish& wish, Surface& picture) override {
        for (int i = 0; i < frames_; ++i) {
            if (!wish.goesOn()) {
                return false;
            }
        }
        PictureSink sink(path, 65, 65, wish, picture);
        sink.fill(0xFF090909U);
        return true;
    }

  private:
    int frames_;
};

TEST_F(BitmapImport, a_long_reading_shows_its_panel_and_locks_the_tools) {
    SlowLoader loader(3);
    services().pictures = &loader;
    platform.Files["slow"] = true;
    int yields = 0;
    platform.OnYield = [&] {
        if (++yields <= 3) {
            EXPECT_EQ(Form1.WorkWhat.Caption, "Loading Image");
            EXPECT_EQ(ProgressState, 1);
            EXPECT_EQ(ProgressDone, 0);
            EXPECT_FALSE(Form1.MapView.Enabled);
        }
    };
    import("slow");
    EXPECT_GT(yields, 3);
    EXPECT_EQ(HeightMap(3, 3), 9);
    EXPECT_EQ(ProgressState, 2);
    EXPECT_TRUE(Form1.MapView.Enabled);
}

TEST_F(BitmapImport, a_stop_while_the_file_is_read_changes_nothing) {
    SlowLoader loader(1000);
    services().pictures = &loader;
    platform.Files["slow"] = true;
    const Desk before;
    int yields = 0;
    platform.OnYield = [&] {
        if (++yields == 5) {
            run(button::kStop);
        }
    };
    import("slow");
    EXPECT_EQ(yields, 5);
    deliver(Form1.Timer1, Event::Timer);
    before.expectSame();
    EXPECT_EQ(StopFlag, 0);
    EXPECT_EQ(ProgressState, 2);
    EXPECT_TRUE(platform.Failures.empty());
}

TEST_F(BitmapImport, closing_while_the_file_is_read_gives_it_up_first) {
    SlowLoader loader(1000);
    services().pictures = &loader;
    platform.Files["slow"] = true;
    platform.MessageAnswers = {kAnswerYes};
    int yields = 0;
    platform.OnYield = [&] {
        if (++yields == 5) {
            run(button::kExit);
            EXPECT_FALSE(platform.HasEnded);
        }
    };
    EXPECT_THROW(import("slow"), ProcessEnd);
    EXPECT_EQ(yields, 5);
    EXPECT_TRUE(platform.HasEnded);
}

TEST_F(BitmapImport, the_menus_command_looks_from_above_first) {
    run(button::k3DMode);
    platform.OpenAnswers.push_back("");
    run(button::kImport);
    EXPECT_EQ(OptionStates(button::k2DMode).State, kOn);
    EXPECT_TRUE(Form1.TwoFrame.Visible);
}

}  // namespace

}  // namespace ombrelia
