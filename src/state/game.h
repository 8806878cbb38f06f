// One table with everything that belongs to it. A process can hold many, one to a thread.
#pragma once

#include <memory>
#include <string>

#include "state/auto_bet_state.h"
#include "rules/payoffs.h"
#include "state/settings.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "rules/bet_limits.h"
#include "state/host.h"
#include "state/table_state.h"
#include "base/folder_lock.h"
#include "stats/bankroll_graph.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {

struct Game {
  TableState table;
  Settings settings;
  PayoffTables payoffs;
  mutable KeptMaximums maximums;  // of the two above
  Statistics stats;
  BankrollGraph graph;
  Generators generators;
  PercentageDice percentage;
  RollFile rollFile;
  AutoBet autobet;
  EventsLog events;
  MessageBox box;                 // the box being asked
  std::string applicationFolder;  // the programs and support files; ends with a separator
  std::string dataFolder;         // everything that is kept; ends with a separator
  std::string ownFolder;          // logs, work files and what scripts write: the data folder, or one in it
                                  // while another program has that; see ClaimDataFolder
  FolderLock folderLock;          // on ownFolder, of programs
  Host* host = nullptr;           // not owned; outlives the game
};

// A table on its defaults: rules, payoffs and generators as at a first start. host outlives the game.
// applicationFolder and dataFolder may come with or without a separator at the end.
std::unique_ptr<Game> StartGame(Host& host, const std::string& applicationFolder,
                                const std::string& dataFolder);

// Shows a box and returns its MsgResult. Requires that no box is being shown.
int ShowMessage(Game& game, const std::string& title, const std::string& text,
                std::uint32_t flags = kMsgOk | kMsgAlert, int width = 302);
// The general error report: text + ", Error #" + number + line end + " occurred at: " + label. In a
// Turbo-Roll it becomes the stop reason instead, and the run stops.
void ReportError(Game& game, const std::string& text, int number, const char* label);
inline constexpr int kOverflowError = 6;
inline constexpr const char* kOverflowText = "Overflow";

}  // namespace tessaryn
