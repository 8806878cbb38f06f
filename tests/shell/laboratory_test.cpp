// The laboratory's screen: what it tells is what the core figures, whether it was paused or not, and a
// session that is sent to the table goes there as it went in the laboratory.
#include "lab/laboratory.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <nlohmann/json.hpp>
#include <set>

#include "lab/lab_json.h"
#include "lab/replay.h"
#include "lab/systems.h"
#include "shell/frame/main_window.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/laboratory_screen.h"
#include "shell/screens_support.h"

namespace tessaryn::test {
namespace {

struct Laboratory : ScreenTable {
  MainWindow window{*game, host};
  Desk& desk = window.TheDesk();
  LaboratoryScreen& lab = static_cast<LaboratoryScreen&>(Tool(desk, kLaboratoryWindow));

  Laboratory() {
    window.Table().animate = false;
    window.show();
    ToggleTool(desk, kLaboratoryWindow);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&lab));
  }
  ~Laboratory() { window.CloseUnasked(); }
  void Add(const char* bets) {
    TypeInto(lab, "txtBets", bets);
    QTest::keyClick(&Find<QWidget>(lab, "txtBets"), Qt::Key_Return);
  }
  // Pass Line and Field, sessions of 30 rolls with a goal and a limit.
  Experiment SetUp(const char* sessions) {
    Add("passline=10, passlineodds=20");
    Add("passline=10, field=10");
    TypeInto(lab, "txtSessions", sessions);
    TypeInto(lab, "txtRolls", "30");
    TypeInto(lab, "txtWinGoal", "60");
    TypeInto(lab, "txtLossLimit", "100");
    TypeInto(lab, "txtSeed", "7");
    Experiment experiment;
    experiment.systems.resize(2);
    EXPECT_EQ(ReadStandingBets("passline=10,passlineodds=20", experiment.systems[0]), "");
    EXPECT_EQ(ReadStandingBets("passline=10,field=10", experiment.systems[1]), "");
    experiment.sessions = QString(sessions).toInt();
    experiment.rolls = 30;
    experiment.winGoal = ParseMoney("60");
    experiment.lossLimit = ParseMoney("100");
    experiment.seed = 7;
    experiment.generator = game->generators.GeneratorIndex + 1;
    return experiment;
  }
  QString RunText() { return Find<QPushButton>(lab, "cmdRun").text().remove('&'); }
  bool Waits(const char* text) {
    return QTest::qWaitFor(
        [&] { return RunText().startsWith(text) && Find<QPushButton>(lab, "cmdRun").isEnabled(); }, 60'000);
  }
  void Show(int page) { Find<QTabWidget>(lab, "tabLaboratory").setCurrentIndex(page); }
  QStringList Texts(const char* name) {
    auto& table = Find<QTableWidget>(lab, name);
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row)
      for (int column = 0; column < table.columnCount(); ++column) texts << table.item(row, column)->text();
    return texts;
  }
};

LabFigures Plainly(const Experiment& experiment) {
  LabState state = BeginLab(experiment, false, false);
  LabRun run;
  run.applicationFolder = std::string(kBinFolder) + "/";
  EXPECT_EQ(RunLab(state, run), "");
  return FigureLab(state);
}

QStringList Flat(const QList<QStringList>& rows) {
  QStringList texts;
  for (const QStringList& row : rows.mid(1)) texts += row;
  return texts;
}

// So many that a run can be stopped on the way.
#ifdef NDEBUG
constexpr const char* kEnoughSessions = "150000";
#else
constexpr const char* kEnoughSessions = "700";
#endif

