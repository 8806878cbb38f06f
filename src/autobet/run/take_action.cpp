#include "autobet/run/take_action.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "autobet/run/operands.h"
#include "autobet/run/output_file.h"
#include "autobet/run/script_errors.h"
#include "autobet/run/set_variable.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "rules/bankroll.h"
#include "rules/seed_rng.h"
#include "rules/session.h"
#include "rules/shooter.h"
#include "state/run_stop.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

struct ActionInHand {
  Game& game;
  const PreparedProgram& program;
  const PreparedStatement& statement;

  int Seat() const { return game.autobet.CurrentAutobettor; }
  const SeatScript& Script() const { return game.autobet.Scripts[Seat()]; }
  std::string Text() const {
    return statement.arguments > 0 ? TextOf(program, statement.operand) : std::string();
  }
  double Number() const { return statement.arguments > 0 ? NumberOf(program, statement.operand) : 0; }
  bool Fails(int code) const { return ScriptFails(game, code); }
};

// A file that is only read: as it is named, or else in the data folder. Empty for what is no plain file: a
// pipe or a terminal would keep the table waiting.
std::string FileToRead(const Game& game, const std::string& name) {
  std::error_code fault;
  for (const std::string& path : {name, game.dataFolder + name})
    if (!path.empty() && path.find('\0') == std::string::npos &&
        std::filesystem::is_regular_file(path, fault))
      return path;
  return {};
}

bool StartSession(const ActionInHand& action) {
  if (!action.Script().AllowReset) return action.Fails(kErrorNewSession);
  const int choice = action.statement.code - 100;  // bit 0 CheckStacks, bit 1 the dice roll file
  const bool keepsFile = (choice & 2) != 0;
  NewSession(action.game, true, (choice & 1) != 0, true, keepsFile ? kContinueRollFile : kCloseRollFile);
  return true;
}

bool DeactivateProbabilities(const ActionInHand& action) {
  if (!action.Script().AllowActProb) return action.Fails(kErrorProbabilityPermission);
  ActivatePercentageDice(action.game.percentage, false);
  return true;
}

bool ActivateProbabilities(const ActionInHand& action) {
  Game& game = action.game;
  if (!action.Script().AllowActProb) return action.Fails(kErrorProbabilityPermission);
  const std::string path = FileToRead(game, action.Text());
  std::string error;
  // The file that is in force already costs no reading on every roll.
  const bool same = game.percentage.PercentageDiceActive && !path.empty() &&
                    game.percentage.ProbFileName == path && !game.percentage.ProbDirty;
  if (same) return true;
  if (path.empty()) return action.Fails(kErrorNotProbabilityFile);
  if (!OpenProbabilityFile(game.percentage, path, "", error)) return action.Fails(kErrorNotProbabilityFile);
  return ActivatePercentageDice(game.percentage, true) || action.Fails(kErrorNotProbabilityFile);
}

bool PassTheDice(const ActionInHand& action) {
  if (action.Seat() != action.game.table.ShooterSeat && !action.Script().AllowAct4Others)
    return action.Fails(kErrorPassDice);
  PassDice(action.game, kPassByUser);
  return true;
}

bool CloseDiceFile(const ActionInHand& action) {
  if (!action.Script().AllowActProb) return action.Fails(kErrorRollFilePermission);
  if (!IsRollFileOpen(action.game.rollFile)) return action.Fails(kErrorRollFileClosed);
  CloseRollFile(action.game.rollFile);
  return true;
}

bool PlayDiceFile(const ActionInHand& action) {
  Game& game = action.game;
  RollFile& file = game.rollFile;
  if (!action.Script().AllowActProb) return action.Fails(kErrorRollFilePermission);
  const std::string path = FileToRead(game, action.Text());
  if (path.empty() || access(path.c_str(), R_OK) != 0) return action.Fails(kErrorFileNotFound);
  if (!OpenRollFile(file, path).empty()) return action.Fails(kErrorNotRollFile);
  if (!SetRecorderState(file, kRecorderPlayback).empty()) return action.Fails(kErrorNotRollFile);
  const double from = action.statement.arguments > 1 ? NumberOf(action.program, action.statement.second) : 1;
  SetRollFileCursor(file, static_cast<std::int64_t>(std::clamp(std::nearbyint(from), 1.0, 2147483647.0)));
  game.autobet.RollFileEndReached = false;
  return true;
}

