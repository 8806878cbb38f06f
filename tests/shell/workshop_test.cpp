// A person's path through the script workshop, with the keys and buttons of the real program.
#include <Qsci/qsciprinter.h>

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>
#include <new>

#include "play/game_file.h"
#include "play/hot_keys.h"
#include "play/script_session.h"
#include "play/script_trial.h"
#include "shell/frame/main_window.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/permissions_screen.h"
#include "shell/screens/workshop_editor.h"
#include "shell/screens/workshop_trial.h"
#include "shell/screens/workshop_window.h"
#include "shell/screens_support.h"

namespace tessaryn::test {
namespace {

using Lines = std::vector<std::string>;

struct WorkshopTable : ScreenTable {
  MainWindow window{*game, host};
  WorkshopWindow* workshop = nullptr;

  WorkshopTable() {
    window.Table().animate = false;
    window.resize(1024, 600);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Join(1, "Ann");
    Join(2, "Bo");
    SelectSeat(*game, 1);
  }
  void Open() {
    QTest::keyClick(&window, Qt::Key_F4);
    workshop = static_cast<WorkshopWindow*>(&Tool(window.TheDesk(), kAutoBetWindow));
    EXPECT_TRUE(QTest::qWaitForWindowActive(workshop));
    Editor().setFocus();
  }
  WorkshopEditor& Editor() { return workshop->Editor(); }
  void Key(int key, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::keyClick(&Editor(), Qt::Key(key), keys);
  }
  void Do(const char* name) { Find<QAction>(*workshop, name).trigger(); }
  QString Problems() {
    auto& list = Find<QListWidget>(*workshop, "lstProblems");
    return list.count() == 0 ? QString() : list.item(0)->text();
  }
  SeatScript& Script(int seat) { return game->autobet.Scripts[seat]; }
  // Presses a button of the steps viewer each time the run waits.
  void WhenWaiting(std::function<void(int)> work, int nth = 0) {
    QTimer::singleShot(5, &window, [this, work, nth] {
      if (!game->autobet.StepWaiting)
        return game->autobet.ScriptRunning || nth == 0 ? WhenWaiting(work, nth) : void();
      work(nth);
      if (game->autobet.ScriptRunning) WhenWaiting(work, nth + 1);
    });
  }
};

const Lines kGood = {"if comeout roll and passline = 0 then", "   bet 10 on passline", "endif"};

TEST(Workshop, APersonWritesMendsChecksAndSaves) {
  WorkshopTable table;
  table.Open();
  // Two letters offer words; Tab takes the first one.
  QTest::keyClicks(&table.Editor(), "if comeout roll and passline = 0 then");
  table.Key(Qt::Key_Return);
  QTest::keyClicks(&table.Editor(), "bet 10 on paslin");
  table.Key(Qt::Key_Escape);
  table.Key(Qt::Key_Return);
  QTest::keyClicks(&table.Editor(), "endif");
  table.Key(Qt::Key_Escape);
  EXPECT_EQ(table.Editor().Lines()[1], "   bet 10 on paslin") << "indented as typed";
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.Problems().contains("line 2"); }, 5000));
  auto& beside = *table.workshop->findChild<QLabel*>("lblFault");
  EXPECT_TRUE(beside.isVisible() && beside.text().startsWith("Unknown or misplaced element: paslin"));
  const int y = beside.y();
  table.Editor().insertAt("\n", 0, 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return beside.y() == y + beside.height(); }, 5000))
      << "it goes with its line";
  table.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.Problems().contains("line 2"); }, 5000));
  table.Key(Qt::Key_Period, Qt::ControlModifier);
  EXPECT_EQ(table.Editor().Lines()[1], kGood[1]);
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.Problems().isEmpty(); }, 5000));
  EXPECT_FALSE(beside.isVisible());
  table.host.answers.Ok();
  table.Key(Qt::Key_F7);
  EXPECT_EQ(table.game->box.MsgText, "Your script is properly structured.");
  EXPECT_EQ(table.game->box.MsgTitle, "Auto-Bet");
  EXPECT_EQ(table.Script(1).ScriptLines, kGood) << "as the compiler has it, endif moved out";
  const QString path = table.folder.filePath("mine.bet");
  QueuedFileNames().push_back(path.toStdString());
  table.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(table.Script(1).Unsaved);
  EXPECT_TRUE(QFile::exists(path));
}

