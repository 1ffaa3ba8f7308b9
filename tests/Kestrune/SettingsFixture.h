// A session whose bundle has everything that Settings shows.
#pragma once

#include "Kestrune/BugReport.h"
#include "platform/Application.h"
#include "tests/Kestrune/ShellCalls.h"

#include <string>
#include <string_view>

namespace kestrune {

inline sim::BundleContents bundleOfVersion(std::string_view version, std::string_view build) {
    sim::BundleContents bundle;
    bundle.infoDictionary["CFBundleShortVersionString"] = {std::string(version)};
    bundle.infoDictionary["CFBundleVersion"] = {std::string(build)};
    bundle.infoDictionary["NSHumanReadableCopyright"] = {std::string("Copyright © 2026 Kestrune")};
    bundle.infoDictionary["SUFeedURL"] = {std::string("https://kestrune.org/appcast.xml")};
    return bundle;
}

class SettingsFixture : public ::testing::Test {
protected:
    explicit SettingsFixture(sim::BundleContents bundle = bundleOfVersion("2.1", "57"),
                             sim::UpdateFramework framework = sim::UpdateFramework::working)
        : session(options(std::move(bundle), framework)) {
        Application::sharedApplication();
        session.journal().take();
    }

    // The main thread does what waits for it.
    void settle() { session.advance(sim::Duration::zero()); }

    Calls calls() { return session.journal().take(); }

    sim::Session session;

private:
    static sim::SessionOptions options(sim::BundleContents bundle, sim::UpdateFramework framework) {
        sim::SessionOptions options;
        options.bundle = std::move(bundle);
        options.updateFramework = framework;
        return options;
    }
};

} // namespace kestrune
