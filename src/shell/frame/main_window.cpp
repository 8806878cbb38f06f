#include "shell/frame/main_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <cstdio>
#include <filesystem>

#include "base/bet_catalogue.h"
#include "base/program_folders.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/script_session.h"
#include "play/table_files.h"
#include "rules/bet_rules.h"
#include "rules/shooter.h"
#include "shell/frame/sounds.h"
#include "shell/screens/about.h"
#include "shell/screens/atm.h"
#include "shell/screens/auto_play.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/move_panel.h"
#include "shell/screens/new_session.h"
#include "shell/screens/roll_pad.h"
#include "shell/screens/settle_bet.h"
#include "shell/table/amount_selector.h"
#include "shell/table/pictures.h"
#include "shell/table/run_controls.h"
#include "shell/table/screen_tools.h"
#include "shell/table/turbo_panel.h"
#include "state/game.h"

namespace tessaryn {

// --- The menu.

// A menu entry. key: a shortcut as text; a plain key without a modifier is handled by keyPressEvent, so that
// it can be typed into entry boxes. asks: whether a run must be stopped first.
struct MainWindow::CommandFacts {
  const char* menu;  // null: a separator in the menu before
  const char* name;
  const char* caption;
  const char* key;
  bool checkable;
  bool asks;
  void (MainWindow::*act)();
  bool (MainWindow::*enabled)() const;
};

#define TITLE(text) QT_TRANSLATE_NOOP("tessaryn::MainWindow", text)
const MainWindow::CommandFacts MainWindow::kCommands[] = {
    {TITLE("&Game"), "mnuNew", TITLE("&New ..."), "Ctrl+Shift+N", false, true, &MainWindow::NewGame,
     &MainWindow::HasPlayer},
    {TITLE("&Game"), "mnuSound", TITLE("&Sound"), nullptr, true, false, &MainWindow::ToggleSound,
     &MainWindow::Always},
    {TITLE("&Game"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&Game"), "mnuExit", TITLE("E&xit"), "Ctrl+Shift+Q", false, false, nullptr, &MainWindow::Always},

    {TITLE("&Players"), "mnuPlayerAdd", TITLE("&Add ..."), nullptr, false, true, &MainWindow::AddAPlayer,
     &MainWindow::HasOpenPlace},
    {TITLE("&Players"), "mnuPlayerRename", TITLE("&Rename ..."), nullptr, false, true,
     &MainWindow::RenameSelected, &MainWindow::HasPlayer},
    {TITLE("&Players"), "mnuPlayerMove", TITLE("&Move"), nullptr, false, true, &MainWindow::MoveSelected,
     &MainWindow::CanMove},
    {TITLE("&Players"), "mnuPlayerDelete", TITLE("R&emove ..."), nullptr, false, true,
     &MainWindow::RemoveSelected, &MainWindow::HasPlayer},
    {TITLE("&Players"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&Players"), "mnuAtm", TITLE("A&TM ..."), nullptr, false, true, &MainWindow::OpenAtm,
     &MainWindow::CanAtm},
    {TITLE("&Players"), "mnuAutoPlay", TITLE("Auto-&Play ..."), "F3", false, true, &MainWindow::OpenAutoPlay,
     &MainWindow::HasPlayer},

    {TITLE("&Bets"), "mnuKeyInBetAmounts", TITLE("&Key in bet amounts"), "F9", true, false,
     &MainWindow::KeyInAmounts, &MainWindow::Always},
    {TITLE("&Bets"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&Bets"), "mnuBuyPlaceBet", TITLE("&Buy a Place bet"), "F5", true, true, &MainWindow::BuyNext,
     &MainWindow::HasPlayer},
    {TITLE("&Bets"), "mnuCallBetOn", TITLE("Call a bet &ON"), "F6", true, true, &MainWindow::CallNextOn,
     &MainWindow::HasPlayer},
    {TITLE("&Bets"), "mnuCallBetOff", TITLE("Call a bet O&FF"), "F7", true, true, &MainWindow::CallNextOff,
     &MainWindow::HasPlayer},
    {TITLE("&Bets"), "mnuCallAllBetsOn", TITLE("Call all bets O&N"), nullptr, false, true,
     &MainWindow::CallAllOn, &MainWindow::HasCallableBet},
    {TITLE("&Bets"), "mnuCallAllBetsOff", TITLE("&Call all bets OFF"), nullptr, false, true,
     &MainWindow::CallAllOff, &MainWindow::HasCallableBet},
    {TITLE("&Bets"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&Bets"), "mnuTakeFullOdds", TITLE("&Take full odds"), nullptr, false, true, &MainWindow::TakeFull,
     &MainWindow::CanTakeOdds},
    {TITLE("&Bets"), "mnuLayFullOdds", TITLE("&Lay full odds"), nullptr, false, true, &MainWindow::LayFull,
     &MainWindow::CanLayOdds},
    {TITLE("&Bets"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&Bets"), "mnuRemoveBet", TITLE("&Remove a bet"), "Del", true, true, &MainWindow::RemoveNext,
     &MainWindow::HasPlayer},
    {TITLE("&Bets"), "mnuMoveBet", TITLE("&Move a bet"), nullptr, true, true, &MainWindow::MoveNext,
     &MainWindow::HasPlayer},
    {TITLE("&Bets"), "mnuRemoveAllBets", TITLE("Remove &all bets"), nullptr, false, true,
     &MainWindow::RemoveAll, &MainWindow::HasBets},

    {TITLE("&Dice"), "mnuRollDice", TITLE("&Roll the dice"), "F2", false, true, &MainWindow::Roll,
     &MainWindow::Free},
    {TITLE("&Dice"), "mnuPassDice", TITLE("&Pass the dice"), "P", false, true, &MainWindow::Pass,
     &MainWindow::CanPass},
    {TITLE("&Dice"), "mnuRollYourOwnNumbers", TITLE("Roll your &own numbers"), "F12", true, false,
     &MainWindow::OpenPadWindow, &MainWindow::Always},
    {TITLE("&Dice"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&Dice"), "mnuTurboRoll", TITLE("Start &Turbo-Roll"), "Ctrl+Return", false, false,
     &MainWindow::ToggleRun, &MainWindow::CanToggle},
    {TITLE("&Dice"), "mnuSetAutoRollTimeDelay", TITLE("Set Auto-Roll time &delay ..."), nullptr, false, true,
     &MainWindow::SetDelay, &MainWindow::Free},
    {TITLE("&Dice"), "mnuSetAutoStop", TITLE("Set Auto-&Stop ..."), nullptr, false, true,
     &MainWindow::SetStop, &MainWindow::Free},
    {TITLE("&Dice"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&Dice"), "mnuOpenProbabilities", TITLE("Open pro&bability file ..."), nullptr, false, true,
     &MainWindow::OpenProbabilities, &MainWindow::Free},
    {TITLE("&Dice"), "mnuPercentageDice", TITLE("Per&centage dice"), nullptr, true, true,
     &MainWindow::UsePercentageDice, &MainWindow::HasProbabilities},
    {TITLE("&Dice"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&Dice"), "mnuPlayRollFile", TITLE("Pla&y a dice roll file ..."), nullptr, false, true,
     &MainWindow::PlayRollFile, &MainWindow::Free},
    {TITLE("&Dice"), "mnuRecordRollFile", TITLE("R&ecord a dice roll file ..."), nullptr, false, true,
     &MainWindow::RecordRollFile, &MainWindow::Free},
    {TITLE("&Dice"), "mnuCloseRollFile", TITLE("C&lose the dice roll file"), "Esc", false, true,
     &MainWindow::CloseRollFileNow, &MainWindow::RollFileOpen},

    {TITLE("A&uto-Bet"), "mnuOpenScript", TITLE("&Open script ..."), nullptr, false, true,
     &MainWindow::OpenScriptFile, &MainWindow::HasPlayer},
    {TITLE("A&uto-Bet"), "mnuActivateScript", TITLE("&Active"), nullptr, true, true,
     &MainWindow::ActivateSelected, &MainWindow::HasScript},
    {TITLE("A&uto-Bet"), "mnuInitialiseScripts", TITLE("&Initialize"), nullptr, false, true,
     &MainWindow::InitialiseAll, &MainWindow::AnyScript},
    {TITLE("A&uto-Bet"), "mnuStopAutobetting", TITLE("&Stop auto-betting"), nullptr, false, false,
     &MainWindow::StopScripts, &MainWindow::ScriptsRun},
    {TITLE("A&uto-Bet"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("A&uto-Bet"), "mnuHotKey", TITLE("Assign a &hot-key ..."), nullptr, false, true,
     &MainWindow::ChooseHotKey, &MainWindow::Free},

    {TITLE("&View"), "mnuDisplayBetAmounts", TITLE("Bet &amounts"), "F11", true, false,
     &MainWindow::ShowAmounts, &MainWindow::Always},
    {TITLE("&View"), "mnuFlashBets", TITLE("&Flash the bets"), "Space", false, false, &MainWindow::Flash,
     &MainWindow::HasBets},
    {TITLE("&View"), "mnuDisplayPropBets", TITLE("&Proposition bets"), "C", true, false,
     &MainWindow::ShowPropositions, &MainWindow::Always},
    {TITLE("&View"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&View"), "mnuTableMove", TITLE("&Move, zoom and rotate"), "Z", true, false,
     &MainWindow::OpenMoveWindow, &MainWindow::Always},
    {TITLE("&View"), "mnuZoomIn", TITLE("Zoom &in"), "Ctrl++", false, false, &MainWindow::ZoomInView,
     &MainWindow::Always},
    {TITLE("&View"), "mnuZoomOut", TITLE("Zoom &out"), "Ctrl+-", false, false, &MainWindow::ZoomOutView,
     &MainWindow::Always},
    {TITLE("&View"), "mnuRotate", TITLE("&Rotate by 30 degrees"), nullptr, false, false,
     &MainWindow::RotateView, &MainWindow::Always},
    {TITLE("&View"), nullptr, nullptr, nullptr, false, false, nullptr, nullptr},
    {TITLE("&View"), "mnuViewWhole", TITLE("&Whole table"), nullptr, true, false, &MainWindow::WholeView,
     &MainWindow::Always},
    {TITLE("&View"), "mnuViewLeft", TITLE("&Left end"), nullptr, true, false, &MainWindow::LeftEndView,
     &MainWindow::Always},
    {TITLE("&View"), "mnuViewRight", TITLE("Ri&ght end"), nullptr, true, false, &MainWindow::RightEndView,
     &MainWindow::Always},

    {TITLE("&Help"), "mnuKeys", TITLE("&Keys and mouse"), "F1", false, false, &MainWindow::ShowKeys,
     &MainWindow::Always},
    {TITLE("&Help"), "mnuAbout", TITLE("&About Tessaryn"), nullptr, false, false, &MainWindow::OpenAbout,
     &MainWindow::Always},
};
#undef TITLE

namespace {

constexpr const char* kPresetViews[] = {"mnuViewWhole", "mnuViewLeft", "mnuViewRight"};

// Keys without a modifier stay free for entry boxes.
bool IsPlainKey(const QString& key) {
  return key.size() == 1 || key == "Space" || key == "Esc" || key == "Del";
}

int PlainKeyCode(const QString& key) {
  if (key == "Space") return Qt::Key_Space;
  if (key == "Esc") return Qt::Key_Escape;
  if (key == "Del") return Qt::Key_Delete;
  return key.size() == 1 ? key[0].unicode() : 0;
}

}  // namespace

MainWindow::MainWindow(Game& game, ShellHost& host) : game_(game), host_(host) {
  setObjectName("frmCrapTable");
  setWindowIcon(ProgramIcon());
  BuildBody();
  BuildMenu();
  ConnectTable();
  ConnectHost();
  Retranslate();
  std::string error;
  if (!ReadHotKeys(game_.dataFolder + kHotKeysFile, hotKeys_, error))
    QTimer::singleShot(0, this, [this, error] { ShowMessage(game_, "Hot-Keys", error); });
  RefreshCommands();
}

MainWindow::~MainWindow() {
  host_.changed = nullptr;
  host_.beforeBox = nullptr;
  host_.showThrow = nullptr;
  host_.showWin = nullptr;
  host_.showProgress = nullptr;
  host_.askSettlement = nullptr;
}

void MainWindow::BuildBody() {
  auto* body = new QWidget(this);
  auto* column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  table_ = new TableWidget(game_, commands_, body);
  column->addWidget(table_, 1);
  auto* bar = new QHBoxLayout;
  bar->setContentsMargins(4, 2, 4, 2);
  amounts_ = new AmountSelector(game_, body);
  controls_ = new RunControls(body);
  bar->addWidget(amounts_);
  bar->addStretch();
  bar->addWidget(controls_);
  column->addLayout(bar);
  setCentralWidget(body);
  turbo_ = new TurboPanel(table_);
  turbo_->hide();
  pointer_ = new QLabel(this);
  pointer_->setObjectName("lblPointer");
  // A long line must not widen the window.
  pointer_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  status_ = new QLabel(this);
  status_->setObjectName("lblStatus");
  statusBar()->addWidget(pointer_, 1);
  statusBar()->addPermanentWidget(status_);
  commands_.ClickAmount = amounts_->Amount();
  table_->setFocus();
}

void MainWindow::BuildMenu() {
  QMenu* menu = nullptr;
  const char* title = nullptr;
  for (const CommandFacts& facts : kCommands) {
    if (menu == nullptr || std::string_view(title) != facts.menu) {
      if (menu != nullptr && std::string_view(title) == "&View") BuildViewMenus();
      title = facts.menu;
      menu = menuBar()->addMenu(title);
      menus_.push_back(menu);
    }
    if (facts.name == nullptr) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(facts.caption);
    action->setObjectName(facts.name);
    action->setCheckable(facts.checkable);
    if (facts.key != nullptr && !IsPlainKey(facts.key)) action->setShortcut(QKeySequence(facts.key));
    connect(action, &QAction::triggered, this, [this, &facts] { RunCommand(facts); });
    connect(menu, &QMenu::aboutToShow, this, [this] { RefreshCommands(); });
    actions_[facts.name] = action;
  }
}

void MainWindow::BuildViewMenus() {
  QMenu* view = menus_.back();
  view->addSeparator();
  QMenu* restore = view->addMenu(tr("R&estore view"));
  restore->menuAction()->setObjectName("mnuRestoreView");
  QMenu* save = view->addMenu(tr("&Save view"));
  save->menuAction()->setObjectName("mnuSaveView");
  for (int n = 0; n < kSavedViews; ++n) {
    saveViews_.push_back(save->addAction(tr("View %1").arg(n)));
    connect(saveViews_.back(), &QAction::triggered, this, [this, n] {
      SaveView(table_->view, n);
      RefreshCommands();
    });
    restoreViews_.push_back(restore->addAction(tr("View %1").arg(n)));
    connect(restoreViews_.back(), &QAction::triggered, this, [this, n] {
      if (RestoreView(table_->view, n)) NewView("");
    });
  }
}

QAction* MainWindow::Command(const char* name) const {
  const auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

void MainWindow::Retranslate() {
  setWindowTitle(tr("Tessaryn"));
  std::size_t menu = 0;
  const char* title = nullptr;
  for (const CommandFacts& facts : kCommands) {
    if (title == nullptr || std::string_view(title) != facts.menu) {
      title = facts.menu;
      menus_[menu++]->setTitle(tr(title));
    }
    if (facts.name == nullptr) continue;
    QString text = tr(facts.caption);
    if (facts.key != nullptr && IsPlainKey(facts.key)) text += "\t" + QString(facts.key);
    actions_[facts.name]->setText(text);
  }
  RefreshCommands();
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) Retranslate();
  QMainWindow::changeEvent(event);
}

void MainWindow::RunCommand(const CommandFacts& facts) {
  NoteActivity(game_);
  if (facts.act == nullptr) {
    close();
    return;
  }
  RefreshCommands();
  if (!actions_[facts.name]->isEnabled()) return;
  // A pending bet amount is taken before anything else happens.
  if (!table_->CommitEntry()) return;
  if (facts.asks && !AskBeforeCommand(game_)) return RefreshCommands();
  (this->*facts.act)();
  RefreshCommands();
}

// --- When a command can act.

bool MainWindow::Free() const { return !game_.table.RollInProgress || game_.table.AutoRollActive; }
bool MainWindow::HasPlayer() const { return Free() && IsOccupied(game_.table, game_.table.SelectedSeat); }
bool MainWindow::HasBets() const {
  return HasPlayer() && !game_.table.seats[game_.table.SelectedSeat].SeatBets.Empty();
}
bool MainWindow::HasCallableBet() const {
  return HasPlayer() && game_.table.seats[game_.table.SelectedSeat].SeatBets.Meets(CallableBets());
}
bool MainWindow::HasOpenPlace() const { return Free() && game_.table.OccupiedSeats < kSeats; }
bool MainWindow::CanMove() const { return HasPlayer() && HasOpenPlace(); }
bool MainWindow::CanPass() const { return Free() && game_.table.OccupiedSeats > 0; }
bool MainWindow::CanAtm() const { return HasPlayer() && game_.settings.AtmEnabled; }
bool MainWindow::CanTakeOdds() const {
  const BetSet& up = game_.table.seats[game_.table.SelectedSeat].SeatBets;
  return HasPlayer() &&
         ((up.Has(kPassLine) && game_.table.Point != 0) || up.Meets(BetRange(kCome4, kCome4 + 5)));
}
bool MainWindow::CanLayOdds() const {
  const BetSet& up = game_.table.seats[game_.table.SelectedSeat].SeatBets;
  return HasPlayer() &&
         ((up.Has(kDontPass) && game_.table.Point != 0) || up.Meets(BetRange(kDontCome4, kDontCome4 + 5)));
}
bool MainWindow::HasScript() const {
  return HasPlayer() && !game_.autobet.Scripts[game_.table.SelectedSeat].ScriptLines.empty();
}
bool MainWindow::ScriptsRun() const { return game_.autobet.ScriptRunning || game_.autobet.ScriptActive[0]; }
bool MainWindow::AnyScript() const { return Free() && game_.autobet.ScriptActive[0]; }
bool MainWindow::HasProbabilities() const { return Free(); }
bool MainWindow::RollFileOpen() const { return Free() && IsRollFileOpen(game_.rollFile); }
bool MainWindow::CanToggle() const { return game_.table.AutoRollActive || !game_.table.RollInProgress; }

void MainWindow::RefreshSoon() {
  if (refreshPending_) return;
  refreshPending_ = true;
  QTimer::singleShot(0, this, [this] {
    refreshPending_ = false;
    RefreshCommands();
  });
}

void MainWindow::RefreshCommands() {
  for (const CommandFacts& facts : kCommands)
    if (facts.name != nullptr) actions_[facts.name]->setEnabled((this->*facts.enabled)());
  const auto check = [this](const char* name, bool on) { actions_[name]->setChecked(on); };
  check("mnuSound", !game_.settings.DisableAllSound);
  check("mnuKeyInBetAmounts", commands_.BetAmountMode == tessaryn::kKeyInAmounts);
  check("mnuBuyPlaceBet", commands_.PendingAction == kPendingBuy);
  check("mnuCallBetOn", commands_.PendingAction == kPendingCallOn);
  check("mnuCallBetOff", commands_.PendingAction == kPendingCallOff);
  check("mnuRemoveBet", commands_.PendingAction == kPendingRemove);
  check("mnuMoveBet", commands_.PendingAction == kPendingMove || commands_.Moving.Bet != 0);
  check("mnuRollYourOwnNumbers", pad_ != nullptr && pad_->isVisible());
  check("mnuTableMove", mover_ != nullptr && mover_->isVisible());
  check("mnuDisplayBetAmounts", table_->scene.showAmounts);
  check("mnuDisplayPropBets", beforePropositions_.TableZoom != 0);
  check("mnuPercentageDice", game_.percentage.PercentageDiceActive);
  check("mnuActivateScript",
        game_.autobet.ScriptActive[game_.table.SelectedSeat] && game_.table.SelectedSeat > 0);
  actions_["mnuTurboRoll"]->setText(RunCaption(game_));
  for (int n = 0; n < kSavedViews && n < static_cast<int>(restoreViews_.size()); ++n)
    restoreViews_[n]->setEnabled(table_->view.SavedViews[n].TableZoom >= kMinimumZoom);
  controls_->Refresh(game_);
  if (pad_ != nullptr) pad_->Refresh();
  ShowTableStatus();
}

void MainWindow::ShowTableStatus() {
  const TableState& table = game_.table;
  QStringList parts{tr("Roll %1").arg(QLocale().toString(static_cast<qlonglong>(SessionRolls(game_.stats))))};
  parts += table.Point == 0 ? tr("Come-out") : tr("Point %1").arg(table.Point);
  if (table.ShooterSeat != 0)
    parts += tr("Shooter: %1").arg(FromCore(table.seats[table.ShooterSeat].SeatName));
  status_->setText(parts.join("   "));
}

// --- The table.

void MainWindow::ConnectTable() {
  connect(table_, &TableWidget::betClicked, this, &MainWindow::OnBetClicked);
  connect(table_, &TableWidget::betMoved, this, &MainWindow::OnBetMoved);
  connect(table_, &TableWidget::seatClicked, this, &MainWindow::OnSeatClicked);
  connect(table_, &TableWidget::rightClicked, this, [this] {
    NoteActivity(game_);
    movingSeat_ = 0;
    table_->scene.movingPlayer = false;
    RightClick(game_, commands_);
    table_->Refresh();
    RefreshCommands();
  });
  connect(table_, &TableWidget::pointedAt, this, &MainWindow::ShowPointer);
  connect(table_, &TableWidget::wheelZoomed, this, [this] { NewView(""); });
  connect(amounts_, &AmountSelector::amountChanged, this, [this] {
    commands_.ClickAmount = amounts_->Amount();
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
  host_.beforeBox = [this] { ShowState(); };
  host_.showThrow = [this](Game&) { table_->ShowThrow(); };
  host_.showWin = [this](Game&) { table_->RainChecks(); };
  host_.showProgress = [this](Game& game) { turbo_->Refresh(game); };
  host_.askSettlement = [this](Game& game, const SettleQuestion& question) {
    return AskSettleBet(this, game, question);
  };
}

void MainWindow::OnChanged(Change change) {
  if (change == Change::kRun) return OnRunChanged();
  if (game_.table.TurboRollActive) return;
  if (change == Change::kSettings) {
    amounts_->RefreshChecks();
    table_->RebuildLayout();
  }
  if (change == Change::kEverything) ShowFallenDice();
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

void MainWindow::OnRunChanged() {
  const bool turbo = game_.table.TurboRollActive;
  if (turbo && !turbo_->isVisible()) {
    turbo_->setGeometry(table_->rect());
    turbo_->Begin(game_);
    turbo_->show();
    turbo_->raise();
    turbo_->setFocus();
  } else if (!turbo && turbo_->isVisible()) {
    table_->setFocus();
    turbo_->hide();
    table_->PlaceDice();
    table_->Refresh();
  }
  if (isMinimized() && !game_.table.AutoRollActive)
    setWindowTitle(tr("Tessaryn Turbo-Roll Stopped"));
  else
    setWindowTitle(tr("Tessaryn"));
  RefreshCommands();
}

// Betting goes on between the rolls of an Auto-Roll; not while a script or a Turbo-Roll is at work.
bool MainWindow::MayBet() {
  NoteActivity(game_);
  if (!Free()) return false;
  if (!game_.table.TurboRollActive && !game_.autobet.ScriptRunning) return true;
  AskBeforeCommand(game_);
  return false;
}

void MainWindow::OnBetMoved(int from, int to) {
  if (!MayBet()) return;
  MoveBet(game_, from, to);
  RefreshCommands();
}

void MainWindow::OnBetClicked(int bet, bool alt) {
  if (!MayBet()) return;
  if (!IsOccupied(game_.table, game_.table.SelectedSeat)) {
    ShowMessage(game_, "Add a Player", "Click an open position on the rail to add a player.",
                kMsgOk | kMsgAlert);
    return;
  }
  if (ClickBet(game_, commands_, bet, alt)) table_->OpenEntry(bet);
  table_->Refresh();
  RefreshCommands();
  ShowPointer(bet);
}

void MainWindow::OnSeatClicked(int seat) {
  NoteActivity(game_);
  if (!Free()) return;
  if (IsOccupied(game_.table, seat)) {
    if (movingSeat_ == 0) SelectSeat(game_, seat);
  } else {
    if (!AskBeforeCommand(game_)) return;
    if (movingSeat_ != 0) {
      std::string error;
      if (!MovePlayer(game_, std::exchange(movingSeat_, 0), seat, error))
        ShowMessage(game_, "Move Player", error);
      table_->scene.movingPlayer = false;
    } else if (AddPlayer(game_, seat)) {
      SelectSeat(game_, seat);
    }
  }
  table_->Refresh();
  RefreshCommands();
}

void MainWindow::ShowPointer(int bet) {
  const QString text = PointerText(game_, commands_, bet);
  pointer_->setText(text);
  pointer_->setToolTip(text);
}

// --- Commands.

void MainWindow::NewGame() {
  NewSessionScreen screen(game_, this);
  RunDialog(screen);
  table_->Refresh();
}

void MainWindow::ToggleSound() {
  game_.settings.DisableAllSound = !game_.settings.DisableAllSound;
  if (game_.settings.DisableAllSound && host_.sounds != nullptr) host_.sounds->Stop();
}

void MainWindow::AddAPlayer() {
  ShowMessage(game_, "Add a Player", "Click an open position on the rail to add a player.",
              kMsgOk | kMsgAlert);
}

void MainWindow::RenameSelected() { RenamePlayer(game_); }

void MainWindow::MoveSelected() {
  movingSeat_ = game_.table.SelectedSeat;
  table_->scene.movingPlayer = true;
  table_->update();
  ShowMessage(game_, "Move Player",
              "Click the rail where you want to put " + game_.table.seats[movingSeat_].SeatName + ".",
              kMsgOk | kMsgAlert);
}

void MainWindow::RemoveSelected() { RemovePlayer(game_); }

void MainWindow::OpenAtm() {
  AtmScreen screen(game_, game_.table.SelectedSeat, this);
  RunDialog(screen);
  table_->Refresh();
}

void MainWindow::OpenAutoPlay() {
  AutoPlayScreen screen(game_, this);
  RunDialog(screen);
  table_->Refresh();
}

void MainWindow::OpenPadWindow() {
  if (pad_ == nullptr) {
    pad_ = new RollPad(game_, this);
    pad_->commitEntry = [this] { return table_->CommitEntry(); };
  }
  pad_->setVisible(!pad_->isVisible());
}

void MainWindow::OpenMoveWindow() {
  if (mover_ == nullptr) {
    mover_ = new MovePanel(this);
    connect(mover_, &MovePanel::zoom, this, [this](bool in, int mode) {
      in ? ZoomIn(table_->view, mode) : ZoomOut(table_->view, mode);
      NewView("");
    });
    connect(mover_, &MovePanel::move, this, [this](int dx, int dy, int mode) {
      MoveTable(table_->view, dx, dy, mode);
      NewView("");
    });
    connect(mover_, &MovePanel::center, this, [this] {
      CenterTable(table_->view);
      NewView("");
    });
    connect(mover_, &MovePanel::rotate, this, [this](bool clockwise, int mode) {
      constexpr int kDegrees[4] = {30, 90, 45, 180};
      SetTableRotation(table_->view, clockwise ? -kDegrees[mode] : kDegrees[mode]);
      NewView("");
    });
  }
  mover_->setVisible(!mover_->isVisible());
}

void MainWindow::OpenAbout() {
  AboutScreen screen(game_, this);
  RunDialog(screen);
}

void MainWindow::ShowKeys() {
  constexpr const char* kKeys =
      "Left click: bet the chosen amount\r"
      "Right click or F2: roll the dice\r"
      "Drag a stack: move the bet; off the felt: take it down\r"
      "Alt and click: take a bet up, click again to put it down\r"
      "Wheel: zoom.  Middle button: move the table\r"
      "Delete, F5, F6, F7: the next click removes, buys, calls ON, calls OFF\r"
      "F9: key in amounts.  F11: show amounts\r"
      "Tab: walk the bets with the arrows, Enter bets\r"
      "Arrows: the next player.  1 to 8: that place at the rail\r"
      "Ctrl and a letter or digit: its hot-key";
  ShowMessage(game_, "Keys and Mouse", kKeys, kMsgOk | kMsgDice, 640);
}

void MainWindow::Roll() {
  GiveUp(commands_);
  RollDice(game_);
  table_->Refresh();
}

void MainWindow::Pass() { PassDice(game_, kPassByUser); }
void MainWindow::ToggleRun() { ToggleAutoRoll(game_); }
void MainWindow::SetDelay() { SetAutoRollDelay(game_); }
void MainWindow::SetStop() { SetAutoStop(game_); }

void MainWindow::KeyInAmounts() {
  commands_.BetAmountMode =
      commands_.BetAmountMode == tessaryn::kKeyInAmounts ? kAddClickAmount : tessaryn::kKeyInAmounts;
}

void MainWindow::ArmAction(int action) {
  SetPendingAction(commands_, action);
  table_->RefreshPointer();
}

void MainWindow::BuyNext() { ArmAction(kPendingBuy); }
void MainWindow::CallNextOn() { ArmAction(kPendingCallOn); }
void MainWindow::CallNextOff() { ArmAction(kPendingCallOff); }
void MainWindow::RemoveNext() { ArmAction(kPendingRemove); }
void MainWindow::MoveNext() { ArmAction(kPendingMove); }
void MainWindow::CallAllOn() { CallAllBets(game_, game_.table.SelectedSeat, true); }
void MainWindow::CallAllOff() { CallAllBets(game_, game_.table.SelectedSeat, false); }
void MainWindow::RemoveAll() { RemoveAllBets(game_); }

void MainWindow::TakeFull() {
  TakeAllFullOdds(game_, game_.table.SelectedSeat, false);
  table_->Refresh();
}

void MainWindow::LayFull() {
  TakeAllFullOdds(game_, game_.table.SelectedSeat, true);
  table_->Refresh();
}

// --- Views.

void MainWindow::ShowAmounts() {
  table_->scene.showAmounts = !table_->scene.showAmounts;
  table_->update();
}

void MainWindow::Flash() { table_->FlashBets(); }

void MainWindow::NewView(const char* preset) {
  const bool whole = std::string_view(preset) == "mnuViewWhole";
  whole ? table_->ShowWhole() : table_->ViewChanged();
  for (const char* name : kPresetViews) actions_[name]->setChecked(std::string_view(name) == preset);
  if (std::string_view(preset) != "mnuDisplayPropBets") beforePropositions_ = {};
  RefreshCommands();
}

void MainWindow::LookAt(QRectF tableArea) {
  TableView& view = table_->view;
  const QRectF shown = view.Transform().mapRect(tableArea);
  const double share = std::min(view.Window.width() / shown.width(), view.Window.height() / shown.height());
  ZoomTo(view, static_cast<int>(view.TableZoom * share), shown.center());
  const QPointF off =
      QPointF(view.Window.width() / 2.0, view.Window.height() / 2.0) - view.ToScreen(tableArea.center());
  view.TableOffsetX += static_cast<int>(off.x());
  view.TableOffsetY += static_cast<int>(off.y());
}

void MainWindow::ShowPropositions() {
  TableView& view = table_->view;
  if (beforePropositions_.TableZoom != 0) {
    const auto kept = view.SavedViews;
    view.SavedViews[0] = beforePropositions_;
    RestoreView(view, 0);
    view.SavedViews = kept;
    return NewView("");
  }
  beforePropositions_ = {view.TableZoom, view.TableAngle, view.TableOffsetX, view.TableOffsetY};
  LookAt(QRectF(556, 30, 135, 470));
  NewView("mnuDisplayPropBets");
}

void MainWindow::ZoomInView() {
  ZoomIn(table_->view, 0);
  NewView("");
}

void MainWindow::ZoomOutView() {
  ZoomOut(table_->view, 0);
  NewView("");
}

void MainWindow::RotateView() {
  SetTableRotation(table_->view, -30);
  NewView("");
}

void MainWindow::WholeView() {
  table_->view.TableAngle = 0;
  NewView("mnuViewWhole");
}

void MainWindow::LeftEndView() {
  LookAt(QRectF(-20, -25, 605, 590));
  NewView("mnuViewLeft");
}

void MainWindow::RightEndView() {
  LookAt(QRectF(663, -25, 605, 590));
  NewView("mnuViewRight");
}

// --- Scripts and files.

void MainWindow::OpenScriptFile() {
  const std::string path = ChooseFile(game_, this, kOpenAutoBet);
  if (path.empty()) return;
  const int seat = game_.table.SelectedSeat;
  std::string error;
  if (!OpenScript(game_, seat, path, error)) {
    ShowMessage(game_, kOpenAutoBet.title, error);
    return;
  }
  table_->update();
  const ScriptCheck check = CheckScript(game_, seat);
  if (!check.ok) ShowMessage(game_, check.title, check.text);
}

void MainWindow::ActivateSelected() {
  const int seat = game_.table.SelectedSeat;
  if (game_.autobet.ScriptActive[seat])
    SetScriptActive(game_, seat, false);
  else
    ActivateScript(game_, seat);
  table_->update();
}

void MainWindow::InitialiseAll() {
  InitialiseScripts(game_);
  table_->Refresh();
}

void MainWindow::StopScripts() {
  game_.autobet.ScriptRunning = false;
  SetAllScriptsActive(game_, false);
  table_->update();
}

void MainWindow::ChooseHotKey() {
  game_.box.MsgEntry.clear();
  if (ShowMessage(game_, "Hot-Keys", "Which letter or digit, pressed with Ctrl, shall run a script?",
                  kMsgOk | kMsgCancel | kMsgInput | kMsgTextInput | kMsgQuestion) != kResultOk)
    return;
  const std::string typed = game_.box.MsgEntry;
  if (typed.size() != 1 || !std::isalnum(static_cast<unsigned char>(typed[0]))) {
    ShowMessage(game_, "Hot-Keys", "\"" + typed + "\" is no single letter or digit.");
    return;
  }
  const std::string path = ChooseFile(game_, this, kHotKeyScript);
  if (path.empty()) return;
  std::string error;
  const HotKey key{static_cast<char>(std::tolower(static_cast<unsigned char>(typed[0]))), path,
                   std::filesystem::path(path).stem().string()};
  // Those that another window has added since are kept.
  const std::string file = game_.dataFolder + kHotKeysFile;
  if (!ReadHotKeys(file, hotKeys_, error) || !AddHotKey(hotKeys_, key, error) ||
      (keeps_ && !WriteHotKeys(file, hotKeys_, error)))
    ShowMessage(game_, "Hot-Keys", error);
}

void MainWindow::OpenProbabilities() {
  if (!SaveProbabilitiesFirst()) return;
  const std::string path = ChooseFile(game_, this, kOpenProbabilities);
  if (path.empty()) return;
  std::string error;
  if (!OpenProbabilityFile(game_.percentage, path, game_.dataFolder, error))
    ShowMessage(game_, kUnableToOpenProbabilityTitle, error);
}

void MainWindow::UsePercentageDice() {
  if (!ActivatePercentageDice(game_.percentage, !game_.percentage.PercentageDiceActive))
    ShowMessage(game_, kNothingToRollTitle, kNothingToRollText);
}

namespace {

// Opens the file and sets the recorder. What is wrong is shown.
void UseRollFile(Game& game, const std::string& path, int state) {
  if (path.empty()) return;
  std::string problem = OpenRollFile(game.rollFile, path);
  if (problem.empty()) problem = SetRecorderState(game.rollFile, state);
  if (!problem.empty()) ShowMessage(game, "Unable to Open Dice Roll File", problem);
}

}  // namespace

void MainWindow::PlayRollFile() {
  UseRollFile(game_, ChooseFile(game_, this, kOpenRollFile), kRecorderPlayback);
}
void MainWindow::RecordRollFile() {
  UseRollFile(game_, ChooseFile(game_, this, kOpenRollFile), kRecorderRecord);
}

void MainWindow::CloseRollFileNow() {
  const std::string problem = CloseRollFile(game_.rollFile);
  if (!problem.empty()) ShowMessage(game_, "Error", problem);
}

// --- Keys that have no modifier, and the hot-keys.

void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (HotKeyPressed(event)) return;
  if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
    if (event->key() == Qt::Key_Escape && (GiveUp(commands_) || movingSeat_ != 0)) {
      movingSeat_ = 0;
      table_->scene.movingPlayer = false;
      table_->Refresh();
      return RefreshCommands();
    }
    for (const CommandFacts& facts : kCommands)
      if (facts.key != nullptr && IsPlainKey(facts.key) && event->key() == PlainKeyCode(facts.key))
        return RunCommand(facts);
    // A digit is a click on that place at the rail: its player, or a new one.
    if (event->key() >= Qt::Key_1 && event->key() < Qt::Key_1 + kSeats)
      return OnSeatClicked(event->key() - Qt::Key_1 + 1);
    const bool back = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if (back || event->key() == Qt::Key_Right || event->key() == Qt::Key_Down) {
      const int seat = NextSeat(game_, back ? -1 : 1);
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

bool MainWindow::HotKeyPressed(QKeyEvent* event) {
  if (event->modifiers() != Qt::ControlModifier || !Free()) return false;
  const int key = event->key();
  const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
  const bool digit = key >= Qt::Key_0 && key <= Qt::Key_9;
  if (!letter && !digit) return false;
  const char typed = static_cast<char>(letter ? 'a' + (key - Qt::Key_A) : '0' + (key - Qt::Key_0));
  const bool known =
      std::any_of(hotKeys_.begin(), hotKeys_.end(), [&](const HotKey& hot) { return hot.key == typed; });
  if (!known || !AskBeforeCommand(game_)) return known;
  PressHotKey(game_, hotKeys_, typed);
  table_->Refresh();
  RefreshCommands();
  return true;
}

// --- The end.

bool MainWindow::SaveScriptsFirst() {
  for (int seat = 1; seat <= kSeats; ++seat) {
    SeatScript& script = game_.autobet.Scripts[seat];
    if (!IsOccupied(game_.table, seat) || !script.Unsaved) continue;
    const int answer =
        ShowMessage(game_, "Save Auto-Bets?",
                    game_.table.seats[seat].SeatName +
                        "'s Auto-Bet script has not been saved.\r\rDo you want to save it now?",
                    kMsgYes | kMsgNo | kMsgCancel | kMsgQuestion);
    if (answer == kResultCancel) return false;
    if (answer != kResultYes) continue;
    const std::string path = ChooseFile(game_, this, kSaveAutoBet, script.ScriptFileName);
    if (path.empty()) return false;
    std::string error;
    if (!SaveScript(game_, seat, path, error)) {
      ShowMessage(game_, kSaveAutoBet.title, error);
      return false;
    }
  }
  return true;
}

bool MainWindow::SaveProbabilitiesFirst() {
  if (!game_.percentage.ProbDirty) return true;
  const int answer =
      ShowMessage(game_, kSaveProbabilitiesTitle,
                  "Your current probabilities (listed on the configuration screen) have not been "
                  "saved.\r\rDo you want to save them now?",
                  kMsgYes | kMsgNo | kMsgCancel | kMsgQuestion);
  if (answer != kResultYes) return answer == kResultNo;
  const std::string path = ChooseFile(game_, this, kSaveProbabilities, game_.percentage.ProbFileName);
  std::string error;
  if (path.empty()) return false;
  if (SaveProbabilityFile(game_.percentage, path, error)) return true;
  ShowMessage(game_, kSaveProbabilities.title, error);
  return false;
}

bool MainWindow::MayClose() {
  if (!AskBeforeCommand(game_) && (game_.table.AutoRollActive || game_.autobet.ScriptRunning)) return false;
  return SaveScriptsFirst() && SaveProbabilitiesFirst();
}

void MainWindow::TellIfNothingIsKept() {
  keeps_ = CanWriteIn(game_.dataFolder);
  if (keeps_) return;
  ShowMessage(game_, "Data Folder",
              "Nothing can be written into the data folder\r\r" + game_.dataFolder +
                  "\r\rNothing will be kept: what goes there, as hot-keys, logs and the window's place, ends "
                  "with the program. The option --data-folder names another folder.",
              kMsgOk | kMsgAlert, 640);
}

std::string MainWindow::WriteFinalFiles() {
  const std::string problem = EndGame(game_);
  std::error_code gone;
  std::filesystem::remove(game_.ownFolder + kRollCopyFile, gone);
  if (keeps_) SaveWindow();
  return problem;
}

void MainWindow::CloseUnasked() {
  if (closing_) return;
  closing_ = true;
  if (const std::string problem = WriteFinalFiles(); !problem.empty())
    std::fprintf(stderr, "tessaryn: %s\n", problem.c_str());
  close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (closing_) return event->accept();
  if (!MayClose()) return event->ignore();
  closing_ = true;
  if (const std::string problem = WriteFinalFiles(); !problem.empty()) ShowMessage(game_, "Error", problem);
  event->accept();
  QMainWindow::closeEvent(event);
}

// The first window, and what the desktop puts round it at most.
constexpr QSize kFirstSize(1280, 800);
constexpr QSize kFrame(16, 40);

void MainWindow::RestoreWindow() {
  QSettings settings(FromCore(game_.dataFolder) + "window.ini", QSettings::IniFormat);
  if (!restoreGeometry(settings.value("geometry").toByteArray()))
    resize(kFirstSize.boundedTo(screen()->availableGeometry().size() - kFrame));
  const Currency amount = ParseMoney(settings.value("clickAmount").toString().toStdString());
  if (amount > kZero) amounts_->SetAmount(amount);
  table_->scene.showAmounts = settings.value("showAmounts", false).toBool();
  game_.settings.DisableAllSound = !settings.value("sound", true).toBool();
  RefreshCommands();
}

void MainWindow::SaveWindow() const {
  QSettings settings(FromCore(game_.dataFolder) + "window.ini", QSettings::IniFormat);
  settings.setValue("geometry", saveGeometry());
  settings.setValue("clickAmount", QString::fromStdString(PlainMoney(amounts_->Amount())));
  settings.setValue("showAmounts", table_->scene.showAmounts);
  settings.setValue("sound", !game_.settings.DisableAllSound);
  settings.sync();
}

}  // namespace tessaryn
