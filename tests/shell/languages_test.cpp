// The languages of the window: what translators have still to do, and a change of language with everything
// open.
#include "shell/table/languages.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabBar>
#include <QTableWidget>
#include <QXmlStreamReader>
#include <memory>
#include <random>

#include "base/bet_catalogue.h"
#include "play/setting_rows.h"
#include "rules/handling.h"
#include "shell/frame/main_window.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/about.h"
#include "shell/screens/core_words.h"
#include "shell/screens_support.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"

namespace tessaryn::test {
namespace {

struct Entry {
  QString context, source, translation;
  bool finished = true;
  std::string Name() const { return ("[" + context + "] " + source + " -> " + translation).toStdString(); }
};

QList<Entry> EntriesOf(const char* code) {
  QFile file(QString("%1/data/translations/tessaryn_%2.ts").arg(kSourceFolder, code));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << code;
  QXmlStreamReader xml(&file);
  QList<Entry> entries;
  QString context;
  bool numerus = false;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QLatin1String("message")) numerus = xml.attributes().hasAttribute("numerus");
    if (xml.name() == QLatin1String("name")) context = xml.readElementText();
    if (xml.name() == QLatin1String("source")) entries.append({context, xml.readElementText(), {}, true});
    if (xml.name() == QLatin1String("translation"))
      entries.back().finished = !xml.attributes().hasAttribute("type");
    // Of what is counted each form is a text of its own.
    const bool form = xml.name() == QLatin1String("numerusform");
    if (form && !entries.back().translation.isEmpty()) entries.append(Entry(entries.back()));
    if (form || (xml.name() == QLatin1String("translation") && !numerus))
      entries.back().translation = xml.readElementText();
  }
  EXPECT_FALSE(xml.hasError()) << code;
  return entries;
}

QStringList Matches(const QString& text, const char* expression) {
  QStringList found;
  for (auto match = QRegularExpression(expression).globalMatch(text); match.hasNext();)
    found += match.next().captured();
  found.sort();
  return found;
}

TEST(Languages, EveryFileIsCompleteAndKeepsHolesAndAccessLetters) {
  for (const SpokenLanguage& language : SpokenLanguages()) {
    if (*language.code == 0) continue;
    const QList<Entry> entries = EntriesOf(language.code);
    EXPECT_GT(entries.size(), 1000) << language.code;
    int missing = 0;
    for (const Entry& entry : entries) {
      const bool there = entry.finished && !entry.translation.trimmed().isEmpty();
      missing += there ? 0 : 1;
      EXPECT_TRUE(there) << language.code << " misses " << entry.Name();
      if (!there) continue;
      for (const char* kept : {"%L?\\d|%n", "\\(\\*[^)]*\\)", "^ +", "\n", "\t\\S+$"})
        EXPECT_EQ(Matches(entry.source, kept), Matches(entry.translation, kept))
            << language.code << " " << entry.Name();
      EXPECT_EQ(Matches(entry.source, "&(?=[^\\s&])").size(),
                Matches(entry.translation, "&(?=[^\\s&])").size())
          << language.code << " " << entry.Name();
    }
    std::printf("%s: %d of %d texts translated\n", language.code, int(entries.size()) - missing,
                int(entries.size()));
  }
}

// Every tool window open over the table, with a game in it that has something to show.
struct OpenTable : ScreenTable {
  MainWindow window{*game, host};
  Desk& desk = window.TheDesk();

  OpenTable() {
    Join(1, "Ada", "1000");
    Join(2, "Bo", "500");
    Bet(1, kPassLine, "10");
    window.Table().animate = false;
    window.resize(1024, 600);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Roll(2, 4);
    for (int number = 0; number < kToolWindows; ++number)
      if (HasTool(desk, number)) ShowTool(desk, number, true);
    QTest::qWait(50);
  }
  ~OpenTable() { SpeakWith({}); }

  QList<QWidget*> Windows() {
    QList<QWidget*> all{&window};
    for (int number = 0; number < kToolWindows; ++number)
      if (HasTool(desk, number)) all.append(&Tool(desk, number));
    return all;
  }
};

struct Seen {
  QString text;
  std::string where;
};

