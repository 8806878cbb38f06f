#include "play/roll_cycle.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "autobet/run/interpreter.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/roll_recorder.h"
#include "play/session_luck.h"
#include "play/table_files.h"
#include "rules/bankroll.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/settlement.h"
#include "rules/shooter.h"
#include "state/run_stop.h"
#include "state/show_message.h"
#include "stats/bankroll_graph.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

void Speak(Game& game, Sound sound) {
  if (!game.table.TurboRollActive) game.host->PlaySound(game, sound);
}

// Nothing is rolled: a run ends with the reason, otherwise a box says why.
template <Msg kReason, Msg kBox, typename... Arguments>
void Refuse(Game& game, const Arguments&... arguments) {
  const std::string reason = MessageText(kReason, ArgumentsOf(arguments...));
  if (game.table.TurboRollActive) return StopRun(game, reason);
  StopRun(game, "");
  game.table.StopReason = reason;
  ShowMessage<kBox>(game, arguments...);
}

// --- Before the dice.

bool BankrollsWithinLimit(Game& game) {
  const TableState& table = game.table;
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    const SeatId seat = table.Seated[i];
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

void RefuseWithoutLineBet(Game& game, const std::string& name) {
  const auto shooter = With<"player">(name);
  if (game.table.OccupiedSeats == 1)
    Refuse<Msg::kShooterHasNoLineBet, Msg::kLineBetRequiredAlone>(game, shooter);
  else if (game.table.Point != 0)
    Refuse<Msg::kShooterHasNoLineBet, Msg::kLineBetRequiredOnPoint>(game, shooter);
  else
    Refuse<Msg::kShooterHasNoLineBet, Msg::kLineBetRequired>(game, shooter);
}

bool ShooterHasBet(Game& game) {
  const TableState& table = game.table;
  const int rule = game.settings.ShooterBetRule;
  if (rule == 0) return true;
  if (table.OccupiedSeats == 0) {
    Refuse<Msg::kNobodyToBet, Msg::kNobodyToBet>(game);
    return false;
  }
  const BetSet& bets = table.seats[table.ShooterSeat].SeatBets;
  const std::string& name = table.seats[table.ShooterSeat].SeatName;
  if (rule == 2) {
    if (!bets.Empty()) return true;
    Refuse<Msg::kShooterHasNoBet, Msg::kAnyBetRequired>(game, With<"player">(name));
    return false;
  }
  if (bets.Has(kPassLine) || bets.Has(kDontPass)) return true;
  RefuseWithoutLineBet(game, name);
  return false;
}

bool RollsWithinLimit(Game& game) {
  if (SessionRolls(game.stats) < kMaxRolls) return true;
  Refuse<Msg::kStoppedByRollLimit, Msg::kRollLimitReached>(game, With<"limit">(Currency::Dollars(kMaxRolls)));
  return false;
}

void NoteRails(TableState& table) {
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    const SeatId seat = table.Seated[i];
    table.seats[seat].RailAmount = table.BankrollCurrent[seat] - table.seats[seat].OnTableAmount;
  }
}

// The copies taken before the dice fall, where something changed since the last ones.
void TakeSnapshots(TableState& table) {
  std::memcpy(table.BankrollBeforeRoll, table.BankrollCurrent, sizeof table.BankrollBeforeRoll);
  for (; table.SeatsSinceBefore != 0; table.SeatsSinceBefore &= table.SeatsSinceBefore - 1) {
    const SeatId seat = std::countr_zero(table.SeatsSinceBefore);
    table.seats[seat].TouchedSinceBefore.ForEach([&](BetId bet) {
      const Currency amount = table.BetAmount(seat, bet);
      table.BetBeforeRoll(seat, bet) = amount;
      table.BetCommitted(seat, bet) = amount;
      table.BetStreakBefore(seat, bet) = table.BetStreak(seat, bet);
    });
    table.seats[seat].TouchedSinceBefore.Clear();
    table.seats[seat].StacksSinceBefore.ForEach([&](int stack) {
      const BetId bet = kFirstCheckStack + stack;
      table.BetBeforeRoll(seat, bet) = table.BetAmount(seat, bet);
    });
    table.seats[seat].StacksSinceBefore.Clear();
  }
  if (table.AnyBetMoved) {
    std::ranges::fill(table.ComeMovedTo, kNoBet);
    std::ranges::fill(table.DontComeMovedTo, kNoBet);
    table.AnyBetMoved = false;
  }
  table.PointTwoRollsAgo = table.PointBeforeRoll;
  table.PointBeforeRoll = table.Point;
}

