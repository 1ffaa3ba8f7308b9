#include "desk/command/Command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

using Words = std::vector<std::string_view>;

Command read(const Words& arguments) {
    const auto command = readCommand(arguments);
    if (const auto* error = std::get_if<replay::InputError>(&command)) {
        ADD_FAILURE() << error->message;
        return {};
    }
    return std::get<Command>(command);
}

Options optionsOf(const Words& arguments) { return read(arguments).options; }

template <typename Wanted>
Wanted modeOf(const Words& arguments) {
    const Mode mode = read(arguments).mode;
    const auto* wanted = std::get_if<Wanted>(&mode);
    EXPECT_NE(wanted, nullptr) << "another mode";
    return wanted != nullptr ? *wanted : Wanted{};
}

std::string refusalOf(const Words& arguments) {
    const auto command = readCommand(arguments);
    const auto* error = std::get_if<replay::InputError>(&command);
    return error != nullptr ? error->message : "accepted";
}

TEST(Command, WithoutArgumentsOpensTheUsualDesk) {
    const auto window = modeOf<OpenWindow>({});
    EXPECT_FALSE(window.outcome.asJSON);
    EXPECT_EQ(window.outcome.screenshot, std::nullopt);
    const Options options = optionsOf({});
    EXPECT_EQ(options.displays.size(), 2U);
    EXPECT_EQ(options.pinned, std::nullopt);
    EXPECT_EQ(options.guardOn, std::nullopt);
    EXPECT_EQ(options.margin, std::nullopt);
    EXPECT_TRUE(options.isPermissionGranted);
}

TEST(Command, ReadsEverythingThatAReplayTakes) {
    const Words words = {"--replay", "walk.csv", "--displays",   "100x80+0+0,50x50.5+100-2",
                         "--pin",    "2",        "--guard",      "off",
                         "--margin", "-2.5",     "--emit",       "out.csv",
                         "--report", "json",     "--screenshot", "end.png"};
    const auto play = modeOf<PlayRecording>(words);
    EXPECT_EQ(play.recording, "walk.csv");
    EXPECT_EQ(play.emit, "out.csv");
    EXPECT_TRUE(play.outcome.asJSON);
    EXPECT_EQ(play.outcome.screenshot, "end.png");
    const Options options = optionsOf(words);
    EXPECT_EQ(options.displays, (std::vector<Rect>{{0, 0, 100, 80}, {100, -2, 50, 50.5}}));
    EXPECT_EQ(options.pinned, 1U);
    EXPECT_EQ(options.guardOn, false);
    EXPECT_EQ(options.margin, -2.5);
}

TEST(Command, ReadsWhatTheOtherModesTake) {
    const auto make = modeOf<MakeRecording>(
        {"--generate", "made.csv", "--seed", "18446744073709551615", "--rows", "7", "--size", "640x480"});
    EXPECT_EQ(make.path, "made.csv");
    EXPECT_EQ(make.motion.seed, 18446744073709551615U);
    EXPECT_EQ(make.motion.rows, 7U);
    EXPECT_EQ(make.motion.width, 640);
    EXPECT_EQ(make.motion.height, 480);
    EXPECT_EQ(modeOf<DrawGallery>({"--gallery", "pictures"}).folder, "pictures");
    EXPECT_TRUE(modeOf<DrawGallery>({"--gallery", "pictures"}).scenes.empty());
    const Words scenes = {"--gallery", "pictures", "tour/held", "wizard", "--dark"};
    EXPECT_THAT(modeOf<DrawGallery>(scenes).scenes, ElementsAre("tour/held", "wizard"));
    EXPECT_TRUE(optionsOf(scenes).dark);
    EXPECT_EQ(modeOf<MakeRecording>({"--generate", "f", "--rows", "010"}).motion.rows, 10U);
    EXPECT_EQ(optionsOf({"--defaults", "kestrune.plist"}).defaultsFile, "kestrune.plist");
    EXPECT_EQ(optionsOf({"--guard", "on"}).guardOn, true);
    EXPECT_EQ(modeOf<OpenWindow>({"--screenshot", "end.png"}).outcome.screenshot, "end.png");
}

TEST(Command, ReadsWhatALaunchTakes) {
    EXPECT_TRUE(optionsOf({"--permission", "granted"}).isPermissionGranted);
    EXPECT_FALSE(optionsOf({"--permission", "missing"}).isPermissionGranted);
    const Words words = {"--launch", "--permission", "missing", "--defaults", "kestrune.plist",
                         "--guard",  "off",          "--pin",   "2"};
    modeOf<Launch>(words);
    const Options options = optionsOf(words);
    EXPECT_FALSE(options.isPermissionGranted);
    EXPECT_EQ(options.defaultsFile, "kestrune.plist");
    EXPECT_EQ(options.guardOn, false);
    EXPECT_EQ(options.pinned, 1U);
}

TEST(Command, TellsOfEveryOptionInItsHelp) {
    const std::string help = modeOf<PrintHelp>({"--help"}).text;
    for (const char* const option :
         {"--gallery DIR [SCENE...]\n", "--replay FILE ", "--generate FILE ", "--launch ", "--displays LIST ",
          "--pin N ", "--guard on|off ", "--margin M ", "--permission P ", "--defaults FILE ", "--dark ",
          "--report json ", "--screenshot FILE", "--emit FILE ", "--seed N ", "--rows N ", "--size WxH "}) {
        EXPECT_THAT(help, HasSubstr("  " + std::string(option))) << option;
    }
    EXPECT_THAT(help, HasSubstr("Exit status: 0, or 2"));
}

