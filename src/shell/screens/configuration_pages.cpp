#include "shell/screens/configuration_pages.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "base/bet_catalogue.h"
#include "play/setting_values.h"
#include "rules/bankroll.h"
#include "shell/screens/configuration_rows.h"
#include "shell/screens/core_words.h"
#include "shell/screens/screen_parts.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/bet_families.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr int kGap = 12;

QString Translated(const char* text) {
  return QCoreApplication::translate("tessaryn::ConfigurationScreen", text);
}

const SettingRow* RowOfSetting(std::string_view setting) {
  const std::string_view name = setting.substr(0, setting.find('.'));
  for (const SettingRow& row : SettingRows())
    if (name == row.name) return &row;
  return nullptr;
}

bool IsFlag(const SettingRow& row) { return std::holds_alternative<Cell<bool>>(row.cell); }

std::string FlagText(bool on) { return on ? "on" : "off"; }

// What `set` calls it, for the tip and for the search.
void Explain(QWidget* widget, const SettingRow& row, const char* setting) {
  const QString tells = QStringLiteral("%1 (%2)").arg(CoreWords(row.help), QLatin1String(setting));
  widget->setToolTip(tells);
  widget->setProperty("tells", tells);
}

Currency ToMoney(const std::string& value) { return ParseMoney(value); }

// The width of the largest amount, the same for all.
MoneyEdit* NewNumber(QWidget* parent, const char* name) {
  auto* edit = new MoneyEdit(parent);
  edit->setObjectName(name);
  edit->setFixedWidth(edit->fontMetrics().horizontalAdvance("9999999.99") + 16);
  return edit;
}

QPushButton* NewButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

// A text box's value goes to the table as it is left; committed by hand when the screen is.
void TakeWhenLeft(SettingEditor& editor, SettingControl& control, QLineEdit* edit,
                  std::function<std::string()> value) {
  control.commit = [&editor, &control, edit, value] {
    if (!edit->isModified()) return;
    edit->setModified(false);
    editor.Change(control, value());
  };
  QObject::connect(edit, &QLineEdit::editingFinished, &editor, [&control] { control.commit(); });
}

}  // namespace

// --- Pages from rows.

TwoColumns::TwoColumns(QWidget* parent) : QScrollArea(parent) {
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  auto* body = new QWidget(this);
  both_ = new QBoxLayout(QBoxLayout::LeftToRight, body);
  both_->setContentsMargins(0, 0, 8, 0);
  both_->setSpacing(kGap);
  for (QVBoxLayout*& column : columns_) {
    column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addStretch();
    both_->addLayout(column, 1);
  }
  setWidget(body);
}

void TwoColumns::resizeEvent(QResizeEvent* event) {
  const int room = width() - verticalScrollBar()->sizeHint().width();
  const QMargins margins = both_->contentsMargins();
  const int needed = columns_[0]->minimumSize().width() + columns_[1]->minimumSize().width() + kGap +
                     margins.left() + margins.right();
  const bool beside = needed <= room;
  both_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  both_->setStretch(0, beside ? 1 : 0);
  QScrollArea::resizeEvent(event);
}

QGroupBox* TwoColumns::Group(const QString& caption, int column) {
  for (auto* group : widget()->findChildren<QGroupBox*>())
    if (group->title() == caption) return group;
  auto* group = new QGroupBox(caption, widget());
  auto* form = new QFormLayout(group);
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  form->setRowWrapPolicy(QFormLayout::DontWrapRows);
  form->setHorizontalSpacing(kGap);
  form->setVerticalSpacing(8);
  columns_[column]->insertWidget(columns_[column]->count() - 1, group);
  return group;
}

QFormLayout* TwoColumns::FormOf(QGroupBox* group) { return static_cast<QFormLayout*>(group->layout()); }

ControlsPage::ControlsPage(SettingEditor& editor, const char* tab, QWidget* parent)
    : TwoColumns(parent), editor_(editor) {
  setObjectName(tab);
  for (const ControlRow& control : ControlRows())
    if (std::string_view(control.tab) == tab) AddControl(control);
}

SettingControl& ControlsPage::Register(const ControlRow& row, QWidget* widget,
                                       std::function<void(const std::string&)> show) {
  Explain(widget, *RowOfSetting(row.setting), row.setting);
  // The platform's reader takes a list's choice, and a text box's text, for their names.
  if (row.kind != ControlKind::kRadio && row.kind != ControlKind::kMask)
    widget->setAccessibleName(Translated(row.caption));
  return editor_.Add({.setting = row.setting,
                      .ofPlayer = row.ofPlayer,
                      .caption = Translated(row.caption),
                      .widget = widget,
                      .show = std::move(show)});
}

