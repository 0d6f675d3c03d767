// Whether every text stands out from its ground, and every button's states from each other,
// measured on the windows as they are painted.
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <set>
#include <vector>

#include "core/button_numbers.h"
#include "core/button_table.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/option_strip_table.h"
#include "core/progress.h"
#include "core/windows/form1.h"
#include "core/windows/help_box.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "panels/help_box.h"
#include "panels/option_frames.h"
#include "platform/dispatch.h"
#include "platform/headless/headless_platform.h"
#include "platform/qt/window_painter.h"
#include "platform/window_life.h"
#include "register/reset_process.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

constexpr double kLeastContrast = 4.5;  // WCAG 2.1, success criterion 1.4.3
constexpr double kLeastContrastIdle = 3;
constexpr double kLeastStep = 15;  // of lightness, 0..100, between two states of a button

// WCAG 2.1: relative luminance, 0..1.
double luminance(QRgb color) {
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

double contrast(double a, double b) {
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// CIE 1976 lightness, 0..100.
double lightness(double luminance) {
    return luminance > 0.008856 ? 116 * std::cbrt(luminance) - 16 : 903.3 * luminance;
}

class Contrast : public testing::Test {
  protected:
    Contrast() {
        platform.install();
        resetProcess();
        startEditor();
        for (Window* window : {static_cast<Window*>(&Form1), static_cast<Window*>(&HelpBox),
                               static_cast<Window*>(&SizeSelect), static_cast<Window*>(&Form3),
                               static_cast<Window*>(&HelpFrm)}) {
            showWindow(*window);
        }
        Form1.Label11.Caption = "Ombrelia Terrain Editor";
        Form1.Label11.ForeColor = TitleActiveColor;
        Form1.Label22.Caption = "1000m";
        Form1.WorkWhat.Caption = "Working";
    }

    QImage paint(Window& window, double scale) {
        QImage image(static_cast<int>(std::lround(window.Width * scale)),
                     static_cast<int>(std::lround(window.Height * scale)), QImage::Format_RGB32);
        QPainter painter(&image);
        ToolkitBrush brush(painter, skin);
        paintWindow(brush, window, pixelRect(image.rect()), scale);
        return image;
    }

    // What the window shows without its texts.
    QImage paintGround(Window& window, double scale) {
        std::vector<std::string> captions;
        for (Control* part : window.Controls) {
            captions.push_back(part->Caption);
            if (part->Kind == ControlKind::Label) {
                part->Caption.clear();
            }
        }
        QImage ground = paint(window, scale);
        for (std::size_t i = 0; i < captions.size(); ++i) {
            window.Controls[i]->Caption = captions[i];
        }
        return ground;
    }

    // The strongest pixel of the letters against the ground below it, for each label that is
    // wholly in sight; of a group alone, if there is one.
    void expectTextsToStandOut(Window& window, double least = kLeastContrast,
                               const Control* group = nullptr) {
        for (const double scale : {1.0, 2.0}) {
            const QImage shown = paint(window, scale);
            const QImage ground = paintGround(window, scale);
            for (const Control* part : window.Controls) {
                const QRect place = toolkitRect(visibleDeviceRect(*part, scale));
                if (part->Kind != ControlKind::Label || part->Caption.empty() ||
                    (group != nullptr && part->Parent != group) ||
                    place != toolkitRect(deviceRect(*part, scale))) {
                    continue;
                }
                double best = 1;
                for (int y = place.top(); y <= place.bottom(); ++y) {
                    for (int x = place.left(); x <= place.right(); ++x) {
                        best = std::max(best, contrast(luminance(shown.pixel(x, y)),
                                                       luminance(ground.pixel(x, y))));
                    }
                }
                measured.insert(part);
                EXPECT_GE(best, least)
                    << part->Name << " " << part->Index << " at " << scale << ": " << part->Caption;
            }
        }
    }

    // A face in shades of grey: the lightness of each pixel as it shows on the ground of buttons.
    std::vector<double> greyOf(Picture picture, int face) {
        const PictureInfo& info = pictureInfo(picture);
        QImage image(info.width * 2, info.height * 2, QImage::Format_RGB32);
        image.fill(QColor(0x24, 0x30, 0x44));
        QPainter painter(&image);
        painter.drawImage(0, 0, skin.face({picture, face}, image.width(), image.height()));
        painter.end();
        std::vector<double> grey;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                grey.push_back(lightness(luminance(image.pixel(x, y))));
            }
        }
        return grey;
    }

    // Root mean square of the difference of two faces in lightness.
    double distance(Picture picture, int face, int otherFace) {
        const std::vector<double> one = greyOf(picture, face);
        const std::vector<double> other = greyOf(picture, otherFace);
        double sum = 0;
        for (std::size_t i = 0; i < one.size(); ++i) {
            sum += (one[i] - other[i]) * (one[i] - other[i]);
        }
        return std::sqrt(sum / static_cast<double>(one.size()));
    }

    // Standard deviation of the lightness within a part of a picture.
    static double spread(const QImage& image, const QRect& part) {
        double sum = 0;
        double squares = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const double light = lightness(luminance(image.pixel(x, y)));
                sum += light;
                squares += light * light;
            }
        }
        const double count = 1.0 * part.width() * part.height();
        return std::sqrt(squares / count - sum / count * (sum / count));
    }

    HeadlessPlatform platform;
    Skin skin;
    std::set<const Control*> measured;
};

