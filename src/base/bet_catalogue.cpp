#include "base/bet_catalogue.h"

#include <cctype>
#include <charconv>
#include <iterator>

namespace tessaryn {
namespace {

constexpr BetFacts kFacts[] = {
    {"", "", false, false},
    {"Lay 4", "lay4", true, true},
    {"Lay 5", "lay5", true, true},
    {"Lay 6", "lay6", true, true},
    {"Lay 8", "lay8", true, true},
    {"Lay 9", "lay9", true, true},
    {"Lay 10", "lay10", true, true},
    {"Don't Come 4", "dontcome4", true, false},
    {"Don't Come 5", "dontcome5", true, false},
    {"Don't Come 6", "dontcome6", true, false},
    {"Don't Come 8", "dontcome8", true, false},
    {"Don't Come 9", "dontcome9", true, false},
    {"Don't Come 10", "dontcome10", true, false},
    {"Don't Come 4 Odds", "dontcomeodds4", true, true},
    {"Don't Come 5 Odds", "dontcomeodds5", true, true},
    {"Don't Come 6 Odds", "dontcomeodds6", true, true},
    {"Don't Come 8 Odds", "dontcomeodds8", true, true},
    {"Don't Come 9 Odds", "dontcomeodds9", true, true},
    {"Don't Come 10 Odds", "dontcomeodds10", true, true},
    {"Come 4", "come4", true, false},
    {"Come 5", "come5", true, false},
    {"Come 6", "come6", true, false},
    {"Come 8", "come8", true, false},
    {"Come 9", "come9", true, false},
    {"Come 10", "come10", true, false},
    {"Come 4 Odds", "comeodds4", false, true},
    {"Come 5 Odds", "comeodds5", false, true},
    {"Come 6 Odds", "comeodds6", false, true},
    {"Come 8 Odds", "comeodds8", false, true},
    {"Come 9 Odds", "comeodds9", false, true},
    {"Come 10 Odds", "comeodds10", false, true},
    {"Place 4", "place4", false, true},
    {"Place 5", "place5", false, true},
    {"Place 6", "place6", false, true},
    {"Place 8", "place8", false, true},
    {"Place 9", "place9", false, true},
    {"Place 10", "place10", false, true},
    {"Buy 4", "buy4", false, true},
    {"Buy 5", "buy5", false, true},
    {"Buy 6", "buy6", false, true},
    {"Buy 8", "buy8", false, true},
    {"Buy 9", "buy9", false, true},
    {"Buy 10", "buy10", false, true},
    {"Pass Line", "passline", true, false},
    {"Pass Line Odds", "passlineodds", false, true},
    {"Come", "come", false, false},
    {"Don't Pass", "dontpass", true, false},
    {"Don't Pass Odds", "dontpassodds", false, true},
    {"Don't Come", "dontcome", false, false},
    {"Field", "field", true, true},
    {"Big 6", "big6", true, true},
    {"Big 8", "big8", true, true},
    {"Hard 4", "hard4", true, true},
    {"Hard 6", "hard6", true, true},
    {"Hard 8", "hard8", true, true},
    {"Hard 10", "hard10", true, true},
    {"Two", "two", true, true},
    {"Three", "three", true, true},
    {"Seven", "seven", true, true},
    {"Eleven", "eleven", true, true},
    {"Twelve", "twelve", true, true},
    {"Craps", "craps", true, true},
    {"C and E", "cande", true, true},
    {"Horn", "horn", true, false},
    {"World", "world", true, false},
    {"Over 7", "over7", true, false},
    {"Under 7", "under7", true, false},
    {"Hop 13", "hop13", true, false},
    {"Hop 14", "hop14", true, false},
    {"Hop 15", "hop15", true, false},
    {"Hop 16", "hop16", true, false},
    {"Hop 22", "hop22", true, false},
    {"Hop 23", "hop23", true, false},
    {"Hop 24", "hop24", true, false},
    {"Hop 25", "hop25", true, false},
    {"Hop 26", "hop26", true, false},
    {"Hop 33", "hop33", true, false},
    {"Hop 34", "hop34", true, false},
    {"Hop 35", "hop35", true, false},
    {"Hop 36", "hop36", true, false},
    {"Hop 44", "hop44", true, false},
    {"Hop 45", "hop45", true, false},
    {"Hop 46", "hop46", true, false},
    {"Hop 55", "hop55", true, false},
    {"All Small", "allsmall", true, false},
    {"All Tall", "alltall", true, false},
    {"Make All", "makeall", true, false},
    {"4 Rolls No 7", "4rollsno7", true, false},
    {"Point 7", "point7", true, false},
    {"7 Point 7", "7point7", true, false},
    {"Midway", "midway", true, true},
    {"Sharp Shooter", "sharpshooter", true, false},
    {"Ride The Line", "ridetheline", true, false},
    {"Fire", "fire", true, false},
};
static_assert(std::size(kFacts) == kBets + 1);

constexpr BetSet SetWhere(bool BetFacts::*flag) {
  BetSet set;
  for (int bet = 1; bet <= kBets; ++bet)
    if (kFacts[bet].*flag) set.Add(bet);
  return set;
}
constexpr BetSet kHouseWorking = SetWhere(&BetFacts::worksOnComeOut);
constexpr BetSet kCallable = SetWhere(&BetFacts::callable);

std::string Compact(std::string_view text) {
  std::string compact;
  for (const char c : text)
    if (c != ' ' && c != '\'') compact += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return compact;
}

// A whole number at the end of text behind prefix; -1 without one.
int NumberBehind(std::string_view text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return -1;
  text.remove_prefix(prefix.size());
  int number = -1;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : -1;
}

}  // namespace

const BetFacts& FactsOf(int bet) { return kFacts[IsTableBet(bet) ? bet : 0]; }

std::string BetName(int bet) {
  if (IsCheckStack(bet)) return "CheckStack #" + std::to_string(bet - kFirstCheckStack);
  return FactsOf(bet).name;
}

int BetByName(std::string_view text) {
  const std::string name = Compact(text);
  if (const int number = NumberBehind(name, ""); number >= 0)
    return IsTableBet(number) || IsCheckStack(number) ? number : 0;
  for (const char* prefix : {"checkstack#", "checkstack", "cs"}) {
    const int stack = NumberBehind(name, prefix);
    if (stack >= 0) return stack < kCheckStacks ? kFirstCheckStack + stack : 0;
  }
  for (int bet = 1; bet <= kBets; ++bet)
    if (name == kFacts[bet].scriptName || name == Compact(kFacts[bet].name)) return bet;
  return 0;
}

const BetSet& HouseWorkingBets() { return kHouseWorking; }
const BetSet& CallableBets() { return kCallable; }

int HopBet(int die1, int die2) {
  const int low = die1 < die2 ? die1 : die2;
  const int high = die1 < die2 ? die2 : die1;
  const char name[] = {'h', 'o', 'p', static_cast<char>('0' + low), static_cast<char>('0' + high), 0};
  for (int bet = kHop13; bet <= kHop55; ++bet)
    if (std::string_view(kFacts[bet].scriptName) == name) return bet;
  return 0;
}

}  // namespace tessaryn
