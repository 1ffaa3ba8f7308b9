#include "sim/services/Links.h"

#include "sim/services/Accessibility.h"

namespace kestrune::sim {

bool Links::open(const std::string& text) {
    if (faults_.refusesOpeningURLs) {
        return false;
    }
    opened_.push_back(text);
    if (text == Accessibility::PaneAddress) {
        accessibility_.showPane();
    }
    return true;
}

} // namespace kestrune::sim
