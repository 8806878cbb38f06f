#include "shell/screens/events_log_screen.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/screens/events_log_view.h"
#include "shell/screens/file_chooser.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"
#include "stats/events_log.h"
#include "stats/events_log_copy.h"

namespace tessaryn {

namespace {

const FilePurpose kOpenLog{QT_TRANSLATE_NOOP("Files", "Open Events Log"),
                           QT_TRANSLATE_NOOP("Files", "Events log file (*.txt);;All files (*)"),
                           ".txt",
                           false,
                           false,
                           kEventsLogFolder};
const FilePurpose kSaveLog{QT_TRANSLATE_NOOP("Files", "Save Events Log As"),
                           QT_TRANSLATE_NOOP("Files", "Events log file (*.txt);;All files (*)"),
                           ".txt",
                           true,
                           true,
                           kEventsLogFolder};

constexpr int kSlice = 6;        // milliseconds of work between two looks at the user's events
constexpr int kTurboSlice = 1;   // in a Turbo-Roll, which is not to be slowed
constexpr int kTurboPause = 40;  // and what it has for itself between
constexpr std::int64_t kSearchBytes = 1 << 20;
constexpr qint64 kCountedAtOnce = 32 << 20;  // bytes
constexpr int kShowSaving = 100;             // milliseconds

struct KindRow {
  const char* name;
  unsigned kinds;
};
constexpr int kKindLetters = 36;  // the longest of all languages, with its arrow
constexpr KindRow kKinds[] = {
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Everything"), kLogAllKinds},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Rolls"), kLogKindRoll},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Rolls, passes and misses"),
     kLogKindRoll | kLogKindLine | kLogKindHand},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Bets"), kLogKindBet},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Wins and losses"), kLogKindWin | kLogKindLoss},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Wins"), kLogKindWin},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Losses"), kLogKindLoss},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Bankrolls"), kLogKindBankroll},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "CheckStacks"), kLogKindStack},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Shooters and hands"), kLogKindHand},
    {QT_TRANSLATE_NOOP("tessaryn::EventsLogScreen", "Sessions, players, scripts"), kLogKindPlayer},
};

// How the lines look is kept with the places of the windows.
constexpr int kItalic = 1;
constexpr int kBold = 2;
constexpr int kSizes = 4;  // times 0 normal, 1 smaller, 2 larger
int& FontOptions(Game& game) { return game.screen.FurtherWindows[0]; }

QString Count(qint64 number) { return MoneyText(Currency::Dollars(number)); }

}  // namespace

