#include "platform/picture_sink.h"

#include <algorithm>
#include <new>
#include <utility>

#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/surface.h"

namespace ombrelia {

namespace {

// The place of each pixel along one side of the file, -1 for those that are not kept.
std::vector<int> placesAlong(int side, int step, int count, bool isMirrored) {
    std::vector<int> places(static_cast<std::size_t>(side), -1);
    for (int place = 0; place < count; ++place) {
        const int upright = place * step;
        places[static_cast<std::size_t>(isMirrored ? side - 1 - upright : upright)] = place;
    }
    return places;
}

int cut(int count, int step, int side) {
    return std::min(count, (side - 1) / step + 1);
}

}  // namespace

void checkPictureSize(const std::string& path, std::int64_t width, std::int64_t height) {
    constexpr std::int64_t kLongestSide = 1 << 20;
    constexpr std::int64_t kMostPixels = 1 << 28;
    if (width < 1 || height < 1) {
        throw PictureFailure(path, messages::kDamagedHeader);
    }
    if (width > kLongestSide || height > kLongestSide || height > kMostPixels / width) {
        throw PictureFailure(path, messages::pictureTooLarge(width, height));
    }
}

PictureSink::PictureSink(const std::string& path, std::int64_t width, std::int64_t height,
                         PictureWish& wish, Surface& picture, PictureTurn turn)
    : picture_(picture), exchangesAxes_(turn.exchangesAxes) {
    checkPictureSize(path, width, height);
    int across = static_cast<int>(width);
    int down = static_cast<int>(height);
    if (exchangesAxes_) {
        std::swap(across, down);
    }
    PictureGrid grid = wish.gridFor(across, down);
    grid.columns = cut(grid.columns, grid.stepX, across);
    grid.rows = cut(grid.rows, grid.stepY, down);
    areRowsAlike_ = grid.stepX == 1 && !turn.exchangesAxes && !turn.mirrorsX;
    try {
        picture.setSize(grid.columns, grid.rows);
        columnPlaces_ = placesAlong(across, grid.stepX, grid.columns, turn.mirrorsX);
        rowPlaces_ = placesAlong(down, grid.stepY, grid.rows, turn.mirrorsY);
        if (exchangesAxes_) {
            std::swap(columnPlaces_, rowPlaces_);
        }
        for (int x = 0; x < static_cast<int>(width); ++x) {
            if (columnPlaces_[static_cast<std::size_t>(x)] >= 0) {
                keptColumns_.push_back(x);
            }
        }
    } catch (const std::bad_alloc&) {
        throw PictureFailure(path, messages::kNoMemory);
    }
}

Pixel& PictureSink::at(int xPlace, int yPlace) {
    return exchangesAxes_ ? picture_.row(xPlace)[yPlace] : picture_.row(yPlace)[xPlace];
}

void PictureSink::putRow(int y, const Pixel* pixels) {
    const int yPlace = rowPlaces_[static_cast<std::size_t>(y)];
    if (yPlace < 0) {
        return;
    }
    if (areRowsAlike_) {
        std::copy_n(pixels, picture_.width(), picture_.row(yPlace));
        return;
    }
    for (const int x : keptColumns_) {
        at(columnPlaces_[static_cast<std::size_t>(x)], yPlace) = pixels[x];
    }
}

void PictureSink::putPixel(int x, int y, Pixel pixel) {
    const int xPlace = columnPlaces_[static_cast<std::size_t>(x)];
    const int yPlace = rowPlaces_[static_cast<std::size_t>(y)];
    if (xPlace >= 0 && yPlace >= 0) {
        at(xPlace, yPlace) = pixel;
    }
}

void PictureSink::fill(Pixel pixel) {
    for (int y = 0; y < picture_.height(); ++y) {
        std::fill_n(picture_.row(y), picture_.width(), pixel);
    }
}

}  // namespace ombrelia
