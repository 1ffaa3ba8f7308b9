#include "replay/recording/MotionGenerator.h"
#include "replay/recording/RecordingReader.h"
#include "replay/recording/RecordingWriter.h"
#include "tests/replay/recording/MadeUpRecording.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <sstream>

namespace kestrune::replay {
namespace {

MotionGeneratorOptions anyGeneratorOptions(int leastSize, std::size_t rows) {
    MotionGeneratorOptions options;
    options.seed = *rc::gen::arbitrary<std::uint64_t>();
    options.width = *rc::gen::inRange(leastSize, 6000);
    options.height = *rc::gen::inRange(leastSize, 4000);
    options.rows = rows;
    return options;
}

RC_GTEST_PROP(MotionGeneratorProperties, RowsStayOnTheDisplayInWholePixelsAndMilliseconds, ()) {
    const MotionGeneratorOptions options = anyGeneratorOptions(1, 800);
    double time = 0;
    for (const RecordingRow& row : generateRows(options)) {
        RC_ASSERT(row.position.x >= 0 && row.position.x <= options.width - 1);
        RC_ASSERT(row.position.y >= 0 && row.position.y <= options.height - 1);
        RC_ASSERT(row.position.x == std::floor(row.position.x) &&
                  row.position.y == std::floor(row.position.y));
        RC_ASSERT(row.clientTime == std::round(row.clientTime * 1000) / 1000);
        RC_ASSERT(row.clientTime >= time);
        time = row.clientTime;
    }
}

RC_GTEST_PROP(MotionGeneratorProperties, TheSameOptionsGiveTheSameRows, ()) {
    const MotionGeneratorOptions options = anyGeneratorOptions(1, 300);
    RC_ASSERT(generateRows(options) == generateRows(options));
}

RC_GTEST_PROP(MotionGeneratorProperties, ReadingTheWrittenRowsGivesTheSameRecording, ()) {
    const MotionGeneratorOptions options = anyGeneratorOptions(1, 300);
    const Recording recording = madeUpRecording(options);
    std::stringstream file;
    writeRecording(file, generateRows(options));
    RC_ASSERT(readRecording(file, "walk.csv") == ReadResult(recording));
    RC_ASSERT(recording.size ==
              Size({static_cast<double>(options.width), static_cast<double>(options.height)}));
}

// The moves between two pauses. Rows of a moving hand are at most 16 ms apart and pauses last at least 20 ms.
struct Stroke {
    Point start;
    std::vector<RecordingRow> rows;

    double distanceAt(std::size_t index) const {
        return std::hypot(rows[index].position.x - start.x, rows[index].position.y - start.y);
    }
    double length() const { return distanceAt(rows.size() - 1); }
    double duration() const { return rows.back().clientTime - rows.front().clientTime; }

    // The share of the way that was covered at the share of the time.
    double progressAt(double share) const {
        const double time = rows.front().clientTime + share * duration();
        std::size_t index = 0;
        while (rows[index].clientTime < time)
            ++index;
        return distanceAt(index) / length();
    }
};

bool touchesEdge(Point point, const MotionGeneratorOptions& options) {
    return point.x == 0 || point.y == 0 || point.x == options.width - 1 || point.y == options.height - 1;
}

// The strokes that no edge of the display interrupts.
std::vector<Stroke> freeStrokes(const MotionGeneratorOptions& options) {
    std::vector<Stroke> strokes;
    const RecordingRow* previous = nullptr;
    const std::vector<RecordingRow> rows = generateRows(options);
    for (const RecordingRow& row : rows) {
        const bool continues = previous != nullptr && previous->state == RowState::move &&
                               row.state == RowState::move && row.clientTime - previous->clientTime < 0.0165;
        if (row.state == RowState::move && !continues)
            strokes.push_back({previous != nullptr ? previous->position : row.position, {}});
        if (row.state == RowState::move)
            strokes.back().rows.push_back(row);
        previous = &row;
    }
    strokes.pop_back(); // The last one may be cut.
    std::erase_if(strokes, [&](const Stroke& stroke) {
        return std::any_of(stroke.rows.begin(), stroke.rows.end(),
                           [&](const RecordingRow& row) { return touchesEdge(row.position, options); });
    });
    return strokes;
}

RC_GTEST_PROP(MotionGeneratorProperties, StrokesAreFastInTheMiddleAndSlowAtBothEnds, ()) {
    const MotionGeneratorOptions options = anyGeneratorOptions(900, 6000);
    int count = 0;
    for (const Stroke& stroke : freeStrokes(options)) {
        if (stroke.length() < 300)
            continue;
        ++count;
        const double early = stroke.progressAt(1.0 / 3);
        const double late = 1 - stroke.progressAt(2.0 / 3);
        RC_ASSERT(early > 0.1 && early < 0.33);
        RC_ASSERT(late > 0.1 && late < 0.33);
    }
    RC_ASSERT(count >= 5);
}

RC_GTEST_PROP(MotionGeneratorProperties, StrokesReportAfterEightToSixteenMilliseconds, ()) {
    for (const Stroke& stroke : freeStrokes(anyGeneratorOptions(900, 6000))) {
        for (std::size_t index = 1; index < stroke.rows.size(); ++index) {
            const double interval = stroke.rows[index].clientTime - stroke.rows[index - 1].clientTime;
            RC_ASSERT(interval < 0.0165);
            // The last row comes when the target is reached.
            RC_ASSERT(interval > 0.0075 || index + 1 == stroke.rows.size());
        }
    }
}

RC_GTEST_PROP(MotionGeneratorProperties, LongStrokesTakeLongerThanShortOnes, ()) {
    std::vector<Stroke> strokes = freeStrokes(anyGeneratorOptions(1500, 12'000));
    std::sort(strokes.begin(), strokes.end(),
              [](const Stroke& one, const Stroke& other) { return one.length() < other.length(); });
    RC_ASSERT(strokes.size() >= 12U);
    const auto third = static_cast<std::ptrdiff_t>(strokes.size() / 3);
    const auto mean = [third](auto begin) {
        return std::accumulate(begin, begin + third, 0.0,
                               [](double sum, const Stroke& stroke) { return sum + stroke.duration(); }) /
               static_cast<double>(third);
    };
    RC_ASSERT(mean(strokes.begin()) < mean(strokes.end() - third));
}

} // namespace
} // namespace kestrune::replay
