#include "shell/screens/help_window.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTextBlock>
#include <QTextTable>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "state/game.h"

namespace tessaryn {

namespace {

constexpr int kNarrow = 560;     // below it the page has the window to itself
constexpr int kMostSteps = 200;  // back
constexpr int kLeastSize = -4;
constexpr int kMostSize = 12;  // points more than the desktop's letters
constexpr int kMargin = 16;    // round a page
constexpr int kPlaceRole = Qt::UserRole;
constexpr int kAnchorRole = Qt::UserRole + 1;

// How many points larger its letters are.
int& TextSize(Game& game) { return game.screen.FurtherWindows[7]; }

// The folder of the translated pages; an entry of the translations like any other text.
QString HelpLanguage() {
  //: The folder of the translated help pages: two small letters, as de or fr. Not a word.
  return HelpWindow::tr("en");
}

struct ToolFacts {
  const char* name;
  const char* caption;
  const char* key;
};
constexpr ToolFacts kTools[] = {
    {"mnuBack", QT_TRANSLATE_NOOP("tessaryn::HelpWindow", "Back"), "Alt+Left"},
    {"mnuForward", QT_TRANSLATE_NOOP("tessaryn::HelpWindow", "Forward"), "Alt+Right"},
    {"mnuContents", QT_TRANSLATE_NOOP("tessaryn::HelpWindow", "First page"), "Alt+Home"},
    {"mnuShowContents", QT_TRANSLATE_NOOP("tessaryn::HelpWindow", "Show or hide the contents"), "Ctrl+T"},
    {"mnuSmaller", QT_TRANSLATE_NOOP("tessaryn::HelpWindow", "Smaller letters"), "Ctrl+-"},
    {"mnuLarger", QT_TRANSLATE_NOOP("tessaryn::HelpWindow", "Larger letters"), "Ctrl++"},
    {"mnuFindInPage", QT_TRANSLATE_NOOP("tessaryn::HelpWindow", "Find in this page"), "Ctrl+F"},
    {"mnuPrintPage", QT_TRANSLATE_NOOP("tessaryn::HelpWindow", "Print this page ..."), "Ctrl+P"},
};

// A printer, and a glass over a page: signs that not every font has.
QIcon DrawnIcon(const QString& name, const QPalette& palette) {
  QPixmap picture(32, 32);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 2.5));
  if (name == "mnuPrintPage") {
    painter.drawRect(4, 12, 24, 10);
    painter.drawRect(9, 4, 14, 8);
    painter.fillRect(9, 18, 14, 10, palette.color(QPalette::Button));
    painter.drawRect(9, 18, 14, 10);
  } else {
    painter.drawEllipse(5, 5, 16, 16);
    painter.drawLine(19, 19, 28, 28);
  }
  return QIcon(picture);
}

// What was found: a heading, and below it the words round the first hit.
class HitPainter : public QStyledItemDelegate {
 public:
  explicit HitPainter(QListWidget* list) : QStyledItemDelegate(list), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return TextOf(option, index, {}).size().toSize() + QSize(0, 4);
  }
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem bare = option;
    initStyleOption(&bare, index);
    bare.text.clear();
    list_->style()->drawControl(QStyle::CE_ItemViewItem, &bare, painter, list_);
    const bool chosen = (option.state & QStyle::State_Selected) != 0;
    painter->save();
    painter->translate(option.rect.topLeft());
    QAbstractTextDocumentLayout::PaintContext context;
    QTextDocument& text =
        TextOf(option, index, option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    text.documentLayout()->draw(painter, context);
    painter->restore();
  }

 private:
  QTextDocument& TextOf(const QStyleOptionViewItem& option, const QModelIndex& index,
                        const QColor& color) const {
    const QStringList parts = index.data().toString().split('\n');
    text_.setDefaultFont(option.font);
    text_.setDocumentMargin(6);
    text_.setTextWidth(list_->viewport()->width());
    text_.setHtml(QStringLiteral("<div style=\"color: %1\"><b>%2</b><br>%3</div>")
                      .arg(color.name(), parts.value(0).toHtmlEscaped(), parts.value(1).toHtmlEscaped()));
    return text_;
  }

  QListWidget* list_;
  mutable QTextDocument text_;
};

