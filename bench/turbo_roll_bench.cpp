// What a Turbo-Roll costs: the counting alone, standing bets, a full table, scripts, the Events Log, and the
// dice.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/script_session.h"
#include "play/setting_table.h"
#include "play/start_up.h"
#include "rules/advantage.h"
#include "rules/bet_rules.h"
#include "state/game.h"
#include "state/run_stop.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

// Stops a run at a roll; answers nothing.
class BenchHost : public Host {
 public:
  std::int64_t target = 0;
  void ShowMessage(Game&, MessageBox& box) override { box.MsgResult = kResultOk; }
  bool Yield(Game& game) override {
    if (SessionRolls(game.stats) >= target) StopRun(game, "");
    return false;
  }
  std::uint32_t TickMilliseconds() override { return 1; }
  std::string DateText() override { return ""; }
  std::string TimeText() override { return ""; }
  double SecondsSinceMidnight() override { return 0; }
  double DateTimeNumber() override { return 0; }
};

struct Table {
  BenchHost host;
  std::unique_ptr<Game> game;

  explicit Table(int players) {
    const std::string folder = std::filesystem::temp_directory_path() / "tessaryn-bench";
    std::filesystem::create_directories(folder);
    game = StartGame(host, std::filesystem::read_symlink("/proc/self/exe").parent_path(), folder);
    constexpr const char* kNames[] = {"Ann", "Bob", "Cyd", "Dan", "Eve", "Fay", "Gus", "Hal"};
    std::string error;
    for (int seat = 1; seat <= players; ++seat)
      JoinPlayer(*game, seat, kNames[seat - 1], Currency::Dollars(5'000'000), error);
    for (const char* handling : {"WinHandling", "LoseHandling"}) SetSetting(*game, handling, 0, "2", error);
    SetSetting(*game, "ShooterBetRule", 0, "0", error);
  }
  void Roll(benchmark::State& state) {
    constexpr std::int64_t kRolls = 100'000;
    for (auto _ : state) {
      host.target = SessionRolls(game->stats) + kRolls;
      ToggleAutoRoll(*game);
    }
    state.SetItemsProcessed(state.iterations() * kRolls);
  }
};

void NoBets(benchmark::State& state) { Table(1).Roll(state); }
BENCHMARK(NoBets)->Unit(benchmark::kMillisecond);

void StandingPassLine(benchmark::State& state) {
  Table table(1);
  PlaceBet(*table.game, 1, kPassLine, Currency::Dollars(10));
  table.Roll(state);
}
BENCHMARK(StandingPassLine)->Unit(benchmark::kMillisecond);

void PutEverySeatToWork(Table& table) {
  std::string error;
  SetSetting(*table.game, "AutoTakeOdds", 0, "on", error);
  for (int seat = 1; seat <= kSeats; ++seat) {
    PlaceBet(*table.game, seat, kPassLine, Currency::Dollars(10));
    PlaceBet(*table.game, seat, kPlace4 + 2, Currency::Dollars(12));
    PlaceBet(*table.game, seat, kPlace4 + 3, Currency::Dollars(12));
    PlaceBet(*table.game, seat, kField, Currency::Dollars(5));
  }
}

void EightBusySeats(benchmark::State& state) {
  Table table(kSeats);
  PutEverySeatToWork(table);
  table.Roll(state);
}
BENCHMARK(EightBusySeats)->Unit(benchmark::kMillisecond);

// Decided on every roll and bet again by handling, as no other bet is.
void StandingPropositions(benchmark::State& state) {
  Table table(1);
  for (int bet = kHop13; bet <= kHop55; ++bet) PlaceBet(*table.game, 1, bet, Currency::Dollars(1));
  for (const int bet : {kTwo, kSeven, kHorn, kWorld}) PlaceBet(*table.game, 1, bet, Currency::Dollars(20));
  table.Roll(state);
}
BENCHMARK(StandingPropositions)->Unit(benchmark::kMillisecond);

// A script on every roll; items are its statements.
void RollScript(benchmark::State& state, const std::vector<std::string>& lines, int statements) {
  Table table(1);
  SetScript(*table.game, 1, lines, "");
  SetScriptActive(*table.game, 1, true);
  table.Roll(state);
  state.SetItemsProcessed(state.items_processed() * statements);
}

void CheckStackArithmetic(benchmark::State& state) {
  RollScript(state,
             {"cs1 = 1", "cs2 = cs1 + 2", "add 1 to cs3", "cs4 = cs3 * 2 - cs2", "subtract 1 from cs5",
              "cs6 = cs4 / 3", "multiply by 2 on cs1", "round to the nearest 5 on cs6"},
             8);
}
BENCHMARK(CheckStackArithmetic)->Unit(benchmark::kMillisecond);

void BetsThatStandAlready(benchmark::State& state) {
  RollScript(state, {"bet 12 on place6", "bet 12 on place8", "bet 5 on hard6", "bet 10 on big6"}, 4);
}
BENCHMARK(BetsThatStandAlready)->Unit(benchmark::kMillisecond);

// Items are the lines of the log.
void EventsLogLines(benchmark::State& state) {
  Table table(kSeats);
  PutEverySeatToWork(table);
  ClearEventsLog(*table.game);
  table.game->events.RecordEventsActive = true;
  table.Roll(state);
  state.SetItemsProcessed(EventsLogLineCount(*table.game));
  ClearEventsLog(*table.game);
}
BENCHMARK(EventsLogLines)->Unit(benchmark::kMillisecond)->Iterations(5);

void DiceAlone(benchmark::State& state) {
  Table table(0);
  table.game->generators.GeneratorIndex = static_cast<int>(state.range(0));
  std::int64_t rolls = 0;
  int die1 = 0;
  int die2 = 0;
  for (auto _ : state) {
    DrawDice(table.game->generators, rolls++, die1, die2);
    benchmark::DoNotOptimize(die1 + die2);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(DiceAlone)->DenseRange(0, 7);

// What every bet is worth, all rows: the Advantage screen does this at each paint, so it has 20 ms.
void WholeAdvantageTable(benchmark::State& state) {
  Table table(1);
  PercentageDice& dice = table.game->percentage;
  if (state.range(0) != 0) {
    SetProbabilityCell(dice, kTotalRow, 6, 12'000, true);
    ActivatePercentageDice(dice, true);
  }
  for (auto _ : state) benchmark::DoNotOptimize(AdvantageTable(*table.game));
}
BENCHMARK(WholeAdvantageTable)->ArgName("loaded")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessaryn
