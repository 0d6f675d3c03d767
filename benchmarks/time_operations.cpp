// Times the dear operations, each one made ready anew, which is not timed:
//   time_operations RUNS [NAME]
// prints of each, or of the named one, its name, the least of so many runs and the first of them,
// in milliseconds.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench_desk.h"
#include "dear_operations.h"
#include "page_events.h"
#include "platform/yield_clock.h"

namespace ombrelia {

namespace {

// As the desktop of the screen does it.
void yieldAsInProgram() {
    static YieldClock clock;
    if (clock.isDue()) {
        passEvents();
        clock.restart();
    }
}

double millisecondsOf(const DearOperation& operation) {
    using Clock = std::chrono::steady_clock;
    makeReady(operation);
    benchPlatform().OnYield = yieldAsInProgram;
    const Clock::time_point began = Clock::now();
    operation.run();
    return std::chrono::duration<double, std::milli>(Clock::now() - began).count();
}

void time(const DearOperation& operation, int runs) {
    const double first = millisecondsOf(operation);
    double least = first;
    for (int n = 1; n < runs; ++n) {
        least = std::min(least, millisecondsOf(operation));
    }
    std::printf("%s %.4f %.4f\n", operation.name, least, first);
}

}  // namespace

}  // namespace ombrelia

int main(int argc, char** argv) {
    using namespace ombrelia;
    const int runs = argc >= 2 ? std::atoi(argv[1]) : 1;
    const std::string only = argc == 3 ? argv[2] : "";
    for (const DearOperation& operation : dearOperations()) {
        if (only.empty() || only == operation.name) {
            time(operation, runs);
        }
    }
    clearAway();
    return 0;
}
