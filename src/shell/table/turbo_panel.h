// The panel that covers the table while it rolls at full speed: nothing under it is drawn.
#pragma once

#include <QElapsedTimer>
#include <QPixmap>
#include <QList>
#include <QWidget>
#include <cstdint>

#include "base/table_types.h"

class QGridLayout;
class QLabel;
class QPushButton;

namespace tessaryn {

struct Game;

class TurboPanel : public QWidget {
  Q_OBJECT

 public:
  explicit TurboPanel(QWidget* parent = nullptr);
  // A run begins: counts and bankrolls are told from here on.
  void Begin(const Game& game);
  // Called ten times a second.
  void Refresh(const Game& game);

 signals:
  void stopPressed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void TakeLetters(bool small);
  void FitLetters();
  QLabel* AddFigure(QGridLayout& grid, int row, const QString& caption, const char* name);
  QString Amount(Currency value) const;

  QLabel* rolls_;
  QLabel* rate_;
  QLabel* time_;
  // A row for each player, in the order of their seats.
  QLabel* names_[kSeats] = {};
  QLabel* bankrolls_[kSeats] = {};
  QLabel* changes_[kSeats] = {};
  SeatId seats_[kSeats];  // who a row is for; 0 nobody
  bool cents_ = false;    // there has been an amount with cents: all have two places from then on
  QPushButton* stop_;
  QLabel* caption_ = nullptr;
  QGridLayout* grid_ = nullptr;
  QList<QLabel*> captions_;
  QList<QLabel*> figures_;
  QElapsedTimer clock_;
  QPixmap light_;  // the ground that all stands on
  RollNumber firstRoll_ = 0;
  Currency firstBankroll_[kSeatRows];
};

}  // namespace tessaryn
