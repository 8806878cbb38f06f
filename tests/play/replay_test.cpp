// A game whose dice were recorded plays again to the same journal and the same table, byte for byte.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <random>

#include "support/cli_process.h"
#include "support/places.h"

namespace tessaryn {
namespace {

using test::Ran;
using test::RunCli;
using test::TempFolder;

std::string Words(std::initializer_list<const char*> words) {
  std::string text;
  for (const char* word : words) text += std::string(text.empty() ? "" : " ") + word;
  return text + "\n";
}

// A random game of commands; which of them the table refuses is part of the game.
std::string RandomGame(unsigned seed, int rolls) {
  std::mt19937 random(seed);
  const auto pick = [&random](int least, int most) {
    return std::to_string(std::uniform_int_distribution<int>(least, most)(random));
  };
  std::string game = "set ShooterBetRule 0\nset RecordEventsActive on\n";
  for (int seat = 1; seat <= 5; ++seat)
    game += "join " + std::to_string(seat) + " P" + static_cast<char>('a' + seat) + " 3000\n";
  for (int roll = 0; roll < rolls; ++roll) {
    for (int i = 0; i < 4; ++i) {
      const std::string seat = pick(1, 8);
      switch (std::uniform_int_distribution<int>(0, 14)(random)) {
        case 0:
          game += Words({"call", seat.c_str(), random() % 2 == 0 ? "on" : "off", pick(1, 93).c_str()});
          break;
        case 1:
          game +=
              Words({"atm", seat.c_str(), random() % 2 == 0 ? "withdraw" : "deposit", pick(1, 300).c_str()});
          break;
        case 2:
          game += Words({"set", ("WinHandling@" + seat).c_str(), pick(0, 7).c_str()});
          break;
        case 3:
          game += Words({"set", ("LoseHandling@" + seat).c_str(), pick(0, 7).c_str()});
          break;
        case 4:
          game += Words({"bet", seat.c_str(), pick(100, 199).c_str(), pick(-9, 9).c_str()});
          break;
        case 5:
          if (random() % 8 == 0) game += Words({"move", seat.c_str(), pick(1, 8).c_str()});
          break;
        case 6:
          if (random() % 10 == 0) game += Words({"leave", seat.c_str()});
          break;
        case 7:
          if (random() % 4 == 0) game += "pass\n";
          break;
        default:
          game += Words({"bet", seat.c_str(), pick(1, 93).c_str(), pick(-20, 60).c_str()});
          break;
      }
    }
    game += "roll\n";
  }
  game += "state\n";
  for (int seat = 0; seat <= 8; ++seat)
    for (int scope = 0; scope <= 4; ++scope)
      game += "stats " + std::to_string(seat) + " " + std::to_string(scope) + "\n";
  return game;
}

struct Played {
  std::string answers;
  std::string log;
};

// What state tells of the recorder: the one thing in the answers that isn't the game's.
std::string WithoutRecorder(std::string answers) {
  const std::string start = "\"recorder\":{";
  for (std::size_t at = 0; (at = answers.find(start, at)) != std::string::npos;)
    answers.erase(at, answers.find("},", at) + 2 - at);
  return answers;
}

Played PlayGame(const std::string& commands, std::vector<std::string> options) {
  TempFolder folder;
  const std::string log = folder.File("game.txt");
  options.insert(options.begin(), {"play", "--data-folder", folder.Path(), "--events-log", log});
  const Ran ran = RunCli(folder, options, commands);
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  return {WithoutRecorder(ran.out), test::ReadFile(log)};
}

void Replace(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
}

TEST(Replay, ARecordedGamePlaysAgainByteForByte) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    TempFolder folder;
    const std::string dice = folder.File("dice.rol");
    const std::string commands = RandomGame(seed, 400);
    Played recorded = PlayGame(commands, {"--rng", "2", "--seed", "12345", "--record", dice});
    EXPECT_EQ(test::ReadFile(dice).size(), 400u);
    Played again = PlayGame(commands, {"--rng", "2", "--seed", "12345", "--roll-file", dice});
    const Played third = PlayGame(commands, {"--rng", "2", "--seed", "12345", "--roll-file", dice});
    EXPECT_TRUE(again.log == third.log);
    EXPECT_TRUE(again.answers == third.answers);
    EXPECT_TRUE(recorded.answers == again.answers);
    // The journal says where the dice came from; the rest is the same.
    Replace(recorded.log, " from RNG #2\n", " from roll file\n");
    EXPECT_NE(again.log.find("    Dice roll file playback activated (dice.rol)\n"), std::string::npos);
    Replace(again.log, "    Dice roll file playback activated (dice.rol)\n", "");
    EXPECT_GT(recorded.log.size(), 20'000u);
    EXPECT_TRUE(recorded.log == again.log);
  }
}

// Fowler, Noll and Vo's hash, to name a game in one short number.
std::uint32_t ShortNumber(const std::string& text) {
  std::uint32_t hash = 2166136261u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
  return hash;
}

// The first line that differs, for whoever must say why.
std::string FirstDifference(const std::string& now, const std::string& then) {
  const std::vector<std::string> a = test::Lines(now);
  const std::vector<std::string> b = test::Lines(then);
  for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
    const std::string left = i < a.size() ? a[i] : "(end)";
    const std::string right = i < b.size() ? b[i] : "(end)";
    if (left != right) return "line " + std::to_string(i + 1) + "\n  now:  " + left + "\n  then: " + right;
  }
  return "line ends";
}

// One small game, kept whole: a commit that changes its journal or its answers says why. With
// TESSARYN_NEW_FINGERPRINT set the kept files are written anew, to be looked at and committed.
TEST(Replay, TheFingerprintGameIsAsItWasKept) {
  const std::string data = std::string(test::kSourceFolder) + "/tests/data/";
  TempFolder folder;
  const std::string dice = folder.File("fingerprint.rol");
  test::WriteFile(dice, test::ReadFile(data + "fingerprint.rol"));
  const Played played = PlayGame(test::ReadFile(data + "fingerprint.play"), {"--roll-file", dice});
  std::printf("fingerprint %08x\n", ShortNumber(played.log + played.answers));
  if (std::getenv("TESSARYN_NEW_FINGERPRINT") != nullptr) {
    test::WriteFile(data + "fingerprint.log", played.log);
    test::WriteFile(data + "fingerprint.answers", played.answers);
  }
  const std::string keptLog = test::ReadFile(data + "fingerprint.log");
  const std::string keptAnswers = test::ReadFile(data + "fingerprint.answers");
  EXPECT_FALSE(keptLog.empty());
  EXPECT_TRUE(played.log == keptLog) << FirstDifference(played.log, keptLog);
  EXPECT_TRUE(played.answers == keptAnswers) << FirstDifference(played.answers, keptAnswers);
}

}  // namespace
}  // namespace tessaryn
