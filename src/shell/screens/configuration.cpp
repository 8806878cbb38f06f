#include "shell/screens/configuration.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDockWidget>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "play/setting_effects.h"
#include "rules/configuration.h"
#include "shell/screens/advantage_page.h"
#include "shell/screens/comps_page.h"
#include "shell/screens/generator_page.h"
#include "shell/screens/house_page.h"
#include "shell/screens/looks_page.h"
#include "shell/screens/payoff_page.h"
#include "shell/screens/probability_page.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

// What a page is made of.
struct ConfigurationScreen::Parts {
  Game& game;
  SettingEditor& editor;
  const SoundShelf& shelf;
  QWidget* parent;
};

// A tab: a page of any kind, and how it is brought to the state.
struct ConfigurationScreen::TabRow {
  const char* page;
  const char* caption;
  QWidget* (*make)(const Parts& parts);
  void (*refresh)(QWidget* page);
};

namespace {

constexpr QSize kFirstSize(900, 560);
constexpr int kTabLetters = 22;
constexpr int kFoundRole = Qt::UserRole;

void RefreshControls(QWidget* page) {
  if (const auto& refresh = static_cast<ControlsPage*>(page)->refresh) refresh();
}

template <class Page>
void RefreshPage(QWidget* page) {
  static_cast<Page*>(page)->Refresh();
}

// Its own name, that of the label beside it, or its text.
QString SpokenName(QWidget* widget) {
  QString name = widget->accessibleName();
  if (name.isEmpty() && widget->parentWidget() != nullptr)
    for (const auto* label : widget->parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
      if (label->buddy() == widget) name = label->text();
  QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
  if (name.isEmpty() && reader != nullptr) name = reader->text(QAccessible::Name);
  return name.remove('&').trimmed();
}

QString GroupOf(const QWidget* widget) {
  for (const QWidget* at = widget; at != nullptr; at = at->parentWidget())
    if (const auto* group = qobject_cast<const QGroupBox*>(at)) return group->title();
  return {};
}

}  // namespace

// A page that needs the game alone, and has Refresh(): one row with these two.
template <class Page>
QWidget* ConfigurationScreen::PageOf(const Parts& parts) {
  return new Page(parts.game, parts.parent);
}

// One that changes settings too.
template <class Page>
QWidget* ConfigurationScreen::EditorOf(const Parts& parts) {
  return new Page(parts.game, parts.editor, parts.parent);
}

// In the order of their list.
std::span<const ConfigurationScreen::TabRow> ConfigurationScreen::Tabs() {
  static const TabRow kTabs[] = {
      {"picHouse", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "House"), EditorOf<HousePage>,
       RefreshPage<HousePage>},
      {"picBets", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Bets"),
       [](const Parts& parts) -> QWidget* { return MakeBetsPage(parts.game, parts.editor, parts.parent); },
       RefreshControls},
      {"picPayoffs", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Payoffs"), EditorOf<PayoffPage>,
       RefreshPage<PayoffPage>},
      {"picAdvantage", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Advantage"),
       EditorOf<AdvantagePage>, RefreshPage<AdvantagePage>},
      {"picComps", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Comps"), EditorOf<CompsPage>,
       RefreshPage<CompsPage>},
      {"picLayout", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Layout"),
       [](const Parts& parts) -> QWidget* { return MakeLayoutPage(parts.game, parts.editor, parts.parent); },
       RefreshControls},
      {"picBankroll", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Bankroll"),
       [](const Parts& parts) -> QWidget* {
         return MakeBankrollPage(parts.game, parts.editor, parts.parent);
       },
       RefreshControls},
      {"picColors", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Colors"), PageOf<LooksPage>,
       RefreshPage<LooksPage>},
      {"picProbability", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Probability"),
       PageOf<Scrolled<ProbabilityPage>>, RefreshPage<Scrolled<ProbabilityPage>>},
      {"picRNG", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Generator"),
       PageOf<Scrolled<GeneratorPage>>, RefreshPage<Scrolled<GeneratorPage>>},
      {"picSound", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Sound"),
       [](const Parts& parts) -> QWidget* {
         return MakeSoundPage(parts.game, parts.editor, parts.shelf, parts.parent);
       },
       RefreshControls},
      {"picMisc", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Misc"),
       [](const Parts& parts) -> QWidget* { return MakeMiscPage(parts.game, parts.editor, parts.parent); },
       RefreshControls},
  };
  return kTabs;
}

