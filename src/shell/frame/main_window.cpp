#include "shell/frame/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSessionManager>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "base/program_folders.h"
#include "play/auto_roll.h"
#include "play/game_file.h"
#include "play/hot_keys.h"
#include "play/players.h"
#include "shell/frame/closing.h"
#include "shell/frame/commands.h"
#include "shell/frame/docking.h"
#include "shell/frame/docks.h"
#include "shell/frame/game_files.h"
#include "shell/frame/help_desk.h"
#include "shell/frame/open_file.h"
#include "shell/frame/places.h"
#include "shell/frame/screen_manners.h"
#include "shell/frame/tool_rows.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/join_screen.h"
#include "shell/table/amount_selector.h"
#include "shell/table/bet_buttons.h"
#include "shell/table/bet_tips.h"
#include "shell/table/board.h"
#include "shell/table/languages.h"
#include "shell/table/number_habit.h"
#include "shell/table/pictures.h"
#include "shell/table/run_controls.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_accessible.h"
#include "shell/table/table_touch.h"
#include "shell/table/turbo_panel.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {

constexpr int kLookAgain = 20;    // milliseconds between two looks whether a roll has ended
constexpr int kRefusedFor = 400;  // milliseconds that the edge of a refused bet is red
constexpr int kToldFor = 10'000;  // milliseconds that a line stays at the window's foot

template <typename Work>
void ForEachCommand(const Work& work) {
  for (const CommandMenu& menu : CommandMenus())
    for (const CommandRow& command : menu.commands)
      if (command.name != nullptr) work(command);
}

const CommandRow* PlainKeyCommand(int key) {
  const CommandRow* found = nullptr;
  ForEachCommand([&](const CommandRow& command) {
    if (command.key != nullptr && PlainKeyCode(command.key) == key) found = &command;
  });
  return found;
}

}  // namespace

MainWindow::MainWindow(Game& game, ShellHost& host)
    : game_(game), host_(host), desk_{.game = game, .host = host, .window = this} {
  setObjectName("frmCrapTable");
  setAcceptDrops(true);
  setMinimumSize(kSmallestWindow);
  desk_.toolRows = ToolRows();
  desk_.toolMade = [this](ToolWindow& tool) { GiveToolMenu(desk_, tool); };
  desk_.refresh = [this] { RefreshCommands(); };
  desk_.showGame = [this] { ShowGame(); };
  desk_.keeps = CanWriteIn(game_.dataFolder);
  desk_.recentGames = ReadRecentGames(game_.dataFolder);
  setWindowIcon(ProgramIcon());
  Speak();
  BuildBody();
  BuildMenu();
  betButtons_->Add(Command("mnuUndoBet"), "cmdUndo", QT_TRANSLATE_NOOP("BetButtons", "Undo bet"), "\u232B");
  betButtons_->Add(Command("mnuRepeatBets"), "cmdRepeat", QT_TRANSLATE_NOOP("BetButtons", "Repeat bets"),
                   "R");
  betButtons_->Add(Command("mnuFullOdds"), "cmdFullOdds", QT_TRANSLATE_NOOP("BetButtons", "Full odds"), "O");
  ConnectTable();
  ConnectHost();
  TakePreferences();
  Retranslate();
  TakeMeasures();
  RefreshCommands();
  StartAutosaves();
  WatchLuck(game_);
  new PointerSnap(game_, this);
  new WholeChoices(this);
  new HelpKey(desk_);
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& manager) {
    const bool mayAsk = manager.allowsInteraction();
    if (!KeepForSessionEnd(mayAsk)) manager.cancel();
    if (mayAsk) manager.release();
  });
}

