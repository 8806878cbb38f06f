#include "shell/screens/comps_page.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "base/bet_catalogue.h"
#include "play/reports.h"
#include "rules/advantage.h"
#include "rules/comps.h"
#include "shell/screens/core_words.h"
#include "shell/screens/screen_parts.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr const char* kResultCaptions[] = {
    QT_TRANSLATE_NOOP("tessaryn::CompsPage", "Total comp action"),
    QT_TRANSLATE_NOOP("tessaryn::CompsPage", "Comp bets decided"),
    QT_TRANSLATE_NOOP("tessaryn::CompsPage", "Rolls"),
    QT_TRANSLATE_NOOP("tessaryn::CompsPage", "Expected result"),
    QT_TRANSLATE_NOOP("tessaryn::CompsPage", "Avg action x time"),
    QT_TRANSLATE_NOOP("tessaryn::CompsPage", "Comp value"),
};

}  // namespace

CompsPage::CompsPage(Game& game, SettingEditor& editor, QWidget* parent)
    : ControlsPage(editor, "picComps", parent), game_(game) {
  AddResults();
  AddBets();
}

void CompsPage::AddResults() {
  QGroupBox* group = Group(tr("Comps so far"), 0);
  QFormLayout* form = FormOf(group);
  players_ = new PlayerChoice("cmbCompPlayer", group);
  form->addRow(tr("Player"), players_);
  scopes_ = new QComboBox(group);
  scopes_->setObjectName("cmbCompScope");
  scopes_->setAccessibleName(tr("Scope"));
  for (ScopeId scope = 0; scope < kScopes; ++scope) scopes_->addItem(CoreWords(ScopeName(scope)));
  scopes_->setCurrentIndex(kCurrentSession);
  form->addRow(tr("Scope"), scopes_);
  for (int n = 0; n < kResults; ++n) {
    results_[n] = new QLabel(group);
    results_[n]->setObjectName(QStringLiteral("lblComps%1").arg(n));
    results_[n]->setTextFormat(Qt::PlainText);
    form->addRow(tr(kResultCaptions[n]), results_[n]);
  }
  QFont bold = results_[kResults - 1]->font();
  bold.setBold(true);
  results_[kResults - 1]->setFont(bold);
  connect(players_, &QComboBox::activated, this, &CompsPage::Refresh);
  connect(scopes_, &QComboBox::activated, this, &CompsPage::Refresh);
}

void CompsPage::AddBets() {
  QGroupBox* group = Group(tr("Bets figured in comps"), 1);
  QFormLayout* form = FormOf(group);
  bets_ = new FiguresTable("lstCompBets", tr("Bets figured in comps"),
                           {tr("Bet"), tr("Comps"), tr("Wagered"), tr("Expected")}, group);
  bets_->setProperty("tells", "CompBetFlags");
  bets_->setToolTip(tr("A double click or the space bar changes a bet."));
  bets_->setMinimumHeight(bets_->fontMetrics().lineSpacing() * 12);
  bets_->setMinimumWidth(bets_->fontMetrics().averageCharWidth() * 54);
  form->addRow(bets_);
  auto* line = new QHBoxLayout;
  line->setSpacing(8);
  struct Button {
    const char* name;
    QString caption;
    std::function<void()> act;
  };
  const Button buttons[] = {{"cmdCompsYes", tr("Yes"), [this] { Set([](int) { return true; }); }},
                            {"cmdCompsNo", tr("No"), [this] { Set([](int) { return false; }); }},
                            {"cmdCompsSelectAll", tr("Select all"), [this] { bets_->selectAll(); }}};
  for (const Button& facts : buttons) {
    auto* button = new QPushButton(facts.caption, group);
    button->setObjectName(facts.name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, facts.act);
    line->addWidget(button);
  }
  form->addRow(line);
  form->addRow(tr("Sort by"), new SortChoice("cmbCompSort", *bets_, group));
  columns_[1]->setStretchFactor(group, 1);
  connect(bets_, &QAbstractItemView::doubleClicked, this, &CompsPage::Flip);
  auto* space = new QShortcut(Qt::Key_Space, bets_, nullptr, nullptr, Qt::WidgetShortcut);
  connect(space, &QShortcut::activated, this, &CompsPage::Flip);
}

template <typename Counts>
void CompsPage::Set(const Counts& counts) {
  std::vector<SettingChange> changes;
  for (const BetId bet : bets_->Selected())
    changes.push_back({"CompBetFlags." + std::to_string(bet), 0, counts(bet) ? "on" : "off"});
  if (!changes.empty()) editor_.ChangeTogether(changes);
  Refresh();
}

void CompsPage::Flip() {
  const BetSet before = game_.settings.CompBetFlags;
  Set([&before](BetId bet) { return !before.Has(bet); });
}

FigureRow CompsPage::RowOf(BetId bet, ScopeId scope, SeatId seat) const {
  const Settings& settings = game_.settings;
  const bool counts = settings.CompBetFlags.Has(bet);
  const Currency wagered =
      seat == 0 ? kZero : BetStat(game_.stats, kWagerStats, scope, seat, bet, kStatTotal);
  // Figured for bets that were played alone: all would take longer than a roll.
  double expected = 0;
  if (wagered > kZero)
    expected =
        wagered.ToDouble() *
        FigureAdvantage(game_, bet, !settings.CompUseTrueProbs && game_.percentage.PercentageDiceActive)
            .evPerDecision;
  return {bet,
          counts,
          {{FromCore(BetName(bet)), 0},
           {counts ? tr("Yes") : tr("No"), counts ? 0.0 : 1.0},
           {wagered == kZero ? QString() : DollarText(wagered), wagered.ToDouble()},
           {wagered == kZero ? QString() : FigureText(expected), expected}}};
}

void CompsPage::Refresh() {
  players_->Refresh(game_.table);
  const SeatId seat = players_->Seat();
  const ScopeId scope = scopes_->currentIndex();
  std::vector<FigureRow> rows;
  for (BetId bet = 1; bet <= kBets; ++bet) rows.push_back(RowOf(bet, scope, seat));
  bets_->SetRows(std::move(rows));
  QString texts[kResults];
  if (seat != 0) {
    const Comps comps = FigureComps(game_, scope, seat);
    const QString found[kResults] = {DollarText(comps.totalAction),   QString::number(comps.decisions),
                                     QString::number(comps.rolls),    DollarFigure(comps.expectedResult),
                                     DollarText(comps.averageAction), DollarText(comps.compAmount)};
    std::copy(found, found + kResults, texts);
  }
  for (int n = 0; n < kResults; ++n) {
    const QString text = texts[n].isEmpty() ? QStringLiteral("---") : texts[n];
    if (results_[n]->text() != text) results_[n]->setText(text);
  }
}

QList<QStringList> CompsPage::Rows() const {
  QList<QStringList> rows = bets_->Rows();
  for (int n = 0; n < kResults; ++n) rows += QStringList{tr(kResultCaptions[n]), results_[n]->text(), "", ""};
  return rows;
}

}  // namespace tessaryn
