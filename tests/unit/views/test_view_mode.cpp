#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

// The modes by their numbers: 1 from above, 2 in perspective.
class ViewMode : public EditorTest {};

TEST_F(ViewMode, perspective_has_a_scale_of_its_own) {
    Surface& view = Form1.MapView.Canvas;
    view.ScaleWidth = 9;
    view.ScaleHeight = 9;
    view.ScaleLeft = 9;
    view.ScaleTop = 9;
    SwitchViewMode(2);
    EXPECT_EQ(view.ScaleWidth, 257);
    EXPECT_EQ(view.ScaleHeight, 257);
    EXPECT_EQ(view.ScaleLeft, 0);
    EXPECT_EQ(view.ScaleTop, 0);
    EXPECT_TRUE(Form1.ThreeFrame.Visible);
    EXPECT_FALSE(Form1.TwoFrame.Visible);
    EXPECT_EQ(OptionStates(5).State, 0);
    EXPECT_EQ(OptionStates(6).State, 2);
    EXPECT_EQ(GroupCurrent(2), 6);
    EXPECT_EQ(Form1.NTool(6).Face.face, 2);
    EXPECT_EQ(Form1.NTool(5).Face.face, 0);
    EXPECT_EQ(View3DActive, 0);
}

TEST_F(ViewMode, the_view_from_above_takes_zoom_and_pan_again) {
    SwitchViewMode(2);
    MapZoom = -20;
    MapPanX = 20;
    SwitchViewMode(1);
    EXPECT_EQ(Form1.MapView.Canvas.ScaleWidth, 297);
    EXPECT_EQ(Form1.MapView.Canvas.ScaleLeft, 0);
    EXPECT_EQ(Form1.MapView.Canvas.ScaleTop, -20);
    EXPECT_FALSE(Form1.ThreeFrame.Visible);
    EXPECT_TRUE(Form1.TwoFrame.Visible);
    EXPECT_EQ(OptionStates(5).State, 2);
    EXPECT_EQ(OptionStates(6).State, 0);
    EXPECT_EQ(GroupCurrent(2), 5);
}

}  // namespace

}  // namespace ombrelia