// How well a place tells of a word: 3 as one of the words that the row of a table is about, 2 within one of
// them, 1 anywhere else.
int TellsOf(const QString& word, const QTextCursor& at) {
  const QTextTable* table = at.currentTable();
  if (table == nullptr || table->columns() < 2 || table->cellAt(at).column() != 0) return 1;
  const QStringList words = at.block().text().split(QStringLiteral(", "));
  const auto same = [&word](const QString& told) {
    return told.section('(', 0, 0).trimmed().compare(word.section('(', 0, 0).trimmed(),
                                                     Qt::CaseInsensitive) == 0;
  };
  return std::any_of(words.begin(), words.end(), same) ? 3 : 2;
}

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

}  // namespace

HelpPageView::HelpPageView(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  setOpenExternalLinks(false);
}

QVariant HelpPageView::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::ImageResource || !picture) return {};
  const QImage image = QImage::fromData(picture(name.toString(QUrl::FullyEncoded)));
  const int room = std::max(160, viewport()->width() - 2 * kMargin - 4);
  return image.width() <= room ? image : image.scaledToWidth(room, Qt::SmoothTransformation);
}

HelpWindow::HelpWindow(Game& game, const QString& folder,
                       std::function<QString(const QString& kind, const QString& what)> live, QWidget* parent)
    : ToolWindow("frmHelp", parent),
      game_(game),
      folder_(folder),
      live_(std::move(live)),
      shelf_(folder_, HelpLanguage()) {
  shelf_.live = live_;
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  BuildTools();
  column->addWidget(tools_);
  parts_ = new QSplitter(Qt::Horizontal, this);
  parts_->setObjectName("splParts");
  parts_->setChildrenCollapsible(false);
  column->addWidget(parts_, 1);
  BuildLeft();
  auto* right = new QWidget(parts_);
  auto* page = new QVBoxLayout(right);
  page->setContentsMargins(0, 0, 0, 0);
  page->setSpacing(0);
  view_ = new HelpPageView(right);
  view_->setObjectName("txtPage");
  view_->setFrameShape(QFrame::NoFrame);
  view_->document()->setDocumentMargin(kMargin);
  view_->picture = [this](const QString& link) { return shelf_.Picture(place_.page, link); };
  view_->installEventFilter(this);
  connect(view_, &QTextBrowser::anchorClicked, this, &HelpWindow::Follow);
  page->addWidget(view_, 1);
  BuildFind();
  page->addWidget(find_);
  parts_->addWidget(right);
  parts_->setStretchFactor(0, 0);
  parts_->setStretchFactor(1, 1);
  resize(860, 620);
  parts_->setSizes({250, 610});
  Retranslate();
}

// --- The controls.

QAction* HelpWindow::AddTool(const char* name, const QString& sign, void (HelpWindow::*act)()) {
  auto* action = new QAction(sign, this);
  action->setObjectName(name);
  connect(action, &QAction::triggered, this, act);
  addAction(action);
  tools_->addAction(action);
  auto* button = tools_->widgetForAction(action);
  button->setObjectName(QString("cmd") + (name + 3));
  button->setFocusPolicy(Qt::TabFocus);
  return action;
}

void HelpWindow::BuildTools() {
  tools_ = new QToolBar(this);
  tools_->setObjectName("barTools");
  AddTool("mnuShowContents", QStringLiteral("\u2630"), &HelpWindow::ToggleContents);
  AddTool("mnuBack", QStringLiteral("\u2190"), &HelpWindow::Back);
  AddTool("mnuForward", QStringLiteral("\u2192"), &HelpWindow::Forward);
  AddTool("mnuContents", QStringLiteral("\u2302"), &HelpWindow::Home);
  search_ = new QLineEdit(tools_);
  search_->setObjectName("txtSearch");
  search_->setClearButtonEnabled(true);
  search_->setMinimumWidth(120);
  search_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  search_->installEventFilter(this);
  connect(search_, &QLineEdit::textChanged, this, &HelpWindow::ShowHits);
  tools_->addWidget(search_);
  AddTool("mnuSmaller", QStringLiteral("A\u2212"), &HelpWindow::Smaller);
  AddTool("mnuLarger", QStringLiteral("A+"), &HelpWindow::Larger);
  AddTool("mnuFindInPage", QString(), &HelpWindow::OpenFind);
  AddTool("mnuPrintPage", QString(), &HelpWindow::PrintPage);
}

