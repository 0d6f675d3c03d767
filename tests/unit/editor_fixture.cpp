#include "editor_fixture.h"

#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/window_life.h"
#include "register/reset_process.h"

namespace ombrelia {

ProcessTest::ProcessTest() {
    resetProcess();
    platform.install();
}

ProcessTest::~ProcessTest() {
    services() = {};
}

void EditorTest::openEditor(int mapSize) {
    resetProcess();
    AppName = "Ombrelia Terrain Editor";
    MapSize = static_cast<std::int16_t>(mapSize);
    loadWindow(Form1);
    platform.Calls.clear();
}

}  // namespace ombrelia
