// The user's mail program, as far as links open it: it shows the mail and sends nothing.
#pragma once

#include "desk/live/world/MailLink.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <optional>

namespace kestrune::desk {

class MailProgram {
public:
    // `session` must outlive the program.
    explicit MailProgram(sim::Session& session) : session_(session) {}

    // Shows the mail of the latest link that was opened since it last looked, and comes to the front. Links
    // to anything else are not for it.
    void lookForLinks();

    bool isOpen() const { return mail_.has_value(); }

    // While it is open.
    const MailLink& mail() const { return *mail_; }

    // How many mails it was asked for.
    std::size_t count() const { return count_; }

    void close();

private:
    sim::Session& session_;
    std::optional<MailLink> mail_;
    std::size_t count_ = 0;
    std::size_t seenLinks_ = 0;
};

} // namespace kestrune::desk