// From the key that opens it to the next day: a system is typed, mended, checked, tried, stepped through and
// kept.
TEST(Workshop, AnEveningFromItsKeyToTheNextDay) {
  WorkshopTable table;
  table.Open();
  const QString typed[] = {"' evening", "if comeout roll and passline = 0 then", "bet 10 on paslin", "endif"};
  for (const QString& line : typed) {
    QTest::keyClicks(&table.Editor(), line);
    table.Key(Qt::Key_Escape);
    table.Key(Qt::Key_Return);
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.Problems().contains("line 3"); }, 5000));
  table.Key(Qt::Key_Period, Qt::ControlModifier);
  QTest::keyClicks(&Find<QLineEdit>(*table.workshop, "txtWatch"), "passline\r");
  table.Editor().ToggleBreak(3);
  Find<QPushButton>(*table.workshop, "cmdTryIt").click();
  WorkshopTrial& trial = *table.workshop->findChild<WorkshopTrial*>();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !trial.IsOn(); }, 20000));
  EXPECT_TRUE(trial.Result().rolls == 10'000 || !trial.Result().stopReason.empty());
  table.host.answers.Ok();  // properly structured
  table.Key(Qt::Key_F7);
  EXPECT_EQ(table.game->box.MsgText, "Your script is properly structured.");
  QStringList waits;  // the first at the break-point, then at each statement
  const auto next = [&](int) {
    waits += Find<QLabel>(*table.workshop, "lblStepLine").text();
    Find<QPushButton>(*table.workshop, "cmdNextAutoBet").click();
  };
  table.host.answers.Yes();  // initialise
  table.WhenWaiting(next);
  Click(*table.workshop, "chkAutoBetsActive");
  EXPECT_EQ(waits.value(0).toStdString(), "Line 3: bet 10 on passline");
  table.game->table.seats[1].handling.WinHandling = 1;
  table.WhenWaiting(next);
  for (const auto& [die1, die2] : {std::pair(4, 4), std::pair(6, 2), std::pair(5, 4)}) table.Roll(die1, die2);
  EXPECT_EQ(waits.count(waits[0]), 2) << "the bet that won is made again";
  auto& watch = Find<QTableWidget>(*table.workshop, "tblWatch");
  EXPECT_EQ(watch.item(watch.rowCount() - 1, 0)->text(), "passline");
  EXPECT_EQ(watch.item(watch.rowCount() - 1, 1)->text(), "10");
  EXPECT_EQ(table.game->table.BankrollCurrent[1], Currency::Dollars(1010));
  const Lines written = table.Script(1).ScriptLines;
  EXPECT_EQ(written[2], "   bet 10 on passline");
  std::string error;
  const std::string path = table.folder.filePath("evening.crp").toStdString();
  ASSERT_TRUE(SaveGame(*table.game, path, error)) << error;
  WorkshopTable day;
  ASSERT_TRUE(OpenGame(*day.game, path));
  day.Open();
  EXPECT_EQ(day.Editor().Lines(), written);
}

TEST(Workshop, TheToldBoxesOfACheck) {
  WorkshopTable table;
  table.Open();
  table.host.answers.Ok();
  Click(*table.workshop, "cmdCheckScript");
  EXPECT_EQ(table.game->box.MsgText,
            "This feature checks to see that your auto-bet script is properly structured, but presently your "
            "script is "
            "empty.");
  table.Editor().ChangeLines({"bet 10 on field", "bet 10 on nowhere"});
  table.host.answers.Ok();
  Click(*table.workshop, "cmdCheckScript");
  EXPECT_EQ(table.game->box.MsgTitle, "Auto-bet script error in line 2");
  EXPECT_TRUE(table.Editor().selectedText().contains("nowhere"));
}

