#include <cstdio>
#include <memory>

#include "base/program_folders.h"
#include "cli/cli_host.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/table_json.h"
#include "cli/table_setup.h"
#include "play/game_file.h"
#include "play/game_file_records.h"
#include "play/setting_table.h"
#include "stats/statistics.h"

namespace tessaryn::cli {
namespace {

struct GameOptions {
  std::string file;
  std::string dataFolder;
  bool json = false;
};

Json ReferenceJson(const FileReference& reference) {
  return {{"path", reference.path}, {"date", reference.date}};
}

Json ReferencesJson(const Game& game, const GameReferences& references) {
  Json files = Json::object();
  const auto add = [&files](const std::string& name, const FileReference& reference) {
    if (!reference.path.empty()) files[name] = ReferenceJson(reference);
  };
  add("rollFile", references.rollFile);
  add("probabilities", references.probability);
  add("eventsLog", references.eventsLog);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game.table, seat)) continue;
    add("script@" + std::to_string(seat), references.script[seat]);
    add("sessionsLog@" + std::to_string(seat), references.sessionsLog[seat]);
  }
  return files;
}

Json GameJson(const std::string& file, const Game& game, const GameReferences& references) {
  Json settings = Json::object();
  for (const SettingName& setting : AllSettings()) {
    std::string value;
    std::string ignored;
    if (setting.bySeat || setting.name.find('.') != std::string::npos) continue;
    if (GetSetting(game, setting.name, 0, value, ignored)) settings[setting.name] = value;
  }
  Json scripts = Json::object();
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (const std::size_t lines = game.autobet.Scripts[seat].ScriptLines.size(); lines > 0)
      scripts[std::to_string(seat)] = {{"lines", lines}, {"active", game.autobet.ScriptActive[seat]}};
  return {{"file", file},
          {"format", kGameFileMagic},
          {"throws", Throws(game.stats)},
          {"hands", game.stats.HandCount[Slot(kAllSessions, 0)]},
          {"table", StateJson(game)},
          {"scripts", scripts},
          {"files", ReferencesJson(game, references)},
          {"settings", settings}};
}

void PrintGame(const Json& game) {
  const Json& table = game["table"];
  std::printf("%s\n%s\n", game["file"].get<std::string>().c_str(), game["format"].get<std::string>().c_str());
  std::printf("Rolls %s, hands %s; this session %s, point %s, dice %s and %s, shooter at seat %s\n",
              game["throws"].dump().c_str(), game["hands"].dump().c_str(), table["rolls"].dump().c_str(),
              table["point"].dump().c_str(), table["die1"].dump().c_str(), table["die2"].dump().c_str(),
              table["shooter"].dump().c_str());
  for (const Json& seat : table["seats"]) {
    std::printf("Seat %s: %s, bankroll %s, on table %s", seat["seat"].dump().c_str(),
                seat["name"].get<std::string>().c_str(), seat["bankroll"].dump().c_str(),
                seat["onTable"].dump().c_str());
    for (const auto& [bet, facts] : seat["bets"].items())
      std::printf(", bet %s: %s", bet.c_str(), facts["amount"].dump().c_str());
    std::printf("\n");
  }
  for (const auto& [seat, script] : game["scripts"].items())
    std::printf("Script of seat %s: %s lines%s\n", seat.c_str(), script["lines"].dump().c_str(),
                script["active"].get<bool>() ? ", active" : "");
  for (const auto& [name, file] : game["files"].items()) {
    const std::string date = file["date"];
    std::printf("%s: %s%s\n", name.c_str(), file["path"].get<std::string>().c_str(),
                date.empty() ? ", which there was not" : (", of " + date).c_str());
  }
  for (const auto& [name, value] : game["settings"].items())
    std::printf("%s = %s\n", name.c_str(), value.get<std::string>().c_str());
}

int ShowGame(const GameOptions& options) {
  CliHost host;
  std::unique_ptr<Game> game;
  GameReferences references;
  const std::string path = PathInDataFolder(options.file, options.dataFolder);
  const GameFileProblem problem = ReadGame(host, ApplicationFolder(), path, game, references);
  if (problem.Found()) return Fail(path + ": " + ProblemLine(problem));
  const Json shown = GameJson(path, *game, references);
  if (options.json)
    std::printf("%s\n", shown.dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
  else
    PrintGame(shown);
  return kDone;
}

}  // namespace

void AddGameCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<GameOptions>();
  CLI::App* command = program.add_subcommand("game", "What a game file holds");
  command->add_option("FILE", options->file, "A game file (.crp), also by its name in the data folder")
      ->required();
  command->add_option("--data-folder", options->dataFolder, kDataFolderHelp);
  command->add_flag("--json", options->json, kJsonHelp);
  command->footer("Example:\n  tessaryn-cli game evening.crp --json");
  command->callback([options, &exitCode] { exitCode = ShowGame(*options); });
}

}  // namespace tessaryn::cli
