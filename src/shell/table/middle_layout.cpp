// The block of bets in the middle, which all eight seats share, and the side bets of the two ends.
#include <QCoreApplication>
#include <algorithm>
#include <string_view>
#include <utility>

#include "base/bet_catalogue.h"
#include "shell/table/layout_builder.h"
#include "state/bet_families.h"

namespace tessaryn {

namespace {

struct DiceBet {
  BetId bet;
  int die1;
  int die2;
};
constexpr DiceBet kHorns[] = {{kTwo, 1, 1}, {kTwelve, 6, 6}, {kThree, 1, 2}, {kEleven, 5, 6}};
constexpr DiceBet kHardways[] = {{kHard4, 2, 2}, {kHard10, 5, 5}, {kHard6, 3, 3}, {kHard8, 4, 4}};
// By total, the pair last.
constexpr DiceBet kHops[] = {{kHop13, 1, 3}, {kHop22, 2, 2}, {kHop14, 1, 4}, {kHop23, 2, 3}, {kHop15, 1, 5},
                             {kHop24, 2, 4}, {kHop33, 3, 3}, {kHop16, 1, 6}, {kHop25, 2, 5}, {kHop34, 3, 4},
                             {kHop26, 2, 6}, {kHop35, 3, 5}, {kHop44, 4, 4}, {kHop36, 3, 6}, {kHop45, 4, 5},
                             {kHop46, 4, 6}, {kHop55, 5, 5}};
constexpr LetteredBet kSevenRow[] = {{kSeven, "ANY SEVEN", "SEVEN"}};
constexpr LetteredBet kCrapsRow[] = {{kCraps, "ANY CRAPS", "CRAPS"}};
constexpr LetteredBet kSharedRow[] = {{kCAndE, "C & E", "C&E"}, {kHorn, "HORN", "H"}, {kWorld, "WORLD", "W"}};
constexpr LetteredBet kOverUnderRow[] = {
    {kUnder7, "UNDER 7", "UND 7"}, {kMidway, "MIDWAY", "MID"}, {kOver7, "OVER 7", "OV 7"}};
// The second line where the name has two.
constexpr LetteredBet kSpecials[] = {{kAllSmall, "ALL SMALL", nullptr}, {kAllTall, "ALL TALL", nullptr},
                                     {kMakeAll, "MAKE ALL", nullptr},   {kFourRolls, "4 ROLLS", "NO 7"},
                                     {kPoint7, "POINT 7", nullptr},     {kSevenPoint7, "7 POINT 7", nullptr},
                                     {kFire, "FIRE", nullptr},          {kSharpShooter, "SHARP", "SHOOTER"},
                                     {kRideTheLine, "RIDE THE", "LINE"}};

// Where there is no room for the whole name, what tells it from the others.
constexpr std::pair<std::string_view, const char*> kShorterNames[] = {
    {"ALL SMALL", "SMALL"}, {"ALL TALL", "TALL"},    {"MAKE ALL", "MAKE"},
    {"POINT 7", "PT 7"},    {"7 POINT 7", "7 PT 7"}, {"SHOOTER", "SHOOT"}};

constexpr double kLeft = 568;
constexpr double kRight = 679;

// --- The middle.

// An area of the middle; the eight seats' stacks stand about a point, each end's on its side.
TableArea* AddCell(LayoutBuilder& build, BetId bet, const QRectF& box, QPointF stacks, double pitch = 7.2) {
  TableArea* area = build.Add(bet, 0, RoundedBox(box), Ground::kMiddle);
  if (area == nullptr) return nullptr;
  const QPointF centre = box.topLeft() + stacks;
  build.layout.Alone[0][bet] = centre;
  constexpr int kRow[kSeats] = {0, 1, 1, 0, 0, 1, 1, 0};
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const double column = (seat - 1) / 2 - 1.5;
    build.Place(seat, bet, centre + QPointF(column * pitch, kRow[seat - 1] == 0 ? -4 : 4));
  }
  return area;
}

void AddHeading(LayoutBuilder& build, const QString& text, double top) {
  TableHeading heading{LayoutBox(kLeft, top, kRight, top + 13), Ground::kHead, {}};
  heading.Labels.push_back(Caption(text, heading.Box.adjusted(2, 0.5, -2, -0.5), kCaption, Ink::kAccent));
  build.layout.Headings.push_back(heading);
}

// A bet of the whole width: its name, and what it pays below.
void AddWide(LayoutBuilder& build, const LetteredBet& bet, double top) {
  const QRectF box = LayoutBox(kLeft, top, kRight, top + 27);
  TableArea* area = AddCell(build, bet.bet, box, {84, 13.5}, 9);
  if (area == nullptr) return;
  area->Labels.push_back(
      LeftCaption(bet.label, LayoutBox(box.left() + 5, top + 1, box.left() + 68, top + 13.4), 12));
  area->Labels.back().Shorter = {bet.second};
  area->Labels.push_back(
      PayoffLabel(build.Pays(bet.bet), LayoutBox(box.left() + 5, top + 14, box.left() + 62, top + 26)));
}

// Bets by name side by side. What is several bets in one pays as these do, and says no payoff of its own.
void AddNames(LayoutBuilder& build, const LetteredBet (&bets)[3], double top) {
  for (int n = 0; n < 3; ++n) {
    const double left = kLeft + n * 37.3;
    const QRectF box = LayoutBox(left, top, left + 36.2, top + 24);
    TableArea* area = AddCell(build, bets[n].bet, box, {18.1, 12}, 7.4);
    if (area == nullptr) continue;
    area->Labels.push_back(Caption(bets[n].label, box.adjusted(2, 3, -2, -3), 10.5));
    area->Labels.back().Shorter = {bets[n].second};
  }
}

// Two by two: dice, what they pay below, and the stacks at the right.
void AddDicePairs(LayoutBuilder& build, const DiceBet (&bets)[4], double top) {
  for (int n = 0; n < 4; ++n) {
    const double left = kLeft + n % 2 * 56;
    const double y = top + n / 2 * 32;
    TableArea* area = AddCell(build, bets[n].bet, LayoutBox(left, y, left + 55, y + 31), {40.5, 16});
    if (area == nullptr) continue;
    area->Labels.push_back(
        DiceLabel(bets[n].die1, bets[n].die2, LayoutBox(left + 2, y + 2.6, left + 29, y + 15.2)));
    area->Labels.push_back(
        PayoffLabel(build.Pays(bets[n].bet), LayoutBox(left + 3, y + 17.4, left + 31, y + 29.4)));
  }
}

// What all hops of a kind pay; nothing where the house tells them apart.
QString HopPayoff(const LayoutBuilder& build, bool pairs) {
  QString all;
  for (const DiceBet& hop : kHops) {
    if ((hop.die1 == hop.die2) != pairs) continue;
    const QString pays = build.Pays(hop.bet);
    if (!all.isEmpty() && all != pays) return {};
    all = pays;
  }
  return all.replace(QStringLiteral(" TO "), QStringLiteral(":"));
}

void AddHopHeading(LayoutBuilder& build, double top) {
  TableHeading heading{LayoutBox(kLeft, top, kRight, top + 13), Ground::kHead, {}};
  const QString plain = HopPayoff(build, false);
  const QString pairs = HopPayoff(build, true);
  const QRectF box = heading.Box.adjusted(3, 0.5, -3, -0.5);
  TableLabel name = LeftCaption(QCoreApplication::translate("TableLayout", "HOPS"), box);
  name.Box.setRight(box.left() + 32);
  name.Colour = Ink::kAccent;
  heading.Labels.push_back(name);
  if (!plain.isEmpty() && !pairs.isEmpty()) {
    //: On the felt: what a hop pays, and what a pair pays.
    TableLabel pays =
        Caption(QCoreApplication::translate("TableLayout", "%1  PAIRS %2").arg(plain, pairs), box);
    pays.Box.setLeft(box.left() + 33);
    pays.Shorter = {plain + QStringLiteral("  ") + pairs};
    heading.Labels.push_back(pays);
  }
  build.layout.Headings.push_back(heading);
}

void AddHops(LayoutBuilder& build, double top) {
  constexpr double kRow = 33.5;
  constexpr double kHeight = 32.5;
  constexpr double kEach = 31.7;
  for (int total = 4; total <= 10; ++total) {
    const double y = top + (total - 4) * kRow;
    TableHeading head{LayoutBox(kLeft, y, kLeft + 15, y + kHeight), Ground::kHead, {}};
    head.Labels.push_back(
        Caption(QString::number(total), head.Box.adjusted(1.5, 4, -1.5, -4), 10.5, Ink::kAccent));
    build.layout.Headings.push_back(head);
    int column = 0;
    for (const DiceBet& hop : kHops) {
      if (hop.die1 + hop.die2 != total) continue;
      const double left = kLeft + 16.3 + column++ * kEach;
      TableArea* area = AddCell(build, hop.bet, LayoutBox(left, y, left + 30.7, y + kHeight), {15.6, 19.5});
      if (area == nullptr) continue;
      area->Gold = hop.die1 == hop.die2;
      area->Labels.push_back(
          DiceLabel(hop.die1, hop.die2, LayoutBox(left + 1.4, y + 2.2, left + 29.3, y + 14.8)));
    }
    for (; column < 3; ++column) {
      const double left = kLeft + 16.3 + column * kEach;
      build.layout.Headings.push_back({LayoutBox(left, y, left + 30.7, y + kHeight), Ground::kUnused, {}});
    }
  }
}

// --- The side bets: at both ends alike.

constexpr double kSideLeft = 94;
constexpr double kSideRight = 236;
constexpr double kSideTop = 45.5;
constexpr double kSideRow = 33.3;
constexpr double kSideHeight = 32;
constexpr double kOtherEnd = 917;  // from an end's block to the other's

QRectF SideBox(BetId bet) {
  int cell = 0;
  for (const LetteredBet& special : kSpecials) {
    if (special.bet == bet) break;
    cell += special.bet == kMakeAll ? 2 : 1;
  }
  const double left = cell % 2 == 0 ? kSideLeft : kSideLeft + 71.8;
  const double top = kSideTop + cell / 2 * kSideRow;
  return LayoutBox(left, top, bet == kMakeAll ? kSideRight : left + 70.2, top + kSideHeight);
}

// Numbers that the bet wants, in a row; each turns gold as it is rolled.
void AddNumbers(LayoutBuilder& build, TableArea& area, const QRectF& box, std::uint32_t numbers) {
  const bool tight = area.Id == kAllTall;  // of long numbers beside the stack's place
  double x = box.left() + 2.2;
  for (int number = 2; number <= 12; ++number) {
    if ((numbers >> number & 1) == 0) continue;
    const double width = number >= 10 ? 10.4 : tight ? 6 : 7.6;
    const QRectF place = LayoutBox(x, box.top() + 15.5, x + width, box.top() + 28.5);
    TableLabel label =
        Caption(QString::number(number), place.adjusted(0.1, 0.5, -0.1, -0.5), kCaption, Ink::kSoft);
    label.Narrowest = 0.7;  // a row without its 10 would promise what the bet doesn't pay
    area.Labels.push_back(label);
    label.Colour = Ink::kDark;
    build.layout.Marks.push_back({Progress::kNumber, area.Id, number, place, label});
    x += width + (tight ? 0.3 : 0.8);
  }
}

void AddMarks(LayoutBuilder& build, BetId bet, Progress kind, int count, QPointF first, QPointF step,
              QSizeF size) {
  for (int n = 0; n < count; ++n)
    build.layout.Marks.push_back({kind, bet, n, QRectF(first + step * n, size), {}});
}

void AddProgress(LayoutBuilder& build, TableArea& area, const QRectF& box) {
  const QPointF corner = box.topLeft();
  switch (area.Id) {
    case kAllSmall:
      return AddNumbers(build, area, box, kSmallMarks);
    case kAllTall:
      return AddNumbers(build, area, box, kTallMarks);
    case kMakeAll:
      return AddNumbers(build, area, box, kAllMarks);
    case kFourRolls:
      return AddMarks(build, area.Id, Progress::kRoll, 4, corner + QPointF(28, 16.4), {5.2, 0}, {4.4, 5.8});
    case kFire:
      return AddMarks(build, area.Id, Progress::kPoint, 6, corner + QPointF(4, 19), {6.3, 0}, {5.4, 5.4});
    case kSharpShooter:
      return AddMarks(build, area.Id, Progress::kCount, 1, corner + QPointF(28, 1.5), {}, {13, 11.5});
    case kRideTheLine:
      return AddMarks(build, area.Id, Progress::kCount, 1, corner + QPointF(24, 15.5), {}, {13, 11.5});
    default:
      return;
  }
}

void AddSideBet(LayoutBuilder& build, const LetteredBet& special, int side) {
  const QRectF box = SideBox(special.bet).translated(side == 1 ? 0 : kOtherEnd, 0);
  TableArea* area = build.Add(special.bet, side, RoundedBox(box), Ground::kSide);
  if (area == nullptr) return;
  const auto line = [&](const char* text, double top) {
    area->Labels.push_back(
        LeftCaption(text, LayoutBox(box.left() + 4, box.top() + top, box.left() + 49, box.top() + top + 12)));
    for (const auto& [whole, shorter] : kShorterNames)
      if (whole == text) area->Labels.back().Shorter = {QString(shorter)};
  };
  line(special.label, 1.5);
  if (special.second != nullptr) line(special.second, 13.4);
  AddProgress(build, *area, box);
  const QPointF stack(box.right() - 12.4, box.top() + 17);
  build.layout.Alone[side][special.bet] = stack;
  for (int place = 0; place < 4; ++place)
    build.Place((side == 1 ? 1 : 5) + place, special.bet,
                stack + QPointF(place % 2 == 0 ? -4.6 : 4.6, place / 2 == 0 ? -4.2 : 4.2));
}

template <typename Row, std::size_t kRows>
constexpr BetSet BetsIn(const Row (&rows)[kRows]) {
  BetSet bets;
  for (const Row& row : rows) bets.Add(row.bet);
  return bets;
}
static_assert((BetsIn(kSevenRow) | BetsIn(kHardways) | BetsIn(kHorns) | BetsIn(kCrapsRow) |
               BetsIn(kSharedRow) | BetsIn(kOverUnderRow) | BetsIn(kHops) | BetsIn(kSpecials)) ==
                  BetsWhere([](const FamilyRow& row) {
                    return row.felt == Felt::kMiddle || row.felt == Felt::kSpecials;
                  }),
              "a bet without its place on the felt");

}  // namespace

