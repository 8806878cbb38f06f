#include <algorithm>
#include <cstdio>
#include <memory>

#include "autobet/language/script_files.h"
#include "base/interrupts.h"
#include "base/record_file.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/script_report.h"
#include "play/script_help.h"

namespace tessaryn::cli {
namespace {

struct FormatOptions {
  std::vector<std::string> files;
  std::vector<std::string> players;
  bool toOutput = false;  // prints instead of writing
  bool check = false;     // tells which files would change
};

std::string TextOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

// Of a script without errors alone: what its blocks are is not known before.
int FormatFile(const FormatOptions& options, const std::string& file) {
  std::string bytes;
  if (const std::string fault = ReadWholeFile(file, bytes); !fault.empty()) return Fail(fault);
  if (IsOldScript(bytes)) return Fail(file + ": a script of an older version; convert brings it up to date");
  std::vector<std::string> lines;
  const ScriptFileResult read = ReadScriptFile(file, lines);
  if (!read.Ok()) return Fail(read.message);
  const ScriptFindings findings = CheckAndIndent(SurroundingsOfPlayers(options.players), 1, lines);
  // A file without statements has nothing to indent, and no fault either.
  if (!findings.check.ok && findings.check.diagnostic.Failed()) {
    std::fputs(CheckReport(file, lines, findings.check).c_str(), stderr);
    return kBad;
  }
  const std::string text = TextOf(findings.indented);
  if (options.toOutput) {
    std::fputs(text.c_str(), stdout);
    return kDone;
  }
  if (text == bytes) return kDone;
  std::printf("%s\n", file.c_str());
  if (options.check) return kBad;
  const ScriptFileResult written = WriteScriptFile(file, findings.indented);
  return written.Ok() ? kDone : Fail(written.message);
}

}  // namespace

void AddFormatCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<FormatOptions>();
  CLI::App* command = program.add_subcommand(
      "format", "Indents betting scripts by their blocks, and tells which files changed");
  command->add_option("FILE", options->files, "Script files")->required();
  command->add_option("--player", options->players, kPlayerNamesHelp)->take_all()->allow_extra_args(false);
  CLI::Option* toOutput =
      command->add_flag("--stdout", options->toOutput, "Print the script instead of writing the file");
  command->add_flag("--check", options->check, "Write nothing; exit code 1 when a file would change")
      ->excludes(toOutput);
  command->footer("Example:\n  tessaryn-cli format --check data/samples/Sample1.bet");
  command->callback([options, &exitCode] {
    for (const std::string& file : options->files)
      if (Interrupted() || FormatFile(*options, file) != kDone) exitCode = kBad;
  });
}

}  // namespace tessaryn::cli
