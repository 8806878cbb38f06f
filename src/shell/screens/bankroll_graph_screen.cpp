#include "shell/screens/bankroll_graph_screen.h"

#include <QAction>
#include <QColorDialog>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHideEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "base/number_text.h"
#include "play/auto_roll.h"
#include "play/setting_table.h"
#include "shell/screens/bankroll_graph_view.h"
#include "shell/screens/player_head.h"
#include "shell/screens/print_heading.h"
#include "shell/table/number_habit.h"
#include "shell/table/run_controls.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "state/show_message.h"
#include "stats/bankroll_graph.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr int kTurboMessages = 16;  // the bit of MessageMask for a script's messages in a Turbo-Roll
constexpr int kGraphsOnPage[] = {1, 2, 3, 4, 6, 8};

constexpr QSize kLeastDockedGraph(280, 150);
constexpr int kAllFrom = 400;    // pixels of width
constexpr int kScaleFrom = 210;  // and of height
constexpr int kRunFrom = 240;

void ShowGraphRow(const QLayout& row, bool shown) {
  for (int n = 0; n < row.count(); ++n)
    if (QWidget* part = row.itemAt(n)->widget(); part != nullptr) part->setVisible(shown);
}

bool IsDark(const QWidget& widget) { return widget.palette().color(QPalette::Window).lightness() < 128; }

void Colour(QLabel& label, const QColor& colour) {
  QPalette palette = label.palette();
  if (palette.color(QPalette::WindowText) == colour) return;
  palette.setColor(QPalette::WindowText, colour);
  label.setPalette(palette);
}

// Only what changes is laid out anew.
void Show(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
}

QString Signed(Currency value) { return (value > kZero ? "+" : "") + GraphMoney(value); }

QString Count(double value) { return FromCore(NumberText(value, kWholeNumber)); }

QString SimHours(const Game& game) {
  const double rate = game.settings.SimRollRate.ToDouble();
  if (rate <= 0) return kNoValueText;
  return FromCore(NumberText(static_cast<double>(SessionRolls(game.stats)) / rate, kUpToTwoDecimals));
}

QString RollRateText(const Game& game) {
  return FromCore(NumberText(game.settings.SimRollRate.Number(), kUpToTwoDecimals));
}

}  // namespace

