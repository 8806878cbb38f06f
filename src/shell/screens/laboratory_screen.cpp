#include "shell/screens/laboratory_screen.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <nlohmann/json.hpp>

#include "base/record_file.h"
#include "lab/html_report.h"
#include "lab/lab_json.h"
#include "lab/lab_words.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/laboratory_setup.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

const FilePurpose kSaveReport{QT_TRANSLATE_NOOP("Files", "Save Laboratory Report As"),
                              QT_TRANSLATE_NOOP("Files", "Web pages (*.html);;All files (*)"), ".html", true,
                              true};

const FilePurpose kOpenLab{QT_TRANSLATE_NOOP("Files", "Open Laboratory Experiment"),
                           QT_TRANSLATE_NOOP("Files", "Laboratory experiments (*.lab);;All files (*)"),
                           ".lab", false, false};
const FilePurpose kSaveLab{QT_TRANSLATE_NOOP("Files", "Save Laboratory Experiment As"),
                           QT_TRANSLATE_NOOP("Files", "Laboratory experiments (*.lab);;All files (*)"),
                           ".lab", true, true};
const FilePurpose kSaveCsv{QT_TRANSLATE_NOOP("Files", "Save Sessions As"),
                           QT_TRANSLATE_NOOP("Files", "Comma-separated values (*.csv);;All files (*)"),
                           ".csv", true, true};
const FilePurpose kSaveLogs{QT_TRANSLATE_NOOP("Files", "Save Sessions Log As"),
                            QT_TRANSLATE_NOOP("Files", "Sessions Logs (*.slg);;All files (*)"), ".slg", true,
                            true};
const FilePurpose kSaveJson{QT_TRANSLATE_NOOP("Files", "Save Results As"),
                            QT_TRANSLATE_NOOP("Files", "JSON (*.json);;All files (*)"), ".json", true, true};

enum Page : int {
  kSetUpPage,
  kResultsPage,
  kWayPage,
  kEndsPage,
  kSystemsPage,
  kPairsPage,
  kSweepPage,
  kFoundPage
};
constexpr int kLeastBelow = 80;
constexpr int kHeightForAll = 470;  // of the page of results, with how sessions end below
constexpr int kProgressSteps = 1'000;
constexpr int kMeasuresWidth = 350;
constexpr int kScrollBarWidth = 22;

// Sorted by the number that it begins with.
struct NumberItem : QTableWidgetItem {
  using QTableWidgetItem::QTableWidgetItem;
  double Value() const {
    Currency number;
    ReadNumber(text().section(' ', 0, 0).remove('%'), number);
    return number.ToDouble();
  }
  bool operator<(const QTableWidgetItem& other) const override {
    return Value() < static_cast<const NumberItem&>(other).Value();
  }
};

QTableWidget* Table(const char* name, const QString& what, QWidget* parent) {
  auto* table = new QTableWidget(parent);
  table->setObjectName(name);
  table->setAccessibleName(what);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setAlternatingRowColors(true);
  table->setShowGrid(false);
  table->verticalHeader()->hide();
  table->setTabKeyNavigation(false);
  table->setWordWrap(false);
  table->setTextElideMode(Qt::ElideMiddle);
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
  return table;
}

