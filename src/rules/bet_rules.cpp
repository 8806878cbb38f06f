#include "rules/bet_rules.h"

#include <algorithm>
#include <iterator>

#include "rules/bet_limits.h"
#include "rules/bet_refusals.h"
#include "rules/consistency.h"
#include "state/bet_families.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr int kNoteRefusals = 1;
constexpr int kNoteBankroll = 2;
constexpr int kNoteAdjusted = 4;

constexpr int PayPosition(SeatId seat) {
  for (int i = 0; i < kSeats; ++i)
    if (kPayOrder[i] == seat) return i;
  return 0;
}
constexpr std::array<std::uint8_t, kSeatRows> kPayBit = [] {
  std::array<std::uint8_t, kSeatRows> bits{};
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    bits[seat] = static_cast<std::uint8_t>(1u << PayPosition(seat));
  return bits;
}();

// --- Notes.

bool NotesShown(const Game& game, Asking asking, int bit) {
  return !game.table.TurboRollActive && !game.autobet.ScriptRunning && asking != Asking::kQuietly &&
         (game.settings.MessageMask & bit) != 0;
}

// A note to the seat's player about a bet.
template <Msg kId, typename... Arguments>
void ShowNote(Game& game, Asking asking, SeatId seat, BetId bet, int bit, const Arguments&... arguments) {
  if (NotesShown(game, asking, bit))
    ShowMessage<kId>(game, With<"player">(game.table.seats[seat].SeatName), With<"bet">(BetName(bet)),
                     arguments...);
}

// --- The rules of the game. A rule refuses an increase (or a decrease) of its bets when its condition
// holds, with its text.

struct RuleCase {
  const Game& game;
  SeatId seat;
  BetId bet;
  Currency newAmount;
  Asking asking = Asking::kAloud;
};

bool OverCommitted(const RuleCase& c) { return c.newAmount > c.game.table.BetCommitted(c.seat, c.bet); }
bool UnderCommitted(const RuleCase& c) { return c.newAmount < c.game.table.BetCommitted(c.seat, c.bet); }
bool PointOn(const RuleCase& c) { return c.game.table.Point != 0; }
bool PutRefused(const RuleCase& c) { return !c.game.settings.AllowPutBets && OverCommitted(c); }
bool PutRefusedWithPoint(const RuleCase& c) { return PointOn(c) && PutRefused(c); }
bool NoPoint(const RuleCase& c) { return !PointOn(c); }
bool PointAndOver(const RuleCase& c) { return PointOn(c) && OverCommitted(c); }
bool PointAndUnder(const RuleCase& c) { return PointOn(c) && UnderCommitted(c); }
bool NoFlatBet(const RuleCase& c) { return c.game.table.BetAmount(c.seat, FlatBetOf(c.bet)) == kZero; }
bool NoPointOrFlat(const RuleCase& c) { return NoPoint(c) || NoFlatBet(c); }
bool DirectPutRefused(const RuleCase& c) { return c.asking != Asking::kAsMove && PutRefused(c); }
bool DirectRefused(const RuleCase& c) { return c.asking != Asking::kAsMove && OverCommitted(c); }
bool SmallMarked(const RuleCase& c) {
  return (c.game.table.NumberMarks & kSmallMarks) != 0 && OverCommitted(c);
}
bool TallMarked(const RuleCase& c) {
  return (c.game.table.NumberMarks & kTallMarks) != 0 && OverCommitted(c);
}
bool AnyMarked(const RuleCase& c) { return (c.game.table.NumberMarks & kAllMarks) != 0 && OverCommitted(c); }
bool CountRunning(const RuleCase& c) { return c.game.table.FourRollCount > 0 && OverCommitted(c); }
bool HandStarted(const RuleCase& c) { return HandRolls(c.game.stats) > 0 && OverCommitted(c); }

