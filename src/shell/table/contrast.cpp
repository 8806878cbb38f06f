#include "shell/table/contrast.h"

#include <QPalette>
#include <algorithm>
#include <cmath>

#include "shell/table/table_painter.h"

namespace tessaryn {
namespace {

double Linear(int channel) {
  const double share = channel / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}
double Brightness(QRgb colour) {
  return 0.2126 * Linear(qRed(colour)) + 0.7152 * Linear(qGreen(colour)) + 0.0722 * Linear(qBlue(colour));
}
bool IsExtreme(const QColor& colour) { return colour == QColor(Qt::black) || colour == QColor(Qt::white); }

}  // namespace

double ContrastOf(unsigned first, unsigned second) {
  const auto [dark, light] = std::minmax({Brightness(first), Brightness(second)});
  return (light + 0.05) / (dark + 0.05);
}

bool IsHighContrast(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  return IsExtreme(window) && IsExtreme(text) && window != text &&
         palette.color(QPalette::Active, QPalette::Button) == window;
}

void MakeHighContrast(TableColors& colors) {
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  const QColor yellow(255, 255, 0);
  colors.Room = colors.Felt = colors.Dark = colors.Rail = colors.Ink = black;
  colors.Middle = colors.Head = colors.Side = colors.SideHead = black;
  colors.Line = colors.Letter = colors.Soft = colors.Pips = white;
  colors.Lit = QColor(0, 0, 150);
  colors.Accent = yellow;
  colors.Dice = colors.Dice2 = QColor(96, 0, 0);
  colors.Texture = colors.Spotlight = 0;
}

}  // namespace tessaryn