void HelpWindow::BuildLeft() {
  left_ = new QStackedWidget(parts_);
  left_->setObjectName("picLeft");
  contents_ = new QTreeWidget(left_);
  contents_->setObjectName("lstContents");
  contents_->setHeaderHidden(true);
  contents_->setFrameShape(QFrame::NoFrame);
  contents_->setMinimumWidth(150);
  connect(contents_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
    const QString page = item->data(0, kPlaceRole).toString();
    if (!page.isEmpty()) Open({page, item->data(0, kAnchorRole).toString(), {}});
  });
  connect(contents_, &QTreeWidget::itemActivated, contents_, &QTreeWidget::itemClicked);
  hits_ = new QListWidget(left_);
  hits_->setObjectName("lstHits");
  hits_->setFrameShape(QFrame::NoFrame);
  hits_->setItemDelegate(new HitPainter(hits_));
  hits_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // its width is that of the texts' lines
  hits_->setResizeMode(QListView::Adjust);
  hits_->setAlternatingRowColors(true);
  hits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(hits_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
    Open({item->data(kPlaceRole).toString(), item->data(kAnchorRole).toString(), {}});
  });
  connect(hits_, &QListWidget::itemActivated, hits_, &QListWidget::itemClicked);
  nothing_ = new QLabel(left_);
  nothing_->setObjectName("lblNothing");
  nothing_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  nothing_->setMargin(12);
  nothing_->setWordWrap(true);
  for (QWidget* part :
       {static_cast<QWidget*>(contents_), static_cast<QWidget*>(hits_), static_cast<QWidget*>(nothing_)})
    left_->addWidget(part);
  parts_->addWidget(left_);
}

void HelpWindow::BuildFind() {
  find_ = new QWidget(this);
  find_->setObjectName("picFind");
  auto* row = new QHBoxLayout(find_);
  row->setContentsMargins(8, 4, 8, 4);
  findText_ = new QLineEdit(find_);
  findText_->setObjectName("txtFind");
  findText_->installEventFilter(this);
  connect(findText_, &QLineEdit::textChanged, this, [this] {
    QTextCursor cursor = view_->textCursor();
    cursor.setPosition(cursor.selectionStart());
    view_->setTextCursor(cursor);
    FindNext();
  });
  connect(findText_, &QLineEdit::returnPressed, this, &HelpWindow::FindNext);
  row->addWidget(findText_, 1);
  const auto button = [&](const char* name, const QString& sign, void (HelpWindow::*act)()) {
    auto* made = new QToolButton(find_);
    made->setObjectName(name);
    made->setText(sign);
    made->setAutoRaise(true);
    made->setFocusPolicy(Qt::StrongFocus);
    connect(made, &QToolButton::clicked, this, act);
    row->addWidget(made);
  };
  button("cmdFindBefore", QStringLiteral("\u2191"), &HelpWindow::FindBefore);
  button("cmdFindNext", QStringLiteral("\u2193"), &HelpWindow::FindNext);
  button("cmdFindClose", QStringLiteral("\u00d7"), &HelpWindow::CloseFind);
  found_ = new QLabel(find_);
  found_->setObjectName("lblFound");
  row->addWidget(found_);
  find_->hide();
}

void HelpWindow::Retranslate() {
  setWindowTitle(tr("Help"));
  tools_->setWindowTitle(tr("Tools"));
  for (const ToolFacts& facts : kTools) {
    const QString caption = tr(facts.caption);
    auto* action = findChild<QAction*>(facts.name);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(caption, QKeySequence(facts.key).toString(QKeySequence::NativeText)));
    tools_->widgetForAction(action)->setAccessibleName(caption);
  }
  search_->setPlaceholderText(tr("Search the help"));
  search_->setAccessibleName(tr("Search the help"));
  contents_->setAccessibleName(tr("Contents"));
  hits_->setAccessibleName(tr("What was found"));
  view_->setAccessibleName(tr("Page"));
  findText_->setPlaceholderText(tr("Find in this page"));
  findText_->setAccessibleName(tr("Find in this page"));
  const std::pair<const char*, QString> buttons[] = {{"cmdFindBefore", tr("The one before")},
                                                     {"cmdFindNext", tr("The next one")},
                                                     {"cmdFindClose", tr("Close")}};
  for (const auto& [name, caption] : buttons) {
    findChild<QToolButton*>(name)->setToolTip(caption);
    findChild<QToolButton*>(name)->setAccessibleName(caption);
  }
  shelf_ = HelpShelf(folder_, HelpLanguage());
  shelf_.live = live_;
  ListContents();
  ShowHits();
  if (!place_.page.isEmpty()) Show(place_, view_->verticalScrollBar()->value());
  ShowTools();
}

