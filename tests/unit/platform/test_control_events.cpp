#include <gtest/gtest.h>
#include <map>
#include <string>

#include "platform/control_events.h"

namespace ombrelia {

namespace {

// One letter an event, in the order of the enumeration: d m u c 2 o p (mouse), w (wheel), k, l n x
// (life), t, r, e (paint), h s (bar), a v (value).
TEST(ControlEvents, every_kind_gets_its_own_and_no_other) {
    const std::map<ControlKind, std::string> wanted = {
        {ControlKind::Window, "dmuc2opwklnx.re...."},
        {ControlKind::Image, "dmuc2opw.........av"},
        {ControlKind::Label, "dmuc2opw..........."},
        {ControlKind::PictureBox, "dmuc2opwk.........."},
        {ControlKind::Line, "..................."},
        {ControlKind::ListBox, ".m.c.opwk.........."},
        {ControlKind::Timer, "............t......"},
        {ControlKind::TextLine, "..................."},
        {ControlKind::ScrollBar, "...............hs.."},
        {ControlKind::MenuItem, "...c..............."},
    };
    const std::string letters = "dmuc2opwklnxtrehsav";
    ASSERT_EQ(letters.size(), static_cast<std::size_t>(Event::Count));
    for (const auto& [kind, text] : wanted) {
        std::string found;
        for (int event = 0; event < static_cast<int>(Event::Count); ++event) {
            found += canGet(kind, static_cast<Event>(event))
                         ? letters[static_cast<std::size_t>(event)]
                         : '.';
        }
        EXPECT_EQ(found, text) << static_cast<int>(kind);
    }
}

}  // namespace

}  // namespace ombrelia
