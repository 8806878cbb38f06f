// Running the compiled scripts.
#pragma once

#include <string>

#include "state/script_types.h"

namespace tessaryn {

struct Game;

// The script of a seat, compiled; kept until its lines, or what the compiler knows of the table, change.
// Null, with the reason, for a bad one.
const CompiledScript* CompiledScriptOf(Game& game, SeatId seat, const ScriptSurroundings& surroundings,
                                       ScriptDiagnostic& diagnostic);
// Compiles every active script, in seat order, into Program. On an error it tells so and leaves
// ScriptsCompiled off.
void CompileActiveScripts(Game& game);
// Runs Program once, from its first record to its last. Requires ScriptsCompiled.
void RunAutoBet(Game& game);
// Runs a hot-key script, compiled for player 0, in place of Program. The players' scripts must be compiled
// again behind it.
void RunHotKeyScript(Game& game, CompiledScript script);

// What the compiler must know of the table as it stands.
ScriptSurroundings SurroundingsOf(const Game& game);

}  // namespace tessaryn