ConfigurationScreen::ConfigurationScreen(Game& game, SoundShelf shelf, QWidget* parent)
    : ToolWindow("frmConfigure", parent), game_(game), shelf_(std::move(shelf)) {
  setMinimumSize(480, 320);
  resize(kFirstSize);
  houseBefore_ = game_.table.seats[0].BetDefaultWorking;
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  Build();
}

ConfigurationScreen::~ConfigurationScreen() = default;

void ConfigurationScreen::Build() {
  findable_.clear();
  builtIn_ = font();
  delete body_;
  editor_ = std::make_unique<SettingEditor>(game_);
  QObject::connect(editor_.get(), &SettingEditor::Changed, this, [this] { Refresh(); });
  setWindowTitle(QCoreApplication::translate("tessaryn::ConfigurationScreen", "Configuration"));
  body_ = new QWidget(this);
  layout()->addWidget(body_);
  auto* column = new QVBoxLayout(body_);
  column->setContentsMargins(12, 12, 12, 12);
  column->setSpacing(12);
  auto* row = new QHBoxLayout;
  row->setSpacing(12);
  column->addLayout(row, 1);
  BuildList(*row);
  pages_ = new QStackedWidget(body_);
  row->addWidget(pages_, 1);
  for (const TabRow& tab : Tabs()) {
    QWidget* page = tab.make({game_, *editor_, shelf_, pages_});
    page->setObjectName(tab.page);
    pages_->addWidget(page);
  }
  AddFoot(*column);
  ListTabs();
  ConnectList();
  // A wheel that scrolls the page changes nothing on its way.
  for (QWidget* control : pages_->findChildren<QWidget*>()) {
    if (qobject_cast<QComboBox*>(control) == nullptr && qobject_cast<QSlider*>(control) == nullptr) continue;
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
  }
  for (const TabRow& tab : Tabs()) tab.refresh(pages_->findChild<QWidget*>(tab.page));
  editor_->Refresh();
}

// The search and the list of the pages, or of what was found.
void ConfigurationScreen::BuildList(QBoxLayout& row) {
  auto* left = new QVBoxLayout;
  left->setSpacing(8);
  row.addLayout(left);
  search_ = new QLineEdit(body_);
  search_->setObjectName("txtSearch");
  search_->setPlaceholderText(
      QCoreApplication::translate("tessaryn::ConfigurationScreen", "Search settings"));
  search_->setAccessibleName(search_->placeholderText());
  search_->setClearButtonEnabled(true);
  search_->installEventFilter(this);
  left->addWidget(search_);
  tabs_ = new QListWidget(body_);
  tabs_->setObjectName("lstTabs");
  tabs_->setAccessibleName(QCoreApplication::translate("tessaryn::ConfigurationScreen", "Tabs"));
  tabs_->setTextElideMode(Qt::ElideRight);
  tabs_->setSpacing(2);
  left->addWidget(tabs_, 1);
  const int width = search_->fontMetrics().averageCharWidth() * kTabLetters;
  search_->setFixedWidth(width);
  tabs_->setFixedWidth(width);
}

void ConfigurationScreen::ConnectList() {
  QObject::connect(search_, &QLineEdit::textChanged, this, [this](const QString& words) { Search(words); });
  QObject::connect(search_, &QLineEdit::returnPressed, this, [this] { GoTo(tabs_->currentItem(), true); });
  QObject::connect(tabs_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    if (item != nullptr && listsTabs_) GoTo(item, false);
  });
  QObject::connect(tabs_, &QListWidget::itemClicked, this,
                   [this](QListWidgetItem* item) { GoTo(item, !listsTabs_); });
  QObject::connect(tabs_, &QListWidget::itemActivated, this,
                   [this](QListWidgetItem* item) { GoTo(item, true); });
}

