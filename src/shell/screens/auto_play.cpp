#include "shell/screens/auto_play.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "base/bet_catalogue.h"
#include "play/setting_table.h"
#include "rules/handling.h"
#include "shell/screens/core_words.h"
#include "shell/screens/screen_parts.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

struct AutoPlayScreen::Flag {
  const char* control;
  const char* setting;
  bool Handling::*field;
  const char* caption;
  const char* tip;
};
const AutoPlayScreen::Flag AutoPlayScreen::kFlags[4] = {
    {"chkAutoTakeFullOdds", "AutoTakeOdds", &Handling::AutoTakeOdds, QT_TR_NOOP("Auto-&take full odds"),
     QT_TR_NOOP("On Pass Line and Come, when a point is set and when the flat bet changes")},
    {"chkAutoLayFullOdds", "AutoLayOdds", &Handling::AutoLayOdds, QT_TR_NOOP("Auto-&lay full odds"),
     QT_TR_NOOP("On Don't Pass and Don't Come, when a point is set and when the flat bet changes")},
    {"chkAutoDownPlaceBets", "AutoDownPlace", &Handling::AutoDownPlace, QT_TR_NOOP("Auto-&down Place bets"),
     QT_TR_NOOP("Place and Buy bets on the number of a line or Come bet come down")},
    {"chkAutoPassDice", "AutoPassDice", &Handling::AutoPassDice, QT_TR_NOOP("Auto-&pass the dice"),
     QT_TR_NOOP("The player never shoots")},
};

struct AutoPlayScreen::Bias {
  const char* control;
  const char* setting;
  int Handling::*field;
  const char* caption;
};
const AutoPlayScreen::Bias AutoPlayScreen::kBiases[4] = {
    {"cmbPlaceBias", "PlaceBias", &Handling::PlaceBias, QT_TR_NOOP("Place and Buy:")},
    {"cmbDoBias", "DoBias", &Handling::DoBias, QT_TR_NOOP("Do side, others:")},
    {"cmbDontBias", "DontBias", &Handling::DontBias, QT_TR_NOOP("Don't side:")},
    {"cmbLayBias", "LayBias", &Handling::LayBias, QT_TR_NOOP("Lay:")},
};

namespace {

constexpr int kSlots4[2][2] = {{kSlotLoseSame, kSlotLoseBet}, {kSlotWinSame, kSlotWinBet}};
const char* const kAmountCaptions[3] = {
    QT_TRANSLATE_NOOP("tessaryn::AutoPlayScreen", " Manual"),
    QT_TRANSLATE_NOOP("tessaryn::AutoPlayScreen", " Auto w/ minor correction"),
    QT_TRANSLATE_NOOP("tessaryn::AutoPlayScreen", " Auto w/ color correction")};

SeatId FirstSeat(const TableState& table) {
  if (table.SelectedSeat > 0 && !table.seats[table.SelectedSeat].SeatName.empty()) return table.SelectedSeat;
  return table.OccupiedSeats > 0 ? table.Seated[0] : 0;
}

}  // namespace

