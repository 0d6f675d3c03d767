#include "games/maze/plain_maze_picture.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace ombrelia::maze {

namespace {

struct Point {
    double x, y;
};
using Shape = std::vector<Point>;

class PlainPicture {
  public:
    PlainPicture(const PlainMaze& maze, int width, int height, double tilt)
        : maze_(maze), width_(width), height_(height) {
        const double radians = tilt * std::atan(1.0) / 45;
        sine_ = std::sin(radians);
        cosine_ = std::cos(radians);
        xMax = maze.isHex ? (maze.columns - 1) * 3 / 2 + 2 + 0.25 / r : maze.columns + 0.25;
        yMax = maze.isHex ? maze.rows * r + 0.25 : maze.rows + 0.25;
    }

    void corner(std::ostringstream& text, const Point& p, double z) const {
        const double scaleX = (width_ - 1) / ((xMax / (xMax - 2)) * xMax);
        const double offset = (2 / (xMax - 2)) * (xMax / 2);
        const double scaleY = (height_ - 1) / std::sqrt(yMax * yMax + 4);
        const double distance = xMax > yMax ? xMax : yMax;
        const double depth = (yMax - p.y) * cosine_ - sine_ * z;
        const double height = (yMax - p.y) * sine_ + z * cosine_;
        const double py = ((height - yMax / 2) * distance) / (depth + distance) + yMax / 2;
        const double px = ((p.x - xMax / 2) * distance) / (depth + distance) + xMax / 2 + offset;
        text << ' ' << static_cast<long>(std::floor(px * scaleX)) << ','
             << height_ - static_cast<long>(std::floor(py * scaleY));
    }

    void fill(const std::vector<std::pair<Point, double>>& corners, int shade) {
        std::ostringstream text;
        text << std::hex << shade * 256 / 13 << std::dec;
        for (const auto& [point, z] : corners) {
            corner(text, point, z);
        }
        faces.push_back(text.str());
    }

    void flat(const Shape& shape, double z, int shade) {
        std::vector<std::pair<Point, double>> corners;
        for (const Point& point : shape) {
            corners.emplace_back(point, z);
        }
        fill(corners, shade);
    }

    void front(const Shape& p, int shade) {
        fill({{p[3], 2}, {p[2], 2}, {p[2], 0}, {p[3], 0}}, shade);
        flat(p, 2, 12);
    }

    void sides(const Shape& p) {
        if (2 * p[0].x > xMax) {
            fill({{p[0], 2}, {p[3], 2}, {p[3], 0}, {p[0], 0}}, 10);
        }
        if (2 * p[1].x < xMax) {
            fill({{p[2], 2}, {p[1], 2}, {p[1], 0}, {p[2], 0}}, 4);
        }
    }

    void cornerSides(const Shape& p) {
        if (xMax / 2 > p[1].x && p[1].x > p[0].x) {
            fill({{p[2], 2}, {p[1], 2}, {p[1], 0}, {p[2], 0}}, 3);
        }
        if (xMax / 2 < p[1].x && p[1].x < p[2].x) {
            fill({{p[1], 2}, {p[0], 2}, {p[0], 0}, {p[1], 0}}, 9);
        }
    }

    void cornerFront(const Shape& p, int shade) {
        fill({{p[0], 2}, {p[2], 2}, {p[2], 0}, {p[0], 0}}, shade);
        flat(p, 2, 12);
    }

    bool isWall(int x, int y) const {
        return maze_.page.at(static_cast<std::size_t>(x)).at(static_cast<std::size_t>(y)) == 0;
    }

    const double r = std::sqrt(3.0);
    double xMax, yMax;
    std::vector<std::string> faces;