void ConfigurationScreen::AddFoot(QVBoxLayout& column) {
  auto* foot = new QHBoxLayout;
  foot->setSpacing(12);
  column.addLayout(foot);
  waiting_ = new QLabel(body_);
  waiting_->setObjectName("lblWaiting");
  waiting_->setWordWrap(true);
  waiting_->setTextFormat(Qt::PlainText);
  foot->addWidget(waiting_, 1);
  auto* close =
      new QPushButton(QCoreApplication::translate("tessaryn::ConfigurationScreen", "&Close"), body_);
  close->setObjectName("cmdClose");
  close->setAutoDefault(false);
  foot->addWidget(close, 0, Qt::AlignBottom);
  QObject::connect(close, &QPushButton::clicked, this, [this] {
    QDockWidget* dock = Dock();
    dock != nullptr ? static_cast<void>(dock->close()) : setVisible(false);
  });
}

// --- Tabs and search.

void ConfigurationScreen::ListTabs() {
  const QSignalBlocker quiet(tabs_);
  tabs_->clear();
  for (const TabRow& tab : Tabs())
    tabs_->addItem(QCoreApplication::translate("tessaryn::ConfigurationScreen", tab.caption));
  listsTabs_ = true;
  tabs_->setCurrentRow(pages_->currentIndex());
}

// A click on the list is over before its mark goes back to the tab that stays.
void ConfigurationScreen::MarkTab() {
  QMetaObject::invokeMethod(
      this,
      [this] {
        const QSignalBlocker quiet(tabs_);
        if (listsTabs_) tabs_->setCurrentRow(pages_->currentIndex());
      },
      Qt::QueuedConnection);
}

// Everything that can be worked, by what a screen reader says of it and by what `set` calls it.
std::vector<ConfigurationScreen::Found> ConfigurationScreen::Findable() const {
  std::vector<Found> found;
  for (int tab = 0; tab < pages_->count(); ++tab) {
    const QString caption = QCoreApplication::translate("tessaryn::ConfigurationScreen", Tabs()[tab].caption);
    found.push_back({caption, caption, tab, nullptr});
    for (QWidget* control : pages_->widget(tab)->findChildren<QWidget*>()) {
      if ((control->focusPolicy() & Qt::TabFocus) == 0 || control->objectName().startsWith("qt_")) continue;
      const QString name = SpokenName(control);
      const QString group = GroupOf(control);
      if (name.isEmpty()) continue;
      const QString shown = group.isEmpty() || group == name ? name : group + ": " + name;
      found.push_back({shown, shown + " " + control->property("tells").toString(), tab, control});
    }
  }
  return found;
}

void ConfigurationScreen::Search(const QString& words) {
  if (words.trimmed().isEmpty()) return ListTabs();
  if (findable_.empty()) findable_ = Findable();
  const QStringList wanted = words.split(' ', Qt::SkipEmptyParts);
  const QSignalBlocker quiet(tabs_);
  listsTabs_ = false;
  tabs_->clear();
  for (std::size_t n = 0; n < findable_.size(); ++n) {
    const Found& found = findable_[n];
    const auto has = [&found](const QString& word) {
      return found.words.contains(word, Qt::CaseInsensitive);
    };
    if (!std::all_of(wanted.begin(), wanted.end(), has)) continue;
    const bool isTab = found.control == nullptr;
    auto* item = new QListWidgetItem(isTab ? found.shown : QStringLiteral("   ") + found.shown, tabs_);
    item->setToolTip(found.shown);
    item->setData(kFoundRole, static_cast<int>(n) + 1);
  }
  tabs_->setCurrentRow(0);
}

