#include "shell/table/bet_tips.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QStringList>
#include <QTimer>
#include <QToolTip>
#include <cmath>
#include <utility>

#include "base/bet_catalogue.h"
#include "play/session_luck.h"
#include "rules/bet_limits.h"
#include "shell/table/number_habit.h"
#include "shell/table/plates.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_commands.h"
#include "shell/table/table_painter.h"
#include "shell/table/table_widget.h"
#include "state/game.h"

namespace tessaryn {
namespace {

QString Translated(const char* text) { return QCoreApplication::translate("TableCommands", text); }

// The words that bet_facts.cpp tells with, for those who translate them.
constexpr const char* kFactWords[] = {
    QT_TRANSLATE_NOOP("BetFacts", "one-roll bet"),
    QT_TRANSLATE_NOOP("BetFacts", "stays up until it is decided"),
    QT_TRANSLATE_NOOP("BetFacts", "a contract: it stays up until it is decided"),
    QT_TRANSLATE_NOOP("BetFacts", "on the line: decided by the come-out or by the point"),
    QT_TRANSLATE_NOOP("BetFacts", "odds behind %1"),
    QT_TRANSLATE_NOOP("BetFacts", "goes on over several rolls"),
    QT_TRANSLATE_NOOP("BetFacts", "%1 before 7"),
    QT_TRANSLATE_NOOP("BetFacts", "7 before %1"),
    QT_TRANSLATE_NOOP("BetFacts", "7 or 11 on the come-out, then the point before 7"),
    QT_TRANSLATE_NOOP("BetFacts", "2, 3 or 12 on the come-out, then 7 before the point"),
    QT_TRANSLATE_NOOP("BetFacts", "7 or 11 on the next roll, then its number before 7"),
    QT_TRANSLATE_NOOP("BetFacts", "2, 3 or 12 on the next roll, then 7 before its number"),
    QT_TRANSLATE_NOOP("BetFacts", "%1 or 3 on the come-out, then 7 before the point; %2 is barred"),
    QT_TRANSLATE_NOOP("BetFacts", "%1 or 3 on the next roll, then 7 before its number; %2 is barred"),
    QT_TRANSLATE_NOOP("BetFacts", "the point before 7"),
    QT_TRANSLATE_NOOP("BetFacts", "7 before the point"),
    QT_TRANSLATE_NOOP("BetFacts", "%1 on the next roll"),
    QT_TRANSLATE_NOOP("BetFacts", "any other roll"),
    QT_TRANSLATE_NOOP("BetFacts", "any other roll, but not on %1"),
    QT_TRANSLATE_NOOP("BetFacts", "%1 as a pair, before 7 and before any other %1"),
    QT_TRANSLATE_NOOP("BetFacts", "7, or %1 that is no pair"),
    QT_TRANSLATE_NOOP("BetFacts", "all of %1 before 7"),
    QT_TRANSLATE_NOOP("BetFacts", "7 before the last of them"),
    QT_TRANSLATE_NOOP("BetFacts", "four rolls without a 7"),
    QT_TRANSLATE_NOOP("BetFacts", "7 within the four rolls"),
    QT_TRANSLATE_NOOP("BetFacts", "a point, and 7 on the very next roll"),
    QT_TRANSLATE_NOOP("BetFacts", "7 on the come-out, or a point and 7 on the very next roll"),
    QT_TRANSLATE_NOOP("BetFacts", "anything else"),
    QT_TRANSLATE_NOOP("BetFacts", "%1 points or more, made before the seven-out"),
    QT_TRANSLATE_NOOP("BetFacts", "%1 passes or more before the seven-out"),
    QT_TRANSLATE_NOOP("BetFacts", "%1 different points or more, made before the seven-out"),
    QT_TRANSLATE_NOOP("BetFacts", "a seven-out with fewer"),
    QT_TRANSLATE_NOOP("BetFacts", "half each as Any Craps and Eleven"),
    QT_TRANSLATE_NOOP("BetFacts", "a quarter each as Two, Three, Eleven and Twelve"),
    QT_TRANSLATE_NOOP("BetFacts", "a fifth each as Two, Three, Seven, Eleven and Twelve"),
    QT_TRANSLATE_NOOP("BetFacts", "%1% of the bet, charged as it is made"),
    QT_TRANSLATE_NOOP("BetFacts", "%1% of the bet, charged when it wins"),
    QT_TRANSLATE_NOOP("BetFacts", "%1% of the win, charged as it is made"),
    QT_TRANSLATE_NOOP("BetFacts", "%1% of the win, charged when it wins"),
    QT_TRANSLATE_NOOP("BetFacts", "vig: %1"),
    QT_TRANSLATE_NOOP("BetFacts", "pays %1"),
    QT_TRANSLATE_NOOP("BetFacts", "minimum %1"),
    QT_TRANSLATE_NOOP("BetFacts", "may still be bet: %1"),
    QT_TRANSLATE_NOOP("BetFacts", "edge %1%"),
    QT_TRANSLATE_NOOP("BetFacts", "edge %1% a roll"),
    QT_TRANSLATE_NOOP("BetFacts", "not now: %1"),
    QT_TRANSLATE_NOOP("BetFacts", "%1: %2"),
    QT_TRANSLATE_NOOP("BetFacts", "Wins on: %1"),
    QT_TRANSLATE_NOOP("BetFacts", "Loses on: %1"),
    QT_TRANSLATE_NOOP("BetFacts", "Pays: %1"),
    QT_TRANSLATE_NOOP("BetFacts", "Next roll: wins %1, loses %2 in 36"),
    QT_TRANSLATE_NOOP("BetFacts", "Off on the next roll; working it would win %1, lose %2 in 36"),
    QT_TRANSLATE_NOOP("BetFacts", "House edge: %1% of the bet"),
    QT_TRANSLATE_NOOP("BetFacts", "House edge: %1% of the bet, a roll"),
    QT_TRANSLATE_NOOP("BetFacts", "The dice in force never decide it"),
    QT_TRANSLATE_NOOP("BetFacts", "Decided after %1 rolls on average"),
    QT_TRANSLATE_NOOP("BetFacts", "Vig: %1"),
};

// What the next click is meant for, by PendingAction.
constexpr const char* kNextClickTexts[] = {
    "",
    QT_TRANSLATE_NOOP("TableCommands", "Next click: call a bet ON"),
    QT_TRANSLATE_NOOP("TableCommands", "Next click: call a bet OFF"),
    QT_TRANSLATE_NOOP("TableCommands", "Next click: buy a Place bet"),
    QT_TRANSLATE_NOOP("TableCommands", "Next click: remove a bet"),
    QT_TRANSLATE_NOOP("TableCommands", "Next click: take a bet to move it")};

QString Told(const Game& game, const std::vector<FactText>& texts, const QString& between) {
  QStringList told;
  for (const FactText& text : texts) told += Told(game, text);
  return told.join(between);
}

QString ValueText(const Game& game, const FactValue& value) {
  if (!value.words.Empty()) return Told(game, value.words);
  const MessageValue& plain = value.plain;
  if (plain.kind == MessageValue::Kind::kMoney) return TableAmountText(game, Currency::FromRaw(plain.number));
  return plain.kind == MessageValue::Kind::kNumber ? ShownCount(plain.number)
                                                   : FigureInHabit(FromCore(plain.text));
}

QString ClicksText(const Game& game, const TableCommands& commands, const BetTerms& terms) {
  QStringList clicks;
  if (terms.room > kZero)
    clicks += Translated(QT_TRANSLATE_NOOP("TableCommands", "Click: bets %1"))
                  .arg(TableAmountText(game, commands.ClickAmount));
  if (terms.amount > kZero)
    clicks += Translated(QT_TRANSLATE_NOOP(
        "TableCommands", "Drag: moves it, off the felt takes it down; Delete and a click too"));
  clicks += Translated(QT_TRANSLATE_NOOP("TableCommands", "Right click: rolls"));
  return clicks.join("\n");
}

// All that the highest level of tips tells.
QString WholeTip(Game& game, const TableCommands& commands, BetId bet) {
  const BetTerms terms = BetTermsOf(game, game.table.SelectedSeat, bet);
  QStringList lines{Told(game, TipFacts(terms), "\n")};
  if (terms.amount > kZero) lines.insert(0, BetAmountText(game, game.table.SelectedSeat, bet));
  if (!terms.refusal.empty()) lines += FromCore(terms.refusal);
  lines += ClicksText(game, commands, terms);
  return lines.join("\n");
}

}  // namespace

QString Told(const Game& game, const FactText& text) {
  const QString pattern = QCoreApplication::translate("BetFacts", text.pattern);
  QString told;
  for (qsizetype at = 0; at < pattern.size(); ++at) {
    const int hole = at + 1 < pattern.size() ? pattern[at + 1].unicode() - '1' : -1;
    if (pattern[at] != '%' || hole < 0 || hole >= static_cast<int>(text.values.size())) {
      told += pattern[at];
      continue;
    }
    told += ValueText(game, text.values[static_cast<std::size_t>(hole)]);
    ++at;
  }
  return told;
}

std::span<const char* const> TranslatedFactWords() { return kFactWords; }

QString WhoBets(const Game& game, BetId bet) {
  const TableState& table = game.table;
  QStringList players;
  bool others = false;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (table.BetAmount(seat, bet) == kZero) continue;
    others = others || seat != table.SelectedSeat;
    players += FromCore(table.seats[seat].SeatName) + " " + TableAmountText(game, table.BetAmount(seat, bet));
  }
  return others ? players.join(", ") : QString();
}

