#include "shell/screens/laboratory_setup.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QVBoxLayout>

#include "autobet/language/script_files.h"
#include "base/messages.h"
#include "base/record_file.h"
#include "lab/lab_words.h"
#include "lab/session.h"
#include "lab/systems.h"
#include "play/start_up.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/laboratory_run.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr int kUsualSessions = 10'000;
constexpr int kUsualRolls = 500;
constexpr int kNumberWidth = 130;

// Whose rules and dice; the last one is offered once an experiment has been opened.
enum Rules : int { kOfThisTable, kOfANewTable, kOfTheOpened };

void Tell(Game& game, const std::string& problem) {
  ShowMessage<Msg::kFileProblem>(game, With<"title">(ToCore(LaboratorySetup::tr("Laboratory"))),
                                 With<"problem">(problem));
}

QPushButton* Button(const char* name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

LaboratorySetup::LaboratorySetup(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
  setObjectName("fraExperiment");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 8, 8, 8);
  row->setSpacing(12);
  row->addWidget(MakeSystems(), 1);
  row->addWidget(MakeEnds(), 0, Qt::AlignTop);
  auto* column = new QVBoxLayout;
  column->setSpacing(12);
  column->addWidget(MakeDice());
  column->addWidget(MakeQuestion());
  column->addStretch(1);
  row->addLayout(column);
}

QWidget* LaboratorySetup::MakeSystems() {
  auto* box = new QGroupBox(tr("Systems, all on the same dice"), this);
  auto* column = new QVBoxLayout(box);
  column->setSpacing(8);
  list_ = new QListWidget(box);
  list_->setObjectName("lstSystems");
  list_->setAccessibleName(tr("Systems"));
  list_->setMinimumSize(220, 60);
  column->addWidget(list_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  auto* script = Button("cmdAddScript", tr("Add s&cript ..."), box);
  auto* player = Button("cmdAddPlayersScript", tr("Add &player's script"), box);
  remove_ = Button("cmdRemove", tr("Re&move"), box);
  remove_->setEnabled(false);
  for (QPushButton* button : {script, player, remove_}) buttons->addWidget(button);
  buttons->addStretch(1);
  column->addLayout(buttons);
  auto* betsRow = new QHBoxLayout;
  betsRow->setSpacing(8);
  bets_ = new QLineEdit(box);
  bets_->setObjectName("txtBets");
  bets_->setAccessibleName(tr("Standing bets"));
  bets_->setPlaceholderText(tr("Standing bets: passline=10, place6=12"));
  auto* addBets = Button("cmdAddBets", tr("Add &bets"), box);
  betsRow->addWidget(bets_, 1);
  betsRow->addWidget(addBets);
  column->addLayout(betsRow);
  AddSweeps(*column, box);
  connect(script, &QPushButton::clicked, this, &LaboratorySetup::AddScript);
  connect(player, &QPushButton::clicked, this, &LaboratorySetup::AddPlayersScript);
  connect(addBets, &QPushButton::clicked, this, &LaboratorySetup::AddBets);
  connect(bets_, &QLineEdit::returnPressed, this, &LaboratorySetup::AddBets);
  connect(remove_, &QPushButton::clicked, this, &LaboratorySetup::Remove);
  connect(list_, &QListWidget::currentRowChanged, this, [this](int at) { remove_->setEnabled(at >= 0); });
  return box;
}

namespace {

// Names of settings come up as they are typed, behind each "; " anew.
class SettingCompleter : public QCompleter {
 public:
  SettingCompleter(const QStringList& names, QObject* parent) : QCompleter(names, parent) {
    setCaseSensitivity(Qt::CaseInsensitive);
    setFilterMode(Qt::MatchContains);
  }

 protected:
  QStringList splitPath(const QString& path) const override { return {path.section(';', -1).trimmed()}; }
  QString pathFromIndex(const QModelIndex& index) const override {
    const QString text = static_cast<QLineEdit*>(widget())->text();
    const qsizetype last = text.lastIndexOf(';');
    const QString before = last < 0 ? QString() : text.left(last + 1) + ' ';
    return before + index.data().toString() + '=';
  }
};

QStringList SettingNames(bool ofPlayers) {
  QStringList names;
  for (const SettingName& setting : AllSettings())
    if (ofPlayers || !setting.bySeat) names << FromCore(setting.name);
  return names;
}

QLineEdit* TypedLine(const char* name, const QString& spoken, const QString& sample, QWidget* parent) {
  auto* line = new QLineEdit(parent);
  line->setObjectName(name);
  line->setAccessibleName(spoken);
  line->setPlaceholderText(sample);
  line->setToolTip(sample);
  return line;
}

}  // namespace

void LaboratorySetup::AddSweeps(QBoxLayout& column, QWidget* box) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  column.addLayout(grid);
  const auto add = [&](const QString& caption, QLineEdit* line) {
    auto* label = new QLabel(caption, box);
    label->setBuddy(line);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(line, row, 1);
    return line;
  };
  stakes_ = add(tr("CheckStacks s&tart at"),
                TypedLine("txtStakes", tr("Stakes that CheckStacks start at"),
                          tr("as the scripts have them; or 1=5,10,25; 2=5..50:5"), box));
  varied_ = add(tr("&Vary settings"), TypedLine("txtVaried", tr("Settings that are varied"),
                                                tr("none; or OddsCalcMethod=1,2,3; FieldPreset=..."), box));
  varied_->setCompleter(new SettingCompleter(SettingNames(true), varied_));
}

