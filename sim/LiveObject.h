// An object of the platform's that the application retains: counted while it lives, journaled when it goes.
#pragma once

#include <cstdint>
#include <string_view>

namespace kestrune::sim {

// Member of an implementation's state, so that it lives as long as the last reference.
class LiveObject {
public:
    // `kind` must have static storage, such as "tap" or "uuid".
    explicit LiveObject(std::string_view kind);
    ~LiveObject();

    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;

private:
    std::string_view kind_;
    std::uint64_t sessionNumber_;
};

} // namespace kestrune::sim
