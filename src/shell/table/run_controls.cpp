#include "shell/table/run_controls.h"

#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>

#include "play/auto_roll.h"
#include "shell/table/number_habit.h"
#include "state/game.h"

namespace tessaryn {

QString RunCaption(const Game& game) {
  const bool paced = game.table.AutoRollActive ? !game.table.TurboRollActive
                                               : game.settings.RollThrottle == kThrottleAutoRoll;
  const char* caption = game.table.AutoRollActive
                            ? (paced ? QT_TRANSLATE_NOOP("RunControls", "Stop &Auto-Roll")
                                     : QT_TRANSLATE_NOOP("RunControls", "Stop &Turbo-Roll"))
                            : (paced ? QT_TRANSLATE_NOOP("RunControls", "Start &Auto-Roll")
                                     : QT_TRANSLATE_NOOP("RunControls", "Start &Turbo-Roll"));
  return QCoreApplication::translate("RunControls", caption);
}

QString ThrottleText(int position) {
  if (position == kThrottleAutoRoll) return QCoreApplication::translate("RunControls", "Auto-Roll");
  if (position == 0) return QCoreApplication::translate("RunControls", "Full speed");
  // A roll's pause doubles with each position.
  return QCoreApplication::translate("RunControls", "%1 s a roll")
      .arg(ShownNumber(0.01 * (1 << position), 2));
}

namespace {

// As narrow as its longest caption allows, and of one width whatever it says. A click leaves the keyboard
// with the table.
void Trim(QPushButton& button, const QStringList& captions) {
  int widest = 0;
  for (const QString& caption : captions)
    widest = std::max(widest, button.fontMetrics().size(Qt::TextShowMnemonic, caption).width());
  button.setFixedWidth(widest + button.fontMetrics().height());
  button.setFocusPolicy(Qt::TabFocus);
}

}  // namespace

RunControls::RunControls(QWidget* parent)
    : QWidget(parent),
      roll_(new QPushButton(tr("R&oll") + QStringLiteral("  F2"), this)),
      pass_(new QPushButton(tr("Pass dice"), this)),
      run_(new QPushButton(this)),
      throttle_(new QSlider(Qt::Horizontal, this)),
      speed_(new QLabel(this)) {
  roll_->setObjectName("cmdRoll");
  roll_->setToolTip(tr("Roll the dice (F2, or right click on the table)"));
  pass_->setObjectName("cmdPass");
  pass_->setToolTip(tr("Pass the dice (P)"));
  run_->setObjectName("cmdTurboRoll");
  throttle_->setObjectName("hsbThrottle");
  throttle_->setRange(0, kThrottleAutoRoll);
  throttle_->setPageStep(1);
  throttle_->setFixedWidth(80);
  throttle_->setAccessibleName(tr("Speed of a run"));
  throttle_->setToolTip(tr("How fast a run goes: full speed on the left, Auto-Roll on the right"));
  speed_->setObjectName("lblThrottle");
  Fit();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(5);
  for (QWidget* part :
       {static_cast<QWidget*>(throttle_), static_cast<QWidget*>(speed_), static_cast<QWidget*>(run_),
        static_cast<QWidget*>(pass_), static_cast<QWidget*>(roll_)})
    row->addWidget(part);
  roll_->setFocusPolicy(Qt::TabFocus);
  SetMeasures({});
  roll_->setPalette(PrimaryButton());
  connect(roll_, &QPushButton::clicked, this, &RunControls::rollPressed);
  connect(pass_, &QPushButton::clicked, this, &RunControls::passPressed);
  connect(run_, &QPushButton::clicked, this, &RunControls::turboPressed);
  connect(throttle_, &QSlider::valueChanged, this, &RunControls::throttleMoved);
}

// By the longest that each may say.
void RunControls::Fit() {
  int widest = 0;
  for (const int position : {0, kThrottleAutoRoll - 1, kThrottleAutoRoll})
    widest = std::max(widest, speed_->fontMetrics().horizontalAdvance(ThrottleText(position)));
  speed_->setFixedWidth(widest + 2);
  Trim(*pass_, {pass_->text()});
  Trim(*run_, {QCoreApplication::translate("RunControls", "Start &Turbo-Roll"),
               QCoreApplication::translate("RunControls", "Stop &Turbo-Roll"),
               QCoreApplication::translate("RunControls", "Start &Auto-Roll"),
               QCoreApplication::translate("RunControls", "Stop &Auto-Roll")});
}

void RunControls::SetMeasures(const Measures& measures) {
  roll_->setFixedSize(measures.roll);
  roll_->setFont(Sized(font(), measures.compact ? 13 : 16, true));
  const int height = measures.compact ? 28 : 34;
  pass_->setFixedHeight(height);
  run_->setFixedHeight(height);
  throttle_->setFixedWidth(measures.compact ? 84 : 112);
  layout()->setSpacing(measures.compact ? 4 : 8);
}

void RunControls::ShowPass(bool shown) { pass_->setVisible(shown); }

void RunControls::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) roll_->setPalette(PrimaryButton());
  if (event->type() == QEvent::LanguageChange) Fit();
  QWidget::changeEvent(event);
}

void RunControls::Refresh(const Game& game) {
  const TableState& table = game.table;
  const bool free = !table.RollInProgress || table.AutoRollActive;
  roll_->setEnabled(free);
  pass_->setEnabled(free && table.OccupiedSeats > 0);
  run_->setEnabled(table.AutoRollActive || !table.RollInProgress);
  run_->setText(RunCaption(game));
  const QSignalBlocker quiet(throttle_);
  throttle_->setValue(game.settings.RollThrottle);
  speed_->setText(ThrottleText(game.settings.RollThrottle));
}

}  // namespace tessaryn
