// The application's windows as GNUstep draws them.
#include "mac/objc/Pool.h"
#include "tests/contract/World.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/harness/ShownWindows.h"
#include "tests/gnustep/world/ViewPicture.h"

namespace kestrune::contract {

SeenColor World::colorAt(Point place, std::size_t window) const {
    const mac::Pool pool;
    return gnustep::ViewPicture(gnustep::send(gnustep::visibleWindows().at(window), "contentView")).at(place);
}

} // namespace kestrune::contract
