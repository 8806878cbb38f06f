#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "cli/commands.h"
#include "cli/table_json.h"
#include "dice/percentage_dice.h"

namespace tessaryn::cli {
namespace {

// One operation of the command line, in the order given.
struct DiceStep {
  std::string name;   // "--set" ...
  std::string value;  // "1.6=4000" ...
};

struct ProbabilityOptions {
  std::string file;
  std::string out;
  std::vector<DiceStep> operations;
  double rollsOutOf = 36;
  bool json = false;
  bool force = false;
};

// What stands between the operations.
struct Workshop {
  PercentageDice dice;
  bool edited = false;
  bool json = false;
  // The axes wait for their effectiveness: both dice are set together.
  double effectiveness[2] = {0, 0};
  unsigned axes[2] = {0, 0};
  std::string error;

  bool Bad(const DiceStep& operation, const std::string& what) {
    error = operation.name + (operation.value.empty() ? "" : " " + operation.value) + ": " + what;
    return false;
  }
};

// "LEFT=VALUE", the value in thousandths of a percent, or with % in percent.
bool SplitAssignment(const std::string& text, std::string& left, double& value) {
  const auto equals = text.find('=');
  if (equals == std::string::npos || equals == 0) return false;
  left = text.substr(0, equals);
  std::string number = text.substr(equals + 1);
  const bool percent = !number.empty() && number.back() == '%';
  if (percent) number.pop_back();
  Currency amount;
  if (!TryParseMoney(number, amount)) return false;
  value = amount.ToDouble() * (percent ? 1000 : 1);
  return value >= 0 && value <= kProbabilityWhole;
}

bool EditCell(Workshop& work, const DiceStep& operation, int row, int column, double value) {
  if (IsProbabilityLocked(work.dice, row, column))
    return work.Bad(operation, "the cell is locked; --unlock unlocks all");
  if (!SetProbabilityCell(work.dice, row, column, value, true))
    return work.Bad(operation, "impossible: what is locked leaves no room for the rest");
  work.edited = true;
  return true;
}

constexpr const char* kValueForm =
    "the value is 0 to 100000 thousandths of a percent, or a percentage such as 4%";

bool SetCombination(Workshop& work, const DiceStep& operation) {
  std::string faces;
  double value = 0;
  if (!SplitAssignment(operation.value, faces, value)) return work.Bad(operation, kValueForm);
  const auto isFace = [](char c) { return c >= '1' && c <= '6'; };
  if (faces.size() != 3 || faces[1] != '.' || !isFace(faces[0]) || !isFace(faces[2]))
    return work.Bad(operation, "expected DIE1.DIE2=VALUE, such as 1.6=4000");
  const int die1 = faces[0] - '0';
  const int die2 = faces[2] - '0';
  return EditCell(work, operation, ProbabilityRow(die1, die2), ProbabilityColumn(die1, die2), value);
}

bool SetTotal(Workshop& work, const DiceStep& operation) {
  std::string text;
  double value = 0;
  if (!SplitAssignment(operation.value, text, value)) return work.Bad(operation, kValueForm);
  const int total = std::atoi(text.c_str());
  if (total < 2 || total > 12 || text != std::to_string(total))
    return work.Bad(operation, "expected TOTAL=VALUE with a total 2 to 12");
  return EditCell(work, operation, kTotalRow, total - 1, value);
}

bool SetFace(Workshop& work, const DiceStep& operation) {
  std::string text;
  double value = 0;
  if (!SplitAssignment(operation.value, text, value)) return work.Bad(operation, kValueForm);
  if (text.size() != 1 || text[0] < '1' || text[0] > '6')
    return work.Bad(operation, "expected FACE=VALUE with a face 1 to 6");
  const int column = operation.name == "--face1" ? kDie1Column : kDie2Column;
  return EditCell(work, operation, text[0] - '0' + 1, column, value);
}

bool SetAxis(Workshop& work, const DiceStep& operation) {
  constexpr const char* kNames[] = {"1-6", "2-5", "3-4"};
  const int die = operation.name.back() - '1';
  for (unsigned axis = 0; axis < 3; ++axis) {
    if (operation.value != kNames[axis]) continue;
    work.axes[die] |= 1u << axis;
    return true;
  }
  return work.Bad(operation, "an axis is 1-6, 2-5 or 3-4");
}

bool SetEffectiveness(Workshop& work, const DiceStep& operation) {
  const int die = operation.name.back() - '1';
  Currency percent;
  if (!TryParseMoney(operation.value, percent) || percent < kZero || percent > Currency::Dollars(100))
    return work.Bad(operation, "the effectiveness is 0 to 100 percent");
  if (work.axes[die] == 0) return work.Bad(operation, "name the axis first, such as --axis1 1-6");
  work.effectiveness[die] = percent.ToDouble();
  ApplyShooterEffectiveness(work.dice, work.effectiveness[0], work.axes[0], work.effectiveness[1],
                            work.axes[1]);
  work.edited = true;
  return true;
}

Json CellsJson(const PercentageDice& dice) {
  const auto cell = [&dice](int row, int column) {
    Json value{{"value", dice.ProbMatrix[1][row][column]}, {"shown", ProbabilityCellText(dice, row, column)}};
    if (IsProbabilityLocked(dice, row, column)) value["locked"] = true;
    return value;
  };
  Json combinations = Json::object();
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2)
      combinations[std::to_string(die1) + "." + std::to_string(die2)] =
          cell(ProbabilityRow(die1, die2), ProbabilityColumn(die1, die2));
  Json totals = Json::object();
  for (int total = 2; total <= 12; ++total) totals[std::to_string(total)] = cell(kTotalRow, total - 1);
  Json faces1 = Json::object();
  Json faces2 = Json::object();
  for (int face = 1; face <= 6; ++face) {
    faces1[std::to_string(face)] = cell(face + 1, kDie1Column);
    faces2[std::to_string(face)] = cell(face + 1, kDie2Column);
  }
  return {{"kind", PercentageDiceCaption(dice)},
          {"combinations", combinations},
          {"totals", totals},
          {"face1", faces1},
          {"face2", faces2}};
}

void PrintMatrix(const PercentageDice& dice) {
  const auto cell = [&dice](int row, int column) {
    return ProbabilityCellText(dice, row, column) + (IsProbabilityLocked(dice, row, column) ? "*" : " ");
  };
  std::printf("%s%s\n\n%6s", PercentageDiceCaption(dice), "   (* locked)", "");
  for (int die2 = 1; die2 <= 6; ++die2) std::printf("%11s%d", "die 2: ", die2);
  std::printf("%12s\n", "die 1");
  for (int die1 = 1; die1 <= 6; ++die1) {
    std::printf("%4s %d", "", die1);
    for (int die2 = 1; die2 <= 6; ++die2)
      std::printf("%12s", cell(ProbabilityRow(die1, die2), ProbabilityColumn(die1, die2)).c_str());
    std::printf("%12s\n", cell(die1 + 1, kDie1Column).c_str());
  }
  std::printf("%6s", "die 2");
  for (int die2 = 1; die2 <= 6; ++die2) std::printf("%12s", cell(die2 + 1, kDie2Column).c_str());
  std::printf("\n\n");
  for (int total = 2; total <= 12; ++total)
    std::printf("%4d %12s\n", total, cell(kTotalRow, total - 1).c_str());
}

bool Show(Workshop& work, const DiceStep& operation) {
  constexpr const char* kModes[] = {"percent", "difference", "rolls", "rollsdifference"};
  for (int mode = 0; mode < 4; ++mode) {
    if (operation.value != kModes[mode]) continue;
    work.dice.ProbDisplayMode = mode;
    if (work.json)
      std::printf("%s\n", CellsJson(work.dice).dump().c_str());
    else
      PrintMatrix(work.dice);
    return true;
  }
  return work.Bad(operation, "expected percent, difference, rolls or rollsdifference");
}

bool StartNew(Workshop& work, const DiceStep&) {
  NewProbabilityMatrix(work.dice);
  work.edited = true;
  return true;
}

bool Unlock(Workshop& work, const DiceStep&) {
  UnlockAllProbabilities(work.dice);
  work.edited = true;
  return true;
}

struct DiceOperation {
  const char* name;
  const char* help;
  bool takesValue;
  bool (*run)(Workshop&, const DiceStep&);
};

constexpr DiceOperation kDiceOperations[] = {
    {"--new", "Start with fair dice", false, StartNew},
    {"--set", "A combination, DIE1.DIE2=VALUE in thousandths of a percent", true, SetCombination},
    {"--total", "A total, TOTAL=VALUE", true, SetTotal},
    {"--face1", "A face of die 1, FACE=VALUE", true, SetFace},
    {"--face2", "A face of die 2, FACE=VALUE", true, SetFace},
    {"--axis1", "An axis of die 1: 1-6, 2-5 or 3-4", true, SetAxis},
    {"--axis2", "An axis of die 2", true, SetAxis},
    {"--effectiveness1", "The shooter's effectiveness about die 1's axes, percent", true, SetEffectiveness},
    {"--effectiveness2", "The same for die 2", true, SetEffectiveness},
    {"--unlock", "Unlock all cells", false, Unlock},
    {"--show", "Show the matrix: percent, difference, rolls or rollsdifference", true, Show},
};

bool RunOperation(Workshop& work, const DiceStep& operation) {
  for (const DiceOperation& kind : kDiceOperations)
    if (operation.name == kind.name) return kind.run(work, operation);
  return false;
}

// A file with something else in it, which a wrong name would lose.
bool IsOtherFile(const std::string& path) {
  std::error_code fault;
  if (!std::filesystem::is_regular_file(path, fault) || std::filesystem::file_size(path, fault) == 0)
    return false;
  PercentageDice present;
  std::string error;
  return !OpenProbabilityFile(present, path, "", error);
}

int Probabilities(const ProbabilityOptions& options) {
  Workshop work;
  work.json = options.json;
  work.dice.ProbRollsOutOf = options.rollsOutOf;
  const bool startsNew = !options.operations.empty() && options.operations.front().name == "--new";
  std::string error;
  std::error_code fault;
  if (!startsNew && !std::filesystem::exists(options.file, fault) && !fault)
    return Fail(options.file + ": File not found (--new makes one)");
  if (!startsNew && !OpenProbabilityFile(work.dice, options.file, "", error))
    return Fail(options.file + ": " + error);
  for (const DiceStep& operation : options.operations)
    if (!RunOperation(work, operation)) return Fail(work.error);
  const std::string target = options.out.empty() ? options.file : options.out;
  const bool writes = work.edited || !options.out.empty();
  if (writes && !options.force && IsOtherFile(target))
    return Fail(target + ": is there and is no probability file; --force replaces it");
  if (writes && !SaveProbabilityFile(work.dice, target, error)) return Fail(error);
  if (options.operations.empty()) Show(work, {"--show", "percent"});
  return kDone;
}

}  // namespace

void AddProbabilitiesCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<ProbabilityOptions>();
  CLI::App* command = program.add_subcommand(
      "probabilities", "Makes, shows and edits loaded dice; operations in the order given");
  command->add_option("FILE", options->file, "The probability file (.prb)")->required();
  for (const DiceOperation& kind : kDiceOperations) {
    const std::string name = kind.name;
    if (kind.takesValue)
      command
          ->add_option_function<std::string>(
              name,
              [options, name](const std::string& value) {
                options->operations.push_back({name, value});
              },
              kind.help)
          ->trigger_on_parse();
    else
      command
          ->add_flag_callback(
              name,
              [options, name] {
                options->operations.push_back({name, ""});
              },
              kind.help)
          ->trigger_on_parse();
  }
  command->add_option("--out-of", options->rollsOutOf, "Rolls that --show rolls counts in (default 36)")
      ->check(CLI::Range(1.0, 1e9));
  command->add_option("--out", options->out, "Write to this file instead");
  command->add_flag("--force", options->force, "Replace a file that is no probability file");
  command->add_flag("--json", options->json, "Show as JSON");
  command->footer(
      "Example:\n  tessaryn-cli probabilities loaded.prb --new --total 7=12000 --set 1.6=4% --show "
      "difference");
  command->callback([options, &exitCode] { exitCode = Probabilities(*options); });
}

}  // namespace tessaryn::cli
