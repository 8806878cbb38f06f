#include "shell/table/plates.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "shell/table/number_habit.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_layout.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr int kEdgeGap = 4;   // to the stage's edge
constexpr int kPlateGap = 4;  // between two
constexpr QSize kNarrowPlate(92, 50);
constexpr double kTip = kPlateTip;
constexpr double kHeadGap = 6;  // from name to result
constexpr int kNarrowest = 75;  // percent of a letter's width
// Told places of the seats on the lower rail.
constexpr int kLowerSeats[] = {3, 4, 5, 6};
constexpr double kLowerSpots[] = {160, 425, 823, 1088};  // x in table units
constexpr double kFrameBottom = 574;

QString Told(const char* text) { return QCoreApplication::translate("Plates", text); }

// What points from a plate's upper edge to its player's place.
QPolygonF TipOf(double x) {
  return QPolygonF({QPointF(x - kTip, kTip), QPointF(x + kTip, kTip), QPointF(x, 0)});
}

QString ScriptText(ScriptSign sign) {
  if (sign == ScriptSign::kNone) return {};
  return sign == ScriptSign::kActive ? QStringLiteral("{ }") : QStringLiteral("{ ! }");
}

QString Amount(Currency value) { return ShownNumber(value.ToDouble(), 2); }

}  // namespace

PlateText PlateTextOf(const Game& game, SeatId seat) {
  const TableState& table = game.table;
  PlateText text;
  if (!IsOccupied(table, seat)) return text;
  const SeatScript& script = game.autobet.Scripts[seat];
  int bets = 0;
  table.seats[seat].SeatBets.ForEach([&](int) { ++bets; });
  const Currency result = table.BankrollCurrent[seat] - game.stats.BankrollSessionStart[seat];
  text.name = FromCore(table.seats[seat].SeatName);
  text.selected = table.SelectedSeat == seat;
  text.shooter = table.ShooterSeat == seat;
  if (game.autobet.ScriptActive[seat])
    text.script = script.Errors.empty() ? ScriptSign::kActive : ScriptSign::kError;
  text.rail = Amount(table.BankrollCurrent[seat] - table.seats[seat].OnTableAmount);
  text.bankroll = Amount(table.BankrollCurrent[seat]);
  text.betsCaption = QCoreApplication::translate("Plates", "%1 Bets:", nullptr, PluralOf(bets)).arg(bets);
  text.bets = Amount(table.seats[seat].OnTableAmount);
  text.sign = result > kZero ? 1 : result < kZero ? -1 : 0;
  text.resultCaption = text.sign > 0   ? Told(QT_TRANSLATE_NOOP("Plates", "Won:"))
                       : text.sign < 0 ? Told(QT_TRANSLATE_NOOP("Plates", "Lost:"))
                                       : Told(QT_TRANSLATE_NOOP("Plates", "Even:"));
  text.result = Amount(result);
  return text;
}

QStringList MoneyLines(const Game& game, SeatId seat) {
  const PlateText text = PlateTextOf(game, seat);
  const auto line = [](const QString& caption, const QString& figure) {
    return caption + QStringLiteral("  ") + figure;
  };
  return {line(Told(QT_TRANSLATE_NOOP("Plates", "Rail:")), text.rail),
          line(Told(QT_TRANSLATE_NOOP("Plates", "Bankroll:")), text.bankroll),
          line(text.betsCaption, text.bets), line(text.resultCaption, text.result)};
}

// --- Places.

