#include "shell/screens/roll_files_window.h"

#include <QAction>
#include <QActionGroup>
#include <QButtonGroup>
#include <QFile>
#include <QGridLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTimerEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "base/messages.h"
#include "base/record_file.h"
#include "play/auto_roll.h"
#include "play/roll_recorder.h"
#include "shell/screens/dice_boxes.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/roll_files_chart.h"
#include "shell/screens/roll_files_list.h"
#include "shell/table/number_habit.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

// How the list looks is kept with the places of the windows.
namespace {
int& HighlightKept(Game& game) { return game.screen.FurtherWindows[1]; }
int& FontSizeKept(Game& game) { return game.screen.FurtherWindows[2]; }
}  // namespace

// When a command can act.
enum class RollCommandNeeds { kNothing, kFile, kSelection, kUndo, kRedo };

struct RollFilesWindow::Command {
  enum class Menu { kFile, kEdit };
  Menu menu;
  const char* name;  // null: a line
  const char* caption;
  void (RollFilesWindow::*act)();
  RollCommandNeeds needs;
  QKeySequence::StandardKey key = QKeySequence::UnknownKey;  // while the list has the keyboard
};

const RollFilesWindow::Command RollFilesWindow::kCommands[] = {
    {Command::Menu::kFile, "mnuNewOpen", QT_TR_NOOP("&New / Open ..."), &RollFilesWindow::NewOpen,
     RollCommandNeeds::kNothing},
    {Command::Menu::kFile, "mnuClose", QT_TR_NOOP("&Close"), &RollFilesWindow::CloseFile,
     RollCommandNeeds::kFile},
    {Command::Menu::kFile, nullptr, nullptr, nullptr, RollCommandNeeds::kNothing},
    {Command::Menu::kFile, "mnuCopyToRollFile", QT_TR_NOOP("Copy To &Roll File ..."),
     &RollFilesWindow::CopyToRollFile, RollCommandNeeds::kSelection},
    {Command::Menu::kFile, "mnuCopyToTextFile", QT_TR_NOOP("Copy To &Text File ..."),
     &RollFilesWindow::CopyToTextFile, RollCommandNeeds::kSelection},
    {Command::Menu::kFile, "mnuPasteFromRollFile", QT_TR_NOOP("Paste &From Roll File ..."),
     &RollFilesWindow::PasteFromRollFile, RollCommandNeeds::kFile},
    {Command::Menu::kFile, "mnuPasteFromTextFile", QT_TR_NOOP("Paste From Te&xt File ..."),
     &RollFilesWindow::PasteFromTextFile, RollCommandNeeds::kFile},
    {Command::Menu::kFile, nullptr, nullptr, nullptr, RollCommandNeeds::kNothing},
    {Command::Menu::kFile, "cmdPrint", QT_TR_NOOP("&Print ..."), &RollFilesWindow::Print,
     RollCommandNeeds::kNothing},
    {Command::Menu::kEdit, "mnuUndo", QT_TR_NOOP("&Undo"), &RollFilesWindow::Undo, RollCommandNeeds::kUndo,
     QKeySequence::Undo},
    {Command::Menu::kEdit, "mnuRedo", QT_TR_NOOP("&Redo"), &RollFilesWindow::Redo, RollCommandNeeds::kRedo,
     QKeySequence::Redo},
    {Command::Menu::kEdit, nullptr, nullptr, nullptr, RollCommandNeeds::kNothing},
    {Command::Menu::kEdit, "mnuCut", QT_TR_NOOP("Cu&t"), &RollFilesWindow::Cut, RollCommandNeeds::kSelection,
     QKeySequence::Cut},
    {Command::Menu::kEdit, "mnuCopy", QT_TR_NOOP("&Copy"), &RollFilesWindow::Copy,
     RollCommandNeeds::kSelection, QKeySequence::Copy},
    {Command::Menu::kEdit, "mnuPaste", QT_TR_NOOP("&Paste"), &RollFilesWindow::Paste, RollCommandNeeds::kFile,
     QKeySequence::Paste},
    {Command::Menu::kEdit, "mnuDelete", QT_TR_NOOP("&Delete"), &RollFilesWindow::Delete,
     RollCommandNeeds::kSelection, QKeySequence::Delete},
    {Command::Menu::kEdit, nullptr, nullptr, nullptr, RollCommandNeeds::kNothing},
    {Command::Menu::kEdit, "mnuSelectAll", QT_TR_NOOP("Select &All"), &RollFilesWindow::SelectAll,
     RollCommandNeeds::kFile, QKeySequence::SelectAll},
};

