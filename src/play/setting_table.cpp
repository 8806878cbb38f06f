#include "play/setting_table.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstring>
#include <iterator>
#include <optional>

#include "autobet/run/operands.h"
#include "base/bet_catalogue.h"
#include "dice/generators.h"
#include "play/auto_roll.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/configuration.h"
#include "rules/consistency.h"
#include "rules/payoffs.h"
#include "state/game.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

enum class Kind { kMoney, kRate, kWhole, kFlag, kText };
enum class Access { kSetting, kState };

// One setting, or one value of the state that can only be read. cell gives its place in the game.
struct Entry {
  const char* name;
  Kind kind;
  bool bySeat;
  double least;
  double most;
  void* (*cell)(Game&, int seat);
  const char* help;
  Access access = Access::kSetting;
};

#define TESSARYN_CELL(expression) [](Game& game, [[maybe_unused]] int seat) -> void* { return &(expression); }
#define TESSARYN_SET(field) TESSARYN_CELL(game.settings.field)
#define TESSARYN_HANDLING(field) TESSARYN_CELL(game.table.seats[seat].handling.field)
#define TESSARYN_LOG(field) TESSARYN_CELL(game.events.field)

constexpr double kMost = 9'999'999;
constexpr double kAny = 900'000'000'000;

constexpr Entry kEntries[] = {
    {"MinBetMain", Kind::kMoney, false, 0, kMost, TESSARYN_SET(MinBetMain), "minimum of bets 1 to 51"},
    {"MinBetProp", Kind::kMoney, false, 0, kMost, TESSARYN_SET(MinBetProp), "minimum of bets 52 to 93"},
    {"MaxBet", Kind::kMoney, false, 0, kMost, TESSARYN_SET(MaxBet), "table maximum"},
    {"MaxPropBetPayoff", Kind::kMoney, false, 0, kMost, TESSARYN_SET(MaxPropBetPayoff),
     "most a proposition may pay"},
    {"MaxOddsBet", Kind::kMoney, false, 0, kMost, TESSARYN_SET(MaxOddsBet), "ceiling of an odds bet"},
    {"MaxFireBet", Kind::kMoney, false, 0, kMost, TESSARYN_SET(MaxFireBet), "ceiling of the Fire bet"},
    {"OddsAllowed410", Kind::kMoney, false, 0, 1000, TESSARYN_SET(OddsAllowed410),
     "odds multiple on 4 and 10"},
    {"OddsAllowed59", Kind::kMoney, false, 0, 1000, TESSARYN_SET(OddsAllowed59), "odds multiple on 5 and 9"},
    {"OddsAllowed68", Kind::kMoney, false, 0, 1000, TESSARYN_SET(OddsAllowed68), "odds multiple on 6 and 8"},
    {"OddsCalcMethod", Kind::kWhole, false, 0, 5, TESSARYN_SET(OddsCalcMethod),
     "0 auto select, 1 to 5 the method"},
    {"BarNumber", Kind::kWhole, false, 2, 12, TESSARYN_SET(BarNumber), "12 or 2, barred on the don't side"},
    {"AllowPutBets", Kind::kFlag, false, 0, 0, TESSARYN_SET(AllowPutBets), "Put bets"},
    {"ShooterBetRule", Kind::kWhole, false, 0, 2, TESSARYN_SET(ShooterBetRule),
     "0 none, 1 line bet, 2 any bet needed to shoot"},
    {"UseBig68", Kind::kFlag, false, 0, 0, TESSARYN_SET(UseBig68), "Big 6 and Big 8"},
    {"UseMidway", Kind::kFlag, false, 0, 0, TESSARYN_SET(UseMidway), "Midway bet"},
    {"SmallTallEnabled", Kind::kFlag, false, 0, 0, TESSARYN_SET(SmallTallEnabled),
     "special propositions, bets 84 to 89"},
    {"UseFire", Kind::kFlag, false, 0, 0, TESSARYN_SET(UseFire), "Fire bet"},
    {"ReturnAbandonedBets", Kind::kFlag, false, 0, 0, TESSARYN_SET(ReturnAbandonedBets),
     "contract bets go back at a new session"},
    {"BuyVigRate", Kind::kRate, false, 0, 1, TESSARYN_SET(BuyVigRate), "a fraction, or with % a percentage"},
    {"LayVigRate", Kind::kRate, false, 0, 1, TESSARYN_SET(LayVigRate), "a fraction, or with % a percentage"},
    {"BuyVigRound", Kind::kWhole, false, 0, 2, TESSARYN_SET(BuyVigRound), "0 normally, 1 down, 2 up"},
    {"LayVigRound", Kind::kWhole, false, 0, 2, TESSARYN_SET(LayVigRound), "0 normally, 1 down, 2 up"},
    {"BuyVigUpFront", Kind::kFlag, false, 0, 0, TESSARYN_SET(BuyVigUpFront), "charge all Buy bets"},
    {"LayVigUpFront", Kind::kFlag, false, 0, 0, TESSARYN_SET(LayVigUpFront), "charge all Lay bets"},
    {"SimRollRate", Kind::kMoney, false, 0.0001, 36'000'000, TESSARYN_SET(SimRollRate), "rolls per hour"},
    {"RollThrottle", Kind::kWhole, false, 0, 12, TESSARYN_SET(RollThrottle), "0 fastest to 11; 12 Auto-Roll"},
    {"AutoRollDelay", Kind::kMoney, false, 0, 300, TESSARYN_SET(AutoRollDelay), "seconds between Auto-Rolls"},
    {"AutoStopInterval", Kind::kMoney, false, 0, 2'000'000'000, TESSARYN_SET(AutoStopInterval),
     "rolls, 0 never"},
    {"StartBank", Kind::kMoney, false, -kMost, kMost, TESSARYN_SET(StartBank), "offered to a new player"},
    {"AtmEnabled", Kind::kFlag, false, 0, 0, TESSARYN_SET(AtmEnabled), "the ATM works"},
    {"AtmUnit", Kind::kMoney, false, 0, kMost, TESSARYN_SET(AtmUnit),
     "amount of an ATM action that names none"},
    {"MessageMask", Kind::kWhole, false, 0, 31, TESSARYN_SET(MessageMask),
     "bits 1 refusals, 2 bankroll, 4 adjustments, 8 and 16 scripts"},
    {"UseCentsSymbol", Kind::kFlag, false, 0, 0, TESSARYN_SET(UseCentsSymbol), "cents symbol below 1"},
    {"AutoArrangeChecks", Kind::kFlag, false, 0, 0, TESSARYN_SET(AutoArrangeChecks), "stacks rearrange"},
    {"SnapMouse", Kind::kFlag, false, 0, 0, TESSARYN_SET(SnapMouse), "pointer snaps to the default button"},
    {"ColorPrint", Kind::kFlag, false, 0, 0, TESSARYN_SET(ColorPrint), "printing in colour"},
    {"InfoTipLevel", Kind::kWhole, false, 0, 4, TESSARYN_SET(InfoTipLevel), "how much the pointer tells"},
    {"ScreenFontSize", Kind::kWhole, false, 9, 13, TESSARYN_SET(ScreenFontSize), "points"},
    {"DiceAction", Kind::kWhole, false, 0, 10, TESSARYN_SET(DiceAction), "how the dice move"},
    {"StickPerson", Kind::kWhole, false, 0, 100, TESSARYN_SET(StickPerson), "sound set, 0 none"},
    {"DiceSound", Kind::kWhole, false, 0, 100, TESSARYN_SET(DiceSound), "sound set, 0 none"},
    {"CheckSound", Kind::kWhole, false, 0, 100, TESSARYN_SET(CheckSound), "sound set, 0 none"},
    {"WinSound", Kind::kWhole, false, 0, 100, TESSARYN_SET(WinSound), "sound set, 0 none"},
    {"AutoBetSounds", Kind::kFlag, false, 0, 0, TESSARYN_SET(AutoBetSounds), "sounds of scripts"},
    {"DisableAllSound", Kind::kFlag, false, 0, 0, TESSARYN_SET(DisableAllSound), "silence"},
    {"IncludeZeroOutcomes", Kind::kFlag, false, 0, 0, TESSARYN_SET(IncludeZeroOutcomes),
     "advantage: zeros are decisions"},
    {"CompBase", Kind::kWhole, false, 0, 2, TESSARYN_SET(CompBase),
     "0 theoretical vig, 1 action, 2 action and time"},
    {"CompRate", Kind::kMoney, false, 0, kAny, TESSARYN_SET(CompRate), "percent"},
    {"CompUseTrueProbs", Kind::kFlag, false, 0, 0, TESSARYN_SET(CompUseTrueProbs),
     "comps ignore percentage dice"},
    {"GeneratorIndex", Kind::kWhole, false, 0, 7, TESSARYN_CELL(game.generators.GeneratorIndex),
     "generator number less 1"},
    {"RngUserSeed", Kind::kFlag, false, 0, 0, TESSARYN_CELL(game.generators.RngUserSeed),
     "the user is asked for seeds"},
    {"RngReseedNewSessions", Kind::kFlag, false, 0, 0, TESSARYN_CELL(game.generators.RngReseedNewSessions),
     "a new session seeds again"},
    {"RecordEventsActive", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordEventsActive),
     "the Events Log's master switch"},
    {"RecordRolls", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordRolls), "Events Log class"},
    {"RecordBetChanges", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordBetChanges), "Events Log class"},
    {"RecordBetsWon", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordBetsWon), "Events Log class"},
    {"RecordBetsLost", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordBetsLost), "Events Log class"},
    {"RecordCheckStackChanges", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordCheckStackChanges),
     "Events Log class"},
    {"RecordPassesMisses", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordPassesMisses), "Events Log class"},
    {"RecordShooterChanges", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordShooterChanges),
     "Events Log class"},
    {"RecordBankrollChanges", Kind::kFlag, false, 0, 0, TESSARYN_LOG(RecordBankrollChanges),
     "Events Log class"},
    {"ClearLogOnNewSession", Kind::kFlag, false, 0, 0, TESSARYN_LOG(ClearLogOnNewSession),
     "a new session clears the log"},
    {"KeepLatestRollOnTop", Kind::kFlag, false, 0, 0, TESSARYN_LOG(KeepLatestRollOnTop),
     "the view follows the rolls"},
    // By seat.
    {"WinHandling", Kind::kWhole, true, 0, 7, TESSARYN_HANDLING(WinHandling),
     "what becomes of a winner, 0 manual"},
    {"LoseHandling", Kind::kWhole, true, 0, 7, TESSARYN_HANDLING(LoseHandling),
     "what becomes of a loser, 0 manual"},
    {"ProperOddsMode", Kind::kWhole, true, 0, 2, TESSARYN_HANDLING(ProperOddsMode), "amounts that pay whole"},
    {"PlaceBias", Kind::kWhole, true, 0, 2, TESSARYN_HANDLING(PlaceBias), "0 by the change, 1 up, 2 down"},
    {"DoBias", Kind::kWhole, true, 0, 2, TESSARYN_HANDLING(DoBias), "0 by the change, 1 up, 2 down"},
    {"DontBias", Kind::kWhole, true, 0, 2, TESSARYN_HANDLING(DontBias), "0 by the change, 1 up, 2 down"},
    {"LayBias", Kind::kWhole, true, 0, 2, TESSARYN_HANDLING(LayBias), "0 by the change, 1 up, 2 down"},
    {"AutoTakeOdds", Kind::kFlag, true, 0, 0, TESSARYN_HANDLING(AutoTakeOdds),
     "full odds on Pass Line and Come"},
    {"AutoLayOdds", Kind::kFlag, true, 0, 0, TESSARYN_HANDLING(AutoLayOdds),
     "full odds on Don't Pass and Don't Come"},
    {"AutoDownPlace", Kind::kFlag, true, 0, 0, TESSARYN_HANDLING(AutoDownPlace),
     "Place and Buy on a covered number come down"},
    {"AutoPassDice", Kind::kFlag, true, 0, 0, TESSARYN_HANDLING(AutoPassDice), "the seat won't shoot"},
    {"AllowNegativeBankroll", Kind::kFlag, true, 0, 0,
     TESSARYN_CELL(game.table.seats[seat].AllowNegativeBankroll), "bets without money"},
    {"BankrollInitType", Kind::kWhole, true, 0, 2, TESSARYN_CELL(game.table.seats[seat].BankrollInitType),
     "new session: 0 carry, 1 amount, 2 ask"},
    {"BankrollInitAmount", Kind::kMoney, true, -kMost, kMost,
     TESSARYN_CELL(game.table.seats[seat].BankrollInitAmount), "new session's bankroll"},
    // State, to be read.
    {"Point", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.Point), "0 on a come-out", Access::kState},
    {"LastPoint", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.LastPoint), "", Access::kState},
    {"Die1", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.Die1), "", Access::kState},
    {"Die2", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.Die2), "", Access::kState},
    {"RollTotal", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.RollTotal), "", Access::kState},
    {"ShooterSeat", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.ShooterSeat), "", Access::kState},
    {"HandSeat", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.HandSeat), "", Access::kState},
    {"SelectedSeat", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.SelectedSeat), "", Access::kState},
    {"OccupiedSeats", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.OccupiedSeats), "", Access::kState},
    {"NumberMarks", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.NumberMarks), "", Access::kState},
    {"FourRollCount", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.FourRollCount), "", Access::kState},
    {"FireMarks", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.FireMarks), "", Access::kState},
    {"FireCount", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.FireCount), "", Access::kState},
    {"SharpShooterCount", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.SharpShooterCount), "",
     Access::kState},
    {"RideTheLineCount", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.table.RideTheLineCount), "",
     Access::kState},
    {"RngLastSeed", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.generators.RngLastSeed), "",
     Access::kState},
    {"StopReason", Kind::kText, false, 0, 0, TESSARYN_CELL(game.table.StopReason), "", Access::kState},
    {"RecorderState", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.rollFile.RecorderState), "",
     Access::kState},
    {"RollFileName", Kind::kText, false, 0, 0, TESSARYN_CELL(game.rollFile.RollFileName), "", Access::kState},
    {"RollFileCursor", Kind::kWhole, false, 0, 0, TESSARYN_CELL(game.rollFile.RollFileCursor), "",
     Access::kState},
    {"SeatName", Kind::kText, true, 0, 0, TESSARYN_CELL(game.table.seats[seat].SeatName), "", Access::kState},
    {"BankrollCurrent", Kind::kMoney, true, 0, 0, TESSARYN_CELL(game.table.BankrollCurrent[seat]), "",
     Access::kState},
    {"OnTableAmount", Kind::kMoney, true, 0, 0, TESSARYN_CELL(game.table.seats[seat].OnTableAmount), "",
     Access::kState},
    {"RailAmount", Kind::kMoney, true, 0, 0, TESSARYN_CELL(game.table.seats[seat].RailAmount), "",
     Access::kState},
};

