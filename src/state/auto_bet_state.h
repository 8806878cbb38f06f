// The scripts of the table and the run in progress.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/fields.h"
#include "base/table_types.h"
#include "state/script_types.h"

namespace tessaryn {

// The file that a player's script writes to. Written by output_file.cpp.
struct ScriptOutput {
  std::FILE* File = nullptr;

  ScriptOutput() = default;
  ScriptOutput(const ScriptOutput&) {}  // a copy has no file open
  ScriptOutput(ScriptOutput&& other) noexcept : File(std::exchange(other.File, nullptr)) {}
  ScriptOutput& operator=(ScriptOutput&& other) noexcept {
    std::swap(File, other.File);
    return *this;
  }
  ~ScriptOutput() {
    if (File != nullptr) std::fclose(File);
  }
  friend bool operator==(const ScriptOutput&, const ScriptOutput&) { return true; }
};

// A kind of run-time error of a script, with the place where it first came up.
struct ScriptErrorKind {
  int code = 0;
  std::string text;  // "\r" between its lines
  std::int64_t count = 0;
  int line = 0;  // 1-based
  std::string statement;
};
TESSARYN_FIELDS(ScriptErrorKind, code, text, count, line, statement)

struct SeatScript {
  std::vector<std::string> ScriptLines;  // as typed; seat 0 the hot-key script
  std::vector<int> ScriptNesting;        // the level of each line
  std::string ScriptFileName;            // empty: untitled
  bool Unsaved = false;
  Unshared<std::unique_ptr<KeptScript>>
      Kept;  // the last good compile; may be null. Written by the interpreter
  // Permissions.
  bool AllowAct4Others = false;
  bool AllowReset = false;    // new sessions
  bool AllowActProb = false;  // probability files and dice roll files
  ScriptOutput Output;
  // What came of running it.
  std::vector<ScriptErrorKind> Errors;  // in the order in which they came up
  bool Acted = false;                   // some action of it was taken
};
TESSARYN_FIELDS(SeatScript, ScriptLines, ScriptNesting, ScriptFileName, Unsaved, Kept, AllowAct4Others,
                AllowReset, AllowActProb, Output, Errors, Acted)

// Held by the interpreter alone: the program in its ready-to-run form.
struct PreparedProgram;
struct PreparedProgramDeleter {
  void operator()(PreparedProgram* program) const;
};

// One step of a run as the viewer shows it.
struct ScriptStep {
  SeatId seat = 0;  // whose script it is
  int line = 0;     // 1-based source line
  int column = 0;
  std::string text;  // "\r" between its lines
  int error = 0;     // the code of a statement's run-time error
};

// Seats 1 to 8 as bits.
inline constexpr std::uint16_t kEverySeat = ((1u << kSeats) - 1) << 1;

struct AutoBet {
  SeatScript Scripts[kSeatRows];
  bool ScriptActive[kSeatRows] = {};  // 0 the master switch that the roll cycle tests
  bool ScriptsCompiled = false;       // Program is valid
  CompiledScript Program;             // the joined scripts of all active players
  Unshared<std::unique_ptr<PreparedProgram, PreparedProgramDeleter>>
      Prepared;                                     // Program as it is run; may be null
  std::vector<std::string> AllowedOutputFolders;    // besides the scripts' own; set by the user for the run
  std::map<std::string, std::string> OutputOwners;  // the files that scripts wrote, and for which player
  // --- Bets made by hand, as statements to insert into a script.
  bool BetLogging = false;
  std::vector<std::string> LoggedBets;
  bool LoggedBetsUnsaved = false;
  // --- The run.
  bool ScriptRunning = false;  // clearing it stops the run at the next statement
  bool ScriptInitializing = false;
  SeatId CurrentAutobettor = 0;
  std::size_t Work = 0;       // done since the host had its turn: see GiveWay
  int ScriptError = 0;        // run-time error of the current statement; 0 none
  std::string ScriptFault;    // the text of error 10000
  bool StepMode = false;      // the run waits after each statement
  bool StepsShown = false;    // the steps viewer is open
  bool StepsHold = true;      // a watched run lasts long enough to be seen
  bool StepWaiting = false;   // in step mode: until the user asks for the next statement
  bool HotKeyRun = false;     // Program is a hot-key's for the moment
  std::string StatusCaption;  // "Auto-Betting" or "Hot-Key" during a run that is shown
  double Answer = 0;          // the last question's: 6 yes, 7 no
  // By seat, a bit each: whose script has had no run in this session, which has not closed a roll yet; and of
  // the run in hand, whose scripts have their first one.
  std::uint16_t SessionAhead = kEverySeat;
  std::uint16_t BeginningNewSession = 0;
  bool RollFileEndReached = false;  // set when playback came to its end
};
TESSARYN_FIELDS(AutoBet, Scripts, ScriptActive, ScriptsCompiled, Program, Prepared, AllowedOutputFolders,
                OutputOwners, BetLogging, LoggedBets, LoggedBetsUnsaved, ScriptRunning, ScriptInitializing,
                CurrentAutobettor, Work, ScriptError, ScriptFault, StepMode, StepsShown, StepsHold,
                StepWaiting, HotKeyRun, StatusCaption, Answer, SessionAhead, BeginningNewSession,
                RollFileEndReached)

}  // namespace tessaryn
