// The laboratory for Python: an experiment by the options of "tessaryn-cli lab", as words, and what came of
// it. The package around it (tessaryn/__init__.py) says it in Python's way.
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "cli/commands.h"
#include "cli/lab_command.h"
#include "cli/lab_report.h"
#include "lab/html_report.h"

namespace py = pybind11;

namespace tessaryn::cli {

namespace {
// What was told last; errors come from the thread that asked.
thread_local std::string told;
}  // namespace

// A module tells what is wrong by an exception.
int Fail(const std::string& what) {
  told = what;
  return kBad;
}
int FailInLines(const std::string& lines) {
  told = lines.substr(0, lines.find_last_not_of('\n') + 1);
  return kBad;
}

}  // namespace tessaryn::cli

namespace {

using namespace tessaryn;

[[noreturn]] void Raise(int code) {
  if (code == cli::kUsage) throw py::value_error(cli::told);
  throw std::runtime_error(cli::told);
}
void Check(int code) {
  if (code != cli::kDone) Raise(code);
}

// A measure of every session, in order: a buffer that memoryview and numpy read in place.
template <typename T>
struct Column {
  std::vector<T> values;
};

template <typename T>
void AddColumn(py::module_& module, const char* name) {
  py::class_<Column<T>>(module, name, py::buffer_protocol()).def_buffer([](Column<T>& column) {
    return py::buffer_info(column.values.data(), static_cast<py::ssize_t>(column.values.size()), true);
  });
}

struct Columns {
  Column<double> money[7];
  Column<std::int64_t> counts[2];
  Column<std::uint8_t> marks[4];
};
constexpr const char* kMoney[] = {"net", "handle", "max_drawdown", "highest", "luck", "price", "adjusted"};
constexpr const char* kCounts[] = {"rolls", "hands"};
constexpr const char* kMarks[] = {"ruined", "goal", "limit", "stopped"};

void AddLine(Columns& columns, const SessionLine& line) {
  const double net = line.net.ToDouble();
  const double money[] = {
      net,        line.handle.ToDouble(), line.maxDrawdown.ToDouble(), line.highest.ToDouble(), line.luck,
      line.price, net - line.luck};
  for (std::size_t i = 0; i < std::size(money); ++i) columns.money[i].values.push_back(money[i]);
  columns.counts[0].values.push_back(line.rolls);
  columns.counts[1].values.push_back(line.hands);
  constexpr int kBits[] = {kMarkRuined, kMarkGoal, kMarkLimit, kMarkStopped};
  for (std::size_t i = 0; i < std::size(kBits); ++i)
    columns.marks[i].values.push_back((line.marks & kBits[i]) != 0 ? 1 : 0);
}

// As memory views by their names.
py::dict ViewsOf(Columns&& columns) {
  py::dict views;
  const auto add = [&views](const char* name, auto&& column) {
    views[name] = py::memoryview(py::cast(std::move(column)));
  };
  for (std::size_t i = 0; i < std::size(kMoney); ++i) add(kMoney[i], columns.money[i]);
  for (std::size_t i = 0; i < std::size(kCounts); ++i) add(kCounts[i], columns.counts[i]);
  for (std::size_t i = 0; i < std::size(kMarks); ++i) add(kMarks[i], columns.marks[i]);
  return views;
}

// The options, checked as the command line's are.
void Parse(CLI::App& command, std::vector<std::string> words) {
  std::reverse(words.begin(), words.end());  // as the parser wants them
  try {
    command.parse(words);
  } catch (const CLI::ParseError& error) {
    throw py::value_error(error.what());
  }
  for (const char* other : {"--find", "--ruin", "--rank", "--json"})
    if (command.count(other) > 0)
      throw py::value_error(std::string(other) + ": only the command line has it");
}

// Plays without the lock of Python; a signal that Python has for us ends it.
std::string PlayUnlocked(LabState& state, LabRun& run, const py::object& progress) {
  bool raised = false;
  run.progress = [&](const LabProgress& known) {
    const py::gil_scoped_acquire locked;
    raised = raised || PyErr_CheckSignals() != 0;
    if (raised || progress.is_none()) return !raised;
    try {
      progress(known.sessions, known.target);
    } catch (py::error_already_set& error) {
      error.restore();
      raised = true;
    }
    return !raised;
  };
  std::string error;
  {
    const py::gil_scoped_release unlocked;
    error = RunLab(state, run);
  }
  if (raised) throw py::error_already_set();
  return error;
}

std::vector<Columns> ColumnsOf(const LabState& state, SessionRows& rows) {
  std::vector<Columns> columns(state.systems.size());
  std::size_t row = 0;
  const std::string error =
      ForEachLine(rows, [&](const SessionLine& line) { AddLine(columns[row++ % columns.size()], line); });
  if (!error.empty()) throw std::runtime_error(error);
  return columns;
}

// (figures as JSON, columns of each system, report)
py::tuple Run(const std::vector<std::string>& words, const std::string& folder, const py::object& progress) {
  CLI::App command;
  cli::LabOptions options;
  options.applicationFolder = folder;
  cli::AddLabOptions(command, options);
  Parse(command, words);
  LabState state;
  Check(cli::PrepareLab(command, options, state));
  if (options.resume.empty()) state.rows.lines = true;
  if (!state.rows.lines)
    throw std::runtime_error("--resume " + options.resume +
                             ": its sessions weren't kept; it was made without --csv");
  SessionRows rows;
  LabRun run;
  Check(cli::PrepareRun(state, options, rows, run));
  if (const std::string error = PlayUnlocked(state, run, progress); !error.empty())
    throw std::runtime_error(error);
  Check(cli::WriteOutputs(state, rows, options));
  const std::string figures = cli::LabJson(state).dump(-1, ' ', false, cli::Json::error_handler_t::replace);
  py::list views;
  for (Columns& columns : ColumnsOf(state, rows)) views.append(ViewsOf(std::move(columns)));
  return py::make_tuple(figures, views, HtmlReport(state));
}

}  // namespace

PYBIND11_MODULE(_tessaryn, module) {
  AddColumn<double>(module, "Money");
  AddColumn<std::int64_t>(module, "Counts");
  AddColumn<std::uint8_t>(module, "Marks");
  module.def("run", &Run);
}
