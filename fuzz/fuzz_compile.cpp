// Feeds any bytes to the readers of scripts: as a file of either form, and as text to the compiler. Whatever
// compiles must join and indent.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/normaliser.h"
#include "autobet/language/script_files.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  // The first byte chooses the table, so that one corpus holds every case.
  const unsigned choice = data[0];
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  tessaryn::ScriptSurroundings surroundings;
  surroundings.seatNames[1] = "Joe";
  surroundings.seatNames[2] = "Mary Ann";
  surroundings.big68 = (choice & 16) == 0;
  surroundings.smallTall = (choice & 32) == 0;
  surroundings.midway = (choice & 64) == 0;
  surroundings.fire = (choice & 128) == 0;

  const std::vector<std::string> lines = tessaryn::ScriptLinesOf(bytes);
  tessaryn::CompiledScript script;
  tessaryn::ScriptDiagnostic diagnostic;
  std::vector<int> nesting;
  const bool ok = tessaryn::CompileAutobets(static_cast<int>(choice % 9), lines, surroundings, script,
                                            diagnostic, &nesting);
  Require(ok == !diagnostic.Failed());
  if (ok) {
    tessaryn::CompiledScript program;
    tessaryn::JoinScript(program, script);
    tessaryn::JoinScript(program, script);
    Require(program.tokens.size() == 2 * script.tokens.size() - 1);
    Require(tessaryn::ReindentScript(lines, nesting).size() == lines.size());
  } else {
    Require(script.tokens.empty() && !diagnostic.message.empty());
  }
  tessaryn::ConvertOldStatement(bytes.substr(0, 200));
  tessaryn::CheckPlayerName(bytes.substr(0, 100));
  return 0;
}
