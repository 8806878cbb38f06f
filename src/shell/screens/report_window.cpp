#include "shell/screens/report_window.h"

#include <QActionGroup>
#include <QBoxLayout>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

#include "base/bet_catalogue.h"
#include "shell/screens/core_words.h"
#include "shell/screens/pick_list.h"
#include "shell/screens/report_chart.h"
#include "shell/screens/report_selection.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "stats/roll_item_lists.h"

namespace tessaryn {

struct ReportScreen {
  int window;
  const char* name;
  const char* report;
  QSize size;
  // A row that starts a second strip where the window is wide enough; 0 none does.
  std::size_t secondStrip = 0;
  const char* toggle = nullptr;  // a button that turns the field on and off
  const char* toggleCaption = nullptr;
  bool ReportsShown::*toggled = nullptr;
  bool chart = false;
};

namespace {

constexpr ReportScreen kScreens[] = {
    {kSummaryWindow, "frmSummary", "summary", {700, 470}, 17},
    {kHandsWindow,
     "frmHands",
     "hands",
     {620, 420},
     14,
     "cmdUnits",
     QT_TRANSLATE_NOOP("Reports", "Percentages"),
     &ReportsShown::HandsPercent},
    {kBetResultsWindow, "frmBetResults", "bet-results", {680, 470}},
    {kBetTrendsWindow, "frmBetTrends", "bet-trends", {300, 460}},
    {kRollTotalsWindow,
     "frmRollTotals",
     "roll-totals",
     {620, 500},
     0,
     "cmdProb",
     QT_TRANSLATE_NOOP("Reports", "Skewed"),
     &ReportsShown::Skewed,
     true},
    {kRollFreqsWindow,
     "frmRollFreqs",
     "roll-frequencies",
     {760, 520},
     0,
     "cmdProbable",
     QT_TRANSLATE_NOOP("Reports", "Skewed"),
     &ReportsShown::Skewed,
     true},
};

const ReportScreen& ScreenOf(int window) {
  return *std::find_if(std::begin(kScreens), std::end(kScreens),
                       [window](const ReportScreen& screen) { return screen.window == window; });
}

constexpr int kSpace = 8;
constexpr int kInFirstRow = 2;  // selectors, where not all have room beside each other
constexpr QSize kLeastDockedReport(280, 120);
constexpr int kBothHeight = 330;  // below it a picture leaves no room for its table
constexpr int kSideBySide = 560;  // wide enough for a picture beside the figures
constexpr int kFirstItem = 2;
constexpr int kLastItem = 89;

constexpr const char* kGroupings[] = {QT_TRANSLATE_NOOP("Reports", "&11 basic numbers"),
                                      QT_TRANSLATE_NOOP("Reports", "&21 distinguishable combos"),
                                      QT_TRANSLATE_NOOP("Reports", "&36 unique combos"),
                                      QT_TRANSLATE_NOOP("Reports", "&Dice faces")};

QString Said(const char* text) { return QCoreApplication::translate("Reports", text); }

// As much of a text as there is room for.
class ElidedLabel : public QLabel {
 public:
  ElidedLabel(const char* name, QWidget* parent) : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
  }
  QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
  }
};

void SetText(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
  label.setVisible(!text.isEmpty());
}

QColor ChosenColour(const Game& game, TotalsPart part) {
  const int colour = GraphColourOf(game, part);
  return colour == 0 ? QColor() : QColor(kGraphColourRows[static_cast<std::size_t>(colour)].rgb);
}

bool IsMarked(const ReportRow& row) {
  return std::any_of(row.cells.begin(), row.cells.end(), [](const ReportCell& cell) { return cell.marked; });
}

QIcon Swatch(const QColor& colour, const QColor& edge) {
  QPixmap picture(16, 16);
  picture.fill(colour);
  QPainter painter(&picture);
  painter.setPen(edge);
  painter.drawRect(0, 0, 15, 15);
  return picture;
}

}  // namespace

