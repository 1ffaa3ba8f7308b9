#include "replay/recording/LineReader.h"
#include "tests/base/TemporaryFolder.h"
#include "tests/replay/recording/RecordingText.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <streambuf>

namespace kestrune::replay {
namespace {

const std::string GoodRow = "0,0,NoButton,Move,1,2\n";

const std::string HeaderExpected =
    "walk.csv:1: expected the header \"record timestamp,client timestamp,button,state,x,y\", found ";

std::string refusalOfRow(const std::string& row) {
    return refusalOf(Header + GoodRow + row + "\n" + GoodRow);
}

std::string refusalOfFile(const std::filesystem::path& path) {
    const ReadResult result = readRecording(path);
    const auto* error = std::get_if<InputError>(&result);
    return error == nullptr ? "accepted" : error->message;
}

TEST(RecordingRefusal, OfAMissingFile) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "walk.csv";

    EXPECT_EQ(refusalOfFile(path),
              path.string() +
                  ": expected a recording, but the file cannot be opened: No such file or directory");
}

TEST(RecordingRefusal, OfADirectory) {
    const TemporaryFolder folder;

    EXPECT_EQ(refusalOfFile(folder.path()),
              folder.path().string() + ": expected a recording, found a directory");
}

TEST(RecordingRefusal, NamesTheFileAsItWasGiven) {
    const TemporaryFolder folder;
    const auto path = folder.file("walk.csv", Header + GoodRow + "0,0,NoButton,Move,abc,5\n");

    EXPECT_EQ(refusalOfFile(path), path.string() + ":3: expected a number for x, found \"abc\"");
}

TEST(RecordingRefusal, KeepsToOneLineWhateverTheNameOfTheFile) {
    std::istringstream input;
    const ReadResult result = readRecording(input, "a\nb\x7F\xC3\xA4.csv");

    ASSERT_TRUE(std::holds_alternative<InputError>(result));
    EXPECT_EQ(std::get<InputError>(result).message.substr(0, 20), "a\\x0Ab\\x7F\xC3\xA4.csv:1: ");
}

TEST(RecordingRefusal, OfAnEmptyFile) { EXPECT_EQ(refusalOf(""), HeaderExpected + "an empty file"); }

TEST(RecordingRefusal, OfAFileWithNothingButAByteOrderMark) {
    EXPECT_EQ(refusalOf("\xEF\xBB\xBF"), HeaderExpected + "\"\"");
}

TEST(RecordingRefusal, OfAWrongHeader) {
    EXPECT_EQ(refusalOf(GoodRow), HeaderExpected + "\"0,0,NoButton,Move,1,2\"");
    EXPECT_EQ(refusalOf("Record timestamp,client timestamp,button,state,x,y\n" + GoodRow),
              HeaderExpected + "\"Record timestamp,client timestamp,button\"...");
    EXPECT_EQ(refusalOf(" " + Header + GoodRow),
              HeaderExpected + "\" record timestamp,client timestamp,butto\"...");
    EXPECT_EQ(refusalOf("\n" + Header + GoodRow), HeaderExpected + "\"\"");
}

TEST(RecordingRefusal, OfAHeaderAlone) {
    const std::string message =
        "walk.csv:2: expected a Move or Drag row with a known position, found the end of the file";
    EXPECT_EQ(refusalOf(Header), message);
    EXPECT_EQ(refusalOf(Header.substr(0, Header.size() - 1)), message);
}

TEST(RecordingRefusal, OfRowsWithoutAnyMotion) {
    EXPECT_EQ(refusalOf(Header + "0,0,Left,Pressed,1,2\n0,0,Scroll,Up,1,2\n0,0,NoButton,Move,65535,2\n"),
              "walk.csv:5: expected a Move or Drag row with a known position, found the end of the file");
}

TEST(RecordingRefusal, OfARowWithTooFewColumns) {
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,290"), "walk.csv:3: expected 6 columns, found 5");
    EXPECT_EQ(refusalOfRow("0"), "walk.csv:3: expected 6 columns, found 1");
}

TEST(RecordingRefusal, OfALastLineThatIsCutInTheMiddle) {
    EXPECT_EQ(refusalOf(Header + GoodRow + "0,0,NoBut"), "walk.csv:3: expected 6 columns, found 3");
    EXPECT_EQ(refusalOf(Header + GoodRow + "0,0,NoButton,Move,290,"),
              "walk.csv:3: expected a number for y, found \"\"");
    EXPECT_EQ(refusalOf(Header + GoodRow + "0,0,NoButton,Move,290,57\r"),
              "walk.csv:3: expected a number for y, found \"57\\x0D\"");
}

TEST(RecordingRefusal, OfARowWithTooManyColumns) {
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,1,2,3"), "walk.csv:3: expected 6 columns, found 7");
    EXPECT_EQ(refusalOfRow(std::string(500, ',')), "walk.csv:3: expected 6 columns, found 501");
}

TEST(RecordingRefusal, OfAnEmptyLine) {
    EXPECT_EQ(refusalOfRow(""), "walk.csv:3: expected 6 columns, found an empty line");
    EXPECT_EQ(refusalOf(Header + GoodRow + "\n"), "walk.csv:3: expected 6 columns, found an empty line");
}

TEST(RecordingRefusal, OfWhatIsNoNumber) {
    EXPECT_EQ(refusalOfRow("abc,0,NoButton,Move,1,2"),
              "walk.csv:3: expected a number for record timestamp, found \"abc\"");
    EXPECT_EQ(refusalOfRow("0,,NoButton,Move,1,2"),
              "walk.csv:3: expected a number for client timestamp, found \"\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,abc,2"), "walk.csv:3: expected a number for x, found \"abc\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,1,2 "), "walk.csv:3: expected a number for y, found \"2 \"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move, 1,2"), "walk.csv:3: expected a number for x, found \" 1\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,+1,2"), "walk.csv:3: expected a number for x, found \"+1\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,0x10,2"),
              "walk.csv:3: expected a number for x, found \"0x10\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,1,2\r\r"),
              "walk.csv:3: expected a number for y, found \"2\\x0D\"");
}