namespace {

constexpr std::int32_t kRollsAtATime = 1 << 20;
constexpr std::int32_t kRowsAtATime = 4'096;
constexpr int kLeastFont = 8;
constexpr int kMostFont = 16;
constexpr const char* kTitles[3] = {QT_TRANSLATE_NOOP("Files", "Dice Roll File"),
                                    QT_TRANSLATE_NOOP("Files", "Record Dice Rolls During Game Play"),
                                    QT_TRANSLATE_NOOP("Files", "Playback Dice Rolls During Game Play")};
constexpr const char* kTitleEnter = QT_TRANSLATE_NOOP("Files", "Record Dice Rolls");
constexpr const char* kTitleEdit = kTitles[0];
constexpr QSize kPadButton{40, 22};
constexpr int kPadFace = 14;

QString NumberText(std::int64_t number) { return ShownCount(number); }

// Both dice of one of the 36 buttons.
QIcon PadIcon(int button, qreal ratio) {
  QPixmap picture(QSize(2 * kPadFace + 3, kPadFace) * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const int faces[2] = {ButtonDie1(button), ButtonDie2(button)};
  for (int die = 0; die < 2; ++die) {
    painter.save();
    painter.translate(kPadFace / 2.0 + die * (kPadFace + 3), kPadFace / 2.0);
    painter.scale(kPadFace - 1, kPadFace - 1);
    PaintDie(painter, faces[die], die == 0 ? kDiceRed : kDiceBlue, Qt::white);
    painter.restore();
  }
  return QIcon(picture);
}

}  // namespace

RollFilesWindow::RollFilesWindow(Game& game, QWidget* parent)
    : ToolWindow("frmDiceRollFiles", parent), game_(game) {
  setWindowTitle(tr("Dice Roll Files"));
  edits_.Folder = game.ownFolder;
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 0, 8, 8);
  column->setSpacing(8);
  list_ = new RollList(game.rollFile, this);
  list_->installEventFilter(this);
  connect(list_, &RollList::moved, this, [this] { Refresh(); });
  connect(list_, &RollList::typed, this, &RollFilesWindow::Enter);
  AddMenus(*column);
  AddHead(*column);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  row->addWidget(list_, 1);
  row->addWidget(MakeSide());
  column->addLayout(row, 1);
  AddRecorder(*column);
  list_->setFocus();
  Refresh();
}

// --- Parts.

void RollFilesWindow::AddMenus(QBoxLayout& column) {
  menus_ = new QMenuBar(this);
  menus_->setObjectName("mnuBar");
  menus_->setNativeMenuBar(false);
  column.setMenuBar(menus_);
  QMenu* menus[2] = {menus_->addMenu(tr("&File")), menus_->addMenu(tr("&Edit"))};
  for (const Command& command : kCommands) {
    QMenu* menu = menus[static_cast<int>(command.menu)];
    if (command.name == nullptr) {
      menu->addSeparator();
      continue;
    }
    // The keys are the list's: as shortcuts they would be those of the whole window, entry boxes included.
    QString text = tr(command.caption);
    if (command.key != QKeySequence::UnknownKey)
      text += "\t" + QKeySequence(command.key).toString(QKeySequence::NativeText);
    QAction* action = menu->addAction(text);
    action->setObjectName(command.name);
    connect(action, &QAction::triggered, this, command.act);
  }
  QMenu* view = menus_->addMenu(tr("&View"));
  AddHighlights(*view);
  AddFontSizes(*view);
  for (QMenu* menu : {menus[0], menus[1]})
    connect(menu, &QMenu::aboutToShow, this, &RollFilesWindow::ShowCommands);
}

