// Owning handles of the platform's objects.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <utility>

namespace kestrune::mac {

// Retains an object as long as it lives; may be empty. A plain `id` is borrowed.
class Retained {
public:
    Retained() = default;

    // Takes over a reference that the caller owns: the result of alloc, new and copy.
    static Retained adopting(id object) { return Retained(object); }

    // Adds a reference to a borrowed object.
    static Retained retaining(id object);

    Retained(const Retained& other) : Retained(retaining(other.object_)) {}
    Retained(Retained&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Retained& operator=(Retained other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Retained();

    id get() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    explicit Retained(id object) : object_(object) {}

    id object_ = nullptr;
};

} // namespace kestrune::mac
