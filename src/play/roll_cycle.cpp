#include "play/roll_cycle.h"

#include <bit>
#include <cstring>

#include "autobet/run/interpreter.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/table_files.h"
#include "rules/bankroll.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/settlement.h"
#include "rules/shooter.h"
#include "state/game.h"
#include "state/run_stop.h"
#include "stats/bankroll_graph.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

void Speak(Game& game, Sound sound) {
  if (!game.table.TurboRollActive) game.host->PlaySound(game, sound);
}

// Nothing is rolled: a run ends with the reason, otherwise a box says why.
void Refuse(Game& game, const std::string& reason, const std::string& title, const std::string& text) {
  if (game.table.TurboRollActive) return StopRun(game, reason);
  StopRun(game, "");
  game.table.StopReason = reason;
  ShowMessage(game, title, text);
}

// --- Before the dice.

bool BankrollsWithinLimit(Game& game) {
  const TableState& table = game.table;
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    const int seat = table.Seated[i];
    if (Abs(table.BankrollCurrent[seat]) <= kBankrollLimit) continue;
    BankrollLimitReached(game, seat);
    return false;
  }
  return true;
}

bool ScriptsReady(Game& game) {
  AutoBet& autobet = game.autobet;
  if (!autobet.ScriptActive[0] || autobet.ScriptsCompiled) return true;
  CompileActiveScripts(game);
  if (!autobet.ScriptsCompiled) StopRun(game, "");
  return autobet.ScriptsCompiled;
}

std::string LineBetText(const Game& game, const std::string& name) {
  const TableState& table = game.table;
  if (table.OccupiedSeats == 1) return name + " must make a Pass Line bet or a Don't Pass bet.";
  return name + (table.Point != 0 ? " must make a Pass Line bet or pass the dice."
                                  : " must make a Pass Line bet, a Don't Pass bet, or pass the dice.");
}

bool ShooterHasBet(Game& game) {
  const TableState& table = game.table;
  const int rule = game.settings.ShooterBetRule;
  if (rule == 0) return true;
  if (table.OccupiedSeats == 0) {
    const std::string text = "No players are available to bet.";
    Refuse(game, text, "Roll the Dice", text);
    return false;
  }
  const BetSet& bets = table.seats[table.ShooterSeat].SeatBets;
  constexpr const char* kNote =
      "\r\rNote: This requirement can be changed on the 'Bets tab' of the configuration screen.";
  const std::string& name = table.seats[table.ShooterSeat].SeatName;
  if (rule == 2) {
    if (!bets.Empty()) return true;
    Refuse(game, "Shooter has no bet.", "Any Bet Required",
           "A bet is required to shoot.\r\r" + name + " must make any bet or pass the dice." + kNote);
    return false;
  }
  if (bets.Has(kPassLine) || bets.Has(kDontPass)) return true;
  Refuse(game, "Shooter has no line bet.", "Line Bet Required",
         "A line bet is required to shoot.\r\r" + LineBetText(game, name) + kNote);
  return false;
}

bool RollsWithinLimit(Game& game) {
  if (SessionRolls(game.stats) < kMaxRolls) return true;
  const std::string limit = FormatMoney(Currency::Dollars(kMaxRolls));
  constexpr const char* kReset = "Select \"New\" from the \"Game\" menu to reset the table.";
  Refuse(game, "Stopped due to reaching the maximum limit of " + limit + " rolls.\r\r" + kReset,
         "Reached Maximum Roll Limit",
         "Sorry ... the maximum limit of " + limit + " rolls has been reached.\r\r" + kReset);
  return false;
}

void NoteRails(TableState& table) {
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    const int seat = table.Seated[i];
    table.seats[seat].RailAmount = table.BankrollCurrent[seat] - table.seats[seat].OnTableAmount;
  }
}

