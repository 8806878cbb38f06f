// The main window at play: what the table, its host and the keyboard bring.
#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>
#include <utility>

#include "play/auto_roll.h"
#include "play/hot_keys.h"
#include "play/players.h"
#include "shell/frame/commands.h"
#include "shell/frame/main_window.h"
#include "shell/frame/screen_manners.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/join_screen.h"
#include "shell/table/amount_selector.h"
#include "shell/table/bet_tips.h"
#include "shell/table/board.h"
#include "shell/table/number_habit.h"
#include "shell/table/run_controls.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_accessible.h"
#include "shell/table/table_touch.h"
#include "shell/table/turbo_panel.h"
#include "state/show_message.h"

namespace tessaryn {

void MainWindow::ConnectTable() {
  new BetTip(*table_, game_, desk_.commands);
  new TableTouch(*table_, game_, desk_.commands);
  AnnounceRoll(*table_, game_);
  connect(table_, &TableWidget::areaFocused, this, [this] { TellAreaFocus(*table_); });
  connect(table_, &TableWidget::toldAnew, this, [this] { TellTableChanged(*table_); });
  connect(table_, &TableWidget::betClicked, this, &MainWindow::OnBetClicked);
  connect(table_, &TableWidget::betMoved, this, &MainWindow::OnBetMoved);
  connect(table_, &TableWidget::seatClicked, this, &MainWindow::OnSeatClicked);
  connect(table_, &TableWidget::rightClicked, this, [this] {
    NoteActivity(game_);
    desk_.movingSeat = 0;
    table_->scene.movingPlayer = false;
    RightClick(game_, desk_.commands);
    table_->Refresh();
    RefreshCommands();
  });
  connect(table_, &TableWidget::pointedAt, this, &MainWindow::ShowPointer);
  connect(table_, &TableWidget::wheelZoomed, this, [this] { ShowView(desk_, ""); });
  connect(stage_, &TableStage::seatChosen, this, &MainWindow::OnSeatClicked);
  connect(stage_, &TableStage::plateMenuWanted, this, &MainWindow::OpenPlateMenu);
  connect(&stage_->TheBoard(), &Board::guideSkipped, this, &MainWindow::EndGuide);
  connect(&stage_->TheBoard(), &Board::winsChosen, this, [this](bool ask) {
    ChooseWinHandling(game_, ask);
    EndGuide();
  });
  connect(amounts_, &AmountSelector::amountChanged, this, [this] {
    desk_.commands.ClickAmount = amounts_->Amount();
    table_->RefreshPointer();
  });
  connect(controls_, &RunControls::rollPressed, this, [this] { actions_["mnuRollDice"]->trigger(); });
  connect(controls_, &RunControls::passPressed, this, [this] { actions_["mnuPassDice"]->trigger(); });
  connect(controls_, &RunControls::turboPressed, this, [this] { actions_["mnuTurboRoll"]->trigger(); });
  connect(controls_, &RunControls::throttleMoved, this,
          [this](int position) { SetThrottle(game_, position); });
  connect(turbo_, &TurboPanel::stopPressed, this, [this] {
    if (game_.table.AutoRollActive) ToggleAutoRoll(game_);
  });
}

void MainWindow::ConnectHost() {
  host_.window = this;
  host_.changed = [this](Game&, Change change) { OnChanged(change); };
  host_.beforeBox = [this] {
    ShowState();
    ShowRefusal();
  };
  host_.showThrow = [this](Game&) { table_->ShowThrow(); };
  host_.showWin = [this](Game&) { table_->RainChecks(); };
  host_.showStep = [this](Game&, const ScriptStep& step) { ShowScriptStep(desk_, step); };
  host_.betweenRolls = [this](Game&) { Autosave(); };
  host_.showProgress = [this](Game& game) {
    turbo_->Refresh(game);
    stage_->Refresh(true);
    RefreshTools(desk_);
  };
  host_.diceThrown = [this](const Game& game) { settling_.DiceThrown(game); };
  host_.askSettlement = [this](Game& game, const SettleQuestion& question) {
    return settling_.Ask(game, question);
  };
}

void MainWindow::OnChanged(Change change) {
  changed_ = true;
  agreed_ = false;
  if (!game_.table.RollInProgress) settledThrows_ = Throws(game_.stats);
  if (change == Change::kSettings) Speak();
  if (change == Change::kEverything) settling_.RollEnded(game_);
  if (change == Change::kRun) return OnRunChanged();
  if (game_.table.TurboRollActive) return;
  if (change == Change::kSettings) {
    TakeFontSize(game_.settings.ScreenFontSize);
    TakePreferences();
    table_->RebuildLayout();
    amounts_->RefreshChecks();
    TakeMeasures();
  }
  if (change == Change::kEverything) {
    ShowFallenDice();
    settledThrows_ = Throws(game_.stats);
    ShowBoard(true);
  }
  if (change == Change::kEverything) AnnounceRoll(*table_, game_);
  table_->Refresh();
  RefreshSoon();
}

void MainWindow::ShowFallenDice() {
  const DicePose& shown = table_->scene.dice;
  if (shown.Face1 != game_.table.Die1 || shown.Face2 != game_.table.Die2) table_->PlaceDice();
}

void MainWindow::ShowState() {
  ShowFallenDice();
  // Checks that rained lie there while the box that tells why is read.
  auto rain = std::move(table_->scene.rain);
  table_->Refresh();
  table_->scene.rain = std::move(rain);
  RefreshCommands();
}

// What covers the table follows its size, as when a tool window is docked in a run.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == stage_ && event->type() == QEvent::Resize) turbo_->setGeometry(stage_->FeltRoom());
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::OnRunChanged() {
  // Nobody looks at a run of hours: what was there before it is kept.
  if (game_.table.AutoRollActive && !game_.table.RollInProgress) {
    autosaveDue_ = true;
    Autosave();
  }
  const bool turbo = game_.table.TurboRollActive;
  if (turbo && !turbo_->isVisible()) {
    turbo_->setGeometry(stage_->FeltRoom());
    turbo_->Begin(game_);
    turbo_->show();
    turbo_->raise();
    turbo_->setFocus();
  } else if (!turbo && turbo_->isVisible()) {
    table_->setFocus();
    turbo_->hide();
    table_->PlaceDice();
    table_->Refresh();
    badgesOf_ = Throws(game_.stats);
  }
  runEndedUnseen_ = isMinimized() && !game_.table.AutoRollActive;
  RefreshCommands();
}

// Betting goes on between the rolls of an Auto-Roll; not while a script or a Turbo-Roll is at work.
bool MainWindow::MayBet() {
  NoteActivity(game_);
  if (!IsFree(desk_)) return false;
  if (!game_.table.TurboRollActive && !game_.autobet.ScriptRunning) return true;
  AskBeforeCommand(game_);
  return false;
}

void MainWindow::OnBetMoved(int from, int to) {
  if (!MayBet()) return;
  AsBetStep(desk_.commands.History, game_, [&] { MoveBet(game_, from, to); });
  RefreshCommands();
}

void MainWindow::OnBetClicked(BetId bet, bool alt) {
  if (!MayBet()) return;
  if (!IsOccupied(game_.table, game_.table.SelectedSeat)) {
    ShowMessage<Msg::kClickOpenPosition>(game_);
    return;
  }
  clickedBet_ = bet;
  const bool keyedIn = ClickBet(game_, desk_.commands, bet, alt);
  clickedBet_ = 0;
  if (keyedIn) table_->OpenEntry(bet);
  table_->Refresh();
  RefreshCommands();
  ShowPointer(bet);
}

void MainWindow::OnSeatClicked(SeatId seat) {
  NoteActivity(game_);
  if (!IsFree(desk_)) return;
  if (IsOccupied(game_.table, seat)) {
    if (desk_.movingSeat == 0) SelectSeat(game_, seat);
  } else {
    if (!AskBeforeCommand(game_)) return;
    if (desk_.movingSeat != 0) {
      std::string error;
      if (!MovePlayer(game_, std::exchange(desk_.movingSeat, 0), seat, error))
        ShowMessage<Msg::kPlayerNotMoved>(game_, With<"problem">(error));
      table_->scene.movingPlayer = false;
    } else if (AskJoin(game_, seat, this)) {
      SelectSeat(game_, seat);
    }
  }
  table_->Refresh();
  RefreshCommands();
}

void MainWindow::ShowPointer(BetId bet) {
  const QString text = PointerText(game_, desk_.commands, bet);
  pointer_->setText(text);
  pointer_->setToolTip(text);
}

// --- Keys that have no modifier, and the hot-keys.

void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (HotKeyPressed(event) || AmountKeyPressed(event)) return;
  if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
    if (event->key() == Qt::Key_Escape && (GiveUp(desk_.commands) || desk_.movingSeat != 0)) {
      desk_.movingSeat = 0;
      table_->scene.movingPlayer = false;
      table_->Refresh();
      return RefreshCommands();
    }
    if (const CommandRow* command = PlainKeyCommand(event->key()); command != nullptr)
      return RunCommand(*command);
    // A digit is a click on that place at the rail: its player, or a new one.
    if (event->key() >= Qt::Key_1 && event->key() < Qt::Key_1 + kSeats)
      return OnSeatClicked(event->key() - Qt::Key_1 + 1);
    const bool back = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if (back || event->key() == Qt::Key_Right || event->key() == Qt::Key_Down) {
      const SeatId seat = NextSeat(game_, back ? -1 : 1);
      if (seat == game_.table.SelectedSeat && seat != 0) {
        // Alone at the table: there is nobody to go to, so the arrows walk the bets.
        table_->SetFocusBet(kPassLine, seat <= 4 ? 1 : 2);
      } else if (seat != 0) {
        SelectSeat(game_, seat);
        table_->Refresh();
        RefreshCommands();
      }
      return;
    }
  }
  QMainWindow::keyPressEvent(event);
}

