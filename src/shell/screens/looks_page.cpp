#include "shell/screens/looks_page.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QSlider>
#include <QVBoxLayout>

#include "base/fields.h"
#include "shell/table/preferences.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr QSize kSwatch(40, 16);

// Cloths that a house has.
struct Cloth {
  const char* name;
  const char* caption;
  std::uint32_t color;
};
constexpr Cloth kCloths[] = {
    {"mnuSetTableGreen", QT_TRANSLATE_NOOP("tessaryn::LooksPage", "Green"), 0x0C5C3B},
    {"mnuSetTableBlue", QT_TRANSLATE_NOOP("tessaryn::LooksPage", "Blue"), 0x174A86},
    {"mnuSetTableTeal", QT_TRANSLATE_NOOP("tessaryn::LooksPage", "Teal"), 0x0D5A63},
    {"mnuSetTableBurgundy", QT_TRANSLATE_NOOP("tessaryn::LooksPage", "Burgundy"), 0x5E1A28},
    {"mnuSetTablePurple", QT_TRANSLATE_NOOP("tessaryn::LooksPage", "Purple"), 0x43286A},
    {"mnuSetTableGray", QT_TRANSLATE_NOOP("tessaryn::LooksPage", "Gray"), 0x3A4047},
    {"mnuSetTableTan", QT_TRANSLATE_NOOP("tessaryn::LooksPage", "Tan"), 0x6A5434},
};

QString ColorName(QRgb color) { return QColor::fromRgb(color).name().toUpper(); }

}  // namespace

ColorButton::ColorButton(const QString& name, const QString& what, QWidget* parent) : QPushButton(parent) {
  setObjectName(name);
  setAutoDefault(false);
  setIconSize(kSwatch);
  setProperty("what", what);
  connect(this, &QPushButton::clicked, this, &ColorButton::OpenPalette);
}

void ColorButton::SetColor(QRgb color) {
  color_ = color & 0xFFFFFFu;
  QPixmap swatch(kSwatch * devicePixelRatioF());
  swatch.setDevicePixelRatio(devicePixelRatioF());
  swatch.fill(QColor::fromRgb(color_));
  QPainter painter(&swatch);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(0, 0, kSwatch.width() - 1, kSwatch.height() - 1);
  painter.end();
  setIcon(swatch);
  setText(ColorName(color_));
  setAccessibleName(property("what").toString() + ": " + text());
}

void ColorButton::OpenPalette() {
  const QRgb before = color_;
  QColorDialog dialog(QColor::fromRgb(before), this);
  dialog.setObjectName("frmColorPal");
  dialog.setWindowTitle(property("what").toString());
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  connect(&dialog, &QColorDialog::currentColorChanged, this,
          [this](const QColor& color) { emit ColorChosen(color.rgb() & 0xFFFFFFu); });
  const bool taken = RunDialog(dialog) == QDialog::Accepted;
  emit ColorChosen(taken ? dialog.currentColor().rgb() & 0xFFFFFFu : before);
}

LooksPage::LooksPage(Game& game, QWidget* parent) : TwoColumns(parent), game_(game) {
  const auto group = [this](const QString& caption, int column) { return FormOf(Group(caption, column)); };
  AddCloth(*group(tr("Cloth"), 0));
  QFormLayout* round = group(tr("Table"), 0);
  AddColor(*round, "cmdColorLettering", tr("Lettering"),
           [](Looks& looks, int) -> std::uint32_t& { return looks.Lettering; });
  AddFont(*round);
  AddColor(*round, "cmdColorRail", tr("Rail"),
           [](Looks& looks, int) -> std::uint32_t& { return looks.Rail; });
  AddColor(*round, "cmdColorRoom", tr("Round the table"),
           [](Looks& looks, int) -> std::uint32_t& { return looks.Room; });
  QFormLayout* checks = group(tr("Checks"), 1);
  const QString names[] = {"",
                           tr("First check"),
                           tr("Second check"),
                           tr("Third check"),
                           tr("Fourth check"),
                           tr("Fifth check"),
                           tr("\"$\" check")};
  for (int n = 1; n < kCheckColors; ++n)
    AddColor(
        *checks, QStringLiteral("cmdColorCheck%1").arg(n), names[n],
        [](Looks& looks, int check) -> std::uint32_t& { return looks.Checks[check]; }, n);
  QFormLayout* dice = group(tr("Dice"), 1);
  for (int n = 0; n < 2; ++n)
    AddColor(
        *dice, QStringLiteral("cmdColorDie%1").arg(n + 1), n == 0 ? tr("First die") : tr("Second die"),
        [](Looks& looks, int die) -> std::uint32_t& { return looks.Dice[die]; }, n);
  AddColor(*dice, "cmdColorPips", tr("Pips"), [](Looks& looks, int) -> std::uint32_t& { return looks.Pips; });
  AddWindow(*group(tr("Window"), 1));
  auto* first = new QPushButton(tr("All as at first"), widget());
  first->setObjectName("cmdFirstLooks");
  first->setAutoDefault(false);
  connect(first, &QPushButton::clicked, this, [this] {
    game_.screen.looks = Looks();
    Changed();
  });
  columns_[1]->insertWidget(columns_[1]->count() - 1, first, 0, Qt::AlignRight);
  Refresh();
}

