#include "shell/screens/advantage_page.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

#include "base/bet_catalogue.h"
#include "rules/payoffs.h"
#include "shell/screens/screen_parts.h"
#include "shell/screens/setting_editor.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

enum AdvantageColumn {
  kBetColumn,
  kEvRoll,
  kDevRoll,
  kEvDecision,
  kDevDecision,
  kEvHour,
  kUp,
  kUpHour,
  kSession,
  kRollsDecision,
  kTimeDecision,
  kPays,
  kAdvantageColumns
};

// Also reads as percent.
constexpr int kFirstAmount = 100;

// The bets that a row stands for; a bet and the one of the same worth that is made with a point on.
struct RowBets {
  int first = 0;
  int second = 0;
};
RowBets BetsOf(int row) {
  if (row == kPassLine) return {kPassLine, kCome};
  if (row == kDontPass) return {kDontPass, kDontCome};
  return {IsTableBet(row) ? row : 0, 0};
}

template <typename Value, typename Of>
Value SumOf(int row, const Of& of) {
  const RowBets bets = BetsOf(row);
  Value sum{};
  for (const BetId bet : {bets.first, bets.second})
    if (bet != 0) sum += of(bet);
  return sum;
}

FigureCell Figure(double value) { return {FigureText(value), value}; }

QString WrittenAmount(Currency amount) { return amount == kZero ? QString() : DollarText(amount); }

// What a bet that isn't paid by several rows pays.
QString PaysText(const Game& game, int row) {
  const BetId bet = row == kPassComeOutRow ? kCome : row == kDontComeOutRow ? kDontCome : row;
  const bool byPoint = row == kPassLine || row == kDontPass || bet == kPassLineOdds || bet == kDontPassOdds;
  if (byPoint) return AdvantagePage::tr("by the point");
  if (SharesOf(bet) > 1) return AdvantagePage::tr("in shares");
  if (PayoffRowsOf(game, bet).size() > 1) return AdvantagePage::tr("by its table");
  return FromCore(PayoffText(game.payoffs.PayoffTable[bet]));
}

QLabel* NewLines(QWidget* parent, const char* name) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setWordWrap(true);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void SetIfOther(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
}

}  // namespace

AdvantagePage::AdvantagePage(Game& game, SettingEditor& editor, QWidget* parent)
    : QWidget(parent), game_(game), editor_(editor) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  table_ = new FiguresTable(
      "picAdvantageTable", tr("Advantage"),
      {tr("Bet"), tr("EV/Roll"), tr("StDev/Roll"), tr("EV/Dec"), tr("StDev/Dec"), tr("EV/Hour"), tr("Up"),
       tr("Up/Hour"), tr("Session"), tr("Rolls/Dec"), tr("Time/Dec"), tr("Pays")},
      this);
  table_->setToolTip(
      tr("EV and deviation in dollars on the bet amount. Up: what the player has on the table, "
         "and what it is expected to bring in an hour. Session: what was to be expected of the "
         "bets that this session decided."));
  up_ = NewLines(this, "lblUp");
  session_ = NewLines(this, "lblSession");
  miscLines_ = NewLines(this, "lblMiscData");
  AddChoices(*column);
  column->addWidget(table_, 1);
  for (QLabel* label : {up_, session_, miscLines_}) column->addWidget(label);
}

