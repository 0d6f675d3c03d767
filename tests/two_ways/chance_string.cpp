#include "chance_string.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <vector>

#include "../monkey/chance.h"
#include "app/bindings.h"
#include "core/button_numbers.h"
#include "core/windows/form1.h"
#include "errors.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"

namespace ombrelia::two_ways {

namespace {

constexpr int kMapShare = 20;  // as if there were so many maps
constexpr int kBeyond = 2;     // units that a held pointer may leave the window by

class Maker {
  public:
    Maker(scenario::Session& session, std::uint64_t seed,
          const std::function<void(const std::string&)>& told)
        : session_(session), chance_(seed), told_(told) {}

    void play(std::uint64_t seed, int lines, const std::string& scale) {
        const int size = chance_.percent(80) ? 80 : 81;
        scale_ = std::stod(scale);
        begin({"random-lcg " + std::to_string(seed), "clock-step 0.01", "scale " + scale,
               "start" + (chance_.percent(80) ? " " + std::to_string(size) : std::string())});
        while (linesTold_ < lines && !session_.platform.HasEnded) {
            step();
        }
    }

  private:
    void begin(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) {
            run(line);
        }
    }

    // False if the line made no sense as things stand.
    bool run(const std::string& line) {
        try {
            session_.runLine(line);
        } catch (const scenario::LineError&) {
            return false;
        }
        ++linesTold_;
        told_(line);
        return true;
    }

    void step() {
        const int what = chance_.below(100);
        if (what < 50) {
            point();
        } else if (what < 80) {
            changeButton();
        } else if (what < 86) {
            run("tick " + std::to_string(chance_.between(1, 4)));
        } else if (what < 90) {
            clickTwice();
        } else if (what < 93) {
            pointAway();
        } else if (what < 96) {
            answer();
        } else {
            meddle();
        }
    }

    std::vector<Window*> windows() const {
        std::vector<Window*> seen;
        for (Window* window : allWindows()) {
            if (isSeen(*window) && !window->HasFrame) {
                seen.push_back(window);
            }
        }
        return seen;
    }

    // A place in a window; while a button is held, perhaps a little beyond it.
    std::string placeIn(Window& window, bool isHeld) {
        double x = chance_.between(-kBeyond, static_cast<int>(window.Width));
        double y = chance_.between(-kBeyond, static_cast<int>(window.Height));
        std::vector<Control*> parts;
        for (Control* control : window.Controls) {
            const Point corner = cornerInWindow(*control);
            const Point middle{corner.x + control->Width / 2, corner.y + control->Height / 2};
            if (control == &Form1.MapView || &controlAt(window, middle.x, middle.y) == control) {
                parts.insert(parts.end(), control == &Form1.MapView ? kMapShare : 1, control);
            }
        }
        if (!parts.empty() && chance_.percent(90)) {
            const Control& part = *chance_.oneOf(parts);
            const Point corner = cornerInWindow(part);
            x = corner.x + chance_.between(-1, static_cast<int>(part.Width));
            y = corner.y + chance_.between(-1, static_cast<int>(part.Height));
        }
        // A place far beyond the window is another's, one on its right the hint frame's, one on the
        // left of the hint frame the editor's, which the frame's record knows from a tick on.
        const double beyond = isHeld ? kBeyond : 0;
        const Window* host = window.DockedTo;
        const bool isPlaced = host == nullptr || window.Left == host->Left + host->Width;
        x = std::min(std::max(x, isPlaced ? -beyond : 0), window.Width - 1);
        y = std::min(std::max(y, -beyond), window.Height - 1 + beyond);
        x += chance_.below(4) / 4.0;
        std::ostringstream device;
        device << window.Name << ' ' << std::floor(x * scale_) << ' ' << std::floor(y * scale_);
        if (device.str() == last_) {
            return {};  // a screen says nothing of a pointer that stays
        }
        last_ = device.str();
        std::ostringstream text;
        text << "point " << window.Name << ' ' << x << ' ' << y;
        return text.str();
    }

    void point() {
        std::vector<Window*> seen = windows();
        if (seen.empty()) {
            return;
        }
        Window* held = session_.pointer.pressedIn();
        Window& chosen = Form1.Visible && chance_.percent(70) ? Form1 : *chance_.oneOf(seen);
        const std::string line = placeIn(held == nullptr ? chosen : *held, held != nullptr);
        if (!line.empty()) {
            run(line);
        }
    }

    void pointAway() {
        if (session_.pointer.pressedIn() == nullptr && run("point away")) {
            last_.clear();
        }
    }

    void changeButton() {
        if (session_.pointer.pressedIn() != nullptr && chance_.percent(90)) {
            for (const char* line : {"up left", "up right", "up middle"}) {
                if (run(line)) {
                    return;
                }
            }
        }
        run(chance_.percent(85) ? "down left"
                                : (chance_.percent(70) ? "down right" : "down middle"));
    }

    void clickTwice() {
        if (session_.pointer.pressedIn() != nullptr) {
            return;
        }
        for (const char* line : {"down left", "up left", "down left", "up left"}) {
            if (!run(line)) {
                return;
            }
        }
    }

    void answer() {
        constexpr const char* kAnswers[] = {"answer message yes",     "answer message no",
                                            "answer color 10 200 30", "answer color cancel",
                                            "answer input Mine",      "answer input \"\""};
        run(chance_.oneOf(kAnswers));
    }

    // Something that happens inside the next long operation.
    void meddle() {
        const std::string when = "on-yield " + std::to_string(chance_.between(1, 60)) + " ";
        constexpr const char* kDeeds[] = {"down left", "up left", "tick 2"};
        if (chance_.percent(40)) {
            const std::string line = Form1.Visible ? placeIn(Form1, false) : std::string();
            if (!line.empty()) {
                run(when + line);
                last_.clear();  // where the pointer is then, nobody knows yet
            }
            return;
        }
        run(when + chance_.oneOf(kDeeds));
    }

    scenario::Session& session_;
    monkey::Chance chance_;
    const std::function<void(const std::string&)>& told_;
    double scale_ = 1;
    int linesTold_ = 0;
    std::string last_;  // window and device pixel that the pointer is at
};

}  // namespace

void playChanceString(scenario::Session& session, std::uint64_t seed, int lines,
                      const std::string& scale,
                      const std::function<void(const std::string& line)>& told) {
    Maker(session, seed, told).play(seed, lines, scale);
}

}  // namespace ombrelia::two_ways
