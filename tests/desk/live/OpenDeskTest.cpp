#include "desk/live/world/LiveDesk.h"
#include "sim/formats/DefaultsFile.h"
#include "sim/seam/StatusItemState.h"
#include "tests/base/FileContent.h"
#include "tests/base/TemporaryFolder.h"
#include "tests/desk/live/LiveFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::unique_ptr<LiveDesk> opened(const Options& options) {
    auto desk = openDesk(options);
    if (const auto* error = std::get_if<replay::InputError>(&desk)) {
        ADD_FAILURE() << error->message;
        return nullptr;
    }
    return std::get<std::unique_ptr<LiveDesk>>(std::move(desk));
}

std::string refusal(const Options& options) {
    const auto desk = openDesk(options);
    const auto* error = std::get_if<replay::InputError>(&desk);
    return error != nullptr ? error->message : "";
}

TEST(OpenDesk, NeedsNoFile) {
    const auto desk = opened({});
    ASSERT_TRUE(desk);
    EXPECT_TRUE(desk->host().guardIsRunning());
    EXPECT_EQ(storedText(*desk, "pinnedScreenUUID"), "");
}

TEST(OpenDesk, LaunchesTheApplicationWithoutThePermissionWhenItIsToBeMissing) {
    Options options;
    options.isPermissionGranted = false;
    const auto desk = opened(options);
    EXPECT_EQ(desk->news().text, "Kestrune has started and waits for the Accessibility permission");
    EXPECT_FALSE(desk->host().guardIsRunning());
    EXPECT_TRUE(desk->host().isWatchingAccessibility());
}

TEST(OpenDesk, FindsTheApplicationsResources) {
    const auto desk = opened({});
    const auto items = desk->session().statusItems().shown();
    ASSERT_EQ(items.size(), 1U);
    ASSERT_TRUE(items[0]->button->image);
    EXPECT_TRUE(std::filesystem::is_regular_file(items[0]->button->image->state()->file));
    EXPECT_EQ(items[0]->button->toolTip, "Kestrune — Pin the Dock to one screen");
}

TEST(OpenDesk, SavesWhatTheApplicationStoresWhenItIsLaunched) {
    const TemporaryFolder folder;
    Options options;
    options.defaults = folder.path() / "defaults.plist";
    const auto saved = [&options] {
        std::vector<std::string> keys;
        const auto loaded = sim::loadDefaultsFile(*options.defaults);
        for (const auto& [key, value] : std::get<sim::PropertyListDictionary>(loaded)) {
            keys.push_back(key);
        }
        return keys;
    };
    options.isPermissionGranted = false;
    opened(options);
    EXPECT_THAT(saved(), testing::UnorderedElementsAre("SUAutomaticallyUpdate"));
    options.isPermissionGranted = true;
    opened(options);
    EXPECT_THAT(saved(), testing::UnorderedElementsAre("SUAutomaticallyUpdate", "hasCompletedOnboarding"));
}

TEST(OpenDesk, KeepsWhatWasChosenForTheNextTime) {
    const TemporaryFolder folder;
    Options options;
    options.defaults = folder.path() / "defaults.plist";
    {
        const auto desk = opened(options);
        desk->pin(2);
        desk->toggleGuard();
        desk->deepenBand();
    }
    const auto desk = opened(options);
    EXPECT_EQ(desk->session().dock().display(), 2U);
    EXPECT_FALSE(desk->host().guardIsRunning());
    EXPECT_EQ(storedText(*desk, "blockMargin"), "8");
}

TEST(OpenDesk, PrefersTheOptionsToWhatIsStoredAndStoresThem) {
    const TemporaryFolder folder;
    Options options;
    options.defaults = folder.path() / "defaults.plist";
    opened(options)->pin(2);
    options.pinned = 0;
    options.guardOn = false;
    options.margin = 12;
    EXPECT_EQ(opened(options)->session().dock().display(), 1U);

    const auto loaded = sim::loadDefaultsFile(*options.defaults);
    const auto& entries = std::get<sim::PropertyListDictionary>(loaded);
    EXPECT_EQ(entries.at("pinnedScreenUUID").asString(), sim::uuidOfDisplay(1));
    EXPECT_FALSE(entries.at("isEnabled").asBool());
    EXPECT_EQ(entries.at("blockMargin").asDouble(), 12);
}

TEST(OpenDesk, StoresTheFallbackWhenTheChosenDisplayIsNotConnected) {
    const TemporaryFolder folder;
    Options options;
    options.defaults = folder.path() / "defaults.plist";
    opened(options)->pin(2);
    options.displays = {{0, 0, 1512, 982}};
    opened(options);
    const auto loaded = sim::loadDefaultsFile(*options.defaults);
    EXPECT_EQ(std::get<sim::PropertyListDictionary>(loaded).at("pinnedScreenUUID").asString(),
              sim::uuidOfDisplay(1));
}

TEST(OpenDesk, RefusesAFileThatIsNoPropertyListAndLeavesItAlone) {
    const TemporaryFolder folder;
    Options options;
    options.defaults = folder.file("defaults.plist", "nonsense");
    options.guardOn = false;
    EXPECT_THAT(refusal(options), StartsWith(*options.defaults));
    EXPECT_THAT(refusal(options), testing::Not(HasSubstr("\n")));
    EXPECT_EQ(contentOf(*options.defaults), "nonsense");
}

TEST(OpenDesk, RefusesAFileThatCannotBeSaved) {
    const TemporaryFolder folder;
    Options options;
    options.defaults = folder.path() / "missing" / "defaults.plist";
    options.guardOn = false;
    EXPECT_THAT(refusal(options), HasSubstr("cannot be written"));
}

TEST(OpenDesk, TellsThatPreferencesAreNotSavedAsLongAsItIsSo) {
    const TemporaryFolder folder;
    const std::filesystem::path home = folder.path() / "home";
    std::filesystem::create_directory(home);
    Options options;
    options.defaults = home / "defaults.plist";
    const auto desk = opened(options);
    std::filesystem::remove_all(home);
    desk->pin(2);
    EXPECT_THAT(desk->news().text, StartsWith("The preferences are not saved: "));
    EXPECT_EQ(desk->news().kind, Occurrence::warning);
    EXPECT_TRUE(desk->savingError());

    std::filesystem::create_directory(home);
    desk->pin(1);
    EXPECT_EQ(desk->news().text, "Built-in Display is pinned and has the Dock");
    EXPECT_FALSE(desk->savingError());
}

} // namespace
} // namespace kestrune::desk
