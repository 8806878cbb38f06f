// Seeding the table's generator: from the clock, by the user, or with a given value.
#pragma once

#include "base/money.h"

namespace tessaryn {

struct Game;

// Seeds the selected generator. useGivenSeed in: take candidate (below 1 the clock decides); out: false when
// the candidate was refused, with nothing changed. Without it the clock decides, or with RngUserSeed the
// user is asked until the answer is within the limits. A Cancel keeps the seed in force.
void SeedRng(Game& game, bool& useGivenSeed, Currency candidate);
// Without a given seed.
void SeedRng(Game& game, bool useGivenSeed);
// The generator by number 1 to 8; false beyond. One whose support file is missing becomes #4.
bool SelectGenerator(Game& game, int number);

}  // namespace tessaryn
