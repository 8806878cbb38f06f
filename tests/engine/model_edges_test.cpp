// The second statement of the rules is itself checked: against the order of settlement, and against what
// every bet is worth by arithmetic.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <set>

#include "engine/edge_table.h"
#include "engine/rules_model.h"

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

// Every bet made at every chance, in the stake of the edge table.
void BetAll(RulesModel& m, int seat, const int (&stakes)[94]) {
  const auto fill = [&](int bet) {
    if (m.BetAmount[seat][bet] == kZero) ChangeBet(m, seat, bet, Currency::Dollars(stakes[bet]));
  };
  for (int bet = 1; bet <= kLastBet; ++bet)
    if (bet < 7 || bet > 30) fill(bet);
  for (int bet = 13; bet <= 30; ++bet)
    if ((bet <= 18 || bet >= 25) && m.BetAmount[seat][bet - 6] > kZero) fill(bet);
}

TEST(ModelEdges, EveryBetIsWorthItsArithmetic) {
  auto model = std::make_unique<RulesModel>();
  ResetModel(*model);
  model->ShooterBetRule = 0;
  model->AllowPutBets = false;  // a Come bet comes down once it has won
  AddPlayer(*model, 3, kZero);
  model->AllowNegativeBankroll[3] = true;
  model->WinHandling[3] = model->LoseHandling[3] = 1;
  for (int bet = 1; bet <= kLastBet; ++bet) model->BetDefaultWorking[3][bet] = 1;

  int stakes[94] = {};
  for (int bet = 1; bet <= kLastBet; ++bet) stakes[bet] = edges::EdgeOf(bet).stake;

  std::mt19937_64 random(20260731);
  const auto face = [&random] { return static_cast<int>((random() >> 32) * 6 >> 32) + 1; };
  double count[94] = {};
  double sum[94] = {};
  for (int roll = 0; roll < 300'000; ++roll) {
    BetAll(*model, 3, stakes);
    const int die1 = face();
    ASSERT_TRUE(Roll(*model, die1, face()));
    for (const Decision& decision : model->Decisions) {
      ++count[decision.bet];
      sum[decision.bet] += decision.net.ToDouble();
    }
  }
  EXPECT_EQ(CheckModel(*model), "");
  for (int bet = 1; bet <= kLastBet; ++bet) {
    const edges::BetEdge edge = edges::EdgeOf(bet);
    ASSERT_GT(count[bet], 500) << bet;
    const double error = std::sqrt(edge.variance / count[bet]);
    EXPECT_NEAR(sum[bet] / count[bet], edge.mean, 4 * error) << "bet " << bet;
  }
}

}  // namespace
}  // namespace tessaryn::model