QString SeatTip(const Game& game, SeatId seat) {
  if (!IsOccupied(game.table, seat) || WatchedLuck(game) == nullptr) return {};
  const SessionLuckFigures figures = SessionLuckOf(game, seat);
  const auto dollars = [](double value) {
    return MoneyText(Currency::FromDouble(std::round(value * 100) / 100));
  };
  QStringList lines{FromCore(game.table.seats[seat].SeatName)};
  if (figures.counted == 0) {
    lines += Translated(QT_TRANSLATE_NOOP("TableCommands", "No bet has ridden in this session"));
  } else {
    lines += Translated(QT_TRANSLATE_NOOP("TableCommands", "Expected of the bets made: %1"))
                 .arg(dollars(figures.report.expected));
    lines += Translated(QT_TRANSLATE_NOOP("TableCommands", "Came: %1")).arg(dollars(figures.report.actual));
    lines += Translated(QT_TRANSLATE_NOOP("TableCommands", "Luck: %1, %2 standard deviations"))
                 .arg(dollars(figures.report.luck), ShownNumber(figures.report.deviations, 2));
  }
  if (figures.missed > 0)
    lines += Translated(QT_TRANSLATE_NOOP("TableCommands", "Rolls that were not counted: %1"))
                 .arg(ShownCount(figures.missed));
  return lines.join("\n");
}

