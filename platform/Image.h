// Images of the application's resources.
//
// Source: AppKit, NSImage.h; developer.apple.com, NSImage.init(named:).
#pragma once

#include "base/Geometry.h"

#include <memory>
#include <optional>
#include <string_view>

namespace kestrune {

// A retained NSImage.
class Image {
public:
    // +[NSImage imageNamed:], which looks for a file of that name, with any extension, among the main
    // bundle's resources; a file with "@2x" after the name is for screens of double density. Absent when
    // there is none. The same name gives the same object each time.
    static std::optional<Image> imageNamed(std::string_view name);

    // setTemplate:. A template image is a mask that takes the colour of its surroundings.
    void setTemplate(bool isTemplate);

    // setSize:, in points.
    void setSize(Size size);

    struct State;
    explicit Image(std::shared_ptr<State> state);
    const std::shared_ptr<State>& state() const { return state_; }

private:
    std::shared_ptr<State> state_;
};

} // namespace kestrune
