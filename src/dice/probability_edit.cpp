#include "dice/probability_edit.h"

#include <utility>

namespace tessaryn {
namespace {

constexpr double kShooterPercent = 10;  // of the rolls in which a practised shooter keeps the axis

void Fair(PercentageDice&) {}
void OneAxis(PercentageDice& dice) {
  ApplyShooterEffectiveness(dice, kShooterPercent, kAxis16, kShooterPercent, kAxis16);
}
void LoadedSixes(PercentageDice& dice) {
  SetProbabilityCell(dice, 7, kDie1Column, 20'000, true);
  SetProbabilityCell(dice, 7, kDie2Column, 20'000, true);
}
void MoreSevens(PercentageDice& dice) { SetProbabilityCell(dice, kTotalRow, 6, 18'000, true); }
void FewerSevens(PercentageDice& dice) { SetProbabilityCell(dice, kTotalRow, 6, 15'000, true); }

constexpr ProbabilityPreset kPresets[] = {{"Fair dice", Fair},
                                          {"Shooter on the 1-6 axis, 10%", OneAxis},
                                          {"Loaded dice, 20% sixes", LoadedSixes},
                                          {"18% sevens", MoreSevens},
                                          {"15% sevens", FewerSevens}};

// But for the selected cell.
bool IsSame(const ProbabilityCells& cells, const PercentageDice& dice) {
  ProbabilityCells other = cells;
  other[0][0] = dice.ProbMatrix[0][0];
  other[0][0][0] = cells[0][0][0];
  return other == dice.ProbMatrix;
}

bool Restore(PercentageDice& dice, std::vector<ProbabilityEdits::Kept>& from,
             std::vector<ProbabilityEdits::Kept>& to) {
  while (!from.empty() && IsSame(from.back().cells, dice)) from.pop_back();
  if (from.empty()) return false;
  to.push_back({dice.ProbMatrix, dice.ProbDirty});
  dice.ProbMatrix = from.back().cells;
  dice.ProbDirty = from.back().dirty;
  from.pop_back();
  ProbabilitiesChanged(dice);
  return true;
}

}  // namespace

ProbabilityCell SelectedProbability(const PercentageDice& dice) {
  const auto& row = dice.ProbMatrix[0][0];
  return {row[1], row[2]};
}

void SelectProbability(PercentageDice& dice, ProbabilityCell cell) {
  if (KindOfProbabilityCell(cell.row, cell.column) == ProbabilityCellKind::kNone) return;
  dice.ProbMatrix[0][0][1] = cell.row;
  dice.ProbMatrix[0][0][2] = cell.column;
}

double ProbabilityFromFair(const PercentageDice& dice, int row, int column) {
  PercentageDice shown;
  shown.ProbMatrix = dice.ProbMatrix;
  shown.ProbDisplayMode = kShowFromTruePercentage;
  const std::int32_t fair = FairProbabilities()[1][row][column];
  return dice.ProbMatrix[1][row][column] == fair ? 0 : ShownProbability(shown, row, column) * 1000;
}

bool EvenOutProbabilities(PercentageDice& dice) {
  const ProbabilityCell cell = SelectedProbability(dice);
  return SetProbabilityCell(dice, cell.row, cell.column, dice.ProbMatrix[1][cell.row][cell.column], true);
}

std::span<const ProbabilityPreset> ProbabilityPresets() { return kPresets; }

void ApplyProbabilityPreset(PercentageDice& dice, const ProbabilityPreset& preset) {
  std::string file = std::move(dice.ProbFileName);
  NewProbabilityMatrix(dice);
  dice.ProbFileName = std::move(file);
  preset.apply(dice);
  UnlockAllProbabilities(dice);
  dice.ProbDirty = true;
}

void KeepProbabilities(const PercentageDice& dice, ProbabilityEdits& edits) {
  edits.redo.clear();
  if (!edits.undo.empty() && IsSame(edits.undo.back().cells, dice)) return;
  if (edits.undo.size() == kMostProbabilityEdits) edits.undo.erase(edits.undo.begin());
  edits.undo.push_back({dice.ProbMatrix, dice.ProbDirty});
}

void NoteProbabilitiesSaved(ProbabilityEdits& edits) {
  for (auto* list : {&edits.undo, &edits.redo})
    for (ProbabilityEdits::Kept& kept : *list) kept.dirty = true;
}

bool UndoProbabilities(PercentageDice& dice, ProbabilityEdits& edits) {
  return Restore(dice, edits.undo, edits.redo);
}
bool RedoProbabilities(PercentageDice& dice, ProbabilityEdits& edits) {
  return Restore(dice, edits.redo, edits.undo);
}

}  // namespace tessaryn
