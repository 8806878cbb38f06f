#include "play/bet_facts.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "base/bet_catalogue.h"
#include "rules/advantage.h"
#include "rules/bet_limits.h"
#include "rules/bet_refusals.h"
#include "rules/bet_rules.h"
#include "rules/luck_values.h"
#include "rules/payoffs.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// --- The words. %1 stands for the numbers that they are about.

enum class Words : std::uint8_t {
  kOneRoll,
  kStays,
  kContract,
  kLine,
  kOdds,
  kHand,
  kNumberFirst,
  kSevenFirst,
  kPassWins,
  kPassLoses,
  kComeWins,
  kComeLoses,
  kDontPassWins,
  kDontPassLoses,
  kDontComeWins,
  kDontComeLoses,
  kPointFirst,
  kSevenBeforePoint,
  kOnNext,
  kNotOnNext,
  kNotOnNextBut,
  kHardWins,
  kHardLoses,
  kMarksWin,
  kMarksLose,
  kFourWin,
  kFourLose,
  kPoint7Wins,
  kSevenPoint7Wins,
  kAnythingElse,
  kPointsWin,
  kPassesWin,
  kPointsDiffer,
  kFewer,
  kHalves,
  kQuarters,
  kFifths,
  kPaysOne,
  kPaysTwo,
  kPaysThree,
  kPaysRange,
  kVigAsMade,
  kVigOnWin,
  kVigOfWinAsMade,
  kVigOfWinOnWin,
  kNameAmount,
  kVigPart,
  kPaysPart,
  kMinimumPart,
  kRoomPart,
  kEdgePart,
  kEdgeRollPart,
  kRefusalPart,
  kNameKind,
  kWinsLine,
  kLosesLine,
  kPaysLine,
  kChanceLine,
  kOffLine,
  kEdgeLine,
  kEdgeRollLine,
  kNeverLine,
  kRollsLine,
  kVigLine,
  kCount,
};

constexpr const char* kWords[] = {
    "one-roll bet",
    "stays up until it is decided",
    "a contract: it stays up until it is decided",
    "on the line: decided by the come-out or by the point",
    "odds behind %1",
    "goes on over several rolls",
    "%1 before 7",
    "7 before %1",
    "7 or 11 on the come-out, then the point before 7",
    "2, 3 or 12 on the come-out, then 7 before the point",
    "7 or 11 on the next roll, then its number before 7",
    "2, 3 or 12 on the next roll, then 7 before its number",
    "%1 or 3 on the come-out, then 7 before the point; %2 is barred",
    "7 or 11 on the come-out, then the point before 7",
    "%1 or 3 on the next roll, then 7 before its number; %2 is barred",
    "7 or 11 on the next roll, then its number before 7",
    "the point before 7",
    "7 before the point",
    "%1 on the next roll",
    "any other roll",
    "any other roll, but not on %1",
    "%1 as a pair, before 7 and before any other %1",
    "7, or %1 that is no pair",
    "all of %1 before 7",
    "7 before the last of them",
    "four rolls without a 7",
    "7 within the four rolls",
    "a point, and 7 on the very next roll",
    "7 on the come-out, or a point and 7 on the very next roll",
    "anything else",
    "%1 points or more, made before the seven-out",
    "%1 passes or more before the seven-out",
    "%1 different points or more, made before the seven-out",
    "a seven-out with fewer",
    "half each as Any Craps and Eleven",
    "a quarter each as Two, Three, Eleven and Twelve",
    "a fifth each as Two, Three, Seven, Eleven and Twelve",
    "%1",
    "%1, %2",
    "%1, %2, %3",
    "%1 ... %2",
    "%1% of the bet, charged as it is made",
    "%1% of the bet, charged when it wins",
    "%1% of the win, charged as it is made",
    "%1% of the win, charged when it wins",
    "%1: %2",
    "vig: %1",
    "pays %1",
    "minimum %1",
    "may still be bet: %1",
    "edge %1%",
    "edge %1% a roll",
    "not now: %1",
    "%1: %2",
    "Wins on: %1",
    "Loses on: %1",
    "Pays: %1",
    "Next roll: wins %1, loses %2 in 36",
    "Off on the next roll; working it would win %1, lose %2 in 36",
    "House edge: %1% of the bet",
    "House edge: %1% of the bet, a roll",
    "The dice in force never decide it",
    "Decided after %1 rolls on average",
    "Vig: %1",
};
static_assert(std::size(kWords) == static_cast<std::size_t>(Words::kCount), "a line of words is missing");