BankrollGraphScreen::BankrollGraphScreen(Game& game, QWidget* parent)
    : ToolWindow("frmBankroll", parent), game_(game) {
  setWindowTitle(tr("Bankroll"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  column->setSpacing(4);
  AddHeader(*column);
  AddFigures(*column);
  view_ = new GraphView(this);
  column->addWidget(view_, 1);
  connect(view_, &GraphView::referenceMoved, this, &BankrollGraphScreen::MoveReference);
  connect(view_, &GraphView::shifted, this, [this](int steps) {
    ShiftScale(game_, steps);
    Refresh();
  });
  connect(view_, &GraphView::unitStepped, this, [this](int steps) {
    StepScaleUnit(game_, steps);
    Refresh();
  });
  AddReferences(*column);
  AddScale(*column);
  AddRun(*column);
  BuildMenu();
  resize(560, 440);
  Refresh();
}

// --- The controls.

void BankrollGraphScreen::AddHeader(QBoxLayout& column) {
  const PlayerHeadTexts texts{tr("Player"), tr("Options"), tr("Modes, averages, colors, printing")};
  const PlayerHead head = AddPlayerHead(column, "mnuGraph", texts, this);
  player_ = head.player;
  menu_ = head.menu;
  connect(player_, &QComboBox::activated, this, [this] {
    SelectPlotSeat(game_, player_->currentData().toInt());
    Refresh();
  });
  connect(menu_, &QMenu::aboutToShow, this, &BankrollGraphScreen::ShowTicks);
}

BankrollGraphScreen::Figure BankrollGraphScreen::AddFigure(QBoxLayout& row, const char* name,
                                                           const QString& caption) {
  auto* box = new QVBoxLayout;
  box->setSpacing(0);
  Figure figure{new QLabel(caption, this), new QLabel(this)};
  figure.value->setObjectName(name);
  QFont bold = font();
  bold.setBold(true);
  figure.value->setFont(bold);
  figure.value->setTextInteractionFlags(Qt::NoTextInteraction);
  box->addWidget(figure.caption);
  box->addWidget(figure.value);
  row.addLayout(box, 1);
  return figure;
}

void BankrollGraphScreen::AddFigures(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  row->setSpacing(12);
  column.addLayout(row);
  high_ = AddFigure(*row, "lblHighBankroll", tr("High")).value;
  current_ = AddFigure(*row, "lblCurrentBankroll", tr("Current")).value;
  low_ = AddFigure(*row, "lblLowBankroll", tr("Low")).value;
  gain_ = AddFigure(*row, "lblSessionGain", tr("Session")).value;
  average_ = AddFigure(*row, "lblAverage", {});
  average_.caption->setObjectName("lblMovingAverage");
}

QSlider* BankrollGraphScreen::AddReference(QGridLayout& grid, int which) {
  auto* slider = new QSlider(Qt::Horizontal, references_);
  slider->setObjectName(QString("hsbRefRolls%1").arg(which));
  slider->setAccessibleName(tr("Reference line %1").arg(which));
  slider->setRange(0, kPlotCells);
  slider->setPageStep(25);
  connect(slider, &QSlider::valueChanged, this, [this, which](int cell) { MoveReference(which, cell); });
  auto* bankroll = new QLabel(references_);
  bankroll->setObjectName(QString("lblRefBR%1").arg(which));
  bankroll->setMinimumWidth(fontMetrics().horizontalAdvance("9,999,999.99"));
  grid.addWidget(new QLabel(QString::number(which), references_), which - 1, 0);
  grid.addWidget(slider, which - 1, 1);
  grid.addWidget(bankroll, which - 1, 2);
  referenceBankrolls_[which - 1] = bankroll;
  return slider;
}

void BankrollGraphScreen::AddReferences(QBoxLayout& column) {
  references_ = new QWidget(this);
  auto* grid = new QGridLayout(references_);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(2);
  grid->setColumnStretch(1, 1);
  for (const int which : {1, 2}) referenceSliders_[which - 1] = AddReference(*grid, which);
  rollsDif_ = new QLabel(references_);
  rollsDif_->setObjectName("lblRollsDif");
  bankrollDif_ = new QLabel(references_);
  bankrollDif_->setObjectName("lblBankrollDif");
  bankrollDif_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("Bankroll dif") + "  -9,999,999"));
  grid->addWidget(rollsDif_, 0, 3);
  grid->addWidget(bankrollDif_, 1, 3);
  column.addWidget(references_);
}

void BankrollGraphScreen::AddScale(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  scaleRow_ = row;
  row->setSpacing(4);
  column.addLayout(row);
  struct Key {
    const char* name;
    QString what;
    QString text;
    Qt::ArrowType arrow;
    void (*change)(Game&, int);
    int steps;
  };
  const Key keys[] = {{"picUpScaleUp", tr("Graph up"), {}, Qt::UpArrow, ShiftScale, 1},
                      {"picDownScaleUp", tr("Graph down"), {}, Qt::DownArrow, ShiftScale, -1},
                      {"cmdScale0", tr("Smaller scale"), tr("- Scale"), Qt::NoArrow, StepScaleUnit, -1},
                      {"cmdScale1", tr("Larger scale"), tr("Scale +"), Qt::NoArrow, StepScaleUnit, 1}};
  for (const Key& key : keys) {
    auto* button = new QToolButton(this);
    button->setObjectName(key.name);
    button->setText(key.text);
    button->setArrowType(key.arrow);
    button->setAccessibleName(key.what);
    button->setToolTip(key.what);
    button->setMinimumSize(24, 24);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, this, [this, change = key.change, steps = key.steps] {
      change(game_, steps);
      Refresh();
    });
    row->addWidget(button);
  }
  row->addStretch();
  rolls_ = new QLabel(this);
  rate_ = new QLabel(this);
  hours_ = new QLabel(this);
  rolls_->setObjectName("lblNumRolls");
  rate_->setObjectName("lblRollsPerHr");
  hours_->setObjectName("lblSimHrs");
  for (QLabel* label : {rolls_, rate_, hours_}) row->addWidget(label);
}