struct BetRule {
  BetId first;
  BetId last;
  bool decrease;
  bool (*refuses)(const RuleCase&);
  bool endsCall;  // nothing of the change is left to look at
  Msg text;
};

constexpr BetRule kRules[] = {
    {kPassLine, kPassLine, true, PointAndUnder, false, Msg::kPassLineIsContract},
    {kCome4, kCome4 + 5, true, UnderCommitted, false, Msg::kComeIsContract},
    {kSevenPoint7, kSevenPoint7, true, PointAndUnder, false, Msg::kBetIsContract},

    {kPassLine, kPassLine, false, PutRefusedWithPoint, false, Msg::kPutPassLineRefused},
    {kCome, kCome, false, NoPoint, true, Msg::kComeNeedsPoint},
    {kDontPass, kDontPass, false, PointAndOver, false, Msg::kDontPassRefused},
    {kDontCome, kDontCome, false, NoPoint, false, Msg::kDontComeNeedsPoint},
    {kPassLineOdds, kPassLineOdds, false, NoPointOrFlat, false, Msg::kPassLineOddsRefused},
    {kDontPassOdds, kDontPassOdds, false, NoPointOrFlat, false, Msg::kDontPassOddsRefused},
    {kComeOdds4, kComeOdds4 + 5, false, NoFlatBet, false, Msg::kOddsNeedFlatBet},
    {kDontComeOdds4, kDontComeOdds4 + 5, false, NoFlatBet, false, Msg::kOddsNeedFlatBet},
    {kCome4, kCome4 + 5, false, DirectPutRefused, false, Msg::kPutComeRefused},
    {kDontCome4, kDontCome4 + 5, false, DirectRefused, false, Msg::kPutDontComeRefused},
    {kAllSmall, kAllSmall, false, SmallMarked, false, Msg::kSmallNumbersMarked},
    {kAllTall, kAllTall, false, TallMarked, false, Msg::kTallNumbersMarked},
    {kMakeAll, kMakeAll, false, AnyMarked, false, Msg::kNumbersMarked},
    {kFourRolls, kFourRolls, false, CountRunning, false, Msg::kCountInProgress},
    {kPoint7, kSevenPoint7, false, PointAndOver, false, Msg::kNeedsComeOutRoll},
    {kSharpShooter, kRideTheLine, false, HandStarted, false, Msg::kHandHasStarted},
    {kFire, kFire, false, HandStarted, false, Msg::kHandHasStarted},
};
static_assert(std::all_of(std::begin(kRules), std::end(kRules), [](const BetRule& rule) {
  return NeedsOnly(rule.text, {"player", "bet", "flat"});
}));

// The rule of each bet for an increase (0) and a decrease (1), by its place in the table; -1 for none.
constexpr auto kRuleOf = [] {
  std::array<std::array<std::int8_t, 2>, kBets + 1> places{};
  for (auto& place : places) place = {-1, -1};
  std::int8_t at = 0;
  for (const BetRule& rule : kRules) {
    for (BetId bet = rule.first; bet <= rule.last; ++bet) places[bet][rule.decrease ? 1 : 0] = at;
    ++at;
  }
  return places;
}();

enum class Verdict { kAllowed, kRefused, kEnds };

// Applies the bet's rule. A refused increase changes nothing, so no limit is looked at.
Verdict ApplyRules(Game& game, SeatId seat, BetId bet, Currency& change, Asking asking) {
  const bool decrease = change < kZero;
  const int place = kRuleOf[bet][decrease ? 1 : 0];
  if (place < 0) return Verdict::kAllowed;
  const BetRule& rule = kRules[place];
  const Currency amount = game.table.BetAmount(seat, bet);
  if (!rule.refuses({game, seat, bet, amount + change, asking})) return Verdict::kAllowed;
  // Handling that only looks at a bet again asks for nothing, so nothing is refused aloud.
  if (change != kZero && NotesShown(game, asking, kNoteRefusals))
    ShowMessage(game, rule.text,
                {{"player", game.table.seats[seat].SeatName},
                 {"bet", BetName(bet)},
                 {"flat", BetName(FlatBetOf(bet))}});
  change = decrease ? game.table.BetCommitted(seat, bet) - amount : kZero;
  if (rule.endsCall || (decrease && change == kZero)) return Verdict::kEnds;
  return decrease ? Verdict::kAllowed : Verdict::kRefused;
}

