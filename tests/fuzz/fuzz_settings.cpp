// Bytes as the file of the settings: what is read is written and read again as it was, and the
// editor starts on it, with every value in its range, and leaves preferences behind.
#include <cstdlib>
#include <string_view>

#include "core/color_sets.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/startup.h"
#include "platform/dispatch.h"
#include "platform/headless/headless_platform.h"
#include "platform/ini_store.h"
#include "platform/window_life.h"
#include "register/reset_process.h"

namespace ombrelia {

namespace {

IniSections readTwice(std::string_view text) {
    bool isMalformed = false;
    IniSections sections = parseIni(text, isMalformed);
    const IniSections again = parseIni(formatIni(sections), isMalformed);
    if (isMalformed || again != sections) {
        std::abort();
    }
    return sections;
}

void startOn(const IniSections& sections) {
    HeadlessPlatform platform;
    resetProcess();
    platform.install();
    platform.Settings = sections;
    MapSize = kMiniatureSize;
    loadWindow(frmSplash);
    runHandler([] { showWindow(Form1); });
    runHandler(ExitEditor);
    const bool isLeft =
        platform.read(kSettingsSection, kSavedBeforeKey, "0") == "1" && Form1.Loaded;
    if (!platform.Failures.empty() || !isLeft || HeightMap(3, 3) != BaseHeight) {
        std::abort();
    }
}

}  // namespace

}  // namespace ombrelia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto sections = ombrelia::readTwice({reinterpret_cast<const char*>(data), size});
    if (sections.contains(ombrelia::kSettingsSection)) {  // a start takes long
        ombrelia::startOn(sections);
    }
    return 0;
}