EventsLogScreen::EventsLogScreen(Game& game, QWidget* parent)
    : ToolWindow("frmEventsLog", parent), game_(game), view_(new EventsLogView(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* bar = new QMenuBar(this);
  bar->setNativeMenuBar(false);
  AddLogMenu(*bar);
  AddFindMenu(*bar);
  AddOptionsMenu(*bar);
  AddFontMenu(*bar);
  column->setMenuBar(bar);
  column->addWidget(MakeFilterRow());
  column->addWidget(MakeFindRow());
  column->addWidget(MakeSaveRow());
  column->addWidget(view_, 1);
  setTabOrder(player_, find_);
  setTabOrder(stop_, view_);
  connect(view_, &RowView::Scrolled, this, &EventsLogScreen::Scrolled);
  connect(&work_, &QTimer::timeout, this, &EventsLogScreen::Work);
  resize(560, 360);
  ApplyFont();
}

QAction* EventsLogScreen::Add(QMenu& menu, const char* name, const QString& caption,
                              void (EventsLogScreen::*act)()) {
  QAction* action = menu.addAction(caption);
  action->setObjectName(name);
  if (act != nullptr) connect(action, &QAction::triggered, this, act);
  return action;
}

void EventsLogScreen::AddFlag(QMenu& menu, const char* name, const QString& caption, bool* flag) {
  QAction* action = Add(menu, name, caption, nullptr);
  action->setCheckable(true);
  options_.append({action, flag});
  connect(action, &QAction::triggered, this, [this, flag] { Toggle(flag); });
}

void EventsLogScreen::AddLogMenu(QMenuBar& bar) {
  QMenu& menu = *bar.addMenu(tr("Lo&g"));
  notWhileSaving_ = {Add(menu, "mnuNew", tr("&New"), &EventsLogScreen::NewLog),
                     Add(menu, "mnuOpen", tr("&Open ..."), &EventsLogScreen::OpenLog),
                     Add(menu, "mnuSaveAs", tr("Save &As ..."), &EventsLogScreen::SaveAs)};
  menu.addSeparator();
  Add(menu, "mnuLookAt", tr("&Look at another log ..."), &EventsLogScreen::LookAtAnother);
  back_ = Add(menu, "mnuBackToLog", tr("&Back to the table's log"), &EventsLogScreen::BackToLog);
}

void EventsLogScreen::AddFindMenu(QMenuBar& bar) {
  QMenu& menu = *bar.addMenu(tr("&Find"));
  const struct {
    const char* name;
    QString caption;
    QKeySequence key;
    void (EventsLogScreen::*act)();
  } rows[] = {{"mnuFind", tr("&Find ..."), QKeySequence("Ctrl+F"), &EventsLogScreen::BeginFind},
              {"mnuFindNext", tr("Find &next"), QKeySequence("Ctrl+G"), &EventsLogScreen::FindNext},
              {"mnuFindPrevious", tr("Find &previous"), QKeySequence("Ctrl+Shift+G"),
               &EventsLogScreen::FindPrevious}};
  for (const auto& row : rows) {
    QAction* action = Add(menu, row.name, row.caption, row.act);
    action->setShortcut(row.key);
    // Docked beside the table the same keys may mean something there.
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
  }
}

void EventsLogScreen::AddOptionsMenu(QMenuBar& bar) {
  QMenu& menu = *bar.addMenu(tr("O&ptions"));
  EventsLog& log = game_.events;
  AddFlag(menu, "mnuRecordEventsActive", tr("Record &events"), &log.RecordEventsActive);
  menu.addSeparator();
  AddFlag(menu, "mnuRecordRolls", tr("&Rolls"), &log.RecordRolls);
  AddFlag(menu, "mnuRecordBetChanges", tr("&Bet changes"), &log.RecordBetChanges);
  AddFlag(menu, "mnuRecordBetsWon", tr("Bets &won"), &log.RecordBetsWon);
  AddFlag(menu, "mnuRecordBetsLost", tr("Bets &lost"), &log.RecordBetsLost);
  AddFlag(menu, "mnuRecordCheckStackChanges", tr("CheckS&tack changes"), &log.RecordCheckStackChanges);
  AddFlag(menu, "mnuRecordPassesMisses", tr("&Passes and misses"), &log.RecordPassesMisses);
  AddFlag(menu, "mnuRecordShooterChanges", tr("S&hooter changes"), &log.RecordShooterChanges);
  AddFlag(menu, "mnuRecordBankrollChanges", tr("Ban&kroll changes"), &log.RecordBankrollChanges);
  Add(menu, "mnuRecordAll", tr("Record &all"), &EventsLogScreen::RecordAll);
  Add(menu, "mnuDeselectAllEvents", tr("&Deselect all"), &EventsLogScreen::RecordNothing);
  menu.addSeparator();
  AddFlag(menu, "mnuClearLog", tr("&Clear log when new sessions start"), &log.ClearLogOnNewSession);
  AddFlag(menu, "mnuKeepLatestRollOnTop", tr("&Scroll new rolls to the top"), &log.KeepLatestRollOnTop);
  followAction_ = Add(menu, "mnuFollow", tr("&Follow the end"), nullptr);
  followAction_->setCheckable(true);
  connect(followAction_, &QAction::triggered, this, &EventsLogScreen::SetFollow);
}

void EventsLogScreen::AddFontMenu(QMenuBar& bar) {
  fontMenu_ = bar.addMenu(tr("Fon&t"));
  const auto add = [&](const char* name, const QString& caption, auto&& change) {
    QAction* action = Add(*fontMenu_, name, caption, nullptr);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, change] {
      change(FontOptions(game_));
      ApplyFont();
    });
    return action;
  };
  add("mnuFontItalic", tr("&Italic"), [](int& options) { options ^= kItalic; });
  add("mnuFontBold", tr("&Bold"), [](int& options) { options ^= kBold; });
  fontMenu_->addSeparator();
  auto* sizes = new QActionGroup(this);
  int size = 0;
  for (const auto& [name, caption] :
       {std::pair{"mnuFontSize0", tr("&Smaller")}, std::pair{"mnuFontSize1", tr("&Normal")},
        std::pair{"mnuFontSize2", tr("&Larger")}}) {
    const int code = size == 0 ? 1 : size == 1 ? 0 : 2;
    sizes->addAction(
        add(name, caption, [code](int& options) { options = options % kSizes + code * kSizes; }));
    ++size;
  }
}