void ControlsPage::AddControl(const ControlRow& row) {
  const SettingRow* setting = RowOfSetting(row.setting);
  QGroupBox& group = *Group(Translated(row.group), row.column);
  switch (row.kind) {
    case ControlKind::kFlag:
      return AddBox(row, *setting, group);
    case ControlKind::kNumber:
    case ControlKind::kPercent:
      return AddNumber(row, group);
    case ControlKind::kChoice:
      return AddChoice(row, *setting, group);
    case ControlKind::kRadio:
      return AddButtons(row, *setting, group);
    case ControlKind::kMask:
      return AddMask(row, *setting, group);
  }
}

void ControlsPage::AddBox(const ControlRow& row, const SettingRow&, QGroupBox& group) {
  auto* box = new QCheckBox(Translated(row.caption), &group);
  box->setObjectName(row.name);
  SettingControl& control =
      Register(row, box, [box](const std::string& value) { box->setChecked(value == "on"); });
  connect(box, &QCheckBox::clicked, this,
          [this, &control](bool on) { editor_.Change(control, FlagText(on)); });
  FormOf(&group)->addRow(box);
}

// A percentage is the fraction a hundred times.
void ControlsPage::AddNumber(const ControlRow& row, QGroupBox& group) {
  const bool percent = row.kind == ControlKind::kPercent;
  auto* field = new QWidget(&group);
  auto* line = new QHBoxLayout(field);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(8);
  MoneyEdit* edit = NewNumber(field, row.name);
  edit->SetKeys(percent ? 2 : 4, false);
  line->addWidget(edit);
  line->addWidget(new QLabel(Translated(row.unit), field));
  SettingControl& control = Register(row, edit, [edit, percent](const std::string& value) {
    if (edit->hasFocus() && edit->isModified()) return;
    const Currency number = ToMoney(value);
    edit->SetValue(percent ? ToPercent(Fraction::Of(number)).Number() : number);
  });
  TakeWhenLeft(editor_, control, edit,
               [edit, percent] { return PlainMoney(edit->Value()) + (percent ? "%" : ""); });
  auto* label = new QLabel(Translated(row.caption), &group);
  label->setBuddy(edit);
  FormOf(&group)->addRow(label, field);
}

void ControlsPage::AddChoice(const ControlRow& row, const SettingRow& setting, QGroupBox& group) {
  auto* choices = new QComboBox(&group);
  choices->setObjectName(row.name);
  for (const char* caption : setting.facts.captions) choices->addItem(CoreWords(caption));
  SettingControl& control = Register(row, choices, [choices](const std::string& value) {
    choices->setCurrentIndex(std::atoi(value.c_str()));
  });
  connect(choices, &QComboBox::activated, this,
          [this, &control](int choice) { editor_.Change(control, std::to_string(choice)); });
  FormOf(&group)->addRow(Translated(row.caption), choices);
}

void ControlsPage::AddButtons(const ControlRow& row, const SettingRow& setting, QGroupBox& group) {
  const auto captions = row.captions.empty() ? setting.facts.captions : row.captions;
  const bool flag = IsFlag(setting);
  auto* field = new QWidget(&group);
  auto* column = new QVBoxLayout(field);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  auto* buttons = new QButtonGroup(field);
  for (int n = 0; n < static_cast<int>(captions.size()); ++n) {
    auto* button =
        new QRadioButton(row.captions.empty() ? CoreWords(captions[n]) : Translated(captions[n]), field);
    button->setObjectName(QStringLiteral("%1%2").arg(row.name).arg(n));
    Explain(button, setting, row.setting);
    buttons->addButton(button, row.values.empty() ? n : row.values[n]);
    // The usual choice of a flag stands first.
    column->insertWidget(flag ? 0 : column->count(), button);
  }
  // A value between two stands for the nearer.
  const auto show = [buttons, flag](const std::string& value) {
    const int number = flag ? static_cast<int>(value == "on") : std::atoi(value.c_str());
    QAbstractButton* nearest = nullptr;
    for (QAbstractButton* button : buttons->buttons())
      if (nearest == nullptr ||
          std::abs(buttons->id(button) - number) < std::abs(buttons->id(nearest) - number))
        nearest = button;
    nearest->setChecked(true);
  };
  SettingControl& control = Register(row, buttons->buttons().front(), show);
  connect(buttons, &QButtonGroup::idClicked, this, [this, &control, flag](int id) {
    editor_.Change(control, flag ? FlagText(id != 0) : std::to_string(id));
  });
  if (flag || Translated(row.caption) == group.title())
    FormOf(&group)->addRow(field);
  else
    FormOf(&group)->addRow(Translated(row.caption), field);
}

