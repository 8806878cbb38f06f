// The House tab: ready houses and those that the user keeps, how the table differs from them, and files of a
// house's rules to share.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "play/setting_table.h"

class QLabel;
class QListWidget;
class QPushButton;
class QTableWidget;

namespace tessaryn {

class SettingEditor;
struct HousePreset;

class HousePage : public QWidget {
  Q_OBJECT
 public:
  HousePage(Game& game, SettingEditor& editor, QWidget* parent);
  void Refresh();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  struct House {
    const HousePreset* ready = nullptr;  // else a file
    std::string path;
    bool operator==(const House&) const = default;
  };

  void ListHouses();
  // The rules of the house that is chosen are read, and it is compared.
  void Choose();
  void Compare();
  void UseIt();
  void OpenFile();
  void SaveFile();

  Game& game_;
  SettingEditor& editor_;
  std::vector<House> houses_;
  std::vector<std::string> opened_;   // files from elsewhere
  std::vector<SettingChange> rules_;  // of the house that is chosen
  QString about_;                     // it, or what is wrong with its file
  bool good_ = false;
  QListWidget* list_;
  QLabel* tells_;
  QTableWidget* differences_;
  QPushButton* use_;
};

}  // namespace tessaryn
