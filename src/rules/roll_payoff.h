// What a roll pays a bet that it decides: the record in force for it, and the money that comes of it. What is
// settled and what is expected of a roll both come from here.
#pragma once

#include <algorithm>
#include <array>

#include "base/bet_catalogue.h"
#include "rules/payoffs.h"
#include "state/vig.h"

namespace tessaryn {

// Codes of a settlement. 1 does not promise a win: some payoff tables hold losses.
inline constexpr int kFlatLoses = -1;
inline constexpr int kOddsLose = -2;
inline constexpr int kFlatWins = 1;
inline constexpr int kOddsWin = 2;

// What a decision goes by: the dice, and what stood as they were thrown.
struct DecidedRoll {
  int die1 = 0;
  int die2 = 0;
  int point = 0;
  int sharpShooterCount = 0;
  int rideTheLineCount = 0;
  int fireCount = 0;
};

namespace roll_payoff {

// By total: as what a share of a bet in shares wins, 0 where all of them lose.
inline constexpr auto kPartOn = [] {
  std::array<std::array<std::uint8_t, 13>, kBets + 1> parts{};
  for (BetId bet = 1; bet <= kBets; ++bet)
    for (int die1 = 1; die1 <= 6; ++die1)
      for (int die2 = 1; die2 <= 6; ++die2)
        parts[bet][die1 + die2] = static_cast<std::uint8_t>(WinningPart(bet, die1, die2));
  return parts;
}();

// The record of a bet on the line: that of a bet that travels, or on a come-out of one that waits.
inline const PayoffRecord& LineRecord(const PayoffTables& payoffs, int point, BetId waiting,
                                      BetId firstOnNumber) {
  return payoffs.PayoffTable[point == 0 ? waiting : BetOn(firstOnNumber, point)];
}

// The record that a winner is paid by.
inline const PayoffRecord& WinnersRecord(const PayoffTables& payoffs, const DecidedRoll& roll, BetId bet,
                                         int code) {
  switch (FamilyOf(bet)) {
    case FamilyId::kPassLine:
      return LineRecord(payoffs, roll.point, kCome, kCome4);
    case FamilyId::kPassLineOdds:
      return LineRecord(payoffs, roll.point, kComeOdds4, kComeOdds4);
    case FamilyId::kDontPass:
      return LineRecord(payoffs, roll.point, kDontCome, kDontCome4);
    case FamilyId::kDontPassOdds:
      return LineRecord(payoffs, roll.point, kDontComeOdds4, kDontComeOdds4);
    case FamilyId::kCAndE:
    case FamilyId::kHorn:
      return payoffs.PayoffTable[kPartOn[bet][roll.die1 + roll.die2]];
    case FamilyId::kMidway:
      return payoffs.MidwayPayoffs[MidwayRow(roll.die1, roll.die2)];
    case FamilyId::kSevenPoint7:
      return payoffs.SevenPointSevenPayoffs[code];
    case FamilyId::kSharpShooter:
      return payoffs.SharpShooterPayoffs[std::min(roll.sharpShooterCount + 1, kSharpShooterRows)];
    case FamilyId::kRideTheLine:
      return payoffs.RideTheLinePayoffs[std::min(roll.rideTheLineCount + 1, kRideTheLineRows)];
    case FamilyId::kFire:
      return payoffs.FirePayoffs[roll.fireCount];
    default:
      return payoffs.PayoffTable[bet];
  }
}

// What takes a loser whole, as "to" and as "for".
inline constexpr PayoffRecord kLostTo{kZero, -Currency::Dollars(1), -Currency::Dollars(1),
                                      Currency::Dollars(1)};
inline constexpr PayoffRecord kLostFor{kZero, -Currency::Dollars(1), kZero, Currency::Dollars(1)};

inline Currency Paid(Currency amount, const PayoffRecord& record) {
  // Even money, to or against, is most of what a table pays.
  if (record.PayPer.raw == Currency::kPerDollar) {
    if (record.PayTo.raw == Currency::kPerDollar) return amount;
    if (record.PayTo.raw == -Currency::kPerDollar) return -amount;
  }
  return Divide(Multiply(amount, record.PayTo), record.PayPer);
}

// One share wins, the others lose.
inline Currency PaidOnShare(Currency amount, int shares, const PayoffRecord& record) {
  const Currency share = Divide(amount, Currency::Dollars(shares));
  return Paid(share, record) - (amount - share);
}

}  // namespace roll_payoff

// The record of a bet that is decided with the code.
inline const PayoffRecord& RecordOf(const PayoffTables& payoffs, const DecidedRoll& roll, BetId bet,
                                    int code) {
  if (bet == kField) return payoffs.FieldPayoffs[FieldRow(roll.die1, roll.die2)];
  if (code > 0) return roll_payoff::WinnersRecord(payoffs, roll, bet, code);
  return payoffs.PayoffTable[bet].ForFlag == kZero ? roll_payoff::kLostFor : roll_payoff::kLostTo;
}

// What the record brings before it is cut to betting units; vig is what the bet holds of it. The error value
// on an overflow.
inline Currency GrossPayoff(const Game& game, BetId bet, int code, Currency amount,
                            const PayoffRecord& record, Currency vig) {
  const int shares = code > 0 ? SharesOf(bet) : 1;
  const Currency gross =
      shares == 1 ? roll_payoff::Paid(amount, record) : roll_payoff::PaidOnShare(amount, shares, record);
  return HasVig(bet) && (gross > kZero || VigUpFront(game, bet)) ? gross - vig : gross;
}

}  // namespace tessaryn
