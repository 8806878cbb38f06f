// The bar under the table: roll, pass, start and stop a run, and how fast it goes.
#pragma once

#include <QString>
#include <QWidget>

#include "shell/table/appearance.h"

class QLabel;
class QPushButton;
class QSlider;

namespace tessaryn {

struct Game;

// "Start &Turbo-Roll" and its three kin, by what runs and by the throttle.
QString RunCaption(const Game& game);
// What a throttle position 0 to 12 does.
QString ThrottleText(int position);

class RunControls : public QWidget {
  Q_OBJECT

 public:
  explicit RunControls(QWidget* parent = nullptr);
  void Refresh(const Game& game);
  void SetMeasures(const Measures& measures);
  // Passing the dice has its key and its entry in the menu where there is no room for a button.
  void ShowPass(bool shown);

 signals:
  void rollPressed();
  void passPressed();
  void turboPressed();
  void throttleMoved(int position);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Fit();

  QPushButton* roll_;
  QPushButton* pass_;
  QPushButton* run_;
  QSlider* throttle_;
  QLabel* speed_;
};

}  // namespace tessaryn
