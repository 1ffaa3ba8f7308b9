// The sources on the session's one run loop.
#pragma once

#include "platform/RunLoop.h"
#include "sim/services/Tap.h"

#include <memory>
#include <vector>

namespace kestrune::sim {

class RunLoopSources {
public:
    // Retains `source`; a source that is in the mode already stays there once.
    void add(std::shared_ptr<void> source, std::shared_ptr<Tap> tap, RunLoopMode mode);

    void remove(const std::shared_ptr<void>& source, RunLoopMode mode);

    std::size_t count() const { return entries_.size(); }

    // The application's process has ended.
    void clear() { entries_.clear(); }

private:
    struct Entry {
        std::shared_ptr<void> source;
        std::shared_ptr<Tap> tap;
        RunLoopMode mode;
    };

    std::vector<Entry>::iterator find(const std::shared_ptr<void>& source, RunLoopMode mode);

    std::vector<Entry> entries_;
};

} // namespace kestrune::sim
