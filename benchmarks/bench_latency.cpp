// From a real mouse event to the changed pixel on the screen, next to the toolkit's own way, and
// from a click on the light to the end of a run:
//   tools/with_screen.sh build/bench_latency EDITOR EMPTY RESULT.json
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "bench_desk.h"
#include "core/button_numbers.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/run_command.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"
#include "screen_probe.h"

namespace ombrelia {

namespace {

constexpr const char* kEditorTitle = "Ombrelia Terrain Editor";
constexpr int kRounds = 40;

class ChildProgram {
  public:
    explicit ChildProgram(const char* path) : process_(fork()) {
        if (process_ == 0) {
            execl(path, path, nullptr);
            _exit(127);
        }
    }
    ~ChildProgram() {
        kill(process_, SIGTERM);
        waitpid(process_, nullptr, 0);
    }
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;

  private:
    pid_t process_;
};

// The editor on the screen. Where its controls are is known from records of our own, to which the
// same is done.
class EditorOnScreen {
  public:
    EditorOnScreen(ScreenProbe& probe, const char* path) : probe_(probe), program_(path) {
        benchDesk(kLargeSize);
        enter(frmSplash);
        probe_.click(middleOf(frmSplash));
        runHandler([] { loadWindow(SizeSelect); });
        enter(SizeSelect);
        probe_.click(middleOf(SizeSelect.LTool(button::kSizeLarge)));
        enter(Form1);
    }

    ScreenPlace placeIn(const Control& control, double x, double y) const {
        const Point corner =
            control.Kind == ControlKind::Window ? Point{0, 0} : cornerInWindow(control);
        return {window_.x + static_cast<int>((corner.x + x + 0.5) * scale_),
                window_.y + static_cast<int>((corner.y + y + 0.5) * scale_)};
    }

    ScreenPlace middleOf(const Control& control) const {
        return placeIn(control, control.Width / 2, control.Height / 2);
    }

    ScreenArea areaOf(const Control& control) const {
        const ScreenPlace corner = placeIn(control, 0, 0);
        return {corner.x, corner.y, static_cast<int>(control.Width * scale_),
                static_cast<int>(control.Height * scale_)};
    }

    void command(int number) {
        probe_.click(middleOf(Form1.NTool(number)));
        runHandler([number] {
            int command = number;
            RunCommand(command);
        });
    }

    void awayFromAll() {
        probe_.moveTo(placeIn(Form1, 3, Form1.Height - 4));
        ScreenProbe::rest(60);
    }

  private:
    void enter(const Window& window) {
        window_ = probe_.waitForWindow(kEditorTitle, window.Width, window.Height);
        scale_ = window_.width / window.Width;
    }

