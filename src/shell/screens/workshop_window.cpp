#include "shell/screens/workshop_window.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "autobet/run/interpreter.h"
#include "play/script_help.h"
#include "play/script_session.h"
#include "play/script_trial.h"
#include "shell/screens/find_replace_screen.h"
#include "shell/screens/workshop_editor.h"
#include "shell/screens/workshop_steps.h"
#include "shell/screens/workshop_trial.h"
#include "shell/screens/workshop_watch.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr int kPause = 250;  // milliseconds without a key before the text is compiled

// A list of words, the name of its button and its caption.
struct WordListRow {
  const char* button;
  const char* caption;
  std::initializer_list<ScriptWordKind> kinds;
};
using WordKind = ScriptWordKind;
const WordListRow kWordLists[] = {
    {"cmdLogic",
     QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Logic"),
     {WordKind::kKeyword, WordKind::kList, WordKind::kOperator, WordKind::kNumber}},
    {"cmdVariables",
     QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Variables"),
     {WordKind::kVariable, WordKind::kBet}},
    {"cmdFunctions", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Functions"), {WordKind::kFunction}},
    {"cmdModifiers",
     QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Modifiers"),
     {WordKind::kModifier, WordKind::kPlayer}},
    {"cmdAction", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Actions"), {WordKind::kAction}},
};
constexpr std::size_t kVariables = 1;

bool IsIn(const WordListRow& list, ScriptWordKind kind) {
  return std::find(list.kinds.begin(), list.kinds.end(), kind) != list.kinds.end();
}

// What a word means, and a variable's value at the table.
QString TipOf(const Game& game, SeatId seat, const QString& text) {
  const std::string typed = text.toStdString();
  const std::vector<ScriptWord> words = ScriptWords({typed}, {});
  const ScriptMeaning* meaning = words.empty() ? nullptr : MeaningOf(words.front());
  if (meaning == nullptr) return {};
  QString tip = text + ": " + QString::fromStdString(meaning->doc);
  if (!IsIn(kWordLists[kVariables], meaning->kind)) return tip;
  const std::string value = PresentValues(game, seat, {typed}).front();
  return value.empty()
             ? tip
             : tip + "\n" +
                   QCoreApplication::translate("tessaryn::WorkshopWindow", "Now: %1").arg(FromCore(value));
}

}  // namespace

// --- What can be done, with its key.

struct WorkshopWindow::Command {
  const char* name;
  const char* caption;
  const char* key;
  void (WorkshopWindow::*act)();
  void (WorkshopWindow::*fill)(QMenu&) = nullptr;  // a menu of its own
  bool ticked = false;                             // can be ticked
};

// A row without a command begins a menu; one without a caption is a line.
const WorkshopWindow::Command WorkshopWindow::kCommands[] = {
    {"menFile", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&File"), nullptr, nullptr},
    {"mnuNew", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&New"), nullptr, &WorkshopWindow::NewScript},
    {"mnuOpen", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Open ..."), "Ctrl+O",
     &WorkshopWindow::OpenFile},
    {"mnuRecent", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Recent"), nullptr, nullptr,
     &WorkshopWindow::FillRecent},
    {"mnuSamples", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Sa&mples"), nullptr, nullptr,
     &WorkshopWindow::FillSamples},
    {"mnuSave", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Save"), "Ctrl+S", nullptr},
    {"mnuSaveAs", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Save &as ..."), "Ctrl+Shift+S", nullptr},
    {"mnuPrintScript", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Print in colours ..."), nullptr,
     &WorkshopWindow::PrintScript},
    {"menEdit", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Edit"), nullptr, nullptr},
    {"mnuFind", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Find ..."), "Ctrl+F",
     &WorkshopWindow::FindText},
    {"mnuReplace", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Replace ..."), "Ctrl+H",
     &WorkshopWindow::ReplaceText},
    {"mnuCopyTo", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Copy to"), nullptr, nullptr,
     &WorkshopWindow::FillCopyTo},
    {"mnuPasteFrom", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Paste from"), nullptr, nullptr,
     &WorkshopWindow::FillPasteFrom},
    {"mnuWords", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Words that go on"), "Ctrl+Space",
     &WorkshopWindow::OfferWords},
    {"mnuFix", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "P&ut in the proposal"), "Ctrl+.",
     &WorkshopWindow::Fix},
    {"mnuTip", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Meaning of the word"), "Ctrl+F1",
     &WorkshopWindow::ShowTip},
    {"menRun", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Run"), nullptr, nullptr},
    {"mnuCheckScript", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Check script"), "F7",
     &WorkshopWindow::Check},
    {"mnuActivateAllScripts", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Activate all scripts"), nullptr,
     &WorkshopWindow::ActivateAll},
    {"mnuRunOnce", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Run &one cycle"), "F5",
     &WorkshopWindow::RunOnce},
    {"mnuStep", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Step"), "F10", &WorkshopWindow::Step},
    {"mnuRunToCursor", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Run to the c&ursor"), "Ctrl+F10",
     &WorkshopWindow::RunToCursor},
    {"mnuBreak", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Break-point"), "F9",
     &WorkshopWindow::ToggleBreak},
    {"mnuStop", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "S&top"), "Shift+F5",
     &WorkshopWindow::StopScripts},
    {"mnuTryIt", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Tr&y it"), "F8", &WorkshopWindow::TryIt},
    {"mnuPermissions", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Permissions ..."), nullptr,
     &WorkshopWindow::Permissions},
    {"menView", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&View"), nullptr, nullptr},
    {"mnuShowSteps", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Show &steps"), nullptr,
     &WorkshopWindow::WantSteps, nullptr, true},
    {"mnuShowLineNumbers", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Line numbers"), nullptr,
     &WorkshopWindow::Numbers, nullptr, true},
    {"mnuShowCounts", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Counts of the lines"), nullptr,
     &WorkshopWindow::WantCounts, nullptr, true},
    {"mnuShowSyntaxLists", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "Lists of &words"), nullptr,
     &WorkshopWindow::Lists, nullptr, true},
    {"mnuAutoIndent", QT_TRANSLATE_NOOP("tessaryn::WorkshopWindow", "&Auto-indent"), nullptr,
     &WorkshopWindow::Indent, nullptr, true},
};

WorkshopWindow::WorkshopWindow(Game& game, QWidget* parent) : ToolWindow("frmAutoBet", parent), game_(game) {
  checks_.setMaxThreadCount(1);
  editor_ = new WorkshopEditor(this);
  editor_->installEventFilter(this);
  steps_ = new WorkshopSteps(game, this);
  watch_ = new WorkshopWatch(game, this);
  trial_ = new WorkshopTrial(game, this);
  find_ = new FindReplaceScreen(*editor_, this);
  BuildPanes();
  BuildMenu();
  pause_ = new QTimer(this);
  pause_->setSingleShot(true);
  pause_->setInterval(kPause);
  ConnectParts();
  checkScript = CheckScript;
  resize(1080, 700);
  seat_ = game_.table.SelectedSeat;
  ListPlayers();
  Load();
}

void WorkshopWindow::BuildPanes() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 4, 8, 4);
  column->setSpacing(4);
  BuildBar(*column);
  BuildTabs();
  auto* left = new QSplitter(Qt::Vertical, this);
  left->addWidget(editor_);
  left->addWidget(tabs_);
  left->setStretchFactor(0, 3);
  left->setStretchFactor(1, 1);
  left->setSizes({460, 190});
  auto* right = new QSplitter(Qt::Vertical, this);
  right->addWidget(watch_);
  right->addWidget(trial_);
  right->setSizes({220, 380});
  auto* both = new QSplitter(Qt::Horizontal, this);
  both->addWidget(left);
  both->addWidget(right);
  both->setStretchFactor(0, 1);
  both->setSizes({700, 330});
  for (QSplitter* splitter : {left, right, both}) splitter->setChildrenCollapsible(false);
  column->addWidget(both, 1);
  column->addLayout(Foot());
}

QLayout* WorkshopWindow::Foot() {
  auto* foot = new QHBoxLayout;
  foot->setSpacing(16);
  for (QLabel** label : {&place_, &fileLabel_, &permissions_}) {
    *label = new QLabel(this);
    (*label)->setTextFormat(Qt::PlainText);
    foot->addWidget(*label, label == &fileLabel_ ? 1 : 0);
  }
  fileLabel_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  place_->setObjectName("lblPlace");
  fileLabel_->setObjectName("lblFile");
  permissions_->setObjectName("lblPermissions");
  return foot;
}

void WorkshopWindow::ConnectParts() {
  connect(pause_, &QTimer::timeout, this, &WorkshopWindow::CheckSoon);
  connect(editor_, &QsciScintilla::textChanged, this, &WorkshopWindow::TextChanged);
  connect(editor_, &QsciScintilla::cursorPositionChanged, this, [this] { ShowStatus(); });
  connect(editor_, &WorkshopEditor::breaksChanged, this, &WorkshopWindow::StepsChanged);
  connect(steps_, &WorkshopSteps::changed, this, &WorkshopWindow::StepsChanged);
  connect(steps_, &WorkshopSteps::lineChosen, this, [this](SeatId seat, int line) {
    if (seat == seat_) editor_->MarkStep(line);
  });
  connect(find_, &FindReplaceScreen::replaced, this, [this] {
    game_.autobet.ScriptRunning = false;
    game_.autobet.ScriptsCompiled = false;
    Store();
  });
  trial_->take = [this](SeatId& seat, std::vector<std::string>& lines) {
    seat = seat_;
    lines = editor_->Lines();
    return seat_ != 0;
  };
  connect(trial_, &WorkshopTrial::ended, this, [this] {
    if (wantsCounts_) editor_->ShowCounts(trial_->Result().lines);
  });
  editor_->tipOf = [this](const QString& word) { return TipOf(game_, seat_, word); };
}

WorkshopWindow::~WorkshopWindow() {
  checks_.waitForDone();
  if (wantsCounts_) WatchScripts(game_, nullptr);
  if (!wantsSteps_) return;
  game_.autobet.StepMode = false;
}

void WorkshopWindow::BuildMenu() {
  bar_ = new QMenuBar(this);
  bar_->setNativeMenuBar(false);
  bar_->setObjectName("mnbAutoBet");
  QMenu* menu = nullptr;
  for (const Command& command : kCommands) {
    const QString caption = tr(command.caption);
    if (QByteArrayView(command.name).startsWith("men")) {
      menu = bar_->addMenu(caption);
      menu->setObjectName(command.name);
      continue;
    }
    QAction* action = nullptr;
    if (command.fill != nullptr) {
      QMenu* list = menu->addMenu(caption);
      connect(list, &QMenu::aboutToShow, this, [this, list, &command] {
        list->clear();
        (this->*command.fill)(*list);
      });
      action = list->menuAction();
    } else {
      action = menu->addAction(command.key == nullptr ? caption : caption + "\t" + command.key);
      connect(action, &QAction::triggered, this, [this, &command] { Do(command); });
    }
    action->setObjectName(command.name);
    action->setCheckable(command.ticked);
  }
  for (const char* on : {"mnuShowLineNumbers", "mnuShowSyntaxLists", "mnuAutoIndent"})
    Find(on)->setChecked(true);
  layout()->setMenuBar(bar_);
  // It takes any size: in a small one, as at a side of the table, the script has the room.
  layout()->setSizeConstraint(QLayout::SetNoConstraint);
}

void WorkshopWindow::resizeEvent(QResizeEvent* event) {
  constexpr QSize kAllParts(760, 340);
  constexpr int kCommandsFrom = 240;
  const bool commandsFit = commands_->minimumSizeHint().width() + 16 <= width();
  commands_->setVisible(commandsFit && height() >= kCommandsFrom);
  tabs_->setVisible(height() >= kAllParts.height());
  watch_->parentWidget()->setVisible(width() >= kAllParts.width() && height() >= kAllParts.height());
  ToolWindow::resizeEvent(event);
}

QAction* WorkshopWindow::Find(const char* name) const { return bar_->findChild<QAction*>(name); }

void WorkshopWindow::Do(const Command& command) {
  const QByteArrayView name(command.name);
  if (name == "mnuSave")
    Save();
  else if (name == "mnuSaveAs")
    SaveAs();
  else if (command.act != nullptr)
    (this->*command.act)();
  ShowStatus();
}

void WorkshopWindow::BuildBar(QBoxLayout& column) {
  commands_ = new QWidget(this);
  auto* row = new QHBoxLayout(commands_);
  row->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(tr("P&layer:"), this);
  player_ = new QComboBox(this);
  player_->setObjectName("cmbPlayer");
  player_->setAccessibleName(tr("Player"));
  player_->setMinimumWidth(110);
  label->setBuddy(player_);
  active_ = new QCheckBox(tr("A&ctive"), this);
  active_->setObjectName("chkAutoBetsActive");
  row->addWidget(label);
  row->addWidget(player_);
  row->addWidget(active_);
  row->addSpacing(8);
  const auto button = [&](const char* name, const QString& caption, void (WorkshopWindow::*act)()) {
    auto* made = new QPushButton(caption, this);
    made->setObjectName(name);
    row->addWidget(made);
    connect(made, &QPushButton::clicked, this, act);
  };
  button("cmdCheckScript", tr("Check Script"), &WorkshopWindow::Check);
  button("cmdRunOnce", tr("Run one cycle"), &WorkshopWindow::RunOnce);
  button("cmdStep", tr("Step"), &WorkshopWindow::Step);
  button("cmdStop", tr("Stop"), &WorkshopWindow::StopScripts);
  row->addStretch();
  column.addWidget(commands_);
  connect(player_, &QComboBox::activated, this,
          [this](int index) { ShowSeat(player_->itemData(index).toInt()); });
  connect(active_, &QCheckBox::clicked, this, &WorkshopWindow::Activate);
}

void WorkshopWindow::BuildTabs() {
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("tabWorkshop");
  tabs_->setAccessibleName(tr("Below the script"));
  tabs_->setDocumentMode(true);
  tabs_->tabBar()->setObjectName("tabWorkshopBar");
  tabs_->tabBar()->setAccessibleName(tr("Below the script"));
  tabs_->addTab(ProblemsTab(), tr("Problems"));
  tabs_->addTab(steps_, steps_->Title());
  tabs_->addTab(wordsTab_ = WordsTab(), tr("Words"));
  tabs_->addTab(LoggedTab(), tr("Logged bets"));
  tabs_->addTab(find_, tr("Find"));
}

QWidget* WorkshopWindow::ProblemsTab() {
  problems_ = new QListWidget(this);
  problems_->setObjectName("lstProblems");
  problems_->setAccessibleName(tr("Problems"));
  problems_->setWordWrap(true);
  problems_->setFrameShape(QFrame::NoFrame);
  connect(problems_, &QListWidget::itemActivated, this, &WorkshopWindow::GoToProblem);
  connect(problems_, &QListWidget::itemClicked, this, &WorkshopWindow::GoToProblem);
  return problems_;
}

QWidget* WorkshopWindow::WordsTab() {
  auto* tab = new QWidget(this);
  auto* column = new QVBoxLayout(tab);
  column->setContentsMargins(8, 8, 8, 8);
  auto* row = new QHBoxLayout;
  for (std::size_t list = 0; list < std::size(kWordLists); ++list) {
    auto* button = new QPushButton(tr(kWordLists[list].caption), tab);
    button->setObjectName(kWordLists[list].button);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, list] { ListWords(list); });
  }
  row->addStretch();
  column->addLayout(row);
  words_ = new QTreeWidget(tab);
  words_->setObjectName("lstWords");
  words_->setAccessibleName(tr("Words of the language"));
  words_->setHeaderLabels({tr("Word"), tr("Meaning")});
  words_->setRootIsDecorated(false);
  words_->setUniformRowHeights(true);
  words_->setColumnWidth(0, 230);
  column->addWidget(words_, 1);
  connect(words_, &QTreeWidget::itemActivated, this,
          [this](QTreeWidgetItem* item) { editor_->InsertWord(item->text(0).toStdString()); });
  ListWords(0);
  return tab;
}

void WorkshopWindow::ListWords(std::size_t list) {
  words_->clear();
  QList<QTreeWidgetItem*> items;
  for (const ScriptMeaning& word : ScriptMeanings())
    if (IsIn(kWordLists[list], word.kind) && word.number <= 1)
      items.append(
          new QTreeWidgetItem({QString::fromStdString(word.phrase + (word.arguments.empty() ? "" : "(")),
                               QString::fromStdString(word.doc)}));
  words_->addTopLevelItems(items);
}

// --- Keys. The table has the same ones for itself.

const WorkshopWindow::Command* WorkshopWindow::CommandOf(const QKeyEvent& event) const {
  const QKeySequence pressed(event.keyCombination());
  for (const Command& command : kCommands)
    if (command.key != nullptr && pressed == QKeySequence(command.key)) return &command;
  return nullptr;
}

bool WorkshopWindow::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && CommandOf(*static_cast<QKeyEvent*>(event)) != nullptr) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    if (const Command* command = CommandOf(*static_cast<QKeyEvent*>(event)); command != nullptr) {
      Do(*command);
      return true;
    }
  }
  return ToolWindow::event(event);
}

