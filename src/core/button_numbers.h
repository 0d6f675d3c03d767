// Every button by its number: at once the subscript of its record, the name of a tool and the
// command that its release executes.
#pragma once

namespace ombrelia {

// NTool(i + kOverlayOffset) is the icon that lies on the face NTool(i).
inline constexpr int kOverlayOffset = 100;

namespace button {

inline constexpr int kPencil = 0;
inline constexpr int kLine = 1;
inline constexpr int kRaise = 2;
inline constexpr int kLower = 3;
inline constexpr int kFractal = 4;
inline constexpr int k2DMode = 5;
inline constexpr int k3DMode = 6;
inline constexpr int kColorPicker = 7;
inline constexpr int kMountain = 8;
inline constexpr int kCanyon = 9;
inline constexpr int kPlain = 10;
inline constexpr int kClose = 11;
inline constexpr int kUpdate2D = 12;
inline constexpr int kImport = 13;
inline constexpr int kSave = 14;
inline constexpr int kNewMap = 15;
inline constexpr int kOptions = 16;
inline constexpr int kExit = 17;
inline constexpr int kMenu = 18;
inline constexpr int kDraw3D = 19;
inline constexpr int kGenerate = 20;
inline constexpr int kAbout = 21;
inline constexpr int kStop = 22;
inline constexpr int kHelp = 23;
inline constexpr int kRedrawColors = 24;
inline constexpr int kMinimize = 25;
inline constexpr int kAddColor = 26;
inline constexpr int kDeleteColor = 27;
inline constexpr int kStyleLine = 28;
inline constexpr int kStyleDot = 29;
inline constexpr int kMountainVertical = 30;
inline constexpr int kMountainVerySteep = 31;
inline constexpr int kMountainSlightlySteep = 32;
inline constexpr int kMountainSmooth = 33;
inline constexpr int kCanyonVertical = 34;
inline constexpr int kCanyonVerySteep = 35;
inline constexpr int kCanyonSlightlySteep = 36;
inline constexpr int kCanyonSmooth = 37;
inline constexpr int kStylePolygon = 38;
inline constexpr int kRotate3D = 40;
inline constexpr int kPan3D = 41;
inline constexpr int kZoom3D = 42;
inline constexpr int kPan2D = 43;
inline constexpr int kZoom2D = 44;
inline constexpr int kWavy = 50;
inline constexpr int kMountainRange = 51;
inline constexpr int kRiver = 52;
inline constexpr int kVolcano = 53;
inline constexpr int kRiverInMiddle = 60;
inline constexpr int kOnlyLower = 61;
inline constexpr int kUseCursors = 62;
inline constexpr int kColorCursors = 63;
inline constexpr int kBlackWhiteCursors = 64;
inline constexpr int kUseSounds = 65;
inline constexpr int kAutoRefresh = 66;
inline constexpr int kStepRefresh = 67;
inline constexpr int kStep20 = 68;
inline constexpr int kStep10 = 69;
inline constexpr int kStep5 = 70;
inline constexpr int kStep2 = 71;
inline constexpr int kStep1 = 72;
inline constexpr int kShowHelpBox = 73;
inline constexpr int kAdvanced3D = 74;
inline constexpr int kSizeMiniature = 80;
inline constexpr int kSizeSmall = 81;
inline constexpr int kSizeMedium = 82;
inline constexpr int kSizeLarge = 83;
inline constexpr int kSizeImport = 84;
inline constexpr int kSizeClose = 85;
inline constexpr int kHelpContents = 90;
inline constexpr int kHelpAbout = 96;
inline constexpr int kHelpBack = 97;
inline constexpr int kHelpClose = 98;

// Records 0..kLastOfEditor belong to the editor window.
inline constexpr int kLastOfEditor = 74;

}  // namespace button

// Groups of which one button is on.
namespace group {
inline constexpr int kTools = 1;
inline constexpr int kViewMode = 2;
inline constexpr int kMotion3D = 4;
inline constexpr int kMountainSides = 5;
inline constexpr int kCanyonEdges = 6;
inline constexpr int kCursorColors = 8;
inline constexpr int kStyle3D = 9;
}  // namespace group

// States of a button.
inline constexpr int kUp = 0;
inline constexpr int kHover = 1;
inline constexpr int kOn = 2;

// Picture sets of buttons.
namespace kind {
inline constexpr int kNone = 0;
inline constexpr int kStand = 1;
inline constexpr int kClose = 2;
inline constexpr int kPicture = 4;
inline constexpr int kOk = 5;
inline constexpr int kMinimize = 6;
inline constexpr int kSmall = 7;
inline constexpr int kOption = 8;
}  // namespace kind

}  // namespace ombrelia
