// Style sheets that name their colours.
#include <gtest/gtest.h>

#include "platform/qt/palette_style.h"

namespace ombrelia {

namespace {

TEST(PaletteStyle, each_name_becomes_its_colour) {
    EXPECT_EQ(StyleText("@well").sheet(), toolkitColor(palette::kWell).name());
    EXPECT_EQ(StyleText("A { color: @edge; border: %1px @edge_hi; }").sheet(),
              "A { color: " + toolkitColor(palette::kEdge).name() + "; border: %1px " +
                  toolkitColor(palette::kEdgeHi).name() + "; }");
    EXPECT_EQ(StyleText("@ink@text_dim").sheet(),
              toolkitColor(palette::kInk).name() + toolkitColor(palette::kTextDim).name());
}

TEST(PaletteStyle, a_text_without_names_stays) {
    EXPECT_EQ(StyleText("").sheet(), "");
    EXPECT_EQ(StyleText("A { margin: %2px; }").sheet(), "A { margin: %2px; }");
}

TEST(PaletteStyle, a_colour_keeps_its_parts) {
    EXPECT_EQ(toolkitColor(rgb(1, 2, 3)), QColor(1, 2, 3));
    EXPECT_EQ(toolkitColor(palette::kAmber).name(), "#f2a83a");
}

}  // namespace

}  // namespace ombrelia
