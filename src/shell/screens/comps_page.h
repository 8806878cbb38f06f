// The Comps tab: what a casino's comps are figured from, and what they come to for a player.
#pragma once

#include "shell/screens/configuration_pages.h"
#include "shell/screens/figures_table.h"

namespace tessaryn {

class CompsPage : public ControlsPage, public PageRows {
  Q_OBJECT
 public:
  CompsPage(Game& game, SettingEditor& editor, QWidget* parent);
  void Refresh();
  QList<QStringList> Rows() const override;

 private:
  static constexpr int kResults = 6;

  void AddResults();
  void AddBets();
  // Whether the bets that are selected count.
  template <typename Counts>
  void Set(const Counts& counts);
  void Flip();
  FigureRow RowOf(BetId bet, ScopeId scope, SeatId seat) const;

  Game& game_;
  PlayerChoice* players_;
  QComboBox* scopes_;
  QLabel* results_[kResults];
  FiguresTable* bets_;
};

}  // namespace tessaryn
