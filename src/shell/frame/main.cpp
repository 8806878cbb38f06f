// The window program: the table drawn and played.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStatusBar>
#include <QStringList>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "base/program_folders.h"
#include "play/game_file.h"
#include "shell/frame/main_window.h"
#include "shell/frame/signals.h"
#include "shell/frame/sounds.h"
#include "shell/frame/start_up.h"
#include "shell/screens/about.h"
#include "shell/table/languages.h"
#include "shell/table/pictures.h"
#include "shell/table/preferences.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

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

// What is said while the window system is looked for. It is worth telling only if there is one.
QStringList& EarlyWords() {
  static QStringList words;
  return words;
}

void HearEarlyWords(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtFatalMsg) return EarlyWords().append(qFormatLogMessage(type, context, text));
  const QByteArray display = qgetenv("DISPLAY");
  std::fprintf(
      stderr,
      "tessaryn: there is no display to open the window on (DISPLAY is %s); tessaryn-cli plays without one\n",
      display.isEmpty() ? "not set" : display.constData());
  std::_Exit(1);
}

void TellEarlyWords() {
  qInstallMessageHandler(nullptr);
  for (const QString& words : EarlyWords()) std::fprintf(stderr, "%s\n", qPrintable(words));
}

int RunProgram(QApplication& application, std::string dataFolder, const std::string& argument) {
  std::string error;
  const bool named = !dataFolder.empty();
  // Without the usual folder there is a table to play at all the same; it tells that nothing is kept.
  if (!PrepareDataFolder(dataFolder, error) && named) {
    std::fprintf(stderr, "tessaryn: %s\n", error.c_str());
    return 1;
  }
  ApplyScheme(ReadPreferences(dataFolder).scheme);
  QApplication::setWindowIcon(ProgramIcon());
  AboutSplash splash;
  splash.show();
  ShellHost host;
  const std::unique_ptr<Game> game = StartTable(host, ApplicationFolder(), dataFolder);
  const std::string shared = ClaimDataFolder(game->folderLock, game->ownFolder, "tessaryn");
  Sounds sounds(FromCore(game->applicationFolder));
  host.sounds = &sounds;
  // Who has never played here is spoken to as by the desktop.
  std::error_code ignored;
  if (argument.empty() && !std::filesystem::exists(dataFolder + kDefaultGameFile, ignored))
    game->settings.Language = LanguageOfDesktop();
  MainWindow window(*game, host);
  const SignalWatch watch(*game, window);
  QTimer::singleShot(kSplashMilliseconds, &window, [&] {
    splash.close();
    window.OpenAtStart(argument);
    window.show();
    window.activateWindow();
    TellMissingFiles(*game);
    if (!shared.empty()) ShowMessage<Msg::kDataFolderShared>(*game, With<"problem">(shared));
    window.TellIfNothingIsKept();
    if (!sounds.Missing().isEmpty()) window.statusBar()->showMessage(sounds.Missing(), 15'000);
    window.OpenBesideGame(argument);
  });
  return application.exec();
}

}  // namespace
}  // namespace tessaryn

int main(int count, char** arguments) {
  CLI::App options{"Tessaryn: a craps table to play at.", "tessaryn"};
  options.footer("Example: tessaryn --data-folder ~/craps evening.crp");
  options.set_version_flag("--version", TESSARYN_VERSION);
  std::string dataFolder;
  options.add_option("--data-folder", dataFolder, "where everything is written; made if need be")
      ->type_name("DIR");
  std::string game;
  options
      .add_option(
          "game", game,
          "the game to open; or a script, dice rolls, probabilities or a sessions log, for the last game, "
          "which goes on without any")
      ->type_name("FILE");
  QApplication::setApplicationName("tessaryn");
  QApplication::setApplicationDisplayName("Tessaryn");
  QGuiApplication::setDesktopFileName("tessaryn");  // by which a desktop knows whose window it is
  // Help needs no screen. All else does; the window system's own options are taken out by the application.
  options.allow_extras();
  try {
    options.parse(count, arguments);
  } catch (const CLI::Success& help) {
    return options.exit(help);
  } catch (const CLI::ParseError&) {
    // Told below.
  }
  tessaryn::ProvideRuntimeFolder();
  qInstallMessageHandler(tessaryn::HearEarlyWords);
  QApplication application(count, arguments);
  tessaryn::TellEarlyWords();
  options.allow_extras(false);
  dataFolder.clear();
  game.clear();
  try {
    options.parse(count, arguments);
  } catch (const CLI::ParseError& problem) {
    options.exit(problem);
    return 2;
  }
  return tessaryn::RunProgram(application, dataFolder, game);
}
