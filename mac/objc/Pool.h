// Autorelease pools.
#pragma once

namespace kestrune::mac {

// Objects that the platform hands out unowned live as long as the innermost pool. Every entry from the
// platform into the application has one, because not every caller has.
class Pool {
public:
    Pool();
    ~Pool();

    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

private:
    void* pool_;
};

} // namespace kestrune::mac
