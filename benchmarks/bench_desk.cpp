#include "bench_desk.h"

#include <chrono>

#include "app/bindings.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

// As the real desktop does it: events are handled only when 8 ms have passed.
void yieldAsOnScreen() {
    using Clock = std::chrono::steady_clock;
    static Clock::time_point last = Clock::now();
    const Clock::time_point now = Clock::now();
    if (now - last > std::chrono::milliseconds(8)) {
        last = now;
    }
}

// The same terrain in every run, so that figures can be compared.
class FixedRandom : public GeneratorRandom {
  public:
    void seedFromClock() override { seed(1); }
};

}  // namespace

HeadlessPlatform& benchPlatform() {
    static HeadlessPlatform platform;
    return platform;
}

HeadlessPlatform& benchDesk(int mapSize) {
    HeadlessPlatform& platform = benchPlatform();
    static FixedRandom random;
    platform.install();
    services().random = &random;
    platform.OnYield = yieldAsOnScreen;
    resetProcess();
    AppName = "Ombrelia Terrain Editor";
    MapSize = static_cast<std::int16_t>(mapSize);
    showWindow(Form1);
    return platform;
}

}  // namespace ombrelia
