#include "desk/paint/toolkit/TextMeasure.h"

namespace kestrune::desk {

TextMeasure::TextMeasure()
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1)),
      context_(cairo_create(surface_.get())),
      text_(context_.get()) {}

double TextMeasure::width(std::string_view text, const TextStyle& style) { return text_.width(text, style); }

} // namespace kestrune::desk
