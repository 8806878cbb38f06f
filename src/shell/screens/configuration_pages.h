// The pages of the configuration whose controls are settings, and the larger parts on them.
#pragma once

#include <QScrollArea>
#include <QStringList>
#include <functional>

#include "shell/screens/setting_editor.h"

class QBoxLayout;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QVBoxLayout;

namespace tessaryn {

class MoneyEdit;
struct ControlRow;

// The samples that sounds are chosen from, by the files' names, and a way to hear one.
struct SoundShelf {
  QStringList stick, dice, checks, wins;
  std::function<void(const QString& file)> play;
};

// A page of a size of its own, where there may be less room.
template <class Page>
class Scrolled : public QScrollArea {
 public:
  Scrolled(Game& game, QWidget* parent) : QScrollArea(parent), page_(new Page(game, this)) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(page_);
  }
  void Refresh() { page_->Refresh(); }

 private:
  Page* page_;
};

// A page of groups in two columns; where it is too narrow for both, the second stands below the first.
class TwoColumns : public QScrollArea {
  Q_OBJECT
 public:
  explicit TwoColumns(QWidget* parent);
  // The group of a caption, made if it isn't there yet.
  QGroupBox* Group(const QString& caption, int column);
  static QFormLayout* FormOf(QGroupBox* group);

 protected:
  void resizeEvent(QResizeEvent* event) override;

  QVBoxLayout* columns_[2] = {};

 private:
  QBoxLayout* both_;
};

// The controls of a tab's rows; further parts are added behind.
class ControlsPage : public TwoColumns {
  Q_OBJECT
 public:
  ControlsPage(SettingEditor& editor, const char* tab, QWidget* parent);
  // What follows the state and is no setting.
  std::function<void()> refresh;

 protected:
  SettingEditor& editor_;

 private:
  void AddControl(const ControlRow& row);
  void AddBox(const ControlRow& row, const SettingRow& setting, QGroupBox& group);
  void AddNumber(const ControlRow& row, QGroupBox& group);
  void AddChoice(const ControlRow& row, const SettingRow& setting, QGroupBox& group);
  void AddButtons(const ControlRow& row, const SettingRow& setting, QGroupBox& group);
  void AddMask(const ControlRow& row, const SettingRow& setting, QGroupBox& group);
  SettingControl& Register(const ControlRow& row, QWidget* widget,
                           std::function<void(const std::string&)> show);
};

ControlsPage* MakeBetsPage(Game& game, SettingEditor& editor, QWidget* parent);
ControlsPage* MakeLayoutPage(Game& game, SettingEditor& editor, QWidget* parent);
ControlsPage* MakeBankrollPage(Game& game, SettingEditor& editor, QWidget* parent);
ControlsPage* MakeSoundPage(Game& game, SettingEditor& editor, const SoundShelf& shelf, QWidget* parent);
ControlsPage* MakeMiscPage(Game& game, SettingEditor& editor, QWidget* parent);

// cmbRollsPerTime: how a rate of rolls per hour is shown.
struct RateView {
  const char* caption;
  int perHour;      // the unit's part of an hour: 1, 60, 3600
  bool reciprocal;  // time for a roll
  const char* most;
};
extern const RateView kRateViews[6];
// A rate as a view shows it; "<.0001" for one that would be 0.
QString RateText(Currency rollsPerHour, const RateView& view);
// What was typed in a view as rolls per hour; an error value for what has none.
Currency RateOf(Currency typed, const RateView& view);

}  // namespace tessaryn
