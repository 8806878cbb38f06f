// The support library cokus: MT19937 with the older seeding by a congruence of multiplier 69069, two steps
// to a word, so that every seed has a sequence of its own and none equals the other library's.
//   srandMT, randomMT: a sequence per thread.
//   srandMT_block, randomMT_block: a sequence per state block of 624 words, owned by the caller.
// Without a seed the plain sequence is that of seed 4357, as published.
#include "twister.h"

namespace {

thread_local tessaryn::twister::PlainStream Plain;

// The upper half of a step; the lower bits of such a congruence have short periods.
std::uint32_t UpperHalf(std::uint32_t& congruence) {
  const std::uint32_t half = congruence >> 16;
  congruence = 69069u * congruence + 1u;
  return half;
}

}  // namespace

extern "C" {

void srandMT_block(std::uint32_t* state, std::uint32_t seed) {
  for (int i = 0; i < tessaryn::twister::kStateWords; ++i) {
    const std::uint32_t upper = UpperHalf(seed);
    state[i] = (upper << 16) | UpperHalf(seed);
  }
}

void randomMT_block(std::uint32_t* state, std::uint32_t* out) { tessaryn::twister::NextBlock(state, out); }

void srandMT(std::uint32_t seed) {
  srandMT_block(Plain.State, seed);
  Plain.Next = tessaryn::twister::kStateWords;
}

double randomMT() {
  if (Plain.Next < 0) srandMT(4357u);
  return tessaryn::twister::NextReal(Plain);
}
}
