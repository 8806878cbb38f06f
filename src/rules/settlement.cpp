#include "rules/settlement.h"

#include <algorithm>

#include "base/bet_catalogue.h"
#include "base/messages.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/handling.h"
#include "rules/payoffs.h"
#include "rules/settlement_order.h"
#include "state/game.h"
#include "state/run_stop.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

// The record that a winner is paid by, where it is not the bet's own.
const PayoffRecord& WinnersRecord(const Game& game, int bet, int code) {
  const PayoffTables& payoffs = game.payoffs;
  const TableState& table = game.table;
  const int point = table.PointBeforeRoll;
  const int position = point == 0 ? 0 : BoxPosition(point);
  const auto record = [&payoffs](int of) -> const PayoffRecord& { return payoffs.PayoffTable[of]; };
  switch (bet) {
    case kPassLine:
      return record(point == 0 ? kCome : kCome4 + position);
    case kPassLineOdds:
      return record(kComeOdds4 + position);
    case kDontPass:
      return record(point == 0 ? kDontCome : kDontCome4 + position);
    case kDontPassOdds:
      return record(kDontComeOdds4 + position);
    case kCAndE:
      return record(table.RollTotal == 11 ? kEleven : kCraps);
    case kHorn:
    case kWorld:
      switch (table.RollTotal) {
        case 2:
          return record(kTwo);
        case 3:
          return record(kThree);
        case 7:
          return record(kSeven);
        case 11:
          return record(kEleven);
        default:
          return record(kTwelve);
      }
    case kMidway:
      return payoffs.MidwayPayoffs[MidwayRow(table.Die1, table.Die2)];
    case kSevenPoint7:
      return payoffs.SevenPointSevenPayoffs[code];
    case kSharpShooter:
      return payoffs.SharpShooterPayoffs[std::min(table.SharpShooterCount + 1, kSharpShooterRows)];
    case kRideTheLine:
      return payoffs.RideTheLinePayoffs[std::min(table.RideTheLineCount + 1, kRideTheLineRows)];
    case kFire:
      return payoffs.FirePayoffs[table.FireCount];
    default:
      return record(bet);
  }
}

// Into how many shares the bet is cut; one of them wins.
int SharesOf(int bet) {
  switch (bet) {
    case kCAndE:
      return 2;
    case kHorn:
      return 4;
    case kWorld:
      return 5;
    default:
      return 1;
  }
}

Currency Paid(Currency amount, const PayoffRecord& record) {
  // Even money, to or against, is most of what a table pays.
  if (record.PayPer.raw == Currency::kPerDollar) {
    if (record.PayTo.raw == Currency::kPerDollar) return amount;
    if (record.PayTo.raw == -Currency::kPerDollar) return -amount;
  }
  return Divide(Multiply(amount, record.PayTo), record.PayPer);
}

// Over, so that it must not stay up.
bool IsFinished(const Game& game, int bet, int seat) {
  const TableState& table = game.table;
  switch (bet) {
    case kCome:
    case kDontCome:
      return table.RollTotal == 7;
    case kPassLineOdds:
    case kDontPassOdds:
      return true;
    case kAllSmall:
      return (table.NumberMarks & kSmallMarks) != 0;
    case kAllTall:
      return (table.NumberMarks & kTallMarks) != 0;
    case kPoint7:
    case kSevenPoint7:
      return table.Point != 0;
    default:
      break;
  }
  if (bet >= kDontCome4 && bet < kCome4) return true;
  if (IsComeNumber(bet)) return !game.settings.AllowPutBets;
  if (IsComeOdds(bet)) return !table.seats[seat].SeatBets.Has(bet - 6);
  return false;
}

}  // namespace

