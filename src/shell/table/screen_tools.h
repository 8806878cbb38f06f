// Small things that every screen needs: texts in and out of the core, money in entry boxes, dialogs that wait
// without blocking the redraw.
#pragma once

#include <QLineEdit>
#include <QString>
#include <string>

#include "base/money.h"

class QDialog;

namespace tessaryn {

struct Game;

// The core's UTF-8 with "\r" as line end, and Qt's texts.
QString FromCore(const std::string& text);
std::string ToCore(const QString& text);
QString MoneyText(Currency value);  // "1,234.50"
// Below a dollar, and not nothing; and such an amount as "25\u00a2".
bool IsCents(Currency value);
QString CentsText(Currency value);
// An amount as the table writes it: MoneyText, or cents where they have a sign of their own.
QString TableAmountText(const Game& game, Currency value);

// Opens the dialog window-modally and waits for its end while the rest of the program goes on being drawn.
// Returns the dialog's result code. The dialog must not delete itself.
int RunDialog(QDialog& dialog);

// An entry box that takes only what a money field may hold.
class MoneyEdit : public QLineEdit {
 public:
  explicit MoneyEdit(QWidget* parent = nullptr);
  // Digits after the point, and whether a minus may lead. 4 and no at first.
  void SetKeys(int decimals, bool allowMinus);
  void SetValue(Currency value);
  // The number typed; 0 for an empty box.
  Currency Value() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int decimals_ = 4;
  bool allowMinus_ = false;
};

}  // namespace tessaryn
