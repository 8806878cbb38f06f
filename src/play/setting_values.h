// Values of settings and their texts, by type: reading, writing and bringing within limits.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "play/setting_rows.h"

namespace tessaryn {

// One value of a setting.
template <typename T>
struct Value {
  T value;
};
using AnyValue = OfAnySetting<Value>;

// The value of a row at a seat, in a row of NAME.ROW. Reading takes a text that was trimmed; false with the
// reason, and the value unchanged, for one that is none. Requires that the row has the seat and the row.
bool ReadSettingText(Game& game, const SettingRow& row, SeatId seat, int index, const std::string& text,
                     std::string& error);
std::string SettingText(const Game& game, const SettingRow& row, SeatId seat, int index);

// The name as it was asked for: NAME or NAME.ROW.
std::string SettingFullName(const SettingRow& row, int index);

// Visits every place that holds a value of a setting, seats that nobody has taken included: visit(place, T&).
// A set of bets is one value.
struct SettingPlace {
  const SettingRow* row;
  SeatId seat;
  int index;  // of NAME.ROW
};
template <typename Visit>
void ForEachSettingPlace(Game& game, Visit&& visit) {
  for (const SettingRow& row : SettingRows()) {
    const SeatId lastSeat{row.BySeat() ? kSeats : 0};
    const int lastIndex = std::holds_alternative<Cell<BetSet>>(row.cell) ? row.firstRow : row.lastRow;
    for (SeatId seat{row.keeper == Keeper::kPlayer ? 1 : 0}; seat <= lastSeat; ++seat)
      for (int index = row.firstRow; index <= lastIndex; ++index)
        std::visit(
            [&](const auto& cell) {
              visit(SettingPlace{&row, seat, index}, cell.at(game, seat, index));
            },
            row.cell);
  }
}

// Brings a value within its row's limits: a number to the nearer one, a choice that there is not to the
// first, a payoff that is none to the original. Whether it was outside.
bool ClampSetting(Game& game, const SettingPlace& place);

}  // namespace tessaryn
