#include "shell/screens/print_heading.h"

#include <QCoreApplication>

#include "base/record_file.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {
QString Translated(const char* text) { return QCoreApplication::translate("PrintHeading", text); }
}  // namespace

QStringList PrintHeading(const Game& game, const QString& what) {
  return {"Tessaryn " + what, FromCore(game.host->DateText())};
}

QString GameFileLine(const Game& game) {
  const std::string& path = game.file.Path;
  return Translated(QT_TRANSLATE_NOOP("PrintHeading", "Game file:  %1"))
      .arg(path.empty() ? Translated(QT_TRANSLATE_NOOP("PrintHeading", "untitled"))
                        : FromCore(FileTitle(path)));
}

QString PlayerLine(const Game& game, SeatId seat) {
  return Translated(QT_TRANSLATE_NOOP("PrintHeading", "Player:  %1"))
      .arg(FromCore(game.table.seats[seat].SeatName));
}

}  // namespace tessaryn
