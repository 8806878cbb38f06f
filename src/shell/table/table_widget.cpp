#include "shell/table/table_widget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>
#include <cmath>
#include <tuple>

#include "base/bet_catalogue.h"
#include "shell/table/contrast.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "shell/table/stack_arrangement.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr int kFlashMilliseconds = 160;
constexpr int kFlashes = 6;
constexpr int kThrowMilliseconds = 500;
constexpr int kRainMilliseconds = 3000;
constexpr std::int64_t kStillBelow = Currency::kPerDollar * 6 / 10;  // of a run's seconds a roll
// A stack in hand shows beside the hand that is the pointer then, not below it.
constexpr QPoint kHeldAbove(10, 12);
constexpr int kFrameMilliseconds = 15;
constexpr double kSeatReach = 52;  // along the rail, in table units

// A number from the roll's own count, so that dice lie elsewhere each time and a repaint moves nothing.
double Scatter(RollNumber roll, int which) {
  std::uint64_t x = static_cast<std::uint64_t>(roll) * 0x9E3779B97F4A7C15ull + which * 0xD1B54A32D192ED03ull;
  x ^= x >> 29;
  x *= 0xBF58476D1CE4E5B9ull;
  x ^= x >> 32;
  return static_cast<double>(x >> 11) / 9007199254740992.0;
}

// Where a roll's dice come to lie: the end away from the shooter.
DicePose RestingDice(const Game& game, RollNumber roll) {
  const bool shooterLeft = game.table.ShooterSeat <= 4;
  DicePose pose;
  // On the Come bar beside its lettering, where no stack stands; the dice don't cover each other.
  const double x = (shooterLeft ? 1004 : 226) + 16 * Scatter(roll, 1);
  const double y = 320 + 12 * Scatter(roll, 2);
  const double direction = 0.7 * Scatter(roll, 3) - 0.35 + (Scatter(roll, 7) < 0.5 ? 0 : 3.1416);
  const double apart = 22 + 3 * Scatter(roll, 4);
  pose.Die1 = QPointF(x - apart * std::cos(direction), y - apart * std::sin(direction));
  pose.Die2 = QPointF(x + apart * std::cos(direction), y + apart * std::sin(direction));
  pose.Turn1 = 360 * Scatter(roll, 5);
  pose.Turn2 = 360 * Scatter(roll, 6);
  pose.Face1 = game.table.Die1;
  pose.Face2 = game.table.Die2;
  return pose;
}

// The dice on their way, at a share 0 to 1 of it.
DicePose FlyingDice(const DicePose& rest, QPointF from, double share) {
  const double eased = 1 - (1 - share) * (1 - share);
  DicePose pose = rest;
  pose.Die1 = from + (rest.Die1 - from) * eased;
  pose.Die2 = from + (rest.Die2 - from) * eased;
  pose.Turn1 = rest.Turn1 - 900 * (1 - eased);
  pose.Turn2 = rest.Turn2 + 760 * (1 - eased);
  pose.Height = 0.9 * std::fabs(std::cos(share * 7.85)) * (1 - share);
  if (share < 0.85) {
    const int tumble = static_cast<int>(share * 14);
    pose.Face1 = (rest.Face1 + tumble * 2) % 6 + 1;
    pose.Face2 = (rest.Face2 + tumble * 5 + 2) % 6 + 1;
  }
  return pose;
}

}  // namespace