FactText Text(Words words, std::vector<FactValue> values = {}) {
  return {kWords[static_cast<std::size_t>(words)], std::move(values)};
}

// At most two digits behind the point, and none that say nothing.
std::string Figure(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.2f", value);
  std::string figure = text;
  figure.erase(figure.find_last_not_of('0') + 1);
  if (figure.back() == '.') figure.pop_back();
  return figure == "-0" ? "0" : figure;
}
std::string TwoDigits(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.2f", value);
  return std::string(text) == "-0.00" ? "0.00" : text;
}

// --- What the next roll does.

// The bet as it rides, or would.
struct Trial {
  LuckDice dice;
  LuckChances chances{};  // nothing that is asked here goes by them
  LuckLayout layout;
  RolledLayouts rolled{};
  Currency amount;
  Currency vig;
};

Trial TrialOf(const Game& game, SeatId seat, BetId bet) {
  Trial trial;
  trial.dice = LuckDiceOf(game.percentage);
  trial.layout = LuckLayoutOf(game, BetRange(bet, bet));
  // With the bet up the numbers are marked for it.
  if (bet >= kAllSmall && bet <= kFourRolls)
    trial.layout.marked |= static_cast<std::uint8_t>(1u << (bet - kAllSmall));
  trial.rolled = LayoutsAfter(trial.layout);
  trial.amount = game.table.BetAmount(seat, bet);
  if (trial.amount <= kZero) trial.amount = Multiply(game.settings.Unit(), Currency::Dollars(100));
  trial.vig = VigFor(game, bet, trial.amount);
  return trial;
}

std::int64_t NetOfOutcome(const Game& game, const Trial& trial, BetId bet, int outcome) {
  const RidingBet riding{game, trial.dice, trial.chances, trial.layout, bet, trial.amount, trial.vig};
  const int code = DecidingCode(riding, trial.rolled[static_cast<std::size_t>(outcome)], outcome);
  return code == 0 ? 0 : NetOf(riding, code, outcome);
}

// --- What it wins on, from the rolls that pay it.

// The rolls that bring a bet on one roll something, sign 1, or nothing, 0: "2, 3, 11" or, where not every way
// to a total does, "4-2".
std::string RollsThatBring(const Game& game, const Trial& trial, BetId bet, int sign) {
  std::string text;
  for (int total = 2; total <= 12; ++total) {
    int ways = 0;
    std::string pairs;
    for (int outcome = 0; outcome < kOutcomes; ++outcome) {
      const DicePair dice = kOutcomeDice[static_cast<std::size_t>(outcome)];
      if (dice.Total() != total ||
          std::clamp<std::int64_t>(NetOfOutcome(game, trial, bet, outcome), -1, 1) != sign)
        continue;
      ways += dice.low == dice.high ? 1 : 2;
      pairs += (pairs.empty() ? "" : ", ") + std::to_string(dice.high) + "-" + std::to_string(dice.low);
    }
    if (ways == 0) continue;
    const bool all = ways == 6 - std::abs(7 - total);
    text += (text.empty() ? "" : ", ") + (all ? std::to_string(total) : pairs);
  }
  return text;
}

// The first row of a hand's table that pays, as what is counted for it.
int LeastThatPays(const Game& game, BetId bet) {
  const auto rows = PayoffRowsOf(game, bet);
  int row = 0;
  for (const PayoffRecord& record : rows) {
    if (record.PayTo > kZero) return row;
    ++row;
  }
  return row;
}

