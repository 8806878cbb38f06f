// Draws the table from its layout through the view's transform, and over it the checks, markers and dice of
// the state.
#pragma once

#include <QColor>
#include <QImage>

#include "shell/table/check_piles.h"
#include "shell/table/hit_map.h"
#include "shell/table/table_layout.h"
#include "shell/table/table_scene.h"
#include "shell/table/table_view.h"

class QPainter;

namespace tessaryn {

struct Looks;

struct TableColors {
  QColor Room{0x23, 0x28, 0x2C};  // round the table
  QColor Felt{0x0C, 0x5C, 0x3B};
  QColor Dark{0x08, 0x4A, 0x2F};  // areas set off from the felt
  QColor Lit{0x11, 0x77, 0x4D};   // an area that is pointed at
  QColor Rail{0x3B, 0x24, 0x16};
  QColor Line{0xE9, 0xE3, 0xC8};
  QColor Letter{0xFA, 0xF5, 0xE1};
  QColor Accent{0xFF, 0xD7, 0x5E};
  QColor Soft{0xD5, 0xDF, 0xF5};  // numbers of the side bets
  QColor Ink{0x10, 0x15, 0x1A};   // on light and gold
  QColor Middle{0x6A, 0x13, 0x20};
  QColor Head{0x4A, 0x0B, 0x15};
  QColor Side{0x15, 0x35, 0x6A};
  QColor SideHead{0x0D, 0x24, 0x49};
  QColor Dice{0xC8, 0x20, 0x2B};
  QColor Dice2{0xC8, 0x20, 0x2B};
  QColor Pips{255, 255, 255};
  int Texture = 0;     // of the felt, 0 to 100
  int Spotlight = 50;  // 0 to 100
};
// Any values, as of a file, give a table that can be seen. What the user left as it is at first has the
// colours above.
TableColors ColorsOf(const Looks& looks);

// The table without anything that changes from roll to roll, into a picture of the window's device pixels.
// Two threads draw a half each, so each has a layout of its own: outlines keep what they worked out for
// drawing, and copies of one share it.
struct TableDrawing {
  TableLayout Left;
  TableLayout Right;
};
// The lettering is fitted for the view first.
void DrawTable(QImage& picture, TableDrawing& drawing, const TableView& view, const TableColors& colors);
// An area with another ground, and its lettering, in table units.
void DrawArea(QPainter& painter, const TableArea& area, const TableColors& colors, const QColor& ground);
QColor GroundColor(const TableColors& colors, Ground ground);

void DrawChecksAndDice(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                       const TableView& view, const TableColors& colors, CheckPictures& pictures);

}  // namespace tessaryn
