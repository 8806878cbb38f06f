#include "shell/frame/settle_roll.h"

#include <algorithm>

#include "rules/handling.h"
#include "shell/frame/desk.h"
#include "shell/screens/screen_parts.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_widget.h"
#include "state/game.h"

namespace tessaryn {

namespace {

// The answer as the stored choice of the player.
void KeepChoice(Handling& handling, bool won, const SettleAnswer& answer) {
  (won ? handling.WinHandling : handling.LoseHandling) = answer.choice;
  const bool fixed = answer.choice == kWinFixed;
  if (!fixed && answer.choice != kWinAdjusted) return;
  const int slot = fixed ? (won ? kSlotWinBet : kSlotLoseBet) : (won ? kSlotWinSame : kSlotLoseSame);
  handling.AdjustKind[slot] = answer.adjustKind;
  handling.AdjustValue[slot] = answer.adjustValue;
  handling.AdjustUnit[slot] = answer.adjustUnit;
}

}  // namespace

bool SettlesInBoxes(const Desk& desk) { return desk.game.screen.SettleInBoxes; }

void SetSettlesInBoxes(Desk& desk, bool boxes) { desk.game.screen.SettleInBoxes = boxes; }

SettleRoll::SettleRoll(Desk& desk) : desk_(desk) {}

void SettleRoll::DiceThrown(const Game& game) {
  sheet_.clear();
  next_ = 0;
  rest_[0].reset();
  rest_[1].reset();
  thrown_.reset();
  if (!SettlesInBoxes(desk_) && MayAskAboutBets(game)) thrown_ = std::make_unique<ThrownTable>(game);
}

SettleAnswer SettleRoll::Offered(const Game& game, const SettleQuestion& question) const {
  const auto found = answered_.find({game.table.seats[question.seat].SeatName, question.bet, question.won});
  if (found != answered_.end()) return found->second;
  SettleAnswer answer;
  answer.choice = SafeChoice(question);
  return answer;
}

void SettleRoll::Remember(const Game& game, const SettleQuestion& question, const SettleAnswer& answer) {
  answered_[{game.table.seats[question.seat].SeatName, question.bet, question.won}] = answer;
}

// A player's first winner and first loser stand for the others.
void SettleRoll::NoteForGood(const std::vector<SheetDecision>& decisions) {
  for (const SheetDecision& decision : decisions) {
    const SettleQuestion& question = decision.question;
    const bool known = std::any_of(forGood_.begin(), forGood_.end(), [&](const Chosen& chosen) {
      return chosen.seat == question.seat && chosen.won == question.won;
    });
    if (!known && !question.finished) forGood_.push_back({question.seat, question.won, decision.answer});
  }
}

void SettleRoll::ShowSheet(const Game& game) {
  std::vector<SheetDecision> decisions;
  const std::unique_ptr<ThrownTable> thrown = std::move(thrown_);
  thrown->Settle([&](Game& copy, const SettleQuestion& question) {
    SheetDecision decision;
    decision.question = question;
    decision.player = FromCore(copy.table.seats[question.seat].SeatName);
    decision.amount = copy.table.BetAmount(question.seat, question.bet);
    decision.lines = SettleLines(copy, question);
    decision.answer = Offered(copy, question);
    decisions.push_back(decision);
    return decision.answer;
  });
  if (decisions.empty()) return;
  SettleSheet sheet(game, std::move(decisions), desk_.window);
  sheet.animate = desk_.table->animate;
  const QPoint corner = desk_.table->mapToGlobal(QPoint(0, 0));
  sheet.PlaceOver(QRect(corner, desk_.table->size()));
  RunDialog(sheet);
  if (sheet.result() == SettleSheet::kOneAtATime) return;
  sheet_ = sheet.Decisions();
  if (sheet.ForGood()) NoteForGood(sheet_);
}

const SettleAnswer* SettleRoll::Foreseen(const SettleQuestion& question) {
  const auto found =
      std::find_if(sheet_.begin() + static_cast<std::ptrdiff_t>(next_), sheet_.end(),
                   [&](const SheetDecision& decision) { return SameQuestion(decision.question, question); });
  if (found == sheet_.end()) return nullptr;
  next_ = static_cast<std::size_t>(found - sheet_.begin()) + 1;
  return &found->answer;
}

SettleAnswer SettleRoll::AskInBox(Game& game, const SettleQuestion& question) {
  SettleBetScreen screen(game, question, desk_.window);
  RunDialog(screen);
  const SettleAnswer answer = screen.Answer();
  if (screen.ForRestOfRoll()) rest_[question.won ? 1 : 0] = answer;
  if (screen.ForGood()) KeepChoice(game.table.seats[question.seat].handling, question.won, answer);
  return answer;
}

SettleAnswer SettleRoll::Ask(Game& game, const SettleQuestion& question) {
  if (thrown_ != nullptr) ShowSheet(game);
  SettleAnswer answer;
  if (const std::optional<SettleAnswer>& rest = rest_[question.won ? 1 : 0]; rest.has_value())
    answer = *rest;
  else if (const SettleAnswer* foreseen = Foreseen(question); foreseen != nullptr)
    answer = *foreseen;
  else
    answer = AskInBox(game, question);
  if (!question.finished) Remember(game, question, answer);
  return answer;
}

// Not sooner: the roll's other decisions of the player have answers of their own.
void SettleRoll::RollEnded(Game& game) {
  thrown_.reset();
  for (const Chosen& chosen : std::exchange(forGood_, {}))
    KeepChoice(game.table.seats[chosen.seat].handling, chosen.won, chosen.answer);
}

}  // namespace tessaryn
