#include "sim/neighbours/MailProgram.h"

#include <utility>

namespace kestrune::sim {

bool MailProgram::lookForLinks() {
    const std::size_t before = count_;
    const auto& links = session_.openedURLs();
    for (; seenLinks_ < links.size(); ++seenLinks_) {
        if (auto mail = readMailLink(links[seenLinks_])) {
            mail_ = std::move(mail);
            ++count_;
        }
    }
    return count_ != before;
}

} // namespace kestrune::sim
