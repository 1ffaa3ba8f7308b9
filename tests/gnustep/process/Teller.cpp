#include "tests/gnustep/process/Teller.h"

#include "tests/gnustep/harness/Send.h"

#include <cstdint>
#include <cstdio>

namespace kestrune::gnustep {

void tell(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

Size screenSize() { return send<Rect>(send(classObject("NSScreen"), "mainScreen"), "frame").size; }

std::string placeOf(id view, const Rect& area) {
    const id window = send(view, "window");
    const Rect inWindow = send<Rect>(view, "convertRect:toView:", area, id{});
    const Point corner = send<Point>(window, "convertBaseToScreen:", inWindow.origin);
    const double top = screenSize().height - (corner.y + inWindow.size.height);
    const auto number = reinterpret_cast<std::uintptr_t>(send<void*>(window, "windowRef"));
    std::string place = std::to_string(number);
    for (const double part : {corner.x, top, inWindow.size.width, inWindow.size.height}) {
        place += "\t" + std::to_string(part);
    }
    return place;
}

} // namespace kestrune::gnustep
