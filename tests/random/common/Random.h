// The random numbers of a simulated session: the same seed gives the same session on every platform and
// compiler, which the standard library's distributions do not.
//
// Source of the algorithm: Blackman and Vigna, "Scrambled Linear Pseudorandom Number Generators", 2021
// (xoshiro256++).
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kestrune::simulate {

class Random {
public:
    explicit constexpr Random(std::uint64_t seed)
        : state_{seed, 0x6A09E667F3BCC908, 0xBB67AE8584CAA73B, 0x3C6EF372FE94F82B} {
        for (int discarded = 0; discarded < MixingSteps; ++discarded) {
            next();
        }
    }

    constexpr std::uint64_t next() {
        const std::uint64_t result = std::rotl(state_[0] + state_[3], 23) + state_[0];
        const std::uint64_t shifted = state_[1] << 17U;
        state_[2] ^= state_[0];
        state_[3] ^= state_[1];
        state_[1] ^= state_[2];
        state_[0] ^= state_[3];
        state_[2] ^= shifted;
        state_[3] = std::rotl(state_[3], 45);
        return result;
    }

    // In [0, 1).
    constexpr double unit() { return static_cast<double>(next() >> 11U) * 0x1p-53; }

    // In [least, most), up to rounding.
    constexpr double real(double least, double most) { return least + (most - least) * unit(); }

    // In [0, count); `count` must not be 0.
    constexpr std::size_t index(std::size_t count) {
        return static_cast<std::size_t>(((next() >> 32U) * count) >> 32U);
    }

    // In [least, most].
    constexpr int whole(int least, int most) {
        return least + static_cast<int>(index(static_cast<std::size_t>(most - least) + 1));
    }

    constexpr bool chance(double probability) { return unit() < probability; }

    // One of the choices, of which there must be some.
    template <typename Choice, std::size_t Count>
    constexpr const Choice& pick(const std::array<Choice, Count>& choices) {
        return choices[index(Count)];
    }

    template <typename Choice>
    const Choice& pick(const std::vector<Choice>& choices) {
        return choices[index(choices.size())];
    }

    // One of the choices, each as likely as its `weight` is of the weight of all.
    template <typename Choice>
    const Choice& weighted(const std::vector<Choice>& choices) {
        double total = 0;
        for (const Choice& choice : choices) {
            total += choice.weight;
        }
        double draw = real(0, total);
        for (const Choice& choice : choices) {
            draw -= choice.weight;
            if (draw < 0) {
                return choice;
            }
        }
        return choices.back();
    }

private:
    // Neighbouring seeds give unrelated sequences only after the state has been stirred.
    static constexpr int MixingSteps = 32;

    std::array<std::uint64_t, 4> state_;
};

} // namespace kestrune::simulate
