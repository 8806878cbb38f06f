#include "rules/rules_model.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <sstream>

#include "play/players.h"
#include "rules/payoffs.h"
#include "rules/shooter.h"
#include "stats/statistics.h"

namespace tessaryn::model {

namespace {

constexpr int kNumbers[6] = {4, 5, 6, 8, 9, 10};
constexpr int kPayOrder[8] = {1, 8, 2, 7, 3, 6, 4, 5};
constexpr int kSmall = 4 + 8 + 16 + 32 + 64;
constexpr int kTall = 256 + 512 + 1024 + 2048 + 4096;
constexpr int kScopesKept[3] = {0, 2, 4};  // current hand, current session, all sessions
const Currency kLargest = Currency::Dollars(9'999'999);
const Currency kOne = Currency::Dollars(1);

bool In(int bet, int first, int last) { return bet >= first && bet <= last; }
bool IsBoxNumber(int total) { return In(total, 4, 6) || In(total, 8, 10); }

int PositionOf(int number) {
  for (int i = 0; i < 6; ++i)
    if (kNumbers[i] == number) return i;
  return -1;
}

Currency Unit(const RulesModel& m) { return m.CheckValue[1]; }

Currency Floor(Currency value, Currency unit) {
  std::int64_t count = value.raw / unit.raw;
  if (value.raw % unit.raw < 0) --count;
  return Currency::FromRaw(count * unit.raw);
}

Currency TimesCount(Currency value, std::int64_t count) { return Currency::FromRaw(value.raw * count); }

Currency Ceiling(Currency value, Currency unit) { return -Floor(-value, unit); }

// amount times to by per, brought to four decimals.
Currency Ratio(Currency amount, Currency to, Currency per) { return Divide(Multiply(amount, to), per); }

bool IsUp(const RulesModel& m, int seat, int bet) { return m.BetAmount[seat][bet] > kZero; }

bool AnySeatHas(const RulesModel& m, int bet) {
  for (int seat = 1; seat <= 8; ++seat)
    if (IsUp(m, seat, bet)) return true;
  return false;
}

bool HandHasHadARoll(const RulesModel& m) { return m.HandRolls != 0; }

// The bet that an odds bet rides with.
int FlatBetOf(int odds) { return odds == 44 ? 43 : odds == 47 ? 46 : odds - 6; }

void ResetBetWorking(RulesModel& m, int seat, int bet) {
  m.BetWorking[seat][bet] = m.Point == 0 ? m.BetDefaultWorking[seat][bet] : 1;
}

// ---------------------------------------------------------------- what a roll does to a bet, as data

// What a working bet does on a roll: -1 and -2 lose, 1 and 2 win, 0 nothing. Bets 84 to 87 and 91 to 93,
// which hang on counts, are 0 here.
struct RollCase {
  int die1, die2;
  int pointBefore;       // 0: a come-out roll
  int pointTwoRollsAgo;  // 0: the point was set on the roll before
  int barNumber;
};

// The order in which the bets are visited, each group taken seat by seat.
using VisitOrder = std::vector<std::vector<int>>;

enum class When { Always, ComeOut, PointOn, FirstRollOfPoint };

// Outcomes are words: a total; "h" and a total, the pair of it; "e" and a total, that total without a pair;
// "own", the box number of the bet; "point", the point made; "unbarred", of 2 and 12 the one that isn't
// barred; "else", anything that no row above says.
struct EffectRow {
  int first, last;
  When when;
  const char* outcomes;
  int code;
};

const EffectRow kEffects[] = {
    {1, 12, When::Always, "own", -1},
    {1, 12, When::Always, "7", 1},
    {13, 18, When::Always, "own", -2},
    {13, 18, When::Always, "7", 2},
    {19, 24, When::Always, "own", 1},
    {19, 24, When::Always, "7", -1},
    {25, 30, When::Always, "own", 2},
    {25, 30, When::Always, "7", -2},
    {31, 42, When::Always, "own", 1},
    {31, 42, When::Always, "7", -1},
    {43, 43, When::ComeOut, "7 11", 1},
    {43, 43, When::ComeOut, "2 3 12", -1},
    {43, 43, When::PointOn, "point", 1},
    {43, 43, When::PointOn, "7", -1},
    {44, 44, When::PointOn, "point", 2},
    {44, 44, When::PointOn, "7", -2},
    {45, 45, When::Always, "2 3 12", -1},
    {45, 45, When::Always, "11", 1},
    {45, 45, When::PointOn, "7", 1},
    {46, 46, When::ComeOut, "7 11", -1},
    {46, 46, When::ComeOut, "3 unbarred", 1},
    {46, 46, When::PointOn, "point", -1},
    {46, 46, When::PointOn, "7", 1},
    {47, 47, When::PointOn, "point", -2},
    {47, 47, When::PointOn, "7", 2},
    {48, 48, When::Always, "7 11", -1},
    {48, 48, When::Always, "3 unbarred", 1},
    {49, 49, When::Always, "2 3 4 5 6 7 8 9 10 11 12", 1},
    {50, 50, When::Always, "6", 1},
    {51, 51, When::Always, "8", 1},
    {50, 51, When::Always, "7", -1},
    {52, 52, When::Always, "h4", 1},
    {52, 52, When::Always, "7 e4", -1},
    {53, 53, When::Always, "h6", 1},
    {53, 53, When::Always, "7 e6", -1},
    {54, 54, When::Always, "h8", 1},
    {54, 54, When::Always, "7 e8", -1},
    {55, 55, When::Always, "h10", 1},
    {55, 55, When::Always, "7 e10", -1},
    {56, 56, When::Always, "2", 1},
    {57, 57, When::Always, "3", 1},
    {58, 58, When::Always, "7", 1},
    {59, 59, When::Always, "11", 1},
    {60, 60, When::Always, "12", 1},
    {61, 61, When::Always, "2 3 12", 1},
    {62, 63, When::Always, "2 3 11 12", 1},
    {64, 64, When::Always, "2 3 7 11 12", 1},
    {65, 65, When::Always, "8 9 10 11 12", 1},
    {66, 66, When::Always, "2 3 4 5 6", 1},
    {88, 88, When::FirstRollOfPoint, "7", 1},
    {88, 88, When::FirstRollOfPoint, "2 3 4 5 6 8 9 10 11 12", -1},
    {88, 88, When::ComeOut, "2 3 7 11 12", -1},
    {89, 89, When::FirstRollOfPoint, "7", 2},
    {89, 89, When::FirstRollOfPoint, "2 3 4 5 6 8 9 10 11 12", -1},
    {89, 89, When::ComeOut, "7", 1},
    {89, 89, When::ComeOut, "2 3 11 12", -1},
    {90, 90, When::Always, "6 7 8", 1},
    {56, 66, When::Always, "else", -1},
    {90, 90, When::Always, "else", -1},
};

// The faces of bets 67 to 83, smaller face first.
const int kHopFaces[17] = {13, 14, 15, 16, 22, 23, 24, 25, 26, 33, 34, 35, 36, 44, 45, 46, 55};

bool OutcomeMatches(const std::string& word, int bet, const RollCase& roll) {
  const int total = roll.die1 + roll.die2;
  const bool pair = roll.die1 == roll.die2;
  if (word == "else") return true;  // no row above has it
  if (word == "own") return kNumbers[(bet - 1) % 6] == total;
  if (word == "point") return total == roll.pointBefore;
  if (word == "unbarred") return (total == 2 && roll.barNumber == 12) || (total == 12 && roll.barNumber == 2);
  if (word[0] == 'h') return pair && total == std::stoi(word.substr(1));
  if (word[0] == 'e') return !pair && total == std::stoi(word.substr(1));
  return total == std::stoi(word);
}

bool Applies(When when, const RollCase& roll) {
  if (when == When::ComeOut) return roll.pointBefore == 0;
  if (when == When::PointOn) return roll.pointBefore != 0;
  if (when == When::FirstRollOfPoint) return roll.pointBefore != 0 && roll.pointTwoRollsAgo == 0;
  return true;
}

int ReadEffect(int bet, const RollCase& roll) {
  if (In(bet, 67, 83)) {
    const int faces = std::min(roll.die1, roll.die2) * 10 + std::max(roll.die1, roll.die2);
    return faces == kHopFaces[bet - 67] ? 1 : -1;
  }
  for (const EffectRow& row : kEffects) {
    if (!In(bet, row.first, row.last) || !Applies(row.when, roll)) continue;
    std::istringstream words(row.outcomes);
    for (std::string word; words >> word;)
      if (OutcomeMatches(word, bet, roll)) return row.code;
  }
  return 0;
}

// Every answer of ReadEffect, worked out once: reading the words for each bet and roll is too slow for long
// games.
struct EffectTable {
  signed char code[94][7][7][11][2][2];
  EffectTable() {
    for (int bet = 1; bet <= kLastBet; ++bet)
      for (int a = 1; a <= 6; ++a)
        for (int b = 1; b <= 6; ++b)
          for (int point = 0; point <= 10; ++point)
            for (int first = 0; first < 2; ++first)
              for (int bar = 0; bar < 2; ++bar)
                code[bet][a][b][point][first][bar] = static_cast<signed char>(
                    ReadEffect(bet, {a, b, point, first == 1 ? 0 : 4, bar == 1 ? 12 : 2}));
  }
};

// "7+13 1 52-55": groups that are taken seat by seat, single bets, runs of single bets.
VisitOrder ReadOrder(const std::string& text) {
  VisitOrder order;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const auto plus = word.find('+');
    const auto dash = word.find('-');
    if (plus != std::string::npos) {
      order.push_back({std::stoi(word.substr(0, plus)), std::stoi(word.substr(plus + 1))});
    } else if (dash != std::string::npos) {
      for (int bet = std::stoi(word.substr(0, dash)); bet <= std::stoi(word.substr(dash + 1)); ++bet)
        order.push_back({bet});
    } else {
      order.push_back({std::stoi(word)});
    }
  }
  return order;
}

const char* const kLosers[13] = {
    "",           "",
    "43 45",      "43 45",
    "7+13 1 52",  "8+14 2",
    "9+15 3 53",  "43+44 46 19+25 20+26 21+27 22+28 23+29 24+30 48 50 51 52-55 31-42",
    "10+16 4 54", "11+17 5",
    "12+18 6 55", "46 48",
    "43 45",
};
// The Field, Over 7 and Under 7 stand among the losers, but are won there too.
const char* const kAlways[4] = {
    "49",
    "90 56 57 58 59 60 61 62 63 64",
    "65 66",
    "67 71 68 72 69 73 76 70 74 77 75 78 80 79 81 82 83",
};
const char* const kWinners[13] = {
    "",
    "",
    "46 56 61 62 63 64 48",
    "46 57 61 62 63 64 48",
    "19+25 31 37 52 71 67",
    "20+26 32 38 68 72",
    "21+27 33 39 50 90 53 76 69 73",
    "45 46+47 43 7+13 8+14 9+15 10+16 11+17 12+18 1-6 90 58 64 70 74 77",
    "22+28 34 40 51 90 54 80 75 78",
    "23+29 35 41 79 81",
    "24+30 36 42 82 55 83",
    "43 59 62 45 63 64",
    "46 60 61 62 63 64 48",
};

// The orders, read once.
struct Orders {
  VisitOrder losers[13], winners[13], always[4], pointLost, pointMade, pointBets;
  Orders() : pointLost(ReadOrder("46 47")), pointMade(ReadOrder("43 44")), pointBets(ReadOrder("88 89")) {
    for (int total = 2; total <= 12; ++total) {
      losers[total] = ReadOrder(kLosers[total]);
      winners[total] = ReadOrder(kWinners[total]);
    }
    for (int i = 0; i < 4; ++i) always[i] = ReadOrder(kAlways[i]);
  }
};

const Orders& AllOrders() {
  static const Orders orders;
  return orders;
}

int EffectOf(int bet, const RollCase& roll) {
  static const EffectTable table;
  return table.code[bet][roll.die1][roll.die2][roll.pointBefore][roll.pointTwoRollsAgo == 0 ? 1 : 0]
                   [roll.barNumber == 12 ? 1 : 0];
}

// ---------------------------------------------------------------- payoffs

Payoff To(int to, int per) {
  return {kOne, Currency::Dollars(to), Currency::Dollars(-1), Currency::Dollars(per)};
}

}  // namespace