// What can be read on a screen: its words, tips, lists, headings and menus, and what a reader of screens is
// told.
QList<Seen> TextsOf(QWidget& screen) {
  QList<Seen> seen;
  const auto add = [&](const QString& text, const QObject& of, const char* what) {
    const QObject* named = &of;
    while (named != nullptr && named->objectName().isEmpty()) named = named->parent();
    const QObject* tool = named;
    while (tool != nullptr && dynamic_cast<const ToolWindow*>(tool) == nullptr) tool = tool->parent();
    const auto nameOf = [](const QObject* object) {
      return object == nullptr ? "" : object->objectName().toStdString();
    };
    if (!text.isEmpty())
      seen.append({text, nameOf(tool == nullptr ? &screen : tool) + "/" + nameOf(named) + " " +
                             of.metaObject()->className() + "." + what});
  };
  QList<QWidget*> widgets = screen.findChildren<QWidget*>();
  widgets.prepend(&screen);
  for (QWidget* widget : widgets) {
    const bool typed = widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit") ||
                       widget->inherits("QTextEdit") || widget->inherits("QsciScintillaBase");
    for (const char* name :
         {"text", "title", "windowTitle", "toolTip", "accessibleName", "placeholderText", "suffix"})
      if (!(typed && qstrcmp(name, "text") == 0) && widget->metaObject()->indexOfProperty(name) >= 0)
        add(widget->property(name).toString(), *widget, name);
    for (QAction* action : widget->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly))
      add(action->text(), *action, "text");
    if (auto* box = qobject_cast<QComboBox*>(widget))
      for (int n = 0; n < box->count(); ++n) add(box->itemText(n), *box, "item");
    if (auto* bar = qobject_cast<QTabBar*>(widget))
      for (int n = 0; n < bar->count(); ++n) add(bar->tabText(n), *bar, "tab");
    const auto* view = qobject_cast<QAbstractItemView*>(widget);
    if (view == nullptr || view->model() == nullptr || qobject_cast<QHeaderView*>(widget) != nullptr)
      continue;
    const QAbstractItemModel& model = *view->model();
    for (int column = 0; column < model.columnCount(); ++column) {
      add(model.headerData(column, Qt::Horizontal).toString(), *view, "heading");
      for (int row = 0; row < std::min(model.rowCount(), 100); ++row)
        add(model.index(row, column).data().toString(), *view, "item");
    }
    for (int row = 0; row < std::min(model.rowCount(), 100); ++row)
      add(model.headerData(row, Qt::Vertical).toString(), *view, "row heading");
  }
  return seen;
}

constexpr QChar kOpen(0x2039);
constexpr QChar kClose(0x203a);
// A language in which every text stands between marks; a colon ends a label in each.
QString Marked(const char*, const char* source, int) {
  const QString text = QString::fromUtf8(source);
  return text.endsWith(':') ? kOpen + text.chopped(1) + kClose + ':' : kOpen + text + kClose;
}

// What is English in every language, and what is nobody's word: names, files, fonts, colours, words of
// scripts.
bool MayStay(QString text, const QString& where) {
  for (const char* place :
       {"frmSummary/tblReport", "frmRollTotals/tblReport", "/lstWords", "/tblWatch", "/cmbFont", "/cmbRNG",
        "frmHelp/lstContents", "/qt_", "/ScrollLeftButton", "/ScrollRightButton",
        "/cmdProbabilityActive",  // by the language that is set
        "/lblPointer"})
    if (where.contains(place)) return true;
  // What is between marks has been said; marks may stand in each other.
  static const QRegularExpression kSaid(QString("%1[^%1%2]*%2").arg(kOpen).arg(kClose));
  while (text.contains(kSaid)) text.remove(kSaid);
  // Keys, names of settings, colours, the names of bets alone and together.
  for (const char* kept : {"\\t.*$", "\\(\\w+(\\.\\w+)?\\)", "#[0-9A-F]{6}", "(Ctrl|Alt)\\+(\\w+|.)",
                           "(Passline|Pass|DP|Don't Pass)/(Come|DC)( \\d+)?( Odds)?( \\(c\\.o\\.\\))?"})
    text.remove(QRegularExpression(kept));
  static const QStringList kNames = [] {
    QStringList names{"Tessaryn",         "Summary", "Roll Totals",  "Ada",     "House",
                      "Auto-Bet",         "English", "Espa\u00f1ol", "Deutsch", "Fran\u00e7ais",
                      "T\u00fcrk\u00e7e", "OFF",     "BUY",          "LAY"};
    for (int bet = 1; bet <= kBets; ++bet) names += FromCore(BetName(bet));
    std::sort(names.begin(), names.end(),
              [](const QString& a, const QString& b) { return a.size() > b.size(); });
    return names;
  }();
  for (const QString& name : kNames) text.remove(name);
  static const QRegularExpression kWord("[A-Za-z]{3,}");
  return !text.contains(kWord);
}

