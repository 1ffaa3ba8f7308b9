// What measured times come to.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace kestrune::benchmarks {

// What all but a part of the values do not exceed; there is at least one.
inline double quantile(std::vector<double> values, double part) {
    const auto place =
        values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size()));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

} // namespace kestrune::benchmarks
