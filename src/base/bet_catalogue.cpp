#include "base/bet_catalogue.h"

#include <charconv>

#include "base/letters.h"

namespace tessaryn {
namespace {

std::string Compact(std::string_view text) {
  std::string compact;
  for (const char c : text)
    if (c != ' ' && c != '\'') compact += Lowered(c);
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

std::string BetName(BetId bet) {
  if (IsCheckStack(bet)) return "CheckStack #" + std::to_string(bet - kFirstCheckStack);
  return FactsOf(bet).name;
}

BetId BetByName(std::string_view text) {
  const std::string name = Compact(text);
  if (const int number = NumberBehind(name, ""); number >= 0)
    return IsTableBet(number) || IsCheckStack(number) ? number : 0;
  for (const char* prefix : {"checkstack#", "checkstack", "cs"}) {
    const int stack = NumberBehind(name, prefix);
    if (stack >= 0) return stack < kCheckStacks ? kFirstCheckStack + stack : 0;
  }
  for (BetId bet = 1; bet <= kBets; ++bet)
    if (name == FactsOf(bet).scriptName || name == Compact(FactsOf(bet).name)) return bet;
  return 0;
}

BetId HopBet(int die1, int die2) {
  const PairSet faces = CombinationBit(die1, die2) | CombinationBit(die2, die1);
  for (BetId bet = 1; bet <= kBets; ++bet)
    if (FamilyOf(bet) == FamilyId::kHop && FactsOf(bet).wins == faces) return bet;
  return 0;
}

}  // namespace tessaryn