void ControlsPage::AddMask(const ControlRow& row, const SettingRow& setting, QGroupBox& group) {
  QList<QCheckBox*> boxes;
  for (int bit = 0; bit < static_cast<int>(setting.facts.captions.size()); ++bit) {
    auto* box = new QCheckBox(CoreWords(setting.facts.captions[bit]), &group);
    box->setObjectName(QStringLiteral("%1%2").arg(row.name).arg(bit));
    Explain(box, setting, row.setting);
    FormOf(&group)->addRow(box);
    boxes.append(box);
  }
  SettingControl& control = Register(row, boxes.front(), [boxes](const std::string& value) {
    const int mask = std::atoi(value.c_str());
    for (int bit = 0; bit < boxes.size(); ++bit) boxes[bit]->setChecked((mask >> bit & 1) != 0);
  });
  for (QCheckBox* each : boxes)
    connect(each, &QCheckBox::clicked, this, [this, &control, boxes] {
      int mask = 0;
      for (int bit = 0; bit < boxes.size(); ++bit)
        if (boxes[bit]->isChecked()) mask |= 1 << bit;
      editor_.Change(control, std::to_string(mask));
    });
}

// --- Bets that work on the come-out roll.

namespace {

class WorkingList {
 public:
  WorkingList(Game& game, SettingEditor& editor, QGroupBox& group) : game_(game), editor_(editor) {
    list_ = new QListWidget(&group);
    list_->setObjectName("lstWorkOnComeOut");
    list_->setAccessibleName(group.title());
    list_->setToolTip(
        Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen",
                                     "A double click or the space bar changes a bet. New players take this "
                                     "as they buy in.")));
    list_->setProperty("tells", "BetDefaultWorking");
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setUniformItemSizes(true);
    for (BetId bet = 1; bet <= kBets; ++bet) list_->addItem(QString());
    ControlsPage::FormOf(&group)->addRow(list_);
  }

  QListWidget* List() { return list_; }

  void Refresh() {
    const BetSet& works = game_.table.seats[0].BetDefaultWorking;
    for (BetId bet = 1; bet <= kBets; ++bet) {
      const QString ending = works.Has(bet)
                                 ? Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", " - Yes"))
                                 : Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", " - No"));
      const QString text = FromCore(BetName(bet)) + ending;
      if (list_->item(bet - 1)->text() != text) list_->item(bet - 1)->setText(text);
    }
  }

  // Which bets are to work, of those that are selected.
  template <typename Works>
  void Set(const Works& works) {
    std::vector<SettingChange> changes;
    for (BetId bet = 1; bet <= kBets; ++bet)
      if (list_->item(bet - 1)->isSelected())
        changes.push_back({"BetDefaultWorking." + std::to_string(bet), 0, FlagText(works(bet))});
    if (!changes.empty()) editor_.ChangeTogether(changes);
    Refresh();
  }

  void Flip() {
    const BetSet before = game_.table.seats[0].BetDefaultWorking;
    Set([&before](BetId bet) { return !before.Has(bet); });
  }

  void SelectAll() { list_->selectAll(); }

 private:
  Game& game_;
  SettingEditor& editor_;
  QListWidget* list_;
};

}  // namespace

