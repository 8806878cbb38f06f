#include "autobet/language/script_spans.h"

#include <algorithm>
#include <utility>

namespace tessaryn {
namespace {

int LineLength(const std::vector<std::string>& lines, int line) {
  const bool known = line >= 1 && static_cast<std::size_t>(line) <= lines.size();
  return known ? static_cast<int>(lines[static_cast<std::size_t>(line) - 1].size()) : 0;
}

}  // namespace

std::size_t StatementStart(const std::vector<ScriptToken>& tokens, std::size_t index) {
  while (index > 0 && !IsMarker(tokens[index])) --index;
  return index;
}

std::size_t StatementEnd(const std::vector<ScriptToken>& tokens, std::size_t index) {
  ++index;
  while (index < tokens.size() && !IsMarker(tokens[index])) ++index;
  return index;
}

bool FailAt(const CompiledScript& script, const std::vector<std::string>& lines, std::size_t index,
            std::string message, ScriptDiagnostic& diagnostic) {
  const std::vector<ScriptToken>& tokens = script.tokens;
  const std::size_t start = StatementStart(tokens, index);
  const std::size_t end = StatementEnd(tokens, index);
  const int line = std::max(1, IsMarker(tokens[start]) ? LineOfMarker(tokens[start]) : 1);
  diagnostic.message = std::move(message);
  diagnostic.firstLine = diagnostic.lastLine = line;
  diagnostic.firstColumn = CodeOf(tokens[start]);
  const bool sameLine = end < tokens.size() && LineOfMarker(tokens[end]) == line;
  diagnostic.lastColumn = sameLine ? CodeOf(tokens[end]) : LineLength(lines, line);
  return false;
}

bool FailTooLarge(const CompiledScript& script, const std::vector<std::string>& lines,
                  ScriptDiagnostic& diagnostic) {
  return FailAt(script, lines, script.tokens.size() - 1, "Script too large.", diagnostic);
}

}  // namespace tessaryn
