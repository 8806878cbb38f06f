// The Auto-Play screen: what becomes of a player's decided bets without asking, and what is bet, laid and
// taken down for him by itself.
#pragma once

#include <QDialog>
#include <string>

#include "state/table_state.h"

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QListWidget;
class QWidget;

namespace tessaryn {

class AdjustEdit;
struct Game;

// frmAutoPlay. Begins with the selected seat; every change goes straight to the player that it shows. The
// table's own selection stays.
class AutoPlayScreen : public QDialog {
  Q_OBJECT
 public:
  AutoPlayScreen(Game& game, QWidget* parent);

 private:
  struct Flag;
  struct Bias;
  static const Flag kFlags[4];
  static const Bias kBiases[4];

  void AddPlayerRow(QBoxLayout& column);
  QGroupBox* HandlingGroup(bool win);
  QGroupBox* AmountsGroup();
  QGroupBox* OddsGroup();
  QGroupBox* WorkingGroup();
  QButtonGroup* AddRadio(QGroupBox& box, const char* setting);
  AdjustEdit* AddAdjust(int slot, const QString& what, QWidget* parent);
  void AddButtonRow(QBoxLayout& column);
  // Shows what the player's settings are.
  void Load();
  void LoadWorking();
  void ShowSeat(SeatId seat);
  // One setting of the shown player. What is refused is said, and the screen shows what is in force.
  void Set(const std::string& name, const std::string& value);
  void SetSlot(int slot);
  void SelectAllWorking();

  Game& game_;
  SeatId seat_ = 0;  // 0 nobody is at the table
  bool loading_ = false;
  QComboBox* player_ = nullptr;
  QWidget* settings_ = nullptr;  // everything that belongs to the player
  QButtonGroup* win_ = nullptr;
  QButtonGroup* lose_ = nullptr;
  QButtonGroup* amounts_ = nullptr;
  AdjustEdit* slots_[8] = {};  // 4 to 7
  QComboBox* biases_[4] = {};
  QCheckBox* flags_[4] = {};
  QListWidget* working_ = nullptr;
};

}  // namespace tessaryn