TableWidget::TableWidget(Game& game, TableCommands& commands, QWidget* parent)
    : QWidget(parent),
      game_(game),
      commands_(commands),
      flashTimer_(new QTimer(this)),
      entry_(new MoneyEdit(this)) {
  setObjectName("picLayout");
  setAccessibleName(tr("Craps table"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(320, 200);
  scene.game = &game_;
  scene.piles = &piles_;
  entry_->setObjectName("txtBetAmount");
  entry_->setAccessibleName(tr("Bet amount"));
  entry_->hide();
  entry_->installEventFilter(this);
  connect(flashTimer_, &QTimer::timeout, this, [this] {
    scene.hideBets = --flashes_ % 2 != 0;
    if (flashes_ <= 0) {
      scene.hideBets = false;
      flashTimer_->stop();
    }
    update();
  });
  RebuildLayout();
  PlaceDice();
}

// --- The layout and its caches.

void TableWidget::TakeLooks() {
  const Looks& looks = game_.screen.looks;
  colors = ColorsOf(looks);
  if (IsHighContrast(palette())) MakeHighContrast(colors);
  SetCheckColors(looks.Checks);
  SetLetteringFont(FromCore(looks.LetteringFont));
  checks_.Forget();
}

void TableWidget::RebuildLayout() {
  TakeLooks();
  layout_ = BuildTableLayout(game_.settings, game_.payoffs);
  drawing_ = {BuildTableLayout(game_.settings, game_.payoffs),
              BuildTableLayout(game_.settings, game_.payoffs)};
  tableStale_ = mapStale_ = true;
  Refresh();
}

void TableWidget::SetPlateRoom(int above, int below) {
  if (view.MarginTop == above && view.MarginBottom == below) return;
  view.MarginTop = above;
  view.MarginBottom = below;
  if (fitted_) ShowWhole();
  update();
}

void TableWidget::ShowWhole() {
  FitTable(view);
  TellView(true);
}

void TableWidget::ViewChanged() { TellView(false); }

void TableWidget::TellView(bool fitted) {
  fitted_ = fitted;
  tableStale_ = mapStale_ = true;
  TellSoon();
  update();
  emit viewChanged();
}

// What of the widget shows the table: beside it the plates stand, off the felt.
QRect TableWidget::OpenRoom() const {
  if (fitted_ && view.TableAngle == 0) return rect();
  return rect().adjusted(0, view.MarginTop, 0, -view.MarginBottom);
}

void TableWidget::Refresh() {
  const TableState& table = game_.table;
  Shown now;
  now.selected = table.SelectedSeat;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    now.seats[seat] = IsOccupied(table, seat);
    if (!now.seats[seat]) continue;
    std::copy_n(table.seats[seat].VisibleStacks, 4, now.stacks[seat].begin());
    PlaceVisibleStacks(layout_, seat, table.seats[seat].VisibleStacks);
  }
  if (!(now == shown_)) mapStale_ = true;
  shown_ = now;
  // Behind a run, or in another game, it lies there at once.
  const int before = std::exchange(shownPoint_, table.Point);
  const std::int64_t throws = Throws(game_.stats);
  const std::int64_t rolled = throws - std::exchange(shownThrows_, throws);
  if (before != table.Point && (rolled == 0 || rolled == 1) && MayMove()) motion_.MovePuck(before);
  BetInHand& hand = commands_.Moving;
  if (hand.Seat != table.SelectedSeat || table.BetAmount(hand.Seat, hand.Bet) == kZero) hand = {};
  ShowHeld();
  scene.rain.clear();
  RefreshPointer();
  update();
}

void TableWidget::PrepareTable() {
  const double ratio = devicePixelRatioF();
  const QSize pixels = (QSizeF(size()) * ratio).toSize();
  if (!tableStale_ && table_.size() == pixels) return;
  if (table_.size() != pixels) table_ = QImage(pixels, QImage::Format_RGB32);
  table_.setDevicePixelRatio(ratio);
  FitLettering(layout_, view.Scale());
  DrawTable(table_, drawing_, view, colors);
  tableStale_ = false;
}

void TableWidget::PrepareMap() {
  if (!mapStale_ && map_.size() == size()) return;
  if (map_.size() != size()) map_ = QImage(size(), QImage::Format_RGB32);
  DrawTableHotspots(map_, layout_, view, game_);
  mapStale_ = false;
}

void TableWidget::paintEvent(QPaintEvent*) {
  PrepareTable();
  QPainter painter(this);
  painter.drawImage(0, 0, table_);
  DrawChecksAndDice(painter, scene, layout_, view, colors, checks_);
  for (const QRect& part : QRegion(rect()) - OpenRoom()) painter.fillRect(part, colors.Room);
}

void TableWidget::resizeEvent(QResizeEvent*) {
  if (fitted_) {
    view.Window = size();
    ShowWhole();
  } else {
    ResizeView(view, size());
    ViewChanged();
  }
}

void TableWidget::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    RebuildLayout();  // the headings of the felt too
    TellSoon();
  }
  if (event->type() == QEvent::PaletteChange) RebuildLayout();
  QWidget::changeEvent(event);
}

