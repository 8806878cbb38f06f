#include "shell/screens/workshop_steps.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr int kKeptSteps = 1000;
constexpr int kSeatRole = Qt::UserRole;
constexpr int kLineRole = Qt::UserRole + 1;

QPushButton* AddButton(QHBoxLayout& row, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  row.addWidget(button);
  return button;
}

}  // namespace

WorkshopSteps::WorkshopSteps(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
  setObjectName("frmSteps");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  auto* row = new QHBoxLayout;
  row->addWidget(step_ = new QCheckBox(tr("&Wait after each statement")));
  step_->setObjectName("chkStepMode");
  row->addStretch();
  next_ = AddButton(*row, "cmdNextAutoBet", tr("&Next"));
  goOn_ = AddButton(*row, "cmdGoOn", tr("&Go on"));
  stop_ = AddButton(*row, "cmdStopAutobetting", tr("S&top"));
  column->addLayout(row);
  line_ = new QLabel(this);
  line_->setObjectName("lblStepLine");
  QFont bold = font();
  bold.setBold(true);
  line_->setFont(bold);
  line_->setTextFormat(Qt::PlainText);
  status_ = new QLabel(this);
  status_->setObjectName("lblStatus");
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  for (QLabel* label : {line_, status_}) {
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    column->addWidget(label);
  }
  list_ = new QListWidget(this);
  list_->setObjectName("lstSteps");
  list_->setAccessibleName(tr("Statements carried out"));
  list_->setUniformItemSizes(true);
  column->addWidget(list_, 1);
  connect(next_, &QPushButton::clicked, this, &WorkshopSteps::Next);
  connect(goOn_, &QPushButton::clicked, this, &WorkshopSteps::GoOn);
  connect(stop_, &QPushButton::clicked, this, &WorkshopSteps::Stop);
  connect(step_, &QCheckBox::clicked, this, [this](bool on) {
    game_.autobet.StepMode = on;
    if (on) game_.autobet.StepsShown = true;
    emit changed();
  });
  connect(list_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    if (item != nullptr && list_->hasFocus())
      emit lineChosen(item->data(kSeatRole).toInt(), item->data(kLineRole).toInt());
  });
  Refresh();
}

QString WorkshopSteps::Title() const {
  const std::string name = seat_ > 0 ? game_.table.seats[seat_].SeatName : std::string();
  return name.empty() ? tr("Auto-Bet Steps") : tr("Auto-Bet Steps (%1)").arg(FromCore(name));
}

void WorkshopSteps::ShowStep(const ScriptStep& step, const std::string& source, const std::string& values) {
  seat_ = step.seat;
  const QString line = tr("Line %1: %2").arg(step.line).arg(QString::fromStdString(source).trimmed());
  line_->setText(line);
  QString text = FromCore(step.text);
  if (!values.empty()) text += "\n" + tr("Values: %1").arg(FromCore(values));
  status_->setText(text);
  auto* item = new QListWidgetItem(line + QString::fromUtf8("  \u2013  ") + text.replace('\n', ' '));
  item->setData(kSeatRole, step.seat.value);
  item->setData(kLineRole, step.line);
  list_->addItem(item);
  while (list_->count() > kKeptSteps) delete list_->takeItem(0);
  list_->scrollToBottom();
  Refresh();
}

void WorkshopSteps::Refresh() {
  const AutoBet& autobet = game_.autobet;
  step_->setChecked(autobet.StepMode);
  const bool waits = autobet.ScriptRunning && autobet.StepMode;
  next_->setEnabled(waits);
  goOn_->setEnabled(waits);
  stop_->setEnabled(autobet.ScriptRunning);
}

void WorkshopSteps::Next() { game_.autobet.StepWaiting = false; }

// To the next break-point, or the end.
void WorkshopSteps::GoOn() {
  game_.autobet.StepMode = false;
  game_.autobet.StepWaiting = false;
  emit changed();
}

void WorkshopSteps::Stop() {
  game_.autobet.ScriptRunning = false;
  game_.autobet.StepWaiting = false;
  emit changed();
}

}  // namespace tessaryn
