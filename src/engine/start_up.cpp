#include <chrono>
#include <filesystem>

#include "dice/auto_roll.h"
#include "engine/bet_catalogue.h"
#include "engine/game.h"
#include "engine/players.h"

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
  game->dataFolder = WithSeparator(dataFolder);
  TableState& table = game->table;
  table.SeatName[0] = "House";
  LoadSupportLibraries(game->generators, game->applicationFolder);
  StartGenerators(game->generators, host.TickMilliseconds());
  ResetPayoffs(game->payoffs, game->settings.Unit());
  table.BetDefaultWorking[0] = HouseWorkingBets();
  for (int seat = 1; seat <= kSeats; ++seat) ClearSeat(*game, seat);
  game->autobet.BeginningNewSession = true;
  return game;
}

std::uint32_t MachineTick() {
  const auto sinceBoot = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceBoot).count());
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
