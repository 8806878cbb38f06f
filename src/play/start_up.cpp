#include <filesystem>

#include "play/auto_roll.h"
#include "base/bet_catalogue.h"
#include "state/game.h"
#include "play/players.h"

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
  table.SeatName[0] = "House";
  LoadSupportLibraries(game->generators, game->applicationFolder);
  StartGenerators(game->generators, host.TickMilliseconds());
  ResetPayoffs(game->payoffs, game->settings.Unit());
  table.BetDefaultWorking[0] = HouseWorkingBets();
  for (int seat = 1; seat <= kSeats; ++seat) ClearSeat(*game, seat);
  return game;
}

int ShowMessage(Game& game, const std::string& title, const std::string& text, std::uint32_t flags,
                int width) {
  MessageBox& box = game.box;
  box.MsgTitle = title;
  box.MsgText = text;
  box.MsgFlags = flags;
  box.MsgWidth = width;
  box.MsgResult = kResultCancel;
  game.host->ShowMessage(game, box);
  return box.MsgResult;
}

void ReportError(Game& game, const std::string& text, int number, const char* label) {
  const std::string report = text + ", Error #" + std::to_string(number) + "\r occurred at: " + label;
  if (game.table.TurboRollActive) return StopRun(game, report);
  StopRun(game, "");
  ShowMessage(game, "Tessaryn", report, kMsgOk | kMsgStop);
}

}  // namespace tessaryn
