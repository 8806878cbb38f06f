#include "lab/lab_grid.h"

#include <algorithm>
#include <cmath>

namespace tessaryn {
namespace {

using Texts = std::vector<std::string>;

// What was told of one script's systems, by parameter.
struct Family {
  const LabSystem* system = nullptr;
  Texts names;                       // of parameters
  std::vector<std::size_t> systems;  // their places
  std::vector<Texts> values;         // of each of them
};

void AddNew(Texts& values, const std::string& value) {
  if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(value);
}

void ReadParameters(const LabSystem& system, Texts& names, Texts& values) {
  for (const StackStart& start : system.stacks) {
    names.push_back("CheckStack " + std::to_string(start.stack));
    values.push_back(PlainMoney(start.amount));
  }
  for (const LabSetting& setting : system.settings) {
    names.push_back(setting.name + (setting.seat == 0 ? "" : "@" + std::to_string(setting.seat)));
    values.push_back(setting.text);
  }
}

std::vector<Family> FamiliesOf(const Experiment& experiment) {
  std::vector<Family> families;
  for (std::size_t i = 0; i < experiment.systems.size(); ++i) {
    const LabSystem& system = experiment.systems[i];
    Texts names;
    Texts values;
    ReadParameters(system, names, values);
    auto family = std::find_if(families.begin(), families.end(), [&](const Family& one) {
      return one.system->name == system.name && one.names == names && one.system->lines == system.lines;
    });
    if (family == families.end()) family = families.insert(families.end(), {&system, names, {}, {}});
    family->systems.push_back(i);
    family->values.push_back(values);
  }
  return families;
}

std::vector<LabAxis> AxesOf(const Family& family) {
  std::vector<LabAxis> axes;
  for (std::size_t p = 0; p < family.names.size(); ++p) {
    axes.push_back({family.names[p], {}});
    for (const Texts& values : family.values) AddNew(axes.back().values, values[p]);
  }
  return axes;
}

// The places of the last two parameters that vary.
std::vector<std::size_t> OnAxes(const std::vector<LabAxis>& axes) {
  std::vector<std::size_t> on;
  for (std::size_t p = 0; p < axes.size(); ++p)
    if (axes[p].values.size() > 1) on.push_back(p);
  if (on.size() > 2) on.erase(on.begin(), on.end() - 2);
  return on;
}

std::string NameBeside(const Family& family, const Texts& values, const std::vector<std::size_t>& on) {
  std::string beside;
  for (std::size_t p = 0; p < values.size(); ++p)
    if (std::find(on.begin(), on.end(), p) == on.end())
      beside += (beside.empty() ? " [" : ", ") + family.names[p] + "=" + values[p];
  return family.system->name + beside + (beside.empty() ? "" : "]");
}

constexpr std::size_t kNobody = kMostSystems;

// False where the place is taken: the same was asked for twice.
bool Place(LabGrid& grid, const Texts& values, const std::vector<std::size_t>& on, std::size_t system) {
  std::size_t place = 0;
  for (std::size_t axis = 0; axis < on.size(); ++axis) {
    const Texts& all = grid.axes[axis].values;
    const auto at = std::find(all.begin(), all.end(), values[on[axis]]) - all.begin();
    place = place * all.size() + static_cast<std::size_t>(at);
  }
  if (grid.systems[place] != kNobody) return false;
  grid.systems[place] = system;
  return true;
}

void AddGrids(const Family& family, std::vector<LabGrid>& grids) {
  const std::vector<LabAxis> axes = AxesOf(family);
  const std::vector<std::size_t> on = OnAxes(axes);
  if (on.empty()) return;
  const std::size_t first = grids.size();
  std::vector<bool> good;
  for (std::size_t i = 0; i < family.systems.size(); ++i) {
    const std::string name = NameBeside(family, family.values[i], on);
    std::size_t at = first;
    while (at < grids.size() && grids[at].name != name) ++at;
    if (at == grids.size()) {
      LabGrid grid{name, {}, {}};
      std::size_t places = 1;
      for (const std::size_t p : on) {
        grid.axes.push_back(axes[p]);
        places *= axes[p].values.size();
      }
      grid.systems.assign(places, kNobody);
      grids.push_back(std::move(grid));
      good.push_back(true);
    }
    good[at - first] = Place(grids[at], family.values[i], on, family.systems[i]) && good[at - first];
  }
  for (std::size_t at = grids.size(); at-- > first;) {
    const std::vector<std::size_t>& systems = grids[at].systems;
    if (!good[at - first] || std::find(systems.begin(), systems.end(), kNobody) != systems.end())
      grids.erase(grids.begin() + static_cast<std::ptrdiff_t>(at));
  }
}

}  // namespace

std::vector<LabGrid> GridsOf(const Experiment& experiment) {
  std::vector<LabGrid> grids;
  for (const Family& family : FamiliesOf(experiment)) AddGrids(family, grids);
  return grids;
}

HeatColour HeatColourOf(double share) {
  constexpr HeatColour kStops[] = {{0, 34, 78},     {53, 69, 108},   {102, 105, 112},
                                   {148, 142, 119}, {200, 184, 102}, {254, 232, 56}};
  constexpr int kSteps = static_cast<int>(std::size(kStops)) - 1;
  const double place = std::clamp(share, 0.0, 1.0) * kSteps;
  const int below = std::min(static_cast<int>(place), kSteps - 1);
  const double part = place - below;
  const HeatColour& a = kStops[below];
  const HeatColour& b = kStops[below + 1];
  const auto mix = [&](int from, int to) { return from + static_cast<int>(std::lround(part * (to - from))); };
  HeatColour colour{mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue), false};
  // Whichever of black and white stands out more.
  const auto linear = [](int value) { return std::pow(value / 255.0, 2.2); };
  colour.darkText =
      0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue) > 0.18;
  return colour;
}

double HeatShare(double value, double worst, double best) {
  return worst == best ? 0.5 : (value - worst) / (best - worst);
}

}  // namespace tessaryn
