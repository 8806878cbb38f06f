#include "stats/statistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "base/bet_catalogue.h"
#include "play/players.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "rules/session.h"
#include "rules/shooter.h"
#include "stats/roll_item_lists.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

// --- Gaps.

// Rolls of aces that are kept off for `gap` rolls, then come.
void RollAcesAfter(TestTable& table, int gap) {
  for (int i = 1; i < gap; ++i) table.Roll(6, 6);
  table.Roll(1, 1);
}

TEST(StatisticsGaps, ShortGapsHaveTheirCellsAndLongOnesAreSummed) {
  struct Case {
    int gap;
    int cell;
    int longSum;
  };
  for (const Case& c :
       {Case{1, 1, 0}, Case{2, 2, 0}, Case{199, 199, 0}, Case{200, 200, 200}, Case{201, 200, 201}}) {
    SCOPED_TRACE(c.gap);
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Roll(1, 1);
    RollAcesAfter(table, c.gap);
    const auto& gaps = table.game->stats.RollGapCounts[2];
    const int firstCell = 1;
    for (int cell = 0; cell < kGapCells; ++cell) {
      int expected = (cell == firstCell ? 1 : 0) + (cell == c.cell ? 1 : 0);
      if (cell == 0) expected = c.longSum;
      EXPECT_EQ(gaps[cell], expected) << "cell " << cell;
    }
    EXPECT_EQ(RollsSinceLast(table.game->stats, 2), 0);
    EXPECT_EQ(RollsSinceLast(table.game->stats, 12), c.gap == 1 ? 2 : 1);
  }
}

TEST(StatisticsItems, ARollCountsForItsFacesItsPairItsTotalAndItsGroups) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Roll(2, 5);
  const std::vector<int> expected{0, 7, 41, 46, 65, 76, 79, 88};
  for (int item = 0; item < kRollItems; ++item) {
    const bool counted = std::find(expected.begin(), expected.end(), item) != expected.end();
    EXPECT_EQ(RollCount(table.game->stats, kCurrentSession, 0, item), counted ? 1 : 0) << RollItemName(item);
  }
}

// --- Streaks of bets, sums and rolls since.

TEST(StatisticsBets, SumsExtremesAndTheLatestOfEachKind) {
  TestTable table;
  Game& game = *table.game;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  const auto field = [&](const char* amount, int die1, int die2) {
    table.Bet(1, kField, amount);
    table.Roll(die1, die2);
    RemoveBet(game, 1, kField);
  };
  field("10", 1, 1);  // wins 20
  field("4", 3, 4);   // loses 4
  field("7", 4, 5);   // wins 7
  table.Roll(6, 6);
  const auto stat = [&](StatTable which, int scope, StatKind kind) {
    return BetStat(game.stats, which, scope, 1, kField, kind);
  };
  for (const int scope : {kCurrentHand, kCurrentSession, kAllSessions}) {
    const Currency wagers[] = {Money("3"), Money("21"), Money("10"), Money("4"), Money("3"), Money("7")};
    const Currency wins[] = {Money("2"), Money("27"), Money("20"), Money("7"), Money("3"), Money("7")};
    const Currency losses[] = {Money("1"), Money("4"), Money("4"), Money("4"), Money("2"), Money("4")};
    for (int kind = kStatCount; kind <= kStatLastAmount; ++kind) {
      EXPECT_EQ(stat(kWagerStats, scope, static_cast<StatKind>(kind)), wagers[kind - 1])
          << scope << " " << kind;
      EXPECT_EQ(stat(kWinStats, scope, static_cast<StatKind>(kind)), wins[kind - 1]) << scope << " " << kind;
      EXPECT_EQ(stat(kLossStats, scope, static_cast<StatKind>(kind)), losses[kind - 1])
          << scope << " " << kind;
    }
    EXPECT_EQ(RollsSince(game.stats, scope, stat(kWinStats, scope, kStatLastRoll)), 1);
    EXPECT_EQ(RollsSince(game.stats, scope, stat(kLossStats, scope, kStatLastRoll)), 2);
  }
  EXPECT_EQ(RollsSince(game.stats, kCurrentSession, kZero), -1);
}

