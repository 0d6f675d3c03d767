#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "platform/palette.h"
#include "platform/window_picture.h"

namespace ombrelia {

namespace {

std::ostream& operator<<(std::ostream& out, const PixelRect& place) {
    return out << place.left << ',' << place.top << '-' << place.right << ',' << place.bottom;
}

// Writes down what it is asked to paint.
class WritingBrush : public PictureBrush {
  public:
    void begin(const PixelRect& seen, double opacity) override {
        std::ostringstream line;
        line << "begin " << seen << ' ' << opacity;
        lines.push_back(line.str());
    }
    void fill(const PixelRect& place, Color color) override {
        std::ostringstream line;
        line << "fill " << place << ' ' << nameOf(color);
        lines.push_back(line.str());
    }
    void drawFace(PictureFace face, const PixelRect& place) override {
        std::ostringstream line;
        line << "face " << pictureInfo(face.picture).name << ' ' << face.face << ' ' << place;
        lines.push_back(line.str());
    }
    void drawSurface(const Surface& surface, const PixelRect& place) override {
        std::ostringstream line;
        line << "surface " << surface.width() << 'x' << surface.height() << ' ' << place;
        lines.push_back(line.str());
    }
    void drawText(const TextLook& look, const PixelRect& place, double scale) override {
        std::ostringstream line;
        line << "text " << look.text << ' ' << look.size << ' ' << nameOf(look.color) << ' '
             << place << ' ' << scale;
        lines.push_back(line.str());
    }
    void drawLine(PixelPoint from, PixelPoint to, int width, Color color) override {
        std::ostringstream line;
        line << "line " << from.x << ',' << from.y << ' ' << to.x << ',' << to.y << ' ' << width
             << ' ' << nameOf(color);
        lines.push_back(line.str());
    }
    void drawTriangle(const Point (&corners)[3], Color color) override {
        std::ostringstream line;
        line << "triangle";
        for (const Point& corner : corners) {
            line << ' ' << corner.x << ',' << corner.y;
        }
        lines.push_back(line.str() + ' ' + nameOf(color));
    }

    std::vector<std::string> lines;

  private:
    static std::string nameOf(Color color) {
        for (const palette::Role& role : palette::kRoles) {
            if (role.color == color) {
                return std::string(role.name);
            }
        }
        return std::to_string(color);
    }
};

using Lines = std::vector<std::string>;

class WindowPicture : public testing::Test {
  protected:
    WindowPicture() {
        window.Width = 100;
        window.Height = 50;
    }

    void put(Control& part, double left, double top, double width, double height) {
        part.Owner = &window;
        part.Parent = &window;
        part.Left = left;
        part.Top = top;
        part.Width = width;
        part.Height = height;
        window.Controls.push_back(&part);
    }

    Lines paint(double scale, const PixelRect& dirty = {0, 0, 1000, 1000}) {
        WritingBrush brush;
        paintWindow(brush, window, dirty, scale);
        return brush.lines;
    }

