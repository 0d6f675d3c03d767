// What a user touches while an import, which leaves the tools enabled, is running.
#include <functional>
#include <string>
#include <vector>

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "files/import_test.h"
#include "platform/bitmap_bytes.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"
#include "register/reset_process.h"

namespace ombrelia {

namespace {

constexpr int kGestureTools[] = {button::kPencil, button::kLine,       button::kRaise,
                                 button::kLower,  button::kCanyon,     button::kMountain,
                                 button::kPlain,  button::kColorPicker};

class ImportGate : public ImportTest {
  protected:
    static constexpr int kSide = 129;

    // Imports a picture of one height and does this in the middle.
    void importAnd(const std::function<void()>& inside) {
        int yields = 0;
        platform.OnYield = [&] {
            if (++yields == 40) {
                ASSERT_TRUE(isImporting());
                inside();
            }
        };
        importPixels(kSide, kSide, [](int, int) { return rgb(90, 90, 90); });
        platform.OnYield = nullptr;
        EXPECT_GE(yields, 40);
    }

    static void expectImported() {
        EXPECT_EQ(MapSize, kSide);
        for (int y = 0; y <= kSide; ++y) {
            for (int x = 0; x <= kSide; ++x) {
                ASSERT_EQ(HeightMap(x, y), x < kSide && y < kSide ? 90 : 0) << x << "," << y;
            }
        }
        EXPECT_EQ(Form1.Mapview2.Canvas.width(), 257);
        EXPECT_EQ(Form1.Mapview2.Width, 257);
        EXPECT_EQ(ProgressState, 2);
        EXPECT_EQ(StopFlag, 0);
        EXPECT_TRUE(Form1.MapView.Enabled);
    }

    static void choose(int tool) {
        for (const int i : kGestureTools) {
            OptionStates(i).State = i == tool ? kOn : kUp;
        }
        GroupCurrent(group::kTools) = static_cast<std::int16_t>(tool);
    }

    static void mouse(Event event, double x, double y, MouseButton button = MouseButton::Left) {
        deliverMouse(Form1.MapView, event, button, x, y);
    }

