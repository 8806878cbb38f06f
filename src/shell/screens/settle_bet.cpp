#include "shell/screens/settle_bet.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/bet_catalogue.h"
#include "rules/bet_limits.h"
#include "rules/handling.h"
#include "shell/screens/screen_parts.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr int kDiceHeight = 44;
constexpr int kChoices = 7;

const char* const kWinButtons[kChoices + 1] = {
    "",
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "&Take Bet and Winnings"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "&Same Bet - Take Winnings"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Press 1 &Unit - Add $%1 to Bet"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Press - Add Winnings to &Double Bet"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Parlay - Add &All Winnings to Bet"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Sa&me Bet:"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "&Bet:")};
const char* const kLoseButtons[kChoices + 1] = {
    "",
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "&No Bet/Take Remainder (if any)"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "&Same Bet"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Bet &Remainder (if any)"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Same Bet Plus 1 &Unit - Add $%1 to Bet"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "&Double Bet"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Sa&me Bet:"),
    QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "&Bet:")};

// A bet that is cut into shares of which one wins.
struct Shared {
  BetId bet;
  const char* wins;
  const char* loses;
};
constexpr Shared kShared[] = {
    {kCAndE, QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Half of the bet wins:"),
     QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Half of the bet loses:")},
    {kHorn, QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "A quarter of the bet wins:"),
     QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Three quarters of the bet lose:")},
    {kWorld, QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "A fifth of the bet wins:"),
     QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Four fifths of the bet lose:")},
};

// The bets of a whole hand, and what was counted for them.
struct Counted {
  BetId bet;
  const char* caption;
};
constexpr Counted kCounted[] = {
    {kSharpShooter, QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Points made:")},
    {kRideTheLine, QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Line wins:")},
    {kFire, QT_TRANSLATE_NOOP("tessaryn::SettleBetScreen", "Different points made:")},
};

template <typename Row, std::size_t kRows>
const Row* RowOf(const Row (&rows)[kRows], BetId bet) {
  for (const Row& row : rows)
    if (row.bet == bet) return &row;
  return nullptr;
}

QString PayoffCaption(const PayoffRecord& record) {
  const QString text = record.ForFlag == kZero ? SettleBetScreen::tr("Payoff at %1 for %2:")
                                               : SettleBetScreen::tr("Payoff at %1 to %2:");
  return text.arg(MoneyText(record.PayTo), MoneyText(record.PayPer));
}

void AddShares(const Shared& shared, Currency amount, Currency share, std::vector<SettleLine>& lines) {
  lines.push_back({"lblShareWins", SettleBetScreen::tr(shared.wins), DollarText(share)});
  lines.push_back({"lblShareLoses", SettleBetScreen::tr(shared.loses), DollarText(-(amount - share))});
}

}  // namespace

QString SettleTitle(const SettleQuestion& question) {
  return question.offOdds ? SettleBetScreen::tr("ODDS OFF")
         : question.won   ? SettleBetScreen::tr("WINNER")
                          : SettleBetScreen::tr("LOSER");
}

QString SettleBetName(BetId bet) { return SettleBetScreen::tr(BetName(bet).c_str()); }

QString SettleChoiceText(const SettleQuestion& question, int choice) {
  const QString caption = SettleBetScreen::tr((question.won ? kWinButtons : kLoseButtons)[choice]);
  const bool adds = choice == (question.won ? int{kWinPressUnit} : int{kLosePlusUnit});
  return adds ? caption.arg(MoneyText(question.pressUnit)) : caption;
}

int SafeChoice(const SettleQuestion& question) { return question.won ? int{kWinSame} : int{kLoseTakeDown}; }

QPixmap DiceAsRolled(const TableState& table, int height, double ratio) {
  if (table.Die1 < 1 || table.Die2 < 1) return {};
  const QSize size(height * 2 + height / 4, height);
  QPixmap picture((QSizeF(size) * ratio).toSize());
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const int faces[2] = {table.Die1, table.Die2};
  for (int n = 0; n < 2; ++n) {
    painter.save();
    painter.translate(n == 0 ? height / 2.0 : size.width() - height / 2.0, height / 2.0);
    painter.scale(height, height);
    PaintDie(painter, faces[n], kDiceRed, Qt::white);
    painter.restore();
  }
  return picture;
}

std::vector<SettleLine> SettleLines(const Game& game, const SettleQuestion& question) {
  std::vector<SettleLine> lines;
  const BetId bet = question.bet;
  const Currency amount = game.table.BetAmount(question.seat, bet);
  lines.push_back({"lblBetAmount", SettleBetScreen::tr("Bet:"), DollarText(amount)});
  if (question.offOdds) return lines;
  if (const Counted* counted = RowOf(kCounted, bet))
    lines.push_back({"lblCount", SettleBetScreen::tr(counted->caption), QString::number(question.count)});
  // What was paid at the ratio, before the shares that lost and the vig were taken off.
  Currency paid = question.gross;
  if (const Shared* shared = RowOf(kShared, bet); shared != nullptr && question.won) {
    const Currency share = Divide(amount, Currency::Dollars(SharesOf(bet)));
    AddShares(*shared, amount, share, lines);
    paid += amount - share;
  }
  const Currency vig = question.won || VigUpFront(game, bet) ? question.vig : kZero;
  paid += vig;
  const PayoffRecord& record = question.paidBy;
  const bool plainLoss = !question.won && record.PayTo == -record.PayPer;
  lines.push_back(
      {"lblPayoff", plainLoss ? SettleBetScreen::tr("Bet lost:") : PayoffCaption(record), DollarText(paid)});
  if (HasVig(bet)) {
    const Percent percent = ToPercent(IsLay(bet) ? game.settings.LayVigRate : game.settings.BuyVigRate);
    lines.push_back(
        {"lblVig", SettleBetScreen::tr("%1% vig:").arg(MoneyText(percent.Number())), DollarText(-vig)});
  }
  if (paid != question.gross)
    lines.push_back({"lblNet",
                     question.won ? SettleBetScreen::tr("Net payoff:") : SettleBetScreen::tr("Net loss:"),
                     DollarText(question.gross)});
  if (question.net != question.gross)
    lines.push_back({"lblRounded",
                     question.won ? SettleBetScreen::tr("Net payoff (rounded):")
                                  : SettleBetScreen::tr("Net loss (rounded):"),
                     DollarText(question.net)});
  return lines;
}

SettleBetScreen::SettleBetScreen(const Game& game, const SettleQuestion& question, QWidget* parent)
    : QDialog(parent), question_(question), choice_(SafeChoice(question)) {
  setObjectName("frmSettleBet");
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  AddHeader(game);
  AddLines(game);
  AddChoices(game);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

void SettleBetScreen::AddHeader(const Game& game) {
  const QColor& colour = question_.offOdds ? kBandGrey : question_.won ? kBandGreen : kBandRed;
  auto* header = new HeaderBand(colour, DiceAsRolled(game.table, kDiceHeight, devicePixelRatioF()), this);
  const QString player = FromCore(game.table.seats[question_.seat].SeatName);
  const QString bet = SettleBetName(question_.bet);
  header->AddTitle(SettleTitle(question_));
  header->AddLine("lblBet", bet)->setAccessibleName(tr("%1, bet %2").arg(player, bet));
  header->AddLine("lblPlayer", player);
  setWindowTitle(tr("%1 - %2").arg(player, bet));
  layout()->addWidget(header);
}

void SettleBetScreen::AddLines(const Game& game) {
  auto* area = new QWidget(this);
  auto* grid = new QGridLayout(area);
  grid->setContentsMargins(16, 14, 16, 4);
  grid->setHorizontalSpacing(24);
  grid->setColumnStretch(0, 1);
  int row = 0;
  const std::vector<SettleLine> lines = SettleLines(game, question_);
  for (const SettleLine& line : lines) {
    auto* caption = new QLabel(line.caption, area);
    caption->setObjectName(line.name);
    auto* value = new QLabel(line.value, area);
    value->setObjectName(QString(line.name) + "Value");
    value->setAccessibleName(line.caption + " " + line.value);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const bool result = row + 1 == static_cast<int>(lines.size()) && row > 0;
    QFont font = value->font();
    font.setBold(result);
    caption->setFont(font);
    value->setFont(font);
    grid->addWidget(caption, row, 0);
    grid->addWidget(value, row++, 1);
  }
  const QString note = question_.offOdds    ? tr("The odds weren't working: nothing was won or lost.")
                       : question_.finished ? tr("This bet is over. It comes down with every choice.")
                                            : QString();
  if (!note.isEmpty()) {
    auto* label = new QLabel(note, area);
    label->setObjectName("lblNote");
    grid->addWidget(label, row, 0, 1, 2);
  }
  layout()->addWidget(area);
}

void SettleBetScreen::AddChoices(const Game& game) {
  auto* area = new QWidget(this);
  auto* grid = new QGridLayout(area);
  grid->setContentsMargins(16, 12, 16, 16);
  grid->setColumnStretch(1, 1);
  layout()->addWidget(area);
  for (int choice = 1; choice < kWinAdjusted; ++choice) AddChoice(*grid, choice);
  const bool won = question_.won;
  same_ = AddAdjusted(*grid, kWinAdjusted, won ? kSlotWinSame : kSlotLoseSame, game);
  fixed_ = AddAdjusted(*grid, kWinFixed, won ? kSlotWinBet : kSlotLoseBet, game);
  grid->setRowMinimumHeight(kChoices + 1, 4);
  rest_ = AddReach(*grid, "chkRestOfRoll", tr("The same &for the rest of this roll"),
                   won ? tr("All other winners of this roll are treated alike")
                       : tr("All other losers of this roll are treated alike"));
  always_ = AddReach(*grid, "chkDontAskAgain", tr("Don't as&k again (Auto-Play, F3)"),
                     tr("Becomes the player's choice on the Auto-Play screen"));
}

// How far the choice reaches, beyond this bet.
QCheckBox* SettleBetScreen::AddReach(QGridLayout& grid, const char* name, const QString& caption,
                                     const QString& tip) {
  auto* box = new QCheckBox(caption, grid.parentWidget());
  box->setObjectName(name);
  box->setToolTip(tip);
  grid.addWidget(box, grid.rowCount(), 0, 1, 2);
  return box;
}

bool SettleBetScreen::ForRestOfRoll() const { return rest_->isChecked(); }

bool SettleBetScreen::ForGood() const { return always_->isChecked(); }

// A choice with its amount, which begins as the seat keeps it.
AdjustEdit* SettleBetScreen::AddAdjusted(QGridLayout& grid, int choice, int slot, const Game& game) {
  QPushButton* button = AddChoice(grid, choice);
  grid.addWidget(button, choice, 0);
  const Handling& handling = game.table.seats[question_.seat].handling;
  const QString what = button->text().remove('&').remove(':');
  auto* edit = new AdjustEdit(slot, game.settings, what, grid.parentWidget());
  edit->SetValue({handling.AdjustKind[slot], handling.AdjustValue[slot], handling.AdjustUnit[slot]});
  grid.addWidget(edit, choice, 1);
  // Enter behind an amount just typed bets that amount.
  connect(edit, &AdjustEdit::Edited, button, [button] { button->setDefault(true); });
  return edit;
}

QPushButton* SettleBetScreen::AddChoice(QGridLayout& grid, int choice) {
  auto* button = new QPushButton(SettleChoiceText(question_, choice), grid.parentWidget());
  button->setObjectName(QString("cmdHandle%1").arg(choice));
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this, [this, choice] { Choose(choice); });
  if (choice < kWinAdjusted) grid.addWidget(button, choice, 0, 1, 2);
  if (choice == SafeChoice(question_)) {
    button->setDefault(true);
    button->setFocus();
  }
  return button;
}

void SettleBetScreen::Choose(int choice) {
  choice_ = choice;
  accept();
}

SettleAnswer SettleBetScreen::Answer() const {
  SettleAnswer answer;
  answer.choice = choice_;
  if (choice_ != kWinAdjusted && choice_ != kWinFixed) return answer;
  const Adjustment& typed = (choice_ == kWinAdjusted ? same_ : fixed_)->Value();
  answer.adjustKind = typed.kind;
  answer.adjustValue = typed.value;
  answer.adjustUnit = typed.unit;
  return answer;
}

SettleAnswer AskSettleBet(QWidget* parent, Game& game, const SettleQuestion& question) {
  SettleBetScreen screen(game, question, parent);
  RunDialog(screen);
  return screen.Answer();
}

}  // namespace tessaryn
