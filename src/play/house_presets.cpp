#include "play/house_presets.h"

#include <algorithm>
#include <filesystem>

#include "base/letters.h"
#include "play/setting_values.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// What the ready houses differ in, as at a first start.
constexpr const char* kFirstRules =
    "MinBetMain=1 MinBetProp=1 MaxBet=1000 MaxPropBetPayoff=3000 MaxOddsBet=3000 MaxFireBet=5 "
    "OddsAllowed410=3 OddsAllowed59=4 OddsAllowed68=5 OddsCalcMethod=0 BarNumber=12 AllowPutBets=on "
    "ShooterBetRule=1 UseBig68=on UseMidway=on SmallTallEnabled=on UseFire=on FieldPreset=Field "
    "BuyVigRate=5% LayVigRate=5% BuyVigRound=0 LayVigRound=0 BuyVigUpFront=on LayVigUpFront=on "
    "CheckValue.1=1 CheckValue.2=5 CheckValue.3=25 CheckValue.4=100 CheckValue.5=500";

constexpr HousePreset kPresets[] = {
    {"first", "As at first", "The table as it is when the program is started for the first time.", ""},
    {"345x-10", "3-4-5x odds, $10 table",
     "The usual table of a large house: three times odds on 4 and 10, four on 5 and 9, five on 6 and 8.",
     "MinBetMain=10 MaxBet=2000 MaxOddsBet=10000 MaxPropBetPayoff=10000 UseBig68=off UseMidway=off"},
    {"345x-25", "3-4-5x odds, $25 table", "The same in the evening: a higher minimum, propositions from $5.",
     "MinBetMain=25 MinBetProp=5 MaxBet=5000 MaxOddsBet=25000 MaxPropBetPayoff=25000 UseBig68=off "
     "UseMidway=off"},
    {"2x-5", "Double odds, $5 table", "A small house with double odds and every side bet.",
     "MinBetMain=5 MaxBet=1000 OddsAllowed410=2 OddsAllowed59=2 OddsAllowed68=2 MaxOddsBet=2000"},
    {"1x-5", "Single odds, bar 2, $5 table", "An old house: single odds, two aces barred, no Put bets.",
     "MinBetMain=5 MaxBet=500 OddsAllowed410=1 OddsAllowed59=1 OddsAllowed68=1 MaxOddsBet=1000 BarNumber=2 "
     "AllowPutBets=off UseMidway=off SmallTallEnabled=off UseFire=off"},
    {"10x-10", "10x odds, $10 table", "Ten times odds on every point, vig only when Buy and Lay bets win.",
     "MinBetMain=10 MaxBet=3000 OddsAllowed410=10 OddsAllowed59=10 OddsAllowed68=10 MaxOddsBet=30000 "
     "MaxPropBetPayoff=10000 BuyVigUpFront=off LayVigUpFront=off UseBig68=off UseMidway=off"},
    {"20x-5", "20x odds, $5 table", "Twenty times odds on every point, a low minimum.",
     "MinBetMain=5 MaxBet=2000 OddsAllowed410=20 OddsAllowed59=20 OddsAllowed68=20 MaxOddsBet=40000 "
     "UseBig68=off UseMidway=off"},
    {"100x-5", "100x odds, $5 table",
     "A hundred times odds on every point: what the house keeps is least here.",
     "MinBetMain=5 MaxBet=1000 OddsAllowed410=100 OddsAllowed59=100 OddsAllowed68=100 MaxOddsBet=100000 "
     "BuyVigUpFront=off LayVigUpFront=off UseBig68=off UseMidway=off"},
    {"home", "At home, from a quarter", "Checks of 25 cents to $25, bets from a quarter to $50.",
     "CheckValue.1=0.25 CheckValue.2=1 CheckValue.3=5 CheckValue.4=10 CheckValue.5=25 MinBetMain=0.25 "
     "MinBetProp=0.25 MaxBet=50 MaxOddsBet=250 MaxPropBetPayoff=250 MaxFireBet=2.50"},
};

void AddRules(std::string_view text, std::vector<SettingChange>& rules) {
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    const auto equals = word.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string name(word.substr(0, equals));
    const std::string value(word.substr(equals + 1));
    const auto said = std::find_if(rules.begin(), rules.end(),
                                   [&name](const SettingChange& rule) { return rule.name == name; });
    if (said == rules.end())
      rules.push_back({name, 0, value});
    else
      said->value = value;
  }
}

}  // namespace

std::span<const HousePreset> HousePresets() { return kPresets; }

const HousePreset* FindHousePreset(std::string_view keyOrName) {
  for (const HousePreset& preset : kPresets)
    if (SameLetters(preset.key, keyOrName) || SameLetters(preset.name, keyOrName)) return &preset;
  return nullptr;
}

std::vector<SettingChange> HouseRules(const HousePreset& preset) {
  std::vector<SettingChange> rules;
  AddRules(kFirstRules, rules);
  AddRules(preset.rules, rules);
  return rules;
}

std::string HouseKeys() {
  std::string keys;
  for (const HousePreset& preset : kPresets) keys += (keys.empty() ? "" : ", ") + std::string(preset.key);
  return keys;
}

std::string HousesFolder(const Game& game) { return game.dataFolder + "houses/"; }

std::vector<std::string> KeptHouses(const Game& game) {
  std::vector<std::string> names;
  std::error_code fault;
  std::filesystem::directory_iterator files(HousesFolder(game), fault);
  for (const std::filesystem::directory_iterator end; !fault && files != end; files.increment(fault))
    if (files->path().extension() == kHouseEnding) names.push_back(files->path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace tessaryn
