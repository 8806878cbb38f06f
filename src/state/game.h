// One table with everything that belongs to it. A process can hold many, one to a thread.
#pragma once

#include <memory>
#include <string>

#include "base/fields.h"
#include "base/folder_lock.h"
#include "state/auto_bet_state.h"
#include "state/events_log_state.h"
#include "state/generators_state.h"
#include "state/graph_state.h"
#include "state/host.h"
#include "state/kept_maximums.h"
#include "state/payoff_tables.h"
#include "state/percentage_dice_state.h"
#include "state/roll_file_state.h"
#include "state/screen_state.h"
#include "state/sessions_log_state.h"
#include "state/settings.h"
#include "state/statistics_state.h"
#include "state/table_state.h"

namespace tessaryn {

struct Game {
  TableState table;
  Settings settings;
  PayoffTables payoffs;
  mutable Unshared<KeptMaximums> maximums;  // of the two above
  Statistics stats;
  BankrollGraph graph;
  Generators generators;
  PercentageDice percentage;
  RollFile rollFile;
  AutoBet autobet;
  EventsLog events;
  SessionsLogs sessions;
  ScreenState screen;
  GameFileState file;
  MessageBox box;                   // the box being asked
  std::string applicationFolder;    // the programs and support files; ends with a separator
  std::string dataFolder;           // everything that is kept; ends with a separator
  std::string ownFolder;            // logs, work files and what scripts write: the data folder, or one in it
                                    // while another program has that; see ClaimDataFolder
  Unshared<FolderLock> folderLock;  // on ownFolder, of programs
  Host* host = nullptr;             // not owned; outlives the game
};
TESSARYN_FIELDS(Game, table, settings, payoffs, maximums, stats, graph, generators, percentage, rollFile,
                autobet, events, sessions, screen, file, box, applicationFolder, dataFolder, ownFolder,
                folderLock, host)

// Shows a message's box and returns its MsgResult; input boxes start from the values that stand in game.box.
// Requires that no box is being shown. Where the id is known, state/show_message.h checks the arguments.
int ShowMessage(Game& game, Msg id, std::vector<MessageArgument> arguments);
}  // namespace tessaryn
