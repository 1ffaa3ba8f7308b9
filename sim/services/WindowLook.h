// How a window looks beyond its style.
#pragma once

namespace kestrune::sim {

enum class WindowLook {
    standard,
    sidebar, // with a list beside the content, up to the upper edge; the title is over the content
    paper,   // with a higher bar, and as white as what is written on
};

inline constexpr double SidebarWidth = 184;

} // namespace kestrune::sim
