#include <algorithm>
#include <cmath>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "pixel_at.h"
#include "platform/failure.h"
#include "platform/plain_copy.h"
#include "views/map2d/map_transform.h"

namespace ombrelia {

namespace {

constexpr Color kMarker = rgb(9, 8, 7);

void fillTelling(Surface& surface) {
    for (int y = 0; y < surface.height(); ++y) {
        for (int x = 0; x < surface.width(); ++x) {
            surface.setPixel(
                x, y, rgb(static_cast<unsigned>(x % 256), static_cast<unsigned>(y % 256), 200));
        }
    }
}

void fillWith(Surface& surface, Color color) {
    for (int y = 0; y < surface.height(); ++y) {
        for (int x = 0; x < surface.width(); ++x) {
            surface.setPixel(x, y, color);
        }
    }
}

int differences(const Surface& a, const Surface& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += pixelAt(a, x, y) != pixelAt(b, x, y) ? 1 : 0;
        }
    }
    return count;
}

class MapTransform : public EditorTest {
  protected:
    MapTransform() {
        fillTelling(Form1.Mapview2.Canvas);
        fillWith(view(), kMarker);
    }

    static Surface& view() { return Form1.MapView.Canvas; }

    static void setView(int zoom, int panX, int panY) {
        MapZoom = static_cast<std::int16_t>(zoom);
        MapPanX = static_cast<std::int16_t>(panX);
        MapPanY = static_cast<std::int16_t>(panY);
    }

    static void expectScale(float left, float top, float side) {
        EXPECT_EQ(view().ScaleLeft, left);
        EXPECT_EQ(view().ScaleTop, top);
        EXPECT_EQ(view().ScaleWidth, side);
        EXPECT_EQ(view().ScaleHeight, side);
    }
};

TEST_F(MapTransform, the_whole_map_is_stretched_over_the_view_without_zoom) {
    for (const int mapSize : {65, 129, 193, 257}) {
        MapSize = static_cast<std::int16_t>(mapSize);
        ApplyMapTransform();
        expectScale(0, 0, 257);
        Surface plain;
        plain.setSize(257, 257);
        const double side = mapSize;
        plainCopy(plain, Form1.Mapview2.Canvas, {0, 0, 257, 257}, {0, 0, side, side});
        EXPECT_EQ(differences(view(), plain), 0) << mapSize;
    }
    EXPECT_EQ(pixelAt(view(), 256, 0), pixelAt(Form1.Mapview2.Canvas, 256, 0));
}

TEST_F(MapTransform, zoom_and_pan_are_cut_back) {
    setView(5, 0, 0);
    ApplyMapTransform();
    EXPECT_EQ(MapZoom, 0);
    setView(-346, 0, 0);
    ApplyMapTransform();
    EXPECT_EQ(MapZoom, -345);
    expectScale(-345, -345, 947);
    for (const int pan : {1000, 101}) {
        setView(-100, pan, pan);
        ApplyMapTransform();
        EXPECT_EQ(MapPanX, 100);
        EXPECT_EQ(MapPanY, 100);
        expectScale(0, 0, 457);
    }
    setView(-100, -1000, -101);
    ApplyMapTransform();
    EXPECT_EQ(MapPanX, -100);
    EXPECT_EQ(MapPanY, -100);
    expectScale(-200, -200, 457);
    setView(-100, 99, -100);
    ApplyMapTransform();
    EXPECT_EQ(MapPanX, 99);
    EXPECT_EQ(MapPanY, -100);
}

TEST_F(MapTransform, both_copies_are_made_under_zoom) {
    setView(-100, 0, 0);
    ApplyMapTransform();
    const Surface& source = Form1.Mapview2.Canvas;
    // Old scale corner 0: the first copy begins at pixel 100 * 257 / 457 = 56.2 and holds the
    // source's first two pixels alone.
    EXPECT_EQ(pixelAt(view(), 55, 60), static_cast<std::int32_t>(kMarker));
    EXPECT_EQ(pixelAt(view(), 60, 60), pixelAt(source, 0, 0));
    EXPECT_EQ(pixelAt(view(), 60, 190), pixelAt(source, 0, 1));
    // The second begins at 200 * 257 / 457 = 112.5: a part of the map at an offset.
    EXPECT_EQ(pixelAt(view(), 113, 113), pixelAt(source, 14, 14));
    EXPECT_EQ(pixelAt(view(), 256, 256), pixelAt(source, 50, 50));
}

// The same formulas once more, on numbers of their own.
struct PlainView {
    int zoom = 0, panX = 0, panY = 0, mapSize = 65;
    double left = 0, top = 0, side = 257;

    static int clamped(int pan, int zoom) { return std::clamp(pan, zoom, -zoom); }

