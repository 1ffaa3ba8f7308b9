#include "mac/hosting/AttributedText.h"

#include "mac/Vocabulary.h"
#include "mac/c/TextAttributes.h"
#include "mac/hosting/Colors.h"
#include "mac/hosting/Fonts.h"
#include "mac/objc/Collections.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Text.h"

namespace kestrune::mac {

namespace {

// NSTextAlignment, which is not the same on both processors.
#if defined(__APPLE__) && defined(__aarch64__)
constexpr Integer Center = 1;
constexpr Integer Right = 2;
#else
constexpr Integer Center = 2;
constexpr Integer Right = 1;
#endif
constexpr Integer Left = 0;

Integer platformAlignment(ui::TextAlignment alignment) {
    switch (alignment) {
    case ui::TextAlignment::center:
        return Center;
    case ui::TextAlignment::trailing:
        return Right;
    case ui::TextAlignment::leading:
        break;
    }
    return Left;
}

} // namespace

Retained attributedText(const ui::StyledText& text, double opacity) {
    const Retained style = newObject(appKit.mutableParagraphStyle);
    appKit.mutableParagraphStyle.setAlignment(style.get(), platformAlignment(text.alignment));
    Retained result = newObject(appKit.mutableAttributedString);
    for (const ui::TextRun& run : text.runs) {
        const Retained attributes = newObject(foundation.mutableDictionary);
        set(attributes, NSFontAttributeName, platformFont(text.font, run.weight));
        set(attributes, NSForegroundColorAttributeName, colorWithOpacity(text.color, opacity));
        set(attributes, NSParagraphStyleAttributeName, style.get());
        const Retained part = Retained::adopting(appKit.attributedString.initWithString(
            allocate(appKit.attributedString), nsString(run.text).get(), attributes.get()));
        appKit.mutableAttributedString.appendAttributedString(result.get(), part.get());
    }
    return result;
}

} // namespace kestrune::mac