    static void stroke() {
        mouse(Event::MouseDown, 20, 20);
        mouse(Event::MouseMove, 60, 70);
        mouse(Event::MouseMove, 90, 100);
        mouse(Event::MouseUp, 120, 120);
    }
};

TEST_F(ImportGate, what_cannot_run_inside_comes_after_it) {
    for (const int command :
         {button::kClose, button::kUpdate2D, button::kImport, button::kNewMap, button::kExit,
          button::kDraw3D, button::kGenerate, button::kRedrawColors}) {
        openEditor(65);
        platform.RandomState = 5;
        const auto callsBefore = platform.Calls.size() + 1;  // and the dialog
        std::size_t callsInside = 0;
        int yieldsInside = 0;
        importAnd([&] {
            const long before = yieldCount();
            run(command);
            yieldsInside = static_cast<int>(yieldCount() - before);
            callsInside = platform.Calls.size();
            EXPECT_EQ(MapSize, kSide) << command;
        });
        EXPECT_EQ(yieldsInside, 0) << command;
        EXPECT_EQ(callsInside, callsBefore) << command;
        const bool isAsking = command != button::kUpdate2D && command != button::kGenerate &&
                              command != button::kDraw3D && command != button::kRedrawColors;
        EXPECT_EQ(platform.Calls.size(), callsBefore + (isAsking ? 1U : 0U)) << command;
        EXPECT_EQ(MapSize, kSide);
        EXPECT_TRUE(Form1.MapView.Enabled);
        EXPECT_EQ(StopFlag, 0);
        EXPECT_EQ(ProgressState, 2) << command;
        if (command != button::kGenerate) {
            expectImported();
        }
    }
}

TEST_F(ImportGate, closing_and_a_confirmed_new_map_wait_for_its_end) {
    const auto callsBefore = platform.Calls.size() + 1;  // and the dialog
    importAnd([&] {
        deliverClose(Form1);
        EXPECT_EQ(platform.Calls.size(), callsBefore);
    });
    EXPECT_EQ(platform.Calls.size(), callsBefore + 1);
    EXPECT_TRUE(Form1.Loaded);

    openEditor(65);
    platform.MessageAnswers.push_back(kAnswerYes);
    importAnd([] {
        run(button::kNewMap);
        EXPECT_TRUE(Form1.Loaded);
        EXPECT_FALSE(SizeSelect.Loaded);
    });
    EXPECT_FALSE(Form1.Loaded);
    EXPECT_TRUE(SizeSelect.Visible);
}

// The same gesture on a map that was imported before is the second way to the same heights.
TEST_F(ImportGate, gestures_of_every_tool_do_afterwards_what_they_do_on_the_imported_map) {
    for (const int tool :
         {button::kPencil, button::kLine, button::kCanyon, button::kMountain, button::kPlain}) {
        SCOPED_TRACE(tool);
        openEditor(65);
        choose(tool);
        importAnd([] {});
        stroke();
        const HeightGrid wanted = HeightMap;

        openEditor(65);
        choose(tool);
        importAnd([] {
            const long before = yieldCount();
            stroke();
            EXPECT_EQ(yieldCount(), before) << "a long operation began inside the import";
            EXPECT_EQ(MouseState, kGestureNone);
        });
        EXPECT_TRUE(HeightMap == wanted);
        EXPECT_FALSE(Form1.Line1.Visible);
        EXPECT_TRUE(Form1.MapView.Enabled);
        EXPECT_EQ(StopFlag, 0);
    }
}

TEST_F(ImportGate, a_gesture_that_began_before_ends_with_its_operation) {
    for (const int tool : {button::kMountain, button::kPlain}) {
        openEditor(65);
        choose(tool);
        mouse(Event::MouseDown, 20, 20);
        importAnd([] {
            mouse(Event::MouseMove, 60, 70);
            mouse(Event::MouseUp, 120, 120);
            EXPECT_EQ(MouseState, kGestureNone);
        });
        SCOPED_TRACE(tool);
        EXPECT_EQ(MapSize, kSide);
        EXPECT_EQ(GesturesPutOff, 1);
    }
}

TEST_F(ImportGate, heights_are_picked_and_raised_inside) {
    choose(button::kColorPicker);
    importAnd([] { mouse(Event::MouseDown, 20, 20); });
    EXPECT_EQ(DrawHeight, 90);
    openEditor(65);
    choose(button::kRaise);
    importAnd([] {
        mouse(Event::MouseDown, 20, 20);
        mouse(Event::MouseMove, 21, 21);
        mouse(Event::MouseUp, 21, 21);
        EXPECT_GT(HeightMap(11, 10), 90);
    });
}

TEST_F(ImportGate, zoom_pan_and_swaps_are_heard_and_the_view_is_whole_afterwards) {
    choose(button::kPencil);
    OptionStates(button::kPencil).State = kUp;
    OptionStates(button::kZoom2D).State = kOn;
    importAnd([] {
        mouse(Event::MouseDown, 200, 20);
        mouse(Event::MouseMove, 220, 60);
        mouse(Event::MouseUp, 220, 60);
        EXPECT_EQ(MapZoom, -20);
        mouse(Event::MouseDown, 60, 60, MouseButton::Right);
        EXPECT_EQ(OptionStates(button::kPan2D).State, kOn);
        mouse(Event::MouseUp, 60, 60, MouseButton::Right);
    });
    expectImported();
    EXPECT_EQ(Form1.MapView.Canvas.ScaleWidth, 297);
}

TEST_F(ImportGate, every_tool_and_view_can_be_pressed) {
    for (const int tool : {0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 12, 16, 18, 50, 51, 52, 53, 73}) {
        openEditor(65);
        importAnd([tool] {
            run(tool);
            deliver(Form1.Timer1, Event::Timer);
            mouse(Event::MouseMove, 100, 100);
        });
        SCOPED_TRACE(tool);
        expectImported();
        EXPECT_EQ(OptionStates(button::k2DMode).State, kOn);
        EXPECT_TRUE(Form1.TwoFrame.Visible);
    }
}

TEST_F(ImportGate, a_save_inside_writes_what_is_there) {
    platform.SaveAnswers.push_back(folder / "half.bmp");
    importAnd([] { run(button::kSave); });
    expectImported();
    EXPECT_EQ(contentOf(folder / "half.bmp").size(), 18106U);
}

TEST_F(ImportGate, ticks_show_its_progress) {
    int ticks = 0;
    platform.OnYield = [&] {
        deliver(Form1.Timer1, Event::Timer);
        if (isImporting() && ++ticks == 33) {
            EXPECT_TRUE(Form1.ProgressFrame.Visible);
            EXPECT_EQ(Form1.PercDone.Caption, " 49 Percent Done");
        }
    };
    importPixels(65, 65, [](int, int) { return rgb(90, 90, 90); });
    EXPECT_EQ(ticks, 66);
    platform.OnYield = nullptr;
    deliver(Form1.Timer1, Event::Timer);
    EXPECT_TRUE(Form1.Picture1.Visible);
    EXPECT_FALSE(Form1.ProgressFrame.Visible);
}

class ImportAtStartTest : public ImportTest {
  protected:
    // A fresh process up to the choice "Import", with this answer.
    void chooseImport(const std::string& path) {
        resetProcess();
        platform.install();
        runHandler(startEditor);
        deliver(frmSplash, Event::Click);
        platform.Calls.clear();
        platform.Failures.clear();
        platform.OpenAnswers.push_back(path);
        deliverMouse(SizeSelect.NTool(button::kSizeImport), Event::MouseDown, MouseButton::Left, 2,
                     2);
        deliverMouse(SizeSelect.NTool(button::kSizeImport), Event::MouseUp, MouseButton::Left, 2,
                     2);
        deliver(SizeSelect.NTool(button::kSizeImport), Event::Click);
    }

