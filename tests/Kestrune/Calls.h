// Comparing what a procedure asks of the platform with the session's journal.
#pragma once

#include "sim/session/Session.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune {

using Calls = std::vector<std::string>;

// The lists one after the other.
inline Calls inOrder(const std::vector<Calls>& lists) {
    Calls calls;
    for (const Calls& list : lists) {
        calls.insert(calls.end(), list.begin(), list.end());
    }
    return calls;
}

// What a procedure calls when it is run by itself: one step in the order of a procedure that contains it.
template <typename Procedure>
Calls callsOf(const Procedure& procedure) {
    sim::Journal& journal = sim::Session::current().journal();
    journal.take();
    procedure();
    return journal.take();
}

// A line each, of which a failing comparison shows the ones that differ.
inline std::string asText(const Calls& calls) {
    std::string text;
    for (const std::string& call : calls) {
        text += call + "\n";
    }
    return text;
}

// Those that begin with the text.
inline Calls callsAbout(std::string_view beginning, const Calls& calls) {
    Calls about;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(about),
                 [beginning](const std::string& call) { return call.starts_with(beginning); });
    return about;
}

// That something was asked for, whatever else was.
inline auto hasCallAbout(const std::string& beginning) {
    return ::testing::Contains(::testing::StartsWith(beginning));
}

} // namespace kestrune
