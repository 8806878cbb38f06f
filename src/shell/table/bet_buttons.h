// Buttons beside the amount for what is done with bets again and again: undo, repeat, full odds.
#pragma once

#include <QWidget>
#include <vector>

#include "shell/table/appearance.h"

class QAction;
class QPushButton;

namespace tessaryn {

class BetButtons : public QWidget {
  Q_OBJECT

 public:
  explicit BetButtons(QWidget* parent = nullptr);
  // A button that does what the action does, while that can; none for null. key is told beside the caption
  // where there is room.
  void Add(QAction* action, const char* name, const char* caption, const char* key);
  void SetMeasures(const Measures& measures);
  // As many buttons as fit, the first before the others.
  void FitInto(int width);
  // The room that all of them want.
  int WantedWidth() const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();

  struct Entry {
    QPushButton* button;
    const char* caption;
    const char* key;
  };
  std::vector<Entry> entries_;
  Measures measures_;
};

}  // namespace tessaryn
