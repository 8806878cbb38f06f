#include "play/setting_effects.h"

#include <algorithm>

#include "dice/generators.h"
#include "play/auto_roll.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/configuration.h"
#include "rules/consistency.h"
#include "rules/payoffs.h"
#include "state/bet_families.h"
#include "state/show_message.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

// BetUnit follows from the rest.
template <typename T>
bool SameValue(const T& a, const T& b) {
  return a == b;
}
bool SameValue(const PayoffRecord& a, const PayoffRecord& b) {
  return a.PayTo == b.PayTo && a.ForFlag == b.ForFlag && a.PayPer == b.PayPer;
}

bool Has(const std::vector<SettingPlace>& changes, Effect effect) {
  return std::any_of(changes.begin(), changes.end(),
                     [effect](const SettingPlace& place) { return place.row->facts.effect == effect; });
}

// --- What a change brings with it.

bool AnySeatHas(const Game& game, const BetSet& bets) { return game.table.AnyBets.Meets(bets); }

struct Family {
  bool Settings::*offered;
  Msg question;  // whether what is up may come down
};
constexpr Family kFamilies[] = {
    {&Settings::UseBig68, Msg::kAskRemoveBig68},
    {&Settings::UseFire, Msg::kAskRemoveFire},
    {&Settings::UseMidway, Msg::kAskRemoveMidway},
    {&Settings::SmallTallEnabled, Msg::kAskRemoveSpecials},
};
static_assert(NeedOnly({Msg::kAskRemoveBig68, Msg::kAskRemoveFire, Msg::kAskRemoveMidway,
                        Msg::kAskRemoveSpecials},
                       {"bets"}));

std::string NamesUp(const Game& game, const BetSet& bets) {
  std::string names;
  (game.table.AnyBets & bets).ForEach([&names](BetId bet) {
    names += (names.empty() ? "" : ", ") + BetName(bet);
  });
  return names;
}

bool SevenPoint7Rides(const Game& game) {
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (game.table.BetAmount(seat, kSevenPoint7) > kZero &&
        game.table.BetCommitted(seat, kSevenPoint7) > kZero)
      return true;
  return false;
}

// A family that is switched off with bets up: asks whether they may come down. False: it stays.
bool MaySwitchOff(Game& game, const Family& family, std::string& error) {
  const BetSet bets = BetsOfferedBy(family.offered);
  if (!AnySeatHas(game, bets)) return true;
  if (family.offered == &Settings::SmallTallEnabled && SevenPoint7Rides(game)) {
    error = MessageText<Msg::kSpecialsAreContract>();
    ShowMessage<Msg::kSpecialsAreContract>(game);
    return false;
  }
  if (ShowMessage(game, family.question, {{"bets", NamesUp(game, bets)}}) == kResultYes) return true;
  error = MessageText<Msg::kBetsStay>(With<"title">(MessageText(RowOf(family.question).title)));
  return false;
}

void TakeFamilyDown(Game& game, const Family& family) {
  const BetSet bets = BetsOfferedBy(family.offered);
  if (AnySeatHas(game, bets))
    for (SeatId seat = 1; seat <= kSeats; ++seat) TakeDownBets(game, seat, bets);
  if (family.offered != &Settings::SmallTallEnabled) return;
  // What was counted for these bets says nothing to those of a table that offers them again.
  game.table.NumberMarks = 0;
  game.table.FourRollCount = 0;
}

// Every question comes before the first bet is touched, so that one No leaves all families as they were.
bool SwitchFamiliesOff(Game& game, const Settings& before, std::string& error) {
  const auto goesOff = [&](const Family& family) {
    return before.*family.offered && !(game.settings.*family.offered);
  };
  for (const Family& family : kFamilies)
    if (goesOff(family) && !MaySwitchOff(game, family, error)) return false;
  // Bets come down by the rules under which they were made.
  const Settings wanted = game.settings;
  for (const Family& family : kFamilies) {
    if (!goesOff(family)) continue;
    game.settings = before;
    TakeFamilyDown(game, family);
    game.settings = wanted;
  }
  return true;
}

// Whether every seat can pay the vig that the new settings ask for up front.
bool VigCovered(Game& game, std::string& error) {
  int short_ = 0;
  bool lay = false;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    Currency onTable;
    game.table.seats[seat].SeatBets.ForEach([&](BetId bet) {
      const Currency amount = game.table.BetAmount(seat, bet);
      onTable += amount;
      if (VigUpFront(game, bet)) {
        onTable += VigFor(game, bet, amount);
        lay = lay || IsLay(bet);
      }
    });
    const bool covered =
        game.table.seats[seat].AllowNegativeBankroll ||
        onTable <= std::max(game.table.BankrollCurrent[seat], game.table.seats[seat].OnTableAmount);
    if (!covered) ++short_;
  }
  if (short_ == 0) return true;
  const Msg message = lay ? Msg::kLayVigNotCovered : Msg::kBuyVigNotCovered;
  const std::vector<MessageArgument> arguments = {{"alone", short_ == 1 && game.table.OccupiedSeats == 1}};
  error = MessageText(message, arguments);
  ShowMessage(game, message, arguments);
  return false;
}
static_assert(NeedOnly({Msg::kLayVigNotCovered, Msg::kBuyVigNotCovered}, {"alone"}));

