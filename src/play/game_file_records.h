// The records of a game file. docs/formats.md tells them one by one.
#pragma once

#include <string>
#include <vector>

#include "base/record_file.h"
#include "base/table_types.h"

namespace tessaryn {

struct Game;

inline constexpr const char* kGameFileMagic = "Tessaryn Pro Game File, Data Format 2.2";

// A file that a game refers to: its full path, and its date as GameFileDate gives it; empty without a file.
struct FileReference {
  std::string path;
  std::string date;
};

struct GameReferences {
  FileReference rollFile;
  FileReference probability;
  FileReference eventsLog;
  FileReference script[kSeatRows];
  FileReference sessionsLog[kSeatRows];
};

inline constexpr std::size_t kPathWidth = 200;  // of a Name record; what follows is kDateWidth
inline constexpr std::size_t kDateWidth = 56;

enum class GameFileKind : int {
  kGame = 0,
  kAutosave = 1,
  kDigest = 2,  // for a comparison: without how the screens are, and never written
};

RecordFile WriteGameRecords(const Game& game, const GameReferences& references, GameFileKind kind);
// Into a table on its defaults. False for a file that ends early or is damaged; the game is then good for
// nothing. Values are as the file has them: see SettleOpenedGame.
bool ReadGameRecords(const RecordFile& file, Game& game, GameReferences& references);
// Puts the sum over the further records right: for tools that change a file on purpose.
void SealGameRecords(RecordFile& file);

// What a game file has that reads whole: derived fields made again, and every value looked at. The reason for
// which the table can't be played, empty when it can.
std::string SettleOpenedGame(Game& game);

}  // namespace tessaryn
