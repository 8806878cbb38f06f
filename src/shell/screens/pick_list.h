// A button that opens a list of which any number can be picked: by click, by space, or all and none of them.
#pragma once

#include <QPushButton>
#include <functional>
#include <utility>
#include <vector>

class QFrame;
class QListWidget;

namespace tessaryn {

class PickList : public QPushButton {
 public:
  using Entry = std::pair<QString, int>;  // what it says, and the number by which it is known

  // listName: the object name of the list; what: for screen readers.
  PickList(const char* listName, const QString& caption, const QString& what, QWidget* parent);

  // Called as the list opens.
  std::function<std::vector<Entry>()> entries;
  std::function<bool(int)> isPicked;
  // The user changed what is picked: all numbers, in the list's order.
  std::function<void(const std::vector<int>&)> picked;

  void Open();

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;

 private:
  void Fill();
  void ShowPicks();
  void TakePicks();

  QFrame* popup_;
  QListWidget* list_;
  bool filling_ = false;
};

}  // namespace tessaryn
