// What came of an experiment, as programs and people read it.
#pragma once

#include <string>

#include "cli/table_json.h"
#include "lab/lab_state.h"

namespace tessaryn::cli {

Json LabJson(LabState& state);
void PrintLab(LabState& state);
// What a reader should know beside the figures, on standard error: systems that never played, scripts that
// could not act.
void TellOddities(const LabState& state);

}  // namespace tessaryn::cli
