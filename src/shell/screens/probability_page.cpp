#include "shell/screens/probability_page.h"

#include <QAction>
#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/messages.h"
#include "base/record_file.h"
#include "play/auto_roll.h"
#include "shell/screens/core_words.h"
#include "shell/screens/dice_boxes.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/probability_picture.h"
#include "shell/screens/probability_table.h"
#include "shell/screens/shooter_axes.h"
#include "shell/table/languages.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {

constexpr double kMostRollsOutOf = 1e9;
const QColor kActiveColour(0, 255, 0);
const QColor kInactiveColour(235, 235, 235);

bool IsShownAlike(const PercentageDice& a, const PercentageDice& b) {
  return a.ProbMatrix == b.ProbMatrix && a.PercentageDiceActive == b.PercentageDiceActive &&
         a.ProbDisplayMode == b.ProbDisplayMode && a.ProbRollsOutOf == b.ProbRollsOutOf &&
         a.ProbFileName == b.ProbFileName && a.ProbDirty == b.ProbDirty;
}

QString FileLine(const PercentageDice& dice) {
  const QString title =
      dice.ProbFileName.empty() ? CoreWords(ProbabilityTitle(dice)) : FromCore(ProbabilityTitle(dice));
  return dice.ProbDirty ? QObject::tr("%1 (not saved)").arg(title) : title;
}

QToolButton* AddMenuButton(const char* name, const QString& text, QWidget* parent, QBoxLayout& row) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setText(text);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setFocusPolicy(Qt::TabFocus);
  button->setMenu(new QMenu(button));
  row.addWidget(button);
  return button;
}

}  // namespace

ProbabilityPage::ProbabilityPage(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
  setObjectName("pagProbability");
  auto* column = new QVBoxLayout(this);
  column->setSpacing(8);
  AddCommands(*column);
  AddFileLine(*column);
  AddSheet(*column);
  AddDisplay(*column);
  ShowDice();
  table_->Select(SelectedProbability(game_.percentage));
}

QAction* ProbabilityPage::AddCommand(const char* name, const QString& text, void (ProbabilityPage::*act)()) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(action, &QAction::triggered, this, act);
  addAction(action);
  return action;
}

void ProbabilityPage::AddCommands(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  column.addLayout(row);
  QMenu* files = AddMenuButton("mnuFile", tr("&File"), this, *row)->menu();
  files->addAction(AddCommand("mnuNew", tr("&New"), &ProbabilityPage::New));
  files->addAction(AddCommand("mnuOpen", tr("&Open ..."), &ProbabilityPage::Open));
  files->addAction(AddCommand("mnuSave", tr("&Save"), &ProbabilityPage::Save));
  files->addAction(AddCommand("mnuSaveAs", tr("Save &As ..."), &ProbabilityPage::SaveUnder));
  QMenu* editing = AddMenuButton("mnuEdit", tr("&Edit"), this, *row)->menu();
  undo_ = AddCommand("mnuUndo", tr("&Undo"), &ProbabilityPage::Undo);
  undo_->setShortcut(QKeySequence::Undo);
  redo_ = AddCommand("mnuRedo", tr("&Redo"), &ProbabilityPage::Redo);
  redo_->setShortcut(QKeySequence::Redo);
  editing->addActions({undo_, redo_});
  editing->addSeparator();
  editing->addAction(AddCommand("mnuLock", tr("&Lock or unlock the cell\tL"), &ProbabilityPage::ToggleLock));
  editing->addAction(AddCommand("mnuAxes", tr("&Shooter's effectiveness ..."), &ProbabilityPage::Axes));
  QMenu* sets = AddMenuButton("mnuPresets", tr("Ready &dice"), this, *row)->menu();
  for (const ProbabilityPreset& preset : ProbabilityPresets()) {
    QAction* action = sets->addAction(CoreWords(preset.caption));
    connect(action, &QAction::triggered, this, [this, &preset] {
      const auto apply = [&] {
        ApplyProbabilityPreset(game_.percentage, preset);
        return true;
      };
      if (MayEdit() && SaveFirst()) Change(apply, {});
    });
  }
  auto* even = new QPushButton(tr("E&ven Out"), this);
  even->setObjectName("cmdEvenOut");
  even->setToolTip(tr("Keeps this cell's value; what isn't locked shares the rest equally"));
  connect(even, &QPushButton::clicked, this, [this] {
    if (MayEdit())
      Change([this] { return EvenOutProbabilities(game_.percentage); },
             tr("Nothing is free to share the rest."));
  });
  auto* unlock = new QPushButton(tr("&Unlock All"), this);
  unlock->setObjectName("cmdUnLock");
  connect(unlock, &QPushButton::clicked, this, [this] {
    const auto free = [this] {
      UnlockAllProbabilities(game_.percentage);
      return true;
    };
    if (MayEdit()) Change(free, {});
  });
  row->addWidget(even);
  row->addWidget(unlock);
  row->addStretch();
  active_ = new QPushButton(this);
  active_->setObjectName("cmdProbabilityActive");
  active_->setAccessibleName(tr("Percentage dice in use"));
  active_->setCheckable(true);
  active_->setMinimumWidth(
      active_->fontMetrics().horizontalAdvance(FromCore(MessageTextIn(LanguageSpoken(), Msg::kInactive))) +
      40);
  connect(active_, &QPushButton::clicked, this, &ProbabilityPage::ToggleActive);
}

