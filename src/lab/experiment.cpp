#include "lab/experiment.h"

#include "autobet/language/vocabulary.h"
#include "dice/percentage_dice.h"
#include "lab/dice_streams.h"
#include "play/players.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "rules/seed_rng.h"

namespace tessaryn {
namespace {

constexpr const char* kPlayer = "Lab";
// What a script of the laboratory asks to write leads nowhere: sessions run side by side.
constexpr const char* kNowhere = "/dev/null/";

std::vector<SettingChange> ChangesOf(const std::vector<LabSetting>& settings, bool ofPlayers) {
  std::vector<SettingChange> changes;
  for (const LabSetting& setting : settings)
    if ((setting.seat != 0 || IsSeatSetting(setting.name)) == ofPlayers)
      changes.push_back({setting.name, setting.seat, setting.text});
  return changes;
}

std::string Applied(Game& game, const std::vector<SettingChange>& changes) {
  std::string error;
  const std::size_t bad = FindSettingProblem(game, changes, error);
  if (bad < changes.size()) return "setting " + changes[bad].name + "=" + changes[bad].value + ": " + error;
  return SetSettings(game, changes, error) ? "" : error;
}

// The table's settings stand before the player buys in, the player's behind it; those of the system come last
// of either kind.
std::string ApplySettings(Game& game, const Experiment& experiment, const LabSystem& system, bool ofPlayers) {
  std::vector<SettingChange> changes = ChangesOf(experiment.settings, ofPlayers);
  const std::vector<SettingChange> own = ChangesOf(system.settings, ofPlayers);
  changes.insert(changes.end(), own.begin(), own.end());
  return Applied(game, changes);
}

std::string SetDice(Game& game, const Experiment& experiment) {
  if (experiment.generator != 0) game.generators.GeneratorIndex = experiment.generator - 1;
  if (experiment.percentageDice) {
    game.percentage.ProbMatrix = experiment.probabilities;
    ProbabilitiesChanged(game.percentage);
    if (!ActivatePercentageDice(game.percentage, true)) return "percentage dice: nothing to roll";
  }
  if (std::string problem = StreamProblem(game.generators); !problem.empty()) return problem;
  const bool cokus = game.generators.GeneratorIndex == kGeneratorCokus;
  if ((game.generators.MissingGeneratorFiles & (cokus ? kMissingCokus : kMissingMersenne)) == 0) return {};
  return std::string("the support file of the generator, ") + (cokus ? "cokus.dll" : "mt19937ar.dll") +
         ", is missing";
}

void LoadSystem(Game& game, const LabSystem& system, LabProblem& problem) {
  for (const StackStart& start : system.stacks)
    SetBetAmount(game, kLabSeat, kFirstCheckStack + start.stack, start.amount);
  SetScript(game, kLabSeat, system.lines, system.name);
  problem.script = CheckScript(game, kLabSeat);
  if (!problem.script.ok && problem.script.diagnostic.Failed())
    problem.text = system.name + ": " + problem.script.text;
  SetScriptActive(game, kLabSeat, true);
}

}  // namespace

SessionRange SessionsOf(const Experiment& experiment) {
  const auto bound = [&](int shard) {
    const std::int64_t whole = experiment.sessions / experiment.shards * shard;
    return whole + experiment.sessions % experiment.shards * shard / experiment.shards;
  };
  return {bound(experiment.shard - 1), bound(experiment.shard)};
}

std::string LabelOf(const LabSystem& system) {
  std::string parameters;
  const auto add = [&](const std::string& text) { parameters += (parameters.empty() ? " [" : ", ") + text; };
  for (const StackStart& start : system.stacks)
    add("CheckStack " + std::to_string(start.stack) + "=" + PlainMoney(start.amount));
  for (const LabSetting& setting : system.settings) add(setting.name + "=" + setting.text);
  return system.name + parameters + (parameters.empty() ? "" : "]");
}

LabSystem StandingBetSystem(const std::string& name, const std::vector<StandingBet>& bets) {
  LabSystem system;
  system.name = name;
  system.standingBets = true;
  for (const StandingBet& standing : bets)
    system.lines.push_back("if " + std::string(BetWord(standing.bet)) + " = 0 then " +
                           BetStatement(standing.bet, standing.amount) + " endif");
  return system;
}

std::unique_ptr<Game> BuildTable(const Experiment& experiment, const LabSystem& system, Host& host,
                                 const std::string& applicationFolder, LabProblem& problem) {
  std::unique_ptr<Game> game = StartGame(host, applicationFolder, kNowhere);
  problem.text = ApplySettings(*game, experiment, system, false);
  if (!problem.Found()) JoinPlayer(*game, kLabSeat, kPlayer, experiment.bankroll, problem.text);
  if (!problem.Found()) problem.text = ApplySettings(*game, experiment, system, true);
  if (!problem.Found()) problem.text = SetDice(*game, experiment);
  if (!problem.Found()) LoadSystem(*game, system, problem);
  game->sessions.Files.Off = true;
  return problem.Found() ? nullptr : std::move(game);
}

}  // namespace tessaryn
