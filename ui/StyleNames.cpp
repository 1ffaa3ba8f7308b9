#include "ui/StyleNames.h"

#include <array>
#include <cstddef>

namespace kestrune::ui {

namespace {

// `names` in the order of the enumerators.
template <typename Enumeration, std::size_t Count>
std::string_view nameIn(const std::array<std::string_view, Count>& names, Enumeration value) {
    return names.at(static_cast<std::size_t>(value));
}

constexpr std::array<std::string_view, 11> TextStyleNames{"largeTitle", "title",   "title2",  "title3",
                                                          "headline",   "body",    "callout", "subheadline",
                                                          "footnote",   "caption", "caption2"};
constexpr std::array<std::string_view, 9> FontWeightNames{"ultraLight", "thin", "light", "regular", "medium",
                                                          "semibold",   "bold", "heavy", "black"};
constexpr std::array<std::string_view, 10> ColorNames{"primary",       "secondary", "tertiary", "accent",
                                                      "green",         "white",     "link",     "sectionFill",
                                                      "sectionBorder", "separator"};
constexpr std::array<std::string_view, 3> TextAlignmentNames{"leading", "center", "trailing"};
constexpr std::array<std::string_view, 3> ImageScaleNames{"small", "medium", "large"};
constexpr std::array<std::string_view, 4> ControlSizeNames{"mini", "small", "regular", "large"};
constexpr std::array<std::string_view, 3> ButtonRoleNames{"none", "cancel", "destructive"};
constexpr std::array<std::string_view, 2> CornerStyleNames{"circular", "continuous"};
constexpr std::array<std::string_view, 3> KeyboardShortcutNames{"none", "defaultAction", "cancelAction"};

} // namespace

std::string_view nameOf(TextStyle style) { return nameIn(TextStyleNames, style); }
std::string_view nameOf(FontWeight weight) { return nameIn(FontWeightNames, weight); }
std::string_view nameOf(Color color) { return nameIn(ColorNames, color); }
std::string_view nameOf(TextAlignment alignment) { return nameIn(TextAlignmentNames, alignment); }
std::string_view nameOf(ImageScale scale) { return nameIn(ImageScaleNames, scale); }
std::string_view nameOf(ControlSize size) { return nameIn(ControlSizeNames, size); }
std::string_view nameOf(ButtonRole role) { return nameIn(ButtonRoleNames, role); }
std::string_view nameOf(CornerStyle style) { return nameIn(CornerStyleNames, style); }
std::string_view nameOf(KeyboardShortcut shortcut) { return nameIn(KeyboardShortcutNames, shortcut); }

} // namespace kestrune::ui
