// frmLuck: what each player's session was expected to bring, what it did, and the difference as luck.
#pragma once

#include <QPointer>

#include "shell/screens/tool_window.h"

class QLabel;
class QVBoxLayout;

namespace tessaryn {

struct Game;
class FiguresTable;

inline constexpr int kLuckWindow = 22;  // among the places of tool windows; see ToolWindowNumber

class LuckWindow : public ToolWindow {
  Q_OBJECT
 public:
  LuckWindow(Game& game, QWidget* parent);
  ~LuckWindow() override;

  void Refresh() override;
  QList<QStringList> Rows() const override;

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Build();
  // While it is seen the rolls of a Turbo-Roll are counted too.
  void Watch(bool wanted);

  Game& game_;
  QVBoxLayout* column_;
  FiguresTable* table_ = nullptr;
  QLabel* tells_ = nullptr;
  bool watches_ = false;
};

}  // namespace tessaryn
