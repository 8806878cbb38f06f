#include "cli/table_setup.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>

#include "base/messages.h"
#include "base/record_file.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/script_permissions.h"
#include "cli/script_report.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/game_file.h"
#include "play/game_file_records.h"
#include "play/house_presets.h"
#include "play/players.h"
#include "play/setting_table.h"
#include "play/settings_file.h"
#include "play/start_up.h"
#include "play/table_files.h"
#include "rules/payoffs.h"
#include "rules/seed_rng.h"
#include "stats/events_log.h"

namespace tessaryn::cli {

void AddTableOptions(CLI::App& command, TableOptions& options) {
  options.writes = true;
  command.add_option("--data-folder", options.dataFolder, kDataFolderHelp);
  command.add_option("--game", options.game,
                     "A game file to start from; other options then change its table");
  command.add_option("--save-game", options.saveGame, "Write the game to this file at the end");
  command.add_option("--player", options.players, "A player, NAME=BANKROLL; the k-th takes seat k")
      ->take_all()
      ->allow_extra_args(false);
  command
      .add_option(
          "--set", options.settings,
          "A setting, NAME=VALUE; NAME@SEAT=VALUE for one seat. FieldPreset is one of " + FieldPresetNames())
      ->take_all()
      ->allow_extra_args(false);
  AddSettingsFileOptions(command, options);
  command.add_option("--rng", options.rng, kGeneratorHelp)->check(CLI::Range(1, 8));
  command.add_option("--seed", options.seed, kSeedHelp);
  command.add_option("--roll-file", options.rollFile, "Play the dice of a roll file");
  command.add_option("--record", options.recordFile, "Record the dice to a roll file");
  command.add_option("--probabilities", options.probabilities, kProbabilitiesHelp);
  command.add_option("--script", options.scripts, "A betting script; the k-th is the k-th player's")
      ->take_all()
      ->allow_extra_args(false);
  command
      .add_option(
          "--permit", options.permits,
          "What a player's script may do, SEAT=others,reset,probabilities: act for other players, start "
          "sessions, use probability and dice roll files")
      ->take_all()
      ->allow_extra_args(false);
  command
      .add_option("--allow-output", options.outputFolders,
                  "A folder that scripts may write to, besides output in the data folder")
      ->take_all()
      ->allow_extra_args(false);
  command.add_option("--events-log", options.eventsLog, "Write the Events Log to this file");
}

void AddSettingsFileOptions(CLI::App& command, TableOptions& options) {
  command.add_option("--house", options.house, "The rules of a ready house: " + HouseKeys());
  command.add_option("--settings", options.settingsFile, kSettingsHelp);
  command.add_option("--save-settings", options.saveSettings, "Write the settings in force to this file");
}

bool ParseSettingName(const std::string& text, std::string& name, SeatId& seat) {
  const auto at = text.find('@');
  name = text.substr(0, at);
  seat = 0;
  if (at == std::string::npos) return true;
  const char* last = text.data() + text.size();
  const auto [end, fault] = std::from_chars(text.data() + at + 1, last, seat.value);
  return fault == std::errc() && end == last;
}

bool ParseAssignment(const std::string& text, std::string& name, SeatId& seat, std::string& value) {
  const auto equals = text.find('=');
  if (equals == std::string::npos) return false;
  value = text.substr(equals + 1);
  return ParseSettingName(text.substr(0, equals), name, seat);
}

std::string TargetProblem(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0) {
    if (S_ISDIR(status.st_mode)) return FileErrorText("write", path, EISDIR);
    return access(path.c_str(), W_OK) == 0 ? "" : FileErrorText("write", path, errno);
  }
  const auto slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const bool possible = errno == ENOENT && access(folder.c_str(), W_OK | X_OK) == 0;
  return possible ? "" : FileErrorText("write", path, errno);
}

