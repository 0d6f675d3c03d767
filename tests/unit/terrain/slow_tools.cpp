#include <cmath>

#include "slow_angles.h"
#include "slow_world.h"

namespace ombrelia::slow {

const Angles& angles() {
    static const Angles table = [] {
        Angles made;
        for (int k = 0; k <= 1080; ++k) {
            made.cosine.push_back(std::cos((k / 3.0) * (3.14159 / 180)));
            made.sine.push_back(std::sin((k / 3.0) * (3.14159 / 180)));
        }
        return made;
    }();
    return table;
}

int down(double value) {
    return static_cast<int>(std::floor(value));
}

int nearest(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    const int whole = static_cast<int>(below);
    if (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)) {
        return whole + 1;
    }
    return whole;
}

void yield(World& world) {
    ++world.yields;
    if (world.onYield) {
        world.onYield(world);
    }
}

bool stopped(World& world) {
    if (world.stopFlag == 1) {
        world.stopFlag = 2;
        return true;
    }
    return false;
}

void moveMarker(World& world, double cx, double cy) {
    const float s = world.scaleWidth / static_cast<float>(world.mapSize);
    world.line = {s * cx, s * cy, 1 + s * cx, 1 + s * cy};
}

void refresh(World& world) {
    if (!world.refreshes) {
        return;
    }
    world.toolsEnabled = false;
    world.text = "Updating View";
    world.state = 1;
    world.total = (world.mapSize + 1) * (world.mapSize + 1);
    for (int y = 0; y <= world.mapSize; ++y) {
        for (int x = 0; x <= world.mapSize; ++x) {
            const auto cell = static_cast<std::size_t>(x + kSide * y);
            world.shadow[cell] = world.heights[cell];
        }
        world.done = y * (world.mapSize + 1);
        yield(world);
        if (stopped(world)) {
            return;
        }
    }
    world.state = 2;
    world.toolsEnabled = true;
}

void buildPlain(World& world, int x, int y, int size) {
    const Angles& table = angles();
    const std::int16_t flat = world.height(x, y);
    for (int r = 1; r <= size; ++r) {
        for (int a = 1; a <= 360; ++a) {
            const int px = down(x + r * table.cosine[static_cast<std::size_t>(3 * a)]);
            const int py = down(y + r * table.sine[static_cast<std::size_t>(3 * a)]);
            if (world.isInside(px, py)) {
                world.height(px, py) = flat;
            }
        }
    }
    refresh(world);
}

namespace {

// A disc of full circles, each sample through set(px, py).
template <typename Set>
void disc(const World& world, double cx, double cy, int rings, int step, Set set) {
    const Angles& table = angles();
    for (int r = 1; r <= rings; ++r) {
        for (int a = 1; a <= 360; a += step) {
            const int px = down(cx + r * table.cosine[static_cast<std::size_t>(3 * a)]);
            const int py = down(cy + r * table.sine[static_cast<std::size_t>(3 * a)]);
            if (world.isInside(px, py)) {
                set(px, py);
            }
        }
    }
}

struct Segment {
    int x1, y1, x2, y2;
    double dist;
};

Segment segment(const World& world, int i) {
    const auto n = static_cast<std::size_t>(i);
    Segment found{world.strokeX[n], world.strokeY[n], world.strokeX[n + 1], world.strokeY[n + 1],
                  0};
    const double dx = found.x2 - found.x1;
    const double dy = found.y2 - found.y1;
    found.dist = std::floor(std::sqrt(dy * dy + dx * dx));
    return found;
}

}  // namespace

void drawStroke(World& world, int mode) {
    world.stopFlag = 0;
    if (world.strokeCount < 3) {
        return;
    }
    world.toolsEnabled = false;
    world.isLineShown = true;
    int last = world.strokeCount - 1;
    if (mode == 0) {
        world.total = world.strokeCount - 2;
        last = world.strokeCount - 2;
    }
    world.text = mode == 1 ? "Drawing Line" : "Drawing Pencil";
    world.state = 1;
    for (int i = 1; i <= last; ++i) {
        Segment s = segment(world, i);
        if (s.x1 == s.x2 && s.y1 == s.y2) {
            continue;
        }
        if (mode == 1) {
            world.total = static_cast<int>(s.dist);
        }
        const int end = static_cast<int>(s.dist);
        for (int t = 0; t <= end; ++t) {
            if (s.dist == 0) {
                s.dist += 0.0009;
            }
            const double cx = s.x1 + t * ((s.x2 - s.x1) / s.dist);
            const double cy = s.y1 + t * ((s.y2 - s.y1) / s.dist);
            const int w = mode == 0 ? world.pencilThickness : world.lineThickness;
            const auto drawn = static_cast<std::int16_t>(world.drawHeight);
            if (w == 1) {
                if (cx >= 0 && cx <= world.mapSize && cy >= 0 && cy <= world.mapSize) {
                    world.height(nearest(cx), nearest(cy)) = drawn;
                }
            } else {
                disc(world, cx, cy, w, 1, [&](int px, int py) { world.height(px, py) = drawn; });
            }
            moveMarker(world, cx, cy);
            if (mode == 1) {
                world.done = t;
                yield(world);
            }
            if (stopped(world)) {
                return;
            }
        }
        if (mode == 0) {
            world.done = i;
        }
        yield(world);
    }
    world.isLineShown = false;
    world.toolsEnabled = true;
    world.state = 2;
    refresh(world);
}

