// An object of the platform's that the application retains: counted while it lives; its release may be
// journaled.
#pragma once

#include <memory>
#include <string_view>

namespace kestrune::sim {

class LiveObjects;

// Member of an implementation's state, so that it lives as long as the last reference.
class LiveObject {
public:
    // Core Foundation objects are released by a call, Objective-C objects by the last reference to them.
    enum class Release { recorded, unrecorded };

    // `kind` must have static storage, such as "tap" or "uuid".
    explicit LiveObject(std::string_view kind, Release release = Release::recorded);
    ~LiveObject();

    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;

private:
    std::string_view kind_;
    Release release_;
    std::weak_ptr<LiveObjects> all_;
};

} // namespace kestrune::sim