// The first columns are names, which share half of the width at most; the others figures.
void FillTable(QTableWidget& table, const QList<QStringList>& rows, int names = 1) {
  const bool sorted = table.isSortingEnabled();
  table.setSortingEnabled(false);
  const QStringList& heading = rows.front();
  const bool columnsChange = table.columnCount() != heading.size();
  table.setColumnCount(static_cast<int>(heading.size()));
  table.setHorizontalHeaderLabels(heading);
  table.setRowCount(static_cast<int>(rows.size()) - 1);
  for (int row = 0; row < table.rowCount(); ++row)
    for (int column = 0; column < table.columnCount(); ++column) {
      const QString& text = rows[row + 1][column];
      QTableWidgetItem* item = table.item(row, column);
      if (item == nullptr) {
        item = column < names ? new QTableWidgetItem : new NumberItem;
        item->setTextAlignment((column < names ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        table.setItem(row, column, item);
      }
      if (item->text() != text) item->setText(text);
      if (column < names) item->setToolTip(text);
    }
  for (int column = 0; column < table.columnCount(); ++column)
    table.horizontalHeaderItem(column)->setTextAlignment((column < names ? Qt::AlignLeft : Qt::AlignRight) |
                                                         Qt::AlignVCenter);
  table.setSortingEnabled(sorted);
  if (!columnsChange && table.rowCount() == 0) return;
  table.resizeColumnsToContents();
  for (int column = 0; column < names; ++column)
    table.setColumnWidth(column, std::min(table.columnWidth(column), table.viewport()->width() / 2 / names));
}

QPushButton* Button(const char* name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

QComboBox* Chooser(const char* name, const QString& what, QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setObjectName(name);
  box->setAccessibleName(what);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(14);
  return box;
}

}  // namespace

LaboratoryScreen::LaboratoryScreen(Game& game, QWidget* parent)
    : ToolWindow("frmLaboratory", parent), game_(game) {
  setWindowTitle(tr("Laboratory"));
  openFile = [](const QString& path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); };
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  column->setSpacing(8);
  column->addWidget(MakeBand());
  column->addWidget(MakeChoice());
  column->addWidget(MakePages(), 1);
  column->addWidget(MakeFoot());
  connect(&run_, &LaboratoryRun::Progressed, this, &LaboratoryScreen::TakeFigures);
  connect(&run_, &LaboratoryRun::Ended, this, &LaboratoryScreen::RunEnded);
  ListSystems();
  ShowAll();
  ShowStage();
  resize(980, 560);
}

QWidget* LaboratoryScreen::MakeBand() {
  auto* band = new QFrame(this);
  band->setFrameShape(QFrame::StyledPanel);
  auto* row = new QHBoxLayout(band);
  row->setContentsMargins(16, 8, 12, 8);
  row->setSpacing(12);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(4);
  verdict_ = new QLabel(band);
  verdict_->setObjectName("lblVerdict");
  QFont font = verdict_->font();
  font.setPointSizeF(font.pointSizeF() * 1.2);
  verdict_->setFont(font);
  below_ = new QLabel(band);
  below_->setObjectName("lblBelow");
  below_->setTextFormat(Qt::PlainText);
  verdict_->setTextFormat(Qt::RichText);
  for (QLabel* label : {verdict_, below_}) {
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    texts->addWidget(label);
  }
  progress_ = new QProgressBar(band);
  progress_->setObjectName("prgSessions");
  progress_->setAccessibleName(tr("Sessions played"));
  progress_->setRange(0, kProgressSteps);
  progress_->setTextVisible(false);
  progress_->setMaximumHeight(6);
  texts->addWidget(progress_);
  row->addLayout(texts, 1);
  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(4);
  start_ = Button("cmdRun", {}, band);
  QPalette colours = start_->palette();
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    colours.setColor(group, QPalette::Button, QColor("#0B6B45"));
    colours.setColor(group, QPalette::ButtonText, Qt::white);
  }
  start_->setPalette(colours);
  start_->setMinimumSize(150, 32);
  end_ = Button("cmdEnd", tr("&End"), band);
  buttons->addWidget(start_);
  buttons->addWidget(end_);
  row->addLayout(buttons);
  connect(start_, &QPushButton::clicked, this, &LaboratoryScreen::RunOrPause);
  connect(end_, &QPushButton::clicked, this, &LaboratoryScreen::EndOrGoOn);
  return band;
}

QWidget* LaboratoryScreen::MakeChoice() {
  auto* choice = new QWidget(this);
  auto* row = new QHBoxLayout(choice);
  row->setContentsMargins(4, 0, 4, 0);
  row->setSpacing(8);
  const auto add = [&](const char* name, const QString& letter, const QString& what) {
    QComboBox* box = Chooser(name, what, choice);
    auto* label = new QLabel(letter, choice);
    label->setBuddy(box);
    row->addWidget(label);
    row->addWidget(box, 2);
    return box;
  };
  a_ = add("cmbA", tr("Comp&are A"), tr("System A"));
  b_ = add("cmbB", tr("&with B"), tr("System B"));
  rank_ = add("cmbRank", tr("rank by"), tr("What systems are ranked by"));
  row->setStretchFactor(rank_, 0);
  rank_->setMinimumContentsLength(8);
  for (const RankBy by : {RankBy::kMean, RankBy::kMedian, RankBy::kRuin, RankBy::kGoal})
    rank_->addItem(RankCaption(by));
  for (QComboBox* box : {a_, b_}) connect(box, &QComboBox::activated, this, &LaboratoryScreen::Watch);
  connect(rank_, &QComboBox::activated, this, [this] {
    systems_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    ShowAll();
  });
  pointed_ = new QLabel(choice);
  pointed_->setObjectName("lblPointed");
  pointed_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(pointed_, 3);
  return choice;
}

