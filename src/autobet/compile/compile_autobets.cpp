#include "autobet/compile/compile_autobets.h"

#include <algorithm>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/normaliser.h"
#include "autobet/language/script_text.h"

namespace tessaryn {
namespace {

bool RunPasses(CompileJob& job, std::vector<int>* nesting) {
  return NormaliseScript(job.player, job.lines, job.surroundings, job.script, job.diagnostic) &&
         CompileMisc(job) && CompileVariablesOrganize(job) && CompileVariablesDistribute(job) &&
         CompileConvertToAction(job) && CompileLogic(job, nesting) && CompileCheck(job);
}

// No page is wide enough for more; without it a file of nothing but "if" would fill the memory with blanks.
constexpr int kDeepestIndentation = 100;

// What value of the program's array a value of the script's becomes; only indexes move.
double Moved(double value, double by) { return value > 0 ? value + by : value; }

}  // namespace

bool CompileAutobets(SeatId player, const std::vector<std::string>& lines,
                     const ScriptSurroundings& surroundings, CompiledScript& out,
                     ScriptDiagnostic& diagnostic, std::vector<int>* nesting) {
  diagnostic = {};
  CompileJob job{player, lines, surroundings, out, diagnostic};
  if (RunPasses(job, nesting)) return true;
  out = {};
  return false;
}

void JoinScript(CompiledScript& program, const CompiledScript& script) {
  if (script.tokens.size() < 2) return;
  if (program.tokens.empty()) program.tokens.push_back({});
  if (program.strings.empty()) program.strings.push_back({});
  const double byTokens = static_cast<double>(program.tokens.size() - 1);
  const double byStrings = static_cast<double>(program.strings.size() - 1);
  for (std::size_t i = 1; i < script.strings.size(); ++i) {
    program.strings.push_back({script.strings[i].text, Moved(script.strings[i].position, byTokens)});
  }
  bool isReference = false;  // behind a goto or gosub stands a jump target
  for (std::size_t i = 1; i < script.tokens.size(); ++i) {
    ScriptToken token = script.tokens[i];
    const bool jump = token.kind == kTokenGoto || token.kind == kTokenGosub;
    if (isReference || (token.kind >= kTokenIf && token.kind <= kTokenExitDo && !jump)) {
      token.value = Moved(token.value, byTokens);
    } else if (token.kind == kTokenString || token.kind == kTokenLabel) {
      token.value = Moved(token.value, byStrings);
    }
    isReference = jump;
    program.tokens.push_back(token);
  }
}

std::vector<std::string> ReindentScript(const std::vector<std::string>& lines,
                                        const std::vector<int>& nesting) {
  std::vector<std::string> result;
  result.reserve(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string_view text = Trimmed(lines[i]);
    const int level = i < nesting.size() && !text.empty() ? std::min(nesting[i], kDeepestIndentation) : 0;
    result.push_back(std::string(static_cast<std::size_t>(level) * 3, ' ').append(text));
  }
  return result;
}

}  // namespace tessaryn
