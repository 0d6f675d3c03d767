// The parts of a window as plain records: what they look like, where they stand, what they do on an
// event. The logic changes a field and goes on; a platform shows the difference. Positions and
// sizes are in units (one pixel at scale 1), relative to the inner left top corner of what contains
// them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/color.h"
#include "platform/failure.h"
#include "platform/skin_pictures.h"
#include "platform/surface.h"

namespace ombrelia {

struct Control;
struct Window;

enum class ControlKind {
    Window,
    Image,
    Label,
    PictureBox,
    Line,
    ListBox,
    Timer,
    TextLine,
    ScrollBar,
    MenuItem
};

enum class Event {
    MouseDown,
    MouseMove,
    MouseUp,
    Click,
    DblClick,
    DragOver,
    DragDrop,
    Wheel,  // the wheel was turned over the part, or over one that it contains
    KeyDown,
    Load,
    Unload,
    Close,  // the user closes the window; a window without this handler is unloaded
    Timer,
    Resize,    // of a window: its size changed, or it was minimized or brought back
    Paint,     // of a window: asked for by requestPaint, or its picture was uncovered
    Change,    // of a scroll bar: its value was set
    Scroll,    // of a scroll bar: its thumb is being dragged
    AskValue,  // assistive technology asks for Value, Minimum and Maximum
    SetValue,  // and wishes another Value
    Count
};

// Steps of the wheel from one notch to the next, for wheels that turn without any.
inline constexpr int kWheelSteps = 5;

enum class MouseButton { None = 0, Left = 1, Right = 2, Middle = 4 };

// What a handler is told. X and Y are in twips (15 a pixel) from the corner of an image or label,
// in scale units for a picture surface, in pixels for a window.
struct EventArgs {
    Control* Source = nullptr;
    int Index = -1;  // subscript of Source in its control array, -1 outside one
    MouseButton Button = MouseButton::None;
    float X = 0;
    float Y = 0;
    int Steps = 0;               // of the wheel, down above 0; kWheelSteps a notch
    int KeyCode = 0;             // virtual key code; a handler may swallow the key with 0
    Control* Dragged = nullptr;  // what is being dragged, for DragOver and DragDrop
    double Value = 0;            // for AskValue and SetValue
    double Minimum = 0;
    double Maximum = 0;
};

using Handler = void (*)(EventArgs&);

// One face of a stored picture.
struct PictureFace {
    Picture picture = Picture::None;
    int face = 0;

    bool operator==(const PictureFace&) const = default;
};

// What a part is to assistive technology. Default: a label is a text, a list a list, a picture box
// with an accessible name a picture, an image with one a button; everything else is ignored.
enum class AccessRole { Default, Button, CheckBox, RadioButton, Slider };

// Fields that every part has.
struct Control {
    ControlKind Kind = ControlKind::Image;
    std::string Name;
    static constexpr int kNoIndex = -1;
    int Index = kNoIndex;
    Control* Parent = nullptr;  // the window itself, or a picture box
    Window* Owner = nullptr;

    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
    bool Visible = true;
    bool Enabled = true;
    bool TakesPointer = true;    // false: a decoration; the pointer finds what lies below it
    std::string Caption;         // text of a label or list; "&&" shows as one "&"
    std::string AccessibleName;  // what assistive technology calls it; empty: the caption
    AccessRole Role = AccessRole::Default;
    PictureFace Face;  // stretched over the control

    // The button face that this text belongs to: to a click and to assistive technology they are
    // one part, which the face stands for. Null: none.
    Control* LiesOn = nullptr;

    std::array<Handler, static_cast<std::size_t>(Event::Count)> On{};

    Handler handlerOf(Event event) const { return On[static_cast<std::size_t>(event)]; }

  protected:
    explicit Control(ControlKind kind) : Kind(kind) {}
};

// Marks along the lower edge of a picture, as under the track of a slider: units from its left edge
// to the first, and from one to the next.
struct Marks {
    double first = 0;
    double pitch = 0;
    int count = 0;
};

struct Image : Control {
    Image() : Control(ControlKind::Image) {}
    Marks Scale;
};

enum class TextAlign { Left, Center, Right };

struct Label : Control {
    Label() : Control(ControlKind::Label) {}
    Color ForeColor = rgb(255, 255, 255);
    double FontSize = 11;  // height of the letters' box in units
    bool Bold = false;
    bool Underline = false;
    bool WordWrap = false;
    TextAlign Align = TextAlign::Left;
    bool Opaque = false;  // fills its ground with BackColor
    Color BackColor = rgb(0, 0, 0);
};

// A surface that can be drawn on and can contain other parts. One that is never drawn on takes no
// memory for an image.
struct PictureBox : Control {
    PictureBox() : Control(ControlKind::PictureBox) {}
    Surface Canvas;
    double Border = 0;    // width of a frame inside the control, around its inner area
    bool Opaque = false;  // fills its ground with BackColor where nothing is drawn
    Color BackColor = rgb(0, 0, 0);

