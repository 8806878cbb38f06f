// A table that is left and found again: the questions of the end, the starts, the Game menu's files, and what
// is kept where nobody can be asked. Every box is the real one, answered by its buttons.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QUrl>
#include <deque>

#include "base/messages.h"
#include "dice/percentage_dice.h"
#include "play/game_file.h"
#include "play/hot_keys.h"
#include "shell/frame/main_window.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/roll_pad.h"
#include "shell/screens_support.h"
#include "shell/table/appearance.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_widget.h"
#include "stats/sessions_log.h"

namespace tessaryn::test {
namespace {

constexpr const char* kOk = "cmdButton0";
constexpr const char* kYes = "cmdButton1";
constexpr const char* kNo = "cmdButton2";
constexpr const char* kCancel = "cmdButton3";

QString Words(Msg id) { return FromCore(MessageText(id)); }

// Presses the buttons told, in their order, on the boxes as they come, and notes the boxes' titles.
class Answers {
 public:
  Answers() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
    timer_.start(0);
  }
  std::deque<const char*> buttons;
  QStringList titles;

 private:
  void Look() {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible() || box->objectName() != "frmMsg") return;
    titles.append(box->windowTitle());
    if (buttons.empty()) {
      ADD_FAILURE() << "asked: " << box->windowTitle().toStdString();
      return box->reject();
    }
    Click(*box, buttons.front());
    buttons.pop_front();
  }
  QTimer timer_;
};

// One run of the program on a data folder.
struct Visit {
  ShellHost host;
  std::unique_ptr<Game> game;
  std::unique_ptr<MainWindow> window;
  Answers answers;

  explicit Visit(const QTemporaryDir& folder, std::deque<const char*> buttons = {},
                 const std::string& argument = "")
      : game(StartGame(host, test::kBinFolder, folder.path().toStdString())),
        window(std::make_unique<MainWindow>(*game, host)) {
    answers.buttons = std::move(buttons);
    window->Table().animate = false;
    window->OpenAtStart(argument);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    EXPECT_TRUE(answers.buttons.empty()) << answers.titles.join(", ").toStdString();
  }
  ~Visit() { EXPECT_EQ(CheckConsistency(*game), ""); }
  // Whether the window closes when it is asked to, with these answers.
  bool Close(std::deque<const char*> buttons = {}) {
    answers.titles.clear();
    answers.buttons = std::move(buttons);
    window->close();
    EXPECT_TRUE(answers.buttons.empty()) << answers.titles.join(", ").toStdString();
    return !window->isVisible();
  }
  void Do(const char* command, std::deque<const char*> buttons = {}) {
    answers.titles.clear();
    answers.buttons = std::move(buttons);
    window->Command(command)->trigger();
    EXPECT_TRUE(answers.buttons.empty()) << answers.titles.join(", ").toStdString();
  }
  void Join(int seat, const char* name) {
    std::string error;
    EXPECT_TRUE(JoinPlayer(*game, seat, name, Currency::Dollars(1000), error)) << error;
    SelectSeat(*game, seat);
  }
  void Bet(int seat, int bet, int dollars) { PlaceBet(*game, seat, bet, Currency::Dollars(dollars)); }
  Currency OnField(int seat) { return game->table.BetAmount(seat, kField); }
};

bool IsThere(const QTemporaryDir& folder, const char* name) { return QFile::exists(folder.filePath(name)); }
std::string BytesOf(const QTemporaryDir& folder, const char* name) {
  return ReadFile(folder.filePath(name).toStdString());
}

// The table of the test of the questions: a script, percentage dice and a game of its own name, none saved.
void LeaveAllUnsaved(Visit& run) {
  run.Join(3, "Ann");
  SeatScript& script = run.game->autobet.Scripts[3];
  script.ScriptLines = {"bet 10 on field"};
  QueuedFileNames() = {"evening"};
  run.Do("mnuSaveAs");
  script.Unsaved = true;
  run.game->percentage.ProbDirty = true;
  // Nothing is asked of logged bets: the last game keeps them, and that they aren't saved.
  run.game->autobet.LoggedBets = {"bet 5 on field"};
  run.game->autobet.LoggedBetsUnsaved = true;
  run.Bet(3, kField, 25);
}

void ExpectLoggedBets(const Visit& run) {
  EXPECT_EQ(run.game->autobet.LoggedBets, std::vector<std::string>{"bet 5 on field"});
  EXPECT_TRUE(run.game->autobet.LoggedBetsUnsaved);
}