bool WorkshopWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (watched == editor_ && key && CommandOf(*static_cast<QKeyEvent*>(event)) != nullptr)
    return WorkshopWindow::event(event);
  if (watched == editor_ && event->type() == QEvent::FocusOut) Store();
  return ToolWindow::eventFilter(watched, event);
}

// What nobody sees costs nothing.
void WorkshopWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) {
    Store();
    wantsSteps_ = false;
    runTo_ = 0;
    game_.autobet.StepMode = game_.autobet.StepsShown = false;
    Find("mnuShowSteps")->setChecked(false);
  }
  ToolWindow::hideEvent(event);
}

// --- Whose script.

void WorkshopWindow::ListPlayers() {
  QStringList wanted;
  QList<int> seats;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game_.table, seat)) continue;
    wanted << FromCore(game_.table.seats[seat].SeatName);
    seats << seat;
  }
  bool same = player_->count() == wanted.size();
  for (int n = 0; same && n < wanted.size(); ++n)
    same = player_->itemText(n) == wanted[n] && player_->itemData(n).toInt() == seats[n];
  if (!same) {
    player_->clear();
    for (int n = 0; n < wanted.size(); ++n) player_->addItem(wanted[n], seats[n]);
  }
  if (!IsOccupied(game_.table, seat_))
    seat_ = seats.contains(game_.table.SelectedSeat) ? game_.table.SelectedSeat : SeatId(seats.value(0));
  player_->setCurrentIndex(static_cast<int>(seats.indexOf(seat_)));
}