TEST(Workshop, EachPlayerHasATextOfHisOwn) {
  WorkshopTable table;
  table.Open();
  table.Editor().ChangeLines(kGood);
  table.workshop->ShowSeat(2);
  EXPECT_TRUE(table.Editor().Lines().empty());
  EXPECT_EQ(table.Script(1).ScriptLines, kGood);
  table.Editor().ChangeLines({"bet 5 on field"});
  table.workshop->ShowSeat(1);
  EXPECT_EQ(table.Editor().Lines(), kGood);
  EXPECT_EQ(table.Script(2).ScriptLines, Lines{"bet 5 on field"});
  // Another command's script is shown.
  SetScript(*table.game, 1, {"cs1 = 4"}, "");
  table.workshop->Refresh();
  EXPECT_EQ(table.Editor().Lines(), Lines{"cs1 = 4"});
}

TEST(Workshop, BreakPointsStayOnTheirLinesAndTheTextInTheGame) {
  WorkshopTable table;
  table.Open();
  table.Editor().ChangeLines({"cs1 = 1", "if cs1 = 1 then", "cs2 = 2", "endif"});
  table.Editor().ToggleBreak(3);
  table.workshop->ShowSeat(2);
  EXPECT_FALSE(table.Editor().HasBreaks());
  table.workshop->ShowSeat(1);
  table.host.answers.Ok();
  Click(*table.workshop, "cmdCheckScript");
  EXPECT_EQ(table.Editor().Lines()[2], "   cs2 = 2");
  EXPECT_EQ(table.Editor().Breaks(), std::set<int>{3}) << "indented anew";
  // Behind a pause in typing the player has the text, and a saved game with him.
  table.Editor().setCursorPosition(0, 0);
  QTest::keyClicks(&table.Editor(), "' ");
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.Script(1).ScriptLines[0] == "' cs1 = 1"; }, 5000));
  EXPECT_TRUE(table.Script(1).Unsaved);
}

TEST(Workshop, ActivatingAsksAndStepsWaitAtABreakPoint) {
  WorkshopTable table;
  table.Open();
  table.Editor().ChangeLines({"cs1 = 1", "cs2 = cs1 + 1", "cs3 = cs2 + 1"});
  table.Editor().ToggleBreak(2);
  table.host.answers.Yes();
  int waited = 0;
  table.WhenWaiting([&](int nth) {
    ++waited;
    auto& line = Find<QLabel>(*table.workshop, "lblStepLine");
    EXPECT_EQ(line.text(), nth == 0 ? "Line 2: cs2 = cs1 + 1" : "Line 3: cs3 = cs2 + 1");
    EXPECT_EQ(table.game->table.BetAmount(1, kFirstCheckStack + 3), nth == 0 ? kZero : Currency::Dollars(3));
    Find<QPushButton>(*table.workshop, "cmdNextAutoBet").click();
  });
  Click(*table.workshop, "chkAutoBetsActive");
  EXPECT_EQ(table.game->box.MsgTitle, "Auto-Bet");
  EXPECT_GE(waited, 2);
  EXPECT_TRUE(table.game->autobet.ScriptActive[0] && table.game->autobet.ScriptActive[1]);
  EXPECT_TRUE(
      QString::fromStdString(table.game->box.MsgText).contains("Ann's auto-bet script has been activated."));
  EXPECT_EQ(Find<QListWidget>(*table.workshop, "lstSteps").count(), 3);
  Click(*table.workshop, "chkAutoBetsActive");
  EXPECT_FALSE(table.game->autobet.ScriptActive[0]);
  // Off, no statement is told of.
  table.Editor().ToggleBreak(2);
  table.game->autobet.StepMode = false;
  table.Editor().ClearBreaks();
  EXPECT_FALSE(table.game->autobet.StepsShown);
}

