#include "shell/screens/payoff_page.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "base/bet_catalogue.h"
#include "rules/payoffs.h"
#include "shell/screens/setting_editor.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

enum PayoffColumn { kBetColumn, kPayToColumn, kWordColumn, kPayPerColumn, kNoteColumn, kPayoffColumns };

constexpr Currency kTo = Currency::FromRaw(-Currency::kPerDollar);
constexpr int kFieldTable = static_cast<int>(PayoffTableId::kField);

// The rows of bets, as the tab lists them. Bets that are paid by the rows of others, or by tables of their
// own, have none.
struct BetRows {
  int first;
  int last;
  const char* caption;  // with a hole for the number, if there are several; the bet's own name without
};
constexpr BetRows kBetRows[] = {
    {kCome, kCome, QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Passline/Come (c.o.)")},
    {kCome4, kCome4 + 5, QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Pass/Come %1")},
    {kComeOdds4, kComeOdds4 + 5, QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Pass/Come %1 Odds")},
    {kDontCome, kDontCome, QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Don't Pass/Come (c.o.)")},
    {kDontCome4, kDontCome4 + 5, QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "DP/DC %1")},
    {kDontComeOdds4, kDontComeOdds4 + 5, QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "DP/DC %1 Odds")},
    {kPlace4, kBuy4 + 5, nullptr},
    {kLay4, kLay4 + 5, nullptr},
    {kBig6, kCraps, nullptr},
    {kOver7, kPoint7, nullptr},
};

QString CaptionOf(const BetRows& rows, BetId bet) {
  if (rows.caption == nullptr) return FromCore(BetName(bet));
  const QString caption = PayoffPage::tr(rows.caption);
  return rows.first == rows.last ? caption : caption.arg(FactsOf(bet).number);
}

constexpr const char* kSevenPointSevenCaptions[] = {
    "", QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Come-out 7"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Seven after the point")};
constexpr const char* kMidwayCaptions[] = {"",
                                           "6     (3.3)",
                                           "6     (1.5) (2.4) (4.2) (5.1)",
                                           "7     (1.6) (2.5) (3.4) (4.3) (5.2) (6.1)",
                                           "8     (2.6) (3.5) (5.3) (6.2)",
                                           "8     (4.4)"};

QString CountCaption(const char* counted, int count, bool last) {
  const QString caption = PayoffPage::tr(counted, nullptr, count).arg(count);
  return last ? PayoffPage::tr("%1 or more").arg(caption) : caption;
}

QString CaptionOf(int table, int row) {
  const bool last = row == PayoffTableFacts(table).lastRow;
  switch (static_cast<PayoffTableId>(table)) {
    case PayoffTableId::kField:
      return QString::fromUtf8(FieldRowCaption(row));
    case PayoffTableId::kSevenPointSeven:
      return PayoffPage::tr(kSevenPointSevenCaptions[row]);
    case PayoffTableId::kMidway:
      return QString::fromUtf8(kMidwayCaptions[row]);
    case PayoffTableId::kSharpShooter:
      return CountCaption(QT_TRANSLATE_N_NOOP("tessaryn::PayoffPage", "%1 points made"), row - 1, last);
    case PayoffTableId::kRideTheLine:
      return CountCaption(QT_TRANSLATE_N_NOOP("tessaryn::PayoffPage", "%1 line wins"), row - 1, last);
    default:
      return CountCaption(QT_TRANSLATE_N_NOOP("tessaryn::PayoffPage", "%1 different points"), row, false);
  }
}

constexpr const char* kTableCaptions[kPayoffTables] = {
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Bets"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Field"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "7 Point 7"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Midway"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Sharp Shooter"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Ride The Line"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Fire")};

// By the presets' numbers.
constexpr const char* kPresetCaptions[kFieldPresets] = {
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "&Field w/ 2x on Two and Twelve"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "&Pass Line"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "&Don't Pass (bar 12)"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "&Crapless Craps Pass Line"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Place &6"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Place to &Lose 8"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Buy &10 (5 % vig)"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "Lay &4 (5% vig on win only)"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "H&ard 8"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "&Horn"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "&World"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "H&op 13"),
    QT_TRANSLATE_NOOP("tessaryn::PayoffPage", "&Midway")};

