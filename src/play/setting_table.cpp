#include "play/setting_table.h"

#include <algorithm>
#include <charconv>

#include "base/letters.h"
#include "base/bet_catalogue.h"
#include "base/messages.h"
#include "play/setting_effects.h"
#include "rules/configuration.h"
#include "rules/payoffs.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// A value of the table that goes by its name as settings do, to be read alone.
struct StateRow {
  const char* name;
  bool bySeat;
  std::string (*text)(const Game&, SeatId seat);
};

template <typename T>
std::string Whole(T value) {
  return std::to_string(value);
}

constexpr StateRow kStateRows[] = {
    {"Point", false, [](const Game& game, SeatId) { return Whole(game.table.Point); }},
    {"LastPoint", false, [](const Game& game, SeatId) { return Whole(game.table.LastPoint); }},
    {"Die1", false, [](const Game& game, SeatId) { return Whole(game.table.Die1); }},
    {"Die2", false, [](const Game& game, SeatId) { return Whole(game.table.Die2); }},
    {"RollTotal", false, [](const Game& game, SeatId) { return Whole(game.table.RollTotal); }},
    {"ShooterSeat", false, [](const Game& game, SeatId) { return Whole(game.table.ShooterSeat); }},
    {"HandSeat", false, [](const Game& game, SeatId) { return Whole(game.table.HandSeat); }},
    {"SelectedSeat", false, [](const Game& game, SeatId) { return Whole(game.table.SelectedSeat); }},
    {"OccupiedSeats", false, [](const Game& game, SeatId) { return Whole(game.table.OccupiedSeats); }},
    {"NumberMarks", false, [](const Game& game, SeatId) { return Whole(game.table.NumberMarks); }},
    {"FourRollCount", false, [](const Game& game, SeatId) { return Whole(game.table.FourRollCount); }},
    {"FireMarks", false, [](const Game& game, SeatId) { return Whole(game.table.FireMarks); }},
    {"FireCount", false, [](const Game& game, SeatId) { return Whole(game.table.FireCount); }},
    {"SharpShooterCount", false, [](const Game& game, SeatId) { return Whole(game.table.SharpShooterCount); }},
    {"RideTheLineCount", false, [](const Game& game, SeatId) { return Whole(game.table.RideTheLineCount); }},
    {"RngLastSeed", false, [](const Game& game, SeatId) { return Whole(game.generators.RngLastSeed); }},
    {"StopReason", false, [](const Game& game, SeatId) { return game.table.StopReason; }},
    {"RecorderState", false, [](const Game& game, SeatId) { return Whole(game.rollFile.RecorderState); }},
    {"RollFileName", false, [](const Game& game, SeatId) { return game.rollFile.RollFileName; }},
    {"RollFileCursor", false, [](const Game& game, SeatId) { return Whole(game.rollFile.RollFileCursor); }},
    {"SeatName", true, [](const Game& game, SeatId seat) { return game.table.seats[seat].SeatName; }},
    {"BankrollCurrent", true,
     [](const Game& game, SeatId seat) { return PlainMoney(game.table.BankrollCurrent[seat]); }},
    {"OnTableAmount", true,
     [](const Game& game, SeatId seat) { return PlainMoney(game.table.seats[seat].OnTableAmount); }},
    {"RailAmount", true,
     [](const Game& game, SeatId seat) { return PlainMoney(game.table.seats[seat].RailAmount); }},
};

// --- Names.

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1));
}

// What a name means: a setting, in a row of it for NAME.ROW, or a value of the state; else nothing.
struct Meaning {
  const SettingRow* row = nullptr;
  int index = 0;
  const StateRow* state = nullptr;

  bool BySeat() const { return row != nullptr ? row->BySeat() : state->bySeat; }
};

int IndexOf(const SettingRow& row, std::string_view text) {
  int index = -1;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), index);
  const bool whole = fault == std::errc() && end == text.data() + text.size();
  return whole || !row.byBets ? index : BetByName(text).value;
}

Meaning MeaningOf(std::string_view name) {
  for (const StateRow& state : kStateRows)
    if (SameLetters(state.name, name)) return {nullptr, 0, &state};
  const auto dot = name.rfind('.');
  for (const SettingRow& row : SettingRows()) {
    if (!SameLetters(row.name, row.inRows ? name.substr(0, dot) : name)) continue;
    const int index = !row.inRows                     ? 0
                      : dot == std::string_view::npos ? -1
                                                      : IndexOf(row, name.substr(dot + 1));
    if (row.inRows && (index < row.firstRow || index > row.lastRow)) return {};
    return {&row, index, nullptr};
  }
  return {};
}

