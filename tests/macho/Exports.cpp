#include "tests/macho/Exports.h"

#include <set>
#include <utility>
#include <vector>

namespace kestrune::macho {

namespace {

constexpr std::uint64_t Reexported = 0x8;

// A tree whose edges are parts of names: what ends at a node has the name of all edges that lead there.
class Trie {
public:
    Trie(const Bytes& content, std::uint64_t loadAddress) : content_(content), loadAddress_(loadAddress) {}

    std::map<std::string, std::uint64_t> read() {
        waiting_.emplace_back(0, "");
        while (!waiting_.empty()) {
            const auto [offset, name] = std::move(waiting_.back());
            waiting_.pop_back();
            readNode(offset, name);
        }
        return std::move(exports_);
    }

private:
    void readNode(std::uint64_t offset, const std::string& name) {
        if (!seen_.insert(offset).second) {
            content_.refuse("the node at " + hexadecimal(offset) + " is reached twice");
        }
        std::uint64_t place = offset;
        const std::uint64_t size = number(place);
        const std::uint64_t children = place + content_.span(place, size, "an export").size();
        if (size != 0) {
            readExport(place, name);
        }
        place = children + 1;
        const auto count = content_.little<std::uint8_t>(children, "the number of branches");
        for (unsigned child = 0; child < count; ++child) {
            const std::string_view edge = content_.text(place, "a branch");
            place += edge.size() + 1;
            waiting_.emplace_back(number(place), name + std::string(edge));
        }
    }

    void readExport(std::uint64_t place, const std::string& name) {
        if (!(number(place) & Reexported)) {
            exports_[name] = loadAddress_ + number(place);
        }
    }

    // Seven bits in each byte, the lowest first; all but the last have the eighth.
    std::uint64_t number(std::uint64_t& place) const {
        std::uint64_t result = 0;
        for (unsigned shift = 0;; shift += 7) {
            const auto byte = content_.little<std::uint8_t>(place++, "a number");
            if (shift > 56) {
                content_.refuse("a number before " + hexadecimal(place) + " is too long");
            }
            result |= std::uint64_t{byte & 0x7FU} << shift;
            if (!(byte & 0x80U)) {
                return result;
            }
        }
    }

    const Bytes& content_;
    std::uint64_t loadAddress_;
    std::vector<std::pair<std::uint64_t, std::string>> waiting_;
    std::set<std::uint64_t> seen_;
    std::map<std::string, std::uint64_t> exports_;
};

} // namespace

std::map<std::string, std::uint64_t> readExports(const MachSlice& slice) {
    const auto content = slice.linkEditData(Command::exportsTrie, "the exports");
    if (!content || content->size() == 0) {
        return {};
    }
    return Trie(*content, slice.loadAddress()).read();
}

} // namespace kestrune::macho
