// Scripts on the command line: the commands of play that concern them, and the options that load them.
#pragma once

#include <string>
#include <vector>

#include "cli/play_session.h"

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

// Gives the k-th file to the k-th player, and activates it. False, with the reason told on standard error,
// when a file can't be read or its script has an error.
bool LoadScripts(Game& game, const std::vector<std::string>& files,
                 const std::vector<std::string>& outputFolders);

// Gives the permissions of SEAT=PERMISSION,... to the seats' scripts. False, with the reason told on standard
// error, when one names no player or no permission.
bool PermitScripts(Game& game, const std::vector<std::string>& permits);

// A message of the table with its line ends as lines of a terminal.
std::string AsLines(const std::string& text);

}  // namespace tessaryn::cli
