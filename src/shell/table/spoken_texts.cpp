#include "shell/table/spoken_texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QTreeWidget>
#include <algorithm>
#include <cctype>
#include <utility>

#include "shell/table/number_habit.h"

namespace tessaryn {
namespace {

constexpr const char* kName = "spokenTexts";
constexpr int kLeastLetters = 3;  // of a pattern: those with fewer are in everything

// Qt asks for its own texts in the same way; its widgets say them anew themselves.
bool IsOfQt(const char* context) {
  return context[0] == 'Q' && std::isupper(static_cast<unsigned char>(context[1])) != 0 &&
         qstrcmp(context, "QObject") != 0;
}

const QRegularExpression& Hole() {
  static const QRegularExpression kHole("%L?(\\d)");
  return kHole;
}

int LettersOf(const QString& text) {
  return static_cast<int>(std::count_if(text.begin(), text.end(), [](QChar c) { return c.isLetter(); }));
}

// What a user types is nobody's word.
bool IsTyped(const QObject& object) {
  return object.inherits("QLineEdit") || object.inherits("QPlainTextEdit") || object.inherits("QTextEdit") ||
         object.inherits("QsciScintillaBase");
}

// Of "1,234" what chooses the form of words for so many.
int CountIn(const QString& number) {
  QString digits = number;
  digits.removeIf([](QChar letter) { return !letter.isDigit(); });
  return PluralOf(digits.toLongLong());
}

// Null when no part is said anew.
template <typename Say>
QString InParts(const QString& text, const char* between, const Say& say) {
  QStringList parts = text.split(QLatin1String(between));
  bool any = false;
  for (QString& part : parts)
    if (const QString anew = say(part); !anew.isNull()) {
      part = anew;
      any = true;
    }
  return any ? parts.join(QLatin1String(between)) : QString();
}

constexpr const char* kProperties[] = {"text",
                                       "title",
                                       "windowTitle",
                                       "toolTip",
                                       "statusTip",
                                       "whatsThis",
                                       "placeholderText",
                                       "accessibleName",
                                       "accessibleDescription",
                                       "prefix",
                                       "suffix",
                                       "specialValueText",
                                       "labelText"};

}  // namespace

SpokenTexts::SpokenTexts(QObject* parent) : QTranslator(parent) { setObjectName(kName); }

bool SpokenTexts::IsThere() {
  return qApp->findChild<QTranslator*>(kName, Qt::FindDirectChildrenOnly) != nullptr;
}

SpokenTexts& SpokenTexts::Of() {
  if (auto* there = qApp->findChild<QTranslator*>(kName, Qt::FindDirectChildrenOnly); there != nullptr)
    return *static_cast<SpokenTexts*>(there);
  auto* texts = new SpokenTexts(qApp);
  QCoreApplication::installTranslator(texts);
  return *texts;
}

// --- What is asked for.

QString SpokenTexts::translate(const char* context, const char* source, const char*, int count) const {
  if (IsOfQt(context) || source == nullptr || *source == 0) return {};
  const QString text = words_ ? words_(context, source, count) : QString();
  const QMutexLocker lock(&mutex_);
  QString heard = text.isEmpty() ? QString::fromUtf8(source) : text;
  Hear(heard, Row{context, source, false, count >= 0});
  if (heard.contains('&')) Hear(heard.remove('&'), Row{context, source, true, count >= 0});
  return text;
}

void SpokenTexts::Hear(const QString& text, const Row& row) const {
  QList<Row>& rows = heard_.texts[text];
  if (rows.contains(row)) return;
  rows.append(row);
  const QStringList between = text.split(Hole());
  int letters = 0;
  QString longest;
  for (const QString& part : between) {
    letters += LettersOf(part);
    if (part.size() > longest.size()) longest = part;
  }
  if (between.size() == 1 || letters < kLeastLetters) return;
  QString expression;
  QList<int> holes;
  qsizetype from = 0;
  for (auto hole = Hole().globalMatch(text); hole.hasNext();) {
    const QRegularExpressionMatch match = hole.next();
    expression += QRegularExpression::escape(text.mid(from, match.capturedStart() - from)) + "(.*?)";
    holes.append(match.captured(1).toInt());
    from = match.capturedEnd();
  }
  expression = QRegularExpression::anchoredPattern(expression + QRegularExpression::escape(text.mid(from)));
  const auto place = std::find_if(heard_.patterns.begin(), heard_.patterns.end(),
                                  [letters](const Pattern& other) { return other.letters < letters; });
  heard_.patterns.insert(
      place, Pattern{text, longest, letters, row,
                     QRegularExpression(expression, QRegularExpression::DotMatchesEverythingOption), holes});
}

// --- The change.

void SpokenTexts::Change(const Wording& words, const QStringList& entered) {
  {
    const QMutexLocker lock(&mutex_);
    former_ = std::exchange(heard_, {});
    words_ = words;
  }
  entered_ = entered;
  for (QWidget* widget : QApplication::allWidgets()) SayAnew(*widget);
  former_ = {};
  // What screens put together themselves they do on this event; it comes to all of them.
  QEvent change(QEvent::LanguageChange);
  QCoreApplication::sendEvent(qApp, &change);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
}

const SpokenTexts::Row* SpokenTexts::RowOf(const QString& text, const QWidget& near) const {
  const auto found = former_.texts.constFind(text);
  if (found == former_.texts.constEnd()) return nullptr;
  // The same words may be those of several texts: the nearest screen's are meant.
  for (const QObject* at = &near; at != nullptr; at = at->parent())
    for (const Row& row : *found)
      if (row.context == at->metaObject()->className()) return &row;
  return &found->front();
}

QString SpokenTexts::Said(const Row& row, int count) {
  QString text =
      QCoreApplication::translate(row.context, row.source, nullptr, row.counted ? std::max(0, count) : -1);
  return row.letterless ? text.remove('&') : text;
}

QString SpokenTexts::Whole(const QString& text, const QWidget& near) const {
  if (const Row* row = RowOf(text, near); row != nullptr) return Said(*row);
  return {};
}

QString SpokenTexts::ByPattern(const QString& text, const QWidget& near) const {
  for (const Pattern& pattern : former_.patterns) {
    if (!text.contains(pattern.longest)) continue;
    const QRegularExpressionMatch match = pattern.whole.match(text);
    if (!match.hasMatch()) continue;
    const auto counts = pattern.holes.indexOf(1);
    const QString anew =
        Said(pattern.row, counts < 0 ? -1 : CountIn(match.captured(static_cast<int>(counts) + 1)));
    QString filled;
    qsizetype from = 0;
    for (auto hole = Hole().globalMatch(anew); hole.hasNext();) {
      const QRegularExpressionMatch at = hole.next();
      const auto which = pattern.holes.indexOf(at.captured(1).toInt());
      const QString held = which < 0 ? QString() : match.captured(static_cast<int>(which) + 1);
      const QString word = Whole(held, near);
      filled += anew.mid(from, at.capturedStart() - from) + (word.isNull() ? held : word);
      from = at.capturedEnd();
    }
    return filled + anew.mid(from);
  }
  return {};
}

QString SpokenTexts::Anew(const QString& text, const QWidget& near) const {
  if (text.isEmpty() || entered_.contains(text)) return {};
  if (const QString whole = Whole(text, near); !whole.isNull()) return whole;
  // The name of a box, from the label before it.
  if (const QString label = Whole(text + ':', near); label.endsWith(':')) return label.chopped(1);
  static const QRegularExpression kBold("^<b>(.*)</b>$");
  if (const QRegularExpressionMatch bold = kBold.match(text); bold.hasMatch()) {
    const QString anew = Anew(bold.captured(1), near);
    return anew.isNull() ? anew : "<b>" + anew + "</b>";
  }
  // A caption with its key behind it; lines of their own.
  for (const char* between : {"\t", "\n"})
    if (text.contains(QLatin1String(between)))
      return InParts(text, between, [&](const QString& part) { return Anew(part, near); });
  if (const qsizetype bracket = text.lastIndexOf(QLatin1String(" (")); bracket > 0)
    if (const QString whole = Whole(text.left(bracket), near); !whole.isNull())
      return whole + text.mid(bracket);
  if (const QString filled = ByPattern(text, near); !filled.isNull()) return filled;
  // What a screen has put side by side.
  for (const char* between : {"   ", "  ", ", "})
    if (text.contains(QLatin1String(between)))
      return InParts(text, between, [&](const QString& part) { return Whole(part, near); });
  return {};
}

void SpokenTexts::SayProperties(QObject& object, const QWidget& near) {
  const bool typed = IsTyped(object);
  auto* button = qobject_cast<QAbstractButton*>(&object);
  // In a dock the keys of the buttons are put out of action.
  const bool keyless = button != nullptr && button->shortcut().isEmpty();
  for (const char* name : kProperties) {
    if (typed && qstrcmp(name, "text") == 0) continue;
    if (object.metaObject()->indexOfProperty(name) < 0) continue;
    const QVariant value = object.property(name);
    if (value.typeId() != QMetaType::QString) continue;
    if (const QString anew = Anew(value.toString(), near); !anew.isNull() && anew != value.toString())
      object.setProperty(name, anew);
  }
  if (keyless) button->setShortcut({});
}

void SpokenTexts::SayItems(QWidget& widget) {
  const auto item = [&](auto* of, int column) {
    if (of == nullptr) return;
    if (const QString anew = Anew(of->text(column), widget); !anew.isNull()) of->setText(column, anew);
  };
  const auto plain = [&](auto* of) {
    if (of == nullptr) return;
    if (const QString anew = Anew(of->text(), widget); !anew.isNull()) of->setText(anew);
  };
  if (auto* box = qobject_cast<QComboBox*>(&widget)) {
    for (int n = 0; n < box->count(); ++n)
      if (const QString anew = Anew(box->itemText(n), widget); !anew.isNull()) box->setItemText(n, anew);
  } else if (auto* bar = qobject_cast<QTabBar*>(&widget)) {
    for (int n = 0; n < bar->count(); ++n) {
      if (const QString anew = Anew(bar->tabText(n), widget); !anew.isNull()) bar->setTabText(n, anew);
      if (const QString anew = Anew(bar->tabToolTip(n), widget); !anew.isNull()) bar->setTabToolTip(n, anew);
    }
  } else if (auto* list = qobject_cast<QListWidget*>(&widget)) {
    for (int n = 0; n < list->count(); ++n) plain(list->item(n));
  } else if (auto* table = qobject_cast<QTableWidget*>(&widget)) {
    for (int column = 0; column < table->columnCount(); ++column) {
      plain(table->horizontalHeaderItem(column));
      for (int row = 0; row < table->rowCount(); ++row)
        if (QTableWidgetItem* of = table->item(row, column);
            of != nullptr && !of->data(kNobodysWord).toBool())
          plain(of);
    }
    for (int row = 0; row < table->rowCount(); ++row) plain(table->verticalHeaderItem(row));
  } else if (auto* tree = qobject_cast<QTreeWidget*>(&widget)) {
    for (int column = 0; column < tree->columnCount(); ++column) {
      item(tree->headerItem(), column);
      for (int row = 0; row < tree->topLevelItemCount(); ++row) item(tree->topLevelItem(row), column);
    }
  }
}

void SpokenTexts::SayAnew(QWidget& widget) {
  // A menu's title is the text of its action, which follows.
  if (qobject_cast<QMenu*>(&widget) == nullptr) SayProperties(widget, widget);
  SayItems(widget);
  for (QAction* action : widget.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly))
    SayProperties(*action, widget);
  if (auto* view = qobject_cast<QAbstractItemView*>(&widget); view != nullptr && view->model() != nullptr) {
    const QAbstractItemModel& model = *view->model();
    for (auto* header : view->findChildren<QHeaderView*>(QString(), Qt::FindDirectChildrenOnly))
      header->headerDataChanged(header->orientation(), 0, std::max(0, header->count() - 1));
    (void)model;
    view->viewport()->update();
  }
}

}  // namespace tessaryn
