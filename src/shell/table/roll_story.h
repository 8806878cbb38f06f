// What a roll did, in words and marks: from the state of the table alone.
#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "state/screen_state.h"

namespace tessaryn {

struct Game;

// What a roll meant for the line.
enum class RollMark { kNone, kPointSet, kPointMade, kSevenOut, kNatural, kCraps };
// pointBefore: 0 for a come-out roll.
RollMark MarkOf(int pointBefore, int total);

struct RolledOnce {
  int total = 0;  // 0 none
  RollMark mark = RollMark::kNone;
  KeptRoll roll;
};

// The last rolls of a session, noted while it is played; all of a run at full speed too, so noting one costs
// next to nothing.
class RollHistory {
 public:
  static constexpr int kMost = 20;
  // The roll that the table shows, unless it has been noted. Rolls that nobody noted leave no gap: the
  // history begins anew, as it does with a session.
  void Note(const Game& game);
  // As the game keeps it for its file, and back: of a game without one the roll that its table shows.
  void Keep(Game& game) const;
  void Take(const Game& game);
  int Size() const { return size_; }
  // 0 the newest. Requires back < Size().
  const RolledOnce& Back(int back) const { return rolls_[(next_ + kMost - 1 - back) % kMost]; }

 private:
  void Add(const KeptRoll& roll);

  std::array<RolledOnce, kMost> rolls_;
  int next_ = 0;
  int size_ = 0;
  std::int64_t throws_ = 0;  // of the table when the newest was noted
};

struct SeatChange {
  std::string name;
  Currency change;  // of the bankroll, by the roll
};

struct RollStory {
  RollNumber roll = 0;  // of the session; 0 there was none
  int die1 = 0;
  int die2 = 0;
  int pointBefore = 0;
  RollMark mark = RollMark::kNone;
  std::vector<SeatChange> changes;  // of the players who were there; empty while bets are being settled
};
// settled: the roll is over, scripts included.
RollStory StoryOf(const Game& game, bool settled);

// "Roll 37: 6 (4-2), point stays 8."
QString RollSentence(const RollStory& story);
// "+14", "-10", "0".
QString ChangeText(Currency change);
// Both with all changes: "Roll 37: 6 (4-2), point stays 8. Ann +14, Bo -10"
QString ResultLine(const RollStory& story);

// "SIX", and below it "easy", "natural", "point made".
QString TotalName(int total);
QString TotalKind(const RollStory& story);
// All that TotalKind may say, for its room.
QStringList TotalKinds();

// "Hand 4", and "4 rolls, 0 points made".
QString HandTitle(const Game& game);
QString HandText(const Game& game, bool brief);

// What was won and lost by the last roll, bet by bet.
struct BetChange {
  SeatId seat = 0;
  BetId bet = 0;
  Currency change;
};
std::vector<BetChange> BetChanges(const Game& game);

}  // namespace tessaryn
