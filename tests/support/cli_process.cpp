#include "support/cli_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace tessaryn::test {

Ran RunCli(const TempFolder& folder, std::vector<std::string> arguments, const std::string& input) {
  WriteFile(folder.File("stdin"), input);
  const std::string program = std::string(TESSARYN_BIN_DIR) + "/tessaryn-cli";
  arguments.insert(arguments.begin(), program);
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  const std::string in = folder.File("stdin");
  const std::string out = folder.File("stdout");
  const std::string err = folder.File("stderr");
  posix_spawn_file_actions_addopen(&actions, 0, in.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  pid_t child = 0;
  Ran ran;
  if (posix_spawn(&child, program.c_str(), &actions, nullptr, argv.data(), environ) == 0) {
    int status = 0;
    waitpid(child, &status, 0);
    ran.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }
  posix_spawn_file_actions_destroy(&actions);
  ran.out = ReadFile(out);
  ran.err = ReadFile(err);
  return ran;
}

}  // namespace tessaryn::test
