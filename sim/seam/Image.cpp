#include "platform/Image.h"

#include "sim/seam/StatusItemState.h"
#include "sim/session/Session.h"

#include <utility>

namespace kestrune {

Image::Image(std::shared_ptr<State> state) : state_(std::move(state)) {}

std::optional<Image> Image::imageNamed(std::string_view name) {
    sim::Session& session = sim::Session::current();
    session.journal().record("+[NSImage imageNamed:] ", name);
    const auto file = session.bundle().images.find(name);
    if (file == session.bundle().images.end()) {
        return std::nullopt;
    }
    auto& named = session.statusItems().namedImages();
    const auto [known, isNew] = named.try_emplace(std::string(name));
    if (isNew) {
        known->second = std::make_shared<State>(State{std::string(name), file->second});
    }
    return Image(known->second);
}

void Image::setTemplate(bool isTemplate) {
    sim::Session::current().journal().record("-[NSImage setTemplate:] ", isTemplate);
    state_->isTemplate = isTemplate;
}

void Image::setSize(Size size) {
    sim::Session::current().journal().record("-[NSImage setSize:] ", size.width, " x ", size.height);
    state_->size = size;
}

} // namespace kestrune
