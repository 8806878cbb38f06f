#include "shell/table/board.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QToolTip>
#include <algorithm>

#include "shell/table/number_habit.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "state/settings.h"

namespace tessaryn {

namespace {

constexpr QColor kSoftLine(0x3A, 0x43, 0x4A);
constexpr QColor kCell(0x2A, 0x31, 0x37);
constexpr QColor kSevenRed(0xD8, 0x20, 0x2E);
constexpr QColor kNaturalGreen(0x1B, 0x8A, 0x50);
constexpr QColor kNoteAmber(0xFF, 0xC9, 0x6B);
constexpr int kShortHistory = 12;
constexpr int kFewRolls = 6;  // beside a note where there isn't room for more
constexpr double kCellGap = 3;
constexpr double kNoteRoom = 240;
constexpr double kStepGap = 20;   // between two steps of the guide
constexpr int kButtonEdges = 20;  // beside a button's text

double Wide(const QFont& font, const QString& text) { return QFontMetricsF(font).horizontalAdvance(text); }

// Writes pieces of text in a row, each in its colour; what has no room is cut.
class Writer {
 public:
  Writer(QPainter& painter, QRectF room) : painter_(painter), room_(room) {}
  void Write(const QFont& font, const QColor& tone, const QString& text) {
    if (room_.width() < 4) return;
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(text);
    painter_.setFont(font);
    painter_.setPen(tone);
    painter_.drawText(
        room_, Qt::AlignLeft | Qt::AlignVCenter,
        width <= room_.width() ? text : metrics.elidedText(text, Qt::ElideRight, room_.width()));
    room_.setLeft(width <= room_.width() ? room_.left() + width : room_.right());
  }
  const QRectF& Room() const { return room_; }

 private:
  QPainter& painter_;
  QRectF room_;
};

}  // namespace

QString NextClickLine(const TableCommands& commands) {
  constexpr const char* kLines[] = {
      "",
      QT_TRANSLATE_NOOP("Board", "Next click: call a bet ON. A right click ends this"),
      QT_TRANSLATE_NOOP("Board", "Next click: call a bet OFF. A right click ends this"),
      QT_TRANSLATE_NOOP("Board", "Next click: buy a Place bet. A right click ends this"),
      QT_TRANSLATE_NOOP("Board", "Next click: remove a bet. A right click ends this"),
      QT_TRANSLATE_NOOP("Board", "Next click: take a bet to move it. A right click ends this"),
  };
  constexpr const char* kPutDown =
      QT_TRANSLATE_NOOP("Board", "Next click: put the bet down. A right click ends this");
  const bool carries = commands.CarriedAmount > kZero || commands.Moving.Bet != 0;
  const bool known =
      commands.PendingAction > 0 && commands.PendingAction < static_cast<int>(std::size(kLines));
  const char* line = carries ? kPutDown : known ? kLines[commands.PendingAction] : "";
  return *line == 0 ? QString() : QCoreApplication::translate("Board", line);
}

Board::Board(const Game& game, const RollHistory& history, QWidget* parent)
    : QWidget(parent),
      game_(game),
      history_(history),
      skip_(new QPushButton(this)),
      ask_(new QPushButton(this)),
      keep_(new QPushButton(this)) {
  setObjectName("picBoard");
  setAttribute(Qt::WA_OpaquePaintEvent);
  QPalette dark = PaletteOf(DarkTones());
  dark.setColor(QPalette::Window, kBoardTone);
  setPalette(dark);
  skip_->setObjectName("cmdGuideSkip");
  ask_->setObjectName("cmdGuideAsk");
  keep_->setObjectName("cmdGuideKeep");
  for (QPushButton* button : {skip_, ask_, keep_}) {
    button->setFocusPolicy(Qt::TabFocus);
    button->hide();
  }
  connect(skip_, &QPushButton::clicked, this, [this] {
    guiding_ = false;
    ShowGuide();
    emit guideSkipped();
  });
  const auto choose = [this](bool ask) {
    guiding_ = false;
    ShowGuide();
    emit winsChosen(ask);
  };
  connect(ask_, &QPushButton::clicked, this, [choose] { choose(true); });
  connect(keep_, &QPushButton::clicked, this, [choose] { choose(false); });
  Retranslate();
}

void Board::Retranslate() {
  skip_->setText(tr("Skip"));
  skip_->setToolTip(tr("The first steps aren't shown again"));
  ask_->setText(tr("ask me"));
  keep_->setText(tr("leave the bet, take the winnings"));
  Place();
  Refresh(!story_.changes.empty() || story_.roll == 0);
}

void Board::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) Retranslate();
  if (event->type() == QEvent::FontChange) Place();
  QWidget::changeEvent(event);
}

