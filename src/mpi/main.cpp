// The laboratory on many machines: "mpirun -n R tessaryn-mpi lab ..." is "tessaryn-cli lab ..." with R
// processes.
#include <cstdio>

#include "cli/commands.h"
#include "cli/program.h"
#include "mpi/ranks.h"

namespace {

int Lead(tessaryn::mpi::Ranks& ranks, int argc, char** argv) {
  using namespace tessaryn::cli;
  CLI::App program{"Tessaryn's laboratory, by all processes of an MPI job."};
  program.name("tessaryn-mpi");
  program.set_version_flag("--version", TESSARYN_VERSION);
  program.footer(
      "Example:\n  mpirun -n 4 tessaryn-mpi lab --bets passline=10 --sessions 1000000 --out line.lab");
  int exitCode = kDone;
  tessaryn::LabHelpers helpers = tessaryn::mpi::HelpersOf(ranks);
  AddLabCommand(program, exitCode, &helpers);
  return RunProgram(program, argc, argv, exitCode);
}

}  // namespace

int main(int argc, char** argv) {
  tessaryn::mpi::Ranks ranks;
  int exitCode = tessaryn::cli::kDone;
  if (const std::string error = tessaryn::mpi::JoinRanks(ranks, &argc, &argv); !error.empty())
    exitCode = tessaryn::cli::Fail(error);
  else if (ranks.rank == 0)
    exitCode = Lead(ranks, argc, argv);
  else
    tessaryn::mpi::Help(ranks);
  tessaryn::mpi::LeaveRanks(ranks);
  return exitCode;
}
