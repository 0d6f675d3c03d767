// A page of the maze: a byte for each cell, y varying fastest, inside a rim two cells wide, so that
// a step from any room finds a cell.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/failure.h"

namespace ombrelia::maze {

// Values of a cell.
inline constexpr std::uint8_t kMazeWall = 0;   // or a room that the carver has not reached
inline constexpr std::uint8_t kMazeTrack = 1;  // the entrance; the solution; the player's track
inline constexpr std::uint8_t kMazeOpen = 2;
inline constexpr std::uint8_t kMazeLeft = 3;  // a room that the player has retreated from

class MazeGrid {
  public:
    static constexpr int kRim = 2;

    // Cells (0, 0) to (maxX, maxY), walls. The rim is no part of the page; it reads as track, so
    // that no carver enters it and a wall towards it counts as one towards the solution.
    void allocate(int maxX, int maxY) {
        maxX_ = maxX;
        maxY_ = maxY;
        stride_ = maxY + 1 + 2 * kRim;
        cells_.assign(static_cast<std::size_t>((maxX + 1 + 2 * kRim) * stride_), kMazeTrack);
        fill(kMazeWall);
    }

    void release() { *this = {}; }

    bool isEmpty() const { return cells_.empty(); }
    int maxX() const { return maxX_; }
    int maxY() const { return maxY_; }

    void fill(std::uint8_t value) {
        for (int x = 0; x <= maxX_; ++x) {
            std::fill_n(data() + offset(x, 0), maxY_ + 1, value);
        }
    }

    bool has(int x, int y) const { return x >= 0 && x <= maxX_ && y >= 0 && y <= maxY_; }

    // Throws SubscriptFailure outside the page.
    std::uint8_t& operator()(int x, int y) {
        check(x, y);
        return cells_[static_cast<std::size_t>(offset(x, y))];
    }
    std::uint8_t operator()(int x, int y) const {
        check(x, y);
        return cells_[static_cast<std::size_t>(offset(x, y))];
    }

    // For loops that keep to the page and its rim: a cell's number, and what to add for a step.
    int offset(int x, int y) const { return (x + kRim) * stride_ + y + kRim; }
    int step(int dx, int dy) const { return dx * stride_ + dy; }
    std::uint8_t* data() { return cells_.data(); }
    const std::uint8_t* data() const { return cells_.data(); }

    bool operator==(const MazeGrid&) const = default;

  private:
    void check(int x, int y) const {
        if (x < 0 || x > maxX_) {
            throwSubscript(x, 0, maxX_);
        }
        if (y < 0 || y > maxY_) {
            throwSubscript(y, 0, maxY_);
        }
    }

    int maxX_ = -1;
    int maxY_ = -1;
    int stride_ = 0;
    std::vector<std::uint8_t> cells_;
};

}  // namespace ombrelia::maze
