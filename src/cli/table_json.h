// The table as JSON: what `state`, `stats` and `run` print.
#pragma once

#include <nlohmann/json.hpp>

#include "state/game.h"

namespace tessaryn {

// How the library of JSON writes a seat or a bet: as its number.
template <typename Json, typename Kind, typename Number>
void to_json(Json& json, Id<Kind, Number> id) {
  json = id.value;
}

}  // namespace tessaryn

namespace tessaryn::cli {

using Json = nlohmann::ordered_json;

// A number with up to four decimals; a whole one without a point.
Json MoneyJson(Currency value);
Json StateJson(const Game& game);
// The statistics of seat 0 to 8 and scope 0 to 4; bet 0 all bets that have any.
Json StatsJson(const Game& game, SeatId seat, ScopeId scope, BetId bet);
// What a bet is and costs for the selected seat, with the texts that the window tells.
Json FactsJson(Game& game, BetId bet);
// The bets of a seat that are up, as {number: amount}.
Json BetsUpJson(const Game& game, SeatId seat);

struct RunFigures {
  std::int64_t rolls = 0;
  double seconds = 0;
  std::string stopReason;
  Currency bankrollStart[kSeatRows];
};
Json RunJson(const Game& game, const RunFigures& figures);

}  // namespace tessaryn::cli
