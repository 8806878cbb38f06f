#include "shell/table/table_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QWindow>
#include <map>
#include <tuple>
#include <vector>

#include "base/bet_catalogue.h"
#include "shell/table/bet_tips.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_widget.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr char kTakeDown[] = "take down";
constexpr char kAnnounced[] = "announcedText";  // properties of the table's widget
constexpr char kAnnouncedRoll[] = "announcedRoll";

QString Said(const char* text) { return QCoreApplication::translate("TableAccessible", text); }

// A part of the table, whichever game is on it.
enum class PartKind { kArea, kSeat, kStack, kRoll };
struct Part {
  PartKind kind = PartKind::kRoll;
  SeatId seat = 0;  // of a seat and a stack
  BetId bet = 0;    // of a stack
  int area = 0;     // its place in the layout
  auto operator<=>(const Part&) const = default;
};

class TableAccessible;

class PartAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  PartAccessible(TableAccessible& table, const Part& part) : table_(table), part_(part) {}

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text what) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface && CanAct() ? static_cast<QAccessibleActionInterface*>(this)
                                                            : nullptr;
  }
  QStringList actionNames() const override;
  QString localizedActionName(const QString& name) const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString& name) const override;

  const Part& part() const { return part_; }

 private:
  const Game& game() const;
  TableWidget& widget() const;
  const TableArea& area() const;
  // The bet that a click there means for the selected player; 0 for none.
  BetId Bet() const;
  bool OfSelected() const;
  bool CanAct() const { return !actionNames().isEmpty(); }
  QString Name() const;
  QString Value() const;

  TableAccessible& table_;
  Part part_;
};

