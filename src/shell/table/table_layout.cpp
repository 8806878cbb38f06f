#include "shell/table/table_layout.h"

#include <QCoreApplication>
#include <QTransform>
#include <bit>
#include <cmath>

#include "rules/bet_rules.h"
#include "rules/payoffs.h"
#include "shell/table/layout_builder.h"
#include "state/bet_families.h"

namespace tessaryn {

void LayoutBuilder::Place(SeatId seat, BetId bet, QPointF point) {
  layout.CheckX(seat, bet) = static_cast<int>(std::lround(point.x()));
  layout.CheckY(seat, bet) = static_cast<int>(std::lround(point.y()));
}

TableArea* LayoutBuilder::Add(BetId bet, int side, const QPainterPath& outline, Ground fill) {
  if (!BetOffered(settings, bet)) return nullptr;
  layout.Areas.push_back({bet, side, outline, fill, false, true, {}});
  return &layout.Areas.back();
}

static QString PayoffCaption(const PayoffRecord& record) {
  return QString::fromStdString(PayoffText(record)).toUpper();
}

QString LayoutBuilder::Pays(BetId bet) const { return PayoffCaption(payoffs.PayoffTable[bet]); }

QRectF LayoutBox(double left, double top, double right, double bottom) {
  return {QPointF(left, top), QPointF(right, bottom)};
}

QPainterPath RoundedBox(const QRectF& box) {
  QPainterPath path;
  path.addRoundedRect(box, 2, 2);
  return path;
}

QTransform LayoutMirror() { return {-1, 0, 0, 1, 2 * kTableMiddle, 0}; }

TableLabel Caption(const QString& text, const QRectF& box, double cap, Ink ink) {
  TableLabel label;
  label.Text = text;
  label.Box = box;
  label.Cap = cap;
  label.Colour = ink;
  return label;
}

TableLabel LeftCaption(const QString& text, const QRectF& box, double cap) {
  TableLabel label = Caption(text, box, cap);
  label.Left = true;
  return label;
}

TableLabel DiceLabel(int die1, int die2, const QRectF& box) {
  TableLabel label;
  label.Die1 = die1;
  label.Die2 = die2;
  label.Box = box;
  return label;
}

TableLabel PayoffLabel(const QString& pays, const QRectF& box) {
  TableLabel label = LeftCaption(pays, box);
  const QString shorter = QString(pays).replace(QStringLiteral(" TO "), QStringLiteral(":"));
  if (shorter != pays) label.Shorter = {shorter};
  return label;
}

namespace {

// --- Shapes. The left end is drawn; the right end is its mirror.

// A band that runs down the end of the table, round its corner and along the players' side.
constexpr QPointF kCorner(192, 344);
constexpr double kBandTop = 128;
constexpr double kBandRight = 560;

QPainterPath Band(double outer, double inner) {
  const auto square = [](double radius) {
    return QRectF(kCorner.x() - radius, kCorner.y() - radius, 2 * radius, 2 * radius);
  };
  QPainterPath path;
  path.moveTo(kCorner.x() - outer, kBandTop);
  path.lineTo(kCorner.x() - outer, kCorner.y());
  path.arcTo(square(outer), 180, 90);
  path.lineTo(kBandRight, kCorner.y() + outer);
  path.lineTo(kBandRight, kCorner.y() + inner);
  path.lineTo(kCorner.x(), kCorner.y() + inner);
  path.arcTo(square(inner), 270, -90);
  path.lineTo(kCorner.x() - inner, kBandTop);
  path.closeSubpath();
  return path;
}

// A rectangle as far as it lies within the corner that the bands leave.
QPainterPath CutByCorner(const QRectF& box, double radius) {
  QPainterPath inside;
  inside.addRect(kCorner.x(), 0, 700, kCorner.y() + radius);
  inside.addRect(0, 0, kCorner.x(), kCorner.y());
  inside.addEllipse(kCorner, radius, radius);
  inside.setFillRule(Qt::WindingFill);
  QPainterPath path;
  path.addRect(box);
  QPainterPath cut = path.intersected(inside.simplified());
  cut.closeSubpath();
  return cut;
}

// The four places of an end in an area, two by two about a point.
QPointF TwoByTwo(QPointF centre, QPointF step, int place) {
  return centre + QPointF(place % 2 == 0 ? -step.x() : step.x(), place / 2 == 0 ? -step.y() : step.y());
}

SeatId FirstSeat(int side) { return side == 1 ? 1 : 5; }

// --- The six boxes of an end. Places are measured from the column's left edge.

struct ColumnRow {
  BetId firstBet;  // the bet of the 4; the other numbers follow
  double left;
  double right;
  double top;
  double bottom;
  const char* label;
  const char* shorter;
  double told;    // the height of the bet's own place, in the middle of the column
  QPointF alone;  // of a stack that has the area to itself
  QPointF four;   // the middle of the four places
  QPointF step;   // from there to each
};

constexpr double kHalf = kColumnWidth / 2;

constexpr ColumnRow kColumnRows[] = {
    {kDontCome4, 0, kHalf, 32, 74, "DC", "D", 44, {13.8, 59}, {13.8, 58}, {4.6, 4.2}},
    {kDontComeOdds4, kHalf, kColumnWidth, 32, 74, "ODDS", "O", 39, {40.2, 59}, {40.2, 58}, {4.6, 4.2}},
    {kLay4, 0, kColumnWidth, 76, 108, "LAY", "L", 92, {38, 94}, {35, 93}, {6, 4.2}},
    {kBuy4, 0, kColumnWidth, 110, 140, "BUY", "B", 126, {38, 126}, {35, 126}, {6, 4.2}},
    {kCome4, 0, kHalf, 142, 188, "COME", "C", 162, {13.8, 171}, {13.8, 170}, {4.6, 4.2}},
    {kComeOdds4, kHalf, kColumnWidth, 142, 188, "ODDS", "O", 169, {40.2, 171}, {40.2, 170}, {4.6, 4.2}},
    {kPlace4, 0, kColumnWidth, 190, 284, nullptr, nullptr, 237, {27, 265}, {27, 261.5}, {13.2, 9.5}},
};

constexpr const char* kNumberWords[6] = {"4", "5", "SIX", "8", "NINE", "10"};

QRectF ColumnBox(const ColumnRow& row, double x) {
  return LayoutBox(x + std::max(row.left, kGap / 2), row.top,
                   x + std::min(row.right, kColumnWidth - kGap / 2) - (row.right < kColumnWidth ? 0.3 : 0),
                   row.bottom);
}

TableLabel ColumnLabel(const ColumnRow& row, const QRectF& box, int number) {
  const auto caption = [&](double margin) {
    TableLabel label = Caption(row.label, LayoutBox(box.left() + margin, box.top() + 1.6,
                                                    box.right() - margin, box.top() + 1.6 + kCaptionRoom));
    label.Shorter = {row.shorter};
    return label;
  };
  if (row.label == nullptr)
    return Caption(kNumberWords[number],
                   LayoutBox(box.left() + 2.5, box.top() + 3, box.right() - 2.5, box.top() + 49), 45.5,
                   Ink::kAccent);
  if (row.right - row.left < kColumnWidth) return caption(1.5);
  TableLabel label = caption(4);
  label.Left = true;
  label.Box.setRight(box.left() + 22);
  return label;
}

void AddColumnArea(LayoutBuilder& build, const ColumnRow& row, int side, int number) {
  const double x = (side == 1 ? kLeftColumns : kRightColumns) + number * kColumnWidth;
  const QRectF box = ColumnBox(row, x);
  const BetId bet = row.firstBet + number;
  TableArea* area =
      build.Add(bet, side, RoundedBox(box), row.label == nullptr ? Ground::kDark : Ground::kFelt);
  area->Edged = row.right - row.left == kColumnWidth;
  area->Labels.push_back(ColumnLabel(row, box, number));
  if (side == 1) build.Place(0, bet, QPointF(x + kHalf, row.told));
  build.layout.Alone[side][bet] = QPointF(x, 0) + row.alone;
  for (int place = 0; place < 4; ++place)
    build.Place(FirstSeat(side) + place, bet, QPointF(x, 0) + TwoByTwo(row.four, row.step, place));
}

// The edge round two halves of a box, and the line between them.
void AddHalves(LayoutBuilder& build, const ColumnRow& row, double x) {
  if (row.left > 0 || row.right == kColumnWidth) return;
  const QRectF box = LayoutBox(x + kGap / 2, row.top, x + kColumnWidth - kGap / 2, row.bottom);
  build.layout.Lines.push_back({RoundedBox(box), false});
  QPainterPath line;
  line.moveTo(box.center().x(), box.top() + 1);
  line.lineTo(box.center().x(), box.bottom() - 1);
  build.layout.Lines.push_back({line, true});
}

void AddColumns(LayoutBuilder& build) {
  for (int side = 1; side <= 2; ++side)
    for (int number = 0; number < 6; ++number)
      for (const ColumnRow& row : kColumnRows) {
        AddColumnArea(build, row, side, number);
        AddHalves(build, row, (side == 1 ? kLeftColumns : kRightColumns) + number * kColumnWidth);
      }
}

// --- The bands and the fields of an end. Drawn for the left end and mirrored.

// An area of the left end with the places of seats 1 to 4.
struct EndArea {
  BetId bet;
  QPainterPath outline;
  Ground fill = Ground::kDark;
  std::vector<TableLabel> labels;
  std::vector<TableLabel> inOrder;  // that read from left to right on both ends
  QPointF places[4];
  QPointF alone;
};

// How far the labels of an area move to stand on the other end in the same order.
double ShiftOf(const std::vector<TableLabel>& labels) {
  QRectF all;
  for (const TableLabel& label : labels) all |= label.Box;
  return 2 * kTableMiddle - all.left() - all.right();
}

void AddEndArea(LayoutBuilder& build, const EndArea& ends) {
  for (int side = 1; side <= 2; ++side) {
    const QTransform mirror = side == 1 ? QTransform() : LayoutMirror();
    TableArea* area = build.Add(ends.bet, side, mirror.map(ends.outline), ends.fill);
    if (area == nullptr) return;
    for (TableLabel label : ends.labels) {
      label.Box.moveCenter(mirror.map(label.Box.center()));
      if (side == 2) label.Rotation = -label.Rotation;
      area->Labels.push_back(label);
    }
    for (TableLabel label : ends.inOrder) {
      if (side == 2) label.Box.translate(ShiftOf(ends.inOrder), 0);
      area->Labels.push_back(label);
    }
    if (!ends.alone.isNull()) build.layout.Alone[side][ends.bet] = mirror.map(ends.alone);
    for (int place = 0; place < 4; ++place)
      build.Place(side == 1 ? 1 + place : 8 - place, ends.bet, mirror.map(ends.places[place]));
  }
}

TableLabel Turned(const char* text, const QRectF& box, double cap, Ink ink = Ink::kLetter) {
  TableLabel label = Caption(text, box, cap, ink);
  label.Rotation = -90;
  return label;
}

void AddLines(LayoutBuilder& build) {
  const int bar = build.settings.BarNumber == 2 ? 1 : 6;
  AddEndArea(build, {kPassLineOdds,
                     Band(182, 160),
                     Ground::kDark,
                     {Caption("ODDS", LayoutBox(250, 508, 342, 522), 11.5),
                      Turned("ODDS", LayoutBox(-9, 229, 51, 243), 9)},
                     {},
                     {{21, 152}, {21, 336}, {196, 515}, {455, 515}},
                     {}});
  AddEndArea(build, {kPassLine,
                     Band(158, 126),
                     Ground::kDark,
                     {Caption("PASS LINE", LayoutBox(240, 474, 352, 498), 21, Ink::kAccent),
                      Turned("PASS LINE", LayoutBox(-6, 225, 106, 247), 19, Ink::kAccent)},
                     {},
                     {{50, 152}, {50, 336}, {170, 484}, {425, 486}},
                     {}});
  AddEndArea(build, {kDontPass,
                     Band(124, 102),
                     Ground::kFelt,
                     {DiceLabel(bar, bar, LayoutBox(205, 449.5, 237, 464.5)),
                      Caption("DON'T PASS BAR", LayoutBox(242, 450, 352, 464), 13),
                      Turned("DON'T PASS BAR", LayoutBox(29, 229, 129, 243), 9.5)},
                     {},
                     {{79, 152}, {79, 336}, {175, 456}, {425, 457}},
                     {}});
  // The odds of Don't Pass stand beside their bet, in its area.
  constexpr QPointF kLaidOdds[4] = {{79, 182}, {79, 306}, {146, 447}, {455, 457}};
  for (int place = 0; place < 4; ++place) {
    build.Place(1 + place, kDontPassOdds, kLaidOdds[place]);
    build.Place(8 - place, kDontPassOdds, LayoutMirror().map(kLaidOdds[place]));
  }
}

// The Field's numbers; the two that pay more are ringed and say what they pay.
void AddField(LayoutBuilder& build) {
  EndArea field;
  field.bet = kField;
  field.outline = RoundedBox(LayoutBox(192, 366, 560, 444));
  constexpr int kNumbers[7] = {2, 3, 4, 9, 10, 11, 12};
  for (int n = 0; n < 7; ++n) {
    const double x = 222 + n * 51.35;
    const bool end = n == 0 || n == 6;
    TableLabel number =
        Caption(QString::number(kNumbers[n]), LayoutBox(x - 15.5, 374.5, x + 15.5, 405.5), 17, Ink::kAccent);
    number.Ring = end;
    field.inOrder.push_back(number);
    if (!end) continue;
    const double pays = n == 0 ? 219 : 533;
    field.inOrder.push_back(Caption(QCoreApplication::translate("TableLayout", "PAYS"),
                                    LayoutBox(pays - 20, 408, pays + 20, 420)));
    const PayoffRecord& record = build.payoffs.FieldPayoffs[FieldRow(n == 0 ? 1 : 6, n == 0 ? 1 : 6)];
    TableLabel payoff = PayoffLabel(PayoffCaption(record), LayoutBox(pays - 20, 421, pays + 20, 433));
    payoff.Left = false;
    field.inOrder.push_back(payoff);
  }
  field.labels.push_back(Caption("FIELD", LayoutBox(284, 409, 344, 439), 23));
  constexpr double kAcross[4] = {261, 362, 398, 482};
  for (int place = 0; place < 4; ++place) field.places[place] = QPointF(kAcross[place], 427);
  AddEndArea(build, field);
}

void AddBig(LayoutBuilder& build, BetId bet, const char* label, double left, double right, QPointF stack) {
  EndArea big;
  big.bet = bet;
  big.outline = CutByCorner(LayoutBox(left, 366, right, 444), 98);
  big.inOrder.push_back(Caption("BIG", LayoutBox(left + 9, 369, left + 25.5, 384)));
  big.inOrder.push_back(Caption(label, LayoutBox(left + 26, 368.5, left + 43, 384.5), 14, Ink::kAccent));
  for (int place = 0; place < 4; ++place) big.places[place] = TwoByTwo(stack, {4.6, 4.2}, place);
  big.alone = stack;
  AddEndArea(build, big);
}

void AddEndFields(LayoutBuilder& build) {
  const int bar = build.settings.BarNumber == 2 ? 1 : 6;
  EndArea come;
  come.bet = kCome;
  come.outline = RoundedBox(LayoutBox(94, 288, 560, 364));
  come.labels.push_back(Caption("COME", LayoutBox(295, 296, 425, 356), 44, Ink::kAccent));
  // Between them and the word lie the dice.
  constexpr double kAcross[4] = {118, 158, 470, 520};
  for (int place = 0; place < 4; ++place) come.places[place] = QPointF(kAcross[place], 326);
  AddEndArea(build, come);
  EndArea dont;
  dont.bet = kDontCome;
  dont.outline = RoundedBox(LayoutBox(94, 214, 236, 284));
  dont.fill = Ground::kFelt;
  dont.inOrder.push_back(Caption("DON'T COME", LayoutBox(100, 217, 230, 235), 14.5));
  dont.inOrder.push_back(Caption("BAR", LayoutBox(132, 237, 156, 251), 10));
  dont.inOrder.push_back(DiceLabel(bar, bar, LayoutBox(161, 237.5, 191, 251)));
  for (int place = 0; place < 4; ++place) dont.places[place] = QPointF(114 + 34 * place, 267);
  AddEndArea(build, dont);
  AddField(build);
  AddBig(build, kBig6, "6", 94, 141.4, {128, 399});
  AddBig(build, kBig8, "8", 142.6, 190.8, {167, 405});
}

// --- Every bet has its place.

constexpr BetSet kNumberBets = [] {
  BetSet bets;
  for (const ColumnRow& row : kColumnRows) bets = bets | BetRange(row.firstBet, row.firstBet + 5);
  return bets;
}();
constexpr BetSet OnFelt(Felt felt) {
  return BetsWhere([felt](const FamilyRow& row) { return row.felt == felt; });
}
static_assert(kNumberBets == OnFelt(Felt::kNumbers) &&
                  (BetRange(kPassLine, kDontCome) | BetRange(kField, kBig8)) == OnFelt(Felt::kLine),
              "a bet without its place on the felt");

}  // namespace

TableLayout BuildTableLayout(const Settings& settings, const PayoffTables& payoffs) {
  LayoutBuilder build{settings, payoffs, {}};
  AddLines(build);
  AddEndFields(build);
  AddSideBets(build);
  AddColumns(build);
  AddMiddle(build);
  PlaceSeats(build.layout);
  for (TableArea& area : build.layout.Areas)
    for (TableLabel& label : area.Labels) WordLabel(label);
  for (TableHeading& heading : build.layout.Headings)
    for (TableLabel& label : heading.Labels) WordLabel(label);
  for (TableMark& mark : build.layout.Marks)
    if (!mark.Label.Text.isEmpty()) WordLabel(mark.Label);
  return std::move(build.layout);
}

namespace {

// Where the seat's stack stands if it has the area to itself; null where every seat has a place of its own.
QPointF PlaceAlone(const TableLayout& layout, SeatId seat, BetId bet) {
  if (!IsTableBet(bet)) return {};
  return layout.Alone[layout.Alone[0][bet].isNull() ? SideOf(seat) : 0][bet];
}

}  // namespace

bool SharesArea(const TableLayout& layout, const TableState& table, SeatId seat, BetId bet) {
  if (PlaceAlone(layout, seat, bet).isNull()) return false;
  const bool both = !layout.Alone[0][bet].isNull();
  const SeatId first = both ? SeatId(1) : FirstSeat(SideOf(seat));
  for (SeatId other = first; other < first + (both ? kSeats : 4); ++other)
    if (other != seat && table.seats[other].SeatBets.Has(bet)) return true;
  return false;
}

QPointF StackPlace(const TableLayout& layout, const TableState& table, SeatId seat, BetId bet) {
  const QPointF alone = PlaceAlone(layout, seat, bet);
  if (!alone.isNull() && !SharesArea(layout, table, seat, bet)) return alone;
  return {static_cast<double>(layout.CheckX(seat, bet)), static_cast<double>(layout.CheckY(seat, bet))};
}

}  // namespace tessaryn