void HelpWindow::ShowTools() {
  findChild<QAction*>("mnuBack")->setEnabled(at_ > 0);
  findChild<QAction*>("mnuForward")->setEnabled(at_ + 1 < visited_.size());
  findChild<QAction*>("mnuSmaller")->setEnabled(TextSize(game_) > kLeastSize);
  findChild<QAction*>("mnuLarger")->setEnabled(TextSize(game_) < kMostSize);
}

// --- Contents and search.

void HelpWindow::ListContents() {
  contents_->clear();
  QTreeWidgetItem* heading = nullptr;
  QTreeWidgetItem* above = nullptr;
  for (const HelpEntry& entry : shelf_.Contents()) {
    QTreeWidgetItem* under = entry.level == 0                       ? nullptr
                             : entry.level == 2 && above != nullptr ? above
                                                                    : heading;
    auto* item = under == nullptr ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(under);
    item->setText(0, entry.title);
    item->setToolTip(0, entry.title);
    item->setData(0, kPlaceRole, entry.place.page);
    item->setData(0, kAnchorRole, entry.place.anchor);
    if (entry.level == 0) {
      heading = item;
      QFont bold = item->font(0);
      bold.setBold(true);
      item->setFont(0, bold);
      item->setExpanded(true);
    }
    above = entry.level == 1 ? item : above;
  }
}

// The page that is shown is the current one of the contents.
void HelpWindow::ListChapters() {
  QTreeWidgetItem* best = nullptr;
  for (QTreeWidgetItemIterator at(contents_); *at != nullptr; ++at) {
    if ((*at)->data(0, kPlaceRole).toString() != place_.page) continue;
    const QString anchor = (*at)->data(0, kAnchorRole).toString();
    if (anchor == place_.anchor || (best == nullptr && anchor.isEmpty())) best = *at;
  }
  contents_->setCurrentItem(best);
}

void HelpWindow::ShowHits() {
  const QString typed = search_->text();
  hits_->clear();
  const bool searching = !HelpWords(typed).isEmpty();
  if (searching) {
    for (const HelpHit& hit : shelf_.Search(typed)) {
      const QString head =
          hit.section == hit.page ? hit.page : QStringLiteral("%1 \u2013 %2").arg(hit.section, hit.page);
      auto* item = new QListWidgetItem(head + '\n' + hit.excerpt, hits_);
      item->setData(kPlaceRole, hit.place.page);
      item->setData(kAnchorRole, hit.place.anchor);
    }
    nothing_->setText(
        tr("Nothing was found for \"%1\". Try fewer words, or the beginning of one.").arg(typed));
  }
  left_->setCurrentWidget(!searching            ? static_cast<QWidget*>(contents_)
                          : hits_->count() == 0 ? static_cast<QWidget*>(nothing_)
                                                : static_cast<QWidget*>(hits_));
  left_->setVisible((!hidden_ && width() >= kNarrow) || searching);
  MarkWords();
}

// Where the words that are searched for stand on the page.
void HelpWindow::MarkWords() {
  QList<QTextEdit::ExtraSelection> marks;
  QTextCharFormat format;
  format.setBackground(IsDark(palette()) ? QColor(110, 92, 20) : QColor(255, 236, 150));
  QStringList words = HelpWords(search_->text());
  if (!place_.word.isEmpty()) words.clear();
  for (const QString& word : words) {
    if (word.size() < 2) continue;
    const QRegularExpression begins("\\b" + QRegularExpression::escape(word),
                                    QRegularExpression::CaseInsensitiveOption);
    QTextCursor at(view_->document());
    while (!(at = view_->document()->find(begins, at)).isNull() && marks.size() < 2000)
      marks.append({at, format});
  }
  view_->setExtraSelections(marks);
}

void HelpWindow::OpenSearch() {
  if (place_.page.isEmpty()) Open({kHelpContents, {}, {}});
  search_->setFocus();
  search_->selectAll();
}

// --- Pages.

void HelpWindow::Open(const HelpPlace& wanted) {
  HelpPlace place = shelf_.Has(wanted.page) ? wanted : HelpPlace{kHelpContents, {}, {}};
  place.anchor = shelf_.AnchorHere(place.page, place.anchor);
  if (at_ >= 0) visited_[at_].scrolled = view_->verticalScrollBar()->value();
  if (at_ < 0 || !(visited_[at_].place == place)) {
    visited_.resize(at_ + 1);
    visited_.append({place, -1});
    if (visited_.size() > kMostSteps) visited_.removeFirst();
    at_ = static_cast<int>(visited_.size()) - 1;
  }
  Show(place);
  ShowTools();
}

