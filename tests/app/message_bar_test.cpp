#include "app/message_bar.h"

#include <gtest/gtest.h>

namespace swiftroll {
namespace {

TEST(MessageBar, NoticesOfSeveralOwnersDoNotLoseEachOther) {
    MessageBar bar;
    const int reading = 0, search = 0;
    const auto seen = [&] { return bar.Seen() == nullptr ? Text("-") : bar.Seen()->text; };
    bar.Show(&reading, {"37 dates"});
    bar.Show(&search, {"10 links", {{"Stop", [&] { bar.Remove(&search); }}}});
    bar.Show(&search, {"20 links", {{"Stop", [&] { bar.Remove(&search); }}}});
    EXPECT_EQ(seen(), "20 links");
    bar.Show(&reading, {"38 dates"});
    EXPECT_EQ(seen(), "20 links") << "what is covered stays so";
    bar.Press(1);
    bar.Press(0);
    EXPECT_EQ(seen(), "38 dates") << "a button may remove its own notice";
    bar.Remove(&search);
    bar.Close();
    EXPECT_EQ(seen(), "-");
    EXPECT_FALSE(bar.Has(&reading));
    const auto changes = bar.Changes();
    bar.Close();
    bar.Press(0);
    bar.Remove(&reading);
    EXPECT_EQ(bar.Changes(), changes);
}

}  // namespace
}  // namespace swiftroll