// --- Limits.

bool IsContract(BetId bet) { return bet == kPassLine || IsComeNumber(bet); }

// What a contract holds up now: no limit takes the bet below it.
Currency ContractFloor(const Game& game, SeatId seat, BetId bet) {
  return UnderContract(game.table, bet) ? game.table.BetCommitted(seat, bet) : kZero;
}

void ApplyMinimum(Game& game, SeatId seat, BetId bet, Currency& change, bool decrease, Asking asking) {
  const Currency amount = game.table.BetAmount(seat, bet);
  const Currency minimum = MinBetFor(game, bet);
  const Currency wanted = amount + change;
  if (wanted >= minimum || wanted <= kZero) return;
  if (decrease) {
    change = -amount;
    return;
  }
  change = minimum - amount;
  ShowNote<Msg::kMinimumBet>(game, asking, seat, bet, kNoteRefusals, With<"limit">(minimum));
}

void ApplyMaximum(Game& game, SeatId seat, BetId bet, Currency& change, Asking asking) {
  const Currency amount = game.table.BetAmount(seat, bet);
  const Currency maximum = MaxBetFor(game, seat, bet);
  if (amount + change <= maximum) return;
  const Currency committed = game.table.BetCommitted(seat, bet);
  const bool keptByContract = IsContract(bet) && committed > maximum;
  if (keptByContract)
    ShowNote<Msg::kMaximumBetButContract>(game, asking, seat, bet, kNoteRefusals, With<"limit">(maximum),
                                          With<"contract">(committed));
  else
    ShowNote<Msg::kMaximumBet>(game, asking, seat, bet, kNoteRefusals, With<"limit">(maximum));
  if (keptByContract) {
    change = committed - amount;
  } else if (change < kZero) {
    change = maximum - amount;
  } else {
    change = std::max(maximum - amount, kZero);
  }
}

// What the change adds to the money on the table, vig included.
Currency TableCost(const Game& game, SeatId seat, BetId bet, Currency change, Currency vigOnTable) {
  if (!VigUpFront(game, bet)) return change;
  return change + VigFor(game, bet, game.table.BetAmount(seat, bet) + change) - vigOnTable;
}

bool HasOtherBets(const Game& game, SeatId seat, BetId bet) {
  BetSet others = game.table.seats[seat].SeatBets;
  others.Remove(bet);
  return !others.Empty();
}

// The furthest that a limit may lower the bet: all of it, or down to what its contract holds.
Currency LowestChange(const Game& game, SeatId seat, BetId bet) {
  return std::min(ContractFloor(game, seat, bet) - game.table.BetAmount(seat, bet), kZero);
}

