// SF Symbols, which GNUstep lacks, and the tint of an image view. The drawings are the harness's own; they
// are no bitmaps, and so are sharp in every size.
//
// This is what we believe the Mac does, and no proof of it: a symbol is a template image; it grows with the
// point size and the scale of its configuration, and is drawn in the tint of its image view; there is none
// for a name that nobody knows.
#include "tests/gnustep/standins/appkit/Symbols.h"

#include "base/Geometry.h"
#include "mac/objc/Retained.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/standins/appkit/SymbolDrawings.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Subclass.h"

#include <string>
#include <unordered_map>

namespace kestrune::gnustep {

namespace {

constexpr mac::Integer SmallScale = 1;
constexpr mac::Integer Large = 3;

using Configuration = SymbolConfiguration;

// What an image's representation draws.
struct Symbol {
    std::string name;
    Configuration configuration;
    mac::Retained color; // empty: black
};

using SymbolClass = Subclass<Symbol>;
using ConfigurationClass = Subclass<Configuration>;

double factor(mac::Integer scale) { return scale == SmallScale ? 0.8 : scale == Large ? 1.28 : 1; }

double heightOf(const Configuration& configuration) {
    return configuration.pointSize * 1.2 * factor(configuration.scale);
}

void drawSymbol(id drawing, SEL, id /*representation*/) {
    const Symbol& symbol = SymbolClass::of(drawing);
    const id color = symbol.color ? symbol.color.get() : send(classObject("NSColor"), "blackColor");
    drawSymbolNamed(symbol.name, heightOf(symbol.configuration), symbol.configuration.weight, color);
}

const SymbolClass& symbolClass() {
    static const SymbolClass type = SymbolClass("KestruneSymbol").method("drawSymbol:", drawSymbol);
    return type;
}

// What each image shows; a representation does not retain what draws it.
std::unordered_map<id, mac::Retained>& drawings() {
    static auto& ofImages = *new std::unordered_map<id, mac::Retained>;
    return ofImages;
}

id imageOf(const Symbol& symbol) {
    const auto drawing = mac::Retained::adopting(symbolClass().make(symbol));
    const double height = heightOf(symbol.configuration);
    const Size size{height * *symbolAspect(symbol.name), height};
    const auto representation = mac::Retained::adopting(
        send(send(classObject("NSCustomImageRep"), "alloc"),
             "initWithDrawSelector:delegate:", sel_registerName("drawSymbol:"), drawing.get()));
    send<void>(representation.get(), "setSize:", size);
    const id image = send(send(classObject("NSImage"), "alloc"), "initWithSize:", size);
    send<void>(image, "addRepresentation:", representation.get());
    mac::appKit.image.setTemplate(image, mac::truth(!symbol.color));
    drawings().emplace(image, drawing);
    whenDeallocated(image, &drawings(), [image] { drawings().erase(image); });
    return send(image, "autorelease");
}

const Symbol* symbolOf(id image) {
    const auto entry = drawings().find(image);
    return entry != drawings().end() ? &SymbolClass::of(entry->second.get()) : nullptr;
}

id imageWithSystemSymbolName(id, SEL, id name, id /*description*/) {
    const std::string text = mac::textOf(name);
    return symbolAspect(text) ? imageOf({text, {}, {}}) : nullptr;
}

id imageWithSymbolConfiguration(id image, SEL, id configuration) {
    const Symbol* const symbol = symbolOf(image);
    return symbol != nullptr ? imageOf({symbol->name, ConfigurationClass::of(configuration), symbol->color})
                             : image;
}

const ConfigurationClass& configurationClass() {
    static const ConfigurationClass type("NSImageSymbolConfiguration");
    return type;
}

id configurationWithPointSize(id, SEL, double pointSize, double weight, mac::Integer scale) {
    return send(configurationClass().make(pointSize, weight, scale), "autorelease");
}

// GNUstep's image view draws what it has as it is.
void setContentTintColor(id view, SEL, id color) {
    if (const Symbol* const symbol = symbolOf(send(view, "image"))) {
        send<void>(view, "setImage:",
                   imageOf({symbol->name, symbol->configuration, mac::Retained::retaining(color)}));
    }
}

} // namespace

void installSymbols() {
    configurationClass();
    addMethod(classOf(classNamed("NSImageSymbolConfiguration")),
              "configurationWithPointSize:weight:scale:", configurationWithPointSize);
    const Class image = classNamed("NSImage");
    addMethod(classOf(image),
              "imageWithSystemSymbolName:accessibilityDescription:", imageWithSystemSymbolName);
    addMethod(image, "imageWithSymbolConfiguration:", imageWithSymbolConfiguration);
    addMethod(classNamed("NSImageView"), "setContentTintColor:", setContentTintColor);
}

std::optional<ShownSymbol> symbolIn(id image) {
    const Symbol* const symbol = symbolOf(image);
    return symbol != nullptr
               ? std::optional(ShownSymbol{symbol->name, symbol->configuration, symbol->color.get()})
               : std::nullopt;
}

} // namespace kestrune::gnustep
