#include "shell/screens/path_screen.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/messages.h"
#include "shell/table/languages.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "stats/events_log.h"
#include "stats/sessions_log.h"

namespace tessaryn {
namespace {

// What they are of, in the language of the window, with the paths under it.
struct PathList {
  int language;
  QString text = {};

  void Add(Msg label, const QStringList& paths) {
    if (paths.isEmpty() || paths.front().isEmpty()) return;
    text += FromCore(MessageTextIn(language, label)) + "\n    " + paths.join("\n    ") + "\n";
  }
};

// Of the players, each told with the name.
template <typename PathOf>
QStringList OfPlayers(const Game& game, const PathOf& pathOf) {
  QStringList paths;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (const std::string path = pathOf(seat); IsOccupied(game.table, seat) && !path.empty())
      paths.append(FromCore(game.table.seats[seat].SeatName + ":  " + path));
  return paths;
}

}  // namespace

QString PathsInUse(const Game& game) {
  PathList list{game.settings.Language};
  list.Add(Msg::kProgramLocation, {FromCore(game.applicationFolder)});
  list.Add(Msg::kGameFile, {FromCore(game.file.Path)});
  list.Add(Msg::kEventsLogFile, {FromCore(EventsLogPath(game))});
  list.Add(Msg::kDiceRollFile, {FromCore(game.rollFile.RollFileName)});
  list.Add(Msg::kProbabilityFile, {FromCore(game.percentage.ProbFileName)});
  list.Add(Msg::kAutoBetFiles,
           OfPlayers(game, [&](SeatId seat) { return game.autobet.Scripts[seat].ScriptFileName; }));
  list.Add(Msg::kSessionsLogFiles, OfPlayers(game, [&](SeatId seat) { return SessionsLogPath(game, seat); }));
  return list.text.trimmed();
}

PathScreen::PathScreen(const QString& paths, QWidget* parent) : QDialog(parent) {
  setObjectName("frmPath");
  setWindowTitle(FromCore(MessageTextIn(LanguageSpoken(), Msg::kPath)));
  auto* column = new QVBoxLayout(this);
  auto* text = new QPlainTextEdit(paths, this);
  text->setObjectName("picpath");
  text->setAccessibleName(windowTitle());
  text->setReadOnly(true);
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  text->setTabChangesFocus(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  column->addWidget(text);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setObjectName("cmdClose");
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(560, 320);
}

}  // namespace tessaryn
