// The raster of the surfaces once more, straight from its rules: every pixel of the picture is
// asked whether it belongs to a shape.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/color.h"

namespace ombrelia {

// A picture of pixels 0xFFRRGGBB with the raster's written rules, one pixel after another.
class PlainPicture {
  public:
    PlainPicture(int width, int height)
        : width_(width),
          height_(height),
          pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                  pixelOf(rgb(0, 0, 0))) {}

    void pixel(std::int64_t x, std::int64_t y, Color color);

    // From the first end to the second, both included.
    void line(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, int lineWidth,
              Color color);

    // Pixels whose centre lies inside by the even-odd rule; a centre on an edge belongs to the
    // shape on its right.
    struct Corner {
        std::int64_t x, y;
    };
    void polygon(const std::vector<Corner>& corners, Color color);

    const std::vector<Pixel>& pixels() const { return pixels_; }

  private:
    int width_;
    int height_;
    std::vector<Pixel> pixels_;
};

}  // namespace ombrelia
