#include "games/maze/maze_generator.h"

#include <algorithm>
#include <vector>

#include "games/maze/maze_directions.h"
#include "platform/numeric.h"

namespace ombrelia::maze {

namespace {

constexpr double kRoomTwips = 360;
constexpr std::int16_t kLeastSquare = 2;
constexpr std::int16_t kLeastHexColumns = 3;
constexpr std::int16_t kLeastHexRows = 2;

void computeSquare(double w, double h) {
    NumColumns = std::max(floorToInt16(w / kRoomTwips - kThickness), kLeastSquare);
    NumRows = std::max(floorToInt16(NumColumns * h / w), kLeastSquare);
}

void computeHexagonal(double w, double h) {
    constexpr double r = kRoot3;
    NumColumns = floorToInt16(2 * (w / kRoomTwips - 2 - kThickness / r) / 3 + 1);
    if (NumColumns % 2 == 0) {
        --NumColumns;
    }
    NumColumns = std::max(NumColumns, kLeastHexColumns);
    const int wholeSides = (NumColumns - 1) * 3 / 2;  // an odd number of columns leaves no rest
    const double wide = wholeSides + 2 + kThickness / r;
    NumRows = std::max(floorToInt16((wide * (h / w) - kThickness) / r), kLeastHexRows);
}

// Which cells of a hexagonal page no wall can ever occupy.
bool isOpenInTemplate(int x, int y) {
    const int xMod = (x + 1) % 8;
    switch ((y + 1) % 4) {
        case 1:
            return (xMod != 0 || y == 0 || y == MaxY) && (xMod < 3 || xMod > 5);
        case 3:
            return xMod != 0 && xMod != 1 && xMod != 4 && xMod != 7;
        default:
            return xMod != 2 && xMod != 6;
    }
}

void fillTemplate() {
    // The pattern repeats every 8 columns.
    for (int x = 0; x <= MaxX; ++x) {
        std::uint8_t* column = &MazePage(x, 0);
        if (x >= 8) {
            std::copy_n(&MazePage(x - 8, 0), MaxY + 1, column);
            continue;
        }
        for (int y = 0; y <= MaxY; ++y) {
            column[y] = isOpenInTemplate(x, y) ? kMazeOpen : kMazeWall;
        }
    }
}

// The carver of a style. A room is a cell's number in the page; the rim and what no room can be is
// never a wall, so that one look tells whether a step leads to an unvisited room.
template <int kModulus, std::size_t kDirections, std::size_t kOrders>
class Carver {
  public:
    Carver(const SeedDigits& digits, const std::array<MazeDelta, kDirections>& deltas,
           const MazeFirsts<kDirections, kOrders>& firsts)
        : random(digits), firsts_(firsts) {
        for (std::size_t d = 0; d < kDirections; ++d) {
            steps_[d] = MazePage.step(deltas[d].x, deltas[d].y);
        }
    }

    void carveFrom(int x, int y) {
        // All in locals: a write to a cell could change anything else.
        std::uint8_t* const cells = MazePage.data();
        MazeRandom<kModulus> draws = random;
        std::vector<Branch> kept(static_cast<std::size_t>(NumRooms) + 1);
        Branch* const branches = kept.data();
        std::size_t top = 0;
        int room = MazePage.offset(x, y);
        cells[room] = kMazeOpen;
        while (true) {
            int order = drawOrder(draws);
            std::size_t ways = waysFrom(cells, room);
            while (ways == 0) {
                if (top == 0) {
                    return;
                }
                const Branch& back = branches[--top];
                room = back.room;
                order = back.order;
                ways = back.ways & waysFrom(cells, room);
            }
            // A room is come back to only for a way that is open now: later none opens.
            const std::size_t taken = firsts_[static_cast<std::size_t>(order)][ways];
            const std::size_t others = ways & ~(std::size_t{1} << taken);
            branches[top] = {room, static_cast<std::int16_t>(order),
                             static_cast<std::uint8_t>(others)};
            top += others != 0 ? 1 : 0;
            const int step = steps_[taken];
            cells[room + step] = kMazeOpen;
            room += 2 * step;
            cells[room] = kMazeOpen;
        }
    }

