#include "lab/html_parts.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tessaryn {
namespace {

constexpr const char* kNoCharacter = "\xEF\xBF\xBD";
constexpr double kPlotLeft = 78;
constexpr double kPlotRight = kDrawnWidth - 14;
constexpr double kPlotTop = 44;  // a line for the axis, one for borders
constexpr double kBelowPlot = 42;

// The bytes of the character that begins there; 0 where none does.
std::size_t CharacterBytes(const std::string& text, std::size_t at, char32_t& code) {
  const auto byte = [&](std::size_t i) {
    return at + i < text.size() ? static_cast<unsigned char>(text[at + i]) : 0u;
  };
  const unsigned first = byte(0);
  const std::size_t size = first < 0x80                    ? 1
                           : first >= 0xC2 && first < 0xE0 ? 2
                           : first >= 0xE0 && first < 0xF0 ? 3
                           : first >= 0xF0 && first < 0xF5 ? 4
                                                           : 0;
  if (size == 0) return 0;
  constexpr unsigned kMasks[] = {0x7F, 0x7F, 0x1F, 0x0F, 0x07};
  code = first & kMasks[size];
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
    code = code << 6 | (byte(i) & 0x3F);
  }
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  return code >= kLeast[size] && code <= 0x10FFFF ? size : 0;
}

// Controls, halves of pairs, and what is no character.
bool MayStand(char32_t code) {
  if (code < 0x20) return code == '\n' || code == '\t';
  const bool controls = code >= 0x7F && code <= 0x9F;
  const bool halves = code >= 0xD800 && code <= 0xDFFF;
  return !controls && !halves && (code & 0xFFFE) != 0xFFFE && !(code >= 0xFDD0 && code <= 0xFDEF);
}

}  // namespace

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (std::size_t at = 0; at < text.size();) {
    char32_t code = 0;
    const std::size_t size = CharacterBytes(text, at, code);
    if (size == 0 || !MayStand(code))
      escaped += kNoCharacter;
    else if (code == '<')
      escaped += "&lt;";
    else if (code == '>')
      escaped += "&gt;";
    else if (code == '&')
      escaped += "&amp;";
    else if (code == '"')
      escaped += "&quot;";
    else
      escaped.append(text, at, size);
    at += std::max<std::size_t>(size, 1);
  }
  return escaped;
}

std::string Shortened(const std::string& text, std::size_t characters) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < characters && at < text.size(); ++i) {
    char32_t code = 0;
    at += std::max<std::size_t>(CharacterBytes(text, at, code), 1);
  }
  return at >= text.size() ? text : text.substr(0, at) + " ...";
}

std::string Tag(const char* name, const std::string& content, const std::string& attributes) {
  return "<" + std::string(name) + (attributes.empty() ? "" : " ") + attributes + ">" + content + "</" +
         name + ">";
}

std::string Number(double number, int decimals) {
  char digits[400];
  std::snprintf(digits, sizeof digits, "%.*f", decimals, std::fabs(number));
  std::string text = digits;
  const bool zero = text.find_first_not_of("0.") == std::string::npos;
  for (auto at = static_cast<std::ptrdiff_t>(std::min(text.find('.'), text.size())) - 3; at > 0; at -= 3)
    text.insert(static_cast<std::size_t>(at), ",");
  return (number < 0 && !zero ? "\xE2\x88\x92" : "") + text;
}

std::string Signed(double number, int decimals) {
  const std::string text = Number(number, decimals);
  return number > 0 && text.find_first_not_of("0.,") != std::string::npos ? "+" + text : text;
}

int DecimalsFor(const Bounds& bounds) {
  const double half = (bounds.high - bounds.low) / 2;
  return half <= 0 || half >= 0.05 ? 2 : half >= 0.005 ? 3 : 4;
}

std::string PercentText(double share, int decimals) { return Number(100 * share, decimals) + "%"; }

