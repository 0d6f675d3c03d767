#include "games/worm/pilot.h"

#include <array>
#include <map>
#include <queue>
#include <utility>

#include "core/windows/form2.h"
#include "games/worm/worm_state.h"

namespace ombrelia::worm {

namespace {

using Cell = std::pair<int, int>;

struct Way {
    int key, heading, dx, dy;
};
constexpr std::array<Way, 4> kWays = {
    {{38, 1, 0, -1}, {39, 2, 1, 0}, {40, 3, 0, 1}, {37, 4, -1, 0}}};

bool isFree(const Cell& cell) {
    return cell.first >= 1 && cell.second >= 1 && cell.first <= 16 && cell.second <= 16 &&
           Board(cell.first, cell.second) == 0;
}

// Steps from a cell to every other that can be reached.
std::map<Cell, int> stepsFrom(const Cell& start) {
    std::map<Cell, int> steps;
    if (!isFree(start)) {
        return steps;
    }
    std::queue<Cell> waiting({start});
    steps[start] = 0;
    while (!waiting.empty()) {
        const Cell cell = waiting.front();
        waiting.pop();
        for (const Way& way : kWays) {
            const Cell other{cell.first + way.dx, cell.second + way.dy};
            if (isFree(other) && !steps.contains(other)) {
                steps[other] = steps[cell] + 1;
                waiting.push(other);
            }
        }
    }
    return steps;
}

}  // namespace

int keyToFood() {
    const Cell food{static_cast<int>(Form2.Label2.Left) / 30,
                    static_cast<int>(Form2.Label2.Top) / 30};
    int best = -1000000;
    int key = 0;
    for (const Way& way : kWays) {
        if (way.heading == Heading + 2 || way.heading == Heading - 2) {
            continue;
        }
        const auto steps = stepsFrom({HeadX + way.dx, HeadY + way.dy});
        const auto found = steps.find(food);
        const int worth =
            found != steps.end() ? 1000 - found->second : static_cast<int>(steps.size()) - 1000;
        if (!steps.empty() && worth > best) {
            best = worth;
            key = way.key;
        }
    }
    return key;
}

}  // namespace ombrelia::worm