void ProbabilityPage::AddFileLine(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  kind_ = new QLabel(this);
  kind_->setObjectName("lblPercentageDice");
  QFont bold = kind_->font();
  bold.setBold(true);
  kind_->setFont(bold);
  file_ = new QLabel(this);
  file_->setObjectName("lblPrbFileName");
  file_->setTextFormat(Qt::PlainText);
  file_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(kind_);
  row->addSpacing(8);
  row->addWidget(file_, 1);
  row->addWidget(active_);
  column.addLayout(row);
}

void ProbabilityPage::AddSheet(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  sheetRow_ = row;
  row->setSpacing(12);
  model_ = new ProbabilityModel(game_.percentage, this);
  model_->enter = [this](ProbabilityCell cell, const QString& text) { Enter(cell, text); };
  table_ = new ProbabilityTable(*model_, this);
  table_->mayEdit = [this] { return MayEdit(); };
  connect(table_, &ProbabilityTable::selected, this, [this] {
    SelectProbability(game_.percentage, table_->Selected());
    ShowSelected();
  });
  connect(table_, &ProbabilityTable::lockPressed, this, &ProbabilityPage::ToggleLock);
  picture_ = new ProbabilityPicture(game_.percentage, this);
  auto* sheet = new QVBoxLayout;
  sheet->addWidget(table_, 1);
  sheet->addStretch();
  row->addLayout(sheet, 3);
  row->addWidget(picture_, 2);
  column.addLayout(row, 1);
  note_ = new QLabel(this);
  note_->setObjectName("lblProbabilityNote");
  note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  column.addWidget(note_);
}

// The picture stands under the sheet where both have no room side by side.
void ProbabilityPage::resizeEvent(QResizeEvent* event) {
  constexpr int kSideBySide = 900;
  sheetRow_->setDirection(width() < kSideBySide ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  QWidget::resizeEvent(event);
}

void ProbabilityPage::AddDisplay(QBoxLayout& column) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(4);
  display_ = new QButtonGroup(this);
  for (int mode = 0; mode < 4; ++mode) {
    auto* radio = new QRadioButton(CoreWords(kProbabilityDisplayCaptions[mode]), this);
    radio->setObjectName(QString("optProbability%1").arg(mode));
    display_->addButton(radio, mode);
    grid->addWidget(radio, mode % 2, mode / 2);
  }
  connect(display_, &QButtonGroup::idClicked, this, &ProbabilityPage::SetDisplay);
  outOf_ = new QLineEdit(this);
  outOf_->setObjectName("txtRollsOutOf");
  outOf_->setAccessibleName(tr("Number of rolls"));
  outOf_->setAlignment(Qt::AlignRight);
  outOf_->setMaximumWidth(outOf_->fontMetrics().horizontalAdvance("1,000,000,000") + 16);
  connect(outOf_, &QLineEdit::editingFinished, this, &ProbabilityPage::SetRollsOutOf);
  grid->addWidget(outOf_, 2, 0, 1, 2, Qt::AlignLeft);
  grid->setColumnStretch(2, 1);
  column.addLayout(grid);
}

// --- Showing.

void ProbabilityPage::showEvent(QShowEvent* event) {
  Refresh();
  QWidget::showEvent(event);
}

// What is taken back are this page's changes, not those of a script, another page or another game.
void ProbabilityPage::Refresh() {
  if (IsShownAlike(shown_, game_.percentage)) return;
  if (shown_.ProbMatrix[1] != game_.percentage.ProbMatrix[1]) edits_ = {};
  ShowDice();
}

