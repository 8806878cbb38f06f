#include "shell/table/table_layout.h"

#include <QCoreApplication>
#include <QFont>
#include <QTransform>
#include <cmath>

#include "rules/bet_rules.h"
#include "rules/payoffs.h"
#include "state/bet_families.h"
#include "state/settings.h"

namespace tessaryn {

namespace {

// --- Shapes. The left end is drawn; the right end is its mirror.

QPainterPath Rectangle(double left, double top, double right, double bottom) {
  QPainterPath path;
  path.addRoundedRect(QRectF(QPointF(left, top), QPointF(right, bottom)), 1.5, 1.5);
  return path;
}

// A band that runs down the end of the table, round its corner and along the players' side.
constexpr QPointF kCorner(192, 344);
constexpr double kBandTop = 152;
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
QPainterPath CutByCorner(double left, double top, double right, double bottom, double radius) {
  QPainterPath inside;
  inside.addRect(kCorner.x(), 0, 700, kCorner.y() + radius);
  inside.addRect(0, 0, kCorner.x(), kCorner.y());
  inside.addEllipse(kCorner, radius, radius);
  inside.setFillRule(Qt::WindingFill);
  QPainterPath path;
  path.addRect(QRectF(QPointF(left, top), QPointF(right, bottom)));
  QPainterPath cut = path.intersected(inside.simplified());
  cut.closeSubpath();
  return cut;
}

QTransform Mirror() { return {-1, 0, 0, 1, 2 * kTableMiddle, 0}; }

// --- Lettering.

TableLabel Letters(const QString& text, QRectF box, Ink ink = Ink::kLetter, double rotation = 0) {
  TableLabel label;
  label.Text = text;
  label.Box = box;
  label.Colour = ink;
  label.Rotation = rotation;
  return label;
}

TableLabel Dice(int die1, int die2, QRectF box) {
  TableLabel label;
  label.Die1 = die1;
  label.Die2 = die2;
  label.Box = box;
  return label;
}

QRectF Box(double left, double top, double right, double bottom) {
  return {QPointF(left, top), QPointF(right, bottom)};
}

QString Payoff(const PayoffRecord& record) { return QString::fromStdString(PayoffText(record)).toUpper(); }

struct Builder {
  const Settings& settings;
  const PayoffTables& payoffs;
  TableLayout layout;

  void Place(int seat, int bet, QPointF point) {
    layout.CheckX(seat, bet) = static_cast<int>(std::lround(point.x()));
    layout.CheckY(seat, bet) = static_cast<int>(std::lround(point.y()));
  }
  QString Pays(int bet) const { return Payoff(payoffs.PayoffTable[bet]); }

