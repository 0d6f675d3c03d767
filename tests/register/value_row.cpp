#include "register/value_row.h"

#include <optional>

#include "platform/number_text.h"

namespace ombrelia {

namespace {

// Calls visit with a typed reference to the element.
template <typename Visit>
auto withElement(ScalarKind kind, void* element, Visit visit) {
    switch (kind) {
        case ScalarKind::Int16:
            return visit(*static_cast<std::int16_t*>(element));
        case ScalarKind::Int32:
            return visit(*static_cast<std::int32_t*>(element));
        case ScalarKind::UInt32:
            return visit(*static_cast<std::uint32_t*>(element));
        case ScalarKind::Float:
            return visit(*static_cast<float*>(element));
        case ScalarKind::Double:
            return visit(*static_cast<double*>(element));
        default:
            return visit(*static_cast<std::string*>(element));
    }
}

template <typename T>
std::string numberText(const T& number) {
    return shortestText(number);
}

std::string numberText(const std::string& text) {
    return text;
}

template <typename T>
bool parseInto(T& number, const std::string& text) {
    const std::optional<T> parsed = numberOf<T>(text);
    number = parsed.value_or(number);
    return parsed.has_value();
}

bool parseInto(std::string& value, const std::string& text) {
    value = text;
    return true;
}

}  // namespace

void* ValueRow::at(std::span<const int> indices) const {
    if (indices.size() != static_cast<std::size_t>(subscripts)) {
        return nullptr;
    }
    auto* element = static_cast<char*>(first);
    for (std::size_t i = 0; i < indices.size(); ++i) {
        if (indices[i] < ranges[i].low || indices[i] > ranges[i].high) {
            return nullptr;
        }
        element += (indices[i] - ranges[i].low) * ranges[i].strideBytes;
    }
    return element;
}

void ValueRow::reset() const {
    const auto& [outer, middle, inner] = ranges;
    auto* const start = static_cast<char*>(first);
    for (int i = outer.low; i <= outer.high; ++i) {
        for (int j = middle.low; j <= middle.high; ++j) {
            for (int k = inner.low; k <= inner.high; ++k) {
                void* const element = start + (i - outer.low) * outer.strideBytes +
                                      (j - middle.low) * middle.strideBytes +
                                      (k - inner.low) * inner.strideBytes;
                withElement(kind, element, [](auto& value) { value = {}; });
            }
        }
    }
}

std::string textOf(const ValueRow& row, const void* element) {
    return withElement(row.kind, const_cast<void*>(element),
                       [](auto& value) { return numberText(value); });
}

bool setFromText(const ValueRow& row, void* element, const std::string& text) {
    return withElement(row.kind, element, [&](auto& value) { return parseInto(value, text); });
}

}  // namespace ombrelia
