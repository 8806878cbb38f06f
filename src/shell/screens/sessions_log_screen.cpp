#include "shell/screens/sessions_log_screen.h"

#include <QActionGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <algorithm>

#include "base/interrupts.h"
#include "shell/screens/core_words.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/sessions_log_histogram.h"
#include "shell/screens/sessions_log_rows.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {

constexpr int kSliderSteps = 1'000;
constexpr int kLeastForFigures = 300;  // below, as at a side of the table, the histogram has the room
constexpr int kWide = 680;             // from here on the figures stand beside the histogram
constexpr std::int64_t kUsualDeviations = 3;

QString Count(std::int64_t number) { return MoneyText(Currency::Dollars(number)); }
QString ShareOf(std::int64_t count, std::int64_t of) {
  return FigureInHabit(QString::fromStdString(ShareText(count, of)));
}
QString Number(Currency value) { return InHabit(QString::fromStdString(SessionsNumber(value))); }

QLabel* Figure(const QString& name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

}  // namespace

// --- The window.

SessionsLogScreen::SessionsLogScreen(Game& game, QWidget* parent)
    : ToolWindow("frmSessions", parent), game_(game) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* bar = new QMenuBar(this);
  bar->setNativeMenuBar(false);
  AddMenus(*bar);
  column->setMenuBar(bar);
  column->addWidget(MakeChoices());
  column->addWidget(MakeWait());
  pages_ = new QStackedWidget(this);
  pages_->setObjectName("picSessions");
  histogram_ = new SessionsHistogram(pages_);
  rows_ = new SessionsRows(pages_);
  pages_->addWidget(histogram_);
  pages_->addWidget(rows_);
  current_ = new QLabel(this);
  current_->setObjectName("lblCurrent");
  current_->setContentsMargins(8, 0, 8, 0);
  left_ = new QBoxLayout(QBoxLayout::TopToBottom);
  left_->setSpacing(4);
  left_->addWidget(pages_, 1);
  left_->addWidget(current_);
  side_ = new QBoxLayout(QBoxLayout::TopToBottom);
  side_->setContentsMargins(8, 4, 8, 8);
  side_->setSpacing(12);
  side_->addWidget(figures_ = MakeStatistics());
  lower_ = new QWidget(this);
  lowerRow_ = new QBoxLayout(QBoxLayout::LeftToRight, lower_);
  lowerRow_->setContentsMargins(0, 0, 0, 0);
  lowerRow_->setSpacing(12);
  lowerRow_->addWidget(MakeClasses());
  lowerRow_->addWidget(MakeOutliers());
  body_ = new QBoxLayout(QBoxLayout::LeftToRight);
  body_->setSpacing(0);
  body_->addLayout(left_, 1);
  body_->addLayout(side_);
  Arrange(true);
  column->addLayout(body_, 1);
  rows_->read = [this](qint64 first, int count) {
    std::vector<SessionsRow> rows;
    // Before the figures of this choice are there, the sessions are.
    SessionsStatistics none;
    none.Query = QueryOf(game_.sessions);
    none.Query.Outliers = OutlierRule::kNone;
    const std::int64_t top = std::exchange(game_.sessions.SessionsTopRow, first);
    ReadSessionsRows(game_, IsAsked(*result_) ? result_->statistics : none, static_cast<std::size_t>(count),
                     rows);
    game_.sessions.SessionsTopRow = top;
    return rows;
  };
  connect(rows_, &RowView::Scrolled, this, [this] { game_.sessions.SessionsTopRow = rows_->TopRow(); });
  connect(histogram_, &SessionsHistogram::Pointed, this, &SessionsLogScreen::ShowPointed);
  connect(&pass_, &LongWork::Ended, this, &SessionsLogScreen::PassEnded);
  connect(&search_, &LongWork::Ended, this, &SessionsLogScreen::FindEnded);
  connect(&change_, &LongWork::Ended, this, &SessionsLogScreen::Recompute);
  connect(&look_, &QTimer::timeout, this, [this] {
    if (!pass_.IsOn() && !search_.IsOn() && !change_.IsOn()) look_.stop();
    if (!pass_.IsOn()) Compute();
    ShowWait();
  });
  // The arrangement follows the size, and not the size the arrangement.
  column->setSizeConstraint(QLayout::SetNoConstraint);
  setMinimumSize(minimumSizeHint());
  resize(760, 460);
}

