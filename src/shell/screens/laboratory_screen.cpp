#include "shell/screens/laboratory_screen.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "base/record_file.h"
#include "lab/html_report.h"
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

constexpr int kResultsPage = 1;
constexpr int kSystemsPage = 4;
constexpr int kProgressSteps = 1'000;
constexpr int kMeasuresWidth = 330;

// Sorted by the number that it begins with.
struct NumberItem : QTableWidgetItem {
  using QTableWidgetItem::QTableWidgetItem;
  double Number() const {
    Currency number;
    ReadNumber(text().section(' ', 0, 0).remove('%'), number);
    return number.ToDouble();
  }
  bool operator<(const QTableWidgetItem& other) const override {
    return Number() < static_cast<const NumberItem&>(other).Number();
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
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
  return table;
}

void FillTable(QTableWidget& table, const QList<QStringList>& rows) {
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
        item = column == 0 ? new QTableWidgetItem : new NumberItem;
        item->setTextAlignment((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        table.setItem(row, column, item);
      }
      if (item->text() != text) item->setText(text);
      if (column == 0) item->setToolTip(text);
    }
  for (int column = 1; column < table.columnCount(); ++column)
    table.horizontalHeaderItem(column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  table.horizontalHeaderItem(0)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table.setSortingEnabled(sorted);
  if (columnsChange || table.rowCount() > 0) table.resizeColumnsToContents();
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
  font.setBold(true);
  verdict_->setFont(font);
  below_ = new QLabel(band);
  below_->setObjectName("lblBelow");
  for (QLabel* label : {verdict_, below_}) {
    label->setTextFormat(Qt::PlainText);
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
  end_->setToolTip(tr("Ends the experiment with what is known"));
  buttons->addWidget(start_);
  buttons->addWidget(end_);
  row->addLayout(buttons);
  connect(start_, &QPushButton::clicked, this, &LaboratoryScreen::RunOrPause);
  connect(end_, &QPushButton::clicked, this, &LaboratoryScreen::End);
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
    row->addWidget(box, 1);
    connect(box, &QComboBox::activated, this, &LaboratoryScreen::ShowAll);
    return box;
  };
  a_ = add("cmbA", tr("Comp&are A"), tr("System A"));
  b_ = add("cmbB", tr("&with B"), tr("System B"));
  pointed_ = new QLabel(choice);
  pointed_->setObjectName("lblPointed");
  pointed_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(pointed_, 2);
  return choice;
}

QWidget* LaboratoryScreen::MakePages() {
  pages_ = new QTabWidget(this);
  pages_->setObjectName("tabLaboratory");
  pages_->setAccessibleName(tr("Pages of the laboratory"));
  setup_ = new LaboratorySetup(game_, pages_);
  connect(setup_, &LaboratorySetup::Changed, this, &LaboratoryScreen::ShowStage);
  pages_->addTab(setup_, tr("E&xperiment"));
  constexpr const char* kNames[] = {"picResults", "picWay", "picEnds"};
  for (int i = 0; i < 3; ++i) {
    pictures_[i] = new LabPictureView(static_cast<LabPicture>(i), kNames[i], pages_);
    connect(pictures_[i], &LabPictureView::Pointed, pointed_, &QLabel::setText);
  }
  auto* results = new QWidget(pages_);
  auto* row = new QHBoxLayout(results);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(pictures_[0], 1);
  measures_ = Table("lstMeasures", tr("Measures"), results);
  measures_->setMaximumWidth(kMeasuresWidth);
  measures_->setMinimumWidth(kMeasuresWidth);
  row->addWidget(measures_);
  pages_->addTab(results, tr("Res&ults"));
  pages_->addTab(pictures_[1], tr("On the wa&y"));
  pages_->addTab(pictures_[2], tr("E&nds"));
  systems_ = Table("lstAllSystems", tr("All systems"), pages_);
  systems_->setSortingEnabled(true);
  systems_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  pages_->addTab(systems_, tr("All s&ystems"));
  connect(pages_, &QTabWidget::currentChanged, this, [this] { ShowAll(); });
  return pages_;
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
  row->addWidget(report_);
  connect(send_, &QPushButton::clicked, this, &LaboratoryScreen::SendToTable);
  connect(report_, &QPushButton::clicked, this, &LaboratoryScreen::Report);
  return foot;
}

// --- Running.

void LaboratoryScreen::Tell(const std::string& problem) {
  ShowMessage<Msg::kFileProblem>(game_, With<"title">(ToCore(tr("Laboratory"))), With<"problem">(problem));
}

void LaboratoryScreen::RunOrPause() {
  if (stage_ == Stage::kRunning) {
    run_.Stop();
    start_->setEnabled(false);
    return;
  }
  if (stage_ == Stage::kSetUp) return Begin();
  run_.GoOn(game_.applicationFolder);
  stage_ = Stage::kRunning;
  ShowStage();
}

void LaboratoryScreen::Begin() {
  Experiment experiment;
  if (const std::string error = setup_->ReadExperiment(experiment); !error.empty()) return Tell(error);
  experiment_ = experiment;
  figures_ = {};
  ending_ = false;
  run_.Start(BeginLab(experiment, false, false), game_.applicationFolder);
  stage_ = Stage::kRunning;
  ListSystems();
  session_->setRange(1, static_cast<int>(experiment.sessions));
  pages_->setCurrentIndex(kResultsPage);
  ShowAll();
  ShowStage();
}

void LaboratoryScreen::End() {
  ending_ = true;
  if (stage_ == Stage::kRunning) return run_.Stop();
  stage_ = Stage::kSetUp;
  ShowStage();
}

void LaboratoryScreen::RunEnded() {
  TakeFigures();
  const bool over = ending_ || figures_.finished || !run_.Error().empty();
  stage_ = over ? Stage::kSetUp : Stage::kPaused;
  ShowStage();
  if (run_.Error().empty()) return;
  if (figures_.sessions == 0) pages_->setCurrentIndex(0);
  Tell(run_.Error());
}

void LaboratoryScreen::TakeFigures() {
  figures_ = run_.Figures();
  ShowAll();
}

// --- Showing.

std::size_t LaboratoryScreen::A() const { return static_cast<std::size_t>(std::max(0, a_->currentIndex())); }
// The first of B's list is none.
std::size_t LaboratoryScreen::B() const {
  return b_->currentIndex() <= 0 ? A() : static_cast<std::size_t>(b_->currentIndex() - 1);
}

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
}

void LaboratoryScreen::ShowAll() {
  ShowVerdict();
  ShowTables();
  for (LabPictureView* picture : pictures_) picture->Show(figures_, A(), B());
  const std::int64_t target = std::max<std::int64_t>(figures_.target, 1);
  progress_->setValue(static_cast<int>(kProgressSteps * static_cast<double>(figures_.sessions) /
                                       static_cast<double>(target)));
}

void LaboratoryScreen::ShowVerdict() {
  const LabVerdict verdict = JudgeLab(figures_, A(), B());
  const bool begun = !verdict.sentence.isEmpty();
  const bool running = stage_ == Stage::kRunning;
  verdict_->setText(begun     ? verdict.sentence
                    : running ? tr("The first sessions are being played ...")
                              : tr("What does a system bring over a whole session?"));
  below_->setText(begun ? verdict.below
                  : running
                      ? QString()
                      : tr("Add systems, say how sessions end, and run: each session has dice of its own, "
                           "the same for every system."));
}

// Only what is seen.
void LaboratoryScreen::ShowTables() {
  if (pages_->currentIndex() == kResultsPage) FillTable(*measures_, MeasureRows(figures_, A(), B()));
  if (pages_->currentIndex() == kSystemsPage) FillTable(*systems_, SystemRows(figures_));
}

void LaboratoryScreen::ShowStage() {
  const bool running = stage_ == Stage::kRunning;
  start_->setEnabled(true);
  start_->setText(running                    ? tr("Pa&use")
                  : stage_ == Stage::kPaused ? tr("C&ontinue")
                                             : tr("&Run %1").arg(LabCount(setup_->Sessions())));
  end_->setEnabled(stage_ != Stage::kSetUp);
  setup_->setEnabled(stage_ == Stage::kSetUp);
  report_->setEnabled(!running && figures_.sessions > 0);
  for (QWidget* control : std::initializer_list<QWidget*>{session_, sent_, send_})
    control->setEnabled(!experiment_.systems.empty());
}

// --- Taking away.

void LaboratoryScreen::Report() {
  const std::string path = ChooseFile(game_, this, kSaveReport, "laboratory.html");
  if (path.empty() || run_.IsOn()) return;
  if (const std::string error = ReplaceFile(path, HtmlReport(run_.State())); !error.empty())
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

QList<QStringList> LaboratoryScreen::Rows() const { return SystemRows(figures_); }

QStringList LaboratoryScreen::PrintHeadings() const {
  QStringList lines = {tr("Tessaryn Laboratory")};
  const LabVerdict verdict = JudgeLab(figures_, A(), B());
  if (!verdict.sentence.isEmpty()) lines << verdict.sentence << verdict.below;
  return lines;
}

LabLook LaboratoryScreen::LookNow() const {
  LabLook look;
  const int page = pages_->currentIndex() - kResultsPage;
  if (page > 0 && page < 3) look.picture = static_cast<LabPicture>(page);
  look.a = A();
  look.b = B();
  return look;
}

void LaboratoryScreen::PaintPicture(QPainter& painter, const QRectF& area) const {
  PaintLab(painter, area, figures_, LookNow());
}

}  // namespace tessaryn
