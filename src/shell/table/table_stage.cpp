#include "shell/table/table_stage.h"

#include <utility>

#include "shell/table/badges.h"
#include "shell/table/board.h"
#include "shell/table/table_widget.h"
#include "state/game.h"

namespace tessaryn {

TableStage::TableStage(Game& game, TableCommands& commands, const RollHistory& history, QWidget* parent)
    : QWidget(parent),
      game_(game),
      board_(new Board(game, history, this)),
      table_(new TableWidget(game, commands, this)),
      badges_(new Badges(table_)) {
  setObjectName("picStage");
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    plates_[seat] = new Plate(seat, this);
    connect(plates_[seat], &Plate::chosen, this, &TableStage::seatChosen);
    connect(plates_[seat], &Plate::menuWanted, this, &TableStage::plateMenuWanted);
  }
  connect(table_, &TableWidget::viewChanged, this, &TableStage::PlaceThePlates);
  setFocusProxy(table_);
  setMinimumSize(320, 240);
}

void TableStage::SetMeasures(const Measures& measures) {
  measures_ = measures;
  Place();
}

void TableStage::resizeEvent(QResizeEvent*) { Place(); }

void TableStage::Place() {
  const QSize plate = PlateSize(size(), measures_);
  board_->setGeometry(0, 0, width(), measures_.board);
  board_->SetMeasures(measures_, plate);
  table_->SetPlateRoom(RoomAbove(measures_, size()), RoomBelow(measures_, size()));
  table_->setGeometry(0, measures_.board, width(), std::max(1, height() - measures_.board));
  PlaceThePlates();
}

void TableStage::PlaceThePlates() {
  constexpr double kSpots[kSeatRows] = {0, 0, 0, 160, 425, 823, 1088, 0, 0};
  const bool fitted = table_->IsFitted() && table_->view.TableAngle == 0;
  const PlatePlaces places = PlacePlates(size(), table_->geometry(), table_->view, measures_, fitted);
  const bool small = PlateSize(size(), measures_) != measures_.plate;
  const double letters = small ? MeasuresOf(kSmallestWindow).plateText : measures_.plateText;
  ShiftOpenMarks(places, fitted);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const QRect& place = places[seat];
    int tip = -1;
    if (fitted && kSpots[seat] > 0)
      tip = std::clamp(static_cast<int>(table_->view.ToScreen({kSpots[seat], 0}).x()) - place.left(), 12,
                       place.width() - 12);
    plates_[seat]->setGeometry(tip < 0 ? place : place.adjusted(0, -kPlateTip, 0, 0));
    plates_[seat]->SetLook(letters, tip);
    plates_[seat]->raise();
  }
}

// Those beside the corners, whoever sits there: nothing moves as players come and go.
void TableStage::ShiftOpenMarks(const PlatePlaces& places, bool fitted) {
  constexpr std::pair<int, int> kCorners[] = {{2, 3}, {7, 6}};  // the plate, and the seat beside it
  const double room = OpenMarkRadius(table_->view.Scale()) + 3;
  for (const auto& [corner, seat] : kCorners) {
    const QRectF plate = QRectF(places[corner]).translated(-table_->pos());
    const QPointF mark = table_->view.ToScreen(table_->Layout().Seats[seat].Rail);
    const bool covered = fitted && plate.adjusted(-room, -room, room, room).contains(mark);
    const double free = corner == 2 ? plate.right() + room : plate.left() - room;
    table_->scene.openShift[seat] = covered ? free - mark.x() : 0;
  }
}

QRect TableStage::FeltRoom() const {
  return table_->geometry().adjusted(0, RoomAbove(measures_, size()), 0, -RoomBelow(measures_, size()));
}

void TableStage::Refresh(bool settled) {
  board_->Refresh(settled);
  for (SeatId seat = 1; seat <= kSeats; ++seat) plates_[seat]->Show(PlateTextOf(game_, seat));
}

void TableStage::ShowBadges() {
  if (!table_->animate) return;
  const std::vector<BetChange> changes = BetChanges(game_);
  table_->ShowChecksMove(changes);
  badges_->Show(changes, game_.table, table_->Layout(), table_->view);
}

}  // namespace tessaryn
