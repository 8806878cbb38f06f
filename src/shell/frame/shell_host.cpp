#include "shell/frame/shell_host.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QLocale>
#include <QTimer>
#include <algorithm>

#include "base/messages.h"
#include "shell/frame/sounds.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

namespace {
constexpr qint64 kEventsEvery = 10;     // milliseconds between two looks at the user's events in a run
constexpr qint64 kProgressEvery = 100;  // and between two refreshes of what shows it
constexpr qint64 kProgressShare = 21;   // one part in so many of a run's time goes into them
constexpr qint64 kSlowestProgress = 2000;
constexpr int kWaitStep = 10;
}  // namespace

bool IsNote(Msg id) {
  constexpr Msg kNotes[] = {Msg::kMinimumBet,     Msg::kMaximumBet,     Msg::kMaximumBetButContract,
                            Msg::kVigCharged,     Msg::kVigOnWin,       Msg::kBankrollTooSmall,
                            Msg::kBetIncreasedBy, Msg::kBetDecreasedBy, Msg::kBetRemains};
  return std::find(std::begin(kNotes), std::end(kNotes), id) != std::end(kNotes);
}

ShellHost::ShellHost() { clock_.start(); }

ShellHost::~ShellHost() { delete notice_; }

// A notice stands over the window while the work goes on; the next box takes its place.
void ShellHost::ShowMessage(Game& game, MessageBox& box) {
  EndNotice(game);
  if (showNote && IsNote(box.MsgId)) {
    showNote(game, box);
    box.MsgResult = kResultOk;
    return;
  }
  if (beforeBox) beforeBox();
  if (IsNotice(box)) {
    notice_ = new MessageScreen(box, window);
    notice_->show();
    box.MsgResult = kResultOk;
    return;
  }
  if (answers.Take(box)) return;
  ShowMessageScreen(box, window);
}

void ShellHost::EndNotice(Game&) { delete notice_; }

SettleAnswer ShellHost::AskSettlement(Game& game, const SettleQuestion& question) {
  if (beforeBox) beforeBox();
  return askSettlement ? askSettlement(game, question) : SettleAnswer{};
}

// A roll costs less than a look at the clock, so that is taken now and then only.
bool ShellHost::YieldByClock(Game& game) {
  yields_ = kYieldsPerLook - 1;
  return Yield(game);
}

// A script gives way and waits too, at its own places in a roll.
void ShellHost::TellBetweenRolls(Game& game) {
  if (betweenRolls && game.table.AutoRollActive && !game.autobet.ScriptRunning) betweenRolls(game);
}

bool ShellHost::Yield(Game& game) {
  rolled.Note(game);
  if ((++yields_ % kYieldsPerLook) != 0 && game.table.TurboRollActive && game.settings.RollThrottle == 0)
    return false;
  const qint64 now = clock_.elapsed();
  if (now - lastEvents_ < kEventsEvery) return false;
  const bool progress = game.table.TurboRollActive && showProgress && now - lastProgress_ >= progressEvery_;
  if (progress) {
    lastProgress_ = now;
    showProgress(game);
  }
  TellBetweenRolls(game);
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  lastEvents_ = clock_.elapsed();
  // Screens that take long to draw are drawn the less often.
  if (progress)
    progressEvery_ = std::clamp((lastEvents_ - now) * kProgressShare, kProgressEvery, kSlowestProgress);
  return true;
}

void ShellHost::Wait(Game& game) {
  TellBetweenRolls(game);
  QEventLoop loop;
  QTimer::singleShot(kWaitStep, &loop, &QEventLoop::quit);
  loop.exec();
}

std::uint32_t ShellHost::TickMilliseconds() { return MachineTick(); }

std::string ShellHost::DateText() {
  return QLocale().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::string ShellHost::TimeText() {
  return QLocale().toString(QTime::currentTime(), QLocale::ShortFormat).toStdString();
}

double ShellHost::SecondsSinceMidnight() { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }

double ShellHost::DateTimeNumber() {
  const QDateTime now = QDateTime::currentDateTime();
  const qint64 days = QDate(1899, 12, 30).daysTo(now.date());
  return static_cast<double>(days) + now.time().msecsSinceStartOfDay() / 86'400'000.0;
}

void ShellHost::PlaySound(Game& game, Sound sound) {
  if (game.table.TurboRollActive) return;
  if (sounds != nullptr) sounds->Play(sound, game);
  if (sound == Sound::kDice && diceThrown) diceThrown(game);
  if (sound == Sound::kDice && showThrow) showThrow(game);
  if (sound == Sound::kWin && showWin) showWin(game);
}

bool ShellHost::PlaySoundFile(Game& game, const std::string& name) {
  if (sounds == nullptr || game.settings.DisableAllSound) return false;
  return sounds->PlayFile(FromCore(name));
}

void ShellHost::Changed(Game& game, Change change) {
  rolled.Note(game);
  if (changed) changed(game, change);
}

void ShellHost::GraphPageFull(Game& game) {
  if (graphPageFull) graphPageFull(game);
}

void ShellHost::ShowStep(Game& game, const ScriptStep& step) {
  if (showStep) showStep(game, step);
}

}  // namespace tessaryn
