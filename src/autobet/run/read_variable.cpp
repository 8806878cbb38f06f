#include "autobet/run/read_variable.h"

#include <cmath>
#include <iterator>

#include "autobet/language/language.h"
#include "autobet/language/roll_item_of.h"
#include "autobet/language/script_text.h"
#include "autobet/run/operands.h"
#include "autobet/run/read_bet.h"
#include "autobet/run/script_errors.h"
#include "base/bet_catalogue.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "rules/comps.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

double Flag(bool on) { return on ? -1 : 0; }

// --- The table's own state.

bool ReadTableState(Game& game, int code, double& value) {
  const TableState& table = game.table;
  const Settings& settings = game.settings;
  const bool wasComeOut = table.PointBeforeRoll == 0;
  switch (code) {
    case 3000:
      value = Flag(game.autobet.ScriptInitializing);
      return true;
    case 3001:
      value = Flag((game.autobet.BeginningNewSession >> game.autobet.CurrentAutobettor & 1) != 0);
      return true;
    case 3002:
      value = Flag(HandRolls(game.stats) == 0);
      return true;
    case 3005:
      value = Flag(game.autobet.RollFileEndReached);
      return true;
    case 3006:
      value = IsRollFileOpen(game.rollFile) ? game.rollFile.RollFileCursor : 0;
      return true;
    case 3007:
      value = RollFileLength(game.rollFile);
      return true;
    case 3200:
      value = table.ShooterSeat;
      return true;
    case 3201:
      value = table.PreviousHandSeat;
      return true;
    case 3202:
      value = table.HandSeat;
      return true;
    case 3203:
      value = table.SelectedSeat;
      return true;
    case 3204:
      value = game.autobet.CurrentAutobettor;
      return true;
    case 3300:
      value = game.stats.HandPasses;
      return true;
    case 3301:
      value = game.stats.HandMisses;
      return true;
    case 3500:
      value = table.Point;
      return true;
    case 3501:
      value = table.LastPoint;
      return true;
    case 3502:
      value = table.PointBeforeRoll;
      return true;
    case 3510:
      value = table.RollTotal;
      return true;
    case 3511:
      value = table.Die1 * 10 + table.Die2;
      return true;
    case 3512:
      value = table.Die1;
      return true;
    case 3513:
      value = table.Die2;
      return true;
    case 3603:
      value = settings.SimRollRate.ToDouble();
      return true;
    case 3610:
      value = settings.MinBetMain.ToDouble();
      return true;
    case 3611:
      value = settings.MaxBet.ToDouble();
      return true;
    case 3655:
      value = game.generators.RngLastSeed;
      return true;
    case 3672:
      value = game.generators.GeneratorIndex + 1;
      return true;
    case 3691:
      value = settings.CompRate.ToDouble() / 100;
      return true;
    case 3693:
      value = game.host->DateTimeNumber();
      return true;
    case 3694:
      value = std::floor(game.host->DateTimeNumber());
      return true;
    case 3695: {
      const double now = game.host->DateTimeNumber();
      value = now - std::floor(now);
      return true;
    }
    case 3696:
      value = game.host->SecondsSinceMidnight();
      return true;
    case 3697:
      value = game.autobet.Answer;
      return true;
    case 3698:
      value = Rnd(game.generators);
      return true;
    case 3700:
    case 3704:
      value = Flag(table.Point == 0);
      return true;
    case 3705:
      value = Flag(table.Point != 0);
      return true;
    case 3706:
      value = Flag(wasComeOut && SessionRolls(game.stats) > 0);
      return true;
    case 3707:
      value = Flag(!wasComeOut);
      return true;
    case 3708:
      value = Flag(!wasComeOut && table.RollTotal == 7);
      return true;
    case 3709:
      value = Flag(!wasComeOut && table.Point == 0);
      return true;
    case 3710:
      value = Flag(table.Point != 0);
      return true;
    case 3711:
      value = Flag(table.Point == 0);
      return true;
    default:
      value = 0;
      return true;
  }
}

// --- A seat's own.

