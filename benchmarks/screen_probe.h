// A mouse and an eye on an X screen from outside of the program that is watched: real events
// through the server, pixels read back from it. Places are pixels of the screen.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ombrelia {

struct ScreenPlace {
    int x, y;
};

struct ScreenArea {
    int x, y, width, height;
};

class ScreenProbe {
  public:
    // Opens the screen of the environment; ends the process with a sentence if there is none.
    ScreenProbe();
    ~ScreenProbe();
    ScreenProbe(const ScreenProbe&) = delete;
    ScreenProbe& operator=(const ScreenProbe&) = delete;

    // Waits for a visible window whose width and height are in this ratio, some seconds; ends the
    // process if none comes.
    ScreenArea waitForWindow(const std::string& title, double width, double height);

    void moveTo(ScreenPlace place);
    void press();
    void release();
    // Both at the place, with a short rest before, so that the place is known to be hovered over.
    void click(ScreenPlace place);

    std::vector<char> look(const ScreenArea& area);

    // Milliseconds from act() to the first look at the area that differs from the look before it;
    // ends the process when nothing changes.
    double timeToChange(const ScreenArea& area, const std::function<void()>& act);
    // Milliseconds from act() until the area looks like this.
    double timeToLook(const ScreenArea& area, const std::vector<char>& wanted,
                      const std::function<void()>& act);

    static void rest(int milliseconds);

  private:
    double timeUntil(const std::function<bool()>& holds, const std::function<void()>& act);

    struct Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace ombrelia
