#include "support/cli_process.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

#include "support/places.h"

namespace tessaryn::test {
namespace {

constexpr auto kLook = std::chrono::milliseconds(2);
constexpr int kMostLooks = 30'000;

void Redirect(const std::string& path, int flags, int stream) {
  const int descriptor = open(path.c_str(), flags, 0600);
  if (descriptor < 0 || dup2(descriptor, stream) < 0) _exit(126);
}

// A pipe's end that was asked for, else a file.
void Connect(int end, const std::string& path, int flags, int stream) {
  if (end < 0) return Redirect(path, flags, stream);
  if (dup2(end, stream) < 0) _exit(126);
}

[[noreturn]] void BeProgram(const TempFolder& folder, std::vector<std::string>& words,
                            const Surroundings& around, int in, int out) {
  constexpr int kFresh = O_WRONLY | O_CREAT | O_TRUNC;
  Connect(in, folder.File("stdin"), O_RDONLY, STDIN_FILENO);
  Connect(out, around.out.empty() ? folder.File("stdout") : around.out, kFresh, STDOUT_FILENO);
  Redirect(folder.File("stderr"), kFresh, STDERR_FILENO);
  if (around.fileLimit > 0) {
    const rlimit limit{static_cast<rlim_t>(around.fileLimit), static_cast<rlim_t>(around.fileLimit)};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  if (around.powerless)
    for (const int power : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH}) prctl(PR_CAPBSET_DROP, power, 0, 0, 0);
  execv(argv[0], argv.data());
  _exit(127);
}

// Its status when it ends; it is killed if it doesn't.
int Await(pid_t child, const Surroundings& around, Ran& ran) {
  bool sent = around.signal == 0;
  int status = 0;
  for (int look = 0; look < kMostLooks; ++look) {
    if (waitpid(child, &status, WNOHANG) == child) return status;
    if (!sent && NotesSignal(child, around.signal) && (!around.when || around.when())) {
      kill(child, around.signal);
      sent = true;
    }
    std::this_thread::sleep_for(kLook);
  }
  kill(child, SIGKILL);
  waitpid(child, &status, 0);
  ran.err += "(had to be killed)";
  return -1;
}

}  // namespace

bool NotesSignal(int process, int signal) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("SigCgt:"))
      return (std::stoull(line.substr(7), nullptr, 16) >> (signal - 1) & 1) != 0;
  return false;
}

Ran RunCli(const TempFolder& folder, std::vector<std::string> arguments, const std::string& input,
           const Surroundings& around) {
  arguments.insert(arguments.begin(), std::string(test::kBinFolder) + "/" + around.program);
  arguments.insert(arguments.begin(), around.launcher.begin(), around.launcher.end());
  WriteFile(folder.File("stdin"), input);
  WriteFile(folder.File("stdout"), "");
  int in[2] = {-1, -1};
  int out[2] = {-1, -1};
  if (around.openInput && pipe2(in, O_CLOEXEC) != 0) return {};
  if (around.noReader && pipe2(out, O_CLOEXEC) != 0) return {};
  const pid_t child = fork();
  if (child == 0) {
    if (out[0] >= 0) close(out[0]);
    BeProgram(folder, arguments, around, in[0], out[1]);
  }
  for (const int end : {in[0], out[0], out[1]})
    if (end >= 0) close(end);
  if (in[1] >= 0 && write(in[1], input.data(), input.size()) < 0) return {};
  Ran ran;
  const int status = Await(child, around, ran);
  if (in[1] >= 0) close(in[1]);
  ran.killedBySignal = status != -1 && WIFSIGNALED(status);
  if (status != -1) ran.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  ran.out = ReadFile(folder.File("stdout"));
  ran.err += ReadFile(folder.File("stderr"));
  return ran;
}

}  // namespace tessaryn::test
