// The Settings window and the mail that it prepares, as they must be, worked out from the rules a second time
// and without their code.
#pragma once

#include "platform/ProcessInfo.h"
#include "sim/formats/PropertyList.h"
#include "tests/random/application/MenuModel.h"
#include "tests/random/application/WindowsModel.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::simulate {

// What the bundle says of itself, and the Mac that it runs on.
struct BundleFacts {
    std::optional<sim::PropertyList> version = std::nullopt;
    std::optional<sim::PropertyList> build = std::nullopt;
    std::optional<sim::PropertyList> copyright = std::nullopt;
    std::optional<sim::PropertyList> feed = std::nullopt;
    OperatingSystemVersion system = {14, 5, 0};
    std::string locale = "en_US";
};

// The value if it is a text.
std::optional<std::string> textIn(const std::optional<sim::PropertyList>& value);

// The form's texts outside of its buttons, from the top.
std::vector<std::string> settingsTexts(const BundleFacts& facts, const Translations& translations);

// The link that the mail program opens.
std::string bugReportLink(const BundleFacts& facts, const Translations& translations,
                          std::string_view address);

struct SettingsModel {
    bool isOn;
    bool isShownOn; // as it was laid out last
    bool isLayoutPending = false;
    std::uint64_t publications = 0; // since the window was made
    WindowsModel::Window window;
};

} // namespace kestrune::simulate