// The button has one width whatever it says.
void EventsLogScreen::Retranslate() {
  int widest = 0;
  for (const QString& caption : {tr("In&active"), tr("&Active")})
    widest = std::max(widest, record_->fontMetrics().horizontalAdvance(caption));
  record_->setFixedWidth(widest + 32);
}

QWidget* EventsLogScreen::MakeFilterRow() {
  auto* row = new QWidget(this);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(8, 4, 8, 4);
  line->setSpacing(8);
  record_ = new QPushButton(row);
  record_->setObjectName("cmdRecordEvents");
  record_->setCheckable(true);
  Retranslate();
  connect(record_, &QPushButton::clicked, this, [this] { Toggle(&game_.events.RecordEventsActive); });
  kind_ = new QComboBox(row);
  kind_->setObjectName("cmbKind");
  kind_->setAccessibleName(tr("Kind of lines shown"));
  for (const KindRow& kind : kKinds) kind_->addItem(tr(kind.name), kind.kinds);
  player_ = new QComboBox(row);
  player_->setObjectName("cmbPlayer");
  player_->setAccessibleName(tr("Player whose lines are shown"));
  for (QComboBox* box : {kind_, player_}) {
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(7);
    box->setMaxVisibleItems(12);
    connect(box, &QComboBox::activated, this, &EventsLogScreen::ChangeFilter);
  }
  kind_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  kind_->setMaximumWidth(kind_->fontMetrics().averageCharWidth() * kKindLetters);
  place_ = new QLabel(row);
  place_->setObjectName("lblPlace");
  place_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  place_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  line->addWidget(record_);
  line->addWidget(kind_, 2);
  line->addWidget(player_);
  line->addWidget(place_, 1);
  return row;
}

QWidget* EventsLogScreen::MakeFindRow() {
  findRow_ = new QWidget(this);
  auto* line = new QHBoxLayout(findRow_);
  line->setContentsMargins(8, 0, 8, 4);
  line->setSpacing(8);
  find_ = new QLineEdit(findRow_);
  find_->setObjectName("txtFind");
  find_->setAccessibleName(tr("Text to find"));
  find_->setPlaceholderText(tr("Text to find"));
  find_->setClearButtonEnabled(true);
  connect(find_, &QLineEdit::returnPressed, this, &EventsLogScreen::FindNext);
  const auto button = [&](const char* name, const QString& text, const QString& says) {
    auto* made = new QToolButton(findRow_);
    made->setObjectName(name);
    made->setText(text);
    made->setToolTip(says);
    made->setAccessibleName(says);
    made->setFocusPolicy(Qt::StrongFocus);
    return made;
  };
  auto* previous = button("cmdFindPrevious", tr("Previous"), tr("Find previous"));
  auto* next = button("cmdFindNext", tr("Next"), tr("Find next"));
  stop_ = button("cmdStopFind", tr("Stop"), tr("Stop the search"));
  stop_->hide();
  progress_ = new QLabel(findRow_);
  progress_->setObjectName("lblProgress");
  connect(previous, &QToolButton::clicked, this, &EventsLogScreen::FindPrevious);
  connect(next, &QToolButton::clicked, this, &EventsLogScreen::FindNext);
  connect(stop_, &QToolButton::clicked, this, &EventsLogScreen::EndFind);
  for (QWidget* part : std::initializer_list<QWidget*>{find_, previous, next, stop_, progress_})
    line->addWidget(part, part == find_ ? 1 : 0);
  findRow_->hide();
  return findRow_;
}

