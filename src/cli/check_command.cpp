#include <cstdio>
#include <memory>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/script_files.h"
#include "base/interrupts.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/script_report.h"
#include "play/script_session.h"

namespace tessaryn::cli {
namespace {

struct CheckOptions {
  std::vector<std::string> files;
  std::vector<std::string> players;
  bool json = false;
  bool tokens = false;
};

void PrintTokens(const ScriptSurroundings& surroundings, const std::vector<std::string>& lines) {
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  if (CompileAutobets(1, lines, surroundings, script, diagnostic))
    std::fputs(TokenList(script).c_str(), stdout);
}

// False for a file that can't be read, or whose script is bad.
bool CheckFile(const CheckOptions& options, const std::string& file) {
  std::vector<std::string> lines;
  const ScriptFileResult read = ReadScriptFile(file, lines);
  if (!read.Ok()) {
    Fail(read.problem == ScriptFileProblem::kNotFound ? NotFound(file) : read.message);
    return false;
  }
  const ScriptSurroundings surroundings = SurroundingsOfPlayers(options.players);
  const ScriptCheck check = CheckLines(surroundings, 1, lines);
  if (check.ok && options.tokens) {
    PrintTokens(surroundings, lines);
    return true;
  }
  if (options.json)
    std::printf("%s\n",
                CheckJson(file, lines, check).dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
  else
    std::fputs(CheckReport(file, lines, check).c_str(), stdout);
  return check.ok;
}

}  // namespace

void AddCheckCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<CheckOptions>();
  CLI::App* command = program.add_subcommand("check", "Checks betting scripts");
  command->add_option("FILE", options->files, "Script files")->required();
  command->add_option("--player", options->players, kPlayerNamesHelp)->take_all()->allow_extra_args(false);
  command->add_flag("--json", options->json, "Print a JSON object for each file");
  command->add_flag("--tokens", options->tokens, "Print the compiled records, one \"kind value\" a line");
  command->footer("Example:\n  tessaryn-cli check data/samples/Sample1.bet");
  command->callback([options, &exitCode] {
    for (const std::string& file : options->files)
      if (Interrupted() || !CheckFile(*options, file)) exitCode = kBad;
  });
}

}  // namespace tessaryn::cli
