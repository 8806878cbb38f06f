// Pictures that the program draws itself: the faces of the dice, checks, the program's icon.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

#include "base/money.h"
#include "state/looks.h"

class QPainter;

namespace tessaryn {

// The checks by denomination 1 to 5, and 6 the "$" check for what does not break down.
inline constexpr int kCheckFaces = 6;

// A die's face in a square of side 1 centred on the origin, in the painter's own units.
void PaintDie(QPainter& painter, int face, const QColor& body, const QColor& pips);
// The same small and plain, as it is printed on the felt.
void PaintFlatDie(QPainter& painter, int face, const QColor& body, const QColor& pips);
// A check in a circle of diameter 1 centred on the origin. denomination 1 to 6. text: its value, or "$".
void PaintCheck(QPainter& painter, int denomination, const QString& text);
// The text of a check: whole dollars, or with cents; below a dollar as cents alone where the table uses their
// sign; "$" for denomination 6.
QString CheckText(int denomination, const Currency (&checkValue)[6], bool centsSymbol = false);
// The colours of the checks from here on, in all their pictures. What was made of others must be made anew.
void SetCheckColors(const std::uint32_t (&colors)[kCheckColors]);

QColor CheckBodyColor(int denomination);

// Two dice, for boxes and the icon. size in device-independent pixels.
QPixmap DicePicture(int size, double devicePixelRatio);
QPixmap CheckPicture(int denomination, const QString& text, int size, double devicePixelRatio);
QIcon ProgramIcon();

inline const QColor kDiceRed(0xC8, 0x20, 0x2B);
inline const QColor kDiceBlue(28, 68, 180);

}  // namespace tessaryn