TEST(RecordingRefusal, OfInfinitiesAndNotANumber) {
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,inf,2"), "walk.csv:3: expected a number for x, found \"inf\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,1,-infinity"),
              "walk.csv:3: expected a number for y, found \"-infinity\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,1,1e999"),
              "walk.csv:3: expected a number for y, found \"1e999\"");
    EXPECT_EQ(refusalOfRow("0,nan,NoButton,Move,1,2"),
              "walk.csv:3: expected a number for client timestamp, found \"nan\"");
    EXPECT_EQ(refusalOfRow("NaN,0,NoButton,Move,1,2"),
              "walk.csv:3: expected a number for record timestamp, found \"NaN\"");
}

TEST(RecordingRefusal, OfNegativeNumbers) {
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,-1,2"),
              "walk.csv:3: expected a number from 0 to 65535 for x, found \"-1\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,1,-0"),
              "walk.csv:3: expected a number from 0 to 65535 for y, found \"-0\"");
    EXPECT_EQ(refusalOfRow("0,-0.5,NoButton,Move,1,2"),
              "walk.csv:3: expected a number from 0 to 9000000000 for client timestamp, found \"-0.5\"");
}

TEST(RecordingRefusal, OfNumbersThatAreTooLarge) {
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,65536,2"),
              "walk.csv:3: expected a number from 0 to 65535 for x, found \"65536\"");
    EXPECT_EQ(
        refusalOfRow("9000000001,0,NoButton,Move,1,2"),
        "walk.csv:3: expected a number from 0 to 9000000000 for record timestamp, found \"9000000001\"");
}

TEST(RecordingRefusal, OfAnUnknownState) {
    const std::string expected =
        "walk.csv:3: expected Move, Drag, Pressed, Released, Down or Up for state, found ";
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Jump,1,2"), expected + "\"Jump\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,move,1,2"), expected + "\"move\"");
    EXPECT_EQ(refusalOfRow("0,0,NoButton,,1,2"), expected + "\"\"");
}

TEST(RecordingRefusal, OfAMissingButton) {
    EXPECT_EQ(refusalOfRow("0,0,,Move,1,2"), "walk.csv:3: expected a name for button, found \"\"");
}

