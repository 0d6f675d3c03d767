// Ten operations at their dearest settings, to be counted instruction by instruction and to be
// timed. Nothing in them depends on time, chance or the disk.
#pragma once

#include <span>

namespace ombrelia {

struct DearOperation {
    const char* name;
    void (*prepare)();
    void (*run)();
};

std::span<const DearOperation> dearOperations();

// A fresh desk on which the operation can run, once.
void makeReady(const DearOperation& operation);

// Takes back what stands on the disk for them.
void clearAway();

}  // namespace ombrelia
