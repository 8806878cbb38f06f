#include "shell/screens/laboratory_run.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <utility>

#include "lab/laboratory.h"

namespace tessaryn {
namespace {

constexpr auto kLookEvery = std::chrono::milliseconds(200);

using Clock = std::chrono::steady_clock;
double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

}  // namespace

int UsualLabThreads() { return std::max(1, static_cast<int>(std::thread::hardware_concurrency()) - 1); }

LaboratoryRun::LaboratoryRun(QObject* parent) : QObject(parent) {}

LaboratoryRun::~LaboratoryRun() {
  stop_ = true;
  Join();
}

void LaboratoryRun::Join() {
  if (thread_.joinable()) thread_.join();
}

template <typename Work>
void LaboratoryRun::Begin(Work&& work) {
  error_.clear();
  stop_ = false;
  on_ = true;
  thread_ = std::thread(std::forward<Work>(work));
}

void LaboratoryRun::TellEnd() {
  QMetaObject::invokeMethod(
      this,
      [this] {
        Join();
        on_ = false;
        emit Ended();
      },
      Qt::QueuedConnection);
}

// --- Experiments.

std::string LaboratoryRun::Start(LabState state) {
  auto rows = state.rows.Any() ? std::make_unique<SessionRows>() : nullptr;
  if (rows)
    if (std::string error = OpenRows(*rows, "", state); !error.empty()) return error;
  state_ = std::move(state);
  rows_ = std::move(rows);
  if (rows_) state_.rows = rows_->kept;
  path_.clear();
  seconds_ = 0;
  GoOn();
  return {};
}

void LaboratoryRun::GoOn() {
  Begin([this] { Play(); });
}

void LaboratoryRun::GoOnTo(std::int64_t sessions) {
  state_.experiment.sessions = sessions;
  state_.finished = false;
  GoOn();
}

void LaboratoryRun::Play() {
  LabRun run;
  run.threads = threads;
  run.applicationFolder = applicationFolder;
  run.checkpoint = path_;
  run.rows = rows_.get();
  run.progress = [this](const LabProgress&) { return !stop_; };
  const double before = seconds_;
  const auto start = Clock::now();
  auto looked = start;
  run.look = [&](LabState& state) {
    if (Clock::now() - looked < kLookEvery) return;
    seconds_ = before + SecondsSince(start);
    TakeFigures(state);
    looked = Clock::now();
    QMetaObject::invokeMethod(
        this, [this] { emit Progressed(); }, Qt::QueuedConnection);
  };
  error_ = RunLab(state_, run);
  if (rows_ && error_.empty()) error_ = FlushRows(*rows_);
  seconds_ = before + SecondsSince(start);
  TakeFigures(state_);
  TellEnd();
}

void LaboratoryRun::TakeFigures(LabState& state) {
  auto figures = std::make_shared<const LabFigures>(FigureLab(state, a_, b_));
  const std::lock_guard guard(lock_);
  figures_ = std::move(figures);
}

std::shared_ptr<const LabFigures> LaboratoryRun::Figures() {
  const std::lock_guard guard(lock_);
  return figures_;
}

void LaboratoryRun::Watch(std::size_t a, std::size_t b) {
  if (a == a_ && b == b_) return;
  a_ = a;
  b_ = b;
  if (!on_) TakeFigures(state_);
}

// --- Searches.

void LaboratoryRun::Find(const Experiment& experiment, const LabQuestion& question) {
  answers_.clear();
  Begin([this, experiment, question] { Search(experiment, question); });
}

void LaboratoryRun::Search(const Experiment& experiment, const LabQuestion& question) {
  const LabSearch search{threads, applicationFolder, [this] { return !stop_; }};
  std::vector<LabAnswer> answers(experiment.systems.size());
  for (std::size_t i = 0; i < answers.size() && error_.empty(); ++i)
    error_ = FindForRuin(experiment, i, question, search, answers[i]);
  if (stop_)
    error_.clear();
  else if (error_.empty())
    answers_ = std::move(answers);
  TellEnd();
}

// --- Files.

std::string LaboratoryRun::SaveAs(const std::string& path) {
  if (rows_) {
    auto kept = std::make_unique<SessionRows>();
    LabState empty;
    empty.systems.resize(state_.systems.size());
    empty.rows.lines = rows_->kept.lines;
    empty.rows.records = rows_->kept.records;
    // Beside its place first: the rows that are there may be its own.
    const std::string beside = RowsPathOf(path) + ".new";
    std::string error = OpenRows(*kept, beside, empty);
    if (error.empty()) error = AppendRows(*kept, *rows_);
    if (error.empty()) error = FlushRows(*kept);
    if (!error.empty()) return error;
    std::error_code fault;
    std::filesystem::rename(beside, RowsPathOf(path), fault);
    if (fault) return RowsPathOf(path) + ": " + fault.message();
    kept->path = RowsPathOf(path);
    state_.rows = kept->kept;
    rows_ = std::move(kept);
  }
  if (std::string error = WriteLab(path, LabBytes(state_)); !error.empty()) return error;
  path_ = path;
  return {};
}

std::string LaboratoryRun::Open(const std::string& path, std::string& missing) {
  LabState state;
  if (std::string error = ReadLab(path, state); !error.empty()) return error;
  std::unique_ptr<SessionRows> rows;
  if (state.rows.Any()) {
    rows = std::make_unique<SessionRows>();
    missing = OpenRows(*rows, RowsPathOf(path), state);
    if (!missing.empty()) rows = nullptr;
    if (!rows) state.rows = {};
  }
  state_ = std::move(state);
  rows_ = std::move(rows);
  path_ = missing.empty() ? path : "";
  seconds_ = 0;
  a_ = 0;
  b_ = 1;
  TakeFigures(state_);
  return {};
}

}  // namespace tessaryn