void BankrollGraphScreen::AddRun(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  runRow_ = row;
  column.addLayout(row);
  throttle_ = new QSlider(Qt::Horizontal, this);
  throttle_->setObjectName("hsbThrottle");
  throttle_->setRange(0, kThrottleAutoRoll);
  throttle_->setPageStep(1);
  throttle_->setMinimumWidth(80);
  throttle_->setAccessibleName(tr("Speed of a run"));
  connect(throttle_, &QSlider::valueChanged, this, [this](int position) {
    SetThrottle(game_, position);
    Refresh();
  });
  speed_ = new QLabel(this);
  speed_->setObjectName("lblThrottle");
  speed_->setMinimumWidth(speed_->fontMetrics().horizontalAdvance(ThrottleText(kThrottleAutoRoll - 1)) + 2);
  run_ = new QPushButton(this);
  run_->setObjectName("cmdTurboRollActive");
  run_->setMinimumWidth(run_->fontMetrics().horizontalAdvance(tr("Start Turbo-Roll")) + 24);
  connect(run_, &QPushButton::clicked, this, &BankrollGraphScreen::ToggleRun);
  row->addWidget(new QLabel(tr("fast"), this));
  row->addWidget(throttle_, 1);
  row->addWidget(new QLabel(tr("slow"), this));
  row->addSpacing(8);
  row->addWidget(speed_);
  row->addWidget(run_);
}

// --- What is shown.

// A graph of nobody turns to somebody who is there.
void BankrollGraphScreen::MeetSeat() {
  const TableState& table = game_.table;
  if (IsOccupied(table, game_.graph.PlotSeat) || table.OccupiedSeats == 0) return;
  SelectPlotSeat(game_, IsOccupied(table, table.SelectedSeat) ? table.SelectedSeat : SeatId(table.Seated[0]));
}

void BankrollGraphScreen::ShowPlayers() {
  QStringList names;
  QList<int> seats;  // as the combo box keeps them
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game_.table, seat)) continue;
    names += FromCore(game_.table.seats[seat].SeatName);
    seats += seat;
  }
  bool same = seats.size() == player_->count();
  for (int n = 0; same && n < player_->count(); ++n)
    same = player_->itemText(n) == names[n] && player_->itemData(n).toInt() == seats[n];
  if (!same) {
    player_->clear();
    for (qsizetype n = 0; n < seats.size(); ++n) player_->addItem(names[n], seats[n]);
    player_->setEnabled(!seats.isEmpty());
  }
  const int at = player_->findData(game_.graph.PlotSeat.value);
  if (at != player_->currentIndex()) player_->setCurrentIndex(at);
}

void BankrollGraphScreen::ShowGain() {
  const SeatId seat = game_.graph.PlotSeat;
  const Currency gain = game_.table.BankrollCurrent[seat] - game_.stats.BankrollSessionStart[seat];
  const bool dark = IsDark(*this);
  QString text = Signed(gain);
  QColor colour = palette().color(QPalette::WindowText);
  if (gain > kZero) {
    text = QString(QChar(0x25B2)) + " " + text;
    colour = QColor(dark ? 0x7BE0A3 : 0x0A7A43);
  } else if (gain < kZero) {
    text = QString(QChar(0x25BC)) + " " + text;
    colour = QColor(dark ? 0xFF9C8F : 0xB3261E);
  }
  Show(*gain_, text);
  Colour(*gain_, colour);
}

void BankrollGraphScreen::ShowFigures(const GraphPage& page) {
  const BankrollGraph& graph = game_.graph;
  Show(*high_, GraphMoney(page.high));
  Show(*low_, GraphMoney(page.low));
  Show(*current_, GraphMoney(game_.table.BankrollCurrent[graph.PlotSeat]));
  ShowGain();
  Show(*average_.caption, page.averageCaption);
  const Currency average =
      page.averages.empty() ? BankrollAverage(game_, graph.PlotSeat, graph.PlotCount) : page.averages.back();
  Show(*average_.value, GraphMoney(average));
  Colour(*average_.caption, graph.DisplayAverage
                                ? GraphColoursOf(game_.screen.Graph, IsDark(*this)).parts[kGraphAverage]
                                : palette().color(QPalette::WindowText));
  Show(*rolls_, tr("%1 rolls", nullptr, PluralOf(SessionRolls(game_.stats)))
                    .arg(Count(static_cast<double>(SessionRolls(game_.stats)))));
  Show(*rate_, tr("@ %1 rolls/hr").arg(RollRateText(game_)));
  Show(*hours_, tr("= %1 sim hrs").arg(SimHours(game_)));
}

