// What is told of a bet against the table: its chances and its edge come from settling it on every outcome,
// in every state that it can come through.
#include "play/bet_facts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <tuple>

#include "base/bet_catalogue.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "rules/bet_rules.h"
#include "state/bet_families.h"
#include "state/vig.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

// Pays whole on every bet, vig included.
const Currency kStake = Currency::Dollars(120);
constexpr int kSeat = 1;

// Where a bet stands: which it is by now, and what the hand has counted for it.
struct Standing {
  int bet = 0;
  int point = 0;
  int pointBefore = 0;
  std::uint32_t marks = 0;
  int fourRolls = 0;
  std::uint32_t fireMarks = 0;
  int fireCount = 0;
  int sharpShooter = 0;
  int rideTheLine = 0;
  auto operator<=>(const Standing&) const = default;
};

class Settler {
 public:
  Settler() {
    table_.Join(kSeat, "Ann", "5000");
    for (const auto& [name, value] : {std::pair{"ShooterBetRule", "0"},
                                      {"AllowNegativeBankroll@1", "on"},
                                      {"MessageMask", "0"},
                                      {"MaxBet", "100000"},
                                      {"WinHandling@1", "1"},
                                      {"LoseHandling@1", "1"}})
      Set(name, value);
  }
  void Set(std::string name, const std::string& value) {
    const auto at = name.find('@');
    table_.Set(name.substr(0, at), value, at == std::string::npos ? 0 : 1);
    empty_ = std::make_unique<TableState>(table_.State());
  }
  Game& game() { return *table_.game; }

  void Put(const Standing& standing) {
    TableState& table = table_.State();
    table = *empty_;
    table.Point = standing.point;
    table.PointBeforeRoll = standing.pointBefore;
    table.NumberMarks = standing.marks;
    table.FourRollCount = standing.fourRolls;
    table.FireMarks = standing.fireMarks;
    table.FireCount = standing.fireCount;
    table.SharpShooterCount = standing.sharpShooter;
    table.RideTheLineCount = standing.rideTheLine;
    SetBetAmount(game(), kSeat, standing.bet, kStake);
    table.seats[kSeat].BetWorking.byDefault = kAllTableBets;
    RecomputeVig(game());
  }
  // What the dice bring, in dollars; where nothing, the standing that they leave.
  double Roll(int die1, int die2, Standing& next) {
    const Currency before = table_.State().BankrollCurrent[kSeat];
    table_.State().ManualDie1 = die1;
    table_.State().ManualDie2 = die2;
    table_.State().ManualRollPending = true;
    RollDice(game());
    const TableState& table = table_.State();
    int bet = 0;
    table.seats[kSeat].SeatBets.ForEach([&](int up) { bet = up; });
    const bool line =
        FamilyRowOf(next.bet).decidedBy == DecidedBy::kLine && next.bet != kCome && next.bet != kDontCome;
    next = {bet, next.point};
    // What the bet doesn't ask about goes on as it was, or there were no end of standings.
    const bool hand = FamilyRowOf(bet).decidedBy == DecidedBy::kHand;
    if (line || (hand && bet >= kPoint7)) next.point = table.Point;
    if (bet == kPoint7 || bet == kSevenPoint7) next.pointBefore = table.PointBeforeRoll;
    if (bet <= kMakeAll && hand) next.marks = table.NumberMarks;
    if (bet == kFourRolls) next.fourRolls = table.FourRollCount;
    if (bet == kFire) {
      next.fireMarks = table.FireMarks;
      next.fireCount = table.FireCount;
    }
    if (bet == kSharpShooter) next.sharpShooter = std::min(table.SharpShooterCount, kSharpShooterRows);
    if (bet == kRideTheLine) next.rideTheLine = std::min(table.RideTheLineCount, kRideTheLineRows);
    return (table.BankrollCurrent[kSeat] - before).ToDouble();
  }

 private:
  test::TestTable table_;
  std::unique_ptr<TableState> empty_;
};

struct Branches {
  double net = 0;    // in 36ths of a dollar
  double stays = 0;  // in 36ths
  std::vector<std::pair<std::size_t, double>> to;
};

// All standings from the first on, each with what its 36 rolls bring.
class Course {
 public:
  Course(Settler& settler, const Standing& first)
      : settler_(settler), oneRoll_(FamilyRowOf(first.bet).decidedBy == DecidedBy::kOneRoll) {
    Visit(first);
    for (std::size_t at = 0; at < standings_.size(); ++at) Settle(at);
  }
  // The mean of the decision that the first standing leads to.
  double Mean() const {
    std::vector<double> means(standings_.size());
    for (double change = 1; change > 1e-12;) {
      change = 0;
      for (std::size_t at = means.size(); at-- > 0;) {
        double sum = branches_[at].net;
        for (const auto& [to, weight] : branches_[at].to) sum += weight * means[to];
        // Every roll decides a bet on one, also where it brings nothing.
        const double decides = oneRoll_ ? 36 : 36 - branches_[at].stays;
        const double mean = decides > 0 ? sum / decides : 0;
        change = std::max(change, std::abs(mean - means[at]));
        means[at] = mean;
      }
    }
    return means[0];
  }

