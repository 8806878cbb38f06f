#include "rules/configuration.h"

#include "state/game.h"

namespace tessaryn {
namespace {

constexpr const char* kLimitsTitle = "Configuration Limits";

ConfigurationProblem CheckMinimum(const Settings& settings, Currency minimum, const std::string& name) {
  const Currency unit = settings.Unit();
  if (minimum < unit)
    return {kLimitsTitle,
            "The " + name + " cannot be less than the smallest check denomination of $" + FormatMoney(unit)};
  if (IsMultiple(minimum, unit)) return {};
  return {kLimitsTitle, "The " + name +
                            " must be some multiple of the smallest check denomination, such as $" +
                            FormatMoney(unit) + ", $" + FormatMoney(unit + unit) + ", $" +
                            FormatMoney(unit + unit + unit) + ",  etc."};
}

}  // namespace

ConfigurationProblem CheckDenominations(const Settings& settings) {
  constexpr const char* kTitle = "Check Values";
  for (int n = 1; n <= 5; ++n)
    if (settings.CheckValue[n] <= kZero) return {kTitle, "Check values must be greater than zero."};
  for (int n = 2; n <= 5; ++n)
    if (settings.CheckValue[n] <= settings.CheckValue[n - 1])
      return {kTitle,
              "Checks must be listed in ascending order with the smallest valued check in the leftmost "
              "position."};
  for (int n = 2; n <= 5; ++n)
    if (!IsMultiple(settings.CheckValue[n], settings.Unit()))
      return {kTitle, "All checks must be wholly divisible by the smallest check."};
  return {};
}

ConfigurationProblem CheckConfiguration(const Game& game) {
  const Settings& settings = game.settings;
  ConfigurationProblem problem = CheckDenominations(settings);
  if (!problem.Found()) problem = CheckMinimum(settings, settings.MinBetMain, "minimum bet");
  if (!problem.Found()) problem = CheckMinimum(settings, settings.MinBetProp, "minimum prop bet");
  if (problem.Found()) return problem;
  if (settings.MaxBet < settings.MinBetMain)
    return {kLimitsTitle, "The maximum bet must be greater than or equal to the minimum bet."};
  problem = CheckPayoffs(game.payoffs, {settings.SmallTallEnabled, settings.UseMidway, settings.UseFire});
  if (problem.Found()) return problem;
  if (settings.UseFire && settings.MaxFireBet <= kZero)
    return {"Max Fire Bet", "The max Fire bet must be greater than zero."};
  return {};
}

void RestoreDefaultDenominations(Game& game) {
  const Settings original;
  for (int n = 1; n <= 5; ++n) game.settings.CheckValue[n] = original.CheckValue[n];
  RebuildBetUnits(game.payoffs, game.settings.Unit());
}

}  // namespace tessaryn
