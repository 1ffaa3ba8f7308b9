#include "desk/live/world/LivePicture.h"

#include "Kestrune/BlockedBand.h"
#include "desk/live/world/PinnedDisplay.h"
#include "desk/paint/desk/StatusBarPainter.h"
#include "replay/StoredChoices.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace kestrune::desk {

namespace {

constexpr sim::Duration HeldMarkLife = std::chrono::milliseconds(900);
constexpr sim::Duration DockMoveMarkLife = std::chrono::milliseconds(2500);

// The time of day at which every session begins.
constexpr sim::Duration StartOfSession = std::chrono::hours(9) + std::chrono::minutes(41);

std::string clockText(sim::Duration sinceStart) {
    const auto minutes = std::chrono::duration_cast<std::chrono::minutes>(StartOfSession + sinceStart);
    const long minuteOfDay = static_cast<long>(minutes.count() % (24 * 60));
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "Tue %ld:%02ld", minuteOfDay / 60, minuteOfDay % 60);
    return text.data();
}

GuardState guardState(sim::Session& session, const replay::ApplicationHost& host) {
    if (!host.isRunning() || !replay::StoredChoices(session.defaults()).isEnabled()) {
        return GuardState::off;
    }
    if (!session.accessibility().allowsActiveTaps()) {
        return GuardState::noPermission;
    }
    return host.guardIsRunning() ? GuardState::on : GuardState::off;
}

DisplayPicture pictureOfDisplay(const sim::Display& display, sim::Session& session) {
    DisplayPicture picture;
    picture.name = display.localizedName;
    picture.bounds = display.bounds;
    picture.pinned = &display == pinnedDisplay(session);
    if (!picture.pinned && session.displays().connected().size() >= 2) {
        picture.bandTop =
            BlockedBand(display.bounds, replay::StoredChoices(session.defaults()).blockMargin()).heldY();
    }
    picture.wallpaper = display.displayID - 1;
    return picture;
}

std::optional<std::size_t> indexOf(DisplayID number, sim::Session& session) {
    const auto& displays = session.displays().connected();
    for (std::size_t index = 0; index < displays.size(); ++index) {
        if (displays[index].displayID == number) {
            return index;
        }
    }
    return std::nullopt;
}

DeskPicture pictureOfSession(sim::Session& session, const replay::ApplicationHost& host) {
    DeskPicture picture;
    for (const sim::Display& display : session.displays().connected()) {
        picture.displays.push_back(pictureOfDisplay(display, session));
    }
    if (const auto dock = session.dock().display()) {
        picture.dockDisplay = indexOf(*dock, session);
    }
    picture.pointer = session.pointer();
    picture.guard = guardState(session, host);
    picture.clock = clockText(session.clock().now());
    return picture;
}

void addCounts(DeskPicture& picture, const replay::Report& report) {
    picture.events = report.events;
    picture.held = report.changed;
    picture.dockMoves = report.dockMoves;
}

// From 0 just now to 1 after its life; absent from then on.
std::optional<double> ageOf(sim::Duration time, sim::Duration now, sim::Duration life) {
    const double age = static_cast<double>((now - time).count()) / static_cast<double>(life.count());
    return age < 1 ? std::optional(age) : std::nullopt;
}

void addMarks(DeskPicture& picture, LiveDesk& desk) {
    if (const auto& held = desk.heldPointer()) {
        if (const auto age = ageOf(held->time, desk.now(), HeldMarkLife)) {
            picture.heldMark = HeldMark{held->location, *age};
        }
    }
    if (const auto& move = desk.dockMove()) {
        const auto age = ageOf(move->time, desk.now(), DockMoveMarkLife);
        const auto from = indexOf(move->from, desk.session());
        const auto to = indexOf(move->to, desk.session());
        if (age && from && to) {
            picture.dockMoveMark = DockMoveMark{*from, *to, *age};
        }
    }
}

std::string counted(std::uint64_t count, const std::string& singular, const std::string& plural) {
    return groupedNumber(count) + " " + (count == 1 ? singular : plural);
}

} // namespace

DeskPicture pictureOf(LiveDesk& desk) {
    DeskPicture picture = pictureOfSession(desk.session(), desk.host());
    addCounts(picture, desk.report());
    addMarks(picture, desk);
    const News news = desk.news();
    picture.whatHappened = news.text;
    picture.occurrence = news.kind;
    desk.parts().addTo(picture);
    return picture;
}

DeskPicture pictureAfterReplay(replay::SimulatedDesk& desk, const replay::Report& report) {
    DeskPicture picture = pictureOfSession(desk.session(), desk.host());
    addCounts(picture, report);
    const std::string dock = picture.dockDisplay ? picture.displays[*picture.dockDisplay].name : "no display";
    picture.whatHappened = "The recording is over: the Dock ";
    if (report.dockMoves == 0) {
        picture.whatHappened += "stayed on " + dock;
        picture.occurrence = report.changed > 0 ? Occurrence::held : Occurrence::neutral;
    } else {
        picture.whatHappened += "moved " + counted(report.dockMoves, "time", "times") + " and is on " + dock;
        picture.occurrence = Occurrence::dockMoved;
    }
    if (report.violations > 0) {
        picture.whatHappened += "; " + counted(report.violations, "event", "events") + " against the rule";
        picture.occurrence = Occurrence::warning;
    }
    return picture;
}

} // namespace kestrune::desk