void ConfigurationScreen::GoTo(QListWidgetItem* item, bool intoControl) {
  if (item == nullptr) return;
  const int n = item->data(kFoundRole).toInt();
  const int tab = n == 0 ? tabs_->row(item) : findable_[static_cast<std::size_t>(n) - 1].tab;
  const QPointer<QWidget> control = n == 0 ? nullptr : findable_[static_cast<std::size_t>(n) - 1].control;
  if (!ShowTab(Tabs()[tab].page)) return;
  if (control != nullptr && intoControl) {
    control->setFocus(Qt::ShortcutFocusReason);
    if (auto* area = qobject_cast<QScrollArea*>(pages_->currentWidget())) area->ensureWidgetVisible(control);
  }
}

QString ConfigurationScreen::Tab() const { return pages_->currentWidget()->objectName(); }

bool ConfigurationScreen::ShowTab(const QString& page) {
  auto* wanted = pages_->findChild<QWidget*>(page);
  if (wanted == nullptr) return false;
  if (wanted == pages_->currentWidget()) return true;
  editor_->Commit();
  // What breaks a rule by itself is told as its tab is left.
  for (const SettingControl& control : editor_->Controls()) {
    if (!control.waiting || !control.check || !pages_->currentWidget()->isAncestorOf(control.widget))
      continue;
    const ConfigurationProblem problem = control.check(*control.waiting);
    if (!problem.Found()) continue;
    MarkTab();
    ShowMessage(game_, problem.message, problem.arguments);
    control.widget->setFocus();
    return false;
  }
  pages_->setCurrentWidget(wanted);
  MarkTab();
  Refresh();
  return true;
}

// Up and down walk what was found while the words are typed; Esc ends the search.
bool ConfigurationScreen::eventFilter(QObject* object, QEvent* event) {
  // At a side of the table it is left by that side's own ways, and comes back if it may not.
  if (object == dock_ && event->type() == QEvent::HideToParent)
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (dock_ != nullptr && dock_ == Dock() && dock_->isHidden() && !Leave()) dock_->show();
        },
        Qt::QueuedConnection);
  if (event->type() == QEvent::Wheel && object != search_ && object != dock_ &&
      !static_cast<QWidget*>(object)->hasFocus()) {
    event->ignore();
    return true;
  }
  if (object != search_ || event->type() != QEvent::KeyPress) return ToolWindow::eventFilter(object, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Up || key == Qt::Key_Down) {
    const int row = tabs_->currentRow() + (key == Qt::Key_Up ? -1 : 1);
    if (row >= 0 && row < tabs_->count()) tabs_->setCurrentRow(row);
    return true;
  }
  if (key != Qt::Key_Escape || search_->text().isEmpty()) return ToolWindow::eventFilter(object, event);
  search_->clear();
  return true;
}

// --- Showing and leaving.

void ConfigurationScreen::Refresh() {
  if (std::exchange(refreshing_, true)) return;
  editor_->Refresh();
  Tabs()[pages_->currentIndex()].refresh(pages_->currentWidget());
  ShowWaiting();
  refreshing_ = false;
}

void ConfigurationScreen::ShowWaiting() {
  const SettingEditor::Refusal refusal = editor_->Waits() ? editor_->FindRefusal() : SettingEditor::Refusal();
  QString text;
  if (refusal.Found() && refusal.control != nullptr)
    text = QCoreApplication::translate("tessaryn::ConfigurationScreen", "Not taken yet: %1. %2")
               .arg(refusal.control->caption, FromCore(refusal.text));
  if (waiting_->text() != text) waiting_->setText(text);
}

