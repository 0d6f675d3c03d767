#include "games/maze/maze_state.h"

namespace ombrelia::maze {

std::int16_t NumColumns = 0;
std::int16_t NumRows = 0;
std::int16_t MaxX = 0;
std::int16_t MaxY = 0;
std::int16_t NumRooms = 0;

MazeGrid MazePage;
MazeGrid UserPage;
std::vector<MazeStep> MazeStack;
std::int16_t RoomsInSolution = 0;
std::int16_t Adjacency = 0;

std::int16_t DrawState = 0;
std::int16_t PaintRequested = 0;
std::int16_t NewMazeRequested = 0;
std::int16_t TimerRunning = 0;
std::int16_t Minimized = 0;
std::int16_t Solved = 0;
std::int16_t Won = 0;
std::int16_t WallWalkArmed = 0;
std::int16_t ShowedSolutionByKey = 0;
std::string SeedString;
std::int16_t UserX = 0;
std::int16_t UserY = 0;
double UserFloatX = 0;
double UserFloatY = 0;

double TiltDegrees = 0;
double SinTilt = 0;
double CosTilt = 0;
double ViewXMax = 0;
double ViewYMax = 0;
double ViewXOffset = 0;
double ScaleX = 0;
double ScaleY = 0;
double RelDist = 0;
std::int16_t UsesPalette = 0;
CheckedArray<std::uint32_t, 0, 16> ColorTable;

std::int16_t DrawRow = 0;
std::int16_t DrawColumn = 0;
std::int16_t SubRow = 0;
double RowOffset = 0;

void releaseMaze() {
    MazeStack = {};
    UserPage.release();
    MazePage.release();
}

}  // namespace ombrelia::maze