#undef TESSARYN_CELL
#undef TESSARYN_SET
#undef TESSARYN_HANDLING
#undef TESSARYN_LOG

// Settings that come in rows, as NAME.ROW.
enum class Rows { kChecks, kPayoffs, kDefaultWorking, kCompBets, kAdjustKind, kAdjustValue, kAdjustUnit };
struct RowEntry {
  const char* name;
  Rows rows;
  int first;
  int last;
  bool bySeat;
  int table;  // of payoffs
  const char* help;
};
constexpr RowEntry kRowEntries[] = {
    {"CheckValue", Rows::kChecks, 1, 5, false, 0, "check denominations, ascending"},
    {"PayoffTable", Rows::kPayoffs, 1, kBets, false, 0, "what a bet pays, as in 7 to 5"},
    {"FieldPayoffs", Rows::kPayoffs, 1, kFieldRows, false, 1, "Field by dice"},
    {"SevenPointSevenPayoffs", Rows::kPayoffs, 1, kSevenPointSevenRows, false, 2, "7 Point 7"},
    {"MidwayPayoffs", Rows::kPayoffs, 1, kMidwayRows, false, 3, "Midway by dice"},
    {"SharpShooterPayoffs", Rows::kPayoffs, 1, kSharpShooterRows, false, 4, "by points made + 1"},
    {"RideTheLinePayoffs", Rows::kPayoffs, 1, kRideTheLineRows, false, 5, "by line wins + 1"},
    {"FirePayoffs", Rows::kPayoffs, 0, kFireRows, false, 6, "by different points made"},
    {"BetDefaultWorking", Rows::kDefaultWorking, 1, kBets, true, 0,
     "works on the come-out; seat 0 the house"},
    {"CompBetFlags", Rows::kCompBets, 1, kBets, false, 0, "counts towards comps"},
    {"AdjustKind", Rows::kAdjustKind, 4, 7, true, 0, "0 plus, 1 minus, 2 times, 3 divided by"},
    {"AdjustValue", Rows::kAdjustValue, 4, 7, true, 0, "the value of the slot"},
    {"AdjustUnit", Rows::kAdjustUnit, 4, 7, true, 0, "0 dollars, 1 percent, 2 to 6 units of a check"},
};