TEST(StatisticsBets, UpFrontVigIsWageredToo) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Bet(1, kLay4, "120");
  table.Roll(3, 4);
  const Statistics& stats = table.game->stats;
  EXPECT_EQ(BetStat(stats, kWagerStats, kCurrentSession, 1, kLay4, kStatTotal), Money("123"));
  EXPECT_EQ(BetStat(stats, kWinStats, kCurrentSession, 1, kLay4, kStatTotal), Money("57"));
}

TEST(StatisticsBets, SummedRowsAddEveryKindAndCanGoOn) {
  TestTable table;
  Game& game = *table.game;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Bet(1, kField, "5");
  table.Bet(1, kHard6, "3");
  table.Bet(1, kAllTall, "1");
  table.Roll(3, 4);
  SumBetStats(game.stats, 1, kCurrentSession, kField, kHard10, true);
  const auto row = [&](StatKind kind) {
    return game.stats.Bets[0][1][kCurrentHand].kinds[kLossStats][kind - 1];
  };
  EXPECT_EQ(row(kStatCount), Money("2"));
  EXPECT_EQ(row(kStatTotal), Money("8"));
  EXPECT_EQ(row(kStatHigh), Money("8"));
  SumBetStats(game.stats, 1, kCurrentSession, kAllTall, kAllTall, false);
  EXPECT_EQ(row(kStatTotal), Money("9"));
  SumBetStats(game.stats, 1, kCurrentSession, kAllTall, kAllTall, true);
  EXPECT_EQ(row(kStatTotal), Money("1"));
}

TEST(StatisticsBets, ComeTravelIsSummedAsTheBetResolves) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Roll(2, 2);
  table.Bet(1, kCome, "15");
  table.Roll(4, 2);
  EXPECT_EQ(table.game->stats.ComeTravelTotals[Slot(kCurrentSession, 1)][2], kZero);
  table.Roll(3, 3);
  for (const int scope : {kCurrentHand, kCurrentSession, kAllSessions})
    EXPECT_EQ(table.game->stats.ComeTravelTotals[Slot(scope, 1)][2], Money("15"));
  EXPECT_EQ(table.State().seats[1].ComeTravelAmount[2], kZero);
}

// --- The hand's note.

TEST(StatisticsNote, TellsWhoseHandItIs) {
  TestTable table;
  Game& game = *table.game;
  table.Set("ShooterBetRule", "0");
  table.Join(3, "Ann");
  table.Join(2, "Bob");
  table.Roll(2, 2);
  EXPECT_EQ(LastHandNote(game, kCurrentHand), "");
  EXPECT_EQ(LastHandNote(game, kLastHand), "");
  PassDice(game, kPassByUser);
  EXPECT_EQ(LastHandNote(game, kCurrentHand),
            "Although Bob is presently shooting the dice, the current hand is being credited to Ann who "
            "started the "
            "hand.\r\rThe dice were passed during the current hand.");
  LeaveTable(game, 3);
  EXPECT_EQ(
      LastHandNote(game, kCurrentHand),
      "Although Bob is presently shooting the dice, the current hand is being credited to another player who "
      "started the hand but is no longer at the table.\r\rThe dice were passed during the current hand.");
  table.Roll(3, 4);
  EXPECT_EQ(LastHandNote(game, kLastHand),
            "The last hand was shot by a player who is no longer at the table.");
}

// --- Everything against a recount.

struct Decision {
  int seat, bet, hand, session;
  Currency wagered, net;
  std::int64_t roll, allRoll;
};
struct RollRecord {
  int die1, die2, handSeat, hand, session;
  int comeOut, pass, miss;  // the number that it counts under, 0 none
};

// A journal of a random game, kept by looking at what each roll changed.
struct Journal {
  std::vector<Decision> decisions;
  std::vector<RollRecord> rolls;
  int hand = 0;
  int session = 0;
  std::int64_t sessionRolls = 0;
  std::int64_t handRolls = 0;
};