TEST(Closing, EveryAnswerOfEveryQuestionKeepsWhatItSays) {
  const QStringList kTitles = {Words(Msg::kTitleSaveAutoBets), Words(Msg::kTitleSaveProbabilities),
                               Words(Msg::kTitleSaveSession)};
  const char* const kFiles[] = {"mine.bet", "mine.prb", "evening.crp"};
  for (int question = 0; question < 3; ++question)
    for (const char* answer : {kYes, kNo, kCancel, "given up"}) {
      SCOPED_TRACE(kTitles[question].toStdString() + " " + answer);
      const QTemporaryDir folder;
      const bool givenUp = std::string_view(answer) == "given up";
      if (givenUp && question == 2) continue;  // it has a name, and asks for none
      Visit run(folder);
      LeaveAllUnsaved(run);
      const std::string evening = BytesOf(folder, "evening.crp");
      std::deque<const char*> buttons(question, kNo);
      buttons.push_back(givenUp ? kYes : answer);
      const bool refused = givenUp || answer == kCancel;
      if (!refused) buttons.resize(3, kNo);
      QueuedFileNames().clear();
      if (answer == kYes && question < 2) QueuedFileNames() = {kFiles[question]};
      if (givenUp) QueuedFileNames() = {""};
      EXPECT_EQ(run.Close(buttons), !refused);
      EXPECT_EQ(run.answers.titles, kTitles.mid(0, refused ? question + 1 : 3));
      EXPECT_EQ(IsThere(folder, "default.crp"), !refused);
      EXPECT_EQ(BytesOf(folder, "evening.crp") != evening, answer == kYes && question == 2);
      EXPECT_EQ(IsThere(folder, "mine.bet"), answer == kYes && question == 0);
      EXPECT_EQ(IsThere(folder, "mine.prb"), answer == kYes && question == 1);
      if (refused) {
        EXPECT_TRUE(run.game->autobet.Scripts[3].Unsaved);
        EXPECT_TRUE(run.game->percentage.ProbDirty);
        EXPECT_TRUE(IsSessionUnsaved(*run.game));
        EXPECT_EQ(run.window->windowTitle(), "Tessaryn (evening.crp)");
        run.window->CloseUnasked();
      }
      // Whatever was answered, the table is found as it was left.
      Visit next(folder);
      EXPECT_EQ(next.game->table.seats[3].SeatName, "Ann");
      EXPECT_EQ(next.OnField(3), Currency::Dollars(25));
      EXPECT_EQ(next.game->autobet.Scripts[3].ScriptLines, std::vector<std::string>{"bet 10 on field"});
      EXPECT_EQ(next.window->windowTitle(), "Tessaryn");
      EXPECT_FALSE(next.game->percentage.ProbFileName.empty());
      ExpectLoggedBets(next);
      EXPECT_FALSE(IsThere(folder, "autosave.crp"));
      next.window->CloseUnasked();
    }
}

TEST(Closing, ADefaultThatCantBeWrittenIsToldAndCanBeRefused) {
  const QTemporaryDir folder;
  Visit run(folder);
  run.Join(3, "Ann");
  // A name that has no room in the file.
  run.game->autobet.Scripts[3].ScriptFileName = "/" + std::string(300, 'x') + ".bet";
  EXPECT_FALSE(run.Close({kNo}));
  EXPECT_EQ(run.game->table.seats[3].SeatName, "Ann");
  EXPECT_TRUE(run.Close({kYes}));
}

TEST(Closing, ARollThatIsUnderWayEndsFirst) {
  const QTemporaryDir folder;
  {
    Visit run(folder);
    run.game->settings.ShooterBetRule = 0;
    run.Join(3, "Ann");
    bool asked = false;
    run.host.showThrow = [&](Game& game) {
      if (std::exchange(asked, true)) return;
      run.window->close();
      EXPECT_TRUE(run.window->isVisible());
      EXPECT_TRUE(game.table.RollInProgress);
    };
    run.Do("mnuRollDice");
    EXPECT_TRUE(asked);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !run.window->isVisible(); }, 2000));
  }
  Visit next(folder);
  EXPECT_EQ(SessionRolls(next.game->stats), 1);
  next.window->CloseUnasked();
}

