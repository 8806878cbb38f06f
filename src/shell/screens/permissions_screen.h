// frmPermissions: what the scripts of a player may do beyond betting for him.
#pragma once

#include <QDialog>

namespace tessaryn {

struct Game;

class PermissionsScreen : public QDialog {
  Q_OBJECT
 public:
  // seat: that of a player. Every change is in force at once.
  PermissionsScreen(Game& game, SeatId seat, QWidget* parent);
};

}  // namespace tessaryn
