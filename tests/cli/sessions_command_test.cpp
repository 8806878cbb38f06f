// The sessions command as a process, over a log that a run's script made.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "base/messages.h"
#include "support/cli_process.h"

namespace tessaryn::test {
namespace {

using Json = nlohmann::json;

struct Ground {
  TempFolder folder;
  Ran Run(std::vector<std::string> words) {
    words.insert(words.end(), {"--data-folder", folder.Path()});
    return RunCli(folder, words);
  }
  Json Says(std::vector<std::string> words) {
    words.push_back("--json");
    const Ran ran = Run(words);
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    return Json::parse(ran.out, nullptr, false);
  }
};

TEST(SessionsCommand, ReadsWhatARunOfSessionsLeft) {
  Ground ground;
  WriteFile(ground.folder.File("s.bet"),
            "if # of rolls current session >= 20 then start new session endif\nif comeout roll then bet 10 "
            "on passline endif\n");
  const std::vector<std::string> run = {
      "run",     "--player", "Ann=5000", "--script", ground.folder.File("s.bet"), "--permit", "1=reset",
      "--rolls", "2010",     "--seed",   "7"};
  const Json report = ground.Says(run);
  ASSERT_EQ(report["sessions"].size(), 1u) << report;
  EXPECT_EQ(report["sessions"][0]["sessions"], 100);

  Json all = ground.Says({"sessions", "ann.slg"});
  ASSERT_EQ(all["sessions"], 100);
  EXPECT_EQ(all["n"], 100);
  EXPECT_EQ(all["won"], report["sessions"][0]["won"]);
  EXPECT_EQ(all["stat"], "$ Bets Won/Lost (Net)");
  EXPECT_EQ(all["sum"], report["sessions"][0]["net"]);
  std::int64_t inColumns = 0;
  for (const Json& count : all["histogram"]) inColumns += count.get<std::int64_t>();
  EXPECT_EQ(all["histogram"].size(), 525u);
  EXPECT_EQ(inColumns, 100);
  const Json rolls = ground.Says({"sessions", "ann.slg", "--stat", "0"});
  EXPECT_EQ(rolls["mean"], 20);
  EXPECT_EQ(rolls["histogram"][262], 100);
  const Json won =
      ground.Says({"sessions", "ann.slg", "--include", "won", "--export", ground.folder.File("w.csv")});
  EXPECT_EQ(won["n"], all["won"]);
  const auto lines = Lines(ReadFile(ground.folder.File("w.csv")));
  EXPECT_EQ(lines.size(), all["won"].get<std::size_t>() + 1);
  EXPECT_EQ(lines[0].substr(0, 32), "Session #,# Rolls,# Bets Decided");
  EXPECT_LT(ground.Says({"sessions", "ann.slg", "--outliers=-1sd..1sd"})["n"], 100);
  EXPECT_EQ(ground.Says({"sessions", "ann.slg", "--break-point=999999..-999999"})["brokeEven"], 100);
  EXPECT_EQ(ground.Says({"sessions", "ann.slg", "--delete", "5..14"})["sessions"], 90);
  EXPECT_NE(ground.Run({"sessions", "ann.slg"}).out.find("Kurtosis"), std::string::npos);
}

TEST(SessionsCommand, NamesWhatIsWrongAndChangesNothing) {
  Ground ground;
  WriteFile(ground.folder.File("bad.slg"), std::string(600, 'x'));
  const std::string notALog = MessageText<Msg::kNotASessionsLog>(With<"path">("bad.slg"));
  const struct {
    std::vector<std::string> words;
    int exitCode;
    std::string says;
  } rows[] = {
      {{"none.slg"}, 1, "none.slg: No such file"},
      {{"bad.slg"}, 1, notALog},
      {{"bad.slg", "--delete", "1"}, 1, notALog},
      {{"bad.slg", "--stat", "12"}, 1, "--stat 12: is no measure"},
      {{"bad.slg", "--include", "won,drawn"}, 1, "\"drawn\" is neither"},
      {{"bad.slg", "--outliers", "5"}, 1, "--outliers 5: expected a range"},
      {{"bad.slg", "--delete", "1.5..2"}, 1, "--delete 1.5..2: expected a session number"},
      {{"bad.slg", "--export", ""}, 2, "needs a value"},
      {{}, 2, "FILE is required"},
  };
  for (const auto& row : rows) {
    std::vector<std::string> words = {"sessions"};
    words.insert(words.end(), row.words.begin(), row.words.end());
    const Ran ran = ground.Run(words);
    EXPECT_EQ(ran.exitCode, row.exitCode) << ran.err;
    EXPECT_NE(ran.err.find(row.says), std::string::npos) << ran.err;
  }
  EXPECT_EQ(ReadFile(ground.folder.File("bad.slg")), std::string(600, 'x'));
}

}  // namespace
}  // namespace tessaryn::test