  private:
    const PlainMaze& maze_;
    int width_, height_;
    double sine_, cosine_;
};

// A shape moved: y once from its place, x in steps, as the pieces walk.
Shape at(Shape shape, double dx, int steps, double dy) {
    for (Point& point : shape) {
        point.y += dy;
        for (int i = 0; i < steps; ++i) {
            point.x += dx;
        }
    }
    return shape;
}

void paintSquare(const PlainMaze& maze, PlainPicture& to) {
    to.flat({{0, 0}, {to.xMax, 0}, {to.xMax, to.yMax}, {0, to.yMax}}, 0, 6);
    const Shape post = {{0, 0}, {0.25, 0}, {0.25, 0.25}, {0, 0.25}};
    const Shape alongX = {{0.25, 0}, {1, 0}, {1, 0.25}, {0.25, 0.25}};
    const Shape alongY = {{0, 0.25}, {0.25, 0.25}, {0.25, 1}, {0, 1}};
    for (int y = 0; y <= maze.maxY; ++y) {
        const double dy = y / 2;
        const Shape& block = y % 2 == 0 ? post : alongY;
        for (int x = 0; x <= maze.maxX; x += 2) {
            if (to.isWall(x, y)) {
                to.sides(at(block, 1, x / 2, dy));
            }
        }
        for (int x = 0; x <= maze.maxX; ++x) {
            if (to.isWall(x, y) && (y % 2 == 0 || x % 2 == 0)) {
                to.front(at(x % 2 == 0 ? block : alongX, 1, x / 2, dy), 7);
            }
        }
    }
}

void paintHexFloor(const PlainMaze& maze, PlainPicture& to) {
    const double r = to.r;
    const double t = 0.25;
    const double P = t / r + 0.5;
    const double Q = (1 - t / r) / 2;
    const double S = (t / r + 1) * 1.5;
    const double U = t / r + 2;
    const double a = r / 2;
    const double b = r / 2 + t;
    const double e = t / 2;
    const double X = to.xMax;
    Shape strips[4] = {{{P, 0}, {X - P, 0}, {X - P, t}, {P, t}},
                       {{0, a}, {X, a}, {X - P, t}, {P, t}},
                       {{0, a}, {X, a}, {X, b}, {0, b}},
                       {{0, b}, {X, b}, {X - P, r}, {P, r}}};
    for (int row = 0; row <= maze.maxY - 1; row += 4) {
        for (int i = 0; i < 4; ++i) {
            const bool isPainted = i < 2 ? row > 0 : i == 2 || row < maze.maxY - 4;
            if (isPainted) {
                to.flat(strips[i], 0, 6);
            }
            strips[i] = at(strips[i], 0, 0, r);
        }
    }
    const Shape caps[3] = {{{Q, e}, {P, 0}, {1.5, 0}, {S, e}},
                           {{0, a}, {Q, e}, {S, e}, {U, a}},
                           {{0, b}, {0, a}, {U, a}, {U, b}}};
    for (int column = 0; column <= maze.maxX; column += 8) {
        for (const Shape& cap : caps) {
            Shape moved = at(cap, 3, column / 8, 0);
            to.flat(moved, 0, 6);
            for (Point& point : moved) {
                point.y = to.yMax - point.y;
            }
            to.flat(moved, 0, 6);
        }
    }
}

void paintHexWalls(const PlainMaze& maze, PlainPicture& to) {
    const double r = to.r;
    const double t = 0.25;
    const double P = t / r + 0.5;
    const double Q = (1 - t / r) / 2;
    const double S = (t / r + 1) * 1.5;
    const double U = t / r + 2;
    const double V = 2 - t / (2 * r);
    const double W = r * t / 2;
    const double a = r / 2;
    const double b = r / 2 + t;
    const double c = (r + t) / 2;
    const double d = r + t / 2;
    const double e = t / 2;
    const Shape tri[4] = {{{0, b}, {0, a}, {W, c}},
                          {{Q, e}, {P, 0}, {P, t}},
                          {{1.5, t}, {1.5, 0}, {S, e}},
                          {{V, c}, {U, a}, {U, b}}};
    const Shape quad[6] = {
        {{W, c}, {P, r}, {Q, d}, {0, b}},     {{0, a}, {Q, e}, {P, t}, {W, c}},
        {{P, 0}, {1.5, 0}, {1.5, t}, {P, t}}, {{S, e}, {U, a}, {V, c}, {1.5, t}},
        {{U, a}, {3, a}, {3, b}, {U, b}},     {{1.5, r}, {V, c}, {U, b}, {S, d}}};
    double offset = 0;
    for (int y = 0; y <= maze.maxY; ++y) {
        for (int walk = 0; walk < 2; ++walk) {
            for (int x = 0; x <= maze.maxX; ++x) {
                const int unit = x / 8;
                const auto wall = [&](int piece, int shade) {
                    if (to.isWall(x, y)) {
                        to.front(at(quad[piece], 3, unit, offset), shade);
                    }
                };
                // Row in the unit, walk, column in the unit.
                switch (y % 4 * 100 + walk * 10 + x % 8) {
                    case 2:
                        to.cornerSides(at(tri[1], 3, unit, offset));
                        break;
                    case 4:
                        to.cornerSides(at(tri[2], 3, unit, offset));
                        break;
                    case 12:
                        to.cornerFront(at(tri[1], 3, unit, offset), 8);
                        break;
                    case 13:
                        wall(2, 7);
                        break;
                    case 14:
                        to.cornerFront(at(tri[2], 3, unit, offset), 5);
                        break;
                    case 101:
                        wall(1, 4);
                        break;
                    case 105:
                        wall(3, 10);
                        break;
                    case 200:
                        to.cornerSides(at(tri[0], 3, unit, offset));
                        break;
                    case 206:
                        to.cornerSides(at(tri[3], 3, unit, offset));
                        break;
                    case 210:
                        to.cornerFront(at(tri[0], 3, unit, offset), 5);
                        break;
                    case 216:
                        to.cornerFront(at(tri[3], 3, unit, offset), 8);
                        break;
                    case 217:
                        wall(4, 7);
                        break;
                    case 301:
                        wall(0, 10);
                        break;
                    case 305:
                        wall(5, 4);
                        break;
                    default:
                        break;
                }
            }
        }
        offset += y % 4 == 3 ? r : 0;
    }
}

}  // namespace

std::vector<std::string> plainPicture(const PlainMaze& maze, int widthPixels, int heightPixels,
                                      double tiltDegrees) {
    PlainPicture picture(maze, widthPixels, heightPixels, tiltDegrees);
    if (maze.isHex) {
        paintHexFloor(maze, picture);
        paintHexWalls(maze, picture);
    } else {
        paintSquare(maze, picture);
    }
    return picture.faces;
}

}  // namespace ombrelia::maze
