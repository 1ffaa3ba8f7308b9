#include "desk/live/world/News.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kestrune::desk {

namespace {

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (std::size_t index = 0; index < parts.size(); ++index) {
        if (index > 0) {
            text += index + 1 == parts.size() ? " and " : ", ";
        }
        text += parts[index];
    }
    return text;
}

} // namespace

News newsOfPin(const std::string& display, bool hasDock) {
    return {hasDock ? display + " is pinned and has the Dock"
                    : display + " is pinned: push into its bottom edge, and the Dock comes",
            Occurrence::neutral};
}

News newsOfLaunch(const Standing& standing) {
    if (standing.isWatching && standing.isEnabled) {
        return {"Kestrune has started and waits for the Accessibility permission", Occurrence::warning};
    }
    return newsOfGuard(standing);
}

News newsOfGuard(const Standing& standing) {
    if (!standing.isEnabled) {
        return {"Guard off: the Dock goes wherever the pointer pushes it", Occurrence::neutral};
    }
    if (!standing.guardRuns) {
        return {"Guard on, but the system gave it no event tap", Occurrence::warning};
    }
    return {standing.pinned ? "Guard on: only " + *standing.pinned + " may have the Dock"
                            : "Guard on, but no display is connected",
            Occurrence::neutral};
}

namespace {

News newsOfPermission(const Standing& standing) {
    if (!standing.applicationRuns) {
        const bool isGranted = standing.permission == sim::Permission::granted;
        return {std::string("Accessibility permission ") + (isGranted ? "granted" : "revoked") +
                    "; Kestrune does not run",
                Occurrence::neutral};
    }
    if (standing.permission == sim::Permission::notListed) {
        return {"Kestrune is no longer in the Accessibility list", Occurrence::neutral};
    }
    if (standing.permission != sim::Permission::granted) {
        return {standing.guardRuns ? "Accessibility permission revoked: the system waits a second for a tap "
                                     "that never answers"
                                   : "Accessibility permission revoked: the guard cannot start",
                Occurrence::warning};
    }
    const std::string granted = "Accessibility permission granted";
    if (standing.guardRuns) {
        return {granted + ": the tap answers again", Occurrence::neutral};
    }
    if (!standing.isEnabled) {
        return {granted + "; the guard is off", Occurrence::neutral};
    }
    return {granted + (standing.isWatching ? ": Kestrune looks for it once a second"
                                           : ": Kestrune notices when its menu opens"),
            Occurrence::neutral};
}

// A title of the first that the second does not have.
std::optional<std::string> missingIn(const std::vector<std::string>& second,
                                     const std::vector<std::string>& first) {
    const auto missing = std::find_if(first.begin(), first.end(), [&second](const std::string& title) {
        return std::find(second.begin(), second.end(), title) == second.end();
    });
    return missing != first.end() ? std::optional(*missing) : std::nullopt;
}

// An alert has no title.
bool isTitled(const std::string& title) { return !title.empty(); }

std::optional<News> newsOfLoginItem(AppServiceStatus before, AppServiceStatus after) {
    if (before == after) {
        return std::nullopt;
    }
    switch (after) {
    case AppServiceStatus::enabled:
        return News{"Kestrune will open when the user logs in", Occurrence::neutral};
    case AppServiceStatus::requiresApproval:
        return News{"Kestrune may not open at login until System Settings allows it", Occurrence::warning};
    case AppServiceStatus::notRegistered:
    case AppServiceStatus::notFound:
        return News{"Kestrune will not open when the user logs in", Occurrence::neutral};
    }
    return std::nullopt;
}

std::optional<News> newsOfWindows(const Standing& before, const Standing& after) {
    if (const auto minimized = missingIn(before.miniaturized, after.miniaturized)) {
        return News{"Kestrune's window “" + *minimized + "” is in the Dock", Occurrence::neutral};
    }
    const auto taken = missingIn(after.miniaturized, before.miniaturized);
    if (taken && missingIn(before.windows, after.windows) == taken) {
        return News{"Kestrune's window “" + *taken + "” is back from the Dock", Occurrence::neutral};
    }
    if (const auto opened = missingIn(before.windows, after.windows); opened && isTitled(*opened)) {
        return News{"Kestrune opened its window “" + *opened + "”", Occurrence::neutral};
    }
    if (const auto closed = missingIn(after.windows, before.windows)) {
        if (!isTitled(*closed)) {
            return News{"The alert is closed", Occurrence::neutral};
        }
        return News{"Kestrune's window “" + *closed + "” is closed", Occurrence::neutral};
    }
    return std::nullopt;
}

} // namespace

