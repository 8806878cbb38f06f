#include <unistd.h>

#include <iostream>
#include <memory>

#include "cli/commands.h"
#include "cli/play_session.h"
#include "cli/play_terminal.h"
#include "cli/script_commands.h"
#include "cli/script_report.h"

namespace tessaryn::cli {
namespace {

struct PlayOptions {
  TableOptions table;
  bool json = false;
};

// Commands on a pipe: one JSON object a line, boxes ahead of it.
int PlayPipe(const PlayOptions& options) {
  PipeHost host;
  const std::unique_ptr<Game> game = SetUpTable(host, options.table);
  if (!game) return kBad;
  PlaySession session(*game, host);
  std::string line;
  while (!Interrupted() && std::getline(std::cin, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.find_first_not_of(" \t") == std::string::npos) continue;
    const Json answer = session.Do(line);
    std::cout << answer.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
    if (session.Ended() || !std::cout) break;
  }
  return EndTable(*game, options.table) ? kDone : kBad;
}

int Play(const PlayOptions& options) {
  const bool terminal = isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0 && !options.json;
  return terminal ? PlayTerminal(options.table) : PlayPipe(options);
}

}  // namespace

void AddPlayCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<PlayOptions>();
  CLI::App* command = program.add_subcommand("play", "A table driven by commands on standard input");
  AddTableOptions(*command, options->table);
  command->add_flag("--json", options->json, "Speak JSON lines on a terminal too");
  command->footer(
      "Example:\n  printf 'join 1 Ann 500\\nbet 1 passline 10\\nroll 4 3\\nstate\\n' | tessaryn-cli play");
  command->callback([options, &exitCode] { exitCode = Play(*options); });
}

}  // namespace tessaryn::cli