bool SameWord(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
         });
}

const Entry* FindEntry(std::string_view name) {
  for (const Entry& entry : kEntries)
    if (SameWord(entry.name, name)) return &entry;
  return nullptr;
}

struct RowName {
  const RowEntry* entry = nullptr;
  int row = 0;
};

RowName FindRow(std::string_view name) {
  const auto dot = name.rfind('.');
  if (dot == std::string_view::npos) return {};
  for (const RowEntry& entry : kRowEntries) {
    if (!SameWord(entry.name, name.substr(0, dot))) continue;
    const std::string_view digits = name.substr(dot + 1);
    int row = -1;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), row);
    const bool whole = fault == std::errc() && end == digits.data() + digits.size();
    if (!whole && (entry.rows == Rows::kDefaultWorking || entry.rows == Rows::kCompBets || entry.table == 0))
      row = BetByName(digits);
    if (row < entry.first || row > entry.last) return {};
    return {&entry, row};
  }
  return {};
}

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1));
}

// --- Values and their texts.

std::optional<bool> ParseFlag(const std::string& text) {
  for (const char* word : {"on", "yes", "true", "-1", "1"})
    if (SameWord(text, word)) return true;
  for (const char* word : {"off", "no", "false", "0"})
    if (SameWord(text, word)) return false;
  return std::nullopt;
}

