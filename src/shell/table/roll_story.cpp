#include "shell/table/roll_story.h"

#include <QCoreApplication>

#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {

namespace {

QString Told(const char* text) { return QCoreApplication::translate("Board", text); }

// A roll's words by its mark: the sentence, and the word under the total.
struct MarkWords {
  const char* sentence;
  const char* kind;
};
constexpr MarkWords kMarkWords[] = {
    {QT_TRANSLATE_NOOP("Board", "Roll %1: %2 (%3-%4), point stays %5."), nullptr},
    {QT_TRANSLATE_NOOP("Board", "Roll %1: %2 (%3-%4), the point is %2."),
     QT_TRANSLATE_NOOP("Board", "point")},
    {QT_TRANSLATE_NOOP("Board", "Roll %1: %2 (%3-%4), point made."),
     QT_TRANSLATE_NOOP("Board", "point made")},
    {QT_TRANSLATE_NOOP("Board", "Roll %1: %2 (%3-%4), seven-out."), QT_TRANSLATE_NOOP("Board", "seven-out")},
    {QT_TRANSLATE_NOOP("Board", "Roll %1: %2 (%3-%4), natural."), QT_TRANSLATE_NOOP("Board", "natural")},
    {QT_TRANSLATE_NOOP("Board", "Roll %1: %2 (%3-%4), craps."), QT_TRANSLATE_NOOP("Board", "craps")},
};
constexpr const char* kHard = QT_TRANSLATE_NOOP("Board", "hard");
constexpr const char* kEasy = QT_TRANSLATE_NOOP("Board", "easy");
constexpr const char* kTotals[] = {QT_TRANSLATE_NOOP("Board", "TWO"),   QT_TRANSLATE_NOOP("Board", "THREE"),
                                   QT_TRANSLATE_NOOP("Board", "FOUR"),  QT_TRANSLATE_NOOP("Board", "FIVE"),
                                   QT_TRANSLATE_NOOP("Board", "SIX"),   QT_TRANSLATE_NOOP("Board", "SEVEN"),
                                   QT_TRANSLATE_NOOP("Board", "EIGHT"), QT_TRANSLATE_NOOP("Board", "NINE"),
                                   QT_TRANSLATE_NOOP("Board", "TEN"),   QT_TRANSLATE_NOOP("Board", "ELEVEN"),
                                   QT_TRANSLATE_NOOP("Board", "TWELVE")};

const MarkWords& WordsOf(RollMark mark) { return kMarkWords[static_cast<int>(mark)]; }

}  // namespace

RollMark MarkOf(int pointBefore, int total) {
  if (pointBefore != 0) {
    if (total == 7) return RollMark::kSevenOut;
    return total == pointBefore ? RollMark::kPointMade : RollMark::kNone;
  }
  if (total == 7 || total == 11) return RollMark::kNatural;
  return total == 2 || total == 3 || total == 12 ? RollMark::kCraps : RollMark::kPointSet;
}

void RollHistory::Note(const Game& game) {
  const std::int64_t throws = Throws(game.stats);
  const std::int64_t session = SessionRolls(game.stats);
  if (session < size_) size_ = 0;
  if (throws == throws_) return;
  if (throws != throws_ + 1) size_ = 0;
  throws_ = throws;
  if (session == 0) return;
  const TableState& table = game.table;
  Add({table.Die1, table.Die2, table.PointBeforeRoll, table.HandSeat});
}

void RollHistory::Add(const KeptRoll& roll) {
  rolls_[next_] = {roll.Total(), MarkOf(roll.PointBefore, roll.Total()), roll};
  next_ = (next_ + 1) % kMost;
  if (size_ < kMost) ++size_;
}

void RollHistory::Keep(Game& game) const {
  ScreenState& screen = game.screen;
  screen.DiceHistory.clear();
  for (int back = size_ - 1; back >= 0; --back) screen.DiceHistory.push_back(Back(back).roll);
  screen.DiceHistoryThrows = throws_;
}

void RollHistory::Take(const Game& game) {
  *this = {};
  const ScreenState& screen = game.screen;
  if (screen.DiceHistory.empty() || screen.DiceHistoryThrows != Throws(game.stats)) return Note(game);
  throws_ = screen.DiceHistoryThrows;
  for (const KeptRoll& roll : screen.DiceHistory) Add(roll);
}

