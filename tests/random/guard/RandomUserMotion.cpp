// How the pointer is moved in a random session.
#include "tests/base/UnusualNumbers.h"
#include "tests/random/guard/Invariants.h"
#include "tests/random/guard/RandomUser.h"

#include <array>
#include <chrono>
#include <cmath>
#include <limits>

namespace kestrune::simulate {

namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

// The part of a stroke's way that is done after a part of its time: smooth at both ends, as hands move.
double strokeProgress(double time) { return time * time * time * (10 - time * (15 - 6 * time)); }

} // namespace

EventType RandomUser::eventType() {
    static constexpr std::array<EventType, 4> Types{EventType::mouseMoved, EventType::leftMouseDragged,
                                                    EventType::rightMouseDragged,
                                                    EventType::otherMouseDragged};
    return random_.chance(0.6) ? EventType::mouseMoved : random_.pick(Types);
}

const sim::Display* RandomUser::anyDisplay() {
    const std::vector<sim::Display>& displays = session_->displays();
    return displays.empty() ? nullptr : &random_.pick(displays);
}

void RandomUser::moveInSteps(Point difference, int steps, EventType type) {
    double done = 0;
    for (int step = 1; step <= steps; ++step) {
        const double progress = strokeProgress(static_cast<double>(step) / steps);
        session_->move(difference.x * (progress - done), difference.y * (progress - done), type);
        session_->advance(microseconds(random_.whole(500, 9000)));
        done = progress;
    }
}

std::string RandomUser::stroke() {
    const sim::Display* display = anyDisplay();
    Point target{random_.real(-4000, 4000), random_.real(-3000, 3000)};
    if (display != nullptr && random_.chance(0.8)) {
        const Rect& bounds = display->bounds;
        target = {random_.real(bounds.minX(), bounds.maxX()),
                  random_.real(bounds.minY(), bounds.maxY() + 30)};
    }
    const Point from = session_->pointer();
    const int steps = random_.whole(2, 24);
    moveInSteps({target.x - from.x, target.y - from.y}, steps, eventType());
    return "a stroke to " + textOf(target);
}

void RandomUser::pushDown(int pushes, double least, double most, sim::Duration longestPause) {
    const EventType type = eventType();
    for (int push = 0; push < pushes; ++push) {
        const double aside = random_.real(-2, 2);
        session_->move(aside, random_.real(least, most), type);
        session_->advance(microseconds(random_.whole(500, static_cast<int>(longestPause / microseconds(1)))));
    }
}

std::string RandomUser::pushAtBottomEdge() {
    const sim::Display* display = anyDisplay();
    if (display == nullptr) {
        return stroke();
    }
    const Rect bounds = display->bounds;
    std::string what = "a push at the bottom edge of " + display->localizedName;
    const Point above{random_.real(bounds.minX(), bounds.maxX()),
                      std::max(bounds.minY(), bounds.maxY() - random_.real(0, 60))};
    const Point from = session_->pointer();
    session_->move(above.x - from.x, above.y - from.y, EventType::mouseMoved);
    pushDown(random_.whole(4, 30), 0.5, 30, milliseconds(70));
    return what;
}

std::string RandomUser::creepIntoBottomEdge() {
    const sim::Display* display = anyDisplay();
    if (display == nullptr) {
        return stroke();
    }
    const Rect bounds = display->bounds;
    std::string what = "a slow push into the bottom edge of " + display->localizedName;
    const Point above{random_.real(bounds.minX(), bounds.maxX()), bounds.maxY() - random_.real(0.5, 8)};
    const Point from = session_->pointer();
    session_->move(above.x - from.x, above.y - from.y, EventType::mouseMoved);
    pushDown(random_.whole(10, 40), 0x1p-8, 1, milliseconds(30));
    return what;
}

void RandomUser::postEvent() {
    const EventType type = eventType();
    session_->post(type, remarkablePoint());
}

std::string RandomUser::postEvents() {
    const int posts = random_.whole(1, 16);
    for (int post = 0; post < posts; ++post) {
        postEvent();
    }
    return std::to_string(posts) + " posted events";
}

Point RandomUser::remarkablePoint() {
    const sim::Display* display = anyDisplay();
    if (display == nullptr || random_.chance(0.05)) {
        return {remarkableCoordinate(), remarkableCoordinate()};
    }
    return {remarkableX(display->bounds), remarkableY(display->bounds)};
}

double RandomUser::remarkableCoordinate() {
    static constexpr std::array<double, 10> Coordinates{0,
                                                        -0.0,
                                                        1e-300,
                                                        -1,
                                                        1e9,
                                                        -1e300,
                                                        std::numeric_limits<double>::max(),
                                                        Infinity,
                                                        -Infinity,
                                                        std::numeric_limits<double>::quiet_NaN()};
    return random_.pick(Coordinates);
}

double RandomUser::remarkableX(const Rect& bounds) {
    const std::array<double, 6> coordinates{
        bounds.minX(),
        std::nextafter(bounds.minX(), -Infinity),
        bounds.maxX(),
        std::nextafter(bounds.maxX(), -Infinity),
        bounds.maxX() - 0x1p-8,
        random_.chance(0.1) ? remarkableCoordinate() : bounds.minX() + bounds.width() / 2,
    };
    return random_.chance(0.6) ? random_.real(bounds.minX(), bounds.maxX()) : random_.pick(coordinates);
}

double RandomUser::remarkableY(const Rect& bounds) {
    const double bandTop = bounds.maxY() - 1 - replay::bandDepth(session_->expected().storedMargin);
    const std::array<double, 16> coordinates{
        bounds.minY(),
        bounds.minY() + 1,
        std::nextafter(bounds.minY() + 1, Infinity),
        std::nextafter(bounds.minY(), -Infinity),
        bounds.maxY(),
        std::nextafter(bounds.maxY(), -Infinity),
        bounds.maxY() - 1,
        bounds.maxY() + 1,
        bounds.maxY() - 5,
        bounds.maxY() - 4.5,
        bandTop,
        std::nextafter(bandTop, -Infinity),
        std::nextafter(bandTop, Infinity),
        bandTop + 0x1p-8,
        random_.real(bounds.minY(), bounds.maxY()),
        random_.chance(0.1) ? remarkableCoordinate() : bounds.maxY() - random_.real(0, 8),
    };
    return random_.pick(coordinates);
}

} // namespace kestrune::simulate
