#include <charconv>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "cli/cli_host.h"
#include "cli/commands.h"
#include "cli/script_commands.h"
#include "cli/table_json.h"
#include "dice/roll_file.h"

namespace tessaryn::cli {
namespace {

struct Operation {
  std::string name;
  std::string value;
};

struct RollsOptions {
  std::string file;
  std::string dataFolder;
  std::string format = kDefaultRollFormat;
  bool renumber = false;
  bool json = false;
  std::vector<Operation> operations;
};

struct Workbench {
  RollFile file;
  std::string folder;  // of the work files
  bool renumber = false;
  std::string error;

  // Nothing wrong when text is empty.
  bool Done(const Operation& operation, const std::string& text) {
    if (!text.empty()) error = operation.name + " " + operation.value + ": " + text;
    return text.empty();
  }
};

bool ReadPosition(const std::string& text, std::int32_t& position) {
  const char* last = text.data() + text.size();
  const auto [end, fault] = std::from_chars(text.data(), last, position);
  return fault == std::errc() && end == last && position >= 1;
}

// "A-B" or "A" as the selection. The error is a text.
std::string Select(RollFile& file, const std::string& range) {
  const auto dash = range.find('-');
  std::int32_t first = 0;
  std::int32_t last = 0;
  if (!ReadPosition(range.substr(0, dash), first)) return "expected a roll number or a range such as 5-9";
  last = first;
  if (dash != std::string::npos && !ReadPosition(range.substr(dash + 1), last))
    return "expected a range such as 5-9";
  if (last < first) std::swap(first, last);
  if (last > RollFileLength(file)) return "the file has " + std::to_string(RollFileLength(file)) + " rolls";
  SetRollFileCursor(file, first);
  file.RollFileSelectEnd = last;
  return "";
}

std::string PutCursor(RollFile& file, const std::string& text) {
  std::int32_t position = 0;
  if (!ReadPosition(text, position)) return "expected a roll number";
  if (position > RollFileLength(file) + 1)
    return "the file has " + std::to_string(RollFileLength(file)) + " rolls";
  SetRollFileCursor(file, position);
  return "";
}

bool Cut(Workbench& bench, const Operation& operation) {
  std::string problem = Select(bench.file, operation.value);
  if (problem.empty()) problem = CutRolls(bench.file, bench.folder);
  return bench.Done(operation, problem);
}
bool Copy(Workbench& bench, const Operation& operation) {
  std::string problem = Select(bench.file, operation.value);
  if (problem.empty()) problem = CopyRolls(bench.file, bench.folder);
  return bench.Done(operation, problem);
}
bool Delete(Workbench& bench, const Operation& operation) {
  std::string problem = Select(bench.file, operation.value);
  if (problem.empty()) problem = DeleteRolls(bench.file);
  return bench.Done(operation, problem);
}
bool Paste(Workbench& bench, const Operation& operation) {
  std::string problem = PutCursor(bench.file, operation.value);
  if (problem.empty()) problem = PasteCopiedRolls(bench.file, bench.folder);
  return bench.Done(operation, problem);
}
bool Export(Workbench& bench, const Operation& operation) {
  if (!IsRollFormatUsable(bench.file.RollFileOutputFormat)) return bench.Done(operation, kNoDiceInFormatText);
  SelectAllRolls(bench.file);
  return bench.Done(operation, CopyRollsToTextFile(bench.file, operation.value, bench.renumber));
}
bool ExportRolls(Workbench& bench, const Operation& operation) {
  SelectAllRolls(bench.file);
  return bench.Done(operation, CopyRollsToRollFile(bench.file, operation.value));
}
bool ImportText(Workbench& bench, const Operation& operation) {
  SetRollFileCursor(bench.file, RollFileLength(bench.file) + std::int64_t{1});
  return bench.Done(operation, PasteFromTextFile(bench.file, operation.value, bench.folder));
}
bool ImportRolls(Workbench& bench, const Operation& operation) {
  SetRollFileCursor(bench.file, RollFileLength(bench.file) + std::int64_t{1});
  return bench.Done(operation, PasteFromRollFile(bench.file, operation.value));
}

// Whether a text is D1.D2,D1.D2 ...; the problem is a text.
std::string CheckRollList(const std::string& rolls) {
  const auto isFace = [](char c) { return c >= '1' && c <= '6'; };
  for (std::size_t at = 0; at == 0 || at <= rolls.size(); at += 4) {
    const bool roll =
        at + 3 <= rolls.size() && isFace(rolls[at]) && rolls[at + 1] == '.' && isFace(rolls[at + 2]);
    const bool parted = at + 3 == rolls.size() || (at + 3 < rolls.size() && rolls[at + 3] == ',');
    if (!roll || !parted) return "\"" + rolls.substr(at) + "\" is no roll such as 3.4";
    if (at + 3 == rolls.size()) break;
  }
  return "";
}

// AT=D1.D2,D1.D2 ... A list with a fault inserts none of its rolls.
bool Insert(Workbench& bench, const Operation& operation) {
  const auto equals = operation.value.find('=');
  if (equals == std::string::npos) return bench.Done(operation, "expected AT=DIE1.DIE2, such as 1=3.4,6.6");
  const std::string rolls = operation.value.substr(equals + 1);
  std::string problem = CheckRollList(rolls);
  if (problem.empty()) problem = PutCursor(bench.file, operation.value.substr(0, equals));
  bench.file.RollFileInsertMode = true;
  for (std::size_t at = 0; problem.empty() && at < rolls.size(); at += 4)
    problem = EnterRoll(bench.file, rolls[at] - '0', rolls[at + 2] - '0');
  return bench.Done(operation, problem);
}

struct OperationKind {
  const char* name;
  const char* help;
  bool (*run)(Workbench&, const Operation&);
};
constexpr OperationKind kKinds[] = {
    {"--cut", "Cut rolls A-B for --paste", Cut},
    {"--copy", "Copy rolls A-B for --paste", Copy},
    {"--delete", "Delete rolls A-B", Delete},
    {"--paste", "Paste what was cut or copied at roll AT", Paste},
    {"--insert", "Insert rolls, AT=DIE1.DIE2,DIE1.DIE2", Insert},
    {"--import-text", "Append the dice of a text file", ImportText},
    {"--import", "Append another roll file", ImportRolls},
    {"--export", "Write all rolls to a text file by --format", Export},
    {"--export-rolls", "Write all rolls to another roll file", ExportRolls},
};

struct Distribution {
  std::int64_t rolls = 0;
  std::int64_t bad = 0;  // bytes that are no roll
  std::int64_t pairs[7][7] = {};
  std::int64_t totals[13] = {};
};

// Block by block: a file may hold more rolls than memory.
std::string Count(RollFile& file, Distribution& counts) {
  constexpr std::int32_t kBlock = 1 << 20;
  std::vector<unsigned char> block;
  for (std::int64_t at = 1; at <= RollFileLength(file); at += kBlock) {
    if (Interrupted()) return SignalReason();
    const std::string problem = ReadRolls(file, static_cast<std::int32_t>(at), kBlock, block);
    if (!problem.empty()) return problem;
    for (const unsigned char roll : block) {
      ++counts.rolls;
      if (!CheckRollValue(roll)) {
        ++counts.bad;
        continue;
      }
      ++counts.pairs[RollByteDie1(roll)][RollByteDie2(roll)];
      ++counts.totals[RollByteDie1(roll) + RollByteDie2(roll)];
    }
  }
  return "";
}

void Print(const Distribution& counts, bool json) {
  Json totals = Json::object();
  Json pairs = Json::object();
  for (int total = 2; total <= 12; ++total) totals[std::to_string(total)] = counts.totals[total];
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2)
      pairs[std::to_string(die1) + "." + std::to_string(die2)] = counts.pairs[die1][die2];
  if (json) {
    std::printf(
        "%s\n",
        Json{{"rolls", counts.rolls}, {"outOfLimits", counts.bad}, {"totals", totals}, {"pairs", pairs}}
            .dump()
            .c_str());
    return;
  }
  std::printf("%s rolls\n", FormatMoney(Currency::Dollars(counts.rolls)).c_str());
  if (counts.bad > 0)
    std::printf("%s values out of limits\n", FormatMoney(Currency::Dollars(counts.bad)).c_str());
  for (int total = 2; total <= 12 && counts.rolls > 0; ++total)
    std::printf("%4d %14s %8.3f%%\n", total, FormatMoney(Currency::Dollars(counts.totals[total])).c_str(),
                100.0 * static_cast<double>(counts.totals[total]) / static_cast<double>(counts.rolls));
}

// The operations, and what the file then holds. The error is a text.
std::string Work(Workbench& bench, const RollsOptions& options, Distribution& counts) {
  bench.file.RollFileOutputFormat = options.format;
  for (const Operation& operation : options.operations)
    for (const OperationKind& kind : kKinds)
      if (operation.name == kind.name && !kind.run(bench, operation)) return bench.error;
  if (const std::string error = Count(bench.file, counts); !error.empty()) return error;
  return CloseRollFile(bench.file);
}

int Rolls(const RollsOptions& options) {
  Workbench bench;
  bench.folder = options.dataFolder;
  bench.renumber = options.renumber;
  std::string error;
  if (!PrepareDataFolder(bench.folder, error)) return Fail(error);
  const bool isNew = !std::filesystem::exists(options.file);
  if (isNew && options.operations.empty()) return Fail(options.file + ": File not found");
  error = OpenRollFile(bench.file, options.file);
  if (!error.empty()) return Fail(AsLines(error));
  Distribution counts;
  error = Work(bench, options, counts);
  if (!error.empty()) {
    // A file that was made for operations that failed is not left behind.
    std::error_code ignored;
    if (isNew) std::filesystem::remove(options.file, ignored);
    return Fail(AsLines(error));
  }
  Print(counts, options.json);
  if (counts.bad == 0) return kDone;
  return Fail(options.file + ": " + std::to_string(counts.bad) +
              " values out of limits; playback would stop there");
}

}  // namespace

void AddRollsCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<RollsOptions>();
  CLI::App* command = program.add_subcommand(
      "rolls", "Counts, checks and edits recorded dice; operations in the order given");
  command->add_option("FILE", options->file, "The dice roll file (.rol)")->required();
  for (const OperationKind& kind : kKinds) {
    const std::string name = kind.name;
    command
        ->add_option_function<std::string>(
            name,
            [options, name](const std::string& value) {
              options->operations.push_back({name, value});
            },
            kind.help)
        ->trigger_on_parse();
  }
  command->add_option("--format", options->format, "Of --export: text with Roll#, Die1, Die2 and Total");
  command->add_flag("--renumber", options->renumber, "The first exported roll counts as #1");
  command->add_option("--data-folder", options->dataFolder, "Folder of the work files");
  command->add_flag("--json", options->json, "Print one JSON object");
  command->footer(
      "Example:\n  tessaryn-cli rolls game.rol --delete 1-10 --export game.txt --format \"Die1 Die2\"");
  command->callback([options, &exitCode] { exitCode = Rolls(*options); });
}

}  // namespace tessaryn::cli
