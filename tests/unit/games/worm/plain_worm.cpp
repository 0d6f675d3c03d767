#include "games/worm/plain_worm.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace ombrelia::plain {

namespace {

// The inner 15 x 15 cells of the levels with bars, as they look.
using Drawing = std::array<const char*, 15>;
constexpr Drawing kBar = {
    "               ", "               ", "               ", "               ", "               ",
    "               ", "               ", "    #######    ", "               ", "               ",
    "               ", "               ", "               ", "               ", "               "};
constexpr Drawing kCross = {
    "               ", "               ", "               ", "               ", "       #       ",
    "       #       ", "       #       ", "    #######    ", "       #       ", "       #       ",
    "       #       ", "               ", "               ", "               ", "               "};
constexpr Drawing kPinwheel = {
    "           #   ", "           #   ", "           #   ", "#######    #   ", "           #   ",
    "           #   ", "           #   ", "               ", "   #           ", "   #           ",
    "   #           ", "   #    #######", "   #           ", "   #           ", "   #           "};

int nearest(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    const bool isUp = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0);
    return static_cast<int>(below) + (isUp ? 1 : 0);
}

Color colorFrom(int red, int green, int blue) {
    const auto cut = [](int part) { return static_cast<unsigned>(std::min(part, 255)); };
    return rgb(cut(red), cut(green), cut(blue));
}

}  // namespace

void Worm::build() {
    for (int i = 0; i <= n; ++i) {
        next[{i, 0}] = next[{i, n}] = next[{0, i}] = next[{n, i}] = 2;
    }
    if (level < 2 || level > 4) {
        return;
    }
    const Drawing& drawing = level == 2 ? kBar : level == 3 ? kCross : kPinwheel;
    for (std::size_t y = 0; y < 15; ++y) {
        for (std::size_t x = 0; x < 15; ++x) {
            next[{static_cast<int>(x) + 1, static_cast<int>(y) + 1}] = drawing[y][x] == '#' ? 2 : 0;
        }
    }
}

// The last of 25 pictures: the new walls have come to (240, 50, 240), the old ones are black.
void Worm::fadeOver() {
    for (int x = 1; x <= n; ++x) {
        for (int y = 1; y <= n; ++y) {
            const Cell cell{x, y};
            const bool isOld = board[cell] == 2;
            painted[cell] = next[cell] != 2 ? rgb(0, 0, 0)
                            : isOld         ? rgb(255, 50, 255)
                                            : rgb(240, 50, 240);
            board[cell] = next[cell];
        }
    }
    pictures += 25;
}

void Worm::place() {
    ++item;
    if (item == 18) {
        ++level;
        build();
        fadeOver();
        reset();
        isMoreShown = isMoreShown || level == 4;
        return;
    }
    do {
        food.first = static_cast<int>(draw() * n) + 1;
        food.second = static_cast<int>(draw() * n) + 1;
    } while (board[food] != 0);
}

void Worm::reset() {
    item = 0;
    place();
    head = {3, 3};
    length = 4;
    heading = 2;
    for (auto& [cell, value] : board) {
        if (value == 1 && cell.first >= 1 && cell.first <= n && cell.second >= 1 &&
            cell.second <= n) {
            value = 0;
        }
    }
}

void Worm::load() {
    reset();
    build();
    fadeOver();
    for (int& part : color) {
        part = nearest(draw() * 255 + 1);
    }
    for (int& part : delta) {
        part = nearest(draw() * 7 - 3);
    }
}

void Worm::key(int code) {
    if (head == turnedAt) {
        return;
    }
    turnedAt = head;
    const std::map<int, int> wanted = {{38, 1}, {39, 2}, {40, 3}, {37, 4}};
    const auto found = wanted.find(code);
    if (found != wanted.end() && std::abs(found->second - heading) != 2) {
        heading = found->second;
    }
}

void Worm::die() {
    std::array<int, 3> rest = color;
    do {
        for (int i = 0; i + 1 < length; ++i) {
            painted[trail[static_cast<std::size_t>(i)]] = colorFrom(rest[0], rest[1], rest[2]);
        }
        ++pictures;
        ++sleeps;
        for (int& part : rest) {
            part = part > 10 ? part - 10 : part;
        }
    } while (*std::max_element(rest.begin(), rest.end()) > 10);
    --lives;
    reset();
    isOver = lives == 0;
}

void Worm::drift() {
    color = {color[0] + delta[0], color[1] - delta[1], color[2] + delta[2]};
    for (std::size_t i = 0; i < 3; ++i) {
        if (color[i] > 255 || color[i] < 30) {
            color[i] = color[i] > 255 ? 255 : 30;
            delta[i] = nearest(draw() * 7 - 4);
        }
    }
}

void Worm::tick() {
    const int across[] = {0, 0, 1, 0, -1};
    const int down[] = {0, -1, 0, 1, 0};
    head.first += across[heading];
    head.second += down[heading];
    const bool isOutside =
        head.first < 0 || head.second < 0 || head.first > 100 || head.second > 100;
    if (isOutside || board[head] != 0) {
        die();
    }
    if (food == head) {
        place();
        length += 2;
    }
    board[head] = 1;
    drift();
    painted[head] = colorFrom(color[0], color[1], color[2]);
    // The worm goes on by one; what lies behind its length stays.
    const auto last = trail.begin() + length - 1;
    std::rotate(trail.begin(), last, last + 1);
    trail.front() = head;
    const Cell tail = trail[static_cast<std::size_t>(length) - 1];
    if (board[tail] != 2) {
        board[tail] = 0;
        painted[tail] = rgb(0, 0, 0);
    }
}

}  // namespace ombrelia::plain