    void clampPans() {
        panX = clamped(panX, zoom);
        panY = clamped(panY, zoom);
    }

    void copy(Surface& target, const Surface& source, double x, double y, double fromX,
              double fromY, double fromWidth, double fromHeight) const {
        target.ScaleLeft = static_cast<float>(left);
        target.ScaleTop = static_cast<float>(top);
        target.ScaleWidth = static_cast<float>(side);
        target.ScaleHeight = static_cast<float>(side);
        plainCopy(target, source, {x, y, 257, 257}, {fromX, fromY, fromWidth, fromHeight});
    }

    void transform(Surface& target, const Surface& source) {
        zoom = std::clamp(zoom, -345, 0);
        side = 257 - 2 * zoom;
        clampPans();
        const double p = panX + zoom;
        const double q = panY + zoom;
        const double dx = (-2 * p) / mapSize + 257;
        const double dy = (-2 * q) / mapSize + 257;
        copy(target, source, -p, -q, -p / dx, -q / dy, 257 / dx, 257 / dy);
        left = p;
        top = q;
        const auto s = static_cast<float>(side) / static_cast<float>(mapSize);
        copy(target, source, -p, -q, static_cast<float>(-p) / s, static_cast<float>(-q) / s,
             257.0F / s, 257.0F / s);
    }
};

TEST_F(MapTransform, agrees_with_a_plain_second_way_on_random_views) {
    PlainDraws draw(17);
    const auto whole = [&draw](int low, int high) {
        return low + static_cast<int>(std::floor(draw() * static_cast<float>(high - low + 1)));
    };
    for (int round = 0; round < 120; ++round) {
        SCOPED_TRACE(round);
        PlainView plain;
        const int sizes[] = {65, 129, 193, 257};
        plain.mapSize = sizes[round % 4];
        MapSize = static_cast<std::int16_t>(plain.mapSize);
        plain.left = view().ScaleLeft;
        plain.top = view().ScaleTop;
        plain.zoom = whole(-400, 10);
        plain.panX = whole(-400, 400);
        plain.panY = whole(-400, 400);
        setView(plain.zoom, plain.panX, plain.panY);
        Surface expected = view();
        plain.transform(expected, Form1.Mapview2.Canvas);
        ApplyMapTransform();
        EXPECT_EQ(MapZoom, plain.zoom);
        EXPECT_EQ(MapPanX, plain.panX);
        EXPECT_EQ(MapPanY, plain.panY);
        expectScale(static_cast<float>(plain.left), static_cast<float>(plain.top),
                    static_cast<float>(plain.side));
        EXPECT_EQ(differences(view(), expected), 0);
    }
}

TEST_F(MapTransform, panning_moves_the_scale_and_copies_nothing) {
    setView(-50, 0, 0);
    ApplyMapTransform();
    const auto revision = view().revision();
    setView(-50, 20, -80);
    ApplyMapPan();
    EXPECT_EQ(MapPanX, 20);
    EXPECT_EQ(MapPanY, -50);
    expectScale(-30, -100, 357);
    EXPECT_EQ(view().revision(), revision);
}

TEST_F(MapTransform, a_pan_drag_begins_with_the_whole_map) {
    setView(-50, 10, 20);
    ApplyMapTransform();
    Surface expected = view();
    plainCopy(expected, Form1.Mapview2.Canvas, {0, 0, 357, 357}, {0, 0, 65, 65});
    beginMapPan();
    EXPECT_EQ(differences(view(), expected), 0);
}

TEST_F(MapTransform, a_scale_that_begins_below_the_map_is_not_copied_to) {
    view().ScaleTop = 5;
    setView(-10, 0, 0);
    ApplyMapTransform();
    Surface expected;
    expected.setSize(257, 257);
    fillWith(expected, kMarker);
    expected.ScaleLeft = -10;
    expected.ScaleTop = -10;
    expected.ScaleWidth = 277;
    expected.ScaleHeight = 277;
    const double s = 277.0F / 65.0F;
    plainCopy(expected, Form1.Mapview2.Canvas, {10, 10, 257, 257},
              {10.0F / static_cast<float>(s), 10.0F / static_cast<float>(s),
               257.0F / static_cast<float>(s), 257.0F / static_cast<float>(s)});
    EXPECT_EQ(differences(view(), expected), 0);
}

TEST_F(MapTransform, cells_are_counted_in_single_precision) {
    setView(-45, 0, 0);
    ApplyMapTransform();
    const float pitch = 347.0F / 65.0F;
    for (const float u : {0.0F, 1.0F, 100.7F, -3.25F, 346.99F}) {
        EXPECT_EQ(cellX(u), u / pitch);
        EXPECT_EQ(cellY(u), u / pitch);
    }
}

}  // namespace

}  // namespace ombrelia
