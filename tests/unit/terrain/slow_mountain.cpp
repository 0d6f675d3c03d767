#include <cmath>

#include "slow_angles.h"

namespace ombrelia::slow {

namespace {

int sideOf(const Mountain& mountain) {
    switch (mountain.steepness) {
        case 31:
            return mountain.height / 18;
        case 32:
            return mountain.height / 9;
        case 33:
            return mountain.height / 3;
        default:
            return 0;
    }
}

void place(World& world, int px, int py, double h, bool onlyLower) {
    if (!world.isInside(px, py)) {
        return;
    }
    std::int16_t& cell = world.height(px, py);
    if (!onlyLower || h > cell) {
        cell = static_cast<std::int16_t>(nearest(h));
    }
}

// True when it ran to its end.
bool buildTop(World& world, int x, int y, const Mountain& mountain) {
    const Angles& table = angles();
    for (int r = 1; r <= mountain.topSize; ++r) {
        for (int a = 0; a <= 360; ++a) {
            const auto k = static_cast<std::size_t>(3 * a);
            place(world, down(x + r * table.cosine[k]), down(y + r * table.sine[k]),
                  mountain.height, mountain.onlyLower);
        }
        world.done = r;
        yield(world);
        if (stopped(world)) {
            return false;
        }
    }
    return true;
}

bool buildFlank(World& world, int x, int y, const Mountain& mountain) {
    const Angles& table = angles();
    const double k = 3.14159 / 180;
    const int side = sideOf(mountain);
    double step = 0.5;
    int samples = 721;
    for (int r = mountain.topSize; r <= mountain.topSize + side; ++r) {
        if (r > 40) {
            step = 0.2;
            samples = 1801;
        }
        if (r > 60) {
            step = 0.1;
            samples = 3601;
        }
        for (int n = 0; n < samples; ++n) {
            const double a = n * step;
            int px = 0;
            int py = 0;
            if (step != 0.1) {
                const auto third = static_cast<std::size_t>(nearest(3 * a));
                px = down(x + r * table.cosine[third]);
                py = down(y + r * table.sine[third]);
            } else {
                px = down(x + r * std::cos(a * k));
                py = down(y + r * std::sin(a * k));
            }
            const double t = 90 + (r - mountain.topSize) * (180.0 / side);
            const double s = std::sin(t * k);
            const double h = ((mountain.height - 31) / 2.0) * s + (mountain.height - 31) / 2.0 + 31;
            place(world, px, py, h, mountain.onlyLower);
        }
        if (stopped(world)) {
            return false;
        }
        world.done = r;
        yield(world);
    }
    return true;
}

}  // namespace

void buildMountain(World& world, int x, int y, const Mountain& mountain) {
    world.stopFlag = 0;
    world.toolsEnabled = false;
    world.total = sideOf(mountain) + mountain.topSize;
    world.text = "Calculating Your Mountain";
    world.state = 1;
    if (!buildTop(world, x, y, mountain)) {
        return;
    }
    if (sideOf(mountain) != 0 && !buildFlank(world, x, y, mountain)) {
        return;
    }
    world.state = 2;
    world.toolsEnabled = true;
    refresh(world);
}

}  // namespace ombrelia::slow
