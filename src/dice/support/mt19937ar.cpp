// The support library mt19937ar: MT19937 with the seeding of 2002.
//   init_genrand, genrand_real2: a sequence per thread.
//   init_genrand_block, genrand_block: a sequence per state block of 624 words, owned by the caller.
// Without a seed the plain sequence is that of seed 5489, as published.
#include "twister.h"

namespace {
thread_local tessaryn::twister::PlainStream Plain;
}

extern "C" {

void init_genrand_block(std::uint32_t* state, std::uint32_t seed) {
  state[0] = seed;
  for (int i = 1; i < tessaryn::twister::kStateWords; ++i)
    state[i] = 1812433253u * (state[i - 1] ^ (state[i - 1] >> 30)) + static_cast<std::uint32_t>(i);
}

void genrand_block(std::uint32_t* state, std::uint32_t* out) { tessaryn::twister::NextBlock(state, out); }

void init_genrand(std::uint32_t seed) {
  init_genrand_block(Plain.State, seed);
  Plain.Next = tessaryn::twister::kStateWords;
}

double genrand_real2() {
  if (Plain.Next < 0) init_genrand(5489u);
  return tessaryn::twister::NextReal(Plain);
}
}
