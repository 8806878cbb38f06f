#include "shell/frame/sounds.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QtEndian>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "state/game.h"
#include "support/places.h"

namespace tessaryn {
namespace {

const QString kSamples = QString(test::kSourceFolder) + "/data/sounds";

QByteArray Bytes(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(bytes), bytes.size());
}

// Warnings of Qt go to standard error unless somebody takes them; here they are counted.
int warnings = 0;
void CountWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  ++warnings;
  std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

struct QuietScope {
  QuietScope() : before(qInstallMessageHandler(CountWarning)) { warnings = 0; }
  ~QuietScope() { qInstallMessageHandler(before); }
  QtMessageHandler before;
};

void Spin(int milliseconds) {
  QElapsedTimer timer;
  timer.start();
  while (timer.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

class SoundsTest : public testing::Test {
 protected:
  SoundsTest() : holder(std::make_unique<Game>()), game(*holder) {}
  QStringList Of(const Sounds& sounds, int die1, int die2) {
    game.table.Die1 = die1;
    game.table.Die2 = die2;
    return sounds.FilesOf(Sound::kDice, game);
  }
  std::unique_ptr<Game> holder;
  Game& game;
};

TEST_F(SoundsTest, EveryPairOfFacesIsCalledByItsTotalUnlessHard) {
  const Sounds sounds(kSamples);
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) {
      const bool hard = a == b && a != 1 && a != 6;
      const QString call = QString::asprintf("%02d.stk", hard ? 16 : a + b);
      EXPECT_EQ(Of(sounds, a, b), QStringList({"soft.dce", call})) << a << b;
    }
  for (const auto& [a, b] : {std::pair(0, 3), {3, 0}, {7, 1}, {1, 7}, {-1, -1}})
    EXPECT_EQ(StickIndex(a, b), 0) << a << " " << b;
}

TEST_F(SoundsTest, NoTwoEventsShareTheirCall) {
  const Sounds sounds(kSamples);
  QSet<QString> seen;
  for (const Sound sound : {Sound::kComeOut, Sound::kPoint, Sound::kPass, Sound::kMiss, Sound::kBarredMiss,
                            Sound::kSevenOut, Sound::kWin, Sound::kCheck}) {
    const QStringList files = sounds.FilesOf(sound, game);
    ASSERT_EQ(files.size(), 1) << static_cast<int>(sound);
    EXPECT_FALSE(seen.contains(files[0])) << files[0].toStdString();
    seen.insert(files[0]);
  }
  EXPECT_TRUE(seen.contains("Chips.win"));
}

TEST_F(SoundsTest, ShippedSamplesAreCompleteWholeAndHeard) {
  const Sounds sounds(kSamples);
  EXPECT_EQ(sounds.Missing(), QString());
  EXPECT_EQ(sounds.StickFiles().size(), 18);
  qint64 all = 0;
  for (const QStringList& list :
       {sounds.StickFiles(), sounds.DiceFiles(), sounds.WinFiles(), sounds.CheckFiles()})
    for (const QString& name : list) {
      const QString path = kSamples + "/" + name;
      ASSERT_TRUE(IsWaveFile(path)) << name.toStdString();
      const QByteArray bytes = Bytes(path);
      all += bytes.size();
      int peak = 0;
      for (qsizetype i = 44; i + 1 < bytes.size(); i += 2)
        peak = std::max(peak, std::abs(static_cast<int>(qFromLittleEndian<qint16>(bytes.constData() + i))));
      EXPECT_GT(peak, 8000) << name.toStdString();
      EXPECT_LT(peak, 32767) << name.toStdString();
    }
  EXPECT_LT(all, 1'000'000);
}

TEST_F(SoundsTest, SettingsSilenceWhatTheyName) {
  const Sounds sounds(kSamples);
  game.settings.StickPerson = 0;
  EXPECT_EQ(Of(sounds, 3, 4), QStringList("soft.dce"));
  EXPECT_TRUE(sounds.FilesOf(Sound::kPass, game).isEmpty());
  game.settings.StickPerson = 1;
  game.settings.DiceSound = 0;
  EXPECT_EQ(Of(sounds, 3, 4), QStringList("07.stk"));
  game.settings.CheckSound = 0;
  EXPECT_TRUE(sounds.FilesOf(Sound::kCheck, game).isEmpty());
  game.settings.WinSound = 0;
  EXPECT_TRUE(sounds.FilesOf(Sound::kWin, game).isEmpty());
  game.settings = Settings();
  game.autobet.ScriptRunning = true;
  EXPECT_TRUE(sounds.FilesOf(Sound::kCheck, game).isEmpty());
  EXPECT_FALSE(sounds.FilesOf(Sound::kPass, game).isEmpty());
  game.table.TurboRollActive = true;
  EXPECT_TRUE(Of(sounds, 3, 4).isEmpty());
  game.table.TurboRollActive = false;
  game.settings.DisableAllSound = true;
  EXPECT_TRUE(Of(sounds, 3, 4).isEmpty());
  EXPECT_TRUE(sounds.FilesOf(Sound::kWin, game).isEmpty());
}

TEST_F(SoundsTest, SettingPastTheListIsRandomThenTheFirst) {
  const QStringList files = {"a", "b", "c"};
  EXPECT_EQ(FileOfSetting(files, -1), QString());
  EXPECT_EQ(FileOfSetting(files, 0), QString());
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(FileOfSetting(files, i), files[i - 1]);
  QSet<QString> drawn;
  for (int i = 0; i < 500; ++i) drawn.insert(FileOfSetting(files, 4));
  EXPECT_EQ(drawn.size(), 3);
  EXPECT_EQ(FileOfSetting(files, 100), "a");
  EXPECT_EQ(FileOfSetting({}, 1), QString());
}

TEST_F(SoundsTest, MissingFolderOrFilesLeaveTheTableSilent) {
  const QuietScope quiet;
  Sounds none("/no/such/folder");
  EXPECT_TRUE(none.Missing().contains("01.stk"));
  EXPECT_TRUE(none.Missing().contains("Chips.win"));
  EXPECT_FALSE(none.PlayFile("01.stk"));
  for (int i = 0; i <= static_cast<int>(Sound::kSevenOut); ++i) none.Play(static_cast<Sound>(i), game);
  EXPECT_TRUE(none.Pending().isEmpty());

  QTemporaryDir folder;
  ASSERT_TRUE(QFile::copy(kSamples + "/07.stk", folder.filePath("07.STK")));
  const Sounds one(folder.path());
  EXPECT_FALSE(one.Missing().contains("07.stk"));
  EXPECT_TRUE(one.Missing().contains("08.stk"));
  EXPECT_EQ(Of(one, 3, 4), QStringList("07.STK"));
  EXPECT_TRUE(Of(one, 4, 4).isEmpty());
  EXPECT_EQ(warnings, 0);
}

TEST_F(SoundsTest, NoTruncationOfASampleIsTakenForAWholeOne) {
  QTemporaryDir folder;
  const QString path = folder.filePath("x.win");
  const QByteArray whole = Bytes(kSamples + "/check1.chp");
  for (qsizetype length = 0; length < whole.size(); length += length < 64 ? 1 : 97) {
    Write(path, whole.left(length));
    ASSERT_FALSE(IsWaveFile(path)) << length;
  }
  Write(path, whole);
  EXPECT_TRUE(IsWaveFile(path));
  EXPECT_FALSE(IsWaveFile(folder.path()));
}

TEST_F(SoundsTest, BrokenFilesAreSilentAndDontComplain) {
  const QuietScope quiet;
  QTemporaryDir folder;
  const QByteArray whole = Bytes(kSamples + "/check1.chp");
  std::uint32_t seed = 2024;
  const auto random = [&] { return (seed = seed * 1664525u + 1013904223u) >> 8; };
  for (int i = 1; i <= 18; ++i) {
    QByteArray damaged = whole;
    for (int hits = 0; hits < 3; ++hits)
      damaged[static_cast<qsizetype>(random() % 44)] = static_cast<char>(random());
    Write(folder.filePath(QString::asprintf("%02d.stk", i)), damaged);
  }
  Write(folder.filePath("soft.dce"), "not a sound");
  Write(folder.filePath("Chips.win"), QByteArray());
  Sounds sounds(folder.path());
  EXPECT_FALSE(sounds.PlayFile("soft.dce"));
  EXPECT_FALSE(sounds.PlayFile("Chips.win"));
  for (int roll = 0; roll < 36; ++roll) {
    game.table.Die1 = roll / 6 + 1;
    game.table.Die2 = roll % 6 + 1;
    sounds.Play(Sound::kDice, game);
    sounds.Play(static_cast<Sound>(roll % 10), game);
    Spin(5);
  }
  sounds.Stop();
  EXPECT_TRUE(sounds.Pending().isEmpty());
  EXPECT_EQ(warnings, 0);
}

TEST_F(SoundsTest, FilesAreFoundByNameInAnyCaseAndByPathOnly) {
  const QuietScope quiet;
  Sounds sounds(kSamples);
  EXPECT_TRUE(sounds.PlayFile("chips.WIN"));
  EXPECT_TRUE(sounds.PlayFile(kSamples + "/01.stk"));
  EXPECT_FALSE(sounds.PlayFile("nothing.wav"));
  EXPECT_FALSE(sounds.PlayFile("*.stk"));
  EXPECT_FALSE(sounds.PlayFile(".."));
  EXPECT_TRUE(sounds.PlayFile(QString()));
  EXPECT_TRUE(sounds.Pending().isEmpty());
  EXPECT_EQ(warnings, 0);
}

// Rolls as fast as they come: what is pending is the last roll's alone, and nothing waits for a device.
TEST_F(SoundsTest, PlayingNeitherBlocksNorPilesUp) {
  const QuietScope quiet;
  Sounds sounds(kSamples);
  sounds.Play(Sound::kComeOut, game);
  Spin(50);
  QElapsedTimer timer;
  timer.start();
  for (int roll = 0; roll < 200; ++roll) {
    game.table.Die1 = 3;
    game.table.Die2 = 4;
    sounds.Play(Sound::kDice, game);
    sounds.Play(Sound::kSevenOut, game);
    sounds.Play(Sound::kComeOut, game);
    sounds.Play(Sound::kComeOut, game);
    ASSERT_LE(sounds.Pending().size(), 3);
    for (const QString& path : sounds.Pending()) ASSERT_FALSE(path.endsWith("/07.stk"));
  }
  EXPECT_LT(timer.elapsed(), 2000);
  EXPECT_EQ(warnings, 0);
}

}  // namespace
}  // namespace tessaryn
