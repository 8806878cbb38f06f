#include "lab/lab_words.h"

#include <algorithm>

#include "lab/systems.h"

namespace tessaryn {
namespace {

std::string Quoted(const std::string& text) {
  const auto plain = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("_./=:,@+-").find(c) != std::string_view::npos;
  };
  if (!text.empty() && std::all_of(text.begin(), text.end(), plain)) return text;
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

template <typename T>
void AddNew(std::vector<T>& values, const T& value) {
  if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(value);
}

// The sweeps that multiplied the systems.
struct Sweeps {
  struct Stack {
    int stack = 0;
    std::vector<Currency> values;
  };
  struct Setting {
    LabSetting setting;
    std::vector<std::string> values;
  };
  std::vector<LabSystem> scripts;
  std::vector<Stack> stacks;
  std::vector<Setting> settings;
};

Sweeps SweepsOf(const std::vector<LabSystem>& systems) {
  Sweeps sweeps;
  std::size_t product = 1;
  for (std::size_t i = 0; i < systems.front().stacks.size(); ++i) {
    sweeps.stacks.push_back({systems.front().stacks[i].stack, {}});
    for (const LabSystem& system : systems)
      if (i < system.stacks.size()) AddNew(sweeps.stacks.back().values, system.stacks[i].amount);
    product *= sweeps.stacks.back().values.size();
  }
  for (std::size_t i = 0; i < systems.front().settings.size(); ++i) {
    sweeps.settings.push_back({systems.front().settings[i], {}});
    for (const LabSystem& system : systems)
      if (i < system.settings.size()) AddNew(sweeps.settings.back().values, system.settings[i].text);
    product *= sweeps.settings.back().values.size();
  }
  for (std::size_t at = 0; at < systems.size(); at += product) {
    LabSystem script = systems[at];
    script.stacks.clear();
    script.settings.clear();
    sweeps.scripts.push_back(std::move(script));
  }
  return sweeps;
}

// Whether the sweeps lead to just these systems.
bool LeadTo(const Sweeps& sweeps, const std::vector<LabSystem>& systems) {
  std::vector<LabSystem> all = sweeps.scripts;
  for (const Sweeps::Stack& stack : sweeps.stacks)
    MultiplySystems(all, stack.values.size(), [&](LabSystem& system, std::size_t i) {
      system.stacks.push_back({stack.stack, stack.values[i]});
    });
  for (const Sweeps::Setting& setting : sweeps.settings)
    MultiplySystems(all, setting.values.size(), [&](LabSystem& system, std::size_t i) {
      system.settings.push_back({setting.setting.name, setting.setting.seat, setting.values[i]});
    });
  return FirstDifference(all, systems).empty();
}

struct Command {
  std::string text = "tessaryn-cli lab";

  void Add(const char* option, const std::string& value) {
    text += std::string(" ") + option + " " + Quoted(value);
  }
  void AddMoney(const char* option, Currency value) {
    if (value > kZero) Add(option, PlainMoney(value));
  }
  void AddCount(const char* option, std::int64_t value) {
    if (value > 0) Add(option, std::to_string(value));
  }
};

template <typename T, typename Text>
std::string Joined(const std::vector<T>& values, Text&& text) {
  std::string joined;
  for (const T& value : values) joined += (joined.empty() ? "" : ",") + text(value);
  return joined;
}

}  // namespace

std::string SettingText(const LabSetting& setting) {
  return setting.name + (setting.seat == 0 ? "" : "@" + std::to_string(setting.seat)) + "=" + setting.text;
}

bool FindSweeps(const std::vector<LabSystem>& systems, LabSweeps& found) {
  const Sweeps sweeps = SweepsOf(systems);
  if (!LeadTo(sweeps, systems)) return false;
  found = {sweeps.scripts, {}, {}};
  for (const Sweeps::Stack& stack : sweeps.stacks)
    found.stacks.push_back(std::to_string(stack.stack) + "=" + Joined(stack.values, PlainMoney));
  for (const Sweeps::Setting& setting : sweeps.settings) {
    LabSetting all = setting.setting;
    all.text = Joined(setting.values, [](const std::string& value) { return value; });
    found.settings.push_back(SettingText(all));
  }
  return true;
}

std::string LabCommand(const Experiment& experiment) {
  LabSweeps sweeps;
  if (experiment.systems.empty() || !FindSweeps(experiment.systems, sweeps)) return {};
  Command command;
  for (const LabSystem& system : sweeps.systems)
    command.Add(system.standingBets ? "--bets" : "--script", system.name);
  for (const std::string& stack : sweeps.stacks) command.Add("--stack", stack);
  for (const std::string& setting : sweeps.settings) command.Add("--vary", setting);
  command.AddMoney("--bankroll", experiment.bankroll);
  command.AddCount("--sessions", experiment.sessions);
  command.AddCount("--rolls", experiment.rolls);
  command.AddCount("--hands", experiment.hands);
  command.AddMoney("--hours", experiment.hours);
  command.AddMoney("--win-goal", experiment.winGoal);
  command.AddMoney("--loss-limit", experiment.lossLimit);
  if (experiment.endWithHand) command.Add("--end", "hand");
  for (const LabSetting& setting : experiment.settings) command.Add("--set", SettingText(setting));
  if (experiment.percentageDice) command.text += " --probabilities FILE";
  command.AddCount("--rng", experiment.generator);
  command.Add("--seed", std::to_string(experiment.seed));
  command.AddMoney("--precision", experiment.precision);
  if (experiment.shards > 1)
    command.Add("--shard", std::to_string(experiment.shard) + "/" + std::to_string(experiment.shards));
  return command.text;
}

}  // namespace tessaryn
