// Sessions that helpers play are those that would have been played here: the same bytes, whoever had which.
// And a helper that is lost takes nothing with it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <thread>

#include "lab/laboratory.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn::test {
namespace {

const bool kSanitized = std::getenv("TESSARYN_SANITIZED") != nullptr;

Experiment Asked(Currency precision = kZero) {
  Experiment experiment;
  experiment.sessions = kSanitized ? 437 : 61'037;
  experiment.rolls = 40;
  experiment.seed = 7;
  experiment.precision = precision;
  experiment.systems = {StandingBetSystem("line", {{kPassLine, Currency::Dollars(10)}}),
                        StandingBetSystem("dark", {{kDontPass, Currency::Dollars(10)}})};
  return experiment;
}

// Others in this process, each of whom takes another while; messages go as bytes.
struct Crew {
  LabState experiment;
  std::vector<FreshTables> fresh;
  std::atomic<int> left = 1 << 30;  // pieces until one is lost
  LabHelpers helpers;

  explicit Crew(int count) : fresh(static_cast<std::size_t>(count)) {
    helpers.count = count;
    helpers.begin = [this](const LabState& state, int) {
      LabState whole = state;
      ASSERT_EQ(ReadLabBytes("crew", LabBytes(whole), experiment), "");
    };
    helpers.play = [this](int helper, SessionRange range, const std::atomic<bool>& stop, LabPiece& piece) {
      if (--left <= 0) return std::string("a helper is lost");
      std::this_thread::sleep_for(std::chrono::milliseconds(7 * (helper + 1)));
      LabRun run;
      run.applicationFolder = std::string(kBinFolder) + "/";
      run.progress = [&stop](const LabProgress&) { return !stop; };
      const LabPiece played = PlayPiece(experiment, range, run, fresh[static_cast<std::size_t>(helper)]);
      EXPECT_TRUE(ReadPiece(PieceBytes(played), piece));
      return std::string();
    };
  }
};

struct Outcome {
  std::string error;
  std::string lab;
  std::string rows;
};

// Plays on from what the folder holds, if it holds something.
Outcome PlayOn(const TempFolder& folder, Currency precision, Crew* crew) {
  const std::string path = folder.File("h.lab");
  LabState state = BeginLab(Asked(precision), true, true);
  if (!ReadFile(path).empty()) {
    EXPECT_EQ(ReadLab(path, state), "");
  }
  SessionRows rows;
  EXPECT_EQ(OpenRows(rows, RowsPathOf(path), state), "");
  state.rows = rows.kept;
  LabRun run;
  run.applicationFolder = std::string(kBinFolder) + "/";
  run.checkpoint = path;
  run.rows = &rows;
  if (crew != nullptr) run.helpers = &crew->helpers;
  Outcome outcome;
  outcome.error = RunLab(state, run);
  outcome.lab = ReadFile(path);
  outcome.rows = ReadFile(RowsPathOf(path));
  return outcome;
}

TEST(LabHelpers, PlayWhatWouldHaveBeenPlayedHere) {
  for (const Currency precision : {kZero, Currency::FromDouble(0.8)}) {
    TempFolder alone;
    const Outcome expected = PlayOn(alone, precision, nullptr);
    ASSERT_EQ(expected.error, "");
    for (const int count : {1, 3}) {
      TempFolder folder;
      Crew crew(count);
      const Outcome outcome = PlayOn(folder, precision, &crew);
      EXPECT_EQ(outcome.error, "");
      EXPECT_LT(crew.left, 1 << 30) << "nobody has helped";
      EXPECT_TRUE(outcome.lab == expected.lab) << count << " helpers, precision " << precision.ToDouble();
      EXPECT_TRUE(outcome.rows == expected.rows);
    }
  }
}

TEST(LabHelpers, WhatWasInBeforeOneIsLostIsKept) {
  TempFolder alone;
  const Outcome expected = PlayOn(alone, kZero, nullptr);
  TempFolder folder;
  Outcome outcome;
  for (int times = 1; times < 6; ++times) {
    Crew crew(2);
    crew.left = times;
    outcome = PlayOn(folder, kZero, &crew);
    if (outcome.error.empty()) break;  // without the one that was lost
    EXPECT_EQ(outcome.error, "a helper is lost");
    EXPECT_TRUE(expected.rows.starts_with(outcome.rows));
  }
  outcome = PlayOn(folder, kZero, nullptr);
  EXPECT_EQ(outcome.error, "");
  EXPECT_TRUE(outcome.lab == expected.lab);
}

TEST(LabHelpers, BytesThatAreNoPieceAreRefused) {
  Crew crew(1);
  crew.helpers.begin(BeginLab(Asked(), true, false), 0);
  LabPiece piece;
  const std::atomic<bool> stop = false;
  ASSERT_EQ(crew.helpers.play(0, {0, 9}, stop, piece), "");
  const std::string bytes = PieceBytes(piece);
  std::mt19937 random(5);
  for (int i = 0; i < 500; ++i) {
    LabPiece cut;
    EXPECT_FALSE(ReadPiece(std::string_view(bytes).substr(0, random() % bytes.size()), cut));
  }
}

}  // namespace
}  // namespace tessaryn::test