// --- Where things are.

Hit TableWidget::HitAt(QPoint point) {
  if (!OpenRoom().contains(point)) return {};
  PrepareMap();
  const Hit hit = HitTest(map_, point, game_);
  // A stack at another seat's rail is that player's: a click there chooses the seat.
  return hit.Seat == game_.table.SelectedSeat ? hit : Hit{};
}

BetId TableWidget::BetAt(QPoint point) { return HitAt(point).Bet; }

int TableWidget::StackAt(QPoint point) const {
  const SeatId seat = game_.table.SelectedSeat;
  const double radius = CheckDiameter(view.Scale()) / 2;
  int found = 0;  // the one in front of the others
  for (const StandingStack& stack : ArrangeStacks(scene, layout_, view))
    if (stack.Seat == seat && game_.table.seats[seat].SeatBets.Has(stack.Bet) &&
        ApartFromStack(point, stack) <= radius)
      found = stack.Bet;
  return found;
}

int TableWidget::DragsFrom(QPoint point) const {
  const bool free = commands_.PendingAction == kPendingNone && commands_.CarriedAmount == kZero &&
                    commands_.Moving.Bet == 0;
  return free ? StackAt(point) : 0;
}

SeatId TableWidget::SeatAt(QPoint point) const {
  if (!OpenRoom().contains(point)) return 0;
  const QPointF table = view.ToTable(point);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const SeatPlace& place = layout_.Seats[seat];
    for (const QPointF& stack : place.Stacks)
      if (std::hypot(table.x() - stack.x(), table.y() - stack.y()) <= kStackReach) return seat;
    const QPointF offset = table - place.Rail;
    const double along = QPointF::dotProduct(offset, place.Along);
    const double out = QPointF::dotProduct(offset, place.Out);
    if (std::fabs(along) <= kSeatReach && out >= -19 && out <= 60) return seat;
  }
  return 0;
}

QPoint TableWidget::PointOfBet(SeatId seat, BetId bet) const {
  return view.ToScreen(QPointF(layout_.CheckX(seat, bet), layout_.CheckY(seat, bet))).toPoint();
}

QPoint TableWidget::PointOfStack(SeatId seat, BetId bet) const {
  return view.ToScreen(StackPlace(layout_, game_.table, seat, bet)).toPoint();
}

QPoint TableWidget::PointOfSeat(SeatId seat) const {
  const SeatPlace& place = layout_.Seats[seat];
  return (view.ToScreen(place.Rail + place.Out * 8) + QPointF(scene.openShift[seat], 0)).toPoint();
}

// --- The pointer.

void TableWidget::mousePressEvent(QMouseEvent* event) {
  if (throwing_) {
    cutShort_ = true;
    return;
  }
  setFocus();
  pointer_ = event->position().toPoint();
  if (event->button() == Qt::MiddleButton) {
    dragging_ = true;
    dragFrom_ = event->position().toPoint();
    setCursor(Qt::ClosedHandCursor);
    return;
  }
  if (EntryOpen() && !CommitEntry()) return;
  if (event->button() == Qt::RightButton)
    emit rightClicked();
  else if (event->button() == Qt::LeftButton)
    LeftPress(event);
}

