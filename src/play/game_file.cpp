#include "play/game_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>

#include "autobet/language/script_files.h"
#include "base/interrupts.h"
#include "base/letters.h"
#include "base/messages.h"
#include "base/record_file.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/game_file_records.h"
#include "play/session_luck.h"
#include "play/start_up.h"
#include "play/table_files.h"
#include "rules/consistency.h"
#include "state/run_stop.h"
#include "state/show_message.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

constexpr const char* kProgramName = "Tessaryn";
constexpr int kFileError = 75;  // of paths and files, in the general error box

// --- Names and dates.

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

// As a person reads it.
std::string DateInBox(const std::string& path) {
  std::string date = GameFileDate(path);
  std::replace(date.begin(), date.end(), 'T', ' ');
  return date;
}

FileReference ReferenceTo(const std::string& path) {
  const std::string full = FullPath(path);
  return {full, GameFileDate(full)};
}

std::string DefaultSessionsLog(const Game& game, SeatId seat) {
  return game.dataFolder + Lowered(game.table.seats[seat].SeatName) + ".slg";
}

// --- What a game refers to.

GameReferences ReferencesOf(const Game& game, const std::string& probabilityFile) {
  GameReferences references;
  references.rollFile = ReferenceTo(game.rollFile.RollFileName);
  references.probability = ReferenceTo(probabilityFile);
  // A log that nothing was ever written to is none.
  const std::string log = EventsLogPath(game);
  if (!game.events.Path.empty() || Exists(log)) references.eventsLog = ReferenceTo(log);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    references.script[seat] = ReferenceTo(game.autobet.Scripts[seat].ScriptFileName);
    references.sessionsLog[seat] = ReferenceTo(game.table.seats[seat].SessionsLogName);
  }
  return references;
}

std::string NameProblem(const std::string& what, const std::string& name) {
  if (name.size() > kPathWidth)
    return MessageText<Msg::kNameTooLong>(With<"what">(what), With<"limit">(kPathWidth), With<"name">(name));
  if (!name.empty() && name.back() == ' ')
    return MessageText<Msg::kNameEndsWithBlank>(With<"what">(what), With<"name">(name));
  return "";
}

// What a record can't hold; empty when all of it fits.
std::string ReferencesProblem(const Game& game, const GameReferences& references) {
  std::string problem;
  const auto look = [&problem](const std::string& what, const std::string& name) {
    if (problem.empty()) problem = NameProblem(what, name);
  };
  look(MessageText<Msg::kPathOfRollFile>(), references.rollFile.path);
  look(MessageText<Msg::kPathOfProbabilities>(), references.probability.path);
  look(MessageText<Msg::kPathOfEventsLog>(), references.eventsLog.path);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const std::string& name = game.table.seats[seat].SeatName;
    if (name.empty()) continue;
    look(MessageText<Msg::kNameOfSeat>(With<"seat">(seat)), name);
    look(MessageText<Msg::kPathOfScript>(With<"player">(name)), references.script[seat].path);
    look(MessageText<Msg::kPathOfSessionsLog>(With<"player">(name)), references.sessionsLog[seat].path);
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
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    references.script[seat].date = references.sessionsLog[seat].date = "";
  std::uint64_t digest = kDigestStart;
  for (const Record& record : WriteGameRecords(game, references, GameFileKind::kDigest).Records)
    for (const unsigned char byte : record) digest = (digest ^ byte) * kDigestStep;
  return digest;
}

std::string WriteGame(const Game& game, const std::string& path, const GameReferences& references,
                      GameFileKind kind) {
  if (const std::string problem = ReferencesProblem(game, references); !problem.empty())
    return MessageText<Msg::kGameNotWritten>(With<"path">(path), With<"problem">(problem));
  return WriteRecordFile(path, WriteGameRecords(game, references, kind));
}