void AddMiddle(LayoutBuilder& build) {
  AddHeading(build, QCoreApplication::translate("TableLayout", "ONE ROLL"), 10.5);
  AddWide(build, kSevenRow[0], 24.5);
  AddDicePairs(build, kHorns, 52.5);
  AddWide(build, kCrapsRow[0], 116.5);
  AddNames(build, kSharedRow, 144.5);
  AddNames(build, kOverUnderRow, 169.5);
  AddHeading(build, QCoreApplication::translate("TableLayout", "HARDWAYS"), 196.2);
  AddDicePairs(build, kHardways, 210.4);
  AddHopHeading(build, 277.2);
  AddHops(build, 291.4);
}

void AddSideBets(LayoutBuilder& build) {
  for (int side = 1; side <= 2; ++side) {
    const std::size_t before = build.layout.Areas.size();
    for (const LetteredBet& special : kSpecials) AddSideBet(build, special, side);
    if (build.layout.Areas.size() == before) continue;
    TableHeading heading{LayoutBox(kSideLeft, 31.5, kSideRight, 44.5), Ground::kSideHead, {}};
    if (side == 2) heading.Box.translate(kOtherEnd, 0);
    heading.Labels.push_back(Caption(QCoreApplication::translate("TableLayout", "SIDE BETS"),
                                     heading.Box.adjusted(2, 0.5, -2, -0.5), kCaption, Ink::kAccent));
    build.layout.Headings.push_back(heading);
  }
}

}  // namespace tessaryn