void HelpWindow::Show(const HelpPlace& place, int scrolled) {
  place_ = place;
  TakeLook();
  const HelpText page = shelf_.Page(place.page, {IsDark(palette())});
  if (page.html.isEmpty())
    view_->setHtml(QStringLiteral("<p>%1</p>")
                       .arg(tr("The pages of the help aren't where the program is. They "
                               "lie in the folder \"docs\" of its source and of its "
                               "packages.")));
  else
    view_->setHtml(page.html);
  if (scrolled >= 0) {
    view_->verticalScrollBar()->setValue(scrolled);
  } else if (!place.word.isEmpty()) {
    ShowWord(place.word);
  } else if (!place.anchor.isEmpty()) {
    view_->scrollToAnchor(place.anchor);
    arrived_ = view_->verticalScrollBar()->value();
    // A window that isn't laid out yet has another height.
    QTimer::singleShot(0, this, [this, place] {
      if (!(place_ == place) || view_->verticalScrollBar()->value() != arrived_) return;
      view_->scrollToAnchor(place.anchor);
      arrived_ = view_->verticalScrollBar()->value();
    });
  } else {
    view_->verticalScrollBar()->setValue(0);
  }
  ListChapters();
  MarkWords();
  if (!place.word.isEmpty()) ShowWord(place.word);
}

void HelpWindow::ShowWord(const QString& word) {
  QTextCursor best;
  int bestTells = 0;
  const QRegularExpression whole("(?<![\\w])" + QRegularExpression::escape(word) + "(?![\\w])",
                                 QRegularExpression::CaseInsensitiveOption);
  for (QTextCursor at = view_->document()->find(whole); !at.isNull();
       at = view_->document()->find(whole, at)) {
    const int tells = TellsOf(word, at);
    if (tells <= bestTells) continue;
    best = at;
    bestTells = tells;
  }
  if (best.isNull()) return;
  QTextCursor top = best;
  top.setPosition(best.selectionStart());
  view_->moveCursor(QTextCursor::End);  // so that the word comes to the top
  view_->setTextCursor(top);
  QTextCharFormat format;
  format.setBackground(IsDark(palette()) ? QColor(110, 92, 20) : QColor(255, 236, 150));
  view_->setExtraSelections({{best, format}});
}

void HelpWindow::Follow(const QUrl& link) {
  const HelpPlace place = shelf_.Resolve(place_.page, link.toString(QUrl::FullyEncoded));
  if (!place.page.isEmpty()) return Open(place);
  const bool web = link.scheme() == QLatin1String("https") || link.scheme() == QLatin1String("http");
  if (!web) return;
  if (openAddress)
    openAddress(link);
  else
    QDesktopServices::openUrl(link);
}

void HelpWindow::Step(int by) {
  const int to = at_ + by;
  if (to < 0 || to >= visited_.size()) return;
  visited_[at_].scrolled = view_->verticalScrollBar()->value();
  at_ = to;
  Show(visited_[to].place, visited_[to].scrolled);
  ShowTools();
}

void HelpWindow::Home() {
  search_->clear();
  Open({kHelpContents, {}, {}});
}

void HelpWindow::ToggleContents() {
  hidden_ = left_->isVisible();
  left_->setVisible(!hidden_);
}

// --- Look.

void HelpWindow::TakeLook() {
  QFont font = this->font();
  font.setPointSizeF(std::max(6.0, font.pointSizeF() + std::clamp(TextSize(game_), kLeastSize, kMostSize)));
  view_->document()->setDefaultFont(font);
  view_->document()->setDefaultStyleSheet(HelpStyle(palette()));
  for (const char* drawn : {"mnuFindInPage", "mnuPrintPage"})
    findChild<QAction*>(drawn)->setIcon(DrawnIcon(drawn, palette()));
}

void HelpWindow::Resize(int by) {
  TextSize(game_) = std::clamp(TextSize(game_) + by, kLeastSize, kMostSize);
  Show(place_, view_->verticalScrollBar()->value());
  ShowTools();
}

