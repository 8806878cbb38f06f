// The head of a tool window about one player: who it is at the left, a menu of options at the right.
#pragma once

#include <QString>

class QBoxLayout;
class QComboBox;
class QMenu;
class QWidget;

namespace tessaryn {

struct PlayerHead {
  QComboBox* player = nullptr;  // cmbPlayer
  QMenu* menu = nullptr;        // below cmdOptions
};

struct PlayerHeadTexts {
  QString player;
  QString options;
  QString tip;  // what the options are about
};

PlayerHead AddPlayerHead(QBoxLayout& column, const char* menuName, const PlayerHeadTexts& texts,
                         QWidget* window);

}  // namespace tessaryn
