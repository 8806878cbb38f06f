// A check over everything that is kept twice.
#pragma once

#include <string>

namespace tessaryn {

struct Game;

// The first contradiction in the table's redundant state, in words; empty when all of it agrees. Cheap
// enough to run after every command and roll of a test.
std::string CheckConsistency(const Game& game);
// In debug builds: stops the program with the contradiction. Nothing in release builds.
#ifdef NDEBUG
inline void RequireConsistency(const Game&) {}
#else
void RequireConsistency(const Game& game);
#endif

}  // namespace tessaryn