QWidget* EventsLogScreen::MakeSaveRow() {
  saveRow_ = new QWidget(this);
  auto* line = new QHBoxLayout(saveRow_);
  line->setContentsMargins(8, 0, 8, 4);
  line->setSpacing(8);
  saved_ = new QProgressBar(saveRow_);
  saved_->setObjectName("barSaving");
  saved_->setAccessibleName(tr("Saving the log ..."));
  auto* cancel = new QPushButton(tr("Cancel"), saveRow_);
  cancel->setObjectName("cmdCancelSaving");
  connect(cancel, &QPushButton::clicked, this, [this] { saving_.Cancel(); });
  line->addWidget(new QLabel(tr("Saving the log ..."), saveRow_));
  line->addWidget(saved_, 1);
  line->addWidget(cancel);
  saveRow_->hide();
  connect(&showSaving_, &QTimer::timeout, this, &EventsLogScreen::ShowSaving);
  connect(&saving_, &LongWork::Ended, this, [this] {
    showSaving_.stop();
    ShowSaving();
    Refresh();
  });
  return saveRow_;
}

// A log that is soon copied needs no row for it.
void EventsLogScreen::ShowSaving() {
  saveRow_->setVisible(saving_.IsOn());
  saved_->setValue(saving_.Percent());
  for (QAction* action : notWhileSaving_) action->setEnabled(!saving_.IsOn());
}

// --- What is shown.

std::string EventsLogScreen::PathShown() const { return looking_.empty() ? EventsLogPath(game_) : looking_; }

void EventsLogScreen::Open() {
  EndFind();
  FlushEventsLog(game_);
  const std::string path = PathShown();
  if (!QFileInfo::exists(FromCore(path))) {
    view_->Close();
    return;
  }
  std::string reference;
  if (looking_.empty() && !filter_.IsOn()) {
    // The count makes an index that is missing, which takes its time for a large log; that one's view makes
    // its own.
    if (QFileInfo(FromCore(path)).size() <= kCountedAtOnce) EventsLogLineCount(game_);
    if (EventsIndexFits(game_)) reference = EventsIndexPath(game_);
  }
  const std::string error = view_->Open(path, reference, filter_);
  if (!error.empty() && !looking_.empty()) {
    looking_.clear();
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kOpenLog)), With<"problem">(error));
    return Open();
  }
  topShown_ = 0;
  toEnd_ = follow_;
  if (looking_.empty() && !filter_.IsOn()) FollowTable();
}

// The table moves its own log's top line with the rolls.
void EventsLogScreen::FollowTable() {
  const std::int64_t top = game_.events.EventsLogTopLine;
  if (follow_ || top == topShown_) return;
  topShown_ = top;
  view_->ShowOnTop(PlaceOfLogRow(view_->Index(), top));
}

