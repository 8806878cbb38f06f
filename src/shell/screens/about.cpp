#include "shell/screens/about.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "play/setting_table.h"
#include "shell/table/languages.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

namespace {

QString Words(const char* text) { return QCoreApplication::translate("AboutScreen", text); }

// Picture, name, version and what it is, one under the other.
QVBoxLayout* Headline(QWidget* parent) {
  auto* column = new QVBoxLayout;
  auto* picture = new QLabel(parent);
  picture->setPixmap(DicePicture(96, parent->devicePixelRatioF()));
  picture->setAlignment(Qt::AlignCenter);
  column->addWidget(picture);
  auto* name = new QLabel("Tessaryn", parent);
  QFont large = name->font();
  large.setPointSizeF(large.pointSizeF() * 2.2);
  large.setBold(true);
  name->setFont(large);
  name->setAlignment(Qt::AlignCenter);
  column->addWidget(name);
  auto* version =
      new QLabel(Words(QT_TRANSLATE_NOOP("AboutScreen", "Version %1")).arg(TESSARYN_VERSION), parent);
  version->setAlignment(Qt::AlignCenter);
  column->addWidget(version);
  auto* what = new QLabel(
      Words(QT_TRANSLATE_NOOP("AboutScreen", "A craps table to play at, and to test betting systems on.")),
      parent);
  what->setAlignment(Qt::AlignCenter);
  column->addWidget(what);
  return column;
}

// The languages, each as it calls itself.
QLayout* LanguageRow(Game& game, QWidget* parent) {
  auto* row = new QHBoxLayout;
  auto* label = new QLabel(Words(QT_TRANSLATE_NOOP("AboutScreen", "&Language:")), parent);
  auto* list = new QComboBox(parent);
  list->setObjectName("cmbLanguage");
  for (const SpokenLanguage& language : SpokenLanguages()) list->addItem(QString::fromUtf8(language.name));
  list->setCurrentIndex(game.settings.Language);
  QObject::connect(list, &QComboBox::activated, parent, [&game](int language) {
    std::string error;  // there are no others
    SetSetting(game, "Language", 0, std::to_string(language), error);
  });
  label->setBuddy(list);
  row->addWidget(label);
  row->addWidget(list, 1);
  return row;
}

}  // namespace

AboutScreen::AboutScreen(Game& game, QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle(Words(QT_TRANSLATE_NOOP("AboutScreen", "About Tessaryn")));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(28, 22, 28, 16);
  column->addLayout(Headline(this));
  column->addSpacing(10);
  column->addLayout(LanguageRow(game, this));
  column->addSpacing(6);
  auto* folders = new QLabel(Words(QT_TRANSLATE_NOOP("AboutScreen", "Programs:  %1\nData:  %2"))
                                 .arg(FromCore(game.applicationFolder), FromCore(game.dataFolder)),
                             this);
  folders->setObjectName("lblFolders");
  folders->setTextInteractionFlags(Qt::TextSelectableByMouse);
  folders->setWordWrap(true);
  column->addWidget(folders);
  auto* licence = new QLabel(
      Words(QT_TRANSLATE_NOOP("AboutScreen",
                              "Free software under the GNU General Public License, version 3: see LICENSE.")),
      this);
  licence->setObjectName("lblLicense");
  licence->setWordWrap(true);
  column->addWidget(licence);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  column->addSpacing(6);
  column->addWidget(buttons);
  setMinimumWidth(420);
}

AboutSplash::AboutSplash() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName("frmSplash");
  QPalette colours = palette();
  colours.setColor(QPalette::Window, QColor(8, 58, 38));
  colours.setColor(QPalette::WindowText, QColor(244, 238, 220));
  setPalette(colours);
  auto* column = Headline(this);
  column->setContentsMargins(44, 30, 44, 30);
  setLayout(column);
  adjustSize();
  if (const QScreen* screen = QGuiApplication::primaryScreen())
    move(screen->availableGeometry().center() - rect().center());
}

}  // namespace tessaryn