void Board::SetMeasures(const Measures& measures, QSize plate) {
  measures_ = measures;
  plate_ = plate;
  Place();
  update();
}

void Board::resizeEvent(QResizeEvent*) { Place(); }

QFont Board::Small() const { return Sized(font(), measures_.compact ? 10 : 11.5); }

void Board::Place() {
  const double height = this->height();
  const double gap = measures_.compact ? 8 : 10;
  double x = plate_.width() + (measures_.compact ? 16 : 18);
  const double die = measures_.boardDice;
  dice_ = QRectF(x, (height - die) / 2, 2 * die + 5, die);
  x = dice_.right() + gap / 2 + 2;
  const auto part = [&](double width) {
    const QRectF box(x, 0, width, height);
    x += width + gap;
    return box;
  };
  total_ = part(Wide(Sized(font(), height * 0.72, true), "12"));
  double widest = 0;
  for (int total = 2; total <= 12; ++total)
    widest = std::max(widest, Wide(Sized(font(), measures_.compact ? 11 : 13.5, true), TotalName(total)));
  for (const QString& kind : TotalKinds()) widest = std::max(widest, Wide(Small(), kind));
  words_ = part(widest);
  puck_ = part(measures_.compact ? 24 : 32);
  puck_.setTop((height - puck_.width()) / 2);
  puck_.setHeight(puck_.width());
  point_ = part(std::max(Wide(Small(), tr("POINT")), Wide(Small(), tr("COME-OUT"))));
  x += gap / 2;
  const bool place8 = IsOccupied(game_.table, kSeats);
  const double right = width() - (place8 ? plate_.width() + 16 : 16);
  const double handWidth = std::max(Wide(Small(), HandLine()), measures_.compact ? 70.0 : 90.0);
  // Room for the hand is found only where nobody's plate stands, and never taken from the result or the
  // rolls.
  const double left = x;
  const double result = std::max(420.0, RollHistory::kMost * HistoryPitch());
  hand_ = !place8 && right - handWidth - gap - left > result ? QRectF(right - handWidth, 0, handWidth, height)
                                                             : QRectF();
  const double end = hand_.isEmpty() ? right : hand_.left() - gap;
  line_ = QRectF(left, height * 0.06, end - left, height * 0.46);
  rolls_ = QRectF(left, height * 0.54, end - left, height * 0.36);
  ShowGuide();
}

// --- What it says.

void Board::Refresh(bool settled) {
  story_ = StoryOf(game_, settled);
  if (!notes_.isEmpty() && notesOf_ != Throws(game_.stats)) notes_.clear();
  if (guiding_ && NextGuideStep(game_) == GuideStep::kAskWins &&
      game_.table.seats[game_.table.SelectedSeat].handling.WinHandling != 0) {
    // Somebody has answered that on the Auto-Play screen.
    guiding_ = false;
    emit guideSkipped();
  }
  setAccessibleName(tr("Last roll"));
  const QString told = ResultText();
  if (told != accessibleDescription()) setAccessibleDescription(told);
  Place();
  update();
}

void Board::SetNextClick(const QString& text) {
  if (text == nextClick_) return;
  nextClick_ = text;
  update();
}

void Board::AddNote(const QString& text) {
  const std::int64_t throws = Throws(game_.stats);
  if (notesOf_ != throws) notes_.clear();
  notesOf_ = throws;
  notes_.prepend(text);
  update();
}

void Board::StartGuide() {
  guiding_ = true;
  ShowGuide();
  update();
}

