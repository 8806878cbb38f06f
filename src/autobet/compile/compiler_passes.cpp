#include "autobet/compile/compiler_passes.h"

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

std::vector<std::size_t> MatchBrackets(const std::vector<ScriptToken>& tokens) {
  std::vector<std::size_t> match(tokens.size(), 0);
  std::vector<std::size_t> open;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind == kTokenOpen) open.push_back(i);
    if (tokens[i].kind != kTokenClose || open.empty()) continue;
    match[open.back()] = i;
    open.pop_back();
  }
  return match;
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

bool FailAt(CompileJob& job, std::size_t index, std::string message) {
  return FailAt(job.script, job.lines, index, std::move(message), job.diagnostic);
}

bool FailBetween(CompileJob& job, std::size_t first, std::size_t last, std::string message) {
  FailAt(job, first, message);
  const ScriptDiagnostic from = job.diagnostic;
  FailAt(job, last, std::move(message));
  job.diagnostic.firstLine = from.firstLine;
  job.diagnostic.firstColumn = from.firstColumn;
  return false;
}

bool FailTooLarge(const CompiledScript& script, const std::vector<std::string>& lines,
                  ScriptDiagnostic& diagnostic) {
  return FailAt(script, lines, script.tokens.size() - 1, "Script too large.", diagnostic);
}

}  // namespace tessaryn
