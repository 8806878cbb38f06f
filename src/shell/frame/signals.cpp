#include "shell/frame/signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <cstdlib>

#include "base/interrupts.h"
#include "play/auto_roll.h"
#include "shell/frame/main_window.h"
#include "state/game.h"
#include "state/run_stop.h"

namespace tessaryn {

namespace {
constexpr int kLookAgain = 20;  // milliseconds between two looks whether all boxes and rolls are done
}

SignalWatch::SignalWatch(Game& game, MainWindow& window) : game_(game), window_(window) {
  again_.setInterval(kLookAgain);
  connect(&again_, &QTimer::timeout, this, [this] { Heed(); });
  if (pipe2(wake_, O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = new QSocketNotifier(wake_[0], QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, [this] {
    char bytes[64];
    while (read(wake_[0], bytes, sizeof bytes) > 0) {
    }
    if (!again_.isActive()) again_.start();
  });
  NoteSignals(wake_[1]);
}

SignalWatch::~SignalWatch() {
  NoteSignals();
  for (const int end : wake_)
    if (end >= 0) close(end);
}

// A roll that waits for an answer ends only when it has one: this comes again until nothing is under way.
void SignalWatch::Heed() {
  game_.autobet.StepMode = game_.autobet.ScriptRunning = false;
  if (game_.table.AutoRollActive) StopRun(game_, "");
  if (window_.IsStarting()) std::_Exit(SignalExitCode());
  if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) popup->close();
  if (QWidget* box = QApplication::activeModalWidget(); box != nullptr) {
    box->close();
    return;
  }
  if (window_.IsUnderWay()) return;
  again_.stop();
  window_.CloseUnasked();
  QCoreApplication::exit(SignalExitCode());
}

}  // namespace tessaryn
