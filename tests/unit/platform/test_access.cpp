#include <gtest/gtest.h>

#include "platform/access.h"

namespace ombrelia {

namespace {

double set = 0;

void press(EventArgs& /*args*/) {}

void ask(EventArgs& args) {
    args.Value = 7;
    args.Minimum = 1;
    args.Maximum = 20;
}

void take(EventArgs& args) {
    set = args.Value;
}

void handle(Control& control, Event event, Handler handler) {
    control.On[static_cast<std::size_t>(event)] = handler;
}

TEST(Access, a_part_is_what_its_role_says) {
    Image image;
    EXPECT_EQ(accessKindOf(image), AccessKind::None);
    for (const auto& [role, kind] : {std::pair(AccessRole::Button, AccessKind::Button),
                                     std::pair(AccessRole::CheckBox, AccessKind::CheckBox),
                                     std::pair(AccessRole::RadioButton, AccessKind::RadioButton),
                                     std::pair(AccessRole::Slider, AccessKind::Slider)}) {
        image.Role = role;
        EXPECT_EQ(accessKindOf(image), kind);
    }
}

TEST(Access, without_a_role_its_kind_and_name_say_it) {
    Label label;
    EXPECT_EQ(accessKindOf(label), AccessKind::None);
    label.Caption = "text";
    EXPECT_EQ(accessKindOf(label), AccessKind::Text);
    PictureBox box;
    EXPECT_EQ(accessKindOf(box), AccessKind::None);
    box.AccessibleName = "Map";
    EXPECT_EQ(accessKindOf(box), AccessKind::Picture);
    Image image;
    image.AccessibleName = "Help";
    EXPECT_EQ(accessKindOf(image), AccessKind::Button);
    EXPECT_EQ(accessKindOf(ListBox()), AccessKind::List);
    EXPECT_EQ(accessKindOf(Line()), AccessKind::None);
}

TEST(Access, a_text_on_a_button_is_told_by_the_button) {
    Image face;
    Label text;
    text.Caption = "Menu";
    text.LiesOn = &face;
    EXPECT_EQ(accessKindOf(text), AccessKind::None);
}

TEST(Access, names_are_as_they_show) {
    Label label;
    label.Caption = "Save && go";
    EXPECT_EQ(accessNameOf(label), "Save & go");
    label.AccessibleName = "Thickness:";
    EXPECT_EQ(accessNameOf(label), "Thickness: Save & go");
    Image image;
    image.Caption = "unseen";
    image.AccessibleName = "Help";
    EXPECT_EQ(accessNameOf(image), "Help");
}

TEST(Access, lists_and_sliders_have_values) {
    ListBox list;
    list.Caption = "Night";
    EXPECT_EQ(accessValueOf(list), "Night");
    Image slider;
    slider.Role = AccessRole::Slider;
    handle(slider, Event::AskValue, ask);
    EXPECT_EQ(accessValueOf(slider), "7");
    EXPECT_EQ(rangeOf(slider).Minimum, 1);
    EXPECT_EQ(rangeOf(slider).Maximum, 20);
    Label label;
    label.Caption = "text";
    EXPECT_EQ(accessValueOf(label), "");
}

TEST(Access, buttons_boxes_and_texts_that_hear_a_click_can_be_pressed) {
    Image image;
    EXPECT_FALSE(canBePressed(image));
    for (const AccessRole role :
         {AccessRole::Button, AccessRole::CheckBox, AccessRole::RadioButton}) {
        image.Role = role;
        EXPECT_TRUE(canBePressed(image));
    }
    image.Role = AccessRole::Slider;
    EXPECT_FALSE(canBePressed(image));
    Label link;
    link.Caption = "link";
    EXPECT_FALSE(canBePressed(link));
    handle(link, Event::Click, press);
    EXPECT_TRUE(canBePressed(link));
}

TEST(Access, the_third_face_is_on) {
    Image image;
    image.Face.face = 1;
    EXPECT_FALSE(isOn(image));
    image.Face.face = 2;
    EXPECT_TRUE(isOn(image));
}

TEST(Access, a_slider_is_set_unless_it_is_disabled) {
    Window window;
    Image slider;
    slider.Owner = &window;
    slider.Parent = &window;
    handle(slider, Event::SetValue, take);
    setValueWithoutPointer(slider, 12);
    EXPECT_EQ(set, 12);
    slider.Enabled = false;
    setValueWithoutPointer(slider, 13);
    EXPECT_EQ(set, 12);
}

}  // namespace

}  // namespace ombrelia
