#include "rules/settlement.h"

#include <algorithm>
#include <array>

#include "base/bet_catalogue.h"
#include "base/messages.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/handling.h"
#include "rules/payoffs.h"
#include "rules/roll_payoff.h"
#include "rules/settlement_order.h"
#include "state/bet_families.h"
#include "state/game.h"
#include "state/run_stop.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

// What the records of a decision go by, as the table has it now.
DecidedRoll RollOnTable(const TableState& table) {
  return {table.Die1,     table.Die2, table.PointBeforeRoll, table.SharpShooterCount, table.RideTheLineCount,
          table.FireCount};
}

// What the bet brings. Either sum is the error value on an overflow.
Decision ComputePayoff(const Game& game, SeatId seat, BetId bet, int code, Currency amount) {
  const PayoffRecord& record = RecordOf(game.payoffs, RollOnTable(game.table), bet, code);
  const Currency gross =
      GrossPayoff(game, bet, code, amount, record, HasVig(bet) ? VigHeld(game, seat, bet) : kZero);
  return {&record, gross, RoundDownToUnit(gross, game.settings.Unit())};
}

// Over, so that it must not stay up.
bool IsFinished(const Game& game, BetId bet, SeatId seat) {
  const TableState& table = game.table;
  switch (FamilyOf(bet)) {
    case FamilyId::kCome:
    case FamilyId::kDontCome:
      return table.RollTotal == 7;
    case FamilyId::kPassLineOdds:
    case FamilyId::kDontPassOdds:
    case FamilyId::kDontComeNumber:
    case FamilyId::kDontComeOdds:
      return true;
    case FamilyId::kComeNumber:
      return !game.settings.AllowPutBets;
    case FamilyId::kComeOdds:
      return !table.seats[seat].SeatBets.Has(FlatBetOf(bet));
    case FamilyId::kMarks:
      return (bet == kAllSmall && (table.NumberMarks & kSmallMarks) != 0) ||
             (bet == kAllTall && (table.NumberMarks & kTallMarks) != 0);
    case FamilyId::kPoint7:
    case FamilyId::kSevenPoint7:
      return table.Point != 0;
    default:
      return false;
  }
}

// An odds bet that was not working when its flat bet was decided.
void SettleOffOdds(Game& game, SeatId seat, BetId bet) {
  // Without their point line odds ride with nothing, even where handling made the flat bet again.
  const bool onLine = FamilyRowOf(bet).decidedBy == DecidedBy::kLine;
  Decision decision;
  decision.finished =
      onLine || !game.table.seats[seat].SeatBets.Has(FlatBetOf(bet)) || !game.settings.AllowPutBets;
  HandleOffOdds(game, seat, bet, decision);
}

// Decides the seat's bet. A bet that isn't up or isn't working is passed over, odds apart.
void SettleBet(Game& game, SeatId seat, int code, BetId bet) {
  TableState& table = game.table;
  const Currency amount = table.BetAmount(seat, bet);
  if (amount == kZero) return;
  if (WorkingValue(table.seats[seat].BetWorking, bet) <= 0) {
    if ((code == kOddsWin || code == kOddsLose) && IsOdds(bet)) SettleOffOdds(game, seat, bet);
    return;
  }
  Decision decision = ComputePayoff(game, seat, bet, code, amount);
  const Currency net = decision.net;
  if (net == kZero) return;
  const Currency bankroll = table.BankrollCurrent[seat] + net;
  if (net.IsError() || bankroll.IsError() || !UpdateBetStats(game, seat, bet, amount, net)) {
    ReportError(game, MessageText<Msg::kOverflow>(), kOverflowError, "SettleBet");
    return;
  }
  if (IsComeNumber(bet)) table.seats[seat].ComeTravelAmount[bet - kCome4] = kZero;
  if (game.events.RecordEventsActive) LogWinOrLoss(game, seat, bet, net);
  table.BankrollCurrent[seat] = bankroll;
  table.BetCommitted(seat, bet) = kZero;
  TouchBefore(table, seat, bet);
  decision.finished = IsFinished(game, bet, seat);
  std::int32_t& streak = table.BetStreak(seat, bet);
  if (net < kZero) {
    streak = streak <= 0 ? streak - 1 : -1;
    HandleLoss(game, seat, bet, decision);
  } else {
    streak = streak >= 0 ? streak + 1 : 1;
    HandleWin(game, seat, bet, decision);
  }
}

