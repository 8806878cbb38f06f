// Opens any bytes as a probability file. What opens must roll, and be the same after it was saved and opened
// again; what doesn't must leave the dice as they were.
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "fuzz_support.h"

using namespace tessaryn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  PercentageDice dice;
  std::string error;
  if (!OpenProbabilityFile(dice, folder.Write("in.prb", data, size), "", error)) {
    fuzz::Require(!error.empty(), "refused without a reason");
    fuzz::Require(dice.ProbMatrix == FairProbabilities(), "a refused file changed the dice");
    return 0;
  }
  Generators generators;
  StartGenerators(generators, 1);
  fuzz::Require(ActivatePercentageDice(dice, true), "an opened file can't be rolled from");
  for (std::int32_t draw = 1; draw <= 110'000; draw += 5'003) {
    int die1 = 0;
    int die2 = 0;
    DrawFromMatrix(dice, generators, draw, die1, die2);
    fuzz::Require(die1 >= 1 && die1 <= 6 && die2 >= 1 && die2 <= 6, "no dice");
  }
  // Every cell takes a value without the matrix going beyond certainty.
  if (size > 0) {
    SetProbabilityCell(dice, data[size - 1] % kProbabilityRows, data[size / 2] % kProbabilityColumns,
                       data[size / 3] * 500.0, true);
    ToggleProbabilityLock(dice, data[size / 2] % kProbabilityRows, data[size / 3] % kProbabilityColumns);
  }
  const std::string saved = folder.Name("out.prb");
  PercentageDice again;
  fuzz::Require(SaveProbabilityFile(dice, saved, error), error);
  if (!OpenProbabilityFile(again, saved, "", error)) return 0;  // all zeros after the edit
  fuzz::Require(again.ProbMatrix == dice.ProbMatrix, "saved and opened, the matrix is another");
  return 0;
}