// --- The dice.

// A run, or a roll, that the file had no dice for.
void StopPlaying(Game& game, const std::string& reason) {
  StopRun(game, reason);
  game.table.StopReason = reason;
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
  if (result == PlayResult::kEndOfFile) {
    game.autobet.RollFileEndReached = true;
    StopPlaying(game, MessageText<Msg::kStoppedAtFileEnd>());
    AskRewind(game);
    return false;
  }
  const bool turbo = table.TurboRollActive;
  if (result == PlayResult::kError) {
    StopPlaying(game, file.LastErrorText);
    if (!turbo) ShowMessage<Msg::kRollNotRead>(game, With<"problem">(file.LastErrorText));
    return false;
  }
  StopPlaying(game, MessageText<Msg::kStoppedByRollOutOfLimits>());
  if (!turbo) ShowMessage<Msg::kRollOutOfLimits>(game);
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

// The faces of the next roll. False when no roll is to be had: the table is then as it was.
bool FindDice(Game& game, RollSource& source) {
  TableState& table = game.table;
  if (table.ManualRollPending) {
    source = RollSource::kPad;
    table.Die1 = table.ManualDie1;
    table.Die2 = table.ManualDie2;
    table.ManualRollPending = false;
    return true;
  }
  if (game.rollFile.RecorderState == kRecorderPlayback) {
    source = RollSource::kFile;
    return PlayFile(game);
  }
  DrawFromGenerator(game);
  return true;
}

// The dice fall.
void ThrowDice(Game& game, RollSource source) {
  TableState& table = game.table;
  table.RollTotal = table.Die1 + table.Die2;
  if (game.rollFile.RecorderState == kRecorderRecord && !RecordRoll(game.rollFile, table.Die1, table.Die2))
    ReportRecorderFault(game);
  if (game.events.RecordEventsActive) LogRoll(game, source);
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
  Msg line;
  Sound sound;
};

// What a come-out roll does, by total.
LineDecision ComeOutDecision(int total) {
  switch (total) {
    case 7:
    case 11:
      return {kPasses, true, Msg::kLogPassNatural, Sound::kPass};
    case 2:
    case 3:
    case 12:
      return {kMisses, true, Msg::kLogMissCraps, Sound::kMiss};
    default:
      return {kComeoutRolls, false, Msg::kLogPointEstablished, Sound::kPoint};
  }
}

void LogDecision(Game& game, Msg line) {
  if (game.events.RecordEventsActive && game.events.RecordPassesMisses)
    WriteEventsLogLine(game, RowOf(line).text);
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
    LogDecision(game, decision.line);
    Speak(game, total == game.settings.BarNumber ? Sound::kBarredMiss : decision.sound);
    return;
  }
  const bool made = total == table.Point;
  if (!made && total != 7) return;
  CountLine(game, made ? kPasses : kMisses, table.Point);
  table.LastPoint = table.Point;
  table.Point = 0;
  LogDecision(game, made ? Msg::kLogPassPoint : Msg::kLogMissSevenOut);
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
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    table.seats[seat].BetWorking.byDefault = pointOn ? kAllTableBets : table.seats[seat].BetDefaultWorking;
}

void TakePlaceBetsDown(Game& game, SeatId seat, int number) {
  for (const BetId bet : {BetOn(kPlace4, number), BetOn(kBuy4, number)})
    ChangeBet(game, seat, bet, -game.table.BetAmount(seat, bet));
}

