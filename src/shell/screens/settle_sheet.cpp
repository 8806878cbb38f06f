#include "shell/screens/settle_sheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QVariantAnimation>
#include <algorithm>

#include "rules/handling.h"
#include "shell/screens/screen_parts.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr int kSheetWidth = 424;
constexpr int kNarrowWidth = 400;
constexpr int kNarrowWindow = 1100;
constexpr int kEdge = 12;  // left free round the sheet
constexpr double kCorner = 10;
constexpr int kDiceHeight = 26;
constexpr int kSlideMilliseconds = 150;
constexpr int kSlide = 24;  // pixels that it comes up by
constexpr int kChoices = 7;
constexpr double kSmall = 0.92;
constexpr int kOneLine = 270;  // pixels that bet, payoff and amount may take side by side

// Text on a panel, light and dark.
QColor TintOf(int sign, bool dark) {
  if (sign > 0) return dark ? QColor(0x7B, 0xE0, 0xA3) : QColor(0x0A, 0x7A, 0x43);
  return dark ? QColor(0xFF, 0x9C, 0x8F) : QColor(0xB3, 0x26, 0x1E);
}

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

int SignOf(Currency value) { return value > kZero ? 1 : value < kZero ? -1 : 0; }

// Won and lost by a triangle, a sign and a colour.
QString ResultText(Currency value) {
  const QString mark = value > kZero   ? QStringLiteral("\u25B2 ")
                       : value < kZero ? QStringLiteral("\u25BC ")
                                       : "";
  return mark + MoneyText(Abs(value));
}

QLabel* Label(QWidget* parent, const QString& text, double size = 1.0, bool bold = false) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * size);
  font.setBold(bold);
  label->setFont(font);
  return label;
}

QString WhatTheRollDid(const TableState& table) {
  const int total = table.RollTotal;
  if (table.PointBeforeRoll == 0) {
    if (table.Point != 0) return SettleSheet::tr("the point is set");
    return total == 7 || total == 11 ? SettleSheet::tr("a natural") : SettleSheet::tr("craps");
  }
  if (total == 7) return SettleSheet::tr("seven-out");
  if (total == table.PointBeforeRoll) return SettleSheet::tr("point made");
  return SettleSheet::tr("the point stays %1").arg(table.Point);
}

int SlotOf(bool won, bool fixed) {
  if (fixed) return won ? kSlotWinBet : kSlotLoseBet;
  return won ? kSlotWinSame : kSlotLoseSame;
}

QString WithoutKey(QString caption) { return caption.remove('&'); }

}  // namespace

