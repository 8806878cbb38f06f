#include "autobet/run/interpreter.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/language.h"
#include "autobet/run/evaluate.h"
#include "autobet/run/give_way.h"
#include "autobet/run/operands.h"
#include "autobet/run/output_file.h"
#include "autobet/run/prepared_program.h"
#include "autobet/run/script_errors.h"
#include "autobet/run/script_watch.h"
#include "autobet/run/set_variable.h"
#include "autobet/run/take_action.h"
#include "base/bet_catalogue.h"
#include "rules/bet_rules.h"
#include "state/show_message.h"

namespace tessaryn {

void PreparedProgramDeleter::operator()(PreparedProgram* program) const { delete program; }

ScriptSurroundings SurroundingsOf(const Game& game) {
  ScriptSurroundings surroundings;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    surroundings.seatNames[seat] = game.table.seats[seat].SeatName;
  surroundings.big68 = game.settings.UseBig68;
  surroundings.smallTall = game.settings.SmallTallEnabled;
  surroundings.midway = game.settings.UseMidway;
  surroundings.fire = game.settings.UseFire;
  return surroundings;
}

namespace {

void Prepare(AutoBet& autobet) {
  ScriptWatch* const watch = autobet.Prepared ? autobet.Prepared->watch : nullptr;
  autobet.Prepared.reset(new PreparedProgram);
  PrepareProgram(autobet.Program, *autobet.Prepared);
  autobet.Prepared->watch = watch;
}

}  // namespace

void WatchScripts(Game& game, ScriptWatch* watch) {
  AutoBet& autobet = game.autobet;
  if (!autobet.Prepared && autobet.ScriptsCompiled) Prepare(autobet);
  if (!autobet.Prepared) autobet.Prepared.reset(new PreparedProgram);
  autobet.Prepared->watch = watch;
}

const CompiledScript* CompiledScriptOf(Game& game, SeatId seat, const ScriptSurroundings& surroundings,
                                       ScriptDiagnostic& diagnostic) {
  SeatScript& script = game.autobet.Scripts[seat];
  const KeptScript* before = script.Kept.get();
  if (before == nullptr || before->seat != seat || before->lines != script.ScriptLines ||
      before->surroundings != surroundings) {
    auto kept = std::make_unique<KeptScript>();
    if (!CompileAutobets(seat, script.ScriptLines, surroundings, kept->script, diagnostic, &kept->nesting))
      return nullptr;
    kept->seat = seat;
    kept->lines = script.ScriptLines;
    kept->surroundings = surroundings;
    script.Kept = std::move(kept);
  }
  script.ScriptNesting = script.Kept->nesting;
  return &script.Kept->script;
}

void CompileActiveScripts(Game& game) {
  AutoBet& autobet = game.autobet;
  autobet.ScriptsCompiled = false;
  autobet.Program = {};
  const ScriptSurroundings surroundings = SurroundingsOf(game);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!autobet.ScriptActive[seat]) continue;
    ScriptDiagnostic diagnostic;
    const CompiledScript* compiled = CompiledScriptOf(game, seat, surroundings, diagnostic);
    if (compiled == nullptr) {
      ShowMessage<Msg::kScriptBad>(game, With<"player">(game.table.seats[seat].SeatName));
      return;
    }
    JoinScript(autobet.Program, *compiled);
  }
  Prepare(autobet);
  autobet.ScriptsCompiled = true;
}

namespace {

// One run of the program.
struct Run {
  Game& game;
  PreparedProgram& program;
  std::int32_t counter = 0;  // the statement in hand
  bool inCondition = false;
  bool conditionTrue = false;
  bool showsSteps = false;  // of the statement in hand
  int sinceLook = 0;        // statements since the host had its turn
  std::string text;         // its step