// Lowers the change, unit by unit, until the bankroll covers it or the bet can't go lower.
void ApplyBankroll(Game& game, SeatId seat, BetId bet, Currency& change, Asking asking) {
  const TableState& table = game.table;
  // A bet that moves to its number brings no new money to the table; odds that follow it do.
  const bool moves = asking == Asking::kAsMove && !IsOdds(bet);
  if (table.seats[seat].AllowNegativeBankroll || moves) return;
  const Currency amount = table.BetAmount(seat, bet);
  const Currency vigOnTable = VigUpFront(game, bet) ? VigHeld(game, seat, bet) : kZero;
  const Currency room = table.BankrollCurrent[seat] - table.seats[seat].OnTableAmount;
  if (TableCost(game, seat, bet, change, vigOnTable) <= room) return;
  const Currency lowest = LowestChange(game, seat, bet);
  if (change <= lowest) return;
  // The cost rises with the change, so the first that fits is found by halving.
  const std::int64_t unit = game.settings.Unit().raw;
  std::int64_t low = 1;
  std::int64_t high = std::max<std::int64_t>((change.raw + amount.raw + unit - 1) / unit, 1);
  while (low < high) {
    const std::int64_t steps = low + (high - low) / 2;
    const Currency candidate = std::max(Currency::FromRaw(change.raw - steps * unit), lowest);
    if (TableCost(game, seat, bet, candidate, vigOnTable) <= room)
      high = steps;
    else
      low = steps + 1;
  }
  change = std::max(Currency::FromRaw(change.raw - low * unit), lowest);
  const Currency minimum = MinBetFor(game, bet);
  if (change > lowest && amount + change < minimum) {
    change = lowest;
    ShowNote<Msg::kMinimumBet>(game, asking, seat, bet, kNoteRefusals, With<"limit">(minimum));
  }
  ShowNote<Msg::kBankrollTooSmall>(game, asking, seat, bet, kNoteBankroll,
                                   With<"others">(HasOtherBets(game, seat, bet)));
}

Currency RoundChange(Currency change, Currency unit) {
  if (change == kZero || IsMultiple(change, unit)) return change;
  const std::int64_t rest = change.raw % unit.raw;
  return change > kZero ? Currency::FromRaw(change.raw - rest) + unit
                        : Currency::FromRaw(change.raw - rest) - unit;
}

void ApplyVig(Game& game, SeatId seat, BetId bet, Asking asking) {
  Currency& held = VigHeld(game, seat, bet);
  const Currency vig = VigFor(game, bet, game.table.BetAmount(seat, bet));
  if (vig == held) return;
  if (VigUpFront(game, bet)) game.table.seats[seat].OnTableAmount += vig - held;
  held = vig;
  if (vig == kZero) return;
  if (VigUpFront(game, bet))
    ShowNote<Msg::kVigCharged>(game, asking, seat, bet, kNoteAdjusted, With<"vig">(vig));
  else
    ShowNote<Msg::kVigOnWin>(game, asking, seat, bet, kNoteAdjusted, With<"vig">(vig));
}

Currency ChangeCheckStack(Game& game, SeatId seat, BetId bet, Currency change, Asking asking) {
  const Currency value = game.table.BetAmount(seat, bet);
  const Currency wanted = value + change;
  Currency allowed = wanted;
  if (wanted.IsError()) allowed = change < kZero ? -kStackLimit : kStackLimit;
  allowed = std::clamp(allowed, -kStackLimit, kStackLimit);
  if (allowed != wanted)
    ShowNote<Msg::kStackAtLimit>(game, asking, seat, bet, kNoteRefusals, With<"least">(change < kZero),
                                 With<"limit">(change < kZero ? -kStackLimit : kStackLimit),
                                 With<"already">(allowed == value));
  SetBetAmount(game, seat, bet, allowed);
  return allowed - value;
}

bool WorksByDefault(const TableState& table, SeatId seat, BetId bet) {
  return table.Point != 0 || table.seats[seat].BetDefaultWorking.Has(bet);
}

constexpr BetSet kTableMaximumBets =
    BetsWhere([](const FamilyRow& row) { return row.maximum == Maximum::kTable; });

bool WithinMaximum(const Game& game, SeatId seat, BetId bet, Currency amount) {
  const Settings& settings = game.settings;
  const bool surely = kTableMaximumBets.Has(bet) && amount.raw <= settings.MaxBet.raw - settings.Unit().raw;
  return surely || amount <= MaxBetFor(game, seat, bet);
}

// Whether the bet, as it stands, is one that no rule would change: what handling asks of every bet that
// stays up, on every roll.
bool StandsAsItIs(const Game& game, SeatId seat, BetId bet, Currency amount) {
  const TableState& table = game.table;
  return amount >= MinBetFor(game, bet) && table.seats[seat].handling.ProperOddsMode == 0 &&
         table.seats[seat].OnTableAmount <= table.BankrollCurrent[seat] &&
         WithinMaximum(game, seat, bet, amount) &&
         (!HasVig(bet) || VigHeld(game, seat, bet) == VigFor(game, bet, amount));
}