    static void expectEditor() {
        EXPECT_EQ(ImportAtStart, 0);
        EXPECT_TRUE(Form1.Visible);
        EXPECT_FALSE(SizeSelect.Loaded);
        EXPECT_FALSE(Form3.Loaded);
        EXPECT_TRUE(Form1.MapView.Enabled);
    }
};

TEST_F(ImportAtStartTest, the_picture_is_the_first_map) {
    writeContent(folder / "first.bmp",
                 trueColorBitmap(pictureOf(150, 140, [](int, int) { return rgb(60, 60, 60); })));
    chooseImport(folder / "first.bmp");
    EXPECT_TRUE(platform.Failures.empty());
    expectEditor();
    EXPECT_EQ(MapSize, 129);
    EXPECT_EQ(HeightMap(50, 50), 60);
    EXPECT_EQ(Form1.Label11.Caption, "Ombrelia Terrain Editor - Small Map");
}

TEST_F(ImportAtStartTest, cancelled_it_is_a_flat_large_map) {
    chooseImport("");
    expectEditor();
    EXPECT_EQ(MapSize, 257);
    EXPECT_EQ(HeightMap(257, 257), 40);
    EXPECT_EQ(Form1.Label11.Caption, "Ombrelia Terrain Editor - Large Map");
}

TEST_F(ImportAtStartTest, a_damaged_picture_leaves_a_flat_large_map_and_its_message) {
    writeContent(folder / "bad.bmp", "BM and no more");
    chooseImport(folder / "bad.bmp");
    ASSERT_EQ(platform.Failures.size(), 1U);
    expectEditor();
    EXPECT_EQ(MapSize, 257);
    EXPECT_EQ(HeightMap(0, 0), 40);
    EXPECT_EQ(Form1.Label11.Caption, "Ombrelia Terrain Editor - Large Map");
    EXPECT_EQ(Form1.Mapview2.Canvas.width(), 257);
}

}  // namespace

}  // namespace ombrelia
