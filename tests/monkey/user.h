// A person who does anything that mouse, keys, menus and dialogs allow, by chance. Each thing that
// is done is one or more lines of a scenario.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "chance.h"
#include "journal.h"
#include "platform/control.h"

namespace ombrelia::monkey {

class User {
  public:
    User(scenario::Session& session, Journal& journal, Chance& chance);

    // Does one thing. Where nothing is left to work with, the editor is started anew.
    void act();

    // Releases what is still held and starts the editor, with a map, if there is none.
    void settle();

  private:
    struct Held {
        std::string control, button;
    };
    struct Target {
        Control* control;
        double x, y;  // from the control's corner
    };
    struct Deed {
        int weight;
        void (User::*deed)();
    };
    static const Deed kDeeds[];

    void hover();
    void tap();
    void drag();
    void doubleTap();
    void tick();
    void fireTimer();
    void pressKey();
    void takeMenu();
    void scrollBar();
    void chooseEntry();
    void resize();
    void minimize();
    void close();
    void journey();
    void changeSetting();
    void switchTicks();
    void startAnew();

    std::vector<Window*> shownWindows() const;
    Window& anyWindow();
    Target anyTarget();
    Target targetIn(Window& window);
    std::string placeIn(const Control& control);
    std::string placeAround(const Control& control);
    const char* anyButton();

    void pressAt(const Target& target, const char* button);
    void release(const std::string& place);
    void dragDropped(const Control& source);

    // Lays ready what happens inside the yields of the next line.
    void meddle(const Control& withWhat);
    void meddleByHolding();
    void meddleWithHeld();
    void notePresses();
    std::string meddlesomeCommand(long& events);

    void prepareAnswers(const Control& control);
    void answer(const std::string& dialog, const std::string& text);
    std::string savePath();
    std::string openPath();
    std::string colorText();
    void makePicture();

    scenario::Session& session_;
    Journal& journal_;
    Chance& chance_;
    std::optional<Held> held_;
    struct LaidPress {
        int press, release;
        Held held;
    };
    std::vector<LaidPress> laid_;
    std::vector<std::string> saved_;  // files that were asked for by name
    int names_ = 0;
};

// The name by which a line calls a control.
std::string nameOf(const Control& control);

}  // namespace ombrelia::monkey
