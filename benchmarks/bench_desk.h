// A desk without a screen for the benchmarks, with the real random source, which begins with one
// and the same seed each time, and yields of real cost.
#pragma once

#include "platform/generator_random.h"
#include "platform/headless/headless_platform.h"

namespace ombrelia {

// The one platform of all benchmarks.
HeadlessPlatform& benchPlatform();

// Loads the editor with a map of this size; afterwards every benchmark of the run works on it.
HeadlessPlatform& benchDesk(int mapSize);

}  // namespace ombrelia