void RollFilesWindow::AddHighlights(QMenu& menu) {
  QMenu* kinds = menu.addMenu(tr("&Highlight"));
  kinds->menuAction()->setObjectName("mnuHighlight");
  auto* group = new QActionGroup(kinds);
  for (int kind = 0; kind < kRollHighlights; ++kind) {
    QAction* action = kinds->addAction(tr(kRollHighlightKinds[kind].caption));
    action->setObjectName(kRollHighlightKinds[kind].name);
    action->setCheckable(true);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, kind] {
      HighlightKept(game_) = kind;
      ShowKept();
    });
  }
}

void RollFilesWindow::AddFontSizes(QMenu& menu) {
  QMenu* sizes = menu.addMenu(tr("Font &size"));
  sizes->menuAction()->setObjectName("mnuFontSize");
  auto* group = new QActionGroup(sizes);
  const auto add = [&](const QString& text, int points) {
    QAction* action = sizes->addAction(text);
    action->setObjectName(QString("mnuFontSize%1").arg(points));
    action->setCheckable(true);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, points] {
      FontSizeKept(game_) = points;
      ShowKept();
    });
  };
  add(tr("&As the screen"), 0);
  for (int points = kLeastFont; points <= kMostFont; points += 2) add(QString::number(points), points);
}

void RollFilesWindow::AddHead(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  name_ = new QLabel(this);
  name_->setObjectName("lblRollFileName");
  name_->setTextFormat(Qt::PlainText);
  name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  QFont bold = name_->font();
  bold.setBold(true);
  name_->setFont(bold);
  count_ = new QLabel(this);
  count_->setObjectName("lblRollCount");
  row->addWidget(name_, 1);
  row->addWidget(count_);
  column.addLayout(row);
}

// It scrolls where there is little room, as at a side of the table.
QWidget* RollFilesWindow::MakeSide() {
  auto* inside = new QWidget(this);
  auto* column = new QVBoxLayout(inside);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  AddPad(*column);
  AddModes(*column);
  chart_ = new RollChartView(inside);
  column->addWidget(chart_, 1);
  AddFormat(*column);
  auto* side = new QScrollArea(this);
  side->setObjectName("scrRollTools");
  side->setAccessibleName(tr("Entering rolls, and their distribution"));
  side->setFocusPolicy(Qt::NoFocus);
  side->setFrameShape(QFrame::NoFrame);
  side->setWidgetResizable(true);
  side->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  side->setWidget(inside);
  side->setFixedWidth(inside->minimumSizeHint().width() + 18);
  return side;
}

void RollFilesWindow::Retranslate() {
  auto* side = findChild<QScrollArea*>("scrRollTools");
  side->widget()->layout()->invalidate();
  side->setFixedWidth(side->widget()->minimumSizeHint().width() + 18);
  ShowCount(SelectedRolls(game_.rollFile).Count <= 1);
}

// The mouse's; by the keyboard two digits make a roll.
void RollFilesWindow::AddPad(QBoxLayout& column) {
  auto* grid = new QGridLayout;
  grid->setSpacing(1);
  for (int button = 0; button < 36; ++button) {
    const int die1 = ButtonDie1(button);
    const int die2 = ButtonDie2(button);
    auto* key = new QToolButton(this);
    key->setObjectName(QString("cmdRollNumbers%1").arg(button));
    key->setAccessibleName(tr("Enter %1 and %2").arg(die1).arg(die2));
    key->setToolTip(tr("Enters %1 and %2. In the list: type %1%2").arg(die1).arg(die2));
    key->setIcon(PadIcon(button, devicePixelRatioF()));
    key->setIconSize(QSize(2 * kPadFace + 3, kPadFace));
    key->setFixedSize(kPadButton);
    key->setFocusPolicy(Qt::NoFocus);
    connect(key, &QToolButton::clicked, this, [this, die1, die2] { Enter(die1, die2); });
    grid->addWidget(key, die1 - 1, die2 - 1);
  }
  column.addLayout(grid);
}