void WorkshopWindow::ShowSeat(SeatId seat) {
  if (seat == seat_ || !IsOccupied(game_.table, seat)) return;
  Store();
  Place& left = places_[seat_];
  editor_->getCursorPosition(&left.line, &left.column);
  left.top = editor_->firstVisibleLine();
  left.breaks = editor_->Breaks();
  seat_ = seat;
  player_->setCurrentIndex(player_->findData(seat.value));
  Load();
  const Place& kept = places_[seat];
  editor_->SetBreaks(kept.breaks);
  editor_->setCursorPosition(kept.line, kept.column);
  editor_->setFirstVisibleLine(kept.top);
}

void WorkshopWindow::Load() {
  loading_ = true;
  stored_ = seat_ == 0 ? std::vector<std::string>() : game_.autobet.Scripts[seat_].ScriptLines;
  editor_->SetSurroundings(SurroundingsOf(game_));
  editor_->SetLines(stored_);
  editor_->setReadOnly(seat_ == 0);
  loading_ = false;
  ++edition_;
  fault_ = {};
  watch_->SetSeat(seat_);
  CheckInBackground();
  Refresh();
}

void WorkshopWindow::Store() {
  if (seat_ == 0 || loading_) return;
  std::vector<std::string> lines = editor_->Lines();
  if (lines == stored_) return;
  stored_ = lines;
  SetScript(game_, seat_, std::move(lines), game_.autobet.Scripts[seat_].ScriptFileName);
  game_.autobet.Scripts[seat_].Unsaved = true;
  counted_.lines[seat_].clear();  // of other lines
}

