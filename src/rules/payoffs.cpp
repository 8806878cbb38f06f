#include "rules/payoffs.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "base/letters.h"
#include "base/messages.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr Currency kTo = Currency::FromRaw(-Currency::kPerDollar);
constexpr Currency kFor = kZero;

PayoffRecord Ratio(std::int64_t payTo, std::int64_t payPer, Currency word = kTo) {
  return {kZero, Currency::Dollars(payTo), word, Currency::Dollars(payPer)};
}

// Rows first to last pay payTo to payPer.
struct RatioRows {
  int first;
  int last;
  int payTo;
  int payPer;
  bool readsFor = false;
};

// What every bet pays at the start, each once.
constexpr RatioRows kDefaults[] = {
    // By their number: 4, 5, 6 and 8, 9, 10.
    {kLay4, kLay4, 1, 2},
    {kLay4 + 1, kLay4 + 1, 2, 3},
    {kLay4 + 2, kLay4 + 3, 5, 6},
    {kLay4 + 4, kLay4 + 4, 2, 3},
    {kLay4 + 5, kLay4 + 5, 1, 2},
    {kDontCome4, kDontCome4 + 5, 1, 1},
    {kDontComeOdds4, kDontComeOdds4, 1, 2},
    {kDontComeOdds4 + 1, kDontComeOdds4 + 1, 2, 3},
    {kDontComeOdds4 + 2, kDontComeOdds4 + 3, 5, 6},
    {kDontComeOdds4 + 4, kDontComeOdds4 + 4, 2, 3},
    {kDontComeOdds4 + 5, kDontComeOdds4 + 5, 1, 2},
    {kCome4, kCome4 + 5, 1, 1},
    {kComeOdds4, kComeOdds4, 2, 1},
    {kComeOdds4 + 1, kComeOdds4 + 1, 3, 2},
    {kComeOdds4 + 2, kComeOdds4 + 3, 6, 5},
    {kComeOdds4 + 4, kComeOdds4 + 4, 3, 2},
    {kComeOdds4 + 5, kComeOdds4 + 5, 2, 1},
    {kPlace4, kPlace4, 9, 5},
    {kPlace4 + 1, kPlace4 + 1, 7, 5},
    {kPlace4 + 2, kPlace4 + 3, 7, 6},
    {kPlace4 + 4, kPlace4 + 4, 7, 5},
    {kPlace4 + 5, kPlace4 + 5, 9, 5},
    {kBuy4, kBuy4, 2, 1},
    {kBuy4 + 1, kBuy4 + 1, 3, 2},
    {kBuy4 + 2, kBuy4 + 3, 6, 5},
    {kBuy4 + 4, kBuy4 + 4, 3, 2},
    {kBuy4 + 5, kBuy4 + 5, 2, 1},
    // The line, the Field, Big 6 and 8
    {kPassLine, kBig8, 1, 1},
    // Hardways and the one-roll propositions
    {kHard4, kHard4, 7, 1},
    {kHard6, kHard8, 9, 1},
    {kHard10, kHard10, 7, 1},
    {kTwo, kTwo, 30, 1},
    {kThree, kThree, 15, 1},
    {kSeven, kSeven, 4, 1},
    {kEleven, kEleven, 15, 1},
    {kTwelve, kTwelve, 30, 1},
    {kCraps, kCraps, 7, 1},
    {kCAndE, kCAndE, 1, 2},
    {kHorn, kHorn, 1, 4},
    {kWorld, kWorld, 1, 5},
    {kOver7, kUnder7, 1, 1},
    {kHop13, kHop16, 15, 1},
    {kHop22, kHop22, 30, 1},
    {kHop23, kHop26, 15, 1},
    {kHop33, kHop33, 30, 1},
    {kHop34, kHop36, 15, 1},
    {kHop44, kHop44, 30, 1},
    {kHop45, kHop46, 15, 1},
    {kHop55, kHop55, 30, 1},
    // Specials; those with tables of their own have their units here.
    {kAllSmall, kAllTall, 34, 1},
    {kMakeAll, kMakeAll, 175, 1},
    {kFourRolls, kFourRolls, 1, 1},
    {kPoint7, kPoint7, 7, 1},
    {kSevenPoint7, kFire, 1, 1},
};
static_assert(
    [] {
      int expected = 1;
      for (const RatioRows& rows : kDefaults) {
        if (rows.first != expected || rows.last < rows.first) return false;
        expected = rows.last + 1;
      }
      return expected == kBets + 1;
    }(),
    "a bet without its payoff, or with two");

