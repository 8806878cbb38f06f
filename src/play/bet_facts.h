// What a bet is, wins and loses on, pays and costs: from the payoffs, rules and dice in force, as the table
// stands. What the pointer tells, and the command `facts`.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/message_value.h"
#include "base/table_types.h"

namespace tessaryn {

struct Game;

// A line of words with holes %1, %2 ... for its values, so that it can be told in another language. The
// pattern is English and of a lifetime without end; no pattern: nothing to tell.
struct FactValue;
struct FactText {
  const char* pattern = "";
  std::vector<FactValue> values = {};

  bool Empty() const { return *pattern == '\0'; }
};
// A value, or words of their own.
struct FactValue {
  template <typename T>
  FactValue(T value) : plain(std::move(value)) {}
  FactValue(FactText value) : words(std::move(value)) {}

  MessageValue plain;
  FactText words;  // instead of the value, if there are any
};

// How often the next roll decides a bet that works, in 36ths of all there is.
struct RollChances {
  double win = 0;
  double lose = 0;
};

struct BetTerms {
  BetId bet = 0;
  Currency amount;  // of the seat
  FactText kind;
  FactText wins;
  FactText loses;
  FactText pays;  // empty where that depends on a point that isn't set
  RollChances chances;
  bool working = true;       // whether the next roll may decide it, as it stands or would be made
  double edge = 0;           // of the house, in percent of what is laid out; below 0 the player's
  bool edgePerRoll = false;  // rolls that decide nothing count as decisions, by the setting for it
  bool decided = true;       // by the dice in force, some day
  double rollsToDecide = 1;  // on average
  FactText vig;              // empty for a bet without
  Currency vigAmount;        // of the amount
  Currency minimum;
  Currency room;        // what may still be bet: a click of that amount adds just that
  std::string refusal;  // why nothing may, as the table says it
};
// Requires bet 1 to 93. seat 0, or an empty one: what holds for anybody.
BetTerms BetTermsOf(Game& game, SeatId seat, BetId bet);

// The next roll alone.
RollChances ChancesOf(const Game& game, SeatId seat, BetId bet);
// "7 to 6", or "2 to 1 ... 3 to 1" of a bet with a table of payoffs.
FactText PaysOf(const Game& game, BetId bet);
// What a click may still add to the bet, which is what the gate for bets lets through.
Currency RoomFor(Game& game, SeatId seat, BetId bet);

// The parts of the line that the pointer tells: name and amount, vig, payoff, limits, edge, refusal. room:
// whether the next click would bet.
std::vector<FactText> PointerFacts(const BetTerms& terms, bool room);
// The lines of the tip: name and kind, what it wins and loses on, payoff, chances, edge, vig.
std::vector<FactText> TipFacts(const BetTerms& terms);

// With the values in their holes, money as the table writes it without a cents sign.
std::string InEnglish(const FactText& text);
std::string InEnglish(const std::vector<FactText>& texts, const char* between);
// Every pattern there is, for who translates them.
std::vector<const char*> FactPatterns();

}  // namespace tessaryn
