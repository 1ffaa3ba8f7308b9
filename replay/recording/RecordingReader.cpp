#include "replay/recording/RecordingReader.h"

#include "replay/recording/RowReader.h"

#include <cerrno>
#include <fstream>
#include <system_error>
#include <utility>

namespace kestrune::replay {

ReadResult readRecording(const std::filesystem::path& path) {
    // Linux opens a directory like a file and only fails to read it, so it is asked for first.
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        return inputError(path.string(), "expected a recording, found a directory");
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        const std::string reason = std::error_code(errno, std::generic_category()).message();
        return inputError(path.string(), "expected a recording, but the file cannot be opened: " + reason);
    }
    return readRecording(file, path.string());
}

ReadResult readRecording(std::istream& input, const std::string& name) {
    RowReader rows(input, name);
    RecordingBuilder builder;
    while (const auto row = rows.next())
        builder.add(*row);
    if (rows.error())
        return *rows.error();
    auto recording = std::move(builder).finish();
    if (!recording)
        return inputError(rows.where(),
                          "expected a Move or Drag row with a known position, found the end of the file");
    return *std::move(recording);
}

} // namespace kestrune::replay
