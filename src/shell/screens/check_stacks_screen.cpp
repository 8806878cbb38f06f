#include "shell/screens/check_stacks_screen.h"

#include <QAction>
#include <QActionGroup>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "play/auto_roll.h"
#include "shell/screens/check_stacks_list.h"
#include "shell/screens/core_words.h"
#include "shell/screens/player_head.h"
#include "shell/screens/print_heading.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr std::size_t kMostSteps = 200;  // that can be undone
constexpr int kFontSizes[] = {0, 9, 10, 11, 12, 13, 14, 16};

void Show(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
}

// Its text is shortened where there is no room for it.
class ShortLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), static_cast<int>(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
  }
};

// A name is one line.
std::string NameFrom(const QString& text) { return text.simplified().toStdString(); }

bool ValueFrom(const QString& text, Currency& value) {
  value = kZero;
  return text.trimmed().isEmpty() || ReadNumber(text, value);
}

}  // namespace

CheckStacksScreen::CheckStacksScreen(Game& game, QWidget* parent)
    : ToolWindow("frmCheckStacks", parent), game_(game) {
  setWindowTitle(tr("CheckStacks"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  column->setSpacing(8);
  AddHeader(*column);
  AddVisible(*column);
  AddSetStacks(*column);
  AddList(*column);
  BuildMenu();
  resize(360, 440);
  ShowFont();
  Refresh();
}

// --- The controls.

void CheckStacksScreen::AddHeader(QBoxLayout& column) {
  const PlayerHeadTexts texts{tr("Player"), tr("Options"),
                              tr("Undo, clipboard, deletions, the stacks on the table")};
  const PlayerHead head = AddPlayerHead(column, "mnuStacks", texts, this);
  player_ = head.player;
  menu_ = head.menu;
  connect(player_, &QComboBox::activated, this, [this] {
    game_.screen.CheckStacks.CheckStackSeat = player_->currentData().toInt();
    Refresh();
  });
  connect(menu_, &QMenu::aboutToShow, this, &CheckStacksScreen::ShowMenu);
}

// The four that stand on the table, as they are now.
void CheckStacksScreen::AddVisible(QBoxLayout& column) {
  auto* frame = new QFrame(this);
  frame->setFrameShape(QFrame::StyledPanel);
  frame->setObjectName("picVisibleStacks");
  frame->setToolTip(tr("On the table"));
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(8, 4, 8, 4);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(2);
  grid->setColumnMinimumWidth(2, 8);
  QFont bold = font();
  bold.setBold(true);
  for (int n = 0; n < kVisibleStacks; ++n) {
    visible_[n] = {new ShortLabel(frame), new QLabel(frame)};
    visible_[n].caption->setObjectName(QString("lblVisibleName%1").arg(n));
    visible_[n].caption->setTextFormat(Qt::PlainText);
    // A long name gives way to the figure.
    visible_[n].caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    visible_[n].value->setObjectName(QString("lblVisibleValue%1").arg(n));
    visible_[n].value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    visible_[n].value->setFont(bold);
    const int left = n % 2 == 0 ? 0 : 3;
    grid->addWidget(visible_[n].caption, n / 2, left);
    grid->addWidget(visible_[n].value, n / 2, left + 1);
    grid->setColumnStretch(left, 1);
  }
  column.addWidget(frame);
}

void CheckStacksScreen::AddSetStacks(QBoxLayout& column) {
  setStacks_ = new QFrame(this);
  setStacks_->setObjectName("picSetStacks");
  setStacks_->setFrameShape(QFrame::StyledPanel);
  setStacks_->hide();
  auto* grid = new QGridLayout(setStacks_);
  grid->setContentsMargins(8, 8, 8, 8);
  for (int n = 0; n < kVisibleStacks; ++n) {
    auto* label = new QLabel(CoreWords(kVisibleStackLabels[n]), setStacks_);
    numbers_[n] = new QSpinBox(setStacks_);
    numbers_[n]->setObjectName(QString("txtStackNum%1").arg(n));
    numbers_[n]->setRange(0, kCheckStacks - 1);
    for (QWidget* part :
         {static_cast<QWidget*>(numbers_[n]), numbers_[n]->findChild<QWidget*>("qt_spinbox_lineedit")})
      part->setAccessibleName(label->text());
    label->setBuddy(numbers_[n]);
    grid->addWidget(label, n, 0);
    grid->addWidget(numbers_[n], n, 1);
  }
  grid->setColumnStretch(2, 1);
  auto* accept = new QPushButton(tr("&Accept"), setStacks_);
  accept->setObjectName("cmdOK");
  connect(accept, &QPushButton::clicked, this, &CheckStacksScreen::AcceptSetStacks);
  auto* cancel = new QPushButton(tr("Cancel"), setStacks_);
  cancel->setObjectName("cmdCancel");
  connect(cancel, &QPushButton::clicked, this, &CheckStacksScreen::CloseSetStacks);
  grid->addWidget(accept, 2, 3);
  grid->addWidget(cancel, 3, 3);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    auto* shortcut = new QShortcut(key, setStacks_);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this,
            key == Qt::Key_Escape ? &CheckStacksScreen::CloseSetStacks : &CheckStacksScreen::AcceptSetStacks);
  }
  column.addWidget(setStacks_);
}

