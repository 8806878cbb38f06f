#include "rules/seed_rng.h"

#include "dice/generators.h"
#include "state/show_message.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

constexpr Currency kLowestSeed = Currency::Dollars(1);

// Asks until the seed is within its limits. False when the user gave up.
bool AskSeed(Game& game, Currency& candidate) {
  const Currency limit = Currency::Dollars(SeedLimit(game.generators));
  for (Msg question = Msg::kAskSeed;; question = Msg::kAskSeedWithinLimits) {
    game.box.MsgValue1 = Currency::Dollars(game.generators.RngLastSeed);
    if (ShowMessage(game, question, {{"limit", limit}}) != kResultOk) return false;
    candidate = game.box.MsgValue1;
    if (candidate >= kLowestSeed && candidate <= limit) return true;
  }
}
static_assert(NeedOnly({Msg::kAskSeed, Msg::kAskSeedWithinLimits}, {"limit"}));

}  // namespace

void SeedRng(Game& game, bool& useGivenSeed, Currency candidate) {
  Generators& generators = game.generators;
  const bool given = useGivenSeed && candidate >= kLowestSeed;
  if (!given) {
    if (useGivenSeed || !generators.RngUserSeed)
      candidate = TimeSeed(generators, game.host->TickMilliseconds());
    else if (!AskSeed(game, candidate))
      return;
  }
  if (!SeedGenerator(generators, candidate)) {
    useGivenSeed = false;
    return;
  }
  if (game.events.RecordEventsActive)
    WriteEventsLogLine(game, MessageText<Msg::kLogSeeded>(With<"generator">(generators.GeneratorIndex + 1),
                                                          With<"seed">(generators.RngLastSeed)));
}

void SeedRng(Game& game, bool useGivenSeed) { SeedRng(game, useGivenSeed, kZero); }

bool SelectGenerator(Game& game, int number) {
  if (number < 1 || number > kGeneratorCount) return false;
  game.generators.GeneratorIndex = number - 1;
  ReplaceMissingGenerator(game.generators);
  return true;
}

}  // namespace tessaryn
