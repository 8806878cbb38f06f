#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <deque>
#include <filesystem>
#include <memory>

#include "base/folder_lock.h"
#include "base/messages.h"
#include "base/record_file.h"
#include "cli/cli_host.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/script_commands.h"
#include "cli/script_report.h"
#include "cli/table_json.h"
#include "dice/roll_file.h"

namespace tessaryn::cli {
namespace {

struct RollsStep {
  std::string name;
  std::string value;
};

struct RollsOptions {
  std::string file;
  std::string dataFolder;
  std::string format = kDefaultRollFormat;
  bool renumber = false;
  bool json = false;
  std::vector<RollsStep> operations;
};

// Operations change a work file, and copies wait beside their targets: when all has gone well they are put in
// place one after the other, and when one has failed nothing has changed.
struct Workbench {
  RollFile file;
  std::string path;  // of the file that was asked for
  FolderLock lock;
  std::string folder;  // of the work files
  std::deque<FileReplacement> copies;
  std::string selection;  // what is exported; empty: all
  bool renumber = false;
  std::string error;

  // Nothing wrong when text is empty.
  bool Done(const RollsStep& operation, const std::string& text) {
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

bool Cut(Workbench& bench, const RollsStep& operation) {
  std::string problem = Select(bench.file, operation.value);
  if (problem.empty()) problem = CutRolls(bench.file, bench.folder);
  return bench.Done(operation, problem);
}
bool Copy(Workbench& bench, const RollsStep& operation) {
  std::string problem = Select(bench.file, operation.value);
  if (problem.empty()) problem = CopyRolls(bench.file, bench.folder);
  return bench.Done(operation, problem);
}
bool Delete(Workbench& bench, const RollsStep& operation) {
  std::string problem = Select(bench.file, operation.value);
  if (problem.empty()) problem = DeleteRolls(bench.file);
  return bench.Done(operation, problem);
}
bool Paste(Workbench& bench, const RollsStep& operation) {
  std::string problem = PutCursor(bench.file, operation.value);
  if (problem.empty()) problem = PasteCopiedRolls(bench.file, bench.folder);
  return bench.Done(operation, problem);
}
// The file may not be there yet, so that only its name can tell.
bool IsSamePlace(const std::string& path, const std::string& other) {
  namespace fs = std::filesystem;
  std::error_code fault;
  const fs::path first = fs::weakly_canonical(fs::absolute(path, fault), fault);
  if (fault) return false;
  return IsSameFile(path, other) || first == fs::weakly_canonical(fs::absolute(other, fault), fault);
}

bool SelectPart(Workbench& bench, const RollsStep& operation) {
  bench.selection = operation.value;
  return bench.Done(operation, Select(bench.file, operation.value));
}

// What both exports begin with: the rolls to be written, and a place for them.
std::string PrepareExport(Workbench& bench, const RollsStep& operation) {
  if (IsSamePlace(operation.value, bench.path))
    return MessageText<Msg::kCopyToOpenFile>(With<"command">(operation.name));
  bench.copies.emplace_back();
  if (!bench.selection.empty()) return Select(bench.file, bench.selection);
  SelectAllRolls(bench.file);
  return "";
}
bool Export(Workbench& bench, const RollsStep& operation) {
  std::string problem = PrepareExport(bench, operation);
  if (problem.empty())
    problem = DraftTextFile(bench.file, operation.value, bench.renumber, bench.copies.back());
  return bench.Done(operation, problem);
}
bool ExportRolls(Workbench& bench, const RollsStep& operation) {
  std::string problem = PrepareExport(bench, operation);
  if (problem.empty()) problem = DraftRollFile(bench.file, operation.value, bench.copies.back());
  return bench.Done(operation, problem);
}

// A file that was exported before is read as it is going to be.
std::string ImportPath(const Workbench& bench, const std::string& path) {
  for (auto copy = bench.copies.rbegin(); copy != bench.copies.rend(); ++copy)
    if (copy->Path == path && !copy->Temporary.empty()) return copy->Temporary;
  return path;
}
bool ImportText(Workbench& bench, const RollsStep& operation) {
  SetRollFileCursor(bench.file, RollFileLength(bench.file) + std::int64_t{1});
  const std::string path = ImportPath(bench, operation.value);
  return bench.Done(operation, PasteFromTextFile(bench.file, path, bench.folder));
}
bool ImportRolls(Workbench& bench, const RollsStep& operation) {
  if (IsSamePlace(operation.value, bench.path))
    return bench.Done(operation, MessageText<Msg::kCopyToOpenFile>(With<"command">("--import")));
  SetRollFileCursor(bench.file, RollFileLength(bench.file) + std::int64_t{1});
  return bench.Done(operation, PasteFromRollFile(bench.file, ImportPath(bench, operation.value)));
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
bool Insert(Workbench& bench, const RollsStep& operation) {
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

struct RollsOperation {
  const char* name;
  const char* help;
  bool changes;  // the file; the others leave it as it is
  bool (*run)(Workbench&, const RollsStep&);
};
constexpr RollsOperation kRollsOperations[] = {
    {"--cut", "Cut rolls A-B for --paste", true, Cut},
    {"--copy", "Copy rolls A-B for --paste", false, Copy},
    {"--delete", "Delete rolls A-B", true, Delete},
    {"--paste", "Paste what was cut or copied at roll AT", true, Paste},
    {"--insert", "Insert rolls, AT=DIE1.DIE2,DIE1.DIE2", true, Insert},
    {"--import-text", "Append the dice of a text file", true, ImportText},
    {"--import", "Append another roll file", true, ImportRolls},
    {"--select", "Rolls A-B are what is exported", false, SelectPart},
    {"--export", "Write the rolls to a text file by --format", false, Export},
    {"--export-rolls", "Write the rolls to another roll file", false, ExportRolls},
};

const RollsOperation& RowOf(const RollsStep& operation) {
  return *std::find_if(std::begin(kRollsOperations), std::end(kRollsOperations),
                       [&](const RollsOperation& kind) { return operation.name == kind.name; });
}

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
  for (const RollsStep& operation : options.operations)
    if (!RowOf(operation).run(bench, operation)) return bench.error;
  return Count(bench.file, counts);
}

// Work on a copy, which takes the place of the file at the end. original is open when there is a file.
std::string Change(Workbench& bench, const RollsOptions& options, RollFile& original, Distribution& counts) {
  const std::string copy = bench.folder + kRollWorkFile;
  unlink(copy.c_str());
  bench.file.Durable = false;
  std::string error;
  if (IsRollFileOpen(original)) {
    // Nobody else is to change it meanwhile.
    error = SetRecorderState(original, kRecorderRecord);
    SelectAllRolls(original);
    if (error.empty()) error = CopyRollsToRollFile(original, copy);
  }
  if (error.empty()) error = OpenRollFile(bench.file, copy);
  if (error.empty()) error = Work(bench, options, counts);
  if (!error.empty()) return error;
  if (IsRollFileOpen(original)) return ReplaceRolls(original, copy);
  SelectAllRolls(bench.file);
  return CopyRollsToRollFile(bench.file, options.file);
}

std::string WorkAndPutInPlace(Workbench& bench, const RollsOptions& options, Distribution& counts) {
  const bool changes = std::any_of(options.operations.begin(), options.operations.end(),
                                   [](const RollsStep& operation) { return RowOf(operation).changes; });
  std::error_code fault;
  const bool isThere = std::filesystem::exists(options.file, fault);
  if (!isThere && !fault && !changes) return NotFound(options.file);
  const auto original = std::make_unique<RollFile>();
  RollFile& opened = changes ? *original : bench.file;
  std::string error = isThere || fault ? OpenRollFile(opened, options.file) : "";
  if (error.empty()) error = changes ? Change(bench, options, opened, counts) : Work(bench, options, counts);
  for (FileReplacement& copy : bench.copies)
    if (error.empty()) error = CommitReplacement(copy);
  return error;
}

int Rolls(const RollsOptions& options) {
  Workbench bench;
  bench.path = options.file;
  bench.folder = options.dataFolder;
  bench.renumber = options.renumber;
  std::string error;
  if (!PrepareDataFolder(bench.folder, error)) return Fail(error);
  // Nothing stays there, so that nobody needs to be told of the place.
  ClaimDataFolder(bench.lock, bench.folder, "tessaryn-cli rolls");
  Distribution counts;
  error = WorkAndPutInPlace(bench, options, counts);
  for (const char* name : {kRollCopyFile, kRollWorkFile}) unlink((bench.folder + name).c_str());
  if (!error.empty()) return Fail(AsLines(error));
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
  for (const RollsOperation& kind : kRollsOperations) {
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
  command->add_flag("--json", options->json, kJsonHelp);
  command->footer(
      "The operations are done together or, when one can't be, not at all. A new file is made for what it\n"
      "is to hold.\n\n"
      "Example:\n  tessaryn-cli rolls game.rol --delete 1-10 --export game.txt --format \"Die1 Die2\"");
  command->callback([options, &exitCode] { exitCode = Rolls(*options); });
}

}  // namespace tessaryn::cli