void RollFilesWindow::AddModes(QBoxLayout& column) {
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(4);
  mode_ = new QButtonGroup(this);
  const QString captions[2] = {tr(" Type over"), tr(" Insert")};
  for (int insert = 0; insert < 2; ++insert) {
    auto* radio = new QRadioButton(captions[insert], this);
    radio->setObjectName(QString("optInsertRolls%1").arg(insert));
    mode_->addButton(radio, insert);
    grid->addWidget(radio, insert, 0);
  }
  connect(mode_, &QButtonGroup::idClicked, this,
          [this](int insert) { game_.rollFile.RollFileInsertMode = insert == 1; });
  auto* random = new QPushButton(tr("Ran&dom"), this);
  random->setObjectName("cmdRandomNum");
  random->setFocusPolicy(Qt::TabFocus);
  connect(random, &QPushButton::clicked, this, &RollFilesWindow::EnterRandom);
  grid->addWidget(random, 0, 1, 2, 1, Qt::AlignRight | Qt::AlignVCenter);
  grid->setColumnStretch(0, 1);
  column.addLayout(grid);
}

void RollFilesWindow::AddFormat(QBoxLayout& column) {
  auto* label = new QLabel(tr("&Output format:"), this);
  format_ = new QLineEdit(FromCore(game_.rollFile.RollFileOutputFormat), this);
  format_->setObjectName("txtDiceRollOutputFormat");
  format_->setToolTip(tr("Roll#, Die1, Die2 and Total stand for the values; all else is copied as it is"));
  label->setBuddy(format_);
  connect(format_, &QLineEdit::textEdited, this, &RollFilesWindow::SetFormat);
  sample_ = new QLabel(this);
  sample_->setObjectName("lblFormatSample");
  sample_->setTextFormat(Qt::PlainText);
  sample_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* lines = new QVBoxLayout;
  lines->setSpacing(4);
  lines->addWidget(label);
  lines->addWidget(format_);
  lines->addWidget(sample_);
  column.addLayout(lines);
}

void RollFilesWindow::AddRecorder(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  auto* box = new QWidget(this);
  box->setObjectName("picRecorder");
  auto* buttons = new QHBoxLayout(box);
  buttons->setContentsMargins(0, 0, 0, 0);
  buttons->setSpacing(0);
  recorder_ = new QButtonGroup(this);
  const QString texts[3] = {tr("\u25a0 Off"), tr("\u25cf Record"), tr("\u25b6 Playback")};
  const QString names[3] = {tr("Recorder off"), tr("Record the game's rolls"), tr("Play the file's rolls")};
  for (int state = 0; state < 3; ++state) {
    auto* button = new QToolButton(box);
    button->setText(texts[state]);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMinimumHeight(26);
    button->setObjectName(QString("picRecorder%1").arg(state));
    button->setAccessibleName(names[state]);
    button->setToolTip(names[state]);
    button->setCheckable(true);
    recorder_->addButton(button, state);
    buttons->addWidget(button);
  }
  connect(recorder_, &QButtonGroup::idClicked, this, &RollFilesWindow::SetRecorder);
  row->addWidget(box);
  row->addStretch();
  next_ = new QLineEdit(this);
  next_->setObjectName("txtNextRollNum");
  next_->setAlignment(Qt::AlignRight);
  next_->setValidator(new QIntValidator(1, kRollFileMaximum, next_));
  next_->setMaximumWidth(next_->fontMetrics().horizontalAdvance("2,147,483,646") + 16);
  connect(next_, &QLineEdit::returnPressed, this, &RollFilesWindow::SetNextRoll);
  connect(next_, &QLineEdit::editingFinished, this, &RollFilesWindow::SetNextRoll);
  auto* label = new QLabel(tr("Next roll &is roll #"), this);
  label->setBuddy(next_);
  row->addWidget(label);
  row->addWidget(next_);
  column.addLayout(row);
}

// --- Keys of the list that are commands.

