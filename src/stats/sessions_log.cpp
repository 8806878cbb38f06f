#include "stats/sessions_log.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "base/interrupts.h"
#include "base/letters.h"
#include "base/messages.h"
#include "state/game.h"
#include "state/show_message.h"
#include "stats/log_fault.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr std::size_t kMostWaiting = 10'000;

// --- Names.

// What a name would lead elsewhere by stands as a dash.
std::string DefaultTitle(std::string_view playerName) {
  std::string title(playerName);
  for (char& c : title)
    c = c == '/' || c == '\\' ? '-' : Lowered(c);
  return title + ".slg";
}

bool IsThere(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

// --- Writing.

// A log that is kept open for the next session.
std::string Write(SessionsLogFile& file, const std::string& path, const Record& session) {
  std::string problem;
  if (file.Descriptor < 0 || file.Path != path)
    problem = OpenSessionsFile(file, path, SessionsAccess::kCreate);
  if (problem.empty()) problem = AppendSession(file, session);
  if (!problem.empty()) CloseSessionsFile(file);
  return problem;
}

bool HasWaiting(const SessionsLogFiles& files, const std::string& path) {
  return std::ranges::any_of(files.Waiting, [&](const WaitingSession& one) { return one.Path == path; });
}

// All that waits, in its order: of a log that fails the rest goes on waiting. The last problem.
std::string TryWaiting(SessionsLogFiles& files) {
  std::vector<WaitingSession> failed;
  std::string problem;
  SessionsLogFile file;
  for (WaitingSession& one : files.Waiting) {
    const auto same = [&](const WaitingSession& other) { return other.Path == one.Path; };
    const std::string fault =
        std::ranges::any_of(failed, same) ? problem : Write(file, one.Path, one.Session);
    if (fault.empty()) continue;
    problem = fault;
    failed.push_back(std::move(one));
  }
  files.Waiting = std::move(failed);
  if (files.Waiting.empty()) files.FaultTold.clear();
  return problem;
}

void ForgetWaiting(SessionsLogFiles& files, const std::string& path) {
  std::erase_if(files.Waiting, [&](const WaitingSession& one) { return one.Path == path; });
}

void Tally(SessionsTally& tally, const Record& session) {
  const Currency net = SessionValue(session, kSessionNet);
  ++tally.Sessions;
  ++(net > kZero ? tally.Won : net < kZero ? tally.Lost : tally.BrokeEven);
  tally.Net += net;
  tally.Handle += SessionValue(session, kSessionHandle);
}

// --- The screen.

// What its commands work on.
std::string OpenOf(const Game& game, SeatId seat, SessionsLogFile& file, SessionsAccess access) {
  return OpenSessionsFile(file, SessionsLogPath(game, seat), access);
}

void TellProblem(Game& game, const std::string& problem) {
  if (!problem.empty()) ShowMessage<Msg::kSessionsLogFailed>(game, With<"problem">(problem));
}

// From here on the seat's log is another one.
void UseLog(Game& game, SeatId seat, const std::string& path) {
  CloseSessionsFile(game.sessions.Files.Seats[seat]);
  game.table.seats[seat].SessionsLogName = path;
  game.sessions.SessionsTopRow = 1;
}

bool AgreesToSessionInProgress(Game& game, bool all) {
  return SessionRolls(game.stats) == 0 || Confirms<Msg::kAskNewSessionsLog>(game, With<"all">(all));
}

// The default log of a seat begins anew. One with sessions is asked for.
NewLog StartDefaultLog(Game& game, SeatId seat) {
  const std::string& name = game.table.seats[seat].SeatName;
  const std::string path = DefaultSessionsLogName(game, name);
  SessionsLogFile file;
  std::int64_t sessions = 0;
  if (IsThere(path)) {
    std::string problem = OpenSessionsFile(file, path, SessionsAccess::kChange);
    if (problem.empty()) problem = CountSessions(file, sessions);
    if (!problem.empty()) {
      TellProblem(game, problem);
      return NewLog::kCancelled;
    }
  }
  if (sessions > 0) {
    const int answer = ShowMessage<Msg::kAskSaveSessionsLog>(game, With<"player">(name));
    if (answer == kResultYes) return NewLog::kRenameFirst;
    if (answer != kResultNo) return NewLog::kCancelled;
    if (const std::string problem = DeleteEverySession(file); !problem.empty()) {
      TellProblem(game, problem);
      return NewLog::kCancelled;
    }
    ForgetWaiting(game.sessions.Files, path);
  }
  UseLog(game, seat, path);
  return NewLog::kStarted;
}

// Announces the wait once it is known to be one, and until it is over.
class Patience {
 public:
  Patience(Game& game, std::int64_t sessions)
      : game_(game), sessions_(sessions), start_(game.host->TickMilliseconds()) {}
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;
  ~Patience() {
    if (told_) game_.host->EndNotice(game_);
  }

  std::string Look(std::int64_t done) {
    game_.host->YieldByClock(game_);
    if (Interrupted()) return SignalReason();
    constexpr std::int64_t kMany = 30'000;
    constexpr double kLong = 500;  // milliseconds
    constexpr std::uint32_t kMeasured = 20;
    const std::uint32_t passed = game_.host->TickMilliseconds() - start_;
    if (told_ || sessions_ < kMany || passed < kMeasured) return {};
    const double ahead = static_cast<double>(sessions_ * kUsualPasses) / static_cast<double>(done);
    if (passed * ahead <= kLong) return {};
    told_ = true;
    ShowMessage<Msg::kCalculating>(game_);
    return {};
  }

 private:
  static constexpr std::int64_t kUsualPasses = 3;
  Game& game_;
  std::int64_t sessions_;
  std::uint32_t start_;
  bool told_ = false;
};

std::string Compute(Game& game, SeatId seat, SessionsStatistics& statistics, bool& overflow) {
  SessionsLogFile file;
  std::int64_t sessions = 0;
  if (!IsThere(SessionsLogPath(game, seat))) return {};
  std::string problem = OpenOf(game, seat, file, SessionsAccess::kRead);
  if (problem.empty()) problem = CountSessions(file, sessions);
  if (!problem.empty()) return problem;
  Patience patience(game, sessions);
  return ComputeSessions(file, QueryOf(game.sessions), statistics, overflow,
                         [&](std::int64_t done) { return patience.Look(done); });
}

}  // namespace

