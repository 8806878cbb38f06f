// The script as a file: opened, saved, copied, pasted and printed.
#include <Qsci/qsciprinter.h>

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QPrintDialog>

#include "autobet/language/script_files.h"
#include "base/record_file.h"
#include "play/auto_roll.h"
#include "play/script_session.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/recent_scripts.h"
#include "shell/screens/workshop_editor.h"
#include "shell/screens/workshop_window.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

bool WorkshopWindow::MayLeaveScript() {
  Store();
  if (seat_ == 0) return false;
  if (!AskBeforeCommand(game_)) return false;
  if (OfferToSaveLoggedBets(game_)) SaveLogged();
  if (!game_.autobet.Scripts[seat_].Unsaved || stored_.empty()) return true;
  const int answer =
      ShowMessage<Msg::kAskSaveScript>(game_, With<"player">(game_.table.seats[seat_].SeatName));
  return answer == kResultNo || (answer == kResultYes && Save());
}

void WorkshopWindow::NewScript() {
  if (!MayLeaveScript()) return;
  SetScriptActive(game_, seat_, false);
  SetScript(game_, seat_, {}, "");
  Load();
}

void WorkshopWindow::OpenPath(const std::string& path) {
  if (MayLeaveScript()) TakeFile(path);
}

void WorkshopWindow::TakeFile(const std::string& path) {
  std::string error;
  if (!OpenScript(game_, seat_, path, error))
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kOpenAutoBet)), With<"problem">(error));
  else
    NoteRecentScript(game_, path);
  Load();
}

void WorkshopWindow::OpenFile() {
  if (!MayLeaveScript()) return;
  const std::string path = ChooseFile(game_, this, kOpenAutoBet);
  if (!path.empty()) TakeFile(path);
}

bool WorkshopWindow::Save() {
  Store();
  if (seat_ == 0) return false;
  const std::string path = game_.autobet.Scripts[seat_].ScriptFileName;
  if (path.empty()) return SaveAs();
  std::string error;
  const bool saved = SaveScript(game_, seat_, path, error);
  if (!saved)
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kSaveAutoBet)), With<"problem">(error));
  if (saved) editor_->setModified(false);
  ShowStatus();
  return saved;
}

bool WorkshopWindow::SaveAs() {
  Store();
  if (seat_ == 0) return false;
  const std::string path = ChooseFile(game_, this, kSaveAutoBet, game_.autobet.Scripts[seat_].ScriptFileName);
  std::string error;
  if (path.empty()) return false;
  if (!SaveScript(game_, seat_, path, error)) {
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kSaveAutoBet)), With<"problem">(error));
    return false;
  }
  NoteRecentScript(game_, path);
  editor_->setModified(false);
  ShowStatus();
  return true;
}

void WorkshopWindow::FillRecent(QMenu& menu) {
  for (const std::string& path : RecentScripts(game_)) {
    QAction* action = menu.addAction(FromCore(FileTitle(path)).replace('&', "&&"));
    action->setToolTip(FromCore(path));
    connect(action, &QAction::triggered, this, [this, path] {
      if (MayLeaveScript()) OpenPath(path);
    });
  }
  if (menu.isEmpty()) menu.addAction(tr("None yet"))->setEnabled(false);
  menu.setToolTipsVisible(true);
}

void WorkshopWindow::FillSamples(QMenu& menu) {
  const QDir folder(FromCore(game_.applicationFolder) + "samples");
  for (const QString& name : folder.entryList({"*.bet"}, QDir::Files, QDir::Name))
    connect(menu.addAction(name), &QAction::triggered, this,
            [this, path = folder.filePath(name)] { OpenPath(ToCore(path)); });
}

void WorkshopWindow::CopyToFile() {
  const std::string path = ChooseFile(game_, this, kSaveAutoBet);
  if (path.empty()) return;
  const ScriptFileResult result = WriteScriptFile(path, editor_->Lines());
  if (!result.Ok())
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kSaveAutoBet)),
                                   With<"problem">(result.message));
}

void WorkshopWindow::CopyToSeat(SeatId seat) {
  if (!AskBeforeCommand(game_)) return;
  Store();
  SetScript(game_, seat, editor_->Lines(), "");
  game_.autobet.Scripts[seat].Unsaved = true;
}

void WorkshopWindow::FillCopyTo(QMenu& menu) {
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (seat != seat_ && IsOccupied(game_.table, seat))
      connect(menu.addAction(FromCore(game_.table.seats[seat].SeatName)), &QAction::triggered, this,
              [this, seat] { CopyToSeat(seat); });
  menu.addSeparator();
  connect(menu.addAction(tr("&File ...")), &QAction::triggered, this, &WorkshopWindow::CopyToFile);
}

// At the cursor's line.
void WorkshopWindow::PasteLines(const std::vector<std::string>& lines) {
  if (seat_ == 0) return;
  game_.autobet.ScriptRunning = false;
  QString text;
  for (const std::string& line : lines) text += FromCore(line) + "\n";
  editor_->insertAt(text, editor_->CursorLine() - 1, 0);
  Store();
}

void WorkshopWindow::PasteFromFile() {
  const std::string path = ChooseFile(game_, this, kOpenAutoBet);
  std::vector<std::string> lines;
  if (path.empty()) return;
  const ScriptFileResult result = ReadScriptFile(path, lines);
  if (result.Ok()) return PasteLines(lines);
  ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kOpenAutoBet)),
                                 With<"problem">(result.message));
}

void WorkshopWindow::FillPasteFrom(QMenu& menu) {
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (seat != seat_ && IsOccupied(game_.table, seat))
      connect(menu.addAction(FromCore(game_.table.seats[seat].SeatName)), &QAction::triggered, this,
              [this, seat] { PasteLines(game_.autobet.Scripts[seat].ScriptLines); });
  menu.addSeparator();
  connect(menu.addAction(tr("&File ...")), &QAction::triggered, this, &WorkshopWindow::PasteFromFile);
}

void WorkshopWindow::PrintScript() {
  QsciPrinter printer;
  printer.setDocName(windowTitle());
  QPrintDialog dialog(&printer, this);
  dialog.setObjectName("frmPrintScript");
  if (RunDialog(dialog) == QDialog::Accepted && !PrintOn(printer))
    ShowMessage<Msg::kPrintFailed>(game_, With<"problem">(printer.printerName().toStdString()));
}

// On paper it is light, whatever the desktop is.
bool WorkshopWindow::PrintOn(QsciPrinter& printer) {
  printer.setColorMode(game_.settings.ColorPrint ? QPrinter::Color : QPrinter::GrayScale);
  printer.setWrapMode(QsciScintilla::WrapWord);
  editor_->SendScintilla(QsciScintilla::SCI_SETPRINTCOLOURMODE,
                         static_cast<unsigned long>(editor_->IsDark() ? QsciScintilla::SC_PRINT_INVERTLIGHT
                                                                      : QsciScintilla::SC_PRINT_NORMAL));
  return printer.printRange(editor_) != 0;
}

}  // namespace tessaryn
