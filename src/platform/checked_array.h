// Arrays of fixed bounds whose subscripts are checked: a wrong one is a SubscriptFailure, never a
// stray write. Loops that have proven their bounds may take the bare row or data pointer.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/failure.h"

namespace ombrelia {

// One dimension, subscripts Low..High.
template <typename T, int Low, int High>
class CheckedArray {
  public:
    static constexpr int kLow = Low;
    static constexpr int kHigh = High;

    T& operator()(int i) { return items_[offset(i)]; }
    const T& operator()(int i) const { return items_[offset(i)]; }

    void fill(const T& value) { items_.fill(value); }
    T* data() { return items_.data(); }
    const T* data() const { return items_.data(); }
    static constexpr std::size_t size() { return static_cast<std::size_t>(High - Low + 1); }

    bool operator==(const CheckedArray&) const = default;

  private:
    static std::size_t offset(int i) {
        if (i < Low || i > High) {
            throwSubscript(i, Low, High);
        }
        return static_cast<std::size_t>(i - Low);
    }

    std::array<T, static_cast<std::size_t>(High - Low + 1)> items_{};
};

// Two dimensions, both subscripts 0..Last; element (x, y) lies at x + (Last + 1) * y.
template <typename T, int Last>
class CheckedGrid {
  public:
    static constexpr int kLast = Last;
    static constexpr int kSide = Last + 1;

    T& operator()(int x, int y) { return items_[offset(x, y)]; }
    const T& operator()(int x, int y) const { return items_[offset(x, y)]; }

    // The cells (0..Last, y); y is checked, the column is the caller's care.
    T* row(int y) { return items_.data() + offset(0, y); }
    const T* row(int y) const { return items_.data() + offset(0, y); }

    void fill(const T& value) { items_.fill(value); }
    T* data() { return items_.data(); }
    const T* data() const { return items_.data(); }
    static constexpr std::size_t size() { return static_cast<std::size_t>(kSide) * kSide; }

    bool operator==(const CheckedGrid&) const = default;

  private:
    static std::size_t offset(int x, int y) {
        if (x < 0 || x > Last) {
            throwSubscript(x, 0, Last);
        }
        if (y < 0 || y > Last) {
            throwSubscript(y, 0, Last);
        }
        return static_cast<std::size_t>(x) +
               static_cast<std::size_t>(kSide) * static_cast<std::size_t>(y);
    }

    std::array<T, static_cast<std::size_t>(kSide) * kSide> items_{};
};

}  // namespace ombrelia