namespace {

void AddRow(QGridLayout& grid, const QString& caption, QWidget& field) {
  auto* label = new QLabel(caption, field.parentWidget());
  label->setObjectName(field.objectName() + "Caption");
  label->setBuddy(&field);
  field.setAccessibleName(QString(caption).remove('&'));
  // Screen readers come to the box within.
  if (auto* typed = field.findChild<QLineEdit*>()) typed->setAccessibleName(field.accessibleName());
  field.setFixedWidth(kNumberWidth);
  const int row = grid.rowCount();
  grid.addWidget(label, row, 0);
  grid.addWidget(&field, row, 1);
}

}  // namespace

QSpinBox* LaboratorySetup::AddNumber(QGridLayout& grid, const char* name, const QString& caption, int least,
                                     int value, const QString& none) {
  auto* box = new QSpinBox(grid.parentWidget());
  box->setObjectName(name);
  box->setRange(least, static_cast<int>(kMostLabSessions));
  box->setGroupSeparatorShown(true);
  box->setLocale(QLocale(QLocale::English));
  box->setSpecialValueText(none);
  box->setValue(value);
  AddRow(grid, caption, *box);
  return box;
}

MoneyEdit* LaboratorySetup::AddMoney(QGridLayout& grid, const char* name, const QString& caption,
                                     Currency value) {
  auto* box = new MoneyEdit(grid.parentWidget());
  box->setObjectName(name);
  if (value > kZero)
    box->SetValue(value);
  else
    box->setPlaceholderText(tr("none"));
  AddRow(grid, caption, *box);
  return box;
}

QWidget* LaboratorySetup::MakeEnds() {
  auto* box = new QGroupBox(tr("Sessions and their ends"), this);
  auto* grid = new QGridLayout(box);
  grid->setVerticalSpacing(4);
  grid->setHorizontalSpacing(12);
  sessions_ = AddNumber(*grid, "txtSessions", tr("Sess&ions"), 1, kUsualSessions, {});
  bankroll_ = AddMoney(*grid, "txtBankroll", tr("&Start with $"), Experiment().bankroll);
  rolls_ = AddNumber(*grid, "txtRolls", tr("Most r&olls"), 0, kUsualRolls, tr("any"));
  hands_ = AddNumber(*grid, "txtHands", tr("Most &hands"), 0, 0, tr("any"));
  for (QSpinBox* most : {rolls_, hands_}) most->setMaximum(static_cast<int>(kMaxRolls));
  hours_ = AddMoney(*grid, "txtHours", tr("Most hours"), kZero);
  hours_->setToolTip(tr("Of play, by the roll rate in the table's settings"));
  winGoal_ = AddMoney(*grid, "txtWinGoal", tr("&Win goal $"), kZero);
  lossLimit_ = AddMoney(*grid, "txtLossLimit", tr("&Loss limit $"), kZero);
  end_ = new QComboBox(box);
  end_->setObjectName("cmbEnd");
  end_->addItems({tr("at once"), tr("after the hand")});
  end_->setItemData(1, tr("when no contract bet is up any more"), Qt::ToolTipRole);
  AddRow(*grid, tr("&Ends fall"), *end_);
  precision_ = AddMoney(*grid, "txtPrecision", tr("&Known to \u00b1$"), kZero);
  precision_->setToolTip(tr("Stops as soon as each mean is known so well, 95% sure"));
  connect(sessions_, &QSpinBox::valueChanged, this, &LaboratorySetup::Changed);
  return box;
}