namespace {

int Above(QSize plate, const Measures& measures) {
  return std::max(0, kEdgeGap + plate.height() + kPlateGap - measures.board);
}
int Below(QSize plate) { return plate.height() + kEdgeGap + kPlateTip; }

// The places of the CheckStacks of the seats on the lower rail, on the stage.
std::array<QRectF, 4> LowerWells(const QRect& table, const TableView& view) {
  std::array<QRectF, 4> wells;
  for (std::size_t n = 0; n < 4; ++n)
    wells[n] = view.Transform().mapRect(WellsOf(kLowerSeats[n])).translated(table.topLeft());
  return wells;
}

// Plates that reach up to the wells stand between them, as far as there is room.
void StepAside(int (&x)[4], int width, const std::array<QRectF, 4>& wells, int least, int most) {
  const auto left = [&](int n) { return static_cast<int>(std::floor(wells[n].left())); };
  const auto right = [&](int n) { return static_cast<int>(std::ceil(wells[n].right())); };
  x[0] = std::max(least, std::min(x[0], left(0) - width));
  x[3] = std::min(most, std::max(x[3], right(3)));
  x[1] = std::max(right(0), std::min(x[1], left(1) - width));
  x[2] = std::min(left(3) - width, std::max(x[2], right(2)));
}

PlatePlaces PlacesOf(QSize size, QSize stage, const QRect& table, const TableView& view, bool fitted) {
  PlatePlaces places;
  const int right = stage.width() - kEdgeGap - size.width();
  places[1] = QRect(QPoint(kEdgeGap, kEdgeGap - 1), size);
  places[8] = QRect(QPoint(right, kEdgeGap - 1), size);
  int low = stage.height() - kEdgeGap + 1 - size.height();
  // Where there is more room than needed they stay with the table.
  const double bottom = view.ToScreen({0, kFrameBottom}).y() + table.top();
  if (fitted) low = std::min(low, static_cast<int>(std::lround(bottom)) + kEdgeGap);
  places[2] = QRect(QPoint(kEdgeGap, low), size);
  places[7] = QRect(QPoint(right, low), size);
  const auto wanted = [&](int n) {
    const double share = fitted ? view.ToScreen({kLowerSpots[n], 0}).x() + table.left()
                                : stage.width() * (kLowerSpots[n] + 38) / 1323;
    return static_cast<int>(std::lround(share)) - size.width() / 2;
  };
  // Each as near to its player as its neighbours nearer to the corner let it.
  const int step = size.width() + kPlateGap;
  int x[4];
  x[0] = std::max(wanted(0), places[2].left() + step);
  x[3] = std::min(wanted(3), places[7].left() - step);
  x[1] = std::max(wanted(1), x[0] + step);
  x[2] = std::min(wanted(2), x[3] - step);
  if (x[2] < x[1] + step) {
    const int middle = (x[1] + x[2]) / 2;
    x[1] = std::max(middle - step / 2, x[0] + step);
    x[2] = std::max(x[1] + step, std::min(x[2], x[3] - step));
  }
  const std::array<QRectF, 4> wells = LowerWells(table, view);
  if (fitted && low < wells[0].bottom())
    StepAside(x, size.width(), wells, places[2].left() + step, places[7].left() - step);
  for (int n = 0; n < 4; ++n) places[kLowerSeats[n]] = QRect(QPoint(x[n], low), size);
  return places;
}

// Whether plates of the size, six side by side, leave the wells of the whole table free.
bool LeavesTheWells(QSize size, QSize stage, const Measures& measures) {
  if (6 * (size.width() + kPlateGap) + kEdgeGap > stage.width()) return false;
  TableView view;
  const QRect table(0, measures.board, stage.width(), std::max(1, stage.height() - measures.board));
  view.Window = table.size();
  view.MarginTop = Above(size, measures);
  view.MarginBottom = Below(size);
  FitTable(view);
  const PlatePlaces places = PlacesOf(size, stage, table, view, true);
  const std::array<QRectF, 4> wells = LowerWells(table, view);
  for (int seat = 2; seat < kSeats; ++seat)
    for (const QRectF& well : wells)
      if (QRectF(places[seat]).intersects(well)) return false;
  return true;
}

}  // namespace

QSize PlateSize(QSize stage, const Measures& measures) {
  for (const QSize size : {measures.plate, MeasuresOf(kSmallestWindow).plate})
    if (LeavesTheWells(size, stage, measures)) return size;
  return kNarrowPlate;
}

int RoomAbove(const Measures& measures, QSize stage) { return Above(PlateSize(stage, measures), measures); }

int RoomBelow(const Measures& measures, QSize stage) { return Below(PlateSize(stage, measures)); }

PlatePlaces PlacePlates(QSize stage, const QRect& table, const TableView& view, const Measures& measures,
                        bool fitted) {
  return PlacesOf(PlateSize(stage, measures), stage, table, view, fitted);
}

// --- A plate.

