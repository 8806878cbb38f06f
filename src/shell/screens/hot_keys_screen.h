// frmHotKeys: the scripts on single keys of the table.
#pragma once

#include "shell/screens/tool_window.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace tessaryn {

struct Game;

class HotKeysScreen : public ToolWindow {
  Q_OBJECT
 public:
  // keeps: whether the file of the hot-keys can be written.
  HotKeysScreen(Game& game, bool keeps, QWidget* parent);

  void Refresh() override;
  QList<QStringList> Rows() const override;

 private:
  void BuildEntries();
  void ShowKey(int row);
  void Add();
  void Remove();
  void SelectFile();
  bool Write();
  char Key() const;

  Game& game_;
  bool keeps_;
  QTableWidget* list_;
  QComboBox* key_;
  QLineEdit* file_;
  QLineEdit* description_;
  QPushButton* remove_;
};

}  // namespace tessaryn
