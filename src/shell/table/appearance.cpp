#include "shell/table/appearance.h"

#include <QApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleFactory>
#include <QStyleOption>
#include <QVariant>
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
#include <QStyleHints>
#endif

namespace tessaryn {

namespace {

constexpr const char* kDesktopDark = "tessarynDesktopDark";
constexpr const char* kDesktopStill = "tessarynDesktopStill";
constexpr double kEdge = 1.0;
constexpr double kFocus = 2.0;
constexpr double kCorner = 5;

// Draws the edges of controls in their own tone, and a ring round the one with the keyboard: the style below
// derives both from the window's colour, and they vanish in the dark.
class EdgedStyle : public QProxyStyle {
 public:
  EdgedStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    // The ring takes the place of the style's own mark, which is a shade.
    if (element == PE_FrameFocusRect) {
      if ((option->state & State_KeyboardFocusChange) != 0) Ring(*painter, option->rect, 2);
      return;
    }
    if (element == PE_PanelButtonCommand) return Button(*painter, *option);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
      case PE_FrameLineEdit:
      case PE_FrameGroupBox:
      case PE_IndicatorCheckBox:
        Edge(*painter, *option, option->rect, element == PE_IndicatorCheckBox ? 2 : kCorner / 2);
        break;
      case PE_IndicatorRadioButton:
        Edge(*painter, *option, option->rect, option->rect.height() / 2.0);
        break;
      default:
        break;
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_Slider) {
      const auto* slider = static_cast<const QStyleOptionSlider*>(option);
      const QRect groove = subControlRect(CC_Slider, slider, SC_SliderGroove, widget);
      const bool flat = slider->orientation == Qt::Horizontal;
      Edge(*painter, *option,
           flat ? QRect(groove.left(), groove.center().y() - 2, groove.width(), 4)
                : QRect(groove.center().x() - 2, groove.top(), 4, groove.height()),
           2);
      const QRect handle = subControlRect(CC_Slider, slider, SC_SliderHandle, widget);
      painter->save();
      painter->setRenderHint(QPainter::Antialiasing);
      painter->setPen(QPen(TonesInForce().edge, kEdge));
      const Tones& tones = TonesInForce();
      painter->setBrush((option->state & State_Enabled) != 0 ? tones.primary : tones.edge);
      const double side = std::min(handle.width(), handle.height()) - 1;
      painter->drawEllipse(QRectF(handle).center(), side / 2, side / 2);
      painter->restore();
    }
    if (control == CC_SpinBox || (control == CC_ComboBox && option->rect.height() > 0))
      Edge(*painter, *option, option->rect, kCorner / 2);
  }

 private:
  // Flat, in the colour of its palette; lit under the pointer.
  static void Button(QPainter& painter, const QStyleOption& option) {
    const bool dark = IsDark(option.palette);
    QColor fill = option.palette.color(QPalette::Button);
    if ((option.state & (State_Sunken | State_On)) != 0)
      fill = fill.darker(dark ? 130 : 112);
    else if ((option.state & State_Enabled) != 0 && (option.state & State_MouseOver) != 0)
      fill = dark ? fill.lighter(118) : fill.darker(104);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
    painter.restore();
    Edge(painter, option, option.rect, kCorner);
    // What Enter presses.
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    if (button == nullptr || (button->features & QStyleOptionButton::DefaultButton) == 0) return;
    if ((option.state & State_HasFocus) == 0)
      Outline(painter, option.rect, kCorner, QPen(TonesInForce().primary, kFocus));
  }

  static void Outline(QPainter& painter, const QRectF& rect, double corner, const QPen& pen) {
    const double half = pen.widthF() / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), corner, corner);
    painter.restore();
  }

  static void Ring(QPainter& painter, const QRectF& rect, double corner) {
    Outline(painter, rect, corner, QPen(TonesInForce().focus, kFocus));
  }

  static void Edge(QPainter& painter, const QStyleOption& option, const QRectF& rect, double corner) {
    constexpr auto kKeyboard = State_HasFocus;
    if ((option.state & kKeyboard) != 0) return Ring(painter, rect, corner);
    QColor tone = TonesInForce().edge;
    if ((option.state & State_Enabled) == 0) tone.setAlpha(110);
    Outline(painter, rect, corner, QPen(tone, kEdge));
  }
};

bool IsOurs(const QPalette& palette) {
  return palette == PaletteOf(LightTones()) || palette == PaletteOf(DarkTones());
}

