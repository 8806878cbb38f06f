// What the eight generators of dice remember, and the runtime generator beside them. Written by
// dice/generators.cpp.
#pragma once

#include <cstdint>
#include <string>

#include "base/fields.h"

namespace tessaryn {

enum GeneratorNumber : int {
  kGeneratorMersenne = 0,        // #1: genrand_real2
  kGeneratorCokus = 1,           // #2: randomMT
  kGeneratorCongruence = 2,      // #3: Rng3
  kGeneratorRan2 = 3,            // #4, and the stand-in for a generator whose library is missing
  kGeneratorRan1 = 4,            // #5
  kGeneratorMersenneRan1 = 5,    // #6: #1 on even rolls, #5 on odd ones
  kGeneratorCokusRan2 = 6,       // #7: #2 on even rolls, #4 on odd ones
  kGeneratorMersenneSingle = 7,  // #8: #1, both dice from one number
  kGeneratorCount = 8,
};

inline constexpr int kMissingMersenne = 1;  // bits of MissingGeneratorFiles
inline constexpr int kMissingCokus = 2;

inline constexpr int kTwisterWords = 624;

// One Mersenne Twister sequence of this table, drawn a block at a time from a support library.
struct TwisterStream {
  using SeedBlockFunction = void (*)(std::uint32_t* state, std::uint32_t seed);
  using NextBlockFunction = void (*)(std::uint32_t* state, std::uint32_t* out);

  SeedBlockFunction SeedBlock = nullptr;  // null while the library is missing
  NextBlockFunction NextBlock = nullptr;
  bool Seeded = false;
  int Next = kTwisterWords;                // index into Numbers; kTwisterWords: all used up
  std::uint32_t State[kTwisterWords]{};    // the library's own
  std::uint32_t Numbers[kTwisterWords]{};  // 32-bit numbers not yet all drawn
};
TESSARYN_FIELDS(TwisterStream, SeedBlock, NextBlock, Seeded, Next, State, Numbers)

struct Ran1State {
  bool Initialised = false;
  std::int32_t ix1 = 0;  // 0 to 259,199
  std::int32_t ix2 = 0;  // 0 to 134,455
  std::int32_t ix3 = 0;  // 0 to 242,999
  std::int32_t j = 0;    // the slot last drawn from, 1 to 97
  float r[98]{};         // 1 to 97 used
};
TESSARYN_FIELDS(Ran1State, Initialised, ix1, ix2, ix3, j, r)

struct Ran2State {
  bool Initialised = false;
  std::int32_t idum = 0;  // 0 to 714,024
  std::int32_t iy = 0;    // 0 to 714,024
  std::int32_t j = 0;     // the slot last drawn from, 1 to 97
  std::int32_t ir[98]{};  // 1 to 97 used
};
TESSARYN_FIELDS(Ran2State, Initialised, idum, iy, j, ir)

struct Generators {
  std::int32_t GeneratorIndex = kGeneratorRan2;                  // 0 to 7
  bool RngUserSeed = false;                                      // the user is asked for each seed
  bool RngReseedNewSessions = false;                             // a new session seeds again
  std::int32_t RngSeedState = 0;                                 // the seed just set; the running state of #3
  std::int32_t RngLastSeed = 0;                                  // the last seed set, as shown to the user
  int MissingGeneratorFiles = kMissingMersenne | kMissingCokus;  // written by LoadSupportLibraries
  TwisterStream Mersenne;                                        // mt19937ar
  TwisterStream Cokus;                                           // cokus
  Ran1State Ran1;
  Ran2State Ran2;
  std::uint64_t RndState = 0;  // the runtime generator; the same at every start
  std::string LastErrorText;   // what Ran1 or Ran2 last had to complain of; empty if nothing
};
TESSARYN_FIELDS(Generators, GeneratorIndex, RngUserSeed, RngReseedNewSessions, RngSeedState, RngLastSeed,
                MissingGeneratorFiles, Mersenne, Cokus, Ran1, Ran2, RndState, LastErrorText)

}  // namespace tessaryn
