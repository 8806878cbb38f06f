#include "play/setting_values.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "base/letters.h"
#include "base/messages.h"
#include "rules/payoffs.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr const char* kOwnPreset = "Own";

// --- Reading: name is what errors call the setting.

bool ReadNumber(const std::string& name, const std::string& text, Limits<Currency> limits, Currency& number,
                std::string& error) {
  Currency read;
  if (!TryParseMoney(text, read)) {
    error = MessageText<Msg::kSettingNoNumber>(With<"setting">(name), With<"value">(text));
    return false;
  }
  if (!limits.Hold(read)) {
    error = MessageText<Msg::kSettingOutOfRange>(With<"setting">(name), With<"least">(limits.least),
                                                 With<"most">(limits.most));
    return false;
  }
  number = read;
  return true;
}

bool ReadFlag(const std::string& name, const std::string& text, bool& value, std::string& error) {
  const auto isOneOf = [&text](std::initializer_list<const char*> words) {
    return std::any_of(words.begin(), words.end(), [&](const char* word) { return SameLetters(text, word); });
  };
  const bool on = isOneOf({"on", "yes", "true", "-1", "1"});
  if (!on && !isOneOf({"off", "no", "false", "0"})) {
    error = MessageText<Msg::kSettingNoFlag>(With<"setting">(name), With<"value">(text));
    return false;
  }
  value = on;
  return true;
}

bool Read(const Cell<bool>&, const std::string& name, const std::string& text, bool& value,
          std::string& error) {
  return ReadFlag(name, text, value, error);
}

bool Read(const Cell<Currency>& cell, const std::string& name, const std::string& text, Currency& value,
          std::string& error) {
  return ReadNumber(name, text, cell.limits, value, error);
}

template <typename Unit>
bool Read(const Cell<Quantity<Unit>>& cell, const std::string& name, const std::string& text,
          Quantity<Unit>& value, std::string& error) {
  Currency number;
  const Limits<Currency> limits{cell.limits.least.Number(), cell.limits.most.Number()};
  if (!ReadNumber(name, text, limits, number, error)) return false;
  value = Quantity<Unit>::Of(number);
  return true;
}

// Also as a percentage.
bool Read(const Cell<Fraction>& cell, const std::string& name, const std::string& text, Fraction& value,
          std::string& error) {
  if (!text.ends_with('%')) return Read<FractionUnit>(cell, name, text, value, error);
  Currency percent;
  const Limits<Currency> limits{ToPercent(cell.limits.least).Number(), ToPercent(cell.limits.most).Number()};
  if (!ReadNumber(name, text.substr(0, text.size() - 1), limits, percent, error)) return false;
  value = ToFraction(Percent::Of(percent));
  return true;
}

bool Read(const Cell<int>& cell, const std::string& name, const std::string& text, int& value,
          std::string& error) {
  Currency number;
  const Limits<Currency> limits{Currency::Dollars(cell.limits.least), Currency::Dollars(cell.limits.most)};
  if (!ReadNumber(name, text, limits, number, error)) return false;
  if (!number.IsWhole()) {
    error = MessageText<Msg::kSettingNotWhole>(With<"setting">(name));
    return false;
  }
  value = static_cast<int>(number.raw / Currency::kPerDollar);
  return true;
}

// A count of rolls: what is typed loses its fraction.
bool Read(const Cell<std::int64_t>& cell, const std::string& name, const std::string& text,
          std::int64_t& value, std::string& error) {
  Currency number;
  const Limits<Currency> limits{Currency::Dollars(cell.limits.least), Currency::Dollars(cell.limits.most)};
  if (!ReadNumber(name, text, limits, number, error)) return false;
  value = WholePart(number).raw / Currency::kPerDollar;
  return true;
}

bool Read(const Cell<FieldPresetId>&, const std::string& name, const std::string& text, FieldPresetId& value,
          std::string& error) {
  const int preset = FieldPresetByName(text);
  if (preset < 0 && !SameLetters(text, kOwnPreset)) {
    error = MessageText<Msg::kSettingNoPreset>(With<"setting">(name), With<"value">(text),
                                               With<"presets">(FieldPresetNames()));
    return false;
  }
  value = static_cast<FieldPresetId>(preset);
  return true;
}

bool Read(const Cell<PayoffRecord>&, const std::string& name, const std::string& text, PayoffRecord& value,
          std::string& error) {
  if (ParsePayoff(text, value)) return true;
  error = MessageText<Msg::kSettingNoPayoff>(With<"setting">(name), With<"value">(text));
  return false;
}