std::string Limits(const std::string& name, double least, double most) {
  return name + " must be from " + FormatMoney(Currency::FromDouble(least)) + " to " +
         FormatMoney(Currency::FromDouble(most)) + ".";
}

bool ReadMoney(const std::string& name, const std::string& text, double least, double most, Currency& value,
               std::string& error) {
  Currency read;
  if (!TryParseMoney(text, read)) {
    error = name + ": \"" + text + "\" is no number.";
    return false;
  }
  if (read.ToDouble() < least || read.ToDouble() > most) {
    error = Limits(name, least, most);
    return false;
  }
  value = read;
  return true;
}

bool ReadWhole(const std::string& name, const std::string& text, double least, double most, int& value,
               std::string& error) {
  Currency read;
  if (!ReadMoney(name, text, least, most, read, error)) return false;
  if (!read.IsWhole()) {
    error = name + " must be a whole number.";
    return false;
  }
  value = static_cast<int>(read.raw / Currency::kPerDollar);
  return true;
}

bool ReadFlag(const std::string& name, const std::string& text, bool& value, std::string& error) {
  const std::optional<bool> flag = ParseFlag(text);
  if (!flag) {
    error = name + ": \"" + text + "\" is neither on nor off.";
    return false;
  }
  value = *flag;
  return true;
}

