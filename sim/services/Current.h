// The services of the simulated session that exists, each found by its kind.
//
// A function of the seam is called as the platform's own is, with nothing to find the system by. It asks here
// for the services that it uses and knows no others.
#pragma once

namespace kestrune::sim {

[[noreturn]] void stopWithoutSession();
[[noreturn]] void stopBeforeSecondSession();

// Makes a service the current one of its kind as long as this lives. There is one session at a time, and so
// one service of each kind.
template <typename Service>
class Current {
public:
    // `service` must outlive this.
    explicit Current(Service& service) {
        if (service_ != nullptr) {
            stopBeforeSecondSession();
        }
        service_ = &service;
    }

    ~Current() { service_ = nullptr; }

    Current(const Current&) = delete;
    Current& operator=(const Current&) = delete;

    static Service& get() {
        if (service_ == nullptr) {
            stopWithoutSession();
        }
        return *service_;
    }

private:
    // The platform is one for the whole process, and so is what stands in for it.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
    inline static Service* service_ = nullptr;
};

// The same for several.
template <typename... Services>
class AllCurrent : Current<Services>... {
public:
    explicit AllCurrent(Services&... services) : Current<Services>(services)... {}
};

// Stops the process when there is no session.
template <typename Service>
Service& current() {
    return Current<Service>::get();
}

} // namespace kestrune::sim
