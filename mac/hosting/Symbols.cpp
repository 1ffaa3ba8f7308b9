#include "mac/hosting/Symbols.h"

#include "mac/c/Graphics.h"
#include "mac/hosting/Colors.h"
#include "mac/hosting/Fonts.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

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
    appKit.image.drawInRect(image, frame, Rect(), SourceOver, opacity, truth(true), nullptr);
}

// A template image takes a tint from an image view, and from nobody else.
Retained tinted(id image, id color) {
    const Size size = appKit.image.size(image);
    const Rect all(0, 0, size.width, size.height);
    Retained result = Retained::adopting(appKit.image.initWithSize(allocate(appKit.image), size));
    appKit.image.lockFocus(result.get());
    drawImage(image, all, 1);
    appKit.color.set(color);
    NSRectFillUsingOperation(all, SourceAtop);
    appKit.image.unlockFocus(result.get());
    return result;
}

} // namespace

Retained symbolImage(const ui::StyledSymbol& symbol) {
    const id image = appKit.image.imageWithSystemSymbolName(nsString(symbol.name).get(), nullptr);
    const id configuration = appKit.imageSymbolConfiguration.configurationWithPointSize(
        symbol.font.size, platformWeight(symbol.font.weight), platformScale(symbol.scale));
    const id configured =
        configuration != nullptr ? appKit.image.imageWithSymbolConfiguration(image, configuration) : nullptr;
    return Retained::retaining(configured != nullptr ? configured : image);
}

void drawSymbol(const ui::StyledSymbol& symbol, const Rect& frame, double opacity) {
    const Retained image = symbolImage(symbol);
    if (!image) {
        return;
    }
    const Size size = appKit.image.size(image.get());
    drawImage(tinted(image.get(), platformColor(symbol.color)).get(),
              {frame.origin.x + (frame.size.width - size.width) / 2,
               frame.origin.y + (frame.size.height - size.height) / 2, size.width, size.height},
              opacity);
}

} // namespace kestrune::mac
