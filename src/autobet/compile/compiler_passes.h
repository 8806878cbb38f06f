// The passes of the script compiler, for CompileAutobets and the tests. Each works on the tokens in place,
// and at the first error fills the job's diagnostic and returns false; the tokens are then worthless.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "autobet/language/script_spans.h"

namespace tessaryn {

// One script in compilation.
struct CompileJob {
  SeatId player = 0;                      // 0 a hot-key script
  const std::vector<std::string>& lines;  // as typed
  const ScriptSurroundings& surroundings;
  CompiledScript& script;
  ScriptDiagnostic& diagnostic;
};

// Brackets, functions, lists, labels, "rolls since last".
bool CompileMisc(CompileJob& job);
// Brings every reference to its canonical run: variable, player, scope, metric, measure.
bool CompileVariablesOrganize(CompileJob& job);
// Replaces group names by their members.
bool CompileVariablesDistribute(CompileJob& job);
// Marks what a statement assigns to.
bool CompileConvertToAction(CompileJob& job);
// Matches the block keywords and resolves the jumps. nesting, if given, takes the level of each line.
bool CompileLogic(CompileJob& job, std::vector<int>* nesting);
// Reduces every statement as a run will, with kinds of values for values.
bool CompileCheck(CompileJob& job);

// Each reports message with the span of the statement, or statements, of the given records. Returns false.
bool FailAt(CompileJob& job, std::size_t index, std::string message);
bool FailBetween(CompileJob& job, std::size_t first, std::size_t last, std::string message);
// For every open bracket the index of its close bracket; 0 elsewhere. Requires balanced brackets.
std::vector<std::size_t> MatchBrackets(const std::vector<ScriptToken>& tokens);

}  // namespace tessaryn