class TableAccessible : public QAccessibleWidget {
 public:
  explicit TableAccessible(TableWidget* table) : QAccessibleWidget(table, QAccessible::Pane), table_(table) {}
  ~TableAccessible() override {
    for (const auto& [part, id] : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  TableWidget& Table() const { return *table_; }
  const Game& TheGame() const { return *table_->scene.game; }

  int childCount() const override {
    return QAccessibleWidget::childCount() + static_cast<int>(Parts().size());
  }
  QAccessibleInterface* child(int index) const override {
    const int widgets = QAccessibleWidget::childCount();
    if (index < widgets) return QAccessibleWidget::child(index);
    const std::vector<Part> parts = Parts();
    const auto at = static_cast<std::size_t>(index - widgets);
    return at < parts.size() ? Of(parts[at]) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const std::vector<Part> parts = Parts();
    for (std::size_t at = 0; at < parts.size(); ++at)
      if (Of(parts[at]) == child) return QAccessibleWidget::childCount() + static_cast<int>(at);
    return QAccessibleWidget::indexOfChild(child);
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint point = table_->mapFromGlobal(QPoint(x, y));
    if (const Part area = AreaAt(point); area.kind == PartKind::kArea) return Of(area);
    if (const SeatId seat = table_->SeatAt(point); seat != 0) return Of({PartKind::kSeat, seat});
    return QAccessibleWidget::childAt(x, y);
  }
  QAccessibleInterface* focusChild() const override {
    const Part part = Focused();
    return part.kind == PartKind::kArea && table_->hasFocus() ? Of(part) : QAccessibleWidget::focusChild();
  }

  // The area with the keyboard's focus; the roll's part for none.
  Part Focused() const {
    const TableScene& scene = table_->scene;
    const std::vector<TableArea>& areas = table_->Layout().Areas;
    for (std::size_t at = 0; at < areas.size(); ++at)
      if (scene.focusBet != 0 && areas[at].Id == scene.focusBet &&
          (areas[at].Side == 0 || areas[at].Side == scene.focusSide))
        return {PartKind::kArea, 0, 0, static_cast<int>(at)};
    return {};
  }
  // Those that are there: an area or a player may leave while a reader holds its part.
  bool Has(const Part& part) const {
    if (part.kind == PartKind::kStack) return TheGame().table.BetAmount(part.seat, part.bet) > kZero;
    return part.kind != PartKind::kArea || part.area < static_cast<int>(table_->Layout().Areas.size());
  }
  QAccessibleInterface* Of(const Part& part) const {
    const auto found = ids_.find(part);
    if (found != ids_.end()) return QAccessible::accessibleInterface(found->second);
    auto* made = new PartAccessible(const_cast<TableAccessible&>(*this), part);
    ids_[part] = QAccessible::registerAccessibleInterface(made);
    return made;
  }

 private:
  std::vector<Part> Parts() const {
    if (table_->scene.game == nullptr) return {};  // it is being made
    std::vector<Part> parts{{PartKind::kRoll}};
    for (std::size_t at = 0; at < table_->Layout().Areas.size(); ++at)
      parts.push_back({PartKind::kArea, 0, 0, static_cast<int>(at)});
    for (SeatId seat = 1; seat <= kSeats; ++seat) parts.push_back({PartKind::kSeat, seat});
    for (SeatId seat = 1; seat <= kSeats; ++seat)
      TheGame().table.seats[seat].SeatBets.ForEach([&](BetId bet) {
        parts.push_back({PartKind::kStack, seat, bet});
      });
    return parts;
  }
  Part AreaAt(QPoint point) const {
    const QPointF table = table_->view.ToTable(point);
    const std::vector<TableArea>& areas = table_->Layout().Areas;
    for (std::size_t at = 0; at < areas.size(); ++at)
      if (areas[at].Outline.contains(table)) return {PartKind::kArea, 0, 0, static_cast<int>(at)};
    return {};
  }

  TableWidget* table_;
  mutable std::map<Part, QAccessible::Id> ids_;
};

// --- A part.

const Game& PartAccessible::game() const { return table_.TheGame(); }
TableWidget& PartAccessible::widget() const { return table_.Table(); }
const TableArea& PartAccessible::area() const {
  return widget().Layout().Areas[static_cast<std::size_t>(part_.area)];
}
bool PartAccessible::isValid() const { return table_.isValid() && table_.Has(part_); }
QWindow* PartAccessible::window() const { return table_.window(); }
QAccessibleInterface* PartAccessible::parent() const { return &table_; }
bool PartAccessible::OfSelected() const { return part_.seat == game().table.SelectedSeat; }

BetId PartAccessible::Bet() const {
  return part_.kind == PartKind::kArea    ? MeantBet(game(), area().Id)
         : part_.kind == PartKind::kStack ? part_.bet
                                          : kNoBet;
}

QString PartAccessible::Name() const {
  const TableState& table = game().table;
  switch (part_.kind) {
    case PartKind::kArea: {
      // Odds that aren't up mean their flat bet, which has an area of its own.
      const QString bet = FromCore(BetName(IsDontComeOdds(area().Id) ? BetId(area().Id) : Bet()));
      if (area().Side == 0) return bet;
      return (area().Side == 1 ? Said(QT_TRANSLATE_NOOP("TableAccessible", "%1, left end"))
                               : Said(QT_TRANSLATE_NOOP("TableAccessible", "%1, right end")))
          .arg(bet);
    }
    case PartKind::kSeat:
      if (!IsOccupied(table, part_.seat))
        return Said(QT_TRANSLATE_NOOP("TableAccessible", "Seat %1, open")).arg(part_.seat);
      return Said(QT_TRANSLATE_NOOP("TableAccessible", "Seat %1, %2"))
          .arg(part_.seat)
          .arg(FromCore(table.seats[part_.seat].SeatName));
    case PartKind::kStack:
      return Said(QT_TRANSLATE_NOOP("TableAccessible", "Checks of %1 on %2"))
          .arg(FromCore(table.seats[part_.seat].SeatName), FromCore(BetName(part_.bet)));
    default:
      return Said(QT_TRANSLATE_NOOP("TableAccessible", "Last roll"));
  }
}

QString PartAccessible::Value() const {
  const TableState& table = game().table;
  if (part_.kind == PartKind::kRoll) return widget().property(kAnnounced).toString();
  if (part_.kind == PartKind::kSeat)
    return IsOccupied(table, part_.seat) ? TableAmountText(game(), table.BankrollCurrent[part_.seat])
                                         : QString();
  const SeatId seat = part_.kind == PartKind::kStack ? part_.seat : table.SelectedSeat;
  return TableAmountText(game(), table.BetAmount(seat, Bet()));
}

QString PartAccessible::text(QAccessible::Text what) const {
  if (!isValid()) return {};
  switch (what) {
    case QAccessible::Name:
      return Name();
    case QAccessible::Value:
      return Value();
    case QAccessible::Description:
      if (part_.kind == PartKind::kSeat) return SeatTip(game(), part_.seat);
      return part_.kind == PartKind::kArea ? widget().LineOf(Bet()) : QString();
    default:
      return {};
  }
}

QRect PartAccessible::rect() const {
  if (!isValid()) return {};
  TableWidget& table = widget();
  QRect place = table.rect();
  const int reach = static_cast<int>(kCheckUnits * table.view.Scale());
  const auto round = [&](QPoint middle) {
    return QRect(middle - QPoint(reach, reach) / 2, QSize(reach, reach));
  };
  if (part_.kind == PartKind::kArea)
    place = table.view.Transform().mapRect(area().Outline.boundingRect()).toRect();
  if (part_.kind == PartKind::kStack) place = round(table.PointOfStack(part_.seat, part_.bet));
  if (part_.kind == PartKind::kSeat) place = round(table.PointOfSeat(part_.seat));
  return QRect(table.mapToGlobal(place.topLeft()), place.size());
}

QAccessible::Role PartAccessible::role() const {
  if (part_.kind == PartKind::kRoll) return QAccessible::AlertMessage;
  // The checks of others are looked at and not touched.
  return part_.kind == PartKind::kStack && !OfSelected() ? QAccessible::StaticText : QAccessible::Button;
}

QAccessible::State PartAccessible::state() const {
  QAccessible::State state;
  state.invalid = !isValid();
  if (!isValid()) return state;
  state.invisible = !widget().isVisible();
  if (part_.kind == PartKind::kArea) {
    state.focusable = true;
    state.focused = widget().hasFocus() && table_.Focused() == part_;
    state.disabled = !IsOccupied(game().table, game().table.SelectedSeat);
  }
  if (part_.kind == PartKind::kSeat) {
    state.selectable = IsOccupied(game().table, part_.seat);
    state.selected = state.selectable && OfSelected();
  }
  return state;
}

// --- What can be done with it.

QStringList PartAccessible::actionNames() const {
  if (!isValid()) return {};
  switch (part_.kind) {
    case PartKind::kArea:
      return {pressAction(), setFocusAction()};
    case PartKind::kSeat:
      return {pressAction()};
    case PartKind::kStack:
      return OfSelected() ? QStringList{pressAction(), kTakeDown} : QStringList();
    default:
      return {};
  }
}

QString PartAccessible::localizedActionName(const QString& name) const {
  if (name == kTakeDown) return Said(QT_TRANSLATE_NOOP("TableAccessible", "Take down"));
  if (name != pressAction()) return QAccessibleActionInterface::localizedActionName(name);
  if (part_.kind != PartKind::kSeat) return Said(QT_TRANSLATE_NOOP("TableAccessible", "Bet"));
  return IsOccupied(game().table, part_.seat) ? Said(QT_TRANSLATE_NOOP("TableAccessible", "Select"))
                                              : Said(QT_TRANSLATE_NOOP("TableAccessible", "Join"));
}

// A box may come of it, and whoever asks must not wait for that: it is done with the next events.
void PartAccessible::doAction(const QString& name) {
  if (!actionNames().contains(name)) return;
  TableWidget* const table = &widget();
  const auto soon = [table](auto act) { QMetaObject::invokeMethod(table, act, Qt::QueuedConnection); };
  const BetId bet = Bet();
  if (name == kTakeDown) return soon([table, bet] { emit table->betMoved(bet, 0); });
  if (name == setFocusAction()) {
    table->setFocus();
    return table->SetFocusBet(area().Id, area().Side);
  }
  const SeatId seat = part_.seat;
  if (part_.kind == PartKind::kSeat) return soon([table, seat] { emit table->seatClicked(seat); });
  soon([table, bet] { emit table->betClicked(bet, false); });
}

QStringList PartAccessible::keyBindingsForAction(const QString& name) const {
  if (name != QAccessibleActionInterface::pressAction()) return {};
  if (part_.kind == PartKind::kSeat) return {QString::number(part_.seat)};
  return part_.kind == PartKind::kArea ? QStringList{QStringLiteral("Return")} : QStringList();
}

// --- For the table.

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* table = qobject_cast<TableWidget*>(object);
  return table != nullptr ? new TableAccessible(table) : nullptr;
}

TableAccessible* AccessibleOf(TableWidget& table) {
  return QAccessible::isActive()
             ? dynamic_cast<TableAccessible*>(QAccessible::queryAccessibleInterface(&table))
             : nullptr;
}

}  // namespace

