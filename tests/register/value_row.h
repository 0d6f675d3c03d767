// The register of values: each value of the process by its name. Tests read, write and reset all of
// them through it; a value that a state header has and no row names would leak from test to test.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/checked_array.h"

namespace ombrelia {

enum class ScalarKind { Int16, Int32, UInt32, Float, Double, Text };

template <typename T>
constexpr ScalarKind scalarKindOf();
template <>
constexpr ScalarKind scalarKindOf<std::int16_t>() {
    return ScalarKind::Int16;
}
template <>
constexpr ScalarKind scalarKindOf<std::int32_t>() {
    return ScalarKind::Int32;
}
template <>
constexpr ScalarKind scalarKindOf<std::uint32_t>() {
    return ScalarKind::UInt32;
}
template <>
constexpr ScalarKind scalarKindOf<float>() {
    return ScalarKind::Float;
}
template <>
constexpr ScalarKind scalarKindOf<double>() {
    return ScalarKind::Double;
}
template <>
constexpr ScalarKind scalarKindOf<std::string>() {
    return ScalarKind::Text;
}

// One name: a single value, an array of up to three subscripts, or one field of an array of
// records.
struct ValueRow {
    struct Subscript {
        int low = 0;
        int high = 0;
        long strideBytes = 0;
    };

    std::string_view name;
    std::string_view field;  // of a record, otherwise empty
    ScalarKind kind = ScalarKind::Int16;
    void* first = nullptr;  // the element with the lowest subscripts
    int subscripts = 0;     // 0 to 3
    // Those that the row does not have go from 0 to 0.
    std::array<Subscript, 3> ranges{};

    // The element at these subscripts, or nullptr when they are too many, too few or outside.
    void* at(std::span<const int> indices) const;

    // Every element set to 0 or the empty text, which is the start of every value.
    void reset() const;
};

// An element as text: numbers in decimal (reals so that they read back the same).
std::string textOf(const ValueRow& row, const void* element);

// Sets an element from text; false, and nothing set, if the text as a whole is no such number.
bool setFromText(const ValueRow& row, void* element, const std::string& text);

template <typename T>
ValueRow valueRow(std::string_view name, T& value) {
    return {name, {}, scalarKindOf<T>(), &value, 0, {}};
}

template <typename T, int Low, int High>
ValueRow arrayRow(std::string_view name, CheckedArray<T, Low, High>& array) {
    return {name, {}, scalarKindOf<T>(), array.data(), 1, {{{Low, High, sizeof(T)}, {}, {}}}};
}

template <typename T, int Last>
ValueRow gridRow(std::string_view name, CheckedGrid<T, Last>& grid) {
    return {name,
            {},
            scalarKindOf<T>(),
            grid.data(),
            2,
            {{{0, Last, sizeof(T)}, {0, Last, sizeof(T) * CheckedGrid<T, Last>::kSide}, {}}}};
}

// One field of every record of an array.
template <typename R, typename T, int Low, int High>
ValueRow fieldRow(std::string_view name, std::string_view field, CheckedArray<R, Low, High>& array,
                  T R::*member) {
    return {name,
            field,
            scalarKindOf<T>(),
            &(array.data()->*member),
            1,
            {{{Low, High, sizeof(R)}, {}, {}}}};
}

// All values of the process.
const std::vector<ValueRow>& allValues();

}  // namespace ombrelia