bool WorkshopWindow::IsFree() const {
  return !game_.autobet.ScriptRunning && !game_.table.RollInProgress && !game_.table.AutoRollActive;
}

// What the table has done meanwhile. The text is loaded anew when another command has changed the script.
void WorkshopWindow::Refresh() {
  const int before = seat_;
  ListPlayers();
  const AutoBet& autobet = game_.autobet;
  if (seat_ != before) return Load();
  if (seat_ != 0 && autobet.Scripts[seat_].ScriptLines != stored_) return Load();
  active_->setEnabled(seat_ != 0);
  active_->setChecked(seat_ != 0 && autobet.ScriptActive[seat_]);
  logging_->setChecked(autobet.BetLogging);
  while (logged_->count() > static_cast<int>(autobet.LoggedBets.size()))
    delete logged_->takeItem(logged_->count() - 1);
  while (logged_->count() < static_cast<int>(autobet.LoggedBets.size()))
    logged_->addItem(FromCore(autobet.LoggedBets[static_cast<std::size_t>(logged_->count())]));
  if (autobet.StepsShown && !wantsSteps_ && !editor_->HasBreaks() && runTo_ == 0 && !autobet.StepMode) {
    // A script's own wish.
    wantsSteps_ = true;
    Find("mnuShowSteps")->setChecked(true);
    tabs_->setCurrentWidget(steps_);
  }
  steps_->Refresh();
  if (!autobet.ScriptRunning) editor_->MarkStep(0);
  watch_->Refresh();
  ShowCounts();
  ShowStatus();
}