void BankrollGraphScreen::ShowReferences() {
  const BankrollGraph& graph = game_.graph;
  if (references_->isHidden() == graph.DisplayRefLines) references_->setVisible(graph.DisplayRefLines);
  if (!graph.DisplayRefLines) return;
  const ReferenceFigures lines = ReferencesOf(game_);
  const int cells[2] = {graph.RefRoll1, graph.RefRoll2};
  const bool shown[2] = {lines.shown1, lines.shown2};
  const Currency bankrolls[2] = {lines.bankroll1, lines.bankroll2};
  for (const int n : {0, 1}) {
    const QSignalBlocker quiet(referenceSliders_[n]);
    referenceSliders_[n]->setValue(cells[n]);
    Show(*referenceBankrolls_[n], shown[n] ? GraphMoney(bankrolls[n]) : kNoValueText);
  }
  const bool both = lines.shown1 && lines.shown2;
  Show(*rollsDif_, tr("Rolls diff") + "  " + (both ? Count(lines.rollsDif) : kNoValueText));
  Show(*bankrollDif_, tr("Bankroll dif") + "  " + (both ? Signed(lines.bankrollDif) : kNoValueText));
}

void BankrollGraphScreen::ShowRun() {
  const QSignalBlocker quiet(throttle_);
  throttle_->setValue(game_.settings.RollThrottle);
  Show(*speed_, ThrottleText(game_.settings.RollThrottle));
  // The window's own button has the access letter.
  const QString caption = RunCaption(game_).remove('&');
  if (run_->text() != caption) run_->setText(caption);
  run_->setEnabled(game_.table.AutoRollActive || !game_.table.RollInProgress);
}

void BankrollGraphScreen::Refresh() {
  MeetSeat();
  ShowPlayers();
  GraphPage page = TakeGraphPage(game_, WhichPage::kPresent);
  ShowFigures(page);
  ShowReferences();
  ShowRun();
  view_->SetPage(std::move(page), GraphColoursOf(game_.screen.Graph, IsDark(*this)));
}

QSize BankrollGraphScreen::minimumSizeHint() const {
  const QSize least = ToolWindow::minimumSizeHint();
  return isWindow() ? least : least.boundedTo(kLeastDockedGraph);
}

// In little room, as at a side of the table, the graph has it.
void BankrollGraphScreen::resizeEvent(QResizeEvent* event) {
  ShowGraphRow(*scaleRow_, height() >= kScaleFrom);
  ShowGraphRow(*runRow_, height() >= kRunFrom);
  const bool wide = width() >= kAllFrom;
  for (QLabel* label : {average_.caption, average_.value}) label->setVisible(wide);
  for (QLabel* label : {rate_, hours_}) label->setVisible(wide && height() >= kScaleFrom);
  speed_->setVisible(wide && height() >= kRunFrom);
  ToolWindow::resizeEvent(event);
}

void BankrollGraphScreen::changeEvent(QEvent* event) {
  // What it had to be as a window.
  if (event->type() == QEvent::ParentChange && !isWindow()) setMinimumSize(0, 0);
  if (event->type() == QEvent::PaletteChange && run_ != nullptr) Refresh();
  ToolWindow::changeEvent(event);
}

// --- What the user does.

void BankrollGraphScreen::DisplayReferences() {
  BankrollGraph& graph = game_.graph;
  graph.DisplayRefLines = !graph.DisplayRefLines;
  // Lines that nobody has placed yet enclose all that there is.
  if (!graph.DisplayRefLines || graph.RefRoll1 != 0 || graph.RefRoll2 != 0) return;
  SetReferenceRoll(game_, 1, 1);
  SetReferenceRoll(game_, 2, graph.PlotCount > 1 ? graph.PlotCount : kPlotCells);
}