SessionsLogScreen::~SessionsLogScreen() {
  if (pass_.IsOn()) game_.sessions.Files.Calculating = false;
}

QAction* SessionsLogScreen::Add(QMenu& menu, const char* name, const QString& caption,
                                void (SessionsLogScreen::*act)()) {
  QAction* action = menu.addAction(caption);
  action->setObjectName(name);
  if (act != nullptr) connect(action, &QAction::triggered, this, act);
  if (act != nullptr && act != &SessionsLogScreen::AskBreakPoint) needSeat_.append(action);
  return action;
}

void SessionsLogScreen::AddMenus(QMenuBar& bar) {
  using Self = SessionsLogScreen;
  QMenu& log = *bar.addMenu(tr("Lo&g"));
  Add(log, "mnuNew", tr("&New"), &Self::NewLog);
  Add(log, "mnuNewAll", tr("N&ew (all players)"), &Self::NewAllLogs);
  Add(log, "mnuOpen", tr("&Open ..."), &Self::OpenLog);
  Add(log, "mnuSaveAs", tr("Save &As ..."), &Self::SaveAs);
  Add(log, "mnuMerge", tr("&Merge ..."), &Self::Merge);
  log.addSeparator();
  Add(log, "mnuDelete", tr("&Delete ..."), &Self::DeleteSome);
  Add(log, "mnuDeleteAll", tr("Delete a&ll ..."), &Self::DeleteAll);
  QMenu& find = *bar.addMenu(tr("&Find"));
  const struct {
    const char* name;
    QString caption;
    const char* key;
    void (Self::*act)();
  } rows[] = {{"mnuFind", tr("&Find ..."), "Ctrl+F", &Self::Find},
              {"mnuFindNext", tr("Find &next"), "Ctrl+G", &Self::FindNext},
              {"mnuFindPrevious", tr("Find &previous"), "Ctrl+Shift+G", &Self::FindPrevious}};
  for (const auto& row : rows) {
    QAction* action = Add(find, row.name, row.caption, row.act);
    action->setShortcut(QKeySequence(row.key));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
  }
  QMenu& options = *bar.addMenu(tr("O&ptions"));
  Add(options, "mnuSetBreakPoint", tr("Set &break-point ..."), &Self::AskBreakPoint);
  QMenu& width = *options.addMenu(tr("Graph bar &width"));
  width.menuAction()->setObjectName("mnuSetGraphBarWidth");
  auto* group = new QActionGroup(this);
  const QString captions[] = {tr("&Fine"), tr("&Medium"), tr("&Wide"), tr("&Extra wide")};
  for (int i = 0; i < 4; ++i) {
    QAction* action = Add(width, qPrintable(QString("mnuGraphBarWidth%1").arg(i)), captions[i], nullptr);
    action->setCheckable(true);
    group->addAction(action);
    widths_.append(action);
    connect(action, &QAction::triggered, this, [this, i] {
      game_.sessions.GraphBarWidth = i;
      ShowAll();
    });
  }
  curve_ = Add(options, "mnuNormalCurve", tr("&Normal curve"), nullptr);
  curve_->setCheckable(true);
  curve_->setChecked(true);
  connect(curve_, &QAction::triggered, this, [this] { ShowAll(); });
}

QWidget* SessionsLogScreen::MakeChoices() {
  auto* row = new QWidget(this);
  choices_ = new QBoxLayout(QBoxLayout::LeftToRight, row);
  choices_->setContentsMargins(8, 4, 8, 4);
  choices_->setSpacing(8);
  auto* line = new QHBoxLayout;
  line->setSpacing(8);
  player_ = new QComboBox(row);
  player_->setObjectName("cmbPlayer");
  player_->setAccessibleName(tr("Player"));
  stat_ = new QComboBox(row);
  stat_->setObjectName("cmbStat");
  stat_->setAccessibleName(tr("Measure"));
  stat_->setMaxVisibleItems(kSessionMeasures);
  for (int measure = 0; measure < kSessionMeasures; ++measure)
    stat_->addItem(CoreWords(std::string(MeasureName(measure))));
  for (QComboBox* box : {player_, stat_}) {
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(box == stat_ ? 14 : 6);
    line->addWidget(box, box == stat_ ? 2 : 1);
  }
  auto* modes = new QHBoxLayout;
  modes->setSpacing(16);
  choices_->addLayout(line, 1);
  choices_->addLayout(modes);
  connect(player_, &QComboBox::activated, this, [this] {
    game_.sessions.SessionsSeat = player_->currentData().toInt();
    game_.sessions.SessionsTopRow = 1;
    Recompute();
  });
  connect(stat_, &QComboBox::activated, this, [this](int measure) {
    if (measure == game_.sessions.SessionsStat) return;
    game_.sessions.SessionsStat = measure;
    // Limits by value are those of another measure.
    if (game_.sessions.Outliers == OutlierRule::kByValue) game_.sessions.Outliers = OutlierRule::kNone;
    Recompute();
  });
  const QString captions[] = {tr(" Histogram"), tr(" Data")};
  for (int mode = 0; mode < 2; ++mode) {
    display_[mode] = new QRadioButton(captions[mode], row);
    display_[mode]->setObjectName(QString("optDisplay%1").arg(mode));
    modes->addWidget(display_[mode]);
    connect(display_[mode], &QRadioButton::clicked, this, [this, mode] {
      game_.sessions.SessionsDisplayMode = mode;
      ShowAll();
    });
  }
  modes->addStretch(1);
  return row;
}

