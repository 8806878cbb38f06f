#include "play/game_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>

#include "autobet/language/script_files.h"
#include "base/interrupts.h"
#include "base/record_file.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/game_file_records.h"
#include "play/start_up.h"
#include "play/table_files.h"
#include "rules/consistency.h"
#include "state/run_stop.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

constexpr const char* kProgramName = "Tessaryn";
constexpr int kFileError = 75;  // of paths and files, in the general error box

// --- Names and dates.

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

std::string FullPath(const std::string& path) {
  std::error_code failed;
  const auto full = std::filesystem::absolute(path, failed);
  return path.empty() || failed ? path : full.string();
}

bool Exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

// ISO form, in the machine's local time; empty if there is no such file.
std::string GameFileDate(const std::string& path) {
  struct stat status {};
  if (path.empty() || stat(path.c_str(), &status) != 0) return "";
  std::tm local{};
  char text[32];
  if (localtime_r(&status.st_mtime, &local) == nullptr) return "";
  return std::string(text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local));
}

FileReference ReferenceTo(const std::string& path) {
  const std::string full = FullPath(path);
  return {full, GameFileDate(full)};
}

std::string DefaultSessionsLog(const Game& game, int seat) {
  return game.dataFolder + Lower(game.table.seats[seat].SeatName) + ".slg";
}

// --- What a game refers to.

GameReferences ReferencesOf(const Game& game, const std::string& probabilityFile) {
  GameReferences references;
  references.rollFile = ReferenceTo(game.rollFile.RollFileName);
  references.probability = ReferenceTo(probabilityFile);
  // A log that nothing was ever written to is none.
  const std::string log = EventsLogPath(game);
  if (!game.events.Path.empty() || Exists(log)) references.eventsLog = ReferenceTo(log);
  for (int seat = 1; seat <= kSeats; ++seat) {
    references.script[seat] = ReferenceTo(game.autobet.Scripts[seat].ScriptFileName);
    references.sessionsLog[seat] = ReferenceTo(game.table.seats[seat].SessionsLogName);
  }
  return references;
}

std::string NameProblem(const std::string& what, const std::string& name) {
  if (name.size() > kPathWidth)
    return what + " is longer than " + std::to_string(kPathWidth) + " bytes: " + name;
  if (!name.empty() && name.back() == ' ') return what + " ends with a blank: \"" + name + "\"";
  return "";
}

// What a record can't hold; empty when all of it fits.
std::string ReferencesProblem(const Game& game, const GameReferences& references) {
  std::string problem;
  const auto look = [&problem](const std::string& what, const std::string& name) {
    if (problem.empty()) problem = NameProblem(what, name);
  };
  look("the path of the dice roll file", references.rollFile.path);
  look("the path of the probability file", references.probability.path);
  look("the path of the Events Log", references.eventsLog.path);
  for (int seat = 1; seat <= kSeats; ++seat) {
    const std::string& name = game.table.seats[seat].SeatName;
    if (name.empty()) continue;
    look("the name of seat " + std::to_string(seat), name);
    look("the path of " + name + "'s auto-bet file", references.script[seat].path);
    look("the path of " + name + "'s Sessions Log", references.sessionsLog[seat].path);
  }
  return problem;
}

// --- Writing.

constexpr std::uint64_t kDigestStart = 14'695'981'039'346'656'037u;
constexpr std::uint64_t kDigestStep = 1'099'511'628'211u;

// Of the game, without its screens and the dates of files.
std::uint64_t DigestOf(const Game& game) {
  GameReferences references = ReferencesOf(game, game.percentage.ProbFileName);
  for (FileReference* reference : {&references.rollFile, &references.probability, &references.eventsLog})
    reference->date.clear();
  for (int seat = 1; seat <= kSeats; ++seat)
    references.script[seat].date = references.sessionsLog[seat].date = "";
  std::uint64_t digest = kDigestStart;
  for (const Record& record : WriteGameRecords(game, references, GameFileKind::kDigest).Records)
    for (const unsigned char byte : record) digest = (digest ^ byte) * kDigestStep;
  return digest;
}

std::string WriteGame(const Game& game, const std::string& path, const GameReferences& references,
                      GameFileKind kind) {
  if (const std::string problem = ReferencesProblem(game, references); !problem.empty())
    return "Unable to write " + path + ": " + problem;
  return WriteRecordFile(path, WriteGameRecords(game, references, kind));
}

