#include <string>
#include <vector>

#include "editor_fixture.h"
#include "platform/window_life.h"

namespace ombrelia {

namespace {

std::vector<std::string> lifeEvents;

class WindowLife : public ProcessTest {
  protected:
    WindowLife() {
        lifeEvents.clear();
        window.Name = "Probe";
        window.Owner = &window;
        window.Design = [] { lifeEvents.push_back("design"); };
        window.On[static_cast<std::size_t>(Event::Load)] = [](EventArgs& args) {
            lifeEvents.push_back("load " + args.Source->Name);
        };
        window.On[static_cast<std::size_t>(Event::Unload)] = [](EventArgs& args) {
            lifeEvents.push_back(static_cast<Window*>(args.Source)->Loaded ? "unload" : "gone");
        };
    }

    Window window;
    using Log = std::vector<std::string>;
};

TEST_F(WindowLife, loading_designs_first_and_happens_once) {
    loadWindow(window);
    loadWindow(window);
    EXPECT_EQ(lifeEvents, (Log{"design", "load Probe"}));
    EXPECT_TRUE(window.Loaded);
    EXPECT_FALSE(window.Visible);
    EXPECT_TRUE(platform.Calls.empty());
}

TEST_F(WindowLife, showing_loads) {
    showWindow(window);
    EXPECT_EQ(lifeEvents, (Log{"design", "load Probe"}));
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(platform.Calls, Log{"show Probe"});
    showWindow(window);
    EXPECT_EQ(lifeEvents.size(), 2U);
}

TEST_F(WindowLife, hiding_keeps_it_loaded) {
    hideWindow(window);
    EXPECT_TRUE(platform.Calls.empty());
    showWindow(window);
    hideWindow(window);
    hideWindow(window);
    EXPECT_EQ(platform.Calls, (Log{"show Probe", "hide Probe"}));
    EXPECT_TRUE(window.Loaded);
    EXPECT_FALSE(window.Visible);
}

TEST_F(WindowLife, unloading_tells_the_window_first_and_happens_once) {
    unloadWindow(window);
    EXPECT_TRUE(lifeEvents.empty());
    showWindow(window);
    unloadWindow(window);
    unloadWindow(window);
    EXPECT_EQ(lifeEvents, (Log{"design", "load Probe", "unload"}));
    EXPECT_EQ(platform.Calls, (Log{"show Probe", "unload Probe"}));
    EXPECT_FALSE(window.Loaded);
    EXPECT_FALSE(window.Visible);
}

TEST_F(WindowLife, showing_brings_a_minimized_window_back) {
    showWindow(window);
    minimizeWindow(window);
    EXPECT_TRUE(window.Minimized);
    showWindow(window);
    EXPECT_FALSE(window.Minimized);
    EXPECT_EQ(platform.Calls, (Log{"show Probe", "minimize Probe", "show Probe"}));
}

TEST_F(WindowLife, the_end_of_the_process_is_the_end_of_the_handler) {
    bool isBehindReached = false;
    EXPECT_THROW(
        {
            endProcess();
            isBehindReached = true;
        },
        ProcessEnd);
    EXPECT_FALSE(isBehindReached);
    EXPECT_TRUE(platform.HasEnded);
    EXPECT_EQ(platform.Calls, Log{"end"});
}

}  // namespace

}  // namespace ombrelia
