// The folder that the documents' pictures go to, and what all of them are taken with.
#pragma once

#include <string>

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

    // Saves what the screen shows of a window or a part.
    void add(const std::string& name, Control& part) const;
    void save(const std::string& name, const QImage& picture) const;

    // From the splash to the editor with the largest map.
    void openLargeMap() const;

    // Puts the pointer where nothing shows it.
    void stepAside() const;

    void setSlider(int slider, int value) const;
    void press(int button) const;  // a tool or an object, by its icon

    // Presses a wide button that works, and waits for the end of the work.
    void pressAndWait(int button) const;
};

// Every window and every option frame.
void takeWindows(const Album& album);

// The pictures of the user's guide: the road of one landscape from nothing to its view in
// perspective; and the maps alone, what each tool does, the styles, the colour sets.
void takeRoad(const Album& album);
void takeMaps(const Album& album);

}  // namespace ombrelia
