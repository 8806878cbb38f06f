// What the tests of the script compiler share.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/normaliser.h"

namespace tessaryn::script_test {

inline std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  std::size_t at = 0;
  while (at <= text.size()) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.emplace_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

// "kind:value kind:value ..." from the first record on.
inline std::string Dump(const CompiledScript& script, std::size_t from = 1) {
  std::string text;
  char buffer[64];
  for (std::size_t i = from; i < script.tokens.size(); ++i) {
    std::snprintf(buffer, sizeof buffer, "%s%d:%g", text.empty() ? "" : " ", script.tokens[i].kind,
                  script.tokens[i].value);
    text += buffer;
  }
  return text;
}

struct Outcome {
  bool ok = false;
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  std::vector<int> nesting;
};

inline ScriptSurroundings Table() {
  ScriptSurroundings surroundings;
  surroundings.seatNames[2] = "Joe";
  surroundings.seatNames[3] = "Mary Ann";
  return surroundings;
}

inline Outcome Compile(std::string_view text, int player = 1,
                       const ScriptSurroundings& surroundings = Table()) {
  Outcome outcome;
  outcome.ok = CompileAutobets(player, Lines(text), surroundings, outcome.script, outcome.diagnostic,
                               &outcome.nesting);
  return outcome;
}

// The message with " | " for a line end, or "" when the script compiles.
inline std::string Message(const Outcome& outcome) {
  std::string message;
  for (const char c : outcome.diagnostic.message)
    message += c == '\r' ? std::string(" | ") : std::string(1, c);
  return message;
}

// The tokens that the first pass makes of one line, its markers left out.
inline std::string FirstPass(const std::string& line, const ScriptSurroundings& surroundings = Table()) {
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  if (!NormaliseScript(1, {line}, surroundings, script, diagnostic)) return "error: " + diagnostic.message;
  CompiledScript shown;
  shown.tokens.push_back({});
  for (std::size_t i = 2; i < script.tokens.size(); ++i) {
    if (script.tokens[i].kind < kStatementMarker) shown.tokens.push_back(script.tokens[i]);
  }
  return Dump(shown);
}

}  // namespace tessaryn::script_test
