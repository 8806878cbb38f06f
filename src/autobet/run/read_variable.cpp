#include "autobet/run/read_variable.h"

#include "autobet/language/language.h"
#include "base/table_types.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "rules/comps.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

double Flag(bool on) { return on ? -1 : 0; }

const TableState& TableOf(const Question& question) { return question.game.table; }
const Statistics& StatsOf(const Question& question) { return question.game.stats; }

// --- The table's own state.

double ScriptInitializing(const Question& question) { return Flag(question.game.autobet.ScriptInitializing); }
double SessionBeginning(const Question& question) {
  return Flag((question.game.autobet.BeginningNewSession >> question.game.autobet.CurrentAutobettor & 1) !=
              0);
}
double HandBeginning(const Question& question) { return Flag(HandRolls(StatsOf(question)) == 0); }
double RollFileEndReached(const Question& question) { return Flag(question.game.autobet.RollFileEndReached); }
double NextRollOfFile(const Question& question) {
  return IsRollFileOpen(question.game.rollFile) ? question.game.rollFile.RollFileCursor : 0;
}
double RollsOfFile(const Question& question) { return RollFileLength(question.game.rollFile); }
double ShooterSeat(const Question& question) { return TableOf(question).ShooterSeat; }
double LastShooterSeat(const Question& question) { return TableOf(question).PreviousHandSeat; }
double OriginalShooterSeat(const Question& question) { return TableOf(question).HandSeat; }
double SelectedSeat(const Question& question) { return TableOf(question).SelectedSeat; }
double AutobettorSeat(const Question& question) { return question.game.autobet.CurrentAutobettor; }
double ShooterPasses(const Question& question) { return StatsOf(question).HandPasses; }
double ShooterMisses(const Question& question) { return StatsOf(question).HandMisses; }
double LastPoint(const Question& question) { return TableOf(question).LastPoint; }
double PointBeforeRoll(const Question& question) { return TableOf(question).PointBeforeRoll; }
double DiceTotal(const Question& question) { return TableOf(question).RollTotal; }
double DiceFaces(const Question& question) { return TableOf(question).Die1 * 10 + TableOf(question).Die2; }
double FirstDie(const Question& question) { return TableOf(question).Die1; }
double SecondDie(const Question& question) { return TableOf(question).Die2; }
double RollsPerHour(const Question& question) { return question.game.settings.SimRollRate.ToDouble(); }
double MinimumBet(const Question& question) { return question.game.settings.MinBetMain.ToDouble(); }
double MaximumBet(const Question& question) { return question.game.settings.MaxBet.ToDouble(); }
double Seed(const Question& question) { return question.game.generators.RngLastSeed; }
double Generator(const Question& question) { return question.game.generators.GeneratorIndex + 1; }
double CompRate(const Question& question) { return question.game.settings.CompRate.ToDouble() / 100; }
double DateAndTime(const Question& question) { return question.game.host->DateTimeNumber(); }
double SecondsOfDay(const Question& question) { return question.game.host->SecondsSinceMidnight(); }
double Answer(const Question& question) { return question.game.autobet.Answer; }
double RandomNumber(const Question& question) { return Rnd(question.game.generators); }

bool LastRollWasComeOut(const Question& question) { return TableOf(question).PointBeforeRoll == 0; }
double WasComeOut(const Question& question) {
  return Flag(LastRollWasComeOut(question) && SessionRolls(StatsOf(question)) > 0);
}
double WasPointRoll(const Question& question) { return Flag(!LastRollWasComeOut(question)); }
double SevenOut(const Question& question) {
  return Flag(!LastRollWasComeOut(question) && TableOf(question).RollTotal == 7);
}
double PointDecided(const Question& question) {
  return Flag(!LastRollWasComeOut(question) && TableOf(question).Point == 0);
}

}  // namespace

double Point(const Question& question) { return TableOf(question).Point; }
double PointIsOff(const Question& question) { return Flag(TableOf(question).Point == 0); }
double PointIsOn(const Question& question) { return Flag(TableOf(question).Point != 0); }

