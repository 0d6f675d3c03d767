#include <gtest/gtest.h>

#include "core/objects.h"
#include "editor_fixture.h"
#include "files/save_command.h"
#include "platform/dispatch.h"
#include "temp_folder.h"

namespace ombrelia {

namespace {

class SaveTest : public ProcessTest {
  protected:
    void save(const std::string& answer) {
        platform.SaveAnswers.push_back(answer);
        runHandler(SaveCommand);
    }

    TempFolder folder;
};

TEST_F(SaveTest, the_dialog_has_its_title_and_filter_and_cancel_writes_nothing) {
    save("");
    EXPECT_EQ(platform.Calls, (std::vector<std::string>{"save Save Terrain | Terrain Files "
                                                        "(*.bmp)|*.bmp|All Files (*.*)|*.*"}));
    EXPECT_TRUE(folder.names().empty());
    EXPECT_TRUE(platform.Failures.empty());
}

TEST_F(SaveTest, the_present_size_is_written_under_the_name_that_is_given) {
    MapSize = 65;
    save(folder / "a.bmp");
    MapSize = 129;
    save(folder / "no suffix");
    EXPECT_EQ(contentOf(folder / "a.bmp").size(), 5498U);
    EXPECT_EQ(contentOf(folder / "no suffix").size(), 18106U);
    EXPECT_EQ(folder.names().size(), 2U);
}

}  // namespace

}  // namespace ombrelia
