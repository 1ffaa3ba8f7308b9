// What a live desk begins with.
#pragma once

#include "desk/command/Options.h"
#include "replay/recording/InputError.h"
#include "sim/session/Session.h"

#include <variant>

namespace kestrune::desk {

struct LiveDeskSetup : Options {
    // The stored preferences. The choices among the options are stored in their place where they are present.
    sim::PropertyListDictionary defaults = {};

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
