#include "state_text.h"

#include <cstdint>
#include <functional>
#include <sstream>

#include "app/bindings.h"
#include "platform/dispatch.h"
#include "register/value_row.h"

namespace ombrelia::two_ways {

namespace {

constexpr long kMostElements = 700;  // of a table whose elements are told one by one

// FNV-1a, 64 bits: http://www.isthe.com/chongo/tech/comp/fnv
class Digest {
  public:
    void add(const void* bytes, std::size_t count) {
        const auto* at = static_cast<const unsigned char*>(bytes);
        for (std::size_t i = 0; i < count; ++i) {
            value_ = (value_ ^ at[i]) * 0x100000001b3U;
        }
    }
    void add(const std::string& text) { add(text.data(), text.size() + 1); }
    std::string text() const { return "#" + std::to_string(value_); }

  private:
    std::uint64_t value_ = 0xcbf29ce484222325U;
};

long elementsOf(const ValueRow& row) {
    long count = 1;
    for (int n = 0; n < row.subscripts; ++n) {
        const auto& range = row.ranges[static_cast<std::size_t>(n)];
        count *= range.high - range.low + 1;
    }
    return count;
}

std::size_t bytesOf(const ValueRow& row) {
    switch (row.kind) {
        case ScalarKind::Int16:
            return sizeof(std::int16_t);
        case ScalarKind::Double:
            return sizeof(double);
        default:
            return sizeof(std::int32_t);
    }
}

void forEachElement(const ValueRow& row, const std::function<void(const void*)>& visit) {
    const auto visitFrom = [&](const auto& self, int n, const char* at) -> void {
        if (n == row.subscripts) {
            visit(at);
            return;
        }
        const auto& range = row.ranges[static_cast<std::size_t>(n)];
        for (int i = range.low; i <= range.high; ++i) {
            self(self, n + 1, at + (i - range.low) * range.strideBytes);
        }
    };
    visitFrom(visitFrom, 0, static_cast<const char*>(row.first));
}

std::string valueOf(const ValueRow& row) {
    if (elementsOf(row) > kMostElements && row.kind != ScalarKind::Text) {
        Digest digest;
        forEachElement(row, [&](const void* element) { digest.add(element, bytesOf(row)); });
        return digest.text();
    }
    std::string text;
    forEachElement(row, [&](const void* element) { text += textOf(row, element) + " "; });
    return text;
}

std::string pixelsOf(const Surface& canvas) {
    Digest digest;
    for (int y = 0; y < canvas.height(); ++y) {
        digest.add(canvas.row(y),
                   static_cast<std::size_t>(canvas.width()) * sizeof(*canvas.row(y)));
    }
    std::ostringstream text;
    text << digest.text() << ' ' << canvas.ScaleLeft << ' ' << canvas.ScaleTop << ' '
         << canvas.ScaleWidth << ' ' << canvas.ScaleHeight;
    return text.str();
}

std::string lookOf(const Control& control) {
    std::ostringstream text;
    if (control.Kind != ControlKind::Window) {
        text << control.Left << ' ' << control.Top << ' ';
    }
    text << control.Width << ' ' << control.Height << (control.Visible ? " seen" : " hidden")
         << (isEnabled(control) ? "" : " disabled") << " face "
         << static_cast<int>(control.Face.picture) << '/' << control.Face.face << " '"
         << control.Caption << '\'';
    if (control.Kind == ControlKind::Label) {
        text << " color " << static_cast<const Label&>(control).ForeColor;
    } else if (control.Kind == ControlKind::PictureBox) {
        const auto& box = static_cast<const PictureBox&>(control);
        text << " ground " << box.BackColor << " pixels " << pixelsOf(box.Canvas);
    } else if (control.Kind == ControlKind::Line) {
        const auto& line = static_cast<const Line&>(control);
        text << " from " << line.X1 << ' ' << line.Y1 << " to " << line.X2 << ' ' << line.Y2 << ' '
             << line.BorderWidth << ' ' << line.BorderColor;
    } else if (control.Kind == ControlKind::ListBox) {
        text << " entry " << static_cast<const ListBox&>(control).ListIndex;
    }
    return text.str();
}

std::string nameOf(const Control& control) {
    std::string name = control.Owner->Name;
    if (control.Kind != ControlKind::Window) {
        name += "." + control.Name;
    }
    return control.Index < 0 ? name : name + "(" + std::to_string(control.Index) + ")";
}

}  // namespace

std::vector<std::string> stateLines(const scenario::Session& session) {
    std::vector<std::string> lines;
    for (const ValueRow& row : allValues()) {
        const std::string field = row.field.empty() ? "" : "." + std::string(row.field);
        lines.push_back(std::string(row.name) + field + " = " + valueOf(row));
    }
    for (Window* window : allWindows()) {
        if (!window->Loaded) {
            continue;
        }
        std::ostringstream pointer;
        pointer << window->PointerX << ' ' << window->PointerY;
        lines.push_back(window->Name + ".Pointer = " + pointer.str());
        lines.push_back(nameOf(*window) + " = " + lookOf(*window));
        for (const Control* control : window->Controls) {
            lines.push_back(nameOf(*control) + " = " + lookOf(*control));
        }
    }
    for (std::size_t i = 0; i < session.platform.Calls.size(); ++i) {
        lines.push_back("call " + std::to_string(i) + " = " + session.platform.Calls[i]);
    }
    lines.push_back("Random.Draws = " + std::to_string(session.platform.Draws));
    lines.push_back("Yields = " + std::to_string(session.platform.Yields));
    return lines;
}

std::string stateDigest(const scenario::Session& session) {
    Digest digest;
    for (const std::string& line : stateLines(session)) {
        digest.add(line);
    }
    return digest.text();
}

}  // namespace ombrelia::two_ways