TEST(Languages, AChangeWithEverythingOpenLeavesNothingOfTheFormerOne) {
  OpenTable table;
  const QStringList names{"Ada", "Bo"};
  QStringList before;
  for (QWidget* screen : table.Windows())
    for (const Seen& seen : TextsOf(*screen)) before += QString::fromStdString(seen.where) + "|" + seen.text;
  SpeakWith(Marked, names);
  QTest::qWait(100);
  int watched = 0;
  for (QWidget* screen : table.Windows())
    for (const auto* watch : screen->findChildren<QTableWidget*>("tblWatch"))
      for (int row = 0; row < watch->rowCount(); ++row, ++watched)
        EXPECT_FALSE(watch->item(row, 0)->text().contains(kOpen)) << "a script's word has become another";
  EXPECT_GT(watched, 0);
  int said = 0;
  for (QWidget* screen : table.Windows())
    for (const Seen& seen : TextsOf(*screen)) {
      said += seen.text.contains(kOpen) ? 1 : 0;
      EXPECT_TRUE(MayStay(seen.text, QString::fromStdString(seen.where)))
          << seen.where << ": " << seen.text.toStdString();
    }
  EXPECT_GT(said, 1000);
  SpeakWith({}, names);
  QTest::qWait(100);
  QStringList after;
  for (QWidget* screen : table.Windows())
    for (const Seen& seen : TextsOf(*screen)) {
      EXPECT_FALSE(seen.text.contains(kOpen) || seen.text.contains(kClose))
          << seen.where << ": " << seen.text.toStdString();
      after += QString::fromStdString(seen.where) + "|" + seen.text;
    }
  before.sort();
  after.sort();
  // A list that is made anew has nothing chosen.
  before.removeIf([](const QString& text) { return text.contains("/lblHouse "); });
  for (const QString& text : before)
    EXPECT_TRUE(after.contains(text)) << "changed on the way: " << text.toStdString();
}

// The letters of one menu or bar of menus.
void ExpectUniqueLetters(const QList<QAction*>& actions, const std::string& where) {
  QHash<QChar, QString> letters;
  for (const QAction* action : actions) {
    const QStringList found = Matches(action->text(), "&[^\\s&]");
    if (found.isEmpty() || !action->isVisible()) continue;
    const QChar letter = found.front()[1].toLower();
    EXPECT_FALSE(letters.contains(letter))
        << where << ": " << action->text().toStdString() << " and " << letters.value(letter).toStdString();
    letters[letter] = action->text();
  }
}

TEST(Languages, AccessLettersAreUniqueInEveryMenuOfEveryLanguage) {
  OpenTable table;
  for (int language = 0; language < static_cast<int>(SpokenLanguages().size()); ++language) {
    SpeakLanguage(language);
    for (QWidget* screen : table.Windows())
      for (QWidget* menu : screen->findChildren<QWidget*>())
        if (qobject_cast<QMenu*>(menu) != nullptr || qobject_cast<QMenuBar*>(menu) != nullptr)
          ExpectUniqueLetters(menu->actions(),
                              std::to_string(language) + " " + screen->objectName().toStdString());
  }
  SpeakLanguage(0);
}

// The list that a box opens shows each of its choices whole.
void ExpectWholeChoices(QComboBox& box, const std::string& where) {
  if (box.count() == 0 || !box.isEnabled()) return;
  box.showPopup();
  QApplication::processEvents();
  EXPECT_GE(box.view()->viewport()->width(), box.view()->sizeHintForColumn(0))
      << where << box.objectName().toStdString();
  box.hidePopup();
}

