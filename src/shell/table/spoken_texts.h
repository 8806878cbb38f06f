// Remembers for each text that the window has been given what it is the translation of, so that it can be
// given in another language wherever it stands by then.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QRegularExpression>
#include <QTranslator>
#include <functional>

class QObject;
class QWidget;

namespace tessaryn {

// The words of a language for a text of a context, or a null text for the source. count: of what is counted
// in it, which has a form for one, for several; -1 where nothing is. A counted text holds its number as %1.
using Wording = std::function<QString(const char* context, const char* source, int count)>;

// Of a table's item: its text is nobody's word, a name in a script say, and stays in every language.
inline constexpr int kNobodysWord = Qt::UserRole + 90;

class SpokenTexts : public QTranslator {
 public:
  // The one of the program, made when it isn't there yet.
  static SpokenTexts& Of();
  static bool IsThere();

  void Change(const Wording& words, const QStringList& entered);

  QString translate(const char* context, const char* source, const char* disambiguation,
                    int count) const override;
  bool isEmpty() const override { return false; }

 private:
  struct Row {
    QByteArray context;
    QByteArray source;
    bool letterless = false;  // the text without its access letter
    bool counted = false;

    friend bool operator==(const Row&, const Row&) = default;
  };
  struct Pattern {  // a text with holes
    QString text;
    QString longest;  // between two of them
    int letters;
    Row row;
    QRegularExpression whole;
    QList<int> holes;  // their numbers, in the order of the text
  };
  struct Heard {
    QHash<QString, QList<Row>> texts;
    QList<Pattern> patterns;  // those that hold most letters first
  };

  explicit SpokenTexts(QObject* parent);
  void Hear(const QString& text, const Row& row) const;
  static QString Said(const Row& row, int count = -1);
  void SayAnew(QWidget& widget);
  void SayItems(QWidget& widget);
  void SayProperties(QObject& object, const QWidget& near);
  // The text in the language of now; null for one that nobody was given.
  QString Anew(const QString& text, const QWidget& near) const;
  QString Whole(const QString& text, const QWidget& near) const;
  QString ByPattern(const QString& text, const QWidget& near) const;
  const Row* RowOf(const QString& text, const QWidget& near) const;

  Wording words_;
  QStringList entered_;
  Heard former_;  // while a change goes on
  mutable QMutex mutex_;
  mutable Heard heard_;
};

}  // namespace tessaryn