// What the desktop shows; noted before the program's own palette takes its place.
bool DesktopIsDark() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  if (const auto scheme = QGuiApplication::styleHints()->colorScheme(); scheme != Qt::ColorScheme::Unknown)
    return scheme == Qt::ColorScheme::Dark;
#endif
  if (!IsOurs(QApplication::palette())) qApp->setProperty(kDesktopDark, IsDark(QApplication::palette()));
  return qApp->property(kDesktopDark).toBool();
}

}  // namespace

const Tones& LightTones() {
  static const Tones kTones{QColor(0xF3, 0xF5, 0xF6), QColor(0xFF, 0xFF, 0xFF), QColor(0x1B, 0x1F, 0x23),
                            QColor(0x4F, 0x5B, 0x66), QColor(0x87, 0x92, 0x9B), QColor(0x0B, 0x6B, 0x45),
                            QColor(0xFF, 0xFF, 0xFF), QColor(0x0A, 0x7A, 0x43), QColor(0xB3, 0x26, 0x1E),
                            QColor(0x1A, 0x5F, 0xD0)};
  return kTones;
}

const Tones& DarkTones() {
  static const Tones kTones{QColor(0x1F, 0x24, 0x28), QColor(0x27, 0x2D, 0x32), QColor(0xEC, 0xF0, 0xF3),
                            QColor(0xAE, 0xB9, 0xC2), QColor(0x7D, 0x89, 0x93), QColor(0x3C, 0xC9, 0x8A),
                            QColor(0x06, 0x21, 0x0F), QColor(0x7B, 0xE0, 0xA3), QColor(0xFF, 0x9C, 0x8F),
                            QColor(0x7F, 0xB2, 0xFF)};
  return kTones;
}

QPalette PrimaryButton() {
  const Tones& tones = TonesInForce();
  QPalette colours = QApplication::palette();
  QColor faint = tones.primary;
  faint.setAlpha(130);
  colours.setColor(QPalette::Button, tones.primary);
  colours.setColor(QPalette::Disabled, QPalette::Button, faint);
  colours.setColor(QPalette::ButtonText, tones.onPrimary);
  return colours;
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

const Tones& TonesInForce() { return IsDark(QApplication::palette()) ? DarkTones() : LightTones(); }

QPalette PaletteOf(const Tones& tones) {
  const bool dark = tones.window.lightness() < 128;
  QPalette palette(tones.panel, tones.window);  // with the shades that go with them
  const auto set = [&](QPalette::ColorRole role, const QColor& tone) { palette.setColor(role, tone); };
  set(QPalette::Base, tones.panel);
  set(QPalette::AlternateBase, dark ? tones.panel.lighter(112) : tones.window);
  set(QPalette::ToolTipBase, tones.panel);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
                          QPalette::ToolTipText})
    set(role, tones.text);
  set(QPalette::PlaceholderText, tones.second);
  set(QPalette::Highlight, tones.primary);
  set(QPalette::HighlightedText, tones.onPrimary);
  set(QPalette::Link, tones.focus);
  set(QPalette::LinkVisited, tones.focus);
  set(QPalette::Mid, tones.edge);
  QColor faint = tones.second;
  faint.setAlpha(150);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, faint);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.edge);
  return palette;
}

void ApplyScheme(Scheme scheme) {
  const bool dark = scheme == Scheme::kDark || (scheme == Scheme::kAsDesktop && DesktopIsDark());
  if (!qApp->property(kDesktopStill).isValid()) {
    qApp->setProperty(kDesktopStill,
                      QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0);
    DesktopIsDark();
    QApplication::setStyle(new EdgedStyle);
  }
  const QPalette palette = PaletteOf(dark ? DarkTones() : LightTones());
  if (QApplication::palette() != palette) QApplication::setPalette(palette);
}

bool DesktopIsStill() { return qApp->property(kDesktopStill).toBool(); }

Measures MeasuresOf(QSize window) {
  constexpr int kWide = 1600;
  Measures measures;
  measures.compact = window.width() < 1100 || window.height() < 700;
  if (measures.compact) return {true, 38, 36, 18, {122, 50}, 10, {86, 31}, 28, 26};
  if (window.width() >= kWide) {
    measures.board = 56;
    measures.controls = 54;
    measures.status = 24;
    measures.plate = {172, 78};
    measures.plateText = 13;
    measures.boardDice = 42;
  }
  return measures;
}

QFont Sized(QFont font, double height, bool bold) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  font.setPointSizeF(height * 72 / (screen == nullptr ? 96 : screen->logicalDotsPerInchY()));
  font.setBold(bold);
  return font;
}

}  // namespace tessaryn