namespace {

// --- A seat's own.

const Handling& HandlingOf(const Question& question) {
  return TableOf(question).seats[question.seat].handling;
}

double AvailableBankroll(const Question& question) {
  return (TableOf(question).BankrollCurrent[question.seat] -
          TableOf(question).seats[question.seat].OnTableAmount)
      .ToDouble();
}
double LastAvailableBankroll(const Question& question) {
  return TableOf(question).seats[question.seat].RailAmount.ToDouble();
}
double WinHandlingNumber(const Question& question) { return HandlingOf(question).WinHandling + 1; }
double LoseHandlingNumber(const Question& question) { return HandlingOf(question).LoseHandling + 1; }
double TakesFullOdds(const Question& question) { return Flag(HandlingOf(question).AutoTakeOdds); }
double LaysFullOdds(const Question& question) { return Flag(HandlingOf(question).AutoLayOdds); }
double TakesPlaceDown(const Question& question) { return Flag(HandlingOf(question).AutoDownPlace); }
double PassesDice(const Question& question) { return Flag(HandlingOf(question).AutoPassDice); }
double CheckStackValue(const Question& question) {
  return TableOf(question).BetAmount(question.seat, question.code).ToDouble();
}

// --- Hands, hours and bankrolls by scope.

double Percent(double part, double whole) { return whole == 0 ? 0 : 100 * part / whole; }
double Ratio(double part, double whole) { return whole == 0 ? 0 : part / whole; }

int SlotOf(const Question& question) { return Slot(question.scope, question.seat); }

double RollsOf(const Question& question, int item) {
  return static_cast<double>(RollCount(StatsOf(question), question.scope, question.seat, item));
}
double AllRolls(const Question& question) { return RollsOf(question, 0); }

double AllNumbers(const Question& question, NumberKind kind) {
  double sum = 0;
  for (int number = 2; number <= 12; ++number)
    sum += StatsOf(question).NumberCounts[SlotOf(question)][number][kind];
  return sum;
}

double CompAmount(const Question& question) {
  return FigureComps(question.game, question.scope, question.seat).compAmount.ToDouble();
}
double HoursPlayed(const Question& question) {
  return SimulatedHours(question.game, question.scope, question.seat);
}
double BeginningBankroll(const Question& question) {
  return StatsOf(question).BankrollBeginning[SlotOf(question)].ToDouble();
}
double BankrollNow(const Question& question) {
  return BankrollOf(question.game, question.scope, question.seat).ToDouble();
}
double HighBankroll(const Question& question) {
  return StatsOf(question).BankrollHigh[SlotOf(question)].ToDouble();
}
double LowBankroll(const Question& question) {
  return StatsOf(question).BankrollLow[SlotOf(question)].ToDouble();
}
double Hands(const Question& question) { return StatsOf(question).HandCount[SlotOf(question)]; }
double MostRolls(const Question& question) { return StatsOf(question).MostRollsInHand[SlotOf(question)]; }
double AverageRolls(const Question& question) { return Ratio(AllRolls(question), Hands(question)); }
double MostComeoutRolls(const Question& question) {
  return StatsOf(question).MostComeoutRollsInHand[SlotOf(question)];
}
double AverageComeoutRolls(const Question& question) {
  return Ratio(AllNumbers(question, kComeoutRolls), Hands(question));
}
double MostPasses(const Question& question) { return StatsOf(question).MostPassesInHand[SlotOf(question)]; }
double AveragePasses(const Question& question) {
  return Ratio(AllNumbers(question, kPasses), Hands(question));
}
double MostMisses(const Question& question) { return StatsOf(question).MostMissesInHand[SlotOf(question)]; }
double AverageMisses(const Question& question) {
  return Ratio(AllNumbers(question, kMisses), Hands(question));
}

// --- Counts of dice.

double Probability(const Question& question, bool skewed) {
  return static_cast<double>(ProbabilityOfEvent(question.game.percentage, question.item, skewed));
}
double LikelyRolls(const Question& question, bool skewed) {
  return AllRolls(question) * Probability(question, skewed) / 100;
}
bool SkewedDice(const Question& question) { return question.game.percentage.PercentageDiceActive; }

double LikelyPercent(const Question& question) { return Probability(question, SkewedDice(question)); }
double LikelyCount(const Question& question) { return LikelyRolls(question, SkewedDice(question)); }
double TruePercent(const Question& question) { return Probability(question, false); }
double TrueCount(const Question& question) { return LikelyRolls(question, false); }
double SkewedPercent(const Question& question) { return Probability(question, true); }
double SkewedCount(const Question& question) { return LikelyRolls(question, true); }
double RolledCount(const Question& question) { return RollsOf(question, question.item); }
double RolledPercent(const Question& question) { return Percent(RolledCount(question), AllRolls(question)); }
double RollsSinceRolled(const Question& question) {
  return static_cast<double>(RollsSinceLast(StatsOf(question), question.item));
}

// --- Come-out rolls, passes and misses, and points.

// Whether a count by a measure takes a number in.
bool Takes(double measure, int number) {
  const bool box = IsBoxNumber(number);
  return measure == kMeasureTotal || measure == number || (measure == kMeasureNaturals && !box) ||
         (measure == kMeasurePoints && box);
}

double CountNumbers(const Question& question, NumberKind kind, double measure) {
  double sum = 0;
  for (int number = 2; number <= 12; ++number)
    if (Takes(measure, number)) sum += StatsOf(question).NumberCounts[SlotOf(question)][number][kind];
  return sum;
}

double LineCount(const Question& question, NumberKind kind) {
  return CountNumbers(question, kind, question.measure);
}

// A part is one of its own column; the column itself is one of the whole.
double LinePercent(const Question& question, NumberKind kind, double whole) {
  return Percent(LineCount(question, kind),
                 question.measure == kMeasureTotal ? whole : AllNumbers(question, kind));
}

double Decisions(const Question& question) {
  return AllNumbers(question, kPasses) + AllNumbers(question, kMisses);
}

double ComeoutCount(const Question& question) { return LineCount(question, kComeoutRolls); }
double ComeoutPercent(const Question& question) {
  return LinePercent(question, kComeoutRolls, AllRolls(question));
}
double PassCount(const Question& question) { return LineCount(question, kPasses); }
double PassPercent(const Question& question) { return LinePercent(question, kPasses, Decisions(question)); }
double MissCount(const Question& question) { return LineCount(question, kMisses); }
double MissPercent(const Question& question) { return LinePercent(question, kMisses, Decisions(question)); }

NumberKind PointKind(const Question& question) {
  return static_cast<NumberKind>(question.metric - kMetricEstablished);
}

double PointCount(const Question& question) {
  const bool all = question.measure == kMeasureTotal;
  return CountNumbers(question, PointKind(question), all ? kMeasurePoints : question.measure);
}

double PointPercent(const Question& question) {
  const auto points = [&question](NumberKind kind) { return CountNumbers(question, kind, kMeasurePoints); };
  const NumberKind kind = PointKind(question);
  const double count = PointCount(question);
  if (question.measure != kMeasureTotal) return Percent(count, points(kind));
  if (kind == kComeoutRolls) return Percent(count, AllNumbers(question, kComeoutRolls));
  return Percent(count, points(kPasses) + points(kMisses));
}

// --- Which row reads how.

struct ReaderRow {
  int code;
  VariableReader read;
};

constexpr ReaderRow kVariables[] = {
#define VARIABLE(code, phrase, name, class, whose, reader, ...) {code, reader},
#define SETTABLE(code, phrase, name, class, whose, reader, ...) {code, reader},
#define UNSPOKEN(code, name, class, whose, reader) {code, reader},
#include "autobet/language/words.inc"
};

constexpr ReaderRow kCounts[] = {
#define COUNT_FUNCTION(code, phrase, name, class, reader) {code, reader},
#include "autobet/language/words.inc"
};

template <std::size_t N>
VariableReader ReaderIn(const ReaderRow (&rows)[N], int code) {
  for (const ReaderRow& row : rows)
    if (row.code == code) return row.read;
  return nullptr;
}

}  // namespace

VariableReader ReaderOfVariable(int code) {
  return IsCheckStack(code) ? CheckStackValue : ReaderIn(kVariables, code);
}
VariableReader ReaderOfCount(int function) { return ReaderIn(kCounts, function); }

}  // namespace tessaryn
