// The displays of a session and how their list reads, faults included.
#pragma once

#include "sim/hardware/Display.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::sim {

class Displays {
public:
    explicit Displays(std::vector<Display> displays);

    // The displays that are connected, the primary first.
    const std::vector<Display>& connected() const { return connected_; }

    // Replaces the arrangement.
    void set(std::vector<Display> displays);

    // Fault: the next reads of the list give these, one after the other, before the true list shows again.
    // While displays change, the system's list may be empty or partial for a moment.
    void scriptReads(std::deque<std::vector<Display>> reads) { scriptedReads_ = std::move(reads); }

    // What NSScreen.screens answers now; uses up one scripted read.
    std::vector<Display> read();

    // The display that holds the key window, by its place in the list; absent means that there is none.
    void setMain(std::optional<std::size_t> index) { main_ = index; }
    std::optional<Display> main() const;

    // Fault: CFUUIDCreateString makes no string for any UUID.
    void setUUIDStringsFail(bool fail) { uuidStringsFail_ = fail; }
    bool uuidStringsFail() const { return uuidStringsFail_; }

    // The UUID that the system knows for a display, among those connected and those last read.
    std::optional<std::string> uuidOf(DisplayID displayID) const;

    // A frame in AppKit screen coordinates for bounds in global ones: upside down, from the primary's bottom
    // left.
    Rect appKitFrame(const Rect& bounds) const;

    // The first display that contains the point (global display coordinates), null where there is none.
    const Display* containing(Point point) const;

    const Display* withID(DisplayID displayID) const;

private:
    std::vector<Display> connected_;
    std::vector<Display> lastRead_;
    std::deque<std::vector<Display>> scriptedReads_;
    std::optional<std::size_t> main_ = 0;
    bool uuidStringsFail_ = false;
};

} // namespace kestrune::sim