// The file that the probabilities are in; empty when they are in none. Unsaved ones of the default game are
// written to one.
std::string SaveUnsavedProbabilities(Game& game, const std::string& gamePath, std::string& error) {
  if (!game.percentage.ProbDirty)
    return Exists(game.percentage.ProbFileName) ? game.percentage.ProbFileName : "";
  if (!IsDefaultGame(gamePath)) return "";
  const std::string path = game.ownFolder + kDefaultProbabilityFile;
  error = NameProblem("the path of the probability file", FullPath(path));
  if (error.empty()) SaveProbabilityFile(game.percentage, path, error);
  return path;
}

}  // namespace

std::string DefaultGamePath(const Game& game) { return game.ownFolder + kDefaultGameFile; }
std::string BackupGamePath(const Game& game) { return game.ownFolder + kBackupGameFile; }
std::string AutosavePath(const Game& game) { return game.ownFolder + kAutosaveGameFile; }
bool IsDefaultGame(std::string_view path) { return Lower(FileTitle(path)) == kDefaultGameFile; }

bool SaveGame(Game& game, const std::string& path, std::string& error) {
  FlushTableFiles(game);
  error = ReferencesProblem(game, ReferencesOf(game, ""));
  if (!error.empty()) {
    error = "Unable to write " + path + ": " + error;
    return false;
  }
  const std::string probabilities = SaveUnsavedProbabilities(game, path, error);
  if (error.empty()) error = WriteGame(game, path, ReferencesOf(game, probabilities), GameFileKind::kGame);
  if (!error.empty()) return false;
  game.file = {};
  if (!IsDefaultGame(path)) game.file = {FullPath(path), DigestOf(game)};
  return true;
}

bool SaveGameAndTell(Game& game, const std::string& path) {
  std::string error;
  if (SaveGame(game, path, error)) return true;
  ReportError(game, error, kFileError, "Save Game");
  return false;
}

std::string GameCaption(const Game& game) {
  if (game.file.Path.empty()) return kProgramName;
  return std::string(kProgramName) + " (" + FileTitle(game.file.Path) + ")";
}

bool IsSessionUnsaved(const Game& game) {
  return !game.file.Path.empty() && DigestOf(game) != game.file.Written;
}

void ForgetGameFile(Game& game) { game.file = {}; }

// --- Reading.

namespace {

constexpr const char* kUnableToOpenTitle = "Unable to Open Tessaryn Game File";

GameFileProblem Damaged(const std::string& path, const std::string& reason) {
  return {kUnableToOpenTitle,
          "An error occurred while attempting to open:\r\r" + path +
              "\r\rIt may be corrupted or not a true Tessaryn game file. Check path, filename, or device.",
          reason};
}

GameFileProblem ReadRecords(const std::string& path, RecordFile& file) {
  if (!Exists(path) && (errno == ENOENT || errno == ENOTDIR))
    return {"Game File Not Found", "File not found.\r\rCheck path, filename, or device.", path};
  std::string content;
  if (const std::string error = ReadWholeFile(path, content); !error.empty()) return Damaged(path, error);
  const std::string_view start = std::string_view(content).substr(0, kPathWidth);
  if (start.find(kProgramName) == std::string_view::npos)
    return {"Unable to Open File", path + "\r\rThis is not a Tessaryn game file.", ""};
  if (start.find(kGameFileMagic) == std::string_view::npos)
    return {kUnableToOpenTitle,
            path +
                "\r\rThis file appears to be from an incompatible version or is not a true Tessaryn game "
                "file.",
            ""};
  if (!SplitRecords(content, file)) return Damaged(path, "it ends in the middle of a record");
  return {};
}

}  // namespace

GameFileProblem ReadGame(Host& host, const std::string& applicationFolder, const std::string& path,
                         std::unique_ptr<Game>& game, GameReferences& references) {
  RecordFile file;
  game.reset();
  if (GameFileProblem problem = ReadRecords(path, file); problem.Found()) return problem;
  std::unique_ptr<Game> read = StartGame(host, applicationFolder, "");
  if (!ReadGameRecords(file, *read, references))
    return Damaged(path, "it ends early, or bytes of it changed");
  if (const std::string reason = SettleOpenedGame(*read); !reason.empty()) return Damaged(path, reason);
  game = std::move(read);
  return {};
}

// --- Taking over.

