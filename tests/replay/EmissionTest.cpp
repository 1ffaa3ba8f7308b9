#include "replay/Emission.h"

#include "tests/base/FileContent.h"
#include "tests/base/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestrune::replay {
namespace {

TEST(Emission, WritesNumbersInTheShortestFormThatReadsBackEqual) {
    const TemporaryFolder folder;
    const std::string path = folder.path() / "emission.csv";
    Emission emission(path);
    emission.write(0, {EventType::mouseMoved, {100, 0.1}, {100, 1.0 / 3}});
    emission.write(12, {EventType::otherMouseDragged, {-1920.00390625, 1e21}, {0, -0.5}});
    EXPECT_EQ(emission.finish(), std::nullopt);
    EXPECT_EQ(contentOf(path), "0,5,100,0.1,100,0.3333333333333333\n12,27,-1920.00390625,1e+21,0,-0.5\n");
}

TEST(Emission, NamesTheFileThatCannotBeWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.path() / "no such folder/emission.csv";
    Emission emission(path);
    emission.write(0, {EventType::mouseMoved, {}, {}});
    const std::optional<InputError> error = emission.finish();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, path + ": expected a file that can be written");
}

} // namespace
} // namespace kestrune::replay