constexpr int kSharpShooterRow[kSharpShooterRows] = {-1, -1, -1, 5, 9, 19, 29, 49, 99, 199, 299};
constexpr int kRideTheLineRow[kRideTheLineRows] = {-1, -1, -1, 1, 2, 3, 6, 10, 20, 30, 40, 100};
constexpr int kFireRow[kFireRows + 1] = {-1, -1, -1, -1, 24, 249, 999};
constexpr int kMidwayDefault[kMidwayRows] = {2, 1, 1, 1, 2};

// The rows of each preset, in order; a later line overrides an earlier one.
constexpr RatioRows kPresetRows[kFieldPresets][8] = {
    {{1, 21, 1, 1}, {5, 15, -1, 1}, {1, 1, 2, 1}, {21, 21, 2, 1}},
    {{1, 21, -1, 1},
     {3, 4, -1, 3},
     {5, 6, -1, 5},
     {7, 15, -1, 11},
     {10, 12, 1, 1},
     {16, 17, -1, 5},
     {18, 19, -1, 3},
     {20, 20, 1, 1}},
    {{1, 2, 1, 1},
     {3, 4, 1, 3},
     {5, 6, 1, 5},
     {7, 15, 1, 11},
     {10, 12, -1, 1},
     {16, 17, 1, 5},
     {18, 19, 1, 3},
     {20, 21, -1, 1}},
    {{1, 21, -5, 7}, {2, 20, -1, 2}, {3, 19, -1, 3}, {5, 17, -1, 5}, {7, 15, -1, 11}, {10, 12, 1, 1}},
    {{1, 21, 0, 1}, {7, 9, 7, 6}, {10, 12, -1, 1}},
    {{1, 21, 0, 1}, {10, 12, 4, 5}, {13, 15, -5, 5}},
    {{1, 21, 0, 1}, {10, 12, -1, 1}, {18, 19, 39, 21}},
    {{1, 21, 0, 1}, {3, 4, -1, 1}, {10, 12, 19, 40}},
    {{1, 21, 0, 1}, {10, 14, -1, 1}, {15, 15, 9, 1}},
    {{1, 21, -1, 1}, {1, 1, 27, 4, true}, {21, 21, 27, 4, true}, {2, 2, 12, 4, true}, {20, 20, 12, 4, true}},
    {{1, 21, -1, 1},
     {1, 1, 26, 5, true},
     {21, 21, 26, 5, true},
     {2, 2, 11, 5, true},
     {20, 20, 11, 5, true},
     {10, 12, 0, 5, true}},
    {{1, 21, -1, 1}, {3, 3, 15, 1}},
    {{1, 21, -1, 1}, {7, 8, 1, 1}, {9, 9, 2, 1}, {10, 14, 1, 1}, {15, 15, 2, 1}},
};

constexpr FieldPreset kPresets[kFieldPresets] = {
    {"Field", "Field w/ 2x on Two and Twelve"},
    {"Pass", "Pass Line"},
    {"DontPass", "Don't Pass (bar 12)"},
    {"Crapless", "Crapless Craps Pass Line"},
    {"Place6", "Place 6"},
    {"PlaceLose8", "Place to Lose 8"},
    {"Buy10", "Buy 10 (5 % vig)"},
    {"Lay4", "Lay 4 (5% vig on win only)"},
    {"Hard8", "Hard 8"},
    {"Horn", "Horn"},
    {"World", "World"},
    {"Hop13", "Hop 13"},
    {"Midway", "Midway"},
};
constexpr int kDontPassPreset = 2;
constexpr const char* kOlderPrefix = "mnuSF";  // which the names once began with