void CheckStacksScreen::AddList(QBoxLayout& column) {
  list_ = new CheckStackList(game_, this);
  view_ = new CheckStackView(this);
  view_->setModel(list_);
  view_->horizontalHeader()->setSectionResizeMode(kStackName, QHeaderView::Stretch);
  view_->mayEdit = [this] { return MayEdit(); };
  connect(list_, &CheckStackList::entered, this, &CheckStacksScreen::Enter);
  connect(view_, &CheckStackView::cutPressed, this, [this] {
    Copy();
    Empty();
  });
  connect(view_, &CheckStackView::copyPressed, this, &CheckStacksScreen::Copy);
  connect(view_, &CheckStackView::pastePressed, this, &CheckStacksScreen::Paste);
  connect(view_, &CheckStackView::deletePressed, this, &CheckStacksScreen::Empty);
  connect(view_, &CheckStackView::undoPressed, this, [this] { TakeStep(done_, undone_, true); });
  connect(view_, &CheckStackView::redoPressed, this, [this] { TakeStep(undone_, done_, false); });
  column.addWidget(view_, 1);
}

// --- The menu.

QAction* CheckStacksScreen::AddEntry(QMenu& menu, const char* name, const QString& text,
                                     std::function<void()> act) {
  QAction* action = menu.addAction(text);
  action->setObjectName(name);
  connect(action, &QAction::triggered, this, std::move(act));
  return action;
}

void CheckStacksScreen::BuildMenu() {
  AddEntry(*menu_, "mnuUndo", tr("Und&o\tCtrl+Z"), [this] { TakeStep(done_, undone_, true); });
  AddEntry(*menu_, "mnuRedo", tr("&Redo\tCtrl+Y"), [this] { TakeStep(undone_, done_, false); });
  menu_->addSeparator();
  AddEntry(*menu_, "mnuCut", tr("Cu&t\tCtrl+X"), [this] {
    Copy();
    Empty();
  });
  AddEntry(*menu_, "mnuCopy", tr("&Copy\tCtrl+C"), [this] { Copy(); });
  AddEntry(*menu_, "mnuPaste", tr("&Paste\tCtrl+V"), [this] { Paste(); });
  AddEntry(*menu_, "mnuDelete", tr("&Delete\tDel"), [this] { Empty(); });
  menu_->addSeparator();
  AddEntry(*menu_, "mnuDeleteAll", tr("Delete &all"), [this] { DeleteAll(StackDeletion::kAll); });
  AddEntry(*menu_, "mnuDeleteAllValues", tr("Delete all val&ues"),
           [this] { DeleteAll(StackDeletion::kValues); });
  AddEntry(*menu_, "mnuDeleteAllNames", tr("Delete all &names"),
           [this] { DeleteAll(StackDeletion::kNames); });
  menu_->addSeparator();
  AddEntry(*menu_, "mnuSetStacks", tr("&Set visible checkstacks"), [this] { OpenSetStacks(); });
  QAction* zeros = AddEntry(*menu_, "mnuDisplayZero", tr("Display &zero values"), [this] {
    bool& shown = game_.screen.CheckStacks.DisplayZero;
    shown = !shown;
    list_->ShowAnew();
    ShowVisible();
    ShowMenu();
  });
  zeros->setCheckable(true);
  AddFontSizes();
  view_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(view_, &QWidget::customContextMenuRequested, this,
          [this](QPoint at) { menu_->popup(view_->viewport()->mapToGlobal(at)); });
  ShowMenu();
}