void TableWidget::LeftPress(QMouseEvent* event) {
  const QPoint point = event->position().toPoint();
  SetFocusBet(0, 0);
  if (commands_.Moving.Bet != 0) return PutDown(point);
  const bool alt = (event->modifiers() & Qt::AltModifier) != 0;
  const int drags = alt ? 0 : DragsFrom(point);
  if (drags != 0) {
    // A click if it is let go here; else it drags the stack.
    pressedStack_ = drags;
    pressedAt_ = point;
    return;
  }
  const int stack = commands_.PendingAction == kPendingMove ? StackAt(point) : 0;
  const BetId bet = stack != 0 ? BetId(stack) : BetAt(point);
  if (bet != 0) {
    emit betClicked(bet, alt);
    return;
  }
  const SeatId seat = SeatAt(point);
  if (seat != 0) emit seatClicked(seat);
}

void TableWidget::LeftRelease(QMouseEvent* event) {
  if (std::exchange(pressedStack_, 0) != 0) {
    const BetId bet = BetAt(pressedAt_);
    if (bet != 0) emit betClicked(bet, false);
  }
  if (std::exchange(dragsStack_, false) && commands_.Moving.Bet != 0) PutDown(event->position().toPoint());
}

// With the left button held on a stack, or with a bet in hand.
void TableWidget::DragStack(QMouseEvent* event) {
  const QPoint point = event->position().toPoint();
  const bool held = (event->buttons() & Qt::LeftButton) != 0;
  if (!held) pressedStack_ = 0;
  // A box took the button's release.
  if (!held && std::exchange(dragsStack_, false)) commands_.Moving = {};
  if (pressedStack_ != 0 && (point - pressedAt_).manhattanLength() >= QApplication::startDragDistance()) {
    dragsStack_ = TakeInHand(game_, commands_, std::exchange(pressedStack_, 0));
    RefreshPointer();
  }
  if (commands_.Moving.Bet == 0) return;
  ShowHeld();
  scene.heldAt = point - kHeldAbove;
  update();
}

// A bet that is taken in hand without the pointer stays at its place.
void TableWidget::ShowHeld() {
  const BetInHand& hand = commands_.Moving;
  if (scene.heldBet != hand.Bet) scene.heldAt = PointOfStack(hand.Seat, hand.Bet);
  scene.heldBet = hand.Bet;
}

void TableWidget::PutDown(QPoint point) {
  const Hit hit = HitAt(point);
  if (IsTableBet(hit.Bet)) return PutDownOn(hit.Area);
  const bool onFelt = rect().contains(point) && FeltOutline().contains(view.ToTable(point));
  PutDownOn(onFelt ? AreaOf(commands_.Moving.Bet) : 0);
}

// Area 0: off the table.
void TableWidget::PutDownOn(int area) {
  const BetInHand hand = std::exchange(commands_.Moving, {});
  const BetId to = area == 0 ? kNoBet : PutDownBet(game_, hand, area);
  if (to != hand.Bet && hand.Seat == game_.table.SelectedSeat) emit betMoved(hand.Bet, to);
  Refresh();
}

void TableWidget::mouseMoveEvent(QMouseEvent* event) {
  const QPoint point = event->position().toPoint();
  pointer_ = point;
  if (dragging_) {
    const QPoint way = point - dragFrom_;
    dragFrom_ = point;
    ShiftTable(view, way.x(), way.y());
    ViewChanged();
    return;
  }
  DragStack(event);
  const BetId pointed = scene.hoverBet;
  const SeatId openSeat = scene.hoverSeat;
  FindPointed();
  if (pointed == scene.hoverBet && openSeat == scene.hoverSeat) return;
  ShowCursor();
  emit pointedAt(scene.hoverBet);
  update();
}