// Alt and a digit is the check of that place, plus and minus the next larger and smaller one.
bool MainWindow::AmountKeyPressed(QKeyEvent* event) {
  const Currency* checks = game_.settings.CheckValue;
  const int key = event->key();
  const Qt::KeyboardModifiers keys = event->modifiers() & ~Qt::KeypadModifier;
  if (keys == Qt::AltModifier && key >= Qt::Key_1 && key <= Qt::Key_5) {
    amounts_->SetAmount(checks[key - Qt::Key_1 + 1]);
    return true;
  }
  if ((keys & ~Qt::ShiftModifier) != 0 || (key != Qt::Key_Plus && key != Qt::Key_Minus)) return false;
  const Currency now = amounts_->Amount();
  Currency next = now;
  for (int n = 1; n <= 5; ++n) {
    if (key == Qt::Key_Plus ? next == now && checks[n] > now : checks[n] < now) next = checks[n];
  }
  amounts_->SetAmount(next);
  return true;
}

bool MainWindow::HotKeyPressed(QKeyEvent* event) {
  if (event->modifiers() != Qt::ControlModifier || !IsFree(desk_)) return false;
  const int key = event->key();
  const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
  const bool digit = key >= Qt::Key_0 && key <= Qt::Key_9;
  if (!letter && !digit) return false;
  const char typed = static_cast<char>(letter ? 'a' + (key - Qt::Key_A) : '0' + (key - Qt::Key_0));
  const std::vector<HotKey> hotKeys = game_.screen.HotKeys;
  const bool known =
      std::any_of(hotKeys.begin(), hotKeys.end(), [&](const HotKey& hot) { return hot.key == typed; });
  if (!known || !AskBeforeCommand(game_)) return known;
  ++working_;
  PressHotKey(game_, hotKeys, typed);
  --working_;
  table_->Refresh();
  RefreshCommands();
  return true;
}

}  // namespace tessaryn
