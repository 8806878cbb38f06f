#include "shell/frame/tool_windows.h"

#include <QTimer>
#include <algorithm>
#include <utility>

#include "shell/frame/desk.h"
#include "shell/frame/docks.h"
#include "shell/frame/printing.h"
#include "shell/frame/tool_menu.h"
#include "shell/screens/bankroll_graph_screen.h"
#include "shell/screens/check_stacks_screen.h"
#include "shell/screens/events_log_screen.h"
#include "shell/frame/sounds.h"
#include "shell/screens/configuration.h"
#include "shell/screens/move_panel.h"
#include "shell/screens/report_window.h"
#include "shell/screens/probability_page.h"
#include "shell/screens/roll_files_window.h"
#include "shell/screens/roll_pad.h"
#include "shell/screens/sessions_log_screen.h"
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

WindowPlace& KeptPlace(ScreenState& screen, int number) {
  return number < kRecordedWindows ? screen.ToolWindows[number]
                                   : screen.FurtherPlaces[number - kRecordedWindows];
}

struct ToolRow {
  int number;
  ToolWindow* (*make)(Desk&);
  bool floatsOnly = false;  // it doesn't dock, and has nothing to print
};
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
};

const ToolRow* RowOf(int number) {
  for (const ToolRow& row : kTools)
    if (row.number == number) return &row;
  return nullptr;
}

ToolWindow* Make(Desk& desk, int number) {
  if (desk.toolMakers[number] != nullptr) return desk.toolMakers[number](desk);
  const ToolRow* row = RowOf(number);
  return row != nullptr ? row->make(desk) : nullptr;
}

}  // namespace

bool HasTool(const Desk& desk, int number) {
  return desk.toolMakers[number] != nullptr || RowOf(number) != nullptr;
}

bool DocksAsWell(const Desk& desk, int number) {
  if (!HasTool(desk, number)) return false;
  const ToolRow* row = RowOf(number);
  return row == nullptr || !row->floatsOnly;
}

ToolWindow& Tool(Desk& desk, int number) {
  QPointer<ToolWindow>& tool = desk.tools[number];
  if (tool != nullptr) return *tool;
  tool = Make(desk, number);
  tool->SetPlace(KeptPlace(desk.game.screen, number));
  if (DocksAsWell(desk, number)) GiveToolMenu(desk, *tool);
  return *tool;
}

int NumberOf(const Desk& desk, const ToolWindow& window) {
  const auto found = std::find(desk.tools.begin(), desk.tools.end(), &window);
  return found == desk.tools.end() ? -1 : static_cast<int>(found - desk.tools.begin());
}

void ShowTool(Desk& desk, int number, bool shown) {
  ToolWindow& tool = Tool(desk, number);
  ToolDock* dock = DockOf(desk, number);
  if (dock == nullptr) return tool.setVisible(shown);
  dock->setVisible(shown);
  if (shown) dock->raise();
}

// One that stands behind a tab comes before it.
void ToggleTool(Desk& desk, int number) {
  const ToolDock* dock = DockOf(desk, number);
  const bool behind = dock != nullptr && !dock->IsInFront();
  ShowTool(desk, number, behind || !ToolIsShown(desk, number));
}

bool ToolIsShown(const Desk& desk, int number) {
  if (const ToolDock* dock = DockOf(desk, number); dock != nullptr) return !dock->isHidden();
  return desk.tools[number] != nullptr && desk.tools[number]->isVisible();
}

namespace {

bool IsSeen(const Desk& desk, int number) {
  const ToolDock* dock = DockOf(desk, number);
  return ToolIsShown(desk, number) && (dock == nullptr || dock->IsInFront());
}

}  // namespace

// What a window looks up may let events in, and with them another refresh: that comes behind.
void RefreshTool(Desk& desk, int number) {
  if (!IsSeen(desk, number)) return;
  if (std::exchange(desk.refreshing, true)) {
    desk.refreshDue = true;
    return;
  }
  desk.tools[number]->Refresh();
  if (DockOf(desk, number) != nullptr) SetAccessKeys(*desk.tools[number], false);
  desk.refreshing = false;
  if (std::exchange(desk.refreshDue, false))
    QTimer::singleShot(0, desk.window, [&desk] { RefreshTools(desk); });
}

void RefreshTools(Desk& desk) {
  for (int number = 0; number < kToolWindows; ++number) RefreshTool(desk, number);
}

void KeepTools(Desk& desk) {
  for (int number = 0; number < kToolWindows; ++number) {
    if (desk.tools[number] == nullptr) continue;
    WindowPlace& place = KeptPlace(desk.game.screen, number);
    place = desk.tools[number]->Place();
    place.Open = ToolIsShown(desk, number);
  }
  if (desk.docks != nullptr) desk.game.screen.Arrangement = KeptArrangement(desk);
}

void PlaceTools(Desk& desk) {
  RestoreArrangement(desk, desk.game.screen.Arrangement);
  for (int number = 0; number < kToolWindows; ++number) {
    const WindowPlace& place = KeptPlace(desk.game.screen, number);
    if (!HasTool(desk, number) || (desk.tools[number] == nullptr && !place.Open)) continue;
    Tool(desk, number).SetPlace(place);
    if (ToolDock* dock = DockOf(desk, number); dock != nullptr)
      dock->setVisible(place.Open);
    else
      Tool(desk, number).setVisible(place.Open);
  }
}

}  // namespace tessaryn
