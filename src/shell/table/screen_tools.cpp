#include "shell/table/screen_tools.h"

#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>

#include "shell/table/number_habit.h"
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

QString MoneyText(Currency value) { return InHabit(QString::fromStdString(FormatMoney(value))); }

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

namespace {

// What is typed in one language is the same number in the next.
class HabitKeeper : public QObject {
 public:
  explicit HabitKeeper(QLineEdit* edit) : QObject(edit), edit_(*edit) { edit->installEventFilter(this); }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::LanguageChange || HabitSpoken() == habit_) return false;
    const QString number = FileNumber(edit_.text(), habit_);
    const bool modified = edit_.isModified();
    habit_ = HabitSpoken();
    if (!number.isEmpty()) edit_.setText(InHabit(number));
    edit_.setModified(modified);
    return false;
  }

 private:
  QLineEdit& edit_;
  NumberHabit habit_ = HabitSpoken();
};

// What parts groups is taken where the point isn't the decimal one; the rest in the form of files.
bool TakesKey(QString text, QChar key, int decimals, bool allowMinus) {
  const NumberHabit files;
  if (const NumberHabit habit = HabitSpoken(); habit != files) {
    const bool parts = key == habit.group || key == '.' || (key == ' ' && habit.group.isSpace());
    if (parts) return decimals > 0 && !text.isEmpty() && text.back().isDigit() && !text.contains(habit.point);
    text.remove(habit.group).remove(' ').remove('.').replace(habit.point, files.point);
    if (key == habit.point) key = files.point;
  }
  return FilterAmountKey(text.toStdString(), key.toLatin1(), decimals, allowMinus);
}

}  // namespace

MoneyEdit::MoneyEdit(QWidget* parent) : QLineEdit(parent) {
  setAlignment(Qt::AlignRight);
  new HabitKeeper(this);
}

void MoneyEdit::SetKeys(int decimals, bool allowMinus) {
  decimals_ = decimals;
  allowMinus_ = allowMinus;
}

void MoneyEdit::SetValue(Currency value) { setText(InHabit(QString::fromStdString(PlainMoney(value)))); }

Currency MoneyEdit::Value() const {
  Currency value;
  ReadNumber(text(), value);
  return value;
}

void MoneyEdit::keyPressEvent(QKeyEvent* event) {
  const QString typed = event->text();
  const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (!command && typed.size() == 1 && typed[0].isPrint()) {
    // What is selected gives way to the key.
    QString rest = text();
    if (hasSelectedText()) rest.remove(selectionStart(), static_cast<int>(selectedText().size()));
    if (!TakesKey(rest, typed[0], decimals_, allowMinus_)) return event->accept();
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace tessaryn
