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

}  // namespace

}  // namespace ombrelia
