// An experiment that is played while the window is used: in a thread of its own, which leaves a core free.
#pragma once

#include <QObject>
#include <atomic>
#include <mutex>
#include <string>
#include <thread>

#include "shell/screens/laboratory_figures.h"

namespace tessaryn {

class LaboratoryRun : public QObject {
  Q_OBJECT

 public:
  explicit LaboratoryRun(QObject* parent);
  // What is under way is given up.
  ~LaboratoryRun() override;

  // Both require that none is on. GoOn: from where the state stands.
  void Start(LabState state, const std::string& applicationFolder);
  void GoOn(const std::string& applicationFolder);
  // Ends it soon with what is known; Ended comes.
  void Stop() { stop_ = true; }
  bool IsOn() const { return on_; }

  // What was known at the last look.
  LabFigures Figures();
  // Requires that none is on.
  LabState& State() { return state_; }
  const std::string& Error() const { return error_; }

 signals:
  void Progressed();
  void Ended();

 private:
  void Play(const std::string& applicationFolder);
  void TakeFigures(LabState& state);
  void Join();

  std::thread thread_;
  bool on_ = false;  // the thread hasn't told its end yet
  std::atomic<bool> stop_ = false;
  LabState state_;     // the thread's while it is on
  std::string error_;  // likewise
  std::mutex lock_;
  LabFigures figures_;  // under the lock
};

}  // namespace tessaryn