ReportWindow::ReportWindow(Game& game, int number, QWidget* parent)
    : ToolWindow(ScreenOf(number).name, parent),
      game_(game),
      screen_(ScreenOf(number)),
      kind_(*FindReport(screen_.report)) {
  setWindowTitle(SpeaksEnglish(kind_.name) ? QString(kind_.title) : CoreWords(kind_.title));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
  column->setSpacing(kSpace);
  for (QHBoxLayout*& row : selectorRows_) {
    row = new QHBoxLayout;
    row->setSpacing(kSpace);
    column->addLayout(row);
  }
  AddSelectors(*selectorRows_[0]);
  selectorRows_[1]->addStretch();
  AddLabels(*column);
  AddBody(*column);
  Refresh();
}

void ReportWindow::AddSelectors(QHBoxLayout& row) {
  if (kind_.ofScope) {
    hand_ = AddCombo(row, "cmbHand", Said(QT_TRANSLATE_NOOP("Reports", "Rolls that count")));
    for (ScopeId scope = 0; scope < kScopes; ++scope)
      hand_->addItem(CoreWords(ScopeName(scope)), scope.value);
    connect(hand_, &QComboBox::activated, this, [this](ScopeId scope) {
      game_.screen.Reports.Scope = scope;
      Selected();
    });
  }
  if (kind_.players == ReportPlayers::kSeveral) AddPlayers(row);
  if (kind_.players == ReportPlayers::kOne) {
    player_ = AddCombo(row, "cmbPlayer", Said(QT_TRANSLATE_NOOP("Reports", "Player")));
    connect(player_, &QComboBox::activated, this, [this] {
      game_.screen.Reports.Seat = player_->currentData().toInt();
      Selected();
    });
  }
  if (screen_.window == kRollFreqsWindow) {
    item_ = AddCombo(row, "cmbFreqNum", Said(QT_TRANSLATE_NOOP("Reports", "Outcome of a roll")));
    for (int item = kFirstItem; item <= kLastItem; ++item) item_->addItem(RollItemWords(item), item);
    connect(item_, &QComboBox::activated, this, [this] {
      game_.screen.Reports.Item = item_->currentData().toInt();
      Selected();
    });
  }
  if (screen_.window == kBetResultsWindow) AddBets(row);
  if (screen_.toggle != nullptr) AddToggle(row);
  AddOptions(row);
  for (int n = 0; n < row.count(); ++n) selectors_ += row.itemAt(n)->widget();
  row.addStretch();
}

void ReportWindow::WrapSelectors() {
  int wide = 2 * kSpace;
  for (const QWidget* selector : selectors_) wide += selector->sizeHint().width() + kSpace;
  const bool wraps = wide - kSpace > width() && selectors_.size() > kInFirstRow;
  if (wraps == wrapped_) return;
  wrapped_ = wraps;
  for (int n = kInFirstRow; n < selectors_.size(); ++n) {
    selectorRows_[wraps ? 0 : 1]->removeWidget(selectors_[n]);
    selectorRows_[wraps ? 1 : 0]->insertWidget(wraps ? n - kInFirstRow : n, selectors_[n]);
  }
}

QComboBox* ReportWindow::AddCombo(QHBoxLayout& row, const char* name, const QString& what) {
  auto* combo = new QComboBox(this);
  combo->setObjectName(name);
  combo->setAccessibleName(what);
  combo->setToolTip(what);
  combo->setMaxVisibleItems(16);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);  // in another language as well
  row.addWidget(combo);
  return combo;
}