void RefreshBetUnits(RulesModel& m) {
  // The smallest amount, in whole units, that is paid in whole units.
  const auto refresh = [&m](Payoff& record) {
    const std::int64_t common = std::gcd(record.PayTo.raw, record.PayPer.raw);
    if (common != 0) record.BetUnit = TimesCount(Unit(m), record.PayPer.raw / common);
  };
  for (Payoff& record : m.PayoffTable) refresh(record);
  for (Payoff& record : m.FieldPayoffs) refresh(record);
  for (Payoff& record : m.SevenPointSevenPayoffs) refresh(record);
  for (Payoff& record : m.MidwayPayoffs) refresh(record);
  for (Payoff& record : m.SharpShooterPayoffs) refresh(record);
  for (Payoff& record : m.RideTheLinePayoffs) refresh(record);
  for (Payoff& record : m.FirePayoffs) refresh(record);
}

void ResetModel(RulesModel& m) {
  m = RulesModel{};
  m.AtmEnabled = true;
  m.Die1 = 3;
  m.Die2 = 4;
  m.RollTotal = 7;
  for (int seat = 0; seat < kSeats; ++seat)
    for (int bet = 1; bet <= kLastBet; ++bet) {
      const bool off = In(bet, 25, 42) || bet == 44 || bet == 45 || bet == 47 || bet == 48;
      m.BetDefaultWorking[seat][bet] = m.BetWorking[seat][bet] = off ? 0 : 1;
    }
}

// ---------------------------------------------------------------- players and bankrolls

namespace {

void SetBankroll(RulesModel& m, int seat, Currency amount) {
  for (int scope : kScopesKept) m.BankrollCurrent[scope * 9 + seat] = amount;
}

void ClearSlot(RulesModel& m, int slot) {
  m.MostComeoutRollsInHand[slot] = 0;
  m.MostPassesInHand[slot] = m.MostMissesInHand[slot] = 0;
  m.BankrollBeginning[slot] = m.BankrollCurrent[slot] = m.BankrollHigh[slot] = m.BankrollLow[slot] = kZero;
  m.AtmTotal[slot] = kZero;
}

void ClearSeat(RulesModel& m, int seat) {
  for (int scope = 0; scope < 5; ++scope) ClearSlot(m, scope * 9 + seat);
  for (int bet = 0; bet < kBets; ++bet) {
    m.BetAmount[seat][bet] = m.BetBeforeRoll[seat][bet] = m.BetCommitted[seat][bet] = kZero;
    m.BetStreak[seat][bet] = 0;
    m.BetDefaultWorking[seat][bet] = m.BetDefaultWorking[0][bet];
    if (In(bet, 1, kLastBet)) ResetBetWorking(m, seat, bet);
  }
  for (int i = 0; i < 6; ++i)
    m.LayVigHeld[seat][i] = m.BuyVigHeld[seat][i] = m.ComeTravelAmount[seat][i] = kZero;
  for (int slot = 0; slot < 8; ++slot) {
    m.AdjustKind[seat][slot] = m.AdjustUnit[seat][slot] = 0;
    m.AdjustValue[seat][slot] = kZero;
  }
  m.WinHandling[seat] = m.LoseHandling[seat] = m.ProperOddsMode[seat] = 0;
  m.ParlayBias[seat] = m.AutoTakeOdds[seat] = m.AutoLayOdds[seat] = false;
  m.AutoDownPlace[seat] = m.AutoPassDice[seat] = m.AllowNegativeBankroll[seat] = false;
  m.OnTableAmount[seat] = m.RailAmount[seat] = m.BankrollBeforeRoll[seat] = kZero;
}

int NextSeat(int seat) { return seat <= 1 ? 8 : seat - 1; }

int OccupiedSeats(const RulesModel& m) {
  return static_cast<int>(std::count(m.Occupied + 1, m.Occupied + 9, true));
}

bool MayShoot(const RulesModel& m, int seat) {
  if (!m.Occupied[seat] || m.AutoPassDice[seat]) return false;
  const bool needsLineBet = !m.AllowPutBets && m.ShooterBetRule == 1 && m.Point != 0;
  return !needsLineBet || IsUp(m, seat, 43) || IsUp(m, seat, 46);
}

}  // namespace