void CheckStacksScreen::AddFontSizes() {
  QMenu* sizes = menu_->addMenu(tr("&Font size"));
  sizes->menuAction()->setObjectName("mnuFontSize");
  auto* group = new QActionGroup(sizes);
  for (const int size : kFontSizes) {
    QAction* action =
        AddEntry(*sizes, "", size == 0 ? tr("&Desktop's") : QString::number(size), [this, size] {
          game_.screen.CheckStacks.ListFontSize = size;
          ShowFont();
        });
    action->setObjectName(QString("mnuFontSize%1").arg(size));
    action->setCheckable(true);
    action->setChecked(size == game_.screen.CheckStacks.ListFontSize);
    group->addAction(action);
  }
}

void CheckStacksScreen::ShowMenu() {
  const bool somebody = Seat() != 0;
  const bool cell = somebody && view_->currentIndex().isValid();
  const std::pair<const char*, bool> enabled[] = {{"mnuUndo", !done_.empty()},
                                                  {"mnuRedo", !undone_.empty()},
                                                  {"mnuCut", cell},
                                                  {"mnuCopy", cell},
                                                  {"mnuPaste", cell},
                                                  {"mnuDelete", cell},
                                                  {"mnuDeleteAll", somebody},
                                                  {"mnuDeleteAllValues", somebody},
                                                  {"mnuDeleteAllNames", somebody},
                                                  {"mnuSetStacks", somebody}};
  for (const auto& [name, can] : enabled) menu_->findChild<QAction*>(name)->setEnabled(can);
  menu_->findChild<QAction*>("mnuDisplayZero")->setChecked(game_.screen.CheckStacks.DisplayZero);
}

// --- What is shown.

SeatId CheckStacksScreen::Seat() const {
  const TableState& table = game_.table;
  const SeatId chosen = game_.screen.CheckStacks.CheckStackSeat;
  if (chosen != 0 && IsOccupied(table, chosen)) return chosen;
  if (IsOccupied(table, table.SelectedSeat)) return table.SelectedSeat;
  return table.OccupiedSeats > 0 ? table.Seated[0] : 0;
}

void CheckStacksScreen::ShowPlayers() {
  QList<std::pair<QString, int>> players;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(game_.table, seat)) players.append({FromCore(game_.table.seats[seat].SeatName), seat});
  bool same = players.size() == player_->count();
  for (int n = 0; same && n < player_->count(); ++n)
    same = player_->itemText(n) == players[n].first && player_->itemData(n).toInt() == players[n].second;
  if (!same) {
    player_->clear();
    for (const auto& [name, seat] : players) player_->addItem(name, seat);
    player_->setEnabled(!players.isEmpty());
  }
  const int at = player_->findData(Seat().value);
  if (at != player_->currentIndex()) player_->setCurrentIndex(at);
}

void CheckStacksScreen::ShowVisible() {
  const SeatId seat = Seat();
  for (int n = 0; n < kVisibleStacks; ++n) {
    const int stack = game_.table.seats[seat].VisibleStacks[n];
    const QString name = seat == 0 ? QString() : FromCore(CheckStackNameOf(game_, seat, stack));
    const QString caption = seat == 0 ? QString() : QString("#%1 %2").arg(stack).arg(name);
    const QString value =
        seat == 0 ? QString() : InHabit(FromCore(CheckStackValueText(game_, seat, stack, true)));
    QLabel& label = *visible_[n].caption;
    Show(*visible_[n].value, value);
    Show(label, caption);
    if (label.toolTip() != caption) {
      label.setToolTip(caption);
    }
  }
}

void CheckStacksScreen::Refresh() {
  ShowPlayers();
  const SeatId seat = Seat();
  if (list_->Seat() != seat) {
    list_->SetSeat(seat);
    CloseSetStacks();
    view_->setAccessibleName(tr("CheckStacks of %1").arg(FromCore(game_.table.seats[seat].SeatName)));
    if (seat != 0) view_->setCurrentIndex(list_->index(0, kStackName));
    ShowMenu();
  }
  list_->Follow();
  ShowVisible();
}

