#include "shell/screens/join_screen.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/messages.h"
#include "play/players.h"
#include "shell/table/languages.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

namespace {
constexpr int kTextWidth = 340;
constexpr auto kNobodyYet = "...";  // in place of a name that isn't typed yet

QString Told(Msg id) { return FromCore(MessageTextIn(LanguageSpoken(), id)); }
}  // namespace

JoinScreen::JoinScreen(Game& game, SeatId seat, QWidget* parent) : QDialog(parent), game_(game), seat_(seat) {
  setObjectName("frmJoin");
  setWindowTitle(Told(Msg::kTitleAddNewPlayer));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(8);
  AddText("lblAdd", Told(Msg::kAskAddPlayer));
  problem_ = AddText("lblProblem", {});
  QFont bold = problem_->font();
  bold.setBold(true);
  problem_->setFont(bold);
  problem_->hide();
  const QString question = Told(Msg::kNewPlayersName);
  AddText("lblName", question);
  name_ = new QLineEdit(this);
  name_->setObjectName("txtName");
  name_->setAccessibleName(question);
  column->addWidget(name_);
  buyIn_ = AddText("lblBuyIn", {});
  bankroll_ = new MoneyEdit(this);
  bankroll_->setObjectName("txtBuyIn");
  bankroll_->SetKeys(4, true);
  bankroll_->SetValue(game.settings.StartBank);
  column->addWidget(bankroll_);
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 8, 0, 0);
  row->setSpacing(8);
  row->addStretch();
  column->addLayout(row);
  join_ = new QPushButton(tr("&Join"), this);
  join_->setObjectName("cmdJoin");
  join_->setDefault(true);
  auto* cancel = new QPushButton(tr("&Cancel"), this);
  cancel->setObjectName("cmdCancel");
  cancel->setAutoDefault(false);
  row->addWidget(join_);
  row->addWidget(cancel);
  connect(join_, &QPushButton::clicked, this, &JoinScreen::Join);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(name_, &QLineEdit::textChanged, this, &JoinScreen::ShowQuestion);
  column->setSizeConstraint(QLayout::SetFixedSize);
  ShowQuestion();
  name_->setFocus();
}

QLabel* JoinScreen::AddText(const char* name, const QString& text) {
  auto* label = new QLabel(text, this);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(kTextWidth);
  layout()->addWidget(label);
  return label;
}

// Nobody can join without a name.
void JoinScreen::ShowQuestion() {
  const QString name = name_->text().trimmed();
  join_->setEnabled(!name.isEmpty());
  const QString question =
      tr("How much would %1 like to buy-in for?").arg(name.isEmpty() ? QString(kNobodyYet) : name);
  buyIn_->setText(question);
  bankroll_->setAccessibleName(question);
}

void JoinScreen::Join() {
  const std::string name = ToCore(name_->text());
  std::string problem = NameProblem(game_, ToCore(name_->text().trimmed()), 0);
  QLineEdit* wrong = problem.empty() ? bankroll_ : name_;
  if (problem.empty() && JoinPlayer(game_, seat_, name, bankroll_->Value(), problem)) return accept();
  problem_->setText(FromCore(problem));
  problem_->setAccessibleName(problem_->text());
  problem_->show();
  wrong->setFocus();
  wrong->selectAll();
}

bool AskJoin(Game& game, SeatId seat, QWidget* parent) {
  if (seat < 1 || seat > kSeats || IsOccupied(game.table, seat)) return false;
  JoinScreen screen(game, seat, parent);
  return RunDialog(screen) == QDialog::Accepted;
}

}  // namespace tessaryn
