// The script is checked while it is written, and when it is asked for.
#include <QAction>
#include <QListWidget>
#include <QTabWidget>
#include <QTimer>
#include <exception>
#include <new>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/script_files.h"
#include "autobet/run/interpreter.h"
#include "play/script_help.h"
#include "play/script_session.h"
#include "shell/screens/workshop_editor.h"
#include "shell/screens/workshop_window.h"
#include "shell/table/screen_tools.h"
#include "state/run_stop.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {

constexpr int kOutOfMemory = 7;  // as fault reports number them
constexpr int kInternalError = 51;

}  // namespace

void WorkshopWindow::TextChanged() {
  if (loading_) return;
  ++edition_;
  pause_->start();
  ShowStatus();
}

void WorkshopWindow::CheckSoon() {
  if (IsFree()) Store();
  CheckInBackground();
}

void WorkshopWindow::CheckInBackground() {
  if (seat_ == 0) return TakeCheck({});
  checks_.clear();
  checks_.start(
      [this, edition = edition_, seat = seat_, lines = editor_->Lines(), around = SurroundingsOf(game_)] {
        const ScriptCheck check = CheckLines(around, seat, lines);
        QMetaObject::invokeMethod(
            this,
            [this, edition, check] {
              if (edition == edition_) TakeCheck(check);
            },
            Qt::QueuedConnection);
      });
}

void WorkshopWindow::TakeCheck(const ScriptCheck& check) {
  fault_ = check.ok ? ScriptDiagnostic() : check.diagnostic;
  editor_->MarkFault(fault_, FromCore(check.text).simplified());
  problems_->clear();
  if (fault_.Failed()) {
    problems_->addItem(FromCore(check.title) + "\n" + FromCore(check.text).replace("\n\n", "\n"));
    if (!fault_.offer.empty()) problems_->addItem(tr("Ctrl+. puts in \"%1\"").arg(FromCore(fault_.offer)));
  }
  tabs_->setTabText(0, fault_.Failed() ? tr("Problems (1)") : tr("Problems"));
  ShowStatus();
}

void WorkshopWindow::GoToProblem() {
  if (!fault_.Failed()) return;
  editor_->SelectSpan(fault_);
  editor_->setFocus();
}

void WorkshopWindow::Check() {
  Store();
  if (seat_ == 0) return;
  ScriptCheck check;
  try {
    check = checkScript(game_, seat_);
  } catch (const std::exception& fault) {
    const bool memory = dynamic_cast<const std::bad_alloc*>(&fault) != nullptr;
    return ReportError(game_, fault.what(), memory ? kOutOfMemory : kInternalError, "cmdCheckScript");
  }
  TakeCheck(check);
  if (check.ok && Find("mnuAutoIndent")->isChecked()) {
    const auto& nesting = game_.autobet.Scripts[seat_].ScriptNesting;
    std::vector<int> levels = nesting;
    if (levels.empty()) CheckLines(SurroundingsOf(game_), seat_, stored_, &levels);
    const bool unsaved = game_.autobet.Scripts[seat_].Unsaved;
    const auto indented = ReindentScript(stored_, levels);
    const bool same = indented == stored_;
    editor_->ChangeLines(indented);
    Store();
    game_.autobet.Scripts[seat_].Unsaved = unsaved || !same;
  }
  if (!check.ok) editor_->SelectSpan(check.diagnostic);
  ShowMessage<Msg::kScriptChecked>(game_, With<"title">(check.title), With<"result">(check.text));
  editor_->setFocus();
}

// The word that the compiler doesn't know gives way to the one that it offers.
void WorkshopWindow::Fix() {
  ScriptWord word;
  if (FindOffered(editor_->Lines(), fault_, word))
    editor_->ReplaceBytes(word.line, word.begin, word.end, fault_.offer);
}

}  // namespace tessaryn
