// What a user does while an operation runs: it happens inside the operation's yields.
#include <algorithm>
#include <iterator>
#include <string>

#include "core/button_numbers.h"
#include "core/windows/form1.h"
#include "platform/dispatch.h"
#include "user.h"

namespace ombrelia::monkey {

namespace {

constexpr int kOftenShare = 60;  // percent, where the next line may begin a long operation
constexpr int kSeldomShare = 6;
constexpr int kYieldBits = 9;  // yields up to 512, early ones more often
constexpr int kMostCommands = 4;
constexpr int kHoldShare = 25;  // percent: one press that is held over yields, no clicks

constexpr int kLongWork[] = {button::kGenerate, button::kUpdate2D, button::kDraw3D,
                             button::kImport,   button::kNewMap,   button::kRedrawColors};

struct Meddling {
    int weight;
    const char* command;
    int events;
};
constexpr Meddling kMeddlings[] = {
    {20, "click Form1.NTool(22)", 3},
    {15, "click Form1.NTool(122)", 3},
    {15, "tick 1", 1},
    {5, "tick 3", 3},
    {8, "click Form1.NTool(14)", 3},
    {4, "click Form1.NTool(12)", 3},
    {4, "click Form1.NTool(20)", 3},
    {3, "click Form1.NTool(13)", 3},
    {3, "click Form1.NTool(19)", 3},
    {2, "click Form1.NTool(15)", 3},
    {2, "click Form1.NTool(11)", 3},
    {2, "click Form1.NTool(24)", 3},
    {3, "click Form1.NTool(5)", 3},
    {3, "click Form1.NTool(6)", 3},
    {2, "click Form1.NTool(7)", 3},
    {2, "click Form1.NTool(73)", 3},
    {2, "click Form1.NTool(26)", 3},
    {2, "click Form1.NTool(27)", 3},
    {2, "click Form1.NTool(21)", 3},
    {2, "click Form1.NTool(23)", 3},
    {2, "click Form1.NTool(25)", 3},
    {2, "click frmSplash", 3},
    {2, "click Form1", 3},
    {2, "click Form1.Rng1(3)", 3},
    {2, "close HelpBox", 1},
    {1, "close Form1", 1},
    {1, "close SizeSelect", 1},
    {1, "close frm3DMaze", 1},
    {1, "close Form2", 1},
    {1, "close HelpFrm", 1},
    {3, "fire frm3DMaze Timer1", 1},
    {3, "fire Form2 Timer1", 1},
    {2, "key frm3DMaze 40", 1},
    {2, "key Form2 40", 1},
    {2, "resize frm3DMaze 150 120", 1},
    {2, "menu frm3DMaze.mnuActionItem(0)", 1},
    {1, "menu frm3DMaze.mnuActionItem(4)", 1},
    {2, "menu frm3DMaze.mnuStyleItem(0)", 1},
    {2, "scroll frm3DMaze.VScroll1 33", 2},
    {2, "choose Form1.Combo1 1", 1},
    {2, "doubleclick Form1.MapView 30 40", 4},
    {2, "doubleclick HelpFrm.HelpLbl 9 9", 4},
    {2, "drag Form1.NTool(153) Form1.Label32", 3},
};

bool beginsLongWork(const Control& control) {
    const int number =
        control.Index >= kOverlayOffset ? control.Index - kOverlayOffset : control.Index;
    const bool isButton = control.Name == "NTool" || control.Name == "LTool";
    const bool isWork =
        std::find(std::begin(kLongWork), std::end(kLongWork), number) != std::end(kLongWork);
    return &control == &Form1.MapView || (isButton && isWork);
}

}  // namespace

std::string User::meddlesomeCommand(long& events) {
    if (chance_.percent(15) && Form1.Loaded) {
        events = 1;
        const Target target = anyTarget();
        return "move " + nameOf(*target.control) + " none " + placeIn(*target.control);
    }
    int total = 0;
    for (const Meddling& row : kMeddlings) {
        total += row.weight;
    }
    int place = chance_.below(total);
    const Meddling* row = std::begin(kMeddlings);
    for (; place >= row->weight; ++row) {
        place -= row->weight;
    }
    events = row->events;
    return row->command;
}

void User::meddle(const Control& withWhat) {
    if (!chance_.percent(beginsLongWork(withWhat) ? kOftenShare : kSeldomShare)) {
        return;
    }
    prepareAnswers(Form1.NTool(button::kSave));
    if (chance_.percent(kHoldShare) && Form1.Loaded) {
        meddleByHolding();
        return;
    }
    const int commands = chance_.between(1, kMostCommands);
    for (int n = 0; n < commands; ++n) {
        const int yield = 1 + chance_.skewed(kYieldBits);
        long events = 0;
        const std::string command = meddlesomeCommand(events);
        journal_.layReady(yield, command, events);
    }
}

void User::meddleByHolding() {
    const Target target = anyTarget();
    if (target.control->Kind == ControlKind::ListBox) {
        return;
    }
    const Held held{nameOf(*target.control), anyButton()};
    const std::string who = held.control + " " + held.button + " ";
    int yield = 1 + chance_.skewed(kYieldBits);
    const int press = journal_.layReady(yield, "press " + who + placeIn(*target.control), 1);
    for (int n = chance_.skewed(3); n > 0; --n) {
        yield += chance_.skewed(4);
        journal_.layReady(yield, "move " + who + placeAround(*target.control), 1);
    }
    yield += chance_.skewed(kYieldBits);
    const int release =
        journal_.layReady(yield, "release " + who + placeAround(*target.control), 1);
    laid_.push_back({press, release, held});
}

// The button is down: the pointer can move and let go, nothing else.
void User::meddleWithHeld() {
    const Held held = *held_;
    const std::string who = held.control + " " + held.button + " ";
    int yield = 1 + chance_.skewed(kYieldBits);
    for (int n = chance_.skewed(3); n > 0; --n) {
        journal_.layReady(yield, "move " + who + placeAround(*Form1.MapView.Parent), 1);
        yield += chance_.skewed(4);
    }
    const int release =
        journal_.layReady(yield, "release " + who + placeAround(*Form1.MapView.Parent), 1);
    laid_.push_back({0, release, held});
}

// What was laid ready may have left a button down, or up.
void User::notePresses() {
    for (const LaidPress& laid : laid_) {
        const bool isReleased = journal_.hasRun(laid.release);
        if (laid.press == 0 && isReleased) {
            held_.reset();
        } else if (laid.press != 0 && journal_.hasRun(laid.press) && !isReleased) {
            held_ = laid.held;
        }
    }
    laid_.clear();
}

}  // namespace ombrelia::monkey
