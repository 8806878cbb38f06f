#include "play/settlement_preview.h"

#include "play/copy_game.h"
#include "play/roll_cycle.h"
#include "state/game.h"

namespace tessaryn {
namespace {

struct PreviewHost : Host {
  const ThrownTable::Ask* ask = nullptr;

  void ShowMessage(Game&, MessageBox& box) override {
    box.MsgResult = (box.MsgFlags & kMsgNo) != 0       ? kResultNo
                    : (box.MsgFlags & kMsgCancel) != 0 ? kResultCancel
                                                       : kResultOk;
  }
  SettleAnswer AskSettlement(Game& game, const SettleQuestion& question) override {
    return (*ask)(game, question);
  }
  std::uint32_t TickMilliseconds() override { return 0; }
  std::string DateText() override { return {}; }
  std::string TimeText() override { return {}; }
  double SecondsSinceMidnight() override { return 0; }
  double DateTimeNumber() override { return 0; }
};

}  // namespace

struct ThrownTable::Parts {
  PreviewHost host;
  std::unique_ptr<Game> copy;
};

bool MayAskAboutBets(const Game& game) {
  if (game.table.TurboRollActive) return false;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const SeatState& state = game.table.seats[seat];
    const bool byHand = state.handling.WinHandling == 0 || state.handling.LoseHandling == 0;
    if (byHand && !state.SeatBets.Empty() && !game.autobet.ScriptActive[seat]) return true;
  }
  return false;
}

ThrownTable::ThrownTable(const Game& game) : parts_(std::make_unique<Parts>()) {
  parts_->copy = CopyGame(game, parts_->host);
}

ThrownTable::~ThrownTable() = default;

void ThrownTable::Settle(const Ask& ask) {
  parts_->host.ask = &ask;
  SettleDice(*parts_->copy);
  parts_->host.ask = nullptr;
}

bool SameQuestion(const SettleQuestion& a, const SettleQuestion& b) {
  return a.seat == b.seat && a.bet == b.bet && a.won == b.won && a.offOdds == b.offOdds &&
         a.finished == b.finished && (a.offOdds || FirstDifference(a.paidBy, b.paidBy).empty()) &&
         a.gross == b.gross && a.net == b.net && a.vig == b.vig && a.pressUnit == b.pressUnit &&
         a.count == b.count;
}

}  // namespace tessaryn
