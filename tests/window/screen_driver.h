// Runs the real program on the screen that the test was given and works it like a person: a thread
// of its own moves the mouse and types through the X server, and looks at the result.
#pragma once

#include <QImage>
#include <QPoint>
#include <array>
#include <atomic>
#include <functional>
#include <string>

#include "platform/control.h"

namespace ombrelia {

// Numbers of the X protocol and of its input extension alike.
enum class InputKind { KeyPress = 2, KeyRelease, ButtonPress, ButtonRelease, Motion };

// Events of each kind that reached the program.
using HeardEvents = std::array<std::atomic<int>, 7>;

class WindowView;

class ScreenDriver {
  public:
    // Runs the program from its start; story is told in a second thread and, when it is over, the
    // program ends. False if the program did not end in time.
    // yieldMilliseconds above 0 slows every long operation down, so that it can be watched.
    static void run(const std::function<void(ScreenDriver&)>& story, int yieldMilliseconds = 0);

    // Executes work between events of the program, where it may read the tables, and waits for it.
    void inProgram(const std::function<void()>& work);

    // Waits until something holds, a few seconds at most; false if it does not.
    bool waitFor(const std::function<bool()>& holds);
    bool waitForWindow(Window& window);
    bool waitForEither(Window& window, Window& other);

    // The mouse, at a place in units from a control's inner corner (its middle if left out).
    void moveTo(Control& control, double x, double y);
    void moveTo(Control& control);
    void press(int button = 1);
    void release(int button = 1);
    void click(Control& control);
    void click(Control& control, double x, double y);
    void doubleClick(Control& control);
    // Turns the wheel by so many notches, down above 0, where the mouse is.
    void turnWheel(int notches);
    // The same for what the toolkit shows by itself: a place on the screen.
    void clickAt(const QPoint& place);

    // The keyboard, to whatever has it.
    void type(const std::string& text);
    void key(const std::string& name);

    // Waits for a dialog with this title; empty if none comes, otherwise its text.
    bool waitForDialog(const std::string& title);
    std::string dialogText();

    // Types a name into the line of the file dialog in front; false if its letters get lost.
    bool typeName(const std::string& path);

    // Presses a key or clicks, and again where that gets lost or a list of names takes it for
    // itself; false if nothing comes of it.
    bool keyUntil(const char* name, const std::function<bool()>& holds);
    bool clickUntil(const QPoint& place, const std::function<bool()>& holds);

    // Names a file in the file dialog with this title. False if it does not come, does not take the
    // name, or stays.
    bool nameFile(const std::string& title, const std::string& path);

    // The picture of a control's inner area as the screen shows it, device pixels.
    QImage pictureOf(Control& control);

    double scale();

    // Waits until the program has ended by itself; the story must end there.
    void waitUntilEnded();

    // Lets the program settle.
    void rest(int milliseconds = 120);

  private:
    static constexpr int kTries = 3;
    // Looks for three seconds.
    bool happens(const std::function<bool()>& holds);
    bool doUntil(const std::function<void()>& deed, const std::function<bool()>& holds);

    std::atomic<bool> hasEnded_ = false;
    HeardEvents heard_{};
    QPoint pointer_{-1, -1};  // where the mouse was moved to last

    // What the X server shall do; waits until the windows have heard of so many events of a kind,
    // or until they will not hear of them, as where the pointer is outside.
    void tell(const std::string& words, InputKind kind, int events = 1);
    void movePointer(const QPoint& place);
};

// The view of a window that is on the screen; or null. For the thread of the program.
WindowView* viewOf(const Window& window);

}  // namespace ombrelia