// The copies taken before the dice fall, where something changed since the last ones.
void TakeSnapshots(TableState& table) {
  std::memcpy(table.BankrollBeforeRoll, table.BankrollCurrent, sizeof table.BankrollBeforeRoll);
  for (; table.SeatsSinceBefore != 0; table.SeatsSinceBefore &= table.SeatsSinceBefore - 1) {
    const int seat = std::countr_zero(table.SeatsSinceBefore);
    table.seats[seat].TouchedSinceBefore.ForEach([&](int bet) {
      const Currency amount = table.BetAmount(seat, bet);
      table.BetBeforeRoll(seat, bet) = amount;
      table.BetCommitted(seat, bet) = amount;
      table.BetStreakBefore(seat, bet) = table.BetStreak(seat, bet);
    });
    table.seats[seat].TouchedSinceBefore.Clear();
    table.seats[seat].StacksSinceBefore.ForEach([&](int stack) {
      const int bet = kFirstCheckStack + stack;
      table.BetBeforeRoll(seat, bet) = table.BetAmount(seat, bet);
    });
    table.seats[seat].StacksSinceBefore.Clear();
  }
  if (table.AnyBetMoved) {
    std::memset(table.ComeMovedTo, 0, sizeof table.ComeMovedTo);
    std::memset(table.DontComeMovedTo, 0, sizeof table.DontComeMovedTo);
    table.AnyBetMoved = false;
  }
  table.PointTwoRollsAgo = table.PointBeforeRoll;
  table.PointBeforeRoll = table.Point;
}

// --- The dice.

enum class DiceSource { kPad, kFile, kGenerator };

void AskRewind(Game& game) {
  RollFile& file = game.rollFile;
  switch (
      ShowMessage(game, kRewindTitle, RewindQuestion(file), kMsgYes | kMsgNo | kMsgCancel | kMsgQuestion)) {
    case kResultYes:
      RewindForPlayback(file);
      break;
    case kResultNo:
      SetRecorderState(file, kRecorderOff);
      break;
    default:
      break;
  }
}

bool PlayFile(Game& game) {
  TableState& table = game.table;
  RollFile& file = game.rollFile;
  int die1 = 0;
  int die2 = 0;
  const PlayResult result = PlayRoll(file, die1, die2);
  if (result == PlayResult::kPlayed) {
    table.Die1 = die1;
    table.Die2 = die2;
    return true;
  }
  std::string reason = kStoppedAtEndReason;
  if (result == PlayResult::kEndOfFile) {
    game.autobet.RollFileEndReached = true;
    StopRun(game, reason);
    table.StopReason = reason;
    AskRewind(game);
    return false;
  }
  std::string text = kRollOutOfLimitsText;
  reason = kStoppedOutOfLimitsReason;
  if (result == PlayResult::kError) text = reason = file.LastErrorText;
  const bool turbo = table.TurboRollActive;
  StopRun(game, reason);
  table.StopReason = reason;
  if (!turbo) ShowMessage(game, kRollOutOfLimitsTitle, text);
  return false;
}

void DrawFromGenerator(Game& game) {
  TableState& table = game.table;
  Generators& generators = game.generators;
  const std::int64_t rolls = SessionRolls(game.stats);
  if (generators.MissingGeneratorFiles != 0) ReplaceMissingGenerator(generators);
  if (game.percentage.PercentageDiceActive)
    DrawFromMatrix(game.percentage, generators, DrawNumber(generators, rolls), table.Die1, table.Die2);
  else
    DrawDice(generators, rolls, table.Die1, table.Die2);
}

std::string SourceText(const Game& game, DiceSource source) {
  if (source == DiceSource::kPad) return " from manual roll pad";
  if (source == DiceSource::kFile) return " from roll file";
  std::string text = " from RNG #" + std::to_string(game.generators.GeneratorIndex + 1);
  if (!game.percentage.PercentageDiceActive) return text;
  const std::string title = ProbabilityTitle(game.percentage);
  return text + (game.percentage.ProbFileName.empty() ? " using untitled probability matrix"
                                                      : " using probability matrix: " + title);
}

// The faces of the next roll. False when no roll is to be had: the table is then as it was.
bool FindDice(Game& game, DiceSource& source) {
  TableState& table = game.table;
  if (table.ManualRollPending) {
    source = DiceSource::kPad;
    table.Die1 = table.ManualDie1;
    table.Die2 = table.ManualDie2;
    table.ManualRollPending = false;
    return true;
  }
  if (game.rollFile.RecorderState == kRecorderPlayback) {
    source = DiceSource::kFile;
    return PlayFile(game);
  }
  DrawFromGenerator(game);
  return true;
}

// The dice fall.
void ThrowDice(Game& game, DiceSource source) {
  TableState& table = game.table;
  table.RollTotal = table.Die1 + table.Die2;
  if (game.rollFile.RecorderState == kRecorderRecord && !RecordRoll(game.rollFile, table.Die1, table.Die2))
    ReportRecorderFault(game);
  if (game.events.RecordEventsActive && game.events.RecordRolls)
    LogRoll(game, SourceText(game, source).c_str());
  Speak(game, Sound::kDice);
}

