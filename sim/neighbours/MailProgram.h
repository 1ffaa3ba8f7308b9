// The user's mail program, as far as links open it: it shows the mail and sends nothing.
#pragma once

#include "sim/neighbours/MailLink.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <optional>

namespace kestrune::sim {

class MailProgram {
public:
    // `session` must outlive the program.
    explicit MailProgram(Session& session) : session_(session) {}

    // Shows the mail of the latest link that was opened since it last looked; false when there is none. Links
    // to anything else are not for it.
    bool lookForLinks();

    // What it shows; absent while it is closed.
    const std::optional<MailLink>& mail() const { return mail_; }

    // How many mails it was asked for.
    std::size_t count() const { return count_; }

    void close() { mail_.reset(); }

private:
    Session& session_;
    std::optional<MailLink> mail_;
    std::size_t count_ = 0;
    std::size_t seenLinks_ = 0;
};

} // namespace kestrune::sim
