#include "shell/frame/docking.h"

#include <QAction>
#include <QApplication>
#include <QCryptographicHash>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <set>
#include <utility>

#include "shell/frame/desk.h"
#include "shell/frame/docks.h"
#include "shell/frame/exporting.h"
#include "shell/frame/printing.h"
#include "shell/frame/tool_windows.h"
#include "shell/table/table_widget.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr int kVersion = 1;  // of the arrangement
constexpr qsizetype kLongestArrangement = 1 << 16;

enum class Needs { kNothing, kAnything, kRows, kPicture };

// Without a name it is a line between two groups.
struct ToolCommand {
  const char* name;
  const char* caption;
  void (*act)(Desk&, ToolWindow&);
  Needs needs;
  QKeySequence::StandardKey key = QKeySequence::UnknownKey;
};

constexpr ToolCommand kOutput[] = {
    {"mnuPrint", QT_TRANSLATE_NOOP("ToolMenu", "&Print ..."), PrintTool, Needs::kAnything,
     QKeySequence::Print},
    {"mnuPrintPreview", QT_TRANSLATE_NOOP("ToolMenu", "Print pre&view ..."), PreviewTool, Needs::kAnything},
    {"mnuPdf", QT_TRANSLATE_NOOP("ToolMenu", "Save as P&DF ..."), SaveToolAsPdf, Needs::kAnything},
    {},
    {"mnuCopyAll", QT_TRANSLATE_NOOP("ToolMenu", "&Copy all"), CopyTool, Needs::kAnything,
     QKeySequence::Copy},
    {"mnuExport", QT_TRANSLATE_NOOP("ToolMenu", "&Export table (CSV) ..."), ExportRows, Needs::kRows},
    {"mnuExportPng", QT_TRANSLATE_NOOP("ToolMenu", "Export p&icture (PNG) ..."), ExportPng, Needs::kPicture},
    {"mnuExportSvg", QT_TRANSLATE_NOOP("ToolMenu", "Export drawin&g (SVG) ..."), ExportSvg, Needs::kPicture},
};

template <Qt::DockWidgetArea side>
void DockAt(Desk& desk, ToolWindow& window) {
  DockTool(desk, NumberOf(desk, window), side);
}

void FloatIt(Desk& desk, ToolWindow& window) { FloatTool(desk, NumberOf(desk, window)); }
void CloseIt(Desk& desk, ToolWindow& window) { ShowTool(desk, NumberOf(desk, window), false); }

constexpr ToolCommand kPlace[] = {
    {"mnuDockRight", QT_TRANSLATE_NOOP("ToolMenu", "Dock at the &right"), DockAt<Qt::RightDockWidgetArea>,
     Needs::kNothing},
    {"mnuDockBelow", QT_TRANSLATE_NOOP("ToolMenu", "Dock &below"), DockAt<Qt::BottomDockWidgetArea>,
     Needs::kNothing},
    {"mnuDockLeft", QT_TRANSLATE_NOOP("ToolMenu", "Dock at the &left"), DockAt<Qt::LeftDockWidgetArea>,
     Needs::kNothing},
    {"mnuFloat", QT_TRANSLATE_NOOP("ToolMenu", "&Window of its own"), FloatIt, Needs::kNothing},
    {},
    {"mnuCloseTool", QT_TRANSLATE_NOOP("ToolMenu", "Cl&ose"), CloseIt, Needs::kNothing},
};

constexpr const char* kBar = "mnbTool";
constexpr const char* kOwnMenu = "menTool";
constexpr const char* kOfFrame = "ofFrame";

QString Words(const char* text) { return QCoreApplication::translate("ToolMenu", text); }

// A window may have an action of the same name itself.
QAction* ActionOf(ToolWindow& window, const ToolCommand& command) {
  for (QAction* action : window.findChildren<QAction*>(command.name, Qt::FindDirectChildrenOnly))
    if (action->property(kOfFrame).toBool()) return action;
  return nullptr;
}

bool CanAct(const ToolWindow& window, Needs needs) {
  if (needs == Needs::kNothing) return true;
  if (needs != Needs::kRows && window.HasPicture()) return true;
  return needs != Needs::kPicture && window.TakeRows()->Count() > 0;
}

void RefreshActions(Desk& desk, ToolWindow& window) {
  for (const ToolCommand& command : kOutput)
    if (command.name != nullptr) ActionOf(window, command)->setEnabled(CanAct(window, command.needs));
  const bool docked = DockOf(desk, NumberOf(desk, window)) != nullptr;
  for (const ToolCommand& command : kPlace)
    if (command.name != nullptr && command.act == FloatIt) ActionOf(window, command)->setEnabled(docked);
}

template <typename Commands>
void Fill(QMenu& menu, ToolWindow& window, const Commands& commands) {
  for (const ToolCommand& command : commands)
    command.name == nullptr ? void(menu.addSeparator()) : menu.addAction(ActionOf(window, command));
}

