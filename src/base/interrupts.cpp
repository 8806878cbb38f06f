#include "base/interrupts.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>

namespace tessaryn {
namespace {

std::atomic<int> noted{0};
std::atomic<int> wakeDescriptor{-1};

constexpr struct {
  int number;
  const char* name;
} kEnding[] = {{SIGINT, "Ctrl-C"}, {SIGTERM, "SIGTERM"}, {SIGHUP, "SIGHUP"}, {SIGPIPE, "SIGPIPE"}};

// A wish to end outranks what a user takes back (Ctrl-C at a prompt) and what only tells of a lost reader.
void Note(int number) {
  const int saved = errno;
  const int before = noted;
  if (before == 0 || before == SIGINT || before == SIGPIPE) noted = number;
  alarm(1);
  if (const int wake = wakeDescriptor; wake >= 0) (void)!write(wake, "", 1);
  errno = saved;
}

// Between looking at the note and waiting in a system call a signal can come: the wait is ended again.
void WakeAgain(int) {
  if (noted != 0) alarm(1);
}

void Handle(int number, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  action.sa_flags = 0;  // no SA_RESTART: what waits is to come back
  sigaction(number, &action, nullptr);
}

}  // namespace

void NoteSignals(int wake) {
  static_assert(std::atomic<int>::is_always_lock_free);
  wakeDescriptor = wake;
  for (const auto& ending : kEnding) {
    struct sigaction before {};
    sigaction(ending.number, nullptr, &before);
    if (ending.number == SIGHUP && before.sa_handler == SIG_IGN) continue;
    Handle(ending.number, Note);
  }
  Handle(SIGALRM, WakeAgain);
  Handle(SIGXFSZ, SIG_IGN);
}

int NotedSignal() { return noted.load(std::memory_order_relaxed); }

void ForgetSignal() {
  noted = 0;
  alarm(0);
}

std::string SignalReason() {
  for (const auto& ending : kEnding)
    if (ending.number == NotedSignal()) return std::string("Stopped by ") + ending.name + ".";
  return "";
}

}  // namespace tessaryn
