#include "shell/screens/settle_bet.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <map>
#include <utility>

#include "autobet/run/operands.h"
#include "base/bet_catalogue.h"
#include "shell/screens_support.h"

namespace tessaryn::test {
namespace {

using Dice = std::vector<std::pair<int, int>>;

// A bet made at a point on 5, and the roll that decides it.
struct Scene {
  const char* name;
  int bet;
  const char* amount;
  int die1;
  int die2;
  bool won;
};
constexpr Scene kScenes[] = {
    {"a winner that stays", kPlace4 + 2, "12", 3, 3, true},
    {"a winner of a fraction", kPlace4 + 2, "7", 3, 3, true},
    {"a winner with vig", kBuy4, "40", 2, 2, true},
    {"a winner against", kLay4 + 5, "41", 3, 4, true},
    {"a winner that is over", kPassLineOdds, "10", 1, 4, true},
    {"a share that wins", kHorn, "8", 5, 6, true},
    {"a loser", kPlace4 + 2, "12", 3, 4, false},
    {"a loser with vig", kBuy4 + 5, "20", 3, 4, false},
    {"a loser of one roll", kField, "15", 3, 4, false},
    {"a loser that is over", kPassLineOdds, "10", 3, 4, false},
};

using Ask = std::function<SettleAnswer(Game&, const SettleQuestion&)>;

// What a seat has behind a roll.
struct Outcome {
  Currency bankroll;
  Currency onTable;
  std::vector<Currency> bets;
  int asked = 0;
  friend bool operator==(const Outcome&, const Outcome&) = default;
};

void MakeScene(ScreenTable& table, const Scene& scene) {
  table.game->settings.MessageMask = 0;
  table.Join(4, "Alice", "5000");
  table.Bet(4, kPassLine, "10");
  table.Roll(1, 4);
  table.Bet(4, scene.bet, scene.amount);
  ASSERT_GT(table.State().BetAmount(4, scene.bet), kZero) << scene.name;
}

// Plays the scene, the bet of the scene being answered by ask and every other one safely.
Outcome Play(const Scene& scene, const Ask& ask, const std::function<void(Game&)>& prepare = {}) {
  ScreenTable table;
  MakeScene(table, scene);
  if (prepare) prepare(*table.game);
  Outcome outcome;
  table.host.askSettlement = [&](Game& game, const SettleQuestion& question) {
    if (question.bet != scene.bet) return SettleAnswer{};
    ++outcome.asked;
    EXPECT_EQ(question.won, scene.won) << scene.name;
    return ask(game, question);
  };
  table.Roll(scene.die1, scene.die2);
  outcome.bankroll = table.State().BankrollCurrent[4];
  outcome.onTable = table.State().seats[4].OnTableAmount;
  for (int bet = 1; bet <= kBets; ++bet) outcome.bets.push_back(table.State().BetAmount(4, bet));
  return outcome;
}

// Asks with the real dialog, which is worked by hand.
Ask ByDialog(std::function<void(QDialog&)> work) {
  return [work = std::move(work)](Game& game, const SettleQuestion& question) {
    WhenOpen("frmSettleBet", work);
    return AskSettleBet(nullptr, game, question);
  };
}
Ask Directly(const SettleAnswer& answer) {
  return [answer](Game&, const SettleQuestion&) { return answer; };
}

constexpr Qt::Key kWinKeys[8] = {Qt::Key_unknown, Qt::Key_T, Qt::Key_S, Qt::Key_U,
                                 Qt::Key_D,       Qt::Key_A, Qt::Key_M, Qt::Key_B};
constexpr Qt::Key kLoseKeys[8] = {Qt::Key_unknown, Qt::Key_N, Qt::Key_S, Qt::Key_R,
                                  Qt::Key_U,       Qt::Key_D, Qt::Key_M, Qt::Key_B};

TEST(SettleBet, EveryButtonAndEveryKeyDoesItsOwnChoice) {
  for (const Scene& scene : kScenes) {
    std::map<int, Outcome> byChoice;
    for (int choice = 1; choice <= 7; ++choice) {
      // The amount that the seat keeps for choices 6 and 7 stands in the dialog.
      const auto prepare = [](Game& game) {
        Handling& handling = game.table.seats[4].handling;
        for (const int slot : {4, 5, 6, 7}) handling.AdjustValue[slot] = Currency::Dollars(10 * slot);
        handling.AdjustUnit[5] = 1;
      };
      SettleAnswer answer;
      answer.choice = choice;
      const int slot = (choice == 6 ? 4 : 6) + (scene.won ? 0 : 1);
      if (choice >= 6) answer.adjustValue = Currency::Dollars(10 * slot);
      if (slot == 5 && choice == 6) answer.adjustUnit = 1;
      const Outcome core = Play(scene, Directly(answer), prepare);
      ASSERT_EQ(core.asked, 1) << scene.name;
      byChoice[choice] = core;
      const Outcome mouse =
          Play(scene, ByDialog([&](QDialog& dialog) { Click(dialog, QString("cmdHandle%1").arg(choice)); }),
               prepare);
      EXPECT_EQ(mouse, core) << scene.name << ", button " << choice;
      if (&scene != &kScenes[0] && &scene != &kScenes[6]) continue;
      const Outcome key = Play(scene, ByDialog([&](QDialog& dialog) {
                                 AccessKey(dialog, (scene.won ? kWinKeys : kLoseKeys)[choice]);
                               }),
                               prepare);
      EXPECT_EQ(key, core) << scene.name << ", key " << choice;
    }
    // The choices differ, or the comparisons above would show nothing. A bet that is over always comes down.
    EXPECT_EQ(byChoice[1] == byChoice[7], scene.bet == kPassLineOdds) << scene.name;
  }
}

TEST(SettleBet, WhatIsTypedIsBet) {
  struct Typed {
    int choice;
    const char* keys;
    const char* amount;
    int kind;
    int unitRow;
    int unit;
  };
  for (const Scene& scene : {kScenes[0], kScenes[6]}) {
    for (const Typed& typed : {Typed{6, "25", "25", 0, 0, 0},
                               {6, "50", "50", 0, 1, 1},
                               {6, "3", "3", 1, 3, 3},
                               {6, "1.5", "1.5", 2, 0, 0},
                               {6, "200", "200", 3, 1, 1},
                               {6, "0", "0", 3, 0, 0},
                               {7, "30", "30", 0, 0, 0},
                               {7, "2", "2", 0, 2, 3},
                               {7, "12345678", "9999999.9999", 0, 0, 0}}) {
      const SettleAnswer answer{typed.choice, typed.kind, ParseMoney(typed.amount), typed.unit};
      const bool same = typed.choice == 6;
      const QString slot = QString::number((same ? 4 : 6) + (scene.won ? 0 : 1));
      const Outcome dialog =
          Play(scene, ByDialog([&](QDialog& screen) {
                 if (same) {
                   auto& kinds = Find<QComboBox>(screen, "cmdMathOperator" + slot);
                   kinds.setFocus();
                   for (int n = 0; n < typed.kind; ++n) QTest::keyClick(&kinds, Qt::Key_Down);
                 }
                 auto& units = Find<QComboBox>(screen, "cmdUnits" + slot);
                 units.setFocus();
                 for (int n = 0; n < typed.unitRow; ++n) QTest::keyClick(&units, Qt::Key_Down);
                 TypeInto(screen, "txtModifyAmount" + slot, typed.keys);
                 // Enter behind the amount means this amount.
                 QTest::keyClick(&Find<QWidget>(screen, "txtModifyAmount" + slot), Qt::Key_Return);
               }));
      EXPECT_EQ(dialog, Play(scene, Directly(answer)))
          << scene.name << ", choice " << typed.choice << ", " << typed.keys << ", operator " << typed.kind
          << ", unit " << typed.unit;
    }
  }
}

TEST(SettleBet, LeavingTheDialogIsTheSafeChoice) {
  const std::function<void(QDialog&)> ways[] = {
      [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
      [](QDialog& dialog) { dialog.close(); },
      [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); },
      [](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Space); },
      // Something typed first makes no difference.
      [](QDialog& dialog) {
        const bool won = Find<QLabel>(dialog, "lblTitle").text() == "WINNER";
        TypeInto(dialog, won ? "txtModifyAmount6" : "txtModifyAmount7", "999");
        QTest::keyClick(&dialog, Qt::Key_Escape);
      },
  };
  for (const Scene& scene : {kScenes[0], kScenes[6]}) {
    SettleAnswer safe;
    safe.choice = scene.won ? 2 : 1;
    const Outcome core = Play(scene, Directly(safe));
    int way = 0;
    for (const auto& leave : ways)
      EXPECT_EQ(Play(scene, ByDialog(leave)), core) << scene.name << ", way " << way++;
  }
}

// Caption and amount of every line, as "Bet: $12 | Payoff at 7 to 6: $14".
std::string TextOf(const std::vector<SettleLine>& lines) {
  std::string text;
  for (const SettleLine& line : lines)
    text += (text.empty() ? "" : " | ") + (line.caption + " " + line.value).toStdString();
  return text;
}

TEST(SettleBet, TheLinesAddUpForEveryFamily) {
  struct Case {
    Scene scene;
    const char* setting;
    const char* lines;
  };
  const Case cases[] = {
      {{"", kPlace4 + 2, "12", 3, 3, true}, "", "Bet: $12 | Payoff at 7 to 6: $14"},
      {{"", kPlace4 + 2, "7", 3, 3, true},
       "",
       "Bet: $7 | Payoff at 7 to 6: $8.1667 | Net payoff (rounded): $8"},
      {{"", kBuy4, "40", 2, 2, true}, "", "Bet: $40 | Payoff at 2 to 1: $80 | 5% vig: -$2 | Net payoff: $78"},
      {{"", kLay4 + 5, "41", 3, 4, true},
       "",
       "Bet: $41 | Payoff at 1 to 2: $20.50 | 5% vig: -$1 | Net payoff: $19.50 | Net payoff (rounded): $19"},
      {{"", kBuy4, "40", 3, 4, false}, "", "Bet: $40 | Bet lost: -$40 | 5% vig: -$2 | Net loss: -$42"},
      {{"", kBuy4, "40", 3, 4, false}, "onwin", "Bet: $40 | Bet lost: -$40 | 5% vig: $0"},
      {{"", kBuy4, "40", 2, 2, true},
       "onwin",
       "Bet: $40 | Payoff at 2 to 1: $80 | 5% vig: -$2 | Net payoff: $78"},
      {{"", kCAndE, "10", 5, 6, true},
       "",
       "Bet: $10 | Half of the bet wins: $5 | Half of the bet loses: -$5 | Payoff at 15 to 1: $75 | Net "
       "payoff: $70"},
      {{"", kHorn, "5", 5, 6, true},
       "",
       "Bet: $5 | A quarter of the bet wins: $1.25 | Three quarters of the bet lose: -$3.75 | Payoff at 15 "
       "to "
       "1: $18.75 | Net payoff: $15"},
      {{"", kWorld, "5", 1, 1, true},
       "",
       "Bet: $5 | A fifth of the bet wins: $1 | Four fifths of the bet lose: -$4 | Payoff at 30 to 1: $30 | "
       "Net payoff: $26"},
      {{"", kHorn, "8", 1, 3, false}, "", "Bet: $8 | Bet lost: -$8"},
      {{"", kField, "15", 1, 1, true}, "", "Bet: $15 | Payoff at 2 to 1: $30"},
      {{"", kField, "15", 2, 4, false}, "", "Bet: $15 | Bet lost: -$15"},
  };
  for (const Case& row : cases) {
    std::string lines;
    const Outcome outcome = Play(
        row.scene,
        [&](Game& game, const SettleQuestion& question) {
          lines = TextOf(SettleLines(game, question));
          return SettleAnswer{};
        },
        [&](Game& game) {
          if (row.setting == std::string("onwin")) {
            game.settings.BuyVigUpFront = false;
            RecomputeVig(game);
          }
        });
    EXPECT_EQ(outcome.asked, 1) << row.lines;
    EXPECT_EQ(lines, row.lines) << BetName(row.scene.bet);
  }
}

TEST(SettleBet, HandBetsNameTheirCount) {
  ScreenTable table;
  table.game->settings.MessageMask = 0;
  table.Join(1, "Zoë", "5000");
  table.Bet(1, kPassLine, "5");
  for (const int bet : {kSharpShooter, kRideTheLine, kFire}) table.Bet(1, bet, "5");
  std::map<int, std::string> counts;
  std::map<int, std::string> players;
  table.host.askSettlement = [&](Game& game, const SettleQuestion& question) {
    if (question.bet < kSharpShooter || !question.won) return SettleAnswer{};
    WhenOpen("frmSettleBet", [&, bet = question.bet](QDialog& dialog) {
      counts[bet] =
          (Find<QLabel>(dialog, "lblCount").text() + " " + Find<QLabel>(dialog, "lblCountValue").text())
              .toStdString();
      players[bet] = Find<QLabel>(dialog, "lblPlayer").text().toStdString();
      EXPECT_EQ(Find<QLabel>(dialog, "lblTitle").text(), "WINNER");
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    return AskSettleBet(nullptr, game, question);
  };
  // Ten points, six of them different, and a natural before and behind them.
  table.Roll(3, 4);
  for (const auto& [die1, die2] :
       Dice{{1, 3}, {1, 4}, {1, 5}, {2, 6}, {3, 6}, {4, 6}, {1, 3}, {1, 4}, {1, 5}, {2, 6}})
    for (int twice = 0; twice < 2; ++twice) table.Roll(die1, die2);
  table.Roll(5, 6);
  table.Roll(2, 2);
  table.Roll(3, 4);
  EXPECT_EQ(counts[kFire], "Different points made: 6");
  EXPECT_EQ(counts[kSharpShooter], "Points made: 10");
  EXPECT_EQ(counts[kRideTheLine].substr(0, 11), "Line wins: ");
  EXPECT_EQ(players[kFire], "Zoë");
}

TEST(SettleBet, TabWalksDownTheChoices) {
  QStringList names;
  Play(kScenes[0], ByDialog([&](QDialog& dialog) {
         names = TabWalk(dialog, "cmdHandle1");
         QTest::keyClick(&dialog, Qt::Key_Escape);
       }));
  EXPECT_EQ(names.join(" ").toStdString(),
            "cmdHandle1 cmdHandle2 cmdHandle3 cmdHandle4 cmdHandle5 cmdHandle6 cmdMathOperator4 "
            "txtModifyAmount4 cmdUnits4 cmdHandle7 txtModifyAmount6 cmdUnits6 chkRestOfRoll chkDontAskAgain");
}

TEST(SettleBet, TitlesSayWhatHappened) {
  ScreenTable table;
  MakeScene(table, {"", kPlace4 + 2, "12", 3, 3, true});
  const auto shown = [&](bool won, bool off) {
    SettleQuestion question;
    question.seat = 4;
    question.bet = kPlace4 + 2;
    question.won = won;
    question.offOdds = off;
    question.pressUnit = Currency::Dollars(6);
    SettleBetScreen screen(*table.game, question, nullptr);
    ExpectNamed(screen);
    EXPECT_EQ(Find<QPushButton>(screen, won ? "cmdHandle2" : "cmdHandle1").isDefault(), true);
    EXPECT_EQ(Find<QLabel>(screen, "lblBet").text(), "Place 6");
    EXPECT_LE(screen.sizeHint().height(), 550);
    return Find<QLabel>(screen, "lblTitle").text() + ", " +
           Find<QPushButton>(screen, won ? "cmdHandle3" : "cmdHandle4").text();
  };
  EXPECT_EQ(shown(true, false), "WINNER, Press 1 &Unit - Add $6 to Bet");
  EXPECT_EQ(shown(false, false), "LOSER, Same Bet Plus 1 &Unit - Add $6 to Bet");
  EXPECT_EQ(shown(true, true), "ODDS OFF, Press 1 &Unit - Add $6 to Bet");
  EXPECT_EQ(shown(false, true), "ODDS OFF, Same Bet Plus 1 &Unit - Add $6 to Bet");
}

// Odds that were off as their Come bet was decided: nothing moved, and the player says what now.
TEST(SettleBet, OddsThatWereOffAreAskedFor) {
  const auto play = [](const Ask& ask, std::string& lines) {
    ScreenTable table;
    table.game->settings.MessageMask = 0;
    table.Join(4, "Alice", "5000");
    table.Bet(4, kPassLine, "10");
    table.Roll(1, 4);
    table.Bet(4, kCome, "10");
    table.Roll(2, 2);
    table.Bet(4, kComeOdds4, "20");
    table.Roll(2, 3);  // the point, so that the next roll is a come-out
    table.host.askSettlement = [&](Game& game, const SettleQuestion& question) {
      if (!question.offOdds) return SettleAnswer{};
      lines = TextOf(SettleLines(game, question));
      return ask(game, question);
    };
    table.Roll(3, 4);
    return std::pair(table.State().BankrollCurrent[4], table.State().BetAmount(4, kComeOdds4));
  };
  std::string lines;
  const auto byDialog = play(ByDialog([](QDialog& dialog) {
                               EXPECT_EQ(Find<QLabel>(dialog, "lblTitle").text(), "ODDS OFF");
                               EXPECT_EQ(Find<QLabel>(dialog, "lblNote").text(),
                                         "The odds weren't working: nothing was won or lost.");
                               QTest::keyClick(&dialog, Qt::Key_Escape);
                             }),
                             lines);
  EXPECT_EQ(lines, "Bet: $20");
  EXPECT_EQ(byDialog, play(Directly({}), lines));
}

TEST(SettleBet, Pictures) {
  const std::pair<const char*, Scene> pictures[] = {{"settle-bet-win", kScenes[1]},
                                                    {"settle-bet-lay", kScenes[3]},
                                                    {"settle-bet-horn", kScenes[5]},
                                                    {"settle-bet-loss", kScenes[6]},
                                                    {"settle-bet-over", kScenes[4]}};
  for (const auto& [name, scene] : pictures)
    Play(scene, [picture = QString(name)](Game& game, const SettleQuestion& question) {
      TakePictures(picture, [&] { return std::make_unique<SettleBetScreen>(game, question, nullptr); });
      return SettleAnswer{};
    });
}

}  // namespace
}  // namespace tessaryn::test
