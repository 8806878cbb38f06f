// What a report says: a table of labels and texts. Screens, print, export and the command line show it and
// compute nothing.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/money.h"

namespace tessaryn {

// The colour of a number where the table tells gains from losses.
enum class Tone { kPlain, kGain, kLoss };

struct ReportCell {
  std::string text;
  double value = 0;  // for bars and sorting; 0 where the text is no number
  Tone tone = Tone::kPlain;
  bool marked = false;   // further from what was to be expected than chance explains
  bool balance = false;  // what was gained or lost: its sign tells which
};

struct ReportRow {
  std::string block;  // the heading that the row stands under; may be empty
  std::string label;
  std::vector<ReportCell> cells;
  int column = 0;  // of the first cell, where a row has fewer cells than the table columns
};

struct ReportTable {
  std::string name;           // as commands call it: "bet-results"
  std::string title;          // "Bet Results"
  std::string scope;          // "Current session"; empty for a report without scopes
  std::string selected;       // "All players selected", "2 players selected"; a player; a roll item
  std::string selectedNames;  // of those players
  std::string selectedBets;   // "Place 6, Place 8"; empty for all of them
  std::string note;           // about the hand's shooter; "\r" ends a line; mostly empty
  std::vector<std::string> columns;
  std::vector<ReportRow> rows;
  // Rows from here on are a list to be laid out in columns of so many; none if gridRows is 0.
  std::size_t gridFirst = 0;
  std::size_t gridRows = 0;

  ReportRow& Add(std::string block, std::string label, std::vector<ReportCell> cells, int column = 0);
};

ReportCell TextCell(std::string text);
ReportCell CountCell(std::int64_t count);
// With the fewest decimals that keep the value; what is no number shows as no value.
ReportCell NumberCell(double value);
// Likewise, with the tone of its sign.
ReportCell MoneyCell(Currency amount);

// The row's label, with its block in front where the table has the label more than once.
std::string RowName(const ReportTable& report, std::size_t row);
// A line of headings, then one for each row: its name and its texts, quoted where they need it.
std::string ReportAsCsv(const ReportTable& report);
// For a page or a terminal, in columns of equal letters. date: as the heading shows it; may be empty.
std::string ReportAsText(const ReportTable& report, const std::string& date);

}  // namespace tessaryn
