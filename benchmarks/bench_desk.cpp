#include "bench_desk.h"

#include "core/objects.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"
#include "platform/yield_clock.h"
#include "register/reset_process.h"

namespace ombrelia {

namespace {

// As the real desktop does it, without the events.
void yieldAsOnScreen() {
    static YieldClock clock;
    if (clock.isDue()) {
        clock.restart();
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
