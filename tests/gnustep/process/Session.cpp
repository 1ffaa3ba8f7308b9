#include "tests/gnustep/process/Session.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/standins/StandIns.h"
#include "tests/gnustep/standins/appkit/Screens.h"
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/standins/system/AccessibilityTrust.h"
#include "tests/gnustep/standins/system/EventTaps.h"
#include "tests/gnustep/standins/system/MainBundle.h"
#include "tests/scenarios/ShippedBundle.h"

#include <cstdint>
#include <vector>

namespace kestrune::gnustep {

namespace {

const std::vector<contract::ConnectedDisplay>& displays() {
    static const std::vector<contract::ConnectedDisplay> both = {
        {1, "Left", {0, 0, 1600, 1000}, "37D8832A-2D66-02CA-B9F7-8F3000000001", std::int64_t{1}},
        {2, "Right", {1600, 0, 1920, 1080}, "37D8832A-2D66-02CA-B9F7-8F3000000002", std::int64_t{2}}};
    return both;
}

// In the place of the black points that the stand-in makes.
void copyPictures() {
    const id bundle = mac::foundation.bundle.mainBundle();
    const std::filesystem::path target = mac::textOf(send(bundle, "resourcePath"));
    for (const auto& file : std::filesystem::directory_iterator(KESTRUNE_RESOURCES)) {
        if (file.path().extension() == ".png") {
            std::filesystem::copy_file(file, target / file.path().filename(),
                                       std::filesystem::copy_options::overwrite_existing);
        }
    }
}

} // namespace

void beginSession(const std::filesystem::path& home, bool isPermitted) {
    const mac::Pool pool;
    installStandIns();
    setMainBundle(scenarios::shippedBundle(), home.string());
    setUpdateFramework(contract::UpdateFramework::working);
    copyPictures();
    connectDisplays(displays());
    accessibilityRow().trust = isPermitted ? contract::Trust::granted : contract::Trust::notListed;
}

void grantPermission() { accessibilityRow().trust = contract::Trust::granted; }

std::string guardedDisplays() {
    std::string names;
    for (const contract::ConnectedDisplay& display : displays()) {
        const Rect& bounds = display.bounds;
        const Point lowest{bounds.origin.x + bounds.size.width / 2, bounds.origin.y + bounds.size.height - 1};
        const auto delivered = postEvent(EventType::mouseMoved, lowest);
        if (!delivered || delivered->location != lowest) {
            names += (names.empty() ? "" : " ") + display.localizedName;
        }
    }
    return names;
}

} // namespace kestrune::gnustep