struct WinsAndLosses {
  FactText wins;
  FactText loses;
};

WinsAndLosses ByNumber(bool numberWins, int number) {
  const FactText first = Text(Words::kNumberFirst, {number});
  const FactText seven = Text(Words::kSevenFirst, {number});
  return numberWins ? WinsAndLosses{first, seven} : WinsAndLosses{seven, first};
}

WinsAndLosses OnTheLine(const Game& game, BetId bet) {
  const bool pass = bet == kPassLine || bet == kPassLineOdds || bet == kCome;
  const bool ownNumber = bet == kCome || bet == kDontCome;
  if (game.table.Point != 0 && !ownNumber) return ByNumber(pass, game.table.Point);
  if (IsOdds(bet)) {
    const FactText point = Text(Words::kPointFirst);
    const FactText seven = Text(Words::kSevenBeforePoint);
    return pass ? WinsAndLosses{point, seven} : WinsAndLosses{seven, point};
  }
  if (pass)
    return {Text(ownNumber ? Words::kComeWins : Words::kPassWins),
            Text(ownNumber ? Words::kComeLoses : Words::kPassLoses)};
  const int bar = game.settings.BarNumber;
  return {Text(ownNumber ? Words::kDontComeWins : Words::kDontPassWins, {bar == 12 ? 2 : 12, bar}),
          Text(ownNumber ? Words::kDontComeLoses : Words::kDontPassLoses)};
}

WinsAndLosses OnTheHand(const Game& game, BetId bet) {
  switch (bet) {
    case kAllSmall:
    case kAllTall:
    case kMakeAll: {
      const char* const numbers = bet == kAllSmall  ? "2, 3, 4, 5, 6"
                                  : bet == kAllTall ? "8, 9, 10, 11, 12"
                                                    : "2, 3, 4, 5, 6, 8, 9, 10, 11, 12";
      return {Text(Words::kMarksWin, {numbers}), Text(Words::kMarksLose)};
    }
    case kFourRolls:
      return {Text(Words::kFourWin), Text(Words::kFourLose)};
    case kPoint7:
      return {Text(Words::kPoint7Wins), Text(Words::kAnythingElse)};
    case kSevenPoint7:
      return {Text(Words::kSevenPoint7Wins), Text(Words::kAnythingElse)};
    default: {
      const Words wins = bet == kFire           ? Words::kPointsDiffer
                         : bet == kSharpShooter ? Words::kPointsWin
                                                : Words::kPassesWin;
      return {Text(wins, {LeastThatPays(game, bet)}), Text(Words::kFewer)};
    }
  }
}

WinsAndLosses OnOneRoll(const Game& game, BetId bet) {
  const Trial trial = TrialOf(game, 0, bet);
  const std::string pushes = RollsThatBring(game, trial, bet, 0);
  return {Text(Words::kOnNext, {RollsThatBring(game, trial, bet, 1)}),
          pushes.empty() ? Text(Words::kNotOnNext) : Text(Words::kNotOnNextBut, {pushes})};
}

WinsAndLosses WinsAndLossesOf(const Game& game, BetId bet) {
  const int number = FactsOf(bet).number;
  switch (FamilyRowOf(bet).decidedBy) {
    case DecidedBy::kNumber:
      return ByNumber(true, number);
    case DecidedBy::kSeven:
      return ByNumber(false, number);
    case DecidedBy::kLine:
      return OnTheLine(game, bet);
    case DecidedBy::kPair:
      return {Text(Words::kHardWins, {number}), Text(Words::kHardLoses, {number})};
    case DecidedBy::kHand:
      return OnTheHand(game, bet);
    default:
      return OnOneRoll(game, bet);
  }
}

FactText KindOf(BetId bet) {
  if (IsOdds(bet)) return Text(Words::kOdds, {BetName(FlatBetOf(bet))});
  const FamilyRow& row = FamilyRowOf(bet);
  if (row.decidedBy == DecidedBy::kOneRoll) return Text(Words::kOneRoll);
  if (row.decidedBy == DecidedBy::kHand) return Text(Words::kHand);
  if (row.decidedBy == DecidedBy::kLine) return Text(Words::kLine);
  return Text(row.contract == Contract::kAlways ? Words::kContract : Words::kStays);
}

