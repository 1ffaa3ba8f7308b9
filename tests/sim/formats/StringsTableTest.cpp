#include "sim/formats/StringsTable.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kestrune::sim {
namespace {

StringsTable tableOf(std::string_view text) {
    const auto table = readStringsTable(text);
    if (const auto* error = std::get_if<StringsTableError>(&table)) {
        ADD_FAILURE() << error->line << ": " << error->message;
        return {};
    }
    return std::get<StringsTable>(table);
}

std::pair<std::size_t, std::string> errorOf(std::string_view text) {
    const auto table = readStringsTable(text);
    const auto* error = std::get_if<StringsTableError>(&table);
    return error != nullptr ? std::pair(error->line, error->message)
                            : std::pair(std::size_t{0}, std::string("accepted"));
}

using Error = std::pair<std::size_t, std::string>;

TEST(StringsTable, IsEmptyWithoutEntries) {
    EXPECT_TRUE(tableOf("").empty());
    EXPECT_TRUE(tableOf(" \t\r\n\n").empty());
    EXPECT_TRUE(tableOf("/* nothing */ // here").empty());
}

TEST(StringsTable, HasTheEntriesWhateverTheSpacing) {
    const StringsTable table = tableOf("\"a\"=\"1\";\"b\"\n =\t\"2\"\r\n;   \"c\" = \"3\" ;");
    EXPECT_EQ(table, (StringsTable{{"a", "1"}, {"b", "2"}, {"c", "3"}}));
}

TEST(StringsTable, LetsALaterEntryReplaceAnEarlierOne) {
    EXPECT_EQ(tableOf(R"("a" = "1"; "a" = "2";)"), (StringsTable{{"a", "2"}}));
}

TEST(StringsTable, MayHaveEmptyTexts) { EXPECT_EQ(tableOf(R"("" = "";)"), (StringsTable{{"", ""}})); }

TEST(StringsTable, HasEscapesInsideTheQuotes) {
    EXPECT_EQ(tableOf(R"("say \"so\"" = "C:\\new\nline; = // /* */";)"),
              (StringsTable{{"say \"so\"", "C:\\new\nline; = // /* */"}}));
    EXPECT_EQ(tableOf(R"("a\\" = "\\\\n";)"), (StringsTable{{"a\\", "\\\\n"}}));
}

TEST(StringsTable, MayHaveALineEndInsideTheQuotes) {
    EXPECT_EQ(tableOf("\"a\" = \"one\ntwo\";"), (StringsTable{{"a", "one\ntwo"}}));
}

TEST(StringsTable, KeepsTextsThatAreNotASCII) {
    EXPECT_EQ(tableOf("/* – */ \"Settings…\" = \"Réglages…\"; \"×\" = \"設定 🖥\";"),
              (StringsTable{{"Settings…", "Réglages…"}, {"×", "設定 🖥"}}));
}

TEST(StringsTable, HasCommentsWhereverSpaceMayBe) {
    EXPECT_EQ(tableOf("// first\n/* \"x\" = \"y\";\n * // */\"a\"/* key */=// is\n\"1\"/**/;// last"),
              (StringsTable{{"a", "1"}}));
}

TEST(StringsTable, IsRefusedWithTheLineAndWhatIsMissing) {
    const std::vector<std::pair<std::string, Error>> cases = {
        {"a = \"1\";", {1, "expected a key in quotes"}},
        {"\"a\" = \"1\";\n\n;", {3, "expected a key in quotes"}},
        {"\"a\"", {1, "expected ="}},
        {"\"a\"\n\"1\";", {2, "expected ="}},
        {"\"a\" =", {1, "expected a value in quotes"}},
        {"\"a\" =\n 1;", {2, "expected a value in quotes"}},
        {"\"a\" = \"1\"", {1, "expected ;"}},
        {"\"a\" = \"1\"\n\"b\" = \"2\";", {2, "expected ;"}},
        {"\"a\" = \"1\";\r\n\"b\" = 'x';", {2, "expected a value in quotes"}},
        {"\n/* never\nends", {2, "expected the end of the comment"}},
        {"\"a\" = \"1\" /* never ends", {1, "expected the end of the comment"}},
        {"\"a\" = \"1\"; /", {1, "expected a key in quotes"}},
    };
    for (const auto& [text, error] : cases) {
        EXPECT_EQ(errorOf(text), error) << text;
    }
}

TEST(StringsTable, IsRefusedWhereATextHasNotEnded) {
    EXPECT_EQ(errorOf("\n\"a\" = \"one;\n\n\n"), (Error{5, "expected a closing quote"}));
    EXPECT_EQ(errorOf("\"a"), (Error{1, "expected a closing quote"}));
    EXPECT_EQ(errorOf("\"a\\\""), (Error{1, "expected a closing quote"}));
    EXPECT_EQ(errorOf("\"a\\"), (Error{1, "expected a closing quote"}));
}

} // namespace
} // namespace kestrune::sim