// A caption is cut if it needs more room than it has; what is elided on purpose, or wraps, isn't.
TEST(Languages, NoTextIsCutInAnyLanguage) {
  OpenTable table;
  for (int language = 0; language < static_cast<int>(SpokenLanguages().size()); ++language) {
    SpeakLanguage(language);
    QTest::qWait(50);
    for (QWidget* screen : table.Windows()) {
      const std::string where =
          std::string(SpokenLanguages()[language].name) + " " + screen->objectName().toStdString() + "/";
      screen->resize(screen->size().boundedTo(QSize(1024, 600)));
      QTest::qWait(1);
      for (QWidget* widget : screen->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(screen) || widget->width() == 0) continue;
        if (auto* box = qobject_cast<QComboBox*>(widget)) ExpectWholeChoices(*box, where);
        const auto* label = qobject_cast<QLabel*>(widget);
        const bool free =
            label != nullptr && (label->wordWrap() || label->text().isEmpty() ||
                                 label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
                                 label->minimumSizeHint().width() <= 0 || label->inherits("ElidedLabel"));
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        // Nor does one of a row stand over its neighbour.
        for (auto* other : widget->parentWidget()->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly))
          EXPECT_TRUE(button == nullptr || other == button || !other->isVisibleTo(screen) ||
                      !other->geometry().intersects(button->geometry()))
              << where << widget->objectName().toStdString() << " and " << other->objectName().toStdString();
        if ((label == nullptr || free) && button == nullptr) continue;
        const int needed = button != nullptr
                               ? button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + 4
                               : label->minimumSizeHint().width();
        EXPECT_GE(widget->width(), needed) << where << widget->objectName().toStdString() << ": "
                                           << widget->property("text").toString().toStdString();
      }
      SavePicture(*screen, QString("language-%1-%2").arg(language).arg(screen->objectName()));
    }
  }
  SpeakLanguage(0);
}

TEST(Languages, TheAboutScreenAndTheMenuChangeTheLanguageAtOnce) {
  OpenTable table;
  AboutScreen about(*table.game, &table.window);
  about.show();
  auto& list = Find<QComboBox>(about, "cmbLanguage");
  ASSERT_EQ(list.count(), 5);
  list.setCurrentIndex(2);
  emit list.activated(2);
  EXPECT_EQ(table.game->settings.Language, 2);
  EXPECT_EQ(LanguageSpoken(), 2);
  // Qt's own words come along.
  const QDialogButtonBox buttons(QDialogButtonBox::Cancel);
  EXPECT_EQ(buttons.button(QDialogButtonBox::Cancel)->text().remove('&'), "Abbrechen");
  QMenu menu;
  auto* languages = table.window.Command("mnuLanguage");
  ASSERT_NE(languages, nullptr);
  emit languages->menu()->aboutToShow();
  Find<QAction>(*languages->menu(), "mnuLanguage0").trigger();
  EXPECT_EQ(LanguageSpoken(), 0);
  EXPECT_EQ(buttons.button(QDialogButtonBox::Cancel)->text().remove('&'), "Cancel");
}

// What the core has is listed for translators.
TEST(Languages, TheCoresWordsAreAllListed) {
  QSet<QString> listed;
  for (const char* word : AllCoreWords()) listed.insert(QString::fromUtf8(word));
  for (const SettingRow& row : SettingRows()) {
    EXPECT_TRUE(listed.contains(QString::fromUtf8(row.help))) << row.name << ": " << row.help;
    // A language as it calls itself; names.
    if (std::string_view(row.name) == "Language" || std::string_view(row.name) == "GeneratorIndex") continue;
    for (const char* caption : row.facts.captions)
      EXPECT_TRUE(listed.contains(QString::fromUtf8(caption))) << row.name << ": " << caption;
  }
}

// --- Numbers by the habit of the language.

