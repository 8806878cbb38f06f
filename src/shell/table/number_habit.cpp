#include "shell/table/number_habit.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <vector>

#include "shell/table/spoken_language.h"

namespace tessaryn {
namespace {

thread_local int ofFiles = 0;

QString InEnglish(double value, int decimals) {
  static const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);
  return kEnglish.toString(value, 'f', decimals);
}

bool AreGroups(const QStringList& parts) {
  if (parts.front().isEmpty() || parts.front().size() > 3) return false;
  for (qsizetype n = 1; n < parts.size(); ++n)
    if (parts[n].size() != 3) return false;
  // Nobody writes "0.125" for a hundred and twenty-five.
  return parts.front() != QLatin1String("0");
}

// Where the decimal point stands in digits, points and commas; -1 without one.
qsizetype PointIn(const QString& digits, const NumberHabit& habit) {
  const auto lastPoint = digits.lastIndexOf('.');
  const auto lastComma = digits.lastIndexOf(',');
  const auto last = std::max(lastPoint, lastComma);
  if (last < 0 || (lastPoint >= 0 && lastComma >= 0)) return last;
  const QChar mark = digits[last];
  if (digits.count(mark) > 1) return -1;
  if (mark == habit.point) return last;
  return mark == habit.group && AreGroups(digits.split(mark)) ? -1 : last;
}

}  // namespace

NumbersOfFiles::NumbersOfFiles() { ++ofFiles; }
NumbersOfFiles::~NumbersOfFiles() { --ofFiles; }

NumberHabit HabitSpoken() {
  const int language = ofFiles > 0 ? 0 : LanguageSpoken();
  if (language == 0) return {};
  static const std::vector<NumberHabit> kHabits = [] {
    std::vector<NumberHabit> habits;
    for (const SpokenLanguage& spoken : SpokenLanguages()) {
      const QLocale locale(QLatin1String(spoken.code));
      habits.push_back(*spoken.code == 0
                           ? NumberHabit()
                           : NumberHabit{locale.groupSeparator().front(), locale.decimalPoint().front()});
    }
    return habits;
  }();
  return kHabits[static_cast<std::size_t>(language)];
}

QString InHabit(QString number) {
  const NumberHabit habit = HabitSpoken();
  if (habit == NumberHabit()) return number;
  // ".125" has a nought where a comma would be easily missed.
  if (const auto point = number.indexOf('.'); point == 0 || (point > 0 && !number[point - 1].isDigit()))
    number.insert(point, '0');
  for (QChar& letter : number) letter = letter == ',' ? habit.group : letter == '.' ? habit.point : letter;
  return number;
}

QString FigureInHabit(const QString& text) {
  static const QRegularExpression kNumber("^[-+\u00b1\u2212]?\\$?[-+]?[\\d,]*\\.?\\d+[%\u00a2]?$");
  return kNumber.match(text).hasMatch() ? InHabit(text) : text;
}

QString ShownNumber(double value, int decimals) { return InHabit(InEnglish(value, decimals)); }

QString ShownCount(qint64 count) { return ShownNumber(static_cast<double>(count), 0); }

int PluralOf(qint64 count) {
  constexpr qint64 kMillion = 1'000'000;  // languages look at the last six digits at most
  return static_cast<int>(count < kMillion ? std::max<qint64>(count, 0) : kMillion + count % kMillion);
}

QString FileNumber(const QString& typed, const NumberHabit& habit) {
  static const QRegularExpression kForm("^([-+]?)\\$?([-+]?)(\\d[\\d., \u00a0\u202f]*|[.,]\\d+)$");
  const QRegularExpressionMatch match = kForm.match(typed.trimmed());
  if (!match.hasMatch()) return {};
  const QString digits = match.captured(3);
  const auto point = PointIn(digits, habit);
  const QString whole = point < 0 ? digits : digits.left(point);
  const QString fraction = point < 0 ? QString() : digits.mid(point + 1);
  static const QRegularExpression kMarks("[., \u00a0\u202f]");
  if (fraction.contains(kMarks)) return {};
  const QStringList groups = whole.split(kMarks);
  QSet<QString> marks;
  for (auto mark = kMarks.globalMatch(whole); mark.hasNext();) marks.insert(mark.next().captured());
  if (marks.size() > 1 || (marks.size() == 1 && !AreGroups(groups))) return {};
  return match.captured(1) + match.captured(2) + groups.join(QString()) +
         (fraction.isEmpty() ? QString() : '.' + fraction);
}

bool ReadNumber(const QString& typed, Currency& value) {
  const QString number = FileNumber(typed, HabitSpoken());
  return !number.isEmpty() && TryParseMoney(number.toStdString(), value);
}

}  // namespace tessaryn
