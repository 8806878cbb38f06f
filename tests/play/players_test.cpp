#include "play/players.h"

#include <gtest/gtest.h>

#include <random>

#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/shooter.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

TEST(PlayersJoin, BadNamesSeatsAndBankrollsChangeNothing) {
  struct Case {
    int seat;
    const char* name;
    const char* bankroll;
    std::string error;
  };
  const Case cases[] = {
      {2, "ANN", "500", MessageText<Msg::kNameTaken>(With<"name">("ANN"))},
      {2, " ann ", "500", MessageText<Msg::kNameTaken>(With<"name">("ann"))},
      {2, "123", "500", MessageText<Msg::kNameNumeric>()},
      {2, "passline", "500", MessageText<Msg::kNameReserved>(With<"name">("passline"))},
      {2, "Bob", "9999999.0001", MessageText<Msg::kBankrollTooHigh>(With<"limit">(kBankrollLimit))},
      {2, "Bob", "-9999999.0001", MessageText<Msg::kBankrollTooLow>(With<"limit">(kBankrollLimit))},
      {1, "Bob", "500", MessageText<Msg::kSeatTaken>(With<"seat">(1), With<"player">("Ann"))},
      {0, "Bob", "500", MessageText<Msg::kNoSuchSeat>(With<"seat">(0))},
      {9, "Bob", "500", MessageText<Msg::kNoSuchSeat>(With<"seat">(9))},
      {2, "  ", "500", MessageText<Msg::kNameMissing>()},
  };
  TestTable table;
  table.Join(1, "Ann");
  for (const Case& c : cases) {
    std::string error;
    EXPECT_FALSE(JoinPlayer(*table.game, c.seat, c.name, Money(c.bankroll), error));
    EXPECT_EQ(error, c.error);
    EXPECT_EQ(table.State().OccupiedSeats, 1);
    table.Check(c.name);
  }
  std::string error;
  EXPECT_TRUE(JoinPlayer(*table.game, 2, "Bob", Money("-9999999"), error)) << error;
  EXPECT_TRUE(JoinPlayer(*table.game, 3, "Cid", Money("9999999"), error)) << error;
  table.Check("bankrolls at the limits");
}

TEST(PlayersJoin, TheQuestionsRepeatUntilTheAnswersAreFit) {
  TestTable table;
  table.Join(1, "Ann");
  table.host.answers = {"yes", "Ann", "77", " Bob ", "10000000", "-10000000", "-5"};
  EXPECT_TRUE(AddPlayer(*table.game, 4));
  const auto& boxes = table.host.boxes;
  const test::Said expected[] = {
      {Msg::kAskAddPlayer, {}},
      {Msg::kAskPlayerName, {{"problem", ""}}},
      {Msg::kAskPlayerName, {{"problem", MessageText<Msg::kNameTaken>(With<"name">("Ann"))}}},
      {Msg::kAskPlayerName, {{"problem", MessageText<Msg::kNameNumeric>()}}},
      {Msg::kAskBuyIn, {{"player", "Bob"}, {"problem", ""}}},
      {Msg::kAskBuyIn, {{"problem", MessageText<Msg::kBankrollTooHigh>(With<"limit">(kBankrollLimit))}}},
      {Msg::kAskBuyIn, {{"problem", MessageText<Msg::kBankrollTooLow>(With<"limit">(kBankrollLimit))}}}};
  ASSERT_EQ(boxes.size(), std::size(expected));
  for (std::size_t i = 0; i < boxes.size(); ++i) EXPECT_TRUE(Says(boxes[i], expected[i]));
  EXPECT_EQ(table.State().seats[4].SeatName, "Bob");
  EXPECT_EQ(table.State().BankrollCurrent[4], Money("-5"));
  EXPECT_EQ(table.State().seats[4].SessionsLogName, table.folder.File("bob.slg"));
  table.Check("adding");
}

