// Writes what was delivered, one line for each event.
#pragma once

#include "replay/recording/InputError.h"
#include "sim/session/Session.h"

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>

namespace kestrune::replay {

// Lines of `index,type,x,y,deliveredX,deliveredY`: the event's number from 0, its raw type, where the
// hardware sent it and where it was delivered, in global display coordinates. Each number is the shortest
// text that reads back equal.
class Emission {
public:
    explicit Emission(std::string path);

    void write(std::uint64_t index, const sim::Delivery& delivery);

    // Closes the file; the error says what could not be written.
    std::optional<InputError> finish();

private:
    std::string path_;
    std::ofstream file_;
};

} // namespace kestrune::replay
