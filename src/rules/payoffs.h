// Payoff records and the tables of them: what every bet pays.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/message_value.h"
#include "state/payoff_tables.h"

namespace tessaryn {

struct Game;

struct PayoffTableInfo {
  const char* name;  // as settings name it
  int firstRow;
  int lastRow;
};

// The tables by index 0 to 6, as PayoffTableId has them.
inline constexpr int kPayoffTables = 7;
const PayoffTableInfo& PayoffTableFacts(int table);
// Row of a table. Requires 0 <= row <= its last.
PayoffRecord& PayoffRow(PayoffTables& payoffs, int table, int row);

// The record by which the bet is paid now. Of odds on the line it is that of the odds on the point, on a
// come-out on the point before it. Of a bet with a table of its own, and of one in shares, it tells nothing
// but its BetUnit.
const PayoffRecord& PayoffOf(const Game& game, BetId bet);
// The rows of a bet's payoffs: its own table, or its one record.
std::span<const PayoffRecord> PayoffRowsOf(const Game& game, BetId bet);

// The house's original payoffs, BetUnit included.
void ResetPayoffs(PayoffTables& payoffs, Currency unit);
// BetUnit of every record from its ratio and the betting unit (element 1 of CheckValue).
void RebuildBetUnits(PayoffTables& payoffs, Currency unit);

// Presets of the Field. Each rewrites all 21 rows.
struct FieldPreset {
  const char* name;     // "Field" ...
  const char* caption;  // "Field w/ 2x on Two and Twelve" ...
};
inline constexpr int kFieldPresets = 13;
const FieldPreset& FieldPresetFacts(int id);
// Requires 0 <= id < kFieldPresets.
void SetFieldPreset(PayoffTables& payoffs, int id, Currency unit);
// By its name, case ignored; -1 for none.
int FieldPresetByName(std::string_view name);
// The preset that the Field pays by now; -1 for none of them.
int FieldPresetOf(const PayoffTables& payoffs);
// All names: "Field, Pass, ...".
std::string FieldPresetNames();
// The caption of Field row 1 to 21: "2     (1.1)" ...
const char* FieldRowCaption(int row);
// The Field row of two dice.
int FieldRow(int die1, int die2);
// The Midway row of two dice; 0 when the total is not 6, 7 or 8.
int MidwayRow(int die1, int die2);

// Which families the table offers, for the checks that ask.
struct OfferedFamilies {
  bool smallTall = true;
  bool midway = true;
  bool fire = true;
};
struct ConfigurationProblem {
  Msg message{};
  std::vector<MessageArgument> arguments = {};
  bool Found() const { return message != Msg{}; }
  std::string Text() const;
};
// The rules that keep the tables valid, in their order; the first that fails.
ConfigurationProblem CheckPayoffs(const PayoffTables& payoffs, const OfferedFamilies& offered);

// "7 to 5", "27 for 4".
std::string PayoffText(const PayoffRecord& record);
// Reads "7 to 5", "27 for 4", "7:5" or "7/5". False, and the record unchanged, for anything else and for a
// PayPer that is not above 0.
bool ParsePayoff(std::string_view text, PayoffRecord& record);

}  // namespace tessaryn
