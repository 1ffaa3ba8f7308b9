#include "platform/Image.h"

#include "mac/Handles.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

#include <utility>

namespace kestrune {

Image::Image(std::shared_ptr<State> state) : state_(std::move(state)) {}

std::optional<Image> Image::imageNamed(std::string_view name) {
    const mac::Pool pool;
    const id image = mac::appKit.image.imageNamed(mac::nsString(name).get());
    if (image == nullptr) {
        return std::nullopt;
    }
    return Image(std::make_shared<State>(State{mac::Retained::retaining(image)}));
}

void Image::setTemplate(bool isTemplate) {
    mac::appKit.image.setTemplate(state_->image.get(), mac::truth(isTemplate));
}

void Image::setSize(Size size) { mac::appKit.image.setSize(state_->image.get(), size); }

} // namespace kestrune