constexpr const char* kFieldCaptions[kFieldRows + 1] = {"",
                                                        "2     (1.1)",
                                                        "3     (1.2) (2.1)",
                                                        "4     (1.3) (3.1)",
                                                        "4     (2.2)",
                                                        "5     (1.4) (4.1)",
                                                        "5     (2.3) (3.2)",
                                                        "6     (1.5) (5.1)",
                                                        "6     (2.4) (4.2)",
                                                        "6     (3.3)",
                                                        "7     (1.6) (6.1)",
                                                        "7     (2.5) (5.2)",
                                                        "7     (3.4) (4.3)",
                                                        "8     (2.6) (6.2)",
                                                        "8     (3.5) (5.3)",
                                                        "8     (4.4)",
                                                        "9     (3.6) (6.3)",
                                                        "9     (4.5) (5.4)",
                                                        "10   (4.6) (6.4)",
                                                        "10   (5.5)",
                                                        "11   (5.6) (6.5)",
                                                        "12   (6.6)"};

// By the smaller face, then the greater.
constexpr int kFieldRowOf[7][7] = {{},
                                   {0, 1, 2, 3, 5, 7, 10},
                                   {0, 0, 4, 6, 8, 11, 13},
                                   {0, 0, 0, 9, 12, 14, 16},
                                   {0, 0, 0, 0, 15, 17, 18},
                                   {0, 0, 0, 0, 0, 19, 20},
                                   {0, 0, 0, 0, 0, 0, 21}};

constexpr PayoffTableInfo kTables[kPayoffTables] = {
    {"PayoffTable", 1, kBets},
    {"FieldPayoffs", 1, kFieldRows},
    {"SevenPointSevenPayoffs", 1, kSevenPointSevenRows},
    {"MidwayPayoffs", 1, kMidwayRows},
    {"SharpShooterPayoffs", 1, kSharpShooterRows},
    {"RideTheLinePayoffs", 1, kRideTheLineRows},
    {"FirePayoffs", 0, kFireRows},
};

void SetRows(PayoffRecord* table, const RatioRows& rows) {
  for (int row = rows.first; row <= rows.last; ++row)
    table[row] = Ratio(rows.payTo, rows.payPer, rows.readsFor ? kFor : kTo);
}

void SetFieldRows(PayoffTables& payoffs, int preset) {
  for (const RatioRows& rows : kPresetRows[preset])
    if (rows.first > 0) SetRows(payoffs.FieldPayoffs, rows);
  if (preset == kDontPassPreset) payoffs.FieldPayoffs[kFieldRows] = Ratio(0, 1);  // the barred twelve
}

Currency BetUnitOf(const PayoffRecord& record, Currency unit) {
  if (record.PayTo.raw == 0 || record.PayTo.IsError() || record.PayPer.raw <= 0) return unit;
  const std::int64_t shared = std::gcd(record.PayTo.raw, record.PayPer.raw);
  std::int64_t size = 0;
  if (__builtin_mul_overflow(unit.raw, record.PayPer.raw / shared, &size)) return unit;
  return Currency::FromRaw(size);
}

bool LosesMoreThanBet(const PayoffRecord& record) { return record.PayTo < -record.PayPer; }

// The rules of a table whose rows may lose.
ConfigurationProblem CheckHandTable(const PayoffRecord* rows, int count, const char* bet,
                                    Msg losesMore = Msg::kPayoffLosesMore, Msg noWin = Msg::kNoPayoffWins) {
  for (int row = 1; row <= count; ++row)
    if (LosesMoreThanBet(rows[row])) return {losesMore, {{"bet", bet}}};
  const bool anyWin = std::any_of(rows + 1, rows + count + 1,
                                  [](const PayoffRecord& record) { return record.PayTo > kZero; });
  if (!anyWin) return {noWin, {{"bet", bet}}};
  return {};
}

struct LineRow {
  BetId bet;
  const char* name;
};
constexpr LineRow kLineRows[] = {{45, "Passline/Come (c.o.)"},
                                 {19, "Pass/Come 4"},
                                 {20, "Pass/Come 5"},
                                 {21, "Pass/Come 6"},
                                 {22, "Pass/Come 8"},
                                 {23, "Pass/Come 9"},
                                 {24, "Pass/Come 10"},
                                 {48, "Don't Pass/Come (c.o.)"},
                                 {7, "DP/DC 4"},
                                 {8, "DP/DC 5"},
                                 {9, "DP/DC 6"},
                                 {10, "DP/DC 8"},
                                 {11, "DP/DC 9"},
                                 {12, "DP/DC 10"}};