ControlsPage* MakeBetsPage(Game& game, SettingEditor& editor, QWidget* parent) {
  auto* page = new ControlsPage(editor, "picBets", parent);
  QGroupBox* group =
      page->Group(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Work on come-out roll")), 1);
  const auto list = std::make_shared<WorkingList>(game, editor, *group);
  list->List()->setMinimumHeight(list->List()->fontMetrics().lineSpacing() * 7);
  auto* row = new QGridLayout;
  row->setSpacing(8);
  struct Button {
    const char* name;
    QString caption;
    std::function<void()> act;
  };
  const Button buttons[] = {
      {"cmdWorkingYes", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Yes")),
       [list] { list->Set([](int) { return true; }); }},
      {"cmdWorkingNo", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "No")),
       [list] { list->Set([](int) { return false; }); }},
      {"cmdWorkingSelectAll", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Select all")),
       [list] { list->SelectAll(); }},
      {"cmdWorkingDefault", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Default")),
       [list] { list->Set([](BetId bet) { return kHouseWorkingBets.Has(bet); }); }}};
  for (const Button& facts : buttons) {
    QPushButton* button = NewButton(group, facts.name, facts.caption);
    QObject::connect(button, &QPushButton::clicked, page, facts.act);
    row->addWidget(button, row->count() / 2, row->count() % 2);
  }
  ControlsPage::FormOf(group)->addRow(row);
  QObject::connect(list->List(), &QListWidget::itemDoubleClicked, page, [list] { list->Flip(); });
  auto* space = new QShortcut(Qt::Key_Space, list->List(), nullptr, nullptr, Qt::WidgetShortcut);
  QObject::connect(space, &QShortcut::activated, page, [list] { list->Flip(); });
  page->refresh = [list] { list->Refresh(); };
  return page;
}

// --- Layout.

