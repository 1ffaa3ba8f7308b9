#include "mac/hosting/AttributedText.h"

#include "mac/c/TextAttributes.h"
#include "mac/hosting/Colors.h"
#include "mac/hosting/Fonts.h"
#include "mac/objc/Collections.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

Integer platformAlignment(ui::TextAlignment alignment, AlignmentNumbers numbers) {
    const bool isApples = numbers == AlignmentNumbers::ofApplesProcessors;
    switch (alignment) {
    case ui::TextAlignment::center:
        return isApples ? 1 : 2;
    case ui::TextAlignment::trailing:
        return isApples ? 2 : 1;
    case ui::TextAlignment::leading:
        break;
    }
    return 0;
}

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
