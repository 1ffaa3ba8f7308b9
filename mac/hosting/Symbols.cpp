#include "mac/hosting/Symbols.h"

#include "mac/Vocabulary.h"
#include "mac/c/Graphics.h"
#include "mac/hosting/Colors.h"
#include "mac/hosting/Fonts.h"
#include "mac/objc/Text.h"

namespace kestrune::mac {

namespace {

constexpr Unsigned SourceOver = 2; // NSCompositingOperationSourceOver
constexpr Unsigned SourceAtop = 5; // NSCompositingOperationSourceAtop

// As NSImageSymbolScale.
Integer platformScale(ui::ImageScale scale) {
    switch (scale) {
    case ui::ImageScale::small:
        return 1;
    case ui::ImageScale::large:
        return 3;
    case ui::ImageScale::medium:
        break;
    }
    return 2;
}

void drawImage(id image, const Rect& frame, double opacity) {
    ns_image::drawInRect(image, frame, Rect(), SourceOver, opacity, truth(true), nullptr);
}

// A template image takes a tint from an image view, and from nobody else.
Retained tinted(id image, id color) {
    const Size size = ns_image::size(image);
    const Rect all(0, 0, size.width, size.height);
    Retained result =
        Retained::adopting(ns_image::initWithSize(ns_object::alloc(ns_image::type.object()), size));
    ns_image::lockFocus(result.get());
    drawImage(image, all, 1);
    ns_color::set(color);
    NSRectFillUsingOperation(all, SourceAtop);
    ns_image::unlockFocus(result.get());
    return result;
}

} // namespace

Retained symbolImage(const ui::StyledSymbol& symbol) {
    const id image =
        ns_image::imageWithSystemSymbolName(ns_image::type.object(), nsString(symbol.name).get(), nullptr);
    const id configuration = ns_image_symbol_configuration::configurationWithPointSize(
        ns_image_symbol_configuration::type.object(), symbol.font.size, platformWeight(symbol.font.weight),
        platformScale(symbol.scale));
    return Retained::retaining(ns_image::imageWithSymbolConfiguration(image, configuration));
}

void drawSymbol(const ui::StyledSymbol& symbol, const Rect& frame, double opacity) {
    const Retained image = symbolImage(symbol);
    if (!image) {
        return;
    }
    const Size size = ns_image::size(image.get());
    drawImage(tinted(image.get(), platformColor(symbol.color)).get(),
              {frame.origin.x + (frame.size.width - size.width) / 2,
               frame.origin.y + (frame.size.height - size.height) / 2, size.width, size.height},
              opacity);
}

} // namespace kestrune::mac