void BankrollGraphScreen::MoveReference(int which, int cell) {
  game_.graph.DisplayRefLines = true;
  SetReferenceRoll(game_, which, cell);
  Refresh();
}

void BankrollGraphScreen::SetColour(int part) {
  QColorDialog dialog(GraphColoursOf(game_.screen.Graph, IsDark(*this)).parts[part], this);
  dialog.setObjectName("frmSetColor");
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  if (RunDialog(dialog) != QDialog::Accepted) return;
  game_.screen.Graph.GraphColors[part] = static_cast<int>(dialog.currentColor().rgb() & 0xFFFFFF);
  Refresh();
}

void BankrollGraphScreen::ToggleRun() {
  if (!game_.table.AutoRollActive && commitEntry && !commitEntry()) return;
  ToggleAutoRoll(game_);
  Refresh();
}

// As the same commands of the window: a run or a script is asked to stop, and the command goes no further.
bool BankrollGraphScreen::MayAct() {
  if (!AskBeforeCommand(game_) || game_.table.RollInProgress) return false;
  return !commitEntry || commitEntry();
}

// --- The menu.

QAction* BankrollGraphScreen::AddEntry(QMenu& menu, const QString& name, const QString& text,
                                       std::function<void()> act, std::function<bool()> ticked) {
  QAction* action = menu.addAction(text);
  action->setObjectName(name);
  action->setCheckable(static_cast<bool>(ticked));
  connect(action, &QAction::triggered, this, [this, act = std::move(act)] {
    act();
    ShowTicks();
    Refresh();
  });
  entries_.push_back({action, std::move(ticked)});
  return action;
}

// A menu of its own, of which one is chosen.
void BankrollGraphScreen::AddChoices(QMenu& menu, const QString& name, const QString& title,
                                     const QStringList& texts, std::function<int()> chosen,
                                     std::function<void(int)> choose) {
  QMenu* list = menu.addMenu(title);
  list->menuAction()->setObjectName(name);
  for (int n = 0; n < texts.size(); ++n)
    AddEntry(
        *list, name + QString::number(n), texts[n], [choose, n] { choose(n); },
        [chosen, n] { return chosen() == n; });
}

void BankrollGraphScreen::ShowTicks() {
  for (const Entry& entry : entries_)
    if (entry.ticked) entry.action->setChecked(entry.ticked());
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    auto* action = menu_->findChild<QAction*>(QString("mnuTogether%1").arg(seat));
    action->setText(QString("&%1  %2").arg(seat).arg(FromCore(game_.table.seats[seat].SeatName)));
    action->setVisible(IsOccupied(game_.table, seat) && seat != game_.graph.PlotSeat);
  }
  menu_->findChild<QAction*>("mnuPrintNow")->setEnabled(static_cast<bool>(printNow));
  menu_->findChild<QAction*>("mnuAutoPrint")->setEnabled(static_cast<bool>(printNow));
}

void BankrollGraphScreen::BuildMenu() {
  AddModes();
  AddDisplay();
  AddLooks();
  menu_->addSeparator();
  AddPrinting();
  menu_->addSeparator();
  AddRunSettings();
  view_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(view_, &QWidget::customContextMenuRequested, this,
          [this](QPoint at) { menu_->popup(view_->mapToGlobal(at)); });
  ShowTicks();
}

void BankrollGraphScreen::AddModes() {
  BankrollGraph& graph = game_.graph;
  AddChoices(
      *menu_, "mnuGraphPlotType", tr("Plot &type"), {tr("&Page"), tr("&Scroll")},
      [&graph] { return graph.PlotType; }, [&graph](int type) { graph.PlotType = type; });
  AddChoices(
      *menu_, "mnuGraphAdjustType", tr("Ad&just scale"),
      {tr("&Manual"), tr("Auto-&shift "), tr("Auto-shift with &expanding scale"),
       tr("Auto-shift with s&nap-back scale")},
      [&graph] { return graph.ScaleMode; },
      [this](int mode) {
        game_.graph.ScaleMode = mode;
        if (mode != kScaleManual) ResetBankrollGraph(game_, true);
      });
}

