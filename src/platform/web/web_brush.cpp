#include "platform/web/web_brush.h"

#include <cmath>

#include "platform/failure.h"
#include "platform/skin_pictures.h"
#include "platform/web/page.h"

namespace ombrelia {

namespace {

constexpr int kBold = 1;
constexpr int kUnderlined = 2;
constexpr int kWrapped = 4;

// A surface's pixel, 0xAARRGGBB, as the page's images have it.
constexpr unsigned pagePixel(Pixel pixel) {
    return (pixel & 0xFF00FF00U) | ((pixel >> 16U) & 0xFFU) | ((pixel & 0xFFU) << 16U);
}

}  // namespace

void WebBrush::begin(const PixelRect& seen, double opacity) {
    page_begin(window_, seen.left, seen.top, seen.right, seen.bottom, opacity);
}

void WebBrush::fill(const PixelRect& place, Color color) {
    page_fill(place.left, place.top, place.right, place.bottom, color);
}

void WebBrush::drawFace(PictureFace face, const PixelRect& place) {
    const PictureInfo& info = pictureInfo(face.picture);
    if (face.face < 0 || face.face >= info.faces) {
        throw MissingPartFailure(info.name, face.face);
    }
    page_draw_face(static_cast<int>(face.picture), face.face, place.left, place.top, place.width(),
                   place.height());
}

void WebBrush::drawSurface(const Surface& surface, const PixelRect& place) {
    const unsigned opaque = surface.ShowsGround ? 0U : 0xFF000000U;
    const auto columns = static_cast<std::size_t>(surface.width());
    pixels_.resize(columns * static_cast<std::size_t>(surface.height()));
    auto* next = pixels_.data();
    for (int y = 0; y < surface.height(); ++y) {
        const Pixel* row = surface.row(y);
        for (std::size_t x = 0; x < columns; ++x) {
            *next++ = pagePixel(row[x] | opaque);
        }
    }
    page_draw_pixels(pixels_.data(), surface.width(), surface.height(), place.left, place.top,
                     place.width(), place.height());
}

void WebBrush::drawText(const TextLook& look, const PixelRect& place, double scale) {
    const int style = (look.isBold ? kBold : 0) | (look.isUnderlined ? kUnderlined : 0) |
                      (look.isWrapped ? kWrapped : 0);
    page_draw_text(look.text.c_str(), std::round(look.size * scale),
                   std::round(look.size * kLinePitch * scale), look.color,
                   static_cast<int>(look.align), style, place.left, place.top, place.width(),
                   place.height());
}

void WebBrush::drawLine(PixelPoint from, PixelPoint to, int width, Color color) {
    page_draw_line(from.x, from.y, to.x, to.y, width, color);
}

void WebBrush::drawTriangle(const Point (&corners)[3], Color color) {
    page_draw_triangle(corners[0].x, corners[0].y, corners[1].x, corners[1].y, corners[2].x,
                       corners[2].y, color);
}

}  // namespace ombrelia