void HelpWindow::PrintPage() {
  // In the colours of paper, whatever the desktop's are.
  QTextDocument page;
  page.setDefaultFont(font());
  page.setDefaultStyleSheet(HelpStyle(QPalette(Qt::white)));
  page.setMetaInformation(QTextDocument::DocumentTitle, view_->documentTitle());
  page.setHtml(shelf_.Page(place_.page).html);
  for (const QString& link : shelf_.Page(place_.page).pictures)
    page.addResource(QTextDocument::ImageResource, QUrl(link),
                     QImage::fromData(shelf_.Picture(place_.page, link)));
  if (print) return print(page);
  QPrinter printer;
  QPrintDialog dialog(&printer, this);
  dialog.setWindowTitle(tr("Print"));
  if (dialog.exec() == QDialog::Accepted) page.print(&printer);
}

// --- Find in the page.

void HelpWindow::OpenFind() {
  find_->show();
  findText_->setFocus();
  findText_->selectAll();
}

void HelpWindow::CloseFind() {
  find_->hide();
  view_->setFocus();
}

void HelpWindow::Find(bool backward) {
  const QString text = findText_->text();
  QTextDocument::FindFlags flags;
  if (backward) flags |= QTextDocument::FindBackward;
  bool found = text.isEmpty() || view_->find(text, flags);
  if (!found) {
    view_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    found = view_->find(text, flags);
  }
  found_->setText(found ? QString() : tr("Not on this page"));
}

// --- Keys.

// The tool of a key. The table has some of these keys as well, so they are no shortcuts: both would have it.
QAction* HelpWindow::ToolOf(const QKeyEvent& key) const {
  const int code = key.key() == Qt::Key_Equal ? static_cast<int>(Qt::Key_Plus) : key.key();
  const auto modifiers = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  for (const ToolFacts& facts : kTools)
    if (QKeySequence(facts.key)[0] == QKeyCombination(modifiers, static_cast<Qt::Key>(code)))
      return findChild<QAction*>(facts.name);
  return nullptr;
}

bool HelpWindow::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && ToolOf(*static_cast<QKeyEvent*>(event)) != nullptr) {
    event->accept();
    return true;
  }
  // Shown by the menu of windows, or with the arrangement of last time.
  if (event->type() == QEvent::Show && place_.page.isEmpty()) Open({kHelpContents, {}, {}});
  return ToolWindow::event(event);
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return ToolWindow::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  if (QAction* tool = ToolOf(*key); tool != nullptr) return tool->trigger(), true;
  const bool escape = key->key() == Qt::Key_Escape;
  if (watched == findText_ && escape) return CloseFind(), true;
  if (watched == search_ && escape && !search_->text().isEmpty()) return search_->clear(), true;
  const bool down = key->key() == Qt::Key_Down || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  if (watched == search_ && down && left_->currentWidget() == hits_) {
    hits_->setCurrentRow(0);
    if (key->key() != Qt::Key_Down) emit hits_->itemActivated(hits_->item(0));
    hits_->setFocus();
    return true;
  }
  return ToolWindow::eventFilter(watched, event);
}

// Letters and arrows are the reader's; the table keeps its function keys.
void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (QAction* tool = ToolOf(*event); tool != nullptr) return tool->trigger();
  const bool onTable = qobject_cast<QWidget*>(parent()) != nullptr && !qobject_cast<QDialog*>(parent());
  if (event->key() == Qt::Key_Escape && isWindow()) return hide();
  const bool functionKey = event->key() >= Qt::Key_F1 && event->key() <= Qt::Key_F35;
  if (onTable && (functionKey || (event->key() == Qt::Key_Escape && !isWindow())))
    return ToolWindow::keyPressEvent(event);
  event->accept();
}

void HelpWindow::changeEvent(QEvent* event) {
  ToolWindow::changeEvent(event);
  if (find_ == nullptr) return;
  if (event->type() == QEvent::LanguageChange) Retranslate();
  const bool look = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
  if (look && !place_.page.isEmpty()) Show(place_, view_->verticalScrollBar()->value());
}

// Pictures are made anew for the room that there is now.
void HelpWindow::resizeEvent(QResizeEvent* event) {
  ToolWindow::resizeEvent(event);
  if (event->size().width() != event->oldSize().width() && !place_.page.isEmpty() &&
      !shelf_.Page(place_.page).pictures.isEmpty())
    QTimer::singleShot(0, this, [this, place = place_] {
      const int scrolled = view_->verticalScrollBar()->value();
      // Who hasn't moved since stays at the heading.
      if (place_ == place) Show(place, !place.anchor.isEmpty() && scrolled == arrived_ ? -1 : scrolled);
    });
  const bool searching = left_->currentWidget() != contents_;
  left_->setVisible((!hidden_ && width() >= kNarrow) || searching);
}

}  // namespace tessaryn
