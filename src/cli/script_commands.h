// Scripts on the command line: the commands of play that concern them.
#pragma once

#include <string>
#include <vector>

#include "cli/play_host.h"
#include "cli/table_json.h"

namespace tessaryn::cli {

struct ScriptCommandCall {
  Game& game;
  PlayHost& host;
  const std::vector<std::string>& words;  // words[0] is the command
  Json answer = Json::object();
  std::string error;
};

struct ScriptCommand {
  PlayCommandInfo info;
  bool (*run)(ScriptCommandCall&);
};
const std::vector<ScriptCommand>& ScriptCommands();

// Carries out a command that concerns scripts; false when words[0] is none.
bool DoScriptCommand(Game& game, PlayHost& host, const std::vector<std::string>& words, Json& answer);

}  // namespace tessaryn::cli