TEST(LaboratoryScreen, PausedAndContinuedItTellsWhatTheCoreFigures) {
  Laboratory table;
  const Experiment experiment = table.SetUp(kEnoughSessions);
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Pause"));
  QTest::qWait(300);
  // The table stays usable, and the experiment can't be changed.
  table.Join(3, "Ann");
  table.Bet(3, kPassLine, "10");
  table.Roll(3, 3);
  EXPECT_EQ(table.State().PointBeforeRoll, 0);
  EXPECT_FALSE(Find<QWidget>(table.lab, "txtBets").isEnabled());
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Continue"));
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Run"));
  const LabFigures plain = Plainly(experiment);
  EXPECT_EQ(table.Texts("lstMeasures"), Flat(MeasureRows(plain, 0, 1)));
  EXPECT_EQ(Find<QLabel>(table.lab, "lblVerdict").text(), JudgeLab(plain, 0, 1).coloured);
  EXPECT_EQ(QTextDocumentFragment::fromHtml(JudgeLab(plain, 0, 1).coloured).toPlainText(),
            JudgeLab(plain, 0, 1).sentence);
  EXPECT_EQ(table.lab.Rows(), RankedRows(plain, RankBy::kMean));
  // The other way round, and one alone.
  const MeanFigure ab = DifferenceOf(plain, 0, 1);
  const MeanFigure ba = DifferenceOf(plain, 1, 0);
  EXPECT_EQ(ab.mean, -ba.mean);
  EXPECT_EQ(ab.ci95.low, -ba.ci95.high);
  EXPECT_NEAR(ab.mean, plain.systems[0].net.mean - plain.systems[1].net.mean, 1e-9);
  for (const SystemFigures& system : plain.systems) {
    std::int64_t sessions = 0;
    for (const std::int64_t bar : system.bars) sessions += bar;
    EXPECT_EQ(sessions, experiment.sessions);
    EXPECT_EQ(system.fan[kFanMarks - 1][2], system.quantiles[4]);
  }
  // The report is a page of its own.
  QString opened;
  table.lab.openFile = [&](const QString& path) { opened = path; };
  QueuedFileNames() = {table.folder.filePath("lab.html").toStdString()};
  Click(table.lab, "cmdReport");
  QFile file(opened);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << opened.toStdString();
  EXPECT_TRUE(file.readAll().contains("</html>"));
}

TEST(LaboratoryScreen, ASessionGoesAtTheTableAsItWent) {
  Laboratory table;
  Experiment experiment = table.SetUp("40");
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Run"));
  for (const int session : {1, 8, 40})
    for (const int system : {0, 1}) {
      TypeInto(table.lab, "txtSession", qPrintable(QString::number(session)));
      Find<QComboBox>(table.lab, "cmbSystem").setCurrentIndex(system);
      if (table.State().OccupiedSeats > 0)
        WhenOpen("frmMsg", [](QDialog& box) { QTest::keyClick(&box, Qt::Key_N); });
      Click(table.lab, "cmdToTable");
      SessionResult result;
      const LabSystem& played = experiment.systems[static_cast<std::size_t>(system)];
      ASSERT_EQ(FigureSession(experiment, played, session - 1, table.game->applicationFolder, result), "");
      ASSERT_EQ(table.State().OccupiedSeats, 1);
      EXPECT_EQ(table.game->settings.AutoStopInterval, result.rolls);
      EXPECT_TRUE(table.game->file.Path.empty());
      for (std::int64_t roll = 0; roll < result.rolls; ++roll) RollDice(*table.game);
      EXPECT_EQ(FormatMoney(table.State().BankrollCurrent[1] - experiment.bankroll), FormatMoney(result.net))
          << session << " of " << system;
    }
}