struct ListedPayoff {
  std::string setting;  // NAME.ROW
  QString caption;
  int row;
};

std::vector<ListedPayoff> Listed(int table) {
  std::vector<ListedPayoff> listed;
  const PayoffTableInfo& facts = PayoffTableFacts(table);
  const auto add = [&](int row, const QString& caption) {
    listed.push_back({std::string(facts.name) + "." + std::to_string(row), caption, row});
  };
  if (table == 0) {
    for (const BetRows& rows : kBetRows)
      for (BetId bet = rows.first; bet <= rows.last; ++bet)
        if (SharesOf(bet) <= 1) add(bet, CaptionOf(rows, bet));
  } else {
    for (int row = facts.firstRow; row <= facts.lastRow; ++row) add(row, CaptionOf(table, row));
  }
  return listed;
}

PayoffTables OriginalPayoffs(Currency unit) {
  PayoffTables original;
  ResetPayoffs(original, unit);
  return original;
}

}  // namespace

QString PayoffRowCaption(int table, int row) {
  return table == 0 ? FromCore(BetName(row)) : CaptionOf(table, row);
}

// --- The cells.

class PayoffModel : public QAbstractTableModel {
 public:
  struct Row {
    PayoffRecord record;
    PayoffRecord original;
    bool waits = false;
    bool operator==(const Row&) const = default;
  };

  explicit PayoffModel(QObject* parent) : QAbstractTableModel(parent), original_(OriginalPayoffs(kZero)) {}

  std::function<void(int row, const PayoffRecord& record)> changed;

  // Of the table that is shown now.
  void Show(int table) {
    if (table == table_) return;
    beginResetModel();
    table_ = table;
    listed_ = Listed(table);
    rows_.assign(listed_.size(), {});
    endResetModel();
  }
  void Refresh(Game& game, SettingEditor& editor) {
    for (int n = 0; n < rowCount(); ++n) {
      const ListedPayoff& listed = Payoff(n);
      Row row{PayoffRow(game.payoffs, table_, listed.row), PayoffRow(original_, table_, listed.row)};
      const SettingControl* control = editor.ControlOf(listed.setting);
      row.waits = control != nullptr && control->waiting && ParsePayoff(*control->waiting, row.record);
      if (row == rows_[static_cast<std::size_t>(n)]) continue;
      rows_[static_cast<std::size_t>(n)] = row;
      emit dataChanged(index(n, 0), index(n, kPayoffColumns - 1));
    }
  }
  int Table() const { return table_; }
  const ListedPayoff& Payoff(int row) const { return listed_[static_cast<std::size_t>(row)]; }
  const PayoffRecord& Record(int row) const { return rows_[static_cast<std::size_t>(row)].record; }