// Carries a Come or Don't Come bet to its number.
void MoveComeBet(Game& game, SeatId seat, BetId fromBet, BetId toBet) {
  TableState& table = game.table;
  const Currency amount = table.BetAmount(seat, fromBet);
  if (amount == kZero) return;
  ChangeBet(game, seat, fromBet, -amount);
  PlaceBet(game, seat, toBet, amount, Asking::kAsMove);
  (fromBet == kCome ? table.ComeMovedTo : table.DontComeMovedTo)[seat] = toBet;
  table.AnyBetMoved = true;
  table.BetCommitted(seat, toBet) = amount;
  TouchBefore(table, seat, toBet);
  if (IsComeNumber(toBet)) {
    table.seats[seat].ComeTravelAmount[toBet - kCome4] = amount;
    if (table.seats[seat].handling.AutoDownPlace) {
      const int number = FactsOf(toBet).number;
      for (const BetId bet : {BetOn(kPlace4, number), BetOn(kBuy4, number)})
        ChangeBet(game, seat, bet, -table.BetAmount(seat, bet));
    }
  }
  if (game.events.RecordEventsActive) LogBetMoved(game, seat, fromBet, toBet);
}

// One pass over the seats, in pay order, that have the bet or its odds up.
void PassOver(Game& game, const SettleStep& step) {
  TableState& table = game.table;
  unsigned seats = table.SeatsUp[step.bet];
  if (step.oddsBet != 0) seats |= table.SeatsUp[step.oddsBet];
  for (; seats != 0; seats &= seats - 1) {
    const SeatId seat = kPayOrder[std::countr_zero(seats)];
    const Currency flat = table.BetAmount(seat, step.bet);
    SettleBet(game, seat, step.code, step.bet);
    if (step.oddsBet == 0) continue;
    SettleBet(game, seat, step.code < 0 ? kOddsLose : kOddsWin, step.oddsBet);
    // Only now, so that the odds are paid as they rode.
    if (table.BetAmount(seat, step.bet) != flat) BringOddsIntoLine(game, seat, step.bet);
  }
}

void WalkStepsUp(Game& game, const SettleSteps& steps, const RollFacts& roll) {
  const BetSet waiting = steps.bets & game.table.AnyBets;
  for (const SettleStep& step : steps.steps) {
    const bool up = waiting.Has(step.bet) || (step.oddsBet != 0 && waiting.Has(step.oddsBet));
    if (!up) continue;
    if (Holds(step.when, roll)) PassOver(game, step);
  }
}

// The steps whose bets are up, in their order.
inline void WalkSteps(Game& game, const SettleSteps& steps, const RollFacts& roll) {
  if (steps.bets.Meets(game.table.AnyBets)) WalkStepsUp(game, steps, roll);
}

void SettleAll(Game& game, int code, BetId bet) {
  PassOver(game, {static_cast<std::uint8_t>(bet), static_cast<std::int8_t>(code)});
}

void MoveAll(Game& game, BetId fromBet, BetId toBet) {
  for (unsigned seats = game.table.SeatsUp[fromBet]; seats != 0; seats &= seats - 1)
    MoveComeBet(game, kPayOrder[std::countr_zero(seats)], fromBet, toBet);
}

// A seven takes the marks and the count of rolls.
void LoseMarkBets(Game& game) {
  TableState& table = game.table;
  if (table.RollTotal != 7) return;
  table.NumberMarks = 0;
  if (!table.AnyBets.Meets(kSpecialProps)) return;
  for (const BetId bet : {kAllSmall, kAllTall, kMakeAll, kFourRolls}) SettleAll(game, kFlatLoses, bet);
}

// Point 7 and 7 Point 7 when the roll after the point, or a come-out, leaves them undecided.
void LosePointBets(Game& game, const RollFacts& roll) {
  TableState& table = game.table;
  if (!table.AnyBets.Meets(kSpecialProps)) return;
  const bool seven = table.RollTotal == 7;
  if (!roll.comeOut) {
    if (!seven && table.PointTwoRollsAgo == 0) {
      SettleAll(game, kFlatLoses, kPoint7);
      SettleAll(game, kFlatLoses, kSevenPoint7);
    }
  } else if (table.Point == 0) {
    SettleAll(game, kFlatLoses, kPoint7);
    if (!seven) SettleAll(game, kFlatLoses, kSevenPoint7);
  }
}

void WinPointBets(Game& game, const RollFacts& roll) {
  TableState& table = game.table;
  if (!table.AnyBets.Meets(kSpecialProps)) return;
  if (roll.comeOut) {
    SettleAll(game, kFlatWins, kSevenPoint7);
  } else if (table.PointTwoRollsAgo == 0) {
    SettleAll(game, kFlatWins, kPoint7);
    SettleAll(game, kOddsWin, kSevenPoint7);
  }
}