FactText VigOf(const Game& game, BetId bet) {
  if (!HasVig(bet)) return {};
  const bool lay = IsLay(bet);
  const bool asMade = VigUpFront(game, bet);
  const Words words = lay ? (asMade ? Words::kVigOfWinAsMade : Words::kVigOfWinOnWin)
                          : (asMade ? Words::kVigAsMade : Words::kVigOnWin);
  const double rate = (lay ? game.settings.LayVigRate : game.settings.BuyVigRate).Number().ToDouble();
  return Text(words, {Figure(rate * 100)});
}

bool WorksNow(const Game& game, SeatId seat, BetId bet) {
  const SeatState& state = game.table.seats[seat];
  if (game.table.BetAmount(seat, bet) > kZero) return BetWorkingOf(game, seat, bet) > 0;
  return game.table.Point != 0 || state.BetDefaultWorking.Has(bet) || !FamilyRowOf(bet).callable;
}

}  // namespace

RollChances ChancesOf(const Game& game, SeatId seat, BetId bet) {
  const Trial trial = TrialOf(game, seat, bet);
  RollChances chances;
  for (int outcome = 0; outcome < kOutcomes; ++outcome) {
    const std::int64_t net = NetOfOutcome(game, trial, bet, outcome);
    const double share = 36.0 * static_cast<double>(trial.dice.weight[static_cast<std::size_t>(outcome)]) /
                         static_cast<double>(trial.dice.whole);
    if (net != 0) (net > 0 ? chances.win : chances.lose) += share;
  }
  return chances;
}

FactText PaysOf(const Game& game, BetId bet) {
  if (!IsTableBet(bet)) return {};
  // Odds on the line pay by the point; before one is set there is nothing to tell.
  if (IsOdds(bet) && FactsOf(bet).number == 0 && game.table.Point == 0) return {};
  if (bet == kCAndE) return Text(Words::kHalves);
  if (bet == kHorn) return Text(Words::kQuarters);
  if (bet == kWorld) return Text(Words::kFifths);
  std::vector<std::string> texts;
  for (const PayoffRecord& record : PayoffRowsOf(game, bet)) {
    if (record.PayTo <= kZero) continue;
    const std::string text = PayoffText(record);
    if (std::find(texts.begin(), texts.end(), text) == texts.end()) texts.push_back(text);
  }
  if (texts.empty()) return {};
  if (texts.size() > 3) return Text(Words::kPaysRange, {texts.front(), texts.back()});
  constexpr Words kBySize[] = {Words::kPaysOne, Words::kPaysTwo, Words::kPaysThree};
  return Text(kBySize[texts.size() - 1], std::vector<FactValue>(texts.begin(), texts.end()));
}

Currency RoomFor(Game& game, SeatId seat, BetId bet) {
  const auto allowed = [&](Currency request) {
    return AllowedChange(game, seat, bet, request, Asking::kQuietly);
  };
  Currency room = allowed(kBankrollLimit);
  // Corrections for the payoff may give less for less, or more where they and the betting unit don't meet;
  // what is told is given, and just that as far as any amount is.
  for (Currency given; room > kZero; room = given) {
    given = allowed(room);
    if (given == room) break;
    if (given > room && allowed(given) != given) break;
  }
  return std::max(room, kZero);
}

