#include "replay/Emission.h"

#include "replay/recording/NumberText.h"

#include <utility>

namespace kestrune::replay {

Emission::Emission(std::string path)
    : path_(std::move(path)), file_(path_, std::ios::binary | std::ios::trunc) {}

void Emission::write(std::uint64_t index, const sim::Delivery& delivery) {
    std::string line =
        std::to_string(index) + ',' + std::to_string(static_cast<std::uint32_t>(delivery.type));
    for (const double coordinate :
         {delivery.sent.x, delivery.sent.y, delivery.delivered.x, delivery.delivered.y}) {
        line += ',';
        append(coordinate, line);
    }
    line += '\n';
    file_ << line;
}

std::optional<InputError> Emission::finish() {
    file_.close();
    if (!file_) {
        return inputError(path_, "expected a file that can be written");
    }
    return std::nullopt;
}

} // namespace kestrune::replay
