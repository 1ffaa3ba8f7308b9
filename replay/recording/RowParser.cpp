#include "replay/recording/RowParser.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace kestrune::replay {
namespace {

constexpr std::size_t ColumnCount = 6;
constexpr double LongestTime = 9e9;

using Columns = std::array<std::string_view, ColumnCount>;

// Fills the columns as far as there are any and returns how many the line has.
std::size_t split(std::string_view line, Columns& columns) {
    std::size_t count = 0;
    for (bool isLast = false; !isLast; ++count) {
        const std::size_t comma = line.find(',');
        isLast = comma == std::string_view::npos;
        if (count < ColumnCount)
            columns[count] = line.substr(0, comma);
        if (!isLast)
            line.remove_prefix(comma + 1);
    }
    return count;
}

std::optional<double> number(std::string_view text) {
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, code] = std::from_chars(text.data(), end, value);
    if (code != std::errc() || stop != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<RowState> rowState(std::string_view name) {
    for (const RowState state : {RowState::move, RowState::drag, RowState::pressed, RowState::released,
                                 RowState::down, RowState::up}) {
        if (stateName(state) == name)
            return state;
    }
    return std::nullopt;
}

// Reads the columns of one line and keeps the first thing that is wrong with it.
class ColumnReader {
public:
    explicit ColumnReader(FileLine where) : where_(where) {}

    double numberUpTo(double largest, std::string_view column, std::string_view text) {
        const std::optional<double> value = number(text);
        if (!value)
            refuse("a number for " + std::string(column), text);
        else if (std::signbit(*value) || *value > largest)
            refuse("a number from 0 to " + std::to_string(std::llround(largest)) + " for " +
                       std::string(column),
                   text);
        return value.value_or(0);
    }

    std::string button(std::string_view text) {
        if (text.empty())
            refuse("a name for button", text);
        return std::string(text);
    }

    RowState state(std::string_view text) {
        const std::optional<RowState> value = rowState(text);
        if (!value)
            refuse("Move, Drag, Pressed, Released, Down or Up for state", text);
        return value.value_or(RowState::move);
    }

    const std::optional<InputError>& error() const { return error_; }

private:
    void refuse(const std::string& expected, std::string_view found) {
        if (!error_)
            error_ = inputError(where_, "expected " + expected + ", found " + inQuotes(found));
    }

    FileLine where_;
    std::optional<InputError> error_;
};

} // namespace

std::variant<RecordingRow, InputError> parseRow(std::string_view line, FileLine where) {
    if (line.empty())
        return inputError(where, "expected 6 columns, found an empty line");
    Columns columns;
    const std::size_t count = split(line, columns);
    if (count != ColumnCount)
        return inputError(where, "expected 6 columns, found " + std::to_string(count));

    ColumnReader reader(where);
    RecordingRow row;
    row.recordTime = reader.numberUpTo(LongestTime, "record timestamp", columns[0]);
    row.clientTime = reader.numberUpTo(LongestTime, "client timestamp", columns[1]);
    row.button = reader.button(columns[2]);
    row.state = reader.state(columns[3]);
    row.position.x = reader.numberUpTo(UnknownCoordinate, "x", columns[4]);
    row.position.y = reader.numberUpTo(UnknownCoordinate, "y", columns[5]);
    if (reader.error())
        return *reader.error();
    return row;
}

} // namespace kestrune::replay
