#include "properties.h"

#include <algorithm>
#include <iterator>

#include "pixel_at.h"
#include "register/value_row.h"

namespace ombrelia::scenario {

namespace {

Measure measureOf(ScalarKind kind) {
    switch (kind) {
        case ScalarKind::Text:
            return Measure::Text;
        case ScalarKind::Float:
            return Measure::Single;
        default:
            return Measure::Number;
    }
}

// A truth reads as the records' booleans do.
Found foundTruth(bool& truth) {
    return {Measure::Truth, truth ? "-1" : "0", [&truth](const std::string& text) {
                const auto wanted = truthOf(text);
                truth = wanted.value_or(truth);
                return wanted.has_value();
            }};
}

template <typename T>
Found foundField(T& field) {
    return foundRow(valueRow("", field), &field);
}

Found foundField(bool& field) {
    return foundTruth(field);
}

template <typename T>
bool isOfType(const Control& control) {
    return control.Kind == T().Kind;
}

template <>
bool isOfType<Control>(const Control& /*control*/) {
    return true;
}

template <>
bool isOfType<Window>(const Control& control) {
    return control.Kind == ControlKind::Window;
}

using Subscripts = std::vector<int>;
using Reader = std::optional<Found> (*)(Control&, const Subscripts&);

// A field of the control's own record.
template <typename T, auto Member>
std::optional<Found> field(Control& control, const Subscripts& /*none*/) {
    if (!isOfType<T>(control)) {
        return std::nullopt;
    }
    return foundField(static_cast<T&>(control).*Member);
}

Surface* surfaceOf(Control& control) {
    if (control.Kind != ControlKind::PictureBox) {
        return nullptr;
    }
    Surface& canvas = static_cast<PictureBox&>(control).Canvas;
    return canvas.width() > 0 ? &canvas : nullptr;
}

template <auto Member>
std::optional<Found> surfaceField(Control& control, const Subscripts& /*none*/) {
    Surface* surface = surfaceOf(control);
    if (surface == nullptr) {
        return std::nullopt;
    }
    return foundField(surface->*Member);
}

std::optional<Found> faceNumber(Control& control, const Subscripts& /*none*/) {
    return foundField(control.Face.face);
}

// The packed colour of a pixel, by its number from the left top corner.
std::optional<Found> pixel(Control& control, const Subscripts& place) {
    const Surface* surface = surfaceOf(control);
    if (surface == nullptr) {
        return std::nullopt;
    }
    return Found{Measure::Number, std::to_string(pixelAt(*surface, place[0], place[1])), {}};
}

std::optional<Found> listCount(Control& control, const Subscripts& /*none*/) {
    if (!isOfType<ListBox>(control)) {
        return std::nullopt;
    }
    return Found{Measure::Number, std::to_string(static_cast<ListBox&>(control).List.size()), {}};
}

std::optional<Found> listEntry(Control& control, const Subscripts& place) {
    if (!isOfType<ListBox>(control)) {
        return std::nullopt;
    }
    const auto& list = static_cast<ListBox&>(control).List;
    const auto entry = static_cast<std::size_t>(place[0]);
    if (place[0] < 0 || entry >= list.size()) {
        return std::nullopt;
    }
    return Found{Measure::Text, list[entry], {}};
}

struct Property {
    const char* word;
    std::size_t subscripts;
    Reader read;
};

constexpr Property kProperties[] = {
    {"Caption", 0, field<Control, &Control::Caption>},
    {"Visible", 0, field<Control, &Control::Visible>},
    {"Enabled", 0, field<Control, &Control::Enabled>},
    {"Left", 0, field<Control, &Control::Left>},
    {"Top", 0, field<Control, &Control::Top>},
    {"Width", 0, field<Control, &Control::Width>},
    {"Height", 0, field<Control, &Control::Height>},
    {"Face", 0, faceNumber},
    {"ForeColor", 0, field<Label, &Label::ForeColor>},
    {"BackColor", 0, field<Label, &Label::BackColor>},
    {"BackColor", 0, field<PictureBox, &PictureBox::BackColor>},
    {"ScaleLeft", 0, surfaceField<&Surface::ScaleLeft>},
    {"ScaleTop", 0, surfaceField<&Surface::ScaleTop>},
    {"ScaleWidth", 0, surfaceField<&Surface::ScaleWidth>},
    {"ScaleHeight", 0, surfaceField<&Surface::ScaleHeight>},
    {"Pixel", 2, pixel},
    {"X1", 0, field<Line, &Line::X1>},
    {"Y1", 0, field<Line, &Line::Y1>},
    {"X2", 0, field<Line, &Line::X2>},
    {"Y2", 0, field<Line, &Line::Y2>},
    {"BorderWidth", 0, field<Line, &Line::BorderWidth>},
    {"BorderColor", 0, field<Line, &Line::BorderColor>},
    {"Text", 0, field<ListBox, &Control::Caption>},
    {"Text", 0, field<TextLine, &Control::Caption>},
    {"Value", 0, field<ScrollBar, &ScrollBar::Value>},
    {"Min", 0, field<ScrollBar, &ScrollBar::Min>},
    {"Max", 0, field<ScrollBar, &ScrollBar::Max>},
    {"LargeChange", 0, field<ScrollBar, &ScrollBar::LargeChange>},
    {"Checked", 0, field<MenuItem, &MenuItem::Checked>},
    {"ListIndex", 0, field<ListBox, &ListBox::ListIndex>},
    {"ListCount", 0, listCount},
    {"List", 1, listEntry},
    {"Interval", 0, field<Timer, &Timer::Interval>},
    {"Loaded", 0, field<Window, &Window::Loaded>},
    {"Minimized", 0, field<Window, &Window::Minimized>},
};

}  // namespace

Found foundRow(const ValueRow& row, void* element) {
    return {measureOf(row.kind), textOf(row, element),
            [row, element](const std::string& text) { return setFromText(row, element, text); }};
}

std::optional<Found> findProperty(Control& control, const NamePart& part) {
    for (const Property& property : kProperties) {
        if (part.word != property.word || part.subscripts.size() != property.subscripts) {
            continue;
        }
        if (auto found = property.read(control, part.subscripts)) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<bool> truthOf(const std::string& text) {
    constexpr const char* kTrue[] = {"-1", "1", "true"};
    constexpr const char* kFalse[] = {"0", "false"};
    if (std::find(std::begin(kTrue), std::end(kTrue), text) != std::end(kTrue)) {
        return true;
    }
    if (std::find(std::begin(kFalse), std::end(kFalse), text) != std::end(kFalse)) {
        return false;
    }
    return std::nullopt;
}

}  // namespace ombrelia::scenario
