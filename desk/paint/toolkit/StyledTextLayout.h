// A text of a scene, laid out: what is measured is what is painted.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/PangoText.h"
#include "ui/Scene.h"

#include <optional>

namespace kestrune::desk {

// Ill-formed UTF-8 becomes replacement characters. Lines of a text style are as high as the style says.
class StyledTextLayout {
public:
    // `context` must outlive it.
    explicit StyledTextLayout(cairo_t* context);

    // In one line for each paragraph, or wrapped at a width: between words, and inside a word that is wider.
    void set(const ui::StyledText& text, std::optional<double> width);

    // In user units.
    Size size() const { return textSize(layout_.get()); }

    // In the context's colour.
    void fill(Point topLeft) const;

private:
    cairo_t* context_;
    TextLayoutHandle layout_;
};

} // namespace kestrune::desk
