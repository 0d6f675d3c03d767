#include <cmath>

#include "core/color_ramp.h"
#include "slow_angles.h"

namespace ombrelia::slow {

namespace {

struct Components {
    double r = 0;
    double g = 0;
    double b = 0;
};

void repaint(World& world, Pictures& pictures, int x, int y, Components& last) {
    HeightToRGB(world.height(x, y), last.r, last.g, last.b);
    const Color color =
        rgb(static_cast<unsigned>(nearest(last.r)), static_cast<unsigned>(nearest(last.g)),
            static_cast<unsigned>(nearest(last.b)));
    if (world.mapSize == 257) {
        pictures.view.setPixel(x, y, color);
    } else {
        const double s = 257.0 / world.mapSize;
        pictures.view.box(x * s, y * s, x * s + s, y * s + s, color);
    }
    pictures.buffer.setPixel(x, y, color);
}

int peakAt(World& world, float x, float y, int amount) {
    const auto side = static_cast<float>(world.mapSize);
    if (x >= 0 && x <= side && y >= 0 && y <= side) {
        return world.height(nearest(x), nearest(y)) + amount;
    }
    return 0;
}

}  // namespace

void raiseTerrain(World& world, Pictures& pictures, float x, float y, int amount) {
    const Angles& table = angles();
    const int peak = peakAt(world, x, y, amount);
    if (peak == 0) {
        return;
    }
    Components last;
    double current = peak;
    const double slope = peak / 15.0;
    const int rings = down(current / slope);
    for (int r = 1; r <= rings; ++r) {
        for (int a = 1; a <= 360; a += 5) {
            const auto k = static_cast<std::size_t>(3 * a);
            const int px = down(x + r * table.cosine[k]);
            const int py = down(y + r * table.sine[k]);
            if (!world.isInside(px, py)) {
                continue;
            }
            const int h = world.height(px, py);
            if (current > h && current <= 255) {
                world.height(px, py) = static_cast<std::int16_t>(nearest(current));
                repaint(world, pictures, px, py, last);
            } else if (current > 255) {
                world.height(px, py) = 255;
                repaint(world, pictures, px, py, last);
            }
        }
        current = current - std::floor(peak / 15.0);
        if (current < 0) {
            return;
        }
    }
}

void lowerTerrain(World& world, Pictures& pictures, float x, float y, int amount) {
    const Angles& table = angles();
    const int peak = peakAt(world, x, y, -amount);
    if (peak == 0) {
        return;
    }
    Components last;
    double current = peak;
    for (int r = 1; r <= 10; ++r) {
        for (int a = 1; a <= 360; a += 5) {
            const auto k = static_cast<std::size_t>(3 * a);
            const int px = down(x + r * table.cosine[k]);
            const int py = down(y + r * table.sine[k]);
            if (!world.isInside(px, py)) {
                continue;
            }
            const int h = world.height(px, py);
            if (current < h && current >= 0) {
                world.height(px, py) = static_cast<std::int16_t>(nearest(current));
                repaint(world, pictures, px, py, last);
            } else if (current < 0) {
                world.height(px, py) = 0;
                repaint(world, pictures, px, py, last);
            }
        }
        current = current + std::floor(peak / 15.0);
        if (current > 255) {
            return;
        }
    }
}

}  // namespace ombrelia::slow
