// What the menu of the sessions does: with the log as a file, with its sessions, and looking for one.
#include <QFileInfo>

#include "base/interrupts.h"
#include "shell/screens/core_words.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/sessions_log_rows.h"
#include "shell/screens/sessions_log_screen.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {

const FilePurpose kOpenLog{QT_TRANSLATE_NOOP("Files", "Open Sessions Log"),
                           QT_TRANSLATE_NOOP("Files", "Sessions logs (*.slg);;All files (*)"),
                           ".slg",
                           false,
                           false,
                           kSessionsLogFolder};
const FilePurpose kSaveLog{QT_TRANSLATE_NOOP("Files", "Save Sessions Log As"),
                           QT_TRANSLATE_NOOP("Files", "Sessions logs (*.slg);;All files (*)"),
                           ".slg",
                           true,
                           true,
                           kSessionsLogFolder};

}  // namespace

void SessionsLogScreen::Tell(const QString& title, const std::string& problem) {
  if (!problem.empty())
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(ToCore(title)), With<"problem">(problem));
}

// One whose change would keep the window from drawing is changed beside it.
bool SessionsLogScreen::IsLarge(const std::string& path) const {
  return QFileInfo(FromCore(path)).size() >= kAnnounced * qint64{kRecordBytes};
}

void SessionsLogScreen::Change(const QString& text, const SessionsChange& change,
                               void (SessionsLogScreen::*tell)(const std::string&)) {
  const std::string path = SessionsLogPath(game_, game_.sessions.SessionsSeat);
  const qint64 bytes = QFileInfo(FromCore(path)).size() + QFileInfo(FromCore(change.Other)).size();
  change_.Begin(
      text, bytes / qint64{kRecordBytes},
      [path, change](const LongWork::GoOn& goOn) { return RewriteSessionsLog(path, change, goOn); },
      [this, tell](const std::string& problem) { (this->*tell)(problem); });
  look_.start(kLookEvery);
}

void SessionsLogScreen::Copy(const std::string& path, bool keepName) {
  const SeatId seat = game_.sessions.SessionsSeat;
  const std::string player = game_.table.seats[seat].SeatName;
  const std::string old = keepName ? DefaultSessionsLogName(game_, player) : SessionsLogPath(game_, seat);
  const auto copied = std::make_shared<std::int64_t>();
  change_.Begin(
      tr("Saving the log ..."), QFileInfo(FromCore(old)).size() / qint64{kRecordBytes},
      [old, path, copied](const LongWork::GoOn& goOn) {
        SessionsLogFile file;
        const std::string problem = OpenSessionsFile(file, old, SessionsAccess::kRead);
        return problem.empty() ? CopySessionsLog(file, path, copied.get(), goOn) : problem;
      },
      [this, seat, player, old, path, copied, keepName](std::string problem) {
        // Who left the table meanwhile, or opened another log, has the copy and that is all.
        const bool there =
            game_.table.seats[seat].SeatName == player && (keepName || SessionsLogPath(game_, seat) == old);
        if (problem.empty() && there) problem = UseSessionsLogCopy(game_, seat, path, *copied, keepName);
        Tell(FileTitleOf(kSaveLog), problem);
      });
  look_.start(kLookEvery);
}

void SessionsLogScreen::TellNotDeleted(const std::string& problem) {
  if (!problem.empty()) ShowMessage<Msg::kSessionsNotDeleted>(game_, With<"problem">(problem));
}

void SessionsLogScreen::TellFailed(const std::string& problem) {
  if (!problem.empty()) ShowMessage<Msg::kSessionsLogFailed>(game_, With<"problem">(problem));
}

// The user wants the old log kept under another name; nothing begins anew without it.
void SessionsLogScreen::KeepOld() {
  const std::string path = ChooseFile(game_, this, kSaveLog);
  const SeatId seat = game_.sessions.SessionsSeat;
  if (path.empty()) return;
  if (IsLarge(DefaultSessionsLogName(game_, game_.table.seats[seat].SeatName))) return Copy(path, true);
  Tell(FileTitleOf(kSaveLog), KeepSessionsLogAs(game_, seat, path));
}

void SessionsLogScreen::NewLog() {
  if (NewSessionsLog(game_, game_.sessions.SessionsSeat) == NewLog::kRenameFirst) KeepOld();
  Recompute();
}

void SessionsLogScreen::NewAllLogs() {
  if (NewAllSessionsLogs(game_) == NewLog::kRenameFirst) KeepOld();
  Recompute();
}

void SessionsLogScreen::OpenLog() {
  const std::string path = ChooseFile(game_, this, kOpenLog);
  if (!path.empty()) OpenPath(path);
}

