#include "sim/formats/StringsTable.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace kestrune::sim {

namespace {

class TableReader {
public:
    explicit TableReader(std::string_view text) : text_(text) {}

    std::variant<StringsTable, StringsTableError> read() {
        StringsTable table;
        while (skipBlanks() && position_ < text_.size()) {
            std::optional<std::string> key = quoted("a key in quotes");
            if (!key || !expect('=')) {
                return *error_;
            }
            std::optional<std::string> value = quoted("a value in quotes");
            if (!value || !expect(';')) {
                return *error_;
            }
            table.insert_or_assign(*std::move(key), *std::move(value));
        }
        if (error_) {
            return *error_;
        }
        return table;
    }

private:
    // Past white space and comments; false when a comment does not end.
    bool skipBlanks() {
        for (;;) {
            const std::size_t start = position_;
            position_ = std::min(text_.find_first_not_of(" \t\r\n", position_), text_.size());
            if (startsWith("//")) {
                position_ = std::min(text_.find('\n', position_), text_.size());
            } else if (startsWith("/*")) {
                const std::size_t end = text_.find("*/", position_ + 2);
                if (end == std::string_view::npos) {
                    fail("the end of the comment");
                    return false;
                }
                position_ = end + 2;
            }
            if (position_ == start) {
                return true;
            }
        }
    }

    bool startsWith(std::string_view start) const { return text_.substr(position_).starts_with(start); }

    std::optional<std::string> quoted(const char* what) {
        if (!skipBlanks()) {
            return std::nullopt;
        }
        if (!startsWith("\"")) {
            fail(what);
            return std::nullopt;
        }
        ++position_;
        std::string result;
        while (position_ < text_.size() && text_[position_] != '"') {
            const bool isEscaped = text_[position_] == '\\' && position_ + 1 < text_.size();
            position_ += isEscaped ? 1 : 0;
            result += isEscaped && text_[position_] == 'n' ? '\n' : text_[position_];
            ++position_;
        }
        if (position_ == text_.size()) {
            fail("a closing quote");
            return std::nullopt;
        }
        ++position_;
        return result;
    }

    bool expect(char character) {
        if (!skipBlanks()) {
            return false;
        }
        if (position_ == text_.size() || text_[position_] != character) {
            fail(character == '=' ? "=" : ";");
            return false;
        }
        ++position_;
        return true;
    }

    void fail(const std::string& expected) {
        const std::string_view before = text_.substr(0, position_);
        const auto lineEnds = std::count(before.begin(), before.end(), '\n');
        error_ = StringsTableError{static_cast<std::size_t>(lineEnds) + 1, "expected " + expected};
    }

    std::string_view text_;
    std::size_t position_ = 0;
    std::optional<StringsTableError> error_;
};

} // namespace

std::variant<StringsTable, StringsTableError> readStringsTable(std::string_view text) {
    return TableReader(text).read();
}

} // namespace kestrune::sim
