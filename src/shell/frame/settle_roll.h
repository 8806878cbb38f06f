// How the window asks what becomes of decided bets: on one sheet a roll, foreseen on a copy of the table, or
// in a box for each. Its answers go to the table's own questions, in their order.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "play/settlement_preview.h"
#include "shell/screens/settle_sheet.h"

namespace tessaryn {

struct Desk;

// Whether decisions are asked for one by one.
bool SettlesInBoxes(const Desk& desk);
void SetSettlesInBoxes(Desk& desk, bool boxes);

class SettleRoll {
 public:
  explicit SettleRoll(Desk& desk);
  // The dice lie, and nothing is counted yet.
  void DiceThrown(const Game& game);
  SettleAnswer Ask(Game& game, const SettleQuestion& question);
  // All that the roll decided has been asked: what was chosen for good becomes the players' choice.
  void RollEnded(Game& game);

 private:
  struct Chosen {
    SeatId seat;
    bool won;
    SettleAnswer answer;
  };
  void ShowSheet(const Game& game);
  SettleAnswer AskInBox(Game& game, const SettleQuestion& question);
  const SettleAnswer* Foreseen(const SettleQuestion& question);
  SettleAnswer Offered(const Game& game, const SettleQuestion& question) const;
  void Remember(const Game& game, const SettleQuestion& question, const SettleAnswer& answer);
  void NoteForGood(const std::vector<SheetDecision>& decisions);

  Desk& desk_;
  std::unique_ptr<ThrownTable> thrown_;  // until the roll's first question
  std::vector<SheetDecision> sheet_;     // what was answered on it
  std::size_t next_ = 0;                 // of these, in the order of the questions
  std::optional<SettleAnswer> rest_[2];  // for the roll's other losers and winners
  std::vector<Chosen> forGood_;
  // The last answer by player, bet and outcome.
  std::map<std::tuple<std::string, int, bool>, SettleAnswer> answered_;
};

}  // namespace tessaryn
