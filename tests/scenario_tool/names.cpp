#include "names.h"

#include <algorithm>
#include <limits>

#include "app/bindings.h"
#include "errors.h"
#include "fields.h"

namespace ombrelia::scenario {

namespace {

// "3,4" as numbers.
std::vector<int> parseSubscripts(const std::string& text) {
    std::vector<int> subscripts;
    std::size_t first = 0;
    while (first <= text.size()) {
        const std::size_t comma = std::min(text.find(',', first), text.size());
        constexpr long kLimit = std::numeric_limits<std::int32_t>::max();
        subscripts.push_back(
            static_cast<int>(wholeNumber(text.substr(first, comma - first), -kLimit, kLimit)));
        first = comma + 1;
    }
    return subscripts;
}

NamePart parsePart(const std::string& text) {
    const std::size_t open = text.find('(');
    if (open == 0 || text.empty()) {
        throw LineError{"a part of a name is empty"};
    }
    if (open == std::string::npos) {
        return {text, {}};
    }
    if (text.back() != ')') {
        throw LineError{"\"" + text + "\" lacks a closing bracket"};
    }
    return {text.substr(0, open), parseSubscripts(text.substr(open + 1, text.size() - open - 2))};
}

void checkLoaded(const Control& control) {
    if (!control.Owner->Loaded) {
        throw LineError{"the window " + control.Owner->Name + " is not loaded"};
    }
}

}  // namespace

Name parseName(const std::string& text) {
    Name name;
    std::size_t first = 0;
    while (first <= text.size()) {
        const std::size_t point = std::min(text.find('.', first), text.size());
        name.push_back(parsePart(text.substr(first, point - first)));
        first = point + 1;
    }
    return name;
}

Window* findWindow(const std::string& word) {
    for (Window* window : allWindows()) {
        if (window->Name == word) {
            return window;
        }
    }
    return nullptr;
}

Control* findControl(Window& window, const NamePart& part) {
    if (part.subscripts.size() > 1) {
        return nullptr;
    }
    const int index = part.subscripts.empty() ? -1 : part.subscripts[0];
    for (Control* control : window.Controls) {
        if (control->Name == part.word && control->Index == index) {
            return control;
        }
    }
    return nullptr;
}

Control& controlNamed(const std::string& text) {
    const Name name = parseName(text);
    Window* window = name[0].subscripts.empty() ? findWindow(name[0].word) : nullptr;
    Control* control = window;
    if (window != nullptr && name.size() > 1) {
        control = name.size() == 2 ? findControl(*window, name[1]) : nullptr;
    }
    if (control == nullptr) {
        throw LineError{"there is no control " + text};
    }
    return *control;
}

Control& loadedControlNamed(const std::string& text) {
    Control& control = controlNamed(text);
    checkLoaded(control);
    return control;
}

Window& windowNamed(const std::string& text) {
    Window* window = findWindow(text);
    if (window == nullptr) {
        throw LineError{"there is no window " + text};
    }
    return *window;
}

Window& loadedWindowNamed(const std::string& text) {
    Window& window = windowNamed(text);
    checkLoaded(window);
    return window;
}

}  // namespace ombrelia::scenario
