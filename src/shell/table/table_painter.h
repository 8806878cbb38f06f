// Draws the table from its layout through the view's transform, and the hidden map of the bets from the same
// outlines; and over it the checks, markers, dice and status boxes of the state.
#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <array>
#include <map>
#include <vector>

#include "shell/table/table_layout.h"
#include "shell/table/table_view.h"

class QPainter;

namespace tessaryn {

struct Game;

struct TableColors {
  QColor Room{38, 34, 32};  // round the table
  QColor Felt{12, 92, 58};
  QColor Rail{92, 54, 28};
  QColor RailPad{52, 34, 24};
  QColor Line{240, 234, 214};
  QColor Letter{250, 246, 232};
  QColor Accent{255, 214, 92};
  QColor Soft{205, 222, 205};
  QColor Dice{196, 24, 32};
  QColor Dice2{196, 24, 32};
  QColor Pips{255, 255, 255};
  QColor Puck{250, 250, 250};
  int Texture = 0;     // of the felt, 0 to 100
  int Spotlight = 50;  // 0 to 100
};
// Any values, as of a file, give a table that can be seen.
TableColors ColorsOf(const Looks& looks);

// White in the hit map: nothing there.
inline constexpr QRgb kNothing = 0xffffffffu;

// The table without anything that changes from roll to roll, into a picture of the window's device pixels.
// Two threads draw a half each, so each has a layout of its own: outlines keep what they worked out for
// drawing, and copies of one share it.
struct TableDrawing {
  TableLayout Left;
  TableLayout Right;
};
void DrawTable(QImage& picture, const TableDrawing& drawing, const TableView& view,
               const TableColors& colors);
// The hit map: each area filled, without blending, in a colour whose value is its id; visible stacks of
// occupied seats as seat * 1000 + 10 + stack. map has the window's size.
void DrawTableHotspots(QImage& map, const TableLayout& layout, const TableView& view, const Game& game);
// What lies under a point. An area is the selected seat's, as that seat means it: odds or their flat bet,
// Place or Buy. A stack at the rail is its own seat's CheckStack. Bet 0: nothing.
struct Hit {
  int Seat = 0;
  int Bet = 0;
  int Area = 0;  // the area's own id
};
Hit HitTest(const QImage& map, QPoint point, const Game& game);
// The same for an area's id, without a map.
int MeantBet(const Game& game, int id);
// The id of the area in which a bet's checks stand.
int AreaOf(int bet);

// A pile: denominations 1 to 6 from the bottom up.
using CheckPile = std::vector<int>;
// The checks that make up an amount, largest at the bottom, at most so many; what does not break down is a
// "$" check on top. A pile that would be too high shows its largest checks.
CheckPile BreakIntoChecks(Currency amount, const Currency (&checkValue)[6], int most);

// The pictures of checks and of whole piles at one size, made when first asked for.
class CheckPictures {
 public:
  // The size and the checks' values from here on; another one forgets what was made. diameter in
  // device-independent pixels.
  void SetSize(double diameter, double devicePixelRatio, const Currency (&checkValue)[6], bool centsSymbol);
  // The checks look different from here on.
  void Forget();
  // A pile with its shadow. Drawn with its top left corner at the pile's base less Origin().
  const QPixmap& PilePicture(const CheckPile& pile);
  QPointF Origin() const;

 private:
  const QPixmap& CheckPictureOf(int denomination);

  double diameter_ = 0;
  double ratio_ = 0;
  bool centsSymbol_ = false;
  std::array<Currency, 6> values_;
  std::array<QPixmap, 7> pictures_;
  std::map<CheckPile, QPixmap> piles_;
};

// Where the dice lie, in table units, and how they are turned.
struct DicePose {
  QPointF Die1{880, 268};
  QPointF Die2{905, 282};
  double Turn1 = 12;  // degrees
  double Turn2 = -25;
  double Height = 0;  // above the felt, 0 to 1
  int Face1 = 3;
  int Face2 = 4;
};

// How the checks of each bet came to lie, for a table on which they aren't changed for the fewest.
class BetPiles {
 public:
  // The pile of a bet as it lies now: what was added lies on top, what was taken is taken off the top as far
  // as its checks are worth just that; else the amount is changed as a whole.
  const CheckPile& PileOf(int seat, int bet, Currency amount, const Currency (&checkValue)[6]);
  // All bets have been asked for: those that were not are down.
  void ForgetOthers();

 private:
  struct Kept {
    Currency amount;
    CheckPile pile;
    std::array<Currency, 6> values{};
    bool up = false;  // asked for since the others were forgotten
  };
  std::map<std::pair<int, int>, Kept> piles_;
};

// A check that fell on the layout as the bank was broken.
struct FallenCheck {
  QPointF Place;  // table units
  int Denomination = 1;
};

// What of the state is shown, and how.
struct TableScene {
  const Game* game = nullptr;
  DicePose dice;
  bool showAmounts = false;  // the amounts of the bets beside the checks
  bool hideBets = false;     // while the bets flash
  bool showDice = true;
  int hoverBet = 0;  // the area under the pointer
  int focusBet = 0;  // the area with the keyboard's focus
  int focusSide = 0;
  int hoverSeat = 0;  // an open position under the pointer
  int heldBet = 0;    // a stack of the selected seat that hangs on the pointer
  QPointF heldAt;     // there, on the screen
  bool movingPlayer = false;
  std::vector<FallenCheck> rain;
  BetPiles* piles = nullptr;  // not owned; null: checks are always changed for the fewest
};

void DrawChecksAndDice(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                       const TableView& view, const TableColors& colors, CheckPictures& pictures);

// The lines of a seat's status box.
QStringList StatusLines(const Game& game, int seat);
// The seat's script and whether it is active, for the head of the box; empty without one.
QString ScriptText(const Game& game, int seat);
// Where the boxes of the occupied seats stand: near their seat, within the window, off each other and off all
// bets, off the rail too as far as there is room. Empty rectangles for empty seats, and where there is no
// room.
std::array<QRectF, kSeatRows> PlaceStatusBoxes(const Game& game, const TableLayout& layout,
                                               const TableView& view, const QFont& font);
void DrawStatusBoxes(QPainter& painter, const Game& game, const std::array<QRectF, kSeatRows>& boxes,
                     const QFont& font);

}  // namespace tessaryn
