// A table driven by commands, a line each. The pipe and the terminal both stand on it.
#pragma once

#include <string>
#include <vector>

#include "cli/cli_host.h"
#include "cli/table_json.h"

namespace tessaryn::cli {

// Answers boxes from the queue, and else safely.
class PlayHost : public CliHost {
 public:
  QueuedAnswers answers;
  // The command in hand is itself the wish to have this asked done: the next yes/no box without contract
  // money is answered with yes.
  bool confirmNext = false;
  // A step of a script, while they are shown: as a line of JSON.
  virtual void TellStep(Game& game, const ScriptStep& shown);
};

// Prints every box as one line of JSON ahead of the command's answer.
class PipeHost : public PlayHost {
 public:
  void ShowMessage(Game& game, MessageBox& box) override;
  SettleAnswer AskSettlement(Game& game, const SettleQuestion& question) override;
};

// A command's name, what stands behind it, and what it does.
struct PlayCommandInfo {
  const char* name;
  const char* arguments;
  const char* help;
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
  bool ended_ = false;
};

// The words of a line; "quoted words" stay together.
std::vector<std::string> SplitWords(const std::string& line);

}  // namespace tessaryn::cli
