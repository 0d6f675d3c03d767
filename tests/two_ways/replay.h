// A session whose windows are real: the lines of the pointer become events of the X server, which
// come back through the toolkit. Everything else, the clock, chance, dialogs and files, stays
// headless.
#pragma once

#include <QObject>
#include <QPoint>
#include <map>
#include <memory>
#include <string>

#include "session.h"
#include "x_input.h"

namespace ombrelia {
class QtDesktop;
class WindowView;
}  // namespace ombrelia

namespace ombrelia::two_ways {

class Replay : public QObject {
  public:
    Replay();
    ~Replay() override;

    // Windows are shown at this scale from the next session on.
    void takeScale(double scale);

    // A new session, before its first line.
    void begin();

    // False if the line failed, or if an event was lost on its way.
    bool run(const std::string& line);

    scenario::Session& session() { return *session_; }

    // What did not arrive; empty if all did.
    const std::string& lost() const { return lost_; }

  protected:
    // Counts what arrives, puts each new window at its place, and keeps timers back: time passes by
    // lines.
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    class Screen;

    void pointer(Window& window, const PointerInput& input);
    void leave(WindowView& view);
    void openScreen();
    WindowView* viewOf(const Window& window) const;
    bool waitUntil(const std::function<bool()>& holds);
    bool await(const char* what, const std::function<bool()>& holds);

    std::unique_ptr<scenario::Session> session_;
    std::unique_ptr<Screen> screen_;
    XInput input_;
    double scale_ = 1;
    QPoint place_;                     // of the pointer on the screen
    std::map<int, long> seen_;         // events that arrived, by kind
    const QObject* inside_ = nullptr;  // the view that the pointer is in
    std::string lost_;
};

}  // namespace ombrelia::two_ways