QWidget* LaboratorySetup::MakeDice() {
  auto* box = new QGroupBox(tr("Table and dice"), this);
  auto* column = new QVBoxLayout(box);
  column->setSpacing(4);
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(4);
  grid->setHorizontalSpacing(12);
  column->addLayout(grid);
  seed_ = new QLineEdit("1", box);
  seed_->setObjectName("txtSeed");
  seed_->setValidator(new QRegularExpressionValidator(QRegularExpression("\\d{1,15}"), seed_));
  AddRow(*grid, tr("See&d"), *seed_);
  threads_ = AddNumber(*grid, "txtThreads", tr("Cores"), 1, UsualLabThreads(), {});
  threads_->setMaximum(1024);
  threads_->setToolTip(tr("How many play at a time; results are the same for any number"));
  rules_ = new QComboBox(box);
  rules_->setObjectName("cmbRules");
  rules_->setAccessibleName(tr("Rules and dice"));
  rules_->addItems({tr("Rules and dice of this table"), tr("Rules and dice of a new table")});
  column->addWidget(rules_);
  settings_ = TypedLine("txtSettings", tr("Other settings for all systems"),
                        tr("other settings: SimRollRate=120; ..."), box);
  settings_->setCompleter(new SettingCompleter(SettingNames(true), settings_));
  column->addWidget(settings_);
  keep_ = new QCheckBox(tr("Keep every session"), box);
  keep_->setObjectName("chkKeep");
  keep_->setChecked(true);
  keep_->setToolTip(tr("For CSV and Sessions Logs; takes 350 bytes of disk for each"));
  column->addWidget(keep_);
  return box;
}

QWidget* LaboratorySetup::MakeQuestion() {
  auto* box = new QGroupBox(tr("What is asked"), this);
  auto* grid = new QGridLayout(box);
  grid->setVerticalSpacing(4);
  grid->setHorizontalSpacing(12);
  question_ = new QComboBox(box);
  question_->setObjectName("cmbQuestion");
  question_->setAccessibleName(tr("What is asked"));
  question_->addItems({tr("What sessions bring"), tr("The least bankroll"), tr("The largest stake")});
  grid->addWidget(question_, 0, 0, 1, 2);
  ruin_ = new QDoubleSpinBox(box);
  ruin_->setObjectName("txtRuin");
  ruin_->setDecimals(2);
  ruin_->setRange(0.01, 99.99);
  ruin_->setValue(5);
  ruin_->setLocale(QLocale(QLocale::English));
  ruin_->setSuffix("%");
  AddRow(*grid, tr("Ruined at most"), *ruin_);
  stack_ = AddNumber(*grid, "txtStack", tr("CheckStack number"), 0, 1, {});
  stack_->setMaximum(kCheckStacks - 1);
  ruin_->setToolTip(tr("The share of sessions that may be ruined"));
  stack_->setToolTip(tr("Whose largest start is looked for"));
  const auto changed = [this] {
    const auto show = [&](QWidget* field, const char* label, bool shown) {
      field->setVisible(shown);
      findChild<QWidget*>(label)->setVisible(shown);
    };
    show(ruin_, "txtRuinCaption", IsSearch());
    show(stack_, "txtStackCaption", question_->currentIndex() == 2);
    keep_->setEnabled(!IsSearch());
    precision_->setEnabled(!IsSearch());
    emit Changed();
  };
  connect(question_, &QComboBox::currentIndexChanged, this, changed);
  changed();
  return box;
}

// --- Systems.

void LaboratorySetup::Add(LabSystem system) {
  systems_.push_back(std::move(system));
  list_->addItem(FromCore(systems_.back().name));
  list_->setCurrentRow(list_->count() - 1);
  emit Changed();
}

