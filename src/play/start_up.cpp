#include "play/start_up.h"

#include "dice/generators.h"
#include "play/players.h"
#include "rules/payoffs.h"
#include "state/bet_families.h"

namespace tessaryn {
namespace {

std::string WithSeparator(std::string folder) {
  if (folder.empty()) return "./";
  if (folder.back() != '/') folder += '/';
  return folder;
}

}  // namespace

std::unique_ptr<Game> StartGame(Host& host, const std::string& applicationFolder,
                                const std::string& dataFolder) {
  auto game = std::make_unique<Game>();
  game->host = &host;
  game->applicationFolder = WithSeparator(applicationFolder);
  game->dataFolder = game->ownFolder = WithSeparator(dataFolder);
  TableState& table = game->table;
  table.seats[0].SeatName = "House";
  LoadSupportLibraries(game->generators, game->applicationFolder);
  StartGenerators(game->generators, host.TickMilliseconds());
  ResetPayoffs(game->payoffs, game->settings.Unit());
  table.seats[0].BetDefaultWorking = kHouseWorkingBets;
  for (SeatId seat = 1; seat <= kSeats; ++seat) ClearSeat(*game, seat);
  return game;
}

}  // namespace tessaryn
