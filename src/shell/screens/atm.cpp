#include "shell/screens/atm.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "play/setting_table.h"
#include "rules/bankroll.h"
#include "shell/screens/screen_parts.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {
constexpr int kPictureSize = 48;
constexpr int kPictureCheck = 4;
}  // namespace

AtmScreen::AtmScreen(Game& game, SeatId seat, QWidget* parent) : QDialog(parent), game_(game), seat_(seat) {
  setObjectName("frmAtm");
  setWindowTitle(tr("ATM"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  AddHeader();
  AddBody();
  AddButtons();
  column->setSizeConstraint(QLayout::SetFixedSize);
  Refresh();
}

void AtmScreen::AddHeader() {
  const QString text = CheckText(kPictureCheck, game_.settings.CheckValue, game_.settings.UseCentsSymbol);
  const QPixmap picture = CheckPicture(kPictureCheck, text, kPictureSize, devicePixelRatioF());
  auto* header = new HeaderBand(kBandGreen, picture, this);
  header->AddTitle(tr("ATM"));
  header->AddLine("lblPlayer", FromCore(game_.table.seats[seat_].SeatName));
  layout()->addWidget(header);
}

QLabel* AtmScreen::AddFigure(QFormLayout& form, const char* name, const QString& caption) {
  auto* figure = new QLabel(form.parentWidget());
  figure->setObjectName(name);
  figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  form.addRow(caption, figure);
  return figure;
}

void AtmScreen::AddBody() {
  auto* body = new QWidget(this);
  auto* form = new QFormLayout(body);
  form->setContentsMargins(16, 14, 16, 4);
  form->setHorizontalSpacing(24);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  bankroll_ = AddFigure(*form, "lblBankroll", tr("Bankroll:"));
  onTable_ = AddFigure(*form, "lblOnTable", tr("On the table:"));
  rail_ = AddFigure(*form, "lblRail", tr("Rail:"));
  total_ = AddFigure(*form, "lblAtmTotal", tr("Drawn from the ATM:"));
  AddAmount(*form);
  negative_ = new QCheckBox(tr("Allow &negative bankroll"), body);
  negative_->setObjectName("chkAllowNegBankroll");
  connect(negative_, &QCheckBox::clicked, this, &AtmScreen::AllowNegative);
  form->addRow(negative_);
  if (!game_.settings.AtmEnabled) {
    auto* note = new QLabel(tr("The ATM is switched off in the configuration."), body);
    note->setObjectName("lblNote");
    form->addRow(note);
  }
  layout()->addWidget(body);
}

void AtmScreen::AddAmount(QFormLayout& form) {
  amount_ = new MoneyEdit(this);
  amount_->setObjectName("txtAddSub");
  amount_->SetValue(game_.settings.AtmUnit);
  amount_->setEnabled(game_.settings.AtmEnabled);
  if (amount_->isEnabled()) amount_->selectAll();
  form.addRow(tr("A&mount:"), amount_);
}

void AtmScreen::AddButtons() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(16, 12, 16, 16);
  row->setSpacing(8);
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
  struct Key {
    const char* name;
    QString caption;
    bool deposit;
  };
  for (const Key& key :
       {Key{"cmdWithdraw", tr("&Withdraw"), false}, Key{"cmdDeposit", tr("&Deposit"), true}}) {
    auto* button = new QPushButton(key.caption, this);
    button->setObjectName(key.name);
    button->setEnabled(game_.settings.AtmEnabled);
    button->setDefault(!key.deposit && game_.settings.AtmEnabled);
    const bool deposit = key.deposit;
    connect(button, &QPushButton::clicked, this, [this, deposit] { Transact(deposit); });
    row->addWidget(button);
  }
  auto* close = new QPushButton(tr("&Close"), this);
  close->setObjectName("cmdClose");
  close->setDefault(!game_.settings.AtmEnabled);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  row->addSpacing(16);
  row->addWidget(close);
}

void AtmScreen::Transact(bool deposit) {
  AtmTransaction(game_, seat_, deposit, amount_->Value(), true);
  Refresh();
}

void AtmScreen::AllowNegative(bool allow) {
  std::string error;
  if (!SetSetting(game_, "AllowNegativeBankroll", seat_, allow ? "on" : "off", error))
    ShowMessage<Msg::kAllowNegativeRefused>(game_, With<"problem">(error));
  Refresh();
}

void AtmScreen::Refresh() {
  const TableState& table = game_.table;
  const Currency bankroll = table.BankrollCurrent[seat_];
  const Currency onTable = table.seats[seat_].OnTableAmount;
  const auto show = [](QLabel* figure, Currency value) { figure->setText(DollarText(value)); };
  show(bankroll_, bankroll);
  show(onTable_, onTable);
  show(rail_, bankroll - onTable);
  show(total_, game_.stats.AtmTotal[Slot(kCurrentSession, seat_)]);
  negative_->setChecked(table.seats[seat_].AllowNegativeBankroll);
}

}  // namespace tessaryn
