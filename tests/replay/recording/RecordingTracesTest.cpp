// Reads whole recordings: those of people in the folder that KESTRUNE_TRACES names, if it is set, else
// made-up ones.
#include "replay/recording/MotionGenerator.h"
#include "replay/recording/RecordingReader.h"
#include "replay/recording/RecordingWriter.h"
#include "tests/base/TemporaryFolder.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace kestrune::replay {
namespace {

std::vector<std::filesystem::path> recordingsIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".csv")
            paths.push_back(entry.path());
    }
    return paths;
}

void writeMadeUpRecordings(const std::filesystem::path& folder) {
    for (const std::uint64_t seed : {1U, 2U, 3U}) {
        const auto path = folder / ("made-up-" + std::to_string(seed) + ".csv");
        ASSERT_EQ(writeRecording(path, generateRows({seed, 1280, 800, 20'000})), std::nullopt);
    }
}

std::size_t lineCount(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return static_cast<std::size_t>(
        std::count(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>(), '\n'));
}

void checkRecording(const std::filesystem::path& path) {
    SCOPED_TRACE(path);
    const ReadResult result = readRecording(path);
    if (const auto* error = std::get_if<InputError>(&result))
        FAIL() << error->message;

    const auto& recording = std::get<Recording>(result);
    const SkippedRows& skipped = recording.skipped;
    const std::size_t rows =
        recording.motions.size() + skipped.buttons + skipped.scrolling + skipped.unknownPositions;
    EXPECT_EQ(rows + 1, lineCount(path));
    EXPECT_TRUE(std::is_sorted(recording.motions.begin(), recording.motions.end(),
                               [](const Motion& one, const Motion& other) { return one.time < other.time; }));
    const Rect display(0, 0, recording.size.width, recording.size.height);
    EXPECT_TRUE(std::all_of(recording.motions.begin(), recording.motions.end(),
                            [&](const Motion& motion) { return display.contains(motion.position); }));
}

TEST(RecordingTraces, AccountForEveryLine) {
    const TemporaryFolder temporary;
    std::filesystem::path folder = temporary.path();
    if (const char* traces = std::getenv("KESTRUNE_TRACES"))
        folder = traces;
    else
        writeMadeUpRecordings(folder);

    const std::vector<std::filesystem::path> paths = recordingsIn(folder);

    ASSERT_FALSE(paths.empty()) << "no recording in " << folder;
    for (const auto& path : paths)
        checkRecording(path);
}

} // namespace
} // namespace kestrune::replay
