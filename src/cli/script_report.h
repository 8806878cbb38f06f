// A script's check as people and programs read it.
#pragma once

#include <string>
#include <vector>

#include "autobet/script_session.h"
#include "cli/table_json.h"

namespace tessaryn::cli {

// The message, and on an error the lines of its span with a mark under what is meant.
std::string CheckReport(const std::string& file, const std::vector<std::string>& lines,
                        const ScriptCheck& check);
// {"file":...,"ok":...,"message":...,"firstLine":...,"firstColumn":...,"lastLine":...,"lastColumn":...}
Json CheckJson(const std::string& file, const ScriptCheck& check);
// The compiled records, one "kind value" a line.
std::string TokenList(const CompiledScript& script);

}  // namespace tessaryn::cli