bool Board::AsksAbove() const {
  const QFont letters = Sized(font(), measures_.compact ? 10 : 12.5);
  const double answers = Wide(letters, ask_->text()) + Wide(letters, keep_->text()) + 2 * kButtonEdges + 8;
  return Wide(letters, tr("When a bet wins:")) + 10 + answers > rolls_.width();
}

void Board::ShowGuide() {
  const GuideStep step = guiding_ ? NextGuideStep(game_) : GuideStep::kDone;
  const bool asks = step == GuideStep::kAskWins;
  skip_->setVisible(step != GuideStep::kDone && !asks);
  ask_->setVisible(asks);
  keep_->setVisible(asks);
  const QFont letters = Sized(font(), measures_.compact ? 10 : 12.5);
  const double rowHeight = asks ? rolls_.height() + 4 : std::min(24.0, height() * 0.5);
  const auto width = [&](QPushButton* button) {
    button->setFont(letters);
    return static_cast<int>(Wide(letters, button->text())) + kButtonEdges;
  };
  if (asks) {
    double x = rolls_.left() + (AsksAbove() ? 0 : Wide(letters, tr("When a bet wins:")) + 10);
    for (QPushButton* button : {ask_, keep_}) {
      const int wide = width(button);
      button->setGeometry(static_cast<int>(x), static_cast<int>(rolls_.top() - 2), wide,
                          static_cast<int>(rowHeight));
      x += wide + 8;
    }
  } else if (guiding_) {
    const int wide = width(skip_);
    skip_->setGeometry(
        static_cast<int>(this->width() - 12 - wide - (IsOccupied(game_.table, kSeats) ? plate_.width() : 0)),
        static_cast<int>((height() - rowHeight) / 2), wide, static_cast<int>(rowHeight));
  }
}

QString Board::RunText() const {
  if (!game_.table.AutoRollActive) return {};
  return game_.table.TurboRollActive ? tr("Turbo-Roll") : tr("Auto-Roll");
}

// --- Painting.

void Board::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), kBoardTone);
  PaintDice(painter);
  PaintPoint(painter);
  const GuideStep step = guiding_ ? NextGuideStep(game_) : GuideStep::kDone;
  if (step != GuideStep::kDone && step != GuideStep::kAskWins && nextClick_.isEmpty()) {
    PaintSteps(painter);
    return;
  }
  const bool asks = step == GuideStep::kAskWins;
  const bool above = asks && AsksAbove();
  if (!above) PaintResult(painter);
  if (asks) {
    Writer(painter, above ? line_ : rolls_)
        .Write(Sized(font(), measures_.compact ? 10 : 12.5), Qt::white, tr("When a bet wins:"));
  } else {
    PaintHistory(painter);
    PaintNotes(painter);
  }
  PaintHand(painter);
}

void Board::PaintDice(QPainter& painter) const {
  const TableState& table = game_.table;
  const bool rolled = story_.roll > 0;
  painter.setOpacity(rolled ? 1 : 0.45);
  const double side = dice_.height();
  for (int n = 0; n < 2; ++n) {
    painter.save();
    painter.translate(dice_.left() + side / 2 + n * (side + 5), dice_.center().y());
    painter.scale(side, side);
    PaintDie(painter, n == 0 ? table.Die1 : table.Die2, QColor::fromRgb(game_.screen.looks.Dice[n]),
             QColor::fromRgb(game_.screen.looks.Pips));
    painter.restore();
  }
  painter.setOpacity(1);
  if (!rolled) return;
  painter.setPen(Qt::white);
  painter.setFont(Sized(font(), height() * 0.72, true));
  painter.drawText(total_, Qt::AlignCenter, QString::number(table.RollTotal));
  const QRectF upper(words_.left(), height() * 0.14, words_.width() + 2, height() * 0.38);
  painter.setPen(kGoldTone);
  painter.setFont(Sized(font(), measures_.compact ? 11 : 13.5, true));
  const QString kind = TotalKind(story_);
  painter.drawText(kind.isEmpty() ? QRectF(words_.left(), 0, words_.width() + 2, height()) : upper,
                   Qt::AlignLeft | Qt::AlignVCenter, TotalName(table.RollTotal));
  painter.setPen(kCaptionTone);
  painter.setFont(Small());
  painter.drawText(upper.translated(0, height() * 0.36), Qt::AlignLeft | Qt::AlignVCenter, kind);
}

