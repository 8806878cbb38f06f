#include "shell/frame/start_up.h"

#include <QFile>
#include <QFontDatabase>

#include "dice/generators.h"
#include "play/start_up.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_layout.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {
constexpr const char* kTableFontFile = "tessaryn.ttf";
}

QString RegisterTableFont(const std::string& applicationFolder) {
  const QString file = FromCore(applicationFolder) + kTableFontFile;
  if (!QFile::exists(file)) return BuiltInTableFont();
  const int id = QFontDatabase::addApplicationFont(file);
  const QStringList families = id < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(id);
  return families.isEmpty() ? BuiltInTableFont() : families.first();
}

std::unique_ptr<Game> StartTable(ShellHost& host, const std::string& applicationFolder,
                                 const std::string& dataFolder) {
  std::unique_ptr<Game> game = StartGame(host, applicationFolder, dataFolder);
  SetTableFont(RegisterTableFont(applicationFolder));
  return game;
}

void TellMissingFiles(Game& game) {
  const int missing = game.generators.MissingGeneratorFiles;
  if (missing != 0)
    ShowMessage<Msg::kSupportFilesMissing>(game, With<"mersenne">(missing & kMissingMersenne),
                                           With<"cokus">(missing & kMissingCokus));
}

}  // namespace tessaryn