TEST(Command, CountsDisplaysFromOneWhereverThePinStands) {
    EXPECT_EQ(optionsOf({"--pin", "3", "--displays", "9x9+0+0,9x9+9+0,9x9+18+0"}).pinned, 2U);
    EXPECT_EQ(refusalOf({"--pin", "3"}), "--pin: expected a display number from 1 to 2, found 3");
    EXPECT_EQ(refusalOf({"--pin", "0"}), "--pin: expected a display number from 1 to 2, found 0");
    EXPECT_THAT(refusalOf({"--pin", "one"}), AllOf(HasSubstr("--pin"), HasSubstr("one")));
    EXPECT_THAT(refusalOf({"--pin", "1.5"}), AllOf(HasSubstr("--pin"), HasSubstr("1.5")));
}

TEST(Command, RefusesUnknownWords) {
    EXPECT_THAT(refusalOf({"--sideways"}), HasSubstr("--sideways"));
    EXPECT_THAT(refusalOf({"walk.csv"}), HasSubstr("walk.csv"));
    EXPECT_NE(refusalOf({""}), "accepted");
    EXPECT_THAT(refusalOf({"a\nb\x1b"}), HasSubstr("a\\x0Ab\\x1B")) << "one line, and no terminal is driven";
}

TEST(Command, RefusesAnOptionWithoutValueAndOneThatStandsTwice) {
    EXPECT_THAT(refusalOf({"--replay"}), StartsWith("--replay: "));
    EXPECT_EQ(refusalOf({"--replay", ""}), "--replay: expected a path, found nothing");
    EXPECT_THAT(refusalOf({"--gallery"}), StartsWith("--gallery: "));
    EXPECT_THAT(refusalOf({"--guard", "on", "--guard", "off"}), StartsWith("--guard: "));
    EXPECT_THAT(refusalOf({"--permission"}), StartsWith("--permission: "));
}

// Each message has the option and the value in it.
TEST(Command, RefusesUnusableValues) {
    const auto expectRefused = [](Words words) {
        EXPECT_THAT(refusalOf(words), AllOf(HasSubstr(std::string(words[words.size() - 2])),
                                            HasSubstr(std::string(words.back()))));
    };
    expectRefused({"--guard", "yes"});
    expectRefused({"--permission", "perhaps"});
    expectRefused({"--permission", ""});
    expectRefused({"--report", "xml"});
    for (const std::string_view margin : {"wide", "inf", "nan", "", "4pt", "1e999"}) {
        expectRefused({"--margin", margin});
    }
    for (const std::string_view rows : {"0", "10000001", "-1", "many"}) {
        expectRefused({"--generate", "f", "--rows", rows});
    }
    for (const std::string_view seed : {"-1", "18446744073709551616", "x"}) {
        expectRefused({"--generate", "f", "--seed", seed});
    }
    for (const std::string_view size : {"640", "640x", "x480", "0x480", "640x65536", "640x480x2", "6.5x4"}) {
        expectRefused({"--generate", "f", "--size", size});
    }
    EXPECT_THAT(refusalOf({"--displays", "wide"}), StartsWith("--displays"));
    EXPECT_THAT(refusalOf({"--displays", ""}), StartsWith("--displays"));
}

TEST(Command, RefusesOptionsThatDoNotGoTogether) {
    const auto expectRefused = [](const Words& words, const char* one, const char* other) {
        EXPECT_THAT(refusalOf(words), AllOf(HasSubstr(one), HasSubstr(other)));
    };
    const std::vector<Words> modes = {
        {"--gallery", "a"}, {"--replay", "a"}, {"--generate", "a"}, {"--launch"}};
    for (std::size_t one = 0; one < modes.size(); ++one) {
        for (std::size_t other = 0; other < one; ++other) {
            Words both = modes[one];
            both.insert(both.end(), modes[other].begin(), modes[other].end());
            expectRefused(both, modes[one].front().data(), modes[other].front().data());
        }
    }
    for (const char* const mode : {"--gallery", "--replay", "--generate"}) {
        expectRefused({"--permission", "granted", mode, "a"}, "--permission", mode);
        expectRefused({"--defaults", "b", mode, "a"}, "--defaults", mode);
    }
    expectRefused({"--emit", "a"}, "--emit", "--replay");
    expectRefused({"--seed", "1"}, "--seed", "--generate");
    expectRefused({"--rows", "1"}, "--rows", "--generate");
    expectRefused({"--size", "1x1"}, "--size", "--generate");
    expectRefused({"--generate", "a", "--pin", "1"}, "--pin", "--generate");
    expectRefused({"--generate", "a", "--report", "json"}, "--report", "--generate");
    expectRefused({"--gallery", "a", "--pin", "1"}, "--pin", "--gallery");
    expectRefused({"--launch", "--report", "json"}, "--report", "--launch");
}

} // namespace
} // namespace kestrune::desk
