// The window's end when a signal asks for it: as on the command line, in order and without questions.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

namespace tessaryn {

class MainWindow;
struct Game;

// While it lives, SIGTERM, SIGHUP, SIGPIPE and SIGINT stop the run, close what boxes are open with their safe
// answer, close the window without its questions, and end the application with 128 and the signal's number.
// Nothing is lost: the table goes into the default game, with scripts and percentage dice that aren't saved.
class SignalWatch : public QObject {
 public:
  SignalWatch(Game& game, MainWindow& window);
  ~SignalWatch() override;

 private:
  void Heed();

  Game& game_;
  MainWindow& window_;
  int wake_[2] = {-1, -1};  // read end, and the end that a signal writes to
  QSocketNotifier* notifier_ = nullptr;
  QTimer again_;
};

}  // namespace tessaryn
