#include "desk/command/OptionsReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrune::desk {
namespace {

Options read(const std::vector<std::string_view>& arguments) {
    const auto options = readOptions(arguments);
    if (const auto* error = std::get_if<InputError>(&options)) {
        ADD_FAILURE() << error->message;
        return {};
    }
    return std::get<Options>(options);
}

std::string refusalOf(const std::vector<std::string_view>& arguments) {
    const auto options = readOptions(arguments);
    const auto* error = std::get_if<InputError>(&options);
    return error != nullptr ? error->message : "accepted";
}

TEST(OptionsReader, WithoutArgumentsOpensTheUsualDesk) {
    const Options options = read({});
    EXPECT_EQ(options.displays.size(), 2U);
    EXPECT_EQ(options.pinned, std::nullopt);
    EXPECT_EQ(options.guardOn, std::nullopt);
    EXPECT_EQ(options.margin, std::nullopt);
    EXPECT_EQ(options.replay, std::nullopt);
    EXPECT_FALSE(options.help);
}

TEST(OptionsReader, ReadsEverythingThatAReplayTakes) {
    const Options options =
        read({"--replay", "walk.csv", "--displays", "100x80+0+0,50x50.5+100-2", "--pin", "2", "--guard",
              "off", "--margin", "-2.5", "--emit", "out.csv", "--report", "json", "--screenshot", "end.png"});
    EXPECT_EQ(options.replay, "walk.csv");
    EXPECT_EQ(options.displays, (std::vector<Rect>{{0, 0, 100, 80}, {100, -2, 50, 50.5}}));
    EXPECT_EQ(options.pinned, 1U);
    EXPECT_EQ(options.guardOn, false);
    EXPECT_EQ(options.margin, -2.5);
    EXPECT_EQ(options.emit, "out.csv");
    EXPECT_TRUE(options.reportAsJSON);
    EXPECT_EQ(options.screenshot, "end.png");
}

TEST(OptionsReader, ReadsWhatTheOtherCommandsTake) {
    const Options generate = read(
        {"--generate", "made.csv", "--seed", "18446744073709551615", "--rows", "7", "--size", "640x480"});
    EXPECT_EQ(generate.generate, "made.csv");
    EXPECT_EQ(generate.seed, 18446744073709551615U);
    EXPECT_EQ(generate.rows, 7U);
    EXPECT_EQ(generate.recordedWidth, 640);
    EXPECT_EQ(generate.recordedHeight, 480);
    EXPECT_EQ(read({"--tour", "pictures"}).tour, "pictures");
    EXPECT_EQ(read({"--wizard", "pictures"}).wizard, "pictures");
    EXPECT_EQ(read({"--settings", "pictures"}).settings, "pictures");
    EXPECT_EQ(read({"--defaults", "kestrune.plist", "--dark"}).defaults, "kestrune.plist");
    EXPECT_TRUE(read({"--dark"}).dark);
    EXPECT_TRUE(read({"--help"}).help);
    EXPECT_EQ(read({"--guard", "on"}).guardOn, true);
}

TEST(OptionsReader, ReadsWhatALaunchTakes) {
    EXPECT_FALSE(read({}).launch);
    EXPECT_TRUE(read({}).isPermissionGranted);
    EXPECT_TRUE(read({"--launch"}).launch);
    EXPECT_TRUE(read({"--permission", "granted"}).isPermissionGranted);
    EXPECT_FALSE(read({"--permission", "missing"}).isPermissionGranted);
    const Options options = read({"--launch", "--permission", "missing", "--defaults", "kestrune.plist",
                                  "--guard", "off", "--pin", "2"});
    EXPECT_TRUE(options.launch);
    EXPECT_FALSE(options.isPermissionGranted);
    EXPECT_EQ(options.defaults, "kestrune.plist");
    EXPECT_EQ(options.guardOn, false);
    EXPECT_EQ(options.pinned, 1U);
}

TEST(OptionsReader, TellsOfEveryOptionInItsHelp) {
    for (const std::string_view option :
         {"--tour", "--wizard", "--settings", "--replay", "--generate", "--launch", "--displays", "--pin",
          "--guard", "--margin", "--permission", "--defaults", "--dark", "--report", "--screenshot", "--emit",
          "--seed", "--rows", "--size"}) {
        EXPECT_NE(helpText().find(" " + std::string(option) + " "), std::string_view::npos) << option;
    }
}

TEST(OptionsReader, CountsDisplaysFromOneWhereverThePinStands) {
    EXPECT_EQ(read({"--pin", "3", "--displays", "9x9+0+0,9x9+9+0,9x9+18+0"}).pinned, 2U);
    EXPECT_EQ(refusalOf({"--pin", "3"}), "--pin: expected a display number from 1 to 2, found \"3\"");
    EXPECT_EQ(refusalOf({"--pin", "0"}), "--pin: expected a display number from 1 to 2, found \"0\"");
    EXPECT_EQ(refusalOf({"--pin", "one"}), "--pin: expected a display number from 1 to 2, found \"one\"");
    EXPECT_EQ(refusalOf({"--pin", "1.5"}), "--pin: expected a display number from 1 to 2, found \"1.5\"");
}

TEST(OptionsReader, RefusesUnknownWords) {
    EXPECT_EQ(refusalOf({"--sideways"}), "unknown option \"--sideways\": --help lists the options");
    EXPECT_EQ(refusalOf({"walk.csv"}), "unknown option \"walk.csv\": --help lists the options");
    EXPECT_EQ(refusalOf({""}), "unknown option \"\": --help lists the options");
}

TEST(OptionsReader, RefusesAnOptionWithoutValueAndOneThatStandsTwice) {
    EXPECT_EQ(refusalOf({"--replay"}), "--replay: expected a value after it");
    EXPECT_EQ(refusalOf({"--replay", ""}), "--replay: expected a path, found nothing");
    EXPECT_EQ(refusalOf({"--guard", "on", "--guard", "off"}), "--guard: expected once, found twice");
}

TEST(OptionsReader, RefusesUnusableValues) {
    EXPECT_EQ(refusalOf({"--guard", "yes"}), "--guard: expected on or off, found \"yes\"");
    EXPECT_EQ(refusalOf({"--permission", "perhaps"}),
              "--permission: expected granted or missing, found \"perhaps\"");
    EXPECT_EQ(refusalOf({"--permission", ""}), "--permission: expected granted or missing, found \"\"");
    EXPECT_EQ(refusalOf({"--permission"}), "--permission: expected a value after it");
    EXPECT_EQ(refusalOf({"--permission", "granted", "--permission", "missing"}),
              "--permission: expected once, found twice");
    EXPECT_EQ(refusalOf({"--report", "xml"}), "--report: expected json, found \"xml\"");
    for (const std::string_view margin : {"wide", "inf", "nan", "", "4pt", "1e999"}) {
        EXPECT_EQ(refusalOf({"--margin", margin}),
                  "--margin: expected a finite number of points, found \"" + std::string(margin) + "\"");
    }
    EXPECT_EQ(refusalOf({"--generate", "f", "--rows", "0"}),
              "--rows: expected a whole number from 1 to 10000000, found \"0\"");
    EXPECT_EQ(refusalOf({"--generate", "f", "--rows", "10000001"}),
              "--rows: expected a whole number from 1 to 10000000, found \"10000001\"");
    EXPECT_EQ(refusalOf({"--generate", "f", "--rows", "-1"}),
              "--rows: expected a whole number from 1 to 10000000, found \"-1\"");
    EXPECT_EQ(refusalOf({"--generate", "f", "--seed", "-1"}),
              "--seed: expected a whole number from 0 to 18446744073709551615, found \"-1\"");
    for (const std::string_view size : {"640", "640x", "x480", "0x480", "640x65536", "640x480x2", "6.5x4"}) {
        EXPECT_EQ(refusalOf({"--generate", "f", "--size", size}),
                  "--size: expected WxH with whole numbers from 1 to 65535, found \"" + std::string(size) +
                      "\"");
    }
    EXPECT_EQ(refusalOf({"--displays", "wide"}).substr(0, 10), "--displays");
}

TEST(OptionsReader, RefusesOptionsThatDoNotGoTogether) {
    EXPECT_EQ(refusalOf({"--replay", "a", "--tour", "b"}),
              "expected only one of --replay, --tour, --wizard, --settings, --generate and --launch");
    EXPECT_EQ(refusalOf({"--wizard", "a", "--tour", "b"}),
              "expected only one of --replay, --tour, --wizard, --settings, --generate and --launch");
    EXPECT_EQ(refusalOf({"--launch", "--tour", "b"}),
              "expected only one of --replay, --tour, --wizard, --settings, --generate and --launch");
    EXPECT_EQ(refusalOf({"--replay", "a", "--launch"}),
              "expected only one of --replay, --tour, --wizard, --settings, --generate and --launch");
    EXPECT_EQ(refusalOf({"--launch", "--generate", "a"}),
              "expected only one of --replay, --tour, --wizard, --settings, --generate and --launch");
    for (const std::string_view mode : {"--replay", "--tour", "--wizard", "--settings", "--generate"}) {
        EXPECT_EQ(refusalOf({mode, "a", "--permission", "granted"}),
                  "--permission: expected without --replay, --tour, --wizard, --settings and --generate");
    }
    EXPECT_EQ(refusalOf({"--replay", "a", "--defaults", "b"}),
              "--defaults: expected without --replay, --tour, --wizard, --settings and --generate");
    EXPECT_EQ(refusalOf({"--emit", "a"}), "--emit: expected together with --replay");
    EXPECT_EQ(refusalOf({"--seed", "1"}), "--seed: expected together with --generate");
    EXPECT_EQ(refusalOf({"--rows", "1"}), "--rows: expected together with --generate");
    EXPECT_EQ(refusalOf({"--size", "1x1"}), "--size: expected together with --generate");
    EXPECT_EQ(refusalOf({"--generate", "a", "--pin", "1"}), "--pin: expected without --generate");
    EXPECT_EQ(refusalOf({"--generate", "a", "--report", "json"}), "--report: expected without --generate");
}

} // namespace
} // namespace kestrune::desk
