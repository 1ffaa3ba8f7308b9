// Writes rows in the form that readRecording reads.
#pragma once

#include "replay/recording/InputError.h"
#include "replay/recording/RecordingRow.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <vector>

namespace kestrune::replay {

// Numbers are the shortest text that reads back as the same number. Button names must not be empty or hold a
// comma or a line end. Whether writing succeeded is the stream's state.
void writeRecording(std::ostream& output, const std::vector<RecordingRow>& rows);

// Replaces the file. The error is absent on success.
std::optional<InputError> writeRecording(const std::filesystem::path& path,
                                         const std::vector<RecordingRow>& rows);

} // namespace kestrune::replay