void ProbabilityPage::ShowDice() {
  const PercentageDice& dice = game_.percentage;
  shown_ = dice;
  kind_->setText(CoreWords(PercentageDiceCaption(dice)));
  file_->setText(FileLine(dice));
  file_->setToolTip(FromCore(dice.ProbFileName));
  display_->button(dice.ProbDisplayMode)->setChecked(true);
  if (!outOf_->hasFocus()) outOf_->setText(QString::number(dice.ProbRollsOutOf, 'g', 15));
  active_->setChecked(dice.PercentageDiceActive);
  active_->setText(
      FromCore(MessageTextIn(LanguageSpoken(), dice.PercentageDiceActive ? Msg::kActive : Msg::kInactive)));
  QPalette colours = active_->palette();
  colours.setColor(QPalette::Button, dice.PercentageDiceActive ? kActiveColour : kInactiveColour);
  colours.setColor(QPalette::ButtonText, Qt::black);
  active_->setPalette(colours);
  undo_->setEnabled(!edits_.undo.empty());
  redo_->setEnabled(!edits_.redo.empty());
  model_->ShowAll();
  table_->FitColumns();
  table_->Select(SelectedProbability(dice));
  picture_->update();
  ShowSelected();
}

// What the selected cell is, and how it differs.
void ProbabilityPage::ShowSelected() {
  const PercentageDice& dice = game_.percentage;
  const ProbabilityCell cell = SelectedProbability(dice);
  if (KindOfProbabilityCell(cell.row, cell.column) == ProbabilityCellKind::kNone) return note_->clear();
  const double percent = dice.ProbMatrix[1][cell.row][cell.column] / 1000.0;
  const double points = ProbabilityFromFair(dice, cell.row, cell.column) / 1000;
  QString text = tr("%1: %2%, fair dice %3%")
                     .arg(ProbabilityCellName(cell))
                     .arg(percent, 0, 'f', 3)
                     .arg(points == 0 ? percent : percent - points, 0, 'f', 3);
  text += IsProbabilityLocked(dice, cell.row, cell.column) ? tr(". Locked: L unlocks it.")
                                                           : tr(". Type a value, L locks.");
  note_->setText(text);
}

// --- Editing.

bool ProbabilityPage::MayEdit() { return AskBeforeCommand(game_); }

void ProbabilityPage::Change(const std::function<bool()>& change, const QString& note) {
  KeepProbabilities(game_.percentage, edits_);
  const bool done = change();
  ShowDice();
  if (!done) note_->setText(note);
  game_.host->Changed(game_, tessaryn::Change::kSettings);
}

void ProbabilityPage::Enter(ProbabilityCell cell, const QString& text) {
  // A single comma is a point, unless it parts thousands.
  const QString number = FileNumber(text, NumberHabit());
  const std::string typed = ToCore(number.isEmpty() ? text : number);
  Change([&] { return EnterProbability(game_.percentage, cell.row, cell.column, typed); },
         tr("Nothing is free to take up the difference: the cell keeps its value."));
}

void ProbabilityPage::ToggleLock() {
  const ProbabilityCell cell = table_->Selected();
  if (MayEdit()) Change([&] { return ToggleProbabilityLock(game_.percentage, cell.row, cell.column); }, {});
}

void ProbabilityPage::Undo() {
  if (MayEdit() && UndoProbabilities(game_.percentage, edits_)) ShowDice();
}
void ProbabilityPage::Redo() {
  if (MayEdit() && RedoProbabilities(game_.percentage, edits_)) ShowDice();
}

void ProbabilityPage::Axes() {
  ShooterAxes chosen;
  if (!MayEdit() || !AskShooterAxes(this, chosen)) return;
  Change(
      [&] {
        ApplyShooterEffectiveness(game_.percentage, chosen.percent[0], chosen.axes[0], chosen.percent[1],
                                  chosen.axes[1]);
        return true;
      },
      {});
}

void ProbabilityPage::SetDisplay(int mode) {
  game_.percentage.ProbDisplayMode = mode;
  ShowDice();
}

void ProbabilityPage::SetRollsOutOf() {
  const double rolls = FileNumber(outOf_->text(), NumberHabit()).toDouble();
  if (rolls > 0 && rolls <= kMostRollsOutOf) game_.percentage.ProbRollsOutOf = rolls;
  outOf_->setText(QString::number(game_.percentage.ProbRollsOutOf, 'g', 15));
  ShowDice();
}