ControlsPage* MakeLayoutPage(Game& game, SettingEditor& editor, QWidget* parent) {
  auto* page = new ControlsPage(editor, "picLayout", parent);
  QGroupBox* group = page->Group(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Checks")), 1);
  QPushButton* restore = NewButton(
      group, "mnuRestoreDefaultDenoms",
      Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Restore default denominations")));
  QObject::connect(restore, &QPushButton::clicked, page, [&game, &editor] {
    if (!Confirms<Msg::kAskRestoreChecks>(game)) return;
    const Settings original;
    std::vector<SettingChange> changes;
    for (int n = 1; n <= 5; ++n)
      changes.push_back({"CheckValue." + std::to_string(n), 0, PlainMoney(original.CheckValue[n])});
    editor.ChangeTogether(changes);
  });
  ControlsPage::FormOf(group)->addRow(restore);
  return page;
}

// --- Bankroll.

namespace {

void ListPlayers(const Game& game, SettingEditor& editor, QComboBox& players) {
  QStringList names;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    names += IsOccupied(game.table, seat) ? FromCore(game.table.seats[seat].SeatName) : QString();
  if (players.property("names").toStringList() != names) {
    players.setProperty("names", names);
    players.clear();
    for (SeatId seat = 1; seat <= kSeats; ++seat)
      if (!names[seat - 1].isEmpty()) players.addItem(names[seat - 1], seat.value);
  }
  SeatId seat = editor.Seat();
  if (!IsOccupied(game.table, seat))
    seat = IsOccupied(game.table, game.table.SelectedSeat) ? game.table.SelectedSeat
           : game.table.OccupiedSeats > 0                  ? SeatId(game.table.Seated[0])
                                                           : kNobody;
  players.setCurrentIndex(players.findData(seat.value));
  if (seat != editor.Seat()) editor.SetSeat(seat);
}

// txtAddSub and cmdAddSub: money from the ATM and back.
void AddAtm(Game& game, SettingEditor& editor, QGroupBox& group) {
  auto* field = new QWidget(&group);
  auto* line = new QHBoxLayout(field);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(8);
  MoneyEdit* amount = NewNumber(field, "txtAddSub");
  amount->setAccessibleName(
      Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Amount to add or subtract")));
  amount->SetValue(game.settings.AtmUnit);
  line->addWidget(amount);
  struct Button {
    const char* name;
    QString caption;
    bool deposit;
  };
  for (const Button& facts :
       {Button{"cmdAddSub0", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Add")), false},
        Button{"cmdAddSub1", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Subtract")),
               true}}) {
    QPushButton* button = NewButton(field, facts.name, facts.caption);
    QObject::connect(button, &QPushButton::clicked, &editor, [&game, &editor, amount, facts] {
      if (editor.Seat() == 0 || !editor.MayChange() || amount->Value().IsError()) return;
      AtmTransaction(game, editor.Seat(), facts.deposit, amount->Value(), true);
      game.host->Changed(game, Change::kPlayers);
      emit editor.Changed();
    });
    line->addWidget(button);
  }
  ControlsPage::FormOf(&group)->addRow(
      Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Add or subtract")), field);
}

}  // namespace

ControlsPage* MakeBankrollPage(Game& game, SettingEditor& editor, QWidget* parent) {
  auto* page = new ControlsPage(editor, "picBankroll", parent);
  QGroupBox* group = page->Group(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Player")), 0);
  QFormLayout* form = ControlsPage::FormOf(group);
  auto* players = new QComboBox(group);
  players->setObjectName("cmbPlayer");
  players->setAccessibleName(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Player")));
  players->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  players->setMinimumContentsLength(20);
  form->insertRow(0, Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Player")), players);
  QObject::connect(players, &QComboBox::activated, page,
                   [&editor, players] { editor.SetSeat(players->currentData().toInt()); });
  auto* bankroll = new QLabel(group);
  bankroll->setObjectName("lblBankroll");
  form->insertRow(1, Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Bankroll")), bankroll);
  AddAtm(game, editor, *group);
  page->refresh = [&game, &editor, group, players, bankroll] {
    ListPlayers(game, editor, *players);
    group->setEnabled(editor.Seat() != 0);
    bankroll->setText(editor.Seat() == 0 ? Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen",
                                                                        "There are no players at the table."))
                                         : DollarText(game.table.BankrollCurrent[editor.Seat()]));
  };
  return page;
}

// --- Sounds.

namespace {

struct SoundChoice {
  const char* name;
  QString caption;
  const char* setting;
  QStringList files;
  bool random;
};

QComboBox* NewSoundList(const SoundChoice& choice, QWidget* parent) {
  auto* list = new QComboBox(parent);
  list->setObjectName(choice.name);
  list->setAccessibleName(choice.caption);
  list->setMinimumContentsLength(14);
  list->addItem(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "< none >")));
  for (const QString& file : choice.files)
    list->addItem(choice.random
                      ? file.section('.', 0, -2)
                      : Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Stick person 1")),
                  file);
  if (choice.random)
    list->addItem(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "< random >")));
  Explain(list, *RowOfSetting(choice.setting), choice.setting);
  return list;
}

QPushButton* NewTryButton(const SoundChoice& choice, QWidget* parent) {
  QPushButton* hear =
      NewButton(parent, "", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Try")));
  hear->setObjectName(QStringLiteral("cmdTry") + choice.setting);
  hear->setAccessibleName(
      Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Try: %1")).arg(choice.caption));
  return hear;
}

void AddSound(const SoundChoice& choice, const SoundShelf& shelf, SettingEditor& editor, ControlsPage& page,
              QGroupBox& group) {
  auto* field = new QWidget(&group);
  auto* line = new QHBoxLayout(field);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(8);
  QComboBox* list = NewSoundList(choice, field);
  line->addWidget(list);
  QPushButton* hear = NewTryButton(choice, field);
  line->addWidget(hear);
  const int count = static_cast<int>(choice.files.size());
  const bool random = choice.random;
  SettingControl& control = editor.Add({.setting = choice.setting,
                                        .caption = choice.caption,
                                        .widget = list,
                                        .show = [list, count, random](const std::string& value) {
                                          // A set that isn't there any more plays as the first.
                                          const int set = std::atoi(value.c_str());
                                          const int last = count + static_cast<int>(random && count > 0);
                                          list->setCurrentIndex(set <= last ? set : std::min(1, count));
                                        }});
  QObject::connect(list, &QComboBox::activated, &page,
                   [&editor, &control](int set) { editor.Change(control, std::to_string(set)); });
  QObject::connect(hear, &QPushButton::clicked, &page, [list, count, play = shelf.play] {
    if (!play || count == 0 || list->currentIndex() == 0) return;
    const int set = list->currentIndex() <= count ? list->currentIndex() : 1 + std::rand() % count;
    play(list->itemData(set).toString());
  });
  QFormLayout* form = ControlsPage::FormOf(&group);
  form->addRow(choice.caption, field);
  static_cast<QLabel*>(form->labelForField(field))->setBuddy(list);
}

}  // namespace

ControlsPage* MakeSoundPage(Game& game, SettingEditor& editor, const SoundShelf& shelf, QWidget* parent) {
  auto* page = new ControlsPage(editor, "picSound", parent);
  QGroupBox* group = page->Group(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Sounds")), 0);
  // The stickman's calls are one set together.
  const QStringList stick = shelf.stick.isEmpty() ? QStringList() : QStringList{shelf.stick.front()};
  const SoundChoice choices[] = {
      {"cmbStickPerson", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Stick person")),
       "StickPerson", stick, false},
      {"cmbDiceSound", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Dice")), "DiceSound",
       shelf.dice, true},
      {"cmbCheckSound", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Checks")),
       "CheckSound", shelf.checks, true},
      {"cmbWinSound", Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Wins")), "WinSound",
       shelf.wins, true}};
  for (const SoundChoice& choice : choices) AddSound(choice, shelf, editor, *page, *group);
  if (shelf.dice.isEmpty() && shelf.checks.isEmpty()) {
    auto* note = new QLabel(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen",
                                                         "The program's sound files aren't there.")),
                            group);
    ControlsPage::FormOf(group)->addRow(note);
  }
  page->refresh = [&game, group] { group->setEnabled(!game.settings.DisableAllSound); };
  return page;
}

// --- The simulated roll rate.

const RateView kRateViews[6] = {
    {QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Rolls / hr"), 1, false, "36,000,000"},
    {QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Rolls / min"), 60, false, "600,000"},
    {QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Rolls / sec"), 3600, false, "10,000"},
    {QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Hrs / roll"), 1, true, ""},
    {QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Mins / roll"), 60, true, ""},
    {QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Secs / roll"), 3600, true, ""}};

QString RateText(Currency rollsPerHour, const RateView& view) {
  if (rollsPerHour == kZero) return "0";
  const Currency part = Currency::Dollars(view.perHour);
  const Currency shown = view.reciprocal ? Divide(part, rollsPerHour) : Divide(rollsPerHour, part);
  return shown == kZero ? QStringLiteral("<.0001") : InHabit(QString::fromStdString(PlainMoney(shown)));
}

Currency RateOf(Currency typed, const RateView& view) {
  const Currency part = Currency::Dollars(view.perHour);
  return view.reciprocal ? Divide(part, typed) : Multiply(typed, part);
}

namespace {

// txtRollsPerHour and cmbRollsPerTime.
void AddRollRate(SettingEditor& editor, QGroupBox& group) {
  auto* field = new QWidget(&group);
  auto* line = new QHBoxLayout(field);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(8);
  MoneyEdit* rate = NewNumber(field, "txtRollsPerHour");
  rate->setAccessibleName(group.title());
  auto* views = new QComboBox(field);
  views->setObjectName("cmbRollsPerTime");
  views->setAccessibleName(
      Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "How the rate is shown")));
  for (const RateView& view : kRateViews) views->addItem(Translated(view.caption));
  line->addWidget(rate);
  line->addWidget(views);
  ControlsPage::FormOf(&group)->addRow(field);
  Explain(rate, *RowOfSetting("SimRollRate"), "SimRollRate");
  SettingControl& control =
      editor.Add({.setting = "SimRollRate",
                  .caption = group.title(),
                  .widget = rate,
                  .show = [rate, views](const std::string& value) {
                    if (rate->hasFocus() && rate->isModified()) return;
                    rate->setText(RateText(ToMoney(value), kRateViews[views->currentIndex()]));
                  }});
  control.check = [views](const std::string& value) -> ConfigurationProblem {
    const Currency rolls = ToMoney(value);
    if (!rolls.IsError() && rolls <= kZero) return {Msg::kRollRateTooLow};
    if (!rolls.IsError() && rolls <= kSimRollRateLimits.most.Number()) return {};
    const RateView& view = kRateViews[views->currentIndex()];
    const RateView& told = view.reciprocal ? kRateViews[0] : view;
    return {Msg::kRollRateTooHigh, {{"unit", std::string(told.caption)}, {"most", std::string(told.most)}}};
  };
  TakeWhenLeft(editor, control, rate, [rate, views]() -> std::string {
    const RateView& view = kRateViews[views->currentIndex()];
    const Currency rolls = RateOf(rate->Value(), view);
    // A roll in no time at all is faster than any.
    if (rolls.IsError()) return PlainMoney(kSimRollRateLimits.most.Number() + Currency::Dollars(1));
    return PlainMoney(rolls);
  });
  QObject::connect(views, &QComboBox::activated, &editor, [&editor, &control] {
    control.shown.reset();
    editor.Refresh();
  });
}

}  // namespace

ControlsPage* MakeMiscPage(Game&, SettingEditor& editor, QWidget* parent) {
  auto* page = new ControlsPage(editor, "picMisc", parent);
  AddRollRate(
      editor,
      *page->Group(Translated(QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Simulated roll rate")), 1));
  return page;
}

}  // namespace tessaryn