TEST(PlayersJoin, GivingUpAtAnyQuestionLeavesTheSeatOpen) {
  const std::deque<std::string> given[] = {{"no"}, {"yes", "cancel"}, {"yes", ""}, {"yes", "Bob", "cancel"}};
  for (const auto& answers : given) {
    TestTable table;
    table.host.answers = answers;
    EXPECT_FALSE(AddPlayer(*table.game, 4));
    EXPECT_EQ(table.State().OccupiedSeats, 0);
    EXPECT_EQ(table.State().ShooterSeat, 0);
  }
}

TEST(PlayersJoin, TheFirstPlayerHoldsTheDiceAndIsSelected) {
  TestTable table;
  table.Join(6, "Ann");
  table.Join(2, "Bob");
  EXPECT_EQ(table.State().ShooterSeat, 6);
  EXPECT_EQ(table.State().HandSeat, 6);
  EXPECT_EQ(table.State().SelectedSeat, 6);
  EXPECT_EQ(table.host.sounds, std::vector<Sound>{Sound::kComeOut});
}

TEST(PlayersRename, EveryRefusalKeepsTheOldName) {
  TestTable table;
  table.Join(1, "Ann");
  table.Join(2, "Bob");
  table.host.answers = {"BOB", "12", "ann", "yes"};
  EXPECT_TRUE(RenamePlayer(*table.game));
  const auto& boxes = table.host.boxes;
  ASSERT_EQ(boxes.size(), 3u) << "the lower-case name is unchanged, so its log keeps its name unasked";
  const std::string problems[] = {"", MessageText<Msg::kNameTaken>(With<"name">("BOB")),
                                  MessageText<Msg::kNameNumeric>()};
  for (std::size_t i = 0; i < boxes.size(); ++i)
    EXPECT_TRUE(Says(boxes[i], Msg::kAskNewName, {{"player", "Ann"}, {"problem", problems[i]}}));
  EXPECT_EQ(table.State().seats[1].SeatName, "ann");
  table.host.boxes.clear();
  table.host.answers = {"Cid", "yes"};
  EXPECT_TRUE(RenamePlayer(*table.game));
  EXPECT_TRUE(table.host.Said(Msg::kAskRenameSessionsLog, {{"player", "Cid"}}));
  EXPECT_EQ(table.State().seats[1].SessionsLogName, table.folder.File("cid.slg"));
  table.host.answers = {"cancel"};
  EXPECT_FALSE(RenamePlayer(*table.game));
  EXPECT_EQ(table.State().seats[1].SeatName, "Cid");
}

// --- The dice go round.

TEST(PlayersPass, TheDiceGoDownwardsAndRoundTheCorner) {
  TestTable table;
  table.Join(1, "Ann");
  table.Join(8, "Bob");
  table.Join(5, "Cid");
  EXPECT_EQ(table.State().ShooterSeat, 1);
  for (const int next : {8, 5, 1}) {
    PassDice(*table.game, kPassByUser);
    EXPECT_EQ(table.State().ShooterSeat, next);
    EXPECT_EQ(table.State().HandSeat, next) << "no roll yet, so the hand goes with the dice";
  }
  EXPECT_TRUE(table.host.boxes.empty());
}

