#include "ui/Font.h"

#include <array>
#include <cstddef>

namespace kestrune::ui {

namespace {

struct Metrics {
    double size;
    double lineHeight;
    FontWeight weight = FontWeight::regular;
};

// In the order of the text styles.
constexpr std::array<Metrics, 11> TextStyleMetrics{{
    {26, 32},
    {22, 26},
    {17, 22},
    {15, 20},
    {13, 16, FontWeight::bold},
    {13, 16},
    {12, 15},
    {11, 14},
    {10, 13},
    {10, 13},
    {10, 13, FontWeight::medium},
}};

const Metrics& metrics(TextStyle style) { return TextStyleMetrics.at(static_cast<std::size_t>(style)); }

} // namespace

Font Font::preferred(TextStyle style) { return {metrics(style).size, metrics(style).weight, style}; }

double lineHeight(TextStyle style) { return metrics(style).lineHeight; }

} // namespace kestrune::ui
