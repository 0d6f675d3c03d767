// The folder that the documents' pictures go to, and what all of them are taken with.
#pragma once

#include <string>
#include <vector>

#include "platform/generator_random.h"
#include "screen_driver.h"

namespace ombrelia {

// The same landscapes in every run.
class SteadyRandom : public RandomSource {
  public:
    SteadyRandom();
    void seedFromClock() override;
    void draw(std::span<float> draws) override;

  private:
    GeneratorRandom generator_;
};

struct Album {
    ScreenDriver& driver;
    std::string folder;  // empty: nothing is kept
    std::string suffix;  // of every name; may be empty

    struct Spot {
        double x, y;  // pixels of MapView
    };
    using Gesture = std::vector<Spot>;

    // Saves what the screen shows of a window or a part.
    void add(const std::string& name, Control& part) const;
    void save(const std::string& name, const QImage& picture) const;

    // From the splash to the editor with the largest map.
    void openLargeMap() const;

    // Puts the pointer where nothing shows it.
    void stepAside() const;

    void setSlider(int slider, int value) const;
    void press(int button) const;  // a tool or an object, by its icon

    // A drag on the map from place to place.
    void drag(const Gesture& gesture, int button = 1) const;

    // Presses a wide button that works, and waits for the end of the work.
    void pressAndWait(int button) const;
};

// The landscape of the guide, a tool after the other, each with a picture.
void buildLandscape(const Album& album);

// Every window and every option frame.
void takeWindows(const Album& album);

// The pictures of the user's guide: the road of one landscape from nothing to its view in
// perspective; and the maps alone, what each tool does, the styles, the colour sets.
void takeRoad(const Album& album);
void takeMaps(const Album& album);

// What moves the view, the steps in which the map comes to the screen, the import's dialog.
void takeMotions(const Album& album);

}  // namespace ombrelia
