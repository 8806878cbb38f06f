// Numbers on the screen by the habit of the language that is spoken: "1.234,50" in German. The log, game
// files, exports and scripts keep the form of files, "1,234.50".
#pragma once

#include <QChar>
#include <QString>

#include "base/money.h"

namespace tessaryn {

// How a language writes numbers.
struct NumberHabit {
  QChar group{QLatin1Char(',')};
  QChar point{QLatin1Char('.')};

  friend bool operator==(const NumberHabit&, const NumberHabit&) = default;
};
// Of the language spoken; of files while a NumbersOfFiles is there.
NumberHabit HabitSpoken();

// While it is there, this thread writes and reads numbers as they stand in files.
class NumbersOfFiles {
 public:
  NumbersOfFiles();
  ~NumbersOfFiles();
  NumbersOfFiles(const NumbersOfFiles&) = delete;
  NumbersOfFiles& operator=(const NumbersOfFiles&) = delete;
};

// A number in the form of files as the language writes it.
QString InHabit(QString number);
// The same for a text that may be anything: what is more than a number, with its sign, "$", "%" or "\u00a2",
// stays as it is.
QString FigureInHabit(const QString& text);
QString ShownNumber(double value, int decimals);  // "1,234.50"
QString ShownCount(qint64 count);                 // "1,234"

// What chooses the form of a counted text, "%1 rolls", by how many there are.
int PluralOf(qint64 count);

// What is typed or put in, in the form of files without groups. A single point or comma that doesn't part
// groups of three digits is taken as the decimal point, whichever it is; so is the habit's own. Empty for
// what is no number, or could be more than one.
QString FileNumber(const QString& typed, const NumberHabit& habit);
// By the habit spoken; false, and value as it was, if it is no number or out of range.
bool ReadNumber(const QString& typed, Currency& value);

}  // namespace tessaryn