void ReportWindow::AddPlayers(QHBoxLayout& row) {
  auto* pick = new PickList("lstPlayer", Said(QT_TRANSLATE_NOOP("Reports", "Players")),
                            Said(QT_TRANSLATE_NOOP("Reports", "Players who count")), this);
  pick->setObjectName("cmdPlayers");
  pick->entries = [this] {
    std::vector<PickList::Entry> players;
    for (SeatId seat = 1; seat <= kSeats; ++seat)
      if (IsOccupied(game_.table, seat))
        players.emplace_back(FromCore(game_.table.seats[seat].SeatName), seat);
    return players;
  };
  pick->isPicked = [this](SeatId seat) { return (game_.screen.Reports.Seats >> seat & 1) != 0; };
  // Places where nobody stands keep what they have: who comes there counts as before.
  pick->picked = [this](const std::vector<int>& seats) {
    std::uint32_t& kept = game_.screen.Reports.Seats;
    for (SeatId seat = 1; seat <= kSeats; ++seat)
      if (IsOccupied(game_.table, seat)) kept &= ~(1u << seat);
    for (const SeatId seat : seats) kept |= 1u << seat;
    Selected();
  };
  row.addWidget(pick);
}

void ReportWindow::AddBets(QHBoxLayout& row) {
  auto* pick = new PickList("lstBets", Said(QT_TRANSLATE_NOOP("Reports", "Bets")),
                            Said(QT_TRANSLATE_NOOP("Reports", "Bets that count")), this);
  pick->setObjectName("cmdBets");
  pick->entries = [] {
    std::vector<PickList::Entry> bets;
    for (BetId bet = 1; bet <= kBets; ++bet) bets.emplace_back(FromCore(BetName(bet)), bet);
    return bets;
  };
  pick->isPicked = [this](BetId bet) { return SelectionShown(game_).bets.Has(bet); };
  pick->picked = [this](const std::vector<int>& picked) {
    BetSet bets;
    for (const BetId bet : picked) bets.Add(bet);
    SelectBets(game_, bets);
    Selected();
  };
  row.addWidget(pick);
}

void ReportWindow::AddToggle(QHBoxLayout& row) {
  toggle_ = new QPushButton(Said(screen_.toggleCaption), this);
  toggle_->setObjectName(screen_.toggle);
  toggle_->setCheckable(true);
  if (screen_.toggled == &ReportsShown::Skewed)
    toggle_->setToolTip(
        Said(QT_TRANSLATE_NOOP("Reports", "Probabilities of the percentage dice, else of true dice")));
  connect(toggle_, &QPushButton::clicked, this, [this](bool on) {
    game_.screen.Reports.*screen_.toggled = on;
    Selected();
  });
  row.addWidget(toggle_);
}

// --- Options, in a menu.

void ReportWindow::AddOptions(QHBoxLayout& row) {
  const bool bets = screen_.window == kBetResultsWindow;
  if (!bets && screen_.window != kRollTotalsWindow) return;
  auto* button = new QPushButton(Said(QT_TRANSLATE_NOOP("Reports", "Options")), this);
  button->setObjectName("cmdOptions");
  auto* menu = new QMenu(button);
  button->setMenu(menu);
  bets ? AddBetOptions(*menu) : AddRollOptions(*menu);
  row.addWidget(button);
}

QAction* ReportWindow::AddOption(QMenu& menu, const QString& name, const QString& caption,
                                 std::function<bool()> isOn, std::function<void(bool)> set) {
  QAction* action = menu.addAction(caption);
  action->setObjectName(name);
  action->setCheckable(true);
  connect(action, &QAction::triggered, this, [this, set = std::move(set)](bool on) {
    set(on);
    Selected();
  });
  options_.push_back({action, std::move(isOn)});
  return action;
}

void ReportWindow::AddBetOptions(QMenu& menu) {
  struct Row {
    const char* name;
    const char* caption;
    ReportOption option;
    bool inverse;
  };
  constexpr Row kRows[] = {
      {"mnuEachBet", QT_TRANSLATE_NOOP("Reports", "&Each bet in a row"), kEachBetInARow, false},
      {"mnuUseSeparator", QT_TRANSLATE_NOOP("Reports", "Use thousands &separator"), kNoSeparators, true},
      {"mnuFontBold", QT_TRANSLATE_NOOP("Reports", "Font &bold"), kBoldFigures, false},
      {"mnuFontItalic", QT_TRANSLATE_NOOP("Reports", "Font &italic"), kItalicFigures, false}};
  for (const Row& row : kRows)
    AddOption(
        menu, row.name, Said(row.caption),
        [this, row] { return HasOption(game_, row.option) != row.inverse; },
        [this, row](bool on) { SetOption(game_, row.option, on != row.inverse); });
}