void CheckStacksScreen::ShowFont() {
  QFont shown = font();
  if (const int size = game_.screen.CheckStacks.ListFontSize; size > 0) shown.setPointSize(size);
  view_->setFont(shown);
  view_->horizontalHeader()->setFont(shown);
  view_->verticalHeader()->setFont(shown);
  const QFontMetrics metrics(shown);
  view_->verticalHeader()->setDefaultSectionSize(metrics.height() + 8);
  view_->setColumnWidth(kStackValue, metrics.horizontalAdvance("-9,999,999.9999") + 12);
}

// --- Edits.

// Between the rolls of an Auto-Roll, as bets are; a Turbo-Roll and a script are asked to stop.
bool CheckStacksScreen::MayEdit() {
  NoteActivity(game_);
  if (Seat() == 0 || (game_.table.RollInProgress && !game_.table.AutoRollActive)) return false;
  if (!game_.table.TurboRollActive && !game_.autobet.ScriptRunning) return true;
  AskBeforeCommand(game_);
  return false;
}

std::vector<CheckStacksScreen::Cell> CheckStacksScreen::CellsOf(SeatId seat) const {
  std::vector<Cell> cells;
  for (int stack = 0; stack < kCheckStacks; ++stack)
    cells.push_back({CheckStackNameOf(game_, seat, stack), CheckStackValue(game_, seat, stack)});
  return cells;
}

void CheckStacksScreen::Edit(const std::function<void()>& work) {
  if (!MayEdit()) return;
  const SeatId seat = Seat();
  const std::string player = game_.table.seats[seat].SeatName;
  const std::vector<Cell> before = CellsOf(seat);
  work();
  const std::vector<Cell> after = CellsOf(seat);
  Step step{seat, player, {}};
  for (std::size_t stack = 0; stack < before.size(); ++stack)
    if (before[stack] != after[stack])
      step.changes.push_back({static_cast<int>(stack), before[stack], after[stack]});
  if (step.changes.empty()) return;
  done_.push_back(std::move(step));
  if (done_.size() > kMostSteps) done_.erase(done_.begin());
  undone_.clear();
  game_.host->Changed(game_, Change::kLayout);
  Refresh();
  ShowMenu();
}

// What a script has changed since stays as it is; so does everything of a seat that has another player now.
void CheckStacksScreen::TakeStep(std::vector<Step>& from, std::vector<Step>& to, bool back) {
  if (from.empty() || !MayEdit()) return;
  const Step step = from.back();
  from.pop_back();
  if (game_.table.seats[step.seat].SeatName != step.player) return;
  for (const CellChange& change : step.changes) {
    const Cell& present = back ? change.after : change.before;
    const Cell& wanted = back ? change.before : change.after;
    if (CheckStackNameOf(game_, step.seat, change.stack) == present.name)
      SetCheckStackName(game_, step.seat, change.stack, wanted.name);
    if (CheckStackValue(game_, step.seat, change.stack) == present.value)
      SetCheckStackValue(game_, step.seat, change.stack, wanted.value);
  }
  to.push_back(step);
  // What was done is seen.
  if (Seat() != step.seat) game_.screen.CheckStacks.CheckStackSeat = step.seat;
  game_.host->Changed(game_, Change::kLayout);
  Refresh();
  ShowMenu();
  view_->scrollTo(list_->index(step.changes.front().stack, kStackName));
}

void CheckStacksScreen::SetCell(int stack, int column, const QString& text) {
  const SeatId seat = Seat();
  Currency value;
  if (column == kStackName)
    SetCheckStackName(game_, seat, stack, NameFrom(text));
  else if (ValueFrom(text, value) && value != CheckStackValue(game_, seat, stack))
    SetCheckStackValue(game_, seat, stack, value);
}

void CheckStacksScreen::Enter(int stack, int column, const QString& text) {
  Currency value;
  if (column == kStackValue && !ValueFrom(text, value)) {
    ShowMessage<Msg::kStackNotPasted>(game_, With<"text">(ToCore(text)));
    return;
  }
  Edit([&] { SetCell(stack, column, text); });
}