namespace {

// Shows its lower half where there is room for it.
class ResultsPage : public QWidget {
 public:
  using QWidget::QWidget;
  QWidgetList lower;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    const bool room = height() >= kHeightForAll;
    for (QWidget* widget : lower) widget->setVisible(room);
    static_cast<QGridLayout*>(layout())->setRowStretch(1, room ? 4 : 0);
  }
};

}  // namespace

QWidget* LaboratoryScreen::MakePages() {
  pages_ = new QTabWidget(this);
  pages_->setObjectName("tabLaboratory");
  pages_->setAccessibleName(tr("Pages of the laboratory"));
  setup_ = new LaboratorySetup(game_, pages_);
  connect(setup_, &LaboratorySetup::Changed, this, &LaboratoryScreen::ShowStage);
  const auto picture = [this](LabPicture kind, const char* name) {
    auto* view = new LabPictureView(kind, name, pages_);
    connect(view, &LabPictureView::Pointed, pointed_, &QLabel::setText);
    connect(view, &LabPictureView::Chosen, this, &LaboratoryScreen::Compare);
    pictures_.append(view);
    return view;
  };
  auto* scrolled = new QScrollArea(pages_);
  scrolled->setFrameShape(QFrame::NoFrame);
  scrolled->setWidgetResizable(true);
  scrolled->setFocusPolicy(Qt::NoFocus);
  scrolled->setWidget(setup_);
  pages_->addTab(scrolled, tr("E&xperiment"));
  pages_->addTab(MakeResults(), tr("Res&ults"));
  auto* way = new QWidget(pages_);
  auto* row = new QHBoxLayout(way);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(picture(LabPicture::kWay, "picWay"), 1);
  row->addWidget(picture(LabPicture::kRuin, "picRuin"), 1);
  pages_->addTab(way, tr("On the wa&y"));
  pages_->addTab(picture(LabPicture::kEnds, "picEnds"), tr("E&nds"));
  systems_ = Table("lstAllSystems", tr("All systems"), pages_);
  systems_->setSortingEnabled(true);
  systems_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  pages_->addTab(systems_, tr("All s&ystems"));
  compared_ = Table("lstPairs", tr("Pairs of systems"), pages_);
  pages_->addTab(compared_, tr("Pairs"));
  pages_->addTab(MakeSweep(), tr("Sweep"));
  found_ = Table("lstFound", tr("What was found"), pages_);
  pages_->addTab(found_, tr("Found"));
  connect(pages_, &QTabWidget::currentChanged, this, [this] { ShowAll(); });
  return pages_;
}

QWidget* LaboratoryScreen::MakeResults() {
  auto* page = new ResultsPage(pages_);
  auto* grid = new QGridLayout(page);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(4);
  auto* results = new LabPictureView(LabPicture::kResults, "picResults", page);
  auto* ends = new LabPictureView(LabPicture::kEnds, "picResultEnds", page);
  for (LabPictureView* view : {results, ends}) {
    connect(view, &LabPictureView::Pointed, pointed_, &QLabel::setText);
    pictures_.append(view);
  }
  measures_ = Table("lstMeasures", tr("Measures"), page);
  measures_->setFixedWidth(kMeasuresWidth);
  measures_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  measures_->horizontalHeader()->setMinimumSectionSize(20);
  QFrame* about = MakeAbout();
  grid->addWidget(results, 0, 0);
  grid->addWidget(measures_, 0, 1);
  grid->addWidget(ends, 1, 0);
  grid->addWidget(about, 1, 1);
  grid->setRowStretch(0, 5);
  grid->setColumnStretch(0, 1);
  page->lower = {ends, about};
  for (QWidget* widget : page->lower) {
    widget->setMinimumHeight(kLeastBelow);
    widget->hide();
  }
  return page;
}