 private:
  std::size_t Visit(const Standing& standing) {
    const auto [found, isNew] = places_.emplace(standing, standings_.size());
    if (isNew) standings_.push_back(standing);
    return found->second;
  }
  void Settle(std::size_t at) {
    const Standing standing = standings_[at];
    settler_.Put(standing);
    const RollChances told = ChancesOf(settler_.game(), kSeat, standing.bet);
    RollChances found;
    Branches branches;
    for (int die1 = 1; die1 <= 6; ++die1)
      for (int die2 = die1; die2 <= 6; ++die2) {
        const double weight = die1 == die2 ? 1 : 2;
        settler_.Put(standing);
        Standing next = standing;
        const double net = settler_.Roll(die1, die2, next);
        if (net != 0) {
          (net > 0 ? found.win : found.lose) += weight;
          branches.net += weight * net;
        } else if (next == standing) {
          branches.stays += weight;
        } else {
          branches.to.emplace_back(Visit(next), weight);
        }
      }
    branches_.push_back(std::move(branches));
    EXPECT_NEAR(told.win, found.win, 1e-9) << BetName(standing.bet) << ", point " << standing.point;
    EXPECT_NEAR(told.lose, found.lose, 1e-9) << BetName(standing.bet) << ", point " << standing.point;
  }

  Settler& settler_;
  bool oneRoll_;
  std::map<Standing, std::size_t> places_;
  std::vector<Standing> standings_;
  std::vector<Branches> branches_;
};

double MeanOf(Settler& settler, int bet) {
  const DecidedBy decidedBy = FamilyRowOf(bet).decidedBy;
  const bool lineOdds = decidedBy == DecidedBy::kLine && IsOdds(bet);
  if (!lineOdds) {
    const bool comeOut =
        decidedBy == DecidedBy::kLine ? bet == kPassLine || bet == kDontPass : decidedBy == DecidedBy::kHand;
    return Course(settler, {bet, comeOut ? 0 : 6}).Mean();
  }
  // Over the points as they are set.
  double sum = 0;
  for (const int number : kBoxNumbers)
    sum += (6 - std::abs(7 - number)) * Course(settler, {bet, number}).Mean();
  return sum / 24;
}

void ExpectEveryBetAsTold(Settler& settler) {
  for (int bet = 1; bet <= kBets; ++bet) {
    SCOPED_TRACE(BetName(bet));
    const double mean = MeanOf(settler, bet);
    settler.Put({bet, 6});
    const BetTerms terms = BetTermsOf(settler.game(), kSeat, bet);
    const double vig = VigUpFront(settler.game(), bet) ? terms.vigAmount.ToDouble() : 0;
    EXPECT_NEAR(terms.edge, -100 * mean / (kStake.ToDouble() + vig), 2e-4);
    EXPECT_FALSE(terms.wins.Empty() || terms.loses.Empty() || terms.kind.Empty());
    EXPECT_EQ(terms.vig.Empty(), !HasVig(bet));
    // Every hole is filled.
    for (const FactText& text : TipFacts(terms)) EXPECT_EQ(InEnglish(text).find("%1"), std::string::npos);
  }
}

TEST(BetFacts, ChancesAndEdgeAreThoseOfTheTable) {
  Settler settler;
  ExpectEveryBetAsTold(settler);
}

TEST(BetFacts, ChancesAndEdgeFollowTheRulesInForce) {
  Settler settler;
  for (const auto& [name, value] : {std::pair{"BarNumber", "2"},
                                    {"BuyVigUpFront", "off"},
                                    {"LayVigUpFront", "off"},
                                    {"FieldPayoffs.21", "3 to 1"},
                                    {"FieldPayoffs.5", "0 to 1"},
                                    {"PayoffTable.45", "3 to 2"},
                                    {"PayoffTable.48", "6 to 5"},
                                    {"PayoffTable.33", "1 to 1"},
                                    {"FirePayoffs.3", "10 to 1"},
                                    {"RideTheLinePayoffs.12", "500 to 1"},
                                    {"MidwayPayoffs.3", "3 to 2"}})
    settler.Set(name, value);
  ExpectEveryBetAsTold(settler);
}

TEST(BetFacts, TheLineTellsTheBetAsItStands) {
  test::TestTable table;
  table.Join(3, "Ann", "500");
  Game& game = *table.game;
  const auto line = [&](int bet) { return InEnglish(PointerFacts(BetTermsOf(game, 3, bet), true), ", "); };
  table.Bet(3, kPassLine, "10");
  table.Roll(4, 4);
  table.Bet(3, kPlace4 + 2, "12");
  EXPECT_EQ(line(kPlace4 + 2), "Place 6: 12, pays 7 to 6, minimum 1, may still be bet: 478, edge 1.52%");
  EXPECT_EQ(
      line(kDontPass),
      "Don't Pass: 0, pays 1 to 1, minimum 1, may still be bet: 0, edge 1.40%, not now: You may not make or "
      "increase a Don't Pass bet while a point is established.");
  table.Set("MaxBet", "12");
  EXPECT_TRUE(line(kPlace4 + 2).ends_with("not now: The maximum Place 6 bet is $12")) << line(kPlace4 + 2);
  table.Set("UseBig68", "off");
  EXPECT_TRUE(line(kBig6).ends_with("not now: Table not configured for Big 6 bets.")) << line(kBig6);
  EXPECT_EQ(InEnglish(BetTermsOf(game, 3, kWorld).loses), "any other roll, but not on 7");
  EXPECT_EQ(InEnglish(TipFacts(BetTermsOf(game, 3, kHop13)), "\n"),
            "Hop 13: one-roll bet\nWins on: 3-1 on the next roll\nLoses on: any other roll\nPays: 15 to 1\n"
            "Next roll: wins 2, loses 34 in 36\nHouse edge: 11.11% of the bet");
}

}  // namespace
}  // namespace tessaryn
