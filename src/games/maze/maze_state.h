// Values of the maze game. A flag is 0 or -1.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "games/maze/maze_grid.h"
#include "platform/checked_array.h"

namespace ombrelia::maze {

enum class MazeStyle { Square, Hexagonal };

inline constexpr std::int16_t kMazeYes = -1;
inline constexpr std::int16_t kMazeNo = 0;

// Size of the maze, all from ComputeMazeSize.
inline std::int16_t NumColumns = 0;  // rooms across
inline std::int16_t NumRows = 0;     // rooms in depth
inline std::int16_t MaxX = 0;        // largest indices of the page
inline std::int16_t MaxY = 0;
inline std::int16_t NumRooms = 0;

// One entry of the stack: the direction taken from a room.
struct MazeStep {
    std::uint8_t DirectionIndex;
};

// Empty while no maze exists; allocated for each new one.
inline MazeGrid MazePage;                 // the maze; generator, solver
inline MazeGrid UserPage;                 // the player's walk; keys
inline std::vector<MazeStep> MazeStack;   // the way from the first room; solver
inline std::int16_t RoomsInSolution = 0;  // of the maze on show; CreateMaze
inline std::int16_t Adjacency = 0;        // of the maze on show; CreateMaze

// Values of DrawState.
enum MazeDrawState : std::int16_t {
    kMazeSetup = 0,
    kMazeTemplates = 1,
    kMazeBands = 2,
    kMazeCaps = 3,
    kMazeWalls = 4,
    kMazeReady = 5,
    kMazeClosing = 6,
};

// The window's state.
inline std::int16_t DrawState = 0;            // a MazeDrawState; tick, handlers
inline std::int16_t PaintRequested = 0;       // the view is computed anew at state 0; handlers
inline std::int16_t NewMazeRequested = 0;     // a maze is made at state 0; resize
inline std::int16_t TimerRunning = 0;         // a picture is being built; paint, tick
inline std::int16_t Minimized = 0;            // the window was minimized, its maze lives; resize
inline std::int16_t Solved = 0;               // the solution is on show; menu, keys
inline std::int16_t Won = 0;                  // the player has reached the exit; keys
inline std::int16_t WallWalkArmed = 0;        // 1 after the key A; keys
inline std::int16_t ShowedSolutionByKey = 0;  // 1 after the key B for the window's life; keys
inline std::string SeedString;                // the clock as text; resize
inline std::int16_t UserX = 0;                // the player's room on the page; keys
inline std::int16_t UserY = 0;
inline double UserFloatX = 0;  // the same in world units; keys
inline double UserFloatY = 0;

// How the maze is seen; ComputeView.
inline double TiltDegrees = 0;  // 90 less the bar's value; bar, tick
inline double SinTilt = 0;
inline double CosTilt = 0;
inline double ViewXMax = 0;  // width and depth in world units
inline double ViewYMax = 0;
inline double ViewXOffset = 0;
inline double ScaleX = 0;  // pixels to a projected unit
inline double ScaleY = 0;
inline double RelDist = 0;            // distance of the view point
inline std::int16_t UsesPalette = 0;  // brushes are numbers of palette entries; SetupPalette

// Required: 17 slots, of which the last is never set (the_color_table_has_a_slot_too_many).
inline CheckedArray<std::uint32_t, 0, 16> ColorTable;  // plain colours by number; SetupPalette

// Progress of the drawing; the row painters.
inline std::int16_t DrawRow = 0;
inline std::int16_t DrawColumn = 0;
inline std::int16_t SubRow = 0;  // 0..3, DrawRow modulo 4 in the hexagonal style
inline double RowOffset = 0;     // world y of the current row

// Takes the pages and the stack away.
void releaseMaze();

}  // namespace ombrelia::maze
