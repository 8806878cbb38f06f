// What a watch of the scripts saw, as people and programs read it.
#pragma once

#include "autobet/run/script_watch.h"
#include "cli/table_json.h"

namespace tessaryn::cli {

// [{"roll":...,"seat":...,"line":...,"statement":...,"outcome":"done|true|false|error","error":CODE}], the
// oldest first. Of a watch that kept no trace an empty list.
Json TraceJson(const Game& game, const ScriptWatch& watch);
void PrintTrace(const Game& game, const ScriptWatch& watch);

// [{"seat":...,"line":...,"count":...,"share":PERCENT OF TIME,"text":...}], the line that took longest first.
Json ProfileJson(const Game& game, const ScriptWatch& watch);
// The first lines of it, as a table.
void PrintProfile(const Game& game, const ScriptWatch& watch);

}  // namespace tessaryn::cli