bool RollFilesWindow::CommandKey(const QKeyEvent& key) {
  for (const Command& command : kCommands) {
    if (command.name == nullptr || command.key == QKeySequence::UnknownKey || !key.matches(command.key))
      continue;
    if (key.type() == QEvent::ShortcutOverride) return true;
    ShowCommands();
    if (menus_->findChild<QAction*>(command.name)->isEnabled()) (this->*command.act)();
    return true;
  }
  return false;
}

bool RollFilesWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (watched != list_ || !key) return ToolWindow::eventFilter(watched, event);
  if (!CommandKey(*static_cast<QKeyEvent*>(event))) return false;
  event->accept();
  return true;
}

// --- Showing.

void RollFilesWindow::ShowKept() {
  const int kind = std::clamp(HighlightKept(game_), 0, kRollHighlights - 1);
  const int kept = FontSizeKept(game_);
  const bool sized = kept >= kLeastFont && kept <= kMostFont && kept % 2 == 0;
  const int points = sized ? kept : 0;
  menus_->findChild<QAction*>(kRollHighlightKinds[kind].name)->setChecked(true);
  menus_->findChild<QAction*>(QString("mnuFontSize%1").arg(points))->setChecked(true);
  if (kind != list_->Highlight()) list_->SetHighlight(kind);
  if (points != list_->FontSize()) list_->SetFontSize(points);
}

void RollFilesWindow::Refresh() {
  ShowKept();
  const RollFile& file = game_.rollFile;
  const bool moved = file.RollFileCursor != shownCursor_ || file.RollFileSelectEnd != shownEnd_;
  const RollFileMark mark = MarkOf(file);
  const bool other = mark != shown_;
  // The user's own selection has been brought into view where it was made.
  const bool follows = file.RollFileCursor != shownCursor_ && file.RollFileCursor == file.RollFileSelectEnd;
  if (moved || other || file.RecorderState != kRecorderOff) list_->Refresh(follows);
  shownCursor_ = file.RollFileCursor;
  shownEnd_ = file.RollFileSelectEnd;
  shown_ = mark;
  const bool open = IsRollFileOpen(file);
  name_->setText(open ? FromCore(FileTitle(file.RollFileName)) : tr("No file open"));
  name_->setToolTip(FromCore(file.RollFileName));
  const RollSelection selection = SelectedRolls(file);
  const auto length = RollFileLength(file);
  QString count = open ? tr("%1 rolls", nullptr, PluralOf(length)).arg(NumberText(length)) : QString();
  if (selection.Count > 1) count = tr("%1, %2 selected").arg(count, NumberText(selection.Count));
  count_->setText(count);
  const QString next = open ? QString::number(file.RollFileCursor) : QString();
  if (!next_->hasFocus() && next_->text() != next) next_->setText(next);
  next_->setEnabled(open);
  mode_->button(file.RollFileInsertMode ? 1 : 0)->setChecked(true);
  const QString format = FromCore(file.RollFileOutputFormat);
  if (!format_->hasFocus() && format_->text() != format) format_->setText(format);
  sample_->setText(
      IsRollFormatUsable(file.RollFileOutputFormat)
          ? tr("Roll 12, 3 and 4: %1").arg(FromCore(RollText(file.RollFileOutputFormat, 12, RollByte(3, 4))))
          : tr("No die and no total in it"));
  ShowRecorder();
  Count();
}

void RollFilesWindow::ShowRecorder() { recorder_->button(game_.rollFile.RecorderState)->setChecked(true); }

void RollFilesWindow::ShowCommands() {
  const RollFile& file = game_.rollFile;
  for (const Command& command : kCommands) {
    if (command.name == nullptr) continue;
    bool can = true;
    if (command.needs == RollCommandNeeds::kFile) can = IsRollFileOpen(file);
    if (command.needs == RollCommandNeeds::kSelection) can = SelectedRolls(file).Count > 0;
    if (command.needs == RollCommandNeeds::kUndo) can = CanUndoRolls(file, edits_);
    if (command.needs == RollCommandNeeds::kRedo) can = CanRedoRolls(file, edits_);
    menus_->findChild<QAction*>(command.name)->setEnabled(can);
  }
}

// --- The distribution: of the selection, or of the whole file.