void ReportWindow::AddRollOptions(QMenu& menu) {
  QMenu* totals = menu.addMenu(Said(QT_TRANSLATE_NOOP("Reports", "Display &totals")));
  totals->setObjectName("mnuDisplayTotals");
  auto* group = new QActionGroup(totals);
  for (int grouping = 0; grouping < static_cast<int>(std::size(kGroupings)); ++grouping)
    group->addAction(AddOption(
        *totals, QString("mnuDisplayTotals%1").arg(grouping), Said(kGroupings[grouping]),
        [this, grouping] { return static_cast<int>(SelectionShown(game_).grouping) == grouping; },
        [this, grouping](bool) { game_.screen.Reports.RollGrouping = grouping; }));
  AddOption(
      menu, "mnuHideProbBars", Said(QT_TRANSLATE_NOOP("Reports", "&Hide probability bars")),
      [this] { return game_.screen.Reports.HideProbabilities; },
      [this](bool on) { game_.screen.Reports.HideProbabilities = on; });
  AddColours(menu, TotalsPart::kBackground, "mnuGraphBackgroundColor",
             Said(QT_TRANSLATE_NOOP("Reports", "Graph &background color ...")));
  AddColours(menu, TotalsPart::kBars, "mnuGraphBarsColor",
             Said(QT_TRANSLATE_NOOP("Reports", "&Graph bars color ...")));
}

void ReportWindow::AddColours(QMenu& menu, TotalsPart part, const QString& name, const QString& caption) {
  QMenu* colours = menu.addMenu(caption);
  colours->setObjectName(name);
  auto* group = new QActionGroup(colours);
  for (int colour = 0; colour < kGraphColours; ++colour) {
    const GraphColour& row = kGraphColourRows[static_cast<std::size_t>(colour)];
    QAction* action = AddOption(
        *colours, name + QString::number(colour), Said(row.name),
        [this, part, colour] { return GraphColourOf(game_, part) == colour; },
        [this, part, colour](bool) { SetGraphColour(game_, part, colour); });
    group->addAction(action);
    if (colour > 0) action->setIcon(Swatch(QColor(row.rgb), palette().color(QPalette::Mid)));
  }
}

// --- What it shows.

void ReportWindow::AddLabels(QVBoxLayout& column) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kSpace);
  players_ = new QLabel(this);
  players_->setObjectName("lblPlayer");
  players_->setTextFormat(Qt::PlainText);
  names_ = new ElidedLabel("lblNames", this);
  row->addWidget(players_);
  row->addWidget(names_, 1);
  column.addLayout(row);
  explain_ = new QLabel(this);
  explain_->setObjectName("lblExplain");
  explain_->setTextFormat(Qt::PlainText);
  explain_->setWordWrap(true);
  column.addWidget(explain_);
}

void ReportWindow::AddBody(QVBoxLayout& column) {
  table_ = new ReportView("tblReport", windowTitle(), this);
  if (screen_.window == kRollTotalsWindow || screen_.window == kBetTrendsWindow) table_->SetSortable(true);
  if (screen_.window == kBetTrendsWindow) table_->verticalScrollBar()->setObjectName("vsbBetTrends");
  if (screen_.chart) chart_ = new ReportChartView(Said(QT_TRANSLATE_NOOP("Reports", "Graph")), this);
  if (chart_ != nullptr)
    chart_->setAccessibleDescription(
        Said(QT_TRANSLATE_NOOP("Reports", "The table below it has its figures")));
  if (screen_.window == kRollTotalsWindow) {
    column.addWidget(chart_, 3);
    column.addWidget(table_, 2);
  } else if (screen_.window == kRollFreqsWindow) {
    AddGaps(column);
  } else {
    column.addWidget(table_, 1);
  }
}

