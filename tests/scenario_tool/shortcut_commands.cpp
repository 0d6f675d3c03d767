// Shortcuts past the mouse, for a test that is about something else.
#include <fstream>
#include <limits>

#include "command.h"
#include "core/button_numbers.h"
#include "core/buttons.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "core/windows/small_windows.h"
#include "desk/run_command.h"
#include "errors.h"
#include "games/maze/maze_generator.h"
#include "games/maze/maze_solver.h"
#include "names.h"
#include "panels/sliders.h"
#include "platform/dispatch.h"
#include "platform/window_life.h"
#include "values.h"

namespace ombrelia::scenario {

namespace {

constexpr long kLowest16 = std::numeric_limits<std::int16_t>::min();
constexpr long kHighest16 = std::numeric_limits<std::int16_t>::max();
constexpr int kLastRecord = decltype(OptionStates)::kHigh;
constexpr std::int16_t kYes = -1;

std::int16_t number16(const std::string& text) {
    return static_cast<std::int16_t>(wholeNumber(text, kLowest16, kHighest16));
}

int cellNumber(const std::string& text) {
    return static_cast<int>(wholeNumber(text, 0, HeightGrid::kLast));
}

void checkLoaded(const Window& window) {
    if (!window.Loaded) {
        throw LineError{"the window " + window.Name + " is not loaded"};
    }
}

void run(Session& /*session*/, const Fields& fields) {
    checkLoaded(Form1);
    const std::int16_t number = number16(fields[0]);
    runHandler([number] {
        int command = number;
        RunCommand(command);
    });
}

void setSlider(Session& /*session*/, const Fields& fields) {
    checkLoaded(Form1);
    const auto slider = static_cast<int>(wholeNumber(fields[0], 0, decltype(SliderValues)::kHigh));
    SliderValues(slider).Value = number16(fields[1]);
    runHandler([slider] { PlaceSlider(slider); });
}

bool isOfSizeDialog(int i) {
    return i >= button::kSizeMiniature && i <= button::kSizeClose;
}

void paintButton(int i) {
    if (isOfSizeDialog(i)) {
        DrawSizeButton(i);
    } else {
        DrawButton(i);
    }
}

void setAndPaint(int i, std::int16_t state) {
    OptionStates(i).State = state;
    paintButton(i);
}

void makeCurrent(int button) {
    const int group = OptionStates(button).Group;
    for (int i = 0; i <= kLastRecord; ++i) {
        if (i != button && OptionStates(i).Exclusive == kYes && OptionStates(i).Group == group) {
            setAndPaint(i, kUp);
        }
    }
    GroupCurrent(group) = static_cast<std::int16_t>(button);
}

void setButton(Session& /*session*/, const Fields& fields) {
    const auto button = static_cast<int>(wholeNumber(fields[0], 0, kLastRecord));
    checkLoaded(isOfSizeDialog(button) ? static_cast<Window&>(SizeSelect) : Form1);
    const std::int16_t state = number16(fields[1]);
    runHandler([button, state] {
        if (OptionStates(button).Exclusive == kYes && state == kOn) {
            makeCurrent(button);
        }
        setAndPaint(button, state);
    });
}

void fill(Session& /*session*/, const Fields& fields) {
    HeightMap.fill(number16(fields[0]));
}

void setCell(Session& /*session*/, const Fields& fields) {
    HeightMap(cellNumber(fields[0]), cellNumber(fields[1])) = number16(fields[2]);
}

void readHeights(Session& /*session*/, const Fields& fields) {
    std::ifstream file(fields[0]);
    for (int y = 0; y <= HeightGrid::kLast; ++y) {
        for (int x = 0; x <= HeightGrid::kLast; ++x) {
            std::string word;
            if (!(file >> word)) {
                throw LineError{fields[0] + " does not hold 258 lines of 258 heights"};
            }
            HeightMap(x, y) = number16(word);
        }
    }
}

void assign(Session& session, const Fields& fields) {
    assignValue(session, fields[0], fields[1]);
}

// STYLE COLUMNS ROWS DIGITS
void maze(Session& /*session*/, const Fields& fields) {
    using namespace ombrelia::maze;
    constexpr long kLeast = 2;
    if (fields[0] != "square" && fields[0] != "hex") {
        throw LineError{"a maze is square or hex"};
    }
    const MazeStyle style = fields[0] == "hex" ? MazeStyle::Hexagonal : MazeStyle::Square;
    const std::string& text = fields[3];
    SeedDigits digits{};
    if (text.size() != digits.size() || text.find_first_not_of("0123456789") != std::string::npos) {
        throw LineError{"\"" + text + "\" is not eight digits"};
    }
    for (std::size_t i = 0; i < digits.size(); ++i) {
        digits[i] = static_cast<std::uint8_t>(text[i] - '0');
    }
    NumColumns = static_cast<std::int16_t>(wholeNumber(fields[1], kLeast, kHighest16));
    NumRows = static_cast<std::int16_t>(wholeNumber(fields[2], kLeast, kHighest16));
    if (style == MazeStyle::Hexagonal && NumColumns % 2 == 0) {
        throw LineError{"a hexagonal maze has an odd number of columns"};
    }
    runHandler([style, &digits] {
        completeMazeSize(style);
        allocateMaze();
        GenerateMaze(style, digits);
        SolveMaze(style, RoomsInSolution, Adjacency);
    });
}

constexpr Command kShortcutCommands[] = {
    {"run", 1, 1, Acts::OnEditor, run},          {"slider", 2, 2, Acts::OnEditor, setSlider},
    {"button", 2, 2, Acts::OnEditor, setButton}, {"fill", 1, 1, Acts::OnEditor, fill},
    {"cell", 3, 3, Acts::OnEditor, setCell},     {"heights", 1, 1, Acts::OnEditor, readHeights},
    {"assign", 2, 2, Acts::OnEditor, assign},    {"maze", 4, 4, Acts::OnEditor, maze},
};

}  // namespace

std::span<const Command> shortcutCommands() {
    return kShortcutCommands;
}

}  // namespace ombrelia::scenario
