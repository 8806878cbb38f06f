// The window program: the table drawn and played.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStatusBar>
#include <QTimer>
#include <cstdio>

#include "base/program_folders.h"
#include "shell/frame/main_window.h"
#include "shell/frame/signals.h"
#include "shell/frame/sounds.h"
#include "shell/frame/start_up.h"
#include "shell/screens/about.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr int kSplashMilliseconds = 300;

// A session without a runtime folder gets one, before the window system complains of it.
void ProvideRuntimeFolder() {
  if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) return;
  const QString folder = QDir::tempPath() + "/tessaryn-runtime-" + QString::number(getuid());
  QDir().mkpath(folder);
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  qputenv("XDG_RUNTIME_DIR", folder.toUtf8());
}

int RunProgram(QApplication& application, std::string dataFolder) {
  std::string error;
  if (!PrepareDataFolder(dataFolder, error)) {
    std::fprintf(stderr, "tessaryn: %s\n", error.c_str());
    return 1;
  }
  AboutSplash splash;
  splash.show();
  ShellHost host;
  const std::unique_ptr<Game> game = StartTable(host, ApplicationFolder(), dataFolder);
  const std::string shared = ClaimDataFolder(game->folderLock, game->ownFolder, "tessaryn");
  Sounds sounds(FromCore(game->applicationFolder));
  host.sounds = &sounds;
  MainWindow window(*game, host);
  window.RestoreWindow();
  const SignalWatch watch(*game, window);
  QTimer::singleShot(kSplashMilliseconds, &window, [&] {
    window.show();
    window.activateWindow();
    splash.close();
    TellMissingFiles(*game);
    if (!shared.empty()) ShowMessage(*game, "Data Folder", shared);
    if (!sounds.Missing().isEmpty()) window.statusBar()->showMessage(sounds.Missing(), 15'000);
  });
  return application.exec();
}

}  // namespace
}  // namespace tessaryn

int main(int count, char** arguments) {
  CLI::App options{"Tessaryn: a craps table to play at.", "tessaryn"};
  options.footer("Example: tessaryn --data-folder ~/craps");
  options.set_version_flag("--version", TESSARYN_VERSION);
  std::string dataFolder;
  options.add_option("--data-folder", dataFolder, "where everything is written; made if need be")
      ->type_name("DIR");
  QApplication::setApplicationName("tessaryn");
  QApplication::setApplicationDisplayName("Tessaryn");
  // Help and wrong usage need no screen; the window system's own options are taken out by the application.
  const auto parse = [&]() -> int {
    try {
      options.parse(count, arguments);
      return -1;
    } catch (const CLI::ParseError& problem) {
      return options.exit(problem) == 0 ? 0 : 2;
    }
  };
  options.allow_extras();
  if (const int code = parse(); code >= 0) return code;
  tessaryn::ProvideRuntimeFolder();
  QApplication application(count, arguments);
  options.allow_extras(false);
  if (const int code = parse(); code >= 0) return code;
  return tessaryn::RunProgram(application, dataFolder);
}
