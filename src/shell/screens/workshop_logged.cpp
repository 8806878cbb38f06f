// Bets made by hand, which become lines of the script.
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "autobet/language/script_files.h"
#include "base/record_file.h"
#include "play/script_session.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/workshop_window.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {

// Under what a logged bet is made.
constexpr const char* kConditions[] = {nullptr, "if comeout roll then", "if point is established then"};

}  // namespace

QWidget* WorkshopWindow::LoggedTab() {
  auto* tab = new QWidget(this);
  tab->setObjectName("picLoggedBets");
  auto* column = new QVBoxLayout(tab);
  column->setContentsMargins(8, 8, 8, 8);
  auto* row = new QHBoxLayout;
  logging_ = new QCheckBox(tr("Log &my bets"), tab);
  logging_->setObjectName("chkLogBets");
  condition_ = new QComboBox(tab);
  condition_->setObjectName("cmbLogCondition");
  condition_->setAccessibleName(tr("When they are made"));
  condition_->addItems({tr("As they stand"), tr("On the come-out"), tr("After a point")});
  row->addWidget(logging_);
  row->addStretch();
  row->addWidget(condition_);
  const auto button = [&](const char* name, const QString& caption, void (WorkshopWindow::*act)()) {
    auto* made = new QPushButton(caption, tab);
    made->setObjectName(name);
    row->addWidget(made);
    connect(made, &QPushButton::clicked, this, act);
  };
  button("cmdInsertLogged", tr("&Insert"), &WorkshopWindow::InsertLogged);
  button("cmdSaveLogged", tr("Save ..."), &WorkshopWindow::SaveLogged);
  button("cmdClearLogged", tr("Clear"), &WorkshopWindow::ClearLogged);
  column->addLayout(row);
  logged_ = new QListWidget(tab);
  logged_->setObjectName("lstLoggedBets");
  logged_->setAccessibleName(tr("Logged bets"));
  column->addWidget(logged_, 1);
  connect(logging_, &QCheckBox::clicked, this, [this](bool on) { game_.autobet.BetLogging = on; });
  return tab;
}

void WorkshopWindow::InsertLogged() {
  AutoBet& autobet = game_.autobet;
  if (autobet.LoggedBets.empty() || seat_ == 0) return;
  std::vector<std::string> lines;
  const char* condition = kConditions[condition_->currentIndex()];
  if (condition != nullptr) lines.emplace_back(condition);
  for (const std::string& bet : autobet.LoggedBets)
    lines.push_back((condition != nullptr ? "   " : "") + bet);
  if (condition != nullptr) lines.emplace_back("endif");
  autobet.LoggedBets.clear();
  autobet.LoggedBetsUnsaved = false;
  PasteLines(lines);
  Refresh();
}

void WorkshopWindow::SaveLogged() {
  AutoBet& autobet = game_.autobet;
  const std::string path = autobet.LoggedBets.empty() ? std::string() : ChooseFile(game_, this, kSaveAutoBet);
  if (path.empty()) return;
  const ScriptFileResult result = WriteScriptFile(path, autobet.LoggedBets);
  if (result.Ok())
    autobet.LoggedBetsUnsaved = false;
  else
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kSaveAutoBet)),
                                   With<"problem">(result.message));
}

void WorkshopWindow::ClearLogged() {
  AutoBet& autobet = game_.autobet;
  if (OfferToSaveLoggedBets(game_)) {
    SaveLogged();
    if (autobet.LoggedBetsUnsaved) return;
  }
  autobet.LoggedBets.clear();
  autobet.LoggedBetsUnsaved = false;
  Refresh();
}

}  // namespace tessaryn