QWidget* SessionsLogScreen::MakeWait() {
  wait_ = new QWidget(this);
  auto* line = new QHBoxLayout(wait_);
  line->setContentsMargins(8, 0, 8, 4);
  line->setSpacing(8);
  waitText_ = new QLabel(wait_);
  waitText_->setObjectName("lblStandby");
  waitBar_ = new QProgressBar(wait_);
  waitBar_->setObjectName("prgStandby");
  waitBar_->setAccessibleName(tr("How much of the log has been read"));
  waitBar_->setRange(0, 100);
  waitBar_->setMaximumHeight(14);
  cancel_ = new QPushButton(tr("&Cancel"), wait_);
  cancel_->setObjectName("cmdCancel");
  connect(cancel_, &QPushButton::clicked, this, &SessionsLogScreen::StopPass);
  line->addWidget(waitText_);
  line->addWidget(waitBar_, 1);
  line->addWidget(cancel_);
  wait_->hide();
  return wait_;
}

QWidget* SessionsLogScreen::MakeStatistics() {
  auto* box = new QWidget(this);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(1);
  for (int label = 0; label < kStatisticLabels; ++label) {
    statNames_[label] = new QLabel(box);
    statNames_[label]->setObjectName(QString("lblStatName%1").arg(label));
    statValues_[label] = Figure(QString("lblStat%1").arg(label), box);
    grid->addWidget(statNames_[label], label, 0);
    grid->addWidget(statValues_[label], label, 1);
  }
  grid->setRowMinimumHeight(kStatisticLabels, 4);
  const QString names[] = {tr("Net $"), tr("Handle $"), tr("Advantage %")};
  for (int i = 0; i < 3; ++i) {
    fixed_[i] = Figure(QString("lblFixed%1").arg(i), box);
    grid->addWidget(new QLabel(names[i], box), kStatisticLabels + 1 + i, 0);
    grid->addWidget(fixed_[i], kStatisticLabels + 1 + i, 1);
  }
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(kStatisticLabels + 4, 1);
  return box;
}

QWidget* SessionsLogScreen::MakeClasses() {
  auto* box = new QWidget(this);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(2);
  const QString names[] = {tr("Won"), tr("Broke-even"), tr("Lost"), tr("Total")};
  bool* const included[] = {&game_.sessions.IncludeWon, &game_.sessions.IncludeBrokeEven,
                            &game_.sessions.IncludeLost};
  for (int i = 0; i < 4; ++i) {
    if (i < 3) {
      include_[i] = new QCheckBox(names[i], box);
      include_[i]->setObjectName(QString("chkInclude%1").arg(i));
      include_[i]->setToolTip(tr("These sessions take part"));
      connect(include_[i], &QCheckBox::clicked, this, [this, flag = included[i]](bool on) {
        *flag = on;
        Recompute();
      });
      grid->addWidget(include_[i], i, 0);
    } else {
      grid->addWidget(new QLabel(names[i], box), i, 0);
    }
    counts_[i] = Figure(QString("lblCount%1").arg(i), box);
    shares_[i] = Figure(QString("lblShare%1").arg(i), box);
    grid->addWidget(counts_[i], i, 1);
    grid->addWidget(shares_[i], i, 2);
  }
  breakPoint_ = new QLabel(box);
  breakPoint_->setObjectName("lblBreakPoint");
  grid->addWidget(breakPoint_, 4, 0, 1, 3);
  grid->setColumnStretch(1, 1);
  return box;
}

