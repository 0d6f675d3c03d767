#include <gtest/gtest.h>
#include <vector>

#include "platform/control.h"

namespace ombrelia {

namespace {

TEST(ControlArray, only_what_was_made_is_there) {
    ControlArray<Image> images;
    EXPECT_FALSE(images.has(0));
    EXPECT_THROW(images(0), MissingPartFailure);
    images.make(3).Caption = "three";
    EXPECT_TRUE(images.has(3));
    EXPECT_FALSE(images.has(2));
    EXPECT_FALSE(images.has(-1));
    EXPECT_FALSE(images.has(4));
    EXPECT_EQ(images(3).Index, 3);
    EXPECT_EQ(images.make(3).Caption, "three");
    EXPECT_THROW(images(2), MissingPartFailure);
    EXPECT_THROW(images(-1), MissingPartFailure);
}

TEST(ControlArray, its_members_stay_where_they_are_when_it_grows) {
    ControlArray<Image> images;
    const Image* first = &images.make(1);
    images.make(200);
    EXPECT_EQ(first, &images(1));
    std::vector<int> seen;
    images.forEach([&](Image& image) { seen.push_back(image.Index); });
    EXPECT_EQ(seen, (std::vector<int>{1, 200}));
}

TEST(PictureBox, its_canvas_has_the_inner_size) {
    PictureBox box;
    box.Width = 20;
    box.Height = 12;
    box.Border = 2;
    box.makeCanvas();
    EXPECT_EQ(box.Canvas.width(), 16);
    EXPECT_EQ(box.Canvas.height(), 8);
    EXPECT_EQ(box.Canvas.ScaleWidth, 16);
}

}  // namespace

}  // namespace ombrelia