void AdvantagePage::AddChoices(QBoxLayout& column) {
  auto* choices = new QHBoxLayout;
  choices->setSpacing(8);
  column.addLayout(choices);
  const auto add = [&](const QString& caption, QWidget* control) {
    auto* label = new QLabel(caption, this);
    label->setBuddy(control);
    choices->addWidget(label);
    choices->addWidget(control);
  };
  amount_ = new MoneyEdit(this);
  amount_->setObjectName("txtAdvantageBet");
  amount_->setAccessibleName(tr("Bet amount"));
  amount_->setFixedWidth(amount_->fontMetrics().horizontalAdvance("999999.99") + 16);
  amount_->SetValue(Currency::Dollars(kFirstAmount));
  add(tr("Bet &amount"), amount_);
  players_ = new PlayerChoice("cmbAdvantagePlayer", this);
  add(tr("&Player"), players_);
  add(tr("Sort &by"), new SortChoice("cmbAdvantageSort", *table_, this));
  choices->addStretch();
  auto* boxes = new QHBoxLayout;
  boxes->setSpacing(16);
  column.addLayout(boxes);
  onlyUp_ = new QCheckBox(tr("&Only bets that are up"), this);
  onlyUp_->setObjectName("chkOnlyUp");
  auto* zeros = new QCheckBox(tr("Include &zero outcomes"), this);
  zeros->setObjectName("mnuIncludeZeroOutcomes");
  zeros->setProperty("tells", "IncludeZeroOutcomes");
  misc_ = new QCheckBox(tr("Show &misc data"), this);
  misc_->setObjectName("mnuShowMiscData");
  for (QCheckBox* box : {onlyUp_, zeros, misc_}) boxes->addWidget(box);
  boxes->addStretch();
  SettingControl& control =
      editor_.Add({.setting = "IncludeZeroOutcomes",
                   .caption = zeros->text().remove('&'),
                   .widget = zeros,
                   .show = [zeros](const std::string& value) { zeros->setChecked(value == "on"); }});
  connect(zeros, &QCheckBox::clicked, this,
          [this, &control](bool on) { editor_.Change(control, on ? "on" : "off"); });
  connect(amount_, &QLineEdit::textEdited, this, &AdvantagePage::Refresh);
  connect(players_, &QComboBox::activated, this, &AdvantagePage::Refresh);
  connect(onlyUp_, &QCheckBox::toggled, this, [this](bool only) { table_->ShowMarkedOnly(only); });
  connect(misc_, &QCheckBox::toggled, this, &AdvantagePage::ShowMisc);
  ShowMisc(false);
}

// --- What every bet is worth.

bool AdvantagePage::Basis::operator==(const Basis& other) const {
  static_assert(std::has_unique_object_representations_v<Basis>, "compared by their bytes");
  return std::memcmp(this, &other, sizeof *this) == 0;
}

AdvantagePage::Basis AdvantagePage::BasisOf() const {
  const Settings& settings = game_.settings;
  const bool skewed = game_.percentage.PercentageDiceActive;
  return {game_.payoffs,
          skewed ? game_.percentage.ProbMatrix[1] : ProbabilityPlane{},
          {settings.BarNumber, settings.BuyVigRate.raw, settings.LayVigRate.raw, settings.BuyVigUpFront,
           settings.LayVigUpFront, settings.IncludeZeroOutcomes, settings.SimRollRate.raw, skewed}};
}

void AdvantagePage::FigureAgain() {
  Basis basis = BasisOf();
  if (basis_ == basis) return;
  basis_ = basis;
  amounts_.reset();
  rows_ = AdvantageTable(game_);
  for (const AdvantageRow& row : rows_) {
    const RowBets bets = BetsOf(row.bet);
    for (const BetId bet : {bets.first, bets.second}) perDecision_[bet] = row.figures.evPerDecision;
  }
}

FigureRow AdvantagePage::RowOf(const AdvantageRow& row, SeatId seat) const {
  const double amount = amount_->Value().IsError() ? 0 : amount_->Value().ToDouble();
  const double rollsPerHour = game_.settings.SimRollRate.ToDouble();
  const Advantage& figures = row.figures;
  const auto up = SumOf<Currency>(row.bet, [&](BetId bet) { return game_.table.BetAmount(seat, bet); });
  const double upHour = up.ToDouble() * figures.evPerRoll * rollsPerHour;
  const auto wagered = SumOf<Currency>(row.bet, [&](BetId bet) {
    return BetStat(game_.stats, kWagerStats, kCurrentSession, seat, bet, kStatTotal);
  });
  const double expected = wagered.ToDouble() * figures.evPerDecision;
  const double time = rollsPerHour > 0 ? figures.rollsPerDecision / rollsPerHour : 0;
  const bool isUp = seat != 0 && up != kZero;
  const bool played = seat != 0 && wagered != kZero;
  return {row.bet,
          isUp,
          {{FromCore(row.caption), 0},
           Figure(figures.evPerRoll * amount),
           Figure(figures.stdevPerRoll * amount),
           Figure(figures.evPerDecision * amount),
           Figure(figures.stdevPerDecision * amount),
           Figure(figures.evPerRoll * amount * rollsPerHour),
           {isUp ? WrittenAmount(up) : QString(), isUp ? up.ToDouble() : 0},
           {isUp ? FigureText(upHour) : QString(), isUp ? upHour : 0},
           {played ? FigureText(expected) : QString(), played ? expected : 0},
           Figure(figures.rollsPerDecision),
           {MinutesText(time), time},
           {PaysText(game_, row.bet), 0}}};
}

