// The pictures on the pages of the help: scripts/help_pictures.sh has them made.
#include <QDir>
#include <QImage>

#include "play/hot_keys.h"
#include "play/script_session.h"
#include "play/setting_table.h"
#include "rules/bet_rules.h"
#include "shell/frame/docking.h"
#include "shell/frame/help_desk.h"
#include "shell/frame/main_window.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/auto_play.h"
#include "shell/screens/help_window.h"
#include "shell/screens_support.h"
#include "shell/shell_table.h"
#include "shell/table/turbo_panel.h"

namespace tessaryn::test {
namespace {

constexpr int kWidest = 820;

// Few colours make small files.
void Keep(QWidget& widget, const QString& name) {
  QImage picture = widget.grab().toImage();
  if (picture.width() > kWidest) picture = picture.scaledToWidth(kWidest, Qt::SmoothTransformation);
  picture =
      picture.convertToFormat(QImage::Format_RGB16, Qt::AvoidDither).convertToFormat(QImage::Format_RGB888);
  EXPECT_TRUE(picture.save(QString(kSourceFolder) + "/docs/help/pictures/" + name + ".png", "PNG", 0));
}

struct Scene {
  ShellTable table;
  ShellHost host;
  MainWindow window{*table.game, host};
  Desk& desk = window.TheDesk();

  explicit Scene(QSize size = {1180, 700}) {
    table.game->applicationFolder = std::string(kBinFolder) + "/";
    std::string error;
    SetSetting(*table.game, "RecordEventsActive", 0, "on", error);
    table.MakeBusy();
    window.Table().animate = false;
    window.resize(size);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  ToolWindow& Show(int number, QSize size = {820, 480}) {
    ShowTool(desk, number, true);
    ToolWindow& tool = Tool(desk, number);
    tool.resize(size);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&tool));
    window.TheDesk().refresh();
    QTest::qWait(300);
    return tool;
  }
};

TEST(HelpPictures, AreMade) {
  if (qEnvironmentVariableIsEmpty("TESSARYN_HELP_PICTURES")) GTEST_SKIP() << "scripts/help_pictures.sh";
  QDir().mkpath(QString(kSourceFolder) + "/docs/help/pictures");
  {
    Scene scene;
    Keep(scene.window, "window");
    Keep(scene.window.Table(), "table");
    AutoPlayScreen screen(*scene.table.game, &scene.window);
    screen.show();
    Keep(screen, "auto-play");
    screen.close();
    Keep(scene.Show(kRollPadWindow, {300, 300}), "roll-pad");
    Keep(scene.Show(kPercentageDiceWindow), "percentage-dice");
    ToolWindow& configuration = scene.Show(kConfigurationWindow, {820, 520});
    Find<QListWidget>(configuration, "lstTabs").setCurrentRow(1);
    Keep(configuration, "configuration");
    SetScript(*scene.table.game, 3,
              {"' Ten on the Pass Line, double odds, and a Come bet.", "if comeout roll then",
               "   bet 10 on passline", "endif", "if point is established then",
               "   bet 2 * passline on passlineodds", "   bet 10 on come", "endif"},
              "");
    Keep(scene.Show(kAutoBetWindow, {960, 600}), "workshop");
    scene.table.game->screen.HotKeys = {{'a', "across.bet", "across the numbers"},
                                        {'f', "field.bet", "the Field"}};
    Keep(scene.Show(kHotKeysWindow, {560, 300}), "hot-keys");
    Keep(OpenHelp(scene.desk, {"help/bets-numbers.md", {}, {}}), "help");
  }
  {
    Scene scene;
    Keep(scene.Show(kCheckStacksWindow, {420, 420}), "check-stacks");
    scene.Show(kBankrollWindow, {820, 460});
    scene.table.game->graph.ScaleMode = kScaleExpanding;
    scene.table.game->graph.DisplayAverage = true;
    auto* panel = scene.window.findChild<TurboPanel*>();
    panel->Begin(*scene.table.game);
    scene.table.Turbo(450);
    Keep(scene.Show(kBetResultsWindow), "bet-results");
    Keep(scene.Show(kBankrollWindow, {820, 460}), "bankroll-graph");
    Keep(scene.Show(kEventsLogWindow, {820, 420}), "events-log");
    panel->setGeometry(scene.window.Table().rect());
    panel->Refresh(*scene.table.game);
    panel->show();
    Keep(*panel, "turbo-roll");
  }
  {
    Scene scene({1440, 860});
    scene.table.game->graph.ScaleMode = kScaleExpanding;
    scene.table.Turbo(400);
    for (const int number : {kBankrollWindow, kRollTotalsWindow, kBetResultsWindow})
      DockTool(scene.desk, number,
               number == kBetResultsWindow ? Qt::BottomDockWidgetArea : Qt::RightDockWidgetArea);
    QTest::qWait(500);
    Keep(scene.window, "docks");
  }
  {
    ShellTable table;
    table.Join(1, "Ann");
    PlaceBet(*table.game, 1, kPassLine, Currency::Dollars(10));
    table.Roll(4, 2);
    PlaceBet(*table.game, 1, kPassLineOdds, Currency::Dollars(20));
    ShellHost host;
    MainWindow window(*table.game, host);
    window.Table().animate = false;
    window.resize(1180, 700);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Keep(window.Table(), "point");
  }
}

}  // namespace
}  // namespace tessaryn::test
