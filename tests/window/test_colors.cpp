// The colour page by mouse: markers, boxes with the real colour dialog, sets that outlive the run.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QValidator>
#include <algorithm>
#include <gtest/gtest.h>

#include "core/color_ramp.h"
#include "core/objects.h"
#include "panels/option_frames.h"
#include "platform/qt/color_dialog.h"
#include "platform/qt/color_parts.h"
#include "platform/qt/window_view.h"
#include "stories.h"

namespace ombrelia {

namespace {

constexpr int kColorFrame = 14;
constexpr const char* kAwkwardName = "Dusk/[1] = 100% & more; {x}";

// The editor with the colour page in sight and one height all over the map.
bool openColorPage(ScreenDriver& driver) {
    if (!openEditor(driver, button::kSizeSmall)) {
        return false;
    }
    driver.inProgram([] {
        HeightMap.fill(150);
        ScrollToFrame(kColorFrame);
    });
    driver.moveTo(Form1, 5, 350);
    return true;
}

void quit(ScreenDriver& driver) {
    driver.moveTo(Form1, 5, 350);
    driver.click(Form1.NTool(button::kClose));
    ASSERT_TRUE(driver.waitForDialog("Exit?"));
    driver.key("alt+y");
    driver.waitUntilEnded();
}

int placeInList(const std::string& name) {
    const auto& list = Form1.Combo1.List;
    const auto at = std::find(list.begin(), list.end(), name);
    return at == list.end() ? -1 : static_cast<int>(at - list.begin());
}

void chooseInList(ScreenDriver& driver, const std::string& name) {
    int place = -1;
    driver.inProgram([&] { place = placeInList(name); });
    ASSERT_GE(place, 0) << name;
    driver.click(Form1.Combo1);
    driver.key("Home");
    for (int i = 0; i < place; ++i) {
        driver.key("Down");
    }
    driver.key("Return");
    EXPECT_TRUE(driver.waitFor([&] { return Form1.Combo1.Caption == name; })) << name;
}

void recolor(ScreenDriver& driver, int box, const char* color) {
    driver.click(Form1.Rng1(box));
    ASSERT_TRUE(driver.waitForDialog("Select a Color"));
    driver.key("alt+h");
    driver.key("ctrl+a");
    driver.type(color);
    driver.key("Return");
    EXPECT_TRUE(driver.waitFor([] { return Form1.Combo1.ListIndex == 0; }));
}

}  // namespace

TEST(Colors, a_marker_drag_moves_the_boundary_and_the_gradient) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        chooseInList(driver, "Earth");
        const QImage before = driver.pictureOf(Form1.PrefPicker);
        double left = 0;
        driver.inProgram([&] { left = Form1.Range(3).Left; });
        driver.moveTo(Form1.Range(3), 4, 4);
        driver.press();
        driver.moveTo(Form1.Range(3), 10, 4);
        driver.moveTo(Form1.Range(3), 10, 4);
        driver.release();
        driver.inProgram([&] {
            const Image& marker = Form1.Range(3);
            EXPECT_EQ(marker.Left, left + 12);
            const double height = marker.Left - Form1.PrefPicker.Left + marker.Width / 2;
            EXPECT_EQ(ColorRange(3, 2, 0), static_cast<int>(height - 1));
            EXPECT_EQ(ColorRange(4, 1, 0), static_cast<int>(height));
            EXPECT_EQ(Form1.Combo1.Caption, "Current Colors");
        });
        EXPECT_NE(driver.pictureOf(Form1.PrefPicker), before);
    });
}

TEST(Colors, a_box_takes_the_colour_of_the_dialog_and_the_map_on_request) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        driver.inProgram([] { HeightMap.fill(ColorRange(4, 1, 0)); });
        recolor(driver, 6, "#ff8800");
        driver.inProgram([] {
            EXPECT_EQ(ColorRange(4, 1, 1), 255);
            EXPECT_EQ(ColorRange(4, 1, 2), 136);
            EXPECT_EQ(ColorRange(4, 1, 3), 0);
        });
        EXPECT_EQ(driver.pictureOf(Form1.Rng1(6)).pixelColor(9, 5), QColor(255, 136, 0));
        driver.click(Form1.NTool(button::kRedrawColors));
        driver.moveTo(Form1, 5, 350);
        EXPECT_EQ(driver.pictureOf(Form1.MapView).pixelColor(100, 100), QColor(255, 136, 0));
    });
}