namespace {

bool Told(const std::string& what) {
  Fail(what);
  return false;
}

bool OpenTheGame(Game& game, const TableOptions& options) {
  if (options.game.empty()) return true;
  std::unique_ptr<Game> read;
  GameReferences references;
  const GameFileProblem problem =
      ReadGame(*game.host, game.applicationFolder, options.game, read, references);
  if (problem.Found()) return Told("--game " + options.game + ": " + ProblemLine(problem));
  return OpenGame(game, options.game) || Told("--game " + options.game + ": it can't be opened");
}

bool SeatPlayers(Game& game, const TableOptions& options) {
  SeatId seat = 0;
  for (const std::string& player : options.players) {
    const auto equals = player.rfind('=');
    Currency bankroll = game.settings.StartBank;
    if (equals != std::string::npos && !TryParseMoney(player.substr(equals + 1), bankroll))
      return Told("--player " + player + ": " + NoAmount(player.substr(equals + 1)));
    std::string error;
    if (!JoinPlayer(game, ++seat, player.substr(0, equals), bankroll, error))
      return Told("--player " + player + ": " + error);
  }
  return true;
}

// A setting to be made, and where it was asked for.
struct WantedSetting {
  SettingChange change;
  std::string where;  // "--settings: house.txt, line 3: ", "--set MaxBet=5: "
};

// The rules of the house, the file's settings, and then those of the command line.
bool CollectSettings(const TableOptions& options, std::vector<WantedSetting>& wanted) {
  if (!options.house.empty()) {
    const HousePreset* house = FindHousePreset(options.house);
    if (house == nullptr)
      return Told("--house " + options.house + ": there is no such house; there are " + HouseKeys());
    for (const SettingChange& rule : HouseRules(*house))
      wanted.push_back({rule, "--house " + options.house + ": "});
  }
  if (!options.settingsFile.empty()) {
    std::vector<SettingLine> lines;
    if (const std::string error = ReadSettingsFile(options.settingsFile, lines); !error.empty())
      return Told("--settings: " + error);
    for (const SettingLine& line : lines)
      wanted.push_back({line.change, "--settings: " + SettingLinePrefix(options.settingsFile, line.line)});
  }
  for (const std::string& text : options.settings) {
    WantedSetting setting{{}, "--set " + text + ": "};
    if (!ParseAssignment(text, setting.change.name, setting.change.seat, setting.change.value))
      return Told(setting.where + "expected NAME=VALUE or NAME@SEAT=VALUE");
    wanted.push_back(setting);
  }
  return true;
}

// Those of the players, or those of the table: these come first, since players take the house's standard and
// its bankroll as they buy in.
bool ApplySettings(Game& game, const std::vector<WantedSetting>& wanted, bool ofPlayers) {
  std::vector<SettingChange> changes;
  std::vector<std::string> where;
  for (const WantedSetting& setting : wanted) {
    if ((setting.change.seat != 0 || IsSeatSetting(setting.change.name)) != ofPlayers) continue;
    changes.push_back(setting.change);
    where.push_back(setting.where);
  }
  std::string error;
  const std::size_t problem = FindSettingProblem(game, changes, error);
  if (problem < changes.size()) return Told(where[problem] + error);
  return SetSettings(game, changes, error) || Told("--set: " + error);
}

bool WriteLogTo(Game& game, const std::string& path) {
  if (path.empty()) return true;
  game.events.Path = path;
  return game.events.RecordEventsActive = true;
}

bool SeedDice(Game& game, const TableOptions& options) {
  if (options.rng != 0) SelectGenerator(game, options.rng);
  if (options.seed.empty()) {
    if (options.rng != 0) SeedRng(game, false);
    return true;
  }
  Currency seed;
  bool accepted = TryParseMoney(options.seed, seed) && seed >= Currency::Dollars(1) && seed.IsWhole();
  if (accepted) SeedRng(game, accepted, seed);
  return accepted || Told(NoSeed("--seed " + options.seed, SeedLimit(game.generators)));
}

bool LoadDice(Game& game, const TableOptions& options) {
  if (options.probabilities.empty()) return true;
  std::string error;
  if (!OpenProbabilityFile(game.percentage, options.probabilities, "", error))
    return Told("--probabilities " + options.probabilities + ": " + error);
  return ActivatePercentageDice(game.percentage, true) ||
         Told("--probabilities: " + MessageText<Msg::kNothingToRoll>());
}

bool PlayRollFile(Game& game, const TableOptions& options) {
  const std::string& path = options.rollFile;
  if (path.empty()) return true;
  if (access(path.c_str(), R_OK) != 0)
    return Told("--roll-file " + MessageText<Msg::kNamedFileNotFound>(With<"path">(path)));
  std::string problem = OpenRollFile(game.rollFile, path);
  if (problem.empty()) problem = SetRecorderState(game.rollFile, kRecorderPlayback);
  if (!problem.empty()) return Told("--roll-file " + path + ": " + problem);
  LogPlayback(game);
  return true;
}

// --- What is written. First it is looked at, and touched when all else is found good.

struct OutputOption {
  const char* option;
  const std::string& path;
};

bool IsOneFile(const std::string& path, const std::string& other) {
  return !path.empty() && (path == other || IsSameFile(path, other));
}

bool CheckTargets(Game& game, const TableOptions& options) {
  if (!options.rollFile.empty() && !options.recordFile.empty())
    return Told("--roll-file and --record can't be used together: a table has one dice roll file");
  const OutputOption targets[] = {{"--save-settings ", options.saveSettings},
                                  {"--save-game ", options.saveGame},
                                  {"--events-log ", options.eventsLog},
                                  {"--record ", options.recordFile},
                                  {"--roll-file ", options.rollFile}};
  for (const OutputOption& target : targets) {
    for (const OutputOption& other : targets)
      if (&other < &target && IsOneFile(target.path, other.path))
        return Told(SameFileAs(target.option + target.path, other.option));
    if (target.path.empty() || target.path == options.rollFile) continue;
    if (const std::string problem = TargetProblem(target.path); !problem.empty())
      return Told(target.option + target.path + ": " + problem);
  }
  // An old recording must be one, whatever is to become of it.
  if (options.recordFile.empty() || access(options.recordFile.c_str(), F_OK) != 0) return true;
  const std::string problem = OpenRollFile(game.rollFile, options.recordFile);
  return problem.empty() || Told("--record " + options.recordFile + ": " + problem);
}

bool SaveSettings(const Game& game, const TableOptions& options) {
  if (options.saveSettings.empty()) return true;
  const std::string error = SaveSettingsFile(game, options.saveSettings);
  return error.empty() || Told("--save-settings: " + error);
}

bool StartLog(Game& game) {
  game.events.Held = false;
  const std::string problem = CloseEventsLog(game);
  return problem.empty() || Told(problem);
}

bool StartRecording(Game& game, const TableOptions& options) {
  RollFile& file = game.rollFile;
  if (options.recordFile.empty()) return true;
  std::string problem = IsRollFileOpen(file) ? "" : OpenRollFile(file, options.recordFile);
  SelectAllRolls(file);
  if (problem.empty() && RollFileLength(file) > 0) problem = DeleteRolls(file);
  SetRollFileCursor(file, 1);
  if (problem.empty()) problem = SetRecorderState(file, kRecorderRecord);
  return problem.empty() || Told("--record " + options.recordFile + ": " + problem);
}

// The data folder is made, and taken by a table that is played: beside another program it gets its own.
bool TakeDataFolder(Game& game, const TableOptions& options) {
  std::string folder = options.dataFolder;
  std::string error;
  if (!PrepareDataFolder(folder, error)) return Told(error);
  game.dataFolder = game.ownFolder = folder;
  if (!options.writes) return true;
  const std::string told = ClaimDataFolder(game.folderLock, game.ownFolder, "tessaryn-cli");
  if (!told.empty()) std::fprintf(stderr, "tessaryn-cli: %s\n", AsLines(told).c_str());
  return true;
}

// Gives the k-th file to the k-th player, and activates it. False, with the reason told on standard error,
// when a file can't be read or its script has an error.
bool LoadScripts(Game& game, const std::vector<std::string>& files,
                 const std::vector<std::string>& outputFolders) {
  game.autobet.AllowedOutputFolders = outputFolders;
  SeatId seat = 0;
  for (const std::string& file : files) {
    std::string error;
    if (++seat > kSeats || !IsOccupied(game.table, seat)) {
      Fail("--script " + file + ": there is no player " + std::to_string(seat) + " to play it");
      return false;
    }
    if (!OpenScript(game, seat, file, error)) {
      Fail("--script " + error);
      return false;
    }
    const ScriptCheck check = CheckScript(game, seat);
    if (!check.ok && !game.autobet.Scripts[seat].ScriptLines.empty() && check.diagnostic.Failed()) {
      std::fputs(CheckReport(file, game.autobet.Scripts[seat].ScriptLines, check).c_str(), stderr);
      return false;
    }
    SetScriptActive(game, seat, true);
  }
  return true;
}

// SEAT=PERMISSION,... False, with the reason told, for one that means nothing.
bool PermitScripts(Game& game, const std::vector<std::string>& permits) {
  for (const std::string& permit : permits) {
    const auto equals = permit.find('=');
    SeatId seat = 0;
    std::string problem = equals == std::string::npos ? "expected SEAT=PERMISSION,..."
                                                      : ReadSeat(game, permit.substr(0, equals), seat);
    for (auto at = equals; problem.empty() && at != std::string::npos;) {
      const auto comma = permit.find(',', at + 1);
      problem = Permit(game, seat, permit.substr(at + 1, comma - at - 1), true);
      at = comma;
    }
    if (!problem.empty()) {
      Fail("--permit " + permit + ": " + problem);
      return false;
    }
  }
  return true;
}

}  // namespace

