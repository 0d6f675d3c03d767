#include <gtest/gtest.h>

#include "platform/exposure.h"

namespace ombrelia {

namespace {

int paints = 0;

TEST(Exposures, the_first_request_is_an_exposure) {
    Exposures exposures;
    EXPECT_TRUE(exposures.isUncovering(400, 300, 0));
}

TEST(Exposures, an_uncovered_window_has_the_size_of_before) {
    Exposures exposures;
    exposures.isUncovering(400, 300, 0);
    EXPECT_TRUE(exposures.isUncovering(400, 300, 1));
    EXPECT_TRUE(exposures.isUncovering(400, 300, 5000));
}

TEST(Exposures, growing_and_shrinking_are_no_exposures) {
    Exposures exposures;
    exposures.isUncovering(400, 300, 0);
    EXPECT_FALSE(exposures.isUncovering(401, 300, 1000));
    EXPECT_FALSE(exposures.isUncovering(401, 299, 2000));
    EXPECT_FALSE(exposures.isUncovering(401, 299, 2010)) << "a second request of the same change";
    EXPECT_TRUE(exposures.isUncovering(401, 299, 3000));
}

TEST(Exposures, a_window_that_is_not_seen_is_asked_for_nothing) {
    Window window;
    window.Owner = &window;
    window.On[static_cast<std::size_t>(Event::Paint)] = [](EventArgs&) { ++paints; };
    paints = 0;
    deliverExposure(window);
    EXPECT_EQ(paints, 0);
    window.Loaded = true;
    window.Visible = true;
    deliverExposure(window);
    EXPECT_EQ(paints, 1);
    window.Minimized = true;
    deliverExposure(window);
    EXPECT_EQ(paints, 1);
}

}  // namespace

}  // namespace ombrelia
