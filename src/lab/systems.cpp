#include "lab/systems.h"

#include "base/bet_catalogue.h"
#include "play/settings_file.h"

namespace tessaryn {

std::vector<std::string> SplitText(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::size_t at = 0;
  for (std::size_t next = 0; next != std::string::npos; at = next + 1) {
    next = text.find(separator, at);
    parts.push_back(text.substr(at, next == std::string::npos ? next : next - at));
  }
  return parts;
}

std::string ReadStandingBets(const std::string& text, LabSystem& system) {
  std::vector<StandingBet> bets;
  for (const std::string& part : SplitText(text, ',')) {
    const auto equals = part.find('=');
    if (equals == std::string::npos) return "\"" + part + "\": expected BET=AMOUNT";
    StandingBet standing{BetByName(part.substr(0, equals)), {}};
    if (!IsTableBet(standing.bet)) return "\"" + part.substr(0, equals) + "\" is no bet";
    const bool read = TryParseMoney(part.substr(equals + 1), standing.amount);
    if (!read || standing.amount <= kZero) return "\"" + part.substr(equals + 1) + "\" is no amount above 0";
    for (const StandingBet& other : bets)
      if (other.bet == standing.bet) return std::string(BetName(standing.bet)) + " comes twice";
    bets.push_back(standing);
  }
  system = StandingBetSystem(text, bets);
  return {};
}

namespace {

// "5", or "5..50:5".
bool ReadValues(const std::string& text, std::vector<Currency>& values) {
  const auto dots = text.find("..");
  Currency low;
  if (!TryParseMoney(text.substr(0, dots), low) || Abs(low) > kStackLimit) return false;
  values.push_back(low);
  if (dots == std::string::npos) return true;
  const auto colon = text.find(':', dots);
  Currency high;
  Currency step = Currency::Dollars(1);
  const std::size_t length = colon == std::string::npos ? colon : colon - dots - 2;
  if (!TryParseMoney(text.substr(dots + 2, length), high) || high < low || high > kStackLimit) return false;
  if (colon != std::string::npos && !TryParseMoney(text.substr(colon + 1), step)) return false;
  if (step <= kZero) return false;
  for (Currency next = low + step; next <= high && values.size() <= kMostSystems; next += step)
    values.push_back(next);
  return true;
}

}  // namespace

std::string SweepStack(const std::string& text, std::vector<LabSystem>& systems) {
  const auto equals = text.find('=');
  const BetId bet = BetByName("cs" + text.substr(0, equals));
  if (equals == std::string::npos || equals == 0 || !IsCheckStack(bet))
    return "expected N=VALUE,... with a CheckStack N from 0 to 99";
  const int stack = bet - kFirstCheckStack;
  for (const StackStart& start : systems.front().stacks)
    if (start.stack == stack) return "CheckStack " + std::to_string(stack) + " comes twice";
  std::vector<Currency> values;
  for (const std::string& part : SplitText(text.substr(equals + 1), ','))
    if (!ReadValues(part, values)) return "\"" + part + "\" is no value and no range LOW..HIGH:STEP";
  return MultiplySystems(systems, values.size(), [&](LabSystem& system, std::size_t i) {
    system.stacks.push_back({stack, values[i]});
  });
}

std::string ReadLabSetting(const std::string& text, LabSetting& setting) {
  SettingChange change;
  std::string error;
  if (ParseSettingLine(text, change, error) != LineKind::kChange)
    return error.empty() ? "expected NAME=VALUE" : error;
  setting = {change.name, change.seat, change.value};
  return {};
}

std::string SweepSetting(const std::string& text, std::vector<LabSystem>& systems) {
  LabSetting setting;
  if (!ReadLabSetting(text, setting).empty()) return "expected NAME=VALUE,...";
  const std::vector<std::string> values = SplitText(setting.text, ',');
  return MultiplySystems(systems, values.size(), [&](LabSystem& system, std::size_t i) {
    setting.text = values[i];
    system.settings.push_back(setting);
  });
}

}  // namespace tessaryn