TEST(Numbers, AreReadAsTheLanguageWritesThemAndNeverAsAnotherAmount) {
  constexpr const char* kNone = "";
  const struct {
    const char* typed;
    const char* in[5];  // English, Spanish, German, French, Turkish
  } kRows[] = {{"1,5", {"1.5", "1.5", "1.5", "1.5", "1.5"}},
               {"1.5", {"1.5", "1.5", "1.5", "1.5", "1.5"}},
               {"1,500", {"1500", "1.500", "1.500", "1.500", "1.500"}},
               {"1.500", {"1.500", "1500", "1500", "1.500", "1500"}},
               {"1.234.567,25", {"1234567.25", "1234567.25", "1234567.25", "1234567.25", "1234567.25"}},
               {"1,234.5", {"1234.5", "1234.5", "1234.5", "1234.5", "1234.5"}},
               {"1 234,5", {"1234.5", "1234.5", "1234.5", "1234.5", "1234.5"}},
               {"-0,125", {"-0.125", "-0.125", "-0.125", "-0.125", "-0.125"}},
               {",5", {".5", ".5", ".5", ".5", ".5"}},
               {"7,", {"7", "7", "7", "7", "7"}},
               {"1.2.3", {kNone, kNone, kNone, kNone, kNone}},
               {"1.23,4", {kNone, kNone, kNone, kNone, kNone}},
               {"1,234.5,6", {kNone, kNone, kNone, kNone, kNone}},
               {"1e3", {kNone, kNone, kNone, kNone, kNone}},
               {"", {kNone, kNone, kNone, kNone, kNone}}};
  std::mt19937_64 random(14);
  for (int language = 0; language < 5; ++language) {
    SpeakLanguage(0);
    MoneyEdit box;
    box.SetKeys(4, true);
    SpeakLanguage(language);
    for (const auto& row : kRows)
      EXPECT_EQ(ToCore(FileNumber(row.typed, HabitSpoken())), row.in[language])
          << row.typed << " " << language;
    for (int n = 0; n < 2000; ++n) {
      const Currency value = Currency::FromRaw(static_cast<std::int64_t>(random()) >> (random() % 60));
      Currency read;
      ASSERT_TRUE(ReadNumber(MoneyText(value), read) && read == value) << ToCore(MoneyText(value));
      SpeakLanguage(0);
      box.SetValue(value);
      SpeakLanguage(language);
      ASSERT_EQ(box.Value(), value) << "kept through a change of language: " << ToCore(box.text());
      const NumbersOfFiles files;
      ASSERT_EQ(ToCore(MoneyText(value)), FormatMoney(value));
    }
    box.clear();
    QTest::keyClicks(&box, language == 0 ? "-1x234.5" : "-1x234,5");
    EXPECT_EQ(box.Value(), ParseMoney("-1234.5")) << ToCore(box.text());
  }
  SpeakLanguage(0);
}

// Numbers in what is exported are those of English, whatever is spoken.
TEST(Numbers, InExportsAreThoseOfFiles) {
  OpenTable table;
  QStringList numbers[2];
  for (const int language : {0, 2}) {
    SpeakLanguage(language);
    QTest::qWait(50);
    for (QWidget* screen : table.Windows()) {
      const auto* tool = dynamic_cast<ToolWindow*>(screen);
      if (tool == nullptr || screen->objectName() == "frmHelp") continue;
      const NumbersOfFiles inTheirForm;
      const std::unique_ptr<RowSource> rows = tool->TakeRows();
      for (qint64 row = 0; row < std::min<qint64>(rows->Count(), 200); ++row)
        for (const QString& cell : rows->Row(row)) numbers[language / 2] += screen->objectName() + " " + cell;
    }
  }
  numbers[0] = numbers[0].filter(QRegularExpression(" [-+]?\\$?[\\d,]+\\.?\\d*%?$"));
  for (const QString& number : numbers[0]) EXPECT_TRUE(numbers[1].contains(number)) << ToCore(number);
  EXPECT_GT(numbers[0].size(), 100);
  SpeakLanguage(0);
}

// --- Somebody new: from the first start to the tenth roll by the real widgets.

constexpr int kMarked = 5;  // the language in which every text stands between marks

class Newcomer : public testing::TestWithParam<int> {
 protected:
  ScreenTable table;
  Game& game = *table.game;
  std::unique_ptr<MainWindow> window;
  int typed = 0;
  QTimer hands;

