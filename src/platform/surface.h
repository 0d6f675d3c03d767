// A picture surface: an RGB32 image in memory with a coordinate scale, and the drawing on it. There
// is no smoothing: a drawing gives the same pixels on every machine.
//
// Rules of the raster. A point (u, v) of the scale lies at pixel (u - ScaleLeft) * width /
// ScaleWidth, likewise for v, rounded to nearest, ties to even. A box and a line include the pixels
// of both their ends. What falls outside the image is discarded, and cutting moves no pixel that
// stays; it costs nothing, however far away the rest lies. Coordinates beyond 32 bits count as the
// nearest 32-bit number.
//
// A line takes a pixel for each step along its longer axis (across, if both are equal): the one
// nearest to the ideal line, halves away from the first end. A wider line adds pixels across that
// axis: (DrawWidth - 1) / 2 rounded down to the left or above, the rest to the right or below.
//
// A polygon has its corners at the left top corners of pixels and takes the pixels whose centres
// lie inside by the even-odd rule. A centre on an edge belongs to the shape on the edge's right; no
// centre is level with a corner. So shapes that share an edge neither overlap nor leave a gap, and
// a shape without area has no pixel.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/color.h"

namespace ombrelia {

// A pixel by its number from the left top corner, or that corner of it.
struct PixelPoint {
    std::int32_t x, y;
};

class Surface {
  public:
    Surface() = default;

    // Sets the size in pixels (0 and above) and the scale to one unit a pixel from (0, 0); clears.
    void setSize(int width, int height);

    // Exchanges the images and gives both the scale of one unit a pixel.
    void exchangeImage(Surface& other);

    int width() const { return width_; }
    int height() const { return height_; }

    // The scale; written by whoever owns the control.
    float ScaleLeft = 0;
    float ScaleTop = 0;
    float ScaleWidth = 0;
    float ScaleHeight = 0;

    // Width in pixels of lines drawn from now on, at least 1.
    int DrawWidth = 1;

    // Colour that clear() leaves; black unless something says otherwise.
    Color Background = rgb(0, 0, 0);

    // Shows what lies under the surface wherever nothing was drawn since clear().
    bool ShowsGround = false;

    void clear();

    // One pixel by its number from the left top corner, whatever the scale; nothing outside.
    void setPixel(int x, int y, Color color);

    // One pixel at a point of the scale.
    void dot(double u, double v, Color color);

    // A filled box between two corners in scale units, both included.
    void box(double u1, double v1, double u2, double v2, Color color);

    // A line between two points in scale units, both included, DrawWidth pixels wide.
    void line(double u1, double v1, double u2, double v2, Color color);

    // The same between two pixels, whatever the scale.
    void linePixels(PixelPoint from, PixelPoint to, Color color);

    // A filled polygon of 3 to kMostCorners corners, whatever the scale.
    static constexpr std::size_t kMostCorners = 8;
    void polygon(std::span<const PixelPoint> corners, Color color);

    // Whether one unit of the scale is one pixel and (0, 0) the left top one.
    bool hasPixelScale() const;

    struct Area {
        double x, y, width, height;
    };

    // Copies the area from of source (in its scale) onto the area to of this surface (in this
    // scale): each pixel whose centre lies in the target takes the source pixel under the same
    // relative place. Pixels whose source lies outside the source image stay as they are.
    void stretchedCopy(const Surface& source, const Area& to, const Area& from);

    // The image: height() rows of width() pixels. Whoever writes through it calls changed().
    Pixel* row(int y);
    const Pixel* row(int y) const;

    // Counts drawings, so that a viewer knows whether it has shown the last one.
    std::uint64_t revision() const { return revision_; }
    void changed() { ++revision_; }

  private:
    void scaleToPixels();
    Pixel ground() const;
    double pixelX(double u) const { return (u - ScaleLeft) * width_ / ScaleWidth; }
    double pixelY(double v) const { return (v - ScaleTop) * height_ / ScaleHeight; }
    void fillPixels(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom,
                    Color color);

    int width_ = 0;
    int height_ = 0;
    std::vector<Pixel> pixels_;
    // Of the stretched copy, kept to spare allocations.
    std::vector<std::int32_t> sourceColumns_;
    std::vector<std::int32_t> sourceRows_;
    std::uint64_t revision_ = 0;
};

}  // namespace ombrelia
