// The editor window.
#pragma once

#include "platform/control.h"

namespace ombrelia {

struct Form1Window : Window {
    // Title bar.
    Label Label11;              // title text; a press on it moves the window
    Label Label32;              // the maker's name: a click opens the maker's web page
    ControlArray<Image> NTool;  // button faces; + 100: the icons on them
    ControlArray<Label> LTool;  // texts on or beside the faces

    // Map from above.
    PictureBox MapBack;
    PictureBox MapView;
    PictureBox Mapview2;  // back buffer, below the window's edge
    Line Line1;           // rubber band and marker, in the scale of MapView

    // Top strip: magnifier, view mode, motion, menu, light.
    PictureBox ZoomView;
    Label Label4;   // "Zoom"
    Label Label22;  // height under the pointer
    PictureBox ViewFrame;
    PictureBox TwoFrame;
    Label TwoLabel;
    PictureBox ThreeFrame;
    Label ThreeLabel;
    PictureBox MenuFrame;
    PictureBox LightFrame;
    ControlArray<Label> GroupText;  // captions of the groups

    // Colour strip and picked colour.
    PictureBox Picker;
    Line PickerChoice;
    PictureBox ToolFrame;
    PictureBox Picture3;  // frame of PickedColor
    PictureBox PickedColor;
    Label Label19;  // picked height
    Label Label1;   // "Draw height"

    // Option strip.
    PictureBox Picture1;
    ControlArray<PictureBox> OptFrame;
    ControlArray<Image> OptBox;
    ControlArray<Label> OptLabel;
    ControlArray<Image> Scroller;
    ControlArray<Image> Filler;
    ControlArray<Image> ScrollUp;
    ControlArray<Image> ScrollDown;
    ControlArray<Image> VertScroller;
    ControlArray<Image> VertFiller;
    ControlArray<Label> SliderLabel;  // captions of the sliders
    ControlArray<Label> Readout;      // of the sliders; each has a name of its own
    ControlArray<Image> Growth;       // pictures below the sliders that are alone on their page
    ControlArray<Label> FrameText;    // texts in the frames that no handler writes

    // Colour page.
    PictureBox PrefPicker;
    ControlArray<Image> Range;
    ControlArray<PictureBox> Rng1;
    ListBox Combo1;

    // Progress panel.
    PictureBox ProgressFrame;
    Label WorkWhat;
    PictureBox PBarFrame;
    Image PBarBack;
    Image PBar;
    Label PercDone;

    Timer Timer1;

    // 0..9: pictures for the pointer, one for each number of the cursor hook less one. Nothing
    // reads them.
    ControlArray<Image> Curs;

    Form1Window();
};

extern Form1Window Form1;

}  // namespace ombrelia