void AddPlayer(RulesModel& m, int seat, Currency bankroll) {
  ClearSeat(m, seat);
  m.Occupied[seat] = true;
  SetBankroll(m, seat, bankroll);
  for (int scope : kScopesKept) {
    const int slot = scope * 9 + seat;
    m.BankrollBeginning[slot] = m.BankrollHigh[slot] = m.BankrollLow[slot] = bankroll;
  }
  if (m.ShooterSeat == 0) {
    m.ShooterSeat = seat;
    if (!HandHasHadARoll(m)) m.HandSeat = seat;
  }
}

void PassDice(RulesModel& m, int reason) {
  if (OccupiedSeats(m) == 0) {
    if (reason == 2) m.ShooterSeat = m.HandSeat = 0;
    return;
  }
  int next = 0;
  int willing = 0;
  int seat = m.ShooterSeat;
  for (int step = 0; step < 7; ++step) {
    seat = NextSeat(seat);
    if (next == 0 && m.Occupied[seat]) next = seat;
    if (willing == 0 && MayShoot(m, seat)) willing = seat;
  }
  if (willing == 0 && reason == 2) willing = next;
  if (willing == 0) return;
  m.ShooterSeat = willing;
  if (!HandHasHadARoll(m)) m.HandSeat = willing;
}

void RemovePlayer(RulesModel& m, int seat) {
  ClearSeat(m, seat);
  m.Occupied[seat] = false;
  if (m.ShooterSeat == seat) PassDice(m, 2);
  if (m.HandSeat == seat && HandHasHadARoll(m)) m.HandSeat = 0;
  if (m.PreviousHandSeat == seat) m.PreviousHandSeat = 0;
}

Currency AtmTransaction(RulesModel& m, int seat, bool deposit, Currency amount) {
  if (!m.AtmEnabled) return kZero;
  const Currency bankroll = m.BankrollCurrent[seat];
  Currency allowed = amount;
  if (deposit) {
    if (!m.AllowNegativeBankroll[seat]) {
      allowed = std::max(std::min(amount, bankroll - m.OnTableAmount[seat]), kZero);
    } else if (bankroll - amount < -kLargest) {
      allowed = std::max(kLargest + bankroll, kZero);
    }
  } else if (bankroll + amount > kLargest) {
    allowed = kLargest - bankroll;
  }
  const Currency change = deposit ? -allowed : allowed;
  SetBankroll(m, seat, bankroll + change);
  for (int scope : kScopesKept) m.AtmTotal[scope * 9 + seat] += change;
  return allowed;
}

// ---------------------------------------------------------------- the limits of a bet

namespace {

// The multiple of the flat bet that its odds may be.
Currency OddsMultiple(const RulesModel& m, int bet) {
  int number = m.Point;
  if (In(bet, 13, 18)) number = kNumbers[bet - 13];
  if (In(bet, 25, 30)) number = kNumbers[bet - 25];
  if (number == 6 || number == 8) return m.OddsAllowed68;
  if (number == 5 || number == 9) return m.OddsAllowed59;
  return m.OddsAllowed410;  // also line odds that stayed up when their point was decided
}

int AutoOddsMethod(Currency multiple) {
  if (!multiple.IsWhole()) return 1;
  if (multiple == Currency::Dollars(1)) return 4;
  if (multiple == Currency::Dollars(3)) return 5;
  return 3;
}

// A whole count of checks brought to a multiple of q.
std::int64_t OddsChipCount(std::int64_t count, Currency q) {
  const Currency checks = Currency::Dollars(count);
  if (Currency::FromRaw(checks.raw * 2) <= q) return 0;
  return Ceiling(checks, q).raw / Currency::kPerDollar;
}

std::int64_t WholeChecks(Currency amount, Currency check) { return amount.raw / check.raw; }

// The smallest amount from start upward, in steps of a dollar, whose payoff is a whole number of the check.
Currency SmallestPayingWhole(Currency start, Currency check, Currency payTo, Currency payPer) {
  Currency amount = start;
  for (int step = 0; step < 20'000; ++step) {
    const std::int64_t paid = amount.raw * payTo.raw;
    if (paid % (payPer.raw * check.raw) == 0) return amount;
    amount += kOne;
  }
  return start;
}

Currency ColorPush(const RulesModel& m, Currency flat, Currency multiple, Currency payTo, Currency payPer) {
  const Currency start = Multiply(multiple, flat);
  const Currency end = Multiply(multiple + kOne, flat);
  Currency a[6];
  for (int n = 5; n >= 1; --n)
    a[n] = flat >= m.CheckValue[n] ? SmallestPayingWhole(start, m.CheckValue[n], payTo, payPer) : start;
  const auto fits = [&](int n) { return a[n] > start && a[n] < end; };
  if (fits(5) && IsMultiple(flat, Currency::Dollars(100))) return a[5];
  if (fits(4) && IsMultiple(flat, Currency::Dollars(25))) return a[4];
  if (fits(3) && IsMultiple(flat, Currency::Dollars(5))) return a[3];
  if (fits(2)) return a[2];
  return a[1];
}

Currency MinorPush(const RulesModel& m, Currency flat, Currency multiple, Currency payPer) {
  const Currency full = Multiply(multiple, flat);
  const Currency step = Multiply(Unit(m), payPer);
  Currency result = Floor(full, step);
  if (result < full && result + step < Multiply(multiple + kOne, flat)) result += step;
  return result == kZero ? full : result;
}

Currency SmallestForPayoff(Currency limit, const Payoff* first, const Payoff* last) {
  Currency smallest = kLargest;
  for (const Payoff* row = first; row <= last; ++row)
    if (row->PayTo > kZero) smallest = std::min(smallest, Ratio(limit, row->PayPer, row->PayTo));
  return smallest;
}

// Of odds that are laid the multiple says how much may be won: what is laid for it is the method's payoff.
Currency MostLaid(const RulesModel& m, int bet, Currency flat) {
  const Payoff& own = m.PayoffTable[bet];
  return Ratio(MaxOddsFor(m, bet, flat, own.PayPer, own.PayTo), own.PayPer, own.PayTo);
}

// The bets by whose records the winning numbers of 62, 63 and 64 are paid, and in how many shares.
std::vector<int> ShareRecords(int bet) {
  if (bet == 62) return {59, 61};
  if (bet == 63) return {56, 57, 59, 60};
  return {56, 57, 58, 59, 60};
}
int ShareCount(int bet) { return bet == 62 ? 2 : bet == 63 ? 4 : 5; }

Currency RawMaxBet(const RulesModel& m, int seat, int bet) {
  const Payoff& own = m.PayoffTable[bet];
  const Currency* amounts = m.BetAmount[seat];
  if (bet == 44 || In(bet, 25, 30)) return MaxOddsFor(m, bet, amounts[FlatBetOf(bet)], own.PayTo, own.PayPer);
  if (bet == 47 || In(bet, 13, 18)) return MostLaid(m, bet, amounts[FlatBetOf(bet)]);
  if (In(bet, 1, 6)) return Ratio(m.MaxBet, own.PayPer, own.PayTo);
  if (In(bet, 62, 64)) {
    Currency smallest = kLargest;
    for (int record : ShareRecords(bet))
      smallest = std::min(
          smallest, SmallestForPayoff(m.MaxPropBetPayoff, &m.PayoffTable[record], &m.PayoffTable[record]));
    return TimesCount(smallest, ShareCount(bet));
  }
  if (In(bet, 52, 88)) return SmallestForPayoff(m.MaxPropBetPayoff, &own, &own);
  if (bet == 89)
    return SmallestForPayoff(m.MaxPropBetPayoff, &m.SevenPointSevenPayoffs[1], &m.SevenPointSevenPayoffs[2]);
  if (bet == 91)
    return SmallestForPayoff(m.MaxPropBetPayoff, &m.SharpShooterPayoffs[1], &m.SharpShooterPayoffs[11]);
  if (bet == 92)
    return SmallestForPayoff(m.MaxPropBetPayoff, &m.RideTheLinePayoffs[1], &m.RideTheLinePayoffs[12]);
  if (bet == 93) return m.MaxFireBet;
  return m.MaxBet;
}

}  // namespace

