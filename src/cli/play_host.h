// What the commands of play stand on.
#pragma once

#include "cli/cli_host.h"
#include "play/session_luck.h"

namespace tessaryn::cli {

// Answers boxes from the queue, and else safely.
class PlayHost : public CliHost, public LuckKeeper {
 public:
  QueuedAnswers answers;
  // The command in hand is itself the wish to have this asked done: the next yes/no box without contract
  // money is answered with yes.
  bool confirmNext = false;
  bool MayConfirm(const MessageBox& box) const;
  // A step of a script, while they are shown: as a line of JSON.
  virtual void TellStep(Game& game, const ScriptStep& shown);
};

// A command's name, what stands behind it, and what it does.
struct PlayCommandInfo {
  const char* name;
  const char* arguments;
  const char* help;
};

}  // namespace tessaryn::cli
