#include "shell/screens/shooter_axes.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "dice/percentage_dice.h"
#include "shell/screens/core_words.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {

namespace {

constexpr double kMostPercent = 100;

struct DiePanel {
  QLineEdit* percent;
  QCheckBox* axes[3];
};

// A comma may stand for the point; there are no groups.
double PercentIn(const QLineEdit& edit) { return edit.text().replace(',', '.').toDouble(); }

// A percentage above 100 is put back.
QLineEdit* AddPercent(int die, QWidget* box, double percent) {
  auto* edit = new QLineEdit(QString::number(percent), box);
  edit->setObjectName(QString("txtDie%1SE").arg(die));
  edit->setAlignment(Qt::AlignRight);
  edit->setMaximumWidth(edit->fontMetrics().horizontalAdvance("100.0000") + 16);
  edit->setValidator(new QRegularExpressionValidator(QRegularExpression("\\d{0,7}([.,]\\d{0,3})?"), edit));
  QObject::connect(edit, &QLineEdit::textEdited, edit, [edit] {
    if (PercentIn(*edit) > kMostPercent) edit->setText(QString::number(kMostPercent));
  });
  return edit;
}

DiePanel AddDie(int die, QDialog& dialog, QBoxLayout& row, const ShooterAxes& chosen) {
  DiePanel panel{};
  auto* box = new QGroupBox(QObject::tr("Die %1").arg(die), &dialog);
  auto* grid = new QGridLayout(box);
  panel.percent = AddPercent(die, box, chosen.percent[die - 1]);
  auto* label = new QLabel(QObject::tr("Effectiveness %:"), box);
  label->setBuddy(panel.percent);
  panel.percent->setAccessibleName(QObject::tr("Die %1, shooter's effectiveness in percent").arg(die));
  grid->addWidget(label, 0, 0);
  grid->addWidget(panel.percent, 0, 1);
  for (int axis = 0; axis < 3; ++axis) {
    panel.axes[axis] = new QCheckBox(CoreWords(kAxisCaptions[axis]), box);
    panel.axes[axis]->setObjectName(QString("optDie%1Axis%2").arg(die).arg(axis));
    panel.axes[axis]->setChecked((chosen.axes[die - 1] & (1u << axis)) != 0);
    grid->addWidget(panel.axes[axis], axis + 1, 0, 1, 2);
  }
  row.addWidget(box);
  return panel;
}

}  // namespace

bool AskShooterAxes(QWidget* parent, ShooterAxes& chosen) {
  QDialog dialog(parent);
  dialog.setObjectName("frmAxes");
  dialog.setWindowTitle(QObject::tr("Shooter's Effectiveness"));
  auto* column = new QVBoxLayout(&dialog);
  auto* about = new QLabel(
      QObject::tr("In so many percent of the rolls a die turns about its axis, so that the two faces at the "
                  "axis' ends never show. All cells are unlocked first."),
      &dialog);
  about->setWordWrap(true);
  column->addWidget(about);
  auto* row = new QHBoxLayout;
  column->addLayout(row);
  const DiePanel panels[2] = {AddDie(1, dialog, *row, chosen), AddDie(2, dialog, *row, chosen)};
  auto* buttons = new QDialogButtonBox(&dialog);
  QPushButton* accept = buttons->addButton(QObject::tr("&Accept"), QDialogButtonBox::AcceptRole);
  accept->setObjectName("cmdAxisOK");
  buttons->addButton(QDialogButtonBox::Cancel)->setObjectName("cmdAxisCancel");
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  column->addWidget(buttons);
  panels[0].percent->selectAll();
  panels[0].percent->setFocus();
  if (RunDialog(dialog) != QDialog::Accepted) return false;
  for (int die = 0; die < 2; ++die) {
    chosen.percent[die] = PercentIn(*panels[die].percent);
    chosen.axes[die] = 0;
    for (unsigned axis = 0; axis < 3; ++axis)
      if (panels[die].axes[axis]->isChecked()) chosen.axes[die] |= 1u << axis;
  }
  return true;
}

}  // namespace tessaryn
