#include "shell/table/check_piles.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "shell/table/pictures.h"

namespace tessaryn {

CheckPile BreakIntoChecks(Currency amount, const Currency (&checkValue)[6], int most) {
  CheckPile pile;
  Currency rest = Abs(amount);
  for (int n = 5; n >= 1; --n) {
    if (checkValue[n].raw <= 0) continue;
    std::int64_t count = rest.raw / checkValue[n].raw;
    rest = Currency::FromRaw(rest.raw % checkValue[n].raw);
    for (; count > 0 && static_cast<int>(pile.size()) < most; --count) pile.push_back(n);
  }
  if (rest.raw > 0) {
    if (static_cast<int>(pile.size()) >= most) pile.pop_back();
    pile.push_back(6);
  }
  return pile;
}

const CheckPile& BetPiles::PileOf(SeatId seat, BetId bet, Currency amount, const Currency (&checkValue)[6]) {
  constexpr int kMostKept = 40;  // more are changed for the fewest
  Kept& kept = piles_[{seat, bet}];
  kept.up = true;
  const auto changeAll = [&] {
    kept.pile = BreakIntoChecks(amount, checkValue, kMostKept);
    std::copy(checkValue, checkValue + 6, kept.values.begin());
  };
  const Currency change = amount - kept.amount;
  const bool sameChecks = std::equal(kept.values.begin(), kept.values.end(), checkValue);
  if (!sameChecks || kept.amount <= kZero || amount <= kZero) {
    changeAll();
  } else if (change > kZero) {
    const CheckPile added = BreakIntoChecks(change, checkValue, kMostKept);
    kept.pile.insert(kept.pile.end(), added.begin(), added.end());
    if (kept.pile.size() > kMostKept) changeAll();
  } else if (change < kZero) {
    Currency rest = -change;
    CheckPile pile = kept.pile;
    while (!pile.empty() && pile.back() <= 5 && checkValue[pile.back()] <= rest) {
      rest -= checkValue[pile.back()];
      pile.pop_back();
    }
    if (rest == kZero)
      kept.pile = pile;
    else
      changeAll();
  }
  kept.amount = amount;
  return kept.pile;
}

void BetPiles::ForgetOthers() {
  for (auto each = piles_.begin(); each != piles_.end();)
    each = std::exchange(each->second.up, false) ? std::next(each) : piles_.erase(each);
}

namespace {

constexpr std::size_t kMostPiles = 600;  // kept at a time

}  // namespace

void CheckPictures::SetSize(double diameter, double devicePixelRatio, const Currency (&checkValue)[6],
                            bool centsSymbol) {
  if (diameter == diameter_ && devicePixelRatio == ratio_ && centsSymbol == centsSymbol_ &&
      std::equal(values_.begin(), values_.end(), checkValue))
    return;
  diameter_ = diameter;
  ratio_ = devicePixelRatio;
  centsSymbol_ = centsSymbol;
  std::copy(checkValue, checkValue + 6, values_.begin());
  Forget();
}

void CheckPictures::Forget() {
  pictures_.fill({});
  piles_.clear();
}

const QPixmap& CheckPictures::CheckPictureOf(int denomination) {
  QPixmap& picture = pictures_[denomination];
  if (picture.isNull()) {
    Currency values[6];
    std::copy(values_.begin(), values_.end(), values);
    picture = CheckPicture(denomination, CheckText(denomination, values, centsSymbol_),
                           std::max(4, static_cast<int>(std::lround(diameter_))), ratio_);
  }
  return picture;
}

QPointF CheckPictures::Origin() const {
  return {diameter_ / 2, diameter_ / 2 + kPileHeight * kStackStep * diameter_};
}

const QPixmap& CheckPictures::PilePicture(const CheckPile& pile) {
  if (piles_.size() > kMostPiles) piles_.clear();
  QPixmap& picture = piles_[pile];
  if (!picture.isNull()) return picture;
  const QSizeF size(diameter_ * 1.2, Origin().y() + diameter_ * 0.75);
  picture = QPixmap((size * ratio_).toSize());
  picture.setDevicePixelRatio(ratio_);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 70));
  painter.drawEllipse(Origin() + QPointF(diameter_ * 0.08, diameter_ * 0.1), diameter_ / 2, diameter_ / 2);
  for (std::size_t n = 0; n < pile.size(); ++n) {
    const double up = static_cast<double>(n) * diameter_ * kStackStep;
    painter.drawPixmap(Origin() - QPointF(diameter_ / 2, diameter_ / 2 + up), CheckPictureOf(pile[n]));
  }
  return picture;
}

}  // namespace tessaryn
