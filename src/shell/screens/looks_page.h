// The Colors tab: cloth, checks, dice and lettering of the table, which shows each change at once.
#pragma once

#include <QPushButton>
#include <functional>
#include <vector>

#include "shell/screens/configuration_pages.h"
#include "state/looks.h"

class QBoxLayout;
class QComboBox;
class QFontComboBox;
class QFormLayout;
class QSlider;

namespace tessaryn {

struct Game;

// A colour as a button; a click opens frmColorPal.
class ColorButton : public QPushButton {
  Q_OBJECT
 public:
  ColorButton(const QString& name, const QString& what, QWidget* parent);
  void SetColor(QRgb color);

 signals:
  // Also while the palette is open; what it was comes back when that is given up.
  void ColorChosen(QRgb color);

 private:
  void OpenPalette();

  QRgb color_ = 0;
};

class LooksPage : public TwoColumns {
  Q_OBJECT
 public:
  LooksPage(Game& game, QWidget* parent);
  void Refresh();

 private:
  void AddColor(QFormLayout& form, const QString& name, const QString& caption,
                std::uint32_t& (*place)(Looks&, int), int index = 0);
  QSlider* AddSlider(QFormLayout& form, const char* name, const QString& caption, int Looks::*place);
  void AddCloth(QFormLayout& form);
  void AddFont(QFormLayout& form);
  void AddWindow(QFormLayout& form);
  void Changed();

  Game& game_;
  Looks shown_;
  bool fresh_ = true;
  QComboBox* cloths_ = nullptr;
  QFontComboBox* font_ = nullptr;
  std::vector<std::function<void()>> shows_;
};

}  // namespace tessaryn
