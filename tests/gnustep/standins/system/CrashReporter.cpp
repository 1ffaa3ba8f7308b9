// The system's crash reporter.
//
// This is what we believe the Mac does, and no proof of it. Of the annotations it reads the version and the
// message, which are their first words.
//
// Source: the Swift runtime, include/swift/Runtime/CrashReporterClient.h.
#include "tests/gnustep/standins/system/CrashReporter.h"

#include "base/Fatal.h"

#include <array>
#include <cstring>
#include <utility>

// Where the linker put the section of this image; null in one that has none.
// NOLINTBEGIN(readability-identifier-naming): the linker's names
extern "C" {
[[gnu::weak]] extern const std::uint8_t __start___crash_info[];
[[gnu::weak]] extern const std::uint8_t __stop___crash_info[];
}
// NOLINTEND(readability-identifier-naming)

namespace kestrune::gnustep {

namespace {

constexpr std::uint64_t KnownVersion = 5;
constexpr std::size_t SizeOfAnnotations = 64; // bytes, in that version

using Section = std::span<const std::uint8_t>;

std::function<Section()>& sectionToRead() {
    static std::function<Section()> section = [] {
        return Section(__start___crash_info, __stop___crash_info);
    };
    return section;
}

} // namespace

void lookForCrashReportIn(std::function<Section()> section) { sectionToRead() = std::move(section); }

std::string crashReportMessage() {
    const Section section = sectionToRead()();
    if (section.empty()) {
        return "";
    }
    std::array<std::uint64_t, 2> words{};
    if (section.size() != SizeOfAnnotations) {
        fatal("The section __crash_info holds something else than the annotations.");
    }
    std::memcpy(words.data(), section.data(), sizeof(words));
    const auto [version, message] = words;
    if (version != KnownVersion) {
        fatal("The annotations for a crash report are of another version.");
    }
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the annotations hold addresses as numbers.
    return message != 0 ? reinterpret_cast<const char*>(message) : "";
}

} // namespace kestrune::gnustep
