// The terrain tools a second time, slow and plain: every sample in its order,
// nothing kept, nothing skipped. It shares no code with the tools of the product.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace ombrelia::slow {

inline constexpr int kSide = 258;  // cells on a side of a height field

// What a yield can see.
struct YieldView {
    std::string text;
    int total = 0;
    int done = 0;
    int state = 0;
    bool isLineShown = false;
    std::array<double, 4> line{};

    bool operator==(const YieldView&) const = default;
};

// A map with everything that the tools read and write.
struct World {
    int mapSize = 257;
    std::vector<std::int16_t> heights = std::vector<std::int16_t>(kSide * kSide, 40);
    std::vector<std::int16_t> shadow = std::vector<std::int16_t>(kSide * kSide, 40);
    bool refreshes = false;  // after each edit

    std::array<int, 601> strokeX{};
    std::array<int, 601> strokeY{};
    int strokeCount = 0;
    int drawHeight = 40;
    int pencilThickness = 1;
    int lineThickness = 1;

    float scaleWidth = 257;  // of the view, for the marker
    bool isLineShown = false;
    std::array<double, 4> line{};

    int stopFlag = 0;
    int state = 0;
    int total = 0;
    int done = 0;
    std::string text;
    std::string percent;
    bool toolsEnabled = true;

    long yields = 0;
    std::function<void(World&)> onYield;

    std::int16_t& height(int x, int y) { return heights[static_cast<std::size_t>(x + kSide * y)]; }
    bool isInside(int x, int y) const { return x >= 0 && x <= mapSize && y >= 0 && y <= mapSize; }
};

void drawStroke(World& world, int mode);

struct Mountain {
    int height = 255;
    int topSize = 1;
    int steepness = 33;  // the button that is on, 30..33; 0 none
    bool onlyLower = false;
};
void buildMountain(World& world, int x, int y, const Mountain& mountain);

struct Canyon {
    int bank = 10;
    int river = 3;
    int steepness = 36;  // the button that is on, 34..37; 0 none
    bool hasRiver = false;
};
void carveCanyon(World& world, const Canyon& canyon);

void buildPlain(World& world, int x, int y, int size);

// The two pictures that raise and lower paint on.
struct Pictures {
    Surface view;
    Surface buffer;
};
void raiseTerrain(World& world, Pictures& pictures, float x, float y, int amount);
void lowerTerrain(World& world, Pictures& pictures, float x, float y, int amount);

}  // namespace ombrelia::slow
