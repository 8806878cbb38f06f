// What a page of HTML is put together from: texts made safe, numbers, and drawings.
#pragma once

#include <string>
#include <vector>

#include "lab/measures.h"

namespace tessaryn {

// --- Text.

// Fit for the inside of an element or of a quoted attribute, whatever bytes come: what is no UTF-8, and what
// a page may not hold, becomes the sign for it.
std::string Escaped(const std::string& text);
// The beginning, in whole characters, with dots where something is missing.
std::string Shortened(const std::string& text, std::size_t characters);
std::string Tag(const char* name, const std::string& content, const std::string& attributes = {});

// "-1,234.50", with a real minus.
std::string Number(double number, int decimals);
std::string Signed(double number, int decimals);
// Enough decimals for what is known: two, or more where the bounds are narrower than a cent.
int DecimalsFor(const Bounds& bounds);
std::string PercentText(double share, int decimals);

// A row of a table, its first cell a heading; cells are ready for the page.
std::string Row(const std::string& heading, const std::vector<std::string>& cells,
                const std::string& attributes = {});
std::string HeadRow(const std::vector<std::string>& headings);

// --- Drawings, kDrawnWidth wide.

inline constexpr double kDrawnWidth = 800;

std::string Coordinate(double number);

struct DrawnScale {
  double low = 0;
  double high = 1;
  double from = 0;
  double to = 1;
  double At(double value) const { return from + (to - from) * (value - low) / (high > low ? high - low : 1); }
};
// 1, 2 or 5 times a power of ten: the least step with at most so many steps in the span.
double NiceStep(double span, int steps);

enum class Shown { kDollars, kShare, kCount };
std::string ShownNumber(double number, double step, Shown as);

// The plot of a drawing with its lines and numbers.
struct Drawing {
  DrawnScale across;
  DrawnScale up;
  double height = 290;
  std::string svg;

  // Room is left for numbers at the left and below, and for two lines of words above.
  Drawing(double acrossLow, double acrossHigh, double upLow, double upHigh, double itsHeight = 290);
  void AddAxes(Shown acrossAs, Shown upAs, const std::string& acrossName, const std::string& upName);
  void AddText(double x, double y, const char* anchor, const std::string& text, const char* kind = "");
  void AddLine(double x1, double y1, double x2, double y2, const char* kind);
  void AddPath(const std::string& points, const char* element, const std::string& style);
  std::string Point(double x, double y) const;  // of the plot's values
  std::string Finish(const std::string& caption) const;
};

}  // namespace tessaryn
