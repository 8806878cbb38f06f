// How the program looks beside the table: its light and its dark palette, the style that draws the edges of
// controls so that they are seen in both, and the measures of the window's parts by its size.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QSize>

namespace tessaryn {

enum class Scheme { kAsDesktop = 0, kLight = 1, kDark = 2 };

// The colours of windows and controls.
struct Tones {
  QColor window;
  QColor panel;
  QColor text;
  QColor second;     // of less weight
  QColor edge;       // of controls
  QColor primary;    // the button that goes on
  QColor onPrimary;  // its text
  QColor won;        // figures on a panel
  QColor lost;
  QColor focus;
};
const Tones& LightTones();
const Tones& DarkTones();
// Those of the palette in force.
const Tones& TonesInForce();

// The board and the plates are dark in both.
inline const QColor kBoardTone(0x10, 0x14, 0x17);
inline const QColor kPlateTone(0x13, 0x17, 0x1A);
inline const QColor kRoomTone(0x26, 0x2C, 0x30);  // behind a table that doesn't fill its place
inline const QColor kCaptionTone(0xB4, 0xBE, 0xC6);
inline const QColor kWonTone(0x7B, 0xE0, 0xA3);
inline const QColor kLostTone(0xFF, 0x9C, 0x8F);
inline const QColor kGoldTone(0xFF, 0xD7, 0x5E);

QPalette PaletteOf(const Tones& tones);
// Gives the whole program the palette and the style; to be called again when the scheme changes. The style of
// the desktop goes with the first call.
void ApplyScheme(Scheme scheme);
bool IsDark(const QPalette& palette);
// For the one button of a screen that goes on: it stands out. To be given again as the program's palette
// changes.
QPalette PrimaryButton();
// The desktop wants nothing to move, where it tells so.
bool DesktopIsStill();

// --- Measures, in screen units.

struct Measures {
  bool compact = false;
  int board = 50;  // heights
  int controls = 56;
  int status = 22;
  QSize plate{150, 71};
  double plateText = 11.5;
  QSize roll{118, 44};  // the Roll button
  int check = 40;       // a check of the selector
  double boardDice = 36;
};
// By the size of the main window.
Measures MeasuresOf(QSize window);
inline constexpr QSize kSmallestWindow(800, 500);

// The font at a height in screen units.
QFont Sized(QFont font, double height, bool bold = false);

}  // namespace tessaryn
