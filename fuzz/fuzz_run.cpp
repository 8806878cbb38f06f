// Runs any script that compiles for a bounded number of statements over a few rolls. Whatever it does, the
// table must stay whole.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "autobet/language/script_files.h"
#include "autobet/run/interpreter.h"
#include "fuzz_host.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/script_session.h"
#include "play/start_up.h"
#include "rules/consistency.h"
#include "rules/session.h"
#include "state/game.h"

namespace {

using namespace tessaryn;

void Require(const Game& game, const std::string& problem) {
  if (problem.empty()) return;
  std::fprintf(stderr, "%s (error %d)\n", problem.c_str(), game.autobet.ScriptError);
  std::abort();
}

void SeatPlayers(Game& game, unsigned choice) {
  std::string error;
  const char* const names[] = {"Ann", "Joe", "Mary Ann"};
  for (int i = 0; i < 3; ++i) {
    LeaveTable(game, i + 1);
    JoinPlayer(game, i + 1, names[i], Currency::Dollars((choice & 1) != 0 ? 100 : 100'000), error);
    SetScriptPermission(game, i + 1, ScriptPermission::kOthers, (choice & 2) != 0);
    SetScriptPermission(game, i + 1, ScriptPermission::kReset, (choice & 4) != 0);
    SetScriptPermission(game, i + 1, ScriptPermission::kFiles, (choice & 8) != 0);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static fuzz::FuzzHost host;
  static const std::unique_ptr<Game> game = StartGame(host, "/nonexistent/", "/nonexistent/");
  const unsigned choice = data[0];
  host.turns = 0;
  SeatPlayers(*game, choice);
  NewSession(*game, false, false, true, kCloseRollFile);
  game->autobet.StepsShown = (choice & 16) != 0;
  game->autobet.StepsHold = false;
  game->settings.ShooterBetRule = 0;
  const auto lines = ScriptLinesOf({reinterpret_cast<const char*>(data) + 1, size - 1});
  for (const int seat : {1, 3}) {
    SetScript(*game, seat, lines, "");
    SetScriptActive(*game, seat, true);
  }
  if (!CheckScript(*game, 1).ok || !InitialiseScripts(*game)) return 0;
  for (int roll = 0; roll < 4; ++roll) {
    host.turns = 0;
    RollDice(*game);
    Require(*game, CheckConsistency(*game));
  }
  return 0;
}