TEST(Colors, cancel_leaves_the_box_as_it_was) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        const QImage before = driver.pictureOf(Form1.Rng1(6));
        driver.click(Form1.Rng1(6));
        ASSERT_TRUE(driver.waitForDialog("Select a Color"));
        driver.key("Escape");
        EXPECT_TRUE(driver.waitFor([] { return Form1.Combo1.Caption == "Current Colors"; }));
        EXPECT_EQ(driver.pictureOf(Form1.Rng1(6)), before);
    });
}

TEST(Colors, a_set_is_kept_by_name_until_it_is_deleted) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        recolor(driver, 0, "#123456");
        pressWide(driver, button::kAddColor);
        ASSERT_TRUE(driver.waitForDialog("Save Color Set"));
        driver.type(kAwkwardName);
        driver.key("Return");
        EXPECT_TRUE(driver.waitFor([] { return placeInList(kAwkwardName) > 0; }));
        chooseInList(driver, "Rainbow");
        quit(driver);
    });
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        driver.inProgram([] { EXPECT_NE(ColorRange(1, 1, 1), 0x12); });
        chooseInList(driver, kAwkwardName);
        driver.inProgram([] {
            EXPECT_EQ(ColorRange(1, 1, 1), 0x12);
            EXPECT_EQ(ColorRange(1, 1, 2), 0x34);
            EXPECT_EQ(ColorRange(1, 1, 3), 0x56);
        });
        pressWide(driver, button::kDeleteColor);
        EXPECT_TRUE(driver.waitFor([] { return placeInList(kAwkwardName) < 0; }));
        quit(driver);
    });
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        driver.inProgram([] { EXPECT_LT(placeInList(kAwkwardName), 0); });
    });
}

TEST(Colors, the_sets_of_the_program_cannot_be_deleted) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        chooseInList(driver, "Valentine");
        pressWide(driver, button::kDeleteColor);
        ASSERT_TRUE(driver.waitForDialog("Cannot Delete!"));
        EXPECT_EQ(driver.dialogText(), "This color setting cannot be deleted!");
        driver.key("Return");
        driver.inProgram([] { EXPECT_GT(placeInList("Valentine"), 0); });
    });
}

TEST(Colors, the_list_never_opens_over_itself) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        driver.inProgram([] {
            QWidget* editor = viewOf(Form1);
            editor->move(20, editor->screen()->availableGeometry().bottom() - editor->height());
        });
        driver.rest(300);
        driver.click(Form1.Combo1);
        EXPECT_TRUE(driver.waitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        driver.rest(300);  // and stays after the release
        driver.inProgram([] {
            const QWidget* menu = QApplication::activePopupWidget();
            ASSERT_NE(menu, nullptr);
            EXPECT_TRUE(menu->screen()->geometry().contains(menu->geometry()));
            EXPECT_FALSE(menu->geometry().contains(QCursor::pos()));
        });
    });
}

namespace {

// The colour of the dialog in front.
QColor chosenColor() {
    return dynamic_cast<ColorDialog*>(QApplication::activeModalWidget())->color();
}

// Presses on a part of the dialog in front, at a share of its width and height, or drags there.
template <typename Part>
void pressPart(double across, double down, QEvent::Type kind = QEvent::MouseButtonPress) {
    for (QWidget* widget : QApplication::activeModalWidget()->findChildren<QWidget*>()) {
        if (auto* part = dynamic_cast<Part*>(widget)) {
            const QPointF place(across * part->width(), down * part->height());
            QMouseEvent press(kind, place, part->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(part, &press);
        }
    }
}

template <typename Part>
void pressKey(int key) {
    for (QWidget* widget : QApplication::activeModalWidget()->findChildren<QWidget*>()) {
        if (auto* part = dynamic_cast<Part*>(widget)) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(part, &press);
        }
    }
}

}  // namespace

