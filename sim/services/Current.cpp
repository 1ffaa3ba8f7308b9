#include "sim/services/Current.h"

#include "base/Fatal.h"

namespace kestrune::sim {

void stopWithoutSession() { fatal("A platform call needs a simulated session."); }

void stopBeforeSecondSession() { fatal("A simulated session exists already."); }

} // namespace kestrune::sim
