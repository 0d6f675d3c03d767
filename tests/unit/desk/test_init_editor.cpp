#include <cmath>
#include <numbers>

#include "core/editor_state.h"
#include "core/objects.h"
#include "desk/init_editor.h"
#include "editor_fixture.h"

namespace ombrelia {

namespace {

class InitEditorTest : public EditorTest {};

TEST_F(InitEditorTest, angle_tables_use_short_pi) {
    for (int k = 0; k <= 2160; ++k) {
        const double angle = ((k - 1080) / 3.0) * (3.14159 / 180);
        EXPECT_EQ(SinTable(k), std::sin(angle)) << k;
        EXPECT_EQ(CosTable(k), std::cos(angle)) << k;
    }
    EXPECT_EQ(SinTable(1080), 0);
    EXPECT_EQ(CosTable(1080), 1);
    // 360 short degrees fall short of the whole turn by 2 * 2.65e-6.
    const double gap = 2 * (std::numbers::pi - 3.14159);
    EXPECT_NEAR(SinTable(2160), -gap, 1e-12);
    EXPECT_NEAR(SinTable(0), gap, 1e-12);
    EXPECT_EQ(CosTable(0), CosTable(2160));
    EXPECT_LT(CosTable(2160), 1);
    EXPECT_THROW(SinTable(2161), SubscriptFailure);
}

TEST_F(InitEditorTest, angles_are_thirds_of_a_degree) {
    EXPECT_NEAR(SinTable(1080 + 90), 0.5, 1e-5);
    EXPECT_NEAR(CosTable(1080 + 180), 0.5, 1e-5);
    EXPECT_NEAR(SinTable(1080 - 270), -1, 1e-5);
}

TEST_F(InitEditorTest, the_whole_field_is_flat_whatever_the_size) {
    openEditor(65);
    HeightMap.fill(9);
    ShadowMap.fill(9);
    InitEditor();
    HeightGrid flat;
    flat.fill(40);
    EXPECT_TRUE(HeightMap == flat);
    EXPECT_TRUE(ShadowMap == flat);
}

TEST_F(InitEditorTest, numbers_without_a_button_are_put_up_too) {
    OptionStates(39).State = 2;
    OptionStates(74).State = 1;
    OptionStates(75).State = 2;
    InitEditor();
    EXPECT_EQ(OptionStates(39).State, 0);
    EXPECT_EQ(OptionStates(74).State, 0);
    EXPECT_EQ(OptionStates(75).State, 2);  // beyond the editor's buttons
}

TEST_F(InitEditorTest, constants_and_camera_have_their_start) {
    ViewYaw = 1;
    ViewTilt = 2;
    ViewZoom = 3;
    MapZoom = -7;
    MapPanX = 4;
    SeaLevel = 0;
    InitEditor();
    EXPECT_EQ(SeaLevel, 31);
    EXPECT_EQ(BaseHeight, 40);
    EXPECT_EQ(ViewYaw, 180);
    EXPECT_EQ(ViewTilt, 135);
    EXPECT_EQ(ViewZoom, 1.0);
    EXPECT_EQ(MapZoom, -7);
    EXPECT_EQ(MapPanX, 4);
}

TEST_F(InitEditorTest, the_colours_are_the_default_set_again) {
    ColorRange = {};
    InitEditor();
    EXPECT_EQ(ColorRange(1, 1, 3), 150);
    EXPECT_EQ(ColorRange(6, 2, 3), 231);
}

}  // namespace

}  // namespace ombrelia
