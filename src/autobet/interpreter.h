// Running the compiled scripts.
#pragma once

namespace tessaryn {

struct Game;

// Compiles every active script, in seat order, into Program. On an error it tells so and leaves
// ScriptsCompiled off.
void CompileALLAutobets(Game& game);
// Runs Program once, from its first record to its last. Requires ScriptsCompiled.
void RunAutoBet(Game& game);

}  // namespace tessaryn