void LooksPage::AddColor(QFormLayout& form, const QString& name, const QString& caption,
                         std::uint32_t& (*place)(Looks&, int), int index) {
  auto* button = new ColorButton(name, caption, form.parentWidget());
  form.addRow(caption, button);
  connect(button, &ColorButton::ColorChosen, this, [this, place, index](QRgb color) {
    place(game_.screen.looks, index) = color;
    Changed();
  });
  shows_.push_back([this, button, place, index] { button->SetColor(place(game_.screen.looks, index)); });
}

QSlider* LooksPage::AddSlider(QFormLayout& form, const char* name, const QString& caption,
                              int Looks::*place) {
  auto* slider = new QSlider(Qt::Horizontal, form.parentWidget());
  slider->setObjectName(name);
  slider->setAccessibleName(caption);
  slider->setRange(0, 100);
  slider->setPageStep(10);
  slider->setMinimumWidth(140);
  form.addRow(caption, slider);
  connect(slider, &QSlider::valueChanged, this, [this, place](int value) {
    if (game_.screen.looks.*place == value) return;
    game_.screen.looks.*place = value;
    Changed();
  });
  shows_.push_back([this, slider, place] { slider->setValue(game_.screen.looks.*place); });
  return slider;
}

void LooksPage::AddCloth(QFormLayout& form) {
  cloths_ = new QComboBox(form.parentWidget());
  cloths_->setObjectName("cmbCloth");
  cloths_->setAccessibleName(tr("Cloth"));
  for (const Cloth& cloth : kCloths) cloths_->addItem(tr(cloth.caption), cloth.color);
  cloths_->addItem(tr("Another color"));
  form.addRow(tr("Cloth"), cloths_);
  connect(cloths_, &QComboBox::activated, this, [this](int cloth) {
    if (cloth >= static_cast<int>(std::size(kCloths))) return Refresh();
    game_.screen.looks.Cloth = kCloths[cloth].color;
    Changed();
  });
  shows_.push_back([this] {
    const int cloth = cloths_->findData(game_.screen.looks.Cloth);
    cloths_->setCurrentIndex(cloth < 0 ? cloths_->count() - 1 : cloth);
  });
  AddColor(form, "cmdColorCloth", tr("Color"),
           [](Looks& looks, int) -> std::uint32_t& { return looks.Cloth; });
  AddSlider(form, "hsbTexture", tr("Texture"), &Looks::Texture);
  AddSlider(form, "hsbSpotlight", tr("Spotlight"), &Looks::Spotlight);
}

// Without a font of the user's the lettering has the program's own.
void LooksPage::AddFont(QFormLayout& form) {
  auto* own = new QCheckBox(tr("Lettering in a font of my own"), form.parentWidget());
  own->setObjectName("chkOwnFont");
  form.addRow(own);
  font_ = new QFontComboBox(form.parentWidget());
  font_->setObjectName("cmbFont");
  font_->setAccessibleName(tr("Font"));
  font_->setEditable(false);
  font_->setMaximumWidth(200);
  form.addRow(tr("Font"), font_);
  const auto take = [this, own] {
    game_.screen.looks.LetteringFont = own->isChecked() ? ToCore(font_->currentFont().family()) : "";
    Changed();
  };
  connect(own, &QCheckBox::clicked, this, take);
  connect(font_, &QFontComboBox::activated, this, take);
  shows_.push_back([this, own] {
    const std::string& family = game_.screen.looks.LetteringFont;
    own->setChecked(!family.empty());
    font_->setEnabled(!family.empty());
    if (!family.empty()) font_->setCurrentFont(QFont(FromCore(family)));
  });
}

// What the user wants of the program, whatever game is open.
void LooksPage::AddWindow(QFormLayout& form) {
  auto* scheme = new QComboBox(form.parentWidget());
  scheme->setObjectName("cmbScheme");
  scheme->setAccessibleName(tr("Light or dark"));
  scheme->addItems({tr("As the desktop"), tr("Light"), tr("Dark")});
  form.addRow(tr("Light or dark"), scheme);
  const auto change = [this](auto set) {
    Preferences wanted = ReadPreferences(game_.dataFolder);
    set(wanted);
    WritePreferences(game_.dataFolder, wanted);
    game_.host->Changed(game_, Change::kSettings);
  };
  connect(scheme, &QComboBox::activated, this, [change](int chosen) {
    change([chosen](Preferences& wanted) { wanted.scheme = static_cast<Scheme>(chosen); });
  });
  const auto add = [&](const char* name, const QString& caption, bool Preferences::*place) {
    auto* box = new QCheckBox(caption, form.parentWidget());
    box->setObjectName(name);
    form.addRow(box);
    connect(box, &QCheckBox::clicked, this,
            [change, place](bool on) { change([place, on](Preferences& wanted) { wanted.*place = on; }); });
    shows_.push_back([this, box, place] { box->setChecked(ReadPreferences(game_.dataFolder).*place); });
  };
  add("chkNoMotion", tr("No motion"), &Preferences::noMotion);
  add("chkNotesInBoxes", tr("Notes in boxes"), &Preferences::notesInBoxes);
  shows_.push_back([this, scheme] {
    scheme->setCurrentIndex(static_cast<int>(ReadPreferences(game_.dataFolder).scheme));
  });
}

void LooksPage::Changed() {
  game_.host->Changed(game_, Change::kSettings);
  Refresh();
}

void LooksPage::Refresh() {
  if (!fresh_ && FirstDifference(shown_, game_.screen.looks).empty()) return;
  fresh_ = false;
  shown_ = game_.screen.looks;
  for (const auto& show : shows_) show();
}

}  // namespace tessaryn
