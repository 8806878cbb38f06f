#include "shell/frame/tool_rows.h"

#include <utility>

#include "shell/frame/desk.h"
#include "shell/frame/help_desk.h"
#include "shell/frame/lab_table.h"
#include "shell/frame/printing.h"
#include "shell/frame/sounds.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/bankroll_graph_screen.h"
#include "shell/screens/check_stacks_screen.h"
#include "shell/screens/configuration.h"
#include "shell/screens/events_log_screen.h"
#include "shell/screens/hot_keys_screen.h"
#include "shell/screens/laboratory_screen.h"
#include "shell/screens/luck_window.h"
#include "shell/screens/move_panel.h"
#include "shell/screens/probability_page.h"
#include "shell/screens/report_window.h"
#include "shell/screens/roll_files_window.h"
#include "shell/screens/roll_pad.h"
#include "shell/screens/sessions_log_screen.h"
#include "shell/screens/workshop_window.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_widget.h"
#include "state/game.h"

namespace tessaryn {
namespace {

ToolWindow* MakeRollPad(Desk& desk) {
  auto* pad = new RollPad(desk.game, desk.window);
  pad->commitEntry = [&desk] { return desk.table->CommitEntry(); };
  return pad;
}

ToolWindow* MakeMovePanel(Desk& desk) {
  auto* panel = new MovePanel(desk.window);
  QObject::connect(panel, &MovePanel::zoom, desk.window, [&desk](bool in, int mode) {
    in ? ZoomIn(desk.table->view, mode) : ZoomOut(desk.table->view, mode);
    ShowView(desk, "");
  });
  QObject::connect(panel, &MovePanel::move, desk.window, [&desk](int dx, int dy, int mode) {
    MoveTable(desk.table->view, dx, dy, mode);
    ShowView(desk, "");
  });
  QObject::connect(panel, &MovePanel::center, desk.window, [&desk] {
    CenterTable(desk.table->view);
    ShowView(desk, "");
  });
  QObject::connect(panel, &MovePanel::rotate, desk.window, [&desk](bool clockwise, int mode) {
    constexpr int kDegrees[4] = {30, 90, 45, 180};
    SetTableRotation(desk.table->view, clockwise ? -kDegrees[mode] : kDegrees[mode]);
    ShowView(desk, "");
  });
  return panel;
}

template <int number>
ToolWindow* MakeReportWindow(Desk& desk) {
  auto* report = new ReportWindow(desk.game, number, desk.window);
  report->selected = [&desk] { RefreshTools(desk); };
  return report;
}

ToolWindow* MakeRollFiles(Desk& desk) {
  auto* window = new RollFilesWindow(desk.game, desk.window);
  window->print = [&desk, window] { PrintTool(desk, *window); };
  return window;
}

ToolWindow* MakePercentageDice(Desk& desk) { return new PercentageDiceWindow(desk.game, desk.window); }

ToolWindow* MakeBankrollGraph(Desk& desk) {
  auto* graph = new BankrollGraphScreen(desk.game, desk.window);
  graph->printNow = [&desk, graph] { return PrintNow(desk, *graph); };
  graph->commitEntry = [&desk] { return desk.table->CommitEntry(); };
  desk.host.graphPageFull = [there = QPointer<BankrollGraphScreen>(graph)](Game&) {
    if (there != nullptr) there->PageFilled();
  };
  return graph;
}

ToolWindow* MakeCheckStacks(Desk& desk) { return new CheckStacksScreen(desk.game, desk.window); }

template <typename Screen>
ToolWindow* MakeLog(Desk& desk) {
  return new Screen(desk.game, desk.window);
}

ToolWindow* MakeConfiguration(Desk& desk) {
  SoundShelf shelf;
  if (const Sounds* sounds = desk.host.sounds; sounds != nullptr)
    shelf = {sounds->StickFiles(), sounds->DiceFiles(), sounds->CheckFiles(), sounds->WinFiles(),
             [&desk](const QString& file) { desk.host.PlaySoundFile(desk.game, ToCore(file)); }};
  return new ConfigurationScreen(desk.game, std::move(shelf), desk.window);
}

ToolWindow* MakeLaboratory(Desk& desk) {
  auto* laboratory = new LaboratoryScreen(desk.game, desk.window);
  laboratory->toTable = [&desk](const Experiment& experiment, std::size_t system, std::int64_t session) {
    return PlayLabSession(desk, experiment, system, session);
  };
  return laboratory;
}

ToolWindow* MakeWorkshop(Desk& desk) {
  auto* workshop = new WorkshopWindow(desk.game, desk.window);
  workshop->changed = [&desk] {
    desk.table->Refresh();
    desk.refresh();
  };
  return workshop;
}

ToolWindow* MakeHotKeys(Desk& desk) { return new HotKeysScreen(desk.game, desk.keeps, desk.window); }

ToolWindow* MakeLuck(Desk& desk) { return new LuckWindow(desk.game, desk.window); }

constexpr ToolRow kTools[] = {
    {kRollPadWindow, MakeRollPad, true},
    {kMoveWindow, MakeMovePanel, true},
    {kDiceRollFilesWindow, MakeRollFiles},
    {kPercentageDiceWindow, MakePercentageDice},
    {kSummaryWindow, MakeReportWindow<kSummaryWindow>},
    {kHandsWindow, MakeReportWindow<kHandsWindow>},
    {kBetResultsWindow, MakeReportWindow<kBetResultsWindow>},
    {kBetTrendsWindow, MakeReportWindow<kBetTrendsWindow>},
    {kRollTotalsWindow, MakeReportWindow<kRollTotalsWindow>},
    {kRollFreqsWindow, MakeReportWindow<kRollFreqsWindow>},
    {kBankrollWindow, MakeBankrollGraph},
    {kCheckStacksWindow, MakeCheckStacks},
    {kSessionsWindow, MakeLog<SessionsLogScreen>},
    {kEventsLogWindow, MakeLog<EventsLogScreen>},
    {kConfigurationWindow, MakeConfiguration},
    {kLaboratoryWindow, MakeLaboratory},
    {kLuckWindow, MakeLuck},
    {kAutoBetWindow, MakeWorkshop},
    {kHotKeysWindow, MakeHotKeys},
    {kHelpWindow, MakeHelpWindow},
};

}  // namespace

std::span<const ToolRow> ToolRows() { return kTools; }

}  // namespace tessaryn
