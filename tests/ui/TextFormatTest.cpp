#include "ui/TextFormat.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrune::ui {

namespace {

std::string filled(std::string_view text, const std::vector<std::string>& arguments) {
    return TextFormat(arguments).fill(text);
}

} // namespace

TEST(TextFormat, PutsArgumentsInTheirOrder) {
    EXPECT_EQ(filled("Version %@ (%@)", {"1.2", "57"}), "Version 1.2 (57)");
    EXPECT_EQ(filled("%@%@", {"a", "b"}), "ab");
}

TEST(TextFormat, PutsArgumentsAtTheirPositions) {
    EXPECT_EQ(filled("%2$@ of %1$@", {"a", "b"}), "b of a");
    EXPECT_EQ(filled("%1$@, %1$@", {"a"}), "a, a");
    EXPECT_EQ(filled("%12$@", std::vector<std::string>(12, "x")), "x");
}

TEST(TextFormat, LeavesAPlaceholderWithoutAnArgument) {
    EXPECT_EQ(filled("%@ %@", {"a"}), "a %@");
    EXPECT_EQ(filled("%2$@", {"a"}), "%2$@");
    EXPECT_EQ(filled("%0$@", {"a"}), "%0$@");
}

TEST(TextFormat, LeavesAPercentSignThatIsNoPlaceholder) {
    EXPECT_EQ(filled("100% of %@", {"a"}), "100% of a");
    EXPECT_EQ(filled("%@ 100%", {"a"}), "a 100%");
    EXPECT_EQ(filled("%1 %1$ %1@ %d", {"a"}), "%1 %1$ %1@ %d");
}

TEST(TextFormat, TakesTwoPercentSignsForOne) { EXPECT_EQ(filled("%@ 100%%@", {"a"}), "a 100%@"); }

TEST(TextFormat, LeavesATextWithoutArgumentsAsItIs) { EXPECT_EQ(filled("100%% of %@", {}), "100%% of %@"); }

TEST(TextFormat, DoesNotFillInWhatAnArgumentSays) { EXPECT_EQ(filled("%@ %@", {"%@", "%1$@"}), "%@ %1$@"); }

TEST(TextFormat, GoesOnWithTheNextArgumentInTheNextText) {
    const std::vector<std::string> arguments{"a", "b"};
    TextFormat format(arguments);
    EXPECT_EQ(format.fill("%@ and"), "a and");
    EXPECT_EQ(format.fill("%@"), "b");
}

} // namespace kestrune::ui
