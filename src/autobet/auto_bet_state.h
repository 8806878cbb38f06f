// The scripts of the table and the run in progress.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "autobet/script_types.h"
#include "engine/table_types.h"

namespace tessaryn {

struct SeatScript {
  std::vector<std::string> ScriptLines;   // as typed; seat 0 the hot-key script
  std::vector<int> ScriptNesting;         // the level of each line
  std::string ScriptFileName;             // empty: untitled
  bool Unsaved = false;
  // Permissions.
  bool AllowAct4Others = false;
  bool AllowReset = false;                // new sessions
  bool AllowActProb = false;              // probability files and dice roll files
};

// Held by the interpreter alone: the program in its ready-to-run form.
struct PreparedProgram;
struct PreparedProgramDeleter {
  void operator()(PreparedProgram* program) const;
};

struct AutoBet {
  SeatScript Scripts[kSeatRows];
  bool ScriptActive[kSeatRows] = {};      // 0 the master switch that the roll cycle tests
  bool ScriptsCompiled = false;           // Program is valid
  CompiledScript Program;                 // the joined scripts of all active players
  // --- The run.
  bool ScriptRunning = false;             // clearing it stops the run at the next statement
  bool ScriptInitializing = false;
  int CurrentAutobettor = 0;
  int ScriptError = 0;                    // run-time error of the current statement; 0 none
  std::string ScriptFault;                // the text of error 10000
  bool StepMode = false;                  // the run waits after each statement
  bool StepsShown = false;                // the steps viewer is open
  double Answer = 0;                      // the last question's: 6 yes, 7 no
  bool BeginningNewSession = false;       // no roll since the session began
  bool RollFileEndReached = false;        // set when playback came to its end
};

}  // namespace tessaryn
