// Gives any lines to the language server as messages. What it answers can be written as JSON, and every
// request that has an id gets one answer.
#include <sstream>

#include "cli/lsp_server.h"
#include "fuzz_support.h"

using namespace tessaryn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::size_t answers = 0;
  cli::LspServer server({}, [&answers](const cli::Json& message) {
    answers += message.contains("id") ? 1 : 0;
    message.dump(-1, ' ', false, cli::Json::error_handler_t::replace);
  });
  std::istringstream lines(std::string(data, data + size));
  std::string line;
  for (int count = 0; count < 100 && std::getline(lines, line) && !server.Ended(); ++count) {
    const cli::Json message = cli::Json::parse(line, nullptr, false);
    if (message.is_discarded()) continue;
    const std::size_t before = answers;
    server.Take(message);
    fuzz::Require(answers - before <= 1, "more than one answer to " + line);
  }
  return 0;
}