AutoPlayScreen::AutoPlayScreen(Game& game, QWidget* parent)
    : QDialog(parent), game_(game), seat_(FirstSeat(game.table)) {
  setObjectName("frmAutoPlay");
  setWindowTitle(tr("Auto-Play"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto* column = new QVBoxLayout(this);
  AddPlayerRow(*column);
  settings_ = new QWidget(this);
  settings_->setEnabled(seat_ > 0);
  auto* grid = new QGridLayout(settings_);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(HandlingGroup(true), 0, 0);
  grid->addWidget(HandlingGroup(false), 0, 1);
  auto* row = new QHBoxLayout;
  row->addWidget(AmountsGroup(), 1);
  row->addWidget(OddsGroup(), 1);
  grid->addLayout(row, 1, 0, 1, 2);
  grid->addWidget(WorkingGroup(), 0, 2, 2, 1);
  grid->setRowStretch(0, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  column->addWidget(settings_, 1);
  AddButtonRow(*column);
  ShowSeat(seat_);
}

void AutoPlayScreen::AddPlayerRow(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  column.addLayout(row);
  player_ = new QComboBox(this);
  player_->setObjectName("cmbPlayer");
  player_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  player_->setMinimumContentsLength(24);
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (const std::string& name = game_.table.seats[seat].SeatName; !name.empty())
      player_->addItem(FromCore(name), seat.value);
  player_->setCurrentIndex(player_->findData(seat_.value));
  player_->setEnabled(seat_ > 0);
  connect(player_, &QComboBox::activated, this, [this] { ShowSeat(player_->currentData().toInt()); });
  auto* label = new QLabel(tr("Pla&yer:"), this);
  label->setBuddy(player_);
  row->addWidget(label);
  row->addWidget(player_);
  if (seat_ == 0) row->addWidget(new QLabel(tr("There are no players at the table."), this));
  row->addStretch();
}

AdjustEdit* AutoPlayScreen::AddAdjust(int slot, const QString& what, QWidget* parent) {
  slots_[slot] = new AdjustEdit(slot, game_.settings, what, parent);
  connect(slots_[slot], &AdjustEdit::Edited, this, [this, slot] { SetSlot(slot); });
  return slots_[slot];
}

QButtonGroup* AutoPlayScreen::AddRadio(QGroupBox& box, const char* setting) {
  auto* group = new QButtonGroup(&box);
  connect(group, &QButtonGroup::idToggled, this, [this, setting](int id, bool on) {
    if (on) Set(setting, std::to_string(id));
  });
  return group;
}

QGroupBox* AutoPlayScreen::HandlingGroup(bool win) {
  auto* box = new QGroupBox(win ? tr("Winning bets") : tr("Losing bets"), settings_);
  box->setObjectName(win ? "optHandleWinningBets" : "optHandleLosingBets");
  auto* grid = new QGridLayout(box);
  grid->setColumnStretch(1, 1);
  QButtonGroup* group = AddRadio(*box, win ? "WinHandling" : "LoseHandling");
  (win ? win_ : lose_) = group;
  const char* const* captions = win ? kWinChoiceCaptions : kLoseChoiceCaptions;
  for (int choice = 0; choice <= kWinFixed; ++choice) {
    auto* radio = new QRadioButton(CoreWords(captions[choice]), box);
    radio->setObjectName(box->objectName() + QString::number(choice));
    group->addButton(radio, choice);
    const bool adjusted = choice >= kWinAdjusted;
    grid->addWidget(radio, choice, 0, 1, adjusted ? 1 : 2);
    if (!adjusted) continue;
    const int slot = kSlots4[win ? 1 : 0][choice - kWinAdjusted];
    grid->addWidget(AddAdjust(slot, box->title() + "," + radio->text(), box), choice, 1);
  }
  return box;
}

QGroupBox* AutoPlayScreen::AmountsGroup() {
  auto* box = new QGroupBox(tr("Bet amounts that pay whole"), settings_);
  box->setObjectName("optAutoAdjustBetAmounts");
  auto* row = new QHBoxLayout(box);
  auto* radios = new QVBoxLayout;
  row->addLayout(radios);
  amounts_ = AddRadio(*box, "ProperOddsMode");
  for (int mode = 0; mode < 3; ++mode) {
    auto* radio = new QRadioButton(tr(kAmountCaptions[mode]), box);
    radio->setObjectName(box->objectName() + QString::number(mode));
    amounts_->addButton(radio, mode);
    radios->addWidget(radio);
  }
  radios->addStretch();
  auto* form = new QFormLayout;
  row->addLayout(form);
  for (int n = 0; n < 4; ++n) {
    const Bias& bias = kBiases[n];
    biases_[n] = new QComboBox(box);
    biases_[n]->setObjectName(bias.control);
    biases_[n]->addItems({tr("By the change"), tr("Upward"), tr("Downward")});
    connect(biases_[n], &QComboBox::activated, this,
            [this, &bias](int value) { Set(bias.setting, std::to_string(value)); });
    form->addRow(tr(bias.caption), biases_[n]);
  }
  return box;
}

QGroupBox* AutoPlayScreen::OddsGroup() {
  auto* box = new QGroupBox(tr("Automatic"), settings_);
  auto* column = new QVBoxLayout(box);
  for (int n = 0; n < 4; ++n) {
    const Flag& flag = kFlags[n];
    flags_[n] = new QCheckBox(tr(flag.caption), box);
    flags_[n]->setObjectName(flag.control);
    flags_[n]->setToolTip(tr(flag.tip));
    flags_[n]->setAccessibleDescription(tr(flag.tip));
    connect(flags_[n], &QCheckBox::toggled, this,
            [this, &flag](bool on) { Set(flag.setting, on ? "on" : "off"); });
    column->addWidget(flags_[n]);
  }
  column->addStretch();
  return box;
}

QGroupBox* AutoPlayScreen::WorkingGroup() {
  auto* box = new QGroupBox(tr("Work on come-out"), settings_);
  auto* column = new QVBoxLayout(box);
  working_ = new QListWidget(box);
  working_->setObjectName("lstWorkOnComeOut");
  working_->setAccessibleName(box->title());
  working_->setUniformItemSizes(true);
  for (BetId bet = 1; bet <= kBets; ++bet) {
    auto* item = new QListWidgetItem(FromCore(BetName(bet)), working_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setData(Qt::UserRole, bet.value);
    item->setCheckState(Qt::Unchecked);
  }
  working_->setFixedWidth(working_->sizeHintForColumn(0) + 2 * working_->frameWidth() +
                          style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  connect(working_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
    Set("BetDefaultWorking." + std::to_string(item->data(Qt::UserRole).toInt()),
        item->checkState() == Qt::Checked ? "on" : "off");
  });
  column->addWidget(working_, 1);
  auto* selectAll = new QPushButton(tr("Select &All"), box);
  selectAll->setObjectName("cmdSelectAll");
  selectAll->setAutoDefault(false);
  connect(selectAll, &QPushButton::clicked, this, &AutoPlayScreen::SelectAllWorking);
  column->addWidget(selectAll);
  return box;
}

void AutoPlayScreen::AddButtonRow(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  column.addLayout(row);
  row->addStretch();
  auto* close = new QPushButton(tr("&Close"), this);
  close->setObjectName("cmdClose");
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  row->addWidget(close);
}

void AutoPlayScreen::ShowSeat(SeatId seat) {
  seat_ = seat;
  Load();
}

void AutoPlayScreen::Load() {
  loading_ = true;
  const Handling& handling = game_.table.seats[seat_].handling;
  win_->button(handling.WinHandling)->setChecked(true);
  lose_->button(handling.LoseHandling)->setChecked(true);
  amounts_->button(handling.ProperOddsMode)->setChecked(true);
  for (int n = 0; n < 4; ++n) {
    biases_[n]->setCurrentIndex(handling.*kBiases[n].field);
    flags_[n]->setChecked(handling.*kFlags[n].field);
  }
  for (const int slot : {kSlotWinSame, kSlotLoseSame, kSlotWinBet, kSlotLoseBet})
    slots_[slot]->SetValue(
        {handling.AdjustKind[slot], handling.AdjustValue[slot], handling.AdjustUnit[slot]});
  LoadWorking();
  loading_ = false;
}

void AutoPlayScreen::LoadWorking() {
  const BetSet& works = game_.table.seats[seat_].BetDefaultWorking;
  for (BetId bet = 1; bet <= kBets; ++bet)
    working_->item(bet - 1)->setCheckState(works.Has(bet) ? Qt::Checked : Qt::Unchecked);
}

void AutoPlayScreen::Set(const std::string& name, const std::string& value) {
  if (loading_ || seat_ == 0) return;
  std::string error;
  if (SetSetting(game_, name, seat_, value, error)) return;
  ShowMessage<Msg::kSettingRefused>(game_, With<"title">(ToCore(windowTitle())), With<"problem">(error));
  Load();
}

void AutoPlayScreen::SetSlot(int slot) {
  if (seat_ == 0) return;
  const Adjustment& value = slots_[slot]->Value();
  std::string row(1, '.');
  row += std::to_string(slot);
  std::string error;
  if (SetSettings(game_,
                  {{"AdjustKind" + row, seat_, std::to_string(value.kind)},
                   {"AdjustValue" + row, seat_, PlainMoney(value.value)},
                   {"AdjustUnit" + row, seat_, std::to_string(value.unit)}},
                  error))
    return;
  ShowMessage<Msg::kSettingRefused>(game_, With<"title">(ToCore(windowTitle())), With<"problem">(error));
  Load();
}

void AutoPlayScreen::SelectAllWorking() {
  if (seat_ == 0) return;
  std::vector<SettingChange> changes;
  for (BetId bet = 1; bet <= kBets; ++bet)
    changes.push_back({"BetDefaultWorking." + std::to_string(bet), seat_, "on"});
  std::string error;
  if (!SetSettings(game_, changes, error))
    ShowMessage<Msg::kSettingRefused>(game_, With<"title">(ToCore(windowTitle())), With<"problem">(error));
  Load();
}

}  // namespace tessaryn
