#include "games/maze/plain_maze.h"

#include <cmath>
#include <functional>

namespace ombrelia::maze {

namespace {

const std::string kTableA =
    "41288996572129886351954498608060241920747300268940"
    "83232524697913571145816057823373517540363771940566";
const std::string kTableB =
    "12215546464456630965720934239199938934150527088045"
    "03681788713277180375264099774620017366112459828835";

int at(const std::string& table, int index) {
    return table[static_cast<std::size_t>(index)] - '0';
}

std::vector<PlainStep> firstRow(bool isHex) {
    if (isHex) {
        return {{-2, -1}, {-2, 1}, {0, -2}, {0, 2}, {2, -1}, {2, 1}};
    }
    return {{-1, 0}, {0, 1}, {1, 0}, {0, -1}};
}

bool isTemplateOpen(const PlainMaze& maze, int x, int y) {
    const int xMod = (x + 1) % 8;
    const int yMod = (y + 1) % 4;
    if (yMod == 1) {
        return (xMod != 0 || y == 0 || y == maze.maxY) && xMod != 3 && xMod != 4 && xMod != 5;
    }
    if (yMod == 3) {
        return xMod != 0 && xMod != 1 && xMod != 4 && xMod != 7;
    }
    return xMod != 2 && xMod != 6;
}

struct Place {
    int x, y;
};

Place firstRoom(const PlainMaze& maze, PlainRandom& random) {
    if (maze.isHex) {
        const int k = random.next() % maze.columns;
        const int v = random.next();
        const int y = k % 2 == 1 ? v % (maze.rows - 1) * 4 + 4 : v % maze.rows * 4 + 2;
        return {k * 4 + 3, y};
    }
    int place[2];
    const int counts[2] = {maze.columns, maze.rows};
    for (int axis = 0; axis < 2; ++axis) {
        int acc = 0;
        for (int i = 0; i < 3; ++i) {
            acc = acc * 29 + random.next();
        }
        place[axis] = acc % counts[axis] * 2 + 1;
    }
    return {place[0], place[1]};
}

int& cell(PlainMaze& maze, int x, int y) {
    return maze.page.at(static_cast<std::size_t>(x)).at(static_cast<std::size_t>(y));
}

bool isFree(PlainMaze& maze, int x, int y) {
    return x > 0 && x <= maze.maxX && y > 0 && y <= maze.maxY && cell(maze, x, y) == 0;
}

// Walls of a room that it shares with the outside or with a room of the solution.
int adjacencyOf(PlainMaze& maze, int x, int y) {
    int count = 0;
    for (const PlainStep& d : firstRow(maze.isHex)) {
        if (cell(maze, x + d.x, y + d.y) != 0) {
            continue;
        }
        const int x2 = x + 2 * d.x;
        const int y2 = y + 2 * d.y;
        if (x2 < 0 || x2 > maze.maxX || y2 < 0 || y2 > maze.maxY || cell(maze, x2, y2) == 1) {
            ++count;
        }
    }
    return count;
}

}  // namespace

PlainDigits plainDigits(const std::string& seed) {
    PlainDigits digits;
    digits.fill(8);
    const std::string used = seed.substr(0, 8);
    int place = 7;
    for (auto letter = used.rbegin(); letter != used.rend(); ++letter) {
        digits[static_cast<std::size_t>(place--)] = static_cast<unsigned char>(*letter) % 10;
    }
    return digits;
}

PlainDigits plainScrambled(PlainDigits p) {
    for (int round = 0; round < 8; ++round) {
        const int a = p[1] * 10 + p[0];
        const int b = p[3] * 10 + p[2];
        const int c = p[5] * 10 + p[4];
        const int d = p[7] * 10 + p[6];
        p[3] = at(kTableB, a);
        p[6] = at(kTableA, a);
        p[0] = at(kTableB, b);
        p[4] = at(kTableA, b);
        p[2] = at(kTableB, c);
        p[1] = at(kTableA, c);
        p[5] = at(kTableB, d);
        p[7] = at(kTableA, d);
    }
    return p;
}

PlainDigits plainIncremented(PlainDigits digits) {
    long number = 0;
    for (std::size_t i = 8; i-- > 0;) {
        number = number * 10 + digits[i];
    }
    number = (number + 1) % 100000000;
    for (int& digit : digits) {
        digit = static_cast<int>(number % 10);
        number /= 10;
    }
    return digits;
}

PlainRandom::PlainRandom(const PlainDigits& digits, int modulus) : modulus_(modulus) {
    for (std::size_t i = 0; i < 8; ++i) {
        ring_[i] = digits[i] + 1;
    }
}

int PlainRandom::next() {
    int sum = ring_[0];
    for (std::size_t i = 1; i < 8; ++i) {
        const int t = ring_[i];
        ring_[i - 1] = t;
        sum += t;
        if (sum >= modulus_) {
            sum -= modulus_;
        }
    }
    ring_[7] = sum;
    return sum;
}

std::vector<std::vector<PlainStep>> plainDeltas(bool isHex) {
    const std::vector<PlainStep> row0 = firstRow(isHex);
    const std::size_t count = row0.size();
    std::vector<std::vector<PlainStep>> rows;
    std::vector<std::size_t> tuple;
    const std::function<void()> choose = [&] {
        if (tuple.size() == count) {
            std::vector<PlainStep> row(count);
            for (std::size_t i = 0; i < count; ++i) {
                row[tuple[i]] = row0[i];
            }
            rows.push_back(row);
            return;
        }
        for (std::size_t value = 0; value < count; ++value) {
            bool isUsed = false;
            for (const std::size_t outer : tuple) {
                isUsed = isUsed || outer == value;
            }
            if (!isUsed) {
                tuple.push_back(value);
                choose();
                tuple.pop_back();
            }
        }
    };
    choose();
    return rows;
}

PlainMaze plainSizeOf(bool isHex, int columns, int rows) {
    PlainMaze maze;
    maze.isHex = isHex;
    maze.columns = columns;
    maze.rows = rows;
    maze.maxX = isHex ? columns / 2 * 8 + 6 : 2 * columns;
    maze.maxY = isHex ? 4 * rows : 2 * rows;
    maze.rooms = isHex ? columns * rows - columns / 2 : columns * rows;
    return maze;
}

PlainMaze plainSize(bool isHex, double w, double h) {
    if (!isHex) {
        int columns = static_cast<int>(std::floor(w / 360 - 0.25));
        columns = columns < 2 ? 2 : columns;
        const int rows = static_cast<int>(std::floor(columns * h / w));
        return plainSizeOf(false, columns, rows < 2 ? 2 : rows);
    }
    const double r = std::sqrt(3.0);
    int columns = static_cast<int>(std::floor(2 * (w / 360 - 2 - 0.25 / r) / 3 + 1));
    columns -= columns % 2 == 0 ? 1 : 0;
    columns = columns < 3 ? 3 : columns;
    const double deep = ((columns - 1) * 3 / 2 + 2 + 0.25 / r) * (h / w) - 0.25;
    const int rows = static_cast<int>(std::floor(deep / r));
    return plainSizeOf(true, columns, rows < 2 ? 2 : rows);
}

void plainGenerate(PlainMaze& maze, const PlainDigits& digits) {
    // Set up once, as any maze of a style has the same.
    static const std::vector<std::vector<PlainStep>> tables[] = {plainDeltas(false),
                                                                 plainDeltas(true)};
    const auto& deltas = tables[maze.isHex ? 1 : 0];
    PlainRandom random(digits, maze.isHex ? 727 : 29);
    maze.page.assign(static_cast<std::size_t>(maze.maxX) + 1,
                     std::vector<int>(static_cast<std::size_t>(maze.maxY) + 1, 0));
    for (int x = 0; maze.isHex && x <= maze.maxX; ++x) {
        for (int y = 0; y <= maze.maxY; ++y) {
            cell(maze, x, y) = isTemplateOpen(maze, x, y) ? 2 : 0;
        }
    }
    struct Visit {
        std::size_t place, order;
    };
    std::vector<Visit> stack;
    auto [x, y] = firstRoom(maze, random);
    cell(maze, x, y) = 2;
    do {
        std::size_t di = 0;
        std::size_t pi = 0;
        do {
            pi = static_cast<std::size_t>(random.next());
        } while (pi >= deltas.size());
        bool isFound = false;
        while (true) {
            while (di < deltas[pi].size() && !isFound) {
                const PlainStep d = deltas[pi][di];
                isFound = isFree(maze, x + 2 * d.x, y + 2 * d.y);
                di += isFound ? 0 : 1;
            }
            if (isFound || stack.empty()) {
                break;
            }
            di = stack.back().place;
            pi = stack.back().order;
            stack.pop_back();
            x -= 2 * deltas[pi][di].x;
            y -= 2 * deltas[pi][di].y;
            ++di;
        }
        if (isFound) {
            stack.push_back({di, pi});
            const PlainStep d = deltas[pi][di];
            cell(maze, x + d.x, y + d.y) = 2;
            x += 2 * d.x;
            y += 2 * d.y;
            cell(maze, x, y) = 2;
        }
    } while (!stack.empty());
    const int edge = maze.isHex ? 3 : 1;
    cell(maze, edge, 0) = 1;
    cell(maze, maze.maxX - edge, maze.maxY) = 2;
}

void plainSolve(PlainMaze& maze) {
    const std::vector<PlainStep> deltas = firstRow(maze.isHex);
    int x = maze.isHex ? 3 : 1;
    int y = maze.isHex ? 2 : 1;
    std::vector<std::size_t> stack;
    maze.roomsInSolution = 1;
    maze.adjacency = 0;
    cell(maze, x, y) = 1;
    int yn = 0;
    do {
        std::size_t di = 0;
        while (di == deltas.size() || cell(maze, x + deltas[di].x, y + deltas[di].y) != 2) {
            if (di < deltas.size() && ++di < deltas.size()) {
                continue;
            }
            const std::size_t back = stack.back();
            stack.pop_back();
            for (int i = 0; i < 2; ++i) {
                cell(maze, x, y) = 2;
                x -= deltas[back].x;
                y -= deltas[back].y;
            }
            di = back + 1;
        }
        cell(maze, x + deltas[di].x, y + deltas[di].y) = 1;
        const int xn = x + 2 * deltas[di].x;
        yn = y + 2 * deltas[di].y;
        if (yn <= maze.maxY) {
            stack.push_back(di);
            cell(maze, xn, yn) = 1;
            x = xn;
            y = yn;
        }
    } while (yn < maze.maxY);
    while (!stack.empty()) {
        maze.adjacency += adjacencyOf(maze, x, y);
        x -= 2 * deltas[stack.back()].x;
        y -= 2 * deltas[stack.back()].y;
        stack.pop_back();
        ++maze.roomsInSolution;
    }
    maze.adjacency += adjacencyOf(maze, x, y);
}

PlainMaze plainCreate(PlainMaze maze, const std::string& seed, int candidates) {
    PlainDigits digits = plainScrambled(plainDigits(seed));
    PlainDigits best = digits;
    int least = (maze.isHex ? 4 : 2) * maze.rooms + 1;
    int longest = 0;
    for (int i = 0; i < candidates; ++i) {
        plainGenerate(maze, digits);
        plainSolve(maze);
        if (maze.roomsInSolution * 3 >= maze.rooms) {
            if (maze.adjacency < least ||
                (maze.adjacency == least && maze.roomsInSolution > longest)) {
                longest = maze.roomsInSolution;
                best = digits;
            }
            least = maze.adjacency < least ? maze.adjacency : least;
        }
        digits = plainIncremented(digits);
    }
    plainGenerate(maze, best);
    plainSolve(maze);
    return maze;
}

}  // namespace ombrelia::maze
