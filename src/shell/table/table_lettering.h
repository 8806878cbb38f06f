// The lettering of the felt: its font, and how captions are fitted into their boxes at a scale.
#pragma once

#include <QFont>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

#include "shell/table/table_areas.h"

namespace tessaryn {

// The smallest height of capitals on the felt, in screen units: on a small table less.
double LeastCap(double scale);
// Fits all lettering of the layout for so many screen units to a table unit: what is too wide shrinks to the
// smallest height, then gives way to a shorter wording, then goes. Does nothing for the scale it is fitted
// for.
void FitLettering(TableLayout& layout, double scale);
// Makes the wordings of a label. Requires the table's font to be set.
void WordLabel(TableLabel& label);

// The square that each of the label's dice fills: its centre (first, second) and side.
struct LabelDice {
  QPointF First;
  QPointF Second;
  double Side = 0;
};
LabelDice PlaceLabelDice(const TableLabel& label);

// The family of the lettering that the program brings along; "Arial" where it can't be used.
QString BuiltInTableFont();
inline constexpr const char* kPlainTableFont = "Arial";
// Another family instead, before the first layout is built.
void SetTableFont(const QString& family);
// The user's own instead of both; empty for none.
void SetLetteringFont(const QString& family);
QFont TableFont(bool bold, double pixels);
// The same with capitals of that height.
QFont TableFontOfCap(double cap);

}  // namespace tessaryn