void EventsLogScreen::Refresh() {
  const bool same = view_->Index().Path == PathShown() && view_->Index().Filter == filter_;
  const std::int64_t size = view_->Index().Size;
  if (!same || !view_->Look()) Open();
  const bool grown = view_->Index().Size != size;
  const bool own = looking_.empty();
  if (own && !filter_.IsOn()) FollowTable();
  if (grown && (follow_ || (own && filter_.IsOn() && game_.events.KeepLatestRollOnTop))) toEnd_ = true;
  if (toEnd_ && IsLogIndexComplete(view_->Index())) {
    toEnd_ = false;
    view_->ShowEnd();
  }
  if (!IsLogIndexComplete(view_->Index()) && !work_.isActive()) work_.start(0);
  ListPlayers();
  ShowState();
}

void EventsLogScreen::Scrolled() {
  if (follow_ && !view_->IsAtEnd()) SetFollow(false);
  toEnd_ = follow_;
  if (looking_.empty() && !filter_.IsOn() && view_->Top().Exact)
    topShown_ = game_.events.EventsLogTopLine = static_cast<std::int32_t>(view_->Top().Row);
  ShowPlace();
}

void EventsLogScreen::SetFollow(bool on) {
  follow_ = on;
  if (on) {
    view_->ShowEnd();
    toEnd_ = !IsLogIndexComplete(view_->Index());
  }
  ShowState();
}

void EventsLogScreen::ChangeFilter() {
  filter_.Kinds = kind_->currentData().toUInt();
  filter_.Player = player_->currentIndex() <= 0 ? "" : player_->currentText().toStdString();
  Refresh();
}

// Those at the table, and one who was chosen and has left.
void EventsLogScreen::ListPlayers() {
  QStringList names{tr("All players")};
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(game_.table, seat)) names.append(FromCore(game_.table.seats[seat].SeatName));
  const QString chosen = FromCore(filter_.Player);
  if (!chosen.isEmpty() && !names.contains(chosen)) names.append(chosen);
  QStringList listed;
  for (int i = 0; i < player_->count(); ++i) listed.append(player_->itemText(i));
  if (listed == names) return;
  player_->clear();
  player_->addItems(names);
  player_->setCurrentIndex(
      std::max<int>(0, chosen.isEmpty() ? 0 : static_cast<int>(names.indexOf(chosen, 1))));
}

void EventsLogScreen::ApplyFont() {
  const int options = FontOptions(game_);
  QFont font = this->font();
  font.setItalic((options & kItalic) != 0);
  font.setBold((options & kBold) != 0);
  const int size = std::clamp(options / kSizes, 0, 2);
  if (font.pointSizeF() > 0) font.setPointSizeF(font.pointSizeF() + (size == 1 ? -1 : size == 2 ? 3 : 0));
  view_->setFont(font);
  for (QAction* action : fontMenu_->actions()) {
    const QString name = action->objectName();
    if (name == "mnuFontItalic") action->setChecked(font.italic());
    if (name == "mnuFontBold") action->setChecked(font.bold());
    if (name.startsWith("mnuFontSize"))
      action->setChecked(name.endsWith(size == 1 ? '0' : size == 0 ? '1' : '2'));
  }
}

void EventsLogScreen::ShowState() {
  for (const Option& option : options_) option.action->setChecked(*option.flag);
  followAction_->setChecked(follow_);
  const bool active = game_.events.RecordEventsActive;
  record_->setChecked(active);
  record_->setText(active ? tr("&Active") : tr("In&active"));
  record_->setToolTip(active ? tr("Events are recorded") : tr("Events are not recorded"));
  back_->setEnabled(!looking_.empty());
  const QString file = QFileInfo(FromCore(PathShown())).fileName();
  const QString title = !looking_.empty()           ? tr("Events Log (%1, only looked at)").arg(file)
                        : game_.events.Path.empty() ? tr("Events Log")
                                                    : tr("Events Log (%1)").arg(file);
  if (title != windowTitle()) setWindowTitle(title);
  ShowPlace();
}

