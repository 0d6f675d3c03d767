// Whether the long texts fit their labels at every scale at which the windows are shown.
#include <QGuiApplication>
#include <cmath>
#include <gtest/gtest.h>

#include "core/button_table.h"
#include "core/color_ramp.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/windows/form1.h"
#include "core/windows/help_box.h"
#include "core/windows/help_texts_table.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "panels/help_box.h"
#include "panels/sliders.h"
#include "platform/dispatch.h"
#include "platform/headless/headless_platform.h"
#include "platform/qt/label_text.h"
#include "platform/window_life.h"
#include "register/reset_process.h"

namespace ombrelia {

namespace {

constexpr double kScales[] = {1, 1.25, 1.5, 1.75, 2, 2.5, 3, 4};

void expectToFit(const Label& label, const std::string& what) {
    for (const double scale : kScales) {
        const auto width = static_cast<int>(std::lround(label.Width * scale));
        const QSize taken = textSizeDevice(textOf(label), width, scale);
        EXPECT_LE(taken.height(), std::lround(label.Height * scale)) << what << " at " << scale;
        EXPECT_LE(taken.width(), std::lround(label.Width * scale)) << what << " at " << scale;
    }
}

void expectAllToFit(ControlArray<Label>& labels) {
    labels.forEach([](const Label& label) {
        expectToFit(label, label.Name + " " + std::to_string(label.Index));
    });
}

class Texts : public testing::Test {
  protected:
    Texts() {
        platform.install();
        resetProcess();
        startEditor();
        showWindow(Form1);
        showWindow(HelpBox);
    }

    HeadlessPlatform platform;
};

TEST_F(Texts, every_page_of_the_help_fits_its_label) {
    for (auto* labels :
         {&HelpBox.TopicTitle, &HelpBox.TopicLabel, &HelpBox.LinkLbl, &HelpBox.ContLbl,
          &HelpBox.ToolName, &HelpBox.IconName, &HelpBox.IconText, &HelpBox.LTool}) {
        expectAllToFit(*labels);
    }
    expectToFit(HelpBox.Label40, "the About page");
    expectToFit(HelpBox.Label41, "its heading");
}

TEST_F(Texts, what_follows_a_text_stands_below_it) {
    HelpBox.Topic.forEach([](const PictureBox& page) {
        double bottom = 0;
        for (const Control* part : HelpBox.Controls) {
            if (part->Parent == &page && part->Kind == ControlKind::Label) {
                EXPECT_GE(part->Top, bottom) << part->Name << " on page " << page.Index;
                bottom = part->Top + part->Height;
                EXPECT_LE(bottom, page.Height) << part->Name << " on page " << page.Index;
            }
        }
    });
}

TEST_F(Texts, no_page_of_the_help_is_nearly_empty) {
    HelpBox.Topic.forEach([](const PictureBox& page) {
        double bottom = 0;
        for (const Control* part : HelpBox.Controls) {
            if (part->Parent == &page && part->Name != "LinkLbl") {
                bottom = std::max(bottom, part->Top + part->Height);
            }
        }
        if (HelpBox.TopicTitle.has(page.Index)) {
            EXPECT_GE(bottom, 0.4 * HelpBox.Picture1.Height) << page.Index;
        }
    });
}

TEST_F(Texts, every_hint_fits_the_frame) {
    const auto expectHintToFit = [](const std::string& text) {
        HelpFrm.HelpLbl.Caption = text;
        expectToFit(HelpFrm.HelpLbl, text);
    };
    for (const ButtonRow& row : button::kRows) {
        expectHintToFit(row.hint);
        if (row.mapHint != nullptr) {
            expectHintToFit(std::string("This is the map view. ") + row.mapHint);
        }
    }
    for (const slider::Row& row : slider::kRows) {
        expectHintToFit(row.hint);
    }
}

TEST_F(Texts, every_label_of_every_window_fits) {
    showWindow(SizeSelect);
    showWindow(Form3);
    Form1.Label11.Caption = "Ombrelia Terrain Editor - Miniature Map";
    Form1.Label22.Caption = metresText(255);
    Form1.Label19.Caption = metresText(255);
    Form1.WorkWhat.Caption = "Generating Fractal Part 12/12";
    Form1.PercDone.Caption = "100 Percent Done";
    for (const Window* window : {static_cast<Window*>(&Form1), static_cast<Window*>(&HelpBox),
                                 static_cast<Window*>(&SizeSelect), static_cast<Window*>(&Form3)}) {
        for (const Control* part : window->Controls) {
            if (part->Kind == ControlKind::Label && !part->Caption.empty()) {
                expectToFit(static_cast<const Label&>(*part),
                            window->Name + "." + part->Name + " " + std::to_string(part->Index));
            }
        }
    }
}

TEST_F(Texts, every_part_of_a_page_lies_within_it) {
    for (const Control* part : Form1.Controls) {
        if (part->Parent != nullptr && part->Parent->Name == "OptFrame") {
            EXPECT_LT(part->Top + part->Height, part->Parent->Height)
                << part->Name << " " << part->Index;
            EXPECT_LE(part->Left + part->Width, part->Parent->Width)
                << part->Name << " " << part->Index;
        }
    }
}

TEST_F(Texts, each_slider_shows_its_widest_value) {
    for (int i = slider::kFirst; i <= slider::kLast; ++i) {
        SliderValues(i).Value = SliderValues(i).Max;
        showReadout(i);
        expectToFit(Form1.Readout(i), "slider " + std::to_string(i));
    }
}

TEST_F(Texts, the_colour_page_fits_its_labels) {
    expectAllToFit(Form1.FrameText);
}

}  // namespace

}  // namespace ombrelia

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
