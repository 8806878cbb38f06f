#include "lab/laboratory.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace tessaryn {
namespace {

constexpr std::int64_t kPrecisionStep = 1'000;  // sessions between two looks at the bounds
constexpr std::size_t kMostTables = 256;        // of all threads: a table takes a megabyte
// Enough that a table that is opened for one block pays.
constexpr std::int64_t kRollsOfABlock = 500'000;
constexpr std::int64_t kRollsOfAPiece =
    1'000'000;  // some tenths of a second, many times what a message takes
constexpr auto kCheckpointEvery = std::chrono::milliseconds(1'500);
constexpr auto kLookEvery = std::chrono::milliseconds(100);

// One session of one system, with what is kept of it.
struct PlayedSession {
  SessionResult result;
  Currency fan[kFanMarks];
};

struct PlayedSystem {
  std::vector<PlayedSession> sessions;
  std::vector<Record> records;
  std::vector<ScriptErrorKind> errors;
  bool acted = false;
  std::string stopReason;
};

struct Block {
  std::vector<PlayedSystem> systems;
  LabPiece piece;  // in place of systems, from a helper
  std::string error;
};

// What the threads share. All but fresh and stop under the lock.
struct Lab {
  Lab(LabState& itsState, const LabRun& itsRun, FreshTables& itsTables)
      : state(itsState), run(itsRun), fresh(itsTables.games) {}

  LabState& state;
  const LabRun& run;
  const std::vector<std::unique_ptr<Game>>& fresh;
  std::int64_t last = 0;  // the sessions before this one are played
  std::int64_t blockSessions = 1;
  std::int64_t pieceSessions = 1;
  std::int64_t ahead = 1;
  std::mutex lock;
  std::condition_variable changed;
  std::int64_t taken = 0;            // the first session that nobody plays yet
  std::map<std::int64_t, Block> in;  // played, and waiting for those before them; by first session
  std::atomic<bool> stop = false;
  std::string error;
  int working = 0;
};

// The rolls of a session with all systems, about.
std::int64_t CostOfSession(const Experiment& experiment) {
  const std::int64_t hands = experiment.hands > 0 ? experiment.hands * 9 : kMaxRolls;
  const std::int64_t hours =
      experiment.hours > kZero ? experiment.hours.raw / (Currency::kPerDollar / 120) : kMaxRolls;  // about
  const std::int64_t rolls = std::min({experiment.rolls > 0 ? experiment.rolls : kMaxRolls, hands, hours});
  return std::max<std::int64_t>(rolls, 50) * std::ssize(experiment.systems);
}

// A part of a thousand, so that the bounds are looked at between blocks; a tenth of a second or so at most.
std::int64_t SizeBlocks(std::int64_t cost) {
  for (const std::int64_t size : {200, 100, 50, 20, 10, 5, 2})
    if (size * cost <= kRollsOfABlock) return size;
  return 1;
}

// --- A worker.

std::string EndlessText(const LabSystem& system, const LabHost& host) {
  return system.name + ", line " + std::to_string(host.endlessLine) +
         ": the script never ends a roll; it was stopped after ten million statements";
}

// The tables of a worker. Few enough are kept for the next block.
struct Tables {
  Lab& lab;
  std::vector<std::unique_ptr<LabTable>> kept;
  std::size_t most = 1;
};

std::unique_ptr<LabTable> TakeTable(Tables& tables, std::size_t system) {
  if (tables.kept[system]) return std::move(tables.kept[system]);
  return OpenLabTable(*tables.lab.fresh[system], &tables.lab.stop);
}

bool PlaySystem(Lab& lab, LabTable& table, std::size_t number, SessionRange range, Block& block) {
  const Experiment& experiment = lab.state.experiment;
  PlayedSystem& played = block.systems[number];
  played.sessions.resize(static_cast<std::size_t>(range.last - range.first));
  if (lab.state.rows.records) played.records.resize(played.sessions.size());
  const SeatScript& script = table.game->autobet.Scripts[1];
  for (std::size_t i = 0; i < played.sessions.size(); ++i) {
    PlayedSession& session = played.sessions[i];
    Record* record = lab.state.rows.records ? &played.records[i] : nullptr;
    if (!PlaySession(table, experiment, range.first + static_cast<std::int64_t>(i), session.result, record)) {
      if (table.host.endless) block.error = EndlessText(experiment.systems[number], table.host);
      return false;
    }
    std::copy(std::begin(table.fan), std::end(table.fan), session.fan);
    played.acted = played.acted || script.Acted;
    if (!script.Errors.empty() && !experiment.systems[number].standingBets)
      AddScriptErrors(played.errors, script.Errors);
    if (played.stopReason.empty() && (session.result.marks & kMarkStopped) != 0)
      played.stopReason = table.stopReason;
  }
  return true;
}

Block PlayBlock(Lab& lab, Tables& tables, SessionRange range) {
  Block block;
  block.systems.resize(lab.fresh.size());
  for (std::size_t number = 0; number < lab.fresh.size(); ++number) {
    std::unique_ptr<LabTable> table = TakeTable(tables, number);
    if (!PlaySystem(lab, *table, number, range, block)) break;
    if (number < tables.most) tables.kept[number] = std::move(table);
  }
  return block;
}

// --- Taking in.

void TakeInSystem(SystemSums& sums, const PlayedSystem& played, bool withFan) {
  for (const PlayedSession& session : played.sessions) {
    AddSession(sums, session.result);
    if (withFan)
      for (int mark = 0; mark < kFanMarks; ++mark) CountValue(sums.fan[mark], session.fan[mark].raw);
  }
  AddScriptErrors(sums.errors, played.errors);
  sums.acted = sums.acted || played.acted;
  if (sums.stopReason.empty()) sums.stopReason = played.stopReason;
}

void TakeInRows(SessionRows& rows, const Block& block) {
  static constexpr Record kNoRecord{};
  const std::size_t sessions = block.systems.front().sessions.size();
  for (std::size_t i = 0; i < sessions; ++i) {
    for (const PlayedSystem& played : block.systems)
      AddRow(rows, played.sessions[i].result, played.records.empty() ? kNoRecord : played.records[i]);
    CloseSession(rows);
  }
}

double WidestBounds(const LabState& state) {
  double widest = 0;
  for (const SystemSums& sums : state.systems) {
    const MeanFigure net = FigureMean(sums.net, sums.sessions, Currency::kPerDollar);
    widest = std::max(widest, (net.ci95.high - net.ci95.low) / 2);
  }
  return widest;
}

bool IsKnown(const LabState& state) {
  const Currency precision = state.experiment.precision;
  return precision > kZero && state.next % kPrecisionStep == 0 && WidestBounds(state) <= precision.ToDouble();
}

void TakeInPiece(Lab& lab, const LabPiece& piece) {
  LabState& state = lab.state;
  for (std::size_t i = 0; i < state.systems.size(); ++i) AddSums(state.systems[i], piece.systems[i]);
  for (std::size_t i = 0; i < state.pairs.size(); ++i) AddExact(state.pairs[i], piece.pairs[i]);
  if (lab.run.rows == nullptr) return;
  AddPieceRows(*lab.run.rows, piece);
  state.rows = lab.run.rows->kept;
}

void TakeInSessions(Lab& lab, const Block& block) {
  LabState& state = lab.state;
  for (std::size_t i = 0; i < block.systems.size(); ++i)
    TakeInSystem(state.systems[i], block.systems[i], state.experiment.rolls > 0);
  const std::size_t sessions = block.systems.front().sessions.size();
  ForEachPair(block.systems.size(), [&](std::size_t pair, std::size_t a, std::size_t b) {
    for (std::size_t i = 0; i < sessions; ++i)
      AddSquared(state.pairs[pair], Int128{block.systems[a].sessions[i].result.net.raw} -
                                        block.systems[b].sessions[i].result.net.raw);
  });
  if (lab.run.rows != nullptr) {
    TakeInRows(*lab.run.rows, block);
    state.rows = lab.run.rows->kept;
  }
  state.next += static_cast<std::int64_t>(sessions);
}

void TakeIn(Lab& lab, const Block& block) {
  LabState& state = lab.state;
  if (block.systems.empty()) {
    TakeInPiece(lab, block.piece);
    state.next = block.piece.last;
  } else {
    TakeInSessions(lab, block);
  }
  state.finished = state.next == SessionsOf(state.experiment).last || IsKnown(state);
}

// Those that are next, as far as they are played.
void TakeInWhatIsNext(Lab& lab) {
  while (!lab.state.finished && lab.error.empty()) {
    const auto next = lab.in.find(lab.state.next);
    if (next == lab.in.end()) break;
    if (next->second.error.empty())
      TakeIn(lab, next->second);
    else
      lab.error = next->second.error;
    lab.in.erase(next);
  }
  if (lab.state.finished || lab.state.next == lab.last || !lab.error.empty()) lab.stop = true;
}

// Ends where the bounds are to be looked at.
SessionRange TakeRange(Lab& lab, std::int64_t sessions) {
  const std::int64_t first = lab.taken;
  const std::int64_t look = (first / kPrecisionStep + 1) * kPrecisionStep;
  lab.taken = std::min(first + sessions, lab.last);
  if (lab.state.experiment.precision > kZero) lab.taken = std::min(lab.taken, look);
  return {first, lab.taken};
}

// A range after the other, until there are no more. play: the block of a range, whole or with an error unless
// stop is set.
template <typename Play>
void WorkOff(Lab& lab, std::int64_t sessions, Play&& play) {
  std::unique_lock guard(lab.lock);
  for (;;) {
    // Who is far ahead waits, so that what waits to be taken in doesn't grow.
    lab.changed.wait(guard, [&] { return lab.stop || lab.taken - lab.state.next < lab.ahead; });
    if (lab.stop || lab.taken >= lab.last) break;
    const SessionRange range = TakeRange(lab, sessions);
    guard.unlock();
    Block block = play(range);
    guard.lock();
    if (!lab.stop || !block.error.empty()) lab.in.emplace(range.first, std::move(block));
    TakeInWhatIsNext(lab);
    lab.changed.notify_all();
  }
  --lab.working;
  lab.changed.notify_all();
}

void WorkHere(Lab& lab) {
  const auto threads = static_cast<std::size_t>(lab.run.threads);
  Tables tables{lab, {}, std::max<std::size_t>(kMostTables / threads, 1)};
  tables.kept.resize(lab.fresh.size());
  WorkOff(lab, lab.blockSessions, [&](SessionRange range) { return PlayBlock(lab, tables, range); });
}

bool IsPieceOf(const LabPiece& piece, const LabState& state, SessionRange range) {
  return piece.first == range.first && piece.last == range.last &&
         piece.systems.size() == state.systems.size() && piece.pairs.size() == state.pairs.size();
}

// Has a helper work.
void WorkThere(Lab& lab, int helper) {
  WorkOff(lab, lab.pieceSessions, [&](SessionRange range) {
    Block block;
    std::string error = lab.run.helpers->play(helper, range, lab.stop, block.piece);
    block.error = block.piece.error;
    if (error.empty() && block.error.empty() && !lab.stop && !IsPieceOf(block.piece, lab.state, range))
      error = "a helper has not played what it was asked for";
    if (!error.empty()) {
      const std::lock_guard guard(lab.lock);
      lab.error = error;
      lab.stop = true;
    }
    return block;
  });
}

// --- The caller.

LabProgress ProgressOf(const LabState& state) {
  LabProgress progress;
  progress.sessions = SessionsDone(state);
  const SessionRange range = SessionsOf(state.experiment);
  progress.target = range.last - range.first;
  for (const SystemSums& sums : state.systems) progress.rolls += sums.rolls;
  progress.widest = WidestBounds(state);
  return progress;
}

// The bytes are made under the lock, and written without it.
std::string Checkpoint(Lab& lab, std::unique_lock<std::mutex>& guard) {
  if (lab.run.checkpoint.empty()) return {};
  if (lab.run.rows != nullptr)
    if (std::string error = FlushRows(*lab.run.rows); !error.empty()) return error;
  const std::string bytes = LabBytes(lab.state);
  guard.unlock();
  std::string error = WriteLab(lab.run.checkpoint, bytes);
  guard.lock();
  return error;
}

// Until all have ended: looks after progress and the experiment's file.
void LookAfter(Lab& lab) {
  std::unique_lock guard(lab.lock);
  auto written = std::chrono::steady_clock::now();
  while (lab.working > 0) {
    lab.changed.wait_for(guard, kLookEvery, [&] { return lab.working == 0; });
    const LabProgress progress = ProgressOf(lab.state);
    if (lab.run.look) lab.run.look(lab.state);
    guard.unlock();
    const bool goesOn = !lab.run.progress || lab.run.progress(progress);
    guard.lock();
    if (!goesOn) lab.stop = true;
    if (std::chrono::steady_clock::now() - written >= kCheckpointEvery && lab.error.empty()) {
      lab.error = Checkpoint(lab, guard);
      if (!lab.error.empty()) lab.stop = true;
      written = std::chrono::steady_clock::now();
    }
    lab.changed.notify_all();
  }
}

std::string BuildTables(const LabState& state, const LabRun& run, FreshTables& fresh) {
  if (!fresh.games.empty()) return {};
  LabProblem problem;
  for (const LabSystem& system : state.experiment.systems) {
    fresh.games.push_back(BuildTable(state.experiment, system, fresh.host, run.applicationFolder, problem));
    if (problem.Found()) return problem.text;
  }
  return {};
}

void SizeWork(Lab& lab) {
  const std::int64_t cost = CostOfSession(lab.state.experiment);
  lab.blockSessions = SizeBlocks(cost);
  lab.pieceSessions = std::max(kRollsOfAPiece / cost, lab.blockSessions);
  const std::int64_t helpers = lab.run.helpers == nullptr ? 0 : lab.run.helpers->count;
  lab.ahead = 4 * (lab.blockSessions * lab.run.threads + lab.pieceSessions * helpers);
}

// As many as the machine gives, one at least.
std::string StartThreads(Lab& lab, std::vector<std::thread>& threads) {
  const int helpers = lab.run.helpers == nullptr ? 0 : lab.run.helpers->count;
  for (int i = -helpers; i < lab.run.threads; ++i) {
    {
      const std::lock_guard guard(lab.lock);
      ++lab.working;
    }
    try {
      if (i < 0)
        threads.emplace_back(WorkThere, std::ref(lab), i + helpers);
      else
        threads.emplace_back(WorkHere, std::ref(lab));
    } catch (const std::system_error& fault) {
      const std::lock_guard guard(lab.lock);
      --lab.working;
      return threads.empty() ? std::string("no thread can be started: ") + fault.what() : "";
    }
  }
  return {};
}

// Until the session last, which isn't played any more.
std::string RunTo(std::int64_t last, LabState& state, const LabRun& run, FreshTables& fresh) {
  if (std::string error = BuildTables(state, run, fresh); !error.empty()) return error;
  Lab lab(state, run, fresh);
  SizeWork(lab);
  lab.last = last;
  lab.taken = state.next;
  lab.stop = state.finished;
  if (run.helpers != nullptr && !state.finished) run.helpers->begin(state, run.helpers->threads);
  std::unique_lock guard(lab.lock);
  if (std::string error = Checkpoint(lab, guard); !error.empty()) return error;
  guard.unlock();
  std::vector<std::thread> threads;
  if (!state.finished) lab.error = StartThreads(lab, threads);
  LookAfter(lab);
  for (std::thread& thread : threads) thread.join();
  guard.lock();
  const std::string written = Checkpoint(lab, guard);
  return lab.error.empty() ? written : lab.error;
}

}  // namespace

std::string CheckSystems(const Experiment& experiment, const std::string& applicationFolder,
                         LabProblem& problem) {
  for (const LabSystem& system : experiment.systems) {
    LabHost host;
    BuildTable(experiment, system, host, applicationFolder, problem);
    if (problem.Found()) return problem.text;
  }
  return {};
}

std::string RunLab(LabState& state, const LabRun& run) {
  FreshTables fresh;
  return RunTo(SessionsOf(state.experiment).last, state, run, fresh);
}

LabPiece PlayPiece(const LabState& state, SessionRange range, const LabRun& run, FreshTables& fresh) {
  LabState part = BeginLab(state.experiment, state.rows.lines, state.rows.records);
  part.experiment.precision = kZero;  // is of all sessions
  part.next = range.first;
  part.finished = false;
  SessionRows rows;
  rows.kept = part.rows;
  rows.systems = part.systems.size();
  LabRun playing;
  playing.threads = run.threads;
  playing.applicationFolder = run.applicationFolder;
  playing.progress = run.progress;
  if (part.rows.Any()) playing.rows = &rows;
  LabPiece piece;
  piece.error = RunTo(range.last, part, playing, fresh);
  SettleState(part);
  piece.first = range.first;
  piece.last = part.next;
  piece.systems = std::move(part.systems);
  piece.pairs = std::move(part.pairs);
  piece.rows = std::move(rows.buffer);
  return piece;
}

}  // namespace tessaryn