// A value that is within its limits, and yet none of those that there are.
bool OneOfThose(const SettingRow& row, Game& game, std::string& error) {
  const auto* cell = std::get_if<Cell<int>>(&row.cell);
  if (cell == nullptr || row.oneOf.empty()) return true;
  const int value = cell->at(game, kHouse, row.firstRow);
  std::string values;
  for (const int each : row.oneOf) {
    if (value == each) return true;
    values += (values.empty() ? "" : " or ") + std::to_string(each);
  }
  error = std::string(row.name) + " must be " + values + ".";
  return false;
}

}  // namespace

KeptSettings KeepSettings(Game& game) {
  KeptSettings kept{game.settings, game.payoffs, {}};
  ForEachSettingPlace(game, [&kept]<typename T>(const SettingPlace&, const T& value) {
    kept.values.emplace_back(Value<T>{value});
  });
  return kept;
}

void RestoreSettings(Game& game, const KeptSettings& kept) {
  std::size_t i = 0;
  ForEachSettingPlace(game, [&]<typename T>(const SettingPlace&, T& value) {
    value = std::get<Value<T>>(kept.values[i++]).value;
  });
  game.settings = kept.settings;
  game.payoffs = kept.payoffs;
}

std::vector<SettingPlace> ChangesSince(Game& game, const KeptSettings& kept) {
  std::vector<SettingPlace> changes;
  std::size_t i = 0;
  ForEachSettingPlace(game, [&]<typename T>(const SettingPlace& place, const T& value) {
    if (!SameValue(value, std::get<Value<T>>(kept.values[i++]).value)) changes.push_back(place);
  });
  return changes;
}

void TakeEffectAtOnce(Game& game, const SettingRow& row) {
  Settings& settings = game.settings;
  const bool preset = row.facts.effect == Effect::kFieldPayoffs;
  if (!preset && !std::holds_alternative<Cell<PayoffRecord>>(row.cell)) return;
  if (preset && settings.FieldPreset != FieldPresetId::kOwn)
    SetFieldPreset(game.payoffs, static_cast<int>(settings.FieldPreset), settings.Unit());
  settings.FieldPreset = static_cast<FieldPresetId>(FieldPresetOf(game.payoffs));
}

bool SettingsHold(Game& game, const KeptSettings& before, std::string& error) {
  if (const ConfigurationProblem problem = CheckConfiguration(game); problem.Found()) {
    error = problem.Text();
    return false;
  }
  for (const SettingPlace& place : ChangesSince(game, before)) {
    if (!OneOfThose(*place.row, game, error)) return false;
    if (place.row->facts.effect != Effect::kNegativeAllowed) continue;
    const SeatId seat = place.seat.value;
    if (game.table.seats[seat].AllowNegativeBankroll || game.table.BankrollCurrent[seat] >= kZero) continue;
    error = MessageText<Msg::kBankrollIsNegative>(With<"player">(game.table.seats[seat].SeatName));
    return false;
  }
  return true;
}

bool CarryOutSettings(Game& game, const KeptSettings& before, std::string& error) {
  if (!SettingsHold(game, before, error)) return false;
  RebuildBetUnits(game.payoffs, game.settings.Unit());
  const std::vector<SettingPlace> changes = ChangesSince(game, before);
  const bool vig = Has(changes, Effect::kVig);
  if (vig && !VigCovered(game, error)) return false;
  if (!SwitchFamiliesOff(game, before.settings, error)) return false;
  if (vig) RecomputeVig(game);
  game.autobet.ScriptsCompiled = false;
  ReplaceMissingGenerator(game.generators);
  if (Has(changes, Effect::kThrottle)) SetThrottle(game, game.settings.RollThrottle);
  if (Has(changes, Effect::kLog) && !game.events.RecordEventsActive) FlushEventsLog(game);
  game.host->Changed(game, Change::kSettings);
  RequireConsistency(game);
  return true;
}

bool HouseStandardChanged(Game& game, const KeptSettings& before) {
  const std::vector<SettingPlace> changes = ChangesSince(game, before);
  return std::any_of(changes.begin(), changes.end(), [](const SettingPlace& place) {
    return place.row->facts.effect == Effect::kHouseStandard && place.seat == kHouse;
  });
}

void OfferHouseStandard(Game& game) {
  TableState& table = game.table;
  if (table.OccupiedSeats == 0) return;
  if (!Confirms<Msg::kAskMatchHouse>(game)) return;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(table, seat) &&
        Confirms<Msg::kAskMatchHouseOf>(game, With<"player">(table.seats[seat].SeatName)))
      table.seats[seat].BetDefaultWorking = table.seats[0].BetDefaultWorking;
}

}  // namespace tessaryn