void EventsLogScreen::ShowPlace() {
  const LogIndex& index = view_->Index();
  const bool complete = IsLogIndexComplete(index);
  QString text = view_->Rows() == 0 ? tr("No lines")
                 : view_->Top().Exact
                     ? tr("Line %1 of %2").arg(Count(view_->TopRow()), Count(view_->Rows()))
                     : tr("About line %1 of %2").arg(Count(view_->TopRow()), Count(view_->Rows()));
  if (!complete && index.Size > 0) text = tr("%1 (%2% read)").arg(text).arg(100 * index.Scanned / index.Size);
  place_->setToolTip(text);
  place_->setAccessibleName(text);
  // Narrow it has room for the numbers alone.
  const bool fits = place_->fontMetrics().horizontalAdvance(text) <= place_->width();
  place_->setText(fits || view_->Rows() == 0 ? text : Count(view_->TopRow()));
}

namespace {

// A few lines at a time, as they are asked for.
struct LogLines : RowSource {
  LogLines(const LogIndex& shown, qint64 lines, const QString& title)
      : index(shown), count(lines), heading(title) {}
  qint64 Count() const override { return count + 1; }
  QStringList Row(qint64 n) const override {
    if (n <= 0) return {heading};
    if (n < first || n >= first + static_cast<qint64>(read.size())) {
      first = n;
      read = ReadLogRows(index, PlaceOfLogRow(index, n), 500);
    }
    return read.empty() ? QStringList{""}
                        : QStringList{FromCore(read[static_cast<std::size_t>(n - first)].Text)};
  }

  const LogIndex& index;
  qint64 count;
  QString heading;
  mutable qint64 first = 0;
  mutable std::vector<LogRow> read;
};

}  // namespace

std::unique_ptr<RowSource> EventsLogScreen::TakeRows() const {
  const LogIndex& index = view_->Index();
  const qint64 known = IsLogIndexComplete(index) ? LogRows(index) : index.Rows;
  return std::make_unique<LogLines>(index, known, tr("Events"));
}

QStringList EventsLogScreen::PrintHeadings() const {
  return {tr("Tessaryn Events Log"), FromCore(PathShown())};
}

// --- Commands.

void EventsLogScreen::Toggle(bool* flag) {
  *flag = !*flag;
  if (flag == &game_.events.RecordEventsActive && !*flag) FlushEventsLog(game_);
  Refresh();
}

void EventsLogScreen::RecordAll() {
  RecordAllEvents(game_.events, true);
  ShowState();
}

void EventsLogScreen::RecordNothing() {
  RecordAllEvents(game_.events, false);
  ShowState();
}

void EventsLogScreen::NewLog() {
  looking_.clear();
  if (NewEventsLog(game_) == NewEvents::kRenameFirst) SaveAsChosen([this] { StartEventsLog(game_); });
  Refresh();
}

void EventsLogScreen::OpenLog() {
  const std::string path = ChooseFile(game_, this, kOpenLog);
  if (path.empty()) return;
  std::string error;
  looking_.clear();
  if (!OpenEventsLog(game_, path, error))
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kOpenLog)), With<"problem">(error));
  Open();
  Refresh();
}

// One that takes long is copied beside the window, which goes on.
void EventsLogScreen::SaveAsChosen(std::function<void()> then) {
  const std::string path = ChooseFile(game_, this, kSaveLog);
  if (path.empty()) return;
  const auto ended = [this, then = std::move(then)](const std::string& error) {
    if (error.empty()) return then();
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kSaveLog)), With<"problem">(error));
  };
  FlushEventsLog(game_);
  const qint64 bytes = QFileInfo(FromCore(EventsLogPath(game_))).size();
  if (bytes <= kCountedAtOnce || IsSameFile(path, EventsLogPath(game_))) {
    std::string error;
    SaveEventsLogAs(game_, path, error);
    return ended(error);
  }
  const auto copy = std::make_shared<EventsLogCopy>();
  copy->From = EventsLogPath(game_);
  copy->To = path;
  saving_.Begin(
      tr("Saving the log ..."), bytes,
      [copy](const LongWork::GoOn& goOn) { return CopyEventsLog(*copy, goOn); },
      [this, copy, ended](const std::string& problem) {
        const std::string error = problem.empty() ? UseEventsLogCopy(game_, *copy) : problem;
        // Of a log that began anew meanwhile the copy is all that there is to it.
        if (!error.empty() || EventsLogPath(game_) == copy->To) ended(error);
      });
  showSaving_.start(kShowSaving);
  ShowSaving();
}