TEST(LaboratoryScreen, TellsWhatIsWrongAndEnds) {
  Laboratory table;
  const auto told = [&](const char* button) {
    QString text;
    WhenOpen("frmMsg", [&](QDialog& box) {
      for (QLabel* label : box.findChildren<QLabel*>()) text += label->text();
      QTest::keyClick(&box, Qt::Key_Return);
    });
    Click(table.lab, button);
    return text;
  };
  EXPECT_TRUE(told("cmdRun").contains("nothing to play"));
  TypeInto(table.lab, "txtBets", "pasline=10");
  EXPECT_TRUE(told("cmdAddBets").contains("pasline"));
  table.Add("place6=12");
  TypeInto(table.lab, "txtStakes", "1=5..x");
  EXPECT_TRUE(told("cmdRun").contains("5..x"));
  // Sweeps are systems of their own; a long run ends at once with what is known.
  TypeInto(table.lab, "txtStakes", "1=5,10,15");
  TypeInto(table.lab, "txtSessions", "100000");
  Click(table.lab, "cmdRun");
  EXPECT_TRUE(QTest::qWaitFor([&] { return table.lab.HasPicture(); }, 30'000));
  Click(table.lab, "cmdEnd");
  ASSERT_TRUE(table.Waits("Run"));
  EXPECT_EQ(table.lab.Rows().size(), 4);
  EXPECT_TRUE(Find<QWidget>(table.lab, "txtBets").isEnabled());
}

// What the screen saves is what the core makes of the same experiment, to the byte, gone on with or not.
TEST(LaboratoryScreen, SavesOpensAndGoesOnAsTheCommandLineDoes) {
  Laboratory table;
  Experiment experiment = table.SetUp("60");
  const auto file = [&](const char* name) { return table.folder.filePath(name).toStdString(); };
  const auto save = [&](const char* action, const char* name) {
    for (const char* old : {name, "a.1.slg", "a.2.slg"}) QFile::remove(table.folder.filePath(old));
    QueuedFileNames() = {file(name)};
    table.lab.findChild<QAction*>(action)->trigger();
    return ReadFile(file(name));
  };
  const auto expectAsPlain = [&] {
    LabState state = BeginLab(experiment, true, true);
    SessionRows rows;
    EXPECT_EQ(OpenRows(rows, "", state), "");
    state.rows = rows.kept;
    LabRun run;
    run.applicationFolder = std::string(kBinFolder) + "/";
    run.rows = &rows;
    EXPECT_EQ(RunLab(state, run), "");
    EXPECT_EQ(WriteRowsAsCsv(rows, experiment, file("plain.csv")), "");
    EXPECT_EQ(WriteRowsAsLogs(rows, file("plain.slg")), "");
    EXPECT_TRUE(save("mnuSaveCsv", "a.csv") == ReadFile(file("plain.csv")));
    save("mnuSaveLogs", "a.slg");
    EXPECT_TRUE(ReadFile(file("a.2.slg")) == ReadFile(file("plain.2.slg")));
    EXPECT_TRUE(save("mnuSaveJson", "a.json") == LabJson<nlohmann::ordered_json>(state).dump() + "\n");
    EXPECT_TRUE(ReadFile(file("a.lab")) == LabBytes(state));
  };
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Run"));
  save("mnuSaveLab", "a.lab");
  expectAsPlain();
  Click(table.lab, "cmdEnd");
  ASSERT_TRUE(table.Waits("Run"));
  experiment.sessions = 240;
  expectAsPlain();
  // Another is played, then the first is back.
  const QList<QStringList> rows = table.lab.Rows();
  TypeInto(table.lab, "txtSeed", "8");
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Run"));
  EXPECT_NE(table.lab.Rows(), rows);
  QueuedFileNames() = {file("a.lab")};
  Click(table.lab, "cmdOpen");
  EXPECT_EQ(table.lab.Rows(), rows);
  expectAsPlain();
  // The page is filled with it: played anew it is the same.
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Run"));
  expectAsPlain();
  // A file that is none leaves everything as it is.
  QueuedFileNames() = {file("a.json")};
  QString told;
  WhenOpen("frmMsg", [&](QDialog& box) {
    for (QLabel* label : box.findChildren<QLabel*>()) told += label->text();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  Click(table.lab, "cmdOpen");
  EXPECT_TRUE(told.contains("a.json")) << told.toStdString();
  EXPECT_EQ(table.lab.Rows(), rows);
}

// Whatever the command line made of it: what the page then plays is that experiment.
TEST(LaboratoryScreen, AnOpenedExperimentIsPlayedAnew) {
  Laboratory table;
  std::vector<Experiment> experiments(3);
  for (Experiment& experiment : experiments) {
    experiment.systems.resize(2);
    ASSERT_EQ(ReadStandingBets("passline=10", experiment.systems[0]), "");
    ASSERT_EQ(ReadStandingBets("field=5,place8=12", experiment.systems[1]), "");
    experiment.sessions = 30;
    experiment.bankroll = ParseMoney("312.5");
  }
  ASSERT_EQ(SweepStack("1=5..15:5", experiments[0].systems), "");
  ASSERT_EQ(SweepSetting("OddsCalcMethod=3,1", experiments[0].systems), "");
  experiments[0].hours = ParseMoney("0.25");
  experiments[0].rolls = 0;
  experiments[0].settings = {{"SimRollRate", 0, "90"}, {"WinHandling", 1, "2"}};
  experiments[0].seed = 18'446'744'073'709'551'615u;
  // No sweep leads to these.
  experiments[1].systems[1].stacks = {{3, ParseMoney("7")}};
  experiments[1].systems[0].settings = {{"BarNumber", 0, "2"}};
  experiments[1].endWithHand = true;
  experiments[1].hands = 4;
  experiments[1].lossLimit = ParseMoney("60");
  experiments[2].generator = 8;
  experiments[2].percentageDice = true;
  experiments[2].probabilities = FairProbabilities();
  experiments[2].probabilities[1][3][4] = 9'000;
  experiments[2].winGoal = ParseMoney("40.0001");
  experiments[2].precision = ParseMoney("0.0005");
  for (const Experiment& experiment : experiments) {
    LabState unplayed = BeginLab(experiment, false, false);
    const std::string path = table.folder.filePath("opened.lab").toStdString();
    const std::string again = table.folder.filePath("again.lab").toStdString();
    ASSERT_EQ(WriteLab(path, LabBytes(unplayed)), "");
    QueuedFileNames() = {path};
    Click(table.lab, "cmdOpen");
    ASSERT_TRUE(table.Waits("Continue"));
    Click(table.lab, "cmdEnd");
    ASSERT_TRUE(table.Waits("Run 30"));
    Click(table.lab, "cmdRun");
    ASSERT_TRUE(table.Waits("Run"));
    QFile::remove(table.folder.filePath("again.lab"));
    QueuedFileNames() = {again};
    table.lab.findChild<QAction*>("mnuSaveLab")->trigger();
    LabState plain = unplayed;
    LabRun run;
    run.applicationFolder = std::string(kBinFolder) + "/";
    ASSERT_EQ(RunLab(plain, run), "");
    LabState played;
    ASSERT_EQ(ReadLab(again, played), "");
    EXPECT_EQ(FirstDifference(played.experiment, plain.experiment), "");
    EXPECT_TRUE(ReadFile(again) == LabBytes(plain));
  }
}

TEST(LaboratoryScreen, SweepsAndSearchesAreTheCoresToo) {
  Laboratory table;
  Experiment experiment = table.SetUp("200");
  TypeInto(table.lab, "txtStakes", "1=5,10");
  Find<QLineEdit>(table.lab, "txtVaried").setText("OddsCalcMethod=1,2,3");
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Run"));
  EXPECT_EQ(table.lab.Rows().size(), 13);
  table.Show(6);
  auto& picture = Find<LabPictureView>(table.lab, "picSweep");
  std::set<int> chosen;
  QObject::connect(&picture, &LabPictureView::Chosen, [&](int system) {
    chosen.insert(system);
    EXPECT_EQ(Find<QComboBox>(table.lab, "cmbA").currentIndex(), system);
  });
  for (int y = 0; y < picture.height(); y += 12)
    for (int x = 0; x < picture.width(); x += 24) QTest::mouseClick(&picture, Qt::LeftButton, {}, {x, y});
  EXPECT_EQ(chosen, (std::set<int>{0, 1, 2, 3, 4, 5}));
  // The least bankroll.
  for (const char* line : {"txtStakes", "txtVaried"}) Find<QLineEdit>(table.lab, line).clear();
  Find<QLineEdit>(table.lab, "txtLossLimit").clear();
  Find<QComboBox>(table.lab, "cmbQuestion").setCurrentIndex(1);
  Find<QDoubleSpinBox>(table.lab, "txtRuin").setValue(20);
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Find"));
  experiment.lossLimit = kZero;
  std::vector<LabAnswer> answers(2);
  const LabQuestion question{-1, 0.2};
  for (std::size_t i = 0; i < 2; ++i)
    EXPECT_EQ(FindForRuin(experiment, i, question, {1, table.game->applicationFolder, {}}, answers[i]), "");
  EXPECT_EQ(table.lab.Rows(), FoundRows(experiment, question, answers));
  EXPECT_TRUE(answers[0].found);
}

TEST(LaboratoryScreen, EveryPageFitsSmallScreens) {
  Laboratory table;
  table.SetUp("300");
  table.Add("passline=5, place8=30");
  Find<QLineEdit>(table.lab, "txtVaried").setText("OddsCalcMethod=1,2,3");
  TypeInto(table.lab, "txtStakes", "1=5..25:5");
  ExpectNamed(table.lab);
  Click(table.lab, "cmdRun");
  ASSERT_TRUE(table.Waits("Run"));
  EXPECT_LE(table.lab.minimumSizeHint().width(), 1000);
  EXPECT_LE(table.lab.minimumSizeHint().height(), 540);
  const QPalette light = QApplication::palette();
  for (const QSize size : {QSize(1000, 540), QSize(1280, 760)})
    for (int page = 0; page < 8; ++page) {
      table.lab.resize(size);
      table.Show(page);
      QTest::qWait(20);
      EXPECT_EQ(table.lab.size(), size);
      SavePicture(table.lab, QString("laboratory-%1-%2").arg(size.width()).arg(page));
    }
  QApplication::setPalette(DarkPalette());
  for (int page = 0; page < 8; ++page) {
    table.Show(page);
    QTest::qWait(20);
    SavePicture(table.lab, QString("laboratory-dark-%1").arg(page));
  }
  QApplication::setPalette(light);
  // On paper and in files it is painted light, something of both systems in it.
  QImage image(720, 440, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  table.lab.PaintPicture(painter, image.rect());
  painter.end();
  EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
}

}  // namespace
}  // namespace tessaryn::test
