// What a live desk begins with.
#pragma once

#include "base/Geometry.h"
#include "desk/command/Options.h"
#include "replay/recording/InputError.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {

struct LiveDeskSetup {
    // Global display coordinates, the primary first; at least one.
    std::vector<Rect> displays = {{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};

    // The stored preferences. The choices that follow are stored in their place where they are present.
    sim::PropertyListDictionary defaults = {};
    std::optional<std::size_t> pinned = std::nullopt; // index into `displays`
    std::optional<bool> guardOn = std::nullopt;
    std::optional<double> margin = std::nullopt; // points

    // Where every change of the preferences is saved.
    std::optional<std::string> defaultsFile = std::nullopt;

    sim::Permission permission = sim::Permission::granted;

    // The application's bundle.
    sim::BundleContents bundle = {};

    // Tells how large texts are, and outlives the desk. Null: Pango does, with the fonts that are there.
    const ui::Measurer* measurer = nullptr;
};

// As the command line asks for it, with the application's own resources and the preferences of the options'
// file, which the choices among the options replace. The error says why a file could not be read.
std::variant<LiveDeskSetup, replay::InputError> setupOf(const Options& options);

// The session that the setup describes. It records no journal.
sim::SessionOptions sessionOptionsOf(const LiveDeskSetup& setup);

} // namespace kestrune::desk
