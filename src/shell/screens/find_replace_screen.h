// frmFindReplace: finds and replaces text in the script that is shown. Case is ignored.
#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;

namespace tessaryn {

class WorkshopEditor;

class FindReplaceScreen : public QWidget {
  Q_OBJECT
 public:
  FindReplaceScreen(WorkshopEditor& editor, QWidget* parent);
  // With what is selected to look for.
  void Begin(bool replace);
  void FindNext();

 signals:
  // Something was replaced.
  void replaced();

 private:
  void Replace();
  void ReplaceAll();
  bool FoundIsSelected() const;

  WorkshopEditor& editor_;
  QLineEdit* find_;
  QLineEdit* replace_;
  QLabel* told_;
};

}  // namespace tessaryn
