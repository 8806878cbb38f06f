// The new session's dialog by mouse and keys: the dice roll file, the question for a bankroll, its looks.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>

#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "shell/screens/new_session.h"
#include "shell/screens_support.h"
#include "shell/table/screen_tools.h"

namespace tessaryn::test {
namespace {

struct SessionTable : ScreenTable {
  SessionTable() {
    game->settings.ShooterBetRule = 0;
    Join(4, "Ann");
  }
  // Opens the dialog as the window does, and works it.
  void Ask(const std::function<void(QDialog&)>& work) {
    WhenOpen("frmNew", work);
    NewSessionScreen screen(*game, nullptr);
    RunDialog(screen);
  }
  // A file of three rolls, the first of them played.
  void PlayFile() {
    RollFile& file = game->rollFile;
    EXPECT_EQ(OpenRollFile(file, folder.filePath("three.rll").toStdString()), "");
    EXPECT_EQ(SetRecorderState(file, kRecorderRecord), "");
    for (const auto& [die1, die2] : {std::pair(1, 2), {3, 3}, {6, 4}}) Roll(die1, die2);
    EXPECT_EQ(RewindForPlayback(file), "");
    RollDice(*game);
    EXPECT_EQ(std::pair(State().Die1, State().Die2), std::pair(1, 2));
  }
};

struct FileChoice {
  const char* clicked;  // after the dialog is open; empty: as it opens
  bool open;            // still, after the session started
  std::int32_t state;
  std::int32_t cursor;
};

TEST(NewSessionRollFile, IsRewoundContinuedOrClosedAsChosen) {
  for (const FileChoice& choice :
       {FileChoice{"", true, kRecorderPlayback, 1}, FileChoice{"optRewind1", true, kRecorderPlayback, 2},
        FileChoice{"chkPreserveDiceRollFile", false, kRecorderOff, 1}}) {
    SessionTable table;
    table.PlayFile();
    table.Ask([&](QDialog& screen) {
      EXPECT_TRUE(Find<QCheckBox>(screen, "chkPreserveDiceRollFile").isChecked());
      if (*choice.clicked != '\0') Click(screen, choice.clicked);
      const bool keeps = Find<QCheckBox>(screen, "chkPreserveDiceRollFile").isChecked();
      for (const char* name : {"optRewind0", "optRewind1"})
        EXPECT_EQ(Find<QRadioButton>(screen, name).isEnabled(), keeps) << name;
      QTest::keyClick(&screen, Qt::Key_Return);
    });
    const RollFile& file = table.game->rollFile;
    EXPECT_EQ(IsRollFileOpen(file), choice.open) << choice.clicked;
    EXPECT_EQ(file.RecorderState, choice.state) << choice.clicked;
    EXPECT_EQ(file.RollFileCursor, choice.cursor) << choice.clicked;
    EXPECT_EQ(SessionRolls(table.game->stats), 0);
  }
}

TEST(NewSessionBankrolls, AreAskedForOverTheTableAndEndAsTyped) {
  SessionTable table;
  table.Join(6, "Bo");
  table.State().seats[4].BankrollInitType = 2;
  table.State().seats[6].BankrollInitType = 1;
  table.State().seats[6].BankrollInitAmount = Currency::Dollars(75);
  table.host.answers.Type("640");
  table.Ask([](QDialog& screen) { Click(screen, "cmdOK"); });
  EXPECT_TRUE(table.host.answers.Empty());
  EXPECT_EQ(table.State().BankrollCurrent[4], Currency::Dollars(640));
  EXPECT_EQ(table.State().BankrollCurrent[6], Currency::Dollars(75));
}

TEST(NewSessionCancel, KeepsEverythingWhateverWasTicked) {
  SessionTable table;
  table.PlayFile();
  table.Bet(4, kField, "10");
  table.Ask([](QDialog& screen) {
    for (const char* name : {"chkPreserveDiceRollFile", "chkPreserveAutoBets", "chkPreservePrevSessions",
                             "chkPreserveCheckstacks", "chkPreserveSessionsLogs"})
      Click(screen, name);
    Click(screen, "cmdCancel");
  });
  EXPECT_TRUE(IsRollFileOpen(table.game->rollFile));
  EXPECT_EQ(table.State().BetAmount(4, kField), Currency::Dollars(10));
  EXPECT_EQ(SessionRolls(table.game->stats), 4);
}

TEST(NewSessionLooks, NamedAndPicturedInLightAndDark) {
  SessionTable table;
  table.PlayFile();
  NewSessionScreen screen(*table.game, nullptr);
  ExpectNamed(screen);
  TakePictures("new-session", [&] { return std::make_unique<NewSessionScreen>(*table.game, nullptr); });
}

}  // namespace
}  // namespace tessaryn::test