// What was played, and on which dice.
QFrame* LaboratoryScreen::MakeAbout() {
  auto* about = new QFrame(pages_);
  about->setObjectName("fraAbout");
  about->setFrameShape(QFrame::StyledPanel);
  about->setFixedWidth(kMeasuresWidth);
  auto* column = new QVBoxLayout(about);
  column->setContentsMargins(12, 8, 12, 8);
  column->setSpacing(8);
  about_ = new QLabel(about);
  about_->setObjectName("lblAbout");
  about_->setTextFormat(Qt::RichText);
  about_->setWordWrap(true);
  about_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  about_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
  column->addWidget(about_, 1);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  auto* add = Button("cmdAddSystem", tr("Add a system"), about);
  auto* command = Button("cmdCommand", tr("As command line"), about);
  row->addWidget(add);
  row->addWidget(command);
  row->addStretch(1);
  column->addLayout(row);
  connect(add, &QPushButton::clicked, this, [this] { pages_->setCurrentIndex(kSetUpPage); });
  connect(command, &QPushButton::clicked, this, &LaboratoryScreen::CopyCommand);
  return about;
}

QWidget* LaboratoryScreen::MakeSweep() {
  auto* page = new QWidget(pages_);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  grid_ = Chooser("cmbSweep", tr("System of the sweep"), page);
  grid_->setVisible(false);
  column->addWidget(grid_);
  auto* view = new LabPictureView(LabPicture::kSweep, "picSweep", page);
  connect(view, &LabPictureView::Pointed, pointed_, &QLabel::setText);
  connect(view, &LabPictureView::Chosen, this, &LaboratoryScreen::Compare);
  pictures_.append(view);
  column->addWidget(view, 1);
  connect(grid_, &QComboBox::activated, this, &LaboratoryScreen::ShowAll);
  return page;
}

QWidget* LaboratoryScreen::MakeFoot() {
  auto* foot = new QWidget(this);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(4, 0, 4, 0);
  row->setSpacing(8);
  auto* label = new QLabel(tr("Session"), foot);
  session_ = new QSpinBox(foot);
  session_->setObjectName("txtSession");
  session_->setAccessibleName(tr("Number of the session"));
  session_->setRange(1, 1);
  session_->findChild<QLineEdit*>()->setAccessibleName(session_->accessibleName());
  session_->setMinimumWidth(110);
  sent_ = Chooser("cmbSystem", tr("System of the session"), foot);
  send_ = Button("cmdToTable", tr("Play it at the &table"), foot);
  send_->setToolTip(tr("Puts the session on the table in place of the game, to be watched roll by roll"));
  report_ = Button("cmdReport", tr("Re&port ..."), foot);
  row->addWidget(label);
  row->addWidget(session_);
  row->addWidget(new QLabel(tr("of"), foot));
  row->addWidget(sent_, 1);
  row->addWidget(send_);
  row->addStretch(1);
  AddSave(*row);
  row->addWidget(report_);
  connect(send_, &QPushButton::clicked, this, &LaboratoryScreen::SendToTable);
  connect(report_, &QPushButton::clicked, this, &LaboratoryScreen::Report);
  return foot;
}

void LaboratoryScreen::AddSave(QHBoxLayout& row) {
  open_ = Button("cmdOpen", tr("Open ..."), this);
  open_->setToolTip(
      tr("An experiment that was saved, here or by the command line: to look at, or to go on with"));
  save_ = Button("cmdSave", tr("Save"), this);
  auto* menu = new QMenu(save_);
  menu->setObjectName("mnuSave");
  const auto add = [&](const char* name, const QString& caption, void (LaboratoryScreen::*work)()) {
    QAction* action = menu->addAction(caption, this, work);
    action->setObjectName(name);
    return action;
  };
  add("mnuSaveLab", tr("&Experiment ..."), &LaboratoryScreen::SaveLab);
  saveCsv_ = add("mnuSaveCsv", tr("Sessions as &CSV ..."), &LaboratoryScreen::SaveCsv);
  saveLogs_ = add("mnuSaveLogs", tr("&Sessions Log ..."), &LaboratoryScreen::SaveLogs);
  add("mnuSaveJson", tr("Results as &JSON ..."), &LaboratoryScreen::SaveJson);
  menu->addSeparator();
  add("mnuCopyCommand", tr("Copy as command &line"), &LaboratoryScreen::CopyCommand);
  save_->setMenu(menu);
  row.addWidget(open_);
  row.addWidget(save_);
  connect(open_, &QPushButton::clicked, this, &LaboratoryScreen::Open);
}

// --- Running.

void LaboratoryScreen::Tell(const std::string& problem) {
  ShowMessage<Msg::kFileProblem>(game_, With<"title">(ToCore(tr("Laboratory"))), With<"problem">(problem));
}

