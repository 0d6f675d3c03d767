#include "dumps.h"

#include <algorithm>

#include "core/objects.h"
#include "core/windows/form2.h"
#include "errors.h"
#include "games/maze/maze_state.h"
#include "games/worm/worm_state.h"
#include "names.h"

namespace ombrelia::scenario {

namespace {

void writeGrid(const HeightGrid& grid, std::ostream& out) {
    for (int y = 0; y <= HeightGrid::kLast; ++y) {
        for (int x = 0; x <= HeightGrid::kLast; ++x) {
            out << (x == 0 ? "" : " ") << grid(x, y);
        }
        out << "\n";
    }
}

const Surface& surfaceNamed(const std::string& name) {
    const Control& named = controlNamed(name);
    const Control* ground =
        named.Kind == ControlKind::Window ? static_cast<const Window&>(named).Ground : nullptr;
    const Control& control = ground != nullptr ? *ground : named;
    if (control.Kind == ControlKind::PictureBox) {
        const Surface& canvas = static_cast<const PictureBox&>(control).Canvas;
        if (canvas.width() > 0) {
            return canvas;
        }
    }
    throw LineError{name + " has no image"};
}

}  // namespace

void dumpHeights(const Session& /*session*/, const Fields& /*none*/, std::ostream& out) {
    writeGrid(HeightMap, out);
}

void dumpShadow(const Session& /*session*/, const Fields& /*none*/, std::ostream& out) {
    writeGrid(ShadowMap, out);
}

void dumpSurface(const Session& /*session*/, const Fields& fields, std::ostream& out) {
    const Surface& surface = surfaceNamed(fields[0]);
    out << "P6\n" << surface.width() << " " << surface.height() << "\n255\n";
    for (int y = 0; y < surface.height(); ++y) {
        for (int x = 0; x < surface.width(); ++x) {
            const Color color = colorOf(surface.row(y)[x]);
            out << static_cast<char>(redOf(color)) << static_cast<char>(greenOf(color))
                << static_cast<char>(blueOf(color));
        }
    }
}

void dumpButtons(const Session& /*session*/, const Fields& /*none*/, std::ostream& out) {
    for (int i = 0; i < static_cast<int>(OptionStates.size()); ++i) {
        const ButtonRecord& record = OptionStates(i);
        out << i << " " << record.State << " " << record.Kind << " " << record.Latching << " "
            << record.SavedState << " " << record.Group << " " << record.Exclusive << "\n";
    }
}

void dumpSliders(const Session& /*session*/, const Fields& /*none*/, std::ostream& out) {
    for (int i = 0; i < static_cast<int>(SliderValues.size()); ++i) {
        const SliderRecord& record = SliderValues(i);
        out << i << " " << record.Orientation << " " << record.Value << " " << record.Max << " "
            << record.Min << "\n";
    }
}

void dumpColors(const Session& /*session*/, const Fields& /*none*/, std::ostream& out) {
    for (int row = 1; row <= ColorTable::kRows; ++row) {
        for (int end = 1; end <= ColorTable::kEnds; ++end) {
            for (int component = 0; component < ColorTable::kComponents; ++component) {
                const bool isFirst = end == 1 && component == 0;
                out << (isFirst ? "" : " ") << ColorRange(row, end, component);
            }
        }
        out << "\n";
    }
}

void dumpSettings(const Session& session, const Fields& /*none*/, std::ostream& out) {
    for (const auto& [section, values] : session.platform.Settings) {
        for (const auto& [key, value] : values) {
            out << onOneLine(section) << "\t" << onOneLine(key) << "\t" << onOneLine(value) << "\n";
        }
    }
}

void dumpCalls(const Session& session, const Fields& /*none*/, std::ostream& out) {
    for (const std::string& call : session.platform.Calls) {
        out << call << "\n";
    }
}

namespace {

void writePage(const maze::MazeGrid& page, std::ostream& out) {
    for (int y = 0; y <= page.maxY(); ++y) {
        for (int x = 0; x <= page.maxX(); ++x) {
            out << static_cast<int>(page(x, y));
        }
        out << "\n";
    }
}

}  // namespace

void dumpMaze(const Session& /*session*/, const Fields& /*none*/, std::ostream& out) {
    out << maze::RoomsInSolution << " " << maze::Adjacency << "\n";
    writePage(maze::MazePage, out);
}

void dumpUserMaze(const Session& /*session*/, const Fields& /*none*/, std::ostream& out) {
    writePage(maze::UserPage, out);
}

void dumpWorm(const Session& /*session*/, const Fields& /*none*/, std::ostream& out) {
    using namespace ombrelia::worm;
    constexpr int kLastCell = 16;
    const int cell = std::max<int>(1, CellSize);
    out << HeadX << " " << HeadY << " " << Heading << " " << WormLength << " " << Lives << " "
        << Level << " " << ItemIndex << "\n"
        << static_cast<int>(Form2.Label2.Left) / cell << " "
        << static_cast<int>(Form2.Label2.Top) / cell << "\n";
    for (int y = 0; y <= kLastCell; ++y) {
        for (int x = 0; x <= kLastCell; ++x) {
            out << Board(x, y);
        }
        out << "\n";
    }
}

}  // namespace ombrelia::scenario
