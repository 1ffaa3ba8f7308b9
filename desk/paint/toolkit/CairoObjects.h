// Owners for the objects of Cairo and Pango, so that each is released on every path.
#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <memory>

namespace kestrune::desk {

template <auto release>
struct ReleasedBy {
    template <typename Object>
    void operator()(Object* object) const {
        release(object);
    }
};

using ContextHandle = std::unique_ptr<cairo_t, ReleasedBy<cairo_destroy>>;
using SurfaceHandle = std::unique_ptr<cairo_surface_t, ReleasedBy<cairo_surface_destroy>>;
using PatternHandle = std::unique_ptr<cairo_pattern_t, ReleasedBy<cairo_pattern_destroy>>;
using FontOptionsHandle = std::unique_ptr<cairo_font_options_t, ReleasedBy<cairo_font_options_destroy>>;
using TextLayoutHandle = std::unique_ptr<PangoLayout, ReleasedBy<g_object_unref>>;
using FontDescriptionHandle = std::unique_ptr<PangoFontDescription, ReleasedBy<pango_font_description_free>>;
using AttributesHandle = std::unique_ptr<PangoAttrList, ReleasedBy<pango_attr_list_unref>>;
using CharactersHandle = std::unique_ptr<char, ReleasedBy<g_free>>;

// Keeps the context's clip, transformation, source and line settings as they are now for the time after its
// scope.
class SavedState {
public:
    explicit SavedState(cairo_t* context) : context_(context) { cairo_save(context_); }
    ~SavedState() { cairo_restore(context_); }

    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;

private:
    cairo_t* context_;
};

} // namespace kestrune::desk
