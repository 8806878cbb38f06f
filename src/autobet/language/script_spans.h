// Where a record of a script stands in its text, and the error that marks the place.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "state/script_types.h"

namespace tessaryn {

// A script of more records than this is refused: nobody writes one, and a line of a few words can ask for
// any number of them ("bets, bets, bets").
inline constexpr std::size_t kMostTokens = 1'000'000;

inline bool IsMarker(const ScriptToken& token) { return token.kind >= kStatementMarker; }
inline int LineOfMarker(const ScriptToken& token) { return token.kind - kStatementMarker; }
// The marker that opens the statement of record index, or the record itself if it is one.
std::size_t StatementStart(const std::vector<ScriptToken>& tokens, std::size_t index);
// The next marker behind record index, or the count of records.
std::size_t StatementEnd(const std::vector<ScriptToken>& tokens, std::size_t index);
// Reports message with the span of the statement of a record. Returns false.
bool FailAt(const CompiledScript& script, const std::vector<std::string>& lines, std::size_t index,
            std::string message, ScriptDiagnostic& diagnostic);
bool FailTooLarge(const CompiledScript& script, const std::vector<std::string>& lines,
                  ScriptDiagnostic& diagnostic);

}  // namespace tessaryn