void LaboratorySetup::AddScript() {
  const std::string path = ChooseFile(game_, this, kOpenAutoBet);
  if (path.empty()) return;
  LabSystem system;
  const ScriptFileResult result = ReadScriptFile(path, system.lines);
  system.name = FileTitle(path);
  if (result.Ok()) return Add(std::move(system));
  Tell(game_, result.problem == ScriptFileProblem::kNotFound
                  ? MessageText<Msg::kNamedFileNotFound>(With<"path">(path))
                  : result.message);
}

void LaboratorySetup::AddPlayersScript() {
  const SeatId seat = game_.table.SelectedSeat;
  const SeatScript& script = game_.autobet.Scripts[seat];
  if (seat == 0 || script.ScriptLines.empty())
    return Tell(game_, ToCore(tr("The selected player has no script.")));
  LabSystem system;
  system.lines = script.ScriptLines;
  system.name =
      script.ScriptFileName.empty() ? game_.table.seats[seat].SeatName : FileTitle(script.ScriptFileName);
  Add(std::move(system));
}

void LaboratorySetup::AddBets() {
  LabSystem system;
  const QString text = bets_->text().remove(' ');
  if (const std::string error = ReadStandingBets(ToCore(text), system); !error.empty())
    return Tell(game_, error);
  Add(std::move(system));
  bets_->clear();
}

void LaboratorySetup::Remove() {
  const int at = list_->currentRow();
  if (at < 0) return;
  systems_.erase(systems_.begin() + at);
  delete list_->takeItem(at);
  emit Changed();
}

// --- The experiment.

std::int64_t LaboratorySetup::Sessions() const { return sessions_->value(); }
bool LaboratorySetup::IsSearch() const { return question_->currentIndex() > 0; }
LabQuestion LaboratorySetup::Question() const {
  return {question_->currentIndex() == 2 ? stack_->value() : -1, ruin_->value() / 100};
}
int LaboratorySetup::Threads() const { return threads_->value(); }
bool LaboratorySetup::KeepsSessions() const { return keep_->isChecked(); }

// The rules in which the table differs from a new one, its dice, and their generator.
void LaboratorySetup::TakeTable(Experiment& experiment) const {
  LabHost host;
  const std::unique_ptr<Game> fresh = StartGame(host, game_.applicationFolder, "/dev/null/");
  std::vector<SettingChange> changes;
  for (const SettingName& setting : AllSettings()) {
    SettingChange change{setting.name, 0, {}};
    std::string error;
    if (!setting.bySeat && GetSetting(game_, setting.name, 0, change.value, error)) changes.push_back(change);
  }
  for (const SettingDifference& difference : PreviewSettings(*fresh, changes))
    experiment.settings.push_back({difference.name, 0, difference.then});
  experiment.generator = game_.generators.GeneratorIndex + 1;
  experiment.percentageDice = game_.percentage.PercentageDiceActive;
  if (experiment.percentageDice) experiment.probabilities = game_.percentage.ProbMatrix;
}

void LaboratorySetup::TakeRulesAndDice(Experiment& experiment) const {
  if (rules_->currentIndex() == kOfThisTable) return TakeTable(experiment);
  if (rules_->currentIndex() != kOfTheOpened) return;
  experiment.settings = opened_.settings;
  experiment.generator = opened_.generator;
  experiment.percentageDice = opened_.percentageDice;
  experiment.probabilities = opened_.probabilities;
}

namespace {

// The parts between semicolons, without blanks.
std::vector<std::string> PartsOf(const QLineEdit& line) {
  std::vector<std::string> parts;
  for (const QString& part : line.text().split(';', Qt::SkipEmptyParts))
    if (!part.trimmed().isEmpty()) parts.push_back(ToCore(part.trimmed()));
  return parts;
}

std::string Problem(const QString& where, const std::string& text, const std::string& error) {
  return ToCore(LaboratorySetup::tr("%1 %2: %3").arg(where, FromCore(text), FromCore(error)));
}

}  // namespace

std::string LaboratorySetup::ReadSweeps(Experiment& experiment) const {
  for (const std::string& part : PartsOf(*stakes_)) {
    const std::string text = ToCore(FromCore(part).remove(' '));
    if (const std::string error = SweepStack(text, experiment.systems); !error.empty())
      return Problem(tr("Stakes"), text, error);
  }
  for (const std::string& part : PartsOf(*varied_))
    if (const std::string error = SweepSetting(part, experiment.systems); !error.empty())
      return Problem(tr("Settings that are varied"), part, error);
  for (const std::string& part : PartsOf(*settings_)) {
    LabSetting setting;
    if (const std::string error = ReadLabSetting(part, setting); !error.empty())
      return Problem(tr("Other settings"), part, error);
    experiment.settings.push_back(setting);
  }
  return {};
}