  Newcomer() {
    game.settings.Language = GetParam() % kMarked;
    window = std::make_unique<MainWindow>(game, table.host);
    window->Table().animate = false;
    window->resize(1024, 600);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    if (GetParam() == kMarked) SpeakWith(Marked);
    window->OpenAtStart("");
    QApplication::processEvents();
    // Boxes are filled in and taken as they come.
    QObject::connect(&hands, &QTimer::timeout, &hands, [this] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr || !box->isVisible()) return;
      const bool french = GetParam() == 3;
      for (QLineEdit* entry : box->findChildren<QLineEdit*>()) {
        if (!entry->isVisible() || entry->isReadOnly() || typed > 1) continue;
        entry->clear();
        QTest::keyClicks(entry, typed++ == 0                ? "Ada"
                                : GetParam() % kMarked == 0 ? "1500.5"
                                : french                    ? "1 500,5"
                                                            : "1.500,5");
      }
      if (box->objectName() == "frmJoin")
        EXPECT_EQ(ToCore(Find<QLabel>(*box, "lblAdd").text()), GetMessage(GetParam() % kMarked, 3));
      Look(*box, box->objectName());
      QTest::keyClick(box, Qt::Key_Return);
    });
    hands.start(10);
  }
  ~Newcomer() override {
    hands.stop();
    window.reset();
    SpeakWith({});
    SpeakLanguage(0);
  }
  Board& TheBoard() { return window->Stage().TheBoard(); }
  // What is painted on the board, and all else that can be read.
  void Look(QWidget& screen, const QString& name) {
    SavePicture(screen, QString("newcomer-%1-%2").arg(GetParam()).arg(name));
    if (GetParam() != kMarked) return;
    QList<Seen> all = TextsOf(screen);
    all += {{GuideText(NextGuideStep(game)), "guide"}, {TheBoard().ResultText(), "board"}};
    for (const QString& line : MoneyLines(game, 4)) all += {line, "plate"};
    for (const QString& note : TheBoard().Notes()) all += {note, "note"};
    // What has its translations in the core is English here, as the language that is set.
    const auto told = [](const QString& text) {
      for (int id = 1; id < 200; ++id)
        if (text.toStdString() == GetMessage(0, id)) return true;
      return false;
    };
    for (const Seen& seen : all)
      EXPECT_TRUE(told(seen.text) || MayStay(seen.text, QString::fromStdString(seen.where)))
          << name.toStdString() << " " << seen.where << ": " << seen.text.toStdString();
  }
  void ClickTable(QPoint at) {
    QTest::mouseMove(&window->Table(), at);
    QTest::mouseClick(&window->Table(), Qt::LeftButton, {}, at);
  }
};

TEST_P(Newcomer, ComesFromTheFirstStartToTheTenthRollByTheGuide) {
  ASSERT_TRUE(TheBoard().IsGuiding());
  EXPECT_EQ(NextGuideStep(game), GuideStep::kJoin);
  EXPECT_EQ(GuideText(GuideStep::kJoin) == "Click a + to join", GetParam() == 0);
  Look(*window, "1");
  ClickTable(window->Table().PointOfSeat(4));
  ASSERT_TRUE(IsOccupied(game.table, 4));
  EXPECT_EQ(game.table.BankrollCurrent[4], ParseMoney("1500.5")) << "as it was typed";
  EXPECT_EQ(NextGuideStep(game), GuideStep::kBet);
  Look(*window, "2");
  Click(*window, "picCheck2");
  ClickTable(window->Table().PointOfBet(4, kPassLine));
  EXPECT_EQ(game.table.BetAmount(4, kPassLine), game.settings.CheckValue[2]);
  EXPECT_EQ(NextGuideStep(game), GuideStep::kRoll);
  Look(*window, "3");
  Click(*window, "cmdRoll");
  EXPECT_EQ(NextGuideStep(game), GuideStep::kAskWins);
  QApplication::processEvents();
  Look(*window, "4");
  for (const char* name : {"cmdGuideAsk", "cmdGuideKeep"}) {
    const auto& button = Find<QPushButton>(*window, name);
    EXPECT_GE(button.width(), button.fontMetrics().horizontalAdvance(button.text()) + 4) << name;
    EXPECT_TRUE(TheBoard().rect().contains(button.geometry())) << name;
  }
  Click(*window, "cmdGuideKeep");
  EXPECT_EQ(game.table.seats[4].handling.WinHandling, kWinSame);
  EXPECT_FALSE(TheBoard().IsGuiding());
  EXPECT_TRUE(ReadPreferences(game.dataFolder).guideDone) << "it doesn't come again";
  while (SessionRolls(game.stats) < 10) {
    const auto rolls = SessionRolls(game.stats);
    if (game.table.BetAmount(4, kPassLine) == kZero) ClickTable(window->Table().PointOfBet(4, kPassLine));
    Click(*window, "cmdRoll");
    ASSERT_EQ(SessionRolls(game.stats), rolls + 1);
  }
  EXPECT_EQ(TheBoard().ResultText().startsWith("Roll 10: "), GetParam() == 0);
  EXPECT_TRUE(TheBoard().ResultText().contains("10"));
  Look(*window, "5");
}

TEST_P(Newcomer, MaySkipTheGuideForGood) {
  Click(*window, "cmdGuideSkip");
  EXPECT_FALSE(TheBoard().IsGuiding());
  EXPECT_TRUE(ReadPreferences(game.dataFolder).guideDone);
}

INSTANTIATE_TEST_SUITE_P(InEachLanguage, Newcomer, testing::Range(0, kMarked + 1));

}  // namespace
}  // namespace tessaryn::test
