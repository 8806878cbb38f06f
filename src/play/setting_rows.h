// The settings as a table: one row each. A row names the member that holds the value; what the value is, how
// it is read and written and who keeps it follow from the member's type and the struct that has it.
#pragma once

#include <concepts>
#include <span>
#include <variant>

#include "base/table_types.h"
#include "state/payoff_tables.h"
#include "state/settings.h"

namespace tessaryn {

struct Game;

// Where values of a type stand: at a seat, for those that players keep, and in a row, for those that come as
// NAME.ROW. Flags and what is written in words of its own have no limits.
template <typename T>
struct Cell {
  T& (*at)(Game&, SeatId, int row);
  Limits<T> limits;
};
template <typename T>
requires std::same_as<T, bool> || std::same_as<T, FieldPresetId> || std::same_as<T, PayoffRecord> ||
    std::same_as<T, BetSet>
struct Cell<T> {
  T& (*at)(Game&, SeatId, int row);
};
template <template <typename> class Of>
using OfAnySetting =
    std::variant<Of<bool>, Of<int>, Of<std::int64_t>, Of<Currency>, Of<Fraction>, Of<Multiple>, Of<Percent>,
                 Of<Seconds>, Of<RollRate>, Of<FieldPresetId>, Of<PayoffRecord>, Of<BetSet>>;
using AnyCell = OfAnySetting<Cell>;

// Who changes it: the table; each player; or each player, with seat 0 for what new players take.
enum class Keeper { kTable, kPlayer, kPlayerAndHouse };

// What a change brings with it; see setting_effects.cpp.
enum class Effect {
  kNone,
  kFieldPayoffs,    // at once: the rows of the Field are the preset's
  kVig,             // what bets that are up owe is figured anew, if everybody can pay it
  kBetsComeDown,    // bets that are no longer offered, after a question
  kLog,             // what waits is written as recording ends
  kThrottle,        // a run goes on at the new speed
  kHouseStandard,   // offered to the players who are at the table
  kNegativeAllowed  // not taken from a player who is in debt
};

struct RowFacts {
  Effect effect = Effect::kNone;
  std::span<const char* const> captions = {};  // of the choices 0, 1, ..; of a flag off, on; of a mask's bits
  const char* unit = nullptr;                  // where the type doesn't tell
};

struct SettingRow {
  const char* name;
  const char* help;  // what it is, in a line
  AnyCell cell;
  Keeper keeper;
  RowFacts facts;
  // NAME.ROW: from first to last. By bets, a row also goes by the bet's name.
  int firstRow = 0;
  int lastRow = 0;
  bool inRows = false;
  bool byBets = false;
  // One of these alone, where that is less than the limits say.
  std::span<const int> oneOf = {};

  bool BySeat() const { return keeper != Keeper::kTable; }
};

std::span<const SettingRow> SettingRows();

// What the values of a row are counted in: "dollars", "seconds" ...; empty for flags and choices.
const char* UnitOf(const SettingRow& row);

}  // namespace tessaryn