// Whether the change takes the bet off whole with nothing to stop or to charge it: no limit and no contract
// has a say then but the bet's own rule.
bool ComesOffWhole(const Game& game, SeatId seat, BetId bet, Currency amount, Currency request) {
  if (request != -amount || amount <= kZero || amount > kBankrollLimit || HasVig(bet)) return false;
  const int place = kRuleOf[bet][1];
  if (place >= 0 && kRules[place].refuses({game, seat, bet, kZero})) return false;
  return game.table.seats[seat].OnTableAmount - amount <= game.table.BankrollCurrent[seat];
}

// What the rules and limits leave of a request. Shows their texts and changes nothing.
Currency DecideChange(Game& game, SeatId seat, BetId bet, Currency request, Asking asking) {
  const TableState& table = game.table;
  const Currency amount = table.BetAmount(seat, bet);
  // A request beyond any bankroll is as good as one for the whole of it.
  Currency change = std::clamp(request.IsError() ? kZero : request, -kBankrollLimit, kBankrollLimit);
  change = std::max(RoundChange(change, game.settings.Unit()), -amount);
  const bool decrease = change < kZero;
  const bool increase = change > kZero;
  if (increase && kSwitchableBets.Has(bet) && !BetOffered(game.settings, bet)) {
    ShowNote<Msg::kBetNotOffered>(game, asking, seat, bet, kNoteRefusals);
    return kZero;
  }
  const Verdict verdict = ApplyRules(game, seat, bet, change, asking);
  if (verdict == Verdict::kEnds || (verdict == Verdict::kRefused && increase)) return kZero;
  if (verdict == Verdict::kAllowed) {
    ApplyMinimum(game, seat, bet, change, decrease, asking);
    if (amount + change > kZero) {
      ApplyMaximum(game, seat, bet, change, asking);
      if (table.seats[seat].handling.ProperOddsMode > 0) change = ProperOddsAmount(game, seat, bet, change);
    }
    // No limit takes a contract bet below what has ridden.
    if (change < kZero) change = std::max(change, LowestChange(game, seat, bet));
  }
  ApplyBankroll(game, seat, bet, change, asking);
  return change;
}

Currency ChangeTableBet(Game& game, SeatId seat, BetId bet, Currency request, Asking asking) {
  const Currency amount = game.table.BetAmount(seat, bet);
  if (request == kZero && StandsAsItIs(game, seat, bet, amount)) return kZero;
  if (ComesOffWhole(game, seat, bet, amount, request)) {
    SetBetAmount(game, seat, bet, kZero);
    return request;
  }
  const Currency change = DecideChange(game, seat, bet, request, asking);
  if (change != kZero) SetBetAmount(game, seat, bet, amount + change);
  if (HasVig(bet)) ApplyVig(game, seat, bet, asking);
  return change;
}

// --- Odds that follow their flat bet.

// The odds that follow the flat bet now; 0 for none.
BetId OddsThatFollow(const Game& game, BetId bet) {
  const bool onLine = bet == kPassLine || bet == kDontPass;
  return onLine && game.table.Point == 0 ? kNoBet : OddsBetOf(bet);
}

bool OddsAreAutomatic(const Game& game, SeatId seat, BetId flatBet) {
  return game.table.seats[seat].handling.*FamilyRowOf(flatBet).automaticOdds;
}

// Whether odds are up, or wanted, that a change of the bet could change.
bool OddsFollowBet(const Game& game, SeatId seat, BetId bet) {
  const BetId odds = OddsThatFollow(game, bet);
  return odds != 0 && (OddsAreAutomatic(game, seat, bet) || game.table.BetAmount(seat, odds) > kZero);
}

}  // namespace