bool ReadRate(const std::string& name, std::string text, Currency& value, std::string& error) {
  const bool percent = !text.empty() && text.back() == '%';
  if (percent) text.pop_back();
  if (!ReadMoney(name, text, 0, percent ? 100 : 1, value, error)) return false;
  if (percent) value = Divide(value, Currency::Dollars(100));
  return true;
}

bool ReadInto(Game& game, const Entry& entry, int seat, const std::string& text, std::string& error) {
  void* cell = entry.cell(game, seat);
  switch (entry.kind) {
    case Kind::kMoney:
      return ReadMoney(entry.name, text, entry.least, entry.most, *static_cast<Currency*>(cell), error);
    case Kind::kRate:
      return ReadRate(entry.name, text, *static_cast<Currency*>(cell), error);
    case Kind::kWhole:
      return ReadWhole(entry.name, text, entry.least, entry.most, *static_cast<int*>(cell), error);
    case Kind::kFlag:
      return ReadFlag(entry.name, text, *static_cast<bool*>(cell), error);
    case Kind::kText:
      break;
  }
  error = std::string(entry.name) + " can only be read.";
  return false;
}

std::string TextOf(Game& game, const Entry& entry, int seat) {
  const void* cell = entry.cell(game, seat);
  switch (entry.kind) {
    case Kind::kMoney:
    case Kind::kRate:
      return PlainMoney(*static_cast<const Currency*>(cell));
    case Kind::kWhole:
      return std::to_string(*static_cast<const int*>(cell));
    case Kind::kFlag:
      return *static_cast<const bool*>(cell) ? "on" : "off";
    case Kind::kText:
      return *static_cast<const std::string*>(cell);
  }
  return "";
}

bool ReadRow(Game& game, const RowEntry& entry, int row, int seat, const std::string& text,
             std::string& error) {
  const std::string name = std::string(entry.name) + "." + std::to_string(row);
  Handling& handling = game.table.seats[seat].handling;
  bool flag = false;
  switch (entry.rows) {
    case Rows::kChecks:
      return ReadMoney(name, text, 0, kMost, game.settings.CheckValue[row], error);
    case Rows::kPayoffs:
      if (ParsePayoff(text, PayoffRow(game.payoffs, entry.table, row))) return true;
      error = name + ": \"" + text + "\" is no payoff such as \"7 to 5\".";
      return false;
    case Rows::kDefaultWorking:
      if (!ReadFlag(name, text, flag, error)) return false;
      game.table.seats[seat].BetDefaultWorking.Set(row, flag);
      return true;
    case Rows::kCompBets:
      if (!ReadFlag(name, text, flag, error)) return false;
      game.settings.CompBetFlags.Set(row, flag);
      return true;
    case Rows::kAdjustKind:
      return ReadWhole(name, text, 0, 3, handling.AdjustKind[row], error);
    case Rows::kAdjustValue:
      return ReadMoney(name, text, 0, 9'999'999.9999, handling.AdjustValue[row], error);
    case Rows::kAdjustUnit:
      return ReadWhole(name, text, 0, 6, handling.AdjustUnit[row], error);
  }
  return false;
}

std::string RowText(Game& game, const RowEntry& entry, int row, int seat) {
  const Handling& handling = game.table.seats[seat].handling;
  const auto onOff = [](bool on) { return std::string(on ? "on" : "off"); };
  switch (entry.rows) {
    case Rows::kChecks:
      return PlainMoney(game.settings.CheckValue[row]);
    case Rows::kPayoffs:
      return PayoffText(PayoffRow(game.payoffs, entry.table, row));
    case Rows::kDefaultWorking:
      return onOff(game.table.seats[seat].BetDefaultWorking.Has(row));
    case Rows::kCompBets:
      return onOff(game.settings.CompBetFlags.Has(row));
    case Rows::kAdjustKind:
      return std::to_string(handling.AdjustKind[row]);
    case Rows::kAdjustValue:
      return PlainMoney(handling.AdjustValue[row]);
    case Rows::kAdjustUnit:
      return std::to_string(handling.AdjustUnit[row]);
  }
  return "";
}

// --- One transaction: everything that a setting can change, as it was.

struct Before {
  Settings settings;
  PayoffTables payoffs;
  SeatState seats[kSeatRows];
  bool logFlags[11];
  int generatorIndex;
  bool userSeed;
  bool reseed;
};

