#include "shell/frame/arrange.h"

#include <QCoreApplication>
#include <QMenu>
#include <algorithm>
#include <span>

#include "shell/frame/desk.h"
#include "shell/frame/docking.h"
#include "shell/frame/docks.h"
#include "shell/frame/tool_windows.h"
#include "shell/table/table_widget.h"

namespace tessaryn {
namespace {

struct Docked {
  int number;
  Qt::DockWidgetArea side;
  bool wideOnly = false;  // there is room for it in a large window only
  bool tabbed = false;    // in a smaller one it stands in a tab behind the one before
};
constexpr Docked kWatch[] = {{kBankrollWindow, Qt::RightDockWidgetArea},
                             {kRollTotalsWindow, Qt::RightDockWidgetArea},
                             {kBetResultsWindow, Qt::RightDockWidgetArea, false, true},
                             {kAutoBetWindow, Qt::BottomDockWidgetArea, true},
                             {kEventsLogWindow, Qt::BottomDockWidgetArea},
                             {kHandsWindow, Qt::BottomDockWidgetArea, true}};
constexpr Docked kStudy[] = {{kSummaryWindow, Qt::RightDockWidgetArea},
                             {kBetTrendsWindow, Qt::RightDockWidgetArea},
                             {kSessionsWindow, Qt::BottomDockWidgetArea},
                             {kHandsWindow, Qt::BottomDockWidgetArea}};

struct Layout {
  const char* name;
  const char* caption;
  std::span<const Docked> docked;
};
constexpr Layout kLayouts[] = {
    {"mnuArrangePlay", QT_TRANSLATE_NOOP("Commands", "&Play"), {}},
    {"mnuArrangeWatch", QT_TRANSLATE_NOOP("Commands", "&Watch a system"), kWatch},
    {"mnuArrangeStudy", QT_TRANSLATE_NOOP("Commands", "&Study results"), kStudy},
};

// The room beside and below the table: as wide and high as told in a large window, the table's lion's share
// in a small one.
constexpr int kWide = 1600;
constexpr QSize kDocksWide(440, 184);
constexpr QSize kDocksNarrow(340, 200);

template <typename Work>
void ForEachDockable(Desk& desk, const Work& work) {
  for (int number = 0; number < kToolWindows; ++number)
    if (MayDock(desk, number) && desk.tools[number] != nullptr) work(number);
}

bool IsTabbed(const Desk& desk, const Docked& row) { return row.tabbed && desk.window->width() < kWide; }

void ShareRoom(Desk& desk, std::span<const Docked> docked) {
  const QSize room = desk.window->width() >= kWide ? kDocksWide : kDocksNarrow;
  const QSize size(std::min(room.width(), desk.docks->width() / 3),
                   std::min(room.height(), desk.docks->height() / 3));
  QList<QDockWidget*> right;
  QList<QDockWidget*> below;
  for (const Docked& row : docked)
    if (ToolDock* dock = DockOf(desk, row.number); dock != nullptr && !IsTabbed(desk, row))
      (row.side == Qt::RightDockWidgetArea ? right : below).append(dock);
  if (!right.isEmpty()) {
    desk.docks->resizeDocks(right, QList<int>(right.size(), size.width()), Qt::Horizontal);
    desk.docks->resizeDocks(
        right, QList<int>(right.size(), desk.docks->height() / static_cast<int>(right.size())), Qt::Vertical);
  }
  if (below.isEmpty()) return;
  desk.docks->resizeDocks(below, QList<int>(below.size(), size.height()), Qt::Vertical);
  const int wide = desk.docks->width() - (right.isEmpty() ? 0 : size.width());
  desk.docks->resizeDocks(below, QList<int>(below.size(), wide / static_cast<int>(below.size())),
                          Qt::Horizontal);
}

void Arrange(Desk& desk, const Layout& layout) {
  ForEachDockable(desk, [&](int number) {
    if (DockOf(desk, number) == nullptr) return;
    ShowTool(desk, number, false);
    FloatTool(desk, number);
  });
  ToolDock* before = nullptr;
  for (const Docked& row : layout.docked) {
    if (row.wideOnly && desk.window->width() < kWide) continue;
    DockTool(desk, row.number, row.side);
    ToolDock* dock = DockOf(desk, row.number);
    if (before != nullptr && dock != nullptr && IsTabbed(desk, row)) {
      desk.docks->tabifyDockWidget(before, dock);
      before->raise();
    }
    before = dock;
  }
  ShareRoom(desk, layout.docked);
  desk.table->setFocus();
}

}  // namespace

void FloatAllTools(Desk& desk) {
  ForEachDockable(desk, [&](int number) { FloatTool(desk, number); });
}

void CloseAllTools(Desk& desk) {
  ForEachDockable(desk, [&](int number) { ShowTool(desk, number, false); });
}

void ListArrangements(Desk& desk, QMenu& menu) {
  const auto add = [&](const char* name, const char* caption, auto work) {
    QAction* action = menu.addAction(QCoreApplication::translate("Commands", caption));
    action->setObjectName(name);
    QObject::connect(action, &QAction::triggered, desk.window, [&desk, work] {
      work();
      desk.refresh();
    });
  };
  for (const Layout& layout : kLayouts)
    add(layout.name, layout.caption, [&desk, &layout] { Arrange(desk, layout); });
  menu.addSeparator();
  add("mnuFloatAll", QT_TRANSLATE_NOOP("Commands", "&Float all"), [&desk] { FloatAllTools(desk); });
  add("mnuCloseAll", QT_TRANSLATE_NOOP("Commands", "&Close all instruments"),
      [&desk] { CloseAllTools(desk); });
}

}  // namespace tessaryn
