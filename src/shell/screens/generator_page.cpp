#include "shell/screens/generator_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <string>

#include "dice/generators.h"
#include "play/auto_roll.h"
#include "play/setting_table.h"
#include "rules/seed_rng.h"
#include "shell/screens/dice_boxes.h"
#include "shell/table/number_habit.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr const char* kAbout[kGeneratorCount] = {
    QT_TRANSLATE_NOOP("tessaryn::GeneratorPage",
                      "Mersenne Twister, 32 bits a number, a number for each die. The usual choice."),
    QT_TRANSLATE_NOOP("tessaryn::GeneratorPage",
                      "A second Mersenne Twister with a seeding of its own, a number for each die."),
    QT_TRANSLATE_NOOP("tessaryn::GeneratorPage",
                      "A plain congruence with 714,025 states: short, and good for comparing systems on poor "
                      "dice. Its seeds end at 999,999."),
    QT_TRANSLATE_NOOP("tessaryn::GeneratorPage",
                      "One congruence whose numbers are shuffled through a table of 97."),
    QT_TRANSLATE_NOOP("tessaryn::GeneratorPage",
                      "Three congruences: two make the number, the third shuffles a table of 97."),
    QT_TRANSLATE_NOOP("tessaryn::GeneratorPage", "RNG #1 and RNG #5 by turns, a roll each."),
    QT_TRANSLATE_NOOP("tessaryn::GeneratorPage", "RNG #2 and RNG #4 by turns, a roll each."),
    QT_TRANSLATE_NOOP("tessaryn::GeneratorPage", "As RNG #1, both dice from one number.")};

}  // namespace

GeneratorPage::GeneratorPage(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
  setObjectName("pagGenerator");
  auto* column = new QVBoxLayout(this);
  column->setSpacing(12);
  AddGenerators(*column);
  AddSeeding(*column);
  column->addStretch();
  Refresh();
}

void GeneratorPage::AddGenerators(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  generators_ = new QComboBox(this);
  generators_->setObjectName("cmbRNG");
  generators_->setAccessibleName(tr("Random number generator"));
  for (const char* name : kGeneratorNames) generators_->addItem(QString(name));
  connect(generators_, &QComboBox::activated, this, &GeneratorPage::Choose);
  auto* label = new QLabel(tr("Random number &generator:"), this);
  label->setBuddy(generators_);
  row->addWidget(label);
  row->addWidget(generators_);
  row->addStretch();
  column.addLayout(row);
  about_ = new QLabel(this);
  about_->setObjectName("lblAboutRNG");
  about_->setWordWrap(true);
  column.addWidget(about_);
}

void GeneratorPage::AddSeeding(QBoxLayout& column) {
  auto* box = new QGroupBox(tr("Seed"), this);
  auto* inside = new QVBoxLayout(box);
  inside->setSpacing(8);
  seeding_ = new QButtonGroup(box);
  const QString captions[2] = {tr(" Seed normally"), tr(" User seed")};
  const QString tips[2] = {tr("The clock gives each seed"), tr("You are asked for each seed")};
  for (int user = 0; user < 2; ++user) {
    auto* radio = new QRadioButton(captions[user], box);
    radio->setObjectName(QString("optSeedRNG%1").arg(user));
    radio->setToolTip(tips[user]);
    seeding_->addButton(radio, user);
    inside->addWidget(radio);
  }
  connect(seeding_, &QButtonGroup::idClicked, this, [this](int user) { Set("RngUserSeed", user == 1); });
  reseed_ = new QCheckBox(tr(" Re-seed new sessions"), box);
  reseed_->setObjectName("chkReSeed");
  connect(reseed_, &QCheckBox::clicked, this, [this](bool on) { Set("RngReseedNewSessions", on); });
  inside->addWidget(reseed_);
  auto* row = new QHBoxLayout;
  auto* seed = new QPushButton(tr("Seed RNG now"), box);
  seed->setObjectName("cmdSeedRNG");
  connect(seed, &QPushButton::clicked, this, &GeneratorPage::Seed);
  row->addWidget(seed);
  row->addSpacing(8);
  row->addWidget(new QLabel(tr("Last entered seed:"), box));
  lastSeed_ = new QLabel(box);
  lastSeed_->setObjectName("lblLastSeed");
  lastSeed_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  row->addWidget(lastSeed_);
  row->addStretch();
  inside->addLayout(row);
  column.addWidget(box);
}

void GeneratorPage::Refresh() {
  const Generators& generators = game_.generators;
  const QSignalBlocker quiet(generators_);
  generators_->setCurrentIndex(generators.GeneratorIndex);
  about_->setText(tr(kAbout[generators.GeneratorIndex]));
  seeding_->button(generators.RngUserSeed ? 1 : 0)->setChecked(true);
  reseed_->setChecked(generators.RngReseedNewSessions);
  lastSeed_->setText(ShownCount(generators.RngLastSeed));
}

void GeneratorPage::showEvent(QShowEvent* event) {
  Refresh();
  QWidget::showEvent(event);
}

// One whose support file is missing is replaced, as it would be before the next roll.
void GeneratorPage::Choose(int index) {
  if (AskBeforeCommand(game_)) SelectGenerator(game_, index + 1);
  Refresh();
}

void GeneratorPage::Set(const char* name, bool on) {
  std::string error;
  if (!SetSetting(game_, name, 0, on ? "on" : "off", error))
    TellDiceProblem(game_, QT_TRANSLATE_NOOP("Files", "RNG Seed"), error);
  Refresh();
}

void GeneratorPage::Seed() {
  if (!AskBeforeCommand(game_)) return;
  const bool asks = game_.generators.RngUserSeed;
  SeedRng(game_, false);
  Refresh();
  if (!asks || game_.box.MsgResult == kResultOk) TellSeeded(game_);
}

}  // namespace tessaryn