// A hot-key of the letter goes before.
bool IsHotKey(const Desk& desk, const QKeySequence& key) {
  const char letter = static_cast<char>('a' + (key[0].key() - Qt::Key_A));
  const auto& keys = desk.game.screen.HotKeys;
  return std::any_of(keys.begin(), keys.end(), [letter](const HotKey& hot) { return hot.key == letter; });
}

// The keys that nothing in the window has a use for.
class ToolKeys : public QObject {
 public:
  ToolKeys(Desk& desk, ToolWindow& window) : QObject(&window), desk_(desk), window_(window) {
    window.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    for (const ToolCommand& command : kOutput) {
      if (command.key == QKeySequence::UnknownKey || !static_cast<QKeyEvent*>(event)->matches(command.key))
        continue;
      if (IsHotKey(desk_, QKeySequence(command.key)) || !CanAct(window_, command.needs)) return false;
      command.act(desk_, window_);
      return true;
    }
    return false;
  }

 private:
  Desk& desk_;
  ToolWindow& window_;
};

template <typename Commands>
void MakeActions(Desk& desk, ToolWindow& window, const Commands& commands) {
  for (const ToolCommand& command : commands) {
    if (command.name == nullptr) continue;
    QString caption = Words(command.caption);
    if (command.key != QKeySequence::UnknownKey)
      caption += '\t' + QKeySequence(command.key).toString(QKeySequence::NativeText);
    auto* action = new QAction(caption, &window);
    action->setObjectName(command.name);
    action->setProperty(kOfFrame, true);
    QObject::connect(action, &QAction::triggered, &window, [&] { command.act(desk, window); });
  }
}

}  // namespace

QMenu* DockMenu(Desk& desk, ToolWindow& window, QWidget* parent) {
  auto* menu = new QMenu(parent);
  menu->setObjectName("menDock");
  Fill(*menu, window, kOutput);
  menu->addSeparator();
  Fill(*menu, window, kPlace);
  QObject::connect(menu, &QMenu::aboutToShow, &window, [&desk, &window] { RefreshActions(desk, window); });
  return menu;
}

void GiveToolMenu(Desk& desk, ToolWindow& window) {
  MakeActions(desk, window, kOutput);
  MakeActions(desk, window, kPlace);
  new ToolKeys(desk, window);
  QMenu* all = DockMenu(desk, window, &window);
  all->setObjectName(kOwnMenu);
  if (window.contextMenuPolicy() == Qt::DefaultContextMenu) {
    window.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&window, &QWidget::customContextMenuRequested, all,
                     [all, &window](const QPoint& at) { all->popup(window.mapToGlobal(at)); });
  }
  if (window.layout() == nullptr) return;
  // A window that has a menu of its own gets ours behind it, in a dock as well.
  auto* own = qobject_cast<QMenuBar*>(window.layout()->menuBar());
  if (own == nullptr && window.layout()->menuBar() != nullptr) return;
  auto* bar = own != nullptr ? own : new QMenuBar(&window);
  bar->setNativeMenuBar(false);
  const auto title = [own](QString words) { return own != nullptr ? words.remove('&') : words; };
  QMenu* output = bar->addMenu(title(Words(QT_TRANSLATE_NOOP("ToolMenu", "&Output"))));
  QMenu* place = bar->addMenu(title(Words(QT_TRANSLATE_NOOP("ToolMenu", "P&lace"))));
  Fill(*output, window, kOutput);
  Fill(*place, window, kPlace);
  for (QMenu* menu : {output, place})
    QObject::connect(menu, &QMenu::aboutToShow, &window, [&desk, &window] { RefreshActions(desk, window); });
  if (own != nullptr) return;
  bar->setObjectName(kBar);
  window.layout()->setMenuBar(bar);
}

void ShowToolMenu(ToolWindow& window, bool shown) {
  if (auto* bar = window.findChild<QMenuBar*>(kBar, Qt::FindDirectChildrenOnly)) bar->setVisible(shown);
}

// --- At the table's sides.

bool MayDock(const Desk& desk, int number) { return desk.docks != nullptr && DocksAsWell(desk, number); }

