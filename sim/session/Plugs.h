// The displays that can be unplugged and plugged in again.
#pragma once

#include "sim/session/Session.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::sim {

// A display that comes or goes, and the arrangement that results.
struct PlugChange {
    std::string name;
    std::vector<Display> arrangement;
};

class Plugs {
public:
    // A key for each digit but 0 chooses one of them.
    static constexpr std::size_t MostDisplays = 9;

    // `session` must outlive the plugs.
    explicit Plugs(Session& session) : session_(session) {}

    // Absent when no display is there.
    std::optional<PlugChange> unplug(Point location);

    // The display that was unplugged last, where it was if the others are the same; otherwise a new one.
    // Absent when there are as many as the keys can choose.
    std::optional<PlugChange> plugIn();

private:
    struct Unplugged {
        Display display;
        std::vector<Display> arrangement; // before it was unplugged
    };

    std::vector<Display> arrangementWith(Unplugged unplugged);

    Session& session_;
    std::vector<Unplugged> unplugged_;
};

} // namespace kestrune::sim