bool AllPositive(const PayoffRecord* rows, int count) {
  return std::all_of(rows + 1, rows + count + 1,
                     [](const PayoffRecord& record) { return record.PayTo > kZero; });
}

}  // namespace

const PayoffTableInfo& PayoffTableFacts(int table) { return kTables[table]; }

PayoffRecord& PayoffRow(PayoffTables& payoffs, int table, int row) {
  PayoffRecord* const tables[kPayoffTables] = {
      payoffs.PayoffTable,   payoffs.FieldPayoffs,        payoffs.SevenPointSevenPayoffs,
      payoffs.MidwayPayoffs, payoffs.SharpShooterPayoffs, payoffs.RideTheLinePayoffs,
      payoffs.FirePayoffs};
  return tables[table][row];
}

const PayoffRecord& PayoffOf(const Game& game, BetId bet) {
  const PayoffRecord* records = game.payoffs.PayoffTable;
  if (bet != kPassLineOdds && bet != kDontPassOdds) return records[bet];
  const TableState& table = game.table;
  const int point = table.Point != 0 ? table.Point : table.LastPoint;
  if (point == 0) return records[bet];
  return records[BetOn(bet == kPassLineOdds ? kComeOdds4 : kDontComeOdds4, point)];
}

std::span<const PayoffRecord> PayoffRowsOf(const Game& game, BetId bet) {
  const int table = static_cast<int>(FamilyRowOf(bet).payoffs);
  if (table == 0) return {&PayoffOf(game, bet), 1};
  const PayoffTableInfo& rows = kTables[table];
  return {&PayoffRow(const_cast<PayoffTables&>(game.payoffs), table, rows.firstRow),
          static_cast<std::size_t>(rows.lastRow - rows.firstRow + 1)};
}

void ResetPayoffs(PayoffTables& payoffs, Currency unit) {
  for (PayoffRecord& record : payoffs.PayoffTable) record = Ratio(1, 1);  // rows that are no bet's
  for (const RatioRows& rows : kDefaults) SetRows(payoffs.PayoffTable, rows);
  payoffs.SevenPointSevenPayoffs[1] = Ratio(2, 1);
  payoffs.SevenPointSevenPayoffs[2] = Ratio(3, 1);
  for (int row = 1; row <= kMidwayRows; ++row) payoffs.MidwayPayoffs[row] = Ratio(kMidwayDefault[row - 1], 1);
  for (int row = 1; row <= kSharpShooterRows; ++row)
    payoffs.SharpShooterPayoffs[row] = Ratio(kSharpShooterRow[row - 1], 1);
  for (int row = 1; row <= kRideTheLineRows; ++row)
    payoffs.RideTheLinePayoffs[row] = Ratio(kRideTheLineRow[row - 1], 1);
  for (int row = 0; row <= kFireRows; ++row) payoffs.FirePayoffs[row] = Ratio(kFireRow[row], 1);
  for (int table : {2, 3, 4, 5}) PayoffRow(payoffs, table, 0) = Ratio(1, 1);
  payoffs.FieldPayoffs[0] = Ratio(1, 1);
  SetFieldPreset(payoffs, 0, unit);
}

void RebuildBetUnits(PayoffTables& payoffs, Currency unit) {
  for (PayoffRecord& record : payoffs.PayoffTable) record.BetUnit = BetUnitOf(record, unit);
  for (int table = 1; table < kPayoffTables; ++table)
    for (int row = 0; row <= kTables[table].lastRow; ++row) {
      PayoffRecord& record = PayoffRow(payoffs, table, row);
      record.BetUnit = BetUnitOf(record, unit);
    }
}

const FieldPreset& FieldPresetFacts(int id) { return kPresets[id]; }

void SetFieldPreset(PayoffTables& payoffs, int id, Currency unit) {
  SetFieldRows(payoffs, id);
  RebuildBetUnits(payoffs, unit);
}

int FieldPresetByName(std::string_view name) {
  const std::string_view prefix = kOlderPrefix;
  if (name.size() > prefix.size() && SameLetters(name.substr(0, prefix.size()), prefix))
    name.remove_prefix(prefix.size());
  for (int id = 0; id < kFieldPresets; ++id)
    if (SameLetters(kPresets[id].name, name)) return id;
  return -1;
}