namespace {

enum class OpenAs { kGame, kDefault, kAutosave };

// Text, and the file's name below it.
void TellFile(Game& game, const char* title, const std::string& text, const std::string& path) {
  ShowMessage(game, title, text + "\r\r" + path, kMsgOk | kMsgAlert);
}

std::string WasInUse(const char* kind, const char* what) {
  return "The following " + std::string(kind) + " file (that was in use when this game was saved) " + what;
}

bool Changed(const FileReference& reference) { return GameFileDate(reference.path) != reference.date; }

// The files that the table has open are written and closed. False, told, when one can't be: the table then
// stays as it is.
bool ReleaseFiles(Game& game) {
  std::string error = CloseEventsLog(game);
  if (error.empty()) error = CloseRollFile(game.rollFile);
  if (!error.empty()) ReportError(game, error, kFileError, "Open Game");
  return error.empty();
}

void TakeOverEvents(EventsLog& log, const EventsLog& loaded) {
  ForEachMember(std::type_identity<EventsLog>{}, [&](const char*, auto member) {
    using Field = std::remove_reference_t<decltype(log.*member)>;
    if constexpr (std::is_array_v<Field>)
      std::copy(std::begin(loaded.*member), std::end(loaded.*member), std::begin(log.*member));
    else if constexpr (std::is_copy_assignable_v<Field>)
      log.*member = loaded.*member;
  });
}

// Keys of the file that are free here. Those of the table stay: they are the user's, and in a file of their
// own.
void TakeOverHotKeys(std::vector<HotKey>& keys, const std::vector<HotKey>& loaded) {
  for (const HotKey& key : loaded)
    if (std::none_of(keys.begin(), keys.end(), [&](const HotKey& known) {
          return std::tolower(static_cast<unsigned char>(known.key)) ==
                 std::tolower(static_cast<unsigned char>(key.key));
        }))
      keys.push_back(key);
}

void TakeOverScripts(AutoBet& autobet, AutoBet& loaded) {
  loaded.AllowedOutputFolders = std::move(autobet.AllowedOutputFolders);
  loaded.OutputOwners = std::move(autobet.OutputOwners);
  loaded.StepMode = autobet.StepMode;
  loaded.StepsShown = autobet.StepsShown;
  loaded.StepsHold = autobet.StepsHold;
  autobet = std::move(loaded);
}

void TakeOver(Game& game, Game& loaded) {
  loaded.table.LastActivityTick = game.table.LastActivityTick;
  loaded.table.TurboCalibration = game.table.TurboCalibration;
  game.table = std::move(loaded.table);
  game.settings = loaded.settings;
  game.payoffs = loaded.payoffs;
  game.stats = loaded.stats;
  game.graph = loaded.graph;
  Generators& generators = game.generators;
  generators.GeneratorIndex = loaded.generators.GeneratorIndex;
  generators.RngUserSeed = loaded.generators.RngUserSeed;
  generators.RngReseedNewSessions = loaded.generators.RngReseedNewSessions;
  generators.RngSeedState = loaded.generators.RngSeedState;
  generators.RngLastSeed = loaded.generators.RngLastSeed;
  TakeOverScripts(game.autobet, loaded.autobet);
  const bool held = game.events.Held;
  TakeOverEvents(game.events, loaded.events);
  game.events.Held = held;
  std::vector<HotKey> keys = std::move(game.screen.HotKeys);
  TakeOverHotKeys(keys, loaded.screen.HotKeys);
  game.screen = std::move(loaded.screen);
  game.screen.HotKeys = std::move(keys);
}

// --- The files that it refers to, each with its told check.

void OpenReferredRollFile(Game& game, const RollFile& loaded, const FileReference& reference) {
  RollFile& file = game.rollFile;
  file.RollFileOutputFormat = loaded.RollFileOutputFormat;
  file.RollFileInsertMode = loaded.RollFileInsertMode;
  if (reference.path.empty()) return;
  if (!Exists(reference.path))
    return TellFile(game, "Missing Dice Roll File", WasInUse("Dice Roll", "was not found:"), reference.path);
  const bool changed = Changed(reference);
  if (const std::string error = OpenRollFile(file, reference.path); !error.empty()) {
    ShowMessage(game, kUnableToOpenRollFileTitle, error);
    return;
  }
  if (changed)
    TellFile(game, "Altered Dice Roll File", WasInUse("Dice Roll", "has been changed:"), reference.path);
  if (const std::string error = SetRecorderState(file, loaded.RecorderState); !error.empty())
    ReportError(game, error, kFileError, "Open Game");
  SetRollFileCursor(file, loaded.RollFileCursor);
  file.RollFileSelectEnd = std::clamp(loaded.RollFileSelectEnd, 1, RollFileLength(file) + 1);
}

void OpenReferredProbabilities(Game& game, const PercentageDice& loaded, const FileReference& reference,
                               OpenAs as) {
  PercentageDice dice;
  std::string error;
  const bool changed = Changed(reference);
  const bool found = reference.path.empty() || OpenProbabilityFile(dice, reference.path, "", error);
  if (found && as == OpenAs::kAutosave && loaded.ProbDirty) {
    dice.ProbFileName = loaded.ProbFileName;
    dice.ProbDirty = true;
  }
  dice.ProbDisplayMode = loaded.ProbDisplayMode;
  dice.ProbRollsOutOf = loaded.ProbRollsOutOf;
  ActivatePercentageDice(dice, loaded.PercentageDiceActive);
  game.percentage = dice;
  if (!found)
    TellFile(game, "Missing Probability File", WasInUse("Probability", "was not found:"), reference.path);
  else if (!reference.path.empty() && changed)
    TellFile(game, "Altered Probability File", WasInUse("Probability", "has been changed:"), reference.path);
}

void OpenReferredLog(Game& game, const FileReference& reference) {
  EventsLog& log = game.events;
  log.Path.clear();
  if (reference.path.empty() || reference.path == FullPath(EventsLogPath(game))) return;
  if (Exists(reference.path) || reference.date.empty()) {
    log.Path = reference.path;
    return;
  }
  log.EventsLogTopLine = 1;
  ShowMessage(game, "Missing Events Log",
              reference.path +
                  "\r\rThe following Events Log (that was open when this game was saved) was not found.");
}

void DropScript(Game& game, int seat) {
  AutoBet& autobet = game.autobet;
  SeatScript& script = autobet.Scripts[seat];
  script.ScriptLines.clear();
  script.ScriptNesting.clear();
  script.ScriptFileName.clear();
  script.Unsaved = autobet.ScriptActive[seat] = false;
  autobet.ScriptActive[0] =
      std::any_of(autobet.ScriptActive + 1, autobet.ScriptActive + kSeatRows, [](bool on) { return on; });
}

void OpenReferredScript(Game& game, int seat, const FileReference& reference) {
  SeatScript& script = game.autobet.Scripts[seat];
  const std::string& name = game.table.seats[seat].SeatName;
  script.ScriptFileName = reference.path;
  if (reference.path.empty()) return;
  if (!Exists(reference.path)) {
    DropScript(game, seat);
    return TellFile(game, "Auto-Bet File Not Found",
                    name + "'s auto-bet file was not found:", reference.path);
  }
  if (Changed(reference)) {
    script.Unsaved = false;
    TellFile(game, "Auto-Bet File Changed", name + "'s auto-Bet file has been changed:", reference.path);
  }
  if (script.Unsaved) return;  // as it was edited
  std::vector<std::string> lines;
  if (!ReadScriptFile(reference.path, lines).Ok()) {
    DropScript(game, seat);
    return TellFile(
        game, "Unable To Open Auto-Bet File",
        "An error occurred while attempting to load " + name + "'s auto-bet file:", reference.path);
  }
  if (lines == script.ScriptLines) return;
  script.ScriptLines = std::move(lines);
  script.ScriptNesting.clear();
}

void OpenReferredSessionsLog(Game& game, int seat, const FileReference& reference) {
  std::string& log = game.table.seats[seat].SessionsLogName;
  log = reference.path;
  if (reference.date.empty() || Exists(reference.path)) return;
  log = DefaultSessionsLog(game, seat);
  ShowMessage(game, "Sessions Log Not Found",
              "The following Sessions Log for " + game.table.seats[seat].SeatName + " was not found: \r\r" +
                  reference.path + "\r\r" +
                  (Exists(log) ? "The following existing Sessions Log will be opened instead:"
                               : "The following new Sessions Log will be created and opened instead:") +
                  "\r\r" + log);
}

void OpenReferredFiles(Game& game, const Game& loaded, const GameReferences& references, OpenAs as) {
  OpenReferredRollFile(game, loaded.rollFile, references.rollFile);
  OpenReferredProbabilities(game, loaded.percentage, references.probability, as);
  OpenReferredLog(game, references.eventsLog);
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game.table, seat)) continue;
    OpenReferredScript(game, seat, references.script[seat]);
    OpenReferredSessionsLog(game, seat, references.sessionsLog[seat]);
  }
}

