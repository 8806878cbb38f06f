#include "play/setting_rows.h"

#include <concepts>
#include <string_view>
#include <type_traits>

#include "dice/generators.h"
#include "rules/handling.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// --- From a member to its place in the game.

template <typename Member>
struct MemberFacts;
template <typename Struct, typename T>
struct MemberFacts<T Struct::*> {
  using Owner = Struct;
  using Field = T;
};
template <auto member>
using OwnerOf = typename MemberFacts<decltype(member)>::Owner;
template <auto member>
using FieldOf = typename MemberFacts<decltype(member)>::Field;
// Of an array, that of an element: the values of the rows.
template <auto member>
using ValueOf = std::remove_extent_t<FieldOf<member>>;

Settings& Home(Game& game, SeatId, std::type_identity<Settings>) { return game.settings; }
PayoffTables& Home(Game& game, SeatId, std::type_identity<PayoffTables>) { return game.payoffs; }
Generators& Home(Game& game, SeatId, std::type_identity<Generators>) { return game.generators; }
EventsLog& Home(Game& game, SeatId, std::type_identity<EventsLog>) { return game.events; }
SeatState& Home(Game& game, SeatId seat, std::type_identity<SeatState>) {
  return game.table.seats[seat.value];
}
Handling& Home(Game& game, SeatId seat, std::type_identity<Handling>) {
  return game.table.seats[seat.value].handling;
}

template <typename Owner>
inline constexpr bool kOfSeats = std::same_as<Owner, Handling> || std::same_as<Owner, SeatState>;

template <auto member>
ValueOf<member>& At(Game& game, SeatId seat, int row) {
  auto& field = Home(game, seat, std::type_identity<OwnerOf<member>>{}).*member;
  if constexpr (std::is_array_v<FieldOf<member>>)
    return field[row];
  else
    return field;
}

// --- Rows.

// As its struct lists it.
template <auto member>
constexpr const char* NameOf() {
  const char* name = nullptr;
  ForEachMember(std::type_identity<OwnerOf<member>>{}, [&name](const char* listed, auto candidate) {
    if constexpr (std::same_as<decltype(candidate), decltype(member)>)
      if (candidate == member) name = listed;
  });
  return name;
}

template <auto member>
constexpr SettingRow RowOf(Cell<ValueOf<member>> cell, const char* help, const RowFacts& facts) {
  const Keeper keeper = kOfSeats<OwnerOf<member>> ? Keeper::kPlayer : Keeper::kTable;
  return {.name = NameOf<member>(), .help = help, .cell = cell, .keeper = keeper, .facts = facts};
}

template <auto member>
requires std::same_as < ValueOf<member>,
bool > constexpr SettingRow Flag(const char* help, const RowFacts& facts = {}) {
  return RowOf<member>({&At<member>}, help, facts);
}

template <auto member>
constexpr SettingRow Number(Limits<ValueOf<member>> limits, const char* help, const RowFacts& facts = {}) {
  return RowOf<member>({&At<member>, limits}, help, facts);
}

// One of what the captions say, by its place among them.
template <auto member>
requires std::same_as < ValueOf<member>,
int > constexpr SettingRow Choice(std::span<const char* const> captions, const char* help,
                                  RowFacts facts = {}) {
  facts.captions = captions;
  return Number<member>({0, static_cast<int>(captions.size()) - 1}, help, facts);
}

template <auto member>
requires std::same_as<ValueOf<member>, FieldPresetId>
constexpr SettingRow Preset(const char* help, const RowFacts& facts) {
  return RowOf<member>({&At<member>}, help, facts);
}

// NAME.ROW, from first to last.
constexpr SettingRow InRows(SettingRow row, int first, int last) {
  row.inRows = true;
  row.firstRow = first;
  row.lastRow = last;
  return row;
}

constexpr SettingRow ByBets(SettingRow row) {
  row.byBets = true;
  return InRows(row, 1, kBets);
}

template <auto member>
requires std::same_as<ValueOf<member>, PayoffRecord>
constexpr SettingRow Payoffs(const char* help) {
  return RowOf<member>({&At<member>}, help, {.effect = Effect::kVig});
}

template <auto member>
requires std::same_as<ValueOf<member>, BetSet>
constexpr SettingRow BetFlags(Keeper keeper, const char* help, const RowFacts& facts = {}) {
  SettingRow row = RowOf<member>({&At<member>}, help, facts);
  row.keeper = keeper;
  return ByBets(row);
}

constexpr SettingRow OneOf(SettingRow row, std::span<const int> values) {
  row.oneOf = values;
  return row;
}

