#include <gtest/gtest.h>

#include "platform/failure.h"
#include "platform/messages.h"

namespace ombrelia {

namespace {

TEST(Messages, every_failure_says_what_and_why) {
    EXPECT_STREQ(OverflowFailure(40000, 16).what(),
                 "This step could not be finished: the number 40000.000000 does not fit 16 bits. "
                 "The map is as it was left.");
    EXPECT_STREQ(MissingPartFailure("control", 3).what(),
                 "This step could not be finished: there is no control with the number 3.");
    EXPECT_STREQ(FileFailure("read", "a b.bmp", "No such thing").what(),
                 "The file \"a b.bmp\" could not be read: No such thing. The map is unharmed.");
    EXPECT_STREQ(SubscriptFailure(-1, 0, 257).what(),
                 "This step could not be finished: place -1 lies outside 0 to 257. The map is as "
                 "it was left.");
}

TEST(Messages, a_reader_may_have_worded_its_failure_itself) {
    EXPECT_STREQ(PictureFailure("The picture is gone.").what(), "The picture is gone.");
    EXPECT_EQ(messages::damagedPicture("too many colours"), "It is damaged (too many colours)");
}

TEST(Messages, the_dialogs_of_names_say_which_name) {
    EXPECT_EQ(messages::nothingOfThisName("a b.bmp"), "There is nothing of the name \"a b.bmp\".");
    EXPECT_EQ(messages::neverReplaced("a b.bmp"),
              "\"a b.bmp\" holds something already, and that is never replaced. Please choose "
              "another name.");
    EXPECT_EQ(messages::useEmptyFile("a b.bmp"),
              "\"a b.bmp\" is there already, and empty. Shall the map be saved in it?");
}

}  // namespace

}  // namespace ombrelia
