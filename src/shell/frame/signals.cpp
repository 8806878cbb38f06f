#include "shell/frame/signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <csignal>
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

SignalWatch::SignalWatch(Game& game, MainWindow& window, int patience) : game_(game), window_(window) {
  again_.setInterval(kLookAgain);
  connect(&again_, &QTimer::timeout, this, [this] { asks_ ? Ask() : Heed(); });
  patience_.setInterval(patience);
  patience_.setSingleShot(true);
  connect(&patience_, &QTimer::timeout, this, [] { std::raise(SIGTERM); });
  connect(qApp, &QGuiApplication::lastWindowClosed, this, [this] {
    if (exitCode_ != 0) QCoreApplication::exit(exitCode_);
  });
  if (pipe2(wake_, O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = new QSocketNotifier(wake_[0], QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, [this] {
    char bytes[64];
    while (read(wake_[0], bytes, sizeof bytes) > 0) {
    }
    Note();
  });
  NoteSignals(wake_[1]);
}

SignalWatch::~SignalWatch() {
  NoteSignals();
  for (const int end : wake_)
    if (end >= 0) close(end);
}

bool SignalWatch::eventFilter(QObject* of, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::TouchBegin:
      if (patience_.isActive()) patience_.start();
      break;
    default:
      break;
  }
  return QObject::eventFilter(of, event);
}

void SignalWatch::Note() {
  if (NotedSignal() == 0) return;
  asks_ = NotedSignal() == SIGTERM && exitCode_ == 0 && !window_.IsStarting();
  exitCode_ = SignalExitCode();
  if (asks_) {
    ForgetSignal();  // what is under way goes on if the end is refused
    qApp->installEventFilter(this);
    patience_.start();
  } else {
    patience_.stop();
  }
  again_.start();
}

// What another box asks is answered first.
void SignalWatch::Ask() {
  if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) popup->close();
  if (QApplication::activeModalWidget() != nullptr) return;
  again_.stop();
  window_.close();
  if (!asks_ || !window_.isVisible()) return;
  if (window_.ClosesLater()) return again_.start();
  qApp->removeEventFilter(this);
  patience_.stop();
  exitCode_ = 0;
}

// A roll that waits for an answer ends only when it has one: this comes again until nothing is under way.
void SignalWatch::Heed() {
  game_.autobet.StepMode = game_.autobet.ScriptRunning = false;
  if (game_.table.AutoRollActive) StopRun(game_, "");
  if (window_.IsStarting()) std::_Exit(exitCode_);
  if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) popup->close();
  if (QWidget* box = QApplication::activeModalWidget(); box != nullptr) {
    box->close();
    return;
  }
  if (window_.IsUnderWay()) return;
  again_.stop();
  window_.CloseUnasked();
  QCoreApplication::exit(exitCode_);
}

}  // namespace tessaryn
