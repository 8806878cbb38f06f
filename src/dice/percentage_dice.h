// Percentage dice: any joint distribution of the two dice, in one matrix that is shown, edited, saved and
// rolled from.
//
// Cells are named by row and column. The 36 ordered combinations make a pyramid, column = total - 1, rows 2
// to 7 - |6 - column|; the totals stand above it in row 1; columns 12 and 13, rows 2 to 7, are the faces of
// die 1 and die 2. Values are thousandths of a percent: 100,000 is certainty.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "state/generators_state.h"
#include "state/percentage_dice_state.h"

namespace tessaryn {

enum class ProbabilityCellKind { kNone, kTotal, kFace1, kFace2, kCombination };
ProbabilityCellKind KindOfProbabilityCell(int row, int column);

// The place of a combination in the pyramid, and what a place there means.
constexpr int ProbabilityColumn(int die1, int die2) { return die1 + die2 - 1; }
constexpr int ProbabilityRow(int die1, int die2) { return die1 + die2 < 8 ? die1 + 1 : 8 - die2; }
constexpr int ProbabilityDie1(int row, int column) { return column < 7 ? row - 1 : row + column - 7; }
constexpr int ProbabilityDie2(int row, int column) { return column < 7 ? column - row + 2 : 8 - row; }

inline constexpr const char* kProbabilityDisplayCaptions[4] = {
    " Show as percentage", " Show as +/- from true %",
    " Show as # rolls out of:", " Show as +/- from true rolls out of:"};

// To be called when ProbMatrix was changed by anything but the procedures below.
inline void ProbabilitiesChanged(PercentageDice& dice) { dice.DrawTable.Ready = false; }

// Turns percentage dice on or off. False, and off, if every combination is 0: then Msg::kNothingToRoll tells
// why.
bool ActivatePercentageDice(PercentageDice& dice, bool active);

// The dice for a draw of 1 or more. A draw above the sum of all combinations takes a new number from the
// runtime generator and walks on with the sum it has, so that (1,1) takes nearly all of these: a bias that
// belongs to the dice. A matrix of nothing but zeros rolls fair dice.
void DrawFromMatrix(PercentageDice& dice, Generators& generators, std::int32_t draw, int& die1, int& die2);
// How many of the kProbabilityWhole draws bring each combination (CombinationIndex): those beyond the whole are
// cut off the last ones of the walk, and what is missing to it goes to (1,1). That is exact unless more is
// missing than (1,1) has itself; then of the missing part as much as it is of the whole may belong elsewhere.
// All 0 for a matrix of nothing but zeros.
std::array<std::int32_t, 36> DrawChances(const PercentageDice& dice);

// Gives a cell a value, locks it, and shares out what that leaves: cells that are locked, or whose total or
// face is locked, keep their values; the others of the cell's group, and those outside it, get equal parts.
// raw: value is thousandths of a percent; else it is a thousand times a value of the display mode. The value
// is cut to the room there is. False if nothing is free to take up the difference, if the cell does not
// exist, or if value is no number: the cell keeps its old value (a cell that exists is locked all the same).
bool SetProbabilityCell(PercentageDice& dice, int row, int column, double value, bool raw);
// The text typed into a cell. False as above, and for a locked cell, which takes no typing.
bool EnterProbability(PercentageDice& dice, int row, int column, std::string_view text);
// The L key. False for a place that is no cell.
bool ToggleProbabilityLock(PercentageDice& dice, int row, int column);
bool IsProbabilityLocked(const PercentageDice& dice, int row, int column);
void UnlockAllProbabilities(PercentageDice& dice);
// The fair values; locks, mode and file name stay.
void ResetProbabilityMatrix(PercentageDice& dice);
// Fair, unlocked, in mode "Percentage Dice", untitled and with nothing to save. The caller has asked.
void NewProbabilityMatrix(PercentageDice& dice);

enum ProbabilityAxis : unsigned { kAxis16 = 1, kAxis25 = 2, kAxis34 = 4 };  // bits
inline constexpr const char* kAxisCaptions[3] = {" About the 1-6 axis", " About the 2-5 axis",
                                                 " About the 3-4 axis"};
// A shooter who keeps each die on an axis in so many percent of the rolls (0 to 100; above is 100, below 0).
// axes: bits of ProbabilityAxis. Unlocks everything first. An axis with no face left free is not entered.
void ApplyShooterEffectiveness(PercentageDice& dice, double percent1, unsigned axes1, double percent2,
                               unsigned axes2);

// The value of a cell in the display mode, and its text. 0 and "" for a place that is no cell.
double ShownProbability(const PercentageDice& dice, int row, int column);
std::string ProbabilityCellText(const PercentageDice& dice, int row, int column);
// "Percentage Dice" or "Free Form Dice"; the file's title or "untitled".
const char* PercentageDiceCaption(const PercentageDice& dice);
std::string ProbabilityTitle(const PercentageDice& dice);

// The chance of a roll item in percent: with fair dice to two decimals, or with the matrix. Totals and faces
// are read from their own cells. 100 for item 0 (any roll), 0 for an item that never comes.
float ProbabilityOfEvent(const PercentageDice& dice, int eventId, bool usePercentageDice);

// Saves under the path, which becomes ProbFileName, and clears ProbDirty. On failure error says why and the
// file that was there is whole.
bool SaveProbabilityFile(PercentageDice& dice, const std::string& path, std::string& error);
// Opens a file; a plain name is looked for in the folder. On failure dice is unchanged and error is
// Msg::kNotAProbabilityFile, Msg::kNothingToRoll, or the system's reason with the file's name.
bool OpenProbabilityFile(PercentageDice& dice, const std::string& path, const std::string& folder,
                         std::string& error);

inline constexpr const char* kProbabilityMagic = "Tessaryn Probability File, Data Format 4.6";
inline constexpr const char* kDefaultProbabilityFile = "default.prb";

}  // namespace tessaryn