bool HasMeaning(const Meaning& meaning, std::string_view name, std::string& error) {
  if (meaning.row != nullptr || meaning.state != nullptr) return true;
  error = MessageText<Msg::kNoSuchSetting>(With<"setting">(name));
  return false;
}

bool IsSeatNumber(SeatId seat, std::string& error) {
  if (seat >= 0 && seat <= kSeats) return true;
  error = MessageText<Msg::kNoSuchSeat>(With<"seat">(seat));
  return false;
}

bool BelongsToSeat(const Meaning& meaning, std::string_view name, SeatId seat, std::string& error) {
  if (meaning.BySeat() || seat == 0) return true;
  error = MessageText<Msg::kSettingOfTable>(With<"setting">(name));
  return false;
}

// --- Changes.

bool PutAt(Game& game, const Meaning& meaning, SeatId seat, const std::string& text, std::string& error) {
  if (!ReadSettingText(game, *meaning.row, seat, meaning.index, text, error)) return false;
  TakeEffectAtOnce(game, *meaning.row);
  return true;
}

// Puts one value in its place, of one seat or of every player.
bool Put(Game& game, const SettingChange& change, std::string& error) {
  const std::string name = Trimmed(change.name);
  const std::string text = Trimmed(change.value);
  const Meaning meaning = MeaningOf(name);
  if (!IsSeatNumber(change.seat, error) || !HasMeaning(meaning, name, error)) return false;
  if (meaning.state != nullptr) {
    error = MessageText<Msg::kSettingReadOnly>(With<"setting">(meaning.state->name));
    return false;
  }
  if (!BelongsToSeat(meaning, name, change.seat, error)) return false;
  if (change.seat > 0 && !IsOccupied(game.table, change.seat)) {
    error = MessageText<Msg::kSeatOpen>(With<"seat">(change.seat));
    return false;
  }
  const bool everyPlayer = meaning.row->keeper == Keeper::kPlayer && change.seat == 0;
  if (!everyPlayer) return PutAt(game, meaning, change.seat, text, error);
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(game.table, seat) && !PutAt(game, meaning, seat, text, error)) return false;
  return true;
}

// The place of the first that is refused; the size if all are put.
std::size_t PutAll(Game& game, const std::vector<SettingChange>& changes, std::string& error) {
  std::size_t i = 0;
  while (i < changes.size() && Put(game, changes[i], error)) ++i;
  return i;
}

// The change from which on the settings don't hold together, of some that all can be put.
std::size_t FirstThatBreaks(Game& game, const KeptSettings& before,
                            const std::vector<SettingChange>& changes) {
  RestoreSettings(game, before);
  std::size_t first = changes.size();
  std::string ignored;
  for (std::size_t i = 0; i < changes.size() && Put(game, changes[i], ignored); ++i) {
    const bool holds = SettingsHold(game, before, ignored);
    if (holds) first = changes.size();
    if (!holds && first == changes.size()) first = i;
  }
  return first;
}

// --- Values that came past all this.

// What the settings must keep among themselves. Each leaves alone what is good.
void BringTogether(Game& game) {
  Settings& settings = game.settings;
  if (CheckDenominations(settings).Found()) RestoreDefaultDenominations(game);
  for (Currency* minimum : {&settings.MinBetMain, &settings.MinBetProp})
    *minimum = std::max(settings.Unit(), RoundDownToUnit(*minimum, settings.Unit()));
  settings.MaxBet = std::max(settings.MaxBet, settings.MinBetMain);
  if (CheckPayoffs(game.payoffs, {settings.SmallTallEnabled, settings.UseMidway, settings.UseFire}).Found())
    ResetPayoffs(game.payoffs, settings.Unit());
  if (settings.MaxFireBet <= kZero) settings.MaxFireBet = Settings().MaxFireBet;
}

}  // namespace

