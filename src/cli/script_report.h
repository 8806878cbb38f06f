// A script's check as people and programs read it.
#pragma once

#include <string>
#include <vector>

#include "cli/table_json.h"
#include "play/script_session.h"

namespace tessaryn::cli {

// A text as a terminal may be given it: what would be a command to it is a "?".
std::string Shown(std::string text);
// "FILE:LINE:COLUMN: error: TEXT" as editors read it, with the lines of its span and a mark under what is
// meant, and "...: note: ..." with what was likely meant; of a good script "FILE: TEXT". Columns in
// characters from 1.
std::string CheckReport(const std::string& file, const std::vector<std::string>& lines,
                        const ScriptCheck& check);
// {"file":...,"ok":...,"message":...,"firstLine":...,"firstColumn":...,"lastLine":...,"lastColumn":...}
// Lines count from 1, columns in characters from 0. "line" and "column" are those of the text form, from 1.
Json CheckJson(const std::string& file, const std::vector<std::string>& lines, const ScriptCheck& check);
// A run-time error with its code, line and statement.
std::string ErrorReport(const ScriptErrorKind& kind);
// {"code":...,"text":...,"count":...,"line":...,"statement":...}
Json ErrorJson(const ScriptErrorKind& kind);
// The run-time errors of all scripts by kind: [{"seat":...,"code":...,"text":...,"count":...,"line":...,
// "statement":...}]; seat 0 is the last hot-key's.
Json ErrorsJson(const Game& game);
void PrintErrors(const Game& game);
// False, with the reason told on standard error, when a script had nothing but errors.
bool EveryScriptCouldAct(const Game& game);
// What scripts may know of players NAME or NAME=BANKROLL, the k-th at seat k.
ScriptSurroundings SurroundingsOfPlayers(const std::vector<std::string>& players);
// The compiled records, one "kind value" a line.
std::string TokenList(const CompiledScript& script);

// A message of the table without its line ends.
std::string OnOneLine(const std::string& text);
// A message of the table with its line ends as lines of a terminal.
std::string AsLines(const std::string& text);

}  // namespace tessaryn::cli