    double innerWidth() const { return Width - 2 * Border; }
    double innerHeight() const { return Height - 2 * Border; }

    // Gives the surface an image of the inner size, one scale unit a pixel.
    void makeCanvas() {
        Canvas.setSize(static_cast<int>(innerWidth()), static_cast<int>(innerHeight()));
    }
};

struct Line : Control {
    Line() : Control(ControlKind::Line) {}
    double X1 = 0;
    double Y1 = 0;
    double X2 = 0;
    double Y2 = 0;
    int BorderWidth = 1;  // in pixels of the containing surface, or units
    Color BorderColor = rgb(0, 0, 0);
};

// A drop-down list; Caption is the text that it shows.
struct ListBox : Control {
    ListBox() : Control(ControlKind::ListBox) {}
    std::vector<std::string> List;
    int ListIndex = -1;
};

struct Timer : Control {
    Timer() : Control(ControlKind::Timer) {}
    int Interval = 0;  // milliseconds
};

// A line of text in a frame that says how things stand; Caption is the text.
struct TextLine : Control {
    TextLine() : Control(ControlKind::TextLine) {}
};

// An upright scroll bar.
struct ScrollBar : Control {
    ScrollBar() : Control(ControlKind::ScrollBar) {}
    int Min = 0;
    int Max = 0;
    int LargeChange = 1;
    int Value = 0;
};

// A menu in a window's menu bar (its parent is the window), or an entry of one (its parent is the
// menu). "&" in the caption stands before its access key; "-" alone is a separator.
struct MenuItem : Control {
    MenuItem() : Control(ControlKind::MenuItem) {}
    bool Checked = false;
};

// A window, without a system frame unless it says otherwise. Left and Top are the place of its
// corner on the screen in units of the scale in force.
struct Window : Control {
    Window() : Control(ControlKind::Window) { Visible = false; }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    bool Loaded = false;
    bool Minimized = false;
    bool HasFrame = false;           // the system's frame: title bar, menus, size by hand
    bool StandsAlone = false;        // shares nothing with the editor: its close stops no operation
    PictureBox* Ground = nullptr;    // as large as the window at any size: its own surface
    std::vector<Control*> Controls;  // bottom to top; containers before what they contain

    // The pointer's last known place in this window, client pixels.
    double PointerX = -1;
    double PointerY = -1;

    // The window against whose right edge this one stands and with which it is seen; or none.
    Window* DockedTo = nullptr;

    // Sets every control to its designed state; called at each load.
    void (*Design)() = nullptr;
};

// Controls of one name told apart by a subscript; not every subscript need be there.
template <typename T>
class ControlArray {
  public:
    // Throws MissingPartFailure for a subscript that has no control.
    T& operator()(int index) {
        if (!has(index)) {
            throw MissingPartFailure("control", index);
        }
        return *items_[static_cast<std::size_t>(index)];
    }

    bool has(int index) const {
        return index >= 0 && static_cast<std::size_t>(index) < items_.size() &&
               items_[static_cast<std::size_t>(index)] != nullptr;
    }

    // The control with this subscript, made if it is missing.
    T& make(int index) {
        if (static_cast<std::size_t>(index) >= items_.size()) {
            items_.resize(static_cast<std::size_t>(index) + 1);
        }
        auto& item = items_[static_cast<std::size_t>(index)];
        if (item == nullptr) {
            item = std::make_unique<T>();
            item->Index = index;
        }
        return *item;
    }

    // Every control that is there, in the order of subscripts.
    template <typename Visit>
    void forEach(Visit visit) {
        for (auto& item : items_) {
            if (item != nullptr) {
                visit(*item);
            }
        }
    }

  private:
    std::vector<std::unique_ptr<T>> items_;
};

}  // namespace ombrelia