// --- Writing.

std::string OnOff(bool on) { return on ? "on" : "off"; }

std::string Text(bool value) { return OnOff(value); }
std::string Text(int value) { return std::to_string(value); }
std::string Text(std::int64_t value) { return std::to_string(value); }
std::string Text(Currency value) { return PlainMoney(value); }
template <typename Unit>
std::string Text(Quantity<Unit> value) {
  return PlainMoney(value.Number());
}
std::string Text(FieldPresetId value) {
  return value == FieldPresetId::kOwn ? kOwnPreset : FieldPresetFacts(static_cast<int>(value)).name;
}
std::string Text(const PayoffRecord& value) { return PayoffText(value); }

// --- Limits.

template <typename T>
void BringWithin(const SettingRow&, const Cell<T>& cell, T& value) {
  value = cell.limits.Clamp(value);
}
void BringWithin(const SettingRow& row, const Cell<int>& cell, int& value) {
  const auto choices = static_cast<int>(row.facts.captions.size());
  if (!row.oneOf.empty() && std::find(row.oneOf.begin(), row.oneOf.end(), value) == row.oneOf.end())
    value = row.oneOf.front();
  else if (cell.limits.most < choices && !cell.limits.Hold(value))
    value = 0;
  else
    value = cell.limits.Clamp(value);
}
// Of a byte that came from outside, whatever is set is on.
void BringWithin(const SettingRow&, const Cell<bool>&, bool&) {}
void BringWithin(const SettingRow&, const Cell<FieldPresetId>&, FieldPresetId& value) {
  if (static_cast<int>(value) < 0 || static_cast<int>(value) >= kFieldPresets) value = FieldPresetId::kOwn;
}
void BringWithin(const SettingRow& row, const Cell<BetSet>&, BetSet& value) {
  value = value & BetRange(row.firstRow, row.lastRow);
}

bool IsPayoff(const PayoffRecord& record) {
  const bool word = record.ForFlag == kZero || record.ForFlag == Currency::Dollars(-1);
  return word && record.PayPer > kZero && !record.PayTo.IsError();
}

PayoffRecord OriginalPayoff(Game& game, const Cell<PayoffRecord>& cell, const SettingPlace& place) {
  const PayoffTables kept = game.payoffs;
  ResetPayoffs(game.payoffs, game.settings.Unit());
  const PayoffRecord original = cell.at(game, place.seat, place.index);
  game.payoffs = kept;
  return original;
}

}  // namespace

std::string SettingFullName(const SettingRow& row, int index) {
  return row.inRows ? std::string(row.name) + "." + std::to_string(index) : row.name;
}

bool ReadSettingText(Game& game, const SettingRow& row, SeatId seat, int index, const std::string& text,
                     std::string& error) {
  const std::string name = SettingFullName(row, index);
  return std::visit(
      [&]<typename T>(const Cell<T>& cell) {
        T& value = cell.at(game, seat, index);
        if constexpr (std::is_same_v<T, BetSet>) {
          bool in = false;
          const bool read = ReadFlag(name, text, in, error);
          if (read) value.Set(index, in);
          return read;
        } else {
          return Read(cell, name, text, value, error);
        }
      },
      row.cell);
}

std::string SettingText(const Game& game, const SettingRow& row, SeatId seat, int index) {
  // Reading changes nothing; the places are shared with writing.
  auto& places = const_cast<Game&>(game);
  return std::visit(
      [&]<typename T>(const Cell<T>& cell) {
        const T& value = cell.at(places, seat, index);
        if constexpr (std::is_same_v<T, BetSet>)
          return OnOff(value.Has(index));
        else if constexpr (std::is_same_v<T, PayoffRecord>)
          return Text(row.byBets ? PayoffOf(game, index) : value);  // odds on the line pay by the point
        else
          return Text(value);
      },
      row.cell);
}

bool ClampSetting(Game& game, const SettingPlace& place) {
  return std::visit(
      [&]<typename T>(const Cell<T>& cell) {
        T& value = cell.at(game, place.seat, place.index);
        const T before = value;
        if constexpr (!std::is_same_v<T, PayoffRecord>)
          BringWithin(*place.row, cell, value);
        else if (!IsPayoff(value))
          value = OriginalPayoff(game, cell, place);
        return !(value == before);
      },
      place.row->cell);
}

}  // namespace tessaryn
