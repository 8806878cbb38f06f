#include "shell/screens/print_heading.h"

#include <QCoreApplication>

#include "base/record_file.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

QStringList PrintHeading(const Game& game, const QString& what, int seat) {
  const auto translated = [](const char* text) { return QCoreApplication::translate("PrintHeading", text); };
  QStringList lines{"Tessaryn " + what, FromCore(game.host->DateText())};
  if (seat != 0) lines += translated("Player:  ") + FromCore(game.table.seats[seat].SeatName);
  lines += translated("Game file:  ") +
           (game.file.Path.empty() ? translated("untitled") : FromCore(FileTitle(game.file.Path)));
  return lines;
}

}  // namespace tessaryn