TEST(Workshop, ATrialLeavesTheTableAsItIs) {
  WorkshopTable table;
  table.Open();
  table.Editor().ChangeLines(kGood);
  Find<QSpinBox>(*table.workshop, "spnTrialRolls").setValue(500);
  WorkshopTrial& trial = *table.workshop->findChild<WorkshopTrial*>();
  Currency first;
  for (const bool again : {false, true}) {
    Find<QCheckBox>(*table.workshop, "chkSameDice").setChecked(again);
    Find<QPushButton>(*table.workshop, "cmdTryIt").click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !trial.IsOn(); }, 20000));
    EXPECT_EQ(trial.Result().problem, "");
    EXPECT_EQ(trial.Result().rolls, 500);
    ASSERT_EQ(trial.Result().bets.size(), 1u);
    EXPECT_EQ(trial.Result().bets[0].bet, kPassLine);
    EXPECT_EQ(trial.Result().wagered,
              Currency::Dollars(10 * (trial.Result().bets[0].won + trial.Result().bets[0].lost)));
    if (again) {
      EXPECT_EQ(trial.Result().net, first) << "the same dice";
    }
    first = trial.Result().net;
  }
  EXPECT_EQ(Throws(table.game->stats), 0);
  EXPECT_EQ(table.game->table.BankrollCurrent[1], Currency::Dollars(1000));
  EXPECT_FALSE(table.game->autobet.ScriptActive[1]);
}

TEST(Workshop, WordsAreWorthWhatTheTableSays) {
  WorkshopTable table;
  table.Bet(1, kField, "15");
  EXPECT_EQ(
      PresentValues(*table.game, 1, {"bankroll", "field", "cs99 + 1", "name", "no such word", "2 : cs1 = 3"}),
      (Lines{PlainMoney(table.game->table.BankrollCurrent[1]), "15", "1", "", "", ""}));
}

TEST(Workshop, FindAndReplaceLoggedBetsAndLists) {
  WorkshopTable table;
  table.Open();
  table.Editor().ChangeLines({"bet 5 on field", "bet 5 on FIELD"});
  table.Key(Qt::Key_H, Qt::ControlModifier);
  TypeInto(*table.workshop, "txtFind", "field");
  TypeInto(*table.workshop, "txtReplace", "big6");
  Click(*table.workshop, "cmdReplaceAll");
  EXPECT_EQ(table.Script(1).ScriptLines, (Lines{"bet 5 on big6", "bet 5 on big6"}));
  EXPECT_EQ(Find<QLabel>(*table.workshop, "lblFound").text(), "2 replaced");
  table.game->autobet.LoggedBets = {"bet 10 on passline"};
  table.Editor().setCursorPosition(0, 0);
  Find<QComboBox>(*table.workshop, "cmbLogCondition").setCurrentIndex(1);
  Find<QPushButton>(*table.workshop, "cmdInsertLogged").click();
  EXPECT_EQ(Lines(table.Script(1).ScriptLines.begin(), table.Script(1).ScriptLines.begin() + 3),
            (Lines{"if comeout roll then", "   bet 10 on passline", "endif"}));
  Find<QPushButton>(*table.workshop, "cmdAction").click();
  auto& words = Find<QTreeWidget>(*table.workshop, "lstWords");
  EXPECT_GT(words.topLevelItemCount(), 20);
}

// Letters of several bytes stand before what is marked, mended and counted.
TEST(Workshop, PlacesAreThoseOfCharacters) {
  WorkshopTable table;
  table.Open();
  const QString line = QString::fromUtf8("csn1 = \"\u00e4\u20ac\U0001F3B2\" : bet 10 on paslin");
  table.Editor().ChangeLines({line.toStdString()});
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.Problems().contains("line 1"); }, 5000));
  Find<QListWidget>(*table.workshop, "lstProblems").setCurrentRow(0);
  table.Key(Qt::Key_Period, Qt::ControlModifier);
  EXPECT_EQ(table.Editor().Lines()[0], QString(line).replace("paslin", "passline").toStdString());
}

