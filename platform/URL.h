// Uniform resource locators.
//
// Source: Foundation, NSURL.h.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kestrune {

// A retained NSURL.
class URL {
public:
    // +[NSURL URLWithString:]. Absent when the text is no URL.
    static std::optional<URL> withString(std::string_view text);

    // absoluteString, encoded.
    std::string absoluteString() const;

    struct State;
    explicit URL(std::shared_ptr<const State> state) : state_(std::move(state)) {}
    const std::shared_ptr<const State>& state() const { return state_; }

private:
    std::shared_ptr<const State> state_;
};

} // namespace kestrune
