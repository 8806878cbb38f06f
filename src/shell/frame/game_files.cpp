#include "shell/frame/game_files.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include "play/game_file.h"
#include "shell/frame/desk.h"
#include "shell/frame/places.h"
#include "shell/screens/file_chooser.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr int kRecentGames = 8;
constexpr const char* kRecentFile = "recent.ini";
constexpr const char* kRecentKey = "games";

bool HasSomethingToLose(const Game& game) {
  return game.table.OccupiedSeats > 0 || SessionRolls(game.stats) > 0;
}

bool SaveUnder(Desk& desk, const std::string& path) {
  KeepScreen(desk);
  if (!SaveGameAndTell(desk.game, path)) return false;
  NoteRecentGame(desk, path);
  desk.refresh();
  return true;
}

}  // namespace

bool SaveGameFileAs(Desk& desk) {
  const std::string path = ChooseFile(desk.game, desk.window, kSaveGame, desk.game.file.Path);
  return !path.empty() && SaveUnder(desk, path);
}

bool SaveGameFile(Desk& desk) {
  return desk.game.file.Path.empty() ? SaveGameFileAs(desk) : SaveUnder(desk, desk.game.file.Path);
}

bool SaveSessionFirst(Desk& desk, Leaving leaving) {
  Game& game = desk.game;
  const bool lost = leaving == Leaving::kForAnother && game.file.Path.empty() && HasSomethingToLose(game);
  if (!lost && !IsSessionUnsaved(game)) return true;
  const int answer = ShowMessage<Msg::kAskSaveSession>(game);
  if (answer != kResultYes) return answer == kResultNo;
  return SaveGameFile(desk);
}

QStringList ReadRecentGames(const std::string& dataFolder) {
  const QSettings settings(FromCore(dataFolder) + kRecentFile, QSettings::IniFormat);
  QStringList games = settings.value(kRecentKey).toStringList();
  games.removeAll("");
  return games.mid(0, kRecentGames);
}

void NoteRecentGame(Desk& desk, const std::string& path) {
  if (path.empty() || IsDefaultGame(path)) return;
  const QString name = QDir::cleanPath(QFileInfo(FromCore(path)).absoluteFilePath());
  desk.recentGames.removeAll(name);
  desk.recentGames.prepend(name);
  desk.recentGames = desk.recentGames.mid(0, kRecentGames);
  if (!desk.keeps) return;
  QSettings settings(FromCore(desk.game.dataFolder) + kRecentFile, QSettings::IniFormat);
  settings.setValue(kRecentKey, desk.recentGames);
}

}  // namespace tessaryn
