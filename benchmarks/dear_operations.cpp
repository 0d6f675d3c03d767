#include "dear_operations.h"

#include <filesystem>
#include <fstream>
#include <string>

#include "bench_desk.h"
#include "bench_gestures.h"
#include "core/button_numbers.h"
#include "core/editor_state.h"
#include "desk/run_command.h"
#include "files/bitmap_import.h"
#include "games/maze/maze_generator.h"
#include "games/maze/maze_solver.h"
#include "platform/dispatch.h"
#include "platform/services.h"
#include "terrain/canyon.h"
#include "terrain/fractal/fractal_terrain.h"
#include "terrain/mountain.h"
#include "terrain/raise_lower.h"
#include "terrain/stroke.h"
#include "views/map2d/update_map_view.h"
#include "views/view3d/draw_terrain.h"
#include "views/view_mode.h"

namespace ombrelia {

namespace {

void generateAtDetail8() {
    SliderValues(14).Value = 8;
    double h = 0.1;
    GenerateFractalTerrain(h, SliderValues(10).Value);
}

void openPerspective(int style) {
    generateAtDetail8();
    SwitchViewMode(kMode3D);
    for (const int number : {button::kStyleLine, button::kStyleDot, button::kStylePolygon}) {
        OptionStates(number).State = number == style ? kOn : kUp;
    }
}

void drawFull() {
    DrawTerrain3D(1, kFullDrawing);
}

void drag() {
    for (int n = 0; n < kDragMoves; ++n) {
        RaiseTerrain(dragX(n), dragY(n));
    }
}

constexpr int kPictureSide = 1024;

std::string pictureFile() {
    return (std::filesystem::temp_directory_path() / "count_operations.pgm").string();
}

void writePicture() {
    std::ofstream file(pictureFile(), std::ios::binary);
    file << "P5\n" << kPictureSide << " " << kPictureSide << "\n255\n";
    for (int y = 0; y < kPictureSide; ++y) {
        for (int x = 0; x < kPictureSide; ++x) {
            file.put(static_cast<char>((x / 4) ^ (y / 4)));
        }
    }
}

void openMaze() {
    using namespace ombrelia::maze;
    NumColumns = 60;
    NumRows = 40;
    completeMazeSize(MazeStyle::Square);
    allocateMaze();
}

void tryMazes() {
    using namespace ombrelia::maze;
    constexpr int kCandidates = 8;
    SeedDigits digits{1, 2, 3, 4, 5, 6, 7, 8};
    for (int n = 0; n < kCandidates; ++n) {
        std::int16_t rooms = 0;
        std::int16_t adjacency = 0;
        GenerateMaze(MazeStyle::Square, digits);
        SolveMaze(MazeStyle::Square, rooms, adjacency);
        IncrementSeed(digits);
    }
}

constexpr DearOperation kOperations[] = {
    {"generate", [] {}, generateAtDetail8},
    {"refresh", MarkMapForRepaint, [] { UpdateMapView(1); }},
    {"pencil", [] { recordPath(kLongestPath); }, [] { DrawStroke(kPencilStroke); }},
    {"mountain", [] {}, [] { BuildMountain(128, 128); }},
    {"canyon", [] { recordPath(40); }, CarveCanyon},
    {"raise", [] {}, drag},
    {"lines", [] { openPerspective(button::kStyleLine); }, drawFull},
    {"polygons", [] { openPerspective(button::kStylePolygon); }, drawFull},
    {"import", writePicture, [] { static_cast<void>(importPicture()); }},
    {"mazes", openMaze, tryMazes},
};

}  // namespace

std::span<const DearOperation> dearOperations() {
    return kOperations;
}

void makeReady(const DearOperation& operation) {
    openToolDesk(kLargeSize);
    benchPlatform().OpenAnswers.assign(1, pictureFile());
    layGround();
    operation.prepare();
}

void clearAway() {
    std::filesystem::remove(pictureFile());
}

}  // namespace ombrelia
