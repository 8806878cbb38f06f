#include <QCoreApplication>
#include <QMenu>
#include <algorithm>
#include <string_view>

#include "shell/frame/arrange.h"
#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/tool_windows.h"
#include "shell/table/table_widget.h"

namespace tessaryn {

namespace {

constexpr const char* kWhole = "mnuViewWhole";
constexpr const char* kLeft = "mnuViewLeft";
constexpr const char* kRight = "mnuViewRight";
constexpr const char* kPropositions = "mnuDisplayPropBets";
constexpr int kTurn = 30;  // degrees
// Parts of the table that have a command of their own, in table units.
constexpr QRectF kLeftEnd(-20, -25, 605, 590);
constexpr QRectF kRightEnd(663, -25, 605, 590);
constexpr QRectF kPropositionBets(556, 4, 135, 524);

bool AmountsShown(const Desk& desk) { return desk.table->scene.showAmounts; }

void ShowAmounts(Desk& desk) {
  desk.table->scene.showAmounts = !AmountsShown(desk);
  desk.table->update();
}

void LookAt(TableView& view, QRectF tableArea) {
  const QRectF room =
      QRectF(QPointF(), QSizeF(view.Window)).adjusted(0, view.MarginTop, 0, -view.MarginBottom);
  const QRectF shown = view.Transform().mapRect(tableArea);
  const double share = std::min(room.width() / shown.width(), room.height() / shown.height());
  ZoomTo(view, static_cast<int>(view.TableZoom * share), shown.center());
  const QPointF off = room.center() - view.ToScreen(tableArea.center());
  view.TableOffsetX += static_cast<int>(off.x());
  view.TableOffsetY += static_cast<int>(off.y());
}

bool PropositionsShown(const Desk& desk) { return desk.beforePropositions.TableZoom != 0; }

void ShowPropositions(Desk& desk) {
  TableView& view = desk.table->view;
  if (PropositionsShown(desk)) {
    const auto kept = view.SavedViews;
    view.SavedViews[0] = desk.beforePropositions;
    RestoreView(view, 0);
    view.SavedViews = kept;
    return ShowView(desk, "");
  }
  desk.beforePropositions = {view.TableZoom, view.TableAngle, view.TableOffsetX, view.TableOffsetY};
  LookAt(view, kPropositionBets);
  ShowView(desk, kPropositions);
}

template <void (*zoom)(TableView&, int)>
void Zoom(Desk& desk) {
  zoom(desk.table->view, 0);
  ShowView(desk, "");
}

void Turn(Desk& desk) {
  SetTableRotation(desk.table->view, -kTurn);
  ShowView(desk, "");
}

void WholeTable(Desk& desk) {
  desk.table->view.TableAngle = 0;
  ShowView(desk, kWhole);
}

template <const char* const* command, const QRectF* part>
void ShowPart(Desk& desk) {
  LookAt(desk.table->view, *part);
  ShowView(desk, *command);
}

// The view that an entry of the menu stands for is the one shown.
template <const char* const* command>
bool IsShown(const Desk& desk) {
  return std::string_view(desk.view) == *command;
}

QString NumberedView(int number) { return QCoreApplication::translate("Commands", "View %1").arg(number); }

void ListViewsToRestore(Desk& desk, QMenu& menu) {
  for (int n = 0; n < kSavedViews; ++n) {
    QAction* action = menu.addAction(NumberedView(n));
    action->setEnabled(desk.table->view.SavedViews[n].TableZoom >= kMinimumZoom);
    QObject::connect(action, &QAction::triggered, desk.window, [&desk, n] {
      if (RestoreView(desk.table->view, n)) ShowView(desk, "");
    });
  }
}

void ListViewsToSave(Desk& desk, QMenu& menu) {
  for (int n = 0; n < kSavedViews; ++n)
    QObject::connect(menu.addAction(NumberedView(n)), &QAction::triggered, desk.window,
                     [&desk, n] { SaveView(desk.table->view, n); });
}

}  // namespace

void ShowView(Desk& desk, const char* command) {
  std::string_view(command) == kWhole ? desk.table->ShowWhole() : desk.table->ViewChanged();
  desk.view = command;
  if (std::string_view(command) != kPropositions) desk.beforePropositions = {};
  desk.refresh();
}

std::span<const CommandRow> ViewCommands() {
  static const CommandRow kCommands[] = {
      {.name = "mnuDisplayBetAmounts",
       .caption = QT_TRANSLATE_NOOP("Commands", "Bet &amounts"),
       .key = "F11",
       .act = ShowAmounts,
       .ticked = AmountsShown},
      {.name = "mnuFlashBets",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Flash the bets"),
       .key = "Space",
       .act = [](Desk& desk) { desk.table->FlashBets(); },
       .can = HasBets},
      {.name = kPropositions,
       .caption = QT_TRANSLATE_NOOP("Commands", "&Proposition bets"),
       .key = "C",
       .act = ShowPropositions,
       .ticked = PropositionsShown},
      {},
      {.name = "mnuTableMove",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Move, zoom and rotate"),
       .key = "Z",
       .act = [](Desk& desk) { ToggleTool(desk, kMoveWindow); },
       .ticked = [](const Desk& desk) { return ToolIsShown(desk, kMoveWindow); }},
      {.name = "mnuZoomIn",
       .caption = QT_TRANSLATE_NOOP("Commands", "Zoom &in"),
       .key = "Ctrl++",
       .act = Zoom<ZoomIn>},
      {.name = "mnuZoomOut",
       .caption = QT_TRANSLATE_NOOP("Commands", "Zoom &out"),
       .key = "Ctrl+-",
       .act = Zoom<ZoomOut>},
      {.name = "mnuRotate", .caption = QT_TRANSLATE_NOOP("Commands", "&Rotate by 30 degrees"), .act = Turn},
      {},
      {.name = kWhole,
       .caption = QT_TRANSLATE_NOOP("Commands", "&Whole table"),
       .act = WholeTable,
       .ticked = IsShown<&kWhole>},
      {.name = kLeft,
       .caption = QT_TRANSLATE_NOOP("Commands", "&Left end"),
       .act = ShowPart<&kLeft, &kLeftEnd>,
       .ticked = IsShown<&kLeft>},
      {.name = kRight,
       .caption = QT_TRANSLATE_NOOP("Commands", "Ri&ght end"),
       .act = ShowPart<&kRight, &kRightEnd>,
       .ticked = IsShown<&kRight>},
      {},
      {.name = "mnuRestoreView",
       .caption = QT_TRANSLATE_NOOP("Commands", "R&estore view"),
       .fill = ListViewsToRestore},
      {.name = "mnuSaveView",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Save view"),
       .fill = ListViewsToSave},
      {},
      {.name = "mnuArrange", .caption = QT_TRANSLATE_NOOP("Commands", "Arra&nge"), .fill = ListArrangements},
  };
  return kCommands;
}

}  // namespace tessaryn
