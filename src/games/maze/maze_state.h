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
extern std::int16_t NumColumns;  // rooms across
extern std::int16_t NumRows;     // rooms in depth
extern std::int16_t MaxX;        // largest indices of the page
extern std::int16_t MaxY;
extern std::int16_t NumRooms;

// One entry of the stack: the direction taken from a room.
struct MazeStep {
    std::uint8_t DirectionIndex;
};

// Empty while no maze exists; allocated for each new one.
extern MazeGrid MazePage;                // the maze; generator, solver
extern MazeGrid UserPage;                // the player's walk; keys
extern std::vector<MazeStep> MazeStack;  // the way from the first room; solver
extern std::int16_t RoomsInSolution;     // of the maze on show; CreateMaze
extern std::int16_t Adjacency;           // of the maze on show; CreateMaze

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
extern std::int16_t DrawState;            // a MazeDrawState; tick, handlers
extern std::int16_t PaintRequested;       // the view is computed anew at state 0; handlers
extern std::int16_t NewMazeRequested;     // a maze is made at state 0; resize
extern std::int16_t TimerRunning;         // a picture is being built; paint, tick
extern std::int16_t Minimized;            // the window was minimized, its maze lives; resize
extern std::int16_t Solved;               // the solution is on show; menu, keys
extern std::int16_t Won;                  // the player has reached the exit; keys
extern std::int16_t WallWalkArmed;        // 1 after the key A; keys
extern std::int16_t ShowedSolutionByKey;  // 1 after the key B for the window's life; keys
extern std::string SeedString;            // the clock as text; resize
extern std::int16_t UserX;                // the player's room on the page; keys
extern std::int16_t UserY;
extern double UserFloatX;  // the same in world units; keys
extern double UserFloatY;

// How the maze is seen; ComputeView.
extern double TiltDegrees;  // 90 less the bar's value; bar, tick
extern double SinTilt;
extern double CosTilt;
extern double ViewXMax;  // width and depth in world units
extern double ViewYMax;
extern double ViewXOffset;
extern double ScaleX;  // pixels to a projected unit
extern double ScaleY;
extern double RelDist;            // distance of the view point
extern std::int16_t UsesPalette;  // brushes are numbers of palette entries; SetupPalette

// Required: 17 slots, of which the last is never set (the_color_table_has_a_slot_too_many).
extern CheckedArray<std::uint32_t, 0, 16> ColorTable;  // plain colours by number; SetupPalette

// Progress of the drawing; the row painters.
extern std::int16_t DrawRow;
extern std::int16_t DrawColumn;
extern std::int16_t SubRow;  // 0..3, DrawRow modulo 4 in the hexagonal style
extern double RowOffset;     // world y of the current row

// Takes the pages and the stack away.
void releaseMaze();

}  // namespace ombrelia::maze