std::string Row(const std::string& heading, const std::vector<std::string>& cells,
                const std::string& attributes) {
  std::string row = Tag("th", heading, "scope=\"row\"");
  for (const std::string& cell : cells) row += Tag("td", cell);
  return Tag("tr", row, attributes) + "\n";
}

std::string HeadRow(const std::vector<std::string>& headings) {
  std::string row;
  for (const std::string& heading : headings)
    row += heading.empty() ? "<td></td>" : Tag("th", heading, "scope=\"col\"");
  return "<thead>" + Tag("tr", row) + "</thead>\n";
}

// --- Drawings.

std::string Coordinate(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", std::fabs(number) < 0.05 ? 0.0 : number);
  return text;
}

double NiceStep(double span, int steps) {
  double step = std::pow(10, std::floor(std::log10(std::max(span, 1e-9) / steps)));
  for (const double factor : {1.0, 2.0, 5.0, 10.0})
    if (span / (step * factor) <= steps) return step * factor;
  return step * 10;
}

std::string ShownNumber(double number, double step, Shown as) {
  const double unit = as == Shown::kShare ? step * 100 : step;
  const int decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(unit) - 1e-9)), 0, 4);
  if (as == Shown::kShare) return PercentText(number, decimals);
  return as == Shown::kCount ? Number(number, decimals) : Number(number, decimals == 1 ? 2 : decimals);
}

Drawing::Drawing(double acrossLow, double acrossHigh, double upLow, double upHigh, double itsHeight)
    : across{acrossLow, acrossHigh, kPlotLeft, kPlotRight},
      up{upLow, upHigh, itsHeight - kBelowPlot, kPlotTop},
      height(itsHeight) {}

void Drawing::AddText(double x, double y, const char* anchor, const std::string& text, const char* kind) {
  svg += "<text x=\"" + Coordinate(x) + "\" y=\"" + Coordinate(y) + "\" text-anchor=\"" + anchor + "\"" +
         (*kind == '\0' ? "" : " class=\"" + std::string(kind) + "\"") + ">" + text + "</text>";
}

void Drawing::AddLine(double x1, double y1, double x2, double y2, const char* kind) {
  svg += "<line class=\"" + std::string(kind) + "\" x1=\"" + Coordinate(x1) + "\" y1=\"" + Coordinate(y1) +
         "\" x2=\"" + Coordinate(x2) + "\" y2=\"" + Coordinate(y2) + "\"/>";
}

void Drawing::AddPath(const std::string& points, const char* element, const std::string& style) {
  svg += "<" + std::string(element) + " " + style + " points=\"" + points + "\"/>";
}

std::string Drawing::Point(double x, double y) const {
  return Coordinate(across.At(x)) + "," + Coordinate(up.At(y));
}

void Drawing::AddAxes(Shown acrossAs, Shown upAs, const std::string& acrossName, const std::string& upName) {
  const double upStep = NiceStep(up.high - up.low, 5);
  for (double at = std::ceil(up.low / upStep - 1e-9); at * upStep <= up.high + upStep * 1e-9; ++at) {
    AddLine(kPlotLeft, up.At(at * upStep), kPlotRight, up.At(at * upStep), "grid");
    AddText(kPlotLeft - 8, up.At(at * upStep) + 4, "end", ShownNumber(at * upStep, upStep, upAs));
  }
  const double step = NiceStep(across.high - across.low, 8);
  for (double at = std::ceil(across.low / step - 1e-9); at * step <= across.high + step * 1e-9; ++at)
    AddText(across.At(at * step), height - kBelowPlot + 18, "middle", ShownNumber(at * step, step, acrossAs));
  AddText(kPlotRight, height - 6, "end", acrossName);
  AddText(kPlotLeft, kPlotTop - 30, "start", upName);
}

std::string Drawing::Finish(const std::string& caption) const {
  return "<figure><svg viewBox=\"0 0 " + Coordinate(kDrawnWidth) + " " + Coordinate(height) +
         "\" role=\"img\" aria-label=\"" + caption + "\">" + svg + "</svg>" + Tag("figcaption", caption) +
         "</figure>\n";
}

}  // namespace tessaryn
