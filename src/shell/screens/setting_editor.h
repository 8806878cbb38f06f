// What stands between the controls of the configuration and the settings: each change goes to the table at
// once by SetSettings, as `set` would make it. What doesn't go together with the other settings yet waits,
// and is tried again with each further change and as the screen is left.
#pragma once

#include <QObject>
#include <QString>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "play/setting_rows.h"
#include "play/setting_table.h"

class QWidget;

namespace tessaryn {

// A control, or several that are one setting together.
struct SettingControl {
  std::string setting;  // NAME or NAME.ROW
  bool ofPlayer = false;
  QString caption;
  QWidget* widget = nullptr;  // where the focus goes
  std::function<void(const std::string& value)> show;
  // Brings what was typed, and not yet left, to Change. Empty for what changes at a click.
  std::function<void()> commit = {};
  // What a value breaks by itself, beyond what the settings are checked for.
  std::function<ConfigurationProblem(const std::string& value)> check = {};
  std::optional<std::string> waiting = {};  // what the table hasn't taken
  std::optional<std::string> shown = {};
};

class SettingEditor : public QObject {
  Q_OBJECT
 public:
  explicit SettingEditor(Game& game);

  SettingControl& Add(SettingControl control);
  SettingControl* ControlOf(const std::string& setting);
  const std::deque<SettingControl>& Controls() const { return controls_; }

  // The player whose settings are shown; 0 none.
  SeatId Seat() const { return seat_; }
  void SetSeat(SeatId seat);

  // The value that the table has, as SetSetting takes it.
  std::string ValueOf(const SettingControl& control) const;
  void Change(SettingControl& control, const std::string& value);
  // Several at once, as a whole. False when the table didn't take them; what it said has been told.
  bool ChangeTogether(const std::vector<SettingChange>& changes);
  // Nothing runs that a change would meet in the middle; else asks whether to stop it.
  bool MayChange();

  // Brings the controls to the settings; those that wait keep what was typed.
  void Refresh();
  // Gives up what waits.
  void GiveUp();
  // What was typed and not left is left.
  void Commit();
  bool Waits() const;
  // Why the first doesn't go, with the control that it is about; no message and no text if all does.
  struct Refusal {
    ConfigurationProblem problem = {};
    std::string text = {};
    SettingControl* control = nullptr;
    bool Found() const { return !text.empty(); }
  };
  Refusal FindRefusal();

 signals:
  // Something was changed, or waits.
  void Changed();

 private:
  SettingChange ChangeOf(const SettingControl& control, const std::string& value) const;
  std::vector<SettingChange> Waiting() const;
  void TakeWaiting();
  void Show(SettingControl& control);
  SettingControl* ControlOf(const ConfigurationProblem& problem);

  Game& game_;
  std::deque<SettingControl> controls_;
  SeatId seat_ = 0;
};

// What a refusal is shown under.
void TellRefusal(Game& game, const SettingEditor::Refusal& refusal);

}  // namespace tessaryn