namespace {

// Few changes come as far as this.
[[gnu::noinline]] void BringIntoLine(Game& game, SeatId seat, BetId bet, BetId odds) {
  const Currency up = game.table.BetAmount(seat, odds);
  if (up == kZero && game.table.BetAmount(seat, bet) == kZero) return;
  if (OddsAreAutomatic(game, seat, bet) || (up > kZero && up > MaxBetFor(game, seat, odds)))
    TakeFullOdds(game, seat, odds);
}

}  // namespace

void BringOddsIntoLine(Game& game, SeatId seat, BetId bet) {
  if (const BetId odds = OddsThatFollow(game, bet); odds != 0) BringIntoLine(game, seat, bet, odds);
}

void SetBetAmount(Game& game, SeatId seat, BetId bet, Currency amount) {
  TableState& table = game.table;
  Currency& cell = table.BetAmount(seat, bet);
  if (cell == amount) return;
  if (bet >= kFirstCheckStack) {
    cell = amount;
    table.seats[seat].StacksSinceBefore.Add(bet - kFirstCheckStack);
    table.seats[seat].StacksSinceAfter.Add(bet - kFirstCheckStack);
    table.SeatsSinceBefore |= 1u << seat;
    table.SeatsSinceAfter |= 1u << seat;
    return;
  }
  table.seats[seat].OnTableAmount += amount - cell;
  // A new bet has the seat's present choice of what works on the come-out; a point sets all of them.
  if (cell == kZero && table.Point == 0)
    table.seats[seat].BetWorking.byDefault.Set(bet, table.seats[seat].BetDefaultWorking.Has(bet));
  cell = amount;
  TouchBefore(table, seat, bet);
  table.seats[seat].TouchedSinceAfter.Add(bet);
  table.SeatsSinceAfter |= 1u << seat;
  if (amount.raw > 0) {
    table.seats[seat].SeatBets.Add(bet);
    table.SeatsUp[bet] |= kPayBit[seat];
    table.AnyBets.Add(bet);
  } else {
    table.seats[seat].SeatBets.Remove(bet);
    table.SeatsUp[bet] &= static_cast<std::uint8_t>(~kPayBit[seat]);
    if (table.SeatsUp[bet] == 0) table.AnyBets.Remove(bet);
    ResetBetWorking(game, seat, bet);
  }
}

bool StaysWhenBetAgain(const Game& game, SeatId seat, BetId bet) {
  const TableState& table = game.table;
  const Settings& settings = game.settings;
  const Currency amount = table.BetAmount(seat, bet);
  if (amount == kZero) return true;
  // A check is heard outside a Turbo-Roll, and a bet that comes down forgets its calls.
  const WorkingState& working = table.seats[seat].BetWorking;
  const bool unseen = table.TurboRollActive && !working.calledOn.Has(bet) && !working.calledOff.Has(bet) &&
                      working.byDefault.Has(bet) == WorksByDefault(table, seat, bet);
  if (!unseen || !IsMultiple(amount, settings.Unit()) || !StandsAsItIs(game, seat, bet, amount)) return false;
  if (kSwitchableBets.Has(bet) && !BetOffered(settings, bet)) return false;
  const int place = kRuleOf[bet][0];
  return (place < 0 || !kRules[place].refuses({game, seat, bet, amount})) && !OddsFollowBet(game, seat, bet);
}

Currency AllowedChange(Game& game, SeatId seat, BetId bet, Currency request, Asking asking) {
  return DecideChange(game, seat, bet, request, asking);
}

