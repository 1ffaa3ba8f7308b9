#include "mac/vocabulary/TypeEncoding.h"

#include <algorithm>
#include <cstddef>

namespace kestrune::mac {

namespace {

class Normalizer {
public:
    explicit Normalizer(std::string_view encoding) : encoding_(encoding) {}

    std::string normalized() {
        std::string result;
        while (position_ < encoding_.size()) {
            result += type();
            skip("0123456789+-"); // where the argument lies
        }
        return result;
    }

private:
    void skip(std::string_view characters) {
        position_ = std::min(encoding_.find_first_not_of(characters, position_), encoding_.size());
    }

    // Past a class name in quotes.
    void skipName() {
        if (position_ < encoding_.size() && encoding_[position_] == '"') {
            const std::size_t end = encoding_.find('"', position_ + 1);
            position_ = end == std::string_view::npos ? encoding_.size() : end + 1;
        }
    }

    std::string type() {
        skip("rnNoORVA");
        if (position_ == encoding_.size()) {
            return {};
        }
        switch (const char letter = encoding_[position_++]) {
        case 'l':
            return "q";
        case 'L':
            return "Q";
        case 'c':
        case 'C':
            return "B";
        case '@':
            if (position_ < encoding_.size() && encoding_[position_] == '?') {
                ++position_;
            }
            skipName();
            return "@";
        case '^':
            return pointer();
        case '{':
            return structure();
        default:
            return std::string(1, letter);
        }
    }

    // GNUstep declares a block as a pointer to a structure that begins with an object or a pointer, two
    // integers and the function.
    std::string pointer() {
        const std::string target = type();
        const bool isBlock =
            target.starts_with("{^vii^?") || target.starts_with("{@ii^?") || target == "{@iip}";
        return isBlock ? "@" : "^" + target;
    }

    std::string structure() {
        const std::size_t end = std::min(encoding_.find_first_of("=}", position_), encoding_.size());
        const bool isOpaque = end == encoding_.size() || encoding_[end] == '}';
        position_ = std::min(end + 1, encoding_.size());
        std::string result = "{";
        while (!isOpaque && position_ < encoding_.size() && encoding_[position_] != '}') {
            result += type();
        }
        if (!isOpaque && position_ < encoding_.size()) {
            ++position_;
        }
        return result + "}";
    }

    std::string_view encoding_;
    std::size_t position_ = 0;
};

} // namespace

std::string normalizedEncoding(std::string_view encoding) { return Normalizer(encoding).normalized(); }

} // namespace kestrune::mac
