#include "cli/script_permissions.h"

#include "cli/refusals.h"
#include "play/script_session.h"
#include "state/game.h"

namespace tessaryn::cli {
namespace {

constexpr struct {
  const char* word;
  ScriptPermission permission;
} kPermissions[] = {{"others", ScriptPermission::kOthers},
                    {"reset", ScriptPermission::kReset},
                    {"probabilities", ScriptPermission::kFiles},
                    {"files", ScriptPermission::kFiles}};

}  // namespace

std::string ReadSeat(const Game& game, const std::string& word, SeatId& seat) {
  const bool digit = word.size() == 1 && word[0] >= '1' && word[0] <= '8';
  if (!digit) return NoSeat(word);
  seat = word[0] - '0';
  return IsOccupied(game.table, seat) ? "" : NobodyAtSeat(word);
}

std::string Permit(Game& game, SeatId seat, const std::string& word, bool on) {
  for (const auto& known : kPermissions) {
    if (word != known.word) continue;
    SetScriptPermission(game, seat, known.permission, on);
    return "";
  }
  return "\"" + word + "\" is no permission; there are others, reset and probabilities (or files)";
}

}  // namespace tessaryn::cli
