// The worm game once more, written plainly: cells in a map, the worm as a list, one colour a cell.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "platform/color.h"

namespace ombrelia::plain {

using Cell = std::pair<int, int>;

struct Worm {
    std::function<double()> draw;  // the next uniform float

    int n = 16;
    int lives = 5, level = 1, item = 0;
    Cell head{3, 3};
    Cell turnedAt{0, 0};
    int heading = 2, length = 4;
    std::vector<Cell> trail = std::vector<Cell>(100, {0, 0});
    std::array<int, 3> color{}, delta{};
    std::map<Cell, int> board, next;
    std::map<Cell, Color> painted;
    Cell food{0, 0};
    int pictures = 0;  // shown by fades
    int sleeps = 0;
    bool isMoreShown = false, isOver = false;

    void load();
    void key(int code);
    void tick();

  private:
    void build();
    void fadeOver();
    void reset();
    void place();
    void die();
    void drift();
};

}  // namespace ombrelia::plain
