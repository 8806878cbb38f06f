#include "shell/frame/open_game.h"

#include <memory>

#include "play/game_file.h"
#include "play/game_file_records.h"
#include "shell/frame/closing.h"
#include "shell/frame/desk.h"
#include "shell/frame/game_files.h"
#include "state/game.h"

namespace tessaryn {

void OpenGameFile(Desk& desk, const std::string& path) {
  std::unique_ptr<Game> looked;
  GameReferences unused;
  // A file that can't be opened is told by the opening itself, which then leaves the table as it is.
  const bool good = !ReadGame(desk.host, desk.game.applicationFolder, path, looked, unused).Found();
  looked.reset();
  if (good && !(SaveOwnFilesFirst(desk) && SaveSessionFirst(desk, Leaving::kForAnother))) return;
  if (!OpenGame(desk.game, path)) return;
  NoteRecentGame(desk, path);
  desk.showGame();
}

}  // namespace tessaryn
