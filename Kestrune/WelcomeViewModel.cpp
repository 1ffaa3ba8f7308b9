#include "Kestrune/WelcomeViewModel.h"

namespace kestrune {

WelcomeViewModel::WelcomeViewModel(Step initialStep, bool isTrusted)
    : currentStep(*this, initialStep),
      isAccessibilityTrusted(*this, isTrusted),
      hasRequestedPermission(*this, false) {}

} // namespace kestrune
