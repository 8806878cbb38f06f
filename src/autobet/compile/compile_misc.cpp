#include <cctype>
#include <string>
#include <unordered_map>
#include <vector>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/compile_errors.h"
#include "autobet/language/language.h"
#include "autobet/language/script_spans.h"
#include "autobet/language/script_text.h"

namespace tessaryn {
namespace {

using Tokens = std::vector<ScriptToken>;

bool CheckBracketBalance(CompileJob& job) {
  const Tokens& tokens = job.script.tokens;
  int depth = 0;
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    const bool closesNothing = tokens[i].kind == kTokenClose && depth == 0;
    if (closesNothing || (IsMarker(tokens[i]) && depth != 0)) {
      return FailAt(job, closesNothing ? i : i - 1, CompileErrorText(CompileError::kBrackets));
    }
    if (tokens[i].kind == kTokenOpen) ++depth;
    if (tokens[i].kind == kTokenClose) --depth;
  }
  return true;
}

std::string MissingBracketMessage(const ScriptToken& token) {
  const int code = CodeOf(token);
  if (token.kind == kTokenFunction) {
    const FunctionProperty* function = FindFunction(code);
    const bool bet = function != nullptr && function->kind == FunctionKind::kBet;
    return CompileErrorText(bet ? CompileError::kBetWithoutBracket : CompileError::kFunctionWithoutBracket,
                            {function ? function->name : "function"});
  }
  return CompileErrorText(code == kListAny ? CompileError::kAnyWithoutBracket
                                           : CompileError::kAllWithoutBracket);
}

// Functions and lists need their brackets.
bool CheckBracketsBehind(CompileJob& job, std::int32_t kind) {
  const Tokens& tokens = job.script.tokens;
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    if (tokens[i].kind != kind) continue;
    if (i + 1 == tokens.size() || tokens[i + 1].kind != kTokenOpen) {
      return FailAt(job, i, MissingBracketMessage(tokens[i]));
    }
  }
  return true;
}

bool TakesList(const ScriptToken& token) {
  if (token.kind != kTokenFunction) return token.kind == kTokenList;
  const FunctionProperty* function = FindFunction(CodeOf(token));
  return function != nullptr && function->TakesList();
}

// A run finds the end of a list by the sentinel ahead of its close bracket.
void InsertListSentinels(Tokens& tokens) {
  Tokens result;
  result.reserve(tokens.size() + 16);
  std::vector<bool> isList;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind == kTokenOpen) isList.push_back(TakesList(tokens[i - 1]));
    if (tokens[i].kind == kTokenClose) {
      if (isList.back()) result.push_back({kTokenEnd, 0});
      isList.pop_back();
    }
    result.push_back(tokens[i]);
  }
  tokens = std::move(result);
}

// A string or a number alone in a statement is a label. In a condition a number alone is a value.
void MarkLabels(CompiledScript& script) {
  Tokens& tokens = script.tokens;
  bool inCondition = false;
  for (std::size_t i = 2; i + 1 < tokens.size(); ++i) {
    ScriptToken& token = tokens[i];
    if (token.kind == kTokenIf || token.kind == kTokenElseIf) inCondition = true;
    if (token.kind == kTokenThen) inCondition = false;
    if (!IsMarker(tokens[i - 1]) || !IsMarker(tokens[i + 1])) continue;
    if (token.kind == kTokenNumber && !inCondition) {
      script.strings.push_back({GeneralNumber(token.value), 0});
      token.value = static_cast<double>(script.strings.size() - 1);
    } else if (token.kind != kTokenString || token.value <= 0) {
      continue;
    }
    token.kind = kTokenLabel;
    script.strings[static_cast<std::size_t>(token.value)].position = static_cast<double>(i);
  }
}

bool CheckDuplicateLabels(CompileJob& job) {
  std::unordered_map<std::string, std::size_t> seen;  // to the token
  std::size_t first = 0;
  std::size_t second = 0;
  for (std::size_t i = 1; i < job.script.tokens.size(); ++i) {
    const ScriptToken& token = job.script.tokens[i];
    if (token.kind != kTokenLabel) continue;
    const std::string& text = job.script.strings[static_cast<std::size_t>(token.value)].text;
    const auto [entry, isNew] = seen.emplace(Lowered(Trimmed(text)), i);
    if (isNew || (first != 0 && entry->second >= first)) continue;
    first = entry->second;
    second = i;
  }
  if (first == 0) return true;
  const Tokens& tokens = job.script.tokens;
  const std::string& text = job.script.strings[static_cast<std::size_t>(tokens[first].value)].text;
  double number = 0;
  const bool numeric = ParseScriptNumber(Trimmed(text), number);
  const int line = LineOfMarker(tokens[StatementStart(tokens, first)]);
  return FailBetween(
      job, first, second,
      CompileErrorText(numeric ? CompileError::kSameNumber : CompileError::kSameLabel, std::to_string(line)));
}

bool IsPlayerScopeOrMetric(const ScriptToken& token) {
  return token.kind == kTokenPlayer || token.kind == kTokenScope || token.kind == kTokenMetric;
}

bool IsBet(const ScriptToken& token) { return token.kind == kTokenVariable && IsTableBet(CodeOf(token)); }

// Beside a bet "# rolls since last" is that bet's measure, else a count of the table's.
void AttachRollsSinceLast(Tokens& tokens) {
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    if (tokens[i].kind != kTokenVariable || tokens[i].value != kVariableRollsSinceLast) continue;
    std::size_t ahead = i + 1;
    while (ahead < tokens.size() && IsPlayerScopeOrMetric(tokens[ahead])) ++ahead;
    std::size_t behind = i - 1;
    while (behind > 0 && IsPlayerScopeOrMetric(tokens[behind])) --behind;
    if ((ahead < tokens.size() && IsBet(tokens[ahead])) || IsBet(tokens[behind])) {
      tokens[i] = {kTokenMeasure, kMeasureRollsSinceLast};
    }
  }
}

}  // namespace

bool CompileMisc(CompileJob& job) {
  if (!CheckBracketBalance(job)) return false;
  if (!CheckBracketsBehind(job, kTokenFunction)) return false;
  if (!CheckBracketsBehind(job, kTokenList)) return false;
  InsertListSentinels(job.script.tokens);
  MarkLabels(job.script);
  if (!CheckDuplicateLabels(job)) return false;
  AttachRollsSinceLast(job.script.tokens);
  return true;
}

}  // namespace tessaryn