Plate::Plate(SeatId seat, QWidget* parent) : QWidget(parent), seat_(seat) {
  setObjectName(QStringLiteral("picPlate%1").arg(seat));
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

void Plate::SetLook(double textHeight, int pointer) {
  textHeight_ = textHeight;
  pointer_ = pointer;
  FitLetters();
  // Beside the tip the rail takes the clicks.
  if (pointer < 0)
    clearMask();
  else
    setMask(QRegion(0, kPlateTip, width(), height() - kPlateTip) + QRegion(TipOf(pointer).toPolygon()));
  update();
}

void Plate::Show(const PlateText& text) {
  setVisible(!text.name.isEmpty());
  if (text == text_) return;
  text_ = text;
  FitLetters();
  Tell();
}

// To a screen reader, and to who rests on a name that was cut.
void Plate::Tell() {
  setAccessibleName(text_.name);
  const QString lines = Told(QT_TRANSLATE_NOOP("Plates", "Rail:")) + ' ' + text_.rail + '\n' +
                        Told(QT_TRANSLATE_NOOP("Plates", "Bankroll:")) + ' ' + text_.bankroll + '\n' +
                        text_.betsCaption + ' ' + text_.bets + '\n' + text_.resultCaption + ' ' +
                        text_.result;
  setAccessibleDescription(lines);
  setToolTip(text_.name + '\n' + lines);
}

double Plate::Padding() const { return IsNarrow() ? 5 : 7; }

bool Plate::IsNarrow() const { return width() <= kNarrowPlate.width(); }

QString Plate::BankrollCaption() const {
  return IsNarrow() ? Told(QT_TRANSLATE_NOOP("Plates", "Bank:")) : Told("Bankroll:");
}

// "Won: 35.00"; "+35.00" where a long name or figure wants the room.
QString Plate::ResultText() const {
  if (!briefResult_) return text_.resultCaption + QLatin1Char(' ') + text_.result;
  return text_.sign > 0 ? QLatin1Char('+') + text_.result : text_.result;
}

// Letters of a broad font are drawn narrower where a line of the largest figures needs it.
QFont Plate::TextFont(bool bold) const {
  QFont letters = Sized(font(), textHeight_, bold);
  letters.setStretch(stretch_);
  return letters;
}

QFont Plate::HeadFont() const {
  QFont letters = TextFont(true);
  letters.setStretch(headStretch_);
  return letters;
}

// What name, result and signs would need to stand there whole.
double Plate::HeadWidth() const {
  const QFontMetricsF metrics(HeadFont());
  double width = metrics.horizontalAdvance(text_.name) + kHeadGap + metrics.horizontalAdvance(ResultText());
  if (text_.shooter) width += textHeight_ + 5;
  if (text_.script != ScriptSign::kNone) width += metrics.horizontalAdvance(ScriptText(text_.script)) + 12;
  return width;
}

void Plate::FitLetters() {
  stretch_ = 100;
  while (!FiguresFit() && stretch_ > kNarrowest) --stretch_;
  for (const bool brief : {false, true}) {
    briefResult_ = brief;
    headStretch_ = stretch_;
    while (HeadWidth() > width() - 2 * Padding() && headStretch_ > kNarrowest) --headStretch_;
    if (HeadWidth() <= width() - 2 * Padding()) break;
  }
  update();
}

bool Plate::FiguresFit() const {
  const QFontMetricsF plain(TextFont(false));
  const QFontMetricsF bold(TextFont(true));
  const double room = width() - 2 * Padding();
  const auto fits = [&](const QString& caption, const QString& figure) {
    return plain.horizontalAdvance(caption + QLatin1Char(' ') + figure) <= room;
  };
  return fits(Told("Rail:"), text_.rail) && fits(BankrollCaption(), text_.bankroll) &&
         fits(text_.betsCaption, text_.bets) &&
         bold.horizontalAdvance(QLatin1Char('+') + text_.result) <= room;
}

void Plate::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double above = pointer_ < 0 ? 0 : kTip;
  painter.translate(0, above);
  const QRectF body(1, 1, width() - 2, height() - above - 2);
  painter.setPen(QPen(text_.selected ? kGoldTone : QColor(0x4A, 0x54, 0x5C), text_.selected ? 2 : 1));
  painter.setBrush(kPlateTone);
  painter.drawRoundedRect(body, 6, 6);
  const double row = (height() - above - 6) / 4.0;
  QRectF line(Padding(), 3, width() - 2 * Padding(), row);
  PaintHead(painter, line);
  const QFont plain = TextFont(false);
  const QFontMetricsF metrics(plain);
  painter.setFont(plain);
  const auto figure = [&](const QString& caption, const QString& value) {
    line.translate(0, row);
    painter.setPen(kCaptionTone);
    painter.drawText(
        line, Qt::AlignLeft | Qt::AlignVCenter,
        metrics.elidedText(caption, Qt::ElideRight, line.width() - metrics.horizontalAdvance(value) - 3));
    painter.setPen(Qt::white);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, value);
  };
  figure(Told("Rail:"), text_.rail);
  figure(BankrollCaption(), text_.bankroll);
  figure(text_.betsCaption, text_.bets);
  if (pointer_ < 0) return;
  painter.translate(0, -kTip);
  painter.setPen(Qt::NoPen);
  painter.setBrush(text_.selected ? kGoldTone : kCaptionTone);
  painter.drawPolygon(TipOf(pointer_));
}

