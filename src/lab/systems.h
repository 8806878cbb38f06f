// Systems as they are written by people: standing bets, and sweeps over what CheckStacks start at.
//
// Errors are texts; an empty text is success.
#pragma once

#include <string>
#include <vector>

#include "lab/experiment.h"

namespace tessaryn {

// The parts between separators, one at least.
std::vector<std::string> SplitText(const std::string& text, char separator);

// "passline=10,odds=20", in the order in which they are asked for.
std::string ReadStandingBets(const std::string& text, LabSystem& system);

// "N=VALUE,..." or "N=LOW..HIGH:STEP": every system once with each value that CheckStack N starts at.
std::string SweepStack(const std::string& text, std::vector<LabSystem>& systems);

// "NAME=VALUE", "NAME@SEAT=VALUE". Whether there is such a setting is looked at with the table.
std::string ReadLabSetting(const std::string& text, LabSetting& setting);
// "NAME=VALUE,...": every system once with each value of the setting.
std::string SweepSetting(const std::string& text, std::vector<LabSystem>& systems);

// Every system once with each of count changes, change(system, i); the first sweep is the slowest to turn.
template <typename Change>
std::string MultiplySystems(std::vector<LabSystem>& systems, std::size_t count, Change&& change) {
  if (systems.size() * count > kMostSystems) return "more than " + std::to_string(kMostSystems) + " systems";
  std::vector<LabSystem> all;
  for (const LabSystem& system : systems)
    for (std::size_t i = 0; i < count; ++i) {
      all.push_back(system);
      change(all.back(), i);
    }
  systems = std::move(all);
  return {};
}

}  // namespace tessaryn
