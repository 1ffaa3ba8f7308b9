#include "replay/recording/RecordingWriter.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <fstream>
#include <system_error>

namespace kestrune::replay {
namespace {

void append(std::string& line, double value) {
    std::array<char, 32> text{}; // The shortest form of a double has at most 24 characters.
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
    line.append(text.data(), result.ptr);
}

InputError writeError(const std::filesystem::path& path) {
    return inputError(path.string(), "cannot write the recording: " +
                                         std::error_code(errno, std::generic_category()).message());
}

} // namespace

void writeRecording(std::ostream& output, const std::vector<RecordingRow>& rows) {
    output << RecordingHeader << '\n';
    std::string line;
    for (const RecordingRow& row : rows) {
        line.clear();
        append(line, row.recordTime);
        line += ',';
        append(line, row.clientTime);
        line += ',';
        line += row.button;
        line += ',';
        line += stateName(row.state);
        line += ',';
        append(line, row.position.x);
        line += ',';
        append(line, row.position.y);
        line += '\n';
        output << line;
    }
}

std::optional<InputError> writeRecording(const std::filesystem::path& path,
                                         const std::vector<RecordingRow>& rows) {
    errno = 0;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file)
        return writeError(path);
    writeRecording(file, rows);
    file.close();
    if (!file)
        return writeError(path);
    return std::nullopt;
}

} // namespace kestrune::replay
