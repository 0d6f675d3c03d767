#include "core/objects.h"

namespace ombrelia {

namespace {

struct SizeName {
    std::int16_t mapSize;
    const char* suffix;
};
constexpr SizeName kSizeNames[] = {
    {kMiniatureSize, " - Miniature Map"},
    {kSmallSize, " - Small Map"},
    {kMediumSize, " - Medium Map"},
    {kLargeSize, " - Large Map"},
};

}  // namespace

const char* sizeSuffix() {
    for (const SizeName& row : kSizeNames) {
        if (row.mapSize == MapSize) {
            return row.suffix;
        }
    }
    return "";
}

}  // namespace ombrelia
