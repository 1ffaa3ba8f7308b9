#include "desk/headless/HeadlessCommands.h"
#include "tests/base/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace kestrune::desk {
namespace {

std::string launched(const Options& options) {
    const auto result = runLaunch(options);
    if (const auto* error = std::get_if<replay::InputError>(&result)) {
        ADD_FAILURE() << error->message;
        return "";
    }
    return std::get<std::string>(result);
}

Options withoutPermission() {
    Options options;
    options.isPermissionGranted = false;
    return options;
}

bool isFold(const std::string& line) { return line.starts_with("    ... "); }

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

// Where the lines that are expected stand among the others, in that order; the first that is missing fails.
void expectInOrder(const std::string& text, const std::vector<std::string>& expected) {
    const std::vector<std::string> lines = linesOf(text);
    std::size_t next = 0;
    for (const std::string& line : lines) {
        if (next < expected.size() && line == expected[next]) {
            ++next;
        }
    }
    EXPECT_EQ(next, expected.size()) << "missing: " << (next < expected.size() ? expected[next] : "") << "\n"
                                     << text;
}

const std::vector<std::string> BothBegin = {
    "NSApplication.sharedApplication",
    "NSUserDefaults.standardUserDefaults",
    "-[KestruneApp init]",
    "-[NSApplication setDelegate:] KestruneApp",
    "-[NSApplication setActivationPolicy:] NSApplicationActivationPolicyAccessory",
    "-[NSApplication run]",
    "-[KestruneApp applicationDidFinishLaunching:]",
    "-[NSApplication setMainMenu:] 2 items",
    "-[SPUUpdater startUpdater:]",
    "-[SPUUpdater setAutomaticallyDownloadsUpdates:] false",
    "NSStatusBar.systemStatusBar",
    "-[NSStatusBar statusItemWithLength:] -1",
    "-[NSStatusBarButton setToolTip:] Kestrune — Pin the Dock to one screen",
    "-[NSStatusItem setMenu:] 10 items",
};

std::vector<std::string> begunWith(std::vector<std::string> beginning, const std::vector<std::string>& rest) {
    beginning.insert(beginning.end(), rest.begin(), rest.end());
    return beginning;
}

TEST(LaunchCommand, StartsTheGuardWithThePermission) {
    const std::string text = launched({});
    expectInOrder(text,
                  begunWith(BothBegin, {
                                           "CFRunLoopAddSource(main, source, kCFRunLoopCommonModes)",
                                           "CGEventTapEnable(tap, true)",
                                           "-[NSStatusItem setMenu:] 10 items",
                                           "AXIsProcessTrusted() -> true",
                                           "Task on the main actor",
                                           "-[NSUserDefaults setBool:forKey:] "
                                           "hasCompletedOnboarding = true",
                                           "os_log_debug(app, scheduleWelcomeDecision: skipping wizard, "
                                           "already onboarded)",
                                       }));
    EXPECT_EQ(text.find("scheduledTimer"), std::string::npos) << "nobody watches for the permission";
    EXPECT_EQ(linesOf(text).back().rfind("os_log_debug", 0), 0U) << "the end of the process is not told";
}

TEST(LaunchCommand, ProbesAndWatchesWithoutThePermission) {
    const std::string text = launched(withoutPermission());
    expectInOrder(
        text,
        begunWith(BothBegin,
                  {
                      "-[NSStatusItem setMenu:] 10 items",
                      "AXIsProcessTrusted() -> false",
                      "CGEventTapCreate(kCGSessionEventTap, kCGHeadInsertEventTap, kCGEventTapOptionDefault, "
                      "0x00000020)",
                      "+[NSTimer scheduledTimerWithTimeInterval:repeats:block:] 1, true",
                      "Task on the main actor",
                      "-[NSNotificationCenter addObserverForName:object:queue:usingBlock:] "
                      "NSApplicationDidChangeScreenParametersNotification, nil, main queue",
                      "AXIsProcessTrusted() -> false",
                  }));
    EXPECT_EQ(text.find("CFRunLoopAddSource"), std::string::npos);
    EXPECT_EQ(text.find("hasCompletedOnboarding = true"), std::string::npos);
}

TEST(LaunchCommand, CountsTheCallsThatItFolds) {
    const std::regex fold("    \\.\\.\\. ([0-9]+) (calls that build menu items or read the displays|"
                          "call that builds menu items or reads the displays)");
    bool wasFold = false;
    int folds = 0;
    for (const std::string& line : linesOf(launched({}))) {
        ASSERT_FALSE(isFold(line) && wasFold) << "folded lines that follow each other are counted together";
        wasFold = isFold(line);
        if (wasFold) {
            std::smatch match;
            ASSERT_TRUE(std::regex_match(line, match, fold)) << line;
            EXPECT_EQ(match[1] == "1", line.find(" call ") != std::string::npos) << line;
            EXPECT_GT(std::stoi(match[1]), 0);
            ++folds;
        } else {
            EXPECT_EQ(line.find("NSMenuItem"), std::string::npos) << line;
            EXPECT_EQ(line.find("NSScreen"), std::string::npos) << line;
        }
    }
    EXPECT_GT(folds, 3);
}

TEST(LaunchCommand, CountsMoreCallsWithMoreDisplays) {
    const auto folded = [](const Options& options) {
        int count = 0;
        for (const std::string& line : linesOf(launched(options))) {
            count += isFold(line) ? std::stoi(line.substr(8)) : 0;
        }
        return count;
    };
    Options one;
    one.displays = {{0, 0, 1512, 982}};
    EXPECT_GT(folded({}), folded(one));
}

TEST(LaunchCommand, FollowsTheSwitchThatIsStored) {
    Options options;
    options.guardOn = false;
    const std::string text = launched(options);
    EXPECT_EQ(text.find("CGEventTapCreate"), std::string::npos);
    EXPECT_NE(text.find("hasCompletedOnboarding = true"), std::string::npos);
}

TEST(LaunchCommand, ReadsTheDefaultsFileAndLeavesItAlone) {
    const TemporaryFolder folder;
    Options options;
    options.defaultsFile = folder.file("defaults.plist", "nonsense");
    const auto refused = runLaunch(options);
    ASSERT_TRUE(std::holds_alternative<replay::InputError>(refused));
    EXPECT_EQ(std::get<replay::InputError>(refused).message.rfind(*options.defaultsFile, 0), 0U);

    options.defaultsFile = folder.path() / "absent.plist";
    launched(options);
    EXPECT_FALSE(std::filesystem::exists(*options.defaultsFile));
}

} // namespace
} // namespace kestrune::desk
