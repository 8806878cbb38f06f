// A table driven by commands, a line each. The pipe and the terminal both stand on it.
#pragma once

#include <string>
#include <vector>

#include "cli/play_host.h"
#include "cli/table_json.h"
#include "play/bet_history.h"

namespace tessaryn::cli {

// Prints every box as one line of JSON ahead of the command's answer.
class PipeHost : public PlayHost {
 public:
  void ShowMessage(Game& game, MessageBox& box) override;
  SettleAnswer AskSettlement(Game& game, const SettleQuestion& question) override;
};

const std::vector<PlayCommandInfo>& PlayCommands();

class PlaySession {
 public:
  PlaySession(Game& game, PlayHost& host);
  // Carries out one line and returns its answer: {"ok":true,...} or {"ok":false,"error":"..."}.
  Json Do(const std::string& line);
  bool Ended() const { return ended_; }

 private:
  Game& game_;
  PlayHost& host_;
  BetHistory history_;
  bool ended_ = false;
};

// The words of a line; "quoted words" stay together.
std::vector<std::string> SplitWords(const std::string& line);

}  // namespace tessaryn::cli
