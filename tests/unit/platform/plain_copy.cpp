#include "platform/plain_copy.h"

#include <cmath>

#include "pixel_at.h"

namespace ombrelia {

void plainCopy(Surface& target, const Surface& source, const Surface::Area& to,
               const Surface::Area& from) {
    const double toX = (to.x - target.ScaleLeft) * target.width() / target.ScaleWidth;
    const double toY = (to.y - target.ScaleTop) * target.height() / target.ScaleHeight;
    const double toWidth = to.width * target.width() / target.ScaleWidth;
    const double toHeight = to.height * target.height() / target.ScaleHeight;
    const double fromX = (from.x - source.ScaleLeft) * source.width() / source.ScaleWidth;
    const double fromY = (from.y - source.ScaleTop) * source.height() / source.ScaleHeight;
    const double fromWidth = from.width * source.width() / source.ScaleWidth;
    const double fromHeight = from.height * source.height() / source.ScaleHeight;
    for (int y = 0; y < target.height(); ++y) {
        for (int x = 0; x < target.width(); ++x) {
            const double shareX = (x + 0.5 - toX) / toWidth;
            const double shareY = (y + 0.5 - toY) / toHeight;
            if (x + 0.5 < toX || x + 0.5 >= toX + toWidth || y + 0.5 < toY ||
                y + 0.5 >= toY + toHeight) {
                continue;
            }
            const auto sx = static_cast<int>(std::floor(fromX + shareX * fromWidth));
            const auto sy = static_cast<int>(std::floor(fromY + shareY * fromHeight));
            const std::int32_t color = pixelAt(source, sx, sy);
            if (color >= 0) {
                target.setPixel(x, y, static_cast<Color>(color));
            }
        }
    }
}

}  // namespace ombrelia