TEST(Closing, WhereNobodyIsAskedNothingIsLost) {
  const QTemporaryDir folder;
  std::string evening;
  {
    Visit run(folder);
    LeaveAllUnsaved(run);
    evening = BytesOf(folder, "evening.crp");
    run.game->screen.HotKeys = {{'f', run.game->dataFolder + "field.bet", "Field"}};
    run.window->CloseUnasked();
  }
  EXPECT_EQ(BytesOf(folder, "evening.crp"), evening) << "a file of the user's is written at his word alone";
  Visit next(folder);
  EXPECT_EQ(next.game->autobet.Scripts[3].ScriptLines, std::vector<std::string>{"bet 10 on field"});
  EXPECT_TRUE(next.game->autobet.Scripts[3].Unsaved);
  ExpectLoggedBets(next);
  EXPECT_EQ(QFileInfo(FromCore(next.game->percentage.ProbFileName)).fileName(), "default.prb");
  EXPECT_EQ(next.game->screen.HotKeys.size(), 1u);
  EXPECT_EQ(next.OnField(3), Currency::Dollars(25));
  next.window->CloseUnasked();
}

TEST(Closing, TheDesktopsEndOfSessionAsksOnceAndCanBeRefused) {
  const QTemporaryDir folder;
  Visit run(folder);
  LeaveAllUnsaved(run);
  const auto end = [&](bool mayAsk, std::deque<const char*> buttons) {
    run.answers.buttons = std::move(buttons);
    return run.window->KeepForSessionEnd(mayAsk);
  };
  EXPECT_FALSE(end(true, {kNo, kCancel}));
  EXPECT_FALSE(IsThere(folder, "default.crp"));
  EXPECT_TRUE(end(false, {}));
  EXPECT_TRUE(IsThere(folder, "default.crp"));
  EXPECT_TRUE(IsSessionUnsaved(*run.game)) << "the program may go on";
  EXPECT_TRUE(end(true, {kNo, kNo, kNo}));
  run.host.Changed(*run.game, Change::kEverything);
  EXPECT_FALSE(run.Close({kCancel})) << "the session went on, and so did the game";
  EXPECT_TRUE(end(true, {kNo, kNo, kNo}));
  EXPECT_TRUE(run.Close()) << "all was answered already";
}

// --- Starts.

TEST(Starting, OpensWhatItFindsAndSaysWhatItDoesnt) {
  struct Case {
    const char* name;
    bool lastGame, backup, damaged, autosave;
    const char* argument;
    std::deque<const char*> buttons;
    QStringList titles;
    const char* player;  // at seat 2
    const char* caption;
  };
  const QString unable = Words(Msg::kTitleGameNotOpened);
  const QString missing = Words(Msg::kTitleGameNotFound);
  const QString restore = Words(Msg::kTitleRestoreGame);
  const Case cases[] = {
      {"nothing", false, false, false, false, "", {}, {}, "", "Tessaryn"},
      {"the last game", true, true, false, false, "", {}, {}, "Lena", "Tessaryn"},
      {"a damaged one", true, false, true, false, "", {kOk}, {unable}, "", "Tessaryn"},
      {"and its backup", true, true, true, false, "", {kOk, kYes}, {unable, unable}, "Backup", "Tessaryn"},
      {"not wanted", true, true, true, false, "", {kOk, kNo}, {unable, unable}, "", "Tessaryn"},
      {"by name", true, false, false, false, "own.crp", {}, {}, "Own", "Tessaryn (own.crp)"},
      {"quoted", true, false, false, false, " \"own.crp\" ", {}, {}, "Own", "Tessaryn (own.crp)"},
      {"a wrong name", true, false, false, false, "own.txt", {kOk}, {unable}, "Lena", "Tessaryn"},
      {"a name of none", true, false, false, false, "gone.crp", {kOk}, {missing}, "Lena", "Tessaryn"},
      {"after a crash", true, false, false, true, "", {kYes}, {restore}, "Auto", "Tessaryn"},
      {"and no", true, false, false, true, "own.crp", {kNo}, {restore}, "Own", "Tessaryn (own.crp)"}};
  for (const Case& one : cases) {
    SCOPED_TRACE(one.name);
    const QTemporaryDir folder;
    const auto write = [&](const char* file, const char* player) {
      Visit run(folder);
      run.Join(2, player);
      std::string error;
      EXPECT_TRUE(SaveGame(*run.game, folder.filePath(file).toStdString(), error)) << error;
      run.window.reset();
    };
    write("own.crp", "Own");
    if (one.lastGame) write("default.crp", "Lena");
    if (one.damaged) {
      std::string bytes = BytesOf(folder, "default.crp");
      WriteFile(folder.filePath("default.crp").toStdString(), bytes.substr(0, bytes.size() / 2));
    }
    if (one.backup) {
      const QTemporaryDir other;
      Visit run(other);
      run.Join(2, "Backup");
      std::string error;
      EXPECT_TRUE(SaveGame(*run.game, folder.filePath("default.bak").toStdString(), error)) << error;
    }
    if (one.autosave) {
      const QTemporaryDir other;
      Visit run(other);
      run.Join(2, "Auto");
      std::string error;
      EXPECT_TRUE(AutosaveGame(*run.game, error)) << error;
      QFile::rename(other.filePath("autosave.crp"), folder.filePath("autosave.crp"));
    }
    std::string argument = one.argument;
    if (const auto at = argument.find_first_not_of(" \""); at != std::string::npos)
      argument.insert(at, folder.path().toStdString() + "/");
    Visit run(folder, one.buttons, argument);
    EXPECT_EQ(run.answers.titles, one.titles);
    EXPECT_EQ(run.game->table.seats[2].SeatName, one.player);
    EXPECT_EQ(run.window->windowTitle(), one.caption);
    EXPECT_FALSE(IsThere(folder, "autosave.crp"));
    EXPECT_TRUE(run.Close());
    Visit next(folder);
    EXPECT_EQ(next.game->table.seats[2].SeatName, one.player) << "it is the last game now";
    next.window->CloseUnasked();
  }
}

