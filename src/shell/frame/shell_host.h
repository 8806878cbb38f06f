// What the window does for the table: boxes, user events, clocks, sounds, redraws.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "shell/screens/message_screen.h"
#include "shell/table/roll_story.h"
#include "state/host.h"

namespace tessaryn {

class Sounds;

// Notes on a bet that nobody is asked about: a limit, a charge, a change. They may stand in a list instead of
// in boxes.
bool IsNote(Msg id);

class ShellHost : public Host {
 public:
  ShellHost();
  ~ShellHost() override;
  ShellHost(const ShellHost&) = delete;
  ShellHost& operator=(const ShellHost&) = delete;

  // The window that boxes stand over. Not owned.
  QPointer<QWidget> window;
  // Answers given in advance, for tests; while there are some, boxes aren't shown.
  AnswerQueue answers;
  // Called in a Turbo-Roll ten times a second, less often when that would slow it.
  std::function<void(Game&)> showProgress;
  // A run stands between two rolls, so that the table is whole. Called many times a second.
  std::function<void(Game&)> betweenRolls;
  // A box is about to come up: what it stands over is brought up to date, since the state rests until it is
  // answered.
  std::function<void()> beforeBox;
  // A note is told in a list. Empty: in a box.
  std::function<void(Game&, const MessageBox&)> showNote;
  // The last rolls, those of a run at full speed too.
  RollHistory rolled;
  // The settlement dialog. Empty: the safe choice.
  std::function<SettleAnswer(Game&, const SettleQuestion&)> askSettlement;
  std::function<void(Game&, Change)> changed;
  // The dice have been thrown: shows their tumble. Not called in a Turbo-Roll.
  std::function<void(Game&)> showThrow;
  // The house's bank is broken: shows it. Not called in a Turbo-Roll.
  std::function<void(Game&)> showWin;
  std::function<void(Game&, const ScriptStep&)> showStep;
  // A page of the bankroll graph is full, also in a Turbo-Roll.
  std::function<void(Game&)> graphPageFull;
  Sounds* sounds = nullptr;  // not owned; null: silent

  void ShowMessage(Game& game, MessageBox& box) override;
  void EndNotice(Game& game) override;
  SettleAnswer AskSettlement(Game& game, const SettleQuestion& question) override;
  bool Yield(Game& game) override;
  bool YieldByClock(Game& game) override;
  void Wait(Game& game) override;
  std::uint32_t TickMilliseconds() override;
  std::string DateText() override;
  std::string TimeText() override;
  double SecondsSinceMidnight() override;
  double DateTimeNumber() override;
  void PlaySound(Game& game, Sound sound) override;
  bool PlaySoundFile(Game& game, const std::string& name) override;
  void Changed(Game& game, Change change) override;
  void GraphPageFull(Game& game) override;
  void ShowStep(Game& game, const ScriptStep& step) override;

 private:
  void TellBetweenRolls(Game& game);

  QPointer<MessageScreen> notice_;  // of work that is under way
  QElapsedTimer clock_;
  qint64 lastEvents_ = 0;  // when user events were last let in, in milliseconds of the clock
  qint64 lastProgress_ = 0;
  qint64 progressEvery_ = 0;  // milliseconds
  static constexpr std::uint32_t kYieldsPerLook = 0x400;
  std::uint32_t yields_ = 0;
};

}  // namespace tessaryn
