// Values of the editor window beside its controls. A new load of Form1 sets those that InitEditor
// names; the others keep what they had.
#pragma once

#include <cstdint>
#include <string>

#include "platform/checked_array.h"
#include "platform/color.h"

namespace ombrelia {

extern std::int16_t DrawHeight;  // 0..255, height of pencil and line; load, picker

// Camera of the perspective view.
extern std::int16_t ViewYaw;       // degrees 0..359; InitEditor, 3-D drag
extern std::int16_t ViewTilt;      // degrees 0..359; InitEditor, 3-D drag
extern double ViewZoom;            // -400..195; InitEditor, 3-D drag
extern std::int16_t ViewPanX;      // projected units to the right; 3-D drag
extern std::int16_t ViewPanY;      // projected units downwards; 3-D drag
extern std::int16_t ViewOffset;    // pixels that centre a small map; 3-D drawing
extern std::int16_t ViewQuadrant;  // 1..5, quarter of ViewYaw; 3-D drawing

extern CheckedArray<std::int16_t, 0, 30> GroupCurrent;  // button on in each group; button handlers

// Map view from above.
extern std::int16_t MapZoom;            // -345..0; zoom drag
extern std::int16_t MapPanX;            // MapZoom..-MapZoom; pan drag
extern std::int16_t MapPanY;            // MapZoom..-MapZoom; pan drag
extern std::int16_t DragPixelX;         // client pixels at the last step of a drag; gestures
extern std::int16_t DragPixelY;         // client pixels at the last step of a drag; gestures
extern std::int16_t StepRefreshActive;  // 1 during a stepped refresh; RefreshAfterEdit

// Buttons and gestures.
extern std::int16_t MouseState;    // running gesture; mouse handlers
extern std::int16_t View3DActive;  // 1 while the perspective view is up; tool commands
extern std::int16_t ReturnTool;    // drawing tool at the last tool command; tool commands
extern std::int16_t HoverTool;     // button that last had the pointer; button handlers
extern std::int16_t OverlayHit;    // 1 when a release came through an overlay; button handlers
extern std::int16_t DoubleClickPending;  // 1 in the press that a double click fakes; gestures
extern float DownX;                      // cells, last press on MapView; gestures
extern float DownY;                      // cells, last press on MapView; gestures
extern std::int16_t LastEdgeZone;        // 0..8, last zone of ClampToMap; gestures

// Path of a stroke (cells) or last place of a 3-D drag (view pixels); the gestures record it.
extern CheckedArray<std::int16_t, 0, 600> StrokeX;  // a stroke begins at subscript 1
extern CheckedArray<std::int16_t, 0, 600> StrokeY;
extern std::int16_t StrokeCount;  // next free subscript, 0..600; gestures

// Operations that gestures began inside an import, so far: they are done after it, in this order.
extern std::int32_t GesturesPutOff;

// Option strip.
extern std::int16_t PanelGrabY;          // strip units, pointer in a frame drag; option frames
extern std::int16_t ThumbGrab;           // units, pointer in a thumb drag; sliders
extern std::int16_t SliderDragState;     // 2 strip thumb held, 1 range marker held; sliders
extern std::int16_t RangeGrabX;          // units, pointer in a drag of a range marker; colour page
extern std::int16_t SuppressComboClick;  // 1: the next change of Combo1 is the program's own

// Seam for tool pointers; nothing writes it.
extern std::int16_t CurrentCursorId;

// The help window.
extern std::int16_t CurrentTopic;                           // page showing; GotoTopic
extern CheckedArray<std::int16_t, 0, 10> HelpGroupCurrent;  // its button on in each group
extern std::int16_t HelpHoverTool;                          // its button that last had the pointer
extern std::int16_t HelpMouseState;       // kGestureScrollUp or Down while its arrow is held
extern std::int16_t HelpSliderDragState;  // 2 while its thumb is held
extern std::int16_t HelpThumbGrab;        // units, pointer in a drag of its thumb

// Colours of the title text.
extern Color TitleActiveColor;    // Form1's load
extern Color TitleInactiveColor;  // Form1's load

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
