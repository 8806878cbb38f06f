// The frame that all small windows beside the main window share.
#pragma once

#include <QList>
#include <QPoint>
#include <QStringList>
#include <QWidget>

namespace tessaryn {

// Keeps its place while it is hidden. A key that it has no use for goes to the window it belongs to.
class ToolWindow : public QWidget {
 public:
  // name: the object name, by which the window is known to the commands and to the game file.
  ToolWindow(const char* name, QWidget* parent);

  // The state changed, as by a roll. Called while the window is shown, and before it is.
  virtual void Refresh() {}
  // What it shows as a table, its heading first, for printing and export. Without rows neither is offered.
  virtual QList<QStringList> Rows() const { return {}; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QPoint place_;
  bool placed_ = false;
};

}  // namespace tessaryn