// What is under the pointer now; the table may have changed below it.
void TableWidget::FindPointed(bool anew) {
  const bool inside = rect().contains(pointer_);
  const BetId before = std::exchange(scene.hoverBet, inside ? BetAt(pointer_) : kNoBet);
  if (anew || before != scene.hoverBet) scene.hoverTakes = TakesClick(game_, commands_, scene.hoverBet);
  scene.hoverSeat = inside && scene.hoverBet == 0 ? SeatAt(pointer_) : kNobody;
}

// The line of what is pointed at is told anew once the events at hand are done: of many changes the last.
void TableWidget::TellSoon() {
  if (std::exchange(tellPending_, true)) return;
  QTimer::singleShot(0, this, [this] {
    tellPending_ = false;
    const auto shown = [this] {
      return std::tuple(scene.hoverBet, scene.hoverSeat, scene.heldBet, scene.hoverTakes);
    };
    const auto before = shown();
    FindPointed(true);
    ShowHeld();
    ShowCursor();
    TellFocus();
    if (shown() != before) update();
  });
}

void TableWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) LeftRelease(event);
  if (event->button() != Qt::MiddleButton || !dragging_) return;
  dragging_ = false;
  RefreshPointer();
}

void TableWidget::enterEvent(QEnterEvent* event) {
  pointer_ = event->position().toPoint();
  TellSoon();
}

void TableWidget::leaveEvent(QEvent*) {
  pointer_ = QPoint(-1, -1);
  scene.hoverBet = kNoBet;
  scene.hoverSeat = kNobody;
  emit pointedAt(0);
  update();
}

void TableWidget::wheelEvent(QWheelEvent* event) {
  const double steps = event->angleDelta().y() / 120.0;
  if (steps == 0) return;
  ZoomTo(view, static_cast<int>(std::lround(view.TableZoom * std::pow(1.1, steps))), event->position());
  ShiftTable(view, 0, 0);
  ViewChanged();
  emit wheelZoomed();
  event->accept();
}

void TableWidget::RefreshPointer() {
  ShowCursor();
  TellSoon();
}

void TableWidget::ShowCursor() {
  if (dragging_) return;
  if (commands_.Moving.Bet != 0) return setCursor(Qt::ClosedHandCursor);
  if (commands_.PendingAction == kPendingMove) return setCursor(Qt::OpenHandCursor);
  if (scene.hoverSeat != 0) return setCursor(Qt::PointingHandCursor);
  if (scene.hoverBet == 0 || !IsOccupied(game_.table, game_.table.SelectedSeat))
    return setCursor(Qt::ArrowCursor);
  constexpr const char* kActionTexts[] = {"", "ON", "OFF", "BUY", "X"};
  constexpr int kSize = 30;
  const double ratio = devicePixelRatioF();
  int denomination = 6;
  QString text = kActionTexts[commands_.PendingAction];
  if (text.isEmpty() && commands_.CarriedAmount > kZero) text = "$";
  if (text.isEmpty()) {
    text = "$";
    for (int n = 1; n <= 5; ++n)
      if (game_.settings.CheckValue[n] == commands_.ClickAmount) {
        denomination = n;
        text = CheckText(n, game_.settings.CheckValue, game_.settings.UseCentsSymbol);
      }
  }
  QPixmap check = CheckPicture(denomination, text, kSize, ratio);
  if (!scene.hoverTakes) {
    // It can't be put down here.
    QPixmap faint(check.size());
    faint.setDevicePixelRatio(ratio);
    faint.fill(Qt::transparent);
    QPainter painter(&faint);
    painter.setOpacity(0.5);
    painter.drawPixmap(0, 0, check);
    painter.end();
    check = faint;
  }
  setCursor(QCursor(check, kSize / 2, kSize / 2));
}

// --- Keys.

void TableWidget::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