void Board::PaintPoint(QPainter& painter) const {
  const int point = game_.table.Point;
  const double gap = measures_.compact ? 4 : 6;
  painter.setPen(QPen(kSoftLine, 1));
  painter.drawLine(QPointF(puck_.left() - gap, 8), QPointF(puck_.left() - gap, height() - 8.0));
  painter.drawLine(QPointF(point_.right() + gap, 8), QPointF(point_.right() + gap, height() - 8.0));
  painter.setPen(QPen(point != 0 ? QColor(Qt::black) : QColor(Qt::white), 1.2));
  painter.setBrush(point != 0 ? QColor(Qt::white) : QColor(Qt::black));
  painter.drawEllipse(puck_);
  painter.drawEllipse(puck_.adjusted(2.5, 2.5, -2.5, -2.5));
  painter.setFont(Sized(font(), puck_.width() * 0.32, true));
  painter.drawText(puck_, Qt::AlignCenter, point != 0 ? tr("ON") : tr("OFF"));
  painter.setPen(kCaptionTone);
  painter.setFont(Small());
  if (point == 0) {
    painter.drawText(point_, Qt::AlignLeft | Qt::AlignVCenter, tr("COME-OUT"));
    return;
  }
  const QRectF upper(point_.left(), height() * 0.1, point_.width(), height() * 0.32);
  painter.drawText(upper, Qt::AlignLeft | Qt::AlignVCenter, tr("POINT"));
  painter.setPen(Qt::white);
  painter.setFont(Sized(font(), height() * 0.4, true));
  painter.drawText(QRectF(point_.left(), height() * 0.4, point_.width(), height() * 0.54),
                   Qt::AlignLeft | Qt::AlignVCenter, QString::number(point));
}

void Board::PaintResult(QPainter& painter) const {
  const double letters = measures_.compact ? 12.5 : 15;
  const QFont bold = Sized(font(), letters, true);
  const QFont plain = Sized(font(), letters);
  Writer writer(painter, line_);
  if (!nextClick_.isEmpty()) return writer.Write(bold, kGoldTone, nextClick_);
  if (const QString run = RunText(); !run.isEmpty())
    writer.Write(bold, kGoldTone, run + QStringLiteral("   "));
  if (game_.table.OccupiedSeats == 0)
    return writer.Write(plain, kCaptionTone, tr("Click an open position on the rail to add a player."));
  if (story_.roll == 0) return writer.Write(plain, kCaptionTone, tr("No roll yet"));
  writer.Write(bold, Qt::white, RollSentence(story_) + QStringLiteral("  "));
  // Where not all have room, as many as have it with their figures.
  const QString more = QStringLiteral(" \u2026");
  for (std::size_t n = 0; n < story_.changes.size(); ++n) {
    const SeatChange& seat = story_.changes[n];
    const QString name = (n == 0 ? QString() : QStringLiteral(", ")) + FromCore(seat.name) + QLatin1Char(' ');
    const QString change = ChangeText(seat.change);
    const double rest = n + 1 < story_.changes.size() ? Wide(plain, more) : 0;
    if (Wide(plain, name) + Wide(bold, change) + rest > writer.Room().width())
      return writer.Write(plain, Qt::white, more);
    writer.Write(plain, Qt::white, name);
    const QColor tone = seat.change > kZero ? kWonTone : seat.change < kZero ? kLostTone : QColor(Qt::white);
    writer.Write(bold, tone, change);
  }
}

// From one cell to the next.
double Board::HistoryPitch() const { return measures_.compact ? 22 : measures_.board > 50 ? 31 : 26; }

// The room of the history's caption.
double Board::HistoryLabel() const { return Wide(Small(), tr("LAST %1").arg(RollHistory::kMost)) + 10; }