namespace {

// In front at the side; one of each group of tabs is.
QList<ToolDock*> InFrontAt(const Desk& desk, Qt::DockWidgetArea side) {
  QList<ToolDock*> docks;
  for (int number = 0; number < kToolWindows; ++number)
    if (ToolDock* dock = DockOf(desk, number);
        dock != nullptr && !dock->isHidden() && dock->IsInFront() && desk.docks->dockWidgetArea(dock) == side)
      docks.append(dock);
  return docks;
}

bool HasRoomFor(const Desk& desk, Qt::DockWidgetArea side, int docks) {
  const bool column = side == Qt::LeftDockWidgetArea || side == Qt::RightDockWidgetArea;
  constexpr int kTitle = 28;
  return column ? docks * (kLeastDock.height() + kTitle) <= desk.docks->height()
                : docks * kLeastDock.width() <= desk.docks->width();
}

ToolDock* MakeDock(Desk& desk, int number) {
  ToolWindow& tool = Tool(desk, number);
  // Where it stands as a window is kept by its hiding.
  tool.hide();
  ShowToolMenu(tool, false);
  auto* dock = new ToolDock(number, tool, desk.docks);
  dock->SetMenu(DockMenu(desk, tool, dock));
  QObject::connect(dock, &ToolDock::floatWanted, desk.window,
                   [&desk, number](std::optional<QPoint> corner) { FloatTool(desk, number, corner); });
  QObject::connect(dock, &ToolDock::cameInFront, desk.window, [&desk, number] { RefreshTool(desk, number); });
  const auto toTheTable = [&desk] { desk.table->setFocus(); };
  QObject::connect(dock, &ToolDock::left, desk.window, toTheTable);
  QObject::connect(dock, &ToolDock::wentBehind, desk.window, [dock, toTheTable] {
    const QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr || dock->isAncestorOf(focus)) toTheTable();
  });
  return dock;
}

}  // namespace

void DockTool(Desk& desk, int number, Qt::DockWidgetArea side) {
  if (!MayDock(desk, number)) return;
  ToolDock* dock = DockOf(desk, number);
  if (dock != nullptr) desk.docks->removeDockWidget(dock);
  const QList<ToolDock*> there = InFrontAt(desk, side);
  if (dock == nullptr) dock = MakeDock(desk, number);
  desk.docks->addDockWidget(side, dock);
  if (!HasRoomFor(desk, side, static_cast<int>(there.size()) + 1) && !there.isEmpty())
    desk.docks->tabifyDockWidget(there.back(), dock);
  dock->show();
  dock->raise();
}

void FloatTool(Desk& desk, int number, std::optional<QPoint> corner) {
  ToolDock* dock = DockOf(desk, number);
  if (dock == nullptr) return;
  const bool open = !dock->isHidden();
  ToolWindow* tool = dock->Release(desk.window);
  desk.docks->removeDockWidget(dock);
  dock->setObjectName({});  // nobody finds it meanwhile
  dock->deleteLater();
  ShowToolMenu(*tool, true);
  SetAccessKeys(*tool, true);
  if (WindowPlace place = tool->Place(); corner && place.Width > 0) {
    place.Left = corner->x();
    place.Top = corner->y();
    tool->SetPlace(place);
  }
  tool->setVisible(open);
}

// --- All of them.

namespace {

QByteArray DigestOf(const QByteArray& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().left(16);
}

struct Arrangement {
  std::set<int> docked;
  QByteArray state;  // of the docks
};

// "6,8 DIGEST STATE", the state in base 64; the digest is of the numbers and the state.
bool ReadArrangement(const Desk& desk, const std::string& text, Arrangement& read) {
  const QList<QByteArray> parts = QByteArray::fromStdString(text).split(' ');
  if (parts.size() != 3 || parts[2].size() > kLongestArrangement) return false;
  for (const QByteArray& part : parts[0].split(',')) {
    bool isNumber = false;
    const int number = part.toInt(&isNumber);
    if (!isNumber || number < 0 || number >= kToolWindows) return false;
    // One of another version of the program is no longer there, or not yet.
    if (MayDock(desk, number)) read.docked.insert(number);
  }
  const auto state = QByteArray::fromBase64Encoding(parts[2], QByteArray::AbortOnBase64DecodingErrors);
  if (!state || DigestOf(parts[0] + *state) != parts[1]) return false;
  read.state = *state;
  return true;
}

}  // namespace

std::string KeptArrangement(const Desk& desk) {
  QByteArrayList docked;
  for (int number = 0; number < kToolWindows; ++number)
    if (DockOf(desk, number) != nullptr) docked.append(QByteArray::number(number));
  if (docked.isEmpty()) return {};
  const QByteArray numbers = docked.join(',');
  const QByteArray state = desk.docks->saveState(kVersion);
  return (numbers + ' ' + DigestOf(numbers + state) + ' ' + state.toBase64()).toStdString();
}

void RestoreArrangement(Desk& desk, const std::string& text) {
  if (desk.docks == nullptr) return;
  Arrangement wanted;
  if (!text.empty() && !ReadArrangement(desk, text, wanted)) wanted = {};
  for (int number = 0; number < kToolWindows; ++number)
    if (!wanted.docked.contains(number)) FloatTool(desk, number);
  for (const int number : wanted.docked)
    if (DockOf(desk, number) == nullptr)
      desk.docks->addDockWidget(Qt::RightDockWidgetArea, MakeDock(desk, number));
  if (wanted.docked.empty() || desk.docks->restoreState(wanted.state, kVersion)) return;
  for (const int number : wanted.docked) FloatTool(desk, number);
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
