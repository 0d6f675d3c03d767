// Directions from a room to its walls, and all orders in which they can be tried.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace ombrelia::maze {

// In world units a square room is 1 wide and a hexagon has sides of 1.
inline constexpr double kRoot3 = 1.7320508075688772;
inline constexpr double kThickness = 0.25;  // of a wall

// A step from a room to the wall cell; twice the step leads to the next room.
struct MazeDelta {
    std::int8_t x, y;
    bool operator==(const MazeDelta&) const = default;
};

inline constexpr std::array<MazeDelta, 4> kSquareDeltas = {{{-1, 0}, {0, 1}, {1, 0}, {0, -1}}};
inline constexpr std::array<MazeDelta, 6> kHexDeltas = {
    {{-2, -1}, {-2, 1}, {0, -2}, {0, 2}, {2, -1}, {2, 1}}};

template <std::size_t kDirections, std::size_t kOrders>
using MazeOrders = std::array<std::array<std::uint8_t, kDirections>, kOrders>;

// Row n lists, for each place of the order, the direction tried there. The n-th tuple of distinct
// directions in lexicographic order says at which place each direction stands.
template <std::size_t kDirections, std::size_t kOrders>
constexpr MazeOrders<kDirections, kOrders> makeMazeOrders() {
    MazeOrders<kDirections, kOrders> orders{};
    std::array<std::uint8_t, kDirections> tuple{};
    for (std::size_t i = 0; i < kDirections; ++i) {
        tuple[i] = static_cast<std::uint8_t>(i);
    }
    for (auto& order : orders) {
        for (std::size_t i = 0; i < kDirections; ++i) {
            order[tuple[i]] = static_cast<std::uint8_t>(i);
        }
        // The next tuple: the last rise is exchanged, what follows it turned round.
        std::size_t rise = kDirections - 1;
        while (rise > 0 && tuple[rise - 1] > tuple[rise]) {
            --rise;
        }
        if (rise == 0) {
            break;
        }
        std::size_t other = kDirections - 1;
        while (tuple[other] < tuple[rise - 1]) {
            --other;
        }
        std::swap(tuple[rise - 1], tuple[other]);
        for (std::size_t low = rise, high = kDirections - 1; low < high; ++low, --high) {
            std::swap(tuple[low], tuple[high]);
        }
    }
    return orders;
}

// For each order and each set of directions (a bit for each number) the direction that is tried
// first, so that a carver finds its way without a jump for each try; 0 for the empty set.
template <std::size_t kDirections, std::size_t kOrders>
using MazeFirsts = std::array<std::array<std::uint8_t, std::size_t{1} << kDirections>, kOrders>;

template <std::size_t kDirections, std::size_t kOrders>
constexpr MazeFirsts<kDirections, kOrders> makeMazeFirsts(
    const MazeOrders<kDirections, kOrders>& orders) {
    MazeFirsts<kDirections, kOrders> firsts{};
    for (std::size_t n = 0; n < kOrders; ++n) {
        // From the last place to the first: a direction is first in every set of those behind it.
        std::size_t behind = 0;
        for (std::size_t place = kDirections; place-- > 0;) {
            const std::size_t bit = std::size_t{1} << orders[n][place];
            for (std::size_t set = behind;; set = (set - 1) & behind) {
                firsts[n][set | bit] = orders[n][place];
                if (set == 0) {
                    break;
                }
            }
            behind |= bit;
        }
    }
    return firsts;
}

inline constexpr std::size_t kSquareOrderCount = 24;
inline constexpr std::size_t kHexOrderCount = 720;

extern const MazeOrders<4, kSquareOrderCount> kSquareOrders;
extern const MazeOrders<6, kHexOrderCount> kHexOrders;
extern const MazeFirsts<4, kSquareOrderCount> kSquareFirsts;
extern const MazeFirsts<6, kHexOrderCount> kHexFirsts;

}  // namespace ombrelia::maze
