// The help window and the hint frame by mouse: every page on its ways, every hint as the pointer
// passes.
#include <gtest/gtest.h>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/help_box.h"
#include "core/windows/help_texts_table.h"
#include "panels/option_frames.h"
#include "stories.h"
#include "unit/panels/second_hints_table.h"

namespace ombrelia {

namespace {

bool openHelp(ScreenDriver& driver) {
    if (!openEditor(driver, button::kSizeSmall)) {
        return false;
    }
    driver.click(Form1.NTool(button::kHelp + kOverlayOffset));
    return driver.waitForWindow(HelpBox);
}

// The page is the only one in sight, and something is written on it.
void expectPage(ScreenDriver& driver, int page) {
    driver.inProgram([&] {
        EXPECT_EQ(CurrentTopic, page);
        HelpBox.Topic.forEach([&](const PictureBox& topic) {
            EXPECT_EQ(topic.Visible, topic.Index == page) << topic.Index << " on " << page;
        });
    });
    const QImage shown = driver.pictureOf(HelpBox.Picture1);
    const QRgb ground = shown.pixel(3, shown.height() - 4);
    int written = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            written += shown.pixel(x, y) != ground ? 1 : 0;
        }
    }
    EXPECT_GT(written, 500) << "page " << page;
}

void goBack(ScreenDriver& driver) {
    driver.click(HelpBox.LTool(button::kHelpBack));
}

// Scrolls by the arrow until the part lies in the viewport.
bool scrollTo(ScreenDriver& driver, const Control& part) {
    const auto isInSight = [&] {
        return part.Parent->Top + part.Top + part.Height < HelpBox.Picture1.Height;
    };
    driver.moveTo(HelpBox.ScrollDown(slider::kHelpPage));
    driver.press();
    const bool isThere = driver.waitFor(isInSight);
    driver.release();
    return isThere;
}

// Brings a part of the option strip into sight.
void bringIntoSight(ScreenDriver& driver, Control& part) {
    int frame = -1;
    for (const Control* around = part.Parent; around != nullptr; around = around->Parent) {
        if (around->Name == "OptFrame") {
            frame = around->Index;
        }
    }
    if (frame >= 0) {
        driver.inProgram([&] { ScrollToFrame(frame); });
        driver.rest(60);
    }
}

void expectHint(ScreenDriver& driver, Control& part, const std::string& text) {
    bringIntoSight(driver, part);
    driver.moveTo(part, 3, 3);  // the part before may have stood at the same place
    driver.moveTo(part);
    driver.inProgram(
        [&] { EXPECT_EQ(HelpFrm.HelpLbl.Caption, text) << part.Name << " " << part.Index; });
}

bool belongsToPerspective(int number) {
    return number == button::kDraw3D || (number >= button::kRotate3D && number <= button::kZoom3D);
}

}  // namespace

TEST(HelpWindow, the_contents_and_the_buttons_lead_to_every_page) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openHelp(driver));
        expectPage(driver, kContentsPage);
        for (int i = 0; i < 6; ++i) {
            driver.click(HelpBox.ContLbl(i), 10, 6);
            expectPage(driver, i + 2);
            goBack(driver);
            expectPage(driver, kContentsPage);
        }
        for (int i = button::kHelpAbout; i >= button::kHelpContents; --i) {
            driver.click(HelpBox.LTool(i));
            expectPage(driver, i - button::kHelpContents + 1);
        }
        goBack(driver);
        expectPage(driver, kContentsPage);
    });
}

TEST(HelpWindow, the_wheel_scrolls_a_long_page_and_escape_closes_the_window) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openHelp(driver));
        driver.inProgram([] { EXPECT_FALSE(HelpBox.Scroller(slider::kHelpPage).Visible); });
        driver.click(HelpBox.LTool(button::kHelpContents + kIconsPage - 1));
        driver.moveTo(HelpBox.Picture1);
        driver.turnWheel(2);
        driver.inProgram([] {
            EXPECT_TRUE(HelpBox.Scroller(slider::kHelpPage).Visible);
            EXPECT_EQ(HelpBox.Topic(kIconsPage).Top, -90);
        });
        driver.turnWheel(30);
        driver.inProgram([] {
            EXPECT_EQ(SliderValues(slider::kHelpPage).Value, SliderValues(slider::kHelpPage).Max);
        });
        driver.turnWheel(-1);
        driver.inProgram([] {
            const SliderRecord& bar = SliderValues(slider::kHelpPage);
            EXPECT_EQ(bar.Value, bar.Max - 45);
        });
        driver.key("Escape");
        EXPECT_TRUE(driver.waitFor([] { return !HelpBox.Loaded; }));
        driver.inProgram([] { EXPECT_TRUE(Form1.Visible); });
    });
}

TEST(HelpWindow, each_link_leads_to_its_page_and_back_to_the_parent) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openHelp(driver));
        int i = 0;
        for (const HelpLink& link : kHelpLinks) {
            const bool isDeep = link.page >= 100;
            driver.click(HelpBox.LTool(button::kHelpContents + (isDeep ? 2 : link.page) - 1));
            if (isDeep) {
                driver.click(HelpBox.LinkLbl(link.page - 200), 10, 6);
            }
            driver.click(HelpBox.LinkLbl(i++), 10, 6);
            expectPage(driver, link.target);
            goBack(driver);
            expectPage(driver, link.target / 100);
        }
    });
}

