// The game files of the user's commands: saving, and those opened last.
#pragma once

#include <QStringList>
#include <string>

namespace tessaryn {

struct Desk;

// Under the name that the game has, or else one that is asked for. False when it was given up or could not be
// written, which is told.
bool SaveGameFile(Desk& desk);
bool SaveGameFileAs(Desk& desk);

// When the present game is to be left.
enum class Leaving {
  kToTheDefault,  // it goes into the default game, so that only changes to a file of its own are asked about
  kForAnother     // another takes its place, and the default game's too
};
// Asks whether to save an unsaved session. False: the game must not be left.
bool SaveSessionFirst(Desk& desk, Leaving leaving);

// The games opened and saved last, the latest first. They are kept in the data folder.
QStringList ReadRecentGames(const std::string& dataFolder);
void NoteRecentGame(Desk& desk, const std::string& path);

}  // namespace tessaryn
