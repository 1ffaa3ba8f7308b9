#include "ui/Scene.h"

namespace kestrune::ui {

std::string StyledText::string() const {
    std::string whole;
    for (const TextRun& run : runs) {
        whole += run.text;
    }
    return whole;
}

} // namespace kestrune::ui
