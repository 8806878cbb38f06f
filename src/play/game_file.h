// A table kept in a file: its configuration, statistics, bets, money and screens, and by name and date the
// files that it refers to. docs/formats.md has the format, byte by byte.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/message_value.h"

namespace tessaryn {

struct Game;
struct GameReferences;
struct Host;

inline constexpr const char* kGameFileExtension = ".crp";
// In the folder that is the table's own (Game::ownFolder).
inline constexpr const char* kDefaultGameFile = "default.crp";    // read at the start, written at the end
inline constexpr const char* kBackupGameFile = "default.bak";     // the default as it was before the last end
inline constexpr const char* kAutosaveGameFile = "autosave.crp";  // there while a table is played
inline constexpr const char* kAutosaveProbabilityFile = "autosave.prb";
// What a default game that can't be read is called before another takes its place.
inline constexpr const char* kDamagedGameFile = "default.damaged";

std::string DefaultGamePath(const Game& game);
std::string BackupGamePath(const Game& game);
std::string AutosavePath(const Game& game);
// By the name alone, whatever its folder; case is ignored.
bool IsDefaultGame(std::string_view path);

// --- Saving and opening.

// Writes the table, log and recording to the disk first. Under a name of its own the table then belongs to
// that file. Unsaved percentage dice go into default.prb beside the table's files when the default game is
// written. On failure returns false with the reason, and the file that was there is whole.
bool SaveGame(Game& game, const std::string& path, std::string& error);
// The same with a failure told in the general error box.
bool SaveGameAndTell(Game& game, const std::string& path);

// Opens a game in place of the table. What is wrong with the file is told in a box; then false, and the table
// and its open files are as they were. What is wrong with files that it refers to is told too, and the game
// goes on without them. Requires that no roll is under way; a run is stopped.
bool OpenGame(Game& game, const std::string& path);

// "Tessaryn", or "Tessaryn (<file name>)" for a game with a name of its own.
std::string GameCaption(const Game& game);
// Whether the game has changed since it was last written or opened under a name of its own. A table that
// lives in the default game alone is never unsaved: it is written at the end.
bool IsSessionUnsaved(const Game& game);
// The table belongs to no file any more: after a new game.
void ForgetGameFile(Game& game);

// --- Start and end.

// What a program was started with: trimmed, and without a pair of quotes round it. A name that doesn't end
// in ".crp" is told, and the default game meant; so does an empty one.
std::string GameToOpen(Game& game, std::string_view argument);
// Opens the game that the program was started with, by the rule above, and if that can't be opened the
// default one. Without a default game the table stays on its defaults, without a word. A default that can't
// be read is told, and its backup offered. False when the table is on its defaults.
bool OpenFirstGame(Game& game, std::string_view argument);
// Writes the default game at the end, keeps the former one as its backup, and removes the autosave. On
// failure, told in error, the former default stands and the autosave stays.
bool SaveDefaultGame(Game& game, std::string& error);

// Every few minutes of play, and before a long run. Doesn't touch what the table belongs to, nor whether its
// probabilities are unsaved. Failure is silent but for the result: play goes on. In the middle of a roll it
// fails.
bool AutosaveGame(Game& game, std::string& error);
inline constexpr int kAutosaveMinutes = 3;
// An autosave of a program that came to no orderly end is there.
bool HasAutosave(const Game& game);
// Asks whether to open it, and does. One that was declined or can't be read is removed. False when the
// table was not replaced. To be called at the start, before OpenFirstGame.
bool OfferAutosave(Game& game);
void RemoveAutosave(const Game& game);

// --- Looking.

// What is wrong with a game file, as its box; reason tells more where there is more to tell.
struct GameFileProblem {
  Msg message{};
  std::string path;
  std::string reason;
  bool Found() const { return message != Msg{}; }
  std::vector<MessageArgument> Arguments() const;
  std::string Text() const;
};
// A table as a file has it, beside the one in play: nothing that it refers to is opened. On a problem game is
// null. host outlives the game.
GameFileProblem ReadGame(Host& host, const std::string& applicationFolder, const std::string& path,
                         std::unique_ptr<Game>& game, GameReferences& references);

}  // namespace tessaryn