  AutoBet& autobet() { return game.autobet; }
};

void Note(Run& run, const char* text) {
  if (run.showsSteps) run.text = text;
}

// --- Values.

ScriptValue ValueAt(const PreparedProgram& program, Operand operand) {
  ScriptValue value;
  value.isText = operand.text;
  if (operand.text)
    value.text = program.texts[static_cast<std::size_t>(operand.place)];
  else
    value.number = program.numbers[static_cast<std::size_t>(operand.place)];
  return value;
}

bool Compares(int relation, const ScriptValue& left, const PreparedProgram& program, Operand right) {
  if (left.isText && right.text)
    return TextsCompare(relation, left.text, program.texts[static_cast<std::size_t>(right.place)]);
  return NumbersCompare(relation, left.AsNumber(), NumberOf(program, right));
}

// Setting one costs about as much as handling this much text.
constexpr std::size_t kWorkOfTarget = 100;

// Calls take(target, resolved) for each target that its qualifier selects, in order.
template <typename Take>
bool ForTargets(Run& run, const PreparedStatement& statement, Take&& take) {
  PreparedProgram& program = run.program;
  for (std::int32_t i = statement.targets.begin; i < statement.targets.end; ++i) {
    const TargetItem& item = program.targets[static_cast<std::size_t>(i)];
    if (item.code.begin != item.code.end && !Evaluate(run.game, program, item.code)) return false;
    if (item.isQualifier) continue;
    ResolvedTarget resolved;
    if (!ResolveTarget(run.game, program, item.target, resolved)) return false;
    if (item.qualifier >= 0) {
      const TargetItem& qualifier = program.targets[static_cast<std::size_t>(item.qualifier)];
      ScriptValue now;
      if (!ReadTarget(run.game, program, item.target, resolved, now)) return false;
      if (!Compares(qualifier.relation, now, program, qualifier.operand)) continue;
    }
    if (!take(item.target, resolved)) return false;
    run.autobet().Work += kWorkOfTarget;
    if (!GiveWay(run.game)) return false;
  }
  return true;
}

// --- Action statements.

bool Assign(Run& run, const PreparedStatement& statement) {
  const ScriptValue value = ValueAt(run.program, statement.operand);
  return ForTargets(run, statement, [&](const Reference&, const ResolvedTarget& target) {
    run.autobet().Work += value.text.size();
    return SetVariable(run.game, target, value);
  });
}

bool TakeAmount(Run& run, const PreparedStatement& statement) {
  const double amount = run.program.numbers[static_cast<std::size_t>(statement.operand.place)];
  const AmountResult result = statement.work.result;
  return ForTargets(run, statement, [&](const Reference& reference, const ResolvedTarget& target) {
    ScriptValue value;
    if (target.code == 0) return true;
    if (result == nullptr) {
      value.number = amount;
      return SetVariable(run.game, target, value);
    }
    if (!ReadTarget(run.game, run.program, reference, target, value)) return false;
    const double now = value.AsNumber();
    value.isText = false;
    return result(run.game, now, amount, value.number) && SetVariable(run.game, target, value);
  });
}

// One bet or CheckStack of whose script it is: no list to walk and nothing to look up.
bool SetOwn(Run& run, const PreparedStatement& statement) {
  Game& game = run.game;
  const SeatId seat = game.autobet.CurrentAutobettor;
  if (!PlayerMayAct(game, seat)) return false;
  double value = run.program.numbers[static_cast<std::size_t>(statement.operand.place)];
  if (statement.work.result != nullptr) {
    const double now = game.table.BetAmount(seat, statement.own).ToDouble();
    if (!statement.work.result(game, now, value, value)) return false;
  }
  return SetAmount(game, seat, statement.own, value);
}

bool OnTargets(Run& run, const PreparedStatement& statement) {
  return ForTargets(run, statement, [&](const Reference&, const ResolvedTarget& target) {
    return statement.work.onTarget(run.game, target);
  });
}

// Two targets exchange what they hold.
bool Swap(Run& run, const PreparedStatement& statement) {
  ResolvedTarget targets[2];
  ScriptValue values[2];
  int count = 0;
  const bool read = ForTargets(run, statement, [&](const Reference& reference, const ResolvedTarget& target) {
    if (count == 2) return true;
    targets[count] = target;
    return ReadTarget(run.game, run.program, reference, target, values[count++]);
  });
  if (!read || count < 2) return read;
  return SetVariable(run.game, targets[0], values[1]) && SetVariable(run.game, targets[1], values[0]);
}

bool TakeStatement(Run& run, const PreparedStatement& statement) {
  if (!Evaluate(run.game, run.program, statement.value)) return false;
  if (statement.own != 0) return SetOwn(run, statement);
  switch (statement.kind) {
    case StatementKind::kAssign:
      return Assign(run, statement);
    case StatementKind::kAmount:
      return TakeAmount(run, statement);
    case StatementKind::kOnTargets:
      return OnTargets(run, statement);
    case StatementKind::kSwap:
      return Swap(run, statement);
    default:
      return statement.work.effect({run.game, run.program, statement});
  }
}

std::string ErrorStep(const AutoBet& autobet, const char* first) {
  return std::string(first) + "\r" + ScriptErrorText(autobet.ScriptError, autobet.ScriptFault);
}

[[gnu::noinline]] void TellError(Run& run, const char* first) { run.text = ErrorStep(run.autobet(), first); }

StatementSpan SpanOf(const PreparedProgram& program, const PreparedStatement& statement) {
  const std::vector<PreparedStatement>& statements = program.statements;
  const auto next = static_cast<std::size_t>(&statement - statements.data()) + 1;
  const bool goesOn = next < statements.size() && statements[next].line == statement.line;
  return {statement.line, statement.column, goesOn ? statements[next].column : -1};
}

// Keeps the error of a statement for who asks what came of the script.
void NoteError(Run& run, const PreparedStatement& statement) {
  if (run.autobet().ScriptError == kErrorNone) return;
  NoteScriptError(run.game, SpanOf(run.program, statement));
}

void TakeActionStatement(Run& run, const PreparedStatement& statement) {
  const bool taken = TakeStatement(run, statement);
  if (taken)
    run.autobet().Scripts[run.autobet().CurrentAutobettor].Acted = true;
  else
    NoteError(run, statement);
  if (!run.showsSteps) return;
  if (taken) return Note(run, "Action taken.");
  TellError(run, "No action taken.");
}

bool Holds(const PreparedProgram& program, const PreparedStatement& condition) {
  const auto place = static_cast<std::size_t>(condition.operand.place);
  return condition.operand.text ? !program.texts[place].empty() : program.numbers[place] != 0;
}

void TestCondition(Run& run, const PreparedStatement& statement) {
  if (!Evaluate(run.game, run.program, statement.value)) {
    NoteError(run, statement);
    if (run.showsSteps) TellError(run, "Unable to evaluate.");
    return;
  }
  const bool holds = Holds(run.program, statement);
  if (holds) run.conditionTrue = true;
  Note(run, holds ? "Condition is true." : "Condition is false.");
}

// --- Blocks and jumps.

void BeginCondition(Run& run) {
  run.inCondition = true;
  run.conditionTrue = false;
}

constexpr const char* kBeginningOfCondition = "Beginning of condition block.";
constexpr const char* kEndOfStructure = "End of If/Then structure.";

// What only the steps viewer reads stays out of the way of those who don't look.
[[gnu::noinline]] void TellSkippedBlock(Run& run, const PreparedStatement& target) {
  run.text =
      "End of condition block and beginning of action block.\rConditions were false, so next action block "
      "will "
      "be skipped.\r";
  run.text += target.keyword == kTokenElse     ? "Beginning of last action block."
              : target.keyword == kTokenElseIf ? kBeginningOfCondition
                                               : kEndOfStructure;
}

void EndCondition(Run& run, const PreparedStatement& statement) {
  run.inCondition = false;
  if (run.conditionTrue)
    return Note(run,
                "End of condition block and beginning of action block.\rConditions were true, so next action "
                "block will be performed.");
  run.counter = statement.jump;
  const PreparedStatement& target = run.program.statements[static_cast<std::size_t>(statement.jump)];
  if (target.keyword == kTokenElseIf) BeginCondition(run);
  if (run.showsSteps) TellSkippedBlock(run, target);
}

// Apart, since what a list takes to grow would cost every statement.
[[gnu::noinline]] bool CallSubroutine(Run& run, const PreparedStatement& statement) {
  std::vector<std::int32_t>& returns = run.program.returns;
  if (returns.size() >= kDeepestCalls) {
    ScriptFaults(run.game, kCallsTooDeep);
    NoteError(run, statement);
    return false;
  }
  returns.push_back(run.counter);
  run.counter = statement.jump;
  return true;
}

void Return(Run& run) {
  std::vector<std::int32_t>& returns = run.program.returns;
  if (!returns.empty()) {
    run.counter = returns.back();
    returns.pop_back();
  }
  Note(run, "Return to place where subroutine was initiated.");
}

void BeginScript(Run& run, SeatId player) {
  AutoBet& autobet = run.autobet();
  autobet.CurrentAutobettor = player == 0 ? run.game.table.SelectedSeat : player;
}

void Dispatch(Run& run, const PreparedStatement& statement) {
  switch (statement.kind) {
    case StatementKind::kHeader:
      return BeginScript(run, statement.player);
    case StatementKind::kIf:
      BeginCondition(run);
      return Note(run, kBeginningOfCondition);
    case StatementKind::kThen:
      return EndCondition(run, statement);
    case StatementKind::kElse:
      run.counter = statement.jump;
      return Note(run, "End of action block.\rEnd of If/Then structure.");
    case StatementKind::kEndIf:
      return Note(run, kEndOfStructure);
    case StatementKind::kReturn:
      return Return(run);
    case StatementKind::kGoto:
      run.counter = statement.jump;
      return Note(run, "A jump will be made to the designated label.\rLabel.");
    case StatementKind::kGosub:
      if (!CallSubroutine(run, statement)) return Note(run, kCallsTooDeep);
      return Note(run, "A jump will be made to the designated subroutine.\rLabel.");
    case StatementKind::kDo:
      return Note(run, "Beginning of DO/LOOP structure.");
    case StatementKind::kLoop:
      run.counter = statement.jump;
      return Note(run, "End of DO/LOOP structure.\rA jump will be made back to the associated DO statement.");
    case StatementKind::kExitDo:
      run.counter = statement.jump;
      return Note(run, "Exit from DO/LOOP structure.");
    case StatementKind::kLabel:
      return Note(run, "Label.");
    case StatementKind::kCondition:
      return TestCondition(run, statement);
    default:
      return TakeActionStatement(run, statement);
  }
}

// --- The steps viewer.

void ShowStep(Run& run, const PreparedStatement& statement) {
  Game& game = run.game;
  AutoBet& autobet = game.autobet;
  if (statement.kind == StatementKind::kHeader) return;
  const ScriptStep step{autobet.HotKeyRun ? kNobody : autobet.CurrentAutobettor, statement.line,
                        statement.column, run.text, autobet.ScriptError};
  game.host->ShowStep(game, step);
  if (!autobet.StepMode) return;
  autobet.StepWaiting = true;
  while (autobet.StepWaiting && autobet.StepMode && autobet.ScriptRunning) game.host->Wait(game);
  autobet.StepWaiting = false;
}

// A run that is watched lasts long enough to be seen.
void EndWatchedRun(Game& game, std::uint32_t start) {
  constexpr std::uint32_t kShortestRun = 300;
  constexpr int kMostWaits = 300;
  for (int waits = 0; waits < kMostWaits && game.host->TickMilliseconds() - start < kShortestRun; ++waits)
    game.host->Wait(game);
}

// A look at the user's wishes costs more than a statement does: at full speed every so many statements are
// enough, since a run that ends has the roll's own look behind it.
constexpr int kStatementsPerLook = 64;

void LetEventsPass(Run& run, int statements) {
  run.sinceLook += statements;
  if (run.sinceLook < kStatementsPerLook && run.game.table.TurboRollActive) return;
  run.sinceLook = 0;
  run.game.host->Yield(run.game);
}

// A condition block at one go, and at full speed those behind it, where nobody watches the steps: run.counter
// moves from the if to the statement that the run goes on behind.
void PassConditions(Run& run) {
  const std::vector<PreparedStatement>& statements = run.program.statements;
  for (;;) {
    const std::int32_t then = statements[static_cast<std::size_t>(run.counter)].then;
    bool holds = false;
    for (std::int32_t i = run.counter + 1; i < then; ++i) {
      const PreparedStatement& condition = statements[static_cast<std::size_t>(i)];
      run.autobet().ScriptError = kErrorNone;
      if (condition.tests > 0
              ? TestsHold(run.game, run.program, condition)
              : Evaluate(run.game, run.program, condition.value) && Holds(run.program, condition))
        holds = true;
      else
        NoteError(run, condition);
    }
    run.conditionTrue = holds;
    LetEventsPass(run, then - run.counter);
    const std::int32_t jump = statements[static_cast<std::size_t>(then)].jump;
    run.counter = holds ? then : jump;
    if (holds || !run.autobet().ScriptRunning) return;
    if (statements[static_cast<std::size_t>(jump)].keyword == kTokenElseIf) continue;
    // Of a Turbo-Roll no steps are shown: the next block is passed likewise.
    const auto next = static_cast<std::size_t>(jump) + 1;
    const bool goesOn = next < statements.size() && statements[next].kind == StatementKind::kIf;
    if (!goesOn || !run.game.table.TurboRollActive) return;
    ++run.counter;
  }
}

// --- Who follows the runs.

using WatchClock = std::chrono::steady_clock;

StatementOutcome OutcomeOf(const Run& run, const PreparedStatement& statement) {
  if (run.game.autobet.ScriptError != kErrorNone) return StatementOutcome::kError;
  if (statement.kind != StatementKind::kCondition) return StatementOutcome::kDone;
  return Holds(run.program, statement) ? StatementOutcome::kTrue : StatementOutcome::kFalse;
}

void NoteWatched(Run& run, const PreparedStatement& statement, std::int64_t rolls,
                 WatchClock::time_point start) {
  if (statement.kind == StatementKind::kHeader) return;
  const AutoBet& autobet = run.autobet();
  const StatementSpan span = SpanOf(run.program, statement);
  const auto taken = std::chrono::duration_cast<std::chrono::nanoseconds>(WatchClock::now() - start).count();
  NoteTraced(*run.program.watch,
             {rolls, autobet.HotKeyRun ? kNobody : autobet.CurrentAutobettor, span.line, span.column,
              span.end, autobet.ScriptError, OutcomeOf(run, statement)},
             taken);
}

// Watched or not, a run does the same; a run that is not watched has no trace of it in its loop.
template <bool kWatched>
void RunStatements(Run& run) {
  Game& game = run.game;
  AutoBet& autobet = game.autobet;
  const auto count = static_cast<std::int32_t>(run.program.statements.size());
  for (run.counter = 0; run.counter < count && autobet.ScriptRunning; ++run.counter) {
    const PreparedStatement& statement = run.program.statements[static_cast<std::size_t>(run.counter)];
    run.showsSteps = autobet.StepsShown && !game.table.TurboRollActive;
    if (!kWatched && statement.kind == StatementKind::kIf && !run.showsSteps) {
      PassConditions(run);
      continue;
    }
    if (run.showsSteps) run.text.clear();
    autobet.ScriptError = kErrorNone;
    if constexpr (kWatched) {
      const std::int64_t rolls = Throws(game.stats);
      const WatchClock::time_point begin = WatchClock::now();
      Dispatch(run, statement);
      NoteWatched(run, statement, rolls, begin);
    } else {
      Dispatch(run, statement);
    }
    if (run.showsSteps) ShowStep(run, statement);
    LetEventsPass(run, 1 + (statement.value.end - statement.value.begin) / kStatementsPerLook);
  }
}

}  // namespace