void ReportWindow::AddGaps(QVBoxLayout& column) {
  upper_ = new QBoxLayout(QBoxLayout::LeftToRight);
  upper_->setSpacing(kSpace);
  upper_->addWidget(table_, 0, Qt::AlignTop);
  upper_->addWidget(chart_, 1);
  column.addLayout(upper_, 2);
  gaps_ = new QLabel(this);
  gaps_->setObjectName("lblGaps");
  column.addWidget(gaps_);
  grid_ = new ReportView("tblGaps", QString(), this);
  column.addWidget(grid_, 3);
}

void ReportWindow::Selected() {
  Refresh();
  if (selected) selected();
}

void ReportWindow::Refresh() {
  const ReportSelection selection = SelectionShown(game_);
  report_ = std::make_shared<const ReportTable>(MakeReport(game_, kind_, selection));
  ShowSelectors(selection);
  ShowLabels(selection);
  ShowTables();
  if (chart_ != nullptr) ShowChart(selection);
}

void ReportWindow::ShowSelectors(const ReportSelection& selection) {
  if (hand_ != nullptr) hand_->setCurrentIndex(selection.scope);
  if (item_ != nullptr) item_->setCurrentIndex(item_->findData(selection.item));
  if (toggle_ != nullptr) toggle_->setChecked(game_.screen.Reports.*screen_.toggled);
  if (player_ != nullptr) ListPlayers();
  for (const Option& option : options_) option.action->setChecked(option.isOn());
}

void ReportWindow::ListPlayers() {
  QList<std::pair<QString, int>> players{{Said(QT_TRANSLATE_NOOP("Reports", "Selected player")), 0}};
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(game_.table, seat)) players.append({FromCore(game_.table.seats[seat].SeatName), seat});
  if (players != listed_) {
    listed_ = players;
    player_->clear();
    for (const auto& [name, seat] : players) player_->addItem(name, seat);
  }
  player_->setCurrentIndex(std::max(0, player_->findData(game_.screen.Reports.Seat.value)));
}

QString ReportWindow::SelectedWords(const ReportSelection& selection) const {
  return kind_.players == ReportPlayers::kSeveral ? PlayersSelectedWords(game_, selection)
                                                  : ReportText(*report_, report_->selected);
}

// The names are told where the words before them don't say them all.
void ReportWindow::ShowLabels(const ReportSelection& selection) {
  const bool several = kind_.players == ReportPlayers::kSeveral;
  const bool nobody = kind_.players == ReportPlayers::kOne && !IsOccupied(game_.table, selection.seat);
  SetText(*players_, several || nobody ? SelectedWords(selection) : QString());
  const int count = static_cast<int>(SelectedPlayers(game_, selection).size());
  QStringList names;
  if (count > 0 && (count == 1 || count < game_.table.OccupiedSeats))
    names += FromCore(report_->selectedNames);
  if (!report_->selectedBets.empty()) names += FromCore(report_->selectedBets);
  SetText(*names_, several ? names.join("  \u00b7  ") : QString());
  names_->setToolTip(names_->text());
  SetText(*explain_, FromCore(report_->note));
}

void ReportWindow::ShowTables() {
  if (screen_.window == kBetResultsWindow) {
    table_->SetSortable(HasOption(game_, kEachBetInARow));
    table_->SetFigureFont(HasOption(game_, kBoldFigures), HasOption(game_, kItalicFigures));
  }
  if (grid_ != nullptr) return ShowGaps();
  ReportPart part;
  const bool wide = screen_.secondStrip != 0 && table_->width() >= twoStrips_;
  if (wide) part.strips = {screen_.secondStrip};
  table_->Show(report_, part);
  if (!wide || table_->WantedWidth() <= table_->width()) return;
  twoStrips_ = table_->WantedWidth();
  table_->Show(report_, {});
}

