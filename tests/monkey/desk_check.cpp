#include "desk_check.h"

#include <string>

#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"

namespace ombrelia::monkey {

namespace {

// Every stop has ended after two ticks; any command clears a flag that no run has read.
constexpr const char* kRest[] = {
    kLookBegins, "ticks off", "answer none", "tick 3", "click Form1.NTool(18)", "tick 1"};

// The marker line is none of them: a canyon of one point leaves it.
constexpr const char* kOrder[] = {
    "expect Form1.MapView.Enabled true",
    "expect Form1.NTool(122).Face 0",
    "expect Form1.Picture1.Visible true",
    "expect Form1.ProgressFrame.Visible false",
    "expect Form1.Mapview2.Width 257",
    "expect StopFlag 0",
    "expect MouseState 0",
    "expect SliderDragState 0",
    "expect StepRefreshActive 0",
    "expect ImportAtStart 0",
    "expect NewMapPending 0",
};

// Both ends count.
struct Range {
    const char* name;
    double (*value)();
    int low, high;
};
constexpr Range kRanges[] = {
    {"DrawHeight", [] { return static_cast<double>(DrawHeight); }, 0, 255},
    {"ViewYaw", [] { return static_cast<double>(ViewYaw); }, 0, 359},
    {"ViewTilt", [] { return static_cast<double>(ViewTilt); }, 0, 359},
    {"ViewZoom", [] { return ViewZoom; }, -400, 195},
    {"MapZoom", [] { return static_cast<double>(MapZoom); }, -345, 0},
    {"StrokeCount", [] { return static_cast<double>(StrokeCount); }, 0, 600},
};

void playAll(Journal& journal, const auto& lines) {
    for (const char* line : lines) {
        journal.insist(line);
    }
}

void expectTrue(Journal& journal, const Control& control) {
    if (!control.Enabled) {
        journal.insist("expect " + nameOf(control) + ".Enabled true");
    }
}

void checkTools(Journal& journal) {
    for (int i = 1; i <= button::kVolcano; ++i) {
        if (i > button::kPlain && i < button::kWavy) {
            continue;
        }
        for (const int index : {i, i + kOverlayOffset}) {
            if (Form1.NTool.has(index)) {
                expectTrue(journal, Form1.NTool(index));
            }
        }
    }
    for (int i = 1; i <= button::kPlain; ++i) {
        expectTrue(journal, Form1.OptFrame(i));
    }
}

void checkRanges(Journal& journal) {
    for (const Range& row : kRanges) {
        const double value = row.value();
        if (value < row.low || value > row.high) {
            journal.insist(std::string("expect ") + row.name + " " +
                           std::to_string(value < row.low ? row.low : row.high));
        }
    }
    for (int i = 0; i <= 14; ++i) {
        const SliderRecord& slider = SliderValues(i);
        if (slider.Value < slider.Min || slider.Value > slider.Max) {
            journal.insist("expect SliderValues(" + std::to_string(i) + ").Value " +
                           std::to_string(slider.Min));
        }
    }
}

std::string heightLine(int x, int y, int height) {
    return "expect HeightMap(" + std::to_string(x) + "," + std::to_string(y) + ") " +
           std::to_string(height);
}

// After a whole refresh every height that can be seen has a colour.
void checkHeights(Journal& journal) {
    for (int y = 0; y <= MapSize; ++y) {
        for (int x = 0; x <= MapSize; ++x) {
            const int height = HeightMap(x, y);
            if (height < 0 || height > 255) {
                journal.insist(heightLine(x, y, height < 0 ? 0 : 255));
            }
        }
    }
}

// The map as it is saved comes back as it was.
void checkRoundTrip(Journal& journal, int number) {
    const HeightGrid before = HeightMap;
    const int side = MapSize;
    const std::string path = "checked_" + std::to_string(number) + ".bmp";
    journal.insist("answer save " + path);
    journal.insist("click Form1.NTool(14)", 3);
    journal.insist("answer open " + path);
    journal.insist("click Form1.NTool(13)", 3);
    if (MapSize != side) {
        journal.insist("expect MapSize " + std::to_string(side));
    }
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            if (HeightMap(x, y) != before(x, y)) {
                journal.insist(heightLine(x, y, before(x, y)));
            }
        }
    }
}

void checkOrder(Journal& journal) {
    playAll(journal, kOrder);
    checkTools(journal);
    checkRanges(journal);
}

}  // namespace

void checkDesk(User& user, Journal& journal, int number) {
    user.settle();
    playAll(journal, kRest);
    checkOrder(journal);
    journal.insist("click Form1.NTool(12)", 3);
    checkHeights(journal);
    checkRoundTrip(journal, number);
    playAll(journal, kRest);
    checkOrder(journal);
}

}  // namespace ombrelia::monkey