// Tab goes into the areas before it leaves the table.
bool TableWidget::focusNextPrevChild(bool next) {
  if (next && scene.focusBet == 0 && IsOccupied(game_.table, game_.table.SelectedSeat)) {
    SetFocusBet(kPassLine, game_.table.SelectedSeat <= 4 ? 1 : 2);
    return true;
  }
  SetFocusBet(0, 0);
  return QWidget::focusNextPrevChild(next);
}

void TableWidget::keyPressEvent(QKeyEvent* event) {
  if (throwing_) {
    cutShort_ = true;
    return;
  }
  const bool walks = scene.focusBet != 0;
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (!walks) break;
      WalkFocus(event->key());
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!walks) break;
      if (commands_.Moving.Bet != 0)
        PutDownOn(scene.focusBet);
      else
        emit betClicked(MeantBet(game_, scene.focusBet), (event->modifiers() & Qt::AltModifier) != 0);
      TellFocus();
      return;
    case Qt::Key_Escape:
      if (!walks) break;
      SetFocusBet(0, 0);
      return;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

void TableWidget::SetFocusBet(BetId bet, int side) {
  if (scene.focusBet == bet && scene.focusSide == side) return;
  scene.focusBet = bet;
  scene.focusSide = side;
  TellFocus();
  emit areaFocused();
  update();
}

// What a screen reader hears, and the status line shows.
void TableWidget::TellFocus() {
  const BetId bet = scene.focusBet == 0 ? kNoBet : MeantBet(game_, scene.focusBet);
  const QString name = bet == 0 ? tr("Craps table") : PointerText(game_, commands_, bet);
  if (name != accessibleName()) setAccessibleName(name);
  emit toldAnew();
  emit pointedAt(bet == 0 ? scene.hoverBet : bet);
}

// To the nearest area in the key's direction as the user sees the table.
void TableWidget::WalkFocus(int key) {
  const QTransform toScreen = view.Transform();
  const auto centreOf = [&](const TableArea& area) {
    if (area.Id == kPassLine || area.Id == kPassLineOdds || area.Id == kDontPass) {
      // A band's bounding box is no place on it.
      const SeatId seat = area.Side == 1 ? 4 : 5;
      return toScreen.map(QPointF(layout_.CheckX(seat, area.Id), layout_.CheckY(seat, area.Id)));
    }
    return toScreen.map(area.Outline.boundingRect().center());
  };
  QPointF from;
  for (const TableArea& area : layout_.Areas)
    if (area.Id == scene.focusBet && (area.Side == 0 || area.Side == scene.focusSide)) from = centreOf(area);
  const QPointF ahead = key == Qt::Key_Left    ? QPointF(-1, 0)
                        : key == Qt::Key_Right ? QPointF(1, 0)
                        : key == Qt::Key_Up    ? QPointF(0, -1)
                                               : QPointF(0, 1);
  const TableArea* best = nullptr;
  double bestCost = 1e18;
  for (const TableArea& area : layout_.Areas) {
    const QPointF way = centreOf(area) - from;
    const double forward = QPointF::dotProduct(way, ahead);
    const double aside = std::fabs(way.x() * ahead.y() - way.y() * ahead.x());
    if (forward < 2) continue;
    const double cost = forward + 2.5 * aside;
    if (cost < bestCost) {
      bestCost = cost;
      best = &area;
    }
  }
  if (best != nullptr) SetFocusBet(best->Id, best->Side);
}

// --- The entry box.

void TableWidget::OpenEntry(BetId bet) {
  entryBet_ = bet;
  const SeatId seat = game_.table.SelectedSeat;
  entry_->SetKeys(4, !IsTableBet(bet));
  entry_->SetValue(game_.table.BetAmount(seat, bet));
  entry_->resize(96, entry_->sizeHint().height());
  QPoint place = PointOfBet(seat, bet) - QPoint(entry_->width() / 2, entry_->height() / 2);
  place.setX(std::clamp(place.x(), 0, std::max(0, width() - entry_->width())));
  place.setY(std::clamp(place.y(), 0, std::max(0, height() - entry_->height())));
  entry_->move(place);
  entry_->show();
  entry_->selectAll();
  entry_->setFocus();
}