TEST(HelpWindow, each_tool_has_a_page_behind_its_picture_and_its_name) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openHelp(driver));
        driver.click(HelpBox.LTool(button::kHelpContents + kIconsPage - 1));
        for (int i = 0; i < kToolPageCount; ++i) {
            ASSERT_TRUE(scrollTo(driver, HelpBox.ToolPic(i))) << i;
            if (i % 2 == 0) {
                driver.click(HelpBox.ToolPic(i));
            } else {
                driver.click(HelpBox.ToolName(i), 10, 6);
            }
            expectPage(driver, kFirstToolPage + i);
            goBack(driver);
            expectPage(driver, kIconsPage);
        }
    });
}

TEST(HelpWindow, its_close_button_ends_it_and_it_opens_anew_on_the_contents) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openHelp(driver));
        driver.click(HelpBox.LTool(button::kHelpAbout));
        driver.click(HelpBox.NTool(button::kHelpClose));
        EXPECT_TRUE(driver.waitFor([] { return !HelpBox.Loaded; }));
        driver.click(Form1.NTool(button::kHelp + kOverlayOffset));
        ASSERT_TRUE(driver.waitForWindow(HelpBox));
        expectPage(driver, kContentsPage);
    });
}

TEST(Hints, each_button_tells_what_it_does) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        bool isInPerspective = false;
        for (const bool perspective : {false, true}) {
            for (const SecondCopy& row : kSecondButtonHints) {
                if (belongsToPerspective(row.number) != perspective) {
                    continue;
                }
                if (perspective && !isInPerspective) {
                    driver.click(Form1.NTool(button::k3DMode + kOverlayOffset));
                    isInPerspective = true;
                }
                driver.inProgram([] { HelpFrm.HelpLbl.Caption = "nothing"; });
                expectHint(driver, Form1.NTool(row.number), row.text);
            }
        }
    });
}

TEST(Hints, each_slider_and_each_other_part_tells_what_it_is) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        for (const SecondCopy& row : kSecondSliderHints) {
            expectHint(driver, Form1.VertScroller(row.number), row.text);
        }
        for (int i = 1; i <= 5; ++i) {
            expectHint(driver, Form1.Range(i),
                       "Click && Drag this slider to set the length && size of the gradient.");
        }
        for (int k = 0; k < 12; ++k) {
            expectHint(driver, Form1.Rng1(k),
                       "Click here to change the current color for this box.");
        }
        expectHint(driver, Form1.PickedColor, "This shows the currently selected color.");
        expectHint(driver, Form1.Picker,
                   "This is the color picker. Click on a color to select it, for use with the "
                   "Pencil and Line tools.");
        expectHint(driver, Form1.ZoomView,
                   "This shows a zoomed-up view of the map under the cursor, for precise work.");
        expectHint(driver, Form1.Label11,
                   "This is the title bar. Click and drag to move the window.");
        expectHint(driver, HelpFrm.HelpLbl,
                   "Double-Click here to hide this help box. You can make me re-appear in the "
                   "Options dialog.");
    });
}

TEST(Hints, the_map_tells_what_each_tool_would_do) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        const std::pair<int, const char*> sentences[] = {
            {button::kPencil, "If you click && drag now, you will draw a pencil line."},
            {button::kLine, "If you click && drag now, you will draw a line."},
            {button::kRaise, "If you click && drag now, you will be raising the terrain."},
            {button::kLower, "If you click && drag now, you will be lowering the terrain."},
            {button::kFractal, "If you click now, nothing will happen."},
            {button::kMountain,
             "If you click now, you will generate a mountain at this spot with your specified "
             "settings."},
            {button::kCanyon,
             "If you click && drag now, you will generate a canyon along the line you drag."},
            {button::kPlain,
             "If you click now, you will generate a plain with a height of the point where you "
             "clicked."},
        };
        for (const auto& [tool, sentence] : sentences) {
            driver.click(Form1.NTool(tool + kOverlayOffset));
            expectHint(driver, Form1.MapView, std::string("This is the map view. ") + sentence);
        }
    });
}

TEST(Hints, a_double_click_hides_the_frame_and_the_options_bring_it_back) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openEditor(driver, button::kSizeSmall));
        ASSERT_TRUE(driver.waitForWindow(HelpFrm));
        driver.doubleClick(HelpFrm.HelpLbl);
        EXPECT_TRUE(driver.waitFor([] { return !HelpFrm.Visible; }));
        bringIntoSight(driver, Form1.NTool(button::kShowHelpBox));
        driver.inProgram([] { EXPECT_EQ(Form1.NTool(button::kShowHelpBox).Face.face, kUp); });
        driver.click(Form1.NTool(button::kShowHelpBox));
        EXPECT_TRUE(driver.waitForWindow(HelpFrm));
    });
}

}  // namespace ombrelia
