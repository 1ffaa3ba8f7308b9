// What a URL is on the platform.
#pragma once

#include "mac/objc/Retained.h"
#include "platform/URL.h"

#include <memory>
#include <optional>

namespace kestrune {

struct URL::State {
    // Retains an NSURL; absent for nil.
    static std::optional<URL> handle(id url) {
        return url != nullptr
                   ? std::optional(URL(std::make_shared<const State>(State{mac::Retained::retaining(url)})))
                   : std::nullopt;
    }

    mac::Retained url;
};

} // namespace kestrune
