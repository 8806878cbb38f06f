// Gives any lines to a table as commands. Each gets an answer that can be written as JSON, and the table
// stays whole. Files are made in the fuzzer's own folder alone: lines with a separator are passed over.
#include <memory>
#include <sstream>

#include "cli/play_session.h"
#include "fuzz_host.h"
#include "fuzz_support.h"
#include "play/start_up.h"
#include "rules/consistency.h"
#include "state/game.h"

using namespace tessaryn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  folder.Empty();
  fuzz::BoundedHost<cli::PlayHost> host;
  const std::unique_ptr<Game> game = StartGame(host, "/nonexistent/", folder.PathWithSeparator());
  cli::PlaySession session(*game, host);
  std::istringstream lines(std::string(data, data + size));
  std::string line;
  for (int count = 0; count < 200 && std::getline(lines, line) && !session.Ended(); ++count) {
    if (line.find('/') != std::string::npos) continue;
    host.turns = 0;
    const cli::Json answer = session.Do(line);
    fuzz::Require(answer.contains("ok") && answer["ok"].is_boolean(), "no answer to " + line);
    answer.dump(-1, ' ', false, cli::Json::error_handler_t::replace);
    const std::string problem = CheckConsistency(*game);
    fuzz::Require(problem.empty(), problem + " after " + line);
  }
  return 0;
}
