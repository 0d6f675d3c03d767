#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "app/bindings.h"
#include "core/objects.h"
#include "core/windows/form1.h"
#include "editor_fixture.h"
#include "platform/control_events.h"
#include "register/reset_process.h"
#include "register/value_row.h"
#include "terrain/fractal/fractal_state.h"

namespace ombrelia {

namespace {

// Visits each element of a row.
template <typename Visit>
void forEachElement(const ValueRow& row, Visit visit) {
    std::vector<int> place;
    for (int n = 0; n < row.subscripts; ++n) {
        place.push_back(row.ranges[static_cast<std::size_t>(n)].low);
    }
    while (true) {
        visit(row.at(place));
        int n = row.subscripts - 1;
        while (n >= 0 &&
               place[static_cast<std::size_t>(n)] == row.ranges[static_cast<std::size_t>(n)].high) {
            place[static_cast<std::size_t>(n)] = row.ranges[static_cast<std::size_t>(n)].low;
            --n;
        }
        if (n < 0) {
            return;
        }
        ++place[static_cast<std::size_t>(n)];
    }
}

std::vector<std::string> allTexts() {
    std::vector<std::string> texts;
    for (const ValueRow& row : allValues()) {
        forEachElement(row, [&](void* element) { texts.push_back(textOf(row, element)); });
    }
    return texts;
}

// Looks at the single values before the first test, as the process begins: a test's own process is
// a reset one.
class FirstLook : public testing::Environment {
  public:
    static const std::vector<std::string>& found() { return names(); }
    void SetUp() override {
        for (const ValueRow& row : allValues()) {
            const std::string text = row.subscripts == 0 ? textOf(row, row.first) : "";
            if (!text.empty() && text != "0") {
                names().push_back(std::string(row.name) + " = " + text);
            }
        }
    }

