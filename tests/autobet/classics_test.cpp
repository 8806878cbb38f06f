// The classic systems among the samples: what each bets on known dice.
#include <gtest/gtest.h>

#include "autobet/known_dice.h"
#include "autobet/run_helpers.h"

namespace tessaryn {
namespace {

using script_test::BetsUp;
using script_test::ScriptTable;

struct Step {
  int die1;
  int die2;
  const char* bets;  // that stand for the next roll
};

struct Classic {
  const char* file;
  const char* first;  // the bets ahead of the first roll
  std::vector<Step> steps;
};

const Classic kClassics[] = {
#include "autobet/classics.inc"
};

TEST(Classics, EachBetsAsItsHeaderTells) {
  for (const Classic& classic : kClassics) {
    SCOPED_TRACE(classic.file);
    ScriptTable table;
    Game& game = *table.game;
    std::string error;
    const std::string path = std::string(test::kSourceFolder) + "/data/samples/" + classic.file + ".bet";
    ASSERT_TRUE(OpenScript(game, 1, path, error)) << error;
    const ScriptCheck check = CheckScript(game, 1);
    ASSERT_TRUE(check.ok) << check.title << ": " << check.text;
    SetScriptActive(game, 1, true);
    ASSERT_TRUE(InitialiseScripts(game));
    EXPECT_EQ(BetsUp(game), classic.first);
    int roll = 0;
    for (const Step& step : classic.steps) {
      table.Dice(step.die1, step.die2);
      EXPECT_EQ(BetsUp(game), step.bets) << "behind roll " << ++roll << ", " << step.die1 << " " << step.die2;
    }
    EXPECT_TRUE(game.autobet.Scripts[1].Errors.empty());
  }
}

}  // namespace
}  // namespace tessaryn
