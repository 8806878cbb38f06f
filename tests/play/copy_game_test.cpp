// A table is a value: a copy in the middle of a hand goes on as the original does, and tables on several
// threads don't disturb each other.
#include "play/copy_game.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <thread>
#include <vector>

#include "dice/generators.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/script_session.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

// Three players: one bets by hand whatever comes to mind, one stands on the line with odds, one has a script.
std::unique_ptr<Game> SeatedTable(Host& host, const std::string& folder, int generator, int seed) {
  auto game = StartGame(host, test::kBinFolder, folder);
  game->generators.GeneratorIndex = generator;
  EXPECT_TRUE(SeedGenerator(game->generators, Currency::Dollars(seed)));
  std::string error;
  const char* const names[] = {"House", "Ann", "Bob", "Cid"};
  for (int seat = 1; seat <= 3; ++seat)
    EXPECT_TRUE(JoinPlayer(*game, seat, names[seat], Currency::Dollars(50'000), error)) << error;
  game->settings.ShooterBetRule = 0;
  game->settings.MessageMask = 0;
  for (int seat = 1; seat <= 3; ++seat) {
    Handling& handling = game->table.seats[seat].handling;
    handling.WinHandling = 1 + seat;
    handling.LoseHandling = 1 + seat % 3;
    handling.AutoTakeOdds = handling.AutoLayOdds = seat == 2;
  }
  SetScript(*game, 3,
            {"if comeout roll then bet 10 on passline endif", "if count(> 0, come bets) < 3 then",
             "  bet 5 on come", "endif", "cs1 = cs1 + wins last roll $", "bet 6 on place8"},
            "");
  SetScriptActive(*game, 3, true);
  return game;
}

void PlayOn(Game& game, std::mt19937& choices, int rolls) {
  for (int roll = 0; roll < rolls; ++roll) {
    const int bet = static_cast<int>(choices() % kBets) + 1;
    ChangeBet(game, 1, bet, Currency::Dollars(static_cast<int>(choices() % 40) - 10));
    if (game.table.BetAmount(2, kPassLine) == kZero) ChangeBet(game, 2, kPassLine, Currency::Dollars(10));
    RollDice(game);
  }
}

TEST(CopyGame, ACopyGoesOnAsTheOriginalDoes) {
  test::TempFolder folder;
  for (int generator = 0; generator < kGeneratorCount; ++generator) {
    test::TestHost host;
    std::mt19937 choices(static_cast<unsigned>(generator));
    const auto original = SeatedTable(host, folder.Path(), generator, 77 + generator);
    PlayOn(*original, choices, 200 + generator);
    const auto copy = CopyGame(*original, host);
    // Only the scripts wait to be made ready again.
    copy->autobet.ScriptsCompiled = original->autobet.ScriptsCompiled;
    EXPECT_EQ(FirstDifference(*copy, *original), "");
    copy->autobet.ScriptsCompiled = false;
    std::mt19937 same = choices;
    PlayOn(*original, choices, 300);
    PlayOn(*copy, same, 300);
    EXPECT_EQ(FirstDifference(*copy, *original), "") << "generator " << generator;
    PlayOn(*copy, same, 20);
    EXPECT_NE(FirstDifference(*copy, *original), "");
  }
}

// What came of a table, in short.
std::vector<std::int64_t> ResultOf(const std::string& folder, int number) {
  test::TestHost host;
  std::mt19937 choices(static_cast<unsigned>(number));
  const auto game = SeatedTable(host, folder, number % kGeneratorCount, number + 1);
  PlayOn(*game, choices, 60);
  std::vector<std::int64_t> result;
  for (int seat = 1; seat <= 3; ++seat) result.push_back(game->table.BankrollCurrent[seat].raw);
  result.push_back(game->table.Point * 100 + game->table.Die1 * 10 + game->table.Die2);
  return result;
}

TEST(CopyGame, AThousandTablesOnFourThreadsPlayAsOnOne) {
  test::TempFolder folder;
  const int tables = std::getenv("TESSARYN_SANITIZED") != nullptr ? 100 : 1000;
  constexpr int kThreads = 4;
  using Results = std::vector<std::vector<std::int64_t>>;
  Results alone(static_cast<std::size_t>(tables));
  for (int number = 0; number < tables; ++number)
    alone[static_cast<std::size_t>(number)] = ResultOf(folder.Path(), number);
  Results together(static_cast<std::size_t>(tables));
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t)
    threads.emplace_back([&, t] {
      for (int number = t; number < tables; number += kThreads)
        together[static_cast<std::size_t>(number)] = ResultOf(folder.Path(), number);
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(together, alone);
}

}  // namespace
}  // namespace tessaryn