void EventsLogScreen::SaveAs() {
  looking_.clear();
  SaveAsChosen([] {});
  Refresh();
}

void EventsLogScreen::LookAt(const std::string& path) {
  looking_ = path == EventsLogPath(game_) ? "" : path;
  Open();
  Refresh();
}

void EventsLogScreen::LookAtAnother() {
  if (const std::string path = ChooseFile(game_, this, kOpenLog); !path.empty()) LookAt(path);
}

void EventsLogScreen::BackToLog() { LookAt({}); }

// --- Finding.

void EventsLogScreen::BeginFind() {
  findRow_->show();
  find_->setFocus();
  find_->selectAll();
}

void EventsLogScreen::FindNext() { Find(true); }
void EventsLogScreen::FindPrevious() { Find(false); }

void EventsLogScreen::Find(bool forward) {
  if (find_->text().isEmpty()) return BeginFind();
  findRow_->show();
  view_->SetMarked(find_->text());
  search_ = BeginLogSearch(view_->Index(), find_->text().toStdString(), view_->Top().Begin, forward);
  searching_ = true;
  stop_->show();
  work_.start(0);
}

void EventsLogScreen::EndFind() {
  searching_ = false;
  if (stop_->hasFocus()) find_->setFocus();
  stop_->hide();
  progress_->clear();
}

void EventsLogScreen::Work() {
  const bool turbo = game_.table.TurboRollActive;
  work_.setInterval(turbo ? kTurboPause : 0);
  const int slice = turbo ? kTurboSlice : kSlice;
  const bool wasComplete = IsLogIndexComplete(view_->Index());
  const bool more = !wasComplete && view_->ReadOn(slice);
  if (!wasComplete) ShowPlace();
  if (!more && toEnd_) {
    toEnd_ = false;
    view_->ShowEnd();
    ShowPlace();
  }
  if (!searching_) return more ? void() : work_.stop();
  // A hit behind the rows that are known would have no place.
  if (more && filter_.IsOn()) return;
  QElapsedTimer clock;
  clock.start();
  SearchStep found = SearchStep::kGoesOn;
  while (found == SearchStep::kGoesOn && clock.elapsed() < slice)
    found = StepLogSearch(view_->Index(), search_, kSearchBytes);
  if (found == SearchStep::kGoesOn) {
    const std::int64_t size = std::max<std::int64_t>(view_->Index().Size, 1);
    progress_->setText(tr("%1%").arg(100 * (search_.Forward ? search_.At : size - search_.At) / size));
    return;
  }
  EndFind();
  if (found == SearchStep::kFound) {
    if (follow_) SetFollow(false);
    view_->ShowOnTop(PlaceOfLogByte(view_->Index(), search_.Found));
    return Scrolled();
  }
  ShowMessage<Msg::kTextNotFound>(game_);
}

void EventsLogScreen::keyPressEvent(QKeyEvent* event) {
  const bool escape = event->key() == Qt::Key_Escape;
  if (escape && searching_) return EndFind();
  if (escape && findRow_->isVisible()) {
    findRow_->hide();
    view_->SetMarked({});
    view_->setFocus();
    return;
  }
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && find_->hasFocus()) return;  // it has been heard
  ToolWindow::keyPressEvent(event);
}

void EventsLogScreen::resizeEvent(QResizeEvent* event) {
  ToolWindow::resizeEvent(event);
  ShowPlace();
}

void EventsLogScreen::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) {
    EndFind();
    work_.stop();
  }
  ToolWindow::hideEvent(event);
}

}  // namespace tessaryn
