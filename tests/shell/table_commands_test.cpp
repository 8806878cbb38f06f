// What the pointer's line promises is what a click gives; and a bet moves whole or not at all.
#include "shell/table/table_commands.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "base/bet_catalogue.h"
#include "rules/bet_rules.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_painter.h"
#include "shell_table.h"

namespace tessaryn {
namespace {

using test::Money;

// What a line says may still be bet; below 0 when it says nothing of it.
Currency ToldRoom(const QString& line) {
  const QString before = "may still be bet: ";
  const auto at = line.indexOf(before);
  return at < 0 ? -kBankrollLimit : ParseMoney(ToCore(line.mid(at + before.size()).section(", ", 0, 0)));
}

class RandomTable {
 public:
  explicit RandomTable(unsigned seed) : random_(seed) {
    Settings& settings = game.settings;
    settings.ShooterBetRule = 0;
    settings.UseBig68 = Chance(0.8);
    settings.SmallTallEnabled = Chance(0.8);
    settings.CheckValue[1] = Pick({"1", "1", "0.5", "5"});
    for (const int seat : {2, 5}) table.Join(seat, seat == 2 ? "Ann" : "Bo", "3000");
    for (SeatState& seat : game.table.seats) seat.handling.WinHandling = seat.handling.LoseHandling = 2;
    for (int n = 0; n < 6; ++n) AnyRules();
  }

  void Step() {
    AnyRules();
    game.table.SelectedSeat = Chance(0.5) ? 2 : 5;
    if (Chance(0.3)) table.Roll(1 + Below(6), 1 + Below(6));
    if (Chance(0.5)) {
      // A point is on for longer, with bets that need one.
      const int seat = game.table.SelectedSeat;
      PlaceBet(game, seat, Chance(0.5) ? kPassLine : kDontPass, Currency::Dollars(5 + Below(30)));
    }
    Click(AnyArea(), Currency::Dollars(1 + Below(120)));
  }

  // The promise for an area, and a click of just that amount.
  void CheckArea() {
    const int seat = game.table.SelectedSeat;
    const int bet = MeantBet(game, AnyArea());
    const Currency told = ToldRoom(PointerText(game, table.commands, bet));
    ASSERT_GE(told, kZero) << BetName(bet);
    const Currency up = game.table.BetAmount(seat, bet);
    Click(bet, told > kZero ? told : Currency::Dollars(1 + Below(500)));
    const Currency added = game.table.BetAmount(seat, bet) - up;
    // With a correction for the payoff a click for more than there is may get what a smaller one doesn't.
    const bool corrected = game.table.seats[seat].handling.ProperOddsMode != 0;
    if (told == kZero) {
      ASSERT_TRUE(added <= kZero || corrected) << BetName(bet) << " over " << PlainMoney(up);
    } else {
      ASSERT_GE(added, told) << BetName(bet) << " over " << PlainMoney(up);
      // Corrected to amounts that no whole betting units make, some can't be asked for and had exactly.
      if (added != told) {
        ASSERT_TRUE(corrected) << PlainMoney(added) << " instead of " << PlainMoney(told);
        ++more;
      }
    }
    // Nothing was kept back either.
    if (!corrected) {
      ASSERT_EQ(ToldRoom(PointerText(game, table.commands, bet)), kZero) << BetName(bet);
    }
    ++(told > kZero ? promises : refusals);
  }

  ShellTable table;
  Game& game = *table.game;
  int promises = 0;
  int refusals = 0;
  int more = 0;  // than was promised

 private:
  bool Chance(double share) { return std::uniform_real_distribution<>(0, 1)(random_) < share; }
  int Below(int limit) { return std::uniform_int_distribution<>(0, limit - 1)(random_); }
  Currency Pick(const std::vector<const char*>& amounts) {
    return Money(amounts[static_cast<std::size_t>(Below(static_cast<int>(amounts.size())))]);
  }
  int AnyArea() {
    return layout_.Areas[static_cast<std::size_t>(Below(static_cast<int>(layout_.Areas.size())))].Id;
  }
  void Click(int bet, Currency amount) {
    table.commands = {};
    table.commands.ClickAmount = amount;
    EXPECT_FALSE(ClickBet(game, table.commands, MeantBet(game, bet), false));
  }
  // One of the rules, limits or the players' own choices becomes another.
  void AnyRules() {
    Settings& settings = game.settings;
    Handling& handling = game.table.seats[Chance(0.5) ? 2 : 5].handling;
    switch (Below(12)) {
      case 0:
        settings.MinBetMain = Pick({"1", "5", "10"});
        break;
      case 1:
        settings.MinBetProp = Pick({"1", "2", "25"});
        break;
      case 2:
        settings.MaxBet = Pick({"20", "100", "1000"});
        break;
      case 3:
        settings.MaxPropBetPayoff = Pick({"50", "3000"});
        break;
      case 4:
        settings.MaxOddsBet = Pick({"50", "3000"});
        break;
      case 5:
        settings.OddsAllowed410 = settings.OddsAllowed68 = Multiple::Of(Pick({"1", "2", "2.5", "3", "10"}));
        break;
      case 6:
        settings.AllowPutBets = Chance(0.5);
        break;
      case 7:
        settings.BuyVigUpFront = Chance(0.5);
        settings.LayVigUpFront = Chance(0.5);
        RecomputeVig(game);
        break;
      case 8:
        game.table.seats[2].AllowNegativeBankroll = Chance(0.3);
        break;
      case 9:
        handling.ProperOddsMode = Below(3);
        handling.PlaceBias = Below(3);
        break;
      case 10:
        handling.DoBias = Below(3);
        handling.DontBias = handling.LayBias = Below(3);
        break;
      default: {
        // Little left, plenty left.
        const int seat = Chance(0.5) ? 2 : 5;
        game.table.BankrollCurrent[seat] =
            game.table.seats[seat].OnTableAmount + Currency::Dollars(Below(3) * 400 + Below(60));
        break;
      }
    }
  }

