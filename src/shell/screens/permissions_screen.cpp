#include "shell/screens/permissions_screen.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "play/script_session.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

PermissionsScreen::PermissionsScreen(Game& game, SeatId seat, QWidget* parent) : QDialog(parent) {
  setObjectName("frmPermissions");
  setWindowTitle(tr("Auto-Bet Permissions"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(8);
  auto* whose = new QLabel(tr("%1's script may:").arg(FromCore(game.table.seats[seat].SeatName)), this);
  whose->setTextFormat(Qt::PlainText);
  column->addWidget(whose);
  const SeatScript& script = game.autobet.Scripts[seat];
  const struct {
    const char* name;
    QString caption;
    bool allowed;
    ScriptPermission permission;
  } rows[] = {
      {"chkAllowAct4Others", tr("act for &other players"), script.AllowAct4Others, ScriptPermission::kOthers},
      {"chkAllowReset", tr("start new &sessions"), script.AllowReset, ScriptPermission::kReset},
      {"chkAllowActProb", tr("activate and deactivate &probability files and dice roll files"),
       script.AllowActProb, ScriptPermission::kFiles},
  };
  for (const auto& row : rows) {
    auto* box = new QCheckBox(row.caption, this);
    box->setObjectName(row.name);
    box->setChecked(row.allowed);
    column->addWidget(box);
    connect(box, &QCheckBox::clicked, this, [&game, seat, permission = row.permission](bool on) {
      SetScriptPermission(game, seat, permission, on);
    });
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setObjectName("cmdClose");
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
}

}  // namespace tessaryn
