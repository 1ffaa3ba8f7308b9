// The application's windows as the platform draws them.
#include "mac/objc/Pool.h"
#include "tests/contract/World.h"
#include "tests/mac/ShownWindows.h"
#include "tests/mac/WindowPicture.h"

namespace kestrune::contract {

SeenColor World::colorAt(Point place, std::size_t window) const {
    const mac::Pool pool;
    return native::WindowPicture(native::visibleWindows().at(window)).at(place);
}

} // namespace kestrune::contract
