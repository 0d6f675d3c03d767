#include "core/objects.h"

#include "core/editor_state.h"

namespace ombrelia {

HeightGrid HeightMap;
HeightGrid ShadowMap;
std::int16_t MapSize = 0;
std::string AppName;
std::int16_t SplashMode = 0;
std::int16_t ImportAtStart = 0;
std::int16_t ImportTarget = 0;
std::int16_t ImportDirect = 0;
std::int16_t ImportRunning = 0;
std::int16_t NewMapPending = 0;
std::int16_t EggArmed = 0;
std::int16_t BaseHeight = 0;
std::int16_t SeaLevel = 0;
ColorTable ColorRange;
CheckedArray<ButtonRecord, 0, 100> OptionStates;
CheckedArray<SliderRecord, 0, 20> SliderValues;
CheckedArray<double, 0, 2160> SinTable;
CheckedArray<double, 0, 2160> CosTable;

std::int16_t DrawHeight = 0;
std::int16_t ViewYaw = 0;
std::int16_t ViewTilt = 0;
double ViewZoom = 0;
std::int16_t ViewPanX = 0;
std::int16_t ViewPanY = 0;
std::int16_t ViewOffset = 0;
std::int16_t ViewQuadrant = 0;
CheckedArray<std::int16_t, 0, 30> GroupCurrent;
std::int16_t MapZoom = 0;
std::int16_t MapPanX = 0;
std::int16_t MapPanY = 0;
std::int16_t DragPixelX = 0;
std::int16_t DragPixelY = 0;
std::int16_t StepRefreshActive = 0;
std::int16_t MouseState = 0;
std::int16_t View3DActive = 0;
std::int16_t ReturnTool = 0;
std::int16_t HoverTool = 0;
std::int16_t OverlayHit = 0;
std::int16_t DoubleClickPending = 0;
float DownX = 0;
float DownY = 0;
std::int16_t LastEdgeZone = 0;
CheckedArray<std::int16_t, 0, 600> StrokeX;
CheckedArray<std::int16_t, 0, 600> StrokeY;
std::int16_t StrokeCount = 0;
std::int32_t GesturesPutOff = 0;
std::int16_t PanelGrabY = 0;
std::int16_t ThumbGrab = 0;
std::int16_t SliderDragState = 0;
std::int16_t RangeGrabX = 0;
std::int16_t SuppressComboClick = 0;
std::int16_t CurrentCursorId = 0;
std::int16_t CurrentTopic = 0;
CheckedArray<std::int16_t, 0, 10> HelpGroupCurrent;
std::int16_t HelpHoverTool = 0;
std::int16_t HelpMouseState = 0;
std::int16_t HelpSliderDragState = 0;
std::int16_t HelpThumbGrab = 0;
Color TitleActiveColor = 0;
Color TitleInactiveColor = 0;

namespace {

struct SizeName {
    std::int16_t mapSize;
    const char* suffix;
};
constexpr SizeName kSizeNames[] = {
    {kMiniatureSize, " - Miniature Map"},
    {kSmallSize, " - Small Map"},
    {kMediumSize, " - Medium Map"},
    {kLargeSize, " - Large Map"},
};

}  // namespace

const char* sizeSuffix() {
    for (const SizeName& row : kSizeNames) {
        if (row.mapSize == MapSize) {
            return row.suffix;
        }
    }
    return "";
}

}  // namespace ombrelia
