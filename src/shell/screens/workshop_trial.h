// Try it: the script that is open, run on a copy of the table beside it, and what came of it.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <thread>

#include "play/script_trial.h"

class QBoxLayout;
class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTableWidget;
class QTimer;

namespace tessaryn {

// The bankroll over a trial, and over the one before it.
class TrialCurve : public QWidget {
 public:
  explicit TrialCurve(QWidget* parent);
  void Show(std::vector<Currency> now, std::vector<Currency> before);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Currency> now_;
  std::vector<Currency> before_;
};

class WorkshopTrial : public QWidget {
  Q_OBJECT
 public:
  WorkshopTrial(Game& game, QWidget* parent);
  ~WorkshopTrial() override;

  // The lines of which seat are tried; false refuses.
  std::function<bool(SeatId& seat, std::vector<std::string>& lines)> take;
  // Whether the lines of the next one are counted.
  bool counted = false;
  // Begins a trial, or stops the one that is on.
  void Toggle();
  bool IsOn() const { return thread_.joinable(); }
  const TrialResult& Result() const { return now_; }

 signals:
  void ended();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void BuildStart(QBoxLayout& column);
  void BuildResult(QBoxLayout& column);
  void End();
  void Tell();

  Game& game_;
  QSpinBox* rolls_;
  QCheckBox* same_;
  QPushButton* start_;
  QProgressBar* progress_;
  QLabel* net_;
  QLabel* facts_;
  QLabel* compared_;
  TrialCurve* curve_;
  QTableWidget* bets_;
  QTimer* timer_;
  std::unique_ptr<ScriptTrial> trial_;
  std::unique_ptr<TrialProgress> state_;
  std::thread thread_;
  std::atomic<bool> done_ = false;
  std::uint32_t seed_ = 0;
  TrialResult now_;
  TrialResult before_;
  TrialResult coming_;  // the thread's until done
};

}  // namespace tessaryn
