// The index of a text against the plain list of its lines: every row, place and hit, whatever the lines look
// like, however far the index has come, with and without a filter, and while the text grows.
#include "stats/log_index.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "stats/events_log.h"
#include "support/test_host.h"

namespace tessaryn::test {
namespace {

using Random = std::mt19937;

std::string AnyLine(Random& random) {
  static const char* const kLines[] = {" Roll #12:  7 (3.4) from RNG #1",
                                       "    Wins/losses:",
                                       "      Ann won $14 on Place 6",
                                       "      Ann Lee lost $5 on Field",
                                       "      Bo bet $10 on Pass Line",
                                       "    Bo's Come bet moved to Come 6",
                                       "      Ann increased to $512 ($12 gain)",
                                       "      Bo increased CheckStack #3 to 5",
                                       "----New shooter (Ann) coming out----------",
                                       "    The dice were passed to Ann",
                                       "    Pass (natural)",
                                       "",
                                       "\r",
                                       " New session started today @ now"};
  if (random() % 40 == 0) return std::string(random() % 3'000, 'x');
  return kLines[random() % std::size(kLines)];
}

struct Model {
  std::vector<LogRow> rows;
  void Add(const std::string& line, std::int64_t begin, const LogFilter& filter) {
    std::string shown = line;
    if (!shown.empty() && shown.back() == '\r') shown.pop_back();
    if (!filter.IsOn() || PassesLogFilter(filter, shown)) rows.push_back({begin, shown});
  }
};

void Append(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary | std::ios::app) << text;
}

void ExpectPlace(const LogPlace& place, const Model& model, std::int64_t row, const char* by) {
  ASSERT_TRUE(place.Exact) << by;
  ASSERT_EQ(place.Row, row) << by;
  ASSERT_EQ(place.Begin, model.rows[static_cast<std::size_t>(row - 1)].Begin) << by << " row " << row;
}

// All that is asked of a complete index, at random rows.
void Compare(const LogIndex& index, const Model& model, Random& random) {
  const auto rows = static_cast<std::int64_t>(model.rows.size());
  ASSERT_EQ(LogRows(index), rows);
  for (int i = 0; i < 40 && rows > 0; ++i) {
    const std::int64_t row = 1 + static_cast<std::int64_t>(random() % static_cast<unsigned>(rows));
    const LogPlace place = PlaceOfLogRow(index, row);
    ExpectPlace(place, model, row, "by row");
    ExpectPlace(PlaceOfLogByte(index, place.Begin), model, row, "by byte");
    const auto step = static_cast<std::int64_t>(random() % 200) - 100;
    ExpectPlace(MoveInLog(index, place, step), model, std::clamp<std::int64_t>(row + step, 1, rows), "moved");
    const std::vector<LogRow> read = ReadLogRows(index, place, 30);
    ASSERT_EQ(read.size(), static_cast<std::size_t>(std::min<std::int64_t>(30, rows - row + 1)));
    for (std::size_t k = 0; k < read.size(); ++k)
      ASSERT_EQ(read[k].Text, model.rows[static_cast<std::size_t>(row - 1) + k].Text);
    const bool forward = random() % 2 == 0;
    LogSearch search = BeginLogSearch(index, "WON $14", place.Begin, forward);
    SearchStep found = SearchStep::kGoesOn;
    while (found == SearchStep::kGoesOn) found = StepLogSearch(index, search, 1);
    std::int64_t expected = -1;
    for (std::int64_t at = row + (forward ? 1 : -1); at >= 1 && at <= rows && expected < 0;
         at += forward ? 1 : -1)
      if (model.rows[static_cast<std::size_t>(at - 1)].Text.find("won $14") != std::string::npos)
        expected = model.rows[static_cast<std::size_t>(at - 1)].Begin;
    ASSERT_EQ(search.Found, expected) << "from row " << row << (forward ? " on" : " back");
  }
}

TEST(LogIndex, IsThePlainListOfTheLinesWhileTheTextGrows) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  Random random(seed);
  TempFolder folder;
  const LogFilter filters[] = {{},
                               {.Kinds = kLogKindWin},
                               {.Kinds = kLogAllKinds, .Player = "Ann"},
                               {.Kinds = kLogKindBet | kLogKindLoss, .Player = "Ann Lee"}};
  for (const LogFilter& filter : filters) {
    const std::string path = folder.File("log" + std::to_string(random()) + ".txt");
    WriteFile(path, "");
    LogIndex index;
    ASSERT_EQ(OpenLogIndex(index, path, "", filter), "");
    Model model;
    std::int64_t size = 0;
    for (int round = 0; round < 6; ++round) {
      std::string text;
      for (auto lines = random() % 4'000; lines > 0; --lines) {
        const std::string line = AnyLine(random);
        model.Add(line, size + static_cast<std::int64_t>(text.size()), filter);
        text += line + '\n';
      }
      Append(path, text);
      size += static_cast<std::int64_t>(text.size());
      ASSERT_TRUE(LookAgain(index));
      while (StepLogIndex(index, static_cast<std::int64_t>(random() % 100'000))) {
        ASSERT_LE(index.Rows, static_cast<std::int64_t>(model.rows.size()));
      }
      Compare(index, model, random);
    }
    Append(path, "      Ann Lee lost $9 on Field");  // no end yet
    model.Add("      Ann Lee lost $9 on Field", size, filter);
    ASSERT_TRUE(LookAgain(index));
    while (StepLogIndex(index, 1)) {
    }
    Compare(index, model, random);
    WriteFile(path, "another\n");
    EXPECT_FALSE(LookAgain(index)) << "no longer the text that was opened";
  }
}

// Rows behind what has been read are shown at once: stepping through them misses and repeats none.
TEST(LogIndex, TheEndCanBeSeenBeforeTheTextIsRead) {
  TempFolder folder;
  const std::string path = folder.File("long.txt");
  std::string text;
  for (int line = 0; line < 200'000; ++line) text += "line " + std::to_string(line) + "\n";
  WriteFile(path, text);
  LogIndex index;
  ASSERT_EQ(OpenLogIndex(index, path, "", {}), "");
  StepLogIndex(index, 1);
  ASSERT_FALSE(IsLogIndexComplete(index));
  LogPlace place = PlaceOfLogByte(index, index.Size - 1);
  EXPECT_FALSE(place.Exact);
  for (int line = 199'999; line > 150'000; line -= 7) {
    ASSERT_EQ(ReadLogRows(index, place, 1).at(0).Text, "line " + std::to_string(line));
    place = MoveInLog(index, MoveInLog(index, place, -10), 3);
  }
  while (StepLogIndex(index, 100'000)) {
  }
  place = PlaceOfLogByte(index, place.Begin);
  EXPECT_TRUE(place.Exact);
  EXPECT_EQ(ReadLogRows(index, place, 1).at(0).Text, "line " + std::to_string(place.Row - 1));
  // Marks thin out instead of filling memory.
  EXPECT_LE(index.Marks.size(), std::size_t{1} << 20);
}

TEST(LogIndex, TheLogsOwnIndexKnowsAllLinesAtOnce) {
  TestTable table;
  table.Set("RecordEventsActive", "on");
  table.Join(1, "Ann");
  for (int roll = 0; roll < 50; ++roll) table.Roll(3, 4);
  Game& game = *table.game;
  FlushEventsLog(game);
  ASSERT_TRUE(EventsIndexFits(game));
  LogIndex index;
  ASSERT_EQ(OpenLogIndex(index, EventsLogPath(game), EventsIndexPath(game), {}), "");
  Model model;
  std::int64_t begin = 0;
  const auto add = [&](std::size_t from) {
    const std::vector<std::string> lines = table.Log();
    for (std::size_t i = from; i < lines.size(); ++i) {
      model.Add(lines[i], begin, {});
      begin += static_cast<std::int64_t>(lines[i].size()) + 1;
    }
  };
  add(0);
  EXPECT_TRUE(IsLogIndexComplete(index));
  Random random(1);
  Compare(index, model, random);
  table.Roll(6, 6);
  FlushEventsLog(game);
  add(model.rows.size());
  ASSERT_TRUE(LookAgain(index));
  Compare(index, model, random);
}

TEST(LogFilter, TakesLinesByWhomAndWhatTheyTellOf) {
  const struct {
    const char* line;
    LogFilter filter;
    bool passes;
  } kRows[] = {
      {"      Ann won $14 on Place 6", {.Player = "Ann"}, true},
      {"      Ann Lee won $14 on Place 6", {.Player = "Ann"}, false},
      {"      Ann Lee won $14 on Place 6", {.Player = "Ann Lee"}, true},
      {"    Wins/losses:", {.Player = "Ann"}, false},
      {" Roll #3:  7 (3.4) from RNG #1", {.Player = "Ann"}, true},
      {"    Ann's Come bet moved to Come 6", {.Player = "Ann"}, true},
      {"    Ann's Come bet moved to Come 6", {.Kinds = kLogKindBet}, true},
      {"    Ann joined the game at stick 4-left with $1000", {.Kinds = kLogKindBet}, false},
      {"      Ann decreased Field to $5", {.Kinds = kLogKindBet}, true},
      {"      Ann decreased to $5 ($2 loss)", {.Kinds = kLogKindBet}, false},
      {"      Ann decreased CheckStack #5 to 2", {.Kinds = kLogKindStack}, true},
      {"----Same shooter (Bo) coming out----------", {.Player = "Ann"}, false},
      {"----Same shooter (Ann) coming out----------", {.Player = "Ann"}, true},
  };
  for (const auto& row : kRows) EXPECT_EQ(PassesLogFilter(row.filter, row.line), row.passes) << row.line;
}

}  // namespace
}  // namespace tessaryn::test