TEST(RecordingRefusal, ReportsTheFirstOfSeveralProblemsInALine) {
    EXPECT_EQ(refusalOfRow("0,bad,,Jump,-1,x"),
              "walk.csv:3: expected a number for client timestamp, found \"bad\"");
}

TEST(RecordingRefusal, OfNulBytes) {
    EXPECT_EQ(refusalOf(Header + GoodRow + std::string("0,0,No\0Button,Move,1,2\n", 23)),
              "walk.csv:3: expected text, found a NUL byte");
    EXPECT_EQ(refusalOf(std::string(100, '\0')), "walk.csv:1: expected text, found a NUL byte");
}

TEST(RecordingRefusal, OfTextThatIsNotUtf8) {
    EXPECT_EQ(refusalOfRow("0,0,N\xE4,Move,1,2"),
              "walk.csv:3: expected UTF-8 text, found the byte \"\\xE4\"");
    EXPECT_EQ(refusalOf("\xFF\xFEr"), "walk.csv:1: expected UTF-8 text, found the byte \"\\xFF\"");
}

TEST(RecordingRefusal, QuotesNoMoreThanFortyCharacters) {
    EXPECT_EQ(refusalOfRow("0,0,NoButton,Move,1," + std::string(900, '\x01')),
              "walk.csv:3: expected a number for y, found "
              "\"\\x01\\x01\\x01\\x01\\x01\\x01\\x01\\x01\\x01\\x01\"...");
}

TEST(RecordingRefusal, OfALineThatIsTooLong) {
    const std::string expected = "walk.csv:3: expected at most 1024 bytes in a line, found more: "
                                 "\"1111111111111111111111111111111111111111\"...";
    EXPECT_EQ(refusalOfRow(std::string(LineReader::LongestLine + 1, '1')), expected);
    EXPECT_EQ(refusalOf(Header + GoodRow + std::string(LineReader::LongestLine + 1, '1')), expected);
}

// Hands out the same character without end and counts how often it was asked for more.
class EndlessLine : public std::streambuf {
public:
    explicit EndlessLine(std::string start) : start_(std::move(start)), buffer_(start_) {
        setg(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
    }

    std::size_t handedOut() const { return handedOut_; }

protected:
    int_type underflow() override {
        buffer_.assign(4096, '7');
        handedOut_ += buffer_.size();
        setg(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
        return traits_type::to_int_type(buffer_[0]);
    }

private:
    std::string start_;
    std::string buffer_;
    std::size_t handedOut_ = 0;
};

TEST(RecordingRefusal, OfAnEndlessLineReadsOnlyItsBeginning) {
    EndlessLine endless(Header);
    std::istream input(&endless);

    const ReadResult result = readRecording(input, "walk.csv");

    ASSERT_TRUE(std::holds_alternative<InputError>(result));
    EXPECT_EQ(std::get<InputError>(result).message,
              "walk.csv:2: expected at most 1024 bytes in a line, found more: "
              "\"7777777777777777777777777777777777777777\"...");
    EXPECT_EQ(endless.handedOut(), 4096U);
}

TEST(RecordingRefusal, OfALineOfTenMegabytesInAFile) {
    const TemporaryFolder folder;
    const auto path = folder.file("walk.csv", Header + GoodRow + std::string(10'000'000, 'z') + "\n");

    EXPECT_EQ(refusalOfFile(path), path.string() + ":3: expected at most 1024 bytes in a line, found more: "
                                                   "\"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz\"...");
}

// Fails after its content, as a disk does.
class FailingInput : public std::streambuf {
public:
    explicit FailingInput(std::string content) : content_(std::move(content)) {
        setg(content_.data(), content_.data(), content_.data() + content_.size());
    }

protected:
    int_type underflow() override { throw std::ios_base::failure("input/output error"); }

private:
    std::string content_;
};

TEST(RecordingRefusal, OfAFileThatCannotBeReadToItsEnd) {
    FailingInput failing(Header + GoodRow + "0,1,NoButton,Move,3,4\n0,2,No");
    std::istream input(&failing);

    const ReadResult result = readRecording(input, "walk.csv");

    ASSERT_TRUE(std::holds_alternative<InputError>(result));
    EXPECT_EQ(std::get<InputError>(result).message, "walk.csv:4: expected another line, but reading failed");
}

} // namespace
} // namespace kestrune::replay