double SeatValue(Game& game, int code, int seat) {
  const TableState& table = game.table;
  const Handling& handling = table.seats[seat].handling;
  switch (code) {
    case 651:
      return (table.BankrollCurrent[seat] - table.seats[seat].OnTableAmount).ToDouble();
    case 655:
      return table.seats[seat].RailAmount.ToDouble();
    case 670:
      return handling.WinHandling + 1;
    case 671:
      return handling.LoseHandling + 1;
    case 700:
      return Flag(handling.AutoTakeOdds);
    case 701:
      return Flag(handling.AutoLayOdds);
    case 702:
      return Flag(handling.AutoDownPlace);
    case 703:
      return Flag(handling.AutoPassDice);
    default:
      break;
  }
  if (code >= 100 && code <= 199) return table.BetAmount(seat, code).ToDouble();
  return 0;
}

// --- Hands, hours and bankrolls by scope.

double Sum(const Statistics& stats, int scope, int seat, NumberKind kind, int first, int last) {
  double sum = 0;
  for (int number = first; number <= last; ++number)
    sum += stats.NumberCounts[Slot(scope, seat)][number][kind];
  return sum;
}

double Percent(double part, double whole) { return whole == 0 ? 0 : 100 * part / whole; }
double Ratio(double part, double whole) { return whole == 0 ? 0 : part / whole; }

double ScopeValue(const Game& game, int code, int scope, int seat) {
  const Statistics& stats = game.stats;
  const int slot = Slot(scope, seat);
  const double hands = stats.HandCount[slot];
  switch (code) {
    case 1100:
      return FigureComps(game, scope, seat).compAmount.ToDouble();
    case 1200:
      return SimulatedHours(game, scope, seat);
    case 1300:
      return stats.BankrollBeginning[slot].ToDouble();
    case 1301:
      return BankrollOf(game, scope, seat).ToDouble();
    case 1302:
      return stats.BankrollHigh[slot].ToDouble();
    case 1303:
      return stats.BankrollLow[slot].ToDouble();
    case 1500:
      return hands;
    case 1501:
      return stats.MostRollsInHand[slot];
    case 1502:
      return Ratio(static_cast<double>(RollCount(stats, scope, seat, 0)), hands);
    case 1503:
      return stats.MostComeoutRollsInHand[slot];
    case 1504:
      return Ratio(Sum(stats, scope, seat, kComeoutRolls, 2, 12), hands);
    case 1505:
      return stats.MostPassesInHand[slot];
    case 1506:
      return Ratio(Sum(stats, scope, seat, kPasses, 2, 12), hands);
    case 1507:
      return stats.MostMissesInHand[slot];
    case 1508:
      return Ratio(Sum(stats, scope, seat, kMisses, 2, 12), hands);
    default:
      return 0;
  }
}

// --- Counts of dice.

double Probability(const Game& game, int item, bool skewed) {
  return static_cast<double>(ProbabilityOfEvent(game.percentage, item, skewed));
}

// What a count of dice gives of an item. kind: code - 2501, or the function's code - 31.
double DiceCount(const Game& game, int kind, int scope, int seat, int item) {
  const Statistics& stats = game.stats;
  const double rolls = static_cast<double>(RollCount(stats, scope, seat, 0));
  const bool skewed = game.percentage.PercentageDiceActive;
  switch (kind) {
    case 0:
      return Probability(game, item, skewed);
    case 1:
      return rolls * Probability(game, item, skewed) / 100;
    case 2:
      return Percent(static_cast<double>(RollCount(stats, scope, seat, item)), rolls);
    case 3:
      return static_cast<double>(RollCount(stats, scope, seat, item));
    case 4:
      return static_cast<double>(RollsSinceLast(stats, item));
    case 5:
      return Probability(game, item, false);
    case 6:
      return rolls * Probability(game, item, false) / 100;
    case 7:
      return rolls * Probability(game, item, true) / 100;
    default:
      return Probability(game, item, true);
  }
}

// --- Come-out rolls, passes and misses.

struct NumberSet {
  bool numbers[13] = {};
};

NumberSet SetOfMeasure(double measure) {
  NumberSet set;
  for (int number = 2; number <= 12; ++number) {
    const bool box = IsBoxNumber(number);
    if (measure == kMeasureTotal || measure == number || (measure == kMeasureNaturals && !box) ||
        (measure == kMeasurePoints && box))
      set.numbers[number] = true;
  }
  return set;
}

double CountOf(const Statistics& stats, int scope, int seat, NumberKind kind, const NumberSet& set) {
  double sum = 0;
  for (int number = 2; number <= 12; ++number)
    if (set.numbers[number]) sum += stats.NumberCounts[Slot(scope, seat)][number][kind];
  return sum;
}

