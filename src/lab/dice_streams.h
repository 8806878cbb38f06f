// The dice of the laboratory: a stream of its own for each session.
#pragma once

#include <cstdint>
#include <string>

#include "state/generators_state.h"

namespace tessaryn {

// Why the selected generator has no streams that are sure to differ; empty for one that has. #1, #2 and #8
// draw from the twister, whose 19,937 bits of state hold any key; the others remember too little.
std::string StreamProblem(const Generators& generators);

// The selected generator, and the runtime generator beside it, go on with the stream of (seed, session). Two
// sessions of a seed never have the same stream. Requires a generator without a StreamProblem.
void SetDiceStream(Generators& generators, std::uint64_t seed, std::uint64_t session);

}  // namespace tessaryn
