#include "replay/recording/RecordingWriter.h"

#include "replay/recording/RecordingReader.h"
#include "tests/base/FileContent.h"
#include "tests/base/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kestrune::replay {
namespace {

const std::vector<RecordingRow> Rows{{0, 0, "NoButton", RowState::move, {10, 20}},
                                     {0.105, 0.1, "Right", RowState::pressed, {10, 20}},
                                     {0.25, 0.2, "NoButton", RowState::drag, {12.5, 65535}},
                                     {0.25, 0.2, "Scroll", RowState::up, {1, 2}}};

const std::string Text = "record timestamp,client timestamp,button,state,x,y\n"
                         "0,0,NoButton,Move,10,20\n"
                         "0.105,0.1,Right,Pressed,10,20\n"
                         "0.25,0.2,NoButton,Drag,12.5,65535\n"
                         "0.25,0.2,Scroll,Up,1,2\n";

TEST(RecordingWriter, WritesTheColumnsOfARecording) {
    std::ostringstream output;
    writeRecording(output, Rows);

    EXPECT_EQ(output.str(), Text);
}

TEST(RecordingWriter, ReplacesAFile) {
    const TemporaryFolder folder;
    const auto path = folder.file("walk.csv", std::string(1000, 'x'));

    EXPECT_EQ(writeRecording(path, Rows), std::nullopt);
    EXPECT_EQ(contentOf(path), Text);
}

TEST(RecordingWriter, SaysWhyAFileCannotBeWritten) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "missing" / "walk.csv";

    const auto error = writeRecording(path, Rows);

    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->message, path.string() + ": cannot write the recording: No such file or directory");
}

TEST(RecordingWriter, NoticesAFullDisk) {
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "This system has no device that is always full.";

    const auto error = writeRecording(std::filesystem::path("/dev/full"), Rows);

    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->message, "/dev/full: cannot write the recording: No space left on device");
}

} // namespace
} // namespace kestrune::replay