void WorkshopWindow::ShowStatus() {
  int line = 0;
  int column = 0;
  editor_->getCursorPosition(&line, &column);
  place_->setText(tr("Line %1, column %2").arg(line + 1).arg(column + 1) +
                  (fault_.Failed() ? "    " + tr("1 error") : QString()));
  if (seat_ == 0) {
    setWindowTitle(tr("Auto-Bet"));
    fileLabel_->setText(tr("Nobody is at the table"));
    permissions_->clear();
    return;
  }
  const SeatScript& script = game_.autobet.Scripts[seat_];
  const QString file = script.ScriptFileName.empty()
                           ? tr("untitled")
                           : FromCore(script.ScriptFileName).section(QRegularExpression("[/\\\\]"), -1);
  const bool unsaved = script.Unsaved || editor_->isModified();
  setWindowTitle(tr("Auto-Bet - %1 - %2").arg(FromCore(game_.table.seats[seat_].SeatName), file) +
                 (unsaved ? "*" : ""));
  fileLabel_->setText(unsaved ? tr("%1, not saved").arg(file) : file);
  QStringList may;
  if (script.AllowAct4Others) may << tr("may act for other players");
  if (script.AllowReset) may << tr("may start sessions");
  if (script.AllowActProb) may << tr("may use files of dice");
  permissions_->setText(may.join(QString::fromUtf8(" \u00b7 ")));
}

QList<QStringList> WorkshopWindow::Rows() const {
  QList<QStringList> rows{{tr("Line"), tr("Statement")}};
  int number = 0;
  for (const std::string& line : editor_->Lines()) rows.append({QString::number(++number), FromCore(line)});
  return rows;
}

QStringList WorkshopWindow::PrintHeadings() const { return {windowTitle()}; }

// --- Help in writing.

void WorkshopWindow::FindText() {
  tabs_->setCurrentWidget(find_);
  find_->Begin(false);
}

void WorkshopWindow::ReplaceText() {
  tabs_->setCurrentWidget(find_);
  find_->Begin(true);
}

void WorkshopWindow::OfferWords() { editor_->OfferWords(true); }
void WorkshopWindow::ShowTip() { editor_->ShowTip(); }
void WorkshopWindow::Numbers() { editor_->ShowLineNumbers(Find("mnuShowLineNumbers")->isChecked()); }
void WorkshopWindow::Lists() {
  tabs_->setTabVisible(tabs_->indexOf(wordsTab_), Find("mnuShowSyntaxLists")->isChecked());
}
void WorkshopWindow::Indent() { editor_->autoIndent = Find("mnuAutoIndent")->isChecked(); }

}  // namespace tessaryn