SettleSheet::SettleSheet(const Game& game, std::vector<SheetDecision> decisions, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      decisions_(std::move(decisions)),
      rows_(decisions_.size()) {
  setObjectName("frmSettleSheet");
  setAttribute(Qt::WA_TranslucentBackground);
  setWindowTitle(tr("Settle the roll"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(1, 1, 1, 1);
  column->setSpacing(0);
  AddHeader(game);
  AddList(game);
  AddFoot();
  ShowColours();
}

void SettleSheet::AddHeader(const Game& game) {
  header_ = new QWidget(this);
  auto* row = new QHBoxLayout(header_);
  row->setContentsMargins(16, 8, 16, 8);
  row->setSpacing(12);
  auto* dice = new QLabel(header_);
  dice->setPixmap(DiceAsRolled(game.table, kDiceHeight, devicePixelRatioF()));
  row->addWidget(dice);
  const QString title = tr("Roll %1: %2, %3")
                            .arg(SessionRolls(game.stats))
                            .arg(game.table.RollTotal)
                            .arg(WhatTheRollDid(game.table));
  QLabel* heading = Label(header_, title, 1.15, true);
  heading->setObjectName("lblTitle");
  row->addWidget(heading, 1);
  QLabel* count = Label(header_, tr("Bets decided: %1").arg(decisions_.size()), kSmall);
  count->setObjectName("lblCount");
  row->addWidget(count);
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, Qt::white);
  for (QLabel* label : {heading, count}) label->setPalette(colours);
  layout()->addWidget(header_);
}

void SettleSheet::AddList(const Game& game) {
  auto* area = new QScrollArea(this);
  area->setObjectName("scrDecisions");
  area->setAccessibleName(tr("Decided bets"));
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::NoFocus);
  list_ = new QWidget(area);
  auto* column = new QVBoxLayout(list_);
  column->setContentsMargins(0, 0, 0, 8);
  column->setSpacing(0);
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    for (std::size_t at = 0; at < decisions_.size(); ++at)
      if (decisions_[at].question.seat == seat) {
        AddPlayer(*column, static_cast<int>(at), game);
        break;
      }
  column->addStretch();
  area->setWidget(list_);
  layout()->addWidget(area);
}

// The player of a decision, with all of the player's.
void SettleSheet::AddPlayer(QLayout& column, int first, const Game& game) {
  const SeatId seat = decisions_[static_cast<std::size_t>(first)].question.seat;
  Currency total;
  for (const SheetDecision& decision : decisions_)
    if (decision.question.seat == seat) total += decision.question.net;
  auto* band = new QWidget(list_);
  band->setAutoFillBackground(true);
  band->setBackgroundRole(QPalette::AlternateBase);
  auto* row = new QHBoxLayout(band);
  row->setContentsMargins(16, 4, 16, 4);
  const QString player = decisions_[static_cast<std::size_t>(first)].player;
  QLabel* name = Label(band, player, 1.0, true);
  name->setText(name->fontMetrics().elidedText(player, Qt::ElideRight, kNarrowWidth / 2));
  row->addWidget(name, 1);
  QLabel* result = Label(band, ResultText(total), 1.0, true);
  result->setObjectName(QString("lblTotal%1").arg(seat));
  result->setAccessibleName(total < kZero ? tr("%1 lost %2").arg(player, MoneyText(Abs(total)))
                                          : tr("%1 won %2").arg(player, MoneyText(total)));
  row->addWidget(result);
  tinted_.push_back({result, SignOf(total)});
  column.addWidget(band);
  for (std::size_t at = 0; at < decisions_.size(); ++at)
    if (decisions_[at].question.seat == seat) AddDecision(column, static_cast<int>(at), game);
}

void SettleSheet::AddDecision(QLayout& column, int at, const Game& game) {
  const SheetDecision& decision = decisions_[static_cast<std::size_t>(at)];
  const SettleQuestion& question = decision.question;
  Row& row = rows_[static_cast<std::size_t>(at)];
  auto* area = new QWidget(list_);
  auto* grid = new QGridLayout(area);
  grid->setContentsMargins(16, 8, 16, 4);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  grid->setColumnStretch(1, 1);
  row.outcome = Label(area, SettleTitle(question), kSmall, true);
  row.outcome->setObjectName(QString("lblOutcome%1").arg(at));
  row.outcome->setMinimumWidth(row.outcome->fontMetrics().horizontalAdvance(tr("WINNER")) + 8);
  if (!question.offOdds) tinted_.push_back({row.outcome, question.won ? 1 : -1});
  grid->addWidget(row.outcome, 0, 0, Qt::AlignTop);
  QLabel* bet = Label(area, SettleBetName(question.bet) + "  " + MoneyText(decision.amount));
  bet->setObjectName(QString("lblBet%1").arg(at));
  // A bet of few words has its payoff on its own line.
  const QFontMetrics metrics = bet->fontMetrics();
  const bool together =
      decision.lines.size() == 2 &&
      metrics.horizontalAdvance(bet->text() + decision.lines[1].caption + decision.lines[1].value) < kOneLine;
  if (together)
    grid->addWidget(bet, 0, 1);
  else
    grid->addWidget(bet, 0, 1, 1, 3);
  // From the payoff to what was really paid; the bet itself stands above.
  for (std::size_t n = 1; n < decision.lines.size(); ++n) {
    const SettleLine& line = decision.lines[n];
    const bool last = n + 1 == decision.lines.size();
    QLabel* caption = Label(area, line.caption, kSmall);
    caption->setForegroundRole(QPalette::PlaceholderText);
    QLabel* value = Label(area, line.value, last ? 1.0 : kSmall, last);
    value->setObjectName(QString("%1Value%2").arg(line.name).arg(at));
    value->setAccessibleName(line.caption + " " + line.value);
    const int below = together ? 0 : static_cast<int>(n);
    if (together)
      grid->addWidget(caption, below, 2, Qt::AlignRight);
    else
      grid->addWidget(caption, below, 1, 1, 2);
    grid->addWidget(value, below, 3, Qt::AlignRight);
    if (last) {
      row.result = value;
      tinted_.push_back({value, SignOf(question.net)});
    }
  }
  AddChoice(*grid, at, game);
  column.addWidget(area);
}

void SettleSheet::AddChoice(QLayout& column, int at, const Game& game) {
  auto& grid = static_cast<QGridLayout&>(column);
  const SheetDecision& decision = decisions_[static_cast<std::size_t>(at)];
  const SettleQuestion& question = decision.question;
  QWidget* area = grid.parentWidget();
  if (question.finished || question.offOdds) {
    const QString text = question.finished ? tr("This bet is over. It comes down with every choice.")
                                           : tr("The odds weren't working: nothing was won or lost.");
    QLabel* note = Label(area, text, kSmall);
    note->setForegroundRole(QPalette::PlaceholderText);
    note->setWordWrap(true);
    grid.addWidget(note, grid.rowCount(), 1, 1, 3);
    if (question.finished) return;
  }
  Row& row = rows_[static_cast<std::size_t>(at)];
  row.choice = new QComboBox(area);
  row.choice->setObjectName(QString("cmbHandle%1").arg(at));
  row.choice->setAccessibleName(
      tr("%1, %2, %3").arg(decision.player, SettleBetName(question.bet), SettleTitle(question)));
  // A wide caption must not widen the sheet; the list that it opens shows it whole.
  row.choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  row.choice->setMinimumContentsLength(12);
  row.choice->setFocusPolicy(Qt::StrongFocus);
  row.choice->installEventFilter(this);
  for (int choice = 1; choice <= kChoices; ++choice)
    row.choice->addItem(WithoutKey(SettleChoiceText(question, choice)));
  row.choice->view()->setMinimumWidth(row.choice->view()->sizeHintForColumn(0) + 24);
  grid.addWidget(row.choice, grid.rowCount(), 1, 1, 3);
  row.same = AddAdjusted(grid, at, false, game);
  row.fixed = AddAdjusted(grid, at, true, game);
  connect(row.choice, &QComboBox::currentIndexChanged, this,
          [this, at] { ShowAdjusted(rows_[static_cast<std::size_t>(at)]); });
  SetAnswer(at, decision.answer);
}

// The amount of a choice that has one; as the seat keeps it until it is typed.
AdjustEdit* SettleSheet::AddAdjusted(QLayout& column, int at, bool fixed, const Game& game) {
  auto& grid = static_cast<QGridLayout&>(column);
  const SettleQuestion& question = decisions_[static_cast<std::size_t>(at)].question;
  const int slot = SlotOf(question.won, fixed);
  const QString what =
      WithoutKey(SettleChoiceText(question, fixed ? int{kWinFixed} : int{kWinAdjusted})).remove(':');
  auto* edit = new AdjustEdit(slot, game.settings, what, grid.parentWidget());
  edit->setObjectName(QString(fixed ? "adjFixed%1" : "adjSame%1").arg(at));
  const Handling& handling = game.table.seats[question.seat].handling;
  edit->SetValue({handling.AdjustKind[slot], handling.AdjustValue[slot], handling.AdjustUnit[slot]});
  grid.addWidget(edit, grid.rowCount(), 1, 1, 3);
  return edit;
}

void SettleSheet::ShowAdjusted(const Row& row) {
  row.same->setVisible(row.choice->currentIndex() + 1 == kWinAdjusted);
  row.fixed->setVisible(row.choice->currentIndex() + 1 == kWinFixed);
}

void SettleSheet::AddFoot() {
  foot_ = new QWidget(this);
  auto* column = new QVBoxLayout(foot_);
  column->setContentsMargins(16, 8, 16, 12);
  column->setSpacing(8);
  always_ = new QCheckBox(tr("Don't as&k again: keep these choices (Auto-Play, F3)"), foot_);
  always_->setObjectName("chkDontAskAgain");
  always_->setToolTip(tr("Each player's first winner and first loser here become the choices of Auto-Play"));
  column->addWidget(always_);
  auto* row = new QHBoxLayout;
  row->setSpacing(8);
  column->addLayout(row);
  const auto add = [&](const char* name, const QString& caption) {
    auto* button = new QPushButton(caption, foot_);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setMinimumHeight(28);
    row->addWidget(button);
    return button;
  };
  connect(add("cmdOneAtATime", tr("One &at a time")), &QPushButton::clicked, this,
          [this] { done(kOneAtATime); });
  auto* same = add("cmdAllSame", tr("All &same"));
  same->setToolTip(tr("The first winner's choice for all winners, the first loser's for all losers"));
  connect(same, &QPushButton::clicked, this, &SettleSheet::AllSame);
  row->addStretch();
  auto* ready = add("cmdDone", tr("&Done (Enter)"));
  ready->setDefault(true);
  connect(ready, &QPushButton::clicked, this, &QDialog::accept);
  layout()->addWidget(foot_);
}

void SettleSheet::ShowColours() {
  const bool dark = IsDark(palette());
  auto* ready = foot_->findChild<QPushButton*>("cmdDone");
  ready->setStyleSheet(
      QString("QPushButton { background: %1; color: %2; border: 2px solid %1; border-radius: 5px;"
              " padding: 4px 20px; font-weight: bold; } QPushButton:focus { border-color: %3; }")
          .arg(dark ? "#3CC98A" : "#0B6B45", dark ? "#06210F" : "#FFFFFF", dark ? "#7FB2FF" : "#1A5FD0"));
  for (const Tinted& tinted : tinted_) {
    if (tinted.sign == 0) continue;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, TintOf(tinted.sign, dark));
    tinted.label->setPalette(colours);
  }
}