QWidget* SessionsLogScreen::MakeOutliers() {
  auto* box = new QWidget(this);
  box->setObjectName("picSliders");
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(2);
  outliers_ = new QCheckBox(tr("Leave out outliers"), box);
  outliers_->setObjectName("chkOutliers");
  connect(outliers_, &QCheckBox::clicked, this, &SessionsLogScreen::ToggleOutliers);
  grid->addWidget(outliers_, 0, 0, 1, 3);
  const QString ends[] = {tr("From"), tr("To")};
  const struct {
    const char* name;
    QString what;
    OutlierRule rule;
    QLineEdit** boxes;
  } kinds[] = {{"txtValueCount", tr("value"), OutlierRule::kByValue, values_},
               {"txtSDCount", tr("standard deviations"), OutlierRule::kByDeviations, deviations_}};
  grid->addWidget(new QLabel(tr("Value"), box), 2, 0);
  grid->addWidget(new QLabel(tr("Deviations"), box), 3, 0);
  for (int end = 0; end < 2; ++end) {
    auto* slider = new QSlider(Qt::Horizontal, box);
    slider->setObjectName(end == 0 ? "hsbOutlierLow" : "hsbOutlierHigh");
    slider->setAccessibleName(end == 0 ? tr("Lowest value that takes part")
                                       : tr("Highest value that takes part"));
    slider->setRange(0, kSliderSteps);
    slider->setPageStep(kSliderSteps / 20);
    slider->setMinimumWidth(44);
    slider->setMaximumWidth(96);
    connect(slider, &QSlider::valueChanged, this, &SessionsLogScreen::SliderMoved);
    sliders_[end] = slider;
    grid->addWidget(slider, 1, end + 1);
    for (int kind = 0; kind < 2; ++kind) {
      auto* edit = new QLineEdit(box);
      edit->setObjectName(QString("%1%2").arg(QLatin1String(kinds[kind].name)).arg(end));
      edit->setAccessibleName(tr("%1, %2").arg(ends[end], kinds[kind].what));
      edit->setAlignment(Qt::AlignRight);
      edit->setMinimumWidth(44);
      edit->setMaximumWidth(96);
      const OutlierRule rule = kinds[kind].rule;
      connect(edit, &QLineEdit::editingFinished, this, [this, edit, rule] {
        if (edit->isModified()) TakeBounds(rule);
      });
      kinds[kind].boxes[end] = edit;
      grid->addWidget(edit, 2 + kind, end + 1);
    }
  }
  grid->addWidget(new QLabel(tr("From, to"), box), 1, 0);
  return box;
}

// Wide: the figures stand beside the picture and the choices below it. Narrow: all stands below.
void SessionsLogScreen::Arrange(bool wide) {
  wide_ = wide;
  const auto across = [](bool yes) { return yes ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom; };
  body_->setDirection(across(wide));
  side_->setDirection(across(!wide));
  choices_->setDirection(across(wide));
  lowerRow_->setDirection(across(wide));
  lowerRow_->setContentsMargins(wide ? 8 : 0, 0, wide ? 8 : 0, wide ? 8 : 0);
  (wide ? side_ : left_)->removeWidget(lower_);
  (wide ? left_ : side_)->addWidget(lower_);
}

void SessionsLogScreen::resizeEvent(QResizeEvent* event) {
  ToolWindow::resizeEvent(event);
  for (QWidget* part : {figures_, lower_}) part->setVisible(height() >= kLeastForFigures);
  if (wide_ == (width() >= kWide)) return;
  Arrange(!wide_);
  // The parts' layouts first: theirs asks for what they need now.
  choices_->activate();
  lowerRow_->activate();
  layout()->invalidate();
  layout()->activate();
}

// --- Showing.

