// frmNew: what a new session keeps.
#pragma once

#include <QDialog>

class QCheckBox;
class QRadioButton;

namespace tessaryn {

struct Game;

class NewSessionScreen : public QDialog {
  Q_OBJECT

 public:
  NewSessionScreen(Game& game, QWidget* parent);

 private:
  QCheckBox* AddChoice(const char* name, const QString& caption, bool ticked);
  void Begin();

  Game& game_;
  QCheckBox* rollFile_;
  QRadioButton* rewind_[2] = {};
  QCheckBox* scripts_;
  QCheckBox* sessions_;
  QCheckBox* stacks_;
  QCheckBox* logs_;
};

}  // namespace tessaryn
