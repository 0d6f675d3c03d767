#include "terrain/stroke_path.h"

#include <cmath>

#include "core/editor_state.h"
#include "terrain/ring.h"

namespace ombrelia {

PathSegment pathSegment(int i) {
    PathSegment segment{StrokeX(i), StrokeY(i), StrokeX(i + 1), StrokeY(i + 1), 0, 0, 0};
    const double dx = segment.x2 - segment.x1;
    const double dy = segment.y2 - segment.y1;
    segment.steps = floorToInt(std::sqrt(dy * dy + dx * dx));
    constexpr double kInPlaceOfNone = 0.0009;  // keeps a segment without length from dividing by 0
    const double length = segment.steps == 0 ? kInPlaceOfNone : segment.steps;
    segment.stepX = dx / length;
    segment.stepY = dy / length;
    return segment;
}

}  // namespace ombrelia