std::string DefaultSessionsLogName(const Game& game, std::string_view playerName) {
  return game.ownFolder + DefaultTitle(playerName);
}

std::string SessionsLogPath(const Game& game, SeatId seat) {
  const std::string& name = game.table.seats[seat].SessionsLogName;
  const std::string& player = game.table.seats[seat].SeatName;
  if (name.empty()) return DefaultSessionsLogName(game, player);
  const bool elsewhere = game.ownFolder != game.dataFolder && name == game.dataFolder + DefaultTitle(player);
  return elsewhere ? DefaultSessionsLogName(game, player) : name;
}

Record SessionOf(Game& game, SeatId seat) {
  Statistics& stats = game.stats;
  SumBetStats(stats, seat, kCurrentSession, 1, kBets, true);
  const auto sum = [&](StatTable table, StatKind kind) {
    return BetStat(stats, table, kCurrentHand, seat, 0, kind);
  };
  const Currency handle = sum(kWagerStats, kStatTotal);
  const Currency net = sum(kWinStats, kStatTotal) - sum(kLossStats, kStatTotal);
  Record record{};
  const auto put = [&record](int field, Currency value) { PutSessionValue(record, field, value); };
  put(kSessionRolls, Currency::Dollars(PlayerRolls(stats, kCurrentSession, seat)));
  put(kSessionBetsDecided, sum(kWagerStats, kStatCount));
  put(kSessionBetsWon, sum(kWinStats, kStatCount));
  put(kSessionBetsLost, sum(kLossStats, kStatCount));
  put(kSessionBetsNet, sum(kWinStats, kStatCount) - sum(kLossStats, kStatCount));
  put(kSessionHandle, handle);
  put(kSessionWon, sum(kWinStats, kStatTotal));
  put(kSessionLost, sum(kLossStats, kStatTotal));
  put(kSessionNet, net);
  put(kSessionAdvantage,
      handle == kZero ? kZero : Currency::FromDouble(100 * net.ToDouble() / handle.ToDouble()));
  put(kSessionInvested, stats.BankrollSessionStart[seat]);
  put(kSessionEnding, game.table.BankrollCurrent[seat]);
  for (int stack = 0; stack < kSessionStackFields; ++stack)
    put(kSessionStacks + stack, game.table.BetAmount(seat, kFirstCheckStack + stack));
  return record;
}