std::string LaboratorySetup::ReadEnds(Experiment& experiment) const {
  experiment.rolls = rolls_->value();
  experiment.hands = hands_->value();
  experiment.hours = hours_->Value();
  // Who can't be ruined and meets no goal would play for ever.
  if (experiment.rolls == 0 && experiment.hands == 0 && experiment.hours <= kZero)
    return ToCore(tr("Say how long a session may last: rolls, hands or hours."));
  experiment.winGoal = winGoal_->Value();
  experiment.lossLimit = lossLimit_->Value();
  experiment.endWithHand = end_->currentIndex() == 1;
  return {};
}

std::string LaboratorySetup::ReadExperiment(Experiment& experiment) const {
  if (systems_.empty()) return ToCore(tr("There is nothing to play: add a script, or standing bets."));
  experiment = Experiment();
  experiment.systems = systems_;
  TakeRulesAndDice(experiment);
  if (std::string error = ReadSweeps(experiment); !error.empty()) return error;
  experiment.sessions = sessions_->value();
  experiment.bankroll = bankroll_->Value();
  if (experiment.bankroll <= kZero || experiment.bankroll > kBankrollLimit)
    return ToCore(tr("Start with: must be from 0.01 to %1").arg(MoneyText(kBankrollLimit)));
  if (!IsSearch()) experiment.precision = precision_->Value();
  experiment.seed = seed_->text().toULongLong();
  return ReadEnds(experiment);
}

// --- An experiment that is there.

namespace {

QString TypedParts(const std::vector<std::string>& parts) {
  QStringList texts;
  for (const std::string& part : parts) texts << FromCore(part);
  return texts.join("; ");
}

void SetMoney(MoneyEdit& box, Currency value) {
  if (value > kZero)
    box.SetValue(value);
  else
    box.clear();
}

}  // namespace

// By the sweeps that lead to them; where none do, each as it is.
void LaboratorySetup::ShowSystems(const std::vector<LabSystem>& systems) {
  LabSweeps sweeps;
  if (!FindSweeps(systems, sweeps)) sweeps = {systems, {}, {}};
  const auto show = [&] {
    systems_ = sweeps.systems;
    stakes_->setText(TypedParts(sweeps.stacks));
    varied_->setText(TypedParts(sweeps.settings));
  };
  show();
  Experiment typed;
  typed.systems = systems_;
  settings_->clear();
  // Values with a comma or a semicolon in them can't be typed.
  if (!ReadSweeps(typed).empty() || !FirstDifference(typed.systems, systems).empty()) {
    sweeps = {systems, {}, {}};
    show();
  }
  list_->clear();
  for (const LabSystem& system : systems_) list_->addItem(FromCore(LabelOf(system)));
  list_->setCurrentRow(list_->count() - 1);
}

void LaboratorySetup::ShowExperiment(const Experiment& experiment, bool keepsSessions) {
  opened_ = experiment;
  ShowSystems(experiment.systems);
  sessions_->setValue(static_cast<int>(experiment.sessions));
  rolls_->setValue(static_cast<int>(experiment.rolls));
  hands_->setValue(static_cast<int>(experiment.hands));
  SetMoney(*bankroll_, experiment.bankroll);
  SetMoney(*hours_, experiment.hours);
  SetMoney(*winGoal_, experiment.winGoal);
  SetMoney(*lossLimit_, experiment.lossLimit);
  SetMoney(*precision_, experiment.precision);
  end_->setCurrentIndex(experiment.endWithHand ? 1 : 0);
  seed_->setText(QString::number(experiment.seed));
  if (rules_->count() == kOfTheOpened) rules_->addItem(tr("Rules and dice of the opened file"));
  std::vector<std::string> settings;
  for (const LabSetting& setting : experiment.settings) settings.push_back(SettingText(setting));
  rules_->setItemData(kOfTheOpened, TypedParts(settings), Qt::ToolTipRole);
  rules_->setCurrentIndex(kOfTheOpened);
  keep_->setChecked(keepsSessions);
  question_->setCurrentIndex(0);
  emit Changed();
}

}  // namespace tessaryn