QString BetAmountText(const Game& game, SeatId seat, BetId bet) {
  return FromCore(BetName(bet)) + ": " + TableAmountText(game, game.table.BetAmount(seat, bet));
}

QString PointerText(Game& game, const TableCommands& commands, BetId bet) {
  const SeatId seat = game.table.SelectedSeat;
  const bool occupied = IsOccupied(game.table, seat);
  const int action = commands.PendingAction;
  QStringList parts;
  if (action != kPendingNone) parts += Translated(kNextClickTexts[action]);
  if (commands.CarriedAmount > kZero)
    parts += Translated(QT_TRANSLATE_NOOP("TableCommands", "Carrying %1"))
                 .arg(TableAmountText(game, commands.CarriedAmount));
  if (commands.Moving.Bet != 0)
    parts += Translated(QT_TRANSLATE_NOOP("TableCommands", "Moving %1"))
                 .arg(BetAmountText(game, commands.Moving.Seat, commands.Moving.Bet));
  if (bet == 0 && occupied)
    parts += FromCore(game.table.seats[seat].SeatName) + "   " + MoneyLines(game, seat).join("   ");
  if (bet != 0 && !IsTableBet(bet)) parts += BetAmountText(game, seat, bet);
  // A click that is meant for something else bets nothing.
  const bool bets = occupied && action == kPendingNone && commands.Moving.Bet == 0;
  if (IsTableBet(bet))
    parts += Told(game, PointerFacts(BetTermsOf(game, occupied ? seat : kNobody, bet), bets), ", ");
  if (IsTableBet(bet)) parts += WhoBets(game, bet);
  parts.removeAll(QString());
  return parts.join("   ");
}

QString InfoTip(Game& game, const TableCommands& commands, BetId bet) {
  if (bet == 0) return {};
  const SeatId seat = game.table.SelectedSeat;
  const Currency amount = game.table.BetAmount(seat, bet);
  const QString who = WhoBets(game, bet);
  QStringList lines;
  switch (game.settings.InfoTipLevel) {
    case 1:
      lines += !who.isEmpty() ? who : amount == kZero ? QString() : TableAmountText(game, amount);
      break;
    case 2:
      lines += FromCore(BetName(bet));
      break;
    case 3:
      lines += {BetAmountText(game, seat, bet), who};
      break;
    case 4:
      lines += {IsTableBet(bet) ? WholeTip(game, commands, bet) : BetAmountText(game, seat, bet), who};
      break;
    default:
      break;
  }
  lines.removeAll(QString());
  return lines.join("\n");
}

// --- The tip.

BetTip::BetTip(TableWidget& table, Game& game, const TableCommands& commands)
    : QObject(&table), table_(table), game_(game), commands_(commands), timer_(new QTimer(this)) {
  timer_->setSingleShot(true);
  timer_->setInterval(kTipMilliseconds);
  connect(timer_, &QTimer::timeout, this, [this] { Show(); });
  table.installEventFilter(this);
}

bool BetTip::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseMove: {
      const auto* move = static_cast<QMouseEvent*>(event);
      if (move->buttons() == Qt::NoButton)
        PointAt(move->position().toPoint(), move->globalPosition().toPoint());
      else
        Hide();
      break;
    }
    case QEvent::Leave:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::Hide:
      Hide();
      break;
    case QEvent::ToolTip:
      return true;  // it comes by itself
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

// The tip stays while the pointer is over what it tells of.
void BetTip::PointAt(QPoint point, QPoint screen) {
  const BetId bet = table_.BetAt(point);
  const SeatId seat = bet == 0 ? table_.SeatAt(point) : kNobody;
  screen_ = screen;
  if (shown_ && bet == bet_ && seat == seat_) return;
  Hide();
  bet_ = bet;
  seat_ = seat;
  if (bet != 0 || seat != 0) timer_->start();
}

void BetTip::Hide() {
  timer_->stop();
  if (std::exchange(shown_, false)) QToolTip::hideText();
}

void BetTip::Show() {
  const bool told = game_.settings.InfoTipLevel > 0 && !game_.table.TurboRollActive;
  const QString tip = !told ? QString() : bet_ != 0 ? InfoTip(game_, commands_, bet_) : SeatTip(game_, seat_);
  shown_ = !tip.isEmpty();
  if (shown_) QToolTip::showText(screen_ + QPoint(14, 14), tip, &table_);
}

}  // namespace tessaryn
