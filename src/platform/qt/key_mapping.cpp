#include "platform/qt/key_mapping.h"

#include <QKeyEvent>

#include "platform/key_codes.h"

namespace ombrelia {

namespace {

struct KeyPair {
    int toolkit, code;
};
constexpr KeyPair kPairs[] = {
    {Qt::Key_Backspace, key::kBackspace},
    {Qt::Key_Tab, key::kTab},
    {Qt::Key_Clear, key::kClear},
    {Qt::Key_Return, key::kReturn},
    {Qt::Key_Enter, key::kReturn},
    {Qt::Key_Shift, key::kShift},
    {Qt::Key_Control, key::kControl},
    {Qt::Key_Alt, key::kAlt},
    {Qt::Key_Escape, key::kEscape},
    {Qt::Key_PageUp, key::kPageUp},
    {Qt::Key_PageDown, key::kPageDown},
    {Qt::Key_End, key::kEnd},
    {Qt::Key_Home, key::kHome},
    {Qt::Key_Left, key::kLeft},
    {Qt::Key_Up, key::kUp},
    {Qt::Key_Right, key::kRight},
    {Qt::Key_Down, key::kDown},
    {Qt::Key_Insert, key::kInsert},
    {Qt::Key_Delete, key::kDelete},
};

}  // namespace

int virtualKeyOf(const QKeyEvent& event) {
    const int key = event.key();
    if (event.modifiers().testFlag(Qt::KeypadModifier) && key >= Qt::Key_0 && key <= Qt::Key_9) {
        return key - Qt::Key_0 + key::kPadDigit0;
    }
    // Blank, digits and capital letters are their own codes.
    if (key == Qt::Key_Space || (key >= Qt::Key_0 && key <= Qt::Key_9) ||
        (key >= Qt::Key_A && key <= Qt::Key_Z)) {
        return key;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return key - Qt::Key_F1 + key::kF1;
    }
    for (const KeyPair& pair : kPairs) {
        if (pair.toolkit == key) {
            return pair.code;
        }
    }
    return 0;
}

}  // namespace ombrelia