int FieldPresetOf(const PayoffTables& payoffs) {
  PayoffTables preset;
  for (int id = 0; id < kFieldPresets; ++id) {
    SetFieldRows(preset, id);
    const auto paysTheSame = [](const PayoffRecord& a, const PayoffRecord& b) {
      return a.PayTo == b.PayTo && a.PayPer == b.PayPer && a.ForFlag == b.ForFlag;
    };
    if (std::equal(std::begin(preset.FieldPayoffs) + 1, std::end(preset.FieldPayoffs),
                   std::begin(payoffs.FieldPayoffs) + 1, paysTheSame))
      return id;
  }
  return -1;
}

std::string FieldPresetNames() {
  std::string names;
  for (const FieldPreset& preset : kPresets) names.append(names.empty() ? "" : ", ").append(preset.name);
  return names;
}

const char* FieldRowCaption(int row) { return kFieldCaptions[row]; }

int FieldRow(int die1, int die2) { return kFieldRowOf[std::min(die1, die2)][std::max(die1, die2)]; }

int MidwayRow(int die1, int die2) {
  switch (die1 + die2) {
    case 6:
      return die1 == 3 ? 1 : 2;
    case 7:
      return 3;
    case 8:
      return die1 == 4 ? 5 : 4;
    default:
      return 0;
  }
}

static_assert(NeedOnly({Msg::kPayoffNotPositive, Msg::kPayoffsNotPositive, Msg::kPayoffLosesMore,
                        Msg::kNoPayoffWins, Msg::kFieldLosesMore, Msg::kNoFieldPayoffWins},
                       {"bet"}));

std::string ConfigurationProblem::Text() const { return MessageText(message, arguments); }

ConfigurationProblem CheckPayoffs(const PayoffTables& payoffs, const OfferedFamilies& offered) {
  for (const LineRow& line : kLineRows)
    if (payoffs.PayoffTable[line.bet].PayTo <= kZero) return {Msg::kPayoffNotPositive, {{"bet", line.name}}};
  if (offered.smallTall && !AllPositive(payoffs.SevenPointSevenPayoffs, kSevenPointSevenRows))
    return {Msg::kPayoffsNotPositive, {{"bet", "SevenPoint7"}}};
  if (offered.midway && !AllPositive(payoffs.MidwayPayoffs, kMidwayRows))
    return {Msg::kPayoffsNotPositive, {{"bet", "Midway"}}};
  ConfigurationProblem problem =
      CheckHandTable(payoffs.SharpShooterPayoffs, kSharpShooterRows, "Sharpshooter");
  if (problem.Found()) return problem;
  problem = CheckHandTable(payoffs.RideTheLinePayoffs, kRideTheLineRows, "Ride The Line");
  if (problem.Found()) return problem;
  if (offered.fire) {
    problem = CheckHandTable(payoffs.FirePayoffs, kFireRows, "Fire");
    if (problem.Found()) return problem;
    if (LosesMoreThanBet(payoffs.FirePayoffs[0])) return {Msg::kPayoffLosesMore, {{"bet", "Fire"}}};
  }
  return CheckHandTable(payoffs.FieldPayoffs, kFieldRows, "Field", Msg::kFieldLosesMore,
                        Msg::kNoFieldPayoffWins);
}

std::string PayoffText(const PayoffRecord& record) {
  return PlainMoney(record.PayTo) + (record.ForFlag.raw != 0 ? " to " : " for ") + PlainMoney(record.PayPer);
}

bool ParsePayoff(std::string_view text, PayoffRecord& record) {
  const std::string lower = Lowered(text);
  for (const std::string_view word : {" to ", " for ", ":", "/"}) {
    const auto at = lower.find(word);
    if (at == std::string::npos) continue;
    Currency payTo;
    Currency payPer;
    if (!TryParseMoney(lower.substr(0, at), payTo) ||
        !TryParseMoney(lower.substr(at + word.size()), payPer) || payPer <= kZero)
      return false;
    record.PayTo = payTo;
    record.PayPer = payPer;
    record.ForFlag = word == " for " ? kFor : kTo;
    return true;
  }
  return false;
}

}  // namespace tessaryn