void ComputePayoff(Game& game, int seat, int bet, int code, Currency amount) {
  TableState& table = game.table;
  PayoffRecord& working = game.payoffs.PayoffTable[0];
  int shares = 1;
  if (bet == kField) {
    working = game.payoffs.FieldPayoffs[FieldRow(table.Die1, table.Die2)];
  } else if (code < 0) {
    working.PayTo = -Currency::Dollars(1);
    working.PayPer = Currency::Dollars(1);
    working.ForFlag = game.payoffs.PayoffTable[bet].ForFlag;
  } else {
    working = WinnersRecord(game, bet, code);
    shares = SharesOf(bet);
  }
  Currency gross;
  if (shares == 1) {
    gross = Paid(amount, working);
  } else {
    // One share wins, the others lose.
    const Currency share = Divide(amount, Currency::Dollars(shares));
    gross = Paid(share, working) - (amount - share);
  }
  if (HasVig(bet) && (gross > kZero || VigUpFront(game, bet))) gross -= VigHeld(game, seat, bet);
  table.GrossPayoff = gross;
  table.NetPayoff = RoundDownToUnit(gross, game.settings.Unit());
}

void SettleBet(Game& game, int seat, int code, int bet) {
  TableState& table = game.table;
  const Currency amount = table.BetAmount(seat, bet);
  if (amount == kZero) return;
  table.SettlingBet = bet;
  if (WorkingValue(table.seats[seat].BetWorking, bet) <= 0) {
    if (code == kOddsWin || code == kOddsLose) {
      if (IsOdds(bet)) SettleOffOdds(game, seat, bet);
    }
    return;
  }
  ComputePayoff(game, seat, bet, code, amount);
  const Currency net = table.NetPayoff;
  if (net == kZero) return;
  const Currency bankroll = table.BankrollCurrent[seat] + net;
  if (net.IsError() || bankroll.IsError() || !UpdateBetStats(game, seat, bet, amount, net)) {
    ReportError(game, MessageText<Msg::kOverflow>(), kOverflowError, "SettleBet");
    return;
  }
  if (IsComeNumber(bet)) table.seats[seat].ComeTravelAmount[bet - kCome4] = kZero;
  if (game.events.RecordEventsActive) LogWinOrLoss(game, seat, bet);
  table.BankrollCurrent[seat] = bankroll;
  table.BetCommitted(seat, bet) = kZero;
  TouchBefore(table, seat, bet);
  table.BetFinished = IsFinished(game, bet, seat);
  std::int32_t& streak = table.BetStreak(seat, bet);
  if (net < kZero) {
    streak = streak <= 0 ? streak - 1 : -1;
    HandleLoss(game, seat, bet);
  } else {
    streak = streak >= 0 ? streak + 1 : 1;
    HandleWin(game, seat, bet);
  }
}

void SettleOffOdds(Game& game, int seat, int bet) {
  TableState& table = game.table;
  table.NetPayoff = kZero;
  table.GrossPayoff = kZero;
  // Without their point line odds ride with nothing, even where handling made the flat bet again.
  const bool onLine = bet == kPassLineOdds || bet == kDontPassOdds;
  table.BetFinished =
      onLine || !table.seats[seat].SeatBets.Has(FlatBetOf(bet)) || !game.settings.AllowPutBets;
  HandleOffOdds(game, seat, bet);
}

void MoveComeBet(Game& game, int seat, int fromBet, int toBet) {
  TableState& table = game.table;
  const Currency amount = table.BetAmount(seat, fromBet);
  if (amount == kZero) return;
  ChangeBet(game, seat, fromBet, -amount);
  table.MovingComeBet = true;
  PlaceBet(game, seat, toBet, amount);
  table.MovingComeBet = false;
  (fromBet == kCome ? table.ComeMovedTo : table.DontComeMovedTo)[seat] = toBet;
  table.AnyBetMoved = true;
  table.BetCommitted(seat, toBet) = amount;
  TouchBefore(table, seat, toBet);
  if (IsComeNumber(toBet)) {
    table.seats[seat].ComeTravelAmount[toBet - kCome4] = amount;
    if (table.seats[seat].handling.AutoDownPlace) {
      for (const int bet : {toBet + kPlace4 - kCome4, toBet + kBuy4 - kCome4})
        ChangeBet(game, seat, bet, -table.BetAmount(seat, bet));
    }
  }
  if (game.events.RecordEventsActive) LogBetMoved(game, seat, fromBet, toBet);
}

