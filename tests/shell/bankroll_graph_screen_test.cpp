// The bankroll graph under mouse and keyboard, and its pictures.
#include "shell/screens/bankroll_graph_screen.h"

#include <gtest/gtest.h>

#include "shell/screens/bankroll_graph_view.h"
#include "shell/screens_support.h"
#include "stats/bankroll_graph.h"

namespace tessaryn::test {
namespace {

TEST(BankrollGraphScreenLooks, Pictures) {
  ScreenTable table;
  table.Join(3, "Ann");
  BankrollGraphScreen screen(*table.game, nullptr);
  screen.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&screen));
  SavePicture(screen, "graph-empty");
}

}  // namespace
}  // namespace tessaryn::test
