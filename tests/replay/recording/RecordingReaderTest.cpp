#include "replay/recording/LineReader.h"
#include "tests/replay/recording/RecordingText.h"

#include <chrono>

namespace kestrune::replay {
namespace {

using namespace std::chrono_literals;

TEST(RecordingReader, ReadsMovesWithTheirClientTimes) {
    const Recording recording = recordingIn(
        Header + "0.0,0.0,NoButton,Move,290,57\n0.105000019073,0.109000000171,NoButton,Move,252,51.5\n");

    const std::vector<Motion> expected{{EventType::mouseMoved, {290, 57}, 0ns},
                                       {EventType::mouseMoved, {252, 51.5}, 109000000ns}};
    EXPECT_EQ(recording.motions, expected);
    EXPECT_EQ(recording.skipped, SkippedRows{});
}

TEST(RecordingReader, TakesTheSizeFromTheLargestCoordinates) {
    const Recording recording = recordingIn(Header + "0,0,NoButton,Move,1279,5\n0,0,NoButton,Move,3,799\n");

    EXPECT_EQ(recording.size, (Size{1280, 800}));
}

TEST(RecordingReader, CountsButtonsTowardsTheSizeAndUnknownPositionsNot) {
    const Recording recording =
        recordingIn(Header + "0,0,NoButton,Move,10,10\n0,0,Left,Pressed,20,5\n"
                             "0,0,NoButton,Move,65535,30\n0,0,Left,Released,40,65535\n");

    EXPECT_EQ(recording.size, (Size{21, 11}));
}

TEST(RecordingReader, CountsRowsThatAreNoMotionByKind) {
    const Recording recording = recordingIn(Header + "0,0,Left,Pressed,1,1\n"
                                                     "0,0,Left,Released,1,1\n"
                                                     "0,0,Right,Pressed,1,1\n"
                                                     "0,0,Scroll,Down,1,1\n"
                                                     "0,0,Scroll,Up,65535,65535\n"
                                                     "0,0,NoButton,Move,65535,1\n"
                                                     "0,0,NoButton,Drag,1,65535\n"
                                                     "0,0,NoButton,Drag,65535,65535\n"
                                                     "0,0,NoButton,Move,65535,65535\n"
                                                     "0,0,NoButton,Move,7,8\n");

    EXPECT_EQ(recording.skipped, (SkippedRows{3, 2, 4}));
    EXPECT_EQ(recording.motions.size(), 1U);
}

EventType dragTypeAfter(const std::string& rows) {
    const Recording recording = recordingIn(Header + rows + "0,0,NoButton,Drag,1,1\n");
    return recording.motions.empty() ? EventType::mouseMoved : recording.motions.back().type;
}

TEST(RecordingReader, TakesADragWithoutAPressForOneOfTheLeftButton) {
    EXPECT_EQ(dragTypeAfter(""), EventType::leftMouseDragged);
}

TEST(RecordingReader, NamesADragAfterThePressedButton) {
    EXPECT_EQ(dragTypeAfter("0,0,Left,Pressed,1,1\n"), EventType::leftMouseDragged);
    EXPECT_EQ(dragTypeAfter("0,0,Right,Pressed,1,1\n"), EventType::rightMouseDragged);
    EXPECT_EQ(dragTypeAfter("0,0,Middle,Pressed,1,1\n"), EventType::otherMouseDragged);
    EXPECT_EQ(dragTypeAfter("0,0,XButton1,Pressed,1,1\n"), EventType::otherMouseDragged);
}

TEST(RecordingReader, ForgetsAButtonThatIsReleased) {
    EXPECT_EQ(dragTypeAfter("0,0,Right,Pressed,1,1\n0,0,Right,Released,1,1\n"), EventType::leftMouseDragged);
}

TEST(RecordingReader, NamesADragAfterTheButtonPressedLastOfThoseThatAreDown) {
    const std::string leftThenRight = "0,0,Left,Pressed,1,1\n0,0,Right,Pressed,1,1\n";
    EXPECT_EQ(dragTypeAfter(leftThenRight), EventType::rightMouseDragged);
    EXPECT_EQ(dragTypeAfter(leftThenRight + "0,0,Right,Released,1,1\n"), EventType::leftMouseDragged);
    EXPECT_EQ(dragTypeAfter(leftThenRight + "0,0,Left,Released,1,1\n"), EventType::rightMouseDragged);
}

TEST(RecordingReader, CopesWithReleasesThatTheRecorderLost) {
    std::string rows;
    for (int count = 0; count < 10; ++count)
        rows += "0,0,Left,Pressed,1,1\n0,0,Right,Pressed,1,1\n0,0,Middle,Pressed,1,1\n";
    EXPECT_EQ(dragTypeAfter(rows + "0,0,Right,Pressed,1,1\n"), EventType::rightMouseDragged);
    EXPECT_EQ(dragTypeAfter(rows + "0,0,Middle,Released,1,1\n"), EventType::rightMouseDragged);
}

TEST(RecordingReader, NeverLetsTheTimeRunBackwards) {
    const Recording recording = recordingIn(Header + "1,1.5,NoButton,Move,1,1\n2,1.25,NoButton,Move,2,2\n"
                                                     "3,1.5,NoButton,Move,3,3\n4,1.75,NoButton,Move,4,4\n");

    ASSERT_EQ(recording.motions.size(), 4U);
    EXPECT_EQ(recording.motions[0].time, 1500ms);
    EXPECT_EQ(recording.motions[1].time, 1500ms);
    EXPECT_EQ(recording.motions[2].time, 1500ms);
    EXPECT_EQ(recording.motions[3].time, 1750ms);
}

TEST(RecordingReader, DoesNotTakeTimesFromRowsThatAreNoMotion) {
    const Recording recording =
        recordingIn(Header + "0,9,Left,Pressed,1,1\n0,9,NoButton,Move,65535,65535\n0,2,NoButton,Move,1,1\n");

    EXPECT_EQ(recording.motions.at(0).time, 2s);
}

TEST(RecordingReader, ReadsTimesInExponentNotation) {
    EXPECT_EQ(recordingIn(Header + "1e-05,1.5e-05,NoButton,Move,1,1\n").motions.at(0).time, 15us);
}

TEST(RecordingReader, AcceptsTheLongestTime) {
    EXPECT_EQ(recordingIn(Header + "0,9000000000,NoButton,Move,1,1\n").motions.at(0).time, 9'000'000'000s);
}

const std::string PlainText = Header + "0,0,NoButton,Move,1,2\n0,1,NoButton,Move,3,4\n";

TEST(RecordingReader, AcceptsLinesThatEndLikeOnWindows) {
    std::string text;
    for (const char character : PlainText) {
        if (character == '\n')
            text += '\r';
        text += character;
    }

    EXPECT_EQ(recordingIn(text), recordingIn(PlainText));
}

TEST(RecordingReader, AcceptsALastLineWithoutLineEnd) {
    EXPECT_EQ(recordingIn(PlainText.substr(0, PlainText.size() - 1)), recordingIn(PlainText));
}

TEST(RecordingReader, AcceptsAByteOrderMark) {
    EXPECT_EQ(recordingIn("\xEF\xBB\xBF" + PlainText), recordingIn(PlainText));
}

TEST(RecordingReader, AcceptsALineOfTheGreatestLength) {
    const std::string rest = ",Pressed,1,1";
    const std::string start = "0,0,";
    const std::string name(LineReader::LongestLine - start.size() - rest.size(), 'B');

    EXPECT_EQ(recordingIn(PlainText + start + name + rest + "\n").skipped.buttons, 1U);
    EXPECT_EQ(recordingIn(PlainText + start + name + rest).skipped.buttons, 1U);
}

TEST(RecordingReader, AcceptsButtonNamesInAnyLanguage) {
    EXPECT_EQ(recordingIn(PlainText + "0,2,M\xC3\xA4usetaste,Pressed,1,1\n").skipped.buttons, 1U);
}

} // namespace
} // namespace kestrune::replay