Currency MaxOddsFor(const RulesModel& m, int bet, Currency flat, Currency payTo, Currency payPer) {
  const Currency multiple = OddsMultiple(m, bet);
  const int method = m.OddsCalcMethod == 0 ? AutoOddsMethod(multiple) : m.OddsCalcMethod;
  const Currency full = Multiply(multiple, flat);
  Currency result = full;
  if (method == 2) result = MinorPush(m, flat, multiple, payPer);
  if (method == 3) result = ColorPush(m, flat, multiple, payTo, payPer);
  for (int n = 1; n <= 5; ++n) {
    const Currency check = m.CheckValue[n];
    if (method == 4)
      result = std::max(result, TimesCount(check, OddsChipCount(WholeChecks(full, check), payPer)));
    if (method == 5)
      result = std::max(
          result, Multiply(TimesCount(check, OddsChipCount(WholeChecks(flat, check), payPer)), multiple));
  }
  result = std::min(result, Floor(m.MaxOddsBet, Unit(m)));
  return Floor(result, Unit(m));
}

Currency MaxBetFor(const RulesModel& m, int seat, int bet) { return Floor(RawMaxBet(m, seat, bet), Unit(m)); }

Currency VigFor(const RulesModel& m, int bet, Currency amount) {
  const bool lay = In(bet, 1, 6);
  if (!lay && !In(bet, 37, 42)) return kZero;
  const Payoff& own = m.PayoffTable[bet];
  const Currency vig =
      lay ? Multiply(m.LayVigRate, Ratio(amount, own.PayTo, own.PayPer)) : Multiply(m.BuyVigRate, amount);
  const int rounding = lay ? m.LayVigRound : m.BuyVigRound;
  const Currency unit = Unit(m);
  if (rounding == 1) return Floor(vig, unit);
  if (rounding == 2) return Ceiling(vig, unit);
  const Currency below = Floor(vig, unit);
  return (vig - below).raw * 2 >= unit.raw ? below + unit : below;
}

// ---------------------------------------------------------------- changing a bet

