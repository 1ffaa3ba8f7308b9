#include "ui/SystemColor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace kestrune::ui {

namespace {

// The names of a colour that came with macOS 14; the program runs on macOS 13.
bool isOfNewerSystems(std::string_view name) { return name.starts_with("qu") && name.ends_with("FillColor"); }

} // namespace

TEST(SystemColors, AreInTheOrderOfTheEnumerators) {
    EXPECT_EQ(systemColor(Color::primary).names.front(), "labelColor");
    EXPECT_EQ(systemColor(Color::secondary).names.front(), "secondaryLabelColor");
    EXPECT_EQ(systemColor(Color::tertiary).names.front(), "tertiaryLabelColor");
    EXPECT_EQ(systemColor(Color::accent).names.front(), "controlAccentColor");
    EXPECT_EQ(systemColor(Color::green).names.front(), "systemGreenColor");
    EXPECT_EQ(systemColor(Color::white).names.front(), "whiteColor");
    EXPECT_EQ(systemColor(Color::link).names.front(), "linkColor");
    EXPECT_EQ(systemColor(Color::sectionFill).names.front(), "quinarySystemFillColor");
    EXPECT_EQ(systemColor(Color::sectionBorder).names.front(), "quaternarySystemFillColor");
    EXPECT_EQ(systemColor(Color::separator).names.front(), "separatorColor");
    EXPECT_EQ(SystemColors.size(), static_cast<std::size_t>(Color::separator) + 1);
}

TEST(SystemColors, HaveNamesOfTheirOwnOfWhichOneIsOnEverySystem) {
    std::set<std::string_view> first;
    for (const SystemColor& color : SystemColors) {
        EXPECT_TRUE(first.insert(color.names.front()).second) << color.names.front();
        EXPECT_TRUE(std::any_of(color.names.begin(), color.names.end(), [](std::string_view name) {
            return !name.empty() && !isOfNewerSystems(name);
        })) << color.names.front();
    }
}

TEST(SystemColors, AreTheSameWhenStrengthAndToneAre) {
    EXPECT_EQ((Shade{0x101010, 0.5}), (Shade{0x101010, 0.5}));
    EXPECT_NE((Shade{0x101010, 0.5}), (Shade{0x101010, 0.6}));
    EXPECT_NE((Shade{0x101010, 0.5}), (Shade{0x101011, 0.5}));
}

// What is behind a section shines through both.
TEST(SystemColors, OfSectionsAreTranslucentAndDifferInTheLightAndInTheDark) {
    for (const Color color : {Color::sectionFill, Color::sectionBorder}) {
        const SystemColor& found = systemColor(color);
        EXPECT_LT(found.shade(false).alpha, 0.2);
        EXPECT_LT(found.shade(true).alpha, 0.2);
        EXPECT_NE(found.shade(false), found.shade(true));
    }
}

} // namespace kestrune::ui
