#include <cstdio>
#include <memory>

#include "base/bet_catalogue.h"
#include "cli/cli_host.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/table_json.h"
#include "cli/table_setup.h"
#include "rules/advantage.h"
#include "rules/bets_together.h"

namespace tessaryn::cli {
namespace {

struct AdvantageOptions {
  TableOptions table;
  bool zeroOutcomes = false;
  std::vector<std::string> bets;  // N=AMOUNT
  bool json = false;
};

bool ReadBets(const std::vector<std::string>& texts, BetAmounts& amounts) {
  for (const std::string& text : texts) {
    const auto equals = text.find('=');
    const BetId bet = BetByName(text.substr(0, equals));
    Currency amount;
    if (equals == std::string::npos || !IsTableBet(bet)) {
      Fail("--bet " + text + ": expected BET=AMOUNT with a bet 1 to " + std::to_string(kBets) +
           " or its name");
      return false;
    }
    if (!TryParseMoney(text.substr(equals + 1), amount) || amount <= kZero) {
      Fail("--bet " + text + ": \"" + text.substr(equals + 1) + "\" is no amount above 0");
      return false;
    }
    amounts[bet] += amount.ToDouble();
  }
  return true;
}

std::string NoteOn(const BetsTogether& set) {
  std::string note;
  if (set.waitsForPoint)
    note = "Odds are counted while a point is on, and Come and Don't Come bets are made while one is.";
  if (set.unknownBet == 0) return note;
  return note + (note.empty() ? "" : " ") + "How far an hour strays from that is left out: what " +
         BetName(set.unknownBet) + " has in common with the other bets can't be told.";
}

double AmountOn(const BetAmounts& amounts, BetId bet) {
  const auto found = amounts.find(bet);
  return found == amounts.end() ? 1 : found->second;
}

void PrintJson(const Game& game, const std::vector<AdvantageRow>& rows, const BetAmounts& amounts) {
  Json list = Json::array();
  for (const AdvantageRow& row : rows) {
    const Advantage& figures = row.figures;
    list.push_back({{"bet", row.bet},
                    {"name", row.caption},
                    {"evPerRoll", figures.evPerRoll},
                    {"stdevPerRoll", figures.stdevPerRoll},
                    {"evPerDecision", figures.evPerDecision},
                    {"stdevPerDecision", figures.stdevPerDecision},
                    {"rollsPerDecision", figures.rollsPerDecision},
                    {"amount", AmountOn(amounts, row.bet)},
                    {"evPerHour",
                     figures.evPerRoll * AmountOn(amounts, row.bet) * game.settings.SimRollRate.ToDouble()}});
  }
  Json result{{"rollsPerHour", MoneyJson(game.settings.SimRollRate.Number())},
              {"dice", game.percentage.PercentageDiceActive ? "percentage" : "fair"},
              {"rows", list}};
  if (!amounts.empty()) {
    const BetsTogether set = FigureBetsTogether(game, amounts);
    result["session"] = {{"evPerHour", set.evPerHour}, {"stdevPerHour", set.stdevPerHour}};
    if (set.unknownBet != 0) result["session"]["stdevPerHour"] = nullptr;
    if (const std::string note = NoteOn(set); !note.empty()) result["session"]["note"] = note;
  }
  std::printf("%s\n", result.dump().c_str());
}

void PrintTable(const Game& game, const std::vector<AdvantageRow>& rows, const BetAmounts& amounts) {
  const double rollsPerHour = game.settings.SimRollRate.ToDouble();
  std::printf("%-24s %10s %10s %10s %10s %9s %10s\n", "bet", "EV/roll", "StDev/roll", "EV/dec", "StDev/dec",
              "rolls/dec", "EV/hour");
  for (const AdvantageRow& row : rows) {
    const Advantage& figures = row.figures;
    std::printf("%-24s %10.6f %10.6f %10.6f %10.6f %9.2f %10.2f\n", row.caption.c_str(), figures.evPerRoll,
                figures.stdevPerRoll, figures.evPerDecision, figures.stdevPerDecision,
                figures.rollsPerDecision, figures.evPerRoll * AmountOn(amounts, row.bet) * rollsPerHour);
  }
  if (amounts.empty()) return;
  const BetsTogether set = FigureBetsTogether(game, amounts);
  std::printf("\nAt %s rolls an hour these bets are expected to bring $%.2f an hour",
              FormatMoney(game.settings.SimRollRate.Number()).c_str(), set.evPerHour);
  if (set.unknownBet == 0) std::printf(", give or take $%.2f", set.stdevPerHour);
  const std::string note = NoteOn(set);
  std::printf(".%s%s\n", note.empty() ? "" : "\n", note.c_str());
}

int ShowAdvantage(const AdvantageOptions& options) {
  CliHost host;
  const std::unique_ptr<Game> game = SetUpTable(host, options.table);
  if (!game) return kBad;
  if (options.zeroOutcomes) game->settings.IncludeZeroOutcomes = true;
  BetAmounts amounts;
  if (!ReadBets(options.bets, amounts)) return kBad;
  const std::vector<AdvantageRow> rows = AdvantageTable(*game);
  options.json ? PrintJson(*game, rows, amounts) : PrintTable(*game, rows, amounts);
  return kDone;
}

}  // namespace

void AddAdvantageCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<AdvantageOptions>();
  CLI::App* command = program.add_subcommand("advantage", "What every bet is worth under the rules in force");
  command->add_option("--data-folder", options->table.dataFolder, kDataFolderHelp);
  command->add_option("--probabilities", options->table.probabilities, kProbabilitiesHelp);
  command->add_option("--set", options->table.settings, "A setting, NAME=VALUE")
      ->take_all()
      ->allow_extra_args(false);
  AddSettingsFileOptions(*command, options->table);
  command->add_flag("--zero-outcomes", options->zeroOutcomes,
                    "Rolls that leave the bet in place are decisions");
  command->add_option("--bet", options->bets, "A bet that is made, BET=AMOUNT; repeatable")
      ->take_all()
      ->allow_extra_args(false);
  command->add_flag("--json", options->json, kJsonHelp);
  command->footer(
      "Example:\n  tessaryn-cli advantage --set BuyVigUpFront=off --bet buy4=25 --bet passline=10");
  command->callback([options, &exitCode] { exitCode = ShowAdvantage(*options); });
}

}  // namespace tessaryn::cli
