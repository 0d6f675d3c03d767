#include <QByteArray>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/qt/editor_slot.h"

namespace ombrelia {

namespace {

TEST(EditorSlot, each_editor_on_a_screen_has_its_own) {
    const QTemporaryDir folder;
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("DISPLAY", ":7");
    EXPECT_EQ(takeEditorSlot(), 0);
    EXPECT_EQ(takeEditorSlot(), 1);
    EXPECT_EQ(takeEditorSlot(), 2);
    qputenv("DISPLAY", ":8");
    EXPECT_EQ(takeEditorSlot(), 0);
    qputenv("XDG_RUNTIME_DIR", "/nowhere/at/all");
    EXPECT_EQ(takeEditorSlot(), 0);
    qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(takeEditorSlot(), 0);
    qputenv("XDG_RUNTIME_DIR", runtime);
    qputenv("DISPLAY", display);
}

}  // namespace

}  // namespace ombrelia