namespace {

struct IncreaseRule {
  int first, last;
  bool onlyAboveCommitted;
  bool (*refuses)(const RulesModel& m, int seat, int bet);
};

// Not for a bet that is on its way to its number.
bool Direct(const RulesModel& m) { return !m.MovingComeBet; }
bool NoFlat(const RulesModel& m, int seat, int bet) { return !IsUp(m, seat, FlatBetOf(bet)); }

using M = RulesModel;
const IncreaseRule kIncreaseRules[] = {
    {43, 43, true, [](const M& m, int, int) { return m.Point != 0 && !m.AllowPutBets; }},
    {45, 45, false, [](const M& m, int, int) { return m.Point == 0; }},
    {46, 46, true, [](const M& m, int, int) { return m.Point != 0; }},
    {48, 48, false, [](const M& m, int, int) { return m.Point == 0; }},
    {44, 44, false, [](const M& m, int seat, int) { return m.Point == 0 || !IsUp(m, seat, 43); }},
    {47, 47, false, [](const M& m, int seat, int) { return m.Point == 0 || !IsUp(m, seat, 46); }},
    {25, 30, false, NoFlat},
    {13, 18, false, NoFlat},
    {19, 24, true, [](const M& m, int, int) { return Direct(m) && !m.AllowPutBets; }},
    {7, 12, true, [](const M& m, int, int) { return Direct(m); }},
    {84, 84, true, [](const M& m, int, int) { return (m.NumberMarks & kSmall) != 0; }},
    {85, 85, true, [](const M& m, int, int) { return (m.NumberMarks & kTall) != 0; }},
    {86, 86, true, [](const M& m, int, int) { return (m.NumberMarks & (kSmall | kTall)) != 0; }},
    {87, 87, true, [](const M& m, int, int) { return m.FourRollCount > 0; }},
    {88, 89, true, [](const M& m, int, int) { return m.Point != 0; }},
    {91, 93, true, [](const M& m, int, int) { return HandHasHadARoll(m); }},
    {84, 89, false, [](const M& m, int, int) { return !m.SmallTallEnabled; }},
};

bool IncreaseRefused(const RulesModel& m, int seat, int bet, Currency newAmount) {
  for (const IncreaseRule& rule : kIncreaseRules) {
    if (!In(bet, rule.first, rule.last)) continue;
    if (rule.onlyAboveCommitted && newAmount <= m.BetCommitted[seat][bet]) continue;
    if (rule.refuses(m, seat, bet)) return true;
  }
  return false;
}

bool IsUnderContract(const RulesModel& m, int bet) {
  return In(bet, 19, 24) || ((bet == 43 || bet == 89) && m.Point != 0);
}

Currency HeldVig(const RulesModel& m, int seat, int bet) {
  if (In(bet, 1, 6)) return m.LayVigHeld[seat][bet - 1];
  if (In(bet, 37, 42)) return m.BuyVigHeld[seat][bet - 37];
  return kZero;
}

bool VigIsUpFront(const RulesModel& m, int bet) {
  return (In(bet, 1, 6) && m.LayVigUpFront) || (In(bet, 37, 42) && m.BuyVigUpFront);
}

void HoldVig(RulesModel& m, int seat, int bet, Currency vig) {
  const Currency difference = vig - HeldVig(m, seat, bet);
  if (In(bet, 1, 6)) m.LayVigHeld[seat][bet - 1] = vig;
  if (In(bet, 37, 42)) m.BuyVigHeld[seat][bet - 37] = vig;
  if (VigIsUpFront(m, bet)) m.OnTableAmount[seat] += difference;
}

Currency MinimumFor(const RulesModel& m, int bet) { return bet < 52 ? m.MinBetMain : m.MinBetProp; }

Currency LimitToMinimum(const RulesModel& m, int bet, Currency amount, Currency change) {
  const Currency minimum = MinimumFor(m, bet);
  const Currency newAmount = amount + change;
  if (newAmount <= kZero || newAmount >= minimum) return change;
  return change < kZero ? -amount : minimum - amount;
}

Currency LimitToMaximum(const RulesModel& m, int seat, int bet, Currency change) {
  const Currency amount = m.BetAmount[seat][bet];
  const Currency maximum = MaxBetFor(m, seat, bet);
  if (amount + change <= maximum) return change;
  const bool contract = bet == 43 || In(bet, 19, 24);
  if (contract && m.BetCommitted[seat][bet] > maximum) return m.BetCommitted[seat][bet] - amount;
  // An increase never becomes a decrease; a decrease goes on to what is allowed.
  return change < kZero ? maximum - amount : std::max(maximum - amount, kZero);
}

Currency ProperOddsAmount(const RulesModel& m, int seat, int bet, Currency change) {
  const Currency amount = m.BetAmount[seat][bet];
  const Currency newAmount = amount + change;
  Currency unit = m.PayoffTable[bet].BetUnit;
  if (m.ProperOddsMode[seat] == 2) {  // in the largest colour of check that the amount holds
    const Currency small = unit;
    for (int n = 1; n <= 5; ++n) {
      const Currency step = Ratio(m.CheckValue[n], small, Unit(m));
      if (step <= newAmount) unit = step;
    }
  }
  if (IsMultiple(newAmount, unit)) return change;
  const Currency lower = Floor(newAmount, unit);
  const Currency higher = lower + unit;
  const bool down = change <= kZero || m.ParlayBias[seat] || higher > MaxBetFor(m, seat, bet);
  return (down ? lower : higher) - amount;
}

bool Affordable(const RulesModel& m, int seat, int bet, Currency change) {
  Currency vigChange;
  if (VigIsUpFront(m, bet))
    vigChange = VigFor(m, bet, m.BetAmount[seat][bet] + change) - HeldVig(m, seat, bet);
  return m.OnTableAmount[seat] + change + vigChange <= m.BankrollCurrent[seat];
}

// The furthest down that a limit may take the bet: what has ridden under a contract stays.
Currency LowestChange(const RulesModel& m, int seat, int bet) {
  const Currency amount = m.BetAmount[seat][bet];
  return IsUnderContract(m, bet) ? std::min(m.BetCommitted[seat][bet] - amount, kZero) : -amount;
}

Currency LimitToBankroll(const RulesModel& m, int seat, int bet, Currency change) {
  const bool moved = m.MovingComeBet && (In(bet, 7, 12) || In(bet, 19, 24));
  if (m.AllowNegativeBankroll[seat] || moved || Affordable(m, seat, bet, change)) return change;
  const Currency amount = m.BetAmount[seat][bet];
  const Currency lowest = LowestChange(m, seat, bet);
  while (change > lowest && !Affordable(m, seat, bet, change)) change = std::max(change - Unit(m), lowest);
  return amount + change < MinimumFor(m, bet) ? std::min(change, lowest) : change;
}

Currency ApplyChange(RulesModel& m, int seat, int bet, Currency change) {
  const bool isNew = m.BetAmount[seat][bet] == kZero && change > kZero;
  const bool called = m.BetWorking[seat][bet] == 2 || m.BetWorking[seat][bet] == -1;
  if (isNew && !called) ResetBetWorking(m, seat, bet);
  m.BetAmount[seat][bet] += change;
  m.OnTableAmount[seat] += change;
  if (m.BetAmount[seat][bet] == kZero && change != kZero) ResetBetWorking(m, seat, bet);
  HoldVig(m, seat, bet, VigFor(m, bet, m.BetAmount[seat][bet]));
  return change;
}

Currency ChangeCheckStack(RulesModel& m, int seat, int bet, Currency request) {
  const Currency limit = Currency::FromRaw(99'999'999'999);
  const Currency old = m.BetAmount[seat][bet];
  m.BetAmount[seat][bet] = std::clamp(old + request, -limit, limit);
  return m.BetAmount[seat][bet] - old;
}

}  // namespace

Currency ChangeBet(RulesModel& m, int seat, int bet, Currency request) {
  if (In(bet, 100, 199)) return ChangeCheckStack(m, seat, bet, request);
  if (!In(bet, 1, kLastBet)) return kZero;
  const Currency amount = m.BetAmount[seat][bet];
  const Currency committed = m.BetCommitted[seat][bet];
  Currency change = request > kZero ? Ceiling(request, Unit(m)) : Floor(request, Unit(m));
  change = std::max(change, -amount);
  bool refused = false;
  if (change < kZero) {
    if (IsUnderContract(m, bet) && amount + change < committed) {
      change = std::min(committed - amount, kZero);
      if (change == kZero) return kZero;
    }
  } else if (IncreaseRefused(m, seat, bet, amount + change)) {
    if (bet == 45 || change > kZero) return kZero;
    refused = true;
    change = kZero;
  }
  if (!refused) {
    change = LimitToMinimum(m, bet, amount, change);
    change = LimitToMaximum(m, seat, bet, change);
    if (m.ProperOddsMode[seat] > 0) change = ProperOddsAmount(m, seat, bet, change);
    // Neither takes a contract bet below what has ridden.
    change = std::max(change, LowestChange(m, seat, bet));
  }
  change = LimitToBankroll(m, seat, bet, change);
  return ApplyChange(m, seat, bet, change);
}

namespace {

void TakeDown(RulesModel& m, int seat, int bet) { ChangeBet(m, seat, bet, -m.BetAmount[seat][bet]); }

}  // namespace

void TakeFullOdds(RulesModel& m, int seat, int bet) {
  TakeDown(m, seat, bet);
  ChangeBet(m, seat, bet, kLargest);
}

namespace {

// Odds after a change of their flat bet.
void FollowFlatBet(RulesModel& m, int seat, int bet) {
  int odds = 0;
  bool automatic = false;
  if (In(bet, 19, 24) || (bet == 43 && m.Point != 0)) {
    odds = bet == 43 ? 44 : bet + 6;
    automatic = m.AutoTakeOdds[seat];
  } else if (In(bet, 7, 12) || (bet == 46 && m.Point != 0)) {
    odds = bet == 46 ? 47 : bet + 6;
    automatic = m.AutoLayOdds[seat];
  }
  if (odds == 0) return;
  if (automatic || m.BetAmount[seat][odds] > MaxBetFor(m, seat, odds)) TakeFullOdds(m, seat, odds);
}

}  // namespace

Currency PlaceBet(RulesModel& m, int seat, int bet, Currency request) {
  const Currency change = ChangeBet(m, seat, bet, request);
  if (change != kZero) FollowFlatBet(m, seat, bet);
  return change;
}

bool CanCallBet(int bet) {
  return In(bet, 1, 6) || In(bet, 13, 18) || In(bet, 25, 42) || bet == 44 || bet == 47 || In(bet, 49, 62) ||
         bet == 90;
}

bool CallBet(RulesModel& m, int seat, int bet, bool on) {
  if (!CanCallBet(bet)) return false;
  int& state = m.BetWorking[seat][bet];
  const int opposite = on ? -1 : 2;
  if (state == opposite) {
    ResetBetWorking(m, seat, bet);
  } else {
    state = on ? 2 : -1;
  }
  return true;
}

void RemoveCall(RulesModel& m, int seat, int bet) { ResetBetWorking(m, seat, bet); }

void ChangeVigRules(RulesModel& m, const VigRules& rules) {
  for (int seat = 1; seat <= 8; ++seat)
    for (int bet = 1; bet <= 42; ++bet) HoldVig(m, seat, bet, kZero);
  m.LayVigRate = rules.layRate;
  m.BuyVigRate = rules.buyRate;
  m.LayVigRound = rules.layRound;
  m.BuyVigRound = rules.buyRound;
  m.LayVigUpFront = rules.layUpFront;
  m.BuyVigUpFront = rules.buyUpFront;
  for (int seat = 1; seat <= 8; ++seat)
    for (int bet = 1; bet <= 42; ++bet) HoldVig(m, seat, bet, VigFor(m, bet, m.BetAmount[seat][bet]));
}

void BuyPlaceBet(RulesModel& m, int seat, int bet) {
  if (!In(bet, 31, 36) || !IsUp(m, seat, bet)) return;
  const Currency amount = m.BetAmount[seat][bet];
  const int state = m.BetWorking[seat][bet];
  TakeDown(m, seat, bet);
  PlaceBet(m, seat, bet + 6, amount);
  if ((state == 2 || state == -1) && IsUp(m, seat, bet + 6)) m.BetWorking[seat][bet + 6] = state;
}

// ---------------------------------------------------------------- what happens to a decided bet

namespace {

// What a player adds to a decided bet. One that the rules refuse is one of nothing: the bet stays, as far as
// it can be paid.
void Press(RulesModel& m, int seat, int bet, Currency request) {
  const Currency wanted = m.BetAmount[seat][bet] + Ceiling(request, Unit(m));
  const bool refused = request > kZero && IncreaseRefused(m, seat, bet, wanted);
  ChangeBet(m, seat, bet, refused ? kZero : request);
}

void ComputePressOptions(RulesModel& m, int seat, int bet) {
  const Currency amount = m.BetAmount[seat][bet];
  for (int n = 5; n >= 1; --n) {
    m.PressUnit = Ratio(m.CheckValue[n], m.PayoffTable[bet].BetUnit, Unit(m));
    if (m.PressUnit < amount && IsMultiple(amount, m.PressUnit)) return;
  }
}

// What an adjust slot's value means in dollars; of a percentage, the fraction.
Currency SlotValue(const RulesModel& m, int seat, int bet, int slot) {
  const Currency value = m.AdjustValue[seat][slot];
  const int unit = m.AdjustUnit[seat][slot];
  if (unit == 1) return Divide(value, Currency::Dollars(100));
  if (unit == 0) return value;
  const Currency step = Ratio(m.CheckValue[unit - 1], m.PayoffTable[bet].BetUnit, Unit(m));
  return Multiply(value, step);
}

void SameBetAdjusted(RulesModel& m, int seat, int bet, int slot) {
  const Currency before = m.BetBeforeRoll[seat][bet];
  const bool plain = m.AdjustKind[seat][slot] >= 2 && m.AdjustUnit[seat][slot] >= 2;
  const Currency value = plain ? m.AdjustValue[seat][slot] : SlotValue(m, seat, bet, slot);
  const Currency step = m.AdjustUnit[seat][slot] == 1 ? Multiply(before, value) : value;
  const int kind = m.AdjustKind[seat][slot];
  Currency request = kind == 0 ? step : -step;
  if (kind == 2) request = Multiply(before, value) - before;
  if (kind == 3) request = value == kZero ? kZero : Divide(before, value) - before;
  Press(m, seat, bet, request);
}

void BetFixed(RulesModel& m, int seat, int bet, int slot) {
  const Currency value =
      m.AdjustUnit[seat][slot] >= 2 ? SlotValue(m, seat, bet, slot) : m.AdjustValue[seat][slot];
  TakeDown(m, seat, bet);
  ChangeBet(m, seat, bet, value);
}

void BetRemainder(RulesModel& m, int seat, int bet) {
  TakeDown(m, seat, bet);
  ChangeBet(m, seat, bet, m.NetPayoff + m.BetBeforeRoll[seat][bet]);
}

void Parlay(RulesModel& m, int seat, int bet) {
  m.ParlayBias[seat] = true;
  if (m.NetPayoff != kZero) {
    Press(m, seat, bet, m.NetPayoff);
  } else {
    TakeFullOdds(m, seat, bet);
  }
  m.ParlayBias[seat] = false;
}

void HandleWin(RulesModel& m, int seat, int bet) {
  const int choice = m.WinHandling[seat];
  if (m.BetFinished || choice == 1) return TakeDown(m, seat, bet);
  if (choice == 3) return Press(m, seat, bet, m.PressUnit);
  if (choice == 4) return Press(m, seat, bet, m.BetAmount[seat][bet]);
  if (choice == 5) return Parlay(m, seat, bet);
  if (choice == 6) return SameBetAdjusted(m, seat, bet, 4);
  if (choice == 7) return BetFixed(m, seat, bet, 6);
  ChangeBet(m, seat, bet, kZero);  // 2, and 0 without a dialog
}

void HandleLoss(RulesModel& m, int seat, int bet) {
  const int choice = m.LoseHandling[seat];
  if (m.BetFinished || choice <= 1) return TakeDown(m, seat, bet);  // also 0, without a dialog
  if (choice == 3) return BetRemainder(m, seat, bet);
  if (choice == 4) return Press(m, seat, bet, m.PressUnit);
  if (choice == 5) return Press(m, seat, bet, m.BetAmount[seat][bet]);
  if (choice == 6) return SameBetAdjusted(m, seat, bet, 5);
  if (choice == 7) return BetFixed(m, seat, bet, 7);
  ChangeBet(m, seat, bet, kZero);
}

void CloseVig(RulesModel& m, int seat, int bet, bool won) {
  if (!VigIsUpFront(m, bet)) return;
  if (won) m.NetPayoff += HeldVig(m, seat, bet);
  HoldVig(m, seat, bet, kZero);
}

// ---------------------------------------------------------------- settling

int FieldRowOf(int die1, int die2) {
  struct Row {
    int faces, row;
  };
  static const Row rows[] = {{11, 1},  {12, 2},  {13, 3},  {22, 4},  {14, 5},  {23, 6},  {15, 7},
                             {24, 8},  {33, 9},  {16, 10}, {25, 11}, {34, 12}, {26, 13}, {35, 14},
                             {44, 15}, {36, 16}, {45, 17}, {46, 18}, {55, 19}, {56, 20}, {66, 21}};
  const int faces = std::min(die1, die2) * 10 + std::max(die1, die2);
  for (const Row& row : rows)
    if (row.faces == faces) return row.row;
  std::abort();
}

int MidwayRowOf(int die1, int total) {
  if (total == 6) return die1 == 3 ? 1 : 2;
  if (total == 7) return 3;
  return die1 == 4 ? 5 : 4;
}

// The bet whose record pays a share of 62, 63 or 64 on this total.
int ShareRecord(int bet, int total) {
  if (bet == 62) return total == 11 ? 59 : 61;
  return total <= 3 ? 54 + total : total == 7 ? 58 : 48 + total;
}

Payoff WinnersRecord(const RulesModel& m, int bet, int code) {
  const int at = PositionOf(m.PointBeforeRoll);
  const bool comeOut = m.PointBeforeRoll == 0;
  if (bet == 43) return m.PayoffTable[comeOut ? 45 : 19 + at];
  if (bet == 44) return m.PayoffTable[25 + at];
  if (bet == 46) return m.PayoffTable[comeOut ? 48 : 7 + at];
  if (bet == 47) return m.PayoffTable[13 + at];
  if (In(bet, 62, 64)) return m.PayoffTable[ShareRecord(bet, m.RollTotal)];
  if (bet == 89) return m.SevenPointSevenPayoffs[code];
  if (bet == 90) return m.MidwayPayoffs[MidwayRowOf(m.Die1, m.RollTotal)];
  if (bet == 91) return m.SharpShooterPayoffs[std::min(m.SharpShooterCount + 1, 11)];
  if (bet == 92) return m.RideTheLinePayoffs[std::min(m.RideTheLineCount + 1, 12)];
  if (bet == 93) return m.FirePayoffs[m.FireCount];
  return m.PayoffTable[bet];
}

void ComputePayoff(RulesModel& m, int seat, int bet, int code, Currency amount) {
  Payoff record = To(-1, 1);
  if (code > 0) record = WinnersRecord(m, bet, code);
  if (bet == 49) record = m.FieldPayoffs[FieldRowOf(m.Die1, m.Die2)];
  if (code > 0 && In(bet, 62, 64)) {
    const Currency share = Divide(amount, Currency::Dollars(ShareCount(bet)));
    m.GrossPayoff = Ratio(share, record.PayTo, record.PayPer) - (amount - share);
  } else {
    m.GrossPayoff = Ratio(amount, record.PayTo, record.PayPer);
  }
  if (m.GrossPayoff > kZero || VigIsUpFront(m, bet)) m.GrossPayoff -= HeldVig(m, seat, bet);
  m.NetPayoff = TimesCount(Unit(m), WholePart(Divide(m.GrossPayoff, Unit(m))).raw / Currency::kPerDollar);
}

bool IsOverAfter(const RulesModel& m, int seat, int bet) {
  if (bet == 45 || bet == 48) return m.RollTotal == 7;
  if (bet == 44 || bet == 47 || In(bet, 7, 18)) return true;
  if (In(bet, 19, 24)) return !m.AllowPutBets;
  if (In(bet, 25, 30)) return !IsUp(m, seat, bet - 6);
  if (bet == 84) return (m.NumberMarks & kSmall) != 0;
  if (bet == 85) return (m.NumberMarks & kTall) != 0;
  if (bet == 88 || bet == 89) return m.Point != 0;
  return false;
}

// Odds that were off as their flat bet was decided.
void SettleOffOdds(RulesModel& m, int seat, int bet) {
  const int flat = FlatBetOf(bet);
  m.NetPayoff = kZero;
  m.BetFinished = !IsUp(m, seat, flat) || !m.AllowPutBets || bet == 44 || bet == 47;
  ComputePressOptions(m, seat, bet);
  (m.BetStreak[seat][flat] < 2 ? HandleLoss : HandleWin)(m, seat, bet);
}

void SettleBet(RulesModel& m, int seat, int code, int bet) {
  if (m.BetAmount[seat][bet] == kZero) return;
  if (m.BetWorking[seat][bet] <= 0) {
    if (code == 2 || code == -2) {
      if (bet != 89) SettleOffOdds(m, seat, bet);
    }
    return;
  }
  ComputePayoff(m, seat, bet, code, m.BetAmount[seat][bet]);
  if (m.NetPayoff == kZero) return;
  if (In(bet, 19, 24)) m.ComeTravelAmount[seat][bet - 19] = kZero;
  m.Decisions.push_back({seat, bet, m.NetPayoff});
  SetBankroll(m, seat, m.BankrollCurrent[seat] + m.NetPayoff);
  m.BetCommitted[seat][bet] = kZero;
  m.BetFinished = IsOverAfter(m, seat, bet);
  const bool won = m.NetPayoff > kZero;
  int& streak = m.BetStreak[seat][bet];
  streak = won ? std::max(streak, 0) + 1 : std::min(streak, 0) - 1;
  CloseVig(m, seat, bet, won);
  ComputePressOptions(m, seat, bet);
  (won ? HandleWin : HandleLoss)(m, seat, bet);
}

void SettleForAll(RulesModel& m, int code, int bet) {
  for (int seat : kPayOrder) SettleBet(m, seat, code, bet);
}

enum class Visit { Losers, Winners, Both };

// The bets of an order, each settled as the roll does it, if that is what this pass is about.
void VisitAll(RulesModel& m, const VisitOrder& order, Visit visit) {
  const RollCase roll{m.Die1, m.Die2, m.PointBeforeRoll, m.PointTwoRollsAgo, m.BarNumber};
  for (const std::vector<int>& group : order)
    for (int seat : kPayOrder) {
      const Currency flat = m.BetAmount[seat][group[0]];
      for (int bet : group) {
        const int code = EffectOf(bet, roll);
        if (code < 0 && visit != Visit::Winners) SettleBet(m, seat, code, bet);
        if (code > 0 && visit != Visit::Losers) SettleBet(m, seat, code, bet);
      }
      if (group.size() > 1 && m.BetAmount[seat][group[0]] != flat) FollowFlatBet(m, seat, group[0]);
    }
}

void TakeOffNumber(RulesModel& m, int seat, int comeBet) {
  TakeDown(m, seat, comeBet + 12);
  TakeDown(m, seat, comeBet + 18);
}

void MoveComeBet(RulesModel& m, int seat, int fromBet, int toBet) {
  const Currency amount = m.BetAmount[seat][fromBet];
  if (amount == kZero) return;
  ChangeBet(m, seat, fromBet, -amount);
  m.MovingComeBet = true;
  PlaceBet(m, seat, toBet, amount);
  m.MovingComeBet = false;
  m.BetCommitted[seat][toBet] = amount;
  if (In(toBet, 19, 24)) {
    m.ComeTravelAmount[seat][toBet - 19] = amount;
    if (m.AutoDownPlace[seat]) TakeOffNumber(m, seat, toBet);
  }
}

void MoveToNumber(RulesModel& m) {
  const int at = PositionOf(m.RollTotal);
  for (int seat : kPayOrder) MoveComeBet(m, seat, 45, 19 + at);
  for (int seat : kPayOrder) MoveComeBet(m, seat, 48, 7 + at);
}

void LosingPass(RulesModel& m) {
  const Orders& orders = AllOrders();
  if (m.RollTotal == m.PointBeforeRoll) VisitAll(m, orders.pointLost, Visit::Losers);
  VisitAll(m, orders.losers[m.RollTotal], Visit::Losers);
  if (m.RollTotal == 7 && m.SmallTallEnabled) {
    m.NumberMarks = 0;
    for (int bet = 84; bet <= 87; ++bet) SettleForAll(m, -1, bet);
  }
  VisitAll(m, orders.always[0], Visit::Both);
  VisitAll(m, orders.always[1], Visit::Losers);
  VisitAll(m, orders.always[2], Visit::Both);
  VisitAll(m, orders.always[3], Visit::Losers);
  if (m.SmallTallEnabled) VisitAll(m, orders.pointBets, Visit::Losers);
}

void PointIsMade(RulesModel& m) {
  VisitAll(m, AllOrders().pointMade, Visit::Winners);
  const int mark = 1 << PositionOf(m.PointBeforeRoll);
  if ((m.FireMarks & mark) == 0) ++m.FireCount;
  m.FireMarks |= mark;
  ++m.SharpShooterCount;
  ++m.RideTheLineCount;
}

void SettleMarks(RulesModel& m) {
  const bool makeAllUp = AnySeatHas(m, 86);
  if (m.NumberMarks == (kSmall | kTall)) {
    m.NumberMarks = 0;
    for (int bet = 84; bet <= 86; ++bet) SettleForAll(m, 1, bet);
  } else if ((m.NumberMarks & kSmall) == kSmall) {
    if (!makeAllUp) m.NumberMarks &= ~kSmall;
    SettleForAll(m, 1, 84);
  } else if ((m.NumberMarks & kTall) == kTall) {
    if (!makeAllUp) m.NumberMarks &= ~kTall;
    SettleForAll(m, 1, 85);
  }
  if (m.FourRollCount == 4) {
    m.FourRollCount = 0;
    SettleForAll(m, 1, 87);
  }
}

void WinningPass(RulesModel& m) {
  const bool natural = m.PointBeforeRoll == 0 && (m.RollTotal == 7 || m.RollTotal == 11);
  const bool sevenOut = m.PointBeforeRoll != 0 && m.RollTotal == 7;
  if (m.RollTotal == m.PointBeforeRoll) PointIsMade(m);
  VisitAll(m, AllOrders().winners[m.RollTotal], Visit::Winners);
  if (IsBoxNumber(m.RollTotal)) MoveToNumber(m);
  if (natural) ++m.RideTheLineCount;
  if (m.RollTotal == 7 && m.SmallTallEnabled) VisitAll(m, AllOrders().pointBets, Visit::Winners);
  if (sevenOut) {
    SettleForAll(m, 1, 93);
    m.FireMarks = m.FireCount = 0;
  }
  if (m.SmallTallEnabled) SettleMarks(m);
  if (sevenOut) {
    SettleForAll(m, 1, 91);
    m.SharpShooterCount = 0;
    SettleForAll(m, 1, 92);
    m.RideTheLineCount = 0;
  }
}

// ---------------------------------------------------------------- statistics of a roll

// kind: 0 a come-out roll, 1 a pass, 2 a miss.
void CountLine(RulesModel& m, int kind) {
  int* running[3] = {&m.HandComeoutRolls, &m.HandPasses, &m.HandMisses};
  int* most[3] = {m.MostComeoutRollsInHand, m.MostPassesInHand, m.MostMissesInHand};
  ++*running[kind];
  for (int scope : kScopesKept)
    for (int seat : {0, m.HandSeat}) {
      int& highest = most[kind][scope * 9 + seat];
      highest = std::max(highest, *running[kind]);
    }
}

void EndHandStatistics(RulesModel& m) {
  for (int seat = 0; seat <= 8; ++seat) {
    const int last = 9 + seat;
    if (seat > 0 && !m.Occupied[seat]) continue;
    for (int* most : {m.MostComeoutRollsInHand, m.MostPassesInHand, m.MostMissesInHand}) {
      most[last] = most[seat];
      most[seat] = 0;
    }
    if (seat == 0) continue;
    m.BankrollBeginning[last] = m.BankrollBeginning[seat];
    m.BankrollHigh[last] = m.BankrollHigh[seat];
    m.BankrollLow[last] = m.BankrollLow[seat];
    m.BankrollCurrent[last] = m.BankrollCurrent[seat];
    m.BankrollBeginning[seat] = m.BankrollHigh[seat] = m.BankrollLow[seat] = m.BankrollCurrent[seat];
  }
  m.HandRolls = m.HandComeoutRolls = m.HandPasses = m.HandMisses = 0;
}

// ---------------------------------------------------------------- the roll

void MakeMarks(RulesModel& m) {
  const bool smallWanted = AnySeatHas(m, 84) || AnySeatHas(m, 86);
  const bool tallWanted = AnySeatHas(m, 85) || AnySeatHas(m, 86);
  if (!smallWanted) m.NumberMarks &= ~kSmall;
  if (!tallWanted) m.NumberMarks &= ~kTall;
  if (smallWanted && m.RollTotal < 7) m.NumberMarks |= 1 << m.RollTotal;
  if (tallWanted && m.RollTotal > 7) m.NumberMarks |= 1 << m.RollTotal;
  m.FourRollCount = AnySeatHas(m, 87) && m.RollTotal != 7 ? m.FourRollCount + 1 : 0;
}

void MovePoint(RulesModel& m) {
  const int total = m.RollTotal;
  if (m.Point == 0) {
    CountLine(m, 0);
    if (total == 7 || total == 11) CountLine(m, 1);
    if (total == 2 || total == 3 || total == 12) CountLine(m, 2);
    if (IsBoxNumber(total)) m.Point = total;
  } else if (total == m.Point || total == 7) {
    CountLine(m, total == 7 ? 2 : 1);
    m.LastPoint = m.Point;
    m.Point = 0;
  }
}

void FollowNewPoint(RulesModel& m) {
  for (int seat = 0; seat <= 8; ++seat)
    for (int bet = 1; bet <= kLastBet; ++bet) {
      int& state = m.BetWorking[seat][bet];
      if (m.Point != 0 && state == 0) state = 1;
      if (m.Point == 0 && state != 2 && state != -1) state = m.BetDefaultWorking[seat][bet];
    }
  if (m.Point == 0) return;
  const int at = PositionOf(m.Point);
  m.PayoffTable[47] = m.PayoffTable[13 + at];
  m.PayoffTable[44] = m.PayoffTable[25 + at];
  for (int seat = 1; seat <= 8; ++seat) {
    if (!IsUp(m, seat, 43)) continue;
    if (m.AutoTakeOdds[seat]) TakeFullOdds(m, seat, 44);
    if (m.AutoDownPlace[seat]) TakeOffNumber(m, seat, 19 + at);
  }
  for (int seat = 1; seat <= 8; ++seat)
    if (IsUp(m, seat, 46) && m.AutoLayOdds[seat]) TakeFullOdds(m, seat, 47);
}

bool MayRoll(const RulesModel& m) {
  for (int seat = 1; seat <= 8; ++seat)
    if (Abs(m.BankrollCurrent[seat]) > kLargest) return false;
  if (m.ShooterBetRule == 0) return true;
  if (OccupiedSeats(m) == 0) return false;
  if (m.ShooterBetRule == 1) return IsUp(m, m.ShooterSeat, 43) || IsUp(m, m.ShooterSeat, 46);
  for (int bet = 1; bet <= kLastBet; ++bet)
    if (IsUp(m, m.ShooterSeat, bet)) return true;
  return false;
}

}  // namespace

bool Roll(RulesModel& m, int die1, int die2) {
  if (!MayRoll(m)) return false;
  m.Decisions.clear();
  for (int seat = 1; seat <= 8; ++seat) {
    m.RailAmount[seat] = m.BankrollCurrent[seat] - m.OnTableAmount[seat];
    m.BankrollBeforeRoll[seat] = m.BankrollCurrent[seat];
    for (int bet = 1; bet <= 100; ++bet) {
      m.BetBeforeRoll[seat][bet] = m.BetAmount[seat][bet];
      if (bet <= 99) m.BetCommitted[seat][bet] = m.BetAmount[seat][bet];
    }
  }
  m.PointTwoRollsAgo = m.PointBeforeRoll;
  m.PointBeforeRoll = m.Point;
  m.Die1 = die1;
  m.Die2 = die2;
  m.RollTotal = die1 + die2;
  ++m.HandRolls;
  if (m.SmallTallEnabled) MakeMarks(m);
  MovePoint(m);
  LosingPass(m);
  WinningPass(m);
  for (int seat = 1; seat <= 8; ++seat) {
    for (int scope : kScopesKept) {
      const int slot = scope * 9 + seat;
      m.BankrollHigh[slot] = std::max(m.BankrollHigh[slot], m.BankrollCurrent[slot]);
      m.BankrollLow[slot] = std::min(m.BankrollLow[slot], m.BankrollCurrent[slot]);
    }
  }
  if (m.RollTotal == 7 && m.PointBeforeRoll != 0) {
    EndHandStatistics(m);
    m.PreviousHandSeat = m.HandSeat;
    if (m.ShooterSeat != m.HandSeat) {
      m.HandSeat = m.ShooterSeat;
    } else {
      PassDice(m, 0);
    }
  }
  if (m.Point != m.PointBeforeRoll) FollowNewPoint(m);
  return true;
}

}  // namespace tessaryn::model
