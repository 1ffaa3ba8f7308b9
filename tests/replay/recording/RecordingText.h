// Recordings as text, for tests of the reader.
#pragma once

#include "replay/recording/RecordingReader.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <variant>

namespace kestrune::replay {

inline const std::string Header = "record timestamp,client timestamp,button,state,x,y\n";

inline ReadResult readText(const std::string& text) {
    std::istringstream input(text);
    return readRecording(input, "walk.csv");
}

// The recording in the text; the test fails when it is refused.
inline Recording recordingIn(const std::string& text) {
    ReadResult result = readText(text);
    if (const auto* error = std::get_if<InputError>(&result)) {
        ADD_FAILURE() << "refused: " << error->message;
        return {};
    }
    return std::get<Recording>(std::move(result));
}

// Why the text is refused; the test fails when it is not.
inline std::string refusalOf(const std::string& text) {
    const ReadResult result = readText(text);
    const auto* error = std::get_if<InputError>(&result);
    if (error == nullptr) {
        ADD_FAILURE() << "accepted";
        return {};
    }
    return error->message;
}

} // namespace kestrune::replay