void RollFilesWindow::Count() {
  const RollFile& file = game_.rollFile;
  const RollSelection selection = SelectedRolls(file);
  const bool all = selection.Count <= 1;
  const std::int64_t first = all ? 1 : selection.First;
  const std::int64_t count = all ? RollFileLength(file) : selection.Count;
  const RollFileMark mark = MarkOf(file);
  const bool same =
      counts_.Mark == mark && counts_.Begin == first && counts_.Begin + count - 1 == counts_.Last;
  if (same) return ShowCount(all);
  // A long file that a run records into is counted when that is through.
  if (game_.table.TurboRollActive && count > kRollsAtATime) return counting_.stop();
  BeginCount(file, counts_, first, count);
  if (CountMore(game_.rollFile, counts_, kRollsAtATime))
    counting_.stop();
  else
    counting_.start(0, this);
  ShowCount(all);
}

void RollFilesWindow::ShowCount(bool all) {
  RollChart chart;
  chart.totals = TotalsOf(counts_);
  chart.counting = counts_.Next <= counts_.Last;
  const std::int64_t counted = counts_.Next - counts_.Begin;
  const QString rolls = NumberText(counted);
  const int form = PluralOf(counted);
  if (!IsRollFileOpen(game_.rollFile))
    chart.heading = tr("No file open");
  else if (chart.counting)
    chart.heading = tr("%1 rolls counted ...", nullptr, form).arg(rolls);
  else
    chart.heading = all ? tr("All %1 rolls", nullptr, form).arg(rolls)
                        : tr("The %1 selected rolls", nullptr, form).arg(rolls);
  chart.heading = tr("%1 \u00b7 % \u00b7 hatched: fair").arg(chart.heading);
  chart_->Show(chart);
}

void RollFilesWindow::timerEvent(QTimerEvent* event) {
  if (event->timerId() != counting_.timerId()) return ToolWindow::timerEvent(event);
  if (CountMore(game_.rollFile, counts_, kRollsAtATime)) counting_.stop();
  ShowCount(SelectedRolls(game_.rollFile).Count <= 1);
}

// --- Editing.

bool RollFilesWindow::MayEdit(const char* title) {
  if (!AskBeforeCommand(game_) || game_.table.RollInProgress) return false;
  if (IsRollFileOpen(game_.rollFile)) return true;
  TellOpenFileFirst(game_, title);
  return false;
}

void RollFilesWindow::Edit(const char* title, RollPlace place, const std::function<std::string()>& edit) {
  const std::string error = EditRolls(game_.rollFile, edits_, place, edit);
  shown_ = {};
  Refresh();
  if (!error.empty()) TellDiceProblem(game_, title, error);
}

void RollFilesWindow::Enter(int die1, int die2) {
  if (!MayEdit(kTitleEnter)) return;
  Edit(kTitleEnter, PlaceOfTypedRoll(game_.rollFile), [&] { return EnterRoll(game_.rollFile, die1, die2); });
}

void RollFilesWindow::EnterRandom() {
  if (!MayEdit(kTitleEnter)) return;
  Edit(kTitleEnter, PlaceOfTypedRoll(game_.rollFile),
       [&] { return EnterRandomRoll(game_.rollFile, game_.generators, game_.host->TickMilliseconds()); });
}

void RollFilesWindow::Cut() {
  if (!MayEdit(kTitleEdit)) return;
  Edit(kTitleEdit, PlaceOfSelection(game_.rollFile),
       [&] { return CutRolls(game_.rollFile, game_.ownFolder); });
}
void RollFilesWindow::Copy() {
  if (!MayEdit(kTitleEdit)) return;
  const std::string error = CopyRolls(game_.rollFile, game_.ownFolder);
  if (!error.empty()) TellDiceProblem(game_, kTitleEdit, error);
}
void RollFilesWindow::Paste() {
  if (!MayEdit(kTitleEdit)) return;
  Edit(kTitleEdit, PlaceOfCursor(game_.rollFile),
       [&] { return PasteCopiedRolls(game_.rollFile, game_.ownFolder); });
}
void RollFilesWindow::Delete() {
  if (!MayEdit(kTitleEdit)) return;
  Edit(kTitleEdit, PlaceOfSelection(game_.rollFile), [&] { return DeleteRolls(game_.rollFile); });
}