TEST(Starting, WindowsViewsAndChoicesReturn) {
  const QTemporaryDir folder;
  QPoint pad(210, 140);
  {
    Visit run(folder);
    MainWindow& window = *run.window;
    EXPECT_LE(window.width(), 1280);
    // As narrow as may be: the screen of the tests is no wider.
    window.move(0, 27);
    window.resize(kSmallestWindow.width(), 555);
    QTest::mouseClick(window.findChild<QWidget*>("picCheck4"), Qt::LeftButton);
    for (const char* command : {"mnuKeyInBetAmounts", "mnuDisplayBetAmounts", "mnuSound", "mnuZoomIn"})
      run.Do(command);
    SaveView(window.Table().view, 4);
    run.Do("mnuRollYourOwnNumbers");
    window.findChild<RollPad*>()->move(pad);
    // Hidden and shown, it comes back where it was.
    run.Do("mnuRollYourOwnNumbers");
    run.Do("mnuRollYourOwnNumbers");
    EXPECT_EQ(window.findChild<RollPad*>()->pos(), pad);
    EXPECT_TRUE(run.Close());
  }
  Visit next(folder);
  MainWindow& window = *next.window;
  EXPECT_EQ(window.pos(), QPoint(0, 27));
  EXPECT_EQ(window.size(), QSize(kSmallestWindow.width(), 555));
  EXPECT_EQ(window.Commands().ClickAmount, Currency::Dollars(100));
  EXPECT_EQ(window.Commands().BetAmountMode, kKeyInAmounts);
  EXPECT_TRUE(window.Table().scene.showAmounts);
  EXPECT_FALSE(window.Command("mnuSound")->isChecked());
  EXPECT_FALSE(window.Table().IsFitted());
  EXPECT_EQ(window.Table().view.TableZoom, window.Table().view.SavedViews[4].TableZoom);
  ASSERT_NE(window.findChild<RollPad*>(), nullptr);
  EXPECT_TRUE(window.findChild<RollPad*>()->isVisible());
  EXPECT_EQ(window.findChild<RollPad*>()->pos(), pad);
  window.CloseUnasked();
}

// A window that was left on a screen that is gone comes up on one that is there.
TEST(Starting, APlaceOffTheScreenIsNotKept) {
  const QTemporaryDir folder;
  {
    Visit run(folder);
    run.window->move(4000, 3000);
    run.window->resize(5000, 4000);
    run.Do("mnuTableMove");
    run.window->findChild<QWidget*>("frmMove")->move(-900, 7000);
    EXPECT_TRUE(run.Close());
  }
  Visit next(folder);
  QCoreApplication::processEvents();
  const QRect screen = next.window->screen()->availableGeometry();
  const QRect window = next.window->geometry();
  // The smallest window is as wide as the screen of the tests; the platform's frame is two pixels wide.
  EXPECT_TRUE(screen.adjusted(0, 0, 2, 0).contains(window))
      << window.x() << "," << window.y() << " of " << window.width() << "x" << window.height();
  const QRect panel = next.window->findChild<QWidget*>("frmMove")->geometry();
  EXPECT_TRUE(screen.contains(panel))
      << panel.x() << "," << panel.y() << " of " << panel.width() << "x" << panel.height();
  next.window->CloseUnasked();
}