// How many rolls the window's width is for, whatever else is told.
int Board::HistoryPlaces() const {
  return RollHistory::kMost * HistoryPitch() <= rolls_.width() + kCellGap ? RollHistory::kMost
                                                                          : kShortHistory;
}

// Behind the rolls where there is much room, so that they stay as they are.
bool Board::NotesStandBehind() const { return rolls_.right() - HistoryCell(0).right() >= kNoteRoom; }

int Board::HistoryRoom() const {
  const int places = HistoryPlaces();
  if (notes_.isEmpty() || NotesStandBehind()) return places;
  return places == RollHistory::kMost ? kShortHistory : kFewRolls;
}

// The newest stands at the right, the others before it.
QRectF Board::HistoryCell(int back) const {
  const double pitch = HistoryPitch();
  const double wanted = HistoryPlaces() * pitch - kCellGap;
  const double label = HistoryLabel() + wanted <= rolls_.width() ? HistoryLabel() : 0;
  const double width = pitch - kCellGap;
  return {rolls_.left() + label + wanted - width - back * pitch, rolls_.top(), width, rolls_.height()};
}

void Board::PaintHistory(QPainter& painter) const {
  const int shown = std::min(HistoryRoom(), history_.Size());
  if (shown == 0) return;
  const QFont figures = Sized(font(), measures_.compact ? 10 : 12, true);
  const QFont label = Small();
  const QString caption = tr("LAST %1").arg(HistoryRoom());
  const QRectF oldest = HistoryCell(shown - 1);
  const bool labelled = notes_.isEmpty() || NotesStandBehind();
  if (labelled && oldest.left() - Wide(label, caption) - 10 >= rolls_.left() - 1) {
    painter.setFont(label);
    painter.setPen(kCaptionTone);
    painter.drawText(QRectF(oldest.left() - Wide(label, caption) - 10, rolls_.top(), Wide(label, caption) + 4,
                            rolls_.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, caption);
  }
  painter.setFont(figures);
  for (int back = 0; back < shown; ++back) {
    const RolledOnce& rolled = history_.Back(back);
    const QRectF cell = HistoryCell(back);
    const double round = cell.height() / 2;
    struct MarkLook {
      QColor fill;
      QColor edge;
      QColor text;
      double corner;
    };
    const MarkLook kLooks[] = {{kCell, kCell, kCaptionTone, 3},
                               {kBoardTone, Qt::white, Qt::white, round},
                               {kGoldTone, kGoldTone, QColor(0x1B, 0x1F, 0x23), round},
                               {kSevenRed, kSevenRed, Qt::white, 0},
                               {kNaturalGreen, kNaturalGreen, Qt::white, round},
                               {kBoardTone, kLostTone, Qt::white, 0}};
    const MarkLook& look = kLooks[static_cast<int>(rolled.mark)];
    painter.setPen(QPen(look.edge, 1.5));
    painter.setBrush(look.fill);
    painter.drawRoundedRect(cell.adjusted(1, 1, -1, -1), look.corner, look.corner);
    painter.setPen(look.text);
    painter.drawText(cell, Qt::AlignCenter, QString::number(rolled.total));
  }
  const double x = HistoryCell(0).center().x();
  const double y = height() - 1;
  painter.setPen(Qt::NoPen);
  painter.setBrush(kGoldTone);
  painter.drawPolygon(QPolygonF({QPointF(x - 3.5, y), QPointF(x + 3.5, y), QPointF(x, y - 3.5)}));
}

// The newest in words, beside the rolls; a click or the pointer lists them all.
void Board::PaintNotes(QPainter& painter) const {
  if (notes_.isEmpty()) return;
  const int shown = std::min(HistoryRoom(), history_.Size());
  QRectF room = rolls_;
  if (NotesStandBehind())
    room.setLeft(HistoryCell(0).right() + 16);
  else if (shown > 0)
    room.setRight(HistoryCell(shown - 1).left() - 10);
  const QFont plain = Sized(font(), measures_.compact ? 10 : 12.5);
  Writer writer(painter, room);
  if (notes_.size() > 1)
    writer.Write(Sized(plain, measures_.compact ? 10 : 12.5, true), kNoteAmber,
                 tr("%1 notes:", nullptr, PluralOf(notes_.size())).arg(notes_.size()) + QLatin1Char(' '));
  writer.Write(plain, kNoteAmber, notes_.first());
}

QString Board::HandLine() const { return HandText(game_, measures_.compact); }

void Board::PaintHand(QPainter& painter) const {
  if (hand_.isEmpty()) return;
  painter.setPen(Qt::white);
  painter.setFont(Sized(font(), measures_.compact ? 11 : 13.5, true));
  painter.drawText(QRectF(hand_.left(), height() * 0.1, hand_.width(), height() * 0.42),
                   Qt::AlignRight | Qt::AlignVCenter, HandTitle(game_));
  painter.setPen(kCaptionTone);
  painter.setFont(Small());
  painter.drawText(QRectF(hand_.left(), height() * 0.5, hand_.width(), height() * 0.42),
                   Qt::AlignRight | Qt::AlignVCenter, HandLine());
}

// Side by side where there is room, in two rows otherwise; where that isn't enough the next one alone has its
// words. What is done has a tick.
void Board::PaintSteps(QPainter& painter) const {
  const GuideStep now = NextGuideStep(game_);
  const double end = skip_->geometry().left() - 12.0;
  const double letters = measures_.compact ? 12 : 15;
  const QFont plain = Sized(font(), letters);
  const QFont bold = Sized(font(), letters, true);
  const double ring = letters + 7;
  double wide[3];
  for (int n = 0; n < 3; ++n) wide[n] = ring + 6 + Wide(bold, GuideText(static_cast<GuideStep>(n)));
  const double room = end - line_.left();
  const bool oneRow = wide[0] + wide[1] + wide[2] + 2 * kStepGap <= room;
  const bool allWords = oneRow || std::max(wide[0], wide[1] + kStepGap + wide[2]) <= room;
  double x = line_.left();
  double y = oneRow || !allWords ? height() / 2.0 : line_.center().y();
  for (int n = 0; n < 3; ++n) {
    const auto step = static_cast<GuideStep>(n);
    const bool done = step < now;
    const bool next = step == now;
    if (allWords && !oneRow && n == 1) {
      x = line_.left();
      y = rolls_.center().y();
    }
    if (!allWords && x + ring > end) break;
    const QRectF circle(x, y - ring / 2, ring, ring);
    painter.setPen(QPen(done ? kWonTone : next ? kGoldTone : kCaptionTone, 1.5));
    painter.setBrush(next ? kGoldTone : QColor(Qt::transparent));
    painter.drawEllipse(circle.adjusted(1, 1, -1, -1));
    painter.setFont(Sized(font(), letters - 2, true));
    painter.setPen(done ? kWonTone : next ? QColor(0x1B, 0x1F, 0x23) : kCaptionTone);
    painter.drawText(circle, Qt::AlignCenter, done ? QStringLiteral("\u2713") : QString::number(n + 1));
    x += ring + 6;
    if (!allWords && !next) continue;
    painter.setFont(next ? bold : plain);
    painter.setPen(done ? kWonTone : next ? QColor(Qt::white) : kCaptionTone);
    painter.drawText(QRectF(x, y - ring, std::max(0.0, end - x), 2 * ring), Qt::AlignLeft | Qt::AlignVCenter,
                     GuideText(step));
    x += wide[n] - ring - 6 + kStepGap;
  }
}

// --- The pointer.

void Board::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton && !notes_.isEmpty() && rolls_.contains(event->position()))
    QToolTip::showText(event->globalPosition().toPoint(), notes_.join(QStringLiteral("\n")), this);
}

bool Board::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  QString text;
  if (rolls_.contains(help->pos()) && !notes_.isEmpty()) text = notes_.join(QStringLiteral("\n"));
  if (line_.contains(help->pos())) text = ResultText();
  if (text.isEmpty())
    QToolTip::hideText();
  else
    QToolTip::showText(help->globalPos(), text, this);
  return true;
}

}  // namespace tessaryn