bool ConfigurationScreen::ApplyAndCheckConfiguration() {
  editor_->Commit();
  SettingEditor::Refusal refusal = editor_->FindRefusal();
  if (!refusal.Found()) {
    // Payoffs are changed where they stand.
    refusal.problem = CheckConfiguration(game_);
    refusal.text = refusal.problem.Found() ? refusal.problem.Text() : "";
  }
  if (refusal.Found()) {
    QWidget* control = refusal.control != nullptr ? refusal.control->widget : nullptr;
    for (int tab = 0; tab < pages_->count(); ++tab) {
      const QWidget* page = pages_->widget(tab);
      const bool payoffs = control == nullptr && page->objectName() == "picPayoffs";
      if (payoffs || (control != nullptr && page->isAncestorOf(control))) pages_->setCurrentIndex(tab);
    }
    search_->clear();
    MarkTab();
    Refresh();
    if (control != nullptr) control->setFocus();
    TellRefusal(game_, refusal);
    return false;
  }
  if (!(std::exchange(houseBefore_, game_.table.seats[0].BetDefaultWorking) ==
        game_.table.seats[0].BetDefaultWorking))
    OfferHouseStandard(game_);
  game_.host->Changed(game_, Change::kSettings);
  return true;
}

void ConfigurationScreen::setVisible(bool visible) {
  if (visible && !isVisible()) houseBefore_ = game_.table.seats[0].BetDefaultWorking;
  if (!visible && isVisible() && isWindow() && !Leave()) return;
  ToolWindow::setVisible(visible);
}

QDockWidget* ConfigurationScreen::Dock() const {
  for (QWidget* above = isWindow() ? nullptr : parentWidget(); above != nullptr;
       above = above->parentWidget())
    if (auto* dock = qobject_cast<QDockWidget*>(above)) return dock;
  return nullptr;
}

bool ConfigurationScreen::Leave() {
  if (std::exchange(leaving_, true)) return true;
  const bool may = ApplyAndCheckConfiguration();
  leaving_ = false;
  return may;
}

void ConfigurationScreen::closeEvent(QCloseEvent* event) {
  if (!isVisible() || Leave()) {
    leaving_ = true;
    ToolWindow::closeEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { leaving_ = false; }, Qt::QueuedConnection);
  } else {
    event->ignore();
  }
}

void ConfigurationScreen::changeEvent(QEvent* event) {
  // Not from within the control that has changed it.
  const bool letters = event->type() == QEvent::FontChange && font() != builtIn_;
  if ((event->type() == QEvent::LanguageChange || letters) && body_ != nullptr)
    QMetaObject::invokeMethod(
        this, [this] { BuildAgain(); }, Qt::QueuedConnection);
  if (event->type() == QEvent::ParentChange && dock_ != Dock()) {
    if (dock_ != nullptr) dock_->removeEventFilter(this);
    dock_ = Dock();
    if (dock_ != nullptr) dock_->installEventFilter(this);
  }
  ToolWindow::changeEvent(event);
}

void ConfigurationScreen::BuildAgain() {
  const QString tab = Tab();
  const QWidget* focus = focusWidget();
  const QString focused = focus != nullptr && body_->isAncestorOf(focus) ? focus->objectName() : QString();
  Build();
  ShowTab(tab);
  if (auto* control = body_->findChild<QWidget*>(focused); control != nullptr && !focused.isEmpty())
    control->setFocus();
}

QList<QStringList> ConfigurationScreen::Rows() const {
  if (const auto* page = dynamic_cast<const PageRows*>(pages_->currentWidget())) return page->Rows();
  QList<QStringList> rows{{QCoreApplication::translate("tessaryn::ConfigurationScreen", "Tab"),
                           QCoreApplication::translate("tessaryn::ConfigurationScreen", "Setting"),
                           QCoreApplication::translate("tessaryn::ConfigurationScreen", "Name"),
                           QCoreApplication::translate("tessaryn::ConfigurationScreen", "Value")}};
  for (const SettingControl& control : editor_->Controls())
    for (int tab = 0; tab < pages_->count(); ++tab)
      if (pages_->widget(tab)->isAncestorOf(control.widget))
        rows.append({QCoreApplication::translate("tessaryn::ConfigurationScreen", Tabs()[tab].caption),
                     control.caption, FromCore(control.setting), FromCore(editor_->ValueOf(control))});
  return rows;
}

}  // namespace tessaryn
