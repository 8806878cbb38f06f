// What a roll won and lost, beside the bets on the felt for a moment: "+10", "-5".
#pragma once

#include <QPointF>
#include <QWidget>
#include <vector>

#include "shell/table/roll_story.h"

class QTimer;

namespace tessaryn {

struct TableLayout;
struct TableState;
struct TableView;

// Covers its parent, and lets every click through.
class Badges : public QWidget {
 public:
  explicit Badges(QWidget* table);
  void Show(const std::vector<BetChange>& changes, const TableState& table, const TableLayout& layout,
            const TableView& view);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Badge {
    QRectF box;
    QString text;
    int sign = 0;
  };
  std::vector<Badge> badges_;
  QTimer* end_;
};

}  // namespace tessaryn