  private:
    static std::vector<std::string>& names() {
        static std::vector<std::string> list;
        return list;
    }
};
testing::Environment* const kFirstLook = testing::AddGlobalTestEnvironment(new FirstLook);

// Every field of a part as one text.
std::string fieldsOf(const Control& control) {
    std::ostringstream text;
    text << control.Name << '(' << control.Index << ')' << std::boolalpha;
    text << ' ' << control.Left << ' ' << control.Top << ' ' << control.Width << ' '
         << control.Height << ' ' << control.Visible << ' ' << control.Enabled << " '"
         << control.Caption << "' " << static_cast<int>(control.Face.picture) << '/'
         << control.Face.face;
    if (control.Kind == ControlKind::Label) {
        text << ' ' << static_cast<const Label&>(control).ForeColor;
    }
    if (control.Kind == ControlKind::Line) {
        const auto& line = static_cast<const Line&>(control);
        text << ' ' << line.X1 << ' ' << line.Y1 << ' ' << line.X2 << ' ' << line.Y2 << ' '
             << line.BorderWidth << ' ' << line.BorderColor;
    }
    if (control.Kind == ControlKind::ListBox) {
        const auto& list = static_cast<const ListBox&>(control);
        text << ' ' << list.ListIndex << " of " << list.List.size();
    }
    for (const Handler handler : control.On) {
        text << (handler == nullptr ? '.' : '*');
    }
    return text.str();
}

std::vector<std::string> allFields() {
    std::vector<std::string> fields;
    for (const Window* window : allWindows()) {
        fields.push_back(fieldsOf(*window) + (window->Loaded ? " loaded" : ""));
        for (const Control* control : window->Controls) {
            fields.push_back(fieldsOf(*control));
        }
    }
    return fields;
}

class Bindings : public EditorTest {};

TEST_F(Bindings, a_reset_after_every_value_was_changed_is_a_fresh_start) {
    resetProcess();
    const auto fresh = allTexts();
    for (const ValueRow& row : allValues()) {
        forEachElement(row, [&](void* element) {
            ASSERT_NE(element, nullptr) << row.name;
            ASSERT_TRUE(setFromText(row, element, "77")) << row.name;
        });
    }
    const auto dirty = allTexts();
    for (std::size_t n = 0; n < dirty.size(); ++n) {
        ASSERT_EQ(dirty[n], "77");
    }
    resetProcess();
    EXPECT_TRUE(allTexts() == fresh);
}

TEST_F(Bindings, all_values_begin_as_0_or_empty) {
    resetProcess();
    for (const std::string& text : allTexts()) {
        ASSERT_TRUE(text == "0" || text.empty()) << text;
    }
}

TEST_F(Bindings, a_reset_gives_every_part_its_designed_state) {
    resetProcess();
    const auto fresh = allFields();
    openEditor(257);
    for (Window* window : allWindows()) {
        window->Visible = true;
        window->Face = {};
        for (Control* control : window->Controls) {
            control->Left += 3;
            control->Width += 4;
            control->Visible = !control->Visible;
            control->Enabled = !control->Enabled;
            control->Caption += "x";
            control->Face = {Picture::Stand, 2};
            if (control->Kind == ControlKind::Label) {
                static_cast<Label*>(control)->ForeColor = 12345;
            }
            if (control->Kind == ControlKind::Line) {
                static_cast<Line*>(control)->X2 = 99;
                static_cast<Line*>(control)->BorderWidth = 9;
                static_cast<Line*>(control)->BorderColor = 12345;
            }
        }
    }
    resetProcess();
    const auto again = allFields();
    ASSERT_EQ(again.size(), fresh.size());
    for (std::size_t n = 0; n < fresh.size(); ++n) {
        EXPECT_EQ(again[n], fresh[n]);
    }
}

TEST_F(Bindings, no_value_stands_in_two_rows) {
    std::set<const void*> elements;
    for (const ValueRow& row : allValues()) {
        bool isNew = true;
        forEachElement(row,
                       [&](void* element) { isNew = elements.insert(element).second && isNew; });
        EXPECT_TRUE(isNew) << row.name << ' ' << row.field;
    }
}

TEST_F(Bindings, a_process_begins_with_every_value_at_0_or_empty) {
    ASSERT_NE(kFirstLook, nullptr);
    EXPECT_EQ(FirstLook::found(), std::vector<std::string>{});
}

TEST_F(Bindings, names_of_values_are_unique) {
    std::set<std::string> names;
    for (const ValueRow& row : allValues()) {
        std::string name(row.name);
        name.append(".").append(row.field);
        EXPECT_TRUE(names.insert(name).second) << name;
    }
}

// Calls visit for each event that a part of a window, or the window itself, has a handler for.
template <typename Visit>
void forEachBound(Visit visit) {
    for (const Window* window : allWindows()) {
        std::vector<const Control*> controls(window->Controls.begin(), window->Controls.end());
        controls.push_back(window);
        for (const Control* control : controls) {
            for (int event = 0; event < static_cast<int>(Event::Count); ++event) {
                if (control->handlerOf(static_cast<Event>(event)) != nullptr) {
                    visit(*control, static_cast<Event>(event));
                }
            }
        }
    }
}

TEST_F(Bindings, every_bound_event_is_one_that_the_part_can_get) {
    int count = 0;
    forEachBound([&](const Control& control, Event event) {
        ++count;
        const std::string words = control.Owner->Name + "." + control.Name + ", event " +
                                  std::to_string(static_cast<int>(event));
        EXPECT_TRUE(canGet(control.Kind, event)) << words;
        if (event == Event::AskValue || event == Event::SetValue) {
            EXPECT_EQ(control.Role, AccessRole::Slider) << words;
        }
    });
    EXPECT_GT(count, 0);
}

TEST_F(Bindings, one_part_of_a_window_at_most_takes_its_keys) {
    for (const Window* window : allWindows()) {
        const auto& parts = window->Controls;
        EXPECT_LE(std::count_if(parts.begin(), parts.end(),
                                [](const Control* part) {
                                    return part->handlerOf(Event::KeyDown) != nullptr;
                                }),
                  1)
            << window->Name;
    }
}

TEST_F(Bindings, every_control_that_a_user_can_press_does_something) {
    for (const Window* window : allWindows()) {
        for (const Control* control : window->Controls) {
            if (control->Name != "NTool" && control->Name != "LTool") {
                continue;
            }
            EXPECT_NE(control->handlerOf(Event::MouseDown), nullptr) << fieldsOf(*control);
            EXPECT_NE(control->handlerOf(Event::MouseMove), nullptr) << fieldsOf(*control);
            EXPECT_NE(control->handlerOf(Event::MouseUp), nullptr) << fieldsOf(*control);
        }
    }
}

TEST_F(Bindings, controls_know_their_window_and_stand_behind_what_contains_them) {
    for (Window* window : allWindows()) {
        std::set<const Control*> before = {window};
        for (const Control* control : window->Controls) {
            EXPECT_EQ(control->Owner, window);
            EXPECT_TRUE(before.contains(control->Parent)) << fieldsOf(*control);
            EXPECT_TRUE(before.insert(control).second) << fieldsOf(*control);
        }
    }
}

}  // namespace

}  // namespace ombrelia