TEST(Colors, each_part_of_the_dialog_gives_its_colour) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        driver.click(Form1.Rng1(6));
        ASSERT_TRUE(driver.waitForDialog("Select a Color"));
        driver.inProgram([] {
            pressPart<ColorSamples>(0.01, 0.05);
            EXPECT_EQ(chosenColor(), QColor(255, 0, 0));
            pressKey<ColorSamples>(Qt::Key_Right);  // to the next sample
            EXPECT_EQ(chosenColor().hsvHue(), 30);
            pressPart<ValueBar>(0.5, 0.5);
            EXPECT_NEAR(chosenColor().value(), 128, 3);
            EXPECT_EQ(chosenColor().hsvHue(), 30);
            pressPart<ColorField>(0.5, 0.01);
            EXPECT_NEAR(chosenColor().hsvHue(), 180, 3);
            EXPECT_NEAR(chosenColor().value(), 128, 3);
            EXPECT_GT(chosenColor().hsvSaturation(), 245);
            const auto lines = QApplication::activeModalWidget()->findChildren<QLineEdit*>();
            for (QLineEdit* line : lines) {
                if (line->validator() != nullptr) {
                    line->setText("77");
                    emit line->textEdited("77");
                }
            }
            EXPECT_EQ(chosenColor(), QColor(77, 77, 77));
        });
        EXPECT_TRUE(
            driver.keyUntil("Return", [] { return QApplication::activeModalWidget() == nullptr; }));
        driver.inProgram([] {
            for (int component = 1; component <= 3; ++component) {
                EXPECT_EQ(ColorRange(4, 1, component), 77);
            }
        });
    });
}

TEST(Colors, the_parts_of_the_dialog_work_by_keys_and_drags) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        driver.click(Form1.Rng1(6));
        ASSERT_TRUE(driver.waitForDialog("Select a Color"));
        driver.inProgram([] { pressPart<ColorSamples>(0.01, 0.05); });
        driver.rest();  // which shows the mark around it
        driver.inProgram([] {
            const auto drag = QEvent::MouseMove;
            pressKey<ColorSamples>(Qt::Key_Right);
            pressKey<ColorSamples>(Qt::Key_Left);
            EXPECT_EQ(chosenColor(), QColor(255, 0, 0));
            pressKey<ColorSamples>(Qt::Key_Down);
            EXPECT_NE(chosenColor(), QColor(255, 0, 0));
            pressKey<ColorSamples>(Qt::Key_Up);
            EXPECT_EQ(chosenColor(), QColor(255, 0, 0));
            pressPart<ValueBar>(0.5, 0.2);
            pressPart<ValueBar>(0.5, 0.5, drag);
            EXPECT_NEAR(chosenColor().value(), 128, 3);
            const int before = chosenColor().value();
            pressKey<ValueBar>(Qt::Key_Down);
            EXPECT_LT(chosenColor().value(), before);
            pressPart<ColorField>(0.1, 0.1);
            pressPart<ColorField>(0.5, 0.5, drag);
            EXPECT_NEAR(chosenColor().hsvHue(), 180, 3);
            const int saturation = chosenColor().hsvSaturation();
            pressKey<ColorField>(Qt::Key_Down);
            EXPECT_LT(chosenColor().hsvSaturation(), saturation);
            const QColor last = chosenColor();
            pressKey<ColorField>(Qt::Key_A);
            EXPECT_EQ(chosenColor(), last);
        });
    });
}

TEST(Colors, a_list_that_is_longer_than_the_screen_scrolls) {
    ScreenDriver::run([](ScreenDriver& driver) {
        ASSERT_TRUE(openColorPage(driver));
        driver.inProgram([] { Form1.Combo1.List.resize(5000, "One of\nmany"); });
        driver.click(Form1.Combo1);
        ASSERT_TRUE(driver.waitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        driver.inProgram([] {
            const QWidget* menu = QApplication::activePopupWidget();
            const auto actions = menu->actions();
            EXPECT_EQ(actions.size(), 5000);
            EXPECT_EQ(actions.back()->text(), "One of many");
            EXPECT_LE(menu->height(), menu->screen()->geometry().height());
            EXPECT_LE(menu->width(), menu->screen()->geometry().width() / 2);
        });
        // The end goes to the last one, which shows then.
        driver.key("End");
        driver.key("Return");
        EXPECT_TRUE(driver.waitFor([] { return Form1.Combo1.ListIndex == 4999; }));
    });
}

}  // namespace ombrelia