namespace {

constexpr int kSea = 31;
constexpr int kRiverBed = 20;

// The wall around one place of the path.
void carveWall(World& world, const std::vector<std::int16_t>& before, double cx, double cy,
               int bank, int edge) {
    const Angles& table = angles();
    for (int r = bank; r <= bank + edge; ++r) {
        double step = 2;
        if (r > 20) {
            step = 1;
        }
        if (r > 30) {
            step = 0.5;
        }
        for (double a = 0; a < 360; a += step) {
            const auto k = static_cast<std::size_t>(nearest(3 * a));
            int ox = down(cx + (bank + edge) * table.cosine[k]);
            int oy = down(cy + (bank + edge) * table.sine[k]);
            ox = ox < 0 ? 0 : (ox > world.mapSize ? world.mapSize : ox);
            oy = oy < 0 ? 0 : (oy > world.mapSize ? world.mapSize : oy);
            int top = before[static_cast<std::size_t>(ox + kSide * oy)];
            if (top < kSea) {
                top = kSea;
            }
            const int px = down(cx + r * table.cosine[k]);
            const int py = down(cy + r * table.sine[k]);
            const double t = -(90 + (r - bank) * (180.0 / edge));
            const double s = std::sin(t * 3.14159 / 180);
            if (world.isInside(px, py)) {
                const int g = world.height(px, py);
                if (g > top) {
                    top = g;
                }
                const double h = ((top - kSea) / 2.0) * s + (top - kSea) / 2.0 + kSea;
                if (h >= 0 && h <= 255 && h < g) {
                    world.height(px, py) = static_cast<std::int16_t>(nearest(h));
                }
            }
        }
    }
}

int edgeOf(int steepness) {
    switch (steepness) {
        case 35:
            return 5;
        case 36:
            return 15;
        case 37:
            return 30;
        default:
            return 0;
    }
}

}  // namespace

void carveCanyon(World& world, const Canyon& canyon) {
    const std::vector<std::int16_t> before = world.heights;
    world.stopFlag = 0;
    world.isLineShown = true;
    const int count = world.strokeCount;
    if (count < 3) {
        return;
    }
    const int edge = edgeOf(canyon.steepness);
    world.toolsEnabled = false;
    world.total = canyon.hasRiver ? count * 2 - 4 : count - 2;
    world.text = "Calculating Your Canyon";
    world.state = 1;
    for (int i = 1; i <= count - 2; ++i) {
        Segment s = segment(world, i);
        const int end = static_cast<int>(s.dist);
        for (int t = 0; t <= end; t += 2) {
            if (s.dist == 0) {
                s.dist += 0.0009;
            }
            const double cx = s.x1 + t * ((s.x2 - s.x1) / s.dist);
            const double cy = s.y1 + t * ((s.y2 - s.y1) / s.dist);
            disc(world, cx, cy, canyon.bank, 3, [&](int px, int py) {
                if (world.height(px, py) > kSea) {
                    world.height(px, py) = kSea;
                }
            });
            if (edge != 0) {
                carveWall(world, before, cx, cy, canyon.bank, edge);
            }
            moveMarker(world, cx, cy);
            if (world.state == 1) {
                yield(world);
            }
        }
        if (stopped(world)) {
            return;
        }
        world.done = i;
        yield(world);
    }
    for (int i = 1; canyon.hasRiver && i <= count - 2; ++i) {
        Segment s = segment(world, i);
        const int end = static_cast<int>(s.dist);
        for (int t = 0; t <= end; ++t) {
            if (s.dist == 0) {
                s.dist += 0.0009;
            }
            const double cx = s.x1 + t * ((s.x2 - s.x1) / s.dist);
            const double cy = s.y1 + t * ((s.y2 - s.y1) / s.dist);
            disc(world, cx, cy, canyon.river, 4,
                 [&](int px, int py) { world.height(px, py) = kRiverBed; });
            moveMarker(world, cx, cy);
        }
        if (stopped(world)) {
            return;
        }
        world.done = i + count - 2;
        yield(world);
    }
    world.state = 2;
    world.percent = "100 Percent Done";
    world.isLineShown = false;
    world.toolsEnabled = true;
    refresh(world);
}

}  // namespace ombrelia::slow
