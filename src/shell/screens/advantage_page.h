// The Advantage tab: what every bet is worth under the rules, payoffs and dice in force, and what a player's
// bets are expected to bring.
#pragma once

#include <QWidget>
#include <optional>

#include "rules/advantage.h"
#include "rules/bets_together.h"
#include "shell/screens/figures_table.h"
#include "state/payoff_tables.h"
#include "state/percentage_dice_state.h"

class QBoxLayout;
class QCheckBox;
class QLabel;

namespace tessaryn {

class MoneyEdit;
class SettingEditor;
struct Game;

class AdvantagePage : public QWidget, public PageRows {
  Q_OBJECT
 public:
  AdvantagePage(Game& game, SettingEditor& editor, QWidget* parent);
  // Figures what a bet is worth only if something that it depends on has changed.
  void Refresh();
  // With the columns that are hidden, and what the bets pay.
  QList<QStringList> Rows() const override;

 private:
  // What the worth of a bet depends on.
  struct Basis {
    PayoffTables payoffs;
    ProbabilityPlane probabilities;
    std::int64_t numbers[8];
    bool operator==(const Basis& other) const;
  };
  Basis BasisOf() const;
  void AddChoices(QBoxLayout& column);
  void FigureAgain();
  FigureRow RowOf(const AdvantageRow& row, SeatId seat) const;
  void ShowMisc(bool shown);
  QString UpText(SeatId seat);
  QString SessionText(SeatId seat) const;
  QString MiscText() const;

  Game& game_;
  SettingEditor& editor_;
  MoneyEdit* amount_;
  PlayerChoice* players_;
  QCheckBox* onlyUp_;
  QCheckBox* misc_;
  FiguresTable* table_;
  QLabel* up_;
  QLabel* session_;
  QLabel* miscLines_;
  std::optional<Basis> basis_;
  std::vector<AdvantageRow> rows_;
  double perDecision_[kBets + 1] = {};
  std::optional<BetAmounts> amounts_;  // that are up, as together_ has them
  BetsTogether together_;
};

}  // namespace tessaryn