bool OpenGameAs(Game& game, const std::string& path, OpenAs as) {
  if (game.table.AutoRollActive) StopRun(game, "");
  // What is pending reaches the disk first: it may be what the game refers to.
  FlushTableFiles(game);
  std::unique_ptr<Game> loaded;
  GameReferences references;
  const GameFileProblem problem = ReadGame(*game.host, game.applicationFolder, path, loaded, references);
  if (problem.Found()) {
    ShowMessage(game, problem.title, problem.text);
    return false;
  }
  if (!ReleaseFiles(game)) return false;
  const GameFileState file = loaded->file;
  TakeOver(game, *loaded);
  OpenReferredFiles(game, *loaded, references, as);
  game.file = as == OpenAs::kAutosave ? file : GameFileState{};
  if (as == OpenAs::kGame) game.file = {FullPath(path), DigestOf(game)};
  game.host->Changed(game, Change::kEverything);
  RequireConsistency(game);
  return true;
}

}  // namespace

bool OpenGame(Game& game, const std::string& path) {
  return OpenGameAs(game, path, IsDefaultGame(path) ? OpenAs::kDefault : OpenAs::kGame);
}

// --- Start and end.

std::string GameToOpen(Game& game, std::string_view argument) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const auto trim = [kBlanks](std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
  };
  trim(argument);
  if (argument.size() >= 2 && argument.front() == '"' && argument.back() == '"')
    argument = argument.substr(1, argument.size() - 2);
  if (argument.empty()) return DefaultGamePath(game);
  if (Lower(argument).ends_with(kGameFileExtension)) return std::string(argument);
  ShowMessage(game, kUnableToOpenTitle,
              "This is not a recognized as a Tessaryn game filename.\rThe last default game file will be "
              "opened instead.");
  return DefaultGamePath(game);
}

