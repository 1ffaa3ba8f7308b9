#include "replay/recording/RecordingWriter.h"

#include "replay/recording/NumberText.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace kestrune::replay {
namespace {

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
        append(row.recordTime, line);
        line += ',';
        append(row.clientTime, line);
        line += ',';
        line += row.button;
        line += ',';
        line += stateName(row.state);
        line += ',';
        append(row.position.x, line);
        line += ',';
        append(row.position.y, line);
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
