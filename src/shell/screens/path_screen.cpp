#include "shell/screens/path_screen.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/messages.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "stats/events_log.h"
#include "stats/sessions_log.h"

namespace tessaryn {
namespace {

template <Msg label>
void Tell(QString& text, const QStringList& paths) {
  if (paths.isEmpty() || paths.front().isEmpty()) return;
  text += FromCore(MessageText<label>()) + "\n    " + paths.join("\n    ") + "\n";
}

// Of the players, each told with the name.
template <typename PathOf>
QStringList OfPlayers(const Game& game, const PathOf& pathOf) {
  QStringList paths;
  for (int seat = 1; seat <= kSeats; ++seat)
    if (const std::string path = pathOf(seat); IsOccupied(game.table, seat) && !path.empty())
      paths.append(FromCore(game.table.seats[seat].SeatName + ":  " + path));
  return paths;
}

}  // namespace

QString PathsInUse(const Game& game) {
  QString text;
  Tell<Msg::kProgramLocation>(text, {FromCore(game.applicationFolder)});
  Tell<Msg::kGameFile>(text, {FromCore(game.file.Path)});
  Tell<Msg::kEventsLogFile>(text, {FromCore(EventsLogPath(game))});
  Tell<Msg::kDiceRollFile>(text, {FromCore(game.rollFile.RollFileName)});
  Tell<Msg::kProbabilityFile>(text, {FromCore(game.percentage.ProbFileName)});
  Tell<Msg::kAutoBetFiles>(
      text, OfPlayers(game, [&](int seat) { return game.autobet.Scripts[seat].ScriptFileName; }));
  Tell<Msg::kSessionsLogFiles>(text, OfPlayers(game, [&](int seat) { return SessionsLogPath(game, seat); }));
  return text.trimmed();
}

PathScreen::PathScreen(const QString& paths, QWidget* parent) : QDialog(parent) {
  setObjectName("frmPath");
  setWindowTitle(FromCore(MessageText<Msg::kPath>()));
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
