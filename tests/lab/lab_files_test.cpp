// An experiment's results hang on nothing but the experiment: threads, interruptions and shards leave the
// same bytes. And a file that is not what it was is known.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "lab/laboratory.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn::test {
namespace {

// Not a constant: the folders are known only once the program has begun.
std::string Folder() { return std::string(kBinFolder) + "/"; }

// So many that a run can be stopped on the way.
const std::int64_t kSessions = std::getenv("TESSARYN_SANITIZED") != nullptr ? 437 : 60'037;

Experiment TwoSystems() {
  Experiment experiment;
  experiment.sessions = kSessions;
  experiment.rolls = 40;
  experiment.seed = 99;
  experiment.bankroll = Currency::Dollars(60);
  experiment.systems = {
      StandingBetSystem("line", {{kPassLine, Currency::Dollars(10)}, {kField, Currency::Dollars(5)}}),
      StandingBetSystem("dark", {{kDontPass, Currency::Dollars(10)}})};
  return experiment;
}

// Plays on, to the end or until a little more is known.
std::string PlayOn(LabState& state, const TempFolder& folder, const std::string& name, int threads,
                   bool toTheEnd = true) {
  SessionRows rows;
  EXPECT_EQ(OpenRows(rows, RowsPathOf(folder.File(name)), state), "");
  state.rows = rows.kept;
  LabRun run;
  run.threads = threads;
  run.applicationFolder = Folder();
  run.checkpoint = folder.File(name);
  run.rows = &rows;
  run.progress = [&, start = SessionsDone(state)](const LabProgress& progress) {
    return toTheEnd || progress.sessions == start;
  };
  const std::string error = RunLab(state, run);
  if (state.finished) {
    EXPECT_EQ(WriteRowsAsCsv(rows, state.experiment, folder.File(name + ".csv")), "");
    EXPECT_EQ(WriteRowsAsLogs(rows, folder.File(name + ".slg")), "");
  }
  return error;
}

struct Reference {
  TempFolder folder;
  LabState state = BeginLab(TwoSystems(), true, true);
  std::string bytes;

  Reference() {
    EXPECT_EQ(PlayOn(state, folder, "all", 1), "");
    bytes = ReadFile(folder.File("all"));
  }
  void ExpectSame(const TempFolder& other, const std::string& name) const {
    EXPECT_TRUE(ReadFile(other.File(name)) == bytes);
    for (const char* ending : {".rows", ".csv", ".1.slg", ".2.slg"})
      EXPECT_TRUE(ReadFile(other.File(name + ending)) == ReadFile(folder.File(std::string("all") + ending)))
          << ending;
  }
};

TEST(LabFiles, AreTheSameForAnyThreadsAndInterruptions) {
  const Reference reference;
  ASSERT_EQ(Lines(ReadFile(reference.folder.File("all.csv"))).size(), 2 * kSessions + 1u);
  for (const int threads : {2, 3}) {
    TempFolder folder;
    LabState state = BeginLab(TwoSystems(), true, true);
    EXPECT_EQ(PlayOn(state, folder, "t", threads), "");
    EXPECT_TRUE(ReadFile(folder.File("t")) == reference.bytes);
  }
  // Stopped again and again, and read anew each time; what the rows have more than the file knows is cut off.
  TempFolder folder;
  LabState state = BeginLab(TwoSystems(), true, true);
  int times = 0;
  for (bool first = true; !state.finished && times < 100; first = false, ++times) {
    if (!first) {
      ASSERT_EQ(ReadLab(folder.File("t"), state), "");
      WriteFile(folder.File("t.rows"), ReadFile(folder.File("t.rows")) + "more");
    }
    ASSERT_EQ(PlayOn(state, folder, "t", 1 + times % 2, false), "");
  }
  EXPECT_GT(times, 1);
  reference.ExpectSame(folder, "t");
}

TEST(LabFiles, OfShardsJoinToTheWhole) {
  const Reference reference;
  TempFolder folder;
  std::vector<std::string> paths;
  for (int shard = 1; shard <= 7; ++shard) {
    Experiment experiment = TwoSystems();
    experiment.shard = shard;
    experiment.shards = 7;
    LabState state = BeginLab(experiment, true, true);
    EXPECT_EQ(PlayOn(state, folder, std::to_string(shard), 1), "");
    paths.push_back(folder.File(std::to_string(shard)));
  }
  std::shuffle(paths.begin(), paths.end(), std::mt19937(3));
  std::vector<LabState> shards;
  LabState whole;
  ASSERT_EQ(MergeLabs(paths, shards, whole), "");
  SessionRows rows;
  ASSERT_EQ(OpenRows(rows, "", whole), "");
  for (std::size_t i = 0; i < shards.size(); ++i) {
    SessionRows part;
    ASSERT_EQ(OpenRows(part, RowsPathOf(paths[i]), shards[i]), "");
    ASSERT_EQ(AppendRows(rows, part), "");
  }
  whole.rows = rows.kept;
  EXPECT_TRUE(LabBytes(whole) == reference.bytes);
  auto lacking = paths;
  lacking.erase(lacking.begin() + 3);
  EXPECT_NE(MergeLabs(lacking, shards, whole).find("shard 4 of 7 is missing"), std::string::npos);
  paths.push_back(paths[2]);
  EXPECT_NE(MergeLabs(paths, shards, whole).find("is there already"), std::string::npos);
}

TEST(LabFiles, ThatAreDamagedAreKnown) {
  const Reference reference;
  TempFolder folder;
  const std::string path = folder.File("bad");
  std::mt19937 random(5);
  for (int i = 0; i < 300; ++i) {
    std::string bytes = reference.bytes;
    const std::size_t at = random() % bytes.size();
    if (i % 3 == 0)
      bytes.resize(at);
    else
      bytes[at] = static_cast<char>(bytes[at] ^ (1 << random() % 8));
    WriteFile(path, bytes);
    LabState state;
    EXPECT_NE(ReadLab(path, state).find(path), std::string::npos) << at;
    EXPECT_TRUE(state.systems.empty());
  }
  // Rows of another experiment.
  std::string rows = ReadFile(reference.folder.File("all.rows"));
  rows[1'000] = static_cast<char>(rows[1'000] ^ 1);
  WriteFile(path + ".rows", rows);
  SessionRows read;
  EXPECT_NE(OpenRows(read, path + ".rows", reference.state), "");
}

