#include "shell/table/bet_buttons.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace tessaryn {

namespace {
constexpr int kGap = 6;
}

BetButtons::BetButtons(QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
}

void BetButtons::Add(QAction* action, const char* name, const char* caption, const char* key) {
  if (action == nullptr) return;
  auto* button = new QPushButton(this);
  button->setObjectName(name);
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QPushButton::clicked, action, &QAction::trigger);
  const auto follow = [button, action] { button->setEnabled(action->isEnabled()); };
  connect(action, &QAction::changed, button, follow);
  follow();
  layout()->addWidget(button);
  entries_.push_back({button, caption, key});
  Retranslate();
}

void BetButtons::Retranslate() {
  for (const Entry& entry : entries_) {
    const QString caption = QCoreApplication::translate("BetButtons", entry.caption);
    entry.button->setText(measures_.compact ? caption : caption + QStringLiteral("  ") + entry.key);
    entry.button->setToolTip(QStringLiteral("%1 (%2)").arg(caption, QString(entry.key)));
    entry.button->setFixedSize(entry.button->fontMetrics().horizontalAdvance(entry.button->text()) + 20,
                               measures_.compact ? 28 : 34);
  }
}

void BetButtons::SetMeasures(const Measures& measures) {
  measures_ = measures;
  Retranslate();
}

int BetButtons::WantedWidth() const {
  int width = 0;
  for (const Entry& entry : entries_) width += entry.button->width() + kGap;
  return width;
}

void BetButtons::FitInto(int width) {
  for (const Entry& entry : entries_) {
    width -= entry.button->width() + kGap;
    entry.button->setVisible(width >= 0);
  }
}

void BetButtons::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange) Retranslate();
  QWidget::changeEvent(event);
}

}  // namespace tessaryn
