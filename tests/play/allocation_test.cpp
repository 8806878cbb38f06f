// A run at full speed stands still in memory: nothing is allocated once it is warm.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <new>

#include "autobet/run/interpreter.h"
#include "play/auto_roll.h"
#include "play/script_session.h"
#include "rules/handling.h"
#include "support/test_host.h"

#if defined(__SANITIZE_ADDRESS__)
#define TESSARYN_COUNTS_ALLOCATIONS 0  // the sanitizer keeps its own books
#else
#define TESSARYN_COUNTS_ALLOCATIONS 1
#endif

#if TESSARYN_COUNTS_ALLOCATIONS
namespace {
std::atomic<long> allocations{0};

void* Allocate(std::size_t size) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
}  // namespace

// The other forms of new end in these.
void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace tessaryn {
namespace {

using test::TestTable;

// The host notes the count as the warm-up ends and again at the end of the run.
struct CountingHost : test::TestHost {
  std::int64_t countFrom = 0;
  std::int64_t countTo = 0;
  long before = 0;
  long after = 0;
  bool Yield(Game& game) override {
    if (SessionRolls(game.stats) == countFrom) before = allocations.load();
    // Scripts give way within a roll too, and behind the first look the run is being wound up.
    if (SessionRolls(game.stats) == countTo && after == 0) after = allocations.load();
    return TestHost::Yield(game);
  }
};

long AllocationsOf(TestTable& table, std::int64_t rolls) {
  CountingHost host;
  host.countFrom = 5'000;
  host.countTo = host.rollTarget = 5'000 + rolls;
  table.game->host = &host;
  table.game->settings.RollThrottle = 0;
  ToggleAutoRoll(*table.game);
  table.game->host = &table.host;
  EXPECT_EQ(SessionRolls(table.game->stats), host.countTo) << table.State().StopReason;
  table.Check("the run");
  return host.after - host.before;
}

constexpr std::int64_t kRolls = 100'000;

TEST(Allocation, TheCounterSeesAnAllocation) {
  const long before = allocations.load();
  const std::string text(1000, 'x');
  EXPECT_GT(allocations.load(), before) << text.size();
}

TEST(Allocation, NoneWithOnePlayerWithoutBets) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  EXPECT_EQ(AllocationsOf(table, kRolls), 0);
}

TEST(Allocation, NoneWithEightSeatsOfStandingBets) {
  TestTable table;
  for (int seat = 1; seat <= kSeats; ++seat) {
    table.Join(seat, std::string("P") + static_cast<char>('a' + seat), "5000000");
    for (const int bet : {static_cast<int>(kPassLine), kPlace4 + 2, kPlace4 + 3, static_cast<int>(kField)})
      table.Bet(seat, bet, "12");
    Handling& handling = table.State().seats[seat].handling;
    handling.WinHandling = kWinSame;
    handling.LoseHandling = kLoseSame;
    handling.AutoTakeOdds = true;
    table.State().seats[seat].AllowNegativeBankroll = true;
  }
  EXPECT_EQ(AllocationsOf(table, kRolls), 0);
  EXPECT_NE(table.State().BetAmount(8, kPassLine), kZero);
}

TEST(Allocation, NoneWithEveryBetUpAndChoicesThatPressAndRefuse) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  for (int seat = 1; seat <= kSeats; ++seat) {
    table.Join(seat, std::string("P") + static_cast<char>('a' + seat), "100000");
    for (int bet = 1; bet <= kBets; ++bet) table.Bet(seat, bet, "5");
    Handling& handling = table.State().seats[seat].handling;
    handling.WinHandling = 2 + seat % 4;
    handling.LoseHandling = 2 + seat % 4;
    handling.AutoTakeOdds = handling.AutoLayOdds = true;
    handling.ProperOddsMode = seat % 3;
  }
  EXPECT_EQ(AllocationsOf(table, 20'000), 0);
}

// Pages of memory that the program holds.
long PagesHeld() {
  long size = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> size >> resident;
  return resident;
}

// Systems without texts: one on every seat, with lists, loops, subroutines, CheckStacks and statistics.
TEST(Allocation, NoneWithAScriptOnEverySeat) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  const std::vector<std::string> script = {
      "if comeout roll then bet 10 on passline endif",
      "if point is established and count(> 0, come bets) < 3 then bet 5 on come endif",
      "cs1 = 4",
      "do",
      "if cs1 <> 7 then if come(cs1) > 0 and comeodds(cs1) = 0 then bet 10 on comeodds(cs1) endif endif",
      "add 1 to cs1 : if cs1 > 10 then exitdo endif",
      "loop",
      "if all(place6, place8) < 60 then place6, place8 = 12 endif",
      "if place6 wins last roll $ > 0 then gosub 10 endif",
      "cs2 = highest(bankroll, cs2) : cs3 = # rolls(6) + passline wins total $ : cs4 = rnd",
      "cs5 = 1 / cs6",
      "goto 20",
      "10",
      "add 6 to place6",
      "return",
      "20",
  };
  for (int seat = 1; seat <= kSeats; ++seat) {
    table.Join(seat, std::string("P") + static_cast<char>('a' + seat), "5000000");
    SetScript(*table.game, seat, script, "");
    const ScriptCheck check = CheckScript(*table.game, seat);
    ASSERT_TRUE(check.ok) << check.title << check.text;
    SetScriptActive(*table.game, seat, true);
  }
  CompileActiveScripts(*table.game);
  EXPECT_EQ(AllocationsOf(table, 20'000), 0);
  EXPECT_NE(table.State().BetAmount(8, kPassLine), kZero);
}

TEST(Allocation, ALongRunWithItsJournalHoldsNoMoreMemoryThanAShortOne) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann", "100000");
  table.Bet(1, kPlace4 + 2, "12");
  table.Set("WinHandling", "2");
  table.Set("LoseHandling", "2");
  table.Set("RecordEventsActive", "on");
  table.Turbo(20'000);
  const long before = PagesHeld();
  table.Turbo(200'000);
  EXPECT_LE(PagesHeld() - before, 256) << "a mebibyte of slack for the run-time library";
}

}  // namespace
}  // namespace tessaryn
#endif
