// The pictures of the user's guide.
#include <algorithm>
#include <string>
#include <vector>

#include "album.h"
#include "core/color_display.h"
#include "core/color_sets.h"
#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "platform/dispatch.h"
#include "stories.h"
#include "views/map2d/update_map_view.h"

namespace ombrelia {

namespace {

void showMap(const Album& album, const HeightGrid& heights) {
    album.driver.inProgram([&] {
        HeightMap = heights;
        runHandler([] {
            MarkMapForRepaint();
            UpdateMapView(1);
        });
    });
    album.driver.rest();
}

void growGround(const Album& album) {
    album.press(button::kFractal);
    album.setSlider(9, 1);
    album.setSlider(10, 38);
    album.setSlider(14, 3);
    album.pressAndWait(button::kGenerate);
}

void buildMountain(const Album& album, int height, int top, int steepness,
                   const Album::Spot& spot) {
    album.press(button::kMountain);
    album.setSlider(6, height);
    album.setSlider(7, top);
    album.press(steepness);
    album.drag({spot});
}

void carveCanyon(const Album& album, const Album::Gesture& way) {
    album.press(button::kCanyon);
    album.setSlider(12, 3);
    album.setSlider(13, 8);
    album.press(button::kCanyonSmooth);
    album.driver.inProgram([] { OptionStates(button::kRiverInMiddle).State = kOn; });
    album.drag(way);
}

// Turned a little and a little nearer.
void lookFromAside(const Album& album) {
    ScreenDriver& driver = album.driver;
    album.press(button::k3DMode);
    driver.moveTo(Form1.MapView, 80, 150);
    driver.press();
    driver.moveTo(Form1.MapView, 100, 160);
    driver.moveTo(Form1.MapView, 118, 170);
    driver.release();
    album.press(button::kZoom3D);
    album.drag({{100, 100}, {100, 124}});
    album.stepAside();
}

void drawPolygons(const Album& album) {
    album.setSlider(4, 1);
    album.pressAndWait(button::kDraw3D);
}

void takeStyles(const Album& album) {
    lookFromAside(album);
    album.add("style_grid", Form1.MapView);
    drawPolygons(album);
    album.add("style_polygons", Form1.MapView);
    album.setSlider(4, 3);
    album.press(button::kStyleLine);
    album.pressAndWait(button::kDraw3D);
    album.add("style_lines", Form1.MapView);
    album.setSlider(4, 2);
    album.press(button::kStyleDot);
    album.pressAndWait(button::kDraw3D);
    album.add("style_dots", Form1.MapView);
    album.press(button::k2DMode);
}

void takeColorSets(const Album& album, const HeightGrid& landscape) {
    std::vector<std::string> names;
    album.driver.inProgram([&] { names = Form1.Combo1.List; });
    for (const std::string& name : names) {
        if (name == "Current Colors") {
            continue;
        }
        album.driver.inProgram([&] {
            LoadColorSet(name);
            PaintPicker();
        });
        showMap(album, landscape);
        std::string file = "colors_" + name;
        std::replace(file.begin(), file.end(), ' ', '_');
        album.add(file, Form1.MapView);
    }
    album.driver.inProgram([] {
        LoadColorSet("Default");
        PaintPicker();
    });
}

// What one gesture with a tool does to the grown ground.
struct ToolPicture {
    const char* name;
    int tool;
    int slider, value;
    Album::Gesture gesture;
};

const Album::Gesture kThereAndBack = {{50, 80},   {100, 120}, {150, 110}, {190, 150}, {150, 110},
                                      {100, 120}, {50, 80},   {100, 120}, {150, 110}, {190, 150}};

void takeTools(const Album& album, const HeightGrid& ground) {
    const ToolPicture pictures[] = {
        {"pencil", button::kPencil, 1, 12, {{40, 60}, {90, 40}, {120, 90}, {80, 150}, {150, 200}}},
        {"line", button::kLine, 2, 8, {{40, 200}, {200, 60}}},
        {"raise", button::kRaise, 3, 20, kThereAndBack},
        {"lower", button::kLower, 11, 20, kThereAndBack},
        {"mountain", button::kMountain, 6, 230, {{110, 120}}},
        {"canyon", button::kCanyon, 13, 10, {{40, 30}, {100, 90}, {90, 150}, {150, 220}}},
        {"plain", button::kPlain, 8, 30, {{104, 130}}},
    };
    showMap(album, ground);
    album.stepAside();
    album.add("tool_before", Form1.MapView);
    for (const ToolPicture& row : pictures) {
        showMap(album, ground);
        album.press(row.tool);
        album.setSlider(row.slider, row.value);
        album.driver.inProgram([] { DrawHeight = 160; });
        album.drag(row.gesture);
        album.stepAside();
        album.add(std::string("tool_") + row.name, Form1.MapView);
    }
    album.press(button::kFractal);
    album.setSlider(14, 6);
    album.setSlider(10, 90);
    album.pressAndWait(button::kGenerate);
    album.add("tool_fractal", Form1.MapView);
}

}  // namespace

void buildLandscape(const Album& album) {
    album.driver.waitForWindow(frmSplash);
    album.driver.click(frmSplash, 60, 60);
    album.openLargeMap();
    album.add("road_1_empty", Form1);
    growGround(album);
    album.add("road_2_grown", Form1);
    buildMountain(album, 255, 3, button::kMountainSmooth, {70, 62});
    buildMountain(album, 236, 2, button::kMountainSmooth, {192, 98});
    buildMountain(album, 205, 8, button::kMountainSlightlySteep, {60, 136});
    album.stepAside();
    album.add("road_3_mountains", Form1);
    carveCanyon(album, {{134, 12}, {146, 60}, {122, 112}, {112, 160}, {150, 196}, {246, 222}});
    album.stepAside();
    album.add("road_4_canyon", Form1);
    album.press(button::kPlain);
    album.setSlider(8, 24);
    album.drag({{70, 208}});
    album.driver.moveTo(Form1.MapView, 96, 150);
    album.add("road_5_plain", Form1);
}

void takeRoad(const Album& album) {
    buildLandscape(album);
    lookFromAside(album);
    drawPolygons(album);
    album.add("road_6_perspective", Form1);
}

void takeMaps(const Album& album) {
    HeightGrid ground;
    HeightGrid landscape;
    buildLandscape({album.driver, "", ""});
    album.driver.inProgram([&] { landscape = HeightMap; });
    takeStyles(album);
    takeColorSets(album, landscape);
    growGround(album);
    album.driver.inProgram([&] { ground = HeightMap; });
    takeTools(album, ground);
}

}  // namespace ombrelia
