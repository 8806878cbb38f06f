#include <utility>
#include <vector>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/compile_errors.h"
#include "autobet/language/language.h"
#include "autobet/language/script_spans.h"

namespace tessaryn {
namespace {

// The end of the modifiers that stand behind a group's record at index.
std::size_t ModifiersEnd(const std::vector<ScriptToken>& tokens, const std::vector<std::size_t>& match,
                         std::size_t index) {
  std::size_t at = index + 1;
  if (at + 1 < tokens.size() && tokens[at].kind == kTokenFunction && tokens[at].value == kFunctionPlayer) {
    at = match[at + 1] + 1;
  }
  while (at < tokens.size() && (tokens[at].kind == kTokenPlayer || tokens[at].kind == kTokenScope ||
                                tokens[at].kind == kTokenMetric || tokens[at].kind == kTokenMeasure)) {
    ++at;
  }
  return at;
}

}  // namespace

bool CompileVariablesDistribute(CompileJob& job) {
  const std::vector<ScriptToken>& tokens = job.script.tokens;
  const std::vector<std::size_t> match = MatchBrackets(tokens);
  std::vector<ScriptToken> result;
  result.reserve(tokens.size());
  for (std::size_t i = 0; i < tokens.size();) {
    const int code = CodeOf(tokens[i]);
    if (tokens[i].kind != kTokenVariable || !IsGroupVariable(code)) {
      result.push_back(tokens[i++]);
      continue;
    }
    const std::size_t end = ModifiersEnd(tokens, match, i);
    const std::vector<int> members = GroupMembers(code, job.surroundings);
    if (result.size() + members.size() * (end - i + 1) > kMostTokens)
      return FailAt(job, i, CompileErrorText(CompileError::kTooLarge));
    for (std::size_t m = 0; m < members.size(); ++m) {
      if (m > 0) result.push_back({kTokenComma, 0});
      result.push_back({kTokenVariable, static_cast<double>(members[m])});
      result.insert(result.end(), tokens.begin() + static_cast<std::ptrdiff_t>(i + 1),
                    tokens.begin() + static_cast<std::ptrdiff_t>(end));
    }
    i = end;
  }
  job.script.tokens = std::move(result);
  return true;
}

}  // namespace tessaryn
