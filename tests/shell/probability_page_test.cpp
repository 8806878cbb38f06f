// The editor of percentage dice and the generator's page, by mouse and keys.
#include "shell/screens/probability_page.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <random>

#include "dice/generators.h"
#include "dice/probability_edit.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/generator_page.h"
#include "shell/screens/probability_table.h"
#include "shell/screens_support.h"
#include "state/show_message.h"

namespace tessaryn::test {
namespace {

struct DiceEditor : ScreenTable {
  std::unique_ptr<PercentageDiceWindow> window;

  DiceEditor() { Open(); }
  void Open() {
    window = std::make_unique<PercentageDiceWindow>(*game, nullptr);
    window->resize(960, 500);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Table().setFocus();
  }
  PercentageDice& Dice() { return game->percentage; }
  ProbabilityTable& Table() { return Find<ProbabilityTable>(*window, "grdProbability"); }
  std::int32_t Value(ProbabilityCell cell) { return Dice().ProbMatrix[1][cell.row][cell.column]; }
  void Type(const char* keys, int end = Qt::Key_Return) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Table().setFocus();
    QTest::keyClicks(&Table(), QString(keys).left(1));
    auto& box = Find<QLineEdit>(Table(), "txtProbability");
    QTest::keyClicks(&box, QString(keys).mid(1));
    QTest::keyClick(&box, static_cast<Qt::Key>(end));
    QCoreApplication::processEvents();  // the value is taken when the key has been worked off
  }
  void Press(int key) { QTest::keyClick(&Table(), static_cast<Qt::Key>(key)); }
  void Trigger(const char* name) { Find<QAction>(*window, name).trigger(); }
};

constexpr ProbabilityCell kSeven{kTotalRow, 6};

TEST(ProbabilityPage, TypingEntersAsTheCoreDoesAndGoesOnBelow) {
  DiceEditor editor;
  PercentageDice plain = editor.Dice();
  editor.Table().Select(kSeven);
  editor.Type("20");
  ASSERT_TRUE(EnterProbability(plain, kSeven.row, kSeven.column, "20"));
  EXPECT_EQ(editor.Dice().ProbMatrix[1], plain.ProbMatrix[1]);
  EXPECT_EQ(editor.Value(kSeven), 20'000);
  EXPECT_EQ(editor.Table().Selected(), (ProbabilityCell{kTotalRow, 7}));
  EXPECT_EQ(SelectedProbability(editor.Dice()), (ProbabilityCell{kTotalRow, 7}));
  EXPECT_EQ(Find<QLabel>(*editor.window, "lblPercentageDice").text(), "Free Form Dice");
  // The entered cell is locked and takes no typing until L is pressed.
  editor.Table().Select(kSeven);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  editor.Press(Qt::Key_5);
  EXPECT_EQ(editor.Table().findChild<QLineEdit*>("txtProbability"), nullptr);
  EXPECT_EQ(editor.Table().Selected(), kSeven);
  editor.Press(Qt::Key_L);
  EXPECT_FALSE(IsProbabilityLocked(editor.Dice(), kSeven.row, kSeven.column));
  editor.Type("10", Qt::Key_Escape);
  EXPECT_EQ(editor.Value(kSeven), 20'000);
  // Tab takes the value and opens the next cell.
  editor.Table().Select({2, 1});
  editor.Type("4.5", Qt::Key_Tab);
  EXPECT_EQ(editor.Value({2, 1}), 4'500);
}

TEST(ProbabilityPage, EveryCellOfTheSheetIsACellOfTheMatrixAndShowsItInEachMode) {
  DiceEditor editor;
  int cells = 0;
  for (int mode = 0; mode < 4; ++mode) {
    Click(*editor.window, QString("optProbability%1").arg(mode));
    ASSERT_EQ(editor.Dice().ProbDisplayMode, mode);
    for (int row = 0; row < kSheetRows; ++row)
      for (int column = 0; column < kSheetColumns; ++column) {
        const ProbabilityCell cell = CellOfSheet(row, column);
        if (KindOfProbabilityCell(cell.row, cell.column) == ProbabilityCellKind::kNone) continue;
        ++cells;
        const SheetPlace place = PlaceInSheet(cell);
        EXPECT_TRUE(place.row == row && place.column == column);
        EXPECT_EQ(editor.Table().model()->index(row, column).data().toString().toStdString(),
                  ProbabilityCellText(editor.Dice(), cell.row, cell.column));
      }
  }
  EXPECT_EQ(cells, 4 * (36 + 11 + 12));
  TypeInto(*editor.window, "txtRollsOutOf", "3600");
  QTest::keyClick(&Find<QLineEdit>(*editor.window, "txtRollsOutOf"), Qt::Key_Return);
  EXPECT_EQ(editor.Dice().ProbRollsOutOf, 3600);
}

TEST(ProbabilityPage, RandomEditsAreTakenBackOneByOne) {
  DiceEditor editor;
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  std::vector<ProbabilityCells> states{editor.Dice().ProbMatrix};
  const auto values = [&] {
    ProbabilityCells cells = editor.Dice().ProbMatrix;
    cells[0][0][1] = cells[0][0][2] = 0;
    return cells;
  };
  states[0] = values();
  for (int n = 0; n < 60; ++n) {
    const int row = static_cast<int>(random() % kSheetRows);
    const ProbabilityCell cell = CellOfSheet(row, static_cast<int>(random() % kSheetColumns));
    if (KindOfProbabilityCell(cell.row, cell.column) == ProbabilityCellKind::kNone) continue;
    editor.Table().Select(cell);
    const bool locked = IsProbabilityLocked(editor.Dice(), cell.row, cell.column);
    if (locked || random() % 4 == 0)
      editor.Press(Qt::Key_L);
    else
      editor.Type(std::to_string(random() % 12).c_str());
    if (values() != states.back()) states.push_back(values());
  }
  ASSERT_GT(states.size(), 10u);
  for (std::size_t n = states.size() - 1; n-- > 0;) {
    editor.Trigger("mnuUndo");
    ASSERT_EQ(values(), states[n]) << n;
  }
  editor.Trigger("mnuRedo");
  EXPECT_EQ(values(), states[1]);
  // Dice that came from elsewhere are not given up for older ones.
  ASSERT_TRUE(SetProbabilityCell(editor.Dice(), 7, 6, 50'000, true));
  const std::int32_t there = editor.Value({7, 6});
  editor.window->Refresh();
  editor.Trigger("mnuUndo");
  EXPECT_EQ(editor.Value({7, 6}), there);
}

TEST(ProbabilityPage, NewAndOpenAskBeforeNumbersAreGivenUp) {
  DiceEditor editor;
  const std::string path = editor.folder.filePath("loaded.prb").toStdString();
  editor.Table().Select(kSeven);
  editor.Type("25");
  EXPECT_TRUE(Find<QLabel>(*editor.window, "lblPrbFileName").text().contains("not saved"));
  editor.host.answers.Cancel();
  editor.Trigger("mnuNew");
  EXPECT_EQ(editor.Value(kSeven), 25'000);
  editor.host.answers.Yes();
  QueuedFileNames().push_back(path);
  editor.Trigger("mnuNew");
  EXPECT_EQ(editor.Value(kSeven), 16'667);
  EXPECT_EQ(Find<QLabel>(*editor.window, "lblPrbFileName").text(), "untitled");
  QueuedFileNames().push_back(path);
  editor.Trigger("mnuOpen");
  EXPECT_EQ(editor.Value(kSeven), 25'000);
  EXPECT_EQ(Find<QLabel>(*editor.window, "lblPrbFileName").text(), "loaded.prb");
  // A file that is none leaves what is there.
  const std::string bad = editor.folder.filePath("bad.prb").toStdString();
  QFile file(QString::fromStdString(bad));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("no dice") > 0);
  file.close();
  QueuedFileNames().push_back(bad);
  editor.host.answers.Ok();
  editor.Trigger("mnuOpen");
  EXPECT_EQ(editor.Value(kSeven), 25'000);
  Click(*editor.window, "cmdUnLock");
  EXPECT_FALSE(IsProbabilityLocked(editor.Dice(), kSeven.row, kSeven.column));
}

TEST(ProbabilityPage, TheShootersAxesAndTheSwitch) {
  DiceEditor editor;
  WhenOpen("frmAxes", [](QDialog& dialog) {
    TypeInto(dialog, "txtDie1SE", "250");
    EXPECT_EQ(Find<QLineEdit>(dialog, "txtDie1SE").text(), "100");
    Click(dialog, "optDie1Axis0");
    ExpectNamed(dialog);
    SavePicture(dialog, "shooter-axes");
    Click(dialog, "cmdAxisOK");
  });
  editor.Trigger("mnuAxes");
  EXPECT_EQ(editor.Value({2, kDie1Column}), 0);
  EXPECT_EQ(editor.Value({7, kDie1Column}), 0);
  EXPECT_EQ(editor.Value({4, kDie1Column}), 25'000);
  auto& active = Find<QPushButton>(*editor.window, "cmdProbabilityActive");
  Click(*editor.window, "cmdProbabilityActive");
  EXPECT_TRUE(editor.Dice().PercentageDiceActive);
  EXPECT_EQ(active.text(), "Active");
  EXPECT_EQ(active.palette().color(QPalette::Button), QColor(0, 255, 0));
  Click(*editor.window, "cmdProbabilityActive");
  EXPECT_EQ(active.text(), "Inactive");
  // Dice without anything to roll are not used.
  for (auto& row : editor.Dice().ProbMatrix[1]) row.fill(0);
  ProbabilitiesChanged(editor.Dice());
  editor.host.answers.Ok();
  Click(*editor.window, "cmdProbabilityActive");
  EXPECT_FALSE(editor.Dice().PercentageDiceActive);
  EXPECT_FALSE(active.isChecked());
}

TEST(ProbabilityPage, RowsAndPictureShowTheDice) {
  DiceEditor editor;
  SetProbabilityCell(editor.Dice(), kSeven.row, kSeven.column, 30'000, true);
  editor.window->Refresh();
  const QList<QStringList> rows = editor.window->Rows();
  ASSERT_EQ(rows.size(), 1 + kSheetRows);
  for (const QStringList& row : rows) EXPECT_EQ(row.size(), rows[0].size());
  EXPECT_EQ(rows[6].last(), "30.000");
  QImage before(600, 400, QImage::Format_RGB32), after = before;
  for (QImage* image : {&before, &after}) {
    image->fill(Qt::white);
    QPainter painter(image);
    editor.window->PaintPicture(painter, image->rect());
    ResetProbabilityMatrix(editor.Dice());
  }
  EXPECT_NE(before, after);
}

TEST(ProbabilityPage, EverythingIsNamedAndFitsASmallScreen) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    DiceEditor editor;
    SetProbabilityCell(editor.Dice(), kSeven.row, kSeven.column, 20'000, true);
    SetProbabilityCell(editor.Dice(), 2, 1, 4'000, true);
    editor.window->Refresh();
    editor.window->resize(1000, 540);
    QApplication::processEvents();
    EXPECT_LE(editor.window->height(), 560);
    EXPECT_LE(editor.window->minimumSizeHint().width(), 1000);
    ExpectNamed(*editor.window);
    SavePicture(*editor.window, dark ? "percentage-dice-dark" : "percentage-dice-light");
  }
  QApplication::setPalette(before);
}

TEST(GeneratorPage, ChoosesAndSeeds) {
  ScreenTable table;
  GeneratorPage page(*table.game, nullptr);
  page.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
  ExpectNamed(page);
  Generators& generators = table.game->generators;
  auto& list = Find<QComboBox>(page, "cmbRNG");
  EXPECT_EQ(list.currentIndex(), generators.GeneratorIndex);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Home);
  for (int n = 0; n < 2; ++n) QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(generators.GeneratorIndex, kGeneratorCongruence);
  Click(page, "optSeedRNG1");
  Click(page, "chkReSeed");
  EXPECT_TRUE(generators.RngUserSeed && generators.RngReseedNewSessions);
  // Out of limits for #3, then within them; then the notice.
  table.host.answers.Type("1000000");
  table.host.answers.Type("999999");
  table.host.answers.Ok();
  Click(page, "cmdSeedRNG");
  EXPECT_EQ(generators.RngLastSeed, 999'999);
  EXPECT_EQ(Find<QLabel>(page, "lblLastSeed").text(), "999,999");
  // A Cancel keeps the seed, and nothing is said of seeding.
  table.host.answers.Cancel();
  Click(page, "cmdSeedRNG");
  EXPECT_TRUE(table.host.answers.Empty());
  EXPECT_EQ(generators.RngLastSeed, 999'999);
  generators.MissingGeneratorFiles = kMissingMersenne;
  QTest::keyClick(&list, Qt::Key_Home);
  EXPECT_EQ(generators.GeneratorIndex, kGeneratorRan2);
  EXPECT_EQ(list.currentText(), "RNG #4");
  SavePicture(page, "generator-page");
}

}  // namespace
}  // namespace tessaryn::test
