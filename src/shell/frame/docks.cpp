#include "shell/frame/docks.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCryptographicHash>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "shell/frame/desk.h"
#include "shell/table/table_widget.h"

namespace tessaryn {
namespace {

constexpr int kLookAgain = 50;  // milliseconds between two looks whether a dragged window has been let go

// What is larger than its dock is scrolled by the mouse; the keys are the table's.
class Room : public QScrollArea {
 public:
  explicit Room(QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setMinimumSize(kLeastDock);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

QToolButton* TitleButton(QWidget* bar, const char* name, const QString& does) {
  auto* button = new QToolButton(bar);
  button->setObjectName(name);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setToolTip(does);
  button->setAccessibleName(does);
  button->setFixedSize(24, 24);
  bar->layout()->addWidget(button);
  return button;
}

// The keys of a window act in a dock only while the keyboard is there; those that a dock can't tell apart
// from the table's don't act.
void KeepKeysInside(ToolWindow& window) {
  for (QAction* action : window.findChildren<QAction*>()) {
    if (action->shortcut().isEmpty() || action->shortcutContext() == Qt::WidgetWithChildrenShortcut) continue;
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    window.addAction(action);
  }
  for (QShortcut* shortcut : window.findChildren<QShortcut*>())
    if (shortcut->context() != Qt::WidgetShortcut) shortcut->setContext(Qt::WidgetWithChildrenShortcut);
  SetAccessKeys(window, false);
}

}  // namespace

void SetAccessKeys(ToolWindow& window, bool act) {
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>())
    if (const QKeySequence key = QKeySequence::mnemonic(button->text()); !key.isEmpty())
      button->setShortcut(act ? key : QKeySequence());
}

DockArea::DockArea(QWidget* table, QWidget* parent) : QMainWindow(parent) {
  setWindowFlags(Qt::Widget);
  setObjectName("frmDocks");
  setContextMenuPolicy(Qt::NoContextMenu);
  setDockOptions(AllowNestedDocks | AllowTabbedDocks);
  setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
  setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
  setCorner(Qt::TopRightCorner, Qt::RightDockWidgetArea);
  setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
  setCorner(Qt::TopLeftCorner, Qt::LeftDockWidgetArea);
  setCentralWidget(table);
}

ToolDock::ToolDock(int number, ToolWindow& window, QWidget* parent)
    : QDockWidget(window.windowTitle(), parent),
      number_(number),
      window_(window),
      flags_(window.windowFlags()) {
  KeepKeysInside(window_);
  setObjectName("dock" + window.objectName());
  auto* room = new Room(nullptr);
  room->setWidget(&window);
  setWidget(room);
  window.show();
  BuildTitle();
  connect(&window, &QWidget::windowTitleChanged, this, [this](const QString& title) {
    setWindowTitle(title);
    title_->setText(title);
  });
  connect(this, &QDockWidget::topLevelChanged, this, [this] { Floated(); });
  connect(this, &QDockWidget::visibilityChanged, this, [this](bool visible) {
    if (std::exchange(inFront_, visible) != visible) emit visible ? cameInFront() : wentBehind();
  });
}

void ToolDock::BuildTitle() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(8, 2, 4, 2);
  row->setSpacing(4);
  title_ = new QLabel(windowTitle(), bar);
  title_->setObjectName("lblDockTitle");
  title_->setTextFormat(Qt::PlainText);
  QFont bold = title_->font();
  bold.setBold(true);
  title_->setFont(bold);
  title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(title_, 1);
  menu_ = TitleButton(bar, "cmdDockMenu", tr("Print, copy, place"));
  menu_->setText(QString(QChar(0x25be)));  // a triangle, in the colour of the words beside it
  auto* floating = TitleButton(bar, "cmdFloat", tr("A window of its own"));
  floating->setIcon(style()->standardIcon(QStyle::SP_TitleBarNormalButton));
  connect(floating, &QToolButton::clicked, this, [this] { emit floatWanted(std::nullopt); });
  auto* away = TitleButton(bar, "cmdCloseDock", tr("Close"));
  away->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  connect(away, &QToolButton::clicked, this, &QWidget::close);
  setTitleBarWidget(bar);
}

void ToolDock::SetMenu(QMenu* menu) {
  connect(menu_, &QToolButton::clicked, menu,
          [this, menu] { menu->popup(menu_->mapToGlobal(QPoint(0, menu_->height()))); });
}

// The way back to the table; the key is for others too.
void ToolDock::keyPressEvent(QKeyEvent* event) {
  QDockWidget::keyPressEvent(event);
  if (event->key() == Qt::Key_Escape) emit left();
}

// Dragged off its side, or sent off by a double click: once the mouse lets go it becomes a true window, if it
// hasn't been put to another side meanwhile.
void ToolDock::Floated() {
  if (!isFloating()) return;
  if (QApplication::mouseButtons() != Qt::NoButton) {
    QTimer::singleShot(kLookAgain, this, [this] { Floated(); });
    return;
  }
  QTimer::singleShot(0, this, [this] {
    if (isFloating()) emit floatWanted(pos());
  });
}

ToolWindow* ToolDock::Release(QWidget* parent) {
  disconnect(&window_, nullptr, this, nullptr);
  window_.hide();
  qobject_cast<QScrollArea*>(widget())->takeWidget();
  window_.setParent(parent, flags_);
  return &window_;
}

// --- One window.

ToolDock* DockOf(const Desk& desk, int number) {
  const ToolWindow* tool = desk.tools[number];
  for (QWidget* above = tool == nullptr || tool->isWindow() ? nullptr : tool->parentWidget();
       above != nullptr; above = above->parentWidget())
    if (auto* dock = qobject_cast<ToolDock*>(above)) return dock;
  return nullptr;
}

}  // namespace tessaryn
