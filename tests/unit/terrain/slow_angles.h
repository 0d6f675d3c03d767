// What the slow tools share.
#pragma once

#include <vector>

#include "slow_world.h"

namespace ombrelia::slow {

// Entry k: k thirds of a degree, 0..1080.
struct Angles {
    std::vector<double> cosine;
    std::vector<double> sine;
};
const Angles& angles();

int down(double value);
int nearest(double value);
void yield(World& world);
bool stopped(World& world);
void moveMarker(World& world, double cx, double cy);
void refresh(World& world);

}  // namespace ombrelia::slow