bool TableWidget::CommitEntry() {
  if (!EntryOpen()) return true;
  const BetId bet = std::exchange(entryBet_, 0);
  const Currency amount = entry_->Value();
  CloseEntry();
  TakeEnteredAmount(game_, commands_, bet, amount);
  Refresh();
  return game_.table.BetAmount(game_.table.SelectedSeat, bet) == amount;
}

// The focus goes first, so that it isn't handed on to the areas.
void TableWidget::CloseEntry() {
  entryBet_ = 0;
  setFocus();
  entry_->hide();
}

bool TableWidget::eventFilter(QObject* object, QEvent* event) {
  if (object == entry_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape) CloseEntry();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) CommitEntry();
    if (!EntryOpen()) return true;
  }
  return QWidget::eventFilter(object, event);
}

// --- Dice and flashing.

void TableWidget::PlaceDice() {
  scene.dice = RestingDice(game_, SessionRolls(game_.stats));
  update();
}

void TableWidget::Animate(int milliseconds, const std::function<void(double)>& frame) {
  if (!animate || !isVisible() || throwing_) return;
  throwing_ = true;
  cutShort_ = false;
  QElapsedTimer clock;
  clock.start();
  QEventLoop loop;
  QTimer frames;
  connect(&frames, &QTimer::timeout, this, [&] {
    const double share = static_cast<double>(clock.elapsed()) / milliseconds;
    if (share >= 1 || cutShort_) return loop.quit();
    frame(share);
    update();
  });
  frames.start(kFrameMilliseconds);
  loop.exec();
  throwing_ = false;
}

void TableWidget::ShowThrow() {
  // Thrown, but not yet counted.
  const DicePose rest = RestingDice(game_, SessionRolls(game_.stats) + 1);
  const QPointF from = layout_.Seats[std::max<int>(1, game_.table.ShooterSeat)].Rail;
  constexpr int kMilliseconds[] = {kThrowMilliseconds, 0, kThrowMilliseconds / 2};
  motion_.Stop();
  if (const int time = kMilliseconds[std::clamp(game_.settings.DiceAction, 0, 2)]; time > 0 && MayMove())
    Animate(time, [&](double share) { scene.dice = FlyingDice(rest, from, share); });
  scene.dice = rest;
  update();
}

// In a quick run nothing would ever lie still.
bool TableWidget::MayMove() const {
  const TableState& table = game_.table;
  const bool quick = table.AutoRollActive && game_.settings.AutoRollDelay.raw < kStillBelow;
  return animate && isVisible() && !table.TurboRollActive && !quick;
}

void TableWidget::ShowChecksMove(const std::vector<BetChange>& changes) {
  std::vector<MovingChecks> moving;
  if (MayMove()) moving = ChecksOnTheirWay(game_, layout_, changes);
  if (!moving.empty()) motion_.MoveChecks(std::move(moving));
}

void TableWidget::RainChecks() {
  constexpr int kChecks = 1000;
  scene.rain.clear();
  const auto fallTo = [&](int count) {
    for (int n = static_cast<int>(scene.rain.size()); n < count; ++n)
      scene.rain.push_back({{105 + 1037 * Scatter(n, 11), 86 + 343 * Scatter(n, 12)},
                            1 + static_cast<int>(5 * Scatter(n, 13))});
  };
  Animate(kRainMilliseconds, [&](double share) { fallTo(static_cast<int>(kChecks * share)); });
  fallTo(kChecks);
  update();
}

void TableWidget::FlashBets() {
  flashes_ = kFlashes;
  flashTimer_->start(kFlashMilliseconds);
}

}  // namespace tessaryn