namespace {

struct RollFacts {
  bool comeOut;
  int low;  // the smaller face
  int high;
  int barNumber;
};

bool Holds(StepWhen when, const RollFacts& roll) {
  switch (when) {
    case StepWhen::kAlways:
      return true;
    case StepWhen::kComeOut:
      return roll.comeOut;
    case StepWhen::kPointOn:
      return !roll.comeOut;
    case StepWhen::kPair:
      return roll.low == roll.high;
    case StepWhen::kNoPair:
      return roll.low != roll.high;
    case StepWhen::kFace1:
      return roll.low == 1;
    case StepWhen::kFace2:
      return roll.low == 2 || roll.high == 2;
    case StepWhen::kFace3:
      return roll.low == 3 || roll.high == 3;
    case StepWhen::kNotFace1:
      return roll.low != 1;
    case StepWhen::kNotFace3:
      return roll.low != 3 && roll.high != 3;
    case StepWhen::kBar12:
      return roll.barNumber == 12;
    case StepWhen::kBar12ComeOut:
      return roll.barNumber == 12 && roll.comeOut;
    case StepWhen::kBar2:
      return roll.barNumber == 2;
    case StepWhen::kBar2ComeOut:
      return roll.barNumber == 2 && roll.comeOut;
  }
  return false;
}

// One pass over the seats, in pay order, that have the bet or its odds up.
void PassOver(Game& game, const SettleStep& step) {
  TableState& table = game.table;
  unsigned seats = table.SeatsUp[step.bet];
  if (step.oddsBet != 0) seats |= table.SeatsUp[step.oddsBet];
  for (; seats != 0; seats &= seats - 1) {
    const int seat = kPayOrder[std::countr_zero(seats)];
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

void SettleAll(Game& game, int code, int bet) {
  PassOver(game, {static_cast<std::uint8_t>(bet), static_cast<std::int8_t>(code)});
}

void MoveAll(Game& game, int fromBet, int toBet) {
  for (unsigned seats = game.table.SeatsUp[fromBet]; seats != 0; seats &= seats - 1)
    MoveComeBet(game, kPayOrder[std::countr_zero(seats)], fromBet, toBet);
}

// A seven takes 84 to 87.
void LoseMarkBets(Game& game) {
  TableState& table = game.table;
  if (table.RollTotal != 7) return;
  table.NumberMarks = 0;
  if (!table.AnyBets.Meets(kSpecialProps)) return;
  for (int bet = kAllSmall; bet <= kFourRolls; ++bet) SettleAll(game, kFlatLoses, bet);
}

// 88 and 89 when the roll after the point, or a come-out, leaves them undecided.
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
    for (const int bet : {kAllSmall, kAllTall, kMakeAll}) SettleAll(game, kFlatWins, bet);
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
  WalkSteps(game, kHopLosers[PairIndex(table.Die1, table.Die2)], roll);
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
  if (roll.comeOut && (total == 7 || total == 11)) ++table.RideTheLineCount;
  const bool sevenOut = total == 7 && !roll.comeOut;
  if (total == 7 && game.settings.SmallTallEnabled) WinPointBets(game, roll);
  if (sevenOut) {
    SettleAll(game, kFlatWins, kFire);
    table.FireMarks = 0;
    table.FireCount = 0;
  }
  if (IsBoxNumber(total)) {
    MoveAll(game, kCome, kCome4 + BoxPosition(total));
    MoveAll(game, kDontCome, kDontCome4 + BoxPosition(total));
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
  const RollFacts roll{table.PointBeforeRoll == 0, std::min(table.Die1, table.Die2),
                       std::max(table.Die1, table.Die2), game.settings.BarNumber};
  const bool pointMade = table.RollTotal == table.PointBeforeRoll;
  if (table.AnyBets.Empty()) return CountHandWithoutBets(game.table, roll, pointMade);
  SettleLosers(game, roll, pointMade);
  SettleWinners(game, roll, pointMade);
}

}  // namespace tessaryn