void MakeTablesAccessible() { QAccessible::installFactory(MakeInterface); }

void TellAreaFocus(TableWidget& table) {
  TableAccessible* const accessible = AccessibleOf(table);
  if (accessible == nullptr || !table.hasFocus()) return;
  QAccessibleInterface* const focused = accessible->focusChild();
  QAccessibleEvent event(focused != nullptr ? focused : accessible, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

void TellTableChanged(TableWidget& table) {
  TableAccessible* const accessible = AccessibleOf(table);
  if (accessible == nullptr) return;
  const Part focused = accessible->Focused();
  if (focused.kind != PartKind::kArea) return;
  QAccessibleInterface* const part = accessible->Of(focused);
  QAccessibleValueChangeEvent event(part, part->text(QAccessible::Value));
  QAccessible::updateAccessibility(&event);
}

QString RollAnnouncement(const Game& game) {
  const TableState& table = game.table;
  const QString roll = Said(QT_TRANSLATE_NOOP("TableAccessible", "Roll %1: %2 (%3-%4)"))
                           .arg(ShownCount(SessionRolls(game.stats)))
                           .arg(table.RollTotal)
                           .arg(table.Die1)
                           .arg(table.Die2);
  const int before = table.PointBeforeRoll;
  QString point;
  if (table.Point == 0 && before != 0)
    point = (table.RollTotal == 7 ? Said(QT_TRANSLATE_NOOP("TableAccessible", "seven-out, the point was %1"))
                                  : Said(QT_TRANSLATE_NOOP("TableAccessible", "the point %1 is made")))
                .arg(before);
  else if (table.Point != 0)
    point = (before == 0 ? Said(QT_TRANSLATE_NOOP("TableAccessible", "the point is %1"))
                         : Said(QT_TRANSLATE_NOOP("TableAccessible", "the point stays %1")))
                .arg(table.Point);
  QStringList players;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const Currency change = table.BankrollCurrent[seat] - table.BankrollBeforeRoll[seat];
    if (!IsOccupied(table, seat) || change == kZero) continue;
    players += (change > kZero ? Said(QT_TRANSLATE_NOOP("TableAccessible", "%1 won %2"))
                               : Said(QT_TRANSLATE_NOOP("TableAccessible", "%1 lost %2")))
                   .arg(FromCore(table.seats[seat].SeatName), TableAmountText(game, Abs(change)));
  }
  QStringList parts{roll};
  if (!point.isEmpty()) parts += point;
  return QStringList{parts.join(", "), players.join(", ")}.join(". ").trimmed();
}

void AnnounceRoll(TableWidget& table, const Game& game) {
  const auto throws = static_cast<qlonglong>(Throws(game.stats));
  const QVariant told = table.property(kAnnouncedRoll);
  if (game.table.TurboRollActive || told == QVariant(throws)) return;
  table.setProperty(kAnnouncedRoll, throws);
  // What was rolled before anybody looked is no news.
  if (!told.isValid() || game.table.RollTotal == 0) return;
  table.setProperty(kAnnounced, RollAnnouncement(game));
  TableAccessible* const accessible = AccessibleOf(table);
  if (accessible == nullptr) return;
  QAccessibleInterface* const part = accessible->Of({});
  QAccessibleValueChangeEvent changed(part, part->text(QAccessible::Value));
  QAccessible::updateAccessibility(&changed);
  QAccessibleEvent alert(part, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace tessaryn
