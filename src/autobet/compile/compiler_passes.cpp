#include "autobet/compile/compiler_passes.h"

#include <algorithm>
#include <utility>

namespace tessaryn {
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

}  // namespace tessaryn
