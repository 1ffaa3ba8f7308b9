#include "tests/gnustep/process/SystemWatch.h"

#include "tests/gnustep/process/Teller.h"
#include "tests/gnustep/standins/appkit/ActivationPolicy.h"
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/standins/system/LoginItem.h"
#include "tests/gnustep/standins/system/OpenedURLs.h"

#include <string>
#include <vector>

namespace kestrune::gnustep {

namespace {

// The last value that was told of each.
struct Told {
    AppServiceStatus loginItem = AppServiceStatus::notRegistered;
    ActivationPolicy policy = ActivationPolicy::regular;
    std::size_t urls = 0;
    std::size_t messages = 0;
};

template <typename Value>
void tellChange(const std::string& kind, Value& told, Value now) {
    if (told != now) {
        told = now;
        tell(kind + "\t" + std::to_string(static_cast<int>(now)));
    }
}

void tellNew(const std::string& kind, std::size_t& told, const std::vector<std::string>& all) {
    for (; told < all.size(); ++told) {
        tell(kind + "\t" + all[told]);
    }
}

} // namespace

void watchSystem() {
    static Told told;
    tellChange("login item", told.loginItem, loginItem().status);
    tellChange("policy", told.policy, activationPolicy());
    tellNew("opened", told.urls, openedURLs());
    tellNew("updates", told.messages, updateMessages());
}

} // namespace kestrune::gnustep
