// Shows that the floor decides every event as the guard does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace kestrune::benchmarks {

// Hands events all over and around the displays of each row to each decider. The hash of where they left
// them; absent, with a line on standard error, as soon as two of them disagree.
std::optional<std::uint64_t> hashOfAgreement(std::size_t eventsPerRow);

} // namespace kestrune::benchmarks
