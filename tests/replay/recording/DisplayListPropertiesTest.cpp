#include "replay/recording/DisplayList.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::replay {
namespace {

RC_GTEST_PROP(DisplayListProperties, AnyTextIsRefusedInOneLineOrHasAPrimary, ()) {
    const auto join = [](const std::vector<std::string>& pieces) {
        return std::accumulate(pieces.begin(), pieces.end(), std::string());
    };
    const auto text = *rc::gen::oneOf(
        rc::gen::string<std::string>(),
        rc::gen::map(
            rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
                "1", "0", ".", "x", "+", "-", ",", "10x10+0+0", ",10x10+10+0", ",1x1-1-1", "x7", "+20")),
            join),
        rc::gen::map(rc::gen::container<std::vector<std::string>>(
                         rc::gen::element<std::string>(",5x5+10+0", ",5x5+10+5", ",5x5-5+0", ",9x9.5+0-9.5")),
                     [join](const std::vector<std::string>& pieces) { return "10x10+0+0" + join(pieces); }));
    const auto result = parseDisplayList(text);
    if (const auto* frames = std::get_if<std::vector<Rect>>(&result)) {
        RC_ASSERT(!frames->empty() && frames->size() <= 16U && frames->front().origin == Point{});
        return;
    }
    const std::string& message = std::get<InputError>(result).message;
    RC_ASSERT(message.starts_with("--displays: display "));
    RC_ASSERT(message.size() < 150U);
    RC_ASSERT(std::all_of(message.begin(), message.end(),
                          [](char character) { return character >= ' ' && character <= '~'; }));
}

RC_GTEST_PROP(DisplayListProperties, RowsOfDisplaysReadBack, ()) {
    const auto widths = *rc::gen::container<std::vector<int>>(*rc::gen::inRange<std::size_t>(1, 17),
                                                              rc::gen::inRange(1, 4'000'000));
    std::string text;
    std::vector<Rect> expected;
    double x = 0;
    for (const int width : widths) {
        // Hundredths of a point: decimals whose sums are not exact.
        std::ostringstream item;
        item.precision(10);
        item << (text.empty() ? "" : ",") << width / 100.0 << "x10+" << x << "+0";
        text += item.str();
        expected.emplace_back(x, 0, width / 100.0, 10);
        x = std::round((x + width / 100.0) * 100) / 100;
    }
    RC_ASSERT(parseDisplayList(text) == (std::variant<std::vector<Rect>, InputError>(expected)));
}

} // namespace
} // namespace kestrune::replay
