// What the settings were, what has changed since, and what that brings with it.
#pragma once

#include <string>
#include <vector>

#include "play/setting_values.h"

namespace tessaryn {

struct KeptSettings {
  Settings settings;
  PayoffTables payoffs;
  std::vector<AnyValue> values;  // of ForEachSettingPlace, in its order
};

KeptSettings KeepSettings(Game& game);
void RestoreSettings(Game& game, const KeptSettings& kept);
std::vector<SettingPlace> ChangesSince(Game& game, const KeptSettings& kept);

// What a value brings with it as it is put in place: the Field's rows and its preset go together.
void TakeEffectAtOnce(Game& game, const SettingRow& row);
// Whether all values go together, and nobody loses what is in use. False with the reason.
bool SettingsHold(Game& game, const KeptSettings& before, std::string& error);
// Carries out what the new values bring with them; asks the questions that this takes. False with the reason:
// the caller restores what was. A new house standard is not offered here.
bool CarryOutSettings(Game& game, const KeptSettings& before, std::string& error);

// Which bets of new players work on the come-out is another than it was.
bool HouseStandardChanged(Game& game, const KeptSettings& before);
// Asks whether the players at the table take the house standard too, and each of them.
void OfferHouseStandard(Game& game);

}  // namespace tessaryn