void SettleSheet::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange && foot_ != nullptr) ShowColours();
  QDialog::changeEvent(event);
}

// The wheel scrolls the list; it must not change a choice on its way.
bool SettleSheet::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    event->ignore();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void SettleSheet::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF panel = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  QPainterPath outline;
  outline.addRoundedRect(panel, kCorner, kCorner);
  painter.fillPath(outline, palette().color(QPalette::Window));
  painter.save();
  painter.setClipRect(header_->geometry().adjusted(-1, -1, 1, 0));
  painter.fillPath(outline, kBandGreen);
  painter.restore();
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawPath(outline);
  painter.drawLine(foot_->geometry().topLeft(), foot_->geometry().topRight());
}

void SettleSheet::PlaceOver(const QRect& area) {
  const int width =
      parentWidget() != nullptr && parentWidget()->width() < kNarrowWindow ? kNarrowWidth : kSheetWidth;
  setFixedWidth(width);
  const int own = header_->sizeHint().height() + foot_->sizeHint().height() + 2;
  list_->setFixedWidth(width - 2);
  const int needed = own + std::max(list_->heightForWidth(width - 2), list_->sizeHint().height());
  list_->setMinimumWidth(0);
  list_->setMaximumWidth(QWIDGETSIZE_MAX);
  // One that has few lines leaves room for the amounts that a choice may bring in.
  setFixedHeight(std::min(needed + 40, std::max(area.height() - 2 * kEdge, own + 120)));
  move(area.right() - kEdge - width + 1, area.top() + kEdge);
}

