#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <memory>

#include "autobet/language/script_text.h"
#include "base/interrupts.h"
#include "cli/commands.h"
#include "cli/lsp_server.h"
#include "cli/refusals.h"
#include "cli/script_report.h"

namespace tessaryn::cli {
namespace {

constexpr std::size_t kLongestHeader = 8 << 10;
constexpr std::size_t kLongestMessage = 64 << 20;

// Standard input, byte by byte. A signal ends it.
class Input {
 public:
  // False at the end.
  bool Next(char& c) {
    if (at_ == count_ && !Fill()) return false;
    c = buffer_[at_++];
    return true;
  }
  // Takes so many bytes off; they are kept if body is given. False at the end.
  bool Take(std::size_t count, std::string* body) {
    while (count > 0) {
      if (at_ == count_ && !Fill()) return false;
      const std::size_t part = std::min(count, count_ - at_);
      if (body != nullptr) body->append(buffer_ + at_, part);
      at_ += part;
      count -= part;
    }
    return true;
  }

 private:
  bool Fill() {
    ssize_t got = -1;
    do got = read(STDIN_FILENO, buffer_, sizeof buffer_);
    while (got < 0 && errno == EINTR && !Interrupted());
    at_ = 0;
    count_ = got > 0 && !Interrupted() ? static_cast<std::size_t>(got) : 0;
    return count_ > 0;
  }

  char buffer_[1 << 16];
  std::size_t at_ = 0;
  std::size_t count_ = 0;
};

// One line of a header without its end; of a longer one than a header may have the begin. False at the end.
bool ReadHeaderLine(Input& input, std::string& line) {
  line.clear();
  for (char c = 0; input.Next(c);) {
    if (c == '\n') {
      if (line.ends_with('\r')) line.pop_back();
      return true;
    }
    if (line.size() < kLongestHeader) line += c;
  }
  return false;
}

enum class Framing { kMessage, kBad, kEnd };

// The header of a message and its body. Of a bad one why tells what is wrong, and the next header follows.
Framing ReadFrame(Input& input, std::string& body, std::string& why) {
  constexpr std::string_view kLength = "content-length:";
  bool known = false;
  std::size_t length = 0;
  std::string line;
  for (bool any = false;; any = true) {
    if (!ReadHeaderLine(input, line)) return Framing::kEnd;
    if (line.empty() && !any) continue;
    if (line.empty()) break;
    if (!Lowered(line).starts_with(kLength)) continue;
    const std::string_view number = Trimmed(std::string_view(line).substr(kLength.size()));
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), length);
    known = error == std::errc() && end == number.data() + number.size();
  }
  body.clear();
  why = "a header without a Content-Length";
  if (!known) return Framing::kBad;
  why = "a message of more than 64 MB";
  const bool fits = length <= kLongestMessage;
  if (!input.Take(length, fits ? &body : nullptr)) return Framing::kEnd;
  return fits ? Framing::kMessage : Framing::kBad;
}

// An editor that is gone is told by the write that fails.
void WriteFrame(const Json& message) {
  const std::string body = message.dump(-1, ' ', false, Json::error_handler_t::replace);
  std::printf("Content-Length: %zu\r\n\r\n%s", body.size(), body.c_str());
  std::fflush(stdout);
}

int Serve(const std::vector<std::string>& players) {
  LspServer server(SurroundingsOfPlayers(players), WriteFrame);
  const auto input = std::make_unique<Input>();
  std::string body;
  std::string why;
  while (!server.Ended() && std::ferror(stdout) == 0) {
    const Framing framing = ReadFrame(*input, body, why);
    if (framing == Framing::kEnd) break;
    if (framing == Framing::kBad) {
      server.Refuse(kLspParseError, why);
      continue;
    }
    const Json message = Json::parse(body, nullptr, false);
    if (message.is_discarded())
      server.Refuse(kLspParseError, "a message that is no JSON");
    else
      server.Take(message);
  }
  return server.ShutDown() ? kDone : kBad;
}

}  // namespace

void AddLspCommand(CLI::App& program, int& exitCode) {
  auto players = std::make_shared<std::vector<std::string>>();
  CLI::App* command = program.add_subcommand(
      "lsp", "Serves editors: the Language Server Protocol for betting scripts on standard input and output");
  command->add_option("--player", *players, kPlayerNamesHelp)->take_all()->allow_extra_args(false);
  command->footer("Example:\n  tessaryn-cli lsp --player Ann      (an editor starts it; see editors/vscode)");
  command->callback([players, &exitCode] { exitCode = Serve(*players); });
}

}  // namespace tessaryn::cli