void RollFilesWindow::SelectAll() {
  SelectAllRolls(game_.rollFile);
  list_->Refresh(false);
  Refresh();
}

void RollFilesWindow::Undo() {
  if (!MayEdit(kTitleEdit)) return;
  const std::string error = UndoRolls(game_.rollFile, edits_);
  shown_ = {};
  Refresh();
  if (!error.empty()) TellDiceProblem(game_, kTitleEdit, error);
}
void RollFilesWindow::Redo() {
  if (!MayEdit(kTitleEdit)) return;
  const std::string error = RedoRolls(game_.rollFile, edits_);
  shown_ = {};
  Refresh();
  if (!error.empty()) TellDiceProblem(game_, kTitleEdit, error);
}

// --- Files.

void RollFilesWindow::NewOpen() {
  if (!AskBeforeCommand(game_) || game_.table.RollInProgress) return;
  const std::string path = ChooseFile(game_, this, kOpenRollFile);
  if (path.empty()) return;
  const std::string error = OpenRollFile(game_.rollFile, path);
  if (!error.empty()) ShowMessage<Msg::kRollFileNotOpened>(game_, With<"problem">(error));
  shown_ = {};
  Refresh();
}

void RollFilesWindow::CloseFile() {
  if (!MayEdit(kTitleEdit)) return;
  const std::string error = CloseRollFile(game_.rollFile);
  if (!error.empty()) ShowMessage<Msg::kFileFailed>(game_, With<"problem">(error));
  shown_ = {};
  Refresh();
}

void RollFilesWindow::CopyToRollFile() {
  if (!MayEdit(kCopyToRollFile.title)) return;
  const std::string path = ChooseFile(game_, this, kCopyToRollFile);
  if (path.empty()) return;
  const std::string error = CopyRollsToRollFile(game_.rollFile, path);
  if (!error.empty()) TellDiceProblem(game_, kCopyToRollFile.title, error);
}

void RollFilesWindow::CopyToTextFile() {
  RollFile& file = game_.rollFile;
  if (!MayEdit(kCopyToTextFile.title)) return;
  if (!IsRollFormatUsable(file.RollFileOutputFormat))
    return TellDiceProblem(game_, kCopyToTextFile.title, MessageText<Msg::kNoDiceInFormat>());
  const std::string path = ChooseFile(game_, this, kCopyToTextFile);
  if (path.empty()) return;
  const bool renumber = IsRenumberQuestion(file) && Confirms<Msg::kAskRenumber>(game_);
  const std::string error = CopyRollsToTextFile(file, path, renumber);
  if (!error.empty()) TellDiceProblem(game_, kCopyToTextFile.title, error);
}

void RollFilesWindow::PasteFromRollFile() {
  if (!MayEdit(kPasteFromRollFile.title)) return;
  const std::string path = ChooseFile(game_, this, kPasteFromRollFile);
  if (path.empty()) return;
  Edit(kPasteFromRollFile.title, PlaceOfCursor(game_.rollFile),
       [&] { return tessaryn::PasteFromRollFile(game_.rollFile, path); });
}

void RollFilesWindow::PasteFromTextFile() {
  if (!MayEdit(kPasteFromTextFile.title)) return;
  const std::string path = ChooseFile(game_, this, kPasteFromTextFile);
  if (path.empty()) return;
  Edit(kPasteFromTextFile.title, PlaceOfCursor(game_.rollFile),
       [&] { return tessaryn::PasteFromTextFile(game_.rollFile, path, game_.ownFolder); });
}

// --- The recorder.

void RollFilesWindow::SetRecorder(int state) {
  const bool may = AskBeforeCommand(game_) && !game_.table.RollInProgress;
  if (may && state != kRecorderOff && !IsRollFileOpen(game_.rollFile)) {
    TellOpenFileFirst(game_, kTitles[state]);
  } else if (may) {
    const std::string error = tessaryn::SetRecorder(game_, state);
    if (!error.empty()) TellDiceProblem(game_, kTitles[state], error);
  }
  Refresh();
}

