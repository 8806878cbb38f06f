// The script compiler.
#pragma once

#include <string>
#include <vector>

#include "state/script_types.h"

namespace tessaryn {

// Compiles the script of player 0 to 8 (0 a hot-key script). On failure returns false with the first error
// in diagnostic, and out is empty. nesting, if given, takes on success the level of each line.
bool CompileAutobets(SeatId player, const std::vector<std::string>& lines,
                     const ScriptSurroundings& surroundings, CompiledScript& out,
                     ScriptDiagnostic& diagnostic, std::vector<int>* nesting = nullptr);

// Appends a compiled script to the program of all scripts, its jumps and string numbers moved.
void JoinScript(CompiledScript& program, const CompiledScript& script);

// The lines with three blanks of indentation for each level, up to 100 levels. Blank lines become empty.
std::vector<std::string> ReindentScript(const std::vector<std::string>& lines,
                                        const std::vector<int>& nesting);

}  // namespace tessaryn
