// The register's rows for objects.h, editor_state.h and progress.h.
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "core/value_row.h"

namespace ombrelia {

namespace {

ValueRow colorRangeRow() {
    constexpr long kCell = sizeof(std::int16_t);
    return {"ColorRange",
            {},
            ScalarKind::Int16,
            ColorRange.data(),
            3,
            {{{1, ColorTable::kRows, kCell},
              {1, ColorTable::kEnds, kCell * ColorTable::kRows},
              {0, ColorTable::kComponents - 1, kCell * ColorTable::kRows * ColorTable::kEnds}}}};
}

}  // namespace

std::vector<ValueRow> coreValues() {
    return {
        gridRow("HeightMap", HeightMap),
        gridRow("ShadowMap", ShadowMap),
        valueRow("MapSize", MapSize),
        valueRow("AppName", AppName),
        valueRow("SplashMode", SplashMode),
        valueRow("ImportAtStart", ImportAtStart),
        valueRow("ImportTarget", ImportTarget),
        valueRow("ImportDirect", ImportDirect),
        valueRow("ImportRunning", ImportRunning),
        valueRow("NewMapPending", NewMapPending),
        valueRow("EggArmed", EggArmed),
        valueRow("BaseHeight", BaseHeight),
        valueRow("SeaLevel", SeaLevel),
        colorRangeRow(),
        fieldRow("OptionStates", "State", OptionStates, &ButtonRecord::State),
        fieldRow("OptionStates", "Kind", OptionStates, &ButtonRecord::Kind),
        fieldRow("OptionStates", "Latching", OptionStates, &ButtonRecord::Latching),
        fieldRow("OptionStates", "SavedState", OptionStates, &ButtonRecord::SavedState),
        fieldRow("OptionStates", "Group", OptionStates, &ButtonRecord::Group),
        fieldRow("OptionStates", "Exclusive", OptionStates, &ButtonRecord::Exclusive),
        fieldRow("SliderValues", "Orientation", SliderValues, &SliderRecord::Orientation),
        fieldRow("SliderValues", "Value", SliderValues, &SliderRecord::Value),
        fieldRow("SliderValues", "Max", SliderValues, &SliderRecord::Max),
        fieldRow("SliderValues", "Min", SliderValues, &SliderRecord::Min),
        arrayRow("SinTable", SinTable),
        arrayRow("CosTable", CosTable),
        valueRow("DrawHeight", DrawHeight),
        valueRow("ViewYaw", ViewYaw),
        valueRow("ViewTilt", ViewTilt),
        valueRow("ViewZoom", ViewZoom),
        valueRow("ViewPanX", ViewPanX),
        valueRow("ViewPanY", ViewPanY),
        valueRow("ViewOffset", ViewOffset),
        valueRow("ViewQuadrant", ViewQuadrant),
        arrayRow("GroupCurrent", GroupCurrent),
        valueRow("MapZoom", MapZoom),
        valueRow("MapPanX", MapPanX),
        valueRow("MapPanY", MapPanY),
        valueRow("DragPixelX", DragPixelX),
        valueRow("DragPixelY", DragPixelY),
        valueRow("StepRefreshActive", StepRefreshActive),
        valueRow("MouseState", MouseState),
        valueRow("View3DActive", View3DActive),
        valueRow("ReturnTool", ReturnTool),
        valueRow("HoverTool", HoverTool),
        valueRow("OverlayHit", OverlayHit),
        valueRow("DoubleClickPending", DoubleClickPending),
        valueRow("DownX", DownX),
        valueRow("DownY", DownY),
        valueRow("LastEdgeZone", LastEdgeZone),
        arrayRow("StrokeX", StrokeX),
        arrayRow("StrokeY", StrokeY),
        valueRow("StrokeCount", StrokeCount),
        valueRow("GesturesPutOff", GesturesPutOff),
        valueRow("PanelGrabY", PanelGrabY),
        valueRow("ThumbGrab", ThumbGrab),
        valueRow("SliderDragState", SliderDragState),
        valueRow("RangeGrabX", RangeGrabX),
        valueRow("SuppressComboClick", SuppressComboClick),
        valueRow("CurrentCursorId", CurrentCursorId),
        valueRow("CurrentTopic", CurrentTopic),
        arrayRow("HelpGroupCurrent", HelpGroupCurrent),
        valueRow("HelpHoverTool", HelpHoverTool),
        valueRow("HelpMouseState", HelpMouseState),
        valueRow("HelpSliderDragState", HelpSliderDragState),
        valueRow("HelpThumbGrab", HelpThumbGrab),
        valueRow("TitleActiveColor", TitleActiveColor),
        valueRow("TitleInactiveColor", TitleInactiveColor),
        valueRow("StopFlag", StopFlag),
        valueRow("ProgressState", ProgressState),
        valueRow("ProgressTotal", ProgressTotal),
        valueRow("ProgressDone", ProgressDone),
        valueRow("ProgressShown", ProgressShown),
    };
}

}  // namespace ombrelia