void MainWindow::StartAutosaves() {
  auto* timer = new QTimer(this);
  timer->setInterval(kAutosaveMinutes * 60'000);
  connect(timer, &QTimer::timeout, this, [this] {
    autosaveDue_ = true;
    if (!IsUnderWay()) Autosave();
  });
  timer->start();
}

MainWindow::~MainWindow() {
  host_.changed = nullptr;
  host_.showNote = nullptr;
  host_.beforeBox = nullptr;
  host_.diceThrown = nullptr;
  host_.showThrow = nullptr;
  host_.showWin = nullptr;
  host_.showProgress = nullptr;
  host_.askSettlement = nullptr;
  host_.graphPageFull = nullptr;
  host_.betweenRolls = nullptr;
  host_.showStep = nullptr;
}

void MainWindow::BuildBody() {
  MakeTablesAccessible();  // before anybody is told of the table
  auto* body = new QWidget(this);
  auto* column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  stage_ = desk_.stage = new TableStage(game_, desk_.commands, host_.rolled, body);
  table_ = desk_.table = &stage_->Table();
  column->addWidget(desk_.docks = new DockArea(stage_, body), 1);
  BuildBar(body);
  column->addWidget(bar_);
  setCentralWidget(body);
  turbo_ = new TurboPanel(stage_);
  turbo_->hide();
  stage_->installEventFilter(this);
  pointer_ = new QLabel(this);
  pointer_->setObjectName("lblPointer");
  pointer_->setContentsMargins(8, 0, 0, 0);
  // A long line must not widen the window.
  pointer_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  status_ = new QLabel(this);
  status_->setObjectName("lblStatus");
  statusBar()->addWidget(pointer_, 1);
  statusBar()->addPermanentWidget(status_);
  desk_.commands.ClickAmount = amounts_->Amount();
  table_->setFocus();
}

void MainWindow::BuildBar(QWidget* body) {
  bar_ = new QWidget(body);
  auto* row = new QHBoxLayout(bar_);
  row->setContentsMargins(8, 2, 8, 2);
  row->setSpacing(12);
  amounts_ = desk_.amounts = new AmountSelector(game_, bar_);
  betButtons_ = new BetButtons(bar_);
  controls_ = new RunControls(bar_);
  row->addWidget(amounts_);
  row->addWidget(betButtons_);
  row->addStretch();
  row->addWidget(controls_);
}

void MainWindow::TakeMeasures() {
  measures_ = MeasuresOf(size());
  stage_->SetMeasures(measures_);
  bar_->setFixedHeight(measures_.controls);
  statusBar()->setFixedHeight(measures_.status);
  const QFont letters = Sized(font(), measures_.compact ? 11 : 12.5);
  pointer_->setFont(letters);
  status_->setFont(letters);
  amounts_->SetMeasures(measures_);
  betButtons_->SetMeasures(measures_);
  controls_->SetMeasures(measures_);
  FitBar();
}

// Where the bar is too narrow for all, what has a key of its own gives way.
void MainWindow::FitBar() {
  constexpr int kGaps = 52;
  controls_->ShowPass(true);
  const int room = width() - amounts_->sizeHint().width() - kGaps;
  const bool pass = room - controls_->sizeHint().width() >= betButtons_->WantedWidth();
  controls_->ShowPass(pass);
  betButtons_->FitInto(room - controls_->sizeHint().width());
  // At once, from the parts outwards: a window made narrower would show them over one another until then.
  for (QWidget* part : {static_cast<QWidget*>(amounts_), static_cast<QWidget*>(betButtons_),
                        static_cast<QWidget*>(controls_), bar_}) {
    part->updateGeometry();
    if (part->layout() != nullptr) part->layout()->activate();
  }
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  TakeMeasures();
}

void MainWindow::TakePreferences() {
  const bool still = std::exchange(preferences_, ReadPreferences(game_.dataFolder)).noMotion;
  ApplyScheme(preferences_.scheme);
  if (preferences_.noMotion || DesktopIsStill())
    table_->animate = false;
  else if (still)
    table_->animate = true;
  host_.showNote = nullptr;
  if (!preferences_.notesInBoxes) host_.showNote = [this](Game&, const MessageBox& box) { TakeNote(box); };
}

void MainWindow::TakeNote(const MessageBox& box) {
  stage_->TheBoard().AddNote(FromCore(box.MsgText).simplified());
}

// The edge first, then the box that tells why.
void MainWindow::ShowRefusal() {
  const BetId bet = std::exchange(clickedBet_, 0);
  if (bet == 0 || (game_.box.MsgFlags & kMsgNo) != 0) return;
  table_->scene.refusedBet = AreaOf(bet);
  table_->update();
  if (table_->animate) {
    QEventLoop wait;
    QTimer::singleShot(kRefusedFor, &wait, &QEventLoop::quit);
    wait.exec(QEventLoop::ExcludeUserInputEvents);
  }
  QTimer::singleShot(table_->animate ? 0 : kRefusedFor, this, [this] {
    table_->scene.refusedBet = 0;
    table_->update();
  });
}

void MainWindow::EndGuide() {
  preferences_.guideDone = true;
  if (desk_.keeps) WritePreferences(game_.dataFolder, preferences_);
  ShowBoard(Throws(game_.stats) == settledThrows_);
}

// settled: not while a roll's bets are still being asked about.
void MainWindow::ShowBoard(bool settled) {
  stage_->TheBoard().SetNextClick(NextClickLine(desk_.commands));
  stage_->Refresh(settled);
  const std::int64_t throws = Throws(game_.stats);
  if (!settled || throws == badgesOf_) return;
  const bool next = throws == badgesOf_ + 1;
  badgesOf_ = throws;
  if (next) stage_->ShowBadges();
}

// The menu of a player's place: the commands for the player.
void MainWindow::OpenPlateMenu(SeatId seat, QPoint where) {
  OnSeatClicked(seat);
  if (game_.table.SelectedSeat != seat) return;
  QMenu menu(this);
  menu.setObjectName("mnuPlate");
  for (const char* name : {"mnuPlayerRename", "mnuPlayerMove", "mnuPlayerDelete", "", "mnuAtm", "mnuAutoPlay",
                           "", "mnuRemoveAllBets", "mnuPassDice"}) {
    if (*name == 0)
      menu.addSeparator();
    else if (QAction* action = Command(name); action != nullptr)
      menu.addAction(action);
  }
  menu.exec(where);
}

void MainWindow::BuildMenu() {
  for (const CommandMenu& list : CommandMenus()) {
    QMenu* menu = menuBar()->addMenu(list.title);
    menus_.push_back(menu);
    connect(menu, &QMenu::aboutToShow, this, [this] { RefreshCommands(); });
    for (const CommandRow& command : list.commands) {
      if (command.name == nullptr) {
        menu->addSeparator();
        continue;
      }
      QAction* action =
          command.fill != nullptr ? AddSubmenu(*menu, command) : menu->addAction(command.caption);
      action->setObjectName(command.name);
      actions_[command.name] = action;
      action->setCheckable(command.ticked != nullptr);
      if (command.key != nullptr && PlainKeyCode(command.key) == 0)
        action->setShortcut(QKeySequence(command.key));
      if (command.fill == nullptr)
        connect(action, &QAction::triggered, this, [this, &command] { RunCommand(command); });
    }
  }
}

QAction* MainWindow::AddSubmenu(QMenu& menu, const CommandRow& command) {
  QMenu* list = menu.addMenu(command.caption);
  command.fill(desk_, *list);
  connect(list, &QMenu::aboutToShow, this, [this, list, &command] {
    list->clear();
    command.fill(desk_, *list);
  });
  return list->menuAction();
}

QAction* MainWindow::Command(const char* name) const {
  const auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

void MainWindow::Retranslate() {
  for (std::size_t n = 0; n < menus_.size(); ++n)
    menus_[n]->setTitle(QCoreApplication::translate("Commands", CommandMenus()[n].title));
  ForEachCommand([this](const CommandRow& command) {
    QString text = QCoreApplication::translate("Commands", command.caption);
    if (command.key != nullptr && PlainKeyCode(command.key) != 0) text += "\t" + QString(command.key);
    actions_[command.name]->setText(text);
  });
  RefreshCommands();
}

void MainWindow::Speak() {
  QStringList names;
  for (const SeatState& seat : game_.table.seats)
    if (!seat.SeatName.empty()) names += FromCore(seat.SeatName);
  SpeakLanguage(game_.settings.Language, names);
}

void MainWindow::changeEvent(QEvent* event) {
  // The language of the game is spoken before there is anything of the window to say.
  if (event->type() == QEvent::LanguageChange && !actions_.empty()) {
    Retranslate();
    // Once the bar's parts have their words as well.
    QMetaObject::invokeMethod(this, &MainWindow::FitBar, Qt::QueuedConnection);
  }
  QMainWindow::changeEvent(event);
}

void MainWindow::RunCommand(const CommandRow& command) {
  NoteActivity(game_);
  if (command.act == nullptr) {
    close();
    return;
  }
  RefreshCommands();
  if (!actions_[command.name]->isEnabled()) return;
  // A pending bet amount is taken before anything else happens.
  if (!table_->CommitEntry()) return;
  if (command.run == InRun::kAsksFirst && !AskBeforeCommand(game_)) return RefreshCommands();
  ++working_;
  if (ChangesBets(command))
    AsBetStep(desk_.commands.History, game_, [&] { command.act(desk_); });
  else
    command.act(desk_);
  --working_;
  RefreshCommands();
}

void MainWindow::RefreshSoon() {
  if (refreshPending_) return;
  refreshPending_ = true;
  QTimer::singleShot(0, this, [this] {
    refreshPending_ = false;
    RefreshCommands();
  });
}

void MainWindow::RefreshCommands() {
  ForEachCommand([this](const CommandRow& command) {
    QAction* action = actions_[command.name];
    action->setEnabled(command.can == nullptr || command.can(desk_));
    if (command.ticked != nullptr) action->setChecked(command.ticked(desk_));
    if (command.text != nullptr) action->setText(command.text(desk_));
  });
  controls_->Refresh(game_);
  ShowBoard(Throws(game_.stats) == settledThrows_);
  RefreshTools(desk_);
  ShowTableStatus();
  ShowCaption();
}

// The desktop puts the program's name behind the title of every window that hasn't got it there: so it is
// that of the table.
void MainWindow::ShowCaption() {
  const QString caption = FromCore(GameCaption(game_));
  QGuiApplication::setApplicationDisplayName(caption);
  setWindowTitle(runEndedUnseen_ ? tr("Tessaryn Turbo-Roll Stopped") : caption);
}

void MainWindow::ShowTableStatus() {
  const TableState& table = game_.table;
  QStringList parts{tr("Roll %1").arg(ShownCount(SessionRolls(game_.stats)))};
  parts += table.Point == 0 ? tr("Come-out") : tr("Point %1").arg(table.Point);
  if (table.ShooterSeat != 0)
    parts += tr("Shooter: %1").arg(FromCore(table.seats[table.ShooterSeat].SeatName));
  status_->setText(parts.join("   "));
}

// --- The table.

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

// --- Start and end.

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
  if (StopRunFirst(desk_)) {
    if (IsUnderWay())
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

// --- Files dropped on the window.

namespace {
QString DroppedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}
}  // namespace

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
