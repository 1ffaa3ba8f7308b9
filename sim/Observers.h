// The observers at the application's notification center.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::sim {

class Observers {
public:
    void add(std::string_view name, std::function<void()> block);

    // Runs the blocks that wait for a notification of that name, in the order of their registration. They are
    // all on the main queue, where the system posts what it posts; so each runs at once.
    void post(std::string_view name) const;

    std::size_t count() const { return entries_.size(); }

    // The application's process has ended.
    void clear();

private:
    struct Entry {
        std::string name;
        std::shared_ptr<std::function<void()>> block;
    };

    std::vector<Entry> entries_;
    unsigned clearings_ = 0;
};

} // namespace kestrune::sim