void ReportWindow::ShowGaps() {
  ReportPart figures;
  figures.last = report_->gridFirst;
  figures.headings = false;
  table_->Show(report_, figures);
  table_->setFixedHeight(table_->WantedHeight() + 2 * table_->frameWidth());
  table_->setMinimumWidth(table_->WantedWidth());
  ReportPart gaps;
  gaps.first = report_->gridFirst;
  gaps.headings = false;
  for (std::size_t row = gaps.first + report_->gridRows; row < report_->rows.size(); row += report_->gridRows)
    gaps.strips.push_back(row);
  grid_->Show(report_, gaps);
  SetText(*gaps_, ReportText(*report_, report_->rows[gaps.first].block));
  grid_->setAccessibleName(gaps_->text());
}

void ReportWindow::ShowChart(const ReportSelection& selection) {
  chart_->Show(grid_ != nullptr
                   ? GapsChart(*report_)
                   : TotalsChart(*report_, game_.screen.Reports.HideProbabilities, selection.skewed),
               ChosenColour(game_, TotalsPart::kBackground), ChosenColour(game_, TotalsPart::kBars));
}

QSize ReportWindow::sizeHint() const { return screen_.size; }

// At a side of the table the selectors wrap and the table scrolls; a window of its own is as wide as they
// are.
QSize ReportWindow::minimumSizeHint() const {
  const QSize least = ToolWindow::minimumSizeHint();
  return isWindow() ? least : least.boundedTo(kLeastDockedReport);
}

void ReportWindow::changeEvent(QEvent* event) {
  // What it had to be as a window.
  if (event->type() == QEvent::ParentChange && !isWindow()) setMinimumSize(0, 0);
  ToolWindow::changeEvent(event);
}

void ReportWindow::resizeEvent(QResizeEvent* event) {
  ToolWindow::resizeEvent(event);
  WrapSelectors();
  if (upper_ != nullptr)
    upper_->setDirection(width() >= kSideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  if (screen_.window == kRollTotalsWindow) table_->setVisible(height() >= kBothHeight);
  if (report_ != nullptr && screen_.secondStrip != 0) ShowTables();
}

// --- On paper and in files.

// Marks have a column of their own, so that figures stay figures.
QList<QStringList> ReportWindow::Rows() const {
  if (report_ == nullptr) return {};
  QStringList headings{ReportText(*report_, report_->title)};
  for (const std::string& column : report_->columns) headings += ReportText(*report_, column);
  const bool marks = screen_.window == kRollTotalsWindow;
  QList<QStringList> rows{headings};
  if (marks) rows[0] += QStringLiteral("*");
  for (std::size_t i = 0; i < report_->rows.size(); ++i) {
    const ReportRow& row = report_->rows[i];
    const bool named = RowName(*report_, i) != row.label;  // the label comes twice
    QStringList texts{named ? ReportText(*report_, row.block) + " " + ReportText(*report_, row.label)
                            : ReportText(*report_, row.label)};
    for (int column = 0; column < row.column; ++column) texts += QString();
    for (const ReportCell& cell : row.cells) texts += FromCore(cell.text).trimmed();
    while (texts.size() < headings.size()) texts += QString();
    if (marks) texts += IsMarked(row) ? QStringLiteral("*") : QString();
    rows += texts;
  }
  return rows;
}

QStringList ReportWindow::PrintHeadings() const {
  if (report_ == nullptr) return {windowTitle()};
  QStringList lines{windowTitle()};
  for (const QString& line : {ReportText(*report_, report_->scope), SelectedWords(SelectionShown(game_)),
                              FromCore(report_->selectedNames), FromCore(report_->selectedBets)})
    if (!line.isEmpty()) lines += line;
  if (!report_->note.empty()) lines += FromCore(report_->note).split('\n');
  if (std::any_of(report_->rows.begin(), report_->rows.end(), IsMarked))
    lines += Said(QT_TRANSLATE_NOOP("Reports", "* more than two standard errors from the probable"));
  return lines;
}

void ReportWindow::PaintPicture(QPainter& painter, const QRectF& area) const {
  if (chart_ != nullptr) PaintReportChart(painter, area, chart_->Chart(), chart_->LookOnPaper());
}

}  // namespace tessaryn
