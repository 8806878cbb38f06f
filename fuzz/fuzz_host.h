// A host for fuzz targets: boxes get changing answers, and runs and scripts end after a bounded number of
// turns.
#pragma once

#include "state/game.h"

namespace tessaryn::fuzz {

// Base is Host, or a host of the command line.
template <typename Base>
struct BoundedHost : Base {
  int turns = 0;
  int mostTurns = 1000;

  void ShowMessage(Game&, MessageBox& box) override {
    box.MsgEntry = (turns & 1) != 0 ? "12" : "";
    box.MsgResult = (box.MsgFlags & kMsgNo) != 0 ? kResultNo : kResultOk;
  }
  bool Yield(Game& game) override {
    if (++turns > mostTurns) {
      game.autobet.ScriptRunning = false;
      game.table.AutoRollActive = false;
    }
    return false;
  }
  void Wait(Game& game) override { game.table.AutoRollActive = false; }
  std::uint32_t TickMilliseconds() override { return static_cast<std::uint32_t>(turns); }
  std::string DateText() override { return "2001-02-03"; }
  std::string TimeText() override { return "04:05:06"; }
  double SecondsSinceMidnight() override { return 1; }
  double DateTimeNumber() override { return 36925.5; }
};

using FuzzHost = BoundedHost<Host>;

}  // namespace tessaryn::fuzz
