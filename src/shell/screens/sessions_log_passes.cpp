// The passes over the log that the figures take: which is wanted, begun, over.
#include <QComboBox>
#include <QFileInfo>

#include "base/interrupts.h"
#include "shell/screens/core_words.h"
#include "shell/screens/sessions_log_screen.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {

constexpr qint64 kRestFactor = 4;  // a log that grows is left alone as many times as long as a pass took

bool SameQuery(const SessionsQuery& a, const SessionsQuery& b) {
  const bool limits =
      a.Outliers == b.Outliers &&
      (a.Outliers == OutlierRule::kNone || (a.OutlierLow == b.OutlierLow && a.OutlierHigh == b.OutlierHigh));
  return limits && a.Measure == b.Measure && a.BreakPointLow == b.BreakPointLow &&
         a.BreakPointHigh == b.BreakPointHigh && a.IncludeWon == b.IncludeWon &&
         a.IncludeBrokeEven == b.IncludeBrokeEven && a.IncludeLost == b.IncludeLost;
}

}  // namespace

void SessionsLogScreen::ChooseSeat() {
  SeatId& seat = game_.sessions.SessionsSeat;
  if (IsOccupied(game_.table, seat)) return;
  seat = IsOccupied(game_.table, game_.table.SelectedSeat) ? game_.table.SelectedSeat : kNobody;
  for (SeatId other = 1; other <= kSeats && seat == 0; ++other)
    if (IsOccupied(game_.table, other)) seat = other;
}

void SessionsLogScreen::ListPlayers() {
  QList<std::pair<QString, int>> players;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(game_.table, seat)) players.append({FromCore(game_.table.seats[seat].SeatName), seat});
  bool same = player_->count() == players.size();
  for (int i = 0; same && i < player_->count(); ++i)
    same = player_->itemText(i) == players[i].first && player_->itemData(i).toInt() == players[i].second;
  if (!same) {
    player_->clear();
    for (const auto& [name, seat] : players) player_->addItem(name, seat);
  }
  player_->setCurrentIndex(player_->findData(game_.sessions.SessionsSeat.value));
  for (QAction* action : needSeat_) action->setEnabled(game_.sessions.SessionsSeat != 0 && !change_.IsOn());
}

// Of a log that isn't there yet: none.
std::int64_t SessionsLogScreen::CountNow(std::string& problem) const {
  const SeatId seat = game_.sessions.SessionsSeat;
  const std::string path = seat == 0 ? "" : SessionsLogPath(game_, seat);
  if (path.empty() || !QFileInfo::exists(FromCore(path))) return 0;
  SessionsLogFile file;
  std::int64_t count = 0;
  problem = OpenSessionsFile(file, path, SessionsAccess::kRead);
  if (problem.empty()) problem = CountSessions(file, count);
  return problem.empty() ? count : 0;
}

bool SessionsLogScreen::IsAsked(const Result& result) const {
  const SeatId seat = game_.sessions.SessionsSeat;
  return result.path == (seat == 0 ? "" : SessionsLogPath(game_, seat)) &&
         SameQuery(result.query, QueryOf(game_.sessions));
}

bool SessionsLogScreen::IsWanted(const Result& result) const {
  std::string problem;
  return IsAsked(result) && result.sessions == CountNow(problem);
}

bool SessionsLogScreen::IsUpToDate() const { return !pass_.IsOn() && !again_ && IsWanted(*result_); }

// Begins the pass that is wanted, if there is one. A log that grows all the time is not read all the time.
void SessionsLogScreen::Compute() {
  if (stopped_ && !again_) return;
  if (pass_.IsOn()) {
    if (!IsAsked(*coming_)) pass_.Cancel();
    return;
  }
  if (!again_ && IsWanted(*result_)) return;
  const bool grown = !again_ && SameQuery(result_->query, QueryOf(game_.sessions)) && sinceLast_.isValid();
  if (grown && sinceLast_.elapsed() < kRestFactor * lastPass_) {
    look_.start(kLookEvery);
    return;
  }
  again_ = false;
  std::string problem;
  const std::int64_t sessions = CountNow(problem);
  Begin(sessions);
}

void SessionsLogScreen::Begin(std::int64_t sessions) {
  const SeatId seat = game_.sessions.SessionsSeat;
  coming_ = std::make_shared<Result>();
  coming_->path = seat == 0 ? "" : SessionsLogPath(game_, seat);
  coming_->sessions = sessions;
  coming_->query = QueryOf(game_.sessions);
  const bool limits = coming_->query.Outliers != OutlierRule::kNone;
  const bool byDeviations = coming_->query.Outliers == OutlierRule::kByDeviations;
  const std::int64_t passes = 3 + (limits ? 3 : 0) + (byDeviations ? 2 : 0);
  game_.sessions.Files.Calculating = true;
  pass_.Start(
      [result = coming_, limits, sessions](const LongWork::GoOn& goOn) {
        SessionsLogFile file;
        if (result->path.empty() || !QFileInfo::exists(FromCore(result->path))) return;
        result->problem = OpenSessionsFile(file, result->path, SessionsAccess::kRead);
        if (!result->problem.empty()) return;
        SessionsQuery all = result->query;
        all.Outliers = OutlierRule::kNone;
        result->problem = ComputeSessions(file, all, result->whole, result->overflow, goOn);
        result->statistics = result->whole;
        if (!limits || !result->problem.empty()) return;
        result->problem = ComputeSessions(file, result->query, result->statistics, result->overflow,
                                          [&](std::int64_t done) { return goOn(3 * sessions + done); });
      },
      passes * sessions);
  look_.start(kLookEvery);
}

void SessionsLogScreen::PassEnded() {
  game_.sessions.Files.Calculating = false;
  lastPass_ = pass_.Milliseconds();
  sinceLast_.start();
  const bool cancelled = pass_.IsCancelled();
  if (!cancelled) {
    result_ = coming_;
    TellProblem();
  }
  coming_.reset();
  if (isVisible()) Compute();
  ShowAll();
}

// Once, and not over a Turbo-Roll; the strip tells it as long as it is so.
void SessionsLogScreen::TellProblem() {
  const std::string problem = result_->problem;
  const bool tell = !problem.empty() && problem != told_ && !game_.table.TurboRollActive && !Interrupted();
  told_ = problem;
  if (!tell) return;
  const SeatId seat = game_.sessions.SessionsSeat;
  if (result_->overflow)
    ShowMessage<Msg::kSessionsNotComputed>(game_, With<"name">(game_.table.seats[seat].SeatName));
  else
    ShowMessage<Msg::kSessionsLogNotOpened>(game_, With<"problem">(problem));
}

// The strip's button: stops what is on, or begins what was stopped.
void SessionsLogScreen::StopPass() {
  if (change_.IsOn()) return change_.Cancel();
  if (search_.IsOn()) return search_.Cancel();
  if (pass_.IsOn()) {
    stopped_ = true;
    pass_.Cancel();
    return;
  }
  Recompute();
}

void SessionsLogScreen::Recompute() {
  stopped_ = false;
  again_ = true;
  if (pass_.IsOn()) pass_.Cancel();
  Refresh();
}

void SessionsLogScreen::Refresh() {
  ChooseSeat();
  ListPlayers();
  Compute();
  ShowAll();
}

}  // namespace tessaryn
