#include "play/report_table.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"

namespace tessaryn {

ReportRow& ReportTable::Add(std::string block, std::string label, std::vector<ReportCell> cells, int column) {
  rows.push_back({std::move(block), std::move(label), std::move(cells), column});
  return rows.back();
}

ReportCell TextCell(std::string text) { return {std::move(text)}; }

ReportCell CountCell(std::int64_t count) {
  return {NumberText(Currency::Dollars(count), kWholeNumber), static_cast<double>(count)};
}

ReportCell NumberCell(double value) { return {FewestDecimals(value), std::isfinite(value) ? value : 0}; }

ReportCell MoneyCell(Currency amount) {
  if (amount.IsError()) return {kNoValueText};
  const Tone tone = amount < kZero ? Tone::kLoss : amount > kZero ? Tone::kGain : Tone::kPlain;
  return {FewestDecimals(amount), amount.ToDouble(), tone};
}

std::string RowName(const ReportTable& report, std::size_t row) {
  const ReportRow& named = report.rows[row];
  const auto alike = std::count_if(report.rows.begin(), report.rows.end(),
                                   [&named](const ReportRow& other) { return other.label == named.label; });
  return alike > 1 && !named.block.empty() ? named.block + " " + named.label : named.label;
}

namespace {

std::string Field(std::string text) {
  const auto first = text.find_first_not_of(' ');
  text = first == std::string::npos ? "" : text.substr(first);
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? "\"\"" : std::string(1, c);
  return quoted + "\"";
}

std::string Padded(const std::string& text, std::size_t width, bool right) {
  const std::string blanks(width > text.size() ? width - text.size() : 0, ' ');
  return right ? blanks + text : text + blanks;
}

// Drops what trails a line.
void EndLine(std::string& text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  text += '\n';
}

constexpr const char* kIndent = "  ";

struct Widths {
  std::size_t label = 0;
  std::vector<std::size_t> columns;
};

std::size_t TableRows(const ReportTable& report) {
  return report.gridRows == 0 ? report.rows.size() : report.gridFirst;
}

Widths WidthsOf(const ReportTable& report) {
  Widths widths;
  for (const std::string& heading : report.columns) widths.columns.push_back(heading.size());
  for (std::size_t i = 0; i < TableRows(report); ++i) {
    const ReportRow& row = report.rows[i];
    widths.label = std::max(widths.label, row.label.size() + (row.block.empty() ? 0 : 2));
    auto column = static_cast<std::size_t>(row.column);
    for (const ReportCell& cell : row.cells) {
      widths.columns[column] = std::max(widths.columns[column], cell.text.size());
      ++column;
    }
  }
  return widths;
}

void AppendTable(const ReportTable& report, std::string& text) {
  const Widths widths = WidthsOf(report);
  const auto appendCell = [&](std::size_t column, const std::string& cell) {
    text += kIndent + Padded(cell, widths.columns[column], true);
  };
  if (report.columns.size() > 1) {
    text += Padded("", widths.label, false);
    for (std::size_t i = 0; i < report.columns.size(); ++i) appendCell(i, report.columns[i]);
    EndLine(text);
  }
  std::string block;
  for (std::size_t i = 0; i < TableRows(report); ++i) {
    const ReportRow& row = report.rows[i];
    if (row.block != block && !row.block.empty()) text += row.block + "\n";
    block = row.block;
    text += Padded((block.empty() ? "" : kIndent) + row.label, widths.label, false);
    for (int column = 0; column < row.column; ++column) appendCell(static_cast<std::size_t>(column), "");
    for (std::size_t cell = 0; cell < row.cells.size(); ++cell)
      appendCell(cell + static_cast<std::size_t>(row.column), row.cells[cell].text);
    EndLine(text);
  }
}

void AppendGrid(const ReportTable& report, std::string& text) {
  const std::size_t count = report.rows.size() - report.gridFirst;
  std::size_t label = 0;
  std::size_t cell = 0;
  for (std::size_t i = report.gridFirst; i < report.rows.size(); ++i) {
    label = std::max(label, report.rows[i].label.size());
    cell = std::max(cell, report.rows[i].cells[0].text.size());
  }
  if (count > 0 && !report.rows[report.gridFirst].block.empty())
    text += report.rows[report.gridFirst].block + "\n";
  for (std::size_t line = 0; line < std::min(report.gridRows, count); ++line) {
    for (std::size_t at = line; at < count; at += report.gridRows) {
      const ReportRow& row = report.rows[report.gridFirst + at];
      text += kIndent + Padded(row.label, label, false) + kIndent + Padded(row.cells[0].text, cell, true);
    }
    EndLine(text);
  }
}

}  // namespace

std::string ReportAsCsv(const ReportTable& report) {
  std::string text = Field(report.title);
  for (const std::string& heading : report.columns) text += "," + Field(heading);
  text += "\n";
  for (std::size_t i = 0; i < report.rows.size(); ++i) {
    const ReportRow& row = report.rows[i];
    text += Field(RowName(report, i)) + std::string(static_cast<std::size_t>(row.column), ',');
    for (const ReportCell& cell : row.cells) text += "," + Field(cell.text);
    const std::size_t shown = static_cast<std::size_t>(row.column) + row.cells.size();
    text += std::string(report.columns.size() - std::min(report.columns.size(), shown), ',') + "\n";
  }
  return text;
}

std::string ReportAsText(const ReportTable& report, const std::string& date) {
  std::string text = report.title + (date.empty() ? "" : kIndent + date) + "\n";
  for (const std::string& line : {report.scope, report.selected, report.selectedNames, report.selectedBets})
    if (!line.empty()) text += line + "\n";
  if (!report.note.empty()) {
    std::string note = report.note;
    std::replace(note.begin(), note.end(), '\r', '\n');
    text += "\n" + note + "\n";
  }
  text += "\n";
  if (TableRows(report) > 0) AppendTable(report, text);
  if (report.gridRows > 0) {
    if (TableRows(report) > 0) text += "\n";
    AppendGrid(report, text);
  }
  return text;
}

}  // namespace tessaryn