  int rowCount(const QModelIndex& above = {}) const override {
    return above.isValid() ? 0 : static_cast<int>(listed_.size());
  }
  int columnCount(const QModelIndex& above = {}) const override {
    return above.isValid() ? 0 : kPayoffColumns;
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    const QString captions[kPayoffColumns] = {table_ == 0 ? PayoffPage::tr("Bet") : PayoffPage::tr("Outcome"),
                                              PayoffPage::tr("Pays"), PayoffPage::tr("to/for"),
                                              PayoffPage::tr("Per"), PayoffPage::tr("Note")};
    if (role == Qt::DisplayRole) return captions[section];
    if (role == Qt::TextAlignmentRole) return static_cast<int>(AlignmentOf(section));
    return {};
  }
  Qt::ItemFlags flags(const QModelIndex& index) const override {
    const bool number = index.column() == kPayToColumn || index.column() == kPayPerColumn;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | (number ? Qt::ItemIsEditable : Qt::NoItemFlags);
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::TextAlignmentRole) return static_cast<int>(AlignmentOf(index.column()));
    if (role == Qt::AccessibleTextRole)
      return QStringLiteral("%1: %2").arg(Payoff(index.row()).caption, TextOf(index.row(), index.column()));
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    return TextOf(index.row(), index.column());
  }
  // A number that is none, and a PayPer that is not above 0, leave the value as it was.
  bool setData(const QModelIndex& index, const QVariant& typed, int) override {
    Currency number;
    if (!ReadNumber(typed.toString(), number) || number.IsError()) return false;
    PayoffRecord record = Record(index.row());
    Currency& part = index.column() == kPayToColumn ? record.PayTo : record.PayPer;
    if (part == number || (index.column() == kPayPerColumn && number <= kZero)) return false;
    part = number;
    changed(index.row(), record);
    return true;
  }
  void SetWord(int row, bool to) {
    PayoffRecord record = Record(row);
    record.ForFlag = to ? kTo : kZero;
    if (!(record == Record(row))) changed(row, record);
  }

 private:
  static Qt::Alignment AlignmentOf(int column) {
    return Qt::AlignVCenter | (column == kPayToColumn  ? Qt::AlignRight
                               : column == kWordColumn ? Qt::AlignHCenter
                                                       : Qt::AlignLeft);
  }
  QString TextOf(int n, int column) const {
    const Row& row = rows_[static_cast<std::size_t>(n)];
    switch (column) {
      case kBetColumn:
        return Payoff(n).caption;
      case kPayToColumn:
        return InHabit(FromCore(PlainMoney(row.record.PayTo)));
      case kWordColumn:
        return row.record.ForFlag != kZero ? PayoffPage::tr("to") : PayoffPage::tr("for");
      case kPayPerColumn:
        return InHabit(FromCore(PlainMoney(row.record.PayPer)));
      default:
        if (row.waits) return PayoffPage::tr("not taken yet");
        if (PayoffText(row.record) != PayoffText(row.original))
          return PayoffPage::tr("originally %1").arg(FromCore(PayoffText(row.original)));
        return {};
    }
  }

  int table_ = -1;
  std::vector<ListedPayoff> listed_;
  std::vector<Row> rows_;
  PayoffTables original_;
};

class PayoffDelegate : public QStyledItemDelegate {
 public:
  explicit PayoffDelegate(PayoffTable& table) : QStyledItemDelegate(&table), table_(table) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                        const QModelIndex& index) const override {
    auto* edit = new MoneyEdit(parent);
    edit->setObjectName("txtPayoff");
    edit->setAccessibleName(index.data(Qt::AccessibleTextRole).toString());
    edit->SetKeys(4, index.column() == kPayToColumn);
    edit->setFrame(false);
    return edit;
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QStyledItemDelegate::eventFilter(object, event);
    const auto* pressed = static_cast<QKeyEvent*>(event);
    const bool plain = (pressed->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    const bool to = pressed->key() == Qt::Key_T;
    const bool word = plain && (to || pressed->key() == Qt::Key_F);
    const bool next =
        pressed->key() == Qt::Key_Return || pressed->key() == Qt::Key_Enter || pressed->key() == Qt::Key_Tab;
    const bool back = pressed->key() == Qt::Key_Backtab;
    if (!word && !next && !back) return QStyledItemDelegate::eventFilter(object, event);
    auto* edit = static_cast<QWidget*>(object);
    emit commitData(edit);
    emit closeEditor(edit, NoHint);
    word ? table_.TypeWord(to) : table_.Step(back ? -1 : 1);
    return true;
  }

 private:
  PayoffTable& table_;
};

PayoffTable::PayoffTable(QWidget* parent) : QTableView(parent) {
  setObjectName("txtPayoffs");
  setItemDelegate(new PayoffDelegate(*this));
  setEditTriggers(AnyKeyPressed | DoubleClicked | EditKeyPressed);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  verticalScrollBar()->setObjectName("vsbPayoffs");
}

void PayoffTable::LeaveCell() {
  if (QWidget* edit = indexWidget(currentIndex()); edit != nullptr) {
    commitData(edit);
    closeEditor(edit, QAbstractItemDelegate::NoHint);
  }
}

// On from cell to cell of the numbers and the word, and to the next row.
void PayoffTable::Step(int columns) {
  const QModelIndex at = currentIndex();
  int row = at.row();
  int column = at.column() + columns;
  if (column > kPayPerColumn) column = kPayToColumn, ++row;
  if (column < kPayToColumn) column = kPayPerColumn, --row;
  if (row >= 0 && row < model()->rowCount()) setCurrentIndex(model()->index(row, column));
}