std::string ProblemLine(const GameFileProblem& problem) {
  std::string line;
  for (const char c : problem.Text()) {
    const bool blank = c == '\r' || c == ' ';
    if (!blank) line += c;
    if (blank && !line.empty() && line.back() != ' ') line += ' ';
  }
  return problem.reason.empty() ? line : line + " (" + problem.reason + ")";
}

bool EndTable(Game& game, const TableOptions& options) {
  std::string error;
  const bool saved = options.saveGame.empty() || SaveGame(game, options.saveGame, error) ||
                     Told("--save-game: " + AsLines(error));
  const std::string unwritten = EndGame(game);
  return (unwritten.empty() || Told(AsLines(unwritten))) && saved;
}

std::unique_ptr<Game> SetUpTable(CliHost& host, const TableOptions& options) {
  std::unique_ptr<Game> game = StartGame(
      host, ApplicationFolder(), options.dataFolder.empty() ? DefaultDataFolder() : options.dataFolder);
  game->events.Held = true;
  std::vector<WantedSetting> wanted;
  const bool good = OpenTheGame(*game, options) && WriteLogTo(*game, options.eventsLog) &&
                    CollectSettings(options, wanted) && ApplySettings(*game, wanted, false) &&
                    SeatPlayers(*game, options) && ApplySettings(*game, wanted, true) &&
                    PermitScripts(*game, options.permits) && SeedDice(*game, options) &&
                    LoadDice(*game, options) && PlayRollFile(*game, options) &&
                    LoadScripts(*game, options.scripts, options.outputFolders) &&
                    CheckTargets(*game, options) && !Interrupted();
  // Everything that was asked for is good: from here on files are touched.
  const bool ready = good && TakeDataFolder(*game, options) && SaveSettings(*game, options) &&
                     StartLog(*game) && StartRecording(*game, options);
  return ready ? std::move(game) : nullptr;
}

}  // namespace tessaryn::cli