void SessionsLogScreen::ShowWait() {
  const bool changing = change_.IsOn();
  const bool calculating = pass_.IsOn() && pass_.IsLong() && coming_->sessions >= kAnnounced;
  const bool searching = search_.IsOn() && search_.IsLong();
  const bool problem = !pass_.IsOn() && !result_->problem.empty();
  const bool stopped = stopped_ && !pass_.IsOn();
  QString text;
  if (changing)
    text = change_.Text();
  else if (calculating)
    text = FromCore(MessageText<Msg::kCalculating>()).replace('\n', ' ');
  else if (searching)
    text = tr("Searching ...");
  else if (stopped)
    text = tr("The figures are not of this choice: the calculation was cancelled.");
  else if (problem)
    text = result_->overflow ? tr("The statistics could not be calculated.") : FromCore(result_->problem);
  waitText_->setText(text);
  waitText_->setToolTip(text);
  const bool working = changing || calculating || searching;
  waitBar_->setVisible(working);
  const LongWork& shown = changing ? change_ : searching ? search_ : pass_;
  waitBar_->setValue(static_cast<int>(100 * shown.Share()));
  cancel_->setVisible(working || stopped);
  cancel_->setText(stopped && !working ? tr("&Calculate") : tr("&Cancel"));
  wait_->setVisible(!text.isEmpty());
}

void SessionsLogScreen::ShowAll() {
  const SessionsLogs& screen = game_.sessions;
  const SeatId seat = screen.SessionsSeat;
  const QString file =
      seat == 0 ? tr("no player") : QFileInfo(FromCore(SessionsLogPath(game_, seat))).fileName();
  const QString title = tr("Sessions Log (%1)").arg(file);
  if (title != windowTitle()) setWindowTitle(title);
  stat_->setCurrentIndex(std::clamp(screen.SessionsStat, 0, kSessionMeasures - 1));
  const int mode = screen.SessionsDisplayMode == 1 ? 1 : 0;
  display_[mode]->setChecked(true);
  pages_->setCurrentIndex(mode);
  const int width = std::clamp(screen.GraphBarWidth, 0, 3);
  widths_[width]->setChecked(true);
  const SessionsStatistics& s = result_->statistics;
  if (shown_ != result_ || shownWidth_ != width || shownCurve_ != curve_->isChecked())
    histogram_->Show(s, kBarColumns[width], curve_->isChecked());
  shown_ = result_;
  shownWidth_ = width;
  shownCurve_ = curve_->isChecked();
  std::string ignored;
  rows_->Show(CountNow(ignored), stat_->currentText(), IsAsked(*result_));
  if (rows_->TopRow() != screen.SessionsTopRow) rows_->ShowRow(screen.SessionsTopRow);
  ShowStatistics();
  ShowClasses();
  ShowOutliers();
  ShowPointed();
  ShowWait();
}

void SessionsLogScreen::ShowStatistics() {
  const SessionsStatistics& s = result_->statistics;
  for (int label = 0; label < kStatisticLabels; ++label) {
    const std::string_view name = StatisticName(label);
    QString text = CoreWords(std::string(name));
    if (name == "Median" && s.MedianMarked) text += " *";
    statNames_[label]->setText(text);
    statNames_[label]->setToolTip(
        text.endsWith('*') ? tr("Near the middle one of the values, which is not known") : QString());
    statValues_[label]->setText(FigureInHabit(QString::fromStdString(StatisticText(s, label))));
  }
  const Currency fixed[] = {s.Net, s.Handle, s.AdvantagePercent};
  for (int i = 0; i < 3; ++i) fixed_[i]->setText(s.Included == 0 ? QString() : Number(fixed[i]));
}

void SessionsLogScreen::ShowClasses() {
  const SessionsStatistics& s = result_->statistics;
  const bool included[] = {game_.sessions.IncludeWon, game_.sessions.IncludeBrokeEven,
                           game_.sessions.IncludeLost};
  const std::int64_t counts[] = {s.Won, s.BrokeEven, s.Lost, s.Total};
  for (int i = 0; i < 4; ++i) {
    if (i < 3) include_[i]->setChecked(included[i]);
    counts_[i]->setText(Count(counts[i]));
    shares_[i]->setText(ShareOf(counts[i], s.Total));
  }
  const QString range = InHabit(QString::fromStdString(BreakPointLabel(game_.sessions)));
  const Currency point = game_.sessions.BreakPointLow;
  breakPoint_->setText(!range.isEmpty() ? tr("Break-point: %1").arg(range)
                       : point == kZero ? QString()
                                        : tr("Break-point: %1").arg(MoneyText(point)));
  breakPoint_->setVisible(!breakPoint_->text().isEmpty());
}