void BankrollGraphScreen::AddDisplay() {
  BankrollGraph& graph = game_.graph;
  menu_->addSeparator();
  AddEntry(
      *menu_, "mnuDisplayGridLines", tr("Display &grid lines"),
      [&graph] { graph.DisplayGridLines = !graph.DisplayGridLines; },
      [&graph] { return graph.DisplayGridLines; });
  AddEntry(
      *menu_, "mnuDisplayRefLines", tr("Display &reference lines"), [this] { DisplayReferences(); },
      [&graph] { return graph.DisplayRefLines; });
  AddEntry(
      *menu_, "mnuDisplayAverage", tr("Display moving &average"),
      [&graph] { graph.DisplayAverage = !graph.DisplayAverage; }, [&graph] { return graph.DisplayAverage; });
  AddEntry(*menu_, "mnuSetAverage", tr("Set &moving average ..."), [this] { SetMovingAverage(game_); });
  QMenu* together = menu_->addMenu(tr("&Players together"));
  together->menuAction()->setObjectName("mnuTogether");
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    AddEntry(
        *together, QString("mnuTogether%1").arg(seat), QString::number(seat),
        [this, seat] { game_.screen.Graph.TogetherSeats ^= 1u << seat; },
        [this, seat] { return (game_.screen.Graph.TogetherSeats >> seat & 1) != 0; });
  menu_->addSeparator();
}

void BankrollGraphScreen::AddLooks() {
  AddChoices(
      *menu_, "mnuGraphStyle", tr("Graph st&yle"), {tr("&Plain"), tr("&Striped"), tr("S&olid")},
      [this] { return game_.screen.Graph.GraphStyle; },
      [this](int style) { game_.screen.Graph.GraphStyle = style; });
  QMenu* colours = menu_->addMenu(tr("Set &color"));
  colours->menuAction()->setObjectName("mnuSetColor");
  const QString parts[kGraphColors] = {tr("&Background ..."),       tr("&Text ..."),
                                       tr("&Grid lines ..."),       tr("&Start of the session ..."),
                                       tr("Bank&roll ..."),         tr("&Area under the bankroll ..."),
                                       tr("&Moving average ..."),   tr("Reference line &1 ..."),
                                       tr("Reference line &2 ..."), tr("&Pointer ...")};
  for (int part = 0; part < kGraphColors; ++part)
    AddEntry(*colours, QString("mnuSetColor%1").arg(part), parts[part], [this, part] { SetColour(part); });
  colours->addSeparator();
  AddEntry(*colours, "mnuDefaultColors", tr("&Default colors"), [this] {
    for (int& colour : game_.screen.Graph.GraphColors) colour = -1;
  });
}

void BankrollGraphScreen::AddPrinting() {
  AddEntry(*menu_, "mnuPrintNow", tr("Print &now"), [this] {
    if (printNow) printNow();
  });
  AddEntry(
      *menu_, "mnuAutoPrint", tr("A&uto-print"), [this] { SetAutoPrint(!autoPrint_); },
      [this] { return autoPrint_; });
  QStringList counts;
  for (const int count : kGraphsOnPage) counts += QString::number(count);
  AddChoices(
      *menu_, "mnuGraphsPerPage", tr("Grap&hs on a page"), counts,
      [this] {
        const auto* at =
            std::find(std::begin(kGraphsOnPage), std::end(kGraphsOnPage), game_.screen.Graph.GraphsPerPage);
        return static_cast<int>(at - std::begin(kGraphsOnPage));
      },
      [this](int n) { game_.screen.Graph.GraphsPerPage = kGraphsOnPage[n]; });
}