std::optional<News> newsOfChange(const Standing& before, const Standing& after) {
    if (before.applicationRuns && !after.applicationRuns) {
        return News{"Kestrune has quit: the Dock goes wherever the pointer pushes it", Occurrence::neutral};
    }
    if (before.permission != after.permission) {
        return newsOfPermission(after);
    }
    if (before.choice != after.choice && after.pinned) {
        return newsOfPin(*after.pinned, after.pinnedHasDock);
    }
    if (before.isEnabled != after.isEnabled || before.guardRuns != after.guardRuns) {
        return newsOfGuard(after);
    }
    if (after.mails > before.mails) {
        return News{"Mail shows the mail that Kestrune composed; nothing is sent", Occurrence::neutral};
    }
    if (auto news = newsOfLoginItem(before.loginItem, after.loginItem)) {
        return news;
    }
    return newsOfWindows(before, after);
}

News newsOfControl(const std::string& title) {
    return {"“" + title + "” was pressed in Kestrune's window", Occurrence::neutral};
}

News newsOfChoiceWithoutEffect(const std::string& row, const Standing& standing) {
    if (!standing.windows.empty()) {
        return {"“" + row + "” brings “" + standing.windows.front() + "” to the front", Occurrence::neutral};
    }
    return {"“" + row + "” changed nothing", Occurrence::neutral};
}

News newsOfClosedMenu(const Standing& standing) {
    return standing.applicationRuns
               ? News{"Kestrune's menu does not offer that before its setup is complete", Occurrence::warning}
               : News{"Kestrune does not run", Occurrence::neutral};
}

News newsOfUnplugging(const std::string& display, const Standing& before, const Standing& after) {
    std::string text = display + " was unplugged";
    if (!after.primary) {
        const bool isForgotten = before.choice && !after.choice;
        return {text + ": no display is left" + (isForgotten ? ", and the pin is forgotten" : ""),
                Occurrence::warning};
    }
    std::vector<std::string> moved;
    if (before.pinned != after.pinned && after.pinned == after.primary) {
        moved.emplace_back("the pin");
    }
    if (before.dock != after.dock && after.dock == after.primary) {
        moved.emplace_back("the Dock");
    }
    if (!moved.empty()) {
        text += "; " + joined(moved) + " moved to " + *after.primary;
    }
    if (before.primary != after.primary) {
        text += moved.empty() ? "; " + *after.primary + " is the primary display now"
                              : ", the primary display now";
    }
    return {std::move(text), moved.empty() ? Occurrence::neutral : Occurrence::warning};
}

std::optional<News> newsOfUpdates(const Standing& before, const Standing& after) {
    if (!before.isShowingUpdate && after.isShowingUpdate) {
        return News{"The updater shows a new version", Occurrence::neutral};
    }
    if (before.isShowingAlert || !after.isShowingAlert) {
        return std::nullopt;
    }
    return after.feed == sim::UpdateFeed::unreachable
               ? News{"The updater tells that the feed cannot be reached", Occurrence::warning}
               : News{"The updater tells that there is nothing new", Occurrence::neutral};
}

News newsOfFeed(sim::UpdateFeed feed) {
    switch (feed) {
    case sim::UpdateFeed::nothingNew:
        return {"The update feed has nothing new", Occurrence::neutral};
    case sim::UpdateFeed::newVersion:
        return {"The update feed has a new version", Occurrence::neutral};
    case sim::UpdateFeed::unreachable:
        break;
    }
    return {"The update feed cannot be reached", Occurrence::neutral};
}

} // namespace kestrune::desk