TEST(PlayersPass, EveryReasonWhyTheyCannotPassIsTold) {
  struct Case {
    int players;
    int declining;  // of the others
    bool point;
    test::Said said;
  };
  const Case cases[] = {
      {0, 0, false, {Msg::kNobodyToPassTo, {{"others", false}}}},
      {1, 0, false, {Msg::kNobodyToPassTo, {{"others", true}}}},
      {2, 1, false, {Msg::kPlayerWontShoot, {{"player", "Bob"}}}},
      {3, 2, false, {Msg::kNobodyWillShoot, {}}},
      {8, 7, false, {Msg::kNobodyWillShoot, {}}},
      {2, 0, true, {Msg::kShootersLackLineBet, {{"count", 1}}}},
      {3, 1, true, {Msg::kShootersLackLineBet, {{"count", 1}}}},
      {4, 0, true, {Msg::kShootersLackLineBet, {{"count", 3}}}},
  };
  const char* names[] = {"Ann", "Bob", "Cid", "Dot", "Eve", "Fay", "Gus", "Hal"};
  for (const Case& c : cases) {
    TestTable table;
    for (int i = 0; i < c.players; ++i) table.Join(i + 1, names[i]);
    for (int i = 0; i < c.declining; ++i) table.State().seats[i + 2].handling.AutoPassDice = true;
    if (c.point) {
      table.Set("AllowPutBets", "off");
      table.Bet(1, kPassLine, "10");
      table.Roll(2, 2);
    }
    table.host.boxes.clear();
    PassDice(*table.game, kPassByUser);
    ASSERT_EQ(table.host.boxes.size(), 1u);
    EXPECT_TRUE(table.host.Said(c.said.id, c.said.arguments));
    EXPECT_EQ(table.State().ShooterSeat, c.players == 0 ? 0 : 1);
    PassDice(*table.game, kPassAfterSevenOut);
    EXPECT_EQ(table.host.boxes.size(), 1u) << "the seven-out asks nobody";
  }
}

TEST(PlayersPass, AHandStaysCreditedToWhoBeganIt) {
  TestTable table;
  table.Join(3, "Ann");
  table.Join(2, "Bob");
  table.Join(1, "Cid");
  table.Bet(3, kPassLine, "10");
  table.Bet(2, kPassLine, "10");
  table.Roll(2, 2);
  PassDice(*table.game, kPassByUser);
  EXPECT_TRUE(table.host.Said(Msg::kDicePassed, {{"from", "Ann"}, {"to", "Bob"}}));
  EXPECT_EQ(table.State().HandSeat, 3);
  table.State().seats[1].handling.AutoPassDice = true;
  PassDice(*table.game, kPassByUser);
  EXPECT_TRUE(table.host.Said(Msg::kDicePassedBack, {{"from", "Bob"}, {"to", "Ann"}}));
  PassDice(*table.game, kPassByUser);
  table.Roll(3, 4);
  EXPECT_EQ(table.State().PreviousHandSeat, 3);
  EXPECT_EQ(table.State().ShooterSeat, 2) << "Bob finished Ann's hand and now rolls his own";
  EXPECT_EQ(table.State().HandSeat, 2);
}

// --- Leaving.

TEST(PlayersLeave, TheQuestionNamesWhatIsAbandoned) {
  struct Case {
    bool line;
    int comes;
    test::Said said;
  };
  const Case cases[] = {
      {false, 0, {Msg::kAskRemovePlayer, {{"player", "Ann"}}}},
      {true, 0, {Msg::kAskAbandon, {{"passline", true}, {"come", 0}, {"total", Money("10")}}}},
      {false, 1, {Msg::kAskAbandon, {{"passline", false}, {"come", 1}, {"total", Money("5")}}}},
      {true, 2, {Msg::kAskAbandon, {{"passline", true}, {"come", 2}, {"total", Money("20")}}}},
  };
  for (const Case& c : cases) {
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Set("RecordEventsActive", "on");
    table.Join(1, "Ann");
    if (c.line) table.Bet(1, kPassLine, "10");
    table.Roll(2, 2);
    for (int come = 0; come < c.comes; ++come) {
      table.Bet(1, kCome, "5");
      come == 0 ? table.Roll(3, 3) : table.Roll(6, 2);
    }
    if (c.comes > 0) table.Roll(1, 1);
    EXPECT_FALSE(RemovePlayer(*table.game));
    EXPECT_TRUE(table.host.Said(c.said.id, c.said.arguments));
    table.host.answers = {"yes"};
    EXPECT_TRUE(RemovePlayer(*table.game));
    table.Check("leaving");
    EXPECT_EQ(table.State().OccupiedSeats, 0);
    EXPECT_EQ(table.State().ShooterSeat, 0);
    EXPECT_EQ(table.State().HandSeat, 0);
    EXPECT_EQ(table.State().SelectedSeat, 0);
  }
}