void ClearSideUnlessMakeAll(TableState& table, std::uint32_t side) {
  if (!table.AnyBets.Has(kMakeAll)) table.NumberMarks &= ~side;
}

void WinMarkBets(Game& game) {
  TableState& table = game.table;
  if ((table.NumberMarks & kAllMarks) == kAllMarks) {
    table.NumberMarks = 0;
    for (const BetId bet : {kAllSmall, kAllTall, kMakeAll}) SettleAll(game, kFlatWins, bet);
  } else {
    if ((table.NumberMarks & kSmallMarks) == kSmallMarks) {
      ClearSideUnlessMakeAll(table, kSmallMarks);
      SettleAll(game, kFlatWins, kAllSmall);
    }
    if ((table.NumberMarks & kTallMarks) == kTallMarks) {
      ClearSideUnlessMakeAll(table, kTallMarks);
      SettleAll(game, kFlatWins, kAllTall);
    }
  }
  if (table.FourRollCount == 4) {
    table.FourRollCount = 0;
    SettleAll(game, kFlatWins, kFourRolls);
  }
}

void CountPointMade(TableState& table) {
  const std::uint32_t mark = 1u << BoxPosition(table.PointBeforeRoll);
  if ((table.FireMarks & mark) == 0) {
    table.FireMarks |= mark;
    ++table.FireCount;
  }
  ++table.SharpShooterCount;
  ++table.RideTheLineCount;
}

void SettleLosers(Game& game, const RollFacts& roll, bool pointMade) {
  const TableState& table = game.table;
  if (pointMade) WalkSteps(game, kPointMadeLosers, roll);
  WalkSteps(game, kLosersByTotal[table.RollTotal], roll);
  if (game.settings.SmallTallEnabled) LoseMarkBets(game);
  WalkSteps(game, kOneRollSteps[table.RollTotal], roll);
  WalkSteps(game, kHopLosers[CombinationIndex(table.Die1, table.Die2)], roll);
  if (game.settings.SmallTallEnabled) LosePointBets(game, roll);
}

void SettleWinners(Game& game, const RollFacts& roll, bool pointMade) {
  TableState& table = game.table;
  const int total = table.RollTotal;
  if (pointMade) {
    WalkSteps(game, kPointMadeWinners, roll);
    CountPointMade(table);
  }
  WalkSteps(game, kWinnersByTotal[total], roll);
  WalkSteps(game, kHopWinners[CombinationIndex(table.Die1, table.Die2)], roll);
  if (roll.comeOut && (total == 7 || total == 11)) ++table.RideTheLineCount;
  const bool sevenOut = total == 7 && !roll.comeOut;
  if (total == 7 && game.settings.SmallTallEnabled) WinPointBets(game, roll);
  if (sevenOut) {
    SettleAll(game, kFlatWins, kFire);
    table.FireMarks = 0;
    table.FireCount = 0;
  }
  if (IsBoxNumber(total)) {
    MoveAll(game, kCome, BetOn(kCome4, total));
    MoveAll(game, kDontCome, BetOn(kDontCome4, total));
  }
  if (game.settings.SmallTallEnabled) WinMarkBets(game);
  if (sevenOut) {
    SettleAll(game, kFlatWins, kSharpShooter);
    table.SharpShooterCount = 0;
    SettleAll(game, kFlatWins, kRideTheLine);
    table.RideTheLineCount = 0;
  }
}

// What the winning pass counts, on an empty layout.
void CountHandWithoutBets(TableState& table, const RollFacts& roll, bool pointMade) {
  if (pointMade) CountPointMade(table);
  if (roll.comeOut && (table.RollTotal == 7 || table.RollTotal == 11)) ++table.RideTheLineCount;
  if (table.RollTotal != 7 || roll.comeOut) return;
  table.FireMarks = 0;
  table.FireCount = table.SharpShooterCount = table.RideTheLineCount = 0;
}

}  // namespace

void SettleRoll(Game& game) {
  const TableState& table = game.table;
  const RollFacts roll{table.PointBeforeRoll == 0, table.Die1 == table.Die2, game.settings.BarNumber};
  const bool pointMade = table.RollTotal == table.PointBeforeRoll;
  if (table.AnyBets.Empty()) return CountHandWithoutBets(game.table, roll, pointMade);
  SettleLosers(game, roll, pointMade);
  SettleWinners(game, roll, pointMade);
}

}  // namespace tessaryn