void SessionsLogScreen::OpenPath(const std::string& path) {
  ChooseSeat();
  const std::string problem = OpenSessionsLog(game_, game_.sessions.SessionsSeat, path);
  if (!problem.empty()) ShowMessage<Msg::kSessionsLogNotOpened>(game_, With<"problem">(problem));
  Recompute();
}

void SessionsLogScreen::SaveAs() {
  const std::string path = ChooseFile(game_, this, kSaveLog);
  if (path.empty()) return;
  if (IsLarge(SessionsLogPath(game_, game_.sessions.SessionsSeat))) {
    Copy(path, false);
    return Refresh();
  }
  Tell(FileTitleOf(kSaveLog), SaveSessionsLogAs(game_, game_.sessions.SessionsSeat, path));
  Recompute();
}

void SessionsLogScreen::Merge() {
  const std::string path = ChooseFile(game_, this, kOpenLog);
  if (path.empty()) return;
  if (IsLarge(path)) {
    SessionsLogFile there;  // its log may not be there yet
    const std::string own = SessionsLogPath(game_, game_.sessions.SessionsSeat);
    const std::string problem = OpenSessionsFile(there, own, SessionsAccess::kCreate);
    if (!problem.empty()) return TellFailed(problem);
    Change(tr("Merging the logs ..."), {0, 0, path}, &SessionsLogScreen::TellFailed);
    return Refresh();
  }
  TellFailed(MergeSessionsLog(game_, game_.sessions.SessionsSeat, path));
  Recompute();
}

void SessionsLogScreen::DeleteSome() {
  const SeatId seat = game_.sessions.SessionsSeat;
  if (!IsLarge(SessionsLogPath(game_, seat))) return DeleteSessions(game_, seat) ? Recompute() : void();
  SessionsChange change;
  if (!AskDeleteSessions(game_, change.First, change.Last)) return;
  if (change.First < 1) return TellNotDeleted(MessageText<Msg::kSessionsOutOfRange>());
  Change(tr("Deleting sessions ..."), change, &SessionsLogScreen::TellNotDeleted);
  Refresh();
}

void SessionsLogScreen::DeleteAll() {
  if (DeleteAllSessions(game_, game_.sessions.SessionsSeat)) Recompute();
}

void SessionsLogScreen::AskBreakPoint() {
  if (SetBreakPoint(game_)) Recompute();
}

void SessionsLogScreen::Find() {
  SessionsLogs& screen = game_.sessions;
  game_.box.MsgValue1 = screen.FindValue;
  const std::string measure(MeasureName(QueryOf(screen).Measure));
  if (ShowMessage<Msg::kAskFindSession>(game_, With<"measure">(measure)) != kResultOk) return;
  screen.FindValue = game_.box.MsgValue1;
  // What was just typed may stand in the top line itself.
  FindFrom(screen.SessionsTopRow - 1, 1);
}

void SessionsLogScreen::FindNext() { FindFrom(game_.sessions.SessionsTopRow, 1); }
void SessionsLogScreen::FindPrevious() { FindFrom(game_.sessions.SessionsTopRow, -1); }

void SessionsLogScreen::FindFrom(std::int64_t from, int step) {
  const SeatId seat = game_.sessions.SessionsSeat;
  if (search_.IsOn() || seat == 0) return;
  hit_ = std::make_shared<Hit>();
  const std::int64_t ahead = step > 0 ? result_->sessions - from : from;
  search_.Start(
      [hit = hit_, path = SessionsLogPath(game_, seat), measure = QueryOf(game_.sessions).Measure,
       value = game_.sessions.FindValue, from, step](const LongWork::GoOn& goOn) {
        SessionsLogFile file;
        if (!QFileInfo::exists(FromCore(path))) return;
        hit->problem = OpenSessionsFile(file, path, SessionsAccess::kRead);
        if (hit->problem.empty())
          hit->problem = FindSessionValue(file, measure, value, from, step, hit->session, goOn);
      },
      ahead);
  look_.start(kLookEvery);
}

void SessionsLogScreen::FindEnded() {
  if (!search_.IsCancelled()) {
    const std::int64_t session = hit_->session;
    if (!hit_->problem.empty()) {
      ShowMessage<Msg::kSessionsLogFailed>(game_, With<"problem">(hit_->problem));
    } else if (session == 0) {
      ShowMessage<Msg::kSessionValueNotFound>(game_);
    } else {
      game_.sessions.SessionsTopRow = session;
      game_.sessions.SessionsDisplayMode = 1;
      rows_->SetFound(session);
    }
  }
  ShowAll();
}

}  // namespace tessaryn