TEST(Workshop, CompletionPrintRecentFilesAndAFault) {
  WorkshopTable table;
  table.Open();
  QTest::keyClicks(&table.Editor(), "bet 10 on passli");
  ASSERT_TRUE(table.Editor().isListActive());
  table.Key(Qt::Key_Return);
  EXPECT_EQ(table.Editor().Lines(), Lines{"bet 10 on passline"});
  const std::string path = table.folder.filePath("recent & old.bet").toStdString();
  QueuedFileNames().push_back(path);
  table.Do("mnuSaveAs");
  table.Do("mnuNew");
  QMenu& recent = *Find<QAction>(*table.workshop, "mnuRecent").menu();
  emit recent.aboutToShow();
  ASSERT_EQ(recent.actions().size(), 1);
  EXPECT_EQ(recent.actions()[0]->text(), "recent && old.bet");
  recent.actions()[0]->trigger();
  EXPECT_EQ(table.Editor().Lines(), Lines{"bet 10 on passline"});
  // On paper, its words in colours if the house wants them.
  for (const bool colours : {false, true}) {
    table.game->settings.ColorPrint = colours;
    const QString pages = table.folder.filePath("pages");
    QsciPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pages + ".pdf");
    ASSERT_TRUE(table.workshop->PrintOn(printer));
    QProcess program;
    program.start("pdftoppm", {"-r", "100", "-png", "-singlefile", pages + ".pdf", pages});
    ASSERT_TRUE(program.waitForFinished(20'000));
    const QImage page(pages + ".png");
    bool coloured = false;
    bool inked = false;
    for (int y = 0; y < page.height(); ++y)
      for (int x = 0; x < page.width(); ++x) {
        const QColor point = page.pixelColor(x, y);
        coloured = coloured || point.hsvSaturation() > 40;
        inked = inked || point.lightness() < 200;
      }
    EXPECT_TRUE(inked);
    EXPECT_EQ(coloured, colours);
  }
  table.workshop->checkScript = [](Game&, int) -> ScriptCheck { throw std::bad_alloc(); };
  table.host.answers.Ok();
  Click(*table.workshop, "cmdCheckScript");
  EXPECT_TRUE(
      QString::fromStdString(table.game->box.MsgText).endsWith(", Error #7\r occurred at: cmdCheckScript"))
      << table.game->box.MsgText;
}

TEST(Workshop, LinesAreCountedInTrialsAndAtTheTable) {
  WorkshopTable table;
  table.Open();
  table.Editor().ChangeLines({"cs1 = cs1 + 1", "if cs1 > 1 then", "   cs2 = 1", "endif"});
  table.Do("mnuShowCounts");
  auto& trial = *table.workshop->findChild<WorkshopTrial*>();
  Find<QSpinBox>(*table.workshop, "spnTrialRolls").setValue(50);
  trial.Toggle();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !trial.IsOn(); }, 20'000));
  ASSERT_GT(trial.Result().lines.size(), 3u);
  EXPECT_EQ(trial.Result().lines[1].count, trial.Result().lines[3].count)
      << "from the first roll on it holds";
  EXPECT_GE(trial.Result().lines[1].count, 49);
  EXPECT_TRUE(table.Editor().CountsOf(1).startsWith(QString::number(trial.Result().lines[1].count)));
  table.workshop->Store();
  SetScriptActive(*table.game, 1, true);
  table.game->settings.ShooterBetRule = 0;
  for (int roll = 0; roll < 3; ++roll) table.Roll(3, 2);
  table.workshop->Refresh();
  EXPECT_TRUE(table.Editor().CountsOf(1).startsWith("3 ")) << table.Editor().CountsOf(1).toStdString();
  EXPECT_TRUE(table.Editor().CountsOf(3).startsWith("2 "));
  table.Do("mnuShowCounts");
  EXPECT_EQ(table.Editor().CountsOf(1), "");
}

