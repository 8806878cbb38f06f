#include "shell/screens/setting_editor.h"

#include <algorithm>

#include "play/auto_roll.h"
#include "play/setting_values.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr const char* kTitle = "Configuration";

// The setting that a rule among them is about.
struct RuleRow {
  Msg message;
  const char* setting;
};
constexpr RuleRow kRules[] = {
    {Msg::kChecksNotPositive, "CheckValue.1"},  {Msg::kChecksNotAscending, "CheckValue.1"},
    {Msg::kChecksNotDivisible, "CheckValue.1"}, {Msg::kMinimumTooLow, "MinBetMain"},
    {Msg::kMinimumNotMultiple, "MinBetMain"},   {Msg::kMaximumTooLow, "MaxBet"},
    {Msg::kMaxFireBetTooLow, "MaxFireBet"},
};

bool AboutProps(const ConfigurationProblem& problem) {
  for (const MessageArgument& argument : problem.arguments)
    if (argument.hole == "props") return argument.value == MessageValue(true);
  return false;
}

}  // namespace

SettingEditor::SettingEditor(Game& game) : game_(game) {}

SettingControl& SettingEditor::Add(SettingControl control) {
  controls_.push_back(std::move(control));
  return controls_.back();
}

SettingControl* SettingEditor::ControlOf(const std::string& setting) {
  for (SettingControl& control : controls_)
    if (control.setting == setting) return &control;
  return nullptr;
}

SettingControl* SettingEditor::ControlOf(const ConfigurationProblem& problem) {
  for (const RuleRow& rule : kRules)
    if (rule.message == problem.message)
      return ControlOf(std::string(rule.setting) == "MinBetMain" && AboutProps(problem) ? "MinBetProp"
                                                                                        : rule.setting);
  return nullptr;
}

void SettingEditor::SetSeat(SeatId seat) {
  for (SettingControl& control : controls_)
    if (control.ofPlayer && seat != seat_) control.waiting.reset();
  seat_ = seat;
  Refresh();
}

std::string SettingEditor::ValueOf(const SettingControl& control) const {
  std::string value;
  std::string error;
  GetSetting(game_, control.setting, control.ofPlayer ? seat_ : kHouse, value, error);
  return value;
}

SettingChange SettingEditor::ChangeOf(const SettingControl& control, const std::string& value) const {
  return {control.setting, control.ofPlayer ? seat_ : kHouse, value};
}

std::vector<SettingChange> SettingEditor::Waiting() const {
  std::vector<SettingChange> changes;
  for (const SettingControl& control : controls_)
    if (control.waiting && !(control.check && control.check(*control.waiting).Found()))
      changes.push_back(ChangeOf(control, *control.waiting));
  return changes;
}

bool SettingEditor::Waits() const {
  return std::any_of(controls_.begin(), controls_.end(),
                     [](const SettingControl& control) { return control.waiting.has_value(); });
}

bool SettingEditor::MayChange() { return AskBeforeCommand(game_) && !game_.table.RollInProgress; }

// All that waits, if it goes together now.
void SettingEditor::TakeWaiting() {
  const std::vector<SettingChange> changes = Waiting();
  std::string error;
  if (changes.empty() || FindSettingProblem(game_, changes, error) < changes.size()) return;
  SetSettings(game_, changes, error, HouseStandard::kOfferedLater);
  for (SettingControl& control : controls_)
    if (control.waiting && !(control.check && control.check(*control.waiting).Found()))
      control.waiting.reset();
}

void SettingEditor::Change(SettingControl& control, const std::string& value) {
  if (!MayChange()) {
    control.shown.reset();
    return Refresh();
  }
  control.waiting = value;
  const bool breaks = control.check && control.check(value).Found();
  const std::vector<SettingChange> alone = {ChangeOf(control, value)};
  std::string error;
  if (!breaks && FindSettingProblem(game_, alone, error) == alone.size()) {
    // The questions of a change come here; what they refuse has been told.
    control.waiting.reset();
    SetSettings(game_, alone, error, HouseStandard::kOfferedLater);
  }
  TakeWaiting();
  // What a click asks for is taken or not; what is typed waits.
  if (control.waiting && !control.commit) {
    const Refusal refusal = FindRefusal();
    control.waiting.reset();
    if (refusal.Found()) TellRefusal(game_, refusal);
  }
  control.shown.reset();
  Refresh();
  emit Changed();
}

bool SettingEditor::ChangeTogether(const std::vector<SettingChange>& changes) {
  if (!MayChange()) return false;
  Refusal refusal;
  refusal.problem = FindConfigurationProblem(game_, changes);
  const bool good = FindSettingProblem(game_, changes, refusal.text) == changes.size();
  if (!good) TellRefusal(game_, refusal);
  const bool taken = good && SetSettings(game_, changes, refusal.text, HouseStandard::kOfferedLater);
  if (taken)
    for (const SettingChange& change : changes)
      if (SettingControl* control = ControlOf(change.name)) control->waiting.reset();
  TakeWaiting();
  Refresh();
  emit Changed();
  return taken;
}

void SettingEditor::Show(SettingControl& control) {
  if (control.waiting) return;
  const std::string value = ValueOf(control);
  if (control.shown == value) return;
  control.shown = value;
  control.show(value);
}

void SettingEditor::Refresh() {
  for (SettingControl& control : controls_) Show(control);
}

void SettingEditor::GiveUp() {
  for (SettingControl& control : controls_) {
    control.waiting.reset();
    control.shown.reset();
  }
  Refresh();
}

void SettingEditor::Commit() {
  // What is taken may add controls.
  for (std::size_t n = 0; n < controls_.size(); ++n)
    if (controls_[n].commit) controls_[n].commit();
}

SettingEditor::Refusal SettingEditor::FindRefusal() {
  Refusal refusal;
  std::vector<SettingControl*> waiting;
  std::vector<SettingChange> changes;
  for (SettingControl& control : controls_) {
    if (!control.waiting) continue;
    if (control.check) refusal.problem = control.check(*control.waiting);
    if (refusal.problem.Found()) {
      refusal.control = &control;
      refusal.text = refusal.problem.Text();
      return refusal;
    }
    waiting.push_back(&control);
    changes.push_back(ChangeOf(control, *control.waiting));
  }
  const std::size_t first = FindSettingProblem(game_, changes, refusal.text);
  if (first == changes.size()) return {};
  refusal.problem = FindConfigurationProblem(game_, changes);
  refusal.control = refusal.problem.Found() ? ControlOf(refusal.problem) : nullptr;
  if (refusal.problem.Found()) refusal.text = refusal.problem.Text();
  if (refusal.control == nullptr) refusal.control = waiting[first];
  return refusal;
}

void TellRefusal(Game& game, const SettingEditor::Refusal& refusal) {
  if (refusal.problem.Found())
    ShowMessage(game, refusal.problem.message, refusal.problem.arguments);
  else
    ShowMessage<Msg::kSettingRefused>(game, With<"title">(kTitle), With<"problem">(refusal.text));
}

}  // namespace tessaryn