// The result first, since a name is cut and a figure never.
void Plate::PaintHead(QPainter& painter, const QRectF& line) const {
  const double free = line.right() - PaintResult(painter, line) - kHeadGap;
  double left = line.left();
  if (text_.shooter && left + textHeight_ + 4 <= free) {
    painter.save();
    const double die = textHeight_ + 1;
    painter.translate(left + die / 2, line.center().y());
    painter.scale(die, die);
    PaintDie(painter, 5, kDiceRed, Qt::white);
    painter.restore();
    left += die + 4;
  }
  PaintName(painter, QRectF(QPointF(left, line.top()), QPointF(free, line.bottom())));
}

// The width that it took.
double Plate::PaintResult(QPainter& painter, const QRectF& line) const {
  const QFont bold = HeadFont();
  const QString result = ResultText();
  const double width = QFontMetricsF(bold).horizontalAdvance(result);
  painter.setFont(bold);
  const QColor outcome = text_.sign > 0 ? kWonTone : text_.sign < 0 ? kLostTone : QColor(Qt::white);
  painter.setPen(outcome);
  painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, result);
  const double side = textHeight_ * 0.5;
  // A name that would be cut gets the room of the sign: the word says the same.
  if (text_.sign == 0 || HeadWidth() + side + 4 >= line.width()) return width;
  const double x = line.right() - width - side - 4;
  const double y = line.center().y();
  const double foot = text_.sign > 0 ? y + side / 2 : y - side / 2;
  painter.setBrush(outcome);
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(
      QPolygonF{QPointF(x, foot), QPointF(x + side, foot), QPointF(x + side / 2, 2 * y - foot)});
  return width + side + 4;
}

// The name and, if there is room, the sign of its script.
void Plate::PaintName(QPainter& painter, const QRectF& room) const {
  const QFont bold = HeadFont();
  const QFontMetricsF metrics(bold);
  const QString script = ScriptText(text_.script);
  double scriptWidth = script.isEmpty() ? 0 : metrics.horizontalAdvance(script) + 8;
  if (scriptWidth > room.width()) scriptWidth = 0;
  painter.setFont(bold);
  painter.setPen(text_.selected ? kGoldTone : QColor(Qt::white));
  const double nameRoom = room.width() - (scriptWidth > 0 ? scriptWidth + 4 : 0);
  const QString name = metrics.elidedText(text_.name, Qt::ElideRight, std::max(0.0, nameRoom));
  if (nameRoom > 4)
    painter.drawText(QRectF(room.left(), room.top(), nameRoom + 1, room.height()), Qt::AlignVCenter, name);
  if (scriptWidth == 0) return;
  const double x = room.left() + std::min(nameRoom, metrics.horizontalAdvance(name)) + 4;
  const QRectF badge(x, room.center().y() - textHeight_ * 0.62, scriptWidth, textHeight_ * 1.24);
  painter.setPen(Qt::NoPen);
  painter.setBrush(text_.script == ScriptSign::kActive ? QColor(0x2C, 0x5A, 0xA8) : QColor(0xB3, 0x26, 0x1E));
  painter.drawRoundedRect(badge, 2, 2);
  painter.setPen(Qt::white);
  painter.drawText(badge, Qt::AlignCenter, script);
}

void Plate::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton) emit chosen(seat_);
}

void Plate::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  emit menuWanted(seat_, event->globalPos());
}

void Plate::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) Tell();
  if (event->type() == QEvent::FontChange) FitLetters();
  QWidget::changeEvent(event);
}

}  // namespace tessaryn