struct Naive {
  Currency kinds[kStatTables][6];
  void Count(int table, Currency amount, std::int64_t roll) {
    Currency* k = kinds[table];
    k[0] += Money("1");
    k[1] += amount;
    k[2] = std::max(k[2], amount);
    k[3] = k[3] == kZero ? amount : std::min(k[3], amount);
    k[4] = Currency::Dollars(roll);
    k[5] = amount;
  }
};

// The hand of the last-hand scope, or the session of the last-session scope, and what lies in it.
bool InScope(const Journal& journal, int scope, int hand, int session) {
  switch (scope) {
    case kCurrentHand:
      return hand == journal.hand && session == journal.session;
    case kLastHand:
      return hand == journal.hand - 1;
    case kCurrentSession:
      return session == journal.session;
    case kLastSession:
      return session == journal.session - 1;
    default:
      return true;
  }
}

void ExpectBets(const Game& game, const Journal& journal) {
  for (int scope = 0; scope < kScopes; ++scope)
    for (int seat = 1; seat <= 3; ++seat) {
      std::map<int, Naive> naive;
      for (const Decision& d : journal.decisions) {
        if (d.seat != seat || !InScope(journal, scope, d.hand, d.session)) continue;
        const std::int64_t roll = scope == kAllSessions ? d.allRoll : d.roll;
        naive[d.bet].Count(kWagerStats, d.wagered, roll);
        naive[d.bet].Count(d.net > kZero ? kWinStats : kLossStats, Abs(d.net), roll);
      }
      for (int bet = 1; bet <= kBets; ++bet)
        for (int table = 0; table < kStatTables; ++table)
          for (int kind = 1; kind <= 6; ++kind)
            ASSERT_EQ(BetStat(game.stats, static_cast<StatTable>(table), scope, seat, bet,
                              static_cast<StatKind>(kind)),
                      naive[bet].kinds[table][kind - 1])
                << "scope " << scope << " seat " << seat << " bet " << bet << " table " << table << " kind "
                << kind;
    }
}

void ExpectRolls(const Game& game, const Journal& journal) {
  for (int scope = 0; scope < kScopes; ++scope)
    for (int seat = 0; seat <= 3; ++seat) {
      std::int64_t items[kRollItems] = {};
      std::int32_t numbers[13][3] = {};
      std::map<int, std::int64_t> handRolls;
      std::int64_t tableRolls = 0;
      for (const RollRecord& r : journal.rolls) {
        if (!InScope(journal, scope, r.hand, r.session)) continue;
        ++tableRolls;
        if (seat != 0 && r.handSeat != seat) continue;
        ++handRolls[r.hand];
        for (int item = 0; item < kRollItems; ++item)
          items[item] += item == 0 || ItemHasPair(item, r.die1, r.die2);
        if (r.comeOut != 0) ++numbers[r.comeOut][kComeoutRolls];
        if (r.pass != 0) ++numbers[r.pass][kPasses];
        if (r.miss != 0) ++numbers[r.miss][kMisses];
      }
      const int slot = Slot(scope, seat);
      for (int item = 0; item < kRollItems; ++item)
        ASSERT_EQ(RollCount(game.stats, scope, seat, item), items[item])
            << "scope " << scope << " seat " << seat;
      for (int number = 2; number <= 12; ++number)
        for (int kind = 0; kind < 3; ++kind)
          ASSERT_EQ(game.stats.NumberCounts[slot][number][kind], numbers[number][kind])
              << "scope " << scope << " seat " << seat << " number " << number << " kind " << kind;
      ASSERT_EQ(game.stats.HandCount[slot], static_cast<std::int32_t>(handRolls.size()))
          << scope << " " << seat;
      ASSERT_EQ(PlayerRolls(game.stats, scope, seat), tableRolls) << "all were there from the first roll";
      std::int64_t most = 0;
      for (const auto& [hand, rolls] : handRolls) most = std::max(most, rolls);
      if (scope == kCurrentSession || scope == kAllSessions || scope == kLastSession) {
        ASSERT_EQ(game.stats.MostRollsInHand[slot], most) << scope << " " << seat;
      }
    }
}