void LaboratoryScreen::RunOrPause() {
  if (IsBusy()) {
    run_.Stop();
    start_->setEnabled(false);
    return;
  }
  run_.applicationFolder = game_.applicationFolder;
  run_.threads = setup_->Threads();
  if (stage_ == Stage::kSetUp) return setup_->IsSearch() ? Search() : Begin();
  run_.GoOn();
  stage_ = Stage::kRunning;
  ShowStage();
}

void LaboratoryScreen::Begin() {
  constexpr double kBytesOfSession = 350;
  constexpr double kMostKept = 2e9;
  Experiment experiment;
  if (const std::string error = setup_->ReadExperiment(experiment); !error.empty()) return Tell(error);
  const bool keep = setup_->KeepsSessions();
  const double bytes = kBytesOfSession * static_cast<double>(experiment.sessions) *
                       static_cast<double>(experiment.systems.size());
  if (keep && bytes > kMostKept)
    return Tell(ToCore(tr("Keeping every session would take %1 GB: take the mark there away, or play fewer.")
                           .arg(bytes / 1e9, 0, 'f', 1)));
  ending_ = false;
  if (const std::string error = run_.Start(BeginLab(experiment, keep, keep)); !error.empty())
    return Tell(error);
  stage_ = Stage::kRunning;
  figures_ = std::make_shared<LabFigures>();
  TakeExperiment(experiment);
  pages_->setCurrentIndex(kResultsPage);
  ShowAll();
  ShowStage();
}

void LaboratoryScreen::Search() {
  if (const std::string error = setup_->ReadExperiment(searched_); !error.empty()) return Tell(error);
  question_ = setup_->Question();
  stage_ = Stage::kSearching;
  showsSearch_ = true;
  run_.Find(searched_, question_);
  pages_->setCurrentIndex(kFoundPage);
  ShowAll();
  ShowStage();
}

// Four times as many halve the bounds. 0 where there is nothing to be gone on with.
std::int64_t LaboratoryScreen::MoreSessions() const {
  const bool over = stage_ == Stage::kSetUp && figures_->finished && experiment_.precision == kZero;
  return over && experiment_.shards == 1 && figures_->sessions <= kMostLabSessions / 4
             ? figures_->sessions * 4
             : 0;
}

void LaboratoryScreen::EndOrGoOn() {
  if (const std::int64_t more = MoreSessions(); more > 0) {
    run_.applicationFolder = game_.applicationFolder;
    run_.threads = setup_->Threads();
    showsSearch_ = false;
    ending_ = false;
    experiment_.sessions = more;
    session_->setRange(1, static_cast<int>(more));
    run_.GoOnTo(more);
    stage_ = Stage::kRunning;
    return ShowStage();
  }
  ending_ = true;
  if (IsBusy()) return run_.Stop();
  stage_ = Stage::kSetUp;
  ShowStage();
}

void LaboratoryScreen::RunEnded() {
  if (stage_ == Stage::kSearching) return SearchEnded();
  TakeFigures();
  const bool over = ending_ || figures_->finished || !run_.Error().empty();
  stage_ = over ? Stage::kSetUp : Stage::kPaused;
  ShowAll();
  ShowStage();
  if (run_.Error().empty()) return;
  if (figures_->sessions == 0) pages_->setCurrentIndex(kSetUpPage);
  Tell(run_.Error());
}

void LaboratoryScreen::SearchEnded() {
  stage_ = Stage::kSetUp;
  showsSearch_ = !run_.Answers().empty();
  ShowAll();
  ShowStage();
  if (!showsSearch_) pages_->setCurrentIndex(kSetUpPage);
  if (!run_.Error().empty()) Tell(run_.Error());
}

void LaboratoryScreen::TakeFigures() {
  figures_ = run_.Figures();
  ShowAll();
}

// --- Showing.

void LaboratoryScreen::Retranslate() {
  for (int i = 0; i < rank_->count(); ++i) rank_->setItemText(i, RankCaption(static_cast<RankBy>(i)));
  if (b_->count() > 0) b_->setItemText(0, tr("(none)"));
  ShowAll();
  ShowStage();
}

// A new one, or one that was opened.
void LaboratoryScreen::TakeExperiment(const Experiment& experiment) {
  experiment_ = experiment;
  showsSearch_ = false;
  grids_.clear();
  grid_->clear();
  for (LabGrid& grid : GridsOf(experiment)) {
    grid_->addItem(FromCore(grid.name));
    grids_.push_back(std::make_shared<const LabGrid>(std::move(grid)));
  }
  grid_->setVisible(grids_.size() > 1);
  session_->setRange(1, static_cast<int>(experiment.sessions));
  ListSystems();
}