void RollFilesWindow::SetNextRoll() {
  RollFile& file = game_.rollFile;
  const QString typed = next_->text();
  if (!IsRollFileOpen(file) || typed.toLongLong() == file.RollFileCursor) return;
  if (!typed.isEmpty() && AskBeforeCommand(game_)) {
    FlushRollFile(file);
    SetRollFileCursor(file, typed.toLongLong());
  }
  next_->setText(QString::number(file.RollFileCursor));
  Refresh();
}

void RollFilesWindow::SetFormat() {
  game_.rollFile.RollFileOutputFormat = ToCore(format_->text());
  Refresh();
}

// --- Paper.

bool RollFilesWindow::ReadyToPrint() {
  constexpr const char* kTitle = QT_TRANSLATE_NOOP("Files", "Print Dice Roll File");
  if (!IsRollFileOpen(game_.rollFile))
    TellOpenFileFirst(game_, kTitle);
  else if (RollFileLength(game_.rollFile) == 0)
    TellDiceProblem(game_, kTitle, MessageText<Msg::kNoRollsToPrint>());
  else if (!IsRollFormatUsable(game_.rollFile.RollFileOutputFormat))
    TellDiceProblem(game_, QT_TRANSLATE_NOOP("Files", "Print Dice Rolls"),
                    MessageText<Msg::kNoDiceInFormat>());
  else
    return true;
  return false;
}

void RollFilesWindow::Print() {
  if (ReadyToPrint() && print) print();
}

namespace {

RollSelection RollsToPrint(const RollFile& file) {
  const RollSelection selection = SelectedRolls(file);
  return selection.Count > 1 ? selection : RollSelection{1, RollFileLength(file)};
}

// Through a handle of its own: the game may go on with the file meanwhile.
struct RollRows : RowSource {
  RollRows(const RollFile& file, RollSelection of)
      : format(file.RollFileOutputFormat), taken(of), bytes(FromCore(file.RollFileName)) {
    const bool can = IsRollFileOpen(file) && IsRollFormatUsable(format);
    if (!can || !bytes.open(QIODevice::ReadOnly)) taken.Count = -1;
  }
  qint64 Count() const override { return qint64{taken.Count} + 1; }
  QStringList Row(qint64 n) const override {
    if (n <= 0) return {FromCore(format)};
    if (n < first || n >= first + read.size()) {
      first = n;
      bytes.seek(taken.First + n - 2);
      read = bytes.read(std::min<qint64>(kRowsAtATime, taken.Count - n + 1));
    }
    if (read.isEmpty()) return {};  // it has become shorter
    const auto roll = static_cast<unsigned char>(read[n - first]);
    return {FromCore(RollText(format, taken.First + n - 1, roll))};
  }

  std::string format;
  RollSelection taken;
  mutable QFile bytes;
  mutable qint64 first = 0;
  mutable QByteArray read;
};

QString RollsTaken(const RollFile& file) { return NumberText(RollsToPrint(file).Count); }

}  // namespace

std::unique_ptr<RowSource> RollFilesWindow::TakeRows() const {
  FlushRollFile(game_.rollFile);
  return std::make_unique<RollRows>(game_.rollFile, RollsToPrint(game_.rollFile));
}

QString RollFilesWindow::PrintTitle() const { return tr("Print Dice Rolls"); }

QStringList RollFilesWindow::PrintHeadings() const {
  return {tr("Roll file:  %1").arg(FromCore(game_.rollFile.RollFileName)),
          tr("Rolls: %1").arg(RollsTaken(game_.rollFile))};
}

QStringList RollFilesWindow::PrintFacts(int /*pages*/) const {
  return {tr("Number of rolls to be printed: %1").arg(RollsTaken(game_.rollFile)),
          tr("Roll file:  %1").arg(FromCore(game_.rollFile.RollFileName))};
}

void RollFilesWindow::PaintPicture(QPainter& painter, const QRectF& area) const {
  PaintRollChart(painter, area, chart_->Chart(), false);
}

}  // namespace tessaryn
