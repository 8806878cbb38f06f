// What the hand does between two rolls, against models: any number of changes taken back gives the table bit
// for bit, and a roll settled ahead on a copy asks what the table then asks.
#include "play/bet_history.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "base/bet_catalogue.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/repeat_bets.h"
#include "play/setting_table.h"
#include "play/settlement_preview.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "support/test_host.h"

namespace tessaryn::test {
namespace {

constexpr int kPlayers[] = {2, 5, 8};

void Seat(TestTable& table, bool byHand) {
  table.Set("ShooterBetRule", "0");
  table.game->settings.MessageMask = 0;
  for (const int seat : kPlayers) {
    table.Join(seat, "Player" + std::string(1, static_cast<char>('A' + seat)), seat == 5 ? "300" : "90000");
    Handling& handling = table.State().seats[seat].handling;
    handling.AutoTakeOdds = handling.AutoLayOdds = seat == 8;
    if (!byHand) handling.WinHandling = handling.LoseHandling = 2;
  }
}

// A change of bets by any way a hand has.
void ChangeSomething(Game& game, std::mt19937& dice) {
  const auto pick = [&](int below) { return static_cast<int>(dice() % static_cast<unsigned>(below)); };
  const int seat = kPlayers[pick(3)];
  const int bet = 1 + pick(kBets);
  switch (pick(12)) {
    case 0:
      return void(RemoveBet(game, seat, bet));
    case 1:
      return CallAllBets(game, seat, pick(2) == 0);
    case 2:
      return void(CallBet(game, seat, bet, pick(2) == 0));
    case 3:
      return void(BuyPlaceBet(game, seat, kPlace4 + pick(6)));
    case 4:
      return TakeAllFullOdds(game, seat, pick(2) == 0);
    case 5:
      return void(RepeatBets(game, seat));
    case 6:
      return void(ChangeBet(game, seat, kFirstCheckStack + pick(100), Currency::Dollars(pick(9) - 4)));
    case 7:
      return void(PlaceBet(game, seat, pick(2) == 0 ? kPassLine : kDontPass, Currency::Dollars(10)));
    default:
      return void(PlaceBet(game, seat, bet, Currency::Dollars(pick(60) - 15)));
  }
}

TEST(BetHistory, AnyNumberOfUndosAndRedosGivesTheTableBitForBit) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 dice(seed);
  TestTable table;
  Seat(table, false);
  Game& game = *table.game;
  BetHistory history;
  for (int roll = 0; roll < 60; ++roll) {
    EXPECT_FALSE(CanUndoBets(history, game));
    Game atRoll = game;
    std::vector<TableState> model{table.State()};
    std::size_t at = 0;
    for (int step = 0; step < 30; ++step) {
      const int what = static_cast<int>(dice() % 4);
      if (what < 2) {
        AsBetStep(history, game, [&] { ChangeSomething(game, dice); });
        const bool touched = std::exchange(model[at].CallsTouched, table.State().CallsTouched);
        if (FirstDifference(model[at], table.State()).empty()) continue;
        model[at].CallsTouched = touched;
        model.resize(++at);
        model.push_back(table.State());
      } else {
        const bool back = what == 2;
        ASSERT_EQ(back ? UndoBets(game, history) : RedoBets(game, history),
                  back ? at > 0 : at + 1 < model.size());
        if (back ? at > 0 : at + 1 < model.size()) at += back ? std::size_t(-1) : 1;
      }
      ASSERT_EQ(FirstDifference(model[at], table.State()), "") << "roll " << roll << ", step " << step;
    }
    while (UndoBets(game, history)) table.Check("undo");
    atRoll.box = game.box;  // what was refused has been said
    atRoll.table.CallsTouched = model[0].CallsTouched;
    ASSERT_EQ(FirstDifference(atRoll, game), "") << "roll " << roll;
    while (at < model.size() - 1 && dice() % 8 != 0 && RedoBets(game, history)) {
    }
    RollDice(game);
  }
}

TEST(BetHistory, WhatElseHappensToTheTableIsNotUndone) {
  const struct {
    const char* what;
    void (*happens)(TestTable&);
    bool may;  // the bet may still be taken back
  } kEvents[] = {
      {"a roll", [](TestTable& t) { t.Roll(2, 3); }, false},
      {"a bet of a script", [](TestTable& t) { PlaceBet(*t.game, 2, kField, Money("5")); }, false},
      {"a rule", [](TestTable& t) { t.Set("BuyVigUpFront", "off"); }, false},
      {"a limit", [](TestTable& t) { t.Set("MinBetMain", "5"); }, false},
      {"the player leaves", [](TestTable& t) { LeaveTable(*t.game, 2); }, false},
      {"another comes", [](TestTable& t) { t.Join(1, "Zoe"); }, true},
      {"another is selected", [](TestTable& t) { SelectSeat(*t.game, 5); }, true},
      {"how fast runs go", [](TestTable& t) { SetThrottle(*t.game, 3); }, true},
      {"the money is gone", [](TestTable& t) { AtmTransaction(*t.game, 2, true, Money("89995")); }, false},
  };
  for (const auto& event : kEvents) {
    TestTable table;
    Seat(table, false);
    PlaceBet(*table.game, 2, kHard6, Money("10"));
    BetHistory history;
    AsBetStep(history, *table.game, [&] { RemoveBet(*table.game, 2, kHard6); });
    ASSERT_TRUE(CanUndoBets(history, *table.game));
    event.happens(table);
    EXPECT_EQ(UndoBets(*table.game, history), event.may) << event.what;
    table.Check(event.what);
  }
}

TEST(RepeatBets, MakesAgainWhatTheTableTakesAndTellsWhyWhenItTakesNothing) {
  TestTable table;
  Seat(table, false);
  Game& game = *table.game;
  const Handling byHand = {};
  table.State().seats[2].handling = byHand;
  table.Bet(2, kPassLine, "10");
  table.Roll(4, 4);
  table.Bet(2, kPassLineOdds, "20");
  table.Bet(2, kPlace4 + 2, "12");
  table.Bet(2, kField, "5");
  table.Roll(3, 4);
  game.settings.MessageMask = 15;
  table.host.boxes.clear();
  EXPECT_EQ(RepeatBets(game, 2), 3);
  EXPECT_TRUE(table.host.boxes.empty());
  const std::pair<int, const char*> kUp[] = {
      {kPassLine, "10"}, {kPassLineOdds, "0"}, {kPlace4 + 2, "12"}, {kField, "5"}};
  for (const auto& [bet, amount] : kUp) EXPECT_EQ(table.State().BetAmount(2, bet), Money(amount)) << bet;
  EXPECT_EQ(RepeatBets(game, 2), 0);
  EXPECT_TRUE(table.host.Said(
      Msg::kPassLineOddsRefused,
      {{"player", "PlayerC"}, {"bet", BetName(kPassLineOdds)}, {"flat", BetName(kPassLine)}}));
}

// Answers from the bet and its outcome alone, so that copy and table are answered alike.
SettleAnswer AnswerTo(const SettleQuestion& question) {
  SettleAnswer answer;
  answer.choice = 1 + (question.seat * 31 + question.bet * 7 + (question.won ? 3 : 0)) % 7;
  answer.adjustValue = Money("15");
  return answer;
}

TEST(ThrownTable, AsksAheadWhatTheTableThenAsks) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 dice(seed);
  struct LookingHost : TestHost {
    std::vector<SettleQuestion> foreseen;
    std::size_t asked = 0;
    std::int64_t all = 0;

    void PlaySound(Game& game, Sound sound) override {
      if (sound != Sound::kDice || !MayAskAboutBets(game)) return;
      foreseen.clear();
      asked = 0;
      ThrownTable(game).Settle([&](Game& copy, const SettleQuestion& question) {
        EXPECT_NE(&copy, &game);
        foreseen.push_back(question);
        return AnswerTo(question);
      });
    }
    SettleAnswer AskSettlement(Game&, const SettleQuestion& question) override {
      ++all;
      EXPECT_LT(asked, foreseen.size());
      if (asked < foreseen.size()) {
        EXPECT_TRUE(SameQuestion(foreseen[asked++], question)) << question.bet;
      }
      return AnswerTo(question);
    }
  } host;
  TestTable table;
  Seat(table, true);
  Game& game = *table.game;
  game.host = &host;
  for (int roll = 0; roll < 300; ++roll) {
    for (int n = 0; n < 12; ++n) ChangeSomething(game, dice);
    host.foreseen.clear();
    host.asked = 0;
    RollDice(game);
    ASSERT_EQ(host.asked, host.foreseen.size()) << "roll " << roll;
  }
  EXPECT_GT(host.all, 200);
  game.host = &table.host;
}

}  // namespace
}  // namespace tessaryn::test