namespace {

Msg RefusingRule(const Game& game, SeatId seat, BetId bet) {
  const int place = kRuleOf[bet][0];
  const Currency more = game.table.BetAmount(seat, bet) + game.settings.Unit();
  return place >= 0 && kRules[place].refuses({game, seat, bet, more}) ? kRules[place].text : Msg::kNone;
}

// The note that a request for a unit more gets.
std::string RefusingNote(const Game& game, SeatId seat, BetId bet) {
  const std::vector<MessageArgument> names{
      {"player", game.table.seats[seat].SeatName}, {"bet", BetName(bet)}, {"flat", BetName(FlatBetOf(bet))}};
  if (kSwitchableBets.Has(bet) && !BetOffered(game.settings, bet))
    return MessageText(Msg::kBetNotOffered, names);
  if (const Msg rule = RefusingRule(game, seat, bet); rule != Msg::kNone) return MessageText(rule, names);
  const Currency maximum = MaxBetFor(game, seat, bet);
  if (game.table.BetAmount(seat, bet) >= maximum)
    return MessageText<Msg::kMaximumBet>(With<"player">(game.table.seats[seat].SeatName),
                                         With<"bet">(BetName(bet)), With<"limit">(maximum));
  return MessageText<Msg::kBankrollTooSmall>(With<"player">(game.table.seats[seat].SeatName),
                                             With<"bet">(BetName(bet)),
                                             With<"others">(HasOtherBets(game, seat, bet)));
}

}  // namespace

// Behind the player's name the first paragraph tells why, the others what to do about it.
std::string WhyNotMore(const Game& game, SeatId seat, BetId bet) {
  constexpr std::string_view kParagraph = "\r\r";
  std::string text = RefusingNote(game, seat, bet);
  if (const std::string address = game.table.seats[seat].SeatName + ","; text.starts_with(address))
    text.erase(0, text.find_first_not_of(" \r", address.size()));
  text.resize(std::min(text.size(), text.find(kParagraph)));
  std::erase(text, '\r');
  return text;
}

Currency ChangeBet(Game& game, SeatId seat, BetId bet, Currency request, Asking asking) {
  if (IsTableBet(bet)) return ChangeTableBet(game, seat, bet, request, asking);
  return IsCheckStack(bet) ? ChangeCheckStack(game, seat, bet, request, asking) : kZero;
}

Currency PlaceBet(Game& game, SeatId seat, BetId bet, Currency request, Asking asking) {
  const Currency change = ChangeBet(game, seat, bet, request, asking);
  if (!game.table.TurboRollActive && change != kZero) {
    if (asking != Asking::kAsMove) game.host->PlaySound(game, Sound::kCheck);
    game.host->Changed(game, Change::kLayout);
  }
  if (change != kZero) BringOddsIntoLine(game, seat, bet);
  RequireConsistency(game);
  return change;
}

Currency RemoveBet(Game& game, SeatId seat, BetId bet) {
  return PlaceBet(game, seat, bet, -game.table.BetAmount(seat, bet));
}

void TakeFullOdds(Game& game, SeatId seat, BetId bet) {
  ChangeBet(game, seat, bet, -game.table.BetAmount(seat, bet), Asking::kQuietly);
  ChangeBet(game, seat, bet, kBankrollLimit, Asking::kQuietly);
}

void TakeAllFullOdds(Game& game, SeatId seat, bool laySide) {
  const int line = laySide ? kDontPass : kPassLine;
  const BetId firstFlat = laySide ? kDontCome4 : kCome4;
  const TableState& table = game.table;
  if (table.Point != 0 && table.seats[seat].SeatBets.Has(line)) TakeFullOdds(game, seat, OddsBetOf(line));
  for (BetId flat = firstFlat; flat < firstFlat + 6; ++flat)
    if (table.seats[seat].SeatBets.Has(flat)) TakeFullOdds(game, seat, OddsBetOf(flat));
  RequireConsistency(game);
}

int BetWorkingOf(const Game& game, SeatId seat, BetId bet) {
  return WorkingValue(game.table.seats[seat].BetWorking, bet);
}