// --- After the dice.

void MarkNumbers(Game& game) {
  TableState& table = game.table;
  const int total = table.RollTotal;
  const bool makeAll = table.AnyBets.Has(kMakeAll);
  const bool small = makeAll || table.AnyBets.Has(kAllSmall);
  const bool tall = makeAll || table.AnyBets.Has(kAllTall);
  if (!small)
    table.NumberMarks &= ~kSmallMarks;
  else if (total < 7)
    table.NumberMarks |= 1u << total;
  if (!tall)
    table.NumberMarks &= ~kTallMarks;
  else if (total > 7)
    table.NumberMarks |= 1u << total;
  if (table.AnyBets.Has(kFourRolls) && total != 7)
    ++table.FourRollCount;
  else
    table.FourRollCount = 0;
}

struct LineDecision {
  NumberKind kind;
  bool decided;
  const char* line;
  Sound sound;
};

// What a come-out roll does, by total.
LineDecision ComeOutDecision(int total) {
  switch (total) {
    case 7:
    case 11:
      return {kPasses, true, "    Pass (natural)", Sound::kPass};
    case 2:
    case 3:
    case 12:
      return {kMisses, true, "    Miss (craps natural)", Sound::kMiss};
    default:
      return {kComeoutRolls, false, "    Point established", Sound::kPoint};
  }
}

void LogLine(Game& game, const char* line) {
  if (game.events.RecordEventsActive && game.events.RecordPassesMisses) WriteEventsLogLine(game, line);
}

void MovePoint(Game& game) {
  TableState& table = game.table;
  const int total = table.RollTotal;
  if (table.Point == 0) {
    CountLine(game, kComeoutRolls, total);
    const LineDecision decision = ComeOutDecision(total);
    if (decision.decided)
      CountLine(game, decision.kind, total);
    else
      table.Point = total;
    LogLine(game, decision.line);
    Speak(game, total == game.settings.BarNumber ? Sound::kBarredMiss : decision.sound);
    return;
  }
  const bool made = total == table.Point;
  if (!made && total != 7) return;
  CountLine(game, made ? kPasses : kMisses, table.Point);
  table.LastPoint = table.Point;
  table.Point = 0;
  LogLine(game, made ? "    Pass (point rolled)" : "    Miss (seven-out)");
  Speak(game, made ? Sound::kPass : Sound::kSevenOut);
}

void EndHand(Game& game) {
  TableState& table = game.table;
  EndHandStatistics(game);
  table.PreviousHandSeat = table.HandSeat;
  if (table.ShooterSeat != table.HandSeat)
    table.HandSeat = table.ShooterSeat;
  else
    PassDice(game, kPassAfterSevenOut);
}

void MoveWorkingStates(TableState& table) {
  const bool pointOn = table.Point != 0;
  for (int seat = 1; seat <= kSeats; ++seat)
    table.seats[seat].BetWorking.byDefault = pointOn ? kAllTableBets : table.seats[seat].BetDefaultWorking;
}

void TakePlaceBetsDown(Game& game, int seat, int number) {
  for (const int bet : {kPlace4 + BoxPosition(number), kBuy4 + BoxPosition(number)})
    ChangeBet(game, seat, bet, -game.table.BetAmount(seat, bet));
}

void PointChanged(Game& game) {
  TableState& table = game.table;
  MoveWorkingStates(table);
  if (table.Point == 0) return;
  PayoffRecord* payoffs = game.payoffs.PayoffTable;
  payoffs[kDontPassOdds] = payoffs[kDontComeOdds4 + BoxPosition(table.Point)];
  payoffs[kPassLineOdds] = payoffs[kComeOdds4 + BoxPosition(table.Point)];
  for (unsigned seats = table.SeatsUp[kPassLine]; seats != 0; seats &= seats - 1) {
    const int seat = kPayOrder[std::countr_zero(seats)];
    if (table.seats[seat].handling.AutoTakeOdds) TakeFullOdds(game, seat, kPassLineOdds);
    if (table.seats[seat].handling.AutoDownPlace) TakePlaceBetsDown(game, seat, table.Point);
  }
  for (unsigned seats = table.SeatsUp[kDontPass]; seats != 0; seats &= seats - 1) {
    const int seat = kPayOrder[std::countr_zero(seats)];
    if (table.seats[seat].handling.AutoLayOdds) TakeFullOdds(game, seat, kDontPassOdds);
  }
}

