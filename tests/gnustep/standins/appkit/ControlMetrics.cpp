// The size that a control is to have, how large it then wants to be, and the role that a button may play: all
// of which GNUstep lacks, or has in the cell alone.
//
// This is what we believe the Mac does, and no proof of it: a switch has one size for each control size, a
// button is as large as its cell, what is seen of a control fills its frame, and a button's role changes
// nothing of that.
#include "tests/gnustep/standins/appkit/ControlMetrics.h"

#include "base/Geometry.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <unordered_map>
#include <unordered_set>

namespace kestrune::gnustep {

namespace {

constexpr mac::Unsigned Regular = 0;
constexpr mac::Unsigned Small = 1;
constexpr mac::Unsigned Mini = 2;
constexpr double NoIntrinsicMetric = -1;

// Of controls, of which not every one has a cell.
std::unordered_map<id, mac::Unsigned>& sizes() {
    static auto& all = *new std::unordered_map<id, mac::Unsigned>;
    return all;
}

void setControlSize(id control, SEL, mac::Unsigned size) {
    if (const id cell = send(control, "cell")) {
        send<void>(cell, "setControlSize:", size);
    }
    sizes()[control] = size;
    whenDeallocated(control, &sizes(), [control] { sizes().erase(control); });
}

Size sizeOfSwitch(id control, SEL) {
    switch (controlSize(control)) {
    case Small:
        return {32, 18};
    case Mini:
        return {26, 15};
    default:
        return {38, 22};
    }
}

Size sizeOfButton(id button, SEL) { return send<Size>(send(button, "cell"), "cellSize"); }

Size noSize(id, SEL) { return {NoIntrinsicMetric, NoIntrinsicMetric}; }

Rect frameForAlignmentRect(id, SEL, Rect alignmentRect) { return alignmentRect; }

std::unordered_set<id>& destructiveButtons() {
    static auto& all = *new std::unordered_set<id>;
    return all;
}

void setHasDestructiveAction(id button, SEL, BOOL isDestructive) {
    destructiveButtons().erase(button);
    if (isDestructive != 0) {
        destructiveButtons().insert(button);
        whenDeallocated(button, &destructiveButtons(), [button] { destructiveButtons().erase(button); });
    }
}

} // namespace

void installControlMetrics() {
    addMethod(classNamed("NSControl"), "setControlSize:", setControlSize);
    addMethod(classNamed("NSView"), "frameForAlignmentRect:", frameForAlignmentRect);
    addMethod(classNamed("NSSwitch"), "intrinsicContentSize", sizeOfSwitch);
    addMethod(classNamed("NSButton"), "intrinsicContentSize", sizeOfButton);
    addMethod(classNamed("NSView"), "intrinsicContentSize", noSize);
    addMethod(classNamed("NSButton"), "setHasDestructiveAction:", setHasDestructiveAction);
}

mac::Unsigned controlSize(id control) {
    const auto entry = sizes().find(control);
    return entry != sizes().end() ? entry->second : Regular;
}

bool hasDestructiveAction(id button) { return destructiveButtons().contains(button); }

} // namespace kestrune::gnustep
