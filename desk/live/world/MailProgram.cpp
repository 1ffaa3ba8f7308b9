#include "desk/live/world/MailProgram.h"

#include "desk/live/world/OtherApplication.h"

#include <utility>

namespace kestrune::desk {

void MailProgram::lookForLinks() {
    const auto& links = session_.openedURLs();
    for (; seenLinks_ < links.size(); ++seenLinks_) {
        if (auto mail = readMailLink(links[seenLinks_])) {
            mail_ = std::move(mail);
            ++count_;
            comeToTheFront(session_);
        }
    }
}

void MailProgram::close() {
    mail_.reset();
    leaveTheFront(session_);
}

} // namespace kestrune::desk
