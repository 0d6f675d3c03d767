// A picture surface: an RGB32 image in memory with a coordinate scale, and the drawing on it. There
// is no smoothing: a drawing gives the same pixels on every machine.
//
// Rules of the raster. A point (u, v) of the scale lies at pixel (u - ScaleLeft) * width /
// ScaleWidth, likewise for v, rounded to nearest, ties to even. A box and a line include the pixels
// of both their ends. What falls outside the image is discarded.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/color.h"

namespace ombrelia {

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

    // Colour of a pixel; -1 outside the image.
    std::int32_t pixelAt(int x, int y) const;

    // One pixel at a point of the scale.
    void dot(double u, double v, Color color);

    // A filled box between two corners in scale units, both included.
    void box(double u1, double v1, double u2, double v2, Color color);

    // A line between two points in scale units, both included, DrawWidth pixels wide.
    void line(double u1, double v1, double u2, double v2, Color color);

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
    std::vector<std::int32_t> sourceColumns_;  // of the stretched copy, kept to spare allocations
    std::uint64_t revision_ = 0;
};

}  // namespace ombrelia