bool* LogFlag(EventsLog& log, int i) {
  bool* const flags[11] = {&log.RecordEventsActive,   &log.RecordRolls,          &log.RecordBetChanges,
                           &log.RecordBetsWon,        &log.RecordBetsLost,       &log.RecordCheckStackChanges,
                           &log.RecordPassesMisses,   &log.RecordShooterChanges, &log.RecordBankrollChanges,
                           &log.ClearLogOnNewSession, &log.KeepLatestRollOnTop};
  return flags[i];
}

void CopySettings(SeatState& to, const SeatState& from) {
  to.handling = from.handling;
  to.AllowNegativeBankroll = from.AllowNegativeBankroll;
  to.BankrollInitType = from.BankrollInitType;
  to.BankrollInitAmount = from.BankrollInitAmount;
  to.BetDefaultWorking = from.BetDefaultWorking;
}

std::unique_ptr<Before> Keep(Game& game) {
  auto before = std::make_unique<Before>();
  before->settings = game.settings;
  before->payoffs = game.payoffs;
  for (int seat = 0; seat < kSeatRows; ++seat) CopySettings(before->seats[seat], game.table.seats[seat]);
  for (int i = 0; i < 11; ++i) before->logFlags[i] = *LogFlag(game.events, i);
  before->generatorIndex = game.generators.GeneratorIndex;
  before->userSeed = game.generators.RngUserSeed;
  before->reseed = game.generators.RngReseedNewSessions;
  return before;
}

void Restore(Game& game, const Before& before) {
  game.settings = before.settings;
  game.payoffs = before.payoffs;
  for (int seat = 0; seat < kSeatRows; ++seat) CopySettings(game.table.seats[seat], before.seats[seat]);
  for (int i = 0; i < 11; ++i) *LogFlag(game.events, i) = before.logFlags[i];
  game.generators.GeneratorIndex = before.generatorIndex;
  game.generators.RngUserSeed = before.userSeed;
  game.generators.RngReseedNewSessions = before.reseed;
}

// --- What a change brings with it.

bool AnySeatHas(const Game& game, const BetSet& bets) { return game.table.AnyBets.Meets(bets); }

struct Family {
  bool Settings::*offered;
  int first;
  int last;
  const char* title;
  const char* text;  // what is up
};
constexpr Family kFamilies[] = {
    {&Settings::UseBig68, kBig6, kBig8, "Remove Big 6 / Big 8 Bets",
     "one or more bets on the Big 6 and/or Big 8"},
    {&Settings::UseFire, kFire, kFire, "Remove Fire Bets", "one or more wagers on the Fire bet"},
    {&Settings::UseMidway, kMidway, kMidway, "Remove Midway Bets", "one or more Midway bets present"},
    {&Settings::SmallTallEnabled, kFirstSpecialProp, kLastSpecialProp, "Remove Special Prop Bets", ""},
};

std::string SpecialBetsUp(const Game& game) {
  std::string names;
  (game.table.AnyBets & kSpecialProps).ForEach([&names](int bet) {
    names += (names.empty() ? "" : ", ") + BetName(bet);
  });
  return "one or more wagers on the following special prop bets: " + names;
}

bool SevenPoint7Rides(const Game& game) {
  for (int seat = 1; seat <= kSeats; ++seat)
    if (game.table.BetAmount(seat, kSevenPoint7) > kZero &&
        game.table.BetCommitted(seat, kSevenPoint7) > kZero)
      return true;
  return false;
}

// A family that is switched off with bets up: asks whether they may come down. False: it stays.
bool MaySwitchOff(Game& game, const Family& family, std::string& error) {
  const BetSet bets = BetRange(family.first, family.last);
  if (!AnySeatHas(game, bets)) return true;
  const bool special = IsSpecialProp(family.first);
  error = std::string(family.title) + ": bets are up, and stay.";
  if (special && SevenPoint7Rides(game)) {
    error =
        "There are currently one or more wagers on the 7 Point 7 special prop bet. Because this is a "
        "contract "
        "bet, you can't remove it until it resolves.";
    ShowMessage(game, family.title, error);
    return false;
  }
  const std::string text = "There are currently " +
                           (special ? SpecialBetsUp(game) : std::string(family.text)) +
                           " which will be removed if you continue with this operation.  Would you like to "
                           "continue?";
  if (ShowMessage(game, family.title, text, kMsgYes | kMsgNo | kMsgQuestion) != kResultYes) return false;
  error.clear();
  return true;
}

