#include "sim/Accessibility.h"

namespace kestrune::sim {

bool Accessibility::readsAsTrusted() const {
    return permission_ == Permission::granted || permission_ == Permission::rowDeleted;
}

} // namespace kestrune::sim