void PayoffTable::TypeWord(bool to) {
  emit WordTyped(to);
  setCurrentIndex(model()->index(currentIndex().row(), kPayPerColumn));
}

void PayoffTable::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
  const bool onWord = currentIndex().column() == kWordColumn;
  if (!currentIndex().isValid() || !plain) return QTableView::keyPressEvent(event);
  switch (event->key()) {
    case Qt::Key_T:
    case Qt::Key_F:
      return TypeWord(event->key() == Qt::Key_T);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Step(1);
    case Qt::Key_Space:
      if (onWord) emit WordFlipped();
      return;
    default:
      break;
  }
  // Digits typed at the name or the word begin the number that comes next.
  const QString typed = event->text();
  const bool digit = typed.size() == 1 && (typed[0].isDigit() || typed[0] == '-' || typed[0] == '.');
  if (digit && (onWord || currentIndex().column() == kBetColumn)) Step(1);
  if (!digit && typed.size() == 1 && typed[0].isPrint()) return event->ignore();
  QTableView::keyPressEvent(event);
}

void PayoffTable::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex at = indexAt(event->position().toPoint());
  if (at.column() != kWordColumn) return QTableView::mouseDoubleClickEvent(event);
  setCurrentIndex(at);
  emit WordFlipped();
}

// --- The page.

PayoffPage::PayoffPage(Game& game, SettingEditor& editor, QWidget* parent)
    : QWidget(parent), game_(game), editor_(editor) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  auto* line = new QHBoxLayout;
  line->setSpacing(8);
  column->addLayout(line);
  tables_ = new QComboBox(this);
  tables_->setObjectName("cmbPayoffs");
  tables_->setAccessibleName(tr("Payoffs of"));
  for (const char* caption : kTableCaptions) tables_->addItem(tr(caption));
  auto* label = new QLabel(tr("Payoffs &of"), this);
  label->setBuddy(tables_);
  line->addWidget(label);
  line->addWidget(tables_);
  line->addStretch();
  view_ = new PayoffTable(this);
  view_->setAccessibleName(tr("Payoffs"));
  view_->setProperty("tells",
                     "PayoffTable FieldPayoffs SevenPointSevenPayoffs MidwayPayoffs "
                     "SharpShooterPayoffs RideTheLinePayoffs FirePayoffs");
  model_ = new PayoffModel(view_);
  view_->setModel(model_);
  view_->horizontalHeader()->setHighlightSections(false);
  view_->horizontalHeader()->setStretchLastSection(true);
  column->addWidget(view_, 1);
  auto* note = new QLabel(tr("Enter goes from number to number; t and f write the word between them."), this);
  note->setWordWrap(true);
  column->addWidget(note);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  column->addLayout(buttons);
  AddButtons(*buttons);
  buttons->addStretch();
  model_->changed = [this](int row, const PayoffRecord& record) { Change(row, record); };
  connect(tables_, &QComboBox::currentIndexChanged, this, &PayoffPage::Refresh);
  connect(view_, &PayoffTable::WordTyped, this,
          [this](bool to) { model_->SetWord(view_->currentIndex().row(), to); });
  connect(view_, &PayoffTable::WordFlipped, this, [this] {
    const int row = view_->currentIndex().row();
    model_->SetWord(row, model_->Record(row).ForFlag == kZero);
  });
  // One stands for a cell that is being typed.
  ControlFor("PayoffTable.1", FromCore(BetName(1)));
}

void PayoffPage::AddButtons(QLayout& line) {
  auto* field = new QPushButton(tr("&Set Field payoffs to"), this);
  field->setObjectName("mnuSetSuperField");
  field->setAutoDefault(false);
  field->setProperty("tells", "FieldPreset");
  presets_ = new QMenu(field);
  ListPresets(*presets_);
  field->setMenu(presets_);
  line.addWidget(field);
  auto* restore = new QPushButton(tr("&Restore default payoffs"), this);
  restore->setObjectName("mnuRestoreDefaultPayoffs");
  restore->setAutoDefault(false);
  connect(restore, &QPushButton::clicked, this, &PayoffPage::RestoreDefaults);
  line.addWidget(restore);
}

