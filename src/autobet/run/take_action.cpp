#include "autobet/run/take_action.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "autobet/language/language.h"
#include "autobet/run/operands.h"
#include "autobet/run/output_file.h"
#include "autobet/run/script_errors.h"
#include "autobet/run/set_variable.h"
#include "base/bet_catalogue.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "rules/seed_rng.h"
#include "rules/session.h"
#include "rules/shooter.h"
#include "state/run_stop.h"
#include "state/show_message.h"

namespace tessaryn {

SeatId ActionInHand::Seat() const { return game.autobet.CurrentAutobettor; }
const SeatScript& ActionInHand::Script() const { return game.autobet.Scripts[Seat()]; }
std::string ActionInHand::Text() const {
  return statement.arguments > 0 ? TextOf(program, statement.operand) : std::string();
}
double ActionInHand::Number() const {
  return statement.arguments > 0 ? NumberOf(program, statement.operand) : 0;
}
bool ActionInHand::Fails(int code) const { return ScriptFails(game, code); }

namespace {

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

// --- Sessions.

bool BeginSession(const ActionInHand& action, bool keepsStacks, bool keepsFile) {
  if (!action.Script().AllowReset) return action.Fails(kErrorNewSession);
  NewSession(action.game, true, keepsStacks, true, keepsFile ? kContinueRollFile : kCloseRollFile);
  return true;
}

bool StartSession(const ActionInHand& action) { return BeginSession(action, false, false); }
bool StartSessionWithStacks(const ActionInHand& action) { return BeginSession(action, true, false); }
bool StartSessionWithRollFile(const ActionInHand& action) { return BeginSession(action, false, true); }
bool StartSessionWithBoth(const ActionInHand& action) { return BeginSession(action, true, true); }

// --- Dice.

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

// --- Boxes, sounds and files.

bool MessagesOn(const Game& game) {
  constexpr int kInPlay = 8;
  constexpr int kInTurboRoll = 16;
  return (game.settings.MessageMask & (game.table.TurboRollActive ? kInTurboRoll : kInPlay)) != 0;
}

template <Msg kId>
int ShowBox(const ActionInHand& action) {
  return ShowMessage<kId>(action.game, With<"player">(action.game.table.seats[action.Seat()].SeatName),
                          With<"text">(action.Text()));
}

bool Tell(const ActionInHand& action) {
  if (!MessagesOn(action.game)) return action.Fails(kErrorMessagesOff);
  ShowBox<Msg::kScriptSays>(action);
  return true;
}

bool AskYesOrNo(const ActionInHand& action) {
  if (!MessagesOn(action.game)) return action.Fails(kErrorMessagesOff);
  const bool yes = ShowBox<Msg::kScriptAsks>(action) == kResultYes;
  action.game.autobet.Answer = yes ? kResultYes : kResultNo;
  return true;
}

bool PlaySample(const ActionInHand& action) {
  const Settings& settings = action.game.settings;
  if (settings.DisableAllSound || !settings.AutoBetSounds) return action.Fails(kErrorSoundsOff);
  action.game.host->PlaySoundFile(action.game, action.Text());
  return true;
}

bool OpenOutput(const ActionInHand& action, bool append) {
  return OpenScriptOutput(action.game, action.Seat(), action.Text(), append) || action.Fails(kErrorBadPath);
}
bool OpenOutputToAppend(const ActionInHand& action) { return OpenOutput(action, true); }
bool OpenOutputCleared(const ActionInHand& action) { return OpenOutput(action, false); }

bool WriteOutput(const ActionInHand& action) {
  return WriteScriptOutput(action.game, action.Seat(), action.Text()) || action.Fails(kErrorOutputClosed);
}

// --- The bankroll, the generator, the run.

bool UseAtm(const ActionInHand& action, bool deposits) {
  Game& game = action.game;
  if (!PlayerMayAct(game, action.Seat())) return false;
  const Currency amount =
      action.statement.arguments > 0 ? Currency::FromDouble(action.Number()) : game.settings.AtmUnit;
  AtmTransaction(game, action.Seat(), deposits, amount);
  return true;
}
bool Deposit(const ActionInHand& action) { return UseAtm(action, true); }
bool Withdraw(const ActionInHand& action) { return UseAtm(action, false); }

bool SeedWith(const ActionInHand& action) { return SeedFromScript(action.game, action.Number()); }

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

// --- What is done to each target.

bool BuyPlace(Game& game, const ResolvedTarget& target) {
  const bool bought = IsPlace(target.code) && BuyPlaceBet(game, target.seat, target.code);
  return bought || ScriptFails(game, kErrorPlaceReference);
}

bool CallOff(Game& game, const ResolvedTarget& target) {
  if (IsTableBet(target.code)) CallBet(game, target.seat, target.code, false);
  return true;
}

bool CallOn(Game& game, const ResolvedTarget& target) {
  if (IsTableBet(target.code)) CallBet(game, target.seat, target.code, true);
  return true;
}

bool RemoveCallButton(Game& game, const ResolvedTarget& target) {
  if (IsTableBet(target.code)) RemoveCall(game, target.seat, target.code);
  return true;
}

bool Clear(Game& game, const ResolvedTarget& target) {
  return SetVariable(game, target, {.isText = IsCheckStackName(target.code), .number = 0, .text = {}});
}

// --- What a target and an amount make.

constexpr AmountResult kAsGiven = nullptr;

bool Finite(Game& game, double result) {
  return std::isfinite(result) || ScriptFaults(game, kNumberOverflow);
}

bool Product(Game& game, double now, double amount, double& result) {
  result = now * amount;
  return Finite(game, result);
}

bool Total(Game& game, double now, double amount, double& result) {
  result = now + amount;
  return Finite(game, result);
}

bool Difference(Game& game, double now, double amount, double& result) {
  result = now - amount;
  return Finite(game, result);
}

bool Quotient(Game& game, double now, double amount, double& result) {
  if (amount == 0) return ScriptFails(game, kErrorDivision);
  result = now / amount;
  return Finite(game, result);
}

bool Rounded(Game& game, double now, double amount, double (*round)(double), double& result) {
  if (amount == 0) return ScriptFails(game, kErrorDivision);
  result = round(now / amount) * amount;
  return Finite(game, result);
}

bool RoundedToNearest(Game& game, double now, double amount, double& result) {
  return Rounded(game, now, amount, std::nearbyint, result);
}

bool RoundedDown(Game& game, double now, double amount, double& result) {
  return Rounded(game, now, amount, std::floor, result);
}

bool RoundedUp(Game& game, double now, double amount, double& result) {
  return Rounded(game, now, amount, std::ceil, result);
}

// --- Which row does what.

struct ActionRow {
  int code;
  ActionWork work;
};

constexpr ActionRow kActions[] = {
#define ACTION(code, phrase, shape, does, ...) {code, {.effect = does}},
#define TARGET_ACTION(code, phrase, shape, does, ...) {code, {.onTarget = does}},
#define AMOUNT_ACTION(code, phrase, gives, ...) {code, {.result = gives}},
#include "autobet/language/words.inc"
};

}  // namespace

ActionWork WorkOfAction(int code) {
  for (const ActionRow& row : kActions)
    if (row.code == code) return row.work;
  return {};
}

}  // namespace tessaryn
