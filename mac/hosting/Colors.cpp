#include "mac/hosting/Colors.h"

#include "mac/Vocabulary.h"

namespace kestrune::mac {

namespace {

const ClassMessage<id()>& messageFor(ui::Color color) {
    switch (color) {
    case ui::Color::secondary:
        return appKit.color.secondaryLabelColor;
    case ui::Color::tertiary:
        return appKit.color.tertiaryLabelColor;
    case ui::Color::accent:
        return appKit.color.controlAccentColor;
    case ui::Color::green:
        return appKit.color.systemGreenColor;
    case ui::Color::white:
        return appKit.color.whiteColor;
    case ui::Color::link:
        return appKit.color.linkColor;
    case ui::Color::sectionFill:
        return appKit.color.quaternaryLabelColor;
    case ui::Color::sectionBorder:
    case ui::Color::separator:
        return appKit.color.separatorColor;
    case ui::Color::primary:
        break;
    }
    return appKit.color.labelColor;
}

} // namespace

id platformColor(ui::Color color) { return messageFor(color)(); }

id colorWithOpacity(ui::Color color, double opacity) {
    const id opaque = platformColor(color);
    return opacity == 1
               ? opaque
               : appKit.color.colorWithAlphaComponent(opaque, appKit.color.alphaComponent(opaque) * opacity);
}

} // namespace kestrune::mac