void AdvantagePage::Refresh() {
  players_->Refresh(game_.table);
  FigureAgain();
  const SeatId seat = players_->Seat();
  std::vector<FigureRow> rows;
  rows.reserve(rows_.size());
  for (const AdvantageRow& row : rows_) rows.push_back(RowOf(row, seat));
  table_->SetRows(std::move(rows));
  SetIfOther(*up_, UpText(seat));
  SetIfOther(*session_, SessionText(seat));
  SetIfOther(*miscLines_, MiscText());
}

void AdvantagePage::ShowMisc(bool shown) {
  for (const int column : {kRollsDecision, kTimeDecision, kPays}) table_->setColumnHidden(column, !shown);
  if (shown) Refresh();
  miscLines_->setVisible(shown);
}

// --- What stands below the table.

QString AdvantagePage::UpText(SeatId seat) {
  if (seat == 0) return tr("There are no players at the table.");
  const QString name = FromCore(game_.table.seats[seat].SeatName);
  BetAmounts amounts;
  game_.table.seats[seat].SeatBets.ForEach(
      [&](BetId bet) { amounts[bet] = game_.table.BetAmount(seat, bet).ToDouble(); });
  if (amounts.empty()) return tr("%1 has no bets up.").arg(name);
  if (amounts_ != amounts) {
    together_ = FigureBetsTogether(game_, amounts);
    amounts_ = amounts;
  }
  QString text =
      tr("At %1 rolls an hour the bets that %2 has up are expected to bring %3 an hour")
          .arg(MoneyText(game_.settings.SimRollRate.Number()), name, DollarFigure(together_.evPerHour));
  if (together_.unknownBet == 0)
    text = tr("%1, give or take %2").arg(text, DollarFigure(together_.stdevPerHour));
  text += QLatin1Char('.');
  if (together_.waitsForPoint)
    text += tr(" Odds are counted while a point is on, and Come and Don't Come bets are made while one is.");
  if (together_.unknownBet != 0)
    text += tr(" How far an hour strays from that is left out: what %1 has in common with the other bets "
               "can't be told.")
                .arg(FromCore(BetName(together_.unknownBet)));
  return text;
}

QString AdvantagePage::SessionText(SeatId seat) const {
  if (seat == 0) return {};
  Currency wagered;
  Currency came;
  double expected = 0;
  const auto stat = [&](StatTable table, BetId bet) {
    return BetStat(game_.stats, table, kCurrentSession, seat, bet, kStatTotal);
  };
  for (BetId bet = 1; bet <= kBets; ++bet) {
    const Currency amount = stat(kWagerStats, bet);
    if (amount == kZero) continue;
    wagered += amount;
    came += stat(kWinStats, bet) - stat(kLossStats, bet);
    expected += amount.ToDouble() * perDecision_[bet];
  }
  if (wagered == kZero) return tr("No bet has been decided in this session.");
  return tr("This session decided %1 of bets: %2 was to be expected of them, %3 it came to.")
      .arg(DollarText(wagered), DollarFigure(expected), DollarText(came));
}

QString AdvantagePage::MiscText() const {
  const Settings& settings = game_.settings;
  const double rollsPerHour = settings.SimRollRate.ToDouble();
  const auto vig = [](Fraction rate, bool upFront) {
    const QString percent = FromCore(PlainMoney(ToPercent(rate).Number()));
    return upFront ? tr("%1% of all").arg(percent) : tr("%1% of winners").arg(percent);
  };
  return tr("Dice: %1. A roll takes %2. Buy vig: %3. Lay vig: %4. Bar: %5. %6")
      .arg(game_.percentage.PercentageDiceActive ? tr("percentage dice") : tr("fair"),
           MinutesText(rollsPerHour > 0 ? 1 / rollsPerHour : 0),
           vig(settings.BuyVigRate, settings.BuyVigUpFront), vig(settings.LayVigRate, settings.LayVigUpFront))
      .arg(settings.BarNumber)
      .arg(settings.IncludeZeroOutcomes ? tr("Rolls that leave a bet in place count as decisions.")
                                        : tr("Only wins and losses count as decisions."));
}

QList<QStringList> AdvantagePage::Rows() const {
  QList<QStringList> rows = table_->Rows();
  for (const QLabel* label : {up_, session_})
    if (!label->text().isEmpty()) rows += {label->text()};
  return rows;
}

}  // namespace tessaryn