void CheckStacksScreen::Copy() {
  const QModelIndex at = view_->currentIndex();
  if (at.isValid()) QGuiApplication::clipboard()->setText(list_->CellText(at.row(), at.column()));
}

// A line each for the stacks from the current cell on, columns parted by tabs. All of it or nothing.
void CheckStacksScreen::Paste() {
  const QModelIndex at = view_->currentIndex();
  if (!at.isValid()) return;
  QString text = QGuiApplication::clipboard()->text();
  while (text.endsWith('\n') || text.endsWith('\r')) text.chop(1);
  struct Entry {
    int stack;
    int column;
    QString text;
  };
  std::vector<Entry> entries;
  int stack = at.row();
  for (const QString& line : text.split('\n')) {
    int column = at.column();
    for (const QString& part : line.split('\t')) {
      if (column > kStackValue || stack >= kCheckStacks) break;
      Currency value;
      if (column == kStackValue && !ValueFrom(part, value)) {
        ShowMessage<Msg::kStackNotPasted>(game_, With<"text">(ToCore(part.trimmed())));
        return;
      }
      entries.push_back({stack, column++, part});
    }
    ++stack;
  }
  Edit([&] {
    for (const Entry& entry : entries) SetCell(entry.stack, entry.column, entry.text);
  });
}

void CheckStacksScreen::Empty() {
  const QModelIndex at = view_->currentIndex();
  if (at.isValid()) Edit([&] { SetCell(at.row(), at.column(), {}); });
}

void CheckStacksScreen::DeleteAll(StackDeletion what) {
  Edit([&] { DeleteCheckStacks(game_, Seat(), what); });
}

// --- The stacks on the table.

void CheckStacksScreen::OpenSetStacks() {
  const SeatId seat = Seat();
  if (seat == 0) return;
  for (int n = 0; n < kVisibleStacks; ++n) numbers_[n]->setValue(game_.table.seats[seat].VisibleStacks[n]);
  setStacks_->show();
  numbers_[0]->setFocus();
  numbers_[0]->selectAll();
}

void CheckStacksScreen::CloseSetStacks() {
  if (setStacks_->isHidden()) return;
  view_->setFocus();
  setStacks_->hide();
}

void CheckStacksScreen::AcceptSetStacks() {
  std::array<int, kVisibleStacks> stacks{};
  for (int n = 0; n < kVisibleStacks; ++n) {
    numbers_[n]->interpretText();
    stacks[static_cast<std::size_t>(n)] = numbers_[n]->value();
  }
  if (!SetVisibleStacks(game_, Seat(), stacks)) return;
  CloseSetStacks();
  Refresh();
}

// --- On paper and in files.

bool CheckStacksScreen::ReadyToPrint() {
  game_.box.MsgValue1 = kZero;
  game_.box.MsgValue2 = Currency::Dollars(kCheckStacks - 1);
  if (ShowMessage<Msg::kAskPrintStacks>(game_) != kResultOk) return false;
  const auto number = [](Currency typed) {
    const Currency last = Currency::Dollars(kCheckStacks - 1);
    return static_cast<int>(WholePart(std::clamp(typed, kZero, last)).raw / Currency::kPerDollar);
  };
  toPrint_ = {number(game_.box.MsgValue1), number(game_.box.MsgValue2)};
  if (toPrint_.first > toPrint_.last) std::swap(toPrint_.first, toPrint_.last);
  return true;
}

QList<QStringList> CheckStacksScreen::Rows() const {
  const Range range = std::exchange(toPrint_, {});
  QList<QStringList> rows{{"#", tr("Name"), tr("Value")}};
  const SeatId seat = Seat();
  for (int stack = range.first; stack <= range.last && seat != 0; ++stack)
    rows.append({QString::number(stack), FromCore(CheckStackNameOf(game_, seat, stack)),
                 FromCore(CheckStackValueText(game_, seat, stack, game_.screen.CheckStacks.DisplayZero))});
  return rows;
}

QStringList CheckStacksScreen::PrintHeadings() const {
  QStringList lines = PrintHeading(game_, tr("CheckStacks"));
  lines += GameFileLine(game_);
  if (Seat() != 0) lines += PlayerLine(game_, Seat());
  return lines;
}

}  // namespace tessaryn
