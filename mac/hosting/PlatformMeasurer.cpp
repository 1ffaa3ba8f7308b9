#include "mac/hosting/PlatformMeasurer.h"

#include "mac/hosting/AttributedText.h"
#include "mac/hosting/Controls.h"
#include "mac/hosting/Symbols.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

namespace {

constexpr double Unbounded = 1e6; // points; more than any text has

} // namespace

Size PlatformMeasurer::measureText(const ui::StyledText& text, std::optional<double> width) const {
    const Pool pool;
    return appKit.attributedString
        .boundingRectWithSize(attributedText(text).get(), {width.value_or(Unbounded), Unbounded},
                              TextLayoutOptions)
        .size;
}

Size PlatformMeasurer::measureSymbol(const ui::StyledSymbol& symbol) const {
    const Pool pool;
    return appKit.image.size(symbolImage(symbol).get());
}

Size PlatformMeasurer::measurePushButton(std::string_view title, ui::ControlSize size) const {
    const Pool pool;
    const Retained button = newPushButton();
    appKit.button.setTitle(button.get(), nsString(title).get());
    setButtonSize(button.get(), size);
    return appKit.view.intrinsicContentSize(button.get());
}

Size PlatformMeasurer::measureSwitch(ui::ControlSize size) const {
    const Pool pool;
    const Retained control = newSwitch();
    appKit.control.setControlSize(control.get(), platformSize(size));
    return appKit.view.intrinsicContentSize(control.get());
}

} // namespace kestrune::mac