BetTerms BetTermsOf(Game& game, SeatId seat, BetId bet) {
  BetTerms terms;
  terms.bet = bet;
  terms.amount = game.table.BetAmount(seat, bet);
  terms.kind = KindOf(bet);
  WinsAndLosses decisions = WinsAndLossesOf(game, bet);
  terms.wins = std::move(decisions.wins);
  terms.loses = std::move(decisions.loses);
  terms.pays = PaysOf(game, bet);
  terms.chances = ChancesOf(game, seat, bet);
  terms.working = WorksNow(game, seat, bet);
  const Advantage figures = FigureAdvantage(game, bet);
  terms.edgePerRoll = game.settings.IncludeZeroOutcomes;
  terms.edge = figures.evPerDecision == 0 ? 0 : -100 * figures.evPerDecision;
  terms.decided = figures.rollsPerDecision > 0;
  terms.rollsToDecide = figures.rollsPerDecision;
  terms.vig = VigOf(game, bet);
  terms.vigAmount = VigFor(game, bet, terms.amount);
  terms.minimum = MinBetFor(game, bet);
  if (seat == 0 || !IsOccupied(game.table, seat)) return terms;
  terms.room = RoomFor(game, seat, bet);
  if (terms.room == kZero) terms.refusal = WhyNotMore(game, seat, bet);
  return terms;
}

std::vector<FactText> PointerFacts(const BetTerms& terms, bool room) {
  std::vector<FactText> parts{Text(Words::kNameAmount, {BetName(terms.bet), terms.amount})};
  if (terms.vigAmount > kZero) parts.push_back(Text(Words::kVigPart, {terms.vigAmount}));
  if (!terms.pays.Empty()) parts.push_back(Text(Words::kPaysPart, {terms.pays}));
  if (room) {
    parts.push_back(Text(Words::kMinimumPart, {terms.minimum}));
    parts.push_back(Text(Words::kRoomPart, {terms.room}));
  }
  if (terms.decided)
    parts.push_back(
        Text(terms.edgePerRoll ? Words::kEdgeRollPart : Words::kEdgePart, {TwoDigits(terms.edge)}));
  if (room && !terms.refusal.empty()) parts.push_back(Text(Words::kRefusalPart, {terms.refusal}));
  return parts;
}

std::vector<FactText> TipFacts(const BetTerms& terms) {
  std::vector<FactText> lines;
  const auto add = [&](Words words, const FactText& told) {
    if (!told.Empty()) lines.push_back(Text(words, {told}));
  };
  lines.push_back(Text(Words::kNameKind, {BetName(terms.bet), terms.kind}));
  add(Words::kWinsLine, terms.wins);
  add(Words::kLosesLine, terms.loses);
  add(Words::kPaysLine, terms.pays);
  if (!terms.decided) {
    lines.push_back(Text(Words::kNeverLine));
    return lines;
  }
  if (terms.chances.win + terms.chances.lose > 0)
    lines.push_back(Text(terms.working ? Words::kChanceLine : Words::kOffLine,
                         {Figure(terms.chances.win), Figure(terms.chances.lose)}));
  if (terms.rollsToDecide > 1) lines.push_back(Text(Words::kRollsLine, {Figure(terms.rollsToDecide)}));
  lines.push_back(Text(terms.edgePerRoll ? Words::kEdgeRollLine : Words::kEdgeLine, {TwoDigits(terms.edge)}));
  add(Words::kVigLine, terms.vig);
  return lines;
}

std::string InEnglish(const FactText& text) {
  std::string told;
  for (const char* at = text.pattern; *at != '\0'; ++at) {
    const auto hole = static_cast<std::size_t>(at[1] - '1');
    if (*at != '%' || at[1] < '1' || hole >= text.values.size()) {
      told += *at;
      continue;
    }
    const FactValue& value = text.values[hole];
    if (!value.words.Empty())
      told += InEnglish(value.words);
    else if (value.plain.kind == MessageValue::Kind::kMoney)
      told += FormatMoney(Currency::FromRaw(value.plain.number));
    else
      told += value.plain.kind == MessageValue::Kind::kText ? value.plain.text
                                                            : std::to_string(value.plain.number);
    ++at;
  }
  return told;
}

std::string InEnglish(const std::vector<FactText>& texts, const char* between) {
  std::string told;
  for (const FactText& text : texts) told += (told.empty() ? "" : between) + InEnglish(text);
  return told;
}

std::vector<const char*> FactPatterns() { return {std::begin(kWords), std::end(kWords)}; }

}  // namespace tessaryn
