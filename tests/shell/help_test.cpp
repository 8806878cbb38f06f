// The help as it is read: no page that is missing, dead or wrong, figures that are the table's, and F1 from
// everywhere. TESSARYN_NEW_REFERENCE=1 writes the figures of the pages anew.
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTextDocument>
#include <QTreeWidget>
#include <random>

#include "base/bet_catalogue.h"
#include "play/script_session.h"
#include "play/setting_table.h"
#include "shell/frame/help_desk.h"
#include "shell/frame/help_figures.h"
#include "shell/frame/main_window.h"
#include "shell/frame/tool_rows.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/about.h"
#include "shell/screens/help_window.h"
#include "shell/screens/message_screen.h"
#include "shell/screens/workshop_editor.h"
#include "shell/screens/workshop_window.h"
#include "shell/screens_support.h"

namespace tessaryn::test {
namespace {

const QString kDocs = QDir(QString(kSourceFolder) + "/docs").canonicalPath();

QString TextOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return QString::fromUtf8(file.readAll());
}

// All pages, as the help knows them.
QStringList Pages() {
  QStringList pages;
  for (const QString& name : QDir(kDocs).entryList({"*.md"})) pages.append(name);
  for (const QString& name : QDir(kDocs + "/help").entryList({"*.md"})) pages.append("help/" + name);
  return pages;
}

// Those of the folder help, in each language.
QStringList Files() {
  QStringList files;
  for (const QString& page : Pages()) {
    if (!page.startsWith("help/")) continue;
    for (const char* language : {"", "es/", "de/", "fr/", "tr/"})
      if (const QString file = QString(page).insert(5, language); QFile::exists(kDocs + '/' + file))
        files.append(file);
  }
  return files;
}

HelpShelf Shelf(const QString& language = {}) { return HelpShelf(kDocs, language); }

bool HasAnchor(const HelpText& page, const QString& anchor) {
  for (const HelpSection& section : page.sections)
    if (section.anchor == anchor) return true;
  return false;
}

struct HelpTable : ScreenTable {
  MainWindow window{*game, host};
  Desk& desk = window.TheDesk();