// kind: 0 and 1 come-out rolls, 2 and 3 passes, 4 and 5 misses; the odd ones in percent.
double LineCount(const Game& game, int kind, int scope, int seat, double measure) {
  const Statistics& stats = game.stats;
  const auto number = static_cast<NumberKind>(kind / 2);
  const double count = CountOf(stats, scope, seat, number, SetOfMeasure(measure));
  if (kind % 2 == 0) return count;
  // A part is one of its own column; the column itself is one of all rolls, or of all decisions.
  if (measure != kMeasureTotal) return Percent(count, Sum(stats, scope, seat, number, 2, 12));
  if (number == kComeoutRolls) return Percent(count, static_cast<double>(RollCount(stats, scope, seat, 0)));
  return Percent(count, Sum(stats, scope, seat, kPasses, 2, 12) + Sum(stats, scope, seat, kMisses, 2, 12));
}

double PointCount(const Game& game, bool percent, int scope, int seat, int metric, double measure) {
  const Statistics& stats = game.stats;
  const NumberSet set = SetOfMeasure(measure == kMeasureTotal ? kMeasurePoints : measure);
  const NumberSet all = SetOfMeasure(kMeasurePoints);
  const auto kind = static_cast<NumberKind>(metric - kMetricEstablished);
  const double count = CountOf(stats, scope, seat, kind, set);
  if (!percent) return count;
  if (measure != kMeasureTotal) return Percent(count, CountOf(stats, scope, seat, kind, all));
  if (kind == kComeoutRolls) return Percent(count, Sum(stats, scope, seat, kComeoutRolls, 2, 12));
  return Percent(count,
                 CountOf(stats, scope, seat, kPasses, all) + CountOf(stats, scope, seat, kMisses, all));
}

// --- References.

double ScopedVariable(const Game& game, const Reference& reference, int seat) {
  const int code = reference.code;
  if (code < 2000) return ScopeValue(game, code, reference.scope, seat);
  if (code < 2600) return DiceCount(game, code - 2501, reference.scope, seat, reference.item);
  if (code < 3000) return LineCount(game, code - 2600, reference.scope, seat, reference.measure);
  return PointCount(game, code == 4607, reference.scope, seat, reference.metric, reference.measure);
}

// Of all players: what is a seat's own is added up, what the table counts is the table's.
double OfAllPlayers(Game& game, const Reference& reference) {
  const int code = reference.code;
  if (code >= 1500) return ScopedVariable(game, reference, 0);
  double sum = 0;
  for (int i = 0; i < game.table.OccupiedSeats; ++i) {
    const int seat = game.table.Seated[i];
    sum += code < 1000 ? SeatValue(game, code, seat) : ScopedVariable(game, reference, seat);
  }
  return sum;
}

bool ReadVariable(Game& game, const Reference& reference, int seat, double& value) {
  const int code = reference.code;
  if (code >= 3000 && code < 4000) return ReadTableState(game, code, value);
  if (reference.player == PlayerChoice::kAll) {
    value = OfAllPlayers(game, reference);
    return true;
  }
  if (IsBetVariable(code)) return ReadBet(game, reference, seat, code, value);
  value = code < 1000 ? SeatValue(game, code, seat) : ScopedVariable(game, reference, seat);
  return true;
}

bool ReadCountFunction(Game& game, const Reference& reference, int seat, double number, double& value) {
  const int code = reference.code;
  if (code >= 46) {
    const bool box = number == std::floor(number) && number >= 4 && number <= 10 && number != 7;
    if (!box) return ScriptFails(game, kErrorPoints);
    value = PointCount(game, code == 47, reference.scope, seat, reference.metric, number);
    return true;
  }
  const int item = RollItemOf(number);
  if (item < 0 || (code >= 40 && number != std::floor(number))) return ScriptFails(game, kErrorRolls);
  value = code < 40 ? DiceCount(game, code - 31, reference.scope, seat, item)
                    : LineCount(game, code - 40, reference.scope, seat, number);
  return true;
}

struct BetFamily {
  int firstBet;
  int numbers[6];
  int count;
};