namespace {

// The scripts that are active come to know in this run, and in no later one, that a session is beginning.
void TakeSessionAhead(AutoBet& autobet) {
  std::uint16_t active = 0;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (autobet.ScriptActive[seat]) active = static_cast<std::uint16_t>(active | 1u << seat);
  autobet.BeginningNewSession = autobet.SessionAhead & active;
  autobet.SessionAhead = static_cast<std::uint16_t>(autobet.SessionAhead & ~active);
}

}  // namespace

void RunAutoBet(Game& game) {
  AutoBet& autobet = game.autobet;
  if (autobet.ScriptRunning) return;
  if (!autobet.Prepared) Prepare(autobet);
  // A command that comes in between may compile anew: the run keeps what it runs.
  auto program = std::move(autobet.Prepared);
  const bool watched = autobet.StepsShown && !game.table.TurboRollActive;
  const std::uint32_t start = watched ? game.host->TickMilliseconds() : 0;
  if (!game.table.TurboRollActive) autobet.StatusCaption = autobet.HotKeyRun ? "Hot-Key" : "Auto-Betting";
  autobet.ScriptRunning = true;
  if (autobet.SessionAhead != 0 && !autobet.HotKeyRun) TakeSessionAhead(autobet);
  program->returns.clear();
  Run run{game, *program, 0, false, false, false, 0, {}};
  if (program->watch != nullptr)
    RunStatements<true>(run);
  else
    RunStatements<false>(run);
  autobet.ScriptRunning = false;
  autobet.BeginningNewSession = 0;
  if (!autobet.StatusCaption.empty()) autobet.StatusCaption.clear();
  if (!game.table.TurboRollActive) FlushScriptOutputs(game);
  if (watched && autobet.StepsShown && autobet.StepsHold) EndWatchedRun(game, start);
  if (!autobet.Prepared)
    autobet.Prepared = std::move(program);
  else
    autobet.Prepared->watch = program->watch;
}

void RunHotKeyScript(Game& game, CompiledScript script) {
  AutoBet& autobet = game.autobet;
  if (autobet.ScriptRunning) return;
  autobet.Program = std::move(script);
  autobet.Scripts[0].Errors.clear();
  Prepare(autobet);
  autobet.ScriptsCompiled = true;
  autobet.ScriptInitializing = autobet.HotKeyRun = true;
  RunAutoBet(game);
  autobet.ScriptInitializing = autobet.HotKeyRun = false;
  ScriptWatch* const watch = autobet.Prepared ? autobet.Prepared->watch : nullptr;
  autobet.Prepared.reset();
  autobet.ScriptsCompiled = false;
  if (watch != nullptr) WatchScripts(game, watch);
}

}  // namespace tessaryn
