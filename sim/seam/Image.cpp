#include "platform/Image.h"

#include "sim/formats/BundleContents.h"
#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/StatusItemState.h"
#include "sim/services/StatusItems.h"

#include <utility>

namespace kestrune {

Image::Image(std::shared_ptr<State> state) : state_(std::move(state)) {}

std::optional<Image> Image::imageNamed(std::string_view name) {
    sim::recordCall("+[NSImage imageNamed:] ", name);
    const auto file = sim::current<const sim::BundleContents>().images.find(name);
    if (file == sim::current<const sim::BundleContents>().images.end()) {
        return std::nullopt;
    }
    auto& named = sim::current<sim::StatusItems>().namedImages();
    const auto [known, isNew] = named.try_emplace(std::string(name));
    if (isNew) {
        known->second = std::make_shared<State>(State{std::string(name), file->second});
    }
    return Image(known->second);
}

void Image::setTemplate(bool isTemplate) {
    sim::recordCall("-[NSImage setTemplate:] ", isTemplate);
    state_->isTemplate = isTemplate;
}

void Image::setSize(Size size) {
    sim::recordCall("-[NSImage setSize:] ", size.width, " x ", size.height);
    state_->size = size;
}

} // namespace kestrune
