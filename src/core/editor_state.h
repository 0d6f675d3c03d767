// Values of the editor window beside its controls. A new load of Form1 sets those that InitEditor
// names; the others keep what they had.
#pragma once

#include <cstdint>
#include <string>

#include "platform/checked_array.h"
#include "platform/color.h"

namespace ombrelia {

inline std::int16_t DrawHeight = 0;  // 0..255, height of pencil and line; load, picker

// Camera of the perspective view.
inline std::int16_t ViewYaw = 0;       // degrees 0..359; InitEditor, 3-D drag
inline std::int16_t ViewTilt = 0;      // degrees 0..359; InitEditor, 3-D drag
inline double ViewZoom = 0;            // -400..195; InitEditor, 3-D drag
inline std::int16_t ViewPanX = 0;      // projected units to the right; 3-D drag
inline std::int16_t ViewPanY = 0;      // projected units downwards; 3-D drag
inline std::int16_t ViewOffset = 0;    // pixels that centre a small map; 3-D drawing
inline std::int16_t ViewQuadrant = 0;  // 1..5, quarter of ViewYaw; 3-D drawing

inline CheckedArray<std::int16_t, 0, 30> GroupCurrent;  // button on in each group; button handlers

// Map view from above.
inline std::int16_t MapZoom = 0;            // -345..0; zoom drag
inline std::int16_t MapPanX = 0;            // MapZoom..-MapZoom; pan drag
inline std::int16_t MapPanY = 0;            // MapZoom..-MapZoom; pan drag
inline std::int16_t DragPixelX = 0;         // client pixels at the last step of a drag; gestures
inline std::int16_t DragPixelY = 0;         // client pixels at the last step of a drag; gestures
inline std::int16_t StepRefreshActive = 0;  // 1 during a stepped refresh; RefreshAfterEdit

// Buttons and gestures.
inline std::int16_t MouseState = 0;    // running gesture; mouse handlers
inline std::int16_t View3DActive = 0;  // 1 while the perspective view is up; tool commands
inline std::int16_t ReturnTool = 0;    // drawing tool at the last tool command; tool commands
inline std::int16_t HoverTool = 0;     // button that last had the pointer; button handlers
inline std::int16_t OverlayHit = 0;    // 1 when a release came through an overlay; button handlers
inline std::int16_t DoubleClickPending = 0;  // 1 in the press that a double click fakes; gestures
inline float DownX = 0;                      // cells, last press on MapView; gestures
inline float DownY = 0;                      // cells, last press on MapView; gestures
inline std::int16_t LastEdgeZone = 0;        // 0..8, last zone of ClampToMap; gestures

// Path of a stroke (cells) or last place of a 3-D drag (view pixels); the gestures record it.
inline CheckedArray<std::int16_t, 0, 600> StrokeX;  // a stroke begins at subscript 1
inline CheckedArray<std::int16_t, 0, 600> StrokeY;
inline std::int16_t StrokeCount = 0;  // next free subscript, 0..600; gestures

// Operations that gestures began inside an import, so far: they are done after it, in this order.
inline std::int32_t GesturesPutOff = 0;

// Option strip.
inline std::int16_t PanelGrabY = 0;       // strip units, pointer in a frame drag; option frames
inline std::int16_t ThumbGrab = 0;        // units, pointer in a thumb drag; sliders
inline std::int16_t SliderDragState = 0;  // 2 strip thumb held, 1 range marker held; sliders
inline std::int16_t RangeGrabX = 0;       // units, pointer in a drag of a range marker; colour page
inline std::int16_t SuppressComboClick = 0;  // 1: the next change of Combo1 is the program's own

// Seam for tool pointers; nothing writes it.
inline std::int16_t CurrentCursorId = 0;

// The help window.
inline std::int16_t CurrentTopic = 0;                       // page showing; GotoTopic
inline CheckedArray<std::int16_t, 0, 10> HelpGroupCurrent;  // its button on in each group
inline std::int16_t HelpHoverTool = 0;                      // its button that last had the pointer
inline std::int16_t HelpMouseState = 0;       // kGestureScrollUp or Down while its arrow is held
inline std::int16_t HelpSliderDragState = 0;  // 2 while its thumb is held
inline std::int16_t HelpThumbGrab = 0;        // units, pointer in a drag of its thumb

// Of the marker that shows on the map where a tool is at work.
inline constexpr Color kMarkerColor = rgb(255, 0, 0);

// Colours of the title text.
inline Color TitleActiveColor = 0;    // Form1's load
inline Color TitleInactiveColor = 0;  // Form1's load

// Values of MouseState.
enum MouseGesture : std::int16_t {
    kGestureNone = 0,
    kGestureCanyon = 1,
    kGesturePick = 2,
    kGesturePickerDrag = 4,
    kGesturePencil = 5,
    kGestureLine = 6,
    kGestureFrameDrag = 7,
    kGesturePanelDrag = 8,
    kGestureShape = 8,  // raise and lower, over the map
    kGestureNavigate3D = 9,
    kGestureScrollUp = 16,
    kGestureScrollDown = 17,
    kGestureWavy = 34,
    kGestureMapZoom = 56,
    kGestureMapPan = 57,
};

}  // namespace ombrelia
