#include "rules/configuration.h"

#include "base/messages.h"
#include "state/game.h"

namespace tessaryn {
namespace {

static_assert(NeedOnly({Msg::kMinimumTooLow}, {"props", "unit"}));
static_assert(NeedOnly({Msg::kMinimumNotMultiple}, {"props", "unit", "two", "three"}));
static_assert(NeedOnly({Msg::kChecksNotPositive, Msg::kChecksNotAscending, Msg::kChecksNotDivisible,
                        Msg::kMaximumTooLow, Msg::kMaxFireBetTooLow},
                       {}));

// Of the main bets or the props.
ConfigurationProblem CheckMinimum(const Settings& settings, Currency minimum, bool props) {
  const Currency unit = settings.Unit();
  if (minimum < unit) return {Msg::kMinimumTooLow, {{"props", props}, {"unit", unit}}};
  if (IsMultiple(minimum, unit)) return {};
  const Currency two = unit + unit;
  return {Msg::kMinimumNotMultiple, {{"props", props}, {"unit", unit}, {"two", two}, {"three", two + unit}}};
}

}  // namespace

ConfigurationProblem CheckDenominations(const Settings& settings) {
  for (int n = 1; n <= 5; ++n)
    if (settings.CheckValue[n] <= kZero) return {Msg::kChecksNotPositive};
  for (int n = 2; n <= 5; ++n)
    if (settings.CheckValue[n] <= settings.CheckValue[n - 1]) return {Msg::kChecksNotAscending};
  for (int n = 2; n <= 5; ++n)
    if (!IsMultiple(settings.CheckValue[n], settings.Unit())) return {Msg::kChecksNotDivisible};
  return {};
}

ConfigurationProblem CheckConfiguration(const Game& game) {
  const Settings& settings = game.settings;
  ConfigurationProblem problem = CheckDenominations(settings);
  if (!problem.Found()) problem = CheckMinimum(settings, settings.MinBetMain, false);
  if (!problem.Found()) problem = CheckMinimum(settings, settings.MinBetProp, true);
  if (problem.Found()) return problem;
  if (settings.MaxBet < settings.MinBetMain) return {Msg::kMaximumTooLow};
  problem = CheckPayoffs(game.payoffs, {settings.SmallTallEnabled, settings.UseMidway, settings.UseFire});
  if (problem.Found()) return problem;
  if (settings.UseFire && settings.MaxFireBet <= kZero) return {Msg::kMaxFireBetTooLow};
  return {};
}

void RestoreDefaultDenominations(Game& game) {
  const Settings original;
  for (int n = 1; n <= 5; ++n) game.settings.CheckValue[n] = original.CheckValue[n];
  RebuildBetUnits(game.payoffs, game.settings.Unit());
}

}  // namespace tessaryn