// Both forms of the bounds; those in force are kept, the others follow from them.
void SessionsLogScreen::ShowOutliers() {
  const SessionsLogs& screen = game_.sessions;
  const SessionsStatistics& whole = result_->whole;
  const bool on = screen.Outliers != OutlierRule::kNone;
  const bool byDeviations = screen.Outliers == OutlierRule::kByDeviations;
  outliers_->setChecked(on);
  const Currency bounds[] = {screen.OutlierLow, screen.OutlierHigh};
  for (int end = 0; end < 2; ++end) {
    Currency value = byDeviations ? whole.Mean + Multiply(bounds[end], whole.StdDev) : bounds[end];
    if (!on) value = end == 0 ? whole.Low : whole.High;
    const double away = byDeviations ? bounds[end].ToDouble() : DeviationsOf(whole, value);
    const auto show = [](QLineEdit& box, const QString& text) {
      if ((!box.hasFocus() || !box.isModified()) && box.text() != text) box.setText(text);
    };
    show(*values_[end], Number(value));
    show(*deviations_[end], ShownNumber(away, 2));
    const QSignalBlocker quiet(sliders_[end]);
    const double range = whole.Range.ToDouble();
    const double share = range <= 0 ? end : (value - whole.Low).ToDouble() / range;
    if (!sliders_[end]->isSliderDown())
      sliders_[end]->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * kSliderSteps + 0.5));
    sliders_[end]->setEnabled(on && range > 0);
    values_[end]->setEnabled(on);
    deviations_[end]->setEnabled(on);
  }
}

void SessionsLogScreen::ShowPointed() {
  const int width = kBarColumns[std::clamp(game_.sessions.GraphBarWidth, 0, 3)];
  current_->setText(game_.sessions.SessionsDisplayMode == 1
                        ? tr("%1 sessions", nullptr, PluralOf(rows_->Rows())).arg(Count(rows_->Rows()))
                        : HistogramText(result_->statistics, histogram_->Pointer(), width));
}

// --- Outliers.

void SessionsLogScreen::ToggleOutliers() {
  SessionsLogs& screen = game_.sessions;
  screen.Outliers = outliers_->isChecked() ? OutlierRule::kByDeviations : OutlierRule::kNone;
  screen.OutlierLow = Currency::Dollars(-kUsualDeviations);
  screen.OutlierHigh = Currency::Dollars(kUsualDeviations);
  Recompute();
}

// What is not to be told from the next place of the slider needs no cents.
Currency SessionsLogScreen::SliderValue(int end) const {
  const SessionsStatistics& whole = result_->whole;
  const int at = sliders_[end]->value();
  if (at == 0) return whole.Low;
  if (at == kSliderSteps) return whole.High;
  const Currency value = whole.Low + Currency::FromDouble(whole.Range.ToDouble() * at / kSliderSteps);
  return whole.Range >= Currency::Dollars(kSliderSteps) ? WholePart(value) : value;
}

void SessionsLogScreen::SliderMoved() {
  SessionsLogs& screen = game_.sessions;
  const bool low = sender() == sliders_[0];
  QSlider* other = sliders_[low ? 1 : 0];
  const int at = sliders_[low ? 0 : 1]->value();
  if (low ? other->value() < at : other->value() > at) {
    const QSignalBlocker quiet(other);
    other->setValue(at);
  }
  Currency* const bounds[] = {&screen.OutlierLow, &screen.OutlierHigh};
  const bool byDeviations = screen.Outliers == OutlierRule::kByDeviations;
  for (int end = 0; end < 2; ++end) {
    const Currency value = SliderValue(end);
    *bounds[end] = byDeviations ? Currency::FromDouble(DeviationsOf(result_->whole, value)) : value;
  }
  Recompute();
}

void SessionsLogScreen::TakeBounds(OutlierRule rule) {
  QLineEdit** boxes = rule == OutlierRule::kByValue ? values_ : deviations_;
  Currency bounds[2];
  bool good = true;
  for (int end = 0; end < 2; ++end) good = ReadNumber(boxes[end]->text(), bounds[end]) && good;
  for (int end = 0; end < 2; ++end) boxes[end]->setModified(false);
  if (!good) return ShowOutliers();  // what is in force stands there again
  game_.sessions.Outliers = rule;
  game_.sessions.OutlierLow = std::min(bounds[0], bounds[1]);
  game_.sessions.OutlierHigh = std::max(bounds[0], bounds[1]);
  Recompute();
}

}  // namespace tessaryn
