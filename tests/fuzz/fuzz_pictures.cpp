// Bytes in, heights out through the loader of the real platform and the whole import: the map then
// holds heights of 0..255, or is as it was and a failure is told.
#include <cstdlib>

#include "core/objects.h"
#include "core/windows/form1.h"
#include "desk/run_command.h"
#include "platform/byte_source.h"
#include "platform/dispatch.h"
#include "platform/headless/headless_platform.h"
#include "platform/qt/picture_loader.h"
#include "platform/window_life.h"
#include "register/reset_process.h"

namespace ombrelia {

namespace {

constexpr const char* kName = "fuzz";

class FuzzedLoader : public PictureLoader {
  public:
    std::span<const std::uint8_t> Bytes;

    bool loadPicture(const std::string& path, PictureWish& wish, Surface& picture) override {
        MemorySource source(path, Bytes);
        readPicture(source, wish, picture);
        return true;
    }
};

struct FuzzedDesk {
    HeadlessPlatform platform;
    FuzzedLoader loader;

    FuzzedDesk() {
        resetProcess();
        platform.install();
        services().pictures = &loader;
        platform.Files[kName] = true;
        MapSize = kMiniatureSize;
        loadWindow(Form1);
    }
};

void importBytes(FuzzedDesk& desk, std::span<const std::uint8_t> bytes) {
    desk.loader.Bytes = bytes;
    desk.platform.Calls.clear();
    desk.platform.Failures.clear();
    desk.platform.OpenAnswers = {kName};
    const HeightGrid before = HeightMap;
    runHandler(ImportCommand);
    if (!desk.platform.Failures.empty() && !(HeightMap == before)) {
        std::abort();
    }
    for (int y = 0; y <= MapSize; ++y) {
        for (int x = 0; x <= MapSize; ++x) {
            if (HeightMap(x, y) < 0 || HeightMap(x, y) > 255) {
                std::abort();
            }
        }
    }
}

}  // namespace

}  // namespace ombrelia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static ombrelia::FuzzedDesk desk;
    ombrelia::importBytes(desk, {data, size});
    return 0;
}
