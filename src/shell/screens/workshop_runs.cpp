// The script runs: active, once, step by step, to a line; and how often its lines ran.
#include <QAction>
#include <QTabWidget>
#include <utility>

#include "play/auto_roll.h"
#include "play/script_session.h"
#include "play/script_trial.h"
#include "shell/screens/permissions_screen.h"
#include "shell/screens/workshop_editor.h"
#include "shell/screens/workshop_steps.h"
#include "shell/screens/workshop_trial.h"
#include "shell/screens/workshop_watch.h"
#include "shell/screens/workshop_window.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

void WorkshopWindow::Activate(bool on) {
  Store();
  if (on && AskBeforeCommand(game_))
    ActivateScript(game_, seat_);
  else if (!on)
    SetScriptActive(game_, seat_, false);
  if (changed) changed();
  Refresh();
}

void WorkshopWindow::ActivateAll() {
  Store();
  if (!AskBeforeCommand(game_)) return;
  ActivateScript(game_, 0);
  if (changed) changed();
  Refresh();
}

void WorkshopWindow::RunOnce() {
  Store();
  if (seat_ == 0 || !IsFree()) return;
  if (!game_.autobet.ScriptActive[seat_]) SetScriptActive(game_, seat_, true);
  InitialiseScripts(game_);
  runTo_ = 0;
  StepsChanged();
  watch_->LookUp();
  if (changed) changed();
  Refresh();
}

void WorkshopWindow::Step() {
  if (game_.autobet.ScriptRunning) {
    game_.autobet.StepMode = true;
    return steps_->Next();
  }
  game_.autobet.StepsShown = game_.autobet.StepMode = true;
  tabs_->setCurrentWidget(steps_);
  RunOnce();
}

void WorkshopWindow::StopScripts() {
  game_.autobet.StepMode = false;
  steps_->Stop();
  Refresh();
}

void WorkshopWindow::ToggleBreak() { editor_->ToggleBreak(editor_->CursorLine()); }

// On to the line: in the run that is on, or in the next one.
void WorkshopWindow::RunToCursor() {
  runTo_ = editor_->CursorLine();
  if (!game_.autobet.ScriptRunning) {
    StepsChanged();
    return RunOnce();
  }
  steps_->GoOn();
}

void WorkshopWindow::WantSteps() {
  wantsSteps_ = Find("mnuShowSteps")->isChecked();
  if (wantsSteps_) tabs_->setCurrentWidget(steps_);
  StepsChanged();
}

// What runs is counted as long as it is wanted, and only then.
void WorkshopWindow::WantCounts() {
  QAction* wanted = Find("mnuShowCounts");
  if (!IsFree()) return wanted->setChecked(wantsCounts_);
  wantsCounts_ = trial_->counted = wanted->isChecked();
  counted_ = {};
  counted_.profile = true;
  shownCount_ = 0;
  WatchScripts(game_, wantsCounts_ ? &counted_ : nullptr);
  editor_->ShowCounts({});
}

// Behind a run, not in it.
void WorkshopWindow::ShowCounts() {
  if (!wantsCounts_ || seat_ == 0 || !IsFree()) return;
  WatchScripts(game_, &counted_);  // another game may have been opened
  std::int64_t count = 0;
  for (const LineProfile& line : counted_.lines[seat_]) count += line.count;
  if (std::exchange(shownCount_, count) != count) editor_->ShowCounts(counted_.lines[seat_]);
}

// Statements are told of only while somebody waits for one.
void WorkshopWindow::StepsChanged() {
  AutoBet& autobet = game_.autobet;
  bool breaks = editor_->HasBreaks();
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    breaks = breaks || (seat != seat_ && !places_[seat].breaks.empty());
  autobet.StepsShown = wantsSteps_ || breaks || runTo_ > 0 || autobet.StepMode;
  autobet.StepsHold = wantsSteps_;
  steps_->Refresh();
}

void WorkshopWindow::ShowStep(const ScriptStep& step) {
  AutoBet& autobet = game_.autobet;
  const auto& lines = autobet.Scripts[step.seat].ScriptLines;
  const std::string source = step.line >= 1 && step.line <= static_cast<int>(lines.size())
                                 ? lines[static_cast<std::size_t>(step.line) - 1]
                                 : std::string();
  const bool breaks =
      step.seat == seat_ ? editor_->HasBreak(step.line) : places_[step.seat].breaks.count(step.line) != 0;
  if (breaks || (runTo_ == step.line && step.seat == seat_)) {
    runTo_ = 0;
    autobet.StepMode = true;
  }
  const bool seen = autobet.StepMode || wantsSteps_;
  const std::string values = seen && step.seat != 0 ? ConditionValues(game_, step.seat, source) : "";
  steps_->ShowStep(step, source, values);
  tabs_->setTabText(1, steps_->Title());
  if (!autobet.StepMode && !wantsSteps_) return;
  if (step.seat != seat_ && step.seat != 0 && stored_ == editor_->Lines()) ShowSeat(step.seat);
  if (step.seat == seat_) editor_->MarkStep(step.line);
  if (autobet.StepMode) {
    tabs_->setCurrentWidget(steps_);
    watch_->LookUp();
  }
}

void WorkshopWindow::TryIt() { trial_->Toggle(); }

void WorkshopWindow::Permissions() {
  if (seat_ == 0) return;
  PermissionsScreen screen(game_, seat_, this);
  RunDialog(screen);
}

}  // namespace tessaryn
