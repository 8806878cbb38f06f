#include "play/repeat_bets.h"
#include "rules/bet_rules.h"
#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/table/table_widget.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {
namespace {

const BetSet& BetsUp(const Desk& desk) {
  return desk.game.table.seats[desk.game.table.SelectedSeat].SeatBets;
}

bool HasCallableBet(const Desk& desk) { return HasPlayer(desk) && BetsUp(desk).Meets(kCallableBets); }

bool HasLineOrCome(const Desk& desk, int line, FamilyId family) {
  return HasPlayer(desk) &&
         ((BetsUp(desk).Has(line) && desk.game.table.Point != 0) || BetsUp(desk).Meets(BetsOf(family)));
}
bool CanTakeOdds(const Desk& desk) { return HasLineOrCome(desk, kPassLine, FamilyId::kComeNumber); }
bool CanLayOdds(const Desk& desk) { return HasLineOrCome(desk, kDontPass, FamilyId::kDontComeNumber); }

bool KeysInAmounts(const Desk& desk) { return desk.commands.BetAmountMode == kKeyInAmounts; }

void KeyInAmounts(Desk& desk) {
  desk.commands.BetAmountMode = KeysInAmounts(desk) ? kAddClickAmount : kKeyInAmounts;
}

// What the next click on a bet is for.
template <int action>
void Arm(Desk& desk) {
  SetPendingAction(desk.commands, action);
  desk.table->RefreshPointer();
}

template <int action>
bool Armed(const Desk& desk) {
  return desk.commands.PendingAction == action || (action == kPendingMove && desk.commands.Moving.Bet != 0);
}

template <bool on>
void CallAll(Desk& desk) {
  CallAllBets(desk.game, desk.game.table.SelectedSeat, on);
}

template <bool lay>
void FullOdds(Desk& desk) {
  TakeAllFullOdds(desk.game, desk.game.table.SelectedSeat, lay);
  desk.table->Refresh();
}

void FullOddsOfBothSides(Desk& desk) {
  if (CanTakeOdds(desk)) FullOdds<false>(desk);
  if (CanLayOdds(desk)) FullOdds<true>(desk);
}
bool CanHaveOdds(const Desk& desk) { return CanTakeOdds(desk) || CanLayOdds(desk); }

bool CanUndoBet(const Desk& desk) { return IsFree(desk) && CanUndoBets(desk.commands.History, desk.game); }
bool CanRedoBet(const Desk& desk) { return IsFree(desk) && CanRedoBets(desk.commands.History, desk.game); }

bool CanRepeat(const Desk& desk) {
  return HasPlayer(desk) && !BetsToRepeat(desk.game, desk.game.table.SelectedSeat).Empty();
}

}  // namespace

// What the next click was meant for may be gone with the step.
void UndoBet(Desk& desk) {
  GiveUp(desk.commands);
  UndoBets(desk.game, desk.commands.History);
  desk.table->Refresh();
}

void RedoBet(Desk& desk) {
  GiveUp(desk.commands);
  RedoBets(desk.game, desk.commands.History);
  desk.table->Refresh();
}

std::span<const CommandRow> BetCommands() {
  constexpr InRun kAsks = InRun::kAsksFirst;
  static const CommandRow kCommands[] = {
      {.name = "mnuKeyInBetAmounts",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Key in bet amounts"),
       .key = "F9",
       .act = KeyInAmounts,
       .ticked = KeysInAmounts},
      {},
      {"mnuUndoBet", QT_TRANSLATE_NOOP("Commands", "&Undo bet"), "Backspace", kAsks, UndoBet, CanUndoBet},
      {"mnuRedoBet", QT_TRANSLATE_NOOP("Commands", "R&edo bet"), "Shift+Backspace", kAsks, RedoBet,
       CanRedoBet},
      {"mnuRepeatBets", QT_TRANSLATE_NOOP("Commands", "Re&peat bets"), "R", kAsks,
       [](Desk& desk) { RepeatBets(desk.game, desk.game.table.SelectedSeat); }, CanRepeat},
      {},
      {"mnuBuyPlaceBet", QT_TRANSLATE_NOOP("Commands", "&Buy a Place bet"), "F5", kAsks, Arm<kPendingBuy>,
       HasPlayer, Armed<kPendingBuy>},
      {"mnuCallBetOn", QT_TRANSLATE_NOOP("Commands", "Call a bet &ON"), "F6", kAsks, Arm<kPendingCallOn>,
       HasPlayer, Armed<kPendingCallOn>},
      {"mnuCallBetOff", QT_TRANSLATE_NOOP("Commands", "Call a bet O&FF"), "F7", kAsks, Arm<kPendingCallOff>,
       HasPlayer, Armed<kPendingCallOff>},
      {"mnuCallAllBetsOn", QT_TRANSLATE_NOOP("Commands", "Call all bets O&N"), nullptr, kAsks, CallAll<true>,
       HasCallableBet},
      {"mnuCallAllBetsOff", QT_TRANSLATE_NOOP("Commands", "&Call all bets OFF"), nullptr, kAsks,
       CallAll<false>, HasCallableBet},
      {},
      {"mnuFullOdds", QT_TRANSLATE_NOOP("Commands", "Full o&dds"), "O", kAsks, FullOddsOfBothSides,
       CanHaveOdds},
      {"mnuTakeFullOdds", QT_TRANSLATE_NOOP("Commands", "&Take full odds"), nullptr, kAsks, FullOdds<false>,
       CanTakeOdds},
      {"mnuLayFullOdds", QT_TRANSLATE_NOOP("Commands", "&Lay full odds"), nullptr, kAsks, FullOdds<true>,
       CanLayOdds},
      {},
      {"mnuRemoveBet", QT_TRANSLATE_NOOP("Commands", "&Remove a bet"), "Del", kAsks, Arm<kPendingRemove>,
       HasPlayer, Armed<kPendingRemove>},
      {"mnuMoveBet", QT_TRANSLATE_NOOP("Commands", "&Move a bet"), nullptr, kAsks, Arm<kPendingMove>,
       HasPlayer, Armed<kPendingMove>},
      {"mnuRemoveAllBets", QT_TRANSLATE_NOOP("Commands", "Remove &all bets"), nullptr, kAsks,
       [](Desk& desk) { RemoveAllBets(desk.game); }, HasBets},
  };
  return kCommands;
}

}  // namespace tessaryn
