#include "user.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "app/bindings.h"
#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/windows/form1.h"
#include "journeys.h"
#include "platform/dispatch.h"

namespace ombrelia::monkey {

namespace {

constexpr int kEditorShare = 75;    // percent of what is done there while others stand beside it
constexpr int kAnywhereShare = 10;  // percent of places that are not a part's
constexpr int kWildShare = 4;       // percent of moves that go far off
constexpr int kFarUnits = 6000;     // three wide screens
constexpr int kQuartersOfUnit = 4;
constexpr int kStepsOfDrag = 5;  // bits of the number of moves
constexpr int kTriesForTarget = 12;
constexpr long kEventsOfClick = 3;
constexpr long kEventsOfDouble = 4;

std::string inQuarters(int quarters) {
    const char* const parts[] = {"", ".25", ".5", ".75"};
    const bool isNegative = quarters < 0;
    const int size = isNegative ? -quarters : quarters;
    std::string text = isNegative ? "-" : "";
    return text.append(std::to_string(size / kQuartersOfUnit))
        .append(parts[size % kQuartersOfUnit]);
}

bool canBeHit(const Control& control) {
    return control.Kind == ControlKind::Image || control.Kind == ControlKind::Label ||
           control.Kind == ControlKind::PictureBox || control.Kind == ControlKind::ListBox;
}

}  // namespace

std::string nameOf(const Control& control) {
    if (control.Kind == ControlKind::Window) {
        return control.Name;
    }
    const std::string name = control.Owner->Name + "." + control.Name;
    return control.Index < 0 ? name : name + "(" + std::to_string(control.Index) + ")";
}

const User::Deed User::kDeeds[] = {
    {24, &User::hover},      {40, &User::tap},     {30, &User::drag},
    {5, &User::doubleTap},   {14, &User::tick},    {6, &User::fireTimer},
    {6, &User::pressKey},    {3, &User::takeMenu}, {2, &User::scrollBar},
    {3, &User::chooseEntry}, {2, &User::resize},   {1, &User::minimize},
    {1, &User::close},       {5, &User::journey},  {1, &User::changeSetting},
    {1, &User::switchTicks},
};

User::User(scenario::Session& session, Journal& journal, Chance& chance)
    : session_(session), journal_(journal), chance_(chance) {}

void User::act() {
    if (held_) {
        release(placeAround(*Form1.Label11.Owner));
        return;
    }
    if (session_.platform.HasEnded || shownWindows().empty()) {
        startAnew();
        return;
    }
    const int total = std::accumulate(std::begin(kDeeds), std::end(kDeeds), 0,
                                      [](int sum, const Deed& row) { return sum + row.weight; });
    int place = chance_.below(total);
    const Deed* row = std::begin(kDeeds);
    for (; place >= row->weight; ++row) {
        place -= row->weight;
    }
    (this->*row->deed)();
}

void User::settle() {
    if (held_) {
        release("5 5");
    }
    if (session_.platform.HasEnded || !Form1.Loaded) {
        startAnew();
    }
}

void User::startAnew() {
    constexpr int kSizes[] = {button::kSizeMiniature, button::kSizeMiniature,
                              button::kSizeMiniature, button::kSizeMiniature,
                              button::kSizeSmall,     button::kSizeSmall,
                              button::kSizeMedium,    button::kSizeLarge};
    held_.reset();
    journal_.play("start " + std::to_string(chance_.oneOf(kSizes)), 2 * kEventsOfClick);
}

std::vector<Window*> User::shownWindows() const {
    std::vector<Window*> shown;
    for (Window* window : allWindows()) {
        if (window->Loaded && window->Visible) {
            shown.push_back(window);
        }
    }
    return shown;
}

Window& User::anyWindow() {
    if (Form1.Loaded && Form1.Visible && chance_.percent(kEditorShare)) {
        return Form1;
    }
    std::vector<Window*> shown = shownWindows();
    return shown.empty() ? static_cast<Window&>(Form1) : *chance_.oneOf(shown);
}

User::Target User::targetIn(Window& window) {
    const auto at = [&](double x, double y) {
        Control& hit = controlAt(window, x, y);
        const bool isGround = hit.Kind == ControlKind::Window;
        const Point corner = isGround ? Point{0, 0} : cornerInWindow(hit);
        return Target{&hit, x - corner.x, y - corner.y};
    };
    const auto anywhere = [this](double size) {
        return chance_.below(std::max(1, static_cast<int>(size) * kQuartersOfUnit)) / 4.0;
    };
    for (int n = 0; n < kTriesForTarget && !chance_.percent(kAnywhereShare); ++n) {
        Control& control = *chance_.oneOf(window.Controls);
        if (!canBeHit(control) || !isShown(control)) {
            continue;
        }
        const Point corner = cornerInWindow(control);
        const Target target =
            at(corner.x + anywhere(control.Width), corner.y + anywhere(control.Height));
        if (target.control == &control) {
            return target;
        }
    }
    return at(anywhere(window.Width), anywhere(window.Height));
}

User::Target User::anyTarget() {
    return targetIn(anyWindow());
}

std::string User::placeIn(const Control& control) {
    const auto along = [this](double size) {
        return inQuarters(chance_.below(std::max(1, static_cast<int>(size) * kQuartersOfUnit)));
    };
    const std::string x = along(control.Width);
    return x + " " + along(control.Height);
}

// As a rule near the control, since the pointer is held by it.
std::string User::placeAround(const Control& control) {
    if (chance_.percent(kWildShare)) {
        const std::string x = std::to_string(chance_.between(-kFarUnits, kFarUnits));
        return x + " " + std::to_string(chance_.between(-kFarUnits, kFarUnits));
    }
    const auto along = [this](double size) {
        const int quarters = static_cast<int>(size) * kQuartersOfUnit;
        const int beyond = chance_.percent(25) ? quarters / 3 + 20 : 0;
        return inQuarters(chance_.between(-beyond, quarters + beyond));
    };
    const std::string x = along(control.Width);
    return x + " " + along(control.Height);
}

const char* User::anyButton() {
    constexpr const char* kButtons[] = {"left", "left", "left", "left",  "left",
                                        "left", "left", "left", "right", "middle"};
    return chance_.oneOf(kButtons);
}

void User::hover() {
    const int moves = 1 + chance_.skewed(kStepsOfDrag);
    for (int n = 0; n < moves && !shownWindows().empty(); ++n) {
        const Target target = anyTarget();
        journal_.play("move " + nameOf(*target.control) + " none " + placeIn(*target.control), 1);
    }
}

void User::pressAt(const Target& target, const char* button) {
    const std::string name = nameOf(*target.control);
    prepareAnswers(*target.control);
    const std::string place = inQuarters(static_cast<int>(target.x * kQuartersOfUnit)) + " " +
                              inQuarters(static_cast<int>(target.y * kQuartersOfUnit));
    held_ = Held{name, button};
    session_.platform.Dragged = nullptr;
    journal_.play("press " + name + " " + button + " " + place, 1);
    if (session_.platform.Dragged != nullptr) {
        dragDropped(*target.control);
    }
}

// The platform has taken the press for a drag: what lies under the pointer gets the rest.
void User::dragDropped(const Control& source) {
    held_.reset();
    const std::string onto =
        chance_.percent(50) ? nameOf(Form1.Label32) : nameOf(*targetIn(*source.Owner).control);
    journal_.play("drag " + nameOf(source) + " " + onto, 3);
}

void User::release(const std::string& place) {
    const Held held = *held_;
    held_.reset();
    journal_.play("release " + held.control + " " + held.button + " " + place, 1);
    notePresses();
}

void User::tap() {
    const Target target = anyTarget();
    Control& control = *target.control;
    if (control.Kind == ControlKind::ListBox) {
        chooseEntry();
        return;
    }
    if (control.handlerOf(Event::Click) != nullptr) {
        prepareAnswers(control);
        meddle(control);
        journal_.play("click " + nameOf(control), kEventsOfClick);
        notePresses();
        return;
    }
    pressAt(target, anyButton());
    if (held_) {
        meddle(control);
        release(chance_.percent(90)
                    ? inQuarters(static_cast<int>(target.x * kQuartersOfUnit)) + " " +
                          inQuarters(static_cast<int>(target.y * kQuartersOfUnit))
                    : placeAround(control));
    }
}

void User::drag() {
    const Target target = anyTarget();
    Control& control = *target.control;
    if (control.Kind == ControlKind::ListBox) {
        return;
    }
    pressAt(target, anyButton());
    const int moves = 1 + chance_.skewed(chance_.percent(2) ? 10 : kStepsOfDrag);
    for (int n = 0; n < moves && held_; ++n) {
        if (chance_.percent(10)) {
            tick();
        }
        if (chance_.percent(5)) {
            meddleWithHeld();
        }
        const Held held = *held_;
        journal_.play("move " + held.control + " " + held.button + " " + placeAround(control), 1);
        notePresses();
    }
    if (held_) {
        meddle(control);
        release(placeAround(control));
    }
}

void User::doubleTap() {
    const Target target = anyTarget();
    if (target.control->handlerOf(Event::DblClick) == nullptr) {
        tap();
        return;
    }
    meddle(*target.control);
    journal_.play("doubleclick " + nameOf(*target.control) + " " + placeIn(*target.control),
                  kEventsOfDouble);
    notePresses();
}

void User::tick() {
    const int ticks = 1 + chance_.skewed(3);
    journal_.play("tick " + std::to_string(ticks), ticks);
}

}  // namespace ombrelia::monkey
