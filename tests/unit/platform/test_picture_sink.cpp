#include <gtest/gtest.h>
#include <vector>

#include "platform/failure.h"
#include "platform/picture_sink.h"
#include "platform/surface.h"
#include "whole_picture.h"

namespace ombrelia {

namespace {

class Wish : public WholePicture {
  public:
    explicit Wish(PictureGrid grid) : grid_(grid) {}
    PictureGrid gridFor(int width, int height) override {
        Width = width;
        Height = height;
        return grid_;
    }
    int Width = 0;
    int Height = 0;

  private:
    PictureGrid grid_;
};

// A picture of the file's numbers: 100 for each row, 1 for each column.
void putFile(PictureSink& sink, int width, int height, bool isByRows) {
    for (int y = 0; y < height; ++y) {
        std::vector<Pixel> row;
        for (int x = 0; x < width; ++x) {
            row.push_back(static_cast<Pixel>(100 * y + x));
            if (!isByRows) {
                sink.putPixel(x, y, row.back());
            }
        }
        if (isByRows) {
            sink.putRow(y, row.data());
        }
    }
}

using PixelRows = std::vector<std::vector<Pixel>>;

PixelRows rowsOf(const Surface& picture) {
    PixelRows rows;
    for (int y = 0; y < picture.height(); ++y) {
        rows.emplace_back(picture.row(y), picture.row(y) + picture.width());
    }
    return rows;
}

PixelRows kept(int width, int height, PictureGrid grid, PictureTurn turn = {}) {
    PixelRows rows[2];
    for (const bool isByRows : {false, true}) {
        Wish wish(grid);
        Surface picture;
        PictureSink sink("p", width, height, wish, picture, turn);
        EXPECT_EQ(wish.Width, turn.exchangesAxes ? height : width);
        EXPECT_EQ(wish.Height, turn.exchangesAxes ? width : height);
        putFile(sink, width, height, isByRows);
        rows[isByRows ? 1 : 0] = rowsOf(picture);
    }
    EXPECT_EQ(rows[0], rows[1]);
    return rows[0];
}

TEST(PictureSink, keeps_the_pixels_of_the_grid) {
    EXPECT_EQ(kept(3, 2, {1, 1, 3, 2}), (PixelRows{{0, 1, 2}, {100, 101, 102}}));
    EXPECT_EQ(kept(7, 5, {3, 2, 7, 5}), (PixelRows{{0, 3, 6}, {200, 203, 206}, {400, 403, 406}}));
    EXPECT_EQ(kept(7, 5, {3, 4, 2, 1}), (PixelRows{{0, 3}}));
}

TEST(PictureSink, knows_which_rows_are_needless) {
    Wish wish({1, 2, 4, 9});
    Surface picture;
    const PictureSink sink("p", 4, 4, wish, picture);
    EXPECT_TRUE(sink.keepsRow(0));
    EXPECT_FALSE(sink.keepsRow(1));
    EXPECT_TRUE(sink.keepsRow(2));
    EXPECT_FALSE(sink.keepsRow(3));
}

TEST(PictureSink, turns_a_file_upright) {
    const PictureGrid whole{1, 1, 9, 9};
    EXPECT_EQ(kept(3, 2, whole, {false, true, false}), (PixelRows{{2, 1, 0}, {102, 101, 100}}));
    EXPECT_EQ(kept(3, 2, whole, {false, true, true}), (PixelRows{{102, 101, 100}, {2, 1, 0}}));
    EXPECT_EQ(kept(3, 2, whole, {false, false, true}), (PixelRows{{100, 101, 102}, {0, 1, 2}}));
    EXPECT_EQ(kept(3, 2, whole, {true, false, false}), (PixelRows{{0, 100}, {1, 101}, {2, 102}}));
    // A quarter to the right: the first row becomes the right column.
    EXPECT_EQ(kept(3, 2, whole, {true, true, false}), (PixelRows{{100, 0}, {101, 1}, {102, 2}}));
    EXPECT_EQ(kept(3, 2, whole, {true, true, true}), (PixelRows{{102, 2}, {101, 1}, {100, 0}}));
    EXPECT_EQ(kept(3, 2, whole, {true, false, true}), (PixelRows{{2, 102}, {1, 101}, {0, 100}}));
}

TEST(PictureSink, counts_its_steps_in_the_upright_picture) {
    EXPECT_EQ(kept(5, 3, {2, 3, 9, 9}, {true, true, false}), (PixelRows{{200, 0}, {203, 3}}));
}

TEST(PictureSink, is_black_where_nothing_was_put) {
    WholePicture wish;
    Surface picture;
    PictureSink sink("p", 3, 2, wish, picture);
    EXPECT_EQ(rowsOf(picture), PixelRows(2, std::vector<Pixel>(3, 0xFF000000U)));
    sink.fill(7);
    EXPECT_EQ(rowsOf(picture), PixelRows(2, std::vector<Pixel>(3, 7)));
}

TEST(PictureSize, is_positive_and_limited) {
    EXPECT_NO_THROW(checkPictureSize("p", 16384, 16384));
    EXPECT_NO_THROW(checkPictureSize("p", 1048576, 256));
    EXPECT_THROW(checkPictureSize("p", 1048577, 1), PictureFailure);
    EXPECT_THROW(checkPictureSize("p", 1, 1048577), PictureFailure);
    EXPECT_THROW(checkPictureSize("p", 16385, 16384), PictureFailure);
    EXPECT_THROW(checkPictureSize("p", 4294967296, 4294967296), PictureFailure);
    EXPECT_THROW(checkPictureSize("p", 0, 5), PictureFailure);
    EXPECT_THROW(checkPictureSize("p", 5, -1), PictureFailure);
}

}  // namespace

}  // namespace ombrelia
