// The settlement dialog: what becomes of a bet that was decided, asked of a player who handles it by hand.
#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "state/host.h"

class QCheckBox;
class QGridLayout;
class QPixmap;
class QPushButton;

namespace tessaryn {

class AdjustEdit;
struct TableState;

// One line of what the dialog says about the bet.
struct SettleLine {
  const char* name;  // of its caption's label; the amount's label has "Value" behind it
  QString caption;
  QString value;
};
// From the bet's amount to what was really paid. The working payoff record must still be the bet's.
std::vector<SettleLine> SettleLines(const Game& game, const SettleQuestion& question);

// What the dialog calls the outcome, the bet, and each choice 1 to 7, the caption with its access letter.
QString SettleTitle(const SettleQuestion& question);
QString SettleBetName(BetId bet);
QString SettleChoiceText(const SettleQuestion& question, int choice);
// What stands when nobody chooses.
int SafeChoice(const SettleQuestion& question);
// The dice that decided it, height in device-independent pixels; none before the first roll.
QPixmap DiceAsRolled(const TableState& table, int height, double ratio);

// frmSettleBet.
class SettleBetScreen : public QDialog {
  Q_OBJECT
 public:
  SettleBetScreen(const Game& game, const SettleQuestion& question, QWidget* parent);
  // The button that was pressed; the safe choice for a dialog that was closed.
  SettleAnswer Answer() const;
  // The same goes for the roll's other winners, or losers; and for the player's from now on.
  bool ForRestOfRoll() const;
  bool ForGood() const;

 private:
  void AddHeader(const Game& game);
  void AddLines(const Game& game);
  void AddChoices(const Game& game);
  QCheckBox* AddReach(QGridLayout& grid, const char* name, const QString& caption, const QString& tip);
  QPushButton* AddChoice(QGridLayout& grid, int choice);
  AdjustEdit* AddAdjusted(QGridLayout& grid, int choice, int slot, const Game& game);
  void Choose(int choice);

  SettleQuestion question_;
  int choice_;
  AdjustEdit* same_ = nullptr;   // of choice 6
  AdjustEdit* fixed_ = nullptr;  // of choice 7
  QCheckBox* rest_ = nullptr;
  QCheckBox* always_ = nullptr;
};

// Shows the dialog over the window and waits for its answer, for this bet alone.
SettleAnswer AskSettleBet(QWidget* parent, Game& game, const SettleQuestion& question);

}  // namespace tessaryn