void AppendSessionRecord(Game& game, SeatId seat) {
  SessionsLogFiles& files = game.sessions.Files;
  if (files.Off || SessionRolls(game.stats) == 0 || !IsOccupied(game.table, seat)) return;
  const std::string path = SessionsLogPath(game, seat);
  const Record session = SessionOf(game, seat);
  Tally(files.Tally[seat], session);
  std::string problem = HasWaiting(files, path) ? TryWaiting(files) : "";
  if (!HasWaiting(files, path)) problem = Write(files.Seats[seat], path, session);
  if (problem.empty()) return;
  files.Fault = MessageText<Msg::kSessionNotLogged>(With<"player">(game.table.seats[seat].SeatName),
                                                    With<"problem">(problem));
  if (files.Waiting.size() < kMostWaiting) files.Waiting.push_back({path, session});
}

void TellSessionsLogFault(Game& game) {
  SessionsLogFiles& files = game.sessions.Files;
  if (files.Fault.empty()) return;
  const std::string fault = std::exchange(files.Fault, {});
  if (StopWithLogFault(game, files.FaultTold, fault))
    ShowMessage<Msg::kSessionsLogFault>(game, With<"problem">(fault));
}

void WriteWaitingSessions(Game& game) {
  if (!game.sessions.Files.Waiting.empty()) TryWaiting(game.sessions.Files);
}

std::string RemoveSessionsLogs(Game& game) {
  SessionsLogFiles& files = game.sessions.Files;
  std::string problem;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game.table, seat) || files.Off) continue;
    const std::string path = DefaultSessionsLogName(game, game.table.seats[seat].SeatName);
    CloseSessionsFile(files.Seats[seat]);
    game.table.seats[seat].SessionsLogName = path;
    ForgetWaiting(files, path);
    if (unlink(path.c_str()) != 0 && errno != ENOENT && problem.empty())
      problem = FileErrorText("delete", path, errno);
  }
  if (files.Waiting.empty()) files.Fault.clear();  // of a log that is gone
  return problem;
}

std::string CloseSessionsLogs(Game& game) {
  SessionsLogFiles& files = game.sessions.Files;
  std::string problem = files.Waiting.empty() ? "" : TryWaiting(files);
  for (SessionsLogFile& file : files.Seats) CloseSessionsFile(file);
  if (problem.empty()) return {};
  return MessageText<Msg::kSessionsLost>(With<"count">(files.Waiting.size()), With<"problem">(problem));
}

bool UpdateSessionsLog(Game& game, SessionsStatistics& statistics) {
  SessionsLogs& screen = game.sessions;
  if (screen.Files.Calculating) return false;
  statistics = {};
  const SeatId seat = screen.SessionsSeat;
  if (!IsOccupied(game.table, seat)) return false;
  const std::string name = game.table.seats[seat].SeatName;
  bool overflow = false;
  screen.Files.Calculating = true;
  const std::string problem = Compute(game, seat, statistics, overflow);
  screen.Files.Calculating = false;
  if (overflow)
    ShowMessage<Msg::kSessionsNotComputed>(game, With<"name">(name));
  else if (!problem.empty())
    ShowMessage<Msg::kSessionsLogNotOpened>(game, With<"problem">(problem));
  return problem.empty();
}

NewLog NewSessionsLog(Game& game, SeatId seat) {
  if (!AgreesToSessionInProgress(game, false)) return NewLog::kCancelled;
  return StartDefaultLog(game, seat);
}

NewLog NewAllSessionsLogs(Game& game) {
  if (!AgreesToSessionInProgress(game, true)) return NewLog::kCancelled;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game.table, seat)) continue;
    if (const NewLog done = StartDefaultLog(game, seat); done != NewLog::kStarted) {
      game.sessions.SessionsSeat = seat;  // whose log is to be renamed
      return done;
    }
  }
  return NewLog::kStarted;
}

