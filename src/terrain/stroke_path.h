// The path that was recorded while the mouse was down, segment by segment.
#pragma once

namespace ombrelia {

// The way from one recorded point to the next in unit steps.
struct PathSegment {
    int x1, y1, x2, y2;
    int steps;            // whole length, rounded down
    double stepX, stepY;  // of one step, cells

    bool isPoint() const { return x1 == x2 && y1 == y2; }
    double xAt(int step) const { return x1 + step * stepX; }
    double yAt(int step) const { return y1 + step * stepY; }
};

// From the recorded point i to point i + 1.
[[nodiscard]] PathSegment pathSegment(int i);

}  // namespace ombrelia