bool OpenFirstGame(Game& game, std::string_view argument) {
  const std::string path = GameToOpen(game, argument);
  const std::string standard = DefaultGamePath(game);
  if (path != standard && OpenGame(game, path)) return true;
  if (!Exists(standard)) return false;
  if (OpenGame(game, standard)) return true;
  const std::string backup = BackupGamePath(game);
  if (!Exists(backup)) return false;
  const std::string date = GameFileDate(backup);
  const std::string question = "The last default game file can't be opened.\r\rThe one before it, of " +
                               date + ", was kept.  Would you like to open that one instead?";
  return ShowMessage(game, kUnableToOpenTitle, question, kMsgYes | kMsgNo | kMsgQuestion) == kResultYes &&
         OpenGameAs(game, backup, OpenAs::kDefault);
}

namespace {

// The default game that is about to be replaced. One that can't be read takes no backup's place.
std::string KeepBackup(Game& game) {
  const std::string path = DefaultGamePath(game);
  // A program that a signal ends reads no more files: the backup of the time before stays.
  if (!Exists(path) || Interrupted()) return "";
  std::unique_ptr<Game> read;
  GameReferences references;
  if (ReadGame(*game.host, game.applicationFolder, path, read, references).Found()) {
    std::rename(path.c_str(), (game.ownFolder + kDamagedGameFile).c_str());
    return "";
  }
  std::string content;
  const std::string error = ReadWholeFile(path, content);
  return error.empty() ? ReplaceFile(BackupGamePath(game), content) : error;
}

}  // namespace

bool SaveDefaultGame(Game& game, std::string& error) {
  error = KeepBackup(game);
  if (error.empty() && SaveGame(game, DefaultGamePath(game), error)) RemoveAutosave(game);
  return error.empty();
}

bool AutosaveGame(Game& game, std::string& error) {
  error = game.table.RollInProgress ? "A roll is under way." : "";
  if (!error.empty()) return false;
  FlushTableFiles(game);
  std::string probabilities = Exists(game.percentage.ProbFileName) ? game.percentage.ProbFileName : "";
  if (game.percentage.ProbDirty) {
    PercentageDice copy = game.percentage;
    probabilities = game.ownFolder + kAutosaveProbabilityFile;
    SaveProbabilityFile(copy, probabilities, error);
  }
  if (error.empty())
    error = WriteGame(game, AutosavePath(game), ReferencesOf(game, probabilities), GameFileKind::kAutosave);
  return error.empty();
}

bool HasAutosave(const Game& game) { return Exists(AutosavePath(game)); }

bool OfferAutosave(Game& game) {
  const std::string path = AutosavePath(game);
  if (!Exists(path)) return false;
  const std::string question =
      "Tessaryn did not come to an orderly end the last time.\r\rThe game as it was kept during play, on " +
      GameFileDate(path) + ", is still there.  Would you like to go on with it?";
  const bool opened =
      ShowMessage(game, "Restore Game", question, kMsgYes | kMsgNo | kMsgQuestion) == kResultYes &&
      OpenGameAs(game, path, OpenAs::kAutosave);
  RemoveAutosave(game);
  return opened;
}

void RemoveAutosave(const Game& game) {
  unlink(AutosavePath(game).c_str());
  unlink((game.ownFolder + kAutosaveProbabilityFile).c_str());
}

}  // namespace tessaryn
