#include "mac/hosting/Fonts.h"

#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

double platformWeight(ui::FontWeight weight) {
    switch (weight) {
    case ui::FontWeight::ultraLight:
        return -0.8;
    case ui::FontWeight::thin:
        return -0.6;
    case ui::FontWeight::light:
        return -0.4;
    case ui::FontWeight::medium:
        return 0.23;
    case ui::FontWeight::semibold:
        return 0.3;
    case ui::FontWeight::bold:
        return 0.4;
    case ui::FontWeight::heavy:
        return 0.56;
    case ui::FontWeight::black:
        return 0.62;
    case ui::FontWeight::regular:
        break;
    }
    return 0;
}

id platformFont(const ui::Font& font, ui::FontWeight weight) {
    return appKit.font.systemFontOfSizeWeight(font.size, platformWeight(weight));
}

} // namespace kestrune::mac
