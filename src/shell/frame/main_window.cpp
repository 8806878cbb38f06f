#include "shell/frame/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "base/program_folders.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "shell/frame/closing.h"
#include "shell/frame/commands.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/settle_bet.h"
#include "shell/table/amount_selector.h"
#include "shell/table/pictures.h"
#include "shell/table/run_controls.h"
#include "shell/table/screen_tools.h"
#include "shell/table/turbo_panel.h"
#include "state/game.h"

namespace tessaryn {

namespace {

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
  desk_.refresh = [this] { RefreshCommands(); };
  setWindowIcon(ProgramIcon());
  BuildBody();
  BuildMenu();
  ConnectTable();
  ConnectHost();
  Retranslate();
  std::string error;
  if (!ReadHotKeys(game_.dataFolder + kHotKeysFile, desk_.hotKeys, error))
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
  table_ = desk_.table = new TableWidget(game_, desk_.commands, body);
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
  desk_.commands.ClickAmount = amounts_->Amount();
  table_->setFocus();
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
  setWindowTitle(tr("Tessaryn"));
  for (std::size_t n = 0; n < menus_.size(); ++n)
    menus_[n]->setTitle(QCoreApplication::translate("Commands", CommandMenus()[n].title));
  ForEachCommand([this](const CommandRow& command) {
    QString text = QCoreApplication::translate("Commands", command.caption);
    if (command.key != nullptr && PlainKeyCode(command.key) != 0) text += "\t" + QString(command.key);
    actions_[command.name]->setText(text);
  });
  RefreshCommands();
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) Retranslate();
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
  command.act(desk_);
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
  RefreshTools(desk_);
  ShowTableStatus();
}

void MainWindow::ShowTableStatus() {
  const TableState& table = game_.table;
  QStringList parts{tr("Roll %1").arg(QLocale().toString(static_cast<qlonglong>(SessionRolls(game_.stats))))};
  parts += table.Point == 0 ? tr("Come-out") : tr("Point %1").arg(table.Point);
  if (table.ShooterSeat != 0) parts += tr("Shooter: %1").arg(FromCore(table.SeatName[table.ShooterSeat]));
  status_->setText(parts.join("   "));
}

// --- The table.

void MainWindow::ConnectTable() {
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
  if (!IsFree(desk_)) return false;
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
  if (ClickBet(game_, desk_.commands, bet, alt)) table_->OpenEntry(bet);
  table_->Refresh();
  RefreshCommands();
  ShowPointer(bet);
}

void MainWindow::OnSeatClicked(int seat) {
  NoteActivity(game_);
  if (!IsFree(desk_)) return;
  if (IsOccupied(game_.table, seat)) {
    if (desk_.movingSeat == 0) SelectSeat(game_, seat);
  } else {
    if (!AskBeforeCommand(game_)) return;
    if (desk_.movingSeat != 0) {
      std::string error;
      if (!MovePlayer(game_, std::exchange(desk_.movingSeat, 0), seat, error))
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
  const QString text = PointerText(game_, desk_.commands, bet);
  pointer_->setText(text);
  pointer_->setToolTip(text);
}

// --- Keys that have no modifier, and the hot-keys.

void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (HotKeyPressed(event)) return;
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
  if (event->modifiers() != Qt::ControlModifier || !IsFree(desk_)) return false;
  const int key = event->key();
  const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
  const bool digit = key >= Qt::Key_0 && key <= Qt::Key_9;
  if (!letter && !digit) return false;
  const char typed = static_cast<char>(letter ? 'a' + (key - Qt::Key_A) : '0' + (key - Qt::Key_0));
  const bool known = std::any_of(desk_.hotKeys.begin(), desk_.hotKeys.end(),
                                 [&](const HotKey& hot) { return hot.key == typed; });
  if (!known || !AskBeforeCommand(game_)) return known;
  PressHotKey(game_, desk_.hotKeys, typed);
  table_->Refresh();
  RefreshCommands();
  return true;
}

// --- The end.

void MainWindow::TellIfNothingIsKept() {
  desk_.keeps = CanWriteIn(game_.dataFolder);
  if (desk_.keeps) return;
  ShowMessage(game_, "Data Folder",
              "Nothing can be written into the data folder\r\r" + game_.dataFolder +
                  "\r\rNothing will be kept: what goes there, as hot-keys, logs and the window's place, ends "
                  "with the program. The option --data-folder names another folder.",
              kMsgOk | kMsgAlert, 640);
}

std::string MainWindow::Finish() {
  const std::string problem = WriteFinalFiles(desk_);
  if (desk_.keeps) SaveWindow();
  return problem;
}

void MainWindow::CloseUnasked() {
  if (closing_) return;
  closing_ = true;
  if (const std::string problem = Finish(); !problem.empty())
    std::fprintf(stderr, "tessaryn: %s\n", problem.c_str());
  close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (closing_) return event->accept();
  if (!MayClose(desk_)) return event->ignore();
  closing_ = true;
  if (const std::string problem = Finish(); !problem.empty()) ShowMessage(game_, "Error", problem);
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