TEST(LabFiles, EndWhenTheMeanIsKnownAtTheSameSession) {
  Experiment experiment = TwoSystems();
  experiment.sessions = 50'000;
  experiment.rolls = 3;
  experiment.precision = Currency::FromRaw(4'000);
  std::string bytes;
  for (const int threads : {1, 3}) {
    LabState state = BeginLab(experiment, false, false);
    LabRun run;
    run.threads = threads;
    run.applicationFolder = Folder();
    ASSERT_EQ(RunLab(state, run), "");
    EXPECT_TRUE(state.finished);
    EXPECT_EQ(SessionsDone(state) % 1'000, 0);
    EXPECT_LT(SessionsDone(state), 20'000);
    const std::string own = LabBytes(state);
    EXPECT_TRUE(bytes.empty() || bytes == own);
    bytes = own;
  }
}

TEST(LabMeasures, BoundsAndQuantilesAreThoseOfThePlainFormulas) {
  ValueCounts counts;
  for (const std::int64_t amount : {5, -3, 5, 100, -3, -3, 0, 7}) CountValue(counts, amount);
  SettleCounts(counts);
  EXPECT_EQ(Quantile(counts, 1), -3);
  EXPECT_EQ(Quantile(counts, 50), 0);
  EXPECT_EQ(Quantile(counts, 75), 5);
  EXPECT_EQ(Quantile(counts, 99), 100);
  std::int64_t all = 0;
  for (const Bin& bin : Histogram(counts)) all += bin.count;
  EXPECT_EQ(all, 8);
  ExactSum sum;
  for (const std::int64_t amount : {2, 4, 9}) AddSquared(sum, amount);
  const MeanFigure mean = FigureMean(sum, 3, 1);
  EXPECT_DOUBLE_EQ(mean.mean, 5);
  EXPECT_DOUBLE_EQ(mean.stdDev, std::sqrt(13.0));
  EXPECT_DOUBLE_EQ(mean.ci95.high, 5 + 1.96 * std::sqrt(13.0 / 3));
  const ShareFigure none = FigureShare(0, 100);
  EXPECT_EQ(none.ci95.low, 0);
  EXPECT_NEAR(none.ci95.high, 1.96 * 1.96 / (100 + 1.96 * 1.96), 1e-12);
  EXPECT_NEAR(FigureShare(30, 100).ci95.low, 0.2189, 1e-4);
  ExactSum wide;  // squares that pass 128 bits
  const Int128 large = Int128{1} << 63;
  for (int i = 0; i < 8; ++i) AddSquared(wide, i % 2 == 0 ? large : -large);
  EXPECT_NEAR(FigureMean(wide, 8, 1).stdDev / 9.223372036854775808e18, std::sqrt(8.0 / 7), 1e-12);
}

}  // namespace
}  // namespace tessaryn::test