constexpr BetFamily kFamilies[] = {
    {0, {}, 0},
    {kLay4, {4, 5, 6, 8, 9, 10}, 6},
    {kDontCome4, {4, 5, 6, 8, 9, 10}, 6},
    {kDontComeOdds4, {4, 5, 6, 8, 9, 10}, 6},
    {kCome4, {4, 5, 6, 8, 9, 10}, 6},
    {kComeOdds4, {4, 5, 6, 8, 9, 10}, 6},
    {kPlace4, {4, 5, 6, 8, 9, 10}, 6},
    {kBuy4, {4, 5, 6, 8, 9, 10}, 6},
    {kBig6, {6, 8}, 2},
    {kHard4, {4, 6, 8, 10}, 4},
};
constexpr int kHopFunction = 10;

}  // namespace

bool SeatOfOperand(Game& game, const PreparedProgram& program, Operand operand, int& seat) {
  if (!operand.text) {
    const double number = NumberOf(program, operand);
    if (number != std::floor(number) || !(number >= 1 && number <= kSeats))
      return ScriptFails(game, kErrorPlayer);
    seat = static_cast<int>(number);
    return true;
  }
  const std::string name = Lowered(Trimmed(program.texts[static_cast<std::size_t>(operand.place)]));
  for (int i = 1; i <= kSeats && !name.empty(); ++i) {
    if (Lowered(Trimmed(game.table.seats[i].SeatName)) != name) continue;
    seat = i;
    return true;
  }
  return ScriptFails(game, kErrorPlayer);
}

bool PlayerOf(Game& game, const PreparedProgram& program, const Reference& reference, int& seat) {
  const TableState& table = game.table;
  switch (reference.player) {
    case PlayerChoice::kSeat:
      seat = reference.seat;
      return true;
    case PlayerChoice::kAutobettor:
      seat = game.autobet.CurrentAutobettor;
      return true;
    case PlayerChoice::kShooter:
      seat = table.ShooterSeat;
      return true;
    case PlayerChoice::kLastShooter:
      seat = table.PreviousHandSeat;
      return true;
    case PlayerChoice::kOriginalShooter:
      seat = table.HandSeat;
      return true;
    case PlayerChoice::kSelected:
      seat = table.SelectedSeat;
      return true;
    case PlayerChoice::kComputed:
      return SeatOfOperand(game, program, reference.playerOperand, seat);
    default:
      seat = 0;
      return true;
  }
}

bool BetOfFunction(Game& game, int function, double number, int& bet) {
  if (function == kHopFunction) {
    int die1 = 0;
    int die2 = 0;
    bet = FacesOf(number, die1, die2) ? HopBet(die1, die2) : 0;
    return bet != 0 || ScriptFails(game, function);
  }
  const BetFamily& family = kFamilies[function];
  for (int i = 0; i < family.count; ++i) {
    if (family.numbers[i] != number) continue;
    bet = family.firstBet + i;
    return true;
  }
  return ScriptFails(game, function);
}

bool VariableOfFunction(Game& game, int function, double number, int& code) {
  code = 0;
  if (IsBetFunction(function)) return BetOfFunction(game, function, number, code);
  if (function != 21 && function != 800) return true;
  if (number != std::floor(number) || !(number >= 0 && number < kCheckStacks))
    return ScriptFails(game, function == 21 ? kErrorCheckStack : kErrorCheckStackName);
  code = (function == 21 ? kFirstCheckStack : 800) + static_cast<int>(number);
  return true;
}

bool ReadNumberReference(Game& game, const PreparedProgram& program, const Reference& reference,
                         double& value) {
  int seat = 0;
  if (!PlayerOf(game, program, reference, seat)) return false;
  if (!reference.function) return ReadVariable(game, reference, seat, value);
  const double number = NumberOf(program, reference.argument);
  const int code = reference.code;
  if (code > 30) return ReadCountFunction(game, reference, seat, number, value);
  int variable = 0;
  if (!VariableOfFunction(game, code, number, variable)) return false;
  if (IsBetVariable(variable)) return ReadBet(game, reference, seat, variable, value);
  Reference stack = reference;
  stack.code = variable;
  return ReadVariable(game, stack, seat, value);
}

bool ReadTextVariable(Game& game, const PreparedProgram& program, const Reference& reference,
                      std::string& text) {
  int seat = 0;
  if (!PlayerOf(game, program, reference, seat)) return false;
  const int stack = reference.code - 800;
  const bool known = stack >= 0 && stack < kCheckStacks;
  text = known ? game.table.seats[seat].CheckStackName[stack] : std::string();
  return true;
}

}  // namespace tessaryn
