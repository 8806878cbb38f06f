// The settlement dialog: what becomes of a bet that was decided, asked of a player who handles it by hand.
#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "state/host.h"

class QGridLayout;
class QPushButton;

namespace tessaryn {

class AdjustEdit;

// One line of what the dialog says about the bet.
struct SettleLine {
  const char* name;  // of its caption's label; the amount's label has "Value" behind it
  QString caption;
  QString value;
};
// From the bet's amount to what was really paid. The working payoff record must still be the bet's.
std::vector<SettleLine> SettleLines(const Game& game, const SettleQuestion& question);

// frmSettleBet.
class SettleBetScreen : public QDialog {
  Q_OBJECT
 public:
  SettleBetScreen(const Game& game, const SettleQuestion& question, QWidget* parent);
  // The button that was pressed; the safe choice for a dialog that was closed.
  SettleAnswer Answer() const;

 private:
  void AddHeader(const Game& game);
  void AddLines(const Game& game);
  void AddChoices(const Game& game);
  QPushButton* AddChoice(QGridLayout& grid, int choice);
  AdjustEdit* AddAdjusted(QGridLayout& grid, int choice, int slot, const Game& game);
  void Choose(int choice);

  SettleQuestion question_;
  int choice_;
  AdjustEdit* same_ = nullptr;   // of choice 6
  AdjustEdit* fixed_ = nullptr;  // of choice 7
};

// Shows the dialog over the window and waits for its answer.
SettleAnswer AskSettleBet(QWidget* parent, Game& game, const SettleQuestion& question);

}  // namespace tessaryn
