// Part of a file, and readings of it that cannot leave it.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace kestrune::macho {

// A file that is not what it has to be: one line of printable text that names where and what.
class MachError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::string hexadecimal(std::uint64_t number);

// A name out of a file, for a message: what is not printable becomes a question mark, and long ones are cut.
std::string printable(std::string_view text);

// The bytes are borrowed. `name` is what messages start with; `what`, everywhere, is what they say is
// missing.
class Bytes {
public:
    Bytes() = default;
    Bytes(std::span<const std::uint8_t> all, std::string name) : all_(all), name_(std::move(name)) {}

    std::span<const std::uint8_t> all() const { return all_; }
    std::size_t size() const { return all_.size(); }
    const std::string& name() const { return name_; }

    // The same bytes, whose messages name something smaller.
    Bytes named(std::string_view what) const { return {all_, name_ + ": " + std::string(what)}; }

    template <std::unsigned_integral Number>
    Number little(std::uint64_t offset, std::string_view what) const {
        const auto bytes = span(offset, sizeof(Number), what);
        Number number = 0;
        for (std::size_t index = 0; index < sizeof(Number); ++index) {
            number = static_cast<Number>(number | static_cast<std::uint64_t>(bytes[index]) << (8 * index));
        }
        return number;
    }

    template <std::unsigned_integral Number>
    Number big(std::uint64_t offset, std::string_view what) const {
        std::uint64_t number = 0;
        for (const std::uint8_t byte : span(offset, sizeof(Number), what)) {
            number = number << 8 | byte;
        }
        return static_cast<Number>(number);
    }

    std::span<const std::uint8_t> span(std::uint64_t offset, std::uint64_t size, std::string_view what) const;
    Bytes part(std::uint64_t offset, std::uint64_t size, std::string_view what) const {
        return {span(offset, size, what), name_};
    }

    // What stands before a zero byte, which has to be there.
    std::string_view text(std::uint64_t offset, std::string_view what) const;

    // What stands in a field of a fixed size, up to its first zero byte if it has one.
    std::string_view paddedText(std::uint64_t offset, std::uint64_t size, std::string_view what) const;

    // Throws, with the name before what is wrong.
    [[noreturn]] void refuse(const std::string& what) const;

private:
    std::span<const std::uint8_t> all_;
    std::string name_;
};

} // namespace kestrune::macho
