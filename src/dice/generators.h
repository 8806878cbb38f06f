// The eight generators of dice, their seeding, and the runtime generator for all that is not a game roll.
//
// The user knows the generators as #1 to #8; the state holds the index, which is one less. Everything a
// generator remembers is in the struct Generators, so that two tables never disturb each other's sequence.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/money.h"
#include "state/generators_state.h"

namespace tessaryn {

inline constexpr const char* kGeneratorNames[kGeneratorCount] = {"RNG #1",
                                                                 "RNG #2",
                                                                 "RNG #3",
                                                                 "RNG #4",
                                                                 "RNG #5",
                                                                 "RNG #6 (#1 and #5)",
                                                                 "RNG #7 (#2 and #4)",
                                                                 "RNG #8 (#1 single call)"};

inline constexpr std::int32_t kSeedLimit = 2'147'483'647;
inline constexpr std::int32_t kSeedLimitCongruence = 999'999;

// Looks for "mt19937ar.dll" and "cokus.dll" in the folder and sets MissingGeneratorFiles. A file that is no
// such library, or lacks one of its exports, counts as missing. A library once loaded stays in the process.
void LoadSupportLibraries(Generators& generators, const std::string& applicationFolder);

// Selects and time-seeds indexes 2, 4, 3, then 1 and 0 as far as their libraries are there; the last one
// stays selected. Requires LoadSupportLibraries. tick: the millisecond clock.
void StartGenerators(Generators& generators, std::uint32_t tick);

// #1, #6 and #8 without mt19937ar, #2 and #7 without cokus, and an index that is none become #4. Called
// before every roll and whenever an index has been set from outside.
void ReplaceMissingGenerator(Generators& generators);

// The highest seed of the selected generator.
std::int32_t SeedLimit(const Generators& generators);

// The seed that the clock gives the selected generator: the tick, or for #3 a hundredth of it, moved on by 1
// if it was the last seed already. It is always within the limits: a clock that has run past the limit
// starts again at 1. tick: the millisecond clock.
Currency TimeSeed(const Generators& generators, std::uint32_t tick);

// Seeds the selected generator (#6 and #7: both sides). False, with nothing changed, if the candidate is
// outside 1 to SeedLimit. A fraction is rounded, an exact half to the even number. On success the caller
// writes SeedLogLine to an open Events Log.
bool SeedGenerator(Generators& generators, Currency candidate);

// Both dice of one roll, each 1 to 6, from the selected generator. sessionRolls: the rolls of the session
// before this one. Requires ReplaceMissingGenerator.
void DrawDice(Generators& generators, std::int64_t sessionRolls, int& die1, int& die2);

// The number from 1 upwards that percentage dice take for one roll. Up to 100,000, and now and then 100,001
// from #4, #5 and the odd rolls of #6 and #7, which round where the others cut off.
std::int32_t DrawNumber(Generators& generators, std::int64_t sessionRolls);

// The three arithmetic generators by themselves. A negative argument reseeds and then draws, as does the
// very first call whatever its argument; 1 is a plain draw. Result 0 <= x < 1, as a 32-bit float. Should the
// running state be unusable the result is 0 and LastErrorText says so.
float Ran1(Generators& generators, std::int32_t idum);
float Ran2(Generators& generators, std::int32_t idum);
// 1 to n. Steps RngSeedState.
std::int32_t Rng3(Generators& generators, std::int32_t n);

// The runtime generator: 0 <= x < 1. No game roll depends on it.
double Rnd(Generators& generators);
// 1 to n.
int RndPick(Generators& generators, int n);
void RandomizeRnd(Generators& generators, std::uint32_t tick);

}  // namespace tessaryn
