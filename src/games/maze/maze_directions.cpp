#include "games/maze/maze_directions.h"

namespace ombrelia {

constexpr MazeOrders<4, kSquareOrderCount> kSquareOrders = makeMazeOrders<4, kSquareOrderCount>();
constexpr MazeOrders<6, kHexOrderCount> kHexOrders = makeMazeOrders<6, kHexOrderCount>();
constexpr MazePlaces<4, kSquareOrderCount> kSquarePlaces = makeMazePlaces(kSquareOrders);
constexpr MazePlaces<6, kHexOrderCount> kHexPlaces = makeMazePlaces(kHexOrders);

}  // namespace ombrelia
