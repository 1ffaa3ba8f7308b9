// The system's colours. GNUstep has no names for some, and for others those of another look.
//
// This is what we believe the Mac has in its light appearance, with the blue accent, and no proof of it.
#include "tests/gnustep/standins/appkit/SystemColors.h"

#include "tests/gnustep/standins/runtime/Methods.h"
#include "ui/SystemColor.h"

#include <algorithm>

namespace kestrune::gnustep {

namespace {

id color(const ui::Shade& shade) {
    const auto component = [&shade](int shift) {
        return static_cast<double>(shade.hexadecimal >> shift & 0xFF) / 255;
    };
    return send(classObject("NSColor"), "colorWithCalibratedRed:green:blue:alpha:", component(16),
                component(8), component(0), shade.alpha);
}

id windowBackgroundColor(id, SEL) { return color(ui::WindowBackground.light); }

// GNUstep has no name for the space that most screens have.
id spaceOfScreens(id colorSpaces, SEL) { return send(colorSpaces, "genericRGBColorSpace"); }

// Whichever of the table's names is asked for.
id colorOfTheSystem(id, SEL selector) {
    const std::string_view name = sel_getName(selector);
    const auto found =
        std::find_if(ui::SystemColors.begin(), ui::SystemColors.end(),
                     [name](const ui::SystemColor& candidate) { return candidate.names.front() == name; });
    return color(found->light);
}

} // namespace

void installSystemColors() {
    const Class colors = classOf(classNamed("NSColor"));
    replaceMethod(colors, "windowBackgroundColor", windowBackgroundColor);
    for (const ui::SystemColor& known : ui::SystemColors) {
        const char* const name = known.names.front().data();
        // White is white.
        if (known.light == ui::systemColor(ui::Color::white).light) {
            continue;
        }
        if (class_respondsToSelector(colors, sel_registerName(name)) != 0) {
            replaceMethod(colors, name, colorOfTheSystem);
        } else {
            addMethod(colors, name, colorOfTheSystem);
        }
    }
    addMethod(classOf(classNamed("NSColorSpace")), "sRGBColorSpace", spaceOfScreens);
}

} // namespace kestrune::gnustep
