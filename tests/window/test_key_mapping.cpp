// Each key as the virtual key code that handlers get.
#include <QKeyEvent>
#include <gtest/gtest.h>

#include "platform/key_codes.h"
#include "platform/qt/key_mapping.h"

namespace ombrelia {

namespace {

int codeOf(int toolkitKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return virtualKeyOf(QKeyEvent(QEvent::KeyPress, toolkitKey, modifiers));
}

}  // namespace

TEST(KeyMapping, letters_and_digits_are_their_capital_characters) {
    for (int n = 0; n < 26; ++n) {
        EXPECT_EQ(codeOf(Qt::Key_A + n), 65 + n);
    }
    for (int n = 0; n < 10; ++n) {
        EXPECT_EQ(codeOf(Qt::Key_0 + n), 48 + n);
    }
    EXPECT_EQ(codeOf(Qt::Key_Space), 32);
}

TEST(KeyMapping, the_number_pad_has_digits_of_its_own_and_moves_like_the_other_keys) {
    for (int n = 0; n < 10; ++n) {
        EXPECT_EQ(codeOf(Qt::Key_0 + n, Qt::KeypadModifier), 96 + n);
    }
    EXPECT_EQ(codeOf(Qt::Key_Left, Qt::KeypadModifier), 37);
    EXPECT_EQ(codeOf(Qt::Key_Home, Qt::KeypadModifier), 36);
    EXPECT_EQ(codeOf(Qt::Key_Clear, Qt::KeypadModifier), 12);
    EXPECT_EQ(codeOf(Qt::Key_Enter, Qt::KeypadModifier), 13);
}

TEST(KeyMapping, moving_keys_lie_between_33_and_40) {
    constexpr int kKeys[] = {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_End,   Qt::Key_Home,
                             Qt::Key_Left,   Qt::Key_Up,       Qt::Key_Right, Qt::Key_Down};
    int code = 33;
    for (const int toolkitKey : kKeys) {
        EXPECT_EQ(codeOf(toolkitKey), code++);
    }
}

TEST(KeyMapping, function_keys_begin_at_112_and_other_keys_have_no_code) {
    EXPECT_EQ(codeOf(Qt::Key_F1), 112);
    EXPECT_EQ(codeOf(Qt::Key_F12), 123);
    EXPECT_EQ(codeOf(Qt::Key_F13), 0);
    EXPECT_EQ(codeOf(Qt::Key_Comma), 0);
    EXPECT_EQ(codeOf(Qt::Key_Escape), 27);
}

}  // namespace ombrelia
