// Declarative views as values, in the words of SwiftUI.
//
// A view says what is to be seen; `ui/layout/Layout.h` decides where. Copying one is cheap: the description
// is shared and never changes. Lengths are in points. A modifier gives a new view around the old one, so the
// order of modifiers matters as it does there.
#pragma once

#include "ui/Font.h"
#include "ui/Style.h"

#include <concepts>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrune::ui {

class ButtonStyle;
struct Node;

// `frame(width:height:alignment:)` and `frame(minWidth:…:maxHeight:alignment:)`. What is absent is left to
// the content; a maximum of infinity takes everything that is offered, and never less than the content.
struct Frame {
    std::optional<double> width = std::nullopt;
    std::optional<double> height = std::nullopt;
    std::optional<double> minWidth = std::nullopt;
    std::optional<double> minHeight = std::nullopt;
    std::optional<double> maxWidth = std::nullopt;
    std::optional<double> maxHeight = std::nullopt;
    Alignment alignment = {};
};

class View {
public:
    explicit View(std::shared_ptr<const Node> node) : node_(std::move(node)) {}

    View padding(double allEdges) const;
    View padding(const EdgeInsets& insets) const;
    View frame(const Frame& frame) const;

    // Keeps the content at its ideal size in that direction, whatever is offered.
    View fixedSize(bool horizontal = true, bool vertical = true) const;

    // Behind this view and of its size.
    View background(const View& behind, Alignment alignment = {}) const;

    // For this view and everything inside, unless something inside says otherwise.
    View font(const Font& font) const;
    View fontWeight(FontWeight weight) const;
    View foregroundStyle(ForegroundStyle style) const;
    View tint(Color color) const;
    View textCase(TextCase textCase) const;
    View multilineTextAlignment(TextAlignment alignment) const;
    View imageScale(ImageScale scale) const;
    View controlSize(ControlSize size) const;
    View buttonStyle(std::shared_ptr<const ButtonStyle> style) const;
    View formStyle(FormStyle style) const;
    View keyboardShortcut(KeyboardShortcut shortcut) const;
    View accessibilityHidden() const; // texts alone

    const Node& node() const { return *node_; }

private:
    std::shared_ptr<const Node> node_;
};

// A localizable text: `key` is looked up, each "%@" in what is found stands for the next argument and "%2$@"
// for the second one, and inline markdown is rendered: **bold**, and no other. Arguments are shown as they
// are.
View Text(std::string_view key, std::vector<std::string> arguments = {});

// `Text(verbatim:)`: shown as it is.
View VerbatimText(std::string_view text);

// `Image(systemName:)`: an SF Symbol, as large as the font says.
View SystemImage(std::string_view name);

// A title with a symbol before it.
View Label(std::string_view titleKey, std::string_view systemImage);

// Takes the room that is left in its stack; 8 points at least unless told otherwise.
View Spacer(std::optional<double> minimumLength = std::nullopt);

struct RoundedRectangleOptions {
    double cornerRadius = 0;
    CornerStyle cornerStyle = CornerStyle::circular;
    Color fill = Color::primary;
    double opacity = 1; // of the fill
    // As `strokeBorder(_:lineWidth:)`, the fill being the line's: inside the edge. 0: all of it is filled.
    double lineWidth = 0;
};

// As large as what is offered.
View RoundedRectangle(const RoundedRectangleOptions& options);

// Absent spacing is the system's 8 points.
struct VStackOptions {
    HorizontalAlignment alignment = HorizontalAlignment::center;
    std::optional<double> spacing = std::nullopt;
};
struct HStackOptions {
    VerticalAlignment alignment = VerticalAlignment::center;
    std::optional<double> spacing = std::nullopt;
};
View VStack(const VStackOptions& options, std::vector<View> children);
View HStack(const HStackOptions& options, std::vector<View> children);

// The same with the children where they are; none is kept as a pointer.
View VStackOf(const VStackOptions& options, std::span<const View* const> children);
View HStackOf(const HStackOptions& options, std::span<const View* const> children);

// The same with the children one after the other.
template <std::same_as<View>... Views>
View VStack(const VStackOptions& options, const View& first, const Views&... others) {
    const View* const children[] = {&first, &others...};
    return VStackOf(options, std::span<const View* const>(children)); // GCOVR_EXCL_BR_LINE
}
template <std::same_as<View>... Views>
View HStack(const HStackOptions& options, const View& first, const Views&... others) {
    const View* const children[] = {&first, &others...};
    return HStackOf(options, std::span<const View* const>(children)); // GCOVR_EXCL_BR_LINE
}

View Button(std::string_view titleKey, std::function<void()> action, ButtonRole role = ButtonRole::none);

// A switch with a label. `set` is called with the new state when the user flips it.
View Toggle(std::string_view titleKey, bool isOn, std::function<void(bool)> set);

// In the grouped style a box for each section, as wide as what is offered, and always of the ideal height:
// nothing scrolls. Otherwise the rows stand under one another.
View Form(std::vector<View> sections);
View Section(std::vector<View> rows);

// How a button looks.
class ButtonStyle {
public:
    struct Configuration {
        View label;
        bool isPressed = false;
        ButtonRole role = ButtonRole::none;
    };

    // What the platform draws itself; `custom` is drawn from `makeBody`.
    enum class Kind { bordered, link, custom };

    virtual ~ButtonStyle() = default;

    virtual Kind kind() const { return Kind::custom; }
    virtual View makeBody(const Configuration& configuration) const = 0;

    // The push button of the system, and the look of a link.
    static std::shared_ptr<const ButtonStyle> automatic();
    static std::shared_ptr<const ButtonStyle> link();

protected:
    ButtonStyle() = default;
    ButtonStyle(const ButtonStyle&) = default;
    ButtonStyle& operator=(const ButtonStyle&) = default;
};

} // namespace kestrune::ui
