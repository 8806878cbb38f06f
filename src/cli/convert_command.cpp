#include <memory>

#include "autobet/language/script_files.h"
#include "cli/commands.h"
#include "cli/refusals.h"

namespace tessaryn::cli {
namespace {

struct ConvertOptions {
  std::string from;
  std::string to;
};

int Convert(const ConvertOptions& options) {
  std::vector<std::string> lines;
  const ScriptFileResult read = ReadScriptFile(options.from, lines);
  if (!read.Ok())
    return Fail(read.problem == ScriptFileProblem::kNotFound ? NotFound(options.from) : read.message);
  const ScriptFileResult written = WriteScriptFile(options.to, lines);
  return written.Ok() ? kDone : Fail(written.message);
}

}  // namespace

void AddConvertCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<ConvertOptions>();
  CLI::App* command =
      program.add_subcommand("convert", "Rewrites a script of an older version in the language of today");
  command->add_option("OLD", options->from, "The old file")->required();
  command->add_option("NEW", options->to, "The file to write")->required();
  command->footer("Example:\n  tessaryn-cli convert old/field.bet field.bet");
  command->callback([options, &exitCode] { exitCode = Convert(*options); });
}

}  // namespace tessaryn::cli
