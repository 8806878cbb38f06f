#include "shell/screens/player_head.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

namespace tessaryn {

PlayerHead AddPlayerHead(QBoxLayout& column, const char* menuName, const PlayerHeadTexts& texts,
                         QWidget* window) {
  auto* row = new QHBoxLayout;
  column.addLayout(row);
  PlayerHead head{new QComboBox(window), new QMenu(window)};
  head.player->setObjectName("cmbPlayer");
  head.player->setAccessibleName(texts.player);
  head.player->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  head.player->setMinimumContentsLength(12);
  row->addWidget(head.player);
  row->addStretch();
  auto* options = new QToolButton(window);
  options->setObjectName("cmdOptions");
  options->setText(texts.options);
  options->setToolTip(texts.tip);
  options->setFocusPolicy(Qt::StrongFocus);
  options->setMinimumWidth(options->sizeHint().width() + 12);  // the arrow stands beside the word
  options->setPopupMode(QToolButton::InstantPopup);
  head.menu->setObjectName(menuName);
  options->setMenu(head.menu);
  row->addWidget(options);
  return head;
}

}  // namespace tessaryn
