#include "views/view_mode.h"

#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "views/map2d/map_transform.h"
#include "views/view3d/draw_terrain.h"

namespace ombrelia {

namespace {

void setModeRecords(int on, int off) {
    OptionStates(on).State = kOn;
    OptionStates(off).State = kUp;
    DrawButton(button::k3DMode);
    DrawButton(button::k2DMode);
    GroupCurrent(OptionStates(button::k3DMode).Group) = static_cast<std::int16_t>(on);
}

}  // namespace

void SwitchViewMode(int mode) {
    if (mode == kMode3D) {
        Surface& view = Form1.MapView.Canvas;
        view.ScaleWidth = kViewSide;
        view.ScaleHeight = kViewSide;
        view.ScaleTop = 0;
        view.ScaleLeft = 0;
        Form1.ThreeFrame.Visible = true;
        Form1.TwoFrame.Visible = false;
        DrawQuickGrid();
        setModeRecords(button::k3DMode, button::k2DMode);
    } else {
        ApplyMapTransform();
        Form1.ThreeFrame.Visible = false;
        Form1.TwoFrame.Visible = true;
        setModeRecords(button::k2DMode, button::k3DMode);
    }
}

}  // namespace ombrelia
