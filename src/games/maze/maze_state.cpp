#include "games/maze/maze_state.h"

namespace ombrelia::maze {

void releaseMaze() {
    MazeStack = {};
    UserPage.release();
    MazePage.release();
}

}  // namespace ombrelia::maze
