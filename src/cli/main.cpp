#include <cstdio>
#include <string>

#include "cli/cli_host.h"
#include "cli/commands.h"
#include "persist/record_file.h"

namespace tessaryn::cli {

int Fail(const std::string& what) {
  std::fprintf(stderr, "tessaryn-cli: %s\n", what.c_str());
  return kBad;
}

}  // namespace tessaryn::cli

int main(int argc, char** argv) {
  using namespace tessaryn::cli;
  CLI::App program{"Tessaryn: a casino dice table for players, and for people who test betting systems."};
  program.name("tessaryn-cli");
  // None at all is told below: asking for one here would hide the name of a wrong one.
  program.require_subcommand(0, 1);
  program.footer("Every command has --help with an example.");
  int exitCode = kDone;
  AddRunCommand(program, exitCode);
  AddPlayCommand(program, exitCode);
  AddDiceCommand(program, exitCode);
  AddCheckCommand(program, exitCode);
  AddConvertCommand(program, exitCode);
  AddAdvantageCommand(program, exitCode);
  AddProbabilitiesCommand(program, exitCode);
  AddRollsCommand(program, exitCode);
  WatchInterrupts();
  for (int i = 1; i < argc; ++i)
    if (const std::string problem = tessaryn::TextProblem(argv[i]); !problem.empty()) {
      std::fprintf(stderr, "tessaryn-cli: argument %d, \"%s\": %s\n", i, argv[i], problem.c_str());
      return kUsage;
    }
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    const int shown = program.exit(error);
    return shown == 0 ? kDone : kUsage;
  }
  if (program.get_subcommands().empty()) {
    std::fprintf(stderr, "A subcommand is required\nRun with --help for more information.\n");
    return kUsage;
  }
  return exitCode;
}
