// The run-time errors of scripts by their codes.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

struct Game;

enum ScriptErrorCode : int {
  kErrorNone = 0,
  kErrorPlaceReference = 12,
  kErrorCheckStack = 21,
  kErrorPlayer = 50,
  kErrorSquareRoot = 100,
  kErrorAverageBankroll = 110,
  kErrorDie = 190,
  kErrorInstr = 203,
  kErrorNoWagers = 300,
  kErrorNoWins = 301,
  kErrorNoLosses = 302,
  kErrorCheckStackName = 800,
  kErrorPlayerName = 850,
  kErrorNoPlayer = 851,
  kErrorOtherPlayers = 852,
  kErrorNewSession = 853,
  kErrorProbabilityPermission = 854,
  kErrorPassDice = 855,
  kErrorRollFilePermission = 856,
  kErrorWinHandling = 860,
  kErrorLoseHandling = 861,
  kErrorBankroll = 870,
  kErrorRollRate = 900,
  kErrorSeed = 905,
  kErrorGenerator = 910,
  kErrorCompRate = 912,
  kErrorMessagesOff = 990,
  kErrorSoundsOff = 992,
  kErrorExtract = 998,
  kErrorVig = 1000,
  kErrorRolls = 1001,
  kErrorPoints = 1002,
  kErrorRollFileClosed = 1003,
  kErrorOutputClosed = 1004,
  kErrorFileNotFound = 1005,
  kErrorBadPath = 1006,
  kErrorNotRollFile = 1007,
  kErrorNotProbabilityFile = 1008,
  kErrorNoValue = 9997,
  kErrorNoString = 9998,
  kErrorDivision = 9999,
  kErrorFault = 10000,
};

// The message of a code, "\r" between its lines. fault is that of kErrorFault. Empty for a code that is none.
std::string ScriptErrorText(int code, const std::string& fault);

// Notes the error of the statement in hand. Returns false.
bool ScriptFails(Game& game, int code);
// The same for what no code foresees.
bool ScriptFaults(Game& game, const char* text);

// Where a statement stands in its script.
struct StatementSpan {
  int line = 0;    // 1-based
  int column = 0;  // from 0
  int end = -1;    // the column behind it; -1 the end of the line
};

// The statement as typed, without the colon ahead of it and the comment behind it.
std::string StatementText(const std::vector<std::string>& lines, const StatementSpan& span);

// Counts the error of the statement in hand with its script's, whose it is or the hot-key's.
void NoteScriptError(Game& game, const StatementSpan& span);

// No text of a script grows beyond this many bytes, and no return stack beyond that many calls.
inline constexpr std::size_t kLongestText = 1'000'000;
inline constexpr std::size_t kDeepestCalls = 50'000'000;
inline constexpr const char* kTextTooLong = "Out of string space";
inline constexpr const char* kCallsTooDeep = "Out of stack space";
inline constexpr const char* kNumberOverflow = "Overflow";

}  // namespace tessaryn
