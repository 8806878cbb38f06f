#include "shell/frame/main_window.h"

#include <QApplication>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSessionManager>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "base/program_folders.h"
#include "play/auto_roll.h"
#include "play/game_file.h"
#include "shell/frame/commands.h"
#include "shell/frame/docking.h"
#include "shell/frame/docks.h"
#include "shell/frame/game_files.h"
#include "shell/frame/help_desk.h"
#include "shell/frame/places.h"
#include "shell/frame/screen_manners.h"
#include "shell/frame/tool_rows.h"
#include "shell/frame/tool_windows.h"
#include "shell/table/amount_selector.h"
#include "shell/table/bet_buttons.h"
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

constexpr int kRefusedFor = 400;  // milliseconds that the edge of a refused bet is red

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

}  // namespace tessaryn
