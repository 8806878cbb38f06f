// What the command-line programs do for the table: clocks, questions and answers, the end of a run.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>

#include "base/interrupts.h"
#include "base/program_folders.h"
#include "state/game.h"

namespace tessaryn::cli {

// The clocks, and a run of so many rolls. Boxes are told on standard error; questions get their safe answer:
// No, else Cancel, else OK.
class CliHost : public Host {
 public:
  // The run stops once the dice were thrown this often, whatever sessions begin meanwhile; 0 never.
  std::int64_t rollTarget = 0;
  // Called every few milliseconds of a run.
  std::function<void(Game&)> progress;
  // Called for every step of a script while steps are shown.
  std::function<void(Game&, const ScriptStep&)> step;

  void ShowMessage(Game& game, MessageBox& box) override;
  bool Yield(Game& game) override;
  bool YieldByClock(Game& game) override;
  void Wait(Game& game) override;
  void ShowStep(Game& game, const ScriptStep& shown) override {
    if (step) step(game, shown);
  }
  std::uint32_t TickMilliseconds() override;
  std::string DateText() override;
  std::string TimeText() override;
  double SecondsSinceMidnight() override;
  double DateTimeNumber() override;

 private:
  static constexpr std::uint32_t kYieldsPerLook = 0x4000;
  std::uint32_t yields_ = 0;
};

// Answers that a user gave in advance, for boxes as they come.
class QueuedAnswers {
 public:
  void Add(const std::string& answer) { answers_.push_back(answer); }
  bool Empty() const { return answers_.empty(); }
  std::size_t Size() const { return answers_.size(); }
  // Fills the box from the next answer that fits it; false when there is none.
  bool Answer(MessageBox& box);
  // A whole number 1 to 7 as the next answer; 0 without one.
  int TakeChoice();

 private:
  std::deque<std::string> answers_;
};

// The answer that keeps things as they are.
void SafeAnswer(MessageBox& box);

}  // namespace tessaryn::cli