constexpr Limits<Currency> kAmounts{kZero, kBankrollLimit};
constexpr Limits<Currency> kBankrolls{-kBankrollLimit, kBankrollLimit};
constexpr Limits<Multiple> kMultiples{Multiple{}, Multiple::Whole(1000)};
constexpr Limits<Fraction> kFractions{Fraction{}, Fraction::Whole(1)};
constexpr Limits<Percent> kCompRates{Percent{}, Percent::Whole(900'000'000'000)};
constexpr Limits<int> kSoundSets{0, 100};
constexpr int kBarred[] = {12, 2};

constexpr const char* kLanguageNames[] = {"English", "Espa\u00f1ol", "Deutsch", "Fran\u00e7ais",
                                          "T\u00fcrk\u00e7e"};

constexpr const char* kOddsMethods[] = {"Auto select",          "X Flat - No Push",
                                        "X Flat w/ Minor Push", "X Flat w/ Color Push",
                                        "X Flat - Single Odds", "Flat - Single Odds X"};
constexpr const char* kRoundings[] = {"Rounded normally", "Rounded down", "Rounded up"};
constexpr const char* kBuyCharges[] = {" Charge winning Buy bets only", " Charge all Buy bets"};
constexpr const char* kLayCharges[] = {" Charge winning Lay bets only", " Charge all Lay bets"};
constexpr const char* kShooterRules[] = {"No bets required to shoot", "Line bet required to shoot",
                                         "Any bet required to shoot"};
constexpr const char* kNotes[] = {" Actions not allowed", " Betting limits reached", " Charges and/or change",
                                  " Auto-bet messages normal play", " Auto-bet messages turbo-roll"};
constexpr const char* kInfoTips[] = {"Don't show any info", "Show amounts only", "Show names only",
                                     "Show names and amounts only", "Show all info"};
constexpr const char* kCompBases[] = {" Theoretical house vig", " Total comp action",
                                      " Average comp action and time"};
constexpr const char* kSeedings[] = {" Seed normally", " User seed"};
constexpr const char* kProperAmounts[] = {" Manual", " Auto w/ minor correction",
                                          " Auto w/ color correction"};

constexpr const char* kDiceActions[] = {" Thrown", " Without motion", " Thrown quickly"};
constexpr const char* kBankrollsBegun[] = {" Carry the bankroll forward", " Begin with this amount",
                                           " Ask for the amount"};
constexpr const char* kBias = "0 by the change, 1 up, 2 down";

constexpr SettingRow kRows[] = {
    Number<&Settings::MinBetMain>(kAmounts, "minimum of bets 1 to 51"),
    Number<&Settings::MinBetProp>(kAmounts, "minimum of bets 52 to 93"),
    Number<&Settings::MaxBet>(kAmounts, "table maximum"),
    Number<&Settings::MaxPropBetPayoff>(kAmounts, "most a proposition may pay"),
    Number<&Settings::MaxOddsBet>(kAmounts, "ceiling of an odds bet"),
    Number<&Settings::MaxFireBet>(kAmounts, "ceiling of the Fire bet"),
    Number<&Settings::OddsAllowed410>(kMultiples, "odds multiple on 4 and 10"),
    Number<&Settings::OddsAllowed59>(kMultiples, "odds multiple on 5 and 9"),
    Number<&Settings::OddsAllowed68>(kMultiples, "odds multiple on 6 and 8"),
    Choice<&Settings::OddsCalcMethod>(kOddsMethods, "0 auto select, 1 to 5 the method"),
    OneOf(Number<&Settings::BarNumber>({2, 12}, "12 or 2, barred on the don't side"), kBarred),
    Flag<&Settings::AllowPutBets>("Put bets"),
    Choice<&Settings::ShooterBetRule>(kShooterRules, "0 none, 1 line bet, 2 any bet needed to shoot"),
    Flag<&Settings::UseBig68>("Big 6 and Big 8", {.effect = Effect::kBetsComeDown}),
    Flag<&Settings::UseMidway>("Midway bet", {.effect = Effect::kBetsComeDown}),
    Flag<&Settings::SmallTallEnabled>("special propositions, bets 84 to 89",
                                      {.effect = Effect::kBetsComeDown}),
    Flag<&Settings::UseFire>("Fire bet", {.effect = Effect::kBetsComeDown}),
    Flag<&Settings::ReturnAbandonedBets>("contract bets go back at a new session"),
    Preset<&Settings::FieldPreset>("what the Field pays; Own once a row of it is another",
                                   {.effect = Effect::kFieldPayoffs}),
    Number<&Settings::BuyVigRate>(kFractions, "a fraction, or with % a percentage", {.effect = Effect::kVig}),
    Number<&Settings::LayVigRate>(kFractions, "a fraction, or with % a percentage", {.effect = Effect::kVig}),
    Choice<&Settings::BuyVigRound>(kRoundings, "0 normally, 1 down, 2 up", {.effect = Effect::kVig}),
    Choice<&Settings::LayVigRound>(kRoundings, "0 normally, 1 down, 2 up", {.effect = Effect::kVig}),
    Flag<&Settings::BuyVigUpFront>("charge all Buy bets", {.effect = Effect::kVig, .captions = kBuyCharges}),
    Flag<&Settings::LayVigUpFront>("charge all Lay bets", {.effect = Effect::kVig, .captions = kLayCharges}),
    Number<&Settings::SimRollRate>(kSimRollRateLimits, "rolls per hour"),
    Number<&Settings::RollThrottle>({0, 12}, "0 fastest to 11; 12 Auto-Roll", {.effect = Effect::kThrottle}),
    Number<&Settings::AutoRollDelay>(kAutoRollDelayLimits, "seconds between Auto-Rolls"),
    Number<&Settings::AutoStopInterval>(kAutoStopLimits, "rolls, 0 never"),
    Number<&Settings::StartBank>(kBankrolls, "offered to a new player"),
    Flag<&Settings::AtmEnabled>("the ATM works"),
    Number<&Settings::AtmUnit>(kAmounts, "amount of an ATM action that names none"),
    Number<&Settings::MessageMask>({0, 31}, "bits 1 refusals, 2 bankroll, 4 adjustments, 8 and 16 scripts",
                                   {.captions = kNotes}),
    Flag<&Settings::UseCentsSymbol>("amounts below a dollar are written in cents"),
    Flag<&Settings::AutoArrangeChecks>(
        "checks of a bet are changed for the fewest; else they stay as they were bet"),
    Flag<&Settings::SnapMouse>("the pointer goes to the default button of a box"),
    Flag<&Settings::ColorPrint>("printing in colour"),
    Choice<&Settings::InfoTipLevel>(kInfoTips, "how much the pointer tells"),
    Number<&Settings::ScreenFontSize>({9, 13}, "points: 9 small, 11 the desktop's own size, 13 large",
                                      {.unit = "points"}),
    Choice<&Settings::Language>(kLanguageNames, "language of the window"),
    Choice<&Settings::DiceAction>(kDiceActions, "how the dice move"),
    Number<&Settings::StickPerson>(kSoundSets, "sound set, 0 none"),
    Number<&Settings::DiceSound>(kSoundSets, "sound set, 0 none"),
    Number<&Settings::CheckSound>(kSoundSets, "sound set, 0 none"),
    Number<&Settings::WinSound>(kSoundSets, "sound set, 0 none"),
    Flag<&Settings::AutoBetSounds>("sounds of scripts"),
    Flag<&Settings::DisableAllSound>("silence"),
    Flag<&Settings::IncludeZeroOutcomes>("advantage: zeros are decisions"),
    Choice<&Settings::CompBase>(kCompBases, "0 theoretical vig, 1 action, 2 action and time"),
    Number<&Settings::CompRate>(kCompRates, "percent"),
    Flag<&Settings::CompUseTrueProbs>("comps ignore percentage dice"),
    Choice<&Generators::GeneratorIndex>(kGeneratorNames, "generator number less 1"),
    Flag<&Generators::RngUserSeed>("the user is asked for seeds", {.captions = kSeedings}),
    Flag<&Generators::RngReseedNewSessions>("a new session seeds again"),
    Flag<&EventsLog::RecordEventsActive>("the Events Log's master switch", {.effect = Effect::kLog}),
    Flag<&EventsLog::RecordRolls>("Events Log class"),
    Flag<&EventsLog::RecordBetChanges>("Events Log class"),
    Flag<&EventsLog::RecordBetsWon>("Events Log class"),
    Flag<&EventsLog::RecordBetsLost>("Events Log class"),
    Flag<&EventsLog::RecordCheckStackChanges>("Events Log class"),
    Flag<&EventsLog::RecordPassesMisses>("Events Log class"),
    Flag<&EventsLog::RecordShooterChanges>("Events Log class"),
    Flag<&EventsLog::RecordBankrollChanges>("Events Log class"),
    Flag<&EventsLog::ClearLogOnNewSession>("a new session clears the log"),
    Flag<&EventsLog::KeepLatestRollOnTop>("the view follows the rolls"),
    // Of each player.
    Choice<&Handling::WinHandling>(kWinChoiceCaptions, "what becomes of a winner, 0 manual"),
    Choice<&Handling::LoseHandling>(kLoseChoiceCaptions, "what becomes of a loser, 0 manual"),
    Choice<&Handling::ProperOddsMode>(kProperAmounts, "amounts that pay whole"),
    Number<&Handling::PlaceBias>({0, 2}, kBias),
    Number<&Handling::DoBias>({0, 2}, kBias),
    Number<&Handling::DontBias>({0, 2}, kBias),
    Number<&Handling::LayBias>({0, 2}, kBias),
    Flag<&Handling::AutoTakeOdds>("full odds on Pass Line and Come"),
    Flag<&Handling::AutoLayOdds>("full odds on Don't Pass and Don't Come"),
    Flag<&Handling::AutoDownPlace>("Place and Buy on a covered number come down"),
    Flag<&Handling::AutoPassDice>("the seat won't shoot"),
    Flag<&SeatState::AllowNegativeBankroll>("bets without money", {.effect = Effect::kNegativeAllowed}),
    Choice<&SeatState::BankrollInitType>(kBankrollsBegun, "new session: 0 carry, 1 amount, 2 ask"),
    Number<&SeatState::BankrollInitAmount>(kBankrolls, "new session's bankroll"),
    // In rows.
    InRows(
        Number<&Settings::CheckValue>(kAmounts, "check denominations, ascending", {.effect = Effect::kVig}),
        1, 5),
    ByBets(Payoffs<&PayoffTables::PayoffTable>("what a bet pays, as in 7 to 5")),
    InRows(Payoffs<&PayoffTables::FieldPayoffs>("Field by dice"), 1, kFieldRows),
    InRows(Payoffs<&PayoffTables::SevenPointSevenPayoffs>("7 Point 7"), 1, kSevenPointSevenRows),
    InRows(Payoffs<&PayoffTables::MidwayPayoffs>("Midway by dice"), 1, kMidwayRows),
    InRows(Payoffs<&PayoffTables::SharpShooterPayoffs>("by points made + 1"), 1, kSharpShooterRows),
    InRows(Payoffs<&PayoffTables::RideTheLinePayoffs>("by line wins + 1"), 1, kRideTheLineRows),
    InRows(Payoffs<&PayoffTables::FirePayoffs>("by different points made"), 0, kFireRows),
    BetFlags<&SeatState::BetDefaultWorking>(Keeper::kPlayerAndHouse,
                                            "works on the come-out; seat 0 the house",
                                            {.effect = Effect::kHouseStandard}),
    BetFlags<&Settings::CompBetFlags>(Keeper::kTable, "counts towards comps"),
    InRows(Number<&Handling::AdjustKind>({0, 3}, "0 plus, 1 minus, 2 times, 3 divided by"), 4, 7),
    InRows(Number<&Handling::AdjustValue>({kZero, kStackLimit}, "the value of the slot", {.unit = ""}), 4, 7),
    InRows(Number<&Handling::AdjustUnit>({0, 6}, "0 dollars, 1 percent, 2 to 6 units of a check"), 4, 7),
};

constexpr bool EverySettingHasItsRow() {
  bool all = true;
  ForEachMember(std::type_identity<Settings>{}, [&all](std::string_view name, auto) {
    bool found = false;
    for (const SettingRow& row : kRows) found = found || name == row.name;
    all = all && found;
  });
  return all;
}
static_assert(EverySettingHasItsRow());

template <typename T>
constexpr const char* kUnitOf = "";
template <>
constexpr const char* kUnitOf<Currency> = "dollars";
template <>
constexpr const char* kUnitOf<Multiple> = "times the flat bet";
template <>
constexpr const char* kUnitOf<Fraction> = "of the whole";
template <>
constexpr const char* kUnitOf<Percent> = "percent";
template <>
constexpr const char* kUnitOf<Seconds> = "seconds";
template <>
constexpr const char* kUnitOf<RollRate> = "rolls per hour";
template <>
constexpr const char* kUnitOf<std::int64_t> = "rolls";

}  // namespace

std::span<const SettingRow> SettingRows() { return kRows; }

const char* UnitOf(const SettingRow& row) {
  if (row.facts.unit != nullptr) return row.facts.unit;
  return std::visit([]<typename T>(const Cell<T>&) { return kUnitOf<T>; }, row.cell);
}

}  // namespace tessaryn