RollStory StoryOf(const Game& game, bool settled) {
  const TableState& table = game.table;
  RollStory story;
  story.roll = SessionRolls(game.stats);
  if (story.roll == 0) return story;
  story.die1 = table.Die1;
  story.die2 = table.Die2;
  story.pointBefore = table.PointBeforeRoll;
  story.mark = MarkOf(table.PointBeforeRoll, table.RollTotal);
  for (SeatId seat = 1; seat <= kSeats && settled; ++seat)
    if (IsOccupied(table, seat) && PlayerRolls(game.stats, kCurrentSession, seat) > 0)
      story.changes.push_back(
          {table.seats[seat].SeatName, table.BankrollAfterRoll[seat] - table.BankrollBeforeRoll[seat]});
  return story;
}

QString RollSentence(const RollStory& story) {
  if (story.roll == 0) return {};
  // Arguments that a sentence doesn't take are not given to it.
  const QString sentence = Told(WordsOf(story.mark).sentence)
                               .arg(ShownCount(story.roll))
                               .arg(story.die1 + story.die2)
                               .arg(story.die1)
                               .arg(story.die2);
  return story.mark == RollMark::kNone ? sentence.arg(story.pointBefore) : sentence;
}

QString ChangeText(Currency change) {
  return change > kZero ? QStringLiteral("+") + MoneyText(change) : MoneyText(change);
}

QString ResultLine(const RollStory& story) {
  QStringList changes;
  for (const SeatChange& seat : story.changes)
    changes += Told(QT_TRANSLATE_NOOP("Board", "%1 %2")).arg(FromCore(seat.name), ChangeText(seat.change));
  const QString sentence = RollSentence(story);
  return changes.isEmpty() ? sentence : sentence + QLatin1Char(' ') + changes.join(QLatin1String(", "));
}

QString TotalName(int total) { return total < 2 || total > 12 ? QString() : Told(kTotals[total - 2]); }

QString TotalKind(const RollStory& story) {
  if (story.roll == 0) return {};
  if (const char* kind = WordsOf(story.mark).kind; kind != nullptr) return Told(kind);
  const int total = story.die1 + story.die2;
  if (total % 2 != 0 || total < 4 || total > 10) return {};
  return Told(story.die1 == story.die2 ? kHard : kEasy);
}

QStringList TotalKinds() {
  QStringList kinds{Told(kHard), Told(kEasy)};
  for (const MarkWords& words : kMarkWords)
    if (words.kind != nullptr) kinds += Told(words.kind);
  return kinds;
}

QString HandTitle(const Game& game) {
  const int toCome = HandRolls(game.stats) == 0 ? 1 : 0;  // counted with its first roll
  return Told(QT_TRANSLATE_NOOP("Board", "Hand %1"))
      .arg(ShownCount(game.stats.HandCount[Slot(kCurrentSession, 0)] + toCome));
}

QString HandText(const Game& game, bool brief) {
  int made = 0;
  for (int number = 4; number <= 10; ++number)
    if (number != 7) made += game.stats.NumberCounts[Slot(kCurrentHand, 0)][number][kPasses];
  const int rolls = static_cast<int>(HandRolls(game.stats));
  const QString rolled =
      QCoreApplication::translate("Board", "%1 rolls", nullptr, PluralOf(rolls)).arg(ShownCount(rolls));
  if (brief) return rolled;
  const QString points =
      QCoreApplication::translate("Board", "%1 points made", nullptr, PluralOf(made)).arg(made);
  return Told(QT_TRANSLATE_NOOP("Board", "%1, %2")).arg(rolled, points);
}

std::vector<BetChange> BetChanges(const Game& game) {
  std::vector<BetChange> changes;
  const RollNumber roll = SessionRolls(game.stats);
  if (roll == 0) return changes;
  for (int i = 0; i < game.table.OccupiedSeats; ++i) {
    const SeatId seat = game.table.Seated[i];
    for (BetId bet = 1; bet <= kBets; ++bet) {
      const auto& kinds = game.stats.Bets[bet][seat][kCurrentHand].kinds;
      const auto& last = game.stats.Bets[bet][seat][kLastHand].kinds;
      for (const int table : {kWinStats, kLossStats}) {
        // A seven-out has moved its hand's figures on.
        for (const auto* scope : {&kinds, &last}) {
          if ((*scope)[table][kStatLastRoll - 1] != Currency::Dollars(roll)) continue;
          const Currency amount = (*scope)[table][kStatLastAmount - 1];
          changes.push_back({seat, bet, table == kWinStats ? amount : -amount});
          break;
        }
      }
    }
  }
  return changes;
}

}  // namespace tessaryn
