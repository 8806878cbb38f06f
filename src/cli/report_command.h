// The command `report` of play: a report's table as JSON, or to be read at the terminal.
#pragma once

#include <string>
#include <vector>

#include "cli/table_json.h"
#include "play/reports.h"

namespace tessaryn::cli {

inline constexpr const char* kReportArguments =
    "NAME [scope=0..4] [seats=1,2] [bets=43,44] [units=count|percent] [group=11|21|36|faces] "
    "[probability=true|skewed] [item=N]";

// The report that the words ask for; words[0] is the command. False, with the reason, when they are not good.
bool ReportOf(const Game& game, const std::vector<std::string>& words, ReportTable& report,
              std::string& error);
// {"report":NAME,"columns":[..],"rows":{LABEL:[TEXT,..]}}, and the note where there is one.
Json ReportJson(const ReportTable& report);
// What may follow on the command: the names of the reports and of the selections.
std::vector<std::string> ReportWords();

}  // namespace tessaryn::cli
