// The report: a page that holds together whatever the systems are called and do, sweeps that stand where they
// belong, and a command that leads back to the same experiment.
#include "lab/html_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "lab/html_parts.h"
#include "lab/lab_grid.h"
#include "lab/lab_words.h"
#include "lab/laboratory.h"
#include "lab/systems.h"
#include "support/cli_process.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

LabState StateOf(Experiment experiment, std::int64_t sessions) {
  experiment.sessions = sessions;
  LabState state = BeginLab(experiment, false, false);
  LabRun run;
  run.applicationFolder = std::string(kBinFolder) + "/";
  EXPECT_EQ(RunLab(state, run), "");
  SettleState(state);
  return state;
}

Experiment Bets(const std::vector<std::string>& bets) {
  Experiment experiment;
  experiment.rolls = 30;
  experiment.bankroll = Currency::Dollars(40);
  for (const std::string& text : bets) {
    experiment.systems.emplace_back();
    EXPECT_EQ(ReadStandingBets(text, experiment.systems.back()), "");
  }
  return experiment;
}

// What the page has open at its end, or the first thing that doesn't fit.
std::string MarkupProblem(const std::string& page) {
  std::vector<std::string> open;
  for (std::size_t at = page.find('<'); at != std::string::npos; at = page.find('<', at + 1)) {
    const std::size_t end = page.find('>', at);
    const std::string inside = page.substr(at + 1, end - at - 1);
    if (inside.starts_with('!')) continue;
    if (std::count(inside.begin(), inside.end(), '"') % 2 != 0 || inside.find('<') != std::string::npos)
      return "<" + inside;
    const std::string name = inside.substr(0, inside.find_first_of(" /", 1));
    if (inside.starts_with('/')) {
      if (open.empty() || "/" + open.back() != name) return "<" + inside;
      open.pop_back();
    } else if (!inside.ends_with('/') && name != "meta") {
      open.push_back(name);
    }
  }
  return open.empty() ? "" : open.back() + " is never closed";
}

void ExpectWhole(const std::string& page) {
  EXPECT_EQ(MarkupProblem(page), "");
  EXPECT_EQ(Escaped(page).find("\xEF\xBF\xBD"), std::string::npos) << "no UTF-8";
  for (const char* outside : {"http:", "https:", "<script", "<link", "url(", "nan", "inf\"", "inf,"})
    EXPECT_EQ(page.find(outside), std::string::npos) << outside;
}

TEST(HtmlReport, HoldsTogetherWhateverItTells) {
  Experiment odd = Bets({"passline=10", "place6=12", "field=5"});
  odd.systems[0].name = "</title><b>&\"x'\xC3\x28\xFF\n" + std::string(300, 'W');
  odd.systems[1].lines.push_back("' </pre><i>&amp; <!-- \"");
  odd.systems[2].lines.insert(odd.systems[2].lines.begin(), "if 1 > 2 then bet 5 on field endif");
  odd.winGoal = Currency::Dollars(20);
  const Experiment eight =
      Bets({"passline=10", "dontpass=10", "passline=5,field=5", "passline=5,passlineodds=5", "passline=40",
            "dontpass=5", "passline=5", "passline=15"});
  Experiment unbounded = Bets({"passline=10"});
  unbounded.rolls = 0;
  unbounded.hands = 2;
  Experiment dice = Bets({"passline=5"});
  dice.percentageDice = true;
  dice.probabilities = FairProbabilities();
  for (const Experiment& experiment : {odd, eight, unbounded, dice, Bets({"place6=12"})})
    for (const int sessions : {1, 2, 300}) {
      LabState state = StateOf(experiment, sessions);
      ExpectWhole(HtmlReport(state));
    }
  LabState state = StateOf(odd, 20);
  const std::string page = HtmlReport(state);
  EXPECT_EQ(page.find("<b>&\"x"), std::string::npos);
  EXPECT_NE(page.find("never rolled the dice"), std::string::npos);
}

TEST(HtmlReport, AnyBytesBecomeTextThatIsSafe) {
  std::mt19937 random(3);
  for (int i = 0; i < 3'000; ++i) {
    std::string bytes;
    for (auto n = random() % 12; n > 0; --n)
      bytes += static_cast<char>(random() % 4 == 0 ? "<>&\""[random() % 4] : random() % 256);
    const std::string safe = Escaped(bytes);
    EXPECT_EQ(safe.find_first_of("<>\""), std::string::npos);
    EXPECT_EQ(Escaped(safe).find("\xEF\xBF\xBD") == std::string::npos,
              safe.find("\xEF\xBF\xBD") == std::string::npos);
  }
  EXPECT_EQ(Escaped("Z\xC3\xBCrich \xF0\x9F\x8E\xB2"), "Z\xC3\xBCrich \xF0\x9F\x8E\xB2");
  EXPECT_EQ(Number(-1234567.891, 2),
            "\xE2\x88\x92"
            "1,234,567.89");
  EXPECT_EQ(Number(-0.001, 2), "0.00");
  EXPECT_EQ(Signed(999.996, 2), "+1,000.00");
}