std::string KeepSessionsLogAs(Game& game, SeatId seat, const std::string& path) {
  const std::string standard = DefaultSessionsLogName(game, game.table.seats[seat].SeatName);
  if (IsSameFile(standard, path)) return {};
  SessionsLogFile file;
  std::string problem = OpenSessionsFile(file, standard, SessionsAccess::kChange);
  if (problem.empty()) problem = CopySessionsLog(file, path);
  if (problem.empty()) problem = DeleteEverySession(file);
  if (!problem.empty()) return problem;
  UseLog(game, seat, standard);
  return {};
}

std::string OpenSessionsLog(Game& game, SeatId seat, const std::string& path) {
  SessionsLogFile file;
  std::string problem = OpenSessionsFile(file, path, SessionsAccess::kRead);
  if (problem.empty()) UseLog(game, seat, path);
  return problem;
}

std::string SaveSessionsLogAs(Game& game, SeatId seat, const std::string& path) {
  SessionsLogFile file;
  std::string problem = OpenOf(game, seat, file, SessionsAccess::kCreate);
  if (problem.empty()) problem = CopySessionsLog(file, path);
  if (problem.empty()) UseLog(game, seat, path);
  return problem;
}

std::string RenameSessionsLog(Game& game, SeatId seat, const std::string& path) {
  const std::string old = SessionsLogPath(game, seat);
  if (old == path) return {};
  if (IsThere(old)) {
    if (renameat2(AT_FDCWD, old.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) != 0)
      return errno == EEXIST ? MessageText<Msg::kPathOnFile>(With<"path">(path))
                             : FileErrorText("rename", old, errno);
  } else if (IsThere(path)) {
    return MessageText<Msg::kPathOnFile>(With<"path">(path));
  }
  for (WaitingSession& one : game.sessions.Files.Waiting)
    if (one.Path == old) one.Path = path;
  UseLog(game, seat, path);
  return {};
}

std::string MergeSessionsLog(Game& game, SeatId seat, const std::string& path) {
  SessionsLogFile file;
  SessionsLogFile other;
  std::string problem = OpenSessionsFile(other, path, SessionsAccess::kRead);
  if (problem.empty()) problem = OpenOf(game, seat, file, SessionsAccess::kCreate);
  return problem.empty() ? AppendSessionsOf(file, other) : problem;
}

std::string UseSessionsLogCopy(Game& game, SeatId seat, const std::string& path, std::int64_t copied,
                               bool keepName) {
  const std::string& player = game.table.seats[seat].SeatName;
  const std::string old = keepName ? DefaultSessionsLogName(game, player) : SessionsLogPath(game, seat);
  if (IsSameFile(old, path)) return {};
  SessionsLogFile file, copy;
  std::string problem = OpenSessionsFile(file, old, SessionsAccess::kChange);
  if (problem.empty()) problem = OpenSessionsFile(copy, path, SessionsAccess::kChange);
  if (problem.empty()) problem = AppendSessionsOf(copy, file, copied + 1);
  if (problem.empty() && keepName) problem = DeleteEverySession(file);
  if (problem.empty()) UseLog(game, seat, keepName ? old : path);
  return problem;
}

bool DeleteAllSessions(Game& game, SeatId seat) {
  if (!Confirms<Msg::kAskDeleteAllSessions>(game, With<"player">(game.table.seats[seat].SeatName)))
    return false;
  SessionsLogFile file;
  std::string problem = OpenOf(game, seat, file, SessionsAccess::kCreate);
  if (problem.empty()) problem = DeleteEverySession(file);
  TellProblem(game, problem);
  if (problem.empty()) game.sessions.SessionsTopRow = 1;
  return problem.empty();
}