void SettleSheet::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  for (const Row& row : rows_)
    if (row.choice != nullptr) {
      row.choice->setFocus();
      break;
    }
  if (!animate) return;
  auto* slide = new QVariantAnimation(this);
  slide->setDuration(kSlideMilliseconds);
  slide->setEasingCurve(QEasingCurve::OutCubic);
  const QPoint place = pos();
  slide->setStartValue(kSlide);
  slide->setEndValue(0);
  connect(slide, &QVariantAnimation::valueChanged, this,
          [this, place](const QVariant& off) { move(place + QPoint(off.toInt(), 0)); });
  slide->start(QAbstractAnimation::DeleteWhenStopped);
}

void SettleSheet::SetAnswer(int at, const SettleAnswer& answer) {
  const Row& row = rows_[static_cast<std::size_t>(at)];
  if (row.choice == nullptr) return;
  if (answer.choice == kWinAdjusted || answer.choice == kWinFixed) {
    AdjustEdit* edit = answer.choice == kWinAdjusted ? row.same : row.fixed;
    edit->SetValue({answer.adjustKind, answer.adjustValue, answer.adjustUnit});
  }
  row.choice->setCurrentIndex(answer.choice - 1);
  ShowAdjusted(row);
}

SettleAnswer SettleSheet::AnswerOf(int at) const {
  const Row& row = rows_[static_cast<std::size_t>(at)];
  SettleAnswer answer = decisions_[static_cast<std::size_t>(at)].answer;
  if (row.choice == nullptr) return answer;
  answer = {};
  answer.choice = row.choice->currentIndex() + 1;
  if (answer.choice != kWinAdjusted && answer.choice != kWinFixed) return answer;
  const Adjustment& typed = (answer.choice == kWinAdjusted ? row.same : row.fixed)->Value();
  answer.adjustKind = typed.kind;
  answer.adjustValue = typed.value;
  answer.adjustUnit = typed.unit;
  return answer;
}

void SettleSheet::AllSame() {
  for (const bool won : {true, false}) {
    int first = -1;
    for (int at = 0; at < static_cast<int>(rows_.size()); ++at) {
      if (rows_[static_cast<std::size_t>(at)].choice == nullptr ||
          decisions_[static_cast<std::size_t>(at)].question.won != won)
        continue;
      if (first < 0) first = at;
      SetAnswer(at, AnswerOf(first));
    }
  }
}

std::vector<SheetDecision> SettleSheet::Decisions() const {
  std::vector<SheetDecision> decisions = decisions_;
  for (std::size_t at = 0; at < decisions.size(); ++at) {
    decisions[at].answer = AnswerOf(static_cast<int>(at));
    if (result() == kClosed) {
      decisions[at].answer = {};
      decisions[at].answer.choice = SafeChoice(decisions[at].question);
    }
  }
  return decisions;
}

bool SettleSheet::ForGood() const { return result() == kDone && always_->isChecked(); }

}  // namespace tessaryn
