#include "games/maze/maze_directions.h"

namespace ombrelia::maze {

constexpr MazeOrders<4, kSquareOrderCount> kSquareOrders = makeMazeOrders<4, kSquareOrderCount>();
constexpr MazeOrders<6, kHexOrderCount> kHexOrders = makeMazeOrders<6, kHexOrderCount>();
constexpr MazeFirsts<4, kSquareOrderCount> kSquareFirsts = makeMazeFirsts(kSquareOrders);
// Not constexpr: too long for some compilers, which then fill it at the start of the process.
const MazeFirsts<6, kHexOrderCount> kHexFirsts = makeMazeFirsts(kHexOrders);

}  // namespace ombrelia::maze
