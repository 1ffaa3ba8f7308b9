#include "replay/recording/MotionGenerator.h"

#include "base/Fatal.h"
#include "replay/recording/SplitMix64.h"
#include "replay/recording/StrokeModel.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace kestrune::replay {
namespace {

constexpr int ShortestInterval = 8; // Milliseconds between rows of a moving hand.
constexpr int LongestInterval = 16;

constexpr double TremorPersistence = 0.7; // Share of the tremor that is left at the next row.
constexpr double TremorStep = 0.5;        // Pixels.
constexpr double LargestBow = 0.04;       // Sideways deviation of a stroke, as a share of its length.

// A hand at work, which writes down rows until it has as many as asked for.
class HandMotion {
public:
    explicit HandMotion(const MotionGeneratorOptions& options);

    std::vector<RecordingRow> work() &&;

private:
    bool isDone() const;
    void actOnce();
    void point();
    void pushAgainstEdge();
    void drag();
    void scroll();
    void pause(int least, int most) { time_ += random_.between(least, most); }
    void click(const std::string& button);
    void strokeTo(Point target, const FittsLaw& law, RowState state);
    void holdFor(int milliseconds);

    void record(const std::string& button, RowState state);
    void trembleAt(Point position);
    Point onDisplay(Point position) const;
    Point anyTarget();
    Point beyondAnyEdge();

    SplitMix64 random_;
    Point farCorner_;
    std::size_t mostRows_;
    std::int64_t time_ = 0; // Milliseconds.
    Point pointer_;
    Point tremor_;
    std::vector<RecordingRow> rows_;
};

HandMotion::HandMotion(const MotionGeneratorOptions& options)
    : random_(options.seed),
      farCorner_{static_cast<double>(options.width - 1), static_cast<double>(options.height - 1)},
      mostRows_(options.rows),
      pointer_(farCorner_) {}

std::vector<RecordingRow> HandMotion::work() && {
    record("NoButton", RowState::move);
    while (!isDone())
        actOnce();
    return std::move(rows_);
}

bool HandMotion::isDone() const { return rows_.size() >= mostRows_; }

void HandMotion::actOnce() {
    const int choice = random_.between(0, 99);
    if (choice < 55)
        point();
    else if (choice < 75)
        pushAgainstEdge();
    else if (choice < 87)
        drag();
    else if (choice < 95)
        scroll();
    else
        pause(500, 4000);
    pause(60, 400);
}

void HandMotion::point() {
    strokeTo(anyTarget(), MousePointing, RowState::move);
    const int choice = random_.between(0, 9);
    if (choice < 5)
        click("Left");
    else if (choice == 5)
        click("Right");
}

// The hand aims at a place beyond the edge; the pointer stops at the edge and stays there while the hand goes
// on.
void HandMotion::pushAgainstEdge() {
    strokeTo(beyondAnyEdge(), MousePointing, RowState::move);
    holdFor(random_.between(200, 1500));
}

void HandMotion::drag() {
    strokeTo(anyTarget(), MousePointing, RowState::move);
    pause(20, 120);
    const int choice = random_.between(0, 9);
    const std::string button = choice < 7 ? "Left" : choice < 9 ? "Right" : "Middle";
    record(button, RowState::pressed);
    pause(30, 150);
    // A drag goes to the edge now and then, as when a window is pushed aside.
    const Point target = random_.between(0, 3) == 0 ? beyondAnyEdge() : anyTarget();
    strokeTo(target, MouseDragging, RowState::drag);
    pause(20, 120);
    record(button, RowState::released);
}

void HandMotion::scroll() {
    const RowState direction = random_.between(0, 2) == 0 ? RowState::up : RowState::down;
    for (int count = random_.between(1, 12); count > 0; --count) {
        record("Scroll", direction);
        pause(20, 90);
    }
}

void HandMotion::click(const std::string& button) {
    pause(40, 200);
    record(button, RowState::pressed);
    pause(50, 130);
    record(button, RowState::released);
}

void HandMotion::strokeTo(Point target, const FittsLaw& law, RowState state) {
    const int targetWidth = random_.between(12, 120);
    const Point start = pointer_;
    const Point way{target.x - start.x, target.y - start.y};
    const double distance = std::sqrt(way.x * way.x + way.y * way.y);
    const std::int64_t duration = strokeDuration(law, distance, targetWidth).count();
    const std::int64_t startTime = time_;
    const double bow = random_.around(LargestBow);
    while (!isDone()) {
        const std::int64_t elapsed =
            std::min(time_ - startTime + random_.between(ShortestInterval, LongestInterval), duration);
        const double progress =
            minimumJerkProgress(static_cast<double>(elapsed) / static_cast<double>(duration));
        const double aside = bow * 4 * progress * (1 - progress);
        time_ = startTime + elapsed;
        trembleAt({start.x + way.x * progress - way.y * aside, start.y + way.y * progress + way.x * aside});
        record("NoButton", state);
        if (elapsed == duration)
            break;
    }
}

void HandMotion::holdFor(int milliseconds) {
    const std::int64_t end = time_ + milliseconds;
    const Point held = pointer_;
    // The hand still presses outwards, so the tremor shows along the edge and not across it.
    const Point outwards{held.x == 0              ? -8.0
                         : held.x == farCorner_.x ? 8.0
                                                  : 0.0,
                         held.y == 0              ? -8.0
                         : held.y == farCorner_.y ? 8.0
                                                  : 0.0};
    while (time_ < end && !isDone()) {
        pause(ShortestInterval, LongestInterval);
        trembleAt({held.x + outwards.x, held.y + outwards.y});
        record("NoButton", RowState::move);
    }
}

void HandMotion::record(const std::string& button, RowState state) {
    if (isDone())
        return;
    const double seconds = static_cast<double>(time_) / 1000;
    rows_.push_back({seconds, seconds, button, state, pointer_});
}

// Puts the pointer at the position, displaced by a little noise that changes gradually.
void HandMotion::trembleAt(Point position) {
    tremor_.x = tremor_.x * TremorPersistence + random_.around(TremorStep);
    tremor_.y = tremor_.y * TremorPersistence + random_.around(TremorStep);
    pointer_ = onDisplay({position.x + tremor_.x, position.y + tremor_.y});
}

Point HandMotion::onDisplay(Point position) const {
    return {std::clamp(std::floor(position.x + 0.5), 0.0, farCorner_.x),
            std::clamp(std::floor(position.y + 0.5), 0.0, farCorner_.y)};
}

Point HandMotion::anyTarget() {
    return onDisplay({random_.unit() * farCorner_.x, random_.unit() * farCorner_.y});
}

Point HandMotion::beyondAnyEdge() {
    const Point along = anyTarget();
    const double depth = random_.between(20, 200);
    const int choice = random_.between(0, 9);
    if (choice < 6)
        return {along.x, farCorner_.y + depth};
    if (choice < 7)
        return {along.x, -depth};
    return {choice == 7 ? -depth : farCorner_.x + depth, along.y};
}

void checkOptions(const MotionGeneratorOptions& options) {
    const auto fits = [](int side) { return side >= 1 && side <= MotionGeneratorOptions::LargestSide; };
    if (!fits(options.width) || !fits(options.height))
        fatal("A generated recording needs a display of 1 to 65535 pixels in width and height.");
    if (options.rows == 0)
        fatal("A generated recording needs at least one row.");
}

} // namespace

std::vector<RecordingRow> generateRows(const MotionGeneratorOptions& options) {
    checkOptions(options);
    return HandMotion(options).work();
}

} // namespace kestrune::replay
