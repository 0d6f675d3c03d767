#include "album.h"

#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/editor_state.h"
#include "core/objects.h"
#include "core/progress.h"
#include "panels/sliders.h"
#include "platform/dispatch.h"
#include "stories.h"

namespace ombrelia {

namespace {

constexpr std::uint64_t kSeed = 11;

}  // namespace

SteadyRandom::SteadyRandom() {
    generator_.seed(kSeed);
}

void SteadyRandom::seedFromClock() {
    generator_.seed(kSeed);
}

void SteadyRandom::draw(std::span<float> draws) {
    generator_.draw(draws);
}

void Album::add(const std::string& name, Control& part) const {
    save(name, driver.pictureOf(part));
}

void Album::save(const std::string& name, const QImage& picture) const {
    if (folder.empty()) {
        return;
    }
    const std::string end = suffix.empty() ? "" : "_" + suffix;
    const std::string path = folder + "/" + name + end + ".png";
    picture.save(QString::fromStdString(path));
    std::printf("%s\n", path.c_str());
}

void Album::openLargeMap() const {
    driver.waitForWindow(SizeSelect);
    driver.click(SizeSelect.LTool(button::kSizeLarge));
    driver.waitForWindow(Form1);
}

void Album::stepAside() const {
    driver.moveTo(Form1, 7, 350);  // a step, so that the window looks at its parts again
    driver.moveTo(Form1, 5, 350);
    driver.rest();
}

void Album::setSlider(int slider, int value) const {
    driver.inProgram([&] {
        SliderValues(slider).Value = static_cast<std::int16_t>(value);
        PlaceSlider(slider);
        showReadout(slider);
    });
}

// In small steps, as a hand makes it.
void Album::drag(const Gesture& gesture, int button) const {
    constexpr double kStep = 12;
    driver.moveTo(Form1.MapView, gesture.front().x, gesture.front().y);
    driver.press(button);
    for (std::size_t i = 1; i < gesture.size(); ++i) {
        const Spot& from = gesture[i - 1];
        const Spot& to = gesture[i];
        const int steps =
            static_cast<int>(std::max(1.0, std::hypot(to.x - from.x, to.y - from.y) / kStep));
        for (int k = 1; k <= steps; ++k) {
            driver.moveTo(Form1.MapView, from.x + (to.x - from.x) * k / steps,
                          from.y + (to.y - from.y) * k / steps);
        }
    }
    driver.release(button);
    driver.waitFor([] { return MouseState == kGestureNone && !isHandling(); });
    driver.rest(200);
}

void Album::press(int button) const {
    driver.click(Form1.NTool(button + kOverlayOffset));
}

void Album::pressAndWait(int button) const {
    driver.inProgram([] { ProgressState = 0; });
    pressWide(driver, button);
    driver.waitFor([] { return ProgressState == 2 && Form1.Picture1.Visible && !isHandling(); });
    stepAside();
}

}  // namespace ombrelia
