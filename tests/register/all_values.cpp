// The rows of the register: the values of every state header, in the order of the headers.
#include <iterator>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "games/maze/maze_state.h"
#include "games/worm/worm_state.h"
#include "register/value_row.h"
#include "terrain/fractal/fractal_state.h"

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

// NOLINTNEXTLINE(readability-function-size): a table
std::vector<ValueRow> coreRows() {
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

std::vector<ValueRow> fractalRows() {
    return {
        valueRow("FractalSide", FractalSide),
        valueRow("FractalPart", FractalPart),
        valueRow("FractalParts", FractalParts),
    };
}

std::vector<ValueRow> mazeRows() {
    using namespace maze;
    return {
        valueRow("NumColumns", NumColumns),
        valueRow("NumRows", NumRows),
        valueRow("MaxX", MaxX),
        valueRow("MaxY", MaxY),
        valueRow("NumRooms", NumRooms),
        valueRow("RoomsInSolution", RoomsInSolution),
        valueRow("Adjacency", Adjacency),
        valueRow("DrawState", DrawState),
        valueRow("PaintRequested", PaintRequested),
        valueRow("NewMazeRequested", NewMazeRequested),
        valueRow("TimerRunning", TimerRunning),
        valueRow("Minimized", Minimized),
        valueRow("Solved", Solved),
        valueRow("Won", Won),
        valueRow("WallWalkArmed", WallWalkArmed),
        valueRow("ShowedSolutionByKey", ShowedSolutionByKey),
        valueRow("SeedString", SeedString),
        valueRow("UserX", UserX),
        valueRow("UserY", UserY),
        valueRow("UserFloatX", UserFloatX),
        valueRow("UserFloatY", UserFloatY),
        valueRow("TiltDegrees", TiltDegrees),
        valueRow("SinTilt", SinTilt),
        valueRow("CosTilt", CosTilt),
        valueRow("ViewXMax", ViewXMax),
        valueRow("ViewYMax", ViewYMax),
        valueRow("ViewXOffset", ViewXOffset),
        valueRow("ScaleX", ScaleX),
        valueRow("ScaleY", ScaleY),
        valueRow("RelDist", RelDist),
        valueRow("UsesPalette", UsesPalette),
        arrayRow("ColorTable", maze::ColorTable),
        valueRow("DrawRow", DrawRow),
        valueRow("DrawColumn", DrawColumn),
        valueRow("SubRow", SubRow),
        valueRow("RowOffset", RowOffset),
    };
}

std::vector<ValueRow> wormRows() {
    using namespace worm;
    return {
        valueRow("CellSize", CellSize),     valueRow("BoardSize", BoardSize),
        valueRow("Lives", Lives),           valueRow("Level", Level),
        valueRow("ItemIndex", ItemIndex),   valueRow("HeadX", HeadX),
        valueRow("HeadY", HeadY),           valueRow("Heading", Heading),
        valueRow("WormLength", WormLength), valueRow("LastTurnX", LastTurnX),
        valueRow("LastTurnY", LastTurnY),   arrayRow("TrailX", TrailX),
        arrayRow("TrailY", TrailY),         valueRow("ColorR", ColorR),
        valueRow("ColorG", ColorG),         valueRow("ColorB", ColorB),
        valueRow("DeltaR", DeltaR),         valueRow("DeltaG", DeltaG),
        valueRow("DeltaB", DeltaB),         gridRow("Board", Board),
        gridRow("NextBoard", NextBoard),
    };
}

}  // namespace

const std::vector<ValueRow>& allValues() {
    static const std::vector<ValueRow> values = [] {
        std::vector<ValueRow> all;
        for (std::vector<ValueRow> (*rows)() : {coreRows, fractalRows, mazeRows, wormRows}) {
            std::vector<ValueRow> own = rows();
            std::move(own.begin(), own.end(), std::back_inserter(all));
        }
        return all;
    }();
    return values;
}

}  // namespace ombrelia