void ProbabilityPage::ToggleActive() {
  PercentageDice& dice = game_.percentage;
  if (MayEdit() && !ActivatePercentageDice(dice, !dice.PercentageDiceActive))
    ShowMessage<Msg::kNothingToRoll>(game_);
  ShowDice();
  game_.host->Changed(game_, tessaryn::Change::kSettings);
}

// --- Files.

bool ProbabilityPage::SaveFirst() {
  if (!game_.percentage.ProbDirty) return true;
  const int answer = AskSaveTheseNumbers(game_);
  if (answer != kResultYes) return answer == kResultNo;
  const std::string path = ChooseFile(game_, this, kSaveProbabilities, game_.percentage.ProbFileName);
  return !path.empty() && SaveAs(path);
}

bool ProbabilityPage::SaveAs(const std::string& path) {
  std::string error;
  const bool saved = SaveProbabilityFile(game_.percentage, path, error);
  if (saved)
    NoteProbabilitiesSaved(edits_);
  else
    TellDiceProblem(game_, kSaveProbabilities.title, error);
  ShowDice();
  return saved;
}

void ProbabilityPage::New() {
  if (!MayEdit() || !SaveFirst()) return;
  NewProbabilityMatrix(game_.percentage);
  edits_ = {};
  ShowDice();
  game_.host->Changed(game_, tessaryn::Change::kSettings);
}

void ProbabilityPage::Open() {
  if (!MayEdit() || !SaveFirst()) return;
  const std::string path = ChooseFile(game_, this, kOpenProbabilities);
  if (path.empty()) return;
  std::string error;
  if (OpenProbabilityFile(game_.percentage, path, game_.dataFolder, error))
    edits_ = {};
  else
    ShowMessage<Msg::kProbabilitiesNotOpened>(game_, With<"problem">(error));
  ShowDice();
  game_.host->Changed(game_, tessaryn::Change::kSettings);
}

void ProbabilityPage::Save() {
  if (game_.percentage.ProbFileName.empty()) return SaveUnder();
  SaveAs(game_.percentage.ProbFileName);
}

void ProbabilityPage::SaveUnder() {
  const std::string path = ChooseFile(game_, this, kSaveProbabilities, game_.percentage.ProbFileName);
  if (!path.empty()) SaveAs(path);
}

// --- The window.

PercentageDiceWindow::PercentageDiceWindow(Game& game, QWidget* parent)
    : ToolWindow("frmPercentageDice", parent), game_(game), page_(new ProbabilityPage(game, this)) {
  setWindowTitle(tr("Percentage Dice"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(page_);
}

void PercentageDiceWindow::Refresh() { page_->Refresh(); }

void PercentageDiceWindow::Retranslate() { page_->Retranslate(); }

QList<QStringList> PercentageDiceWindow::Rows() const {
  const PercentageDice& dice = game_.percentage;
  const auto text = [&](int row, int column) { return FromCore(ProbabilityCellText(dice, row, column)); };
  QStringList head{tr("Die 1 \\ Die 2")};
  QStringList faces{tr("Die 2")};
  for (int face = 1; face <= 6; ++face) {
    head.append(QString::number(face));
    faces.append(text(face + 1, kDie2Column));
  }
  head.append({tr("Die 1"), tr("Total"), tr("Probability")});
  QList<QStringList> rows{head};
  for (int row = 0; row < kSheetRows; ++row) {
    QStringList line{row < 6 ? QString::number(row + 1) : QString()};
    if (row == 6) line = faces;
    for (int column = 0; row != 6 && column < 6; ++column) {
      const ProbabilityCell cell = CellOfSheet(row, column);
      line.append(text(cell.row, cell.column));
    }
    line.append(row < 6 ? text(row + 2, kDie1Column) : QString());
    line.append({QString::number(row + 2), text(kTotalRow, row + 1)});
    rows.append(line);
  }
  return rows;
}

QStringList PercentageDiceWindow::PrintHeadings() const {
  const PercentageDice& dice = game_.percentage;
  QString shown = CoreWords(kProbabilityDisplayCaptions[dice.ProbDisplayMode]).trimmed();
  if (dice.ProbDisplayMode >= kShowRollsOutOf) shown += " " + QString::number(dice.ProbRollsOutOf, 'g', 15);
  return {CoreWords(PercentageDiceCaption(dice)), tr("Probability file: %1").arg(FileLine(dice)), shown};
}

void PercentageDiceWindow::PaintPicture(QPainter& painter, const QRectF& area) const {
  PaintProbabilityPicture(painter, area, game_.percentage, false);
}

}  // namespace tessaryn
