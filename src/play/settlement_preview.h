// How a roll will be settled, played on a copy before it happens on the table.
#pragma once

#include <functional>
#include <memory>

#include "state/host.h"

namespace tessaryn {

struct Game;

// Whether a decision of the next roll may be asked about: somebody with bets up handles them by hand.
bool MayAskAboutBets(const Game& game);

// The table as the dice lie on it, nothing counted yet: taken when the host hears the dice.
class ThrownTable {
 public:
  explicit ThrownTable(const Game& game);
  ~ThrownTable();
  ThrownTable(const ThrownTable&) = delete;
  ThrownTable& operator=(const ThrownTable&) = delete;

  // Settles the copy, once. Each question comes in the order in which the table will ask it, with the copy as
  // it stands at that moment; what is answered is carried out there. Boxes get their safe answer.
  using Ask = std::function<SettleAnswer(Game& copy, const SettleQuestion&)>;
  void Settle(const Ask& ask);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

// Whether a question is the one that was foreseen.
bool SameQuestion(const SettleQuestion& a, const SettleQuestion& b);

}  // namespace tessaryn
