#include <cstdio>
#include <memory>

#include "cli/cli_host.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/table_setup.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"

namespace tessaryn::cli {
namespace {

struct DiceOptions {
  TableOptions table;
  std::int64_t count = 10;
  bool json = false;
};

int Dice(const DiceOptions& options) {
  CliHost host;
  const std::unique_ptr<Game> game = SetUpTable(host, options.table);
  if (!game) return kBad;
  ReplaceMissingGenerator(game->generators);
  if (options.json) std::printf("[");
  for (RollNumber roll = 0; roll < options.count && !Interrupted() && std::ferror(stdout) == 0; ++roll) {
    int die1 = 0;
    int die2 = 0;
    if (game->percentage.PercentageDiceActive)
      DrawFromMatrix(game->percentage, game->generators, DrawNumber(game->generators, roll), die1, die2);
    else
      DrawDice(game->generators, roll, die1, die2);
    if (options.json)
      std::printf("%s[%d,%d]", roll == 0 ? "" : ",", die1, die2);
    else
      std::printf("%d %d\n", die1, die2);
  }
  if (options.json) std::printf("]\n");
  return kDone;
}

}  // namespace

void AddDiceCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<DiceOptions>();
  CLI::App* command = program.add_subcommand("dice", "The dice of a generator, a roll a line");
  command->add_option("--data-folder", options->table.dataFolder, kDataFolderHelp);
  command->add_option("--rng", options->table.rng, kGeneratorHelp)->check(CLI::Range(1, 8));
  command->add_option("--seed", options->table.seed, kSeedHelp);
  command->add_option("--probabilities", options->table.probabilities, kProbabilitiesHelp);
  command->add_option("--count", options->count, "How many rolls (default 10)")
      ->check(CLI::Range(std::int64_t{0}, std::int64_t{1'000'000'000'000}));
  command->add_flag("--json", options->json, "Print one JSON array of pairs");
  command->footer("Example:\n  tessaryn-cli dice --rng 1 --seed 42 --count 5");
  command->callback([options, &exitCode] { exitCode = Dice(*options); });
}

}  // namespace tessaryn::cli