// The rolls of the session between one coming of an item and the next.
void ExpectGaps(const Game& game, const Journal& journal) {
  for (int item = 2; item < kRollItems - 1; ++item) {  // the others are never counted
    std::int32_t gaps[kGapCells] = {};
    std::int32_t since = 0;
    for (const RollRecord& r : journal.rolls) {
      if (r.session != journal.session) continue;
      ++since;
      if (!ItemHasPair(item, r.die1, r.die2)) continue;
      if (since >= 200) gaps[0] += since;
      ++gaps[std::min(since, 200)];
      since = 0;
    }
    ASSERT_EQ(RollsSinceLast(game.stats, item), since) << RollItemName(item);
    ASSERT_TRUE(std::ranges::equal(game.stats.RollGapCounts[item], gaps)) << RollItemName(item);
  }
}

class RandomGame {
 public:
  explicit RandomGame(unsigned seed) : random_(seed) {
    table_.Set("ShooterBetRule", "0");
    table_.game->settings.MessageMask = 0;
    for (int seat = 1; seat <= 3; ++seat) {
      table_.Join(seat, std::string("P") + static_cast<char>('a' + seat), "500000");
      table_.State().seats[seat].handling.WinHandling = 1 + seat;
      table_.State().seats[seat].handling.LoseHandling = 1 + seat % 2;
    }
  }
  TestTable& Table() { return table_; }
  const Journal& Written() const { return journal_; }

  void Play(int rolls) {
    for (int i = 0; i < rolls; ++i) {
      for (int seat = 1; seat <= 3; ++seat)
        for (int bet = 0; bet < 3; ++bet)
          PlaceBet(*table_.game, seat, Pick(1, kBets), Currency::Dollars(Pick(1, 40)));
      RollOnce();
    }
  }
  void NextSession() {
    // A hand that has rolls ends with its session; one without is none.
    if (journal_.handRolls > 0) ++journal_.hand;
    if (journal_.sessionRolls > 0) ++journal_.session;
    journal_.handRolls = journal_.sessionRolls = 0;
    NewSession(*table_.game, true, true, true, 0);
  }

 private:
  int Pick(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }

  void RollOnce() {
    Game& game = *table_.game;
    const TableState& state = game.table;
    Currency wagered[4][kBets + 1];
    Currency totals[4][kBets + 1][2];
    for (int seat = 1; seat <= 3; ++seat)
      for (int bet = 1; bet <= kBets; ++bet) {
        wagered[seat][bet] = state.BetAmount(seat, bet);
        if (IsLay(bet)) wagered[seat][bet] += state.seats[seat].LayVigHeld[bet - kLay4];
        if (IsBuy(bet)) wagered[seat][bet] += state.seats[seat].BuyVigHeld[bet - kBuy4];
        for (const int table : {kWinStats, kLossStats})
          totals[seat][bet][table - 1] =
              BetStat(game.stats, static_cast<StatTable>(table), kAllSessions, seat, bet, kStatTotal);
      }
    RollRecord record{Pick(1, 6), Pick(1, 6), state.HandSeat, journal_.hand, journal_.session, 0, 0, 0};
    const int point = state.Point;
    const int total = record.die1 + record.die2;
    if (point == 0) {
      record.comeOut = total;
      if (total == 7 || total == 11) record.pass = total;
      if (total == 2 || total == 3 || total == 12) record.miss = total;
    } else {
      if (total == point) record.pass = point;
      if (total == 7) record.miss = point;
    }
    table_.Roll(record.die1, record.die2);
    journal_.rolls.push_back(record);
    ++journal_.sessionRolls;
    ++journal_.handRolls;
    for (int seat = 1; seat <= 3; ++seat)
      for (int bet = 1; bet <= kBets; ++bet)
        for (const int table : {kWinStats, kLossStats}) {
          const Currency gained =
              BetStat(game.stats, static_cast<StatTable>(table), kAllSessions, seat, bet, kStatTotal) -
              totals[seat][bet][table - 1];
          if (gained == kZero) continue;
          // The bet as it rode: a Come bet that won on its number was up before the roll.
          journal_.decisions.push_back({seat, bet, record.hand, record.session, wagered[seat][bet],
                                        table == kWinStats ? gained : -gained, journal_.sessionRolls,
                                        static_cast<std::int64_t>(journal_.rolls.size())});
        }
    if (point != 0 && total == 7) {
      ++journal_.hand;
      journal_.handRolls = 0;
    }
  }