void BankrollGraphScreen::AddRunSettings() {
  AddEntry(*menu_, "mnuSetTimeDelay", tr("Set Auto-Roll time &delay ..."), [this] {
    if (MayAct()) SetAutoRollDelay(game_);
  });
  AddEntry(*menu_, "mnuSetAutoStop", tr("Set Auto-St&op ..."), [this] {
    if (MayAct()) SetAutoStop(game_);
  });
  AddEntry(
      *menu_, "mnuShowLoggedMessages", tr("Show &logged messages"),
      [this] {
        std::string error;
        const std::string mask = std::to_string(game_.settings.MessageMask ^ kTurboMessages);
        if (!SetSetting(game_, "MessageMask", 0, mask, error))
          ShowMessage<Msg::kSettingRefused>(game_, With<"title">(ToCore(windowTitle())),
                                            With<"problem">(error));
      },
      [this] { return (game_.settings.MessageMask & kTurboMessages) != 0; });
}

// --- Printing.

QStringList BankrollGraphScreen::PrintHeadings() const {
  QStringList lines = PrintHeading(game_, tr("Bankroll"));
  lines += {PlayerLine(game_, game_.graph.PlotSeat), GameFileLine(game_)};
  if (printing_) return lines;  // each graph of the sheet has its own
  lines += GraphFigures(view_->Page());
  lines += rolls_->text() + " " + rate_->text() + " " + hours_->text();
  return lines;
}

QSizeF BankrollGraphScreen::PictureSize() const { return printing_ ? QSizeF(720, 940) : QSizeF(720, 440); }

void BankrollGraphScreen::PaintPicture(QPainter& painter, const QRectF& area) const {
  const GraphColours colours = GraphColoursOf(game_.screen.Graph, false);
  if (printing_)
    PaintGraphs(painter, area, waiting_, game_.screen.Graph.GraphsPerPage, colours);
  else
    PaintGraph(painter, area, view_->Page(), colours);
}

void BankrollGraphScreen::PrintSheet() {
  // A box of the printer lets a run go on, which may fill the next page.
  if (printing_) return;
  printing_ = true;
  const std::size_t sent = waiting_.size();
  const bool printed = printNow && printNow();
  printing_ = false;
  // A run isn't held up by each of its pages when there is no printer.
  if (!printed) autoPrint_ = false;
  if (printed) waiting_.erase(waiting_.begin(), waiting_.begin() + static_cast<std::ptrdiff_t>(sent));
}

void BankrollGraphScreen::FinishPrinting() {
  if (!waiting_.empty()) PrintSheet();
}

void BankrollGraphScreen::PageFilled() {
  if (!autoPrint_) return;
  waiting_.push_back(TakeGraphPage(game_, WhichPage::kPrevious));
  if (WaitingGraphs() >= game_.screen.Graph.GraphsPerPage) PrintSheet();
}

void BankrollGraphScreen::SetAutoPrint(bool on) {
  if (!on) return EndAutoPrint();
  autoPrint_ = static_cast<bool>(printNow);
}

// What is on the graph may still go to the printer, and what waits for more may go without it.
void BankrollGraphScreen::EndAutoPrint() {
  if (!std::exchange(autoPrint_, false)) return;
  if (game_.graph.PlotCount > 0 && Confirms<Msg::kAskPrintLastGraph>(game_)) {
    waiting_.push_back(TakeGraphPage(game_, WhichPage::kPresent));
    if (WaitingGraphs() >= game_.screen.Graph.GraphsPerPage) return PrintSheet();
  }
  if (waiting_.empty()) return;
  if (Confirms<Msg::kAskFinishPrinting>(game_, With<"fit">(game_.screen.Graph.GraphsPerPage),
                                        With<"sent">(WaitingGraphs())))
    PrintSheet();
}

// The questions come when the window has gone.
void BankrollGraphScreen::hideEvent(QHideEvent* event) {
  ToolWindow::hideEvent(event);
  if (!event->spontaneous() && autoPrint_)
    QTimer::singleShot(0, this, [this] {
      if (IsPutAway()) EndAutoPrint();
    });
}

// Closed, by itself or with the dock it stands in; behind another tab it isn't.
bool BankrollGraphScreen::IsPutAway() const {
  for (const QWidget* part = this; part != nullptr; part = part->parentWidget()) {
    if (part->isHidden()) return true;
    if (part->isWindow()) break;
  }
  return false;
}

}  // namespace tessaryn
