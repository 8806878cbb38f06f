// The window's end when a signal asks for it.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

namespace tessaryn {

class MainWindow;
struct Game;

// SIGTERM asks what the close box asks, and the program goes on when that is refused. When nobody lifts a
// hand for the patience, at a second signal, and at SIGHUP, SIGPIPE and SIGINT at once, it ends as on the
// command line, in order and without questions: the run stops, what boxes are open close with their safe
// answer, and nothing is lost, since the table goes into the default game, with scripts and percentage dice
// that aren't saved. The application's exit code is 128 and the signal's number.
class SignalWatch : public QObject {
 public:
  static constexpr int kPatience = 10'000;

  // patience: milliseconds.
  SignalWatch(Game& game, MainWindow& window, int patience = kPatience);
  ~SignalWatch() override;
  // A hand at mouse or keys: the questions have somebody who answers.
  bool eventFilter(QObject* of, QEvent* event) override;

 private:
  void Note();
  void Ask();
  void Heed();

  Game& game_;
  MainWindow& window_;
  int exitCode_ = 0;  // 0: no signal asks for the end
  bool asks_ = false;
  QTimer patience_;
  int wake_[2] = {-1, -1};  // read end, and the end that a signal writes to
  QSocketNotifier* notifier_ = nullptr;
  QTimer again_;
};

}  // namespace tessaryn
