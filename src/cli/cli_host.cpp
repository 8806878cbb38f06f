#include "cli/cli_host.h"

#include <cstdio>
#include <ctime>
#include <thread>

#include "base/messages.h"
#include "cli/script_report.h"
#include "play/auto_roll.h"
#include "state/run_stop.h"

namespace tessaryn::cli {

void SafeAnswer(MessageBox& box) {
  if ((box.MsgFlags & kMsgNo) != 0)
    box.MsgResult = kResultNo;
  else if ((box.MsgFlags & kMsgCancel) != 0)
    box.MsgResult = kResultCancel;
  else
    box.MsgResult = kResultOk;
}

// The reason of a run that stopped is told by whoever asked for the run.
void CliHost::ShowMessage(Game&, MessageBox& box) {
  SafeAnswer(box);
  if (box.MsgId == Msg::kRunStopped) return;
  std::fprintf(stderr, "%s: %s\n", box.MsgTitle.c_str(), AsLines(box.MsgText).c_str());
}

bool CliHost::YieldByClock(Game& game) {
  yields_ = kYieldsPerLook - 1;
  return Yield(game);
}

bool CliHost::Yield(Game& game) {
  if (rollTarget > 0 && Throws(game.stats) >= rollTarget && game.table.AutoRollActive) {
    StopRun(game, "");
    return false;
  }
  if (Interrupted()) {
    game.autobet.ScriptRunning = false;
    StopRun(game, SignalReason());
    return true;
  }
  // The clock is looked at now and then only: a roll costs less than asking for the time.
  if ((++yields_ % kYieldsPerLook) != 0 && game.table.TurboRollActive) return false;
  if (progress && game.table.TurboRollActive) progress(game);
  return false;
}

void CliHost::Wait(Game& game) {
  std::this_thread::sleep_for(std::chrono::milliseconds(5));
  Yield(game);
}

std::uint32_t CliHost::TickMilliseconds() { return MachineTick(); }

namespace {

std::tm LocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local;
}

std::string TimeAs(const char* format) {
  const std::tm local = LocalTime();
  char text[64];
  const std::size_t length = std::strftime(text, sizeof text, format, &local);
  return std::string(text, length);
}

}  // namespace

std::string CliHost::DateText() { return TimeAs("%Y-%m-%d"); }
std::string CliHost::TimeText() { return TimeAs("%H:%M:%S"); }

double CliHost::SecondsSinceMidnight() {
  const std::tm local = LocalTime();
  return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec;
}

double CliHost::DateTimeNumber() {
  std::tm local = LocalTime();
  const double secondsOfDay = SecondsSinceMidnight();
  local.tm_hour = 12;
  local.tm_min = local.tm_sec = 0;
  const std::time_t noon = timegm(&local);
  constexpr double kDaysTo1970 = 25569;
  return kDaysTo1970 + static_cast<double>(noon / 86400) + secondsOfDay / 86400.0;
}

bool QueuedAnswers::Answer(MessageBox& box) {
  if (answers_.empty()) return false;
  const std::string answer = answers_.front();
  answers_.pop_front();
  if (answer == "yes") {
    box.MsgResult = kResultYes;
  } else if (answer == "no") {
    box.MsgResult = kResultNo;
  } else if (answer == "ok") {
    box.MsgResult = kResultOk;
  } else if (answer == "cancel") {
    box.MsgResult = kResultCancel;
  } else {
    box.MsgResult = kResultOk;
    box.MsgEntry = answer;
    TryParseMoney(answer, box.MsgValue1);
    if ((box.MsgFlags & kMsgTwoInputs) == kMsgTwoInputs && !answers_.empty() &&
        TryParseMoney(answers_.front(), box.MsgValue2))
      answers_.pop_front();
  }
  return true;
}

int QueuedAnswers::TakeChoice() {
  if (answers_.empty() || answers_.front().size() != 1) return 0;
  const char digit = answers_.front()[0];
  if (digit < '1' || digit > '7') return 0;
  answers_.pop_front();
  return digit - '0';
}

}  // namespace tessaryn::cli