// --- The Game menu.

TEST(GameMenu, SavesUnderANameOpensItAgainAndListsIt) {
  const QTemporaryDir folder;
  Visit run(folder);
  EXPECT_FALSE(run.window->Command("mnuRecentGames")->isEnabled());
  run.Join(3, "Ann");
  QueuedFileNames() = {"evening"};
  run.Do("mnuSave");  // without a name it asks for one
  EXPECT_EQ(run.window->windowTitle(), "Tessaryn (evening.crp)");
  run.Bet(3, kField, 25);
  run.Do("mnuSave");
  EXPECT_FALSE(IsSessionUnsaved(*run.game));
  run.Bet(3, kField, 10);
  // What is up is given up after a question, and only for a file that can be opened.
  WriteFile(folder.filePath("bad.crp").toStdString(), "Tessaryn, but no more");
  QueuedFileNames() = {"bad", "evening", "evening"};
  run.Do("mnuOpen", {kOk});
  EXPECT_EQ(run.answers.titles, QStringList(Words(Msg::kTitleGameNotOpened)));
  EXPECT_EQ(run.OnField(3), Currency::Dollars(35));
  run.Do("mnuOpen", {kCancel});
  EXPECT_EQ(run.OnField(3), Currency::Dollars(35));
  run.Do("mnuOpen", {kNo});
  EXPECT_EQ(run.answers.titles, QStringList(Words(Msg::kTitleSaveSession)));
  EXPECT_EQ(run.OnField(3), Currency::Dollars(25));
  QueuedFileNames() = {"evening", "second"};
  run.Do("mnuSaveAs", {kNo});  // not over the file that is there
  EXPECT_EQ(run.window->windowTitle(), "Tessaryn (second.crp)");
  // The list of the last, the latest first; one that is gone is grey.
  ASSERT_TRUE(QFile::remove(folder.filePath("second.crp")));
  QMenu* recent = run.window->Command("mnuRecentGames")->menu();
  emit recent->aboutToShow();
  ASSERT_EQ(recent->actions().size(), 2);
  EXPECT_TRUE(recent->actions()[0]->text().contains("second.crp"));
  EXPECT_FALSE(recent->actions()[0]->isEnabled());
  recent->actions()[1]->trigger();
  EXPECT_EQ(run.window->windowTitle(), "Tessaryn (evening.crp)");
  EXPECT_TRUE(run.Close());
  Visit next(folder);
  recent = next.window->Command("mnuRecentGames")->menu();
  emit recent->aboutToShow();
  EXPECT_EQ(recent->actions().size(), 2) << "the list is kept";
  next.window->CloseUnasked();
}

TEST(GameMenu, ATableWithoutANameIsNotLostToAnother) {
  const QTemporaryDir folder;
  Visit run(folder);
  run.Join(3, "Ann");
  std::string error;
  ASSERT_TRUE(SaveGame(*run.game, folder.filePath("other.crp").toStdString(), error)) << error;
  ForgetGameFile(*run.game);
  QueuedFileNames() = {"other", "mine"};
  run.Do("mnuOpen", {kYes});
  EXPECT_TRUE(IsThere(folder, "mine.crp"));
  EXPECT_EQ(run.window->windowTitle(), "Tessaryn (other.crp)");
  run.window->CloseUnasked();
}

TEST(GameMenu, AFileDroppedOnTheWindowIsOpened) {
  const QTemporaryDir folder;
  Visit run(folder);
  std::string error;
  run.Join(5, "Eve");
  ASSERT_TRUE(SaveGame(*run.game, folder.filePath("eve.crp").toStdString(), error)) << error;
  LeaveTable(*run.game, 5);
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(folder.filePath("eve.crp"))});
  QDragEnterEvent enter(QPoint(90, 90), Qt::CopyAction, &files, Qt::LeftButton, {});
  QApplication::sendEvent(run.window.get(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(90, 90), Qt::CopyAction, &files, Qt::LeftButton, {});
  run.answers.buttons = {kNo};
  QApplication::sendEvent(run.window.get(), &drop);
  EXPECT_TRUE(QTest::qWaitFor([&] { return run.game->table.seats[5].SeatName == "Eve"; }, 5000));
  run.window->CloseUnasked();
}

