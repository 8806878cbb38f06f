// Editing percentage dice on a screen: the selected cell, ready sets of dice, and edits that can be taken
// back.
#pragma once

#include <span>
#include <vector>

#include "dice/percentage_dice.h"

namespace tessaryn {

struct ProbabilityCell {
  int row = 0;
  int column = 0;
  friend bool operator==(const ProbabilityCell&, const ProbabilityCell&) = default;
};

// The selected cell, which is kept in the matrix. A place that is no cell is not taken.
ProbabilityCell SelectedProbability(const PercentageDice& dice);
void SelectProbability(PercentageDice& dice, ProbabilityCell cell);

// By how much a cell differs from fair dice, in thousandths of a percent; 0 for one that is as fair as can be
// written.
double ProbabilityFromFair(const PercentageDice& dice, int row, int column);

// Gives all that is not locked, and belongs to nothing that is, equal shares again; the selected cell keeps
// its value and is locked. False as SetProbabilityCell.
bool EvenOutProbabilities(PercentageDice& dice);

// --- Ready sets.

struct ProbabilityPreset {
  const char* caption;
  void (*apply)(PercentageDice&);
};
std::span<const ProbabilityPreset> ProbabilityPresets();
// The dice of a preset, unlocked, still to be saved; the file's name stays.
void ApplyProbabilityPreset(PercentageDice& dice, const ProbabilityPreset& preset);

// --- Taking back.

struct ProbabilityEdits {
  struct Kept {
    ProbabilityCells cells{};
    bool dirty = false;
  };
  std::vector<Kept> undo;
  std::vector<Kept> redo;
};
inline constexpr std::size_t kMostProbabilityEdits = 200;

// To be called ahead of a change. One that comes to nothing is dropped by the next.
void KeepProbabilities(const PercentageDice& dice, ProbabilityEdits& edits);
// The dice as they are now are those of a file: what is brought back from now on differs from it.
void NoteProbabilitiesSaved(ProbabilityEdits& edits);
// False when there is nothing to take back, or to do again.
bool UndoProbabilities(PercentageDice& dice, ProbabilityEdits& edits);
bool RedoProbabilities(PercentageDice& dice, ProbabilityEdits& edits);

}  // namespace tessaryn
