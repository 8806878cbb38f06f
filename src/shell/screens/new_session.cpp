#include "shell/screens/new_session.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "dice/roll_file.h"
#include "play/script_session.h"
#include "rules/session.h"
#include "state/game.h"

namespace tessaryn {

NewSessionScreen::NewSessionScreen(Game& game, QWidget* parent) : QDialog(parent), game_(game) {
  setObjectName("frmNew");
  setWindowTitle(tr("New Session"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(20, 16, 20, 14);
  column->addWidget(new QLabel(tr("All bets are taken down and a new session starts."), this));
  column->addSpacing(8);
  const bool open = IsRollFileOpen(game.rollFile);
  rollFile_ = AddChoice("chkPreserveDiceRollFile", tr(" Preserve dice roll file"), open);
  const QString captions[2] = {tr(" Rewind and playback"), tr(" Continue ")};
  for (int n = 0; n < 2; ++n) {
    rewind_[n] = new QRadioButton(captions[n], this);
    rewind_[n]->setObjectName(QString("optRewind%1").arg(n));
    auto* row = new QHBoxLayout;
    row->addSpacing(24);
    row->addWidget(rewind_[n]);
    column->addLayout(row);
    connect(rollFile_, &QCheckBox::toggled, rewind_[n], &QWidget::setEnabled);
    rewind_[n]->setEnabled(open);
  }
  rewind_[game.rollFile.RecorderState == kRecorderPlayback ? 0 : 1]->setChecked(true);
  rollFile_->setEnabled(open);
  scripts_ = AddChoice("chkPreserveAutoBets", tr(" Preserve auto-bet scripts"), true);
  sessions_ = AddChoice("chkPreservePrevSessions", tr(" Preserve previous sessions data"), true);
  stacks_ = AddChoice("chkPreserveCheckstacks", tr(" Preserve checkstacks"), false);
  logs_ = AddChoice("chkPreserveSessionsLogs", tr(" Preserve sessions logs"), true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdOK");
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  column->addSpacing(8);
  column->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &NewSessionScreen::Begin);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  setMinimumWidth(300);
}

QCheckBox* NewSessionScreen::AddChoice(const char* name, const QString& caption, bool ticked) {
  auto* box = new QCheckBox(caption, this);
  box->setObjectName(name);
  box->setChecked(ticked);
  layout()->addWidget(box);
  return box;
}

void NewSessionScreen::Begin() {
  const int rollFile = !rollFile_->isChecked()   ? kCloseRollFile
                       : rewind_[0]->isChecked() ? kRewindRollFile
                                                 : kContinueRollFile;
  // Scripts are closed first, so that the new session's log doesn't name them.
  if (!scripts_->isChecked()) CloseScripts(game_);
  accept();
  NewSession(game_, sessions_->isChecked(), stacks_->isChecked(), logs_->isChecked(), rollFile);
  // The scripts that stay are initialised, as they are whenever a session is new.
  if (game_.autobet.ScriptActive[0]) InitialiseScripts(game_);
}

}  // namespace tessaryn
