// What the parts of the layout are built with. For the files that build it alone.
#pragma once

#include "shell/table/table_areas.h"
#include "state/settings.h"

namespace tessaryn {

struct PayoffTables;

struct LayoutBuilder {
  const Settings& settings;
  const PayoffTables& payoffs;
  TableLayout layout;

  void Place(SeatId seat, BetId bet, QPointF point);
  // Null for a bet that the house doesn't offer.
  TableArea* Add(BetId bet, int side, const QPainterPath& outline, Ground fill);
  QString Pays(BetId bet) const;  // "30 TO 1"
};

inline constexpr double kGap = 1.2;       // between neighbouring areas
inline constexpr double kCaption = 8.25;  // the height of small capitals
inline constexpr double kCaptionRoom = 12;

QRectF LayoutBox(double left, double top, double right, double bottom);
QPainterPath RoundedBox(const QRectF& box);
QTransform LayoutMirror();
TableLabel Caption(const QString& text, const QRectF& box, double cap = kCaption, Ink ink = Ink::kLetter);
TableLabel LeftCaption(const QString& text, const QRectF& box, double cap = kCaption);
TableLabel DiceLabel(int die1, int die2, const QRectF& box);
// "30 TO 1", and "30:1" where there is no room for it.
TableLabel PayoffLabel(const QString& pays, const QRectF& box);

struct LetteredBet {
  BetId bet;
  const char* label;
  const char* second;  // the second line, or what is shorter
};

// The block of bets that all seats share, and the side bets of both ends.
void AddMiddle(LayoutBuilder& build);
void AddSideBets(LayoutBuilder& build);
void PlaceSeats(TableLayout& layout);

}  // namespace tessaryn