  TableArea* Add(int bet, int side, const QPainterPath& outline) {
    if (!BetOffered(settings, bet)) return nullptr;
    layout.Areas.push_back({bet, side, outline, {}});
    return &layout.Areas.back();
  }
};

// Four places in a row, for the four seats of an end.
QPointF InRow(QRectF box, int place) {
  return {box.left() + box.width() * (2 * place + 1) / 8, box.center().y()};
}

// Two rows of two.
QPointF InSquare(QRectF box, int place) {
  return {box.left() + box.width() * (place % 2 == 0 ? 0.27 : 0.73),
          box.top() + box.height() * (place / 2 == 0 ? 0.27 : 0.73)};
}

int FirstSeat(int side) { return side == 1 ? 1 : 5; }

// --- The six boxes of an end.

struct ColumnRow {
  int firstBet;  // the bet of the 4; the other numbers follow
  double left;   // within the column
  double right;
  double top;
  double bottom;
  const char* label;
  double labelHeight;  // at the top
  bool square;         // places in a square rather than in a row
};

struct LetteredBet {
  int bet;
  const char* label;
};

constexpr double kHalf = kColumnWidth / 2;
constexpr double kGap = 1.2;  // between neighbouring areas

constexpr ColumnRow kColumnRows[] = {
    {kDontCome4, 0, kHalf, 50, 90, "DON'T\nCOME", 10, true},
    {kDontComeOdds4, kHalf, kColumnWidth, 50, 90, "ODDS", 6, true},
    {kLay4, 0, kColumnWidth, 90, 116, "LAY", 8, false},
    {kCome4, 0, kHalf, 116, 156, "COME", 6, true},
    {kComeOdds4, kHalf, kColumnWidth, 116, 156, "ODDS", 6, true},
    {kPlace4, 0, kColumnWidth, 156, 222, nullptr, 42, false},
    {kBuy4, 0, kColumnWidth, 222, 248, "BUY", 8, false},
};

constexpr const char* kNumberWords[6] = {"4", "5", "SIX", "8", "NINE", "10"};

void AddColumnArea(Builder& build, const ColumnRow& row, int side, int number) {
  const double x = (side == 1 ? kLeftColumns : kRightColumns) + number * kColumnWidth;
  const QRectF box =
      Box(x + row.left + kGap / 2, row.top + kGap / 2, x + row.right - kGap / 2, row.bottom - kGap / 2);
  const int bet = row.firstBet + number;
  TableArea* area = build.Add(bet, side, Rectangle(box.left(), box.top(), box.right(), box.bottom()));
  const QRectF head = Box(box.left() + 2, box.top() + 2, box.right() - 2, box.top() + 2 + row.labelHeight);
  const bool isBox = row.label == nullptr;
  area->Labels.push_back(isBox ? Letters(kNumberWords[number], head.adjusted(2, 4, -2, -4), Ink::kAccent)
                               : Letters(row.label, head, Ink::kSoft));
  const QRectF places = Box(box.left(), box.top() + row.labelHeight + 2, box.right(), box.bottom());
  for (int place = 0; place < 4; ++place)
    build.Place(FirstSeat(side) + place, bet, row.square ? InSquare(places, place) : InRow(places, place));
}

void AddColumns(Builder& build) {
  for (int side = 1; side <= 2; ++side)
    for (int number = 0; number < 6; ++number)
      for (const ColumnRow& row : kColumnRows) AddColumnArea(build, row, side, number);
}

// --- The bands and the fields of an end. Drawn for the left end and mirrored.

// An area of the left end with the places of seats 1 to 4.
struct EndArea {
  int bet;
  QPainterPath outline;
  std::vector<TableLabel> labels;
  QPointF places[4];
  bool inOrder = false;  // several labels that read from left to right on both ends
};

// How far the labels of an area move to stand on the other end in the same order.
double ShiftOf(const std::vector<TableLabel>& labels) {
  QRectF all;
  for (const TableLabel& label : labels) all |= label.Box;
  return 2 * kTableMiddle - all.left() - all.right();
}

void AddEndArea(Builder& build, const EndArea& ends) {
  for (int side = 1; side <= 2; ++side) {
    TableArea* area = build.Add(ends.bet, side, side == 1 ? ends.outline : Mirror().map(ends.outline));
    if (area == nullptr) return;
    for (TableLabel label : ends.labels) {
      if (side == 2 && ends.inOrder && label.Rotation == 0) {
        label.Box.translate(ShiftOf(ends.labels), 0);
      } else if (side == 2) {
        label.Box.moveCenter(Mirror().map(label.Box.center()));
        label.Rotation = -label.Rotation;
      }
      area->Labels.push_back(label);
    }
    for (int place = 0; place < 4; ++place) {
      if (side == 1)
        build.Place(1 + place, ends.bet, ends.places[place]);
      else
        build.Place(8 - place, ends.bet, Mirror().map(ends.places[place]));
    }
  }
}

constexpr double kOddsOuter = 149;
constexpr double kPassOuter = 126;
constexpr double kPassInner = 95;
constexpr double kDontInner = 69;
constexpr double kFieldCorner = 66;

void AddLines(Builder& build) {
  const int bar = build.settings.BarNumber == 2 ? 1 : 6;
  AddEndArea(build, {kPassLineOdds,
                     Band(kOddsOuter, kPassOuter + kGap),
                     {Letters("ODDS", Box(300, 475, 370, 488), Ink::kSoft)},
                     {{55, 205}, {55, 330}, {238, 482}, {430, 482}}});
  AddEndArea(build, {kPassLine,
                     Band(kPassOuter, kPassInner),
                     {Letters("PASS LINE", Box(250, 443, 540, 466)),
                      Letters("PASS LINE", Box(7, 254, 157, 276), Ink::kLetter, -90)},
                     {{82, 186}, {82, 344}, {222, 455}, {418, 457}}});
  AddEndArea(build,
             {kDontPass,
              Band(kPassInner - kGap, kDontInner),
              {Letters("DON'T PASS BAR", Box(284, 418, 400, 434)), Dice(bar, bar, Box(472, 416, 506, 434))},
              {{111, 186}, {111, 330}, {232, 428}, {420, 428}}});
  // The odds of Don't Pass stand beside their bet, in its area.
  constexpr QPointF kLaidOdds[4] = {{111, 206}, {111, 312}, {252, 428}, {440, 428}};
  for (int place = 0; place < 4; ++place) {
    build.Place(1 + place, kDontPassOdds, kLaidOdds[place]);
    build.Place(8 - place, kDontPassOdds, Mirror().map(kLaidOdds[place]));
  }
}

// The Field's numbers; the two that pay more are ringed and say what they pay.
void AddField(Builder& build) {
  EndArea field{kField, CutByCorner(240, 331, 560, 410, kFieldCorner), {}, {}};
  constexpr int kNumbers[7] = {2, 3, 4, 9, 10, 11, 12};
  for (int n = 0; n < 7; ++n) {
    const double x = 244 + n * 45;
    const bool end = n == 0 || n == 6;
    TableLabel number =
        Letters(QString::number(kNumbers[n]), Box(x, end ? 340 : 338, x + 42, end ? 358 : 354), Ink::kAccent);
    number.Ring = end;
    field.labels.push_back(number);
    if (end)
      field.labels.push_back(
          Letters(QCoreApplication::translate("TableLayout", "PAYS") + " " +
                      Payoff(build.payoffs.FieldPayoffs[FieldRow(n == 0 ? 1 : 6, n == 0 ? 1 : 6)]),
                  Box(x, 364, x + 42, 371), Ink::kSoft));
  }
  field.labels.push_back(Letters("FIELD", Box(330, 360, 470, 384)));
  for (int place = 0; place < 4; ++place) field.places[place] = InRow(Box(250, 386, 550, 406), place);
  field.inOrder = true;
  AddEndArea(build, field);
}

void AddBig(Builder& build, int bet, const char* label, double left, double right) {
  EndArea big{bet, CutByCorner(left, 331, right, 410, kFieldCorner), {}, {}};
  const double middle = bet == kBig6 ? 166 : (left + right) / 2;
  big.labels.push_back(Letters("BIG", Box(middle - 13, 335, middle + 13, 343), Ink::kSoft));
  big.labels.push_back(Letters(label, Box(middle - 13, 345, middle + 13, 366), Ink::kAccent));
  for (int place = 0; place < 4; ++place)
    big.places[place] = InSquare(Box(middle - 13, 364, middle + 15, 392), place);
  AddEndArea(build, big);
}

void AddEndFields(Builder& build) {
  const int bar = build.settings.BarNumber == 2 ? 1 : 6;
  EndArea come{
      kCome, Rectangle(128, 251, 560, 328), {Letters("COME", Box(220, 256, 470, 308), Ink::kAccent)}, {}};
  for (int place = 0; place < 4; ++place) come.places[place] = InRow(Box(130, 306, 556, 326), place);
  AddEndArea(build, come);
  EndArea dont{kDontCome, Rectangle(128, 174, 238, 248), {}, {}};
  dont.labels.push_back(Letters("DON'T COME", Box(133, 179, 233, 195)));
  dont.labels.push_back(Letters("BAR", Box(140, 200, 176, 216)));
  dont.labels.push_back(Dice(bar, bar, Box(184, 199, 222, 217)));
  for (int place = 0; place < 4; ++place) dont.places[place] = InRow(Box(130, 226, 236, 246), place);
  dont.inOrder = true;
  AddEndArea(build, dont);
  AddField(build);
  AddBig(build, kBig6, "6", 128, 183.4);
  AddBig(build, kBig8, "8", 184.6, 238);
}

// The bets on a whole hand, at both ends.
constexpr LetteredBet kSpecials[] = {{kAllSmall, "ALL SMALL"},
                                     {kAllTall, "ALL TALL"},
                                     {kMakeAll, "MAKE ALL"},
                                     {kFourRolls, "4 ROLLS NO 7"},
                                     {kPoint7, "POINT 7"},
                                     {kSevenPoint7, "7 POINT 7"},
                                     {kMidway, "MIDWAY"},
                                     {kSharpShooter, "SHARP SHOOTER"},
                                     {kRideTheLine, "RIDE THE LINE"},
                                     {kFire, "FIRE"}};

void AddSpecials(Builder& build) {
  for (int n = 0; n < static_cast<int>(std::size(kSpecials)); ++n) {
    const double left = 128 + (n % 2) * 55.2;
    const double top = 50 + (n / 2) * 24.6;
    EndArea area{kSpecials[n].bet, Rectangle(left, top, left + 54, top + 23.4), {}, {}};
    area.labels.push_back(Letters(kSpecials[n].label, Box(left + 3, top + 2, left + 51, top + 8.5)));
    for (int place = 0; place < 4; ++place)
      area.places[place] = InRow(Box(left + 1, top + 9, left + 53, top + 23), place);
    AddEndArea(build, area);
  }
}

// --- The middle block, which all eight seats share.

// An area of the middle: dice or a name, and the payoff under it.
void AddProposition(Builder& build, int bet, QRectF box, const QString& name, int die1 = 0, int die2 = 0) {
  TableArea* area = build.Add(bet, 0,
                              Rectangle(box.left() + kGap / 2, box.top() + kGap / 2, box.right() - kGap / 2,
                                        box.bottom() - kGap / 2));
  if (area == nullptr) return;
  const double half = box.height() * 0.5;
  const QRectF head = Box(box.left() + 3, box.top() + 2.5, box.right() - 3, box.top() + half - 0.5);
  const QRectF foot =
      Box(box.left() + 3, box.bottom() - box.height() * 0.26, box.right() - 3, box.bottom() - 2.5);
  if (die1 > 0)
    area->Labels.push_back(Dice(die1, die2, head));
  else
    area->Labels.push_back(Letters(name, head));
  // Bets that are several in one pay as these do; a ratio of their own would mislead.
  if (SharesOf(bet) == 1) area->Labels.push_back(Letters(build.Pays(bet), foot, Ink::kSoft));
  // Each end's seats on their side, in two rows.
  constexpr int kRow[kSeats] = {0, 1, 1, 0, 0, 1, 1, 0};
  const QRectF places =
      box.adjusted(box.width() * 0.04, box.height() * 0.14, -box.width() * 0.04, -box.height() * 0.02);
  for (int seat = 1; seat <= kSeats; ++seat) {
    const double column = (seat - 1) / 2;
    build.Place(seat, bet,
                {places.left() + places.width() * (2 * column + 1) / 8,
                 places.top() + places.height() * (kRow[seat - 1] == 0 ? 0.3 : 0.74)});
  }
}

struct DiceBet {
  int bet;
  int die1;
  int die2;
};
constexpr DiceBet kHardways[] = {{kHard4, 2, 2}, {kHard10, 5, 5}, {kHard6, 3, 3}, {kHard8, 4, 4}};
constexpr DiceBet kHorns[] = {{kThree, 1, 2}, {kEleven, 5, 6}, {kTwo, 1, 1}, {kTwelve, 6, 6}};
constexpr DiceBet kHops[] = {{kHop13, 1, 3}, {kHop14, 1, 4}, {kHop15, 1, 5}, {kHop16, 1, 6}, {kHop22, 2, 2},
                             {kHop23, 2, 3}, {kHop24, 2, 4}, {kHop25, 2, 5}, {kHop26, 2, 6}, {kHop33, 3, 3},
                             {kHop34, 3, 4}, {kHop35, 3, 5}, {kHop36, 3, 6}, {kHop44, 4, 4}, {kHop45, 4, 5},
                             {kHop46, 4, 6}, {kHop55, 5, 5}};

constexpr LetteredBet kSevenRow[] = {{kSeven, "SEVEN"}};
constexpr LetteredBet kCrapsRow[] = {{kCraps, "ANY CRAPS"}};
constexpr LetteredBet kSharedRow[] = {{kCAndE, "C & E"}, {kHorn, "HORN"}, {kWorld, "WORLD"}};
constexpr LetteredBet kOverUnderRow[] = {{kUnder7, "UNDER 7"}, {kOver7, "OVER 7"}};

constexpr double kMiddleLeft = 568;
constexpr double kMiddleWidth = 111;

// Bets by name side by side. Returns where they end.
template <int kCount>
double AddLetteredRow(Builder& build, const LetteredBet (&bets)[kCount], double top, double height) {
  constexpr double kEach = kMiddleWidth / kCount;
  for (int n = 0; n < kCount; ++n) {
    const double left = kMiddleLeft + n * kEach;
    AddProposition(build, bets[n].bet, Box(left, top, left + kEach, top + height), bets[n].label);
  }
  return top + height;
}

// A block of dice bets, so many in a row, from a height downwards.
template <int kCount>
double AddDiceBlock(Builder& build, const DiceBet (&bets)[kCount], int columns, double top, double height) {
  for (int n = 0; n < kCount; ++n) {
    const double width = kMiddleWidth / columns;
    const double left = kMiddleLeft + (n % columns) * width;
    const double y = top + (n / columns) * height;
    AddProposition(build, bets[n].bet, Box(left, y, left + width, y + height), {}, bets[n].die1,
                   bets[n].die2);
  }
  return top + (kCount + columns - 1) / columns * height;
}

void AddMiddle(Builder& build) {
  double y = 46;
  y = AddLetteredRow(build, kSevenRow, y, 30) + 1;
  y = AddDiceBlock(build, kHardways, 2, y, 35) + 1;
  y = AddDiceBlock(build, kHorns, 2, y, 32) + 1;
  y = AddLetteredRow(build, kCrapsRow, y, 29) + 1;
  y = AddLetteredRow(build, kSharedRow, y, 29) + 1;
  y = AddLetteredRow(build, kOverUnderRow, y, 27) + 1;
  AddDiceBlock(build, kHops, 3, y, 29.5);
}

// --- Every bet has its place.

template <typename Row, std::size_t kRows>
constexpr BetSet BetsIn(const Row (&rows)[kRows]) {
  BetSet bets;
  for (const Row& row : rows) bets.Add(row.bet);
  return bets;
}
constexpr BetSet kNumberBets = [] {
  BetSet bets;
  for (const ColumnRow& row : kColumnRows) bets = bets | BetRange(row.firstBet, row.firstBet + 5);
  return bets;
}();
constexpr BetSet OnFelt(Felt felt) {
  return BetsWhere([felt](const FamilyRow& row) { return row.felt == felt; });
}
constexpr bool kHasPlaces =
    kNumberBets == OnFelt(Felt::kNumbers) &&
    (BetRange(kPassLine, kDontCome) | BetRange(kField, kBig8)) == OnFelt(Felt::kLine) &&
    (BetsIn(kSevenRow) | BetsIn(kHardways) | BetsIn(kHorns) | BetsIn(kCrapsRow) | BetsIn(kSharedRow) |
     BetsIn(kOverUnderRow) | BetsIn(kHops)) == OnFelt(Felt::kMiddle) &&
    BetsIn(kSpecials) == OnFelt(Felt::kSpecials);
static_assert(kHasPlaces, "a bet without its place on the felt");

// --- The rail.

void PlaceSeats(TableLayout& layout) {
  struct Stand {
    QPointF spot;
    QPointF rail;
    QPointF out;
  };
  // Seats 1 to 4; 8 to 5 are their mirrors.
  constexpr Stand kStands[4] = {{{26, 76}, {47, 83}, {-0.81, -0.58}},
                                {{-12, 356}, {20, 356}, {-1, 0}},
                                {{160, 550}, {162, 514}, {-0.17, 0.985}},
                                {{425, 550}, {425, 517}, {0, 1}}};
  for (int n = 0; n < 4; ++n) {
    SeatPlace& left = layout.Seats[1 + n];
    left.Spot = kStands[n].spot;
    left.Rail = kStands[n].rail;
    left.Out = kStands[n].out;
    SeatPlace& right = layout.Seats[8 - n];
    right.Spot = QPointF(1248 - left.Spot.x(), left.Spot.y());
    right.Rail = Mirror().map(left.Rail);
    right.Out = QPointF(-left.Out.x(), left.Out.y());
  }
  for (int seat = 1; seat <= kSeats; ++seat) {
    SeatPlace& place = layout.Seats[seat];
    place.Along = QPointF(place.Out.y(), -place.Out.x());
  }
}

}  // namespace

QPointF VisibleStackPlace(const SeatPlace& place, int index) {
  return place.Rail - place.Out * 8 + place.Along * (index * 16.0 - 24);
}

void PlaceVisibleStacks(TableLayout& layout, int seat, const int (&stacks)[4]) {
  for (int stack = 0; stack < kCheckStacks; ++stack) {
    layout.CheckX(seat, kFirstCheckStack + stack) = 0;
    layout.CheckY(seat, kFirstCheckStack + stack) = 0;
  }
  for (int n = 0; n < 4; ++n) {
    const QPointF point = VisibleStackPlace(layout.Seats[seat], n);
    layout.CheckX(seat, kFirstCheckStack + stacks[n]) = static_cast<int>(std::lround(point.x()));
    layout.CheckY(seat, kFirstCheckStack + stacks[n]) = static_cast<int>(std::lround(point.y()));
  }
}

TableLayout BuildTableLayout(const Settings& settings, const PayoffTables& payoffs) {
  Builder build{settings, payoffs, {}};
  AddLines(build);
  AddEndFields(build);
  AddSpecials(build);
  AddColumns(build);
  AddMiddle(build);
  PlaceSeats(build.layout);
  for (TableArea& area : build.layout.Areas)
    for (TableLabel& label : area.Labels)
      if (label.Die1 == 0) label.Outline = LabelOutline(label);
  return std::move(build.layout);
}

QPainterPath RailOutline() {
  QPainterPath path;
  path.moveTo(169, 0);
  path.lineTo(436, 0);
  path.cubicTo(446, 0, 442, -23, 454, -23);
  path.lineTo(793, -23);
  path.cubicTo(805, -23, 801, 0, 811, 0);
  path.lineTo(1078, 0);
  path.arcTo(QRectF(909, 0, 338, 338), 90, -90);
  path.lineTo(1247, 344);
  path.arcTo(QRectF(863, 152, 384, 384), 0, -90);
  path.lineTo(192, 536);
  path.arcTo(QRectF(0, 152, 384, 384), 270, -90);
  path.lineTo(0, 169);
  path.arcTo(QRectF(0, 0, 338, 338), 180, -90);
  path.closeSubpath();
  return path;
}

QPainterPath FeltOutline() {
  QPainterPath path;
  path.moveTo(169, 24);
  path.lineTo(1078, 24);
  path.arcTo(QRectF(949, 24, 258, 290), 90, -90);
  path.lineTo(1207, 344);
  path.arcTo(QRectF(903, 192, 304, 304), 0, -90);
  path.lineTo(192, 496);
  path.arcTo(QRectF(40, 192, 304, 304), 270, -90);
  path.lineTo(40, 169);
  path.arcTo(QRectF(40, 24, 258, 290), 180, -90);
  path.closeSubpath();
  return path;
}

QPointF PuckPlace(int point, int side) {
  if (point == 0) return side == 1 ? QPointF(218, 37) : QPointF(2 * kTableMiddle - 218, 37);
  const double columns = side == 1 ? kLeftColumns : kRightColumns;
  return {columns + (BoxPosition(point) + 0.5) * kColumnWidth, 37};
}

namespace {
// The one thing that is the same for every table of the program: a font is registered for all of it.
QString& TableFontFamily() {
  static QString family = kDefaultTableFont;
  return family;
}
QString& LetteringFamily() {
  static QString family;
  return family;
}
}  // namespace

void SetTableFont(const QString& family) { TableFontFamily() = family; }

void SetLetteringFont(const QString& family) { LetteringFamily() = family; }

QFont TableFont(bool bold, double pixels) {
  QFont font(LetteringFamily().isEmpty() ? TableFontFamily() : LetteringFamily());
  font.setStyleHint(QFont::SansSerif);
  font.setBold(bold);
  font.setPixelSize(std::max(4, static_cast<int>(pixels)));
  return font;
}

QPainterPath LabelOutline(const TableLabel& label) {
  const QFont font = TableFont(true, 64);
  QPainterPath path;
  const QStringList lines = label.Text.split(QLatin1Char('\n'));
  for (int n = 0; n < lines.size(); ++n) {
    QPainterPath line;
    line.addText(0, 0, font, lines[n]);
    line.translate(-line.boundingRect().center().x(), n * 66);
    path.addPath(line);
  }
  const QRectF bounds = path.boundingRect();
  if (bounds.isEmpty()) return {};
  // Within a ring the text's corners must stay inside.
  const double scale =
      label.Ring ? 0.82 * label.Box.height() / std::hypot(bounds.width(), bounds.height())
                 : std::min(label.Box.width() / bounds.width(), label.Box.height() / bounds.height());
  QTransform place;
  place.translate(label.Box.center().x(), label.Box.center().y());
  place.rotate(label.Rotation);
  place.scale(scale, scale);
  place.translate(-bounds.center().x(), -bounds.center().y());
  path = place.map(path);
  if (label.Ring) {
    const double radius = label.Box.height() / 2;
    QPainterPath ring;
    ring.addEllipse(label.Box.center(), radius, radius);
    ring.addEllipse(label.Box.center(), radius - 1.1, radius - 1.1);
    path.addPath(ring);
  }
  return path;
}

LabelDice PlaceLabelDice(const TableLabel& label) {
  const double side = std::min(label.Box.height(), label.Box.width() / 2.15);
  const QPointF step(side * 0.56, 0);
  return {label.Box.center() - step, label.Box.center() + step, side};
}

}  // namespace tessaryn
