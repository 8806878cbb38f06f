// What came of an experiment, as programs and people read it.
#pragma once

#include <string>

#include "cli/table_json.h"
#include "lab/lab_state.h"
#include "lab/ranking.h"
#include "lab/search.h"

namespace tessaryn::cli {

Json LabJson(LabState& state);
void PrintLab(LabState& state);
// A word of --rank.
RankBy RankByName(const std::string& name);
// Each place's system and value, the best first. Behind the results that settled the counts.
Json RankingJson(const LabState& state, RankBy by);
void PrintRanking(const LabState& state, const std::string& byName);
// What a search has found for each system.
Json AnswersJson(const Experiment& experiment, const LabQuestion& question,
                 const std::vector<LabAnswer>& answers);
void PrintAnswers(const Experiment& experiment, const LabQuestion& question,
                  const std::vector<LabAnswer>& answers);
// What a reader should know beside the figures, on standard error: systems that never played, scripts that
// could not act.
void TellOddities(const LabState& state);

}  // namespace tessaryn::cli
