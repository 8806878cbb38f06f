// What the program is: the box of the Help menu, and the one that stands while it starts.
#pragma once

#include <QDialog>

namespace tessaryn {

struct Game;

class AboutScreen : public QDialog {
 public:
  AboutScreen(Game& game, QWidget* parent);
};

// Stands on the screen until the table comes up.
class AboutSplash : public QWidget {
 public:
  AboutSplash();
};

}  // namespace tessaryn
