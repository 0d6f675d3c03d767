// The dear operations, to be counted instruction by instruction:
//   count_operations            prints their names
//   count_operations NAME       runs one of them; counting goes on around it alone
#include <cstdio>
#include <string>
#include <valgrind/callgrind.h>

#include "bench_desk.h"
#include "dear_operations.h"

namespace ombrelia {

namespace {

void count(const DearOperation& operation) {
    makeReady(operation);
    benchPlatform().OnYield = nullptr;  // no clock
    CALLGRIND_START_INSTRUMENTATION;
    operation.run();
    CALLGRIND_STOP_INSTRUMENTATION;
}

}  // namespace

}  // namespace ombrelia

int main(int argc, char** argv) {
    using namespace ombrelia;
    const std::string wanted = argc == 2 ? argv[1] : "";
    for (const DearOperation& operation : dearOperations()) {
        if (wanted.empty()) {
            std::puts(operation.name);
        } else if (wanted == operation.name) {
            count(operation);
        }
    }
    clearAway();
    return 0;
}
