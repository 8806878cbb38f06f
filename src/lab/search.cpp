#include "lab/search.h"

#include <algorithm>

#include "lab/laboratory.h"

namespace tessaryn {
namespace {

constexpr std::int64_t kMostBankroll = kBankrollLimit.raw / Currency::kPerDollar;
constexpr std::int64_t kMostStart = 1'000'000;  // dollars

struct Search {
  Experiment experiment;  // with the one system
  const LabQuestion& question;
  const LabSearch& how;
  std::map<std::int64_t, ShareFigure> tried;  // by dollars
  std::string error;
};

void SetStart(LabSystem& system, int stack, Currency amount) {
  const auto at = std::find_if(system.stacks.begin(), system.stacks.end(),
                               [&](const StackStart& start) { return start.stack == stack; });
  if (at == system.stacks.end())
    system.stacks.push_back({stack, amount});
  else
    at->amount = amount;
}

// The share of ruined with the value; all once there is an error.
ShareFigure Try(Search& search, std::int64_t dollars) {
  if (!search.error.empty()) return {1, {1, 1}};
  if (const auto known = search.tried.find(dollars); known != search.tried.end()) return known->second;
  if (search.question.stack < 0)
    search.experiment.bankroll = Currency::Dollars(dollars);
  else
    SetStart(search.experiment.systems[0], search.question.stack, Currency::Dollars(dollars));
  LabState state = BeginLab(search.experiment, false, false);
  LabRun run;
  run.threads = search.how.threads;
  run.applicationFolder = search.how.applicationFolder;
  run.helpers = search.how.helpers;
  run.progress = [&](const LabProgress&) { return !search.how.goesOn || search.how.goesOn(); };
  search.error = RunLab(state, run);
  if (search.error.empty() && !state.finished) search.error = "the search was stopped";
  const ShareFigure share = FigureShare(state.systems[0].ruined, state.systems[0].sessions);
  search.tried[dollars] = share;
  return share;
}

using Reading = double (*)(const ShareFigure&);

// The whole dollars next to the border that keep to the risk, as the share is read; 0 for none, and the most
// where everything does.
std::int64_t Border(Search& search, Reading read, std::int64_t start, std::int64_t most) {
  const bool wantsMore = search.question.stack < 0;  // a larger bankroll is safer, a larger stake isn't
  const auto keeps = [&](std::int64_t dollars) { return read(Try(search, dollars)) <= search.question.ruin; };
  std::int64_t low = 0;
  std::int64_t high = std::clamp<std::int64_t>(start, 1, most);
  while (keeps(high) != wantsMore) {
    if (high == most) return wantsMore ? 0 : most;
    low = high;
    high = std::min(2 * high, most);
  }
  while (high - low > 1) {
    const std::int64_t middle = low + (high - low) / 2;
    (keeps(middle) == wantsMore ? high : low) = middle;
  }
  return wantsMore ? high : low;
}

}  // namespace

std::string FindForRuin(const Experiment& experiment, std::size_t system, const LabQuestion& question,
                        const LabSearch& how, LabAnswer& answer) {
  Search search{experiment, question, how, {}, {}};
  search.experiment.systems = {experiment.systems[system]};
  const bool bankroll = question.stack < 0;
  const std::int64_t most = bankroll ? kMostBankroll : kMostStart;
  const std::int64_t start = bankroll ? experiment.bankroll.raw / Currency::kPerDollar : 1;
  const std::int64_t value = Border(
      search, [](const ShareFigure& share) { return share.p; }, start, most);
  const std::int64_t sure = Border(
      search, [](const ShareFigure& share) { return share.ci95.high; }, start, most);
  const std::int64_t perhaps = Border(
      search, [](const ShareFigure& share) { return share.ci95.low; }, start, most);
  if (!search.error.empty()) return search.error;
  answer.found = value > 0;
  answer.any = !bankroll && value == most;
  answer.value = Currency::Dollars(value);
  if (answer.found) answer.ruined = Try(search, value);
  answer.low = Currency::Dollars(bankroll ? perhaps : sure);
  answer.high = Currency::Dollars(bankroll && sure == 0 ? most : bankroll ? sure : perhaps);
  return search.error;
}

}  // namespace tessaryn
