// frmPath: the files that the table works with, by their whole paths however long they are.
#pragma once

#include <QDialog>
#include <QString>

namespace tessaryn {

struct Game;

// A line for each kind of file that is in use, its paths below it.
QString PathsInUse(const Game& game);

class PathScreen : public QDialog {
 public:
  PathScreen(const QString& paths, QWidget* parent);
};

}  // namespace tessaryn
