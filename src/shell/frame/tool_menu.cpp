#include "shell/frame/tool_menu.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "shell/frame/desk.h"
#include "shell/frame/docks.h"
#include "shell/frame/exporting.h"
#include "shell/frame/printing.h"
#include "shell/frame/tool_windows.h"
#include "state/game.h"

namespace tessaryn {
namespace {

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

}  // namespace tessaryn