void PointChanged(Game& game) {
  TableState& table = game.table;
  MoveWorkingStates(table);
  if (table.Point == 0) return;
  for (unsigned seats = table.SeatsUp[kPassLine]; seats != 0; seats &= seats - 1) {
    const SeatId seat = kPayOrder[std::countr_zero(seats)];
    if (table.seats[seat].handling.AutoTakeOdds) TakeFullOdds(game, seat, kPassLineOdds);
    if (table.seats[seat].handling.AutoDownPlace) TakePlaceBetsDown(game, seat, table.Point);
  }
  for (unsigned seats = table.SeatsUp[kDontPass]; seats != 0; seats &= seats - 1) {
    const SeatId seat = kPayOrder[std::countr_zero(seats)];
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
    for (SeatId seat = 1; seat <= kSeats; ++seat)
      table.seats[seat].BetWorkingBeforeRoll = table.seats[seat].BetWorking;
    table.CallsTouched = false;
  }
}

void CopyAfterRoll(TableState& table) {
  std::memcpy(table.BankrollAfterRoll, table.BankrollCurrent, sizeof table.BankrollAfterRoll);
  for (; table.SeatsSinceAfter != 0; table.SeatsSinceAfter &= table.SeatsSinceAfter - 1) {
    const SeatId seat = std::countr_zero(table.SeatsSinceAfter);
    table.seats[seat].TouchedSinceAfter.ForEach(
        [&](BetId bet) { table.BetAfterRoll(seat, bet) = table.BetAmount(seat, bet); });
    table.seats[seat].TouchedSinceAfter.Clear();
    table.seats[seat].StacksSinceAfter.ForEach([&](int stack) {
      const BetId bet = kFirstCheckStack + stack;
      table.BetAfterRoll(seat, bet) = table.BetAmount(seat, bet);
    });
    table.seats[seat].StacksSinceAfter.Clear();
  }
}

std::string_view WinsLossesHeading(const EventsLog& log) {
  if (log.RecordBetsWon && log.RecordBetsLost) return RowOf(Msg::kLogWinsAndLosses).text;
  return RowOf(log.RecordBetsWon ? Msg::kLogWins : Msg::kLogLosses).text;
}

// From the shooter's bet to the fallen dice. False: nothing is rolled, and no bet has ridden.
bool BeginRoll(Game& game) {
  TableState& table = game.table;
  if (!table.StopReason.empty()) table.StopReason.clear();
  RollSource source = RollSource::kGenerator;
  if (!ShooterHasBet(game) || !RollsWithinLimit(game) || !FindDice(game, source)) return false;
  NoteRails(table);
  // Told with the roll that follows: without one they are still to come, and must not be told twice.
  if (game.events.RecordEventsActive) LogChangesBeforeRoll(game);
  TakeSnapshots(table);
  ThrowDice(game, source);
  return true;
}

}  // namespace

void SettleDice(Game& game) {
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
}

bool ReadyToRoll(Game& game) {
  ReplaceMissingGenerator(game.generators);
  return BankrollsWithinLimit(game) && ScriptsReady(game);
}

bool RollAndSettle(Game& game) {
  if (!BeginRoll(game)) return false;
  SettleDice(game);
  return true;
}

void FinishRoll(Game& game) {
  RunScripts(game);
  CopyAfterRoll(game.table);
  // Unless a script has just begun the next session.
  if (game.autobet.SessionAhead != 0 && SessionRolls(game.stats) > 0) game.autobet.SessionAhead = 0;
  RequireConsistency(game);
}

bool MakeRoll(Game& game, SessionLuck* luck) {
  const bool counted = WantsRoll(luck, game.table.TurboRollActive);
  if (counted) LuckRollComes(*luck, game);
  if (!RollAndSettle(game)) return false;
  if (counted) LuckRollFell(*luck, game);
  FinishRoll(game);
  return BankrollsWithinLimit(game);
}

void CloseRolling(Game& game) {
  game.table.RollInProgress = false;
  FlushTableFiles(game);
  game.host->Changed(game, Change::kEverything);
  if (game.table.Point == 0) Speak(game, Sound::kComeOut);
}

}  // namespace tessaryn
