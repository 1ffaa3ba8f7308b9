#include "tests/macho/loader/CompactUnwind.h"

#include <algorithm>
#include <map>
#include <string>

namespace kestrune::macho {

namespace {

constexpr std::uint32_t KnownVersion = 1;
constexpr std::uint32_t RegularPage = 2;
constexpr std::uint32_t CompressedPage = 3;

// In an encoding, beside what is the processor's.
constexpr std::uint32_t HasLanguageData = 0x40000000;
constexpr std::uint32_t PersonalityMask = 0x30000000;
constexpr std::uint32_t PersonalityShift = 28;
constexpr std::uint32_t OfProcessor = 0x0FFFFFFF;

// One page of the index covers the functions from `start` on.
struct IndexEntry {
    std::uint32_t start;
    std::uint32_t page;         // 0 for the last entry, which only says where everything ends
    std::uint32_t languageData; // of its first function, in the table of all
};

class Reader {
public:
    explicit Reader(const Bytes& section) : section_(section) {}

    std::vector<UnwoundFunction> read() {
        if (word(0) != KnownVersion) {
            section_.refuse("has the version " + std::to_string(word(0)));
        }
        const std::vector<IndexEntry> index = readIndex();
        if (index.empty()) {
            return {};
        }
        readLanguageData(index);
        for (const IndexEntry& entry : index) {
            if (entry.page != 0) {
                readPage(entry);
            }
        }
        finish(index.back().start);
        return std::move(functions_);
    }

private:
    std::uint32_t word(std::uint64_t place) const { return section_.little<std::uint32_t>(place, "a word"); }
    std::uint16_t half(std::uint64_t place) const {
        return section_.little<std::uint16_t>(place, "a half-word");
    }

    std::vector<IndexEntry> readIndex() const {
        std::vector<IndexEntry> index;
        const std::uint64_t start = word(20);
        for (std::uint64_t number = 0; number < word(24); ++number) {
            const std::uint64_t place = start + 12 * number;
            index.push_back({word(place), word(place + 4), word(place + 8)});
        }
        return index;
    }

    // Of all pages, one after the other.
    void readLanguageData(const std::vector<IndexEntry>& index) {
        for (std::uint64_t place = index.front().languageData; place < index.back().languageData;
             place += 8) {
            languageData_[word(place)] = word(place + 4);
        }
    }

    void readPage(const IndexEntry& entry) {
        const std::uint32_t kind = word(entry.page);
        if (kind != RegularPage && kind != CompressedPage) {
            section_.refuse("has a page of the kind " + std::to_string(kind));
        }
        const std::uint64_t entries = std::uint64_t{entry.page} + half(entry.page + 4);
        for (std::uint64_t number = 0; number < half(entry.page + 6); ++number) {
            if (kind == RegularPage) {
                add(word(entries + 8 * number), word(entries + 8 * number + 4));
            } else {
                const std::uint32_t packed = word(entries + 4 * number);
                add(entry.start + (packed & 0xFFFFFF), encodingOf(packed >> 24, entry.page));
            }
        }
    }

    // The first numbers are for what is common to all pages, the others for the page's own.
    std::uint32_t encodingOf(std::uint32_t number, std::uint64_t page) const {
        const std::uint32_t commonCount = word(8);
        return number < commonCount ? word(word(4) + 4 * std::uint64_t{number})
                                    : word(page + half(page + 8) + 4 * std::uint64_t{number - commonCount});
    }

    void add(std::uint32_t start, std::uint32_t encoding) {
        UnwoundFunction function{start, 0, encoding & OfProcessor, {}, {}};
        if (const std::uint32_t number = (encoding & PersonalityMask) >> PersonalityShift; number != 0) {
            function.personality = word(word(12) + 4 * std::uint64_t{number - 1});
        }
        if ((encoding & HasLanguageData) != 0) {
            const auto found = languageData_.find(start);
            if (found == languageData_.end()) {
                section_.refuse("has no data for the function at " + hexadecimal(start));
            }
            function.languageData = found->second;
        }
        functions_.push_back(function);
    }

    // Each function goes to the next one's start.
    void finish(std::uint32_t end) {
        std::for_each(functions_.rbegin(), functions_.rend(), [&end](UnwoundFunction& function) {
            function.end = end;
            end = function.start;
        });
    }

    const Bytes& section_;
    std::map<std::uint32_t, std::uint32_t> languageData_; // by function
    std::vector<UnwoundFunction> functions_;
};

} // namespace

std::vector<UnwoundFunction> readCompactUnwind(const Bytes& section) { return Reader(section).read(); }

} // namespace kestrune::macho