bool MessagesOn(const Game& game) {
  constexpr int kInPlay = 8;
  constexpr int kInTurboRoll = 16;
  return (game.settings.MessageMask & (game.table.TurboRollActive ? kInTurboRoll : kInPlay)) != 0;
}

static_assert(NeedOnly({Msg::kScriptAsks, Msg::kScriptSays}, {"player", "text"}));

bool TellOrAsk(const ActionInHand& action) {
  constexpr int kAsk = 211;
  Game& game = action.game;
  if (!MessagesOn(game)) return action.Fails(kErrorMessagesOff);
  const bool asks = action.statement.code == kAsk;
  const int result =
      ShowMessage(game, asks ? Msg::kScriptAsks : Msg::kScriptSays,
                  {{"player", game.table.seats[action.Seat()].SeatName}, {"text", action.Text()}});
  if (asks) game.autobet.Answer = result == kResultYes ? kResultYes : kResultNo;
  return true;
}

bool PlaySample(const ActionInHand& action) {
  const Settings& settings = action.game.settings;
  if (settings.DisableAllSound || !settings.AutoBetSounds) return action.Fails(kErrorSoundsOff);
  action.game.host->PlaySoundFile(action.game, action.Text());
  return true;
}

bool OpenOutput(const ActionInHand& action) {
  const bool append = action.statement.code == 220;
  return OpenScriptOutput(action.game, action.Seat(), action.Text(), append) || action.Fails(kErrorBadPath);
}

bool UseAtm(const ActionInHand& action) {
  Game& game = action.game;
  if (!PlayerMayAct(game, action.Seat())) return false;
  const Currency amount =
      action.statement.arguments > 0 ? Currency::FromDouble(action.Number()) : game.settings.AtmUnit;
  AtmTransaction(game, action.Seat(), action.statement.code == 225, amount);
  return true;
}

bool SeedWith(const ActionInHand& action) {
  bool given = true;
  const Currency candidate = Currency::FromDouble(action.Number());
  if (candidate.IsError()) return action.Fails(kErrorSeed);
  SeedRng(action.game, given, candidate);
  return given || action.Fails(kErrorSeed);
}

bool StopRolling(const ActionInHand& action) {
  StopRun(action.game, MessageText<Msg::kStoppedByScript>());
  return true;
}

bool ShowSteps(const ActionInHand& action) {
  action.game.autobet.StepsShown = true;
  return true;
}

bool SeedAnew(const ActionInHand& action) {
  SeedRng(action.game, false);
  return true;
}

bool Output(const ActionInHand& action) {
  return WriteScriptOutput(action.game, action.Seat(), action.Text()) || action.Fails(kErrorOutputClosed);
}

struct ActionRow {
  int code;
  bool (*take)(const ActionInHand&);
};

constexpr ActionRow kActions[] = {
    {100, StartSession},
    {101, StartSession},
    {102, StartSession},
    {103, StartSession},
    {114, DeactivateProbabilities},
    {115, StopRolling},
    {116, ShowSteps},
    {118, PassTheDice},
    {119, CloseDiceFile},
    {130, SeedAnew},
    {210, TellOrAsk},
    {211, TellOrAsk},
    {212, PlaySample},
    {213, ActivateProbabilities},
    {220, OpenOutput},
    {221, OpenOutput},
    {223, Output},
    {225, UseAtm},
    {226, UseAtm},
    {230, SeedWith},
    {310, PlayDiceFile},
};

}  // namespace

bool TakeAction(Game& game, const PreparedProgram& program, const PreparedStatement& statement) {
  for (const ActionRow& row : kActions)
    if (row.code == statement.code) return row.take({game, program, statement});
  return true;
}

}  // namespace tessaryn