TEST(PlayersLeave, ThePassLineBetBeforeAPointIsNotAbandoned) {
  TestTable table;
  table.Join(1, "Ann");
  table.Bet(1, kPassLine, "10");
  EXPECT_FALSE(RemovePlayer(*table.game));
  EXPECT_TRUE(table.host.Said(Msg::kAskRemovePlayer, {{"player", "Ann"}}));
}

TEST(PlayersLeave, TheCashOutLineTellsWinLossAndWhatWasAbandoned) {
  struct Case {
    std::vector<std::pair<int, int>> rolls;
    const char* line;
  };
  const Case cases[] = {
      {{}, "    Ann cashed out with $1000 (broke even)"},
      {{{3, 4}}, "    Ann cashed out with $1010 ($10 win)"},
      {{{1, 1}}, "    Ann cashed out with $990 ($10 loss)"},
      {{{2, 2}}, "    Ann cashed out with $990 ($10 loss after $10 abandoned)"},
      {{{3, 4}, {2, 2}}, "    Ann cashed out with $1000 (broke even after $10 abandoned)"},
      {{{3, 4}, {5, 6}, {2, 2}}, "    Ann cashed out with $1010 ($10 win after $10 abandoned)"},
  };
  for (const Case& c : cases) {
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Join(1, "Ann");
    table.Bet(1, kPassLine, "10");
    for (const auto& [die1, die2] : c.rolls) table.Roll(die1, die2);
    table.Set("RecordEventsActive", "on");
    LeaveTable(*table.game, 1);
    table.Check("leaving");
    EXPECT_EQ(table.Log(), std::vector<std::string>{c.line});
  }
}

TEST(PlayersLeave, TheDiceAndTheSelectionGoOnDownwards) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  for (int seat : {1, 7, 4}) table.Join(seat, std::string("P") + static_cast<char>('a' + seat));
  LeaveTable(*table.game, 1);
  table.Check("leaving");
  EXPECT_EQ(table.State().ShooterSeat, 7);
  EXPECT_EQ(table.State().HandSeat, 7);
  EXPECT_EQ(table.State().SelectedSeat, 7);
  table.Roll(2, 2);
  table.State().seats[4].handling.AutoPassDice = true;
  LeaveTable(*table.game, 7);
  table.Check("leaving");
  EXPECT_EQ(table.State().ShooterSeat, 4) << "nobody is willing, yet somebody must shoot";
  EXPECT_EQ(table.State().HandSeat, 0) << "the hand was another's";
  table.Roll(3, 4);
  EXPECT_EQ(table.State().HandSeat, 4);
  EXPECT_EQ(table.State().PreviousHandSeat, 0);
}

// --- Moving.

TEST(PlayersMove, EverythingOfThePlayerGoesAlong) {
  TestTable table;
  table.Join(3, "Ann");
  table.Join(6, "Bob");
  table.Set("RecordEventsActive", "on");
  table.Bet(3, kPassLine, "10");
  table.Bet(6, kDontPass, "20");
  table.Bet(3, kFirstCheckStack + 7, "33.5");
  table.Roll(2, 2);
  table.Bet(3, kBuy4 + 2, "40");
  table.Bet(3, kLay4, "50");
  CallBet(*table.game, 3, kBuy4 + 2, false);
  table.Bet(3, kCome, "15");
  table.Roll(4, 4);
  std::string error;
  ASSERT_TRUE(MovePlayer(*table.game, 3, 1, error)) << error;
  table.Check("moving");
  TableState& state = table.State();
  EXPECT_EQ(state.ShooterSeat, 1);
  EXPECT_EQ(state.HandSeat, 1);
  EXPECT_EQ(state.SelectedSeat, 1);
  EXPECT_EQ(state.BetAmount(1, kPassLine), Money("10"));
  EXPECT_EQ(state.BetCommitted(1, kPassLine), Money("10"));
  EXPECT_EQ(state.BetAmount(1, kCome4 + 3), Money("15"));
  EXPECT_EQ(state.seats[1].ComeTravelAmount[3], Money("15"));
  EXPECT_EQ(state.BetAmount(1, kFirstCheckStack + 7), Money("33.5"));
  EXPECT_EQ(state.seats[1].BuyVigHeld[2], Money("2"));
  EXPECT_EQ(BetWorkingOf(*table.game, 1, kBuy4 + 2), -1);
  for (int bet = 1; bet < kBetRows; ++bet) EXPECT_EQ(state.BetAmount(3, bet), kZero);
  table.host.boxes.clear();
  table.Roll(1, 2);
  const std::vector<std::string> log = table.Log();
  for (const std::string& line : log) {
    EXPECT_EQ(line.find("removed $15 bet on Come"), std::string::npos)
        << "the move of the bet was told already";
    EXPECT_EQ(line.find("bet $15 on Come 8"), std::string::npos);
  }
  table.Roll(2, 2);
  EXPECT_EQ(state.BankrollCurrent[6], Money("980"));
  EXPECT_TRUE(table.host.boxes.empty());
}

