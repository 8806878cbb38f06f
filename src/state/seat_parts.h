// What belongs to one seat, wherever it is kept: the state is walked field by field, and every array with a
// place for each seat, or for each seat and scope, is one. A new field by seat so leaves, moves and is
// cleared with its player without a line of its own.
#pragma once

#include <type_traits>

#include "base/fields.h"
#include "base/table_types.h"

namespace tessaryn {

template <typename T>
inline constexpr bool kIsSeatBetTable = false;
template <typename T, int kRows>
inline constexpr bool kIsSeatBetTable<SeatBetTable<T, kRows>> = true;

// Calls part(at) for each, where at(seat) is that seat's own.
template <typename T, typename Part>
void ForEachSeatPart(T& value, Part&& part) {
  if constexpr (kIsSeatBetTable<T>) {
    ForEachSeatPart(value.cells, part);
  } else if constexpr (HasFields<T>) {
    ForEachField(value, [&](const char*, auto& field) { ForEachSeatPart(field, part); });
  } else if constexpr (std::extent_v<T> == kSeatRows) {
    part([&](SeatId seat) -> auto& { return value[seat]; });
  } else if constexpr (std::extent_v<T> == kSlots) {
    for (ScopeId scope = 0; scope < kScopes; ++scope)
      part([&](SeatId seat) -> auto& { return value[Slot(scope, seat)]; });
  } else if constexpr (std::is_array_v<T>) {
    for (auto& element : value) ForEachSeatPart(element, part);
  }
}

}  // namespace tessaryn