// The file that the probabilities are in; empty when they are in none. Unsaved ones of the default game are
// written to one.
std::string SaveUnsavedProbabilities(Game& game, const std::string& gamePath, std::string& error) {
  if (!game.percentage.ProbDirty)
    return Exists(game.percentage.ProbFileName) ? game.percentage.ProbFileName : "";
  if (!IsDefaultGame(gamePath)) return "";
  const std::string path = game.ownFolder + kDefaultProbabilityFile;
  error = NameProblem(MessageText<Msg::kPathOfProbabilities>(), FullPath(path));
  if (error.empty()) SaveProbabilityFile(game.percentage, path, error);
  return path;
}

}  // namespace

std::string DefaultGamePath(const Game& game) { return game.ownFolder + kDefaultGameFile; }
std::string BackupGamePath(const Game& game) { return game.ownFolder + kBackupGameFile; }
std::string AutosavePath(const Game& game) { return game.ownFolder + kAutosaveGameFile; }
bool IsDefaultGame(std::string_view path) { return Lowered(FileTitle(path)) == kDefaultGameFile; }

bool SaveGame(Game& game, const std::string& path, std::string& error) {
  FlushTableFiles(game);
  error.clear();
  if (const std::string problem = ReferencesProblem(game, ReferencesOf(game, "")); !problem.empty()) {
    error = MessageText<Msg::kGameNotWritten>(With<"path">(path), With<"problem">(problem));
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

GameFileProblem Damaged(const std::string& path, const std::string& reason) {
  return {Msg::kGameDamaged, path, reason};
}

GameFileProblem ReadRecords(const std::string& path, RecordFile& file) {
  if (!Exists(path) && (errno == ENOENT || errno == ENOTDIR)) return {Msg::kGameNotFound, path, path};
  std::string content;
  if (const std::string error = ReadWholeFile(path, content); !error.empty()) return Damaged(path, error);
  const std::string_view start = std::string_view(content).substr(0, kPathWidth);
  if (start.find(kProgramName) == std::string_view::npos) return {Msg::kNotAGameFile, path, ""};
  if (start.find(kGameFileMagic) == std::string_view::npos) return {Msg::kGameIncompatible, path, ""};
  if (!SplitRecords(content, file)) return Damaged(path, MessageText<Msg::kEndsWithinRecord>());
  return {};
}

}  // namespace

static_assert(NeedOnly({Msg::kGameNotFound, Msg::kNotAGameFile, Msg::kGameIncompatible, Msg::kGameDamaged},
                       {"path"}));

std::vector<MessageArgument> GameFileProblem::Arguments() const { return {{"path", path}}; }
std::string GameFileProblem::Text() const { return MessageText(message, Arguments()); }

GameFileProblem ReadGame(Host& host, const std::string& applicationFolder, const std::string& path,
                         std::unique_ptr<Game>& game, GameReferences& references) {
  RecordFile file;
  game.reset();
  if (GameFileProblem problem = ReadRecords(path, file); problem.Found()) return problem;
  std::unique_ptr<Game> read = StartGame(host, applicationFolder, "");
  if (!ReadGameRecords(file, *read, references))
    return Damaged(path, MessageText<Msg::kEndsEarlyOrChanged>());
  if (const std::string reason = SettleOpenedGame(*read); !reason.empty()) return Damaged(path, reason);
  game = std::move(read);
  return {};
}

// --- Taking over.

namespace {

enum class OpenAs { kGame, kDefault, kAutosave };

template <Msg kId>
void TellFile(Game& game, const FileReference& reference) {
  ShowMessage<kId>(game, With<"path">(reference.path));
}

template <Msg kId>
void TellScript(Game& game, SeatId seat, const FileReference& reference) {
  ShowMessage<kId>(game, With<"player">(game.table.seats[seat].SeatName), With<"path">(reference.path));
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
    if (std::none_of(keys.begin(), keys.end(),
                     [&](const HotKey& known) { return Lowered(known.key) == Lowered(key.key); }))
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
  if (!Exists(reference.path)) return TellFile<Msg::kRollFileMissing>(game, reference);
  const bool changed = Changed(reference);
  if (const std::string error = OpenRollFile(file, reference.path); !error.empty()) {
    ShowMessage<Msg::kRollFileNotOpened>(game, With<"problem">(error));
    return;
  }
  if (changed) TellFile<Msg::kRollFileAltered>(game, reference);
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
    TellFile<Msg::kProbabilitiesMissing>(game, reference);
  else if (!reference.path.empty() && changed)
    TellFile<Msg::kProbabilitiesAltered>(game, reference);
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
  TellFile<Msg::kEventsLogMissing>(game, reference);
}

void DropScript(Game& game, SeatId seat) {
  AutoBet& autobet = game.autobet;
  SeatScript& script = autobet.Scripts[seat];
  script.ScriptLines.clear();
  script.ScriptNesting.clear();
  script.ScriptFileName.clear();
  script.Unsaved = autobet.ScriptActive[seat] = false;
  autobet.ScriptActive[0] =
      std::any_of(autobet.ScriptActive + 1, autobet.ScriptActive + kSeatRows, [](bool on) { return on; });
}

void OpenReferredScript(Game& game, SeatId seat, const FileReference& reference) {
  SeatScript& script = game.autobet.Scripts[seat];
  script.ScriptFileName = reference.path;
  if (reference.path.empty()) return;
  if (!Exists(reference.path)) {
    DropScript(game, seat);
    return TellScript<Msg::kScriptMissing>(game, seat, reference);
  }
  if (Changed(reference)) {
    script.Unsaved = false;
    TellScript<Msg::kScriptAltered>(game, seat, reference);
  }
  if (script.Unsaved) return;  // as it was edited
  std::vector<std::string> lines;
  if (!ReadScriptFile(reference.path, lines).Ok()) {
    DropScript(game, seat);
    return TellScript<Msg::kScriptNotOpened>(game, seat, reference);
  }
  if (lines == script.ScriptLines) return;
  script.ScriptLines = std::move(lines);
  script.ScriptNesting.clear();
}

void OpenReferredSessionsLog(Game& game, SeatId seat, const FileReference& reference) {
  std::string& log = game.table.seats[seat].SessionsLogName;
  log = reference.path;
  if (reference.date.empty() || Exists(reference.path)) return;
  log = DefaultSessionsLog(game, seat);
  ShowMessage<Msg::kSessionsLogMissing>(game, With<"player">(game.table.seats[seat].SeatName),
                                        With<"path">(reference.path), With<"existing">(Exists(log)),
                                        With<"log">(log));
}

void OpenReferredFiles(Game& game, const Game& loaded, const GameReferences& references, OpenAs as) {
  OpenReferredRollFile(game, loaded.rollFile, references.rollFile);
  OpenReferredProbabilities(game, loaded.percentage, references.probability, as);
  OpenReferredLog(game, references.eventsLog);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
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
    ShowMessage(game, problem.message, problem.Arguments());
    return false;
  }
  if (!ReleaseFiles(game)) return false;
  const GameFileState file = loaded->file;
  TakeOver(game, *loaded);
  RestartLuck(game);
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
  if (Lowered(argument).ends_with(kGameFileExtension)) return std::string(argument);
  ShowMessage<Msg::kNotAGameFileName>(game);
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
  return Confirms<Msg::kAskOpenBackup>(game, With<"date">(DateInBox(backup))) &&
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
  error = game.table.RollInProgress ? MessageText<Msg::kRollUnderWay>() : "";
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
  const bool opened = Confirms<Msg::kAskRestoreGame>(game, With<"date">(DateInBox(path))) &&
                      OpenGameAs(game, path, OpenAs::kAutosave);
  RemoveAutosave(game);
  return opened;
}

void RemoveAutosave(const Game& game) {
  unlink(AutosavePath(game).c_str());
  unlink((game.ownFolder + kAutosaveProbabilityFile).c_str());
}

}  // namespace tessaryn
