#include "games/maze/maze_solver.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

#include "games/maze/maze_directions.h"
#include "games/maze/maze_generator.h"
#include "platform/services.h"

namespace ombrelia::maze {

namespace {

// The solver of a style. Rooms and walls are cells' numbers in the page.
template <std::size_t kDirections>
class Solver {
  public:
    explicit Solver(const std::array<MazeDelta, kDirections>& deltas) : cells_(MazePage.data()) {
        for (std::size_t d = 0; d < kDirections; ++d) {
            steps_[d] = MazePage.step(deltas[d].x, deltas[d].y);
            for (std::size_t other = 0; other < kDirections; ++other) {
                const bool isOpposite =
                    deltas[other].x == -deltas[d].x && deltas[other].y == -deltas[d].y;
                backs_[d] |= static_cast<unsigned>(isOpposite) << other;
            }
        }
    }

    // From the first room to the wall cell of the exit, depth first. Nothing is marked on the way:
    // in a maze without rings it is enough not to turn round.
    void findSolution(int start, int exit) {
        std::vector<Branch> kept(static_cast<std::size_t>(NumRooms) + 1);
        Branch* branch = kept.data();
        MazeStep* step = MazeStack.data();
        int room = start;
        unsigned back = 0;
        while (true) {
            unsigned ways = openWays(room) & ~back;
            if (ways == 0) {
                --branch;
                room = branch->room;
                step = MazeStack.data() + branch->steps;
                ways = branch->ways;
            }
            const auto d = static_cast<std::size_t>(std::countr_zero(ways));
            const unsigned others = ways & (ways - 1);
            *branch = {room, static_cast<int>(step - MazeStack.data()), others};
            branch += others != 0 ? 1 : 0;
            step->DirectionIndex = static_cast<std::uint8_t>(d);
            if (room + steps_[d] == exit) {
                break;
            }
            ++step;
            room += 2 * steps_[d];
            back = backs_[d];
        }
        room_ = room;
        top_ = static_cast<int>(step - MazeStack.data()) - 1;
        mark(exit);
    }

    // Of the solution just found.
    int roomsInSolution() const { return top_ + 2; }

    int adjacency() const {
        int count = 0;
        int room = room_;
        for (int place = top_; place >= 0; --place) {
            count += adjacencyOf(room);
            room -= 2 * steps_[MazeStack[static_cast<std::size_t>(place)].DirectionIndex];
        }
        return count + adjacencyOf(room);
    }

  private:
    // Directions in which the room has a passage, a bit for each.
    unsigned openWays(int room) const {
        unsigned ways = 0;
        for (std::size_t d = 0; d < kDirections; ++d) {
            ways |= static_cast<unsigned>(cells_[room + steps_[d]] == kMazeOpen) << d;
        }
        return ways;
    }

    // Marks the solution from its last room back to the first.
    void mark(int exit) {
        cells_[exit] = kMazeTrack;
        int room = room_;
        cells_[room] = kMazeTrack;
        for (int place = top_; place >= 0; --place) {
            const int step = steps_[MazeStack[static_cast<std::size_t>(place)].DirectionIndex];
            cells_[room - step] = kMazeTrack;
            room -= 2 * step;
            cells_[room] = kMazeTrack;
        }
    }

    int adjacencyOf(int room) const {
        int count = 0;
        for (const int step : steps_) {
            const bool isShared =
                cells_[room + step] == kMazeWall && cells_[room + 2 * step] == kMazeTrack;
            count += isShared ? 1 : 0;
        }
        return count;
    }

    // A room with untried ways, and the steps of the way to it.
    struct Branch {
        int room;
        int steps;
        unsigned ways;
    };

    std::uint8_t* cells_;
    std::array<unsigned, kDirections> backs_{};  // the bit of the opposite direction
    std::array<int, kDirections> steps_{};
    int room_ = 0;
    int top_ = -1;  // of the stack: rooms before room_ on the solution, less one
};

// What is measured of a candidate; the adjacency only where it can matter.
struct Merit {
    int rooms = 0;
    int adjacency = 0;
};

bool isEligible(int rooms) {
    return rooms * 3 >= NumRooms;
}

template <std::size_t kDirections>
Merit solveBy(const std::array<MazeDelta, kDirections>& deltas, int start, int exit,
              bool isCandidate) {
    Solver<kDirections> solver(deltas);
    solver.findSolution(start, exit);
    Merit merit;
    merit.rooms = solver.roomsInSolution();
    if (!isCandidate || isEligible(merit.rooms)) {
        merit.adjacency = solver.adjacency();
    }
    return merit;
}

Merit solve(MazeStyle style, bool isCandidate) {
    if (style == MazeStyle::Square) {
        return solveBy(kSquareDeltas, MazePage.offset(1, 1), MazePage.offset(MaxX - 1, MaxY),
                       isCandidate);
    }
    return solveBy(kHexDeltas, MazePage.offset(3, 2), MazePage.offset(MaxX - 3, MaxY), isCandidate);
}

float now() {
    return static_cast<float>(services().clock->secondsSinceMidnight());
}

// The best digits that the time allows to find.
SeedDigits searchFrom(SeedDigits digits, MazeStyle style, double seconds) {
    SeedDigits best = digits;
    int leastAdjacency = (style == MazeStyle::Square ? 2 : 4) * NumRooms + 1;
    int longest = 0;
    const float begin = now();
    float elapsed = 0;
    do {
        GenerateMaze(style, digits);
        const Merit merit = solve(style, true);
        if (isEligible(merit.rooms)) {
            const int least = leastAdjacency;
            leastAdjacency = std::min(least, merit.adjacency);
            if (merit.adjacency < least || (merit.adjacency == least && merit.rooms > longest)) {
                longest = merit.rooms;
                best = digits;
            }
        }
        IncrementSeed(digits);
        elapsed = now() - begin;
    } while (elapsed >= 0 && elapsed < seconds);
    return best;
}

}  // namespace

void SolveMaze(MazeStyle style, std::int16_t& roomsInSolution, std::int16_t& adjacency) {
    const Merit merit = solve(style, false);
    roomsInSolution = static_cast<std::int16_t>(merit.rooms);
    adjacency = static_cast<std::int16_t>(merit.adjacency);
}

void CreateMaze(const std::string& seedString, MazeStyle style, double seconds) {
    SeedDigits digits = digitsOf(seedString);
    ScrambleSeed(digits);
    GenerateMaze(style, searchFrom(digits, style, seconds));
    SolveMaze(style, RoomsInSolution, Adjacency);
}

}  // namespace ombrelia::maze