bool AskDeleteSessions(Game& game, std::int64_t& first, std::int64_t& last) {
  MessageBox& box = game.box;
  box.MsgValue1 = Currency::Dollars(game.sessions.SessionsTopRow);
  box.MsgValue2 = kZero;
  if (ShowMessage<Msg::kAskDeleteSessions>(game) != kResultOk) return false;
  // A second box left at 0 asks for a single session.
  const Currency second = box.MsgValue2 == kZero ? box.MsgValue1 : box.MsgValue2;
  const bool whole = box.MsgValue1.IsWhole() && second.IsWhole();
  first = whole ? box.MsgValue1.raw / Currency::kPerDollar : 0;
  last = whole ? second.raw / Currency::kPerDollar : 0;
  if (last < first) std::swap(first, last);
  return true;
}

bool DeleteSessions(Game& game, SeatId seat) {
  std::int64_t first = 0, last = 0;
  if (!AskDeleteSessions(game, first, last)) return false;
  SessionsLogFile file;
  std::string problem = OpenOf(game, seat, file, SessionsAccess::kCreate);
  if (problem.empty()) problem = DeleteSessionRange(file, first, last);
  if (!problem.empty()) ShowMessage<Msg::kSessionsNotDeleted>(game, With<"problem">(problem));
  return problem.empty();
}

bool SetBreakPoint(Game& game) {
  SessionsLogs& screen = game.sessions;
  MessageBox& box = game.box;
  box.MsgValue1 = screen.BreakPointLow;
  box.MsgValue2 = screen.BreakPointHigh;
  if (ShowMessage<Msg::kAskBreakPoint>(game) != kResultOk) return false;
  screen.BreakPointLow = std::min(box.MsgValue1, box.MsgValue2);
  screen.BreakPointHigh = std::max(box.MsgValue1, box.MsgValue2);
  return true;
}

bool FindSession(Game& game, bool ask, int step) {
  SessionsLogs& screen = game.sessions;
  if (!IsOccupied(game.table, screen.SessionsSeat)) return false;
  if (ask) {
    game.box.MsgValue1 = screen.FindValue;
    const std::string measure(MeasureName(QueryOf(screen).Measure));
    if (ShowMessage<Msg::kAskFindSession>(game, With<"measure">(measure)) != kResultOk) return false;
    screen.FindValue = game.box.MsgValue1;
  }
  SessionsLogFile file;
  std::int64_t found = 0;
  // What was just typed may stand in the top line itself.
  const std::int64_t from = ask ? screen.SessionsTopRow - step : screen.SessionsTopRow;
  std::string problem = OpenOf(game, screen.SessionsSeat, file, SessionsAccess::kRead);
  const auto goOn = [&](std::int64_t) {
    game.host->YieldByClock(game);
    return Interrupted() ? SignalReason() : std::string();
  };
  if (problem.empty())
    problem = FindSessionValue(file, QueryOf(screen).Measure, screen.FindValue, from, step, found, goOn);
  TellProblem(game, problem);
  if (found > 0) screen.SessionsTopRow = found;
  return found > 0;
}

std::string BreakPointLabel(const SessionsLogs& screen) {
  if (screen.BreakPointLow == screen.BreakPointHigh) return {};
  return FormatMoney(screen.BreakPointLow) + " - " + FormatMoney(screen.BreakPointHigh);
}

std::string ReadSessionsRows(Game& game, const SessionsStatistics& statistics, std::size_t count,
                             std::vector<SessionsRow>& rows) {
  rows.clear();
  const SessionsLogs& screen = game.sessions;
  const SeatId seat = screen.SessionsSeat;
  if (!IsOccupied(game.table, seat) || !IsThere(SessionsLogPath(game, seat))) return {};
  SessionsLogFile file;
  std::int64_t sessions = 0;
  std::string problem = OpenOf(game, seat, file, SessionsAccess::kRead);
  if (problem.empty()) problem = CountSessions(file, sessions);
  if (!problem.empty()) return problem;
  const std::int64_t first = std::max<std::int64_t>(screen.SessionsTopRow, 1);
  const std::int64_t last = std::min(sessions, first + static_cast<std::int64_t>(count) - 1);
  const auto add = [&](const Record& session, std::int64_t number) {
    const Currency value = SessionValue(session, statistics.Query.Measure);
    rows.push_back({number, SessionValue(session, kSessionRolls), value, TakesPart(statistics.Query, session),
                    DeviationsOf(statistics, value)});
  };
  return ForEachSession(file, first, last, add);
}

}  // namespace tessaryn