// The system becomes A, and what was A becomes B.
void LaboratoryScreen::Compare(int system) {
  if (system == a_->currentIndex()) return;
  b_->setCurrentIndex(a_->currentIndex() + 1);
  a_->setCurrentIndex(system);
  sent_->setCurrentIndex(system);
  Watch();
}

void LaboratoryScreen::Watch() {
  run_.Watch(A(), B());
  if (!run_.IsOn()) figures_ = run_.Figures();
  ShowAll();
}

std::size_t LaboratoryScreen::A() const { return static_cast<std::size_t>(std::max(0, a_->currentIndex())); }
// The first of B's list is none.
std::size_t LaboratoryScreen::B() const {
  return b_->currentIndex() <= 0 ? A() : static_cast<std::size_t>(b_->currentIndex() - 1);
}

RankBy LaboratoryScreen::Rank() const { return static_cast<RankBy>(std::max(0, rank_->currentIndex())); }

void LaboratoryScreen::ListSystems() {
  QStringList names;
  for (const LabSystem& system : experiment_.systems) names << FromCore(LabelOf(system));
  for (QComboBox* box : {a_, b_, sent_}) {
    box->clear();
    if (box == b_) box->addItem(tr("(none)"));
    box->addItems(names);
    box->setEnabled(!names.isEmpty());
  }
  b_->setCurrentIndex(names.size() > 1 ? 2 : 0);
  b_->setEnabled(names.size() > 1);
  rank_->setEnabled(names.size() > 1);
  run_.Watch(0, 1);
}

void LaboratoryScreen::ShowAll() {
  ShowVerdict();
  ShowTables();
  ShowAbout();
  for (LabPictureView* picture : pictures_) picture->Show(figures_, LookNow());
  const bool searching = stage_ == Stage::kSearching;
  progress_->setRange(0, searching ? 0 : kProgressSteps);
  if (searching) return;
  const std::int64_t target = std::max<std::int64_t>(figures_->target, 1);
  progress_->setValue(static_cast<int>(kProgressSteps * static_cast<double>(figures_->sessions) /
                                       static_cast<double>(target)));
}

void LaboratoryScreen::ShowVerdict() {
  if (showsSearch_) {
    const bool searching = stage_ == Stage::kSearching;
    verdict_->setText(searching ? tr("Looking, always on the same dice ...").toHtmlEscaped()
                                : FoundSentence(searched_, question_, run_.Answers()).toHtmlEscaped());
    below_->setText(tr("%1 sessions for each value that is tried, seed %2.")
                        .arg(LabCount(searched_.sessions), QString::number(searched_.seed)));
    return;
  }
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  const LabVerdict verdict = JudgeLab(*figures_, A(), B(), dark);
  const bool begun = !verdict.sentence.isEmpty();
  const bool running = stage_ == Stage::kRunning;
  verdict_->setText(begun     ? verdict.coloured
                    : running ? tr("The first sessions are being played ...")
                              : tr("What does a system bring over a whole session?"));
  below_->setText(begun ? verdict.below
                  : running
                      ? QString()
                      : tr("Add systems, say how sessions end, and run: each session has dice of its own, "
                           "the same for every system."));
}

namespace {

// The mean stands out, and A and B have their colours.
void MarkMeasures(QTableWidget& table, bool dark) {
  constexpr int kMeanRow = 1;
  for (int column = 0; column < table.columnCount(); ++column) {
    if (column > 0) table.horizontalHeaderItem(column)->setForeground(LabColour(column == 2, dark));
    QTableWidgetItem* item = table.item(kMeanRow, column);
    if (item == nullptr) continue;
    QFont font = table.font();
    font.setBold(true);
    item->setFont(font);
    if (column > 0)
      table.setColumnWidth(column, std::max(table.columnWidth(column),
                                            QFontMetrics(font).horizontalAdvance(item->text()) + 12));
    QColor tint = LabColour(false, dark);
    tint.setAlpha(40);
    item->setBackground(tint);
  }
  int figures = 0;
  for (int column = 1; column < table.columnCount(); ++column) figures += table.columnWidth(column);
  table.setColumnWidth(0, std::max(kMeasuresWidth - kScrollBarWidth - figures, 80));
}

}  // namespace

