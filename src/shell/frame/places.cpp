#include "shell/frame/places.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "shell/frame/desk.h"
#include "shell/frame/docking.h"
#include "shell/table/amount_selector.h"
#include "shell/table/appearance.h"
#include "shell/table/table_stage.h"
#include "shell/table/table_widget.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// The first window, and what the desktop puts round it at most.
constexpr QSize kFirstSize(1280, 800);
constexpr QSize kFrame(16, 40);

WindowPlace MainPlace(const QWidget& window) {
  const bool plain = (window.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized)) == 0;
  const QRect inner = plain ? window.geometry() : window.normalGeometry();
  const QPoint corner = plain ? window.pos() : inner.topLeft();
  return {true, corner.y(), corner.x(), inner.width(), inner.height()};
}

void KeepRails(ScreenState& screen, const Desk& desk) {
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const QPoint corner = desk.stage->PlateOf(seat).pos();
    screen.RailLeft[seat] = corner.x();
    screen.RailTop[seat] = corner.y();
  }
}

}  // namespace

void KeepScreen(Desk& desk) {
  ScreenState& screen = desk.game.screen;
  const QWidget& window = *desk.window;
  screen.MainWindow = window.isMinimized()   ? kMainMinimised
                      : window.isMaximized() ? kMainMaximised
                                             : kMainNormal;
  screen.MainPlace = MainPlace(window);
  KeepTools(desk);
  KeepRails(screen, desk);
  const TableView& view = desk.table->view;
  // A table that is fitted into the window is so again in one of another size.
  screen.View = desk.table->IsFitted()
                    ? KeptView{}
                    : KeptView{view.TableZoom, view.TableAngle, view.TableOffsetX, view.TableOffsetY};
  std::copy(view.SavedViews.begin(), view.SavedViews.end(), screen.SavedViews);
  desk.host.rolled.Keep(desk.game);
  screen.ShowBetAmounts = desk.table->scene.showAmounts;
  screen.ShowPropositions = desk.beforePropositions.TableZoom != 0;
  screen.BetAmountMode = desk.commands.BetAmountMode;
  screen.ClickAmount = desk.amounts->Amount();
}

void PlaceMainWindow(Desk& desk) {
  QWidget& window = *desk.window;
  const WindowPlace& place = desk.game.screen.MainPlace;
  const QPoint corner(place.Left, place.Top);
  const QSize wanted(place.Width, place.Height);
  const bool placed = !wanted.isEmpty();
  const QScreen* screen = placed ? QGuiApplication::screenAt(QRect(corner, wanted).center()) : nullptr;
  const QRect room = (screen != nullptr ? screen : window.screen())->availableGeometry();
  window.setWindowState(window.windowState() & ~Qt::WindowMaximized);
  window.resize((placed ? wanted : kFirstSize).boundedTo(room.size() - kFrame).expandedTo(kSmallestWindow));
  const QSize free = (room.size() - kFrame - window.size()).expandedTo(QSize(0, 0));
  if (placed)
    window.move(std::clamp(corner.x(), room.left(), room.left() + free.width()),
                std::clamp(corner.y(), room.top(), room.top() + free.height()));
  if (desk.game.screen.MainWindow == kMainMaximised)
    window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void ShowScreen(Desk& desk) {
  const ScreenState& screen = desk.game.screen;
  TableView& view = desk.table->view;
  view.TableAngle = 0;
  ShowView(desk, "mnuViewWhole");
  desk.view = "";
  if (screen.ShowPropositions)
    desk.beforePropositions = {view.TableZoom, view.TableAngle, view.TableOffsetX, view.TableOffsetY};
  view.SavedViews[0] = screen.View;
  if (RestoreView(view, 0)) desk.table->ViewChanged();
  std::copy(std::begin(screen.SavedViews), std::end(screen.SavedViews), view.SavedViews.begin());
  desk.table->scene.showAmounts = screen.ShowBetAmounts;
  desk.commands = {};
  desk.commands.BetAmountMode = screen.BetAmountMode == kKeyInAmounts ? kKeyInAmounts : kAddClickAmount;
  desk.amounts->SetAmount(screen.ClickAmount);
  desk.commands.ClickAmount = desk.amounts->Amount();
  PlaceTools(desk);
}

}  // namespace tessaryn