    MazeRandom<kModulus> random;

  private:
    // Rejection, not reduction: numbers behind the last order are drawn again.
    static int drawOrder(MazeRandom<kModulus>& draws) {
        int order = draws();
        while (order >= static_cast<int>(kOrders)) {
            order = draws();
        }
        return order;
    }

    // Directions that lead to an unvisited room, a bit for each.
    std::size_t waysFrom(const std::uint8_t* cells, int room) const {
        std::size_t ways = 0;
        for (std::size_t d = 0; d < kDirections; ++d) {
            ways |= static_cast<std::size_t>(cells[room + 2 * steps_[d]] == kMazeWall) << d;
        }
        return ways;
    }

    // A room with more ways than the one taken, and the order that it was left with.
    struct Branch {
        std::int32_t room;
        std::int16_t order;
        std::uint8_t ways;
    };

    const MazeFirsts<kDirections, kOrders>& firsts_;
    std::array<int, kDirections> steps_{};
};

void generateSquare(const SeedDigits& digits) {
    constexpr int kModulus = 29;
    MazePage.fill(kMazeWall);
    Carver<kModulus, 4, kSquareOrderCount> carver(digits, kSquareDeltas, kSquareFirsts);
    const auto drawPlace = [&carver](int count) {
        int acc = 0;
        for (int i = 0; i < 3; ++i) {
            acc = acc * kModulus + carver.random();
        }
        return (acc % count) * 2 + 1;
    };
    const int x = drawPlace(NumColumns);
    const int y = drawPlace(NumRows);
    carver.carveFrom(x, y);
    MazePage(1, 0) = kMazeTrack;
    MazePage(MaxX - 1, MaxY) = kMazeOpen;
}

void generateHexagonal(const SeedDigits& digits) {
    fillTemplate();
    Carver<727, 6, kHexOrderCount> carver(digits, kHexDeltas, kHexFirsts);
    const int k = carver.random() % NumColumns;
    const int v = carver.random();
    const bool isOdd = k % 2 == 1;
    carver.carveFrom(k * 4 + 3, isOdd ? (v % (NumRows - 1)) * 4 + 4 : (v % NumRows) * 4 + 2);
    MazePage(3, 0) = kMazeTrack;
    MazePage(MaxX - 3, MaxY) = kMazeOpen;
}

}  // namespace

void ComputeMazeSize(MazeStyle style, double widthTwips, double heightTwips) {
    if (style == MazeStyle::Square) {
        computeSquare(widthTwips, heightTwips);
    } else {
        computeHexagonal(widthTwips, heightTwips);
    }
    completeMazeSize(style);
}

void completeMazeSize(MazeStyle style) {
    if (style == MazeStyle::Square) {
        MaxX = narrowTo<std::int16_t>(2 * NumColumns);
        MaxY = narrowTo<std::int16_t>(2 * NumRows);
        NumRooms = narrowTo<std::int16_t>(NumColumns * NumRows);
    } else {
        MaxX = narrowTo<std::int16_t>((NumColumns / 2) * 8 + 6);
        MaxY = narrowTo<std::int16_t>(4 * NumRows);
        NumRooms = narrowTo<std::int16_t>(NumColumns * NumRows - NumColumns / 2);
    }
}

void allocateMaze() {
    MazePage.allocate(MaxX, MaxY);
    UserPage.allocate(MaxX, MaxY);
    MazeStack.assign(static_cast<std::size_t>(NumRooms) + 1, {});
}

void GenerateMaze(MazeStyle style, const SeedDigits& digits) {
    if (style == MazeStyle::Square) {
        generateSquare(digits);
    } else {
        generateHexagonal(digits);
    }
}

}  // namespace ombrelia::maze
