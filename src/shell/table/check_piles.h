// What an amount is piled up of, and the pictures of piles.
#pragma once

#include <QPixmap>
#include <QPointF>
#include <array>
#include <map>
#include <vector>

#include "base/money.h"

namespace tessaryn {

// A pile: denominations 1 to 6 from the bottom up.
using CheckPile = std::vector<int>;
// The checks that make up an amount, largest at the bottom, at most so many; what does not break down is a
// "$" check on top. A pile that would be too high shows its largest checks.
CheckPile BreakIntoChecks(Currency amount, const Currency (&checkValue)[6], int most);

inline constexpr int kPileHeight = 5;        // checks that show
inline constexpr int kSharedPileHeight = 2;  // of a stack beside which others stand
inline constexpr double kStackStep = 0.12;   // of a check's diameter, from one check to the next above it

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

// How the checks of each bet came to lie, for a table on which they aren't changed for the fewest.
class BetPiles {
 public:
  // The pile of a bet as it lies now: what was added lies on top, what was taken is taken off the top as far
  // as its checks are worth just that; else the amount is changed as a whole.
  const CheckPile& PileOf(SeatId seat, BetId bet, Currency amount, const Currency (&checkValue)[6]);
  // All bets have been asked for: those that were not are down.
  void ForgetOthers();

 private:
  struct Kept {
    Currency amount;
    CheckPile pile;
    std::array<Currency, 6> values{};
    bool up = false;  // asked for since the others were forgotten
  };
  std::map<std::pair<SeatId, BetId>, Kept> piles_;
};

}  // namespace tessaryn