  HelpTable() {
    window.Table().animate = false;
    window.resize(1024, 600);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Join(1, "Ann");
  }
  HelpWindow& Help() { return static_cast<HelpWindow&>(Tool(desk, kHelpWindow)); }
};

// --- Pages.

QString CommandHelp(const QString& command) {
  QProcess program;
  program.start(QString(kBinFolder) + "/tessaryn-cli", {command, "--help"});
  EXPECT_TRUE(program.waitForFinished());
  return "```text\n" + QString::fromUtf8(program.readAllStandardOutput()).trimmed() + "\n```\n";
}

TEST(HelpPages, FiguresAreThoseOfANewTableAndOfThePrograms) {
  ScreenTable table;
  for (const QString& page : Files()) {
    HelpShelf shelf = Shelf();
    shelf.live = [&](const QString& kind, const QString& what) {
      const QString now = kind == "help" ? CommandHelp(what) : LiveHelp(*table.game, kind, what);
      EXPECT_FALSE(now.isEmpty()) << kind.toStdString() << ": " << what.toStdString();
      return now;
    };
    const QString anew = shelf.Markdown(page);
    QFile file(kDocs + '/' + page);
    if (!qEnvironmentVariableIsEmpty("TESSARYN_NEW_REFERENCE")) {
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(anew.toUtf8());
    } else {
      EXPECT_EQ(TextOf(kDocs + '/' + page), anew) << "TESSARYN_NEW_REFERENCE=1 writes it anew";
    }
  }
}

TEST(HelpPages, NoLinkIsDeadAndNoPictureMissing) {
  const HelpShelf shelf = Shelf();
  QMap<QString, HelpText> pages;
  for (const QString& page : Pages()) pages[page] = shelf.Page(page);
  QSet<QString> shown;
  for (const auto& [page, text] : pages.asKeyValueRange()) {
    EXPECT_FALSE(text.title.isEmpty()) << page.toStdString();
    for (const QString& link : text.links) {
      if (link.startsWith("https://")) continue;
      const HelpPlace place = shelf.Resolve(page, link);
      // What isn't a page lies beside the folder, for those who read the sources.
      const QString file = QFileInfo(kDocs + '/' + page).path() + '/' + link;
      if (place.page.isEmpty())
        EXPECT_TRUE(!link.endsWith(".md") && QFileInfo::exists(file))
            << page.toStdString() << " " << link.toStdString();
      else
        EXPECT_TRUE(place.anchor.isEmpty() || HasAnchor(pages[place.page], place.anchor))
            << page.toStdString() << " " << link.toStdString();
    }
    for (const QString& link : text.pictures) {
      const QImage picture = QImage::fromData(shelf.Picture(page, link));
      EXPECT_FALSE(picture.isNull()) << page.toStdString() << " " << link.toStdString();
      EXPECT_LE(picture.width(), 900) << link.toStdString();
      shown.insert(QFileInfo(link).fileName());
    }
  }
  for (const QString& file : QDir(kDocs + "/help/pictures").entryList({"*.png"}))
    EXPECT_TRUE(shown.contains(file)) << file.toStdString() << " is on no page";
}

// A page that is shown by its English anchors, and whose links lead to pages in the same language.
TEST(HelpPages, TranslationsKeepTheHeadingsAndTheirLinks) {
  for (const char* language : {"es", "de", "fr", "tr"}) {
    const HelpShelf shelf = Shelf(language);
    int translated = 0;
    for (const QString& page : Pages()) {
      const HelpText english = Shelf().Page(page), text = shelf.Page(page);
      const std::string name = page.toStdString() + " in " + language;
      translated += text.title != english.title;
      ASSERT_EQ(text.sections.size(), english.sections.size()) << name;
      for (qsizetype n = 0; n < text.sections.size(); ++n)
        EXPECT_TRUE(HasAnchor(text, shelf.AnchorHere(page, english.sections[n].anchor))) << name;
      for (const QString& link : text.links) {
        const HelpPlace place = shelf.Resolve(page, link);
        if (place.page.isEmpty()) continue;
        EXPECT_TRUE(place.anchor.isEmpty() || HasAnchor(shelf.Page(place.page), place.anchor))
            << name << " " << link.toStdString();
      }
      EXPECT_EQ(text.links.size(), english.links.size()) << name;
      for (const QString& link : text.pictures) EXPECT_FALSE(shelf.Picture(page, link).isEmpty()) << name;
    }
    EXPECT_GE(translated, 25) << language;
  }
}

TEST(HelpPages, EveryPageStandsInTheContentsOnce) {
  QStringList listed{kHelpContents};
  for (const HelpEntry& entry : Shelf().Contents())
    if (entry.level == 1) listed.append(entry.place.page);
  listed.sort();
  EXPECT_EQ(listed, [] {
    QStringList pages = Pages();
    pages.sort();
    return pages;
  }());
}

TEST(HelpPages, EveryScriptCompiles) {
  int scripts = 0;
  QVector<std::pair<QString, HelpText>> pages;
  for (const char* language : {"", "es", "de", "fr", "tr"})
    for (const QString& page : Pages()) pages.append({page + " " + language, Shelf(language).Page(page)});
  for (const auto& [page, text] : pages)
    for (const HelpScript& script : text.scripts) {
      std::vector<std::string> lines;
      for (const QString& line : script.text.split('\n')) lines.push_back(line.toStdString());
      ScriptSurroundings surroundings;
      surroundings.seatNames[1] = "Ann";
      const ScriptCheck check = CheckLines(surroundings, 1, lines);
      EXPECT_TRUE(check.ok) << page.toStdString() << ":" << script.line << ": " << check.text;
      ++scripts;
    }
  EXPECT_GT(scripts, 20);
}

TEST(HelpPages, EveryBetHasItsFiguresOnThePageOfItsFamily) {
  QString text;
  for (const char* page : {"bets-line", "bets-numbers", "bets-one-roll", "bets-special"})
    text += Shelf().Markdown(QString("help/%1.md").arg(page));
  for (int bet = 1; bet <= kBets; ++bet)
    EXPECT_EQ(text.count(QString("| %1 |").arg(QString::fromStdString(BetName(bet)))), 1) << BetName(bet);
}

// Every name that the sources give to a screen, and every tool window.
TEST(HelpPages, EveryScreenHasItsPage) {
  QSet<QString> told;
  for (const HelpRow& row : HelpRows()) {
    EXPECT_TRUE(!told.contains(row.screen)) << row.screen;
    told.insert(row.screen);
    ASSERT_TRUE(Shelf().Has(row.page)) << row.page;
    EXPECT_TRUE(*row.anchor == '\0' || HasAnchor(Shelf().Page(row.page), row.anchor))
        << row.page << row.anchor;
  }
  static const QRegularExpression kScreen("\"(frm[A-Z][A-Za-z]*)\"");
  static const QRegularExpression kTab("\\{\"(pic[A-Z][A-Za-z]*)\",");
  for (const char* folder : {"/src/shell/screens", "/src/shell/frame", "/src/shell/table"})
    for (const QString& file : QDir(kSourceFolder + QString(folder)).entryList({"*.cpp"})) {
      if (file.startsWith("help_desk")) continue;
      const QString source = TextOf(kSourceFolder + QString(folder) + '/' + file);
      for (const QRegularExpression& names : {kScreen, kTab}) {
        if (names == kTab && file != "configuration.cpp") continue;
        for (auto named = names.globalMatch(source); named.hasNext();) {
          const QString name = named.next().captured(1);
          EXPECT_TRUE(told.contains(name)) << file.toStdString() << ": " << name.toStdString();
        }
      }
    }
}

TEST(HelpPages, NothingOutsideOfTheFolderIsRead) {
  QTemporaryDir folder;
  ASSERT_TRUE(QDir(folder.path()).mkpath("docs/help/pictures"));
  ASSERT_TRUE(QDir(folder.path()).mkpath("docs/help/de"));
  const auto write = [&](const QString& name) {
    QFile file(folder.path() + '/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("# " + name.toUtf8());
  };
  for (const char* name : {"secret.md", "secret.png", "docs/auto-bet.md", "docs/help/index.md",
                           "docs/help/a.md", "docs/help/de/a.md", "docs/help/pictures/a.png"})
    write(name);
  ASSERT_TRUE(QFile::link(folder.path() + "/secret.md", folder.path() + "/docs/help/link.md"));
  ASSERT_TRUE(QFile::link(folder.path() + "/secret.png", folder.path() + "/docs/help/link.png"));
  const QString docs = QDir(folder.path() + "/docs").canonicalPath();
  const HelpShelf shelf(docs, "de");
  const char* const bad[] = {"../../secret.md",  "../../../secret.md", "%2e%2e/%2e%2e/secret.md",
                             "link.md",          "file:///etc/passwd", "/etc/passwd",
                             "//host/secret.md", "..\\..\\secret.md",  "pictures/../../../secret.md",
                             "qrc:/secret.md",   "a.md%00.png",        "",
                             "../../secret.png", "link.png",           "pictures/../../../secret.png"};
  for (const char* link : bad) {
    const HelpPlace place = shelf.Resolve("help/index.md", link);
    EXPECT_TRUE(place.page.isEmpty() || place.page == "help/index.md") << link;
    EXPECT_TRUE(shelf.Picture("help/index.md", link).isEmpty()) << link;
    EXPECT_TRUE(shelf.Markdown(link).isEmpty()) << link;
  }
  for (const char* language : {"..", "de/../..", "../..", "/x", "d\n"})
    EXPECT_EQ(HelpShelf(docs, language).Markdown("help/a.md"), "# docs/help/a.md") << language;
  // A translated page, its pictures and the pages that it links to.
  EXPECT_EQ(shelf.Markdown("help/a.md"), "# docs/help/de/a.md");
  EXPECT_EQ(shelf.Markdown("help/index.md"), "# docs/help/index.md");
  EXPECT_EQ(shelf.Resolve("help/a.md", "../index.md#x"), (HelpPlace{"help/index.md", "x", {}}));
  EXPECT_EQ(shelf.Resolve("help/a.md", "../../auto-bet.md").page, "auto-bet.md");
  EXPECT_EQ(shelf.Resolve("help/index.md", "de/a.md").page, "help/a.md");
  EXPECT_FALSE(shelf.Picture("help/a.md", "../pictures/a.png").isEmpty());
}

TEST(HelpPages, MarkdownBecomesThePageAndNothingOfItMarkup) {
  const struct {
    const char* markdown;
    const char* html;
  } cases[] = {
      {"# A & *b* `c<d>`", "<h1><a name=\"a--b-cd\"></a>A &amp; <i>b</i> <code>c&lt;d&gt;</code></h1>\n"},
      {"one\ntwo\n\n**three**", "<p>one two</p>\n<p><b>three</b></p>\n"},
      {"- a\n  b\n- c\n  - d\n\n1. e",
       "<ul>\n<li>a b</li>\n<li><p>c</p>\n<ul>\n<li>d</li>\n</ul></li>\n</ul>\n"
       "<ol>\n<li>e</li>\n</ol>\n"},
      {"[a <b>](x.md#y) ![p](q.png)",
       "<p><a href=\"x.md#y\">a &lt;b&gt;</a> <img src=\"q.png\" alt=\"p\"></p>\n"},
      {"<script>alert(1)</script>", "<p>&lt;script&gt;alert(1)&lt;/script&gt;</p>\n"},
      {"[x](a\"onclick=\"b)", "<p><a href=\"a&quot;onclick=&quot;b\">x</a></p>\n"},
      {"<!-- words: a -->\nb\n<!-- end -->", "<p>b</p>\n"},
      {"2 * 3 * 4, \\*a\\*", "<p>2 * 3 * 4, *a*</p>\n"},
  };
  for (const auto& [markdown, html] : cases) {
    QString read = ReadHelpText(markdown).html;
    EXPECT_EQ(read.replace("<li><p>c</p>", "<li>c"), QString(html).replace("<li><p>c</p>", "<li>c"))
        << markdown;
  }
  const QString table = ReadHelpText("| a | b |\n|---|--:|\n| `x|y` | 2 |").html;
  EXPECT_TRUE(table.contains("<td align=\"left\"><code>x|y</code></td><td align=\"right\">2</td>"))
      << table.toStdString();
  // Of any text something comes, soon, and its tags are its own.
  std::mt19937 random(7);
  const QString signs = "#*`|-<>[]()!\\\n\n  1.ab>";
  for (int round = 0; round < 3000; ++round) {
    QString text;
    for (int n = 0; n < 60; ++n)
      text += signs[static_cast<qsizetype>(random() % static_cast<unsigned>(signs.size()))];
    QString html = ReadHelpText(text).html;
    static const QRegularExpression kTags(
        "</?(h[1-6]|p|b|i|ul|ol|li|hr|tr|td|th|pre|code|table|a|img|span)( [a-z]+=\"[^\"<>]*\")*>");
    EXPECT_FALSE(html.remove(kTags).contains('<')) << text.toStdString();
  }
}

TEST(HelpPages, TheSearchFindsWhatItShould) {
  HelpShelf shelf = Shelf();
  const struct {
    const char* words;
    const char* page;
    const char* anchor;
  } cases[] = {{"don't come", "help/bets-line.md", "dont-come"},
               {"DONT PASS", "help/bets-line.md", "dont-pass"},
               {"fire", "help/bets-special.md", "fire"},
               {"permissions", "help/workshop.md", "permissions"},
               {"hot-keys", "help/hot-keys.md", ""},
               {"turbo", "help/running.md", ""},
               {"run-time errors", "auto-bet.md", "run-time-errors"},
               {"percent dice", "help/dice.md", "percentage-dice"},
               {"laborat", "help/laboratory.md", ""}};
  for (const auto& [words, page, anchor] : cases) {
    const QVector<HelpHit> hits = shelf.Search(words);
    ASSERT_FALSE(hits.isEmpty()) << words;
    EXPECT_EQ(hits[0].place.page, page) << words;
    EXPECT_EQ(hits[0].place.anchor, anchor) << words;
    for (qsizetype n = 1; n < hits.size(); ++n) EXPECT_GE(hits[n - 1].score, hits[n].score);
  }
  EXPECT_TRUE(shelf.Search("zzyzx").isEmpty());
  EXPECT_TRUE(shelf.Search("  - ").isEmpty());
  EXPECT_EQ(HelpWords(QString::fromUtf8("Çok güzel: l'élan, İŞ!")),
            (QStringList{"cok", "guzel", "lelan", "is"}));
}

// --- The window.

TEST(HelpWindow, GoesBackAndForwardSearchesAndFinds) {
  HelpTable table;
  table.window.Command("mnuHelpContents")->trigger();
  HelpWindow& help = table.Help();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
  auto& view = Find<QTextBrowser>(help, "txtPage");
  EXPECT_EQ(help.Place().page, kHelpContents);
  ExpectNamed(help);
  help.Open({"help/bets-line.md", "come", {}});
  QTest::qWait(20);
  EXPECT_GT(view.verticalScrollBar()->value(), 0);
  QTest::keyClick(&view, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(help.Place().page, kHelpContents);
  QTest::keyClick(&view, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(help.Place(), (HelpPlace{"help/bets-line.md", "come", {}}));
  // A page that isn't there is the first one; a link out of the folder leads nowhere, one to the web to the
  // browser.
  QUrl opened;
  help.openAddress = [&](const QUrl& address) { opened = address; };
  emit view.anchorClicked(QUrl("../../../README.md"));
  EXPECT_EQ(help.Place().page, "help/bets-line.md");
  emit view.anchorClicked(QUrl("https://example.org/"));
  EXPECT_EQ(opened, QUrl("https://example.org/"));
  // Search, by the keyboard alone.
  table.window.Command("mnuHelpSearch")->trigger();
  auto& search = Find<QLineEdit>(help, "txtSearch");
  EXPECT_TRUE(search.hasFocus());
  QTest::keyClicks(&search, "sharp shooter");
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(help.Place(), (HelpPlace{"help/bets-special.md", "sharp-shooter", {}}));
  EXPECT_GE(view.extraSelections().size(), 2);
  search.setText("zzyzx");
  EXPECT_TRUE(Find<QWidget>(help, "lblNothing").isVisible());
  QTest::keyClick(&search, Qt::Key_Escape);
  EXPECT_TRUE(Find<QWidget>(help, "lstContents").isVisible());
  // In the page, round its end.
  QTest::keyClick(&view, Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(&Find<QLineEdit>(help, "txtFind"), "different points");
  EXPECT_EQ(view.textCursor().selectedText().toLower(), "different points");
  Find<QLineEdit>(help, "txtFind").setText("nowhere at all");
  EXPECT_FALSE(Find<QLabel>(help, "lblFound").text().isEmpty());
  // Letters grow, also by a key that the table has as well, and printing doesn't depend on the desktop's
  // colours.
  const double before = view.document()->defaultFont().pointSizeF();
  const int zoom = table.window.Table().view.TableZoom;
  QTest::keyClick(&view, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(view.document()->defaultFont().pointSizeF(), before);
  EXPECT_EQ(table.window.Table().view.TableZoom, zoom);
  int pages = 0;
  help.print = [&](QTextDocument& page) { pages = page.pageCount(); };
  QTest::keyClick(&view, Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(pages, 1);
  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_FALSE(help.isVisible());
}

TEST(HelpWindow, FiguresFollowTheTable) {
  HelpTable table;
  HelpWindow& help = OpenHelp(table.desk, {"help/bets-numbers.md", {}, {}});
  auto& view = Find<QTextBrowser>(help, "txtPage");
  EXPECT_TRUE(view.toPlainText().contains("7 to 6"));
  std::string error;
  ASSERT_TRUE(SetSetting(*table.game, "PayoffTable.33", 0, "8 to 6", error)) << error;
  help.Open({"help/bets-numbers.md", {}, {}});
  EXPECT_TRUE(view.toPlainText().contains("8 to 6"));
}

TEST(HelpWindow, F1OpensThePageOfTheScreen) {
  HelpTable table;
  QTest::keyClick(&table.window.Table(), Qt::Key_F1);
  EXPECT_EQ(table.Help().Place().page, "help/table.md");
  for (const ToolRow& row : ToolRows()) {
    if (row.number == kHelpWindow) continue;
    ShowTool(table.desk, row.number, true);
    ToolWindow& tool = Tool(table.desk, row.number);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tool));
    QWidget* focus = tool.focusWidget() != nullptr ? tool.focusWidget() : &tool;
    QTest::keyClick(focus, Qt::Key_F1);
    EXPECT_EQ(table.Help().Place(), HelpFor(focus)) << tool.objectName().toStdString();
    EXPECT_NE(table.Help().Place(), (HelpPlace{"help/table.md", {}, {}})) << tool.objectName().toStdString();
    ShowTool(table.desk, row.number, false);
  }
}

TEST(HelpWindow, F1OnAWordOfAScriptOpensItsEntry) {
  HelpTable table;
  SetScript(*table.game, 1, {"if comeout roll then bet 10 on passline endif"}, "");
  ShowTool(table.desk, kAutoBetWindow, true);
  auto& workshop = static_cast<WorkshopWindow&>(Tool(table.desk, kAutoBetWindow));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&workshop));
  workshop.Editor().setFocus();
  workshop.Editor().setCursorPosition(0, 8);
  QTest::keyClick(&workshop.Editor(), Qt::Key_F1);
  EXPECT_EQ(table.Help().Place(), (HelpPlace{"auto-bet.md", {}, "comeout roll"}));
  auto& view = Find<QTextBrowser>(table.Help(), "txtPage");
  ASSERT_EQ(view.extraSelections().size(), 1);
  const QTextCursor mark = view.extraSelections().front().cursor;
  EXPECT_EQ(mark.selectedText().toLower(), "comeout roll");
  EXPECT_TRUE(view.rect().contains(view.cursorRect(mark).center()));
}

// A box waits for its answer: its help is a window of its own, which can be worked and goes with it.
TEST(HelpWindow, F1InABoxOpensHelpThatCanBeReadBesideIt) {
  HelpTable table;
  WhenOpen("frmAbout", [&](QDialog& box) {
    QTest::keyClick(box.focusWidget() != nullptr ? box.focusWidget() : &box, Qt::Key_F1);
    auto* help = box.findChild<HelpWindow*>();
    ASSERT_NE(help, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(help));
    EXPECT_EQ(help->Place().page, "help/about.md");
    // A key that it has no use for doesn't answer the box.
    QTest::keyClick(&Find<QTextBrowser>(*help, "txtPage"), Qt::Key_Return);
    EXPECT_TRUE(box.isVisible());
    QTest::keyClick(&Find<QTextBrowser>(*help, "txtPage"), Qt::Key_Escape);
    EXPECT_FALSE(help->isVisible());
    EXPECT_TRUE(box.isVisible());
    box.close();
  });
  table.window.Command("mnuAbout")->trigger();
}

TEST(HelpWindow, AMessagesHelpButtonOpensItsPageAndAnswersNothing) {
  HelpTable table;
  MessageBox message;
  message.MsgFlags = kMsgOk | kMsgCancel | kMsgHelp;
  WhenOpen("frmMsg", [&](QDialog& box) {
    Click(box, "cmdButton4");
    auto* help = box.findChild<HelpWindow*>();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->Place().page, "help/windows.md");
    EXPECT_TRUE(box.isVisible());
    help->close();
    Click(box, "cmdButton0");
  });
  ShowMessageScreen(message, &table.window);
  EXPECT_EQ(message.MsgResult, kResultOk);
}

}  // namespace
}  // namespace tessaryn::test