bool SetSettings(Game& game, const std::vector<SettingChange>& changes, std::string& error,
                 HouseStandard standard) {
  const KeptSettings before = KeepSettings(game);
  error.clear();
  if (PutAll(game, changes, error) < changes.size() || !CarryOutSettings(game, before, error)) {
    RestoreSettings(game, before);
    return false;
  }
  if (standard == HouseStandard::kOffered && HouseStandardChanged(game, before)) OfferHouseStandard(game);
  return true;
}

std::size_t FindSettingProblem(Game& game, const std::vector<SettingChange>& changes, std::string& error) {
  const KeptSettings before = KeepSettings(game);
  error.clear();
  std::size_t problem = PutAll(game, changes, error);
  if (problem == changes.size() && !SettingsHold(game, before, error))
    problem = FirstThatBreaks(game, before, changes);
  RestoreSettings(game, before);
  return problem;
}

ConfigurationProblem FindConfigurationProblem(Game& game, const std::vector<SettingChange>& changes) {
  const KeptSettings before = KeepSettings(game);
  std::string ignored;
  for (const SettingChange& change : changes) Put(game, change, ignored);
  const ConfigurationProblem problem = CheckConfiguration(game);
  RestoreSettings(game, before);
  return problem;
}

std::vector<SettingDifference> PreviewSettings(Game& game, const std::vector<SettingChange>& changes) {
  const KeptSettings before = KeepSettings(game);
  std::string ignored;
  PutAll(game, changes, ignored);
  std::vector<SettingDifference> differences;
  for (const SettingPlace& place : ChangesSince(game, before)) {
    if (place.seat != kHouse) continue;
    const int last = std::holds_alternative<Cell<BetSet>>(place.row->cell) ? place.row->lastRow : place.index;
    for (int index = place.index; index <= last; ++index)
      differences.push_back(
          {SettingFullName(*place.row, index), "", SettingText(game, *place.row, place.seat, index)});
  }
  RestoreSettings(game, before);
  std::erase_if(differences, [&game](SettingDifference& difference) {
    std::string error;
    return GetSetting(game, difference.name, 0, difference.now, error) && difference.now == difference.then;
  });
  return differences;
}

bool IsSeatSetting(std::string_view name) {
  const Meaning meaning = MeaningOf(Trimmed(name));
  if (meaning.state != nullptr) return meaning.state->bySeat;
  return meaning.row != nullptr && meaning.row->keeper == Keeper::kPlayer;
}

bool SetSetting(Game& game, std::string_view name, SeatId seat, std::string_view value, std::string& error) {
  return SetSettings(game, {{std::string(name), seat, std::string(value)}}, error);
}

bool GetSetting(const Game& game, std::string_view name, SeatId seat, std::string& value,
                std::string& error) {
  const std::string trimmed = Trimmed(name);
  const Meaning meaning = MeaningOf(trimmed);
  if (!HasMeaning(meaning, trimmed, error) || !IsSeatNumber(seat, error) ||
      !BelongsToSeat(meaning, trimmed, seat, error))
    return false;
  value = meaning.state != nullptr ? meaning.state->text(game, seat)
                                   : SettingText(game, *meaning.row, seat, meaning.index);
  return true;
}

std::vector<std::string> ClampSettings(Game& game) {
  // What follows from the rest is no value of a file.
  RebuildBetUnits(game.payoffs, game.settings.Unit());
  game.settings.FieldPreset = static_cast<FieldPresetId>(FieldPresetOf(game.payoffs));
  const KeptSettings before = KeepSettings(game);
  ForEachSettingPlace(game, [&game](const SettingPlace& place, const auto&) { ClampSetting(game, place); });
  BringTogether(game);
  RebuildBetUnits(game.payoffs, game.settings.Unit());
  game.settings.FieldPreset = static_cast<FieldPresetId>(FieldPresetOf(game.payoffs));
  std::vector<std::string> names;
  for (const SettingPlace& place : ChangesSince(game, before)) {
    const bool house = place.seat == kHouse;
    names.push_back(SettingFullName(*place.row, place.index) +
                    (house ? "" : "@" + std::to_string(place.seat.value)));
  }
  return names;
}

std::vector<SettingName> AllSettings() {
  std::vector<SettingName> names;
  for (const SettingRow& row : SettingRows())
    for (int index = row.firstRow; index <= row.lastRow; ++index)
      names.push_back({SettingFullName(row, index), row.BySeat(), row.help});
  return names;
}

}  // namespace tessaryn
