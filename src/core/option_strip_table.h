// The option strip: its pages, and a row for each slider on them. Each says by itself where it
// stands, how it starts, and what is said of it.
#pragma once

#include <cstdint>
#include <iterator>
#include <string_view>

#include "platform/skin_pictures.h"

namespace ombrelia {

// Pages, from above: the first ones have the numbers of their places. That of a tool has the number
// of the tool.
namespace page {

inline constexpr int kPitch = 128;  // units from one to the next
inline constexpr int kNone = -1;
inline constexpr int kPencil = 0;
inline constexpr int kLine = 1;
inline constexpr int kRaise = 2;
inline constexpr int kLower = 3;
inline constexpr int kFractal = 4;
inline constexpr int k2DView = 5;
inline constexpr int k3DView = 6;
inline constexpr int kColorPicker = 7;
inline constexpr int kMountain = 8;
inline constexpr int kCanyon = 9;
inline constexpr int kPlain = 10;
inline constexpr int kMenu = 11;
inline constexpr int kRefresh = 12;
inline constexpr int kExtra = 13;
inline constexpr int kColors = 14;

struct Row {
    int number;
    const char* title;
    bool isLocked = false;  // while an operation runs
};

inline constexpr Row kRows[] = {
    {kPencil, "Pencil Tool Options"},
    {kLine, "Line Tool Options", true},
    {kRaise, "Raise Terrain Tool Options", true},
    {kLower, "Lower Terrain Tool Options", true},
    {kFractal, "Fractal Terrain Options", true},
    {k2DView, "2D View Options", true},
    {k3DView, "3D View Options", true},
    {kColorPicker, "Color Picker Options", true},
    {kMountain, "Mountain Options", true},
    {kCanyon, "Canyon Options", true},
    {kPlain, "Plain Options", true},
    {kMenu, "Menu"},
    {kRefresh, "Refresh Preferences"},
    {kExtra, "Extra Preferences"},
    {kColors, "Color Preferences"},
};

// The place of a page, from 0; the number itself, which lies beyond the end, if there is none.
constexpr int indexOf(int number) {
    int i = 0;
    for (const Row& row : kRows) {
        if (row.number == number) {
            return i;
        }
        ++i;
    }
    return number;
}

}  // namespace page

inline constexpr int kOptionFrames = std::size(page::kRows);

namespace slider {

inline constexpr int kStrip = 0;      // of the strip itself
inline constexpr int kHelpPage = 20;  // of the help window

// What a readout says of its value.
enum class Readout { Value, MetresOfAmount, MetresOfHeight };

struct Row {
    int number;
    int page;
    double top;  // units from the page's inner corner
    const char* caption;
    const char* readoutName;
    Readout readout;
    std::int16_t min, max, start;
    const char* hint;
    Picture growth = Picture::None;  // below a slider alone on its page: what its values do
};

inline constexpr Row kRows[] = {
    {1, page::kPencil, 32, "Thickness:", "lblThick", Readout::Value, 1, 20, 1,
     "Here you can set the width of the pencil drawing.", Picture::GrowthStroke},
    {2, page::kLine, 32, "Thickness:", "lblLineThick", Readout::Value, 1, 20, 1,
     "Here you can set the width of the line drawing.", Picture::GrowthStroke},
    {3, page::kRaise, 32, "Amount", "lblRaiseAmount", Readout::MetresOfAmount, 1, 20, 10,
     "Here you can set the amount that the terrain gets raised, at the clickpoint.",
     Picture::GrowthRaise},
    {4, page::k3DView, 22, "Resolution", "lblRes", Readout::Value, 1, 10, 4,
     "Here you can set the resolution of your 3D drawing. The higher the number, the faster the "
     "3D draw, but the quality gets worse."},
    {5, page::k3DView, 42, "Draw Width", "lblWidth", Readout::Value, 1, 10, 1,
     "Here you can set the size and width of the lines or dots, when drawing 3D."},
    {6, page::kMountain, 22, "Height", "lblHeightValue", Readout::MetresOfHeight, 50, 255, 255,
     "Here you can set the height of the mountain to make."},
    {7, page::kMountain, 42, "Top Size", "lblSizeValue", Readout::Value, 1, 30, 1,
     "Here you can set the top size of the mountain."},
    {8, page::kPlain, 32, "Size", "lblPlainSize", Readout::Value, 5, 30, 5,
     "Here you can set the size of the plain to create. Keep in mind that this plain is circular.",
     Picture::GrowthPlain},
    {9, page::kFractal, 22, "Smoothness", "lblRough", Readout::Value, 1, 20, 1,
     "Here you can set the smoothness of the fractal terrain. A setting of 1 makes almost "
     "static, and a setting of 20 makes almost 1 color."},
    {10, page::kFractal, 42, "Height", "lblRoughHeight", Readout::MetresOfHeight, 20, 200, 60,
     "Here you can set the general height of the fractal. Keep in mind that the fractal moves "
     "up&down, so this is just the average height value."},
    {11, page::kLower, 32, "Amount", "lblLowerAmount", Readout::MetresOfAmount, 1, 20, 4,
     "Here you can set the amount that the terrain gets lowered, at the clickpoint.",
     Picture::GrowthLower},
    {12, page::kCanyon, 22, "River Width", "lblRiverWidth", Readout::Value, 2, 15, 3,
     "Here you can set the width of the river that is generated, if you choose to have one."},
    {13, page::kCanyon, 42, "Bank Width", "lblBankWidth", Readout::Value, 3, 25, 10,
     "Here you can set the width of the river bank, which is generated regardless of whether or "
     "not a river is present."},
    {14, page::kFractal, 62, "Detail", "lblDetail", Readout::Value, 1, 8, 5,
     "Here you can set the detail level of the fractal. Use 1 to make a very simple terrain, or "
     "use 8 to make a very complex one."},
};

inline constexpr int kFirst = 1;
inline constexpr int kLast = std::size(kRows);

// The slider with this caption on a page. Does not compile without one.
consteval int number(int page, std::string_view caption) {
    for (const Row& row : kRows) {
        if (row.page == page && row.caption == caption) {
            return row.number;
        }
    }
    throw caption;
}

inline constexpr int kPencilThickness = number(page::kPencil, "Thickness:");
inline constexpr int kLineThickness = number(page::kLine, "Thickness:");
inline constexpr int kRaiseAmount = number(page::kRaise, "Amount");
inline constexpr int kResolution = number(page::k3DView, "Resolution");
inline constexpr int kDrawWidth = number(page::k3DView, "Draw Width");
inline constexpr int kMountainHeight = number(page::kMountain, "Height");
inline constexpr int kMountainTop = number(page::kMountain, "Top Size");
inline constexpr int kPlainSize = number(page::kPlain, "Size");
inline constexpr int kSmoothness = number(page::kFractal, "Smoothness");
inline constexpr int kFractalHeight = number(page::kFractal, "Height");
inline constexpr int kLowerAmount = number(page::kLower, "Amount");
inline constexpr int kRiverWidth = number(page::kCanyon, "River Width");
inline constexpr int kBankWidth = number(page::kCanyon, "Bank Width");
inline constexpr int kDetail = number(page::kFractal, "Detail");

// The row of a slider of the pages; throws MissingPartFailure for a number that has none.
const Row& row(int number);

}  // namespace slider

static_assert(
    [] {
        int next = slider::kFirst;
        for (const slider::Row& row : slider::kRows) {
            if (row.number != next++ || page::indexOf(row.page) >= kOptionFrames) {
                return false;
            }
        }
        return next <= slider::kHelpPage;
    }(),
    "sliders are numbered in their order, stand on pages, and have records");

}  // namespace ombrelia
