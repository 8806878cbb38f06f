// The only door to the outside: boxes and their answers, user events, clocks, sounds, redraws. The window,
// the command-line program and the tests each implement it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/message_value.h"
#include "base/money.h"
#include "state/payoff_tables.h"

namespace tessaryn {

struct Game;
struct ScriptStep;

// MsgFlags: bits 0 to 4 the buttons, 6 and 7 the input boxes, 8 to 12 the picture.
enum MessageFlag : std::uint32_t {
  kMsgOk = 1u << 0,
  kMsgYes = 1u << 1,
  kMsgNo = 1u << 2,
  kMsgCancel = 1u << 3,
  kMsgHelp = 1u << 4,
  kMsgInput = 1u << 6,      // one input box
  kMsgTwoInputs = 3u << 6,  // two: a value each, or a range
  kMsgStop = 1u << 8,
  kMsgAlert = 1u << 9,
  kMsgQuestion = 1u << 10,
  kMsgDice = 1u << 11,
  kMsgDone = 1u << 12,
  kMsgTextInput = 1u << 16,  // the input box takes any text, not only a number
  kMsgCentred = 1u << 26,
};

inline constexpr int kResultOk = 1;
inline constexpr int kResultCancel = 2;
inline constexpr int kResultYes = 6;
inline constexpr int kResultNo = 7;

// One box: what to ask, and what was answered. Written by the asking procedure, answered by the host. A host
// goes by MsgId and MsgArguments; the texts are for people. Without a button it is a notice: told and not
// waited for.
struct MessageBox {
  Msg MsgId{};
  std::vector<MessageArgument> MsgArguments;
  std::string MsgText;  // "\r" ends a line
  std::string MsgTitle;
  int MsgWidth = 302;  // a layout value: 105, 130, 302 or 640; the host's choice
  std::uint32_t MsgFlags = kMsgOk;
  int MsgResult = 0;   // kResultOk, kResultCancel, kResultYes or kResultNo
  Currency MsgValue1;  // in: the preset; out: the number typed
  Currency MsgValue2;
  std::string MsgEntry;  // with kMsgTextInput, in: the preset; out: the text typed
};
TESSARYN_FIELDS(MessageBox, MsgId, MsgArguments, MsgText, MsgTitle, MsgWidth, MsgFlags, MsgResult, MsgValue1,
                MsgValue2, MsgEntry)

// Whether there is nothing to press.
inline bool IsNotice(const MessageBox& box) {
  return (box.MsgFlags & (kMsgOk | kMsgYes | kMsgNo | kMsgCancel | kMsgHelp)) == 0;
}

// What a player wants done with a decided bet. choice is 1 to 7 of the handling tables; 0 leaves it to the
// host's lack of an answer: the safe choice for a win (2) or a loss (1).
struct SettleAnswer {
  int choice = 0;
  int adjustKind = 0;  // with choices 6 and 7, as AdjustKind, AdjustValue and AdjustUnit
  Currency adjustValue;
  int adjustUnit = 0;
};

// A decided bet, for the settlement dialog.
struct SettleQuestion {
  SeatId seat = 0;
  BetId bet = 0;
  bool won = false;
  bool offOdds = false;   // odds that weren't working: nothing was paid or taken
  bool finished = false;  // over: it comes down with every choice
  PayoffRecord paidBy;    // unused with offOdds
  Currency gross;
  Currency net;
  Currency vig;        // held vig, Lay and Buy bets
  Currency pressUnit;  // what "Press 1 Unit" would add
  int count = 0;       // what the hand counted for the bet: points made, line wins, different points
};

enum class Sound { kDice, kCheck, kWin, kLose, kComeOut, kPoint, kPass, kMiss, kBarredMiss, kSevenOut };

// What changed, so that a screen can redraw it.
enum class Change { kLayout, kDice, kPoint, kPlayers, kShooter, kStatistics, kRun, kSettings, kEverything };

// Milliseconds since the machine was started, without its sleep; they begin anew after 49 days.
std::uint32_t MachineTick();

struct Host {
  virtual ~Host() = default;
  // Fills the answer. A host that can't ask gives the safe answer: No, else Cancel, else OK.
  virtual void ShowMessage(Game& game, MessageBox& box) = 0;
  // The work that a notice told of is done: it goes away, if it is still to be seen.
  virtual void EndNotice(Game&) {}
  // The settlement dialog of a seat that handles its bets by hand.
  virtual SettleAnswer AskSettlement(Game&, const SettleQuestion&) { return {}; }
  // Offered once a roll and once a statement. Gives way to user events when it is time to; returns whether
  // it did, so that open files are then as another program may read them.
  virtual bool Yield(Game&) { return false; }
  // The same behind work that took its time: the clock is looked at, however few the calls.
  virtual bool YieldByClock(Game& game) { return Yield(game); }
  // Waits in Auto-Roll for a little while, giving way to user events.
  virtual void Wait(Game& game) { Yield(game); }
  // A millisecond clock that only goes forward: the machine's own tick, counted since the machine's start and
  // never since the program's. Dice are seeded from it, and a clock that begins with the program would give
  // every evening the same few seeds.
  virtual std::uint32_t TickMilliseconds() = 0;
  // Date and time in the platform's short form, and as seconds since midnight.
  virtual std::string DateText() = 0;
  virtual std::string TimeText() = 0;
  virtual double SecondsSinceMidnight() = 0;
  // The date and time as a number: whole days since 1899-12-30, and the fraction of the day.
  virtual double DateTimeNumber() = 0;
  virtual void PlaySound(Game&, Sound) {}
  // A sound sample by file name; false when there is no such file or sounds are off.
  virtual bool PlaySoundFile(Game&, const std::string&) { return false; }
  virtual void Changed(Game&, Change) {}
  // The bankroll graph of pages is full: it begins anew with the next point, and its points are the previous
  // page.
  virtual void GraphPageFull(Game&) {}
  // A statement of a script was carried out with the steps viewer open.
  virtual void ShowStep(Game&, const ScriptStep&) {}
};

}  // namespace tessaryn
