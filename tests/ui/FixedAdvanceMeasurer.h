// The simulation's measurer, which counts here what it is asked.
#pragma once

#include "sim/session/FixedAdvanceMeasurer.h"

#include <optional>

namespace kestrune::ui {

class FixedAdvanceMeasurer final : public sim::FixedAdvanceMeasurer {
public:
    using sim::FixedAdvanceMeasurer::FixedAdvanceMeasurer;

    Size measureText(const StyledText& text, std::optional<double> width) const override {
        ++textMeasurements_;
        return sim::FixedAdvanceMeasurer::measureText(text, width);
    }

    // How many texts have been measured so far.
    int textMeasurements() const { return textMeasurements_; }

private:
    mutable int textMeasurements_ = 0;
};

} // namespace kestrune::ui
