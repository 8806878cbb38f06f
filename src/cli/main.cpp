#include "cli/commands.h"
#include "cli/program.h"

int main(int argc, char** argv) {
  using namespace tessaryn::cli;
  CLI::App program{"Tessaryn: a casino dice table for players, and for people who test betting systems."};
  program.name("tessaryn-cli");
  program.set_version_flag("--version", TESSARYN_VERSION);
  program.footer("Every command has --help with an example.");
  int exitCode = kDone;
  AddRunCommand(program, exitCode);
  AddPlayCommand(program, exitCode);
  AddDiceCommand(program, exitCode);
  AddCheckCommand(program, exitCode);
  AddFormatCommand(program, exitCode);
  AddLspCommand(program, exitCode);
  AddConvertCommand(program, exitCode);
  AddAdvantageCommand(program, exitCode);
  AddProbabilitiesCommand(program, exitCode);
  AddRollsCommand(program, exitCode);
  AddSessionsCommand(program, exitCode);
  AddGameCommand(program, exitCode);
  AddLabCommand(program, exitCode);
  return RunProgram(program, argc, argv, exitCode);
}