TEST(PlayersMove, RefusalsNameTheSeat) {
  TestTable table;
  table.Join(1, "Ann");
  table.Join(2, "Bob");
  const std::tuple<int, int, const char*> cases[] = {{1, 2, "Seat 2 is taken by Bob."},
                                                     {1, 1, "Seat 1 is taken by Ann."},
                                                     {3, 4, "There is no player at seat 3."},
                                                     {1, 9, "There is no seat 9; seats are 1 to 8."},
                                                     {1, 0, "There is no seat 0; seats are 1 to 8."}};
  for (const auto& [from, to, text] : cases) {
    std::string error;
    EXPECT_FALSE(MovePlayer(*table.game, from, to, error));
    EXPECT_EQ(error, text);
  }
}

// --- All of it at random.

TEST(PlayersRandom, ComingAndGoingInTheMiddleOfPlayKeepsTheTableTogether) {
  for (unsigned seed = 1; seed <= 6; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto pick = [&random](int least, int most) {
      return std::uniform_int_distribution<int>(least, most)(random);
    };
    TestTable table;
    TableState& state = table.State();
    table.game->settings.MessageMask = 0;
    int names = 0;
    for (int step = 0; step < 1500 && !testing::Test::HasFailure(); ++step) {
      const int seat = pick(1, 8);
      std::string error;
      switch (pick(0, 9)) {
        case 0:
          if (JoinPlayer(*table.game, seat,
                         "Player" + std::string(1, static_cast<char>('a' + names % 26)) +
                             std::string(1, static_cast<char>('a' + names / 26 % 26)),
                         Currency::Dollars(pick(0, 3000)), error))
            ++names;
          break;
        case 1:
          if (pick(0, 2) == 0) LeaveTable(*table.game, seat);
          break;
        case 2:
          MovePlayer(*table.game, seat, pick(1, 8), error);
          break;
        case 3:
          RenameTo(*table.game, seat, "Name" + std::string(1, static_cast<char>('A' + pick(0, 25))), error);
          break;
        case 4:
          PassDice(*table.game, kPassByUser);
          break;
        case 5:
          if (IsOccupied(state, seat)) CallBet(*table.game, seat, pick(1, kBets), pick(0, 1) == 1);
          break;
        case 6:
        case 7:
          if (IsOccupied(state, seat))
            PlaceBet(*table.game, seat, pick(1, kBets), Currency::Dollars(pick(-60, 120)));
          break;
        default:
          table.Roll(pick(1, 6), pick(1, 6));
          break;
      }
      SelectSeat(*table.game, pick(1, 8));
      ASSERT_EQ(CheckConsistency(*table.game), "") << "step " << step;
      for (int open = 1; open <= kSeats; ++open)
        for (int bet = 1; bet < kBetRows && !IsOccupied(state, open); ++bet)
          EXPECT_EQ(state.BetAmount(open, bet), kZero);
    }
  }
}

}  // namespace
}  // namespace tessaryn
