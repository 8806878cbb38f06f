#include "shell/table/badges.h"

#include <QPainter>
#include <QTimer>

#include "shell/table/appearance.h"
#include "shell/table/table_layout.h"
#include "shell/table/table_view.h"

namespace tessaryn {

namespace {
constexpr int kMilliseconds = 1600;
constexpr double kLetters = 11.5;
constexpr double kSign = 6;  // of the triangle
}  // namespace

Badges::Badges(QWidget* table) : QWidget(table), end_(new QTimer(this)) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  end_->setSingleShot(true);
  connect(end_, &QTimer::timeout, this, &QWidget::hide);
  hide();
}

// Each above its stack; one that would lie on another, or leave the table, goes upwards or isn't shown.
void Badges::Show(const std::vector<BetChange>& changes, const TableState& table, const TableLayout& layout,
                  const TableView& view) {
  badges_.clear();
  setGeometry(parentWidget()->rect());
  const QFontMetricsF metrics(Sized(font(), kLetters, true));
  const double above = kCheckUnits * view.Scale() * 0.9 + metrics.height() / 2;
  for (const BetChange& change : changes) {
    if (change.change == kZero) continue;
    Badge badge;
    badge.text = ChangeText(change.change);
    badge.sign = change.change > kZero ? 1 : -1;
    const QPointF at = view.ToScreen(StackPlace(layout, table, change.seat, change.bet));
    badge.box = QRectF(0, 0, metrics.horizontalAdvance(badge.text) + kSign + 16, metrics.height() + 2);
    badge.box.moveCenter(at - QPointF(0, above));
    const auto taken = [&] {
      for (const Badge& other : badges_)
        if (other.box.intersects(badge.box)) return true;
      return false;
    };
    for (int tries = 0; tries < 4 && taken(); ++tries) badge.box.translate(0, -badge.box.height() - 1);
    if (!taken() && QRectF(rect()).contains(badge.box)) badges_.push_back(badge);
  }
  setVisible(!badges_.empty());
  if (!badges_.empty()) end_->start(kMilliseconds);
  update();
}

void Badges::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(Sized(font(), kLetters, true));
  for (const Badge& badge : badges_) {
    const QColor tone = badge.sign > 0 ? kWonTone : kLostTone;
    painter.setPen(QPen(tone, 1.2));
    painter.setBrush(kPlateTone);
    painter.drawRoundedRect(badge.box.adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
    const double x = badge.box.left() + 7;
    const double y = badge.box.center().y();
    const double tip = badge.sign > 0 ? -kSign / 2 : kSign / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(tone);
    painter.drawPolygon(
        QPolygonF({QPointF(x, y - tip), QPointF(x + kSign, y - tip), QPointF(x + kSign / 2, y + tip)}));
    painter.setPen(tone);
    painter.drawText(badge.box.adjusted(kSign + 9, 0, -4, 0), Qt::AlignCenter, badge.text);
  }
}

}  // namespace tessaryn