// Only what is seen.
void LaboratoryScreen::ShowTables() {
  const int page = pages_->currentIndex();
  if (page == kResultsPage) {
    FillTable(*measures_, MeasureRows(*figures_, A(), B()));
    MarkMeasures(*measures_, palette().color(QPalette::Window).lightness() < 128);
  }
  if (page == kSystemsPage) FillTable(*systems_, RankedRows(*figures_, Rank()));
  if (page == kPairsPage) FillTable(*compared_, PairRows(*figures_), 2);
  if (page == kFoundPage)
    FillTable(*found_,
              FoundRows(searched_, question_, run_.IsOn() ? std::vector<LabAnswer>() : run_.Answers()));
}

void LaboratoryScreen::ShowAbout() {
  if (experiment_.systems.empty() || figures_->systems.size() != experiment_.systems.size())
    return about_->clear();
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  QString rows;
  const auto add = [&](const QString& name, const QString& text, const QString& colour = {}) {
    const QString style = colour.isEmpty() ? QString() : "font-weight:bold;color:" + colour;
    rows += QString("<tr><td style=\"%1\">%2&nbsp;&nbsp;</td><td>%3</td></tr>")
                .arg(style, name.toHtmlEscaped(), text.toHtmlEscaped());
  };
  add("A", figures_->systems[A()].name, LabColour(false, dark).name());
  if (A() != B()) add("B", figures_->systems[B()].name, LabColour(true, dark).name());
  if (experiment_.systems.size() > 2) add(tr("Systems"), LabCount(std::ssize(experiment_.systems)));
  add(tr("Dice"), experiment_.percentageDice
                      ? tr("percentage dice, seed %1, the same for all").arg(experiment_.seed)
                      : tr("RNG %1, seed %2, the same for all")
                            .arg(std::max(experiment_.generator, 1))
                            .arg(experiment_.seed));
  if (run_.Seconds() > 0)
    add(tr("Time"),
        tr("%1 sessions in %2 s").arg(LabCount(figures_->sessions), ShownNumber(run_.Seconds(), 1)));
  about_->setText("<b>" + tr("Experiment").toHtmlEscaped() + "</b><table>" + rows + "</table>");
}

void LaboratoryScreen::ShowStage() {
  const std::int64_t more = MoreSessions();
  start_->setEnabled(true);
  start_->setText(stage_ == Stage::kRunning     ? tr("Pa&use")
                  : stage_ == Stage::kSearching ? tr("&Stop")
                  : stage_ == Stage::kPaused    ? tr("C&ontinue")
                  : setup_->IsSearch()          ? tr("&Find it")
                                                : tr("&Run %1").arg(LabCount(setup_->Sessions())));
  end_->setText(more > 0 ? tr("&Go on to %1").arg(LabCount(more)) : tr("&End"));
  end_->setToolTip(more > 0
                       ? tr("Plays more of the same experiment: four times as many sessions halve the bounds")
                       : tr("Ends the experiment with what is known"));
  end_->setEnabled(stage_ == Stage::kRunning || stage_ == Stage::kPaused || more > 0);
  setup_->setEnabled(stage_ == Stage::kSetUp);
  const bool there = !IsBusy() && figures_->sessions > 0;
  report_->setEnabled(there);
  save_->setEnabled(there);
  saveCsv_->setEnabled(there && run_.HasLines());
  saveLogs_->setEnabled(there && run_.HasRecords());
  open_->setEnabled(!IsBusy());
  for (QWidget* control : std::initializer_list<QWidget*>{session_, sent_, send_})
    control->setEnabled(!experiment_.systems.empty());
}

// --- Files.

void LaboratoryScreen::Answer(const std::string& error, const QString& done) {
  if (!error.empty()) return Tell(error);
  pointed_->setText(done);
}

void LaboratoryScreen::Open() {
  const std::string path = ChooseFile(game_, this, kOpenLab);
  if (path.empty() || run_.IsOn()) return;
  std::string missing;
  if (const std::string error = run_.Open(path, missing); !error.empty()) return Tell(error);
  figures_ = run_.Figures();
  TakeExperiment(run_.State().experiment);
  setup_->ShowExperiment(run_.State().experiment, run_.State().rows.Any());
  figures_ = run_.Figures();
  stage_ = figures_->finished ? Stage::kSetUp : Stage::kPaused;
  ending_ = false;
  pages_->setCurrentIndex(kResultsPage);
  ShowAll();
  ShowStage();
  if (!missing.empty())
    Tell(ToCore(
        tr("The experiment is open without its single sessions, so there is no CSV and no Sessions Log "
           "of it: %1")
            .arg(FromCore(missing))));
}