TEST(Workshop, AThousandLinesAreCheckedWhileTypingGoesOn) {
  Lines lines;
  for (int n = 0; n < 333; ++n) lines.insert(lines.end(), kGood.begin(), kGood.end());
  WorkshopTable table;
  table.Open();
  table.Editor().SetLines(lines);
  QElapsedTimer clock;
  clock.start();
  QTest::keyClicks(&table.Editor(), "bet 5 on fieldd ");
  EXPECT_LT(clock.elapsed(), 2000);
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.Problems().contains("line 1"); }, 5000));
}

TEST(Workshop, HotKeysAndPermissions) {
  WorkshopTable table;
  table.window.Command("mnuHotKeys")->trigger();
  ToolWindow& screen = Tool(table.window.TheDesk(), kHotKeysWindow);
  table.host.answers.Ok();
  Click(screen, "cmdAddHotKey");
  EXPECT_EQ(table.game->box.MsgText, "Please enter an Auto-Bet filename to define this Hot-Key.");
  EXPECT_EQ(table.game->box.MsgTitle, "Hot-Key");
  TypeInto(screen, "txtAutoBetFile", "/tmp/none.bet");
  Find<QComboBox>(screen, "cmbKey").setCurrentIndex(2);
  Click(screen, "cmdAddHotKey");
  std::vector<HotKey> keys;
  std::string error;
  EXPECT_TRUE(ReadHotKeys(table.game->dataFolder + kHotKeysFile, keys, error));
  EXPECT_EQ(keys, (std::vector<HotKey>{{'c', "/tmp/none.bet", ""}}));
  ExpectNamed(screen);
  PermissionsScreen permissions(*table.game, 1, nullptr);
  permissions.show();
  Click(permissions, "chkAllowReset");
  EXPECT_TRUE(table.Script(1).AllowReset && !table.Script(1).AllowAct4Others);
}

TEST(Workshop, NothingIsCutAndEverythingIsNamed) {
  for (const bool dark : {false, true}) {
    const QPalette before = QApplication::palette();
    if (dark) QApplication::setPalette(DarkPalette());
    {
      WorkshopTable table;
      table.Open();
      table.Editor().ChangeLines({"' Pass Line with odds.", "if comeout roll and passline = 0 then",
                                  "   bet 10 on passline", "endif", "if point is established then",
                                  "   bet 2 * passline on passlineodds", "endif", "bet 6 moer on place6",
                                  "show message \"hello\""});
      EXPECT_TRUE(QTest::qWaitFor([&] { return !table.Problems().isEmpty(); }, 5000));
      if (!dark) ExpectNamed(*table.workshop);
      EXPECT_LE(table.workshop->minimumSizeHint().width(), 1024);
      EXPECT_LE(table.workshop->minimumSizeHint().height(), 600);
      table.workshop->resize(1024, 568);
      QTest::qWait(50);
      SavePicture(*table.workshop, dark ? "workshop-dark-1024" : "workshop-light-1024");
      table.Editor().ChangeLines(kGood);
      table.Editor().setCursorPosition(0, 1);
      const auto at = [&](long byte) {
        return static_cast<int>(
            table.Editor().SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL, byte));
      };
      const QImage word = table.Editor().viewport()->grab(QRect(at(0), 4, at(2) - at(0), 10)).toImage();
      std::set<QRgb> tones;
      for (int x = 0; x < word.width(); ++x) tones.insert(word.pixel(x, 5));
      EXPECT_GE(tones.size(), 3u) << "an if whose end is marked can still be read";
      Find<QPushButton>(*table.workshop, "cmdTryIt").click();
      EXPECT_TRUE(
          QTest::qWaitFor([&] { return !table.workshop->findChild<WorkshopTrial*>()->IsOn(); }, 60000));
      EXPECT_TRUE(QTest::qWaitFor([&] { return table.Problems().isEmpty(); }, 5000));
      Find<QTabWidget>(*table.workshop, "tabWorkshop").setCurrentIndex(2);
      table.workshop->resize(1280, 760);
      QTest::qWait(50);
      SavePicture(*table.workshop, dark ? "workshop-dark" : "workshop-light");
    }
    QApplication::setPalette(before);
  }
}

}  // namespace
}  // namespace tessaryn::test