TEST_F(Contrast, every_text_of_the_editor) {
    for (const bool isPerspective : {false, true}) {
        SwitchViewMode(isPerspective ? kMode3D : kMode2D);
        for (int frame = 0; frame < kOptionFrames; ++frame) {
            ScrollToFrame(frame);
            expectTextsToStandOut(Form1);
        }
    }
    Form1.ProgressFrame.Visible = true;  // covers the strip
    expectTextsToStandOut(Form1, kLeastContrast, &Form1.ProgressFrame);
    for (const Control* part : Form1.Controls) {
        if (part->Kind == ControlKind::Label && !part->Caption.empty()) {
            EXPECT_TRUE(measured.contains(part)) << part->Name << " " << part->Index;
        }
    }
}

TEST_F(Contrast, the_title_of_an_editor_that_rests) {
    Form1.Label11.ForeColor = TitleInactiveColor;
    Form1.Face.face = 1;
    expectTextsToStandOut(Form1, kLeastContrastIdle, &Form1);
}

TEST_F(Contrast, every_state_of_the_buttons_with_a_text) {
    for (const int state : {kUp, kHover, kOn}) {
        for (const int number : {button::kMenu, button::kOptions}) {
            OptionStates(number).State = static_cast<std::int16_t>(state);
            DrawButton(number);
        }
        expectTextsToStandOut(Form1);
    }
}

TEST_F(Contrast, every_page_of_the_help) {
    std::vector<int> pages;
    HelpBox.Topic.forEach([&](const PictureBox& page) { pages.push_back(page.Index); });
    for (const int page : pages) {
        GotoTopic(page);
        expectTextsToStandOut(HelpBox);
    }
}

TEST_F(Contrast, the_small_windows) {
    expectTextsToStandOut(SizeSelect);
    expectTextsToStandOut(Form3);
    expectTextsToStandOut(HelpFrm);
}

TEST_F(Contrast, the_states_of_each_face_differ_in_lightness) {
    for (const Picture picture : {Picture::Stand, Picture::PicButton, Picture::SmlBut, Picture::OkB,
                                  Picture::MinB, Picture::CloseB, Picture::Opt}) {
        EXPECT_GE(distance(picture, kUp, kHover), kLeastStep) << pictureInfo(picture).name;
        EXPECT_GE(distance(picture, kUp, kOn), kLeastStep) << pictureInfo(picture).name;
        EXPECT_GE(distance(picture, kHover, kOn), kLeastStep) << pictureInfo(picture).name;
    }
}

TEST_F(Contrast, what_is_locked_is_paler_and_the_rest_is_not) {
    const QImage free = paint(Form1, 2);
    SetToolsEnabled(false);
    const QImage locked = paint(Form1, 2);
    for (const ButtonRow& row : button::kRows) {
        if (row.place.frame == &Form1Window::ToolFrame) {
            const QRect place = toolkitRect(deviceRect(Form1.NTool(row.number), 2));
            const double before = spread(free, place);
            const double after = spread(locked, place);
            if (row.isLocked) {
                EXPECT_LT(after, 0.6 * before) << row.name;
            } else {
                EXPECT_EQ(after, before) << row.name;
            }
        }
    }
    QImage inParts = free;
    QPainter painter(&inParts);
    for (int top = 0; top < inParts.height(); top += 60) {
        ToolkitBrush brush(painter, skin);
        paintWindow(brush, Form1, {0, top, inParts.width(), top + 60}, 2);
    }
    painter.end();
    EXPECT_EQ(inParts, locked);
    const QRect map = toolkitRect(deviceRect(Form1.MapView, 2));
    EXPECT_EQ(locked.copy(map), free.copy(map));
}

TEST_F(Contrast, the_tools_to_come_are_paler_than_the_others) {
    const QImage shown = paint(Form1, 2);
    double palest = 100;
    double strongestToCome = 0;
    for (const ButtonRow& row : button::kRows) {
        if (row.place.frame == &Form1Window::ToolFrame && row.number != button::kColorPicker) {
            const Image& icon = Form1.NTool(row.number + kOverlayOffset);
            const double strength = spread(shown, toolkitRect(deviceRect(icon, 2)));
            const bool isToCome = row.number >= button::kWavy && row.number <= button::kVolcano;
            if (isToCome) {
                strongestToCome = std::max(strongestToCome, strength);
            } else {
                palest = std::min(palest, strength);
            }
        }
    }
    EXPECT_LT(strongestToCome, palest);
}

TEST_F(Contrast, the_marks_of_a_slider_show_below_its_groove) {
    Image& track = Form1.VertFiller(slider::kPencilThickness);
    const QImage with = paint(Form1, 2);
    track.Scale.count = 0;
    const QImage without = paint(Form1, 2);
    const QRect place = toolkitRect(deviceRect(track, 2));
    const int row = place.bottom();
    int runs = 0;
    bool wasMark = false;
    for (int x = place.left(); x <= place.right(); ++x) {
        const bool isMark = with.pixel(x, row) != without.pixel(x, row);
        runs += isMark && !wasMark ? 1 : 0;
        wasMark = isMark;
    }
    EXPECT_GE(runs, 19);  // of 20 values; the thumb may cover one
    EXPECT_LE(runs, 20);
}

TEST_F(Contrast, the_magnifier_stands_inside_its_group) {
    constexpr double kScale = 2;
    constexpr double kAir = 2;  // units
    const QRectF group(6.5, 25.5, 127, 57);
    const QImage with = paint(Form1, kScale);
    Form1.ZoomView.Visible = false;
    const QImage without = paint(Form1, kScale);
    QRect different;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                different |= QRect(x, y, 1, 1);
            }
        }
    }
    ASSERT_FALSE(different.isEmpty());
    const QRectF air = group.adjusted(kAir, kAir, -kAir, -kAir);
    EXPECT_TRUE(QRectF(air.topLeft() * kScale, air.size() * kScale).contains(different));
}

}  // namespace

}  // namespace ombrelia
