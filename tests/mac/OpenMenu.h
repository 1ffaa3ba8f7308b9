// A menu that a test has opened, and what it shows.
#pragma once

#include "mac/objc/Retained.h"
#include "tests/contract/Shown.h"

#include <functional>
#include <vector>

namespace kestrune::native {

// The items as they would be shown now.
std::vector<id> itemsOf(id menu);

contract::ShownRow rowOf(id item);

// Nobody tracks it: the delegate gets its message from here, and a row that is chosen performs its action.
class OpenMenu {
public:
    // `track` is told when one is open and when none is any more.
    explicit OpenMenu(std::function<void(bool)> track) : track_(std::move(track)) {}

    // Tells the delegate; afterwards it closes, unless a row was chosen. False for nil.
    bool open(id menu, const std::function<void()>& whileOpen);

    // Nil when none is open.
    id get() const { return menu_.get(); }

    std::vector<contract::ShownRow> rows() const;

    // By its place from 0; nothing happens for one that is disabled or not there.
    void chooseRow(std::size_t row);

    // Closes the menu; the item may be in another one.
    void choose(id item);

    // In which the run loop runs now.
    id runLoopMode() const;

private:
    void set(id menu);

    std::function<void(bool)> track_;
    mac::Retained menu_;
};

} // namespace kestrune::native