  TestTable table_;
  std::mt19937 random_;
  Journal journal_;
};

TEST(StatisticsRandom, EveryScopeAgreesWithARecountOfTheGame) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomGame random(seed);
    for (const int rolls : {300, 1, 40, 200}) {
      random.Play(rolls);
      ExpectBets(*random.Table().game, random.Written());
      ExpectRolls(*random.Table().game, random.Written());
      ExpectGaps(*random.Table().game, random.Written());
      if (testing::Test::HasFatalFailure()) return;
      random.NextSession();
      random.Table().Check("a new session");
      ExpectBets(*random.Table().game, random.Written());
      ExpectRolls(*random.Table().game, random.Written());
      ExpectGaps(*random.Table().game, random.Written());
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(StatisticsSeats, AMoveTakesEveryCountAlong) {
  RandomGame random(9);
  random.Play(150);
  random.NextSession();
  random.Play(60);
  Game& game = *random.Table().game;
  const auto all = [&game](int seat) {
    std::vector<Currency> values;
    for (int scope = 0; scope < kScopes; ++scope) {
      for (int bet = 1; bet <= kBets; ++bet)
        for (int kind = 1; kind <= 6; ++kind)
          values.push_back(BetStat(game.stats, kWinStats, scope, seat, bet, static_cast<StatKind>(kind)));
      for (int item = 0; item < kRollItems; ++item)
        values.push_back(Currency::FromRaw(RollCount(game.stats, scope, seat, item)));
      values.push_back(game.stats.BankrollHigh[Slot(scope, seat)]);
      values.push_back(game.stats.BankrollLow[Slot(scope, seat)]);
      values.push_back(BankrollOf(game, scope, seat));
      values.push_back(Currency::FromRaw(PlayerRolls(game.stats, scope, seat)));
      for (const Currency& travel : game.stats.ComeTravelTotals[Slot(scope, seat)]) values.push_back(travel);
    }
    values.push_back(game.stats.BankrollRollSum[seat]);
    return values;
  };
  const std::vector<Currency> before = all(2);
  std::string error;
  ASSERT_TRUE(MovePlayer(game, 2, 7, error)) << error;
  EXPECT_EQ(all(7), before);
  random.Play(1);
  random.Table().Check("a roll after the move");
}

TEST(StatisticsSeats, WhoComesLaterHasSeenOnlyWhatCameAfter) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  for (int i = 0; i < 5; ++i) table.Roll(2, 1);
  table.Join(4, "Ann");
  for (int i = 0; i < 3; ++i) table.Roll(2, 1);
  EXPECT_EQ(PlayerRolls(table.game->stats, kCurrentSession, 4), 3);
  EXPECT_EQ(PlayerRolls(table.game->stats, kAllSessions, 4), 3);
  EXPECT_EQ(PlayerRolls(table.game->stats, kCurrentSession, 5), 8) << "an open seat sees every roll";
  EXPECT_EQ(PlayerRolls(table.game->stats, kCurrentSession, 0), 8);
}

TEST(StatisticsBankroll, ExtremesAndSumsFollowTheRolls) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Bet(1, kField, "100");
  table.Roll(3, 4);  // 900
  table.Bet(1, kField, "50");
  table.Roll(1, 1);  // 1000
  table.Roll(6, 6);  // 1100
  const Statistics& stats = table.game->stats;
  EXPECT_EQ(stats.BankrollLow[Slot(kCurrentSession, 1)], Money("900"));
  EXPECT_EQ(stats.BankrollHigh[Slot(kCurrentSession, 1)], Money("1100"));
  EXPECT_EQ(stats.BankrollRollSum[1], Money("3000"));
  EXPECT_EQ(BankrollOf(*table.game, kCurrentSession, 1), Money("1100"));
}

}  // namespace
}  // namespace tessaryn
