#include "mac/hosting/Colors.h"

#include "mac/Vocabulary.h"

namespace kestrune::mac {

namespace {

const Message<id()>& messageFor(ui::Color color) {
    switch (color) {
    case ui::Color::secondary:
        return ns_color::secondaryLabelColor;
    case ui::Color::tertiary:
        return ns_color::tertiaryLabelColor;
    case ui::Color::accent:
        return ns_color::controlAccentColor;
    case ui::Color::green:
        return ns_color::systemGreenColor;
    case ui::Color::white:
        return ns_color::whiteColor;
    case ui::Color::link:
        return ns_color::linkColor;
    case ui::Color::sectionFill:
        return ns_color::quaternaryLabelColor;
    case ui::Color::sectionBorder:
    case ui::Color::separator:
        return ns_color::separatorColor;
    case ui::Color::primary:
        break;
    }
    return ns_color::labelColor;
}

} // namespace

id platformColor(ui::Color color) { return messageFor(color)(ns_color::type.object()); }

id colorWithOpacity(ui::Color color, double opacity) {
    const id opaque = platformColor(color);
    return opacity == 1
               ? opaque
               : ns_color::colorWithAlphaComponent(opaque, ns_color::alphaComponent(opaque) * opacity);
}

} // namespace kestrune::mac
