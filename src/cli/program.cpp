#include "cli/program.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>

#include "base/record_file.h"
#include "cli/cli_host.h"
#include "cli/commands.h"
#include "cli/refusals.h"

namespace tessaryn::cli {

namespace {

// A file that is opened must not become one of the three streams. Reading a closed one ends at once; writing
// to one is an error, as it should be.
void HoldStandardStreams() {
  int descriptor = 0;
  do descriptor = open("/dev/null", O_RDONLY);
  while (descriptor >= 0 && descriptor <= 2);
  if (descriptor > 2) close(descriptor);
}

// Results that don't reach standard output are no results; a signal that ended the work is told.
int Ending(int exitCode) {
  errno = 0;
  const bool unwritten = std::fflush(stdout) != 0;
  const std::string why = errno == 0 ? "" : std::string(": ") + std::strerror(errno);
  if (unwritten || std::ferror(stdout) != 0) exitCode = Fail("standard output can't be written" + why);
  // A lost reader is told by the write that failed.
  if (!Interrupted() || (NotedSignal() == SIGPIPE && exitCode != kDone)) return exitCode;
  Fail(SignalReason());
  return SignalExitCode();
}

// So that who starts many commands can name the folder to each.
void TakeDataFolderEverywhere(CLI::App& program) {
  for (CLI::App* command : program.get_subcommands({}))
    if (command->get_option_no_throw("--data-folder") == nullptr)
      command->add_option_function<std::string>(
          "--data-folder", [](const std::string&) {}, kNoDataFolderHelp);
}

}  // namespace

int RunProgram(CLI::App& program, int argc, char** argv, const int& exitCode) {
  // None at all is told below: asking for one here would hide the name of a wrong one.
  program.require_subcommand(0, 1);
  TakeDataFolderEverywhere(program);
  HoldStandardStreams();
  NoteSignals();
  for (int i = 1; i < argc; ++i)
    if (const std::string problem = TextProblem(argv[i]); !problem.empty()) {
      Fail("argument " + std::to_string(i) + ", \"" + argv[i] + "\": " + problem);
      return kUsage;
    }
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    const int shown = program.exit(error);
    return Ending(shown == 0 ? kDone : kUsage);
  }
  if (program.get_subcommands().empty()) {
    std::fprintf(stderr, "A subcommand is required\nRun with --help for more information.\n");
    return kUsage;
  }
  return Ending(exitCode);
}

}  // namespace tessaryn::cli
