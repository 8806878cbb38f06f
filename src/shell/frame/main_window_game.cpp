// The main window's game: opened at the start or by being dropped, kept, and closed.
#include <QCloseEvent>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <cstdio>
#include <utility>

#include "play/auto_roll.h"
#include "play/game_file.h"
#include "play/hot_keys.h"
#include "shell/frame/closing.h"
#include "shell/frame/commands.h"
#include "shell/frame/game_files.h"
#include "shell/frame/main_window.h"
#include "shell/frame/open_file.h"
#include "shell/frame/places.h"
#include "shell/frame/screen_manners.h"
#include "shell/table/amount_selector.h"
#include "shell/table/board.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr int kLookAgain = 20;    // milliseconds between two looks whether a roll has ended
constexpr int kToldFor = 10'000;  // milliseconds that a line stays at the window's foot

QString DroppedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

void MainWindow::OpenAtStart(const std::string& argument) {
  starting_ = true;
  host_.window = nullptr;  // questions stand alone until the window is there
  std::string error;
  if (!ReadHotKeys(game_.dataFolder + kHotKeysFile, game_.screen.HotKeys, error))
    ShowMessage<Msg::kHotKeysFailed>(game_, With<"problem">(error));
  if (!OfferAutosave(game_)) OpenFirstGame(game_, OpensBesideGame(argument) ? "" : argument);
  if (!game_.file.Path.empty()) NoteRecentGame(desk_, game_.file.Path);
  host_.window = this;
  starting_ = false;
  if (!preferences_.guideDone && !HasBeenPlayed(game_))
    stage_->TheBoard().StartGuide();
  else if (!preferences_.guideDone)
    EndGuide();
  PlaceMainWindow(desk_);
  ShowGame();
  changed_ = false;
  if (game_.table.ShooterSeat != 0 && game_.table.Point == 0) host_.PlaySound(game_, Sound::kComeOut);
}

void MainWindow::OpenBesideGame(const std::string& argument) {
  if (OpensBesideGame(argument)) OpenAnyFile(desk_, argument);
}

void MainWindow::ShowGame() {
  screenPending_ = !isVisible();
  if (!screenPending_) {
    PlaceMainWindow(desk_);
    ShowScreen(desk_);
  }
  desk_.movingSeat = 0;
  table_->scene.movingPlayer = false;
  Speak();
  host_.rolled.Take(game_);
  settledThrows_ = badgesOf_ = Throws(game_.stats);
  TakeFontSize(game_.settings.ScreenFontSize);
  table_->RebuildLayout();
  amounts_->RefreshChecks();
  table_->PlaceDice();
  table_->Refresh();
  RefreshCommands();
}

// The view can be restored only into a window that has its size.
void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (std::exchange(screenPending_, false)) ShowScreen(desk_);
}

void MainWindow::TellIfNothingIsKept() {
  if (desk_.keeps) return;
  ShowMessage<Msg::kNothingKept>(game_, With<"folder">(game_.dataFolder));
}

bool MainWindow::IsUnderWay() const {
  return game_.table.RollInProgress || game_.autobet.ScriptInitializing || working_ > 0;
}

// A game is written between rolls only, so that it can go on where it stood.
void MainWindow::Autosave() {
  if (!autosaveDue_ || !desk_.keeps || closing_ || starting_) return;
  autosaveDue_ = false;
  // A Turbo-Roll tells of its end only.
  if (!std::exchange(changed_, false) && !game_.table.AutoRollActive) return;
  KeepScreen(desk_);
  std::string error;
  if (!AutosaveGame(game_, error)) statusBar()->showMessage(FromCore(error), kToldFor);
}

bool MainWindow::KeepForSessionEnd(bool mayAsk) {
  if (mayAsk && !(StopRunFirst(desk_) && MayClose(desk_))) return false;
  agreed_ = mayAsk;
  // The close that follows waits for the roll's end.
  if (IsUnderWay()) return true;
  if (mayAsk) return KeepGame(desk_);
  if (const std::string problem = KeepGameUnasked(desk_); !problem.empty())
    std::fprintf(stderr, "tessaryn: %s\n", problem.c_str());
  return true;
}

void MainWindow::CloseUnasked() {
  if (closing_) return;
  closing_ = true;
  for (const std::string& problem : {KeepGameUnasked(desk_), CloseFiles(desk_)})
    if (!problem.empty()) std::fprintf(stderr, "tessaryn: %s\n", problem.c_str());
  close();
}

// What is under way goes on below this: the close comes again when it has ended.
void MainWindow::closeEvent(QCloseEvent* event) {
  if (closing_) return event->accept();
  event->ignore();
  if (std::exchange(asking_, true)) return;
  closesLater_ = false;
  if (StopRunFirst(desk_)) {
    closesLater_ = IsUnderWay();
    if (closesLater_)
      QTimer::singleShot(kLookAgain, this, &QWidget::close);
    else
      closing_ = (agreed_ || MayClose(desk_)) && KeepGame(desk_);
  }
  asking_ = false;
  if (!closing_) return;
  if (const std::string problem = CloseFiles(desk_); !problem.empty())
    ShowMessage<Msg::kFileFailed>(game_, With<"problem">(problem));
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DroppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

// Its questions wait until the program that it comes from has been let go.
void MainWindow::dropEvent(QDropEvent* event) {
  const std::string path = DroppedFile(*event->mimeData()).toStdString();
  event->acceptProposedAction();
  QTimer::singleShot(0, this, [this, path] {
    if (IsFree(desk_) && table_->CommitEntry() && AskBeforeCommand(game_)) OpenAnyFile(desk_, path);
  });
}

}  // namespace tessaryn
