#include "shell/table/screen_tools.h"

#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>

#include "state/game.h"

namespace tessaryn {

QString FromCore(const std::string& text) {
  QString result = QString::fromStdString(text);
  return result.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

std::string ToCore(const QString& text) {
  QString result = text;
  return result.replace(QLatin1Char('\n'), QLatin1Char('\r')).toStdString();
}

QString MoneyText(Currency value) { return QString::fromStdString(FormatMoney(value)); }

bool IsCents(Currency value) {
  return value != kZero && Abs(value) < Currency::Dollars(1) && !value.IsError();
}

QString CentsText(Currency value) {
  return MoneyText(Multiply(value, Currency::Dollars(100))) + QStringLiteral("\u00a2");
}

QString TableAmountText(const Game& game, Currency value) {
  return game.settings.UseCentsSymbol && IsCents(value) ? CentsText(value) : MoneyText(value);
}

int RunDialog(QDialog& dialog) {
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
  dialog.open();
  // After a click on the window behind, a window manager leaves the keyboard there when the next box opens.
  dialog.activateWindow();
  if (dialog.isVisible()) loop.exec();
  return dialog.result();
}

MoneyEdit::MoneyEdit(QWidget* parent) : QLineEdit(parent) { setAlignment(Qt::AlignRight); }

void MoneyEdit::SetKeys(int decimals, bool allowMinus) {
  decimals_ = decimals;
  allowMinus_ = allowMinus;
}

void MoneyEdit::SetValue(Currency value) { setText(QString::fromStdString(PlainMoney(value))); }

Currency MoneyEdit::Value() const { return ParseMoney(text().toStdString()); }

void MoneyEdit::keyPressEvent(QKeyEvent* event) {
  const QString typed = event->text();
  const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (!command && typed.size() == 1 && typed[0].isPrint()) {
    // What is selected gives way to the key.
    QString rest = text();
    if (hasSelectedText()) rest.remove(selectionStart(), static_cast<int>(selectedText().size()));
    if (!FilterAmountKey(rest.toStdString(), typed[0].toLatin1(), decimals_, allowMinus_))
      return event->accept();
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace tessaryn
