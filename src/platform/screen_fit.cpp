#include "platform/screen_fit.h"

#include <algorithm>
#include <iterator>

namespace ombrelia {

namespace {

constexpr double kSmallScales[] = {1, 0.9, 0.8, 0.7, 0.6, 0.5};

}  // namespace

double fittingScale(const EditorSize& editor, double freeWidth, double freeHeight) {
    for (const double scale : kScales) {
        if ((editor.width + editor.dockedWidth) * scale <= freeWidth &&
            editor.height * scale <= freeHeight) {
            return scale;
        }
    }
    const auto* fits =
        std::find_if(std::begin(kSmallScales), std::end(kSmallScales), [&](double scale) {
            return editor.width * scale <= freeWidth && editor.height * scale <= freeHeight;
        });
    return fits == std::end(kSmallScales) ? *std::rbegin(kSmallScales) : *fits;
}

double scaleForHeight(double most, double heightUnits, double freeHeight) {
    const auto fits = [&](double scale) {
        return scale <= most && heightUnits * scale <= freeHeight;
    };
    const auto* row = std::find_if(std::begin(kScales), std::end(kScales), fits);
    if (row != std::end(kScales)) {
        return *row;
    }
    const auto* small = std::find_if(std::begin(kSmallScales), std::end(kSmallScales), fits);
    return small == std::end(kSmallScales) ? *std::rbegin(kSmallScales) : *small;
}

double keptInside(double wished, double length, double freeBegin, double freeLength) {
    return std::max(freeBegin, std::min(wished, freeBegin + freeLength - length));
}

ScreenPlace placeInside(const ScreenBox& window, double dockedWidth, const ScreenBox& free) {
    const double both = window.width + dockedWidth;
    return {
        keptInside(window.left, both <= free.width ? both : window.width, free.left, free.width),
        keptInside(window.top, window.height, free.top, free.height)};
}

ScreenPlace openingPlace(double width, double height, double dockedWidth, const ScreenBox& around,
                         const ScreenBox& free, double offset) {
    const bool hasRoom = width + dockedWidth <= free.width;
    const double left = around.left + (around.width - width - dockedWidth) / 2 + offset;
    const double middle = around.top + (around.height - height) / 2 + offset;
    return placeInside({left, hasRoom ? middle : free.top, width, height}, 0, free);
}

ScreenPlace dockedPlace(const ScreenBox& beside, const ScreenBox& free) {
    const double left = keptInside(beside.left, beside.width, free.left, free.width);
    const double lowest = std::max(free.top, free.top + free.height - beside.height);
    return {left, left == beside.left ? beside.top : lowest};
}

double droppedFrom(double fieldTop, double fieldHeight, double height, double freeTop,
                   double freeHeight) {
    const double below = fieldTop + fieldHeight;
    const double above = fieldTop - height;
    const bool isOnlyAbove = below + height > freeTop + freeHeight && above >= freeTop;
    return keptInside(isOnlyAbove ? above : below, height, freeTop, freeHeight);
}

}  // namespace ombrelia
