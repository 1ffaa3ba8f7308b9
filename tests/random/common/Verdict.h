// What a session under test has done wrong first; the rest may follow from that.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace kestrune::simulate {

class Verdict {
public:
    // The first rule that was broken.
    const std::optional<std::string>& violation() const { return violation_; }

protected:
    void require(bool holds, const char* rule) {
        if (!holds) {
            violate(rule);
        }
    }

    void violate(std::string text) {
        if (!violation_) {
            violation_ = std::move(text);
        }
    }

private:
    std::optional<std::string> violation_;
};

} // namespace kestrune::simulate