void PayoffPage::ListPresets(QMenu& menu) {
  for (int preset = 0; preset < kFieldPresets; ++preset) {
    QAction* action = menu.addAction(tr(kPresetCaptions[preset]), this, [this, preset] { SetField(preset); });
    action->setObjectName(QStringLiteral("mnuSF") + FieldPresetFacts(preset).name);
    action->setCheckable(true);
  }
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu] {
    for (int preset = 0; preset < kFieldPresets; ++preset)
      menu.actions()[preset]->setChecked(preset == static_cast<int>(game_.settings.FieldPreset));
  });
}

void PayoffPage::Refresh() {
  const int table = tables_->currentIndex();
  if (table != model_->Table()) {
    model_->Show(table);
    view_->setCurrentIndex(model_->index(0, kPayToColumn));
    QHeaderView* header = view_->horizontalHeader();
    const QFontMetrics letters = view_->fontMetrics();
    int widest = letters.horizontalAdvance(tr("Outcome"));
    for (int row = 0; row < model_->rowCount(); ++row)
      widest = std::max(widest, letters.horizontalAdvance(model_->Payoff(row).caption));
    header->resizeSection(kBetColumn, widest + 24);
    header->resizeSection(kPayToColumn, letters.horizontalAdvance("-000000.00"));
    header->resizeSection(kWordColumn, letters.horizontalAdvance("to/for") + 20);
    header->resizeSection(kPayPerColumn, letters.horizontalAdvance("-000000.00"));
  }
  model_->Refresh(game_, editor_);
}

// A payoff gets its control when it is typed first, for what the table doesn't take at once.
SettingControl& PayoffPage::ControlFor(const std::string& setting, const QString& caption) {
  if (SettingControl* control = editor_.ControlOf(setting)) return *control;
  return editor_.Add({.setting = setting,
                      .caption = tr("Payoff of %1").arg(caption),
                      .widget = view_,
                      .show = [](const std::string&) {},
                      .commit = [this] { view_->LeaveCell(); }});
}

void PayoffPage::Change(int row, const PayoffRecord& record) {
  const ListedPayoff payoff = model_->Payoff(row);
  const QString table = model_->Table() == 0 ? QString() : tables_->currentText() + ", ";
  editor_.Change(ControlFor(payoff.setting, table + payoff.caption), PayoffText(record));
  Refresh();
}

void PayoffPage::GiveUp(int table) {
  for (int each = 0; each < kPayoffTables; ++each)
    if (table < 0 || each == table)
      for (const ListedPayoff& payoff : Listed(each))
        if (SettingControl* control = editor_.ControlOf(payoff.setting)) control->waiting.reset();
}

void PayoffPage::SetField(int preset) {
  if (!editor_.MayChange()) return;
  GiveUp(kFieldTable);
  editor_.ChangeTogether({{"FieldPreset", 0, FieldPresetFacts(preset).name}});
  tables_->setCurrentIndex(kFieldTable);
  Refresh();
}

void PayoffPage::RestoreDefaults() {
  if (!Confirms<Msg::kAskRestorePayoffs>(game_)) return;
  if (!editor_.MayChange()) return;
  GiveUp(-1);
  PayoffTables original = OriginalPayoffs(game_.settings.Unit());
  std::vector<SettingChange> changes;
  for (int table = 0; table < kPayoffTables; ++table) {
    const PayoffTableInfo& facts = PayoffTableFacts(table);
    for (int row = facts.firstRow; row <= facts.lastRow; ++row) {
      const std::string text = PayoffText(PayoffRow(original, table, row));
      if (text != PayoffText(PayoffRow(game_.payoffs, table, row)))
        changes.push_back({std::string(facts.name) + "." + std::to_string(row), 0, text});
    }
  }
  editor_.ChangeTogether(changes);
  Refresh();
}

QList<QStringList> PayoffPage::Rows() const {
  QList<QStringList> rows{{tr("Table"), tr("Bet or outcome"), tr("Pays")}};
  for (int table = 0; table < kPayoffTables; ++table)
    for (const ListedPayoff& payoff : Listed(table))
      rows += {tr(kTableCaptions[table]), payoff.caption,
               FromCore(PayoffText(PayoffRow(game_.payoffs, table, payoff.row)))};
  return rows;
}

}  // namespace tessaryn
