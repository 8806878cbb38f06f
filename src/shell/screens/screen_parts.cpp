#include "shell/screens/screen_parts.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/table/screen_tools.h"

namespace tessaryn {

namespace {

constexpr int kTimes = 2;
constexpr int kDollars = 0;
constexpr int kPercent = 1;
constexpr int kFirstCheckUnit = 2;
constexpr int kLastCheckUnit = 6;
constexpr int kUnitLetters = 6;
constexpr int kLineLetters = 40;
constexpr double kTitleSize = 1.7;  // of the dialog's font

}  // namespace

QString DollarText(Currency value) {
  return (value < kZero ? QStringLiteral("-$") : QStringLiteral("$")) + MoneyText(Abs(value));
}

HeaderBand::HeaderBand(const QColor& colour, const QPixmap& picture, QWidget* parent) : QFrame(parent) {
  QPalette colours = palette();
  colours.setColor(QPalette::Window, colour);
  colours.setColor(QPalette::WindowText, Qt::white);
  setPalette(colours);
  setAutoFillBackground(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(16, 12, 16, 12);
  row->setSpacing(16);
  texts_ = new QWidget(this);
  auto* column = new QVBoxLayout(texts_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  row->addWidget(texts_, 1);
  if (picture.isNull()) return;
  auto* image = new QLabel(this);
  image->setPixmap(picture);
  row->addWidget(image, 0, Qt::AlignVCenter);
}

QLabel* HeaderBand::AddLabel(const QString& text, double size, bool bold) {
  auto* label = new QLabel(text, texts_);
  label->setTextFormat(Qt::PlainText);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * size);
  font.setBold(bold);
  label->setFont(font);
  texts_->layout()->addWidget(label);
  return label;
}

QLabel* HeaderBand::AddTitle(const QString& text) {
  QLabel* label = AddLabel(text, kTitleSize, true);
  label->setObjectName("lblTitle");
  return label;
}

QLabel* HeaderBand::AddLine(const QString& objectName, const QString& text) {
  QLabel* label = AddLabel(text, 1.0, false);
  label->setObjectName(objectName);
  // Names may be longer than a dialog is wide.
  const QFontMetrics metrics = label->fontMetrics();
  label->setText(metrics.elidedText(text, Qt::ElideRight, kLineLetters * metrics.averageCharWidth()));
  if (label->text() != text) label->setToolTip(text);
  label->setAccessibleName(text);
  return label;
}

AdjustEdit::AdjustEdit(int slot, const Settings& settings, const QString& what, QWidget* parent)
    : QWidget(parent) {
  std::copy(std::begin(settings.CheckValue), std::end(settings.CheckValue), checks_);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  if (slot == kSlotWinSame || slot == kSlotLoseSame) AddOperator(slot, what);
  AddAmount(slot, what);
  AddUnits(slot, what);
  SetValue({});
}

void AdjustEdit::AddOperator(int slot, const QString& what) {
  operator_ = new QComboBox(this);
  operator_->setObjectName(QString("cmdMathOperator%1").arg(slot));
  operator_->setAccessibleName(tr("%1: operator").arg(what));
  struct Sign {
    const char* sign;
    QString word;
  };
  for (const Sign& sign : {Sign{"+", tr("plus")}, Sign{"\u2212", tr("minus")}, Sign{"\u00d7", tr("times")},
                           Sign{"\u00f7", tr("divided by")}}) {
    operator_->addItem(QString::fromUtf8(sign.sign));
    operator_->setItemData(operator_->count() - 1, sign.word, Qt::AccessibleTextRole);
    operator_->setItemData(operator_->count() - 1, sign.word, Qt::ToolTipRole);
  }
  operator_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(operator_, &QComboBox::activated, this, [this](int kind) {
    value_.kind = kind;
    ListUnits();
    emit Edited();
  });
  layout()->addWidget(operator_);
}

void AdjustEdit::AddAmount(int slot, const QString& what) {
  amount_ = new MoneyEdit(this);
  amount_->setObjectName(QString("txtModifyAmount%1").arg(slot));
  amount_->setAccessibleName(tr("%1: amount").arg(what));
  const int digits = amount_->fontMetrics().horizontalAdvance("9999999.9999");
  amount_->setFixedWidth(digits + 2 * amount_->fontMetrics().averageCharWidth());
  connect(amount_, &QLineEdit::textEdited, this, &AdjustEdit::AmountTyped);
  // What was left in the box is shown as it is kept.
  connect(amount_, &QLineEdit::editingFinished, this, [this] { amount_->SetValue(value_.value); });
  layout()->addWidget(amount_);
}

void AdjustEdit::AddUnits(int slot, const QString& what) {
  units_ = new QComboBox(this);
  units_->setObjectName(QString("cmdUnits%1").arg(slot));
  units_->setAccessibleName(tr("%1: unit").arg(what));
  // The largest checks would make it too wide for a small screen; the list that it opens shows them whole.
  units_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  units_->setMinimumContentsLength(kUnitLetters);
  units_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(units_, &QComboBox::activated, this, [this] {
    value_.unit = units_->currentData().toInt();
    emit Edited();
  });
  layout()->addWidget(units_);
}

void AdjustEdit::SetValue(const Adjustment& value) {
  value_ = value;
  if (operator_ != nullptr) operator_->setCurrentIndex(value.kind);
  amount_->SetValue(value.value);
  ListUnits();
}

// A factor is a number or a percentage, an amount to bet isn't a percentage. The unit that is kept outlives
// a time in which it isn't offered.
void AdjustEdit::ListUnits() {
  const bool factor = operator_ != nullptr && value_.kind >= kTimes;
  units_->clear();
  units_->addItem(factor ? tr("(number)") : tr("dollars"), kDollars);
  if (operator_ != nullptr) units_->addItem(tr("percent"), kPercent);
  if (!factor)
    for (int unit = kFirstCheckUnit; unit <= kLastCheckUnit; ++unit)
      units_->addItem(tr("%1 units").arg(DollarText(checks_[unit - 1])), unit);
  units_->setCurrentIndex(std::max(0, units_->findData(value_.unit)));
  units_->view()->setMinimumWidth(units_->view()->sizeHintForColumn(0));
}

void AdjustEdit::AmountTyped() {
  const Currency typed = amount_->Value();
  value_.value = typed.IsError() ? kZero : std::clamp(typed, kZero, kMostAdjustment);
  if (typed > kMostAdjustment) amount_->SetValue(value_.value);
  emit Edited();
}

}  // namespace tessaryn