  std::mt19937 random_;
  TableLayout layout_ = BuildTableLayout(game.settings, game.payoffs);
};

TEST(PointerLine, PromisesJustWhatAClickThenGives) {
  int promises = 0;
  int refusals = 0;
  int more = 0;
  for (unsigned seed = 1; seed <= 60; ++seed) {
    RandomTable random(seed);
    for (int n = 0; n < 120; ++n) {
      random.Step();
      ASSERT_NO_FATAL_FAILURE(random.CheckArea()) << "seed " << seed << " step " << n;
    }
    promises += random.promises;
    refusals += random.refusals;
    more += random.more;
  }
  EXPECT_GT(promises, 1000);
  EXPECT_GT(refusals, 1000);
  EXPECT_LT(more, promises / 100);
}

TEST(PointerLine, TellsWhatTheNextClickIsForInsteadOfWhatMayBeBet) {
  ShellTable table;
  table.Join(4, "Eve");
  table.Bet(4, kPlace4, "25");
  for (int action = kPendingCallOn; action <= kPendingMove; ++action) {
    table.commands = {};
    SetPendingAction(table.commands, action);
    const QString line = PointerText(*table.game, table.commands, kPlace4 + 1);
    EXPECT_TRUE(line.startsWith("Next click: ")) << ToCore(line);
    EXPECT_FALSE(line.contains("may still be bet")) << ToCore(line);
    SetPendingAction(table.commands, action);
    EXPECT_FALSE(GiveUp(table.commands)) << "a second press takes it back";
  }
}

TEST(MoveBet, GoesAsFarAsTheRulesOfBothLetItAndElseStays) {
  struct Case {
    int from;
    int to;
    bool pointOn;
    const char* lands;  // what is on the other bet then; 0: the bet stays
    Msg says;
    bool putBets = true;
  };
  const Case cases[] = {
      {kPlace4, kPlace4 + 3, false, "200", Msg::kNone},
      {kPlace4, kBuy4, false, "190", Msg::kVigCharged},  // the vig comes out of what there is
      {kPlace4, kFire, false, "5", Msg::kMaximumBet},
      {kPlace4, 0, false, "0", Msg::kNone},
      {kPlace4, kCome, false, "0", Msg::kComeNeedsPoint},
      {kPassLine, kField, false, "200", Msg::kNone},
      {kPassLine, kField, true, "0", Msg::kPassLineIsContract},
      {kPassLine, 0, true, "0", Msg::kPassLineIsContract},
      {kDontPass, kPlace4, true, "200", Msg::kNone},
      {kDontPass, kPassLine, true, "200", Msg::kNone},
      {kDontPass, kPassLine, true, "0", Msg::kPutPassLineRefused, false},
      {kDontPass, kDontPassOdds, true, "0", Msg::kNotToOwnOdds},
  };
  for (const Case& one : cases) {
    ShellTable table;
    Game& game = *table.game;
    table.Join(4, "Eve", "200");
    game.settings.BuyVigUpFront = game.settings.UseFire = true;
    game.settings.AllowPutBets = one.putBets;
    table.Bet(4, one.from, "200");
    CallBet(game, 4, one.from, false);
    table.host.boxes.clear();
    if (one.pointOn) table.Roll(2, 4);
    MoveBet(game, one.from, one.to);
    table.Check("move");
    const std::string what = BetName(one.from) + " to " + (one.to == 0 ? "the rail" : BetName(one.to));
    const bool stays = *one.lands == '0' && one.says != Msg::kNone;
    EXPECT_EQ(game.table.BetAmount(4, one.from), stays ? Money("200") : kZero) << what;
    if (stays && IsPlace(one.from)) {
      EXPECT_EQ(BetWorkingOf(game, 4, one.from), -1) << "with its call";
    }
    if (one.to != 0) {
      EXPECT_EQ(PlainMoney(game.table.BetAmount(4, one.to)), one.lands) << what;
    }
    EXPECT_TRUE(table.host.Said(one.says)) << what;
  }
}

}  // namespace
}  // namespace tessaryn
