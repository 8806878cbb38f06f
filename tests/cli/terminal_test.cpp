// The table at a terminal: what a person reads.
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/cli_process.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

// All that play shows at a terminal on which the lines are typed.
std::string AtTerminal(const TempFolder& folder, const std::string& typed) {
  int terminal = -1;
  const winsize size{50, 200, 0, 0};
  const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
  if (child == 0) {
    setenv("TERM", "dumb", 1);
    execl((std::string(test::kBinFolder) + "/tessaryn-cli").c_str(), "tessaryn-cli", "play", "--data-folder",
          folder.Path().c_str(), "--set", "ShooterBetRule=0", static_cast<char*>(nullptr));
    _exit(127);
  }
  std::string shown;
  std::size_t sent = 0;
  // A line is typed once the prompt for it stands there.
  for (pollfd ready{terminal, POLLIN, 0}; poll(&ready, 1, 20'000) == 1;) {
    char bytes[4096];
    const ssize_t count = read(terminal, bytes, sizeof bytes);
    if (count <= 0) break;
    shown.append(bytes, static_cast<std::size_t>(count));
    if (!shown.ends_with("table> ") && !shown.ends_with("[no] ")) continue;
    const std::size_t end = typed.find('\n', sent);
    if (end == std::string::npos) break;
    if (write(terminal, typed.data() + sent, end + 1 - sent) < 0) break;
    sent = end + 1;
  }
  close(terminal);
  waitpid(child, nullptr, 0);
  std::erase(shown, '\r');
  return shown;
}

TEST(Terminal, ShowsCompileErrorsStacksStepsAndRunTimeErrors) {
  TempFolder folder;
  WriteFile(folder.File("bad.bet"), "bet 5 on filed\n");
  WriteFile(folder.File("good.bet"), "csn3 = \"profit\"\ncs3 = 12.5 : cs4 = 1 / cs5\n");
  const std::string shown =
      AtTerminal(folder, "join 1 Ann 500\nscript 1 " + folder.File("bad.bet") + "\ninitialise 1\nhotkey " +
                             folder.File("bad.bet") + "\nscript 1 " + folder.File("good.bet") +
                             "\nsteps on\ninitialise 1\nerrors\nquit\n");
  const std::string marked = "     1 | bet 5 on filed\n       |          ^~~~~\n";
  const char* const parts[] = {
      "table> script 1 ",
      marked.c_str(),
      "Did you mean \"field\"?\n",
      "table> initialise 1",
      marked.c_str(),
      "table> hotkey ",
      marked.c_str(),
      "good.bet: Your script is properly structured.\n",
      "Ann, line 1: csn3 = \"profit\"\n    Action taken.\n"
      "Ann, line 2: cs3 = 12.5 : cs4 = 1 / cs5\n    Action taken.\n"
      "    No action taken. Division by zero. (error 9999)\n",
      "Ann's script: error 9999 in line 2: Division by zero.\n    cs4 = 1 / cs5\n",
      "     cs3 profit = 12.50\n",
      "table> errors",
      "1 x error 9999 in line 2: Division by zero.\n    cs4 = 1 / cs5\n",
  };
  std::size_t at = 0;
  for (const char* part : parts) {
    const std::size_t found = shown.find(part, at);
    ASSERT_NE(found, std::string::npos) << part << "\nin:\n" << shown;
    at = found + std::string(part).size();
  }
}

}  // namespace
}  // namespace tessaryn::test