void LaboratoryScreen::SaveLab() {
  const std::string path = ChooseFile(game_, this, kSaveLab, "experiment.lab");
  if (path.empty() || run_.IsOn()) return;
  Answer(run_.SaveAs(path), tr("Saved; it is kept up to date there from now on."));
}

void LaboratoryScreen::SaveCsv() {
  const std::string path = ChooseFile(game_, this, kSaveCsv, "sessions.csv");
  if (path.empty() || run_.IsOn()) return;
  Answer(run_.WriteCsv(path), tr("Saved: a line for each session and system."));
}

void LaboratoryScreen::SaveLogs() {
  const std::string path = ChooseFile(game_, this, kSaveLogs, "laboratory.slg");
  if (path.empty() || run_.IsOn()) return;
  const std::size_t systems = experiment_.systems.size();
  // Of several systems each has a file of its own, which nobody has been asked about.
  for (std::size_t i = 0; systems > 1 && i < systems; ++i)
    if (const std::string log = SessionsLogOf(path, i, systems); QFile::exists(FromCore(log)))
      return Tell(log + ": " + ToCore(tr("this file is there already; choose another name")));
  Answer(run_.WriteLogs(path),
         systems == 1 ? tr("Saved.") : tr("Saved: a Sessions Log for each system, numbered in their order."));
}

void LaboratoryScreen::SaveJson() {
  const std::string path = ChooseFile(game_, this, kSaveJson, "laboratory.json");
  if (path.empty() || run_.IsOn()) return;
  const std::string text = LabJson<nlohmann::ordered_json>(run_.State())
                               .dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  Answer(ReplaceFile(path, text + "\n"), tr("Saved."));
}

void LaboratoryScreen::CopyCommand() {
  const QString command = FromCore(LabCommand(experiment_));
  if (command.isEmpty()) return Tell(ToCore(tr("There is no command line for this experiment.")));
  QApplication::clipboard()->setText(command);
  pointed_->setText(tr("Copied: %1").arg(command));
  pointed_->setToolTip(command);
}

void LaboratoryScreen::Report() {
  const std::string path = ChooseFile(game_, this, kSaveReport, "laboratory.html");
  if (path.empty() || run_.IsOn()) return;
  if (const std::string error = ReplaceFile(path, HtmlReport(run_.State(), Rank())); !error.empty())
    return Tell(error);
  openFile(FromCore(path));
}

void LaboratoryScreen::SendToTable() {
  if (!toTable) return;
  const QString told = toTable(experiment_, static_cast<std::size_t>(std::max(0, sent_->currentIndex())),
                               session_->value() - 1);
  if (!told.isEmpty()) pointed_->setText(told);
  pointed_->setToolTip(told);
}

QList<QStringList> LaboratoryScreen::Rows() const {
  if (pages_->currentIndex() == kPairsPage) return PairRows(*figures_);
  if (pages_->currentIndex() == kFoundPage) return FoundRows(searched_, question_, run_.Answers());
  return RankedRows(*figures_, Rank());
}

QStringList LaboratoryScreen::PrintHeadings() const {
  QStringList lines = {tr("Tessaryn Laboratory")};
  const LabVerdict verdict = JudgeLab(*figures_, A(), B());
  if (!verdict.sentence.isEmpty()) lines << verdict.sentence << verdict.below;
  return lines;
}

LabLook LaboratoryScreen::LookNow() const {
  LabLook look;
  const int page = pages_->currentIndex();
  look.picture = page == kWayPage     ? LabPicture::kWay
                 : page == kEndsPage  ? LabPicture::kEnds
                 : page == kSweepPage ? LabPicture::kSweep
                                      : LabPicture::kResults;
  look.a = A();
  look.b = B();
  const auto grid = static_cast<std::size_t>(std::max(0, grid_->currentIndex()));
  if (grid < grids_.size()) look.grid = grids_[grid];
  look.by = Rank();
  return look;
}

void LaboratoryScreen::PaintPicture(QPainter& painter, const QRectF& area) const {
  PaintLab(painter, area, *figures_, LookNow());
}

}  // namespace tessaryn
