// The board above the table: what the last roll was and did, the rolls before it, and what is to be done
// next.
#pragma once

#include <QStringList>
#include <QWidget>

#include "shell/table/appearance.h"
#include "shell/table/guide.h"
#include "shell/table/roll_story.h"
#include "shell/table/table_commands.h"

class QPushButton;

namespace tessaryn {

struct Game;

// What the next click on a bet is meant for; empty when it only bets.
QString NextClickLine(const TableCommands& commands);

class Board : public QWidget {
  Q_OBJECT

 public:
  // The history outlives the board; it is noted by who sees every roll.
  Board(const Game& game, const RollHistory& history, QWidget* parent);

  // plate: the size of the plates, which stand at both ends.
  void SetMeasures(const Measures& measures, QSize plate);
  // As the state has it. settled: no roll is being settled, so that the changes of the bankrolls are whole.
  void Refresh(bool settled);
  // What the next click is meant for; empty: for a bet.
  void SetNextClick(const QString& text);
  // A note of the roll just made, or of the time since, as it is told.
  void AddNote(const QString& text);
  QStringList Notes() const { return notes_; }
  // The steps of the guide, from here on.
  void StartGuide();
  bool IsGuiding() const { return guiding_; }

  QString ResultText() const { return ResultLine(story_); }
  // How many of the last rolls there is room for.
  int HistoryRoom() const;

 signals:
  void guideSkipped();
  // The answer to what happens when a bet wins.
  void winsChosen(bool ask);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Place();
  void Retranslate();
  void ShowGuide();
  // The question of the winnings has its own line, above its answers, where they don't stand side by side.
  bool AsksAbove() const;
  QString RunText() const;
  QString HandLine() const;
  double HistoryPitch() const;
  double HistoryLabel() const;
  int HistoryPlaces() const;
  bool NotesStandBehind() const;
  QRectF HistoryCell(int back) const;
  void PaintDice(QPainter& painter) const;
  void PaintPoint(QPainter& painter) const;
  void PaintResult(QPainter& painter) const;
  void PaintHistory(QPainter& painter) const;
  void PaintNotes(QPainter& painter) const;
  void PaintHand(QPainter& painter) const;
  void PaintSteps(QPainter& painter) const;
  QFont Small() const;

  const Game& game_;
  const RollHistory& history_;
  Measures measures_;
  QSize plate_{150, 71};
  RollStory story_;
  QString nextClick_;
  QStringList notes_;
  std::int64_t notesOf_ = -1;  // throws of the table when the notes came
  bool guiding_ = false;
  QPushButton* skip_;
  QPushButton* ask_;
  QPushButton* keep_;
  // Where the parts stand.
  QRectF dice_;
  QRectF total_;
  QRectF words_;
  QRectF puck_;
  QRectF point_;
  QRectF line_;  // the result
  QRectF rolls_;
  QRectF hand_;
};

}  // namespace tessaryn