// --- Other files that the program is started with.

TEST(Opening, EachKindOpensItsScreenForTheLastGame) {
  const QTemporaryDir folder;
  std::string error;
  const auto at = [&](const char* name) { return folder.filePath(name).toStdString(); };
  {
    Visit first(folder);
    first.Join(3, "Ann");
    WriteFile(at("line.BET"), "bet 10 on passline\n");
    WriteFile(at("two.rol"), std::string("\x24\x48"));
    WriteFile(at("bad.rol"), "?");
    ASSERT_TRUE(SaveProbabilityFile(first.game->percentage, at("fair.prb"), error)) << error;
    ASSERT_EQ(SaveSessionsLogAs(*first.game, 3, at("old.slg")), "");
    first.window->CloseUnasked();
    QFile::copy(folder.filePath("default.crp"), folder.filePath("evening.crp"));
  }
  const struct {
    const char* name;
    int window;
    std::string (*opened)(const Game&);
    bool fails = false;
  } rows[] = {
      {"line.BET", kAutoBetWindow, [](const Game& game) { return game.autobet.Scripts[3].ScriptFileName; }},
      {"two.rol", kDiceRollFilesWindow, [](const Game& game) { return game.rollFile.RollFileName; }},
      {"fair.prb", kPercentageDiceWindow, [](const Game& game) { return game.percentage.ProbFileName; }},
      {"old.slg", kSessionsWindow, [](const Game& game) { return SessionsLogPath(game, 3); }},
      {"bad.rol", kDiceRollFilesWindow, [](const Game& game) { return game.rollFile.RollFileName; }, true},
      {"none.prb", kPercentageDiceWindow, [](const Game& game) { return game.percentage.ProbFileName; },
       true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Visit run(folder, {}, at(row.name));
    EXPECT_EQ(run.game->table.seats[3].SeatName, "Ann") << "the last game goes on";
    if (row.fails) run.answers.buttons = {kOk};
    run.window->OpenBesideGame(at(row.name));
    EXPECT_TRUE(run.answers.buttons.empty()) << "nothing was told";
    EXPECT_EQ(row.opened(*run.game) == at(row.name), !row.fails);
    EXPECT_EQ(ToolIsShown(run.window->TheDesk(), row.window), row.name != std::string_view("none.prb"));
    run.window->CloseUnasked();
    QFile::remove(folder.filePath("default.crp"));
    QFile::copy(folder.filePath("evening.crp"), folder.filePath("default.crp"));
  }
  const QTemporaryDir empty;
  Visit nobody(empty, {}, at("line.BET"));
  nobody.answers.buttons = {kOk};
  nobody.window->OpenBesideGame(at("line.BET"));
  EXPECT_EQ(nobody.answers.titles, QStringList{Words(Msg::kTitleAddAPlayer)});
  nobody.window->CloseUnasked();
}

// --- The autosave.

TEST(Autosaving, OneIsWrittenEveryFewMinutesIfAnythingChanged) {
  const QTemporaryDir folder;
  Visit run(folder);
  const auto minutesPass = [&] {
    for (QTimer* timer : run.window->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly))
      if (timer->interval() == kAutosaveMinutes * 60'000)
        QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
    return IsThere(folder, "autosave.crp");
  };
  EXPECT_FALSE(minutesPass());
  run.Join(3, "Ann");
  EXPECT_TRUE(minutesPass());
  EXPECT_TRUE(run.Close());
}

TEST(Autosaving, ARunIsPrecededByOneAndAnOrderlyEndTakesItAway) {
  const QTemporaryDir folder;
  Visit run(folder);
  run.game->settings.ShooterBetRule = 0;
  run.game->settings.AutoStopInterval = 5;
  run.Join(3, "Ann");
  run.Do("mnuTurboRoll", {kOk});  // of the stop
  EXPECT_EQ(SessionRolls(run.game->stats), 5);
  EXPECT_TRUE(IsThere(folder, "autosave.crp"));
  EXPECT_FALSE(IsThere(folder, "default.crp"));
  EXPECT_TRUE(run.Close());
  EXPECT_FALSE(IsThere(folder, "autosave.crp"));
}

}  // namespace
}  // namespace tessaryn::test