void TakeFamilyDown(Game& game, const Family& family) {
  const BetSet bets = BetRange(family.first, family.last);
  if (AnySeatHas(game, bets))
    for (int seat = 1; seat <= kSeats; ++seat) TakeDownBets(game, seat, bets);
  if (!IsSpecialProp(family.first)) return;
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
bool VigCovered(Game& game, const char*& title, std::string& error) {
  int short_ = 0;
  bool lay = false;
  for (int seat = 1; seat <= kSeats; ++seat) {
    Currency onTable;
    game.table.seats[seat].SeatBets.ForEach([&](int bet) {
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
  title = lay ? "Lay Bet Vig" : "Buy Bet Vig";
  error =
      std::string("You're not allowed to change this setting at this time because ") +
      (short_ == 1 && game.table.OccupiedSeats == 1
           ? "you don't have enough bankroll remaining to pay the added up-front vig that would be required."
           : "one or more players doesn't have enough bankroll remaining to pay the added up-front vig that "
             "would be required.") +
      "\r\r -- Make a withdrawal from the ATM\r -- Reduce the amount on current bets\r -- Check \"Allow "
      "negative bankroll\"";
  return false;
}

bool VigChanged(const Settings& a, const Settings& b) {
  return a.BuyVigRate != b.BuyVigRate || a.LayVigRate != b.LayVigRate || a.BuyVigRound != b.BuyVigRound ||
         a.LayVigRound != b.LayVigRound || a.BuyVigUpFront != b.BuyVigUpFront ||
         a.LayVigUpFront != b.LayVigUpFront || a.Unit() != b.Unit();
}

bool PayoffsChanged(const PayoffTables& a, const PayoffTables& b) {
  return std::memcmp(static_cast<const void*>(&a), static_cast<const void*>(&b), sizeof a) != 0;
}

bool CheckRules(Game& game, const Before& before, std::string& error) {
  if (const ConfigurationProblem problem = CheckConfiguration(game); problem.Found()) {
    error = problem.text;
    return false;
  }
  if (game.settings.BarNumber != 12 && game.settings.BarNumber != 2) {
    error = "BarNumber must be 12 or 2.";
    return false;
  }
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!before.seats[seat].AllowNegativeBankroll || game.table.seats[seat].AllowNegativeBankroll) continue;
    if (game.table.BankrollCurrent[seat] >= kZero) continue;
    error = "Before you can un-check this box, " + game.table.seats[seat].SeatName +
            " must have a non-negative bankroll. Some options:\r\r -- Make a withdrawal from the ATM";
    return false;
  }
  return true;
}

void OfferHouseStandard(Game& game, const Before& before) {
  TableState& table = game.table;
  if (table.seats[0].BetDefaultWorking == before.seats[0].BetDefaultWorking || table.OccupiedSeats == 0)
    return;
  constexpr const char* kTitle = "Work On Come-out Roll";
  if (ShowMessage(game, kTitle,
                  "You've changed the house standard for bets that work on the come-out roll.\r\rNew players "
                  "take the house standard as they buy in.\r\rPlayers who are at the table keep the settings "
                  "that they have.\r\rWould you like to make any of the present players' settings match the "
                  "new house standard now?",
                  kMsgYes | kMsgNo | kMsgQuestion) != kResultYes)
    return;
  for (int seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(table, seat) && ShowMessage(game, kTitle,
                                               "Would you like to make " + table.seats[seat].SeatName +
                                                   "'s settings match the house standard?",
                                               kMsgYes | kMsgNo | kMsgQuestion) == kResultYes)
      table.seats[seat].BetDefaultWorking = table.seats[0].BetDefaultWorking;
}

// Carries out what the new values bring with them. False with the reason: nothing may stay changed.
bool Commit(Game& game, const Before& before, std::string& error) {
  if (!CheckRules(game, before, error)) return false;
  RebuildBetUnits(game.payoffs, game.settings.Unit());
  const bool vig = VigChanged(before.settings, game.settings);
  const bool payoffs = PayoffsChanged(before.payoffs, game.payoffs);
  const char* title = "";
  if ((vig || payoffs) && !VigCovered(game, title, error)) {
    ShowMessage(game, title, error);
    return false;
  }
  if (!SwitchFamiliesOff(game, before.settings, error)) return false;
  if (vig || payoffs) RecomputeVig(game);
  game.autobet.ScriptsCompiled = false;
  ReplaceMissingGenerator(game.generators);
  if (before.settings.RollThrottle != game.settings.RollThrottle)
    SetThrottle(game, game.settings.RollThrottle);
  game.settings.AutoStopInterval = ClampAutoStop(game.settings.AutoStopInterval);
  OfferHouseStandard(game, before);
  if (before.logFlags[0] && !game.events.RecordEventsActive) FlushEventsLog(game);
  game.host->Changed(game, Change::kSettings);
  RequireConsistency(game);
  return true;
}

bool SeatProblem(bool bySeat, int seat, const std::string& name, std::string& error) {
  if (!bySeat && seat != 0) {
    error = name + " is the table's, not a seat's.";
    return true;
  }
  return false;
}

// Puts one value in its place. Row or plain, of one seat or of every player.
bool Put(Game& game, const SettingChange& change, std::string& error) {
  const std::string name = Trimmed(change.name);
  const std::string text = Trimmed(change.value);
  if (change.seat < 0 || change.seat > kSeats) {
    error = "There is no seat " + std::to_string(change.seat) + "; seats are 1 to 8.";
    return false;
  }
  if (SameWord(name, "FieldPreset")) {
    const int preset = FieldPresetByName(text);
    if (preset < 0)
      error = "FieldPreset: there is no preset \"" + text + "\"; there are " + FieldPresetNames() + ".";
    if (preset >= 0) SetFieldPreset(game.payoffs, preset, game.settings.Unit());
    return preset >= 0;
  }
  const Entry* entry = FindEntry(name);
  const RowName row = entry == nullptr ? FindRow(name) : RowName{};
  if (entry == nullptr && row.entry == nullptr) {
    error = "There is no setting named \"" + name + "\".";
    return false;
  }
  if (entry != nullptr && entry->access == Access::kState) {
    error = std::string(entry->name) + " can only be read.";
    return false;
  }
  const bool bySeat = entry != nullptr ? entry->bySeat : row.entry->bySeat;
  if (SeatProblem(bySeat, change.seat, name, error)) return false;
  if (bySeat && change.seat > 0 && !IsOccupied(game.table, change.seat)) {
    error = "There is no player at seat " + std::to_string(change.seat) + ".";
    return false;
  }
  const auto put = [&](int seat) {
    return entry != nullptr ? ReadInto(game, *entry, seat, text, error)
                            : ReadRow(game, *row.entry, row.row, seat, text, error);
  };
  const bool everyPlayer =
      bySeat && change.seat == 0 && !(row.entry != nullptr && row.entry->rows == Rows::kDefaultWorking);
  if (!everyPlayer) return put(change.seat);
  for (int seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(game.table, seat) && !put(seat)) return false;
  return true;
}

}  // namespace

bool SetSettings(Game& game, const std::vector<SettingChange>& changes, std::string& error) {
  const std::unique_ptr<Before> before = Keep(game);
  error.clear();
  for (const SettingChange& change : changes)
    if (!Put(game, change, error)) {
      Restore(game, *before);
      return false;
    }
  if (Commit(game, *before, error)) return true;
  Restore(game, *before);
  return false;
}

std::size_t FindSettingProblem(Game& game, const std::vector<SettingChange>& changes, std::string& error) {
  const std::unique_ptr<Before> before = Keep(game);
  std::size_t problem = changes.size();
  error.clear();
  for (std::size_t i = 0; i < changes.size(); ++i) {
    if (!Put(game, changes[i], error)) {
      problem = i;
      break;
    }
    std::string broken;
    const bool holds = CheckRules(game, *before, broken);
    if (holds) problem = changes.size();
    if (!holds && problem == changes.size()) problem = i;
    error = holds ? "" : broken;
  }
  Restore(game, *before);
  return problem;
}

bool IsSeatSetting(std::string_view name) {
  const std::string trimmed = Trimmed(name);
  if (const Entry* entry = FindEntry(trimmed)) return entry->bySeat;
  const RowName row = FindRow(trimmed);
  return row.entry != nullptr && row.entry->bySeat && row.entry->rows != Rows::kDefaultWorking;
}

bool SetSetting(Game& game, std::string_view name, int seat, std::string_view value, std::string& error) {
  return SetSettings(game, {{std::string(name), seat, std::string(value)}}, error);
}

bool GetSetting(const Game& game, std::string_view name, int seat, std::string& value, std::string& error) {
  // Reading changes nothing; the cells are shared with writing.
  Game& cells = const_cast<Game&>(game);
  const std::string trimmed = Trimmed(name);
  const Entry* entry = FindEntry(trimmed);
  const RowName row = entry == nullptr ? FindRow(trimmed) : RowName{};
  if (entry == nullptr && row.entry == nullptr) {
    error = "There is no setting named \"" + trimmed + "\".";
    return false;
  }
  if (seat < 0 || seat > kSeats) {
    error = "There is no seat " + std::to_string(seat) + "; seats are 1 to 8.";
    return false;
  }
  const bool bySeat = entry != nullptr ? entry->bySeat : row.entry->bySeat;
  if (SeatProblem(bySeat, seat, trimmed, error)) return false;
  value = entry != nullptr ? TextOf(cells, *entry, seat) : RowText(cells, *row.entry, row.row, seat);
  return true;
}

std::vector<SettingName> AllSettings() {
  std::vector<SettingName> names;
  for (const Entry& entry : kEntries)
    if (entry.access == Access::kSetting) names.push_back({entry.name, entry.bySeat, entry.help});
  for (const RowEntry& entry : kRowEntries)
    for (int row = entry.first; row <= entry.last; ++row)
      names.push_back({std::string(entry.name) + "." + std::to_string(row), entry.bySeat, entry.help});
  return names;
}

}  // namespace tessaryn
