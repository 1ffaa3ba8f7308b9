// Recordings that nobody recorded, for tests that need no file.
#pragma once

#include "replay/recording/MotionGenerator.h"
#include "replay/recording/Recording.h"

#include <utility>

namespace kestrune::replay {

inline Recording madeUpRecording(const MotionGeneratorOptions& options) {
    RecordingBuilder builder;
    for (const RecordingRow& row : generateRows(options)) {
        builder.add(row);
    }
    return std::move(builder).finish().value();
}

} // namespace kestrune::replay