void RunScripts(Game& game) {
  if (!game.autobet.ScriptActive[0]) return;
  if (!game.autobet.ScriptsCompiled) CompileActiveScripts(game);
  if (game.autobet.ScriptsCompiled) RunAutoBet(game);
}

void CloseRoll(TableState& table) {
  if (table.CallsTouched) {
    for (int seat = 1; seat <= kSeats; ++seat)
      table.seats[seat].BetWorkingBeforeRoll = table.seats[seat].BetWorking;
    table.CallsTouched = false;
  }
}

void CopyAfterRoll(TableState& table) {
  std::memcpy(table.BankrollAfterRoll, table.BankrollCurrent, sizeof table.BankrollAfterRoll);
  for (; table.SeatsSinceAfter != 0; table.SeatsSinceAfter &= table.SeatsSinceAfter - 1) {
    const int seat = std::countr_zero(table.SeatsSinceAfter);
    table.seats[seat].TouchedSinceAfter.ForEach(
        [&](int bet) { table.BetAfterRoll(seat, bet) = table.BetAmount(seat, bet); });
    table.seats[seat].TouchedSinceAfter.Clear();
    table.seats[seat].StacksSinceAfter.ForEach([&](int stack) {
      const int bet = kFirstCheckStack + stack;
      table.BetAfterRoll(seat, bet) = table.BetAmount(seat, bet);
    });
    table.seats[seat].StacksSinceAfter.Clear();
  }
}

const char* WinsLossesHeading(const EventsLog& log) {
  if (log.RecordBetsWon && log.RecordBetsLost) return "    Wins/losses:";
  return log.RecordBetsWon ? "    Wins:" : "    Losses:";
}

// From the shooter's bet to the fallen dice. False: nothing is rolled, and no bet has ridden.
bool BeginRoll(Game& game) {
  TableState& table = game.table;
  if (!table.StopReason.empty()) table.StopReason.clear();
  DiceSource source = DiceSource::kGenerator;
  if (!ShooterHasBet(game) || !RollsWithinLimit(game) || !FindDice(game, source)) return false;
  NoteRails(table);
  // Told with the roll that follows: without one they are still to come, and must not be told twice.
  if (game.events.RecordEventsActive) LogChangesBeforeRoll(game);
  TakeSnapshots(table);
  ThrowDice(game, source);
  return true;
}

// From the fallen dice to the next bets on the table.
void AfterDice(Game& game) {
  TableState& table = game.table;
  const bool logged = game.events.RecordEventsActive;
  CountRoll(game);
  if (game.settings.SmallTallEnabled) MarkNumbers(game);
  MovePoint(game);
  if (logged) game.events.PendingLogHeading = WinsLossesHeading(game.events);
  SettleRoll(game);
  if (logged) game.events.PendingLogHeading = {};
  CloseRollStatistics(game);
  const bool handEnded = table.RollTotal == 7 && table.PointBeforeRoll > 0;
  if (handEnded) EndHand(game);
  if (table.Point != table.PointBeforeRoll) PointChanged(game);
  if (logged) {
    LogBankrollChanges(game);
    if (handEnded) LogHandEnd(game);
  }
  PlotRoll(game);
  CloseRoll(table);
  RunScripts(game);
  CopyAfterRoll(table);
  // Unless a script has just begun the next session.
  if (game.autobet.SessionAhead != 0 && SessionRolls(game.stats) > 0) game.autobet.SessionAhead = 0;
  RequireConsistency(game);
}

}  // namespace

bool ReadyToRoll(Game& game) {
  ReplaceMissingGenerator(game.generators);
  return BankrollsWithinLimit(game) && ScriptsReady(game);
}

bool MakeRoll(Game& game) {
  if (!BeginRoll(game)) return false;
  AfterDice(game);
  return BankrollsWithinLimit(game);
}

void CloseRolling(Game& game) {
  game.table.RollInProgress = false;
  FlushTableFiles(game);
  game.host->Changed(game, Change::kEverything);
  if (game.table.Point == 0) Speak(game, Sound::kComeOut);
}

}  // namespace tessaryn
