#include "mac/hosting/Colors.h"

#include "base/Fatal.h"
#include "mac/vocabulary/Vocabulary.h"
#include "ui/SystemColor.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace kestrune::mac {

namespace {

const ClassMessage<id()>& messageNamed(std::string_view name) {
    const auto& colors = appKit.color;
    for (const ClassMessage<id()>* const message :
         {&colors.labelColor, &colors.secondaryLabelColor, &colors.tertiaryLabelColor,
          &colors.quaternaryLabelColor, &colors.quinaryLabelColor, &colors.quaternarySystemFillColor,
          &colors.quinarySystemFillColor, &colors.controlAccentColor, &colors.systemGreenColor,
          &colors.whiteColor, &colors.linkColor, &colors.separatorColor}) {
        if (message->selectorName() == name) {
            return *message;
        }
    }
    fatal("The binding knows no colour " + std::string(name) + ".");
}

} // namespace

id platformColor(ui::Color color) {
    const auto& names = ui::systemColor(color).names;
    const auto name = std::find_if(names.begin(), names.end(), [](std::string_view candidate) {
        return !candidate.empty() && messageNamed(candidate).isThere();
    });
    return messageNamed(name != names.end() ? *name : names.front())();
}

id colorWithOpacity(ui::Color color, double opacity) {
    const id opaque = platformColor(color);
    return opacity == 1
               ? opaque
               : appKit.color.colorWithAlphaComponent(opaque, appKit.color.alphaComponent(opaque) * opacity);
}

} // namespace kestrune::mac
