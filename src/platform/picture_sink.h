// Which pixels of a picture its reader keeps, and where it puts them: a large picture is never held
// as a whole.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/color.h"

namespace ombrelia {

class Surface;

// Each stepX-th pixel of each stepY-th row, from the left top corner on: columns x rows of them.
// Steps and counts are 1 and above; counts that leave the picture are cut.
struct PictureGrid {
    int stepX = 1;
    int stepY = 1;
    int columns = 1;
    int rows = 1;
};

// What somebody wants of a picture that is being read.
class PictureWish {
  public:
    virtual ~PictureWish() = default;
    // Called once, with the size of the upright picture in pixels, before its pixels are read.
    virtual PictureGrid gridFor(int width, int height) = 0;
    // Called about once in a display frame by a reader that takes longer; false gives it up.
    virtual bool goesOn() = 0;
};

// Throws PictureFailure for a size that is not positive, has more than 2^28 pixels, or a side of
// more than 2^20.
void checkPictureSize(const std::string& path, std::int64_t width, std::int64_t height);

// How the rows of a file become an upright picture: its axes exchanged, then mirrored.
struct PictureTurn {
    bool exchangesAxes = false;
    bool mirrorsX = false;
    bool mirrorsY = false;
};

// Takes the pixels of a file in any order and keeps those that the wish's grid names.
class PictureSink {
  public:
    // width, height: of the picture as the file has it. Gives picture the size of the grid, all
    // black. Throws PictureFailure for a size that no picture may have, and where there is no
    // memory.
    PictureSink(const std::string& path, std::int64_t width, std::int64_t height, PictureWish& wish,
                Surface& picture, PictureTurn turn = {});

    // Whether pixels of this row of the file are kept.
    bool keepsRow(int y) const { return rowPlaces_[static_cast<std::size_t>(y)] >= 0; }

    // A whole row of the file, from the left.
    void putRow(int y, const Pixel* pixels);

    // One pixel of the file; both numbers lie inside it.
    void putPixel(int x, int y, Pixel pixel);

    // Every pixel that is kept.
    void fill(Pixel pixel);

  private:
    // Where the file's pixel (x, y) goes; both places are 0 and above.
    Pixel& at(int xPlace, int yPlace);

    Surface& picture_;
    bool exchangesAxes_;
    std::vector<int> columnPlaces_;  // of each column of the file; -1 where it is not kept
    std::vector<int> rowPlaces_;     // of each row of the file
    std::vector<int> keptColumns_;   // those that are kept
    bool areRowsAlike_ = false;      // a kept row begins as the file's
};

}  // namespace ombrelia
