// Timers, keys, menus, windows, settings and whole journeys.
#include <algorithm>
#include <iterator>
#include <string>

#include "app/bindings.h"
#include "core/windows/form1.h"
#include "core/windows/form2.h"
#include "core/windows/maze_window.h"
#include "journeys.h"
#include "platform/dispatch.h"
#include "user.h"

namespace ombrelia::monkey {

namespace {

constexpr int kLeastWidth = 132;  // of a window with a frame, as the screen's windows have it
constexpr int kWidthBits = 11;
constexpr int kHeightBits = 10;

constexpr const char* kTimers[] = {"frmSplash Timer1", "HelpBox Timer1",   "HelpBox Timer1",
                                   "frm3DMaze Timer1", "frm3DMaze Timer1", "frm3DMaze Timer1",
                                   "Form2 Timer1",     "Form2 Timer1",     "Form2 Timer1"};

// The keys that mean something to a game, and some that do not.
constexpr int kKeys[] = {33, 34,  35,  36,  37,  38,  39, 40, 65, 66, 97, 98,
                         99, 100, 102, 103, 104, 105, 0,  13, 27, 32, 255};

struct StoredKey {
    const char* section;
    const char* key;
};
constexpr StoredKey kStoredKeys[] = {
    {"Settings", "SavedBefore"},           {"Settings", "OptCheckUse"},
    {"Settings", "OptUseSounds"},          {"Settings", "OptCheck20to1"},
    {"Settings", "OptShowHelp"},           {"\"ColorPalCurrent Colors\"", "111"},
    {"\"ColorPalCurrent Colors\"", "110"}, {"\"ColorPalCurrent Colors\"", "320"},
    {"\"ColorPalCurrent Colors\"", "623"}, {"\"ColorPalMy set\"", "110"},
    {"Settings", "ColorPalGhost"},
};
constexpr const char* kStoredValues[] = {"0",   "1",     "2",      "78",   "-1", "900",  "255",
                                         "256", "32767", "-32768", "1e30", "x",  "\"\"", "40.5"};

bool hasKeys(const Window& window) {
    return window.Loaded && window.Visible && window.handlerOf(Event::KeyDown) != nullptr;
}

}  // namespace

void User::fireTimer() {
    const int times = 1 + chance_.skewed(5);
    const std::string timer = chance_.oneOf(kTimers);
    for (int n = 0; n < times; ++n) {
        meddle(frm3DMaze);
        journal_.play("fire " + timer, 1);
        notePresses();
    }
}

void User::pressKey() {
    for (Window* window : {static_cast<Window*>(&frm3DMaze), static_cast<Window*>(&Form2)}) {
        for (int n = chance_.skewed(4); n > 0 && hasKeys(*window); --n) {
            journal_.play("key " + window->Name + " " + std::to_string(chance_.oneOf(kKeys)), 1);
        }
    }
}

void User::takeMenu() {
    Window& window = anyWindow();
    std::vector<Control*> entries;
    std::copy_if(
        window.Controls.begin(), window.Controls.end(), std::back_inserter(entries),
        [](const Control* c) { return c->Kind == ControlKind::MenuItem && c->Index >= 0; });
    if (!entries.empty()) {
        journal_.play("menu " + nameOf(*chance_.oneOf(entries)), 1);
    }
}

void User::scrollBar() {
    if (frm3DMaze.Loaded && frm3DMaze.Visible) {
        const ScrollBar& bar = frm3DMaze.VScroll1;
        journal_.play(
            "scroll " + nameOf(bar) + " " + std::to_string(chance_.between(bar.Min, bar.Max)), 2);
    }
}

void User::chooseEntry() {
    const int entries = static_cast<int>(Form1.Combo1.List.size());
    if (Form1.Loaded && entries > 0) {
        journal_.play("choose Form1.Combo1 " + std::to_string(chance_.below(entries)), 1);
    }
}

void User::resize() {
    const Window& window = anyWindow();
    if (window.HasFrame) {
        const int width = kLeastWidth + chance_.skewed(kWidthBits);
        const int height = chance_.skewed(kHeightBits);
        journal_.play(
            "resize " + window.Name + " " + std::to_string(width) + " " + std::to_string(height),
            1);
    }
}

void User::minimize() {
    const Window& window = anyWindow();
    if (window.HasFrame) {
        journal_.play("state " + window.Name + (chance_.percent(50) ? " minimized" : " normal"), 1);
    }
}

void User::close() {
    const Window& window = anyWindow();
    if (&window == &Form1) {
        answer("message", chance_.percent(50) ? "yes" : "no");
    }
    journal_.play("close " + window.Name, 1);
}

// What stands in the store when the editor starts next, as a careless hand may have left it.
void User::changeSetting() {
    const StoredKey& row = chance_.oneOf(kStoredKeys);
    const char* value = chance_.oneOf(kStoredValues);
    journal_.play(std::string("setting ") + row.section + " " + row.key + " " + value);
}

void User::switchTicks() {
    journal_.play(chance_.percent(70) ? "ticks on" : "ticks off");
}

void User::journey() {
    const Journey& journey = chance_.oneOf(kJourneys);
    for (const char* line : journey.lines) {
        if (line == nullptr || session_.platform.HasEnded) {
            return;
        }
        meddle(Form1.MapView);
        journal_.play(line, 1);
        notePresses();
    }
}

}  // namespace ombrelia::monkey