    Window window;
};

TEST_F(WindowPicture, the_ground_comes_first_then_the_parts_in_their_order) {
    Image one;
    Image two;
    window.Face = {Picture::Splash, 0};
    one.Face = {Picture::Traffic, 1};
    two.Face = {Picture::Opt, 2};
    put(one, 10, 10, 20, 20);
    put(two, 15, 15, 20, 20);
    EXPECT_EQ(paint(2), (Lines{"begin 0,0-1000,1000 1", "face splash 0 0,0-200,100",
                               "begin 20,20-60,60 1", "face traffic 1 20,20-60,60",
                               "begin 30,30-70,70 1", "face opt 2 30,30-70,70"}));
}

TEST_F(WindowPicture, only_what_touches_the_dirty_place_is_painted) {
    Image part;
    part.Face = {Picture::Traffic, 0};
    put(part, 10, 10, 20, 20);
    EXPECT_EQ(paint(1, {0, 0, 10, 50}), (Lines{"begin 0,0-10,50 1"}));
    EXPECT_EQ(paint(1, {0, 0, 11, 50}),
              (Lines{"begin 0,0-11,50 1", "begin 10,10-11,30 1", "face traffic 0 10,10-30,30"}));
}

TEST_F(WindowPicture, what_is_disabled_is_pale_but_for_surfaces) {
    Image face;
    PictureBox box;
    face.Face = {Picture::Traffic, 0};
    face.Enabled = false;
    box.Enabled = false;
    put(face, 0, 0, 10, 10);
    put(box, 20, 0, 10, 10);
    EXPECT_EQ(paint(1), (Lines{"begin 0,0-1000,1000 1", "begin 0,0-10,10 0.4",
                               "face traffic 0 0,0-10,10", "begin 20,0-30,10 1"}));
}

TEST_F(WindowPicture, marks_stand_on_the_lower_edge) {
    Image track;
    track.Scale = {5, 10, 2};
    put(track, 0, 0, 40, 12);
    EXPECT_EQ(paint(2), (Lines{"begin 0,0-1000,1000 1", "begin 0,0-80,24 1", "fill 9,18-11,24 edge",
                               "fill 29,18-31,24 edge"}));
}

TEST_F(WindowPicture, a_label_has_its_ground_and_its_text) {
    Label label;
    label.Caption = "This && that";
    label.ForeColor = palette::kAmber;
    label.BackColor = palette::kWell;
    put(label, 2, 3, 40, 12);
    EXPECT_EQ(paint(1), (Lines{"begin 0,0-1000,1000 1", "begin 2,3-42,15 1",
                               "text This & that 11 amber 2,3-42,15 1"}));
    label.Opaque = true;
    label.Caption.clear();
    EXPECT_EQ(paint(1),
              (Lines{"begin 0,0-1000,1000 1", "begin 2,3-42,15 1", "fill 2,3-42,15 well"}));
}

TEST_F(WindowPicture, a_surface_lies_inside_its_border) {
    PictureBox box;
    box.Border = 2;
    box.Opaque = true;
    box.BackColor = palette::kInk;
    put(box, 10, 10, 24, 24);
    box.makeCanvas();
    EXPECT_EQ(paint(1.5), (Lines{"begin 0,0-1000,1000 1", "begin 15,15-51,51 1",
                                 "fill 15,15-51,51 ink", "surface 20x20 18,18-48,48"}));
}

TEST_F(WindowPicture, a_list_has_an_edge_a_text_and_an_arrow) {
    ListBox list;
    list.Caption = "One && two";
    put(list, 0, 0, 60, 20);
    EXPECT_EQ(paint(1), (Lines{"begin 0,0-1000,1000 1", "begin 0,0-60,20 1", "fill 0,0-60,20 edge",
                               "fill 1,1-59,19 well", "text One && two 11 text 6,0-42,20 1",
                               "triangle 45,8 53,8 49,13 text_dim"}));
}

TEST_F(WindowPicture, a_line_of_text_has_a_ground_and_an_edge_above) {
    TextLine text;
    text.Caption = "Solved";
    put(text, 0, 34, 100, 16);
    EXPECT_EQ(paint(1),
              (Lines{"begin 0,0-1000,1000 1", "begin 0,34-100,50 1", "fill 0,34-100,50 chrome_lo",
                     "fill 0,34-100,35 edge", "text Solved 11 text 6,34-94,50 1"}));
}

TEST_F(WindowPicture, what_the_frame_shows_by_itself_is_not_painted) {
    ScrollBar bar;
    put(bar, 80, 0, 20, 50);
    EXPECT_EQ(paint(1), (Lines{"begin 0,0-1000,1000 1", "begin 80,0-100,50 1"}));
}

TEST_F(WindowPicture, a_line_goes_from_end_to_end) {
    Line line;
    Timer timer;
    put(line, 0, 0, 0, 0);
    put(timer, 0, 0, 10, 10);
    line.X1 = 1;
    line.Y1 = 2;
    line.X2 = 30;
    line.Y2 = 2;
    line.BorderColor = palette::kRed;
    EXPECT_EQ(paint(2),
              (Lines{"begin 0,0-1000,1000 1", "begin 0,0-200,100 1", "line 3,5 61,5 2 red"}));
}

TEST(ShownText, two_of_the_sign_stand_for_one) {
    EXPECT_EQ(shownText("a && b"), "a & b");
    EXPECT_EQ(shownText("&&&&"), "&&");
    EXPECT_EQ(shownText("&&&"), "&&");
    EXPECT_EQ(shownText("a & b"), "a & b");
    EXPECT_EQ(shownText(""), "");
}

}  // namespace

}  // namespace ombrelia