    ScreenProbe& probe_;
    ChildProgram program_;
    ScreenArea window_{};
    double scale_ = 1;
};

// The window's corner where the square stands first is left alone.
std::vector<double> measureEmpty(ScreenProbe& probe, const char* path) {
    const ChildProgram program(path);
    const ScreenArea window = probe.waitForWindow("Empty", 920, 560);
    std::vector<double> times;
    for (int n = 0; n < kRounds; ++n) {
        probe.moveTo({window.x + 100, window.y + 300});
        ScreenProbe::rest(37);
        const ScreenPlace place{window.x + 400 + 5 * n, window.y + 200};
        const ScreenArea area{place.x - 16, place.y - 16, 32, 32};
        times.push_back(probe.timeToChange(area, [&] { probe.moveTo(place); }));
    }
    return times;
}

std::vector<double> measureHover(ScreenProbe& probe, EditorOnScreen& editor) {
    std::vector<double> times;
    const Control& icon = Form1.NTool(button::kPlain + kOverlayOffset);
    for (int n = 0; n < kRounds; ++n) {
        editor.awayFromAll();
        ScreenProbe::rest(31 + n % 16);
        times.push_back(probe.timeToChange(editor.areaOf(Form1.NTool(button::kPlain)),
                                           [&] { probe.moveTo(editor.middleOf(icon)); }));
    }
    return times;
}

// Holds the button down over a control and moves from place to place.
std::vector<double> measureDrag(ScreenProbe& probe, ScreenPlace start, int rounds,
                                const std::function<ScreenPlace(int)>& placeOf,
                                const std::function<ScreenArea(int)>& areaOf) {
    std::vector<double> times;
    probe.moveTo(start);
    ScreenProbe::rest(80);
    probe.press();
    ScreenProbe::rest(80);
    for (int n = 0; n < rounds; ++n) {
        ScreenProbe::rest(31 + n % 16);
        times.push_back(probe.timeToChange(areaOf(n), [&] { probe.moveTo(placeOf(n)); }));
    }
    probe.release();
    ScreenProbe::rest(250);
    return times;
}

std::vector<double> measureSlider(ScreenProbe& probe, EditorOnScreen& editor) {
    editor.command(button::kFractal);
    const Control& thumb = Form1.VertScroller(10);
    const ScreenArea track = editor.areaOf(Form1.VertFiller(10));
    const ScreenPlace start = editor.middleOf(thumb);
    return measureDrag(
        probe, start, kRounds / 2,
        [&](int n) {
            return ScreenPlace{start.x + 3 * n + 4, start.y};
        },
        [&](int) { return track; });
}

std::vector<double> measureRaise(ScreenProbe& probe, EditorOnScreen& editor) {
    editor.command(button::kRaise);
    const auto placeOf = [&](int n) { return editor.placeIn(Form1.MapView, 30 + 5 * n, 120); };
    return measureDrag(
        probe, placeOf(0), kRounds, [&](int n) { return placeOf(n + 1); },
        [&](int n) {
            const ScreenPlace place = placeOf(n + 1);
            return ScreenArea{place.x - 20, place.y - 20, 40, 40};
        });
}

std::vector<double> measureTurn(ScreenProbe& probe, EditorOnScreen& editor) {
    editor.command(button::k3DMode);
    const auto placeOf = [&](int n) { return editor.placeIn(Form1.MapView, 30 + 4 * n, 100); };
    ScreenArea area = editor.areaOf(Form1.MapView);
    area = {area.x + area.width / 4, area.y + area.height / 4, area.width / 2, area.height / 2};
    auto times = measureDrag(
        probe, placeOf(0), kRounds, [&](int n) { return placeOf(n + 1); },
        [&](int) { return area; });
    editor.command(button::k2DMode);
    return times;
}

// Draws the path of a long canyon and lets go.
void beginCanyon(ScreenProbe& probe, EditorOnScreen& editor) {
    constexpr int kPoints = 400;
    for (int n = 0; n < kPoints; ++n) {
        const int side = n % 2 == 0 ? 40 : 110;
        const int across = side + n / 4;
        const int down = 60 + n / 3;
        probe.moveTo(editor.placeIn(Form1.MapView, across, down));
        ScreenProbe::rest(n == 0 ? 60 : 4);
        if (n == 0) {
            probe.press();
        }
    }
    ScreenProbe::rest(60);
    probe.release();
}

// A click while a canyon is being carved, to the green light. Runs that were over before the click
// could be heard do not count.
std::vector<double> measureStop(ScreenProbe& probe, EditorOnScreen& editor) {
    constexpr int kStops = 12;
    editor.command(button::kCanyon);
    const Control& light = Form1.NTool(button::kStop + kOverlayOffset);
    const ScreenArea area = editor.areaOf(light);
    editor.awayFromAll();
    ScreenProbe::rest(200);
    std::vector<double> times;
    for (int n = 0; n < kStops; ++n) {
        probe.moveTo(editor.middleOf(light));
        ScreenProbe::rest(100);
        const std::vector<char> green = probe.look(area);
        beginCanyon(probe, editor);
        probe.timeToChange(area, [] {});
        probe.moveTo(editor.middleOf(light));
        probe.press();
        times.push_back(probe.timeToLook(area, green, [&] { probe.release(); }));
        ScreenProbe::rest(600);
    }
    return times;
}

struct Measured {
    const char* name;
    std::vector<double> times;
};

// As the other benchmarks write their results: the median, and the longest as a counter.
void write(const char* path, std::vector<Measured> all) {
    std::ofstream file(path);
    file << "{\"benchmarks\": [\n";
    for (Measured& one : all) {
        std::sort(one.times.begin(), one.times.end());
        const double median = one.times[one.times.size() / 2];
        std::printf("%-16s median %6.2f ms, least %6.2f, longest %6.2f of %zu\n", one.name, median,
                    one.times.front(), one.times.back(), one.times.size());
        file << "{\"name\": \"" << one.name << "\", \"run_name\": \"" << one.name
             << "\", \"run_type\": \"iteration\", \"clock\": \"wall\", \"time_unit\": \"ms\", "
             << "\"real_time\": " << median << ", \"largest_ms\": " << one.times.back() << "}"
             << (&one == &all.back() ? "\n" : ",\n");
    }
    file << "]}\n";
}

}  // namespace

}  // namespace ombrelia

int main(int argc, char** argv) {
    using namespace ombrelia;
    if (argc != 4) {
        std::fprintf(stderr, "bench_latency EDITOR EMPTY RESULT.json\n");
        return 2;
    }
    ScreenProbe probe;
    std::vector<Measured> all;
    all.push_back({"latency/empty", measureEmpty(probe, argv[2])});
    EditorOnScreen editor(probe, argv[1]);
    all.push_back({"latency/hover", measureHover(probe, editor)});
    all.push_back({"latency/slider", measureSlider(probe, editor)});
    all.push_back({"latency/raise", measureRaise(probe, editor)});
    all.push_back({"latency/rotate", measureTurn(probe, editor)});
    all.push_back({"latency/stop", measureStop(probe, editor)});
    write(argv[3], std::move(all));
    return 0;
}
