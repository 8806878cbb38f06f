// Options that bring a table into shape before it plays: shared by run and play.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "cli/cli_host.h"
#include "play/game_file.h"
#include "state/game.h"

namespace tessaryn::cli {

struct TableOptions {
  std::string dataFolder;
  std::string game;                   // a game file to start from
  std::string saveGame;               // where the game is written at the end
  bool writes = false;                // the table is played: it needs a folder that no other program has
  std::vector<std::string> players;   // NAME=BANKROLL
  std::vector<std::string> settings;  // NAME=VALUE, NAME@SEAT=VALUE
  std::string house;                  // a ready house's key or name; its rules come first
  std::string settingsFile;           // a house's rules, read before the settings
  std::string saveSettings;           // where the rules in force are written
  std::string rollFile;
  std::string recordFile;
  std::string probabilities;
  std::string eventsLog;
  std::vector<std::string> scripts;        // the k-th for the k-th player
  std::vector<std::string> permits;        // SEAT=PERMISSION,...: what scripts may do
  std::vector<std::string> outputFolders;  // where scripts may write, besides the data folder
  int rng = 0;                             // 1 to 8; 0 the start-up generator
  std::string seed;
};

void AddTableOptions(CLI::App& command, TableOptions& options);
// --house, --settings and --save-settings alone, for commands that seat nobody.
void AddSettingsFileOptions(CLI::App& command, TableOptions& options);

// A table as the options want it. Null, with the reason told on standard error, when one of them is bad.
std::unique_ptr<Game> SetUpTable(CliHost& host, const TableOptions& options);

// What is wrong with a game file, on one line.
std::string ProblemLine(const GameFileProblem& problem);
// The end of a table: the game is written if that was asked for, and every file closed. False, with the
// reason told on standard error, when something is not on the disk.
bool EndTable(Game& game, const TableOptions& options);

// Why a file could not be written; empty when it could. Nothing is touched.
std::string TargetProblem(const std::string& path);

// NAME=VALUE or NAME@SEAT=VALUE. False without a "=", or with a seat that is no number.
bool ParseAssignment(const std::string& text, std::string& name, SeatId& seat, std::string& value);
// NAME or NAME@SEAT; seat 0 without one.
bool ParseSettingName(const std::string& text, std::string& name, SeatId& seat);

}  // namespace tessaryn::cli
