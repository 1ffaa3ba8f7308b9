#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

constinit const AppKit appKit;
constinit const Foundation foundation;
constinit const ServiceManagement serviceManagement;
constinit const Sparkle sparkle;

} // namespace kestrune::mac
