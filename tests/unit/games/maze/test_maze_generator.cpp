// Size, carver, solver and search, each against the second way and by what must hold of any maze.
#include <deque>
#include <set>
#include <string>

#include "editor_fixture.h"
#include "games/maze/maze_directions.h"
#include "games/maze/maze_generator.h"
#include "games/maze/maze_solver.h"
#include "games/maze/plain_maze.h"
#include "games/maze/seed_digits.h"
#include "platform/failure.h"

namespace ombrelia::maze {

namespace {

constexpr MazeStyle kStyles[] = {MazeStyle::Square, MazeStyle::Hexagonal};

bool isHex(MazeStyle style) {
    return style == MazeStyle::Hexagonal;
}

void setSize(MazeStyle style, int columns, int rows) {
    NumColumns = static_cast<std::int16_t>(columns);
    NumRows = static_cast<std::int16_t>(rows);
    completeMazeSize(style);
    allocateMaze();
}

SeedDigits digitsFrom(unsigned number) {
    SeedDigits digits;
    for (std::uint8_t& digit : digits) {
        digit = static_cast<std::uint8_t>(number % 10);
        number /= 10;
    }
    return digits;
}

PlainMaze asPlain(MazeStyle style) {
    PlainMaze maze = plainSizeOf(isHex(style), NumColumns, NumRows);
    maze.page.resize(static_cast<std::size_t>(MaxX) + 1);
    for (int x = 0; x <= MaxX; ++x) {
        for (int y = 0; y <= MaxY; ++y) {
            maze.page[static_cast<std::size_t>(x)].push_back(MazePage(x, y));
        }
    }
    maze.roomsInSolution = RoomsInSolution;
    maze.adjacency = Adjacency;
    return maze;
}

using Room = std::pair<int, int>;

std::set<Room> roomsOf(MazeStyle style) {
    std::set<Room> rooms;
    for (int x = 1; x < MaxX; ++x) {
        for (int y = 1; y < MaxY; ++y) {
            const bool isRoom = isHex(style)
                                    ? (x % 8 == 3 && y % 4 == 2) || (x % 8 == 7 && y % 4 == 0)
                                    : x % 2 == 1 && y % 2 == 1;
            if (isRoom) {
                rooms.insert({x, y});
            }
        }
    }
    return rooms;
}

std::vector<PlainStep> stepsOf(MazeStyle style) {
    return plainDeltas(isHex(style)).front();
}

// Rooms that can be reached from the first one, and the passages between rooms.
void expectTree(MazeStyle style) {
    const std::set<Room> rooms = roomsOf(style);
    ASSERT_EQ(static_cast<int>(rooms.size()), NumRooms);
    std::set<Room> seen = {*rooms.begin()};
    std::deque<Room> waiting = {*rooms.begin()};
    int ends = 0;
    while (!waiting.empty()) {
        const auto [x, y] = waiting.front();
        waiting.pop_front();
        ASSERT_NE(MazePage(x, y), kMazeWall);
        for (const PlainStep& d : stepsOf(style)) {
            const Room next = {x + 2 * d.x, y + 2 * d.y};
            if (rooms.count(next) == 0 || MazePage(x + d.x, y + d.y) == kMazeWall) {
                continue;
            }
            ++ends;
            if (seen.insert(next).second) {
                waiting.push_back(next);
            }
        }
    }
    EXPECT_EQ(seen.size(), rooms.size());
    EXPECT_EQ(ends, 2 * (NumRooms - 1));
}

// The solution is a path: its two ends have one marked passage beside the door, all others two.
void expectOnePath(MazeStyle style) {
    const int edge = isHex(style) ? 3 : 1;
    EXPECT_EQ(MazePage(edge, 0), kMazeTrack);
    EXPECT_EQ(MazePage(MaxX - edge, MaxY), kMazeTrack);
    int marked = 0;
    for (const auto& [x, y] : roomsOf(style)) {
        if (MazePage(x, y) != kMazeTrack) {
            continue;
        }
        ++marked;
        int ways = 0;
        for (const PlainStep& d : stepsOf(style)) {
            ways += MazePage(x + d.x, y + d.y) == kMazeTrack ? 1 : 0;
        }
        EXPECT_EQ(ways, 2) << x << ' ' << y;
    }
    EXPECT_EQ(marked, RoomsInSolution);
}

class MazeMaking : public ProcessTest {};

TEST_F(MazeMaking, hundreds_of_seeds_and_sizes_give_a_tree_with_one_marked_path) {
    for (const MazeStyle style : kStyles) {
        for (unsigned n = 0; n < 300; ++n) {
            SCOPED_TRACE(std::to_string(isHex(style)) + " seed " + std::to_string(n * 7919));
            const int columns =
                isHex(style) ? 3 + 2 * static_cast<int>(n % 9) : 2 + static_cast<int>(n % 23);
            setSize(style, columns, 2 + static_cast<int>(n % 17));
            const SeedDigits digits = digitsFrom(n * 7919);
            GenerateMaze(style, digits);
            expectTree(style);
            SolveMaze(style, RoomsInSolution, Adjacency);
            expectOnePath(style);
            PlainMaze second = plainSizeOf(isHex(style), NumColumns, NumRows);
            plainGenerate(second, plain(digits));
            plainSolve(second);
            ASSERT_EQ(asPlain(style), second);
        }
    }
}

TEST_F(MazeMaking, an_unsolved_page_agrees_with_the_second_way) {
    for (const MazeStyle style : kStyles) {
        setSize(style, 21, 14);
        GenerateMaze(style, digitsFrom(31415926));
        RoomsInSolution = 0;
        Adjacency = 0;
        PlainMaze second = plainSizeOf(isHex(style), 21, 14);
        plainGenerate(second, plain(digitsFrom(31415926)));
        EXPECT_EQ(asPlain(style), second);
    }
}

TEST_F(MazeMaking, sizes_agree_with_the_second_way) {
    for (const MazeStyle style : kStyles) {
        for (int w = 60; w < 30000; w += 733) {
            for (int h = 15; h < 20000; h += 611) {
                ComputeMazeSize(style, w, h);
                const PlainMaze second = plainSize(isHex(style), w, h);
                ASSERT_EQ(NumColumns, second.columns) << w << ' ' << h;
                ASSERT_EQ(NumRows, second.rows) << w << ' ' << h;
                ASSERT_EQ(MaxX, second.maxX);
                ASSERT_EQ(MaxY, second.maxY);
                ASSERT_EQ(NumRooms, second.rooms);
            }
        }
    }
}

TEST_F(MazeMaking, the_smallest_mazes_have_two_by_two_and_three_by_two_rooms) {
    ComputeMazeSize(MazeStyle::Square, 15, 15);
    EXPECT_EQ(NumColumns, 2);
    EXPECT_EQ(NumRows, 2);
    ComputeMazeSize(MazeStyle::Hexagonal, 15, 15);
    EXPECT_EQ(NumColumns, 3);
    EXPECT_EQ(NumRows, 2);
    EXPECT_EQ(NumRooms, 5);
    EXPECT_THROW(ComputeMazeSize(MazeStyle::Square, 0, 300), OverflowFailure);
    EXPECT_THROW(ComputeMazeSize(MazeStyle::Square, 90000, 90000), OverflowFailure);
}

TEST_F(MazeMaking, the_exit_is_a_wall_of_the_template_until_the_door_opens) {
    setSize(MazeStyle::Hexagonal, 7, 5);
    GenerateMaze(MazeStyle::Hexagonal, digitsFrom(5));
    EXPECT_EQ(MaxY % 4, 0);
    EXPECT_EQ((MaxX - 3 + 1) % 8, 4);
    EXPECT_EQ(MazePage(MaxX - 3, MaxY), kMazeOpen);
    EXPECT_EQ(MazePage(3, MaxY), kMazeWall);
    EXPECT_EQ(MazePage(MaxX - 3, 0), kMazeWall);
}

TEST_F(MazeMaking, the_search_takes_the_candidate_that_the_second_way_takes) {
    constexpr int kCandidates = 40;
    for (const MazeStyle style : kStyles) {
        for (const char* seed : {" 43200", " 71", " 1.5", "12345678", ""}) {
            setSize(style, 9, 7);
            platform.Seconds = 100;
            platform.SecondsPerReading = kMazeSearchSeconds / kCandidates;
            CreateMaze(seed, style, kMazeSearchSeconds);
            EXPECT_EQ(asPlain(style),
                      plainCreate(plainSizeOf(isHex(style), 9, 7), seed, kCandidates))
                << seed;
        }
    }
}

// With 4 rooms many candidates tie.
TEST_F(MazeMaking, an_exact_tie_keeps_the_earliest_candidate) {
    setSize(MazeStyle::Square, 2, 2);
    platform.SecondsPerReading = kMazeSearchSeconds / 32;
    CreateMaze(" 9", MazeStyle::Square, kMazeSearchSeconds);
    EXPECT_EQ(asPlain(MazeStyle::Square), plainCreate(plainSizeOf(false, 2, 2), " 9", 32));
}

TEST_F(MazeMaking, a_clock_that_falls_back_at_midnight_ends_the_search) {
    setSize(MazeStyle::Square, 5, 5);
    platform.Seconds = 86399;
    platform.SecondsPerReading = -86398;
    CreateMaze(" 86399", MazeStyle::Square, kMazeSearchSeconds);
    EXPECT_EQ(asPlain(MazeStyle::Square), plainCreate(plainSizeOf(false, 5, 5), " 86399", 1));
}

}  // namespace

}  // namespace ombrelia::maze
