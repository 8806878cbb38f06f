// The settlement sheet: all that a roll asks about decided bets, on one page over the table, each with the
// choices of the settlement dialog.
#pragma once

#include <QDialog>
#include <vector>

#include "shell/screens/settle_bet.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace tessaryn {

// One decision of the roll, as it was foreseen.
struct SheetDecision {
  SettleQuestion question;
  QString player;
  Currency amount;                // of the bet
  std::vector<SettleLine> lines;  // as the dialog tells them
  SettleAnswer answer;            // in: what is offered; out: what was chosen
};

// frmSettleSheet.
class SettleSheet : public QDialog {
  Q_OBJECT
 public:
  enum Result : int { kClosed = QDialog::Rejected, kDone = QDialog::Accepted, kOneAtATime };

  // decisions: in the order in which the table asks.
  SettleSheet(const Game& game, std::vector<SheetDecision> decisions, QWidget* parent);
  // As the user left them; the safe choices of a sheet that was closed.
  std::vector<SheetDecision> Decisions() const;
  bool ForGood() const;
  // Over the right side of an area of the parent window.
  void PlaceOver(const QRect& area);
  // Comes up by sliding, within 150 milliseconds; without motion at once.
  bool animate = true;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Row {
    QLabel* outcome = nullptr;
    QLabel* result = nullptr;     // the amount won or lost
    QComboBox* choice = nullptr;  // none for a bet that is over
    AdjustEdit* same = nullptr;   // of choice 6
    AdjustEdit* fixed = nullptr;  // of choice 7
  };

  void AddHeader(const Game& game);
  void AddList(const Game& game);
  void AddPlayer(QLayout& column, int first, const Game& game);
  void AddDecision(QLayout& column, int at, const Game& game);
  void AddChoice(QLayout& column, int at, const Game& game);
  AdjustEdit* AddAdjusted(QLayout& column, int at, bool fixed, const Game& game);
  void AddFoot();
  void ShowAdjusted(const Row& row);
  void ShowColours();
  void SetAnswer(int at, const SettleAnswer& answer);
  SettleAnswer AnswerOf(int at) const;
  void AllSame();

  std::vector<SheetDecision> decisions_;
  std::vector<Row> rows_;
  struct Tinted {
    QLabel* label;
    int sign;  // 1 won, -1 lost, 0 neither
  };
  std::vector<Tinted> tinted_;
  QWidget* list_ = nullptr;
  QWidget* header_ = nullptr;
  QWidget* foot_ = nullptr;
  QCheckBox* always_ = nullptr;
};

}  // namespace tessaryn
