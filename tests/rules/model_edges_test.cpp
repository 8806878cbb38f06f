// The second statement of the rules is itself checked: against the order of settlement, and against what
// every bet is worth by arithmetic.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <random>
#include <set>
#include <vector>

#include "play/auto_roll.h"
#include "play/players.h"
#include "play/start_up.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/edge_table.h"
#include "rules/rules_model.h"
#include "state/game.h"
#include "stats/statistics.h"
#include "support/places.h"

namespace tessaryn::model {
namespace {

std::multiset<int> Decided(const VisitOrder& order, const RollCase& roll, int sign) {
  std::multiset<int> bets;
  for (const auto& group : order)
    for (int bet : group)
      if (EffectOf(bet, roll) * sign > 0) bets.insert(bet);
  return bets;
}

// A bet that the roll decides but that no pass visits would never be paid; one visited twice, twice.
TEST(ModelOrder, EveryDecisionIsVisitedOnce) {
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2)
      for (int point : {0, 4, 5, 6, 8, 9, 10})
        for (int twoAgo : {0, 4})
          for (int bar : {2, 12}) {
            const RollCase roll{die1, die2, point, twoAgo, bar};
            const int total = die1 + die2;
            VisitOrder losers = LosersByTotal(total);
            for (const auto& group : LosersAlways()) losers.push_back(group);
            VisitOrder winners = WinnersByTotal(total);
            if (total == point) {
              for (int bet : {46, 47}) losers.push_back({bet});
              for (int bet : {43, 44}) winners.push_back({bet});
            }
            for (int bet : {88, 89}) losers.push_back({bet}), winners.push_back({bet});
            const auto lost = Decided(losers, roll, -1);
            const auto won = Decided(winners, roll, 1);
            for (int bet = 1; bet <= kLastBet; ++bet) {
              const int effect = EffectOf(bet, roll);
              if (bet == 49 || bet == 65 || bet == 66) continue;  // won among the losers
              EXPECT_EQ(lost.count(bet), effect < 0 ? 1u : 0u)
                  << bet << " on " << die1 << die2 << " " << point;
              EXPECT_EQ(won.count(bet), effect > 0 ? 1u : 0u)
                  << bet << " on " << die1 << die2 << " " << point;
            }
          }
}

int Stake(int bet) {
  static const std::vector<int> stakes = [] {
    std::vector<int> table(94);
    for (int i = 1; i <= kLastBet; ++i) table[i] = edges::EdgeOf(i).stake;
    return table;
  }();
  return stakes[bet];
}

// Every bet made at every chance, in the stake of the edge table. amount: what is up on a bet; bet: asks for
// a change.
template <typename Amount, typename Bet>
void BetAll(Amount&& amount, Bet&& bet) {
  const auto fill = [&](int number) {
    if (amount(number) == kZero) bet(number, Currency::Dollars(Stake(number)));
  };
  for (int number = 1; number <= kLastBet; ++number)
    if (number < 7 || number > 30) fill(number);
  for (int odds = 13; odds <= 30; ++odds)
    if ((odds <= 18 || odds >= 25) && amount(odds - 6) > kZero) fill(odds);
}

struct Result {
  double count = 0;
  double sum = 0;
};

void ExpectEdge(int bet, Result result) {
  const edges::BetEdge edge = edges::EdgeOf(bet);
  ASSERT_GT(result.count, 500) << bet;
  EXPECT_NEAR(result.sum / result.count, edge.mean, 4 * std::sqrt(edge.variance / result.count))
      << "bet " << bet << ", decided " << result.count << " times";
}

struct Dice {
  std::mt19937_64 random;
  int Face() { return static_cast<int>((random() >> 32) * 6 >> 32) + 1; }
};

// TESSARYN_EDGE_ROLLS sets the length of both runs.
long RollsWanted(long usual) {
  const char* text = std::getenv("TESSARYN_EDGE_ROLLS");
  return text != nullptr ? std::atol(text) : usual;
}

TEST(ModelEdges, PlainRulesPayWhatTheBetsAreWorth) {
  auto m = std::make_unique<RulesModel>();
  ResetModel(*m);
  m->ShooterBetRule = 0;
  m->AllowPutBets = false;  // a Come bet comes down once it has won
  AddPlayer(*m, 3, kZero);
  m->AllowNegativeBankroll[3] = true;
  m->WinHandling[3] = m->LoseHandling[3] = 1;
  for (int bet = 1; bet <= kLastBet; ++bet) m->BetDefaultWorking[3][bet] = 1;

  Dice dice{std::mt19937_64(20260731)};
  Result results[94];
  for (long roll = 0; roll < RollsWanted(250'000); ++roll) {
    BetAll([&](int bet) { return m->BetAmount[3][bet]; },
           [&](int bet, Currency stake) { ChangeBet(*m, 3, bet, stake); });
    const int die1 = dice.Face();
    ASSERT_TRUE(Roll(*m, die1, dice.Face()));
    for (const Decision& decision : m->Decisions) {
      ++results[decision.bet].count;
      results[decision.bet].sum += decision.net.ToDouble();
    }
  }
  EXPECT_EQ(CheckModel(*m), "");
  for (int bet = 1; bet <= kLastBet; ++bet) ExpectEdge(bet, results[bet]);
}

struct SilentHost : Host {
  void ShowMessage(Game&, MessageBox& box) override { box.MsgResult = kResultOk; }
  std::uint32_t TickMilliseconds() override { return 0; }
  std::string DateText() override { return "1/1/2001"; }
  std::string TimeText() override { return "12:00:00"; }
  double SecondsSinceMidnight() override { return 43'200; }
  double DateTimeNumber() override { return 36'892.5; }
};

TEST(ModelEdges, TablePaysWhatTheBetsAreWorth) {
  SilentHost host;
  const auto game = StartGame(host, test::kBinFolder, ::testing::TempDir());
  game->settings.ShooterBetRule = 0;
  game->settings.AllowPutBets = false;
  game->settings.MessageMask = 0;
  std::string error;
  ASSERT_TRUE(JoinPlayer(*game, 3, "Zebedee", kZero, error)) << error;
  TableState& table = game->table;
  table.seats[3].AllowNegativeBankroll = true;
  table.seats[3].handling.WinHandling = table.seats[3].handling.LoseHandling = 1;
  table.seats[3].BetDefaultWorking = kAllTableBets;

  Dice dice{std::mt19937_64(31072026)};
  for (long roll = 0; roll < RollsWanted(10'000'000); ++roll) {
    BetAll([&](int bet) { return table.BetAmount(3, bet); },
           [&](int bet, Currency stake) { ChangeBet(*game, 3, bet, stake); });
    table.ManualDie1 = dice.Face();
    table.ManualDie2 = dice.Face();
    table.ManualRollPending = true;
    RollDice(*game);
    // A long run loses more than the limit of a bankroll.
    if (table.BankrollCurrent[3] < Currency::Dollars(-5'000'000))
      AtmTransaction(*game, 3, false, Currency::Dollars(5'000'000));
  }
  ASSERT_EQ(SessionRolls(game->stats), RollsWanted(10'000'000));
  EXPECT_EQ(CheckConsistency(*game), "");
  const auto stat = [&](StatTable kind, int bet, tessaryn::StatKind which) {
    return BetStat(game->stats, kind, kCurrentSession, 3, bet, which).ToDouble();
  };
  for (int bet = 1; bet <= kLastBet; ++bet)
    ExpectEdge(bet, {stat(kWagerStats, bet, kStatCount),
                     stat(kWinStats, bet, kStatTotal) - stat(kLossStats, bet, kStatTotal)});
}

}  // namespace
}  // namespace tessaryn::model