Experiment Swept(const std::vector<std::string>& stacks, const std::vector<std::string>& varied) {
  Experiment experiment = Bets({"passline=5", "dontpass=5"});
  for (const std::string& text : stacks) EXPECT_EQ(SweepStack(text, experiment.systems), "");
  for (const std::string& text : varied) EXPECT_EQ(SweepSetting(text, experiment.systems), "");
  return experiment;
}

TEST(LabGrid, EverySystemStandsWhereItsValuesSay) {
  struct Case {
    std::vector<std::string> stacks;
    std::vector<std::string> varied;
    std::size_t grids;
    std::size_t rows;
    std::size_t columns;
  };
  const Case cases[] = {{{}, {}, 0, 0, 0},
                        {{"1=5"}, {}, 0, 0, 0},
                        {{"1=5..20:5"}, {}, 2, 1, 4},
                        {{"1=5..20:5", "2=7"}, {"OddsCalcMethod=1,2,3"}, 2, 4, 3},
                        {{"1=1,2", "2=1,2,3"}, {"OddsCalcMethod=1,2"}, 4, 3, 2},
                        {{"1=5,5"}, {}, 0, 0, 0},
                        {{"1=5,5,6"}, {}, 0, 0, 0}};
  for (const Case& wanted : cases) {
    const Experiment experiment = Swept(wanted.stacks, wanted.varied);
    const std::vector<LabGrid> grids = GridsOf(experiment);
    ASSERT_EQ(grids.size(), wanted.grids);
    std::vector<bool> seen(experiment.systems.size());
    for (const LabGrid& grid : grids) {
      ASSERT_EQ(grid.Rows(), wanted.rows);
      ASSERT_EQ(grid.Columns(), wanted.columns);
      for (std::size_t place = 0; place < grid.systems.size(); ++place) {
        EXPECT_FALSE(seen[grid.systems[place]]);
        seen[grid.systems[place]] = true;
        const std::string label = LabelOf(experiment.systems[grid.systems[place]]);
        const LabAxis& across = grid.axes.back();
        EXPECT_NE((label + ",").find(across.name + "=" + across.values[place % grid.Columns()]),
                  std::string::npos);
        const LabAxis& down = grid.axes.front();
        EXPECT_NE(
            label.find(down.name + "=" + down.values[grid.axes.size() == 1 ? place : place / grid.Columns()]),
            std::string::npos);
      }
    }
  }
}

TEST(LabGrid, TheMapFramesTheBestByWhatSystemsAreRankedBy) {
  LabState state = StateOf(Swept({"1=5..20:5", "2=1..3:1"}, {}), 40);
  for (const RankBy by : {RankBy::kMean, RankBy::kMedian, RankBy::kRuin}) {
    const std::string page = HtmlReport(state, by);
    ExpectWhole(page);
    // Two grids by each of three measures, the chosen one outside the folded ones.
    std::size_t framed = 0;
    for (std::size_t at = page.find("class=\"best\""); at != std::string::npos;
         at = page.find("class=\"best\"", at + 1))
      ++framed;
    EXPECT_EQ(framed, 6u);
  }
  double before = -1;
  for (int i = 0; i <= 20; ++i) {
    const HeatColour colour = HeatColourOf(i / 20.0);
    const double light = 0.21 * colour.red + 0.72 * colour.green + 0.07 * colour.blue;
    EXPECT_GT(light, before) << "in gray the better is the lighter";
    before = light;
  }
}

TEST(LabCommandLine, LeadsBackToTheExperiment) {
  TempFolder folder;
  WriteFile(folder.File("it's my.bet"), "if passline = 0 then bet cs1 on passline endif\n");
  const std::vector<std::vector<std::string>> asked = {
      {"--bets", "passline=10"},
      {"--script", folder.File("it's my.bet"), "--bets", "field=5,passline=5", "--stack", "1=5..15:5",
       "--vary", "OddsCalcMethod=1,2", "--hands", "3", "--win-goal", "55.5", "--end", "hand", "--seed", "77"},
      {"--bets", "dontpass=5", "--hours", "0.5", "--loss-limit", "40", "--set", "SimRollRate=90", "--rng",
       "8", "--vary", "OddsCalcMethod=3,2"},
      {"--bets", "passline=5", "--rolls", "9", "--precision", "5", "--sessions", "4000"}};
  for (std::vector<std::string> words : asked) {
    words.insert(words.end(), {"--out", folder.File("a.lab")});
    words.insert(words.begin(), "lab");
    if (std::find(words.begin(), words.end(), "--sessions") == words.end())
      words.insert(words.end(), {"--sessions", "20"});
    const Ran ran = RunCli(folder, words);
    ASSERT_EQ(ran.exitCode, 0) << ran.err;
    LabState first;
    ASSERT_EQ(ReadLab(folder.File("a.lab"), first), "");
    std::string command = LabCommand(first.experiment);
    ASSERT_TRUE(command.starts_with("tessaryn-cli lab ")) << command;
    command = "cd '" + folder.File("") + "' && " + std::string(kBinFolder) + "/" + command +
              " --out b.lab >/dev/null 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    EXPECT_EQ(ReadFile(folder.File("b.lab")), ReadFile(folder.File("a.lab"))) << command;
  }
}

}  // namespace
}  // namespace tessaryn::test