void ResetBetWorking(Game& game, SeatId seat, BetId bet) {
  WorkingState& state = game.table.seats[seat].BetWorking;
  if (state.calledOn.Has(bet) || state.calledOff.Has(bet)) {
    state.calledOn.Remove(bet);
    state.calledOff.Remove(bet);
    game.table.CallsTouched = true;
  }
  state.byDefault.Set(bet, WorksByDefault(game.table, seat, bet));
}

namespace {

void Call(Game& game, SeatId seat, BetId bet, bool on) {
  WorkingState& state = game.table.seats[seat].BetWorking;
  BetSet& wanted = on ? state.calledOn : state.calledOff;
  const BetSet& other = on ? state.calledOff : state.calledOn;
  game.table.CallsTouched = true;
  if (other.Has(bet))
    ResetBetWorking(game, seat, bet);
  else
    wanted.Add(bet);
}

}  // namespace

bool CallBet(Game& game, SeatId seat, BetId bet, bool on) {
  if (!IsTableBet(bet) || !kCallableBets.Has(bet)) {
    if (!game.table.TurboRollActive && !game.autobet.ScriptRunning)
      ShowMessage<Msg::kNotCallable>(game, With<"bet">(BetName(bet)));
    return false;
  }
  Call(game, seat, bet, on);
  game.host->Changed(game, Change::kLayout);
  RequireConsistency(game);
  return true;
}

void CallAllBets(Game& game, SeatId seat, bool on) {
  (game.table.seats[seat].SeatBets & kCallableBets).ForEach([&](BetId bet) { Call(game, seat, bet, on); });
  game.host->Changed(game, Change::kLayout);
}

void RemoveCall(Game& game, SeatId seat, BetId bet) {
  ResetBetWorking(game, seat, bet);
  game.host->Changed(game, Change::kLayout);
}

bool BuyPlaceBet(Game& game, SeatId seat, BetId bet) {
  const Currency amount = IsPlace(bet) ? game.table.BetAmount(seat, bet) : kZero;
  if (amount == kZero) {
    if (!game.table.TurboRollActive && !game.autobet.ScriptRunning) ShowMessage<Msg::kOnlyPlaceBetsBuy>(game);
    return IsPlace(bet);
  }
  const int call = BetWorkingOf(game, seat, bet);
  const BetId buy = BetOn(kBuy4, FactsOf(bet).number);
  RemoveBet(game, seat, bet);
  PlaceBet(game, seat, buy, amount);
  const bool called = call == 2 || call == -1;
  if (called && game.table.seats[seat].SeatBets.Has(buy)) {
    WorkingState& state = game.table.seats[seat].BetWorking;
    state.calledOn.Set(buy, call == 2);
    state.calledOff.Set(buy, call == -1);
    game.table.CallsTouched = true;
  }
  RequireConsistency(game);
  return true;
}

void TakeDownBets(Game& game, SeatId seat, const BetSet& bets) {
  (game.table.seats[seat].SeatBets & bets).ForEach([&](BetId bet) {
    SetBetAmount(game, seat, bet, kZero);
    game.table.BetCommitted(seat, bet) = kZero;
    if (HasVig(bet)) {
      Currency& held = VigHeld(game, seat, bet);
      if (VigUpFront(game, bet)) game.table.seats[seat].OnTableAmount -= held;
      held = kZero;
    }
  });
  game.host->Changed(game, Change::kLayout);
}

void RecomputeVig(Game& game) {
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    (game.table.seats[seat].SeatBets & kVigBets).ForEach([&](BetId bet) {
      VigHeld(game, seat, bet) = VigFor(game, bet, game.table.BetAmount(seat, bet));
    });
    // With what is charged up front changed too, the sum is made anew.
    Currency onTable;
    game.table.seats[seat].SeatBets.ForEach([&](BetId bet) {
      onTable += game.table.BetAmount(seat, bet);
      if (VigUpFront(game, bet)) onTable += VigHeld(game, seat, bet);
    });
    game.table.seats[seat].OnTableAmount = onTable;
  }
}

}  // namespace tessaryn
