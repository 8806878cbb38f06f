#include "rules/seed_rng.h"

#include "dice/generators.h"
#include "state/game.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

constexpr Currency kLowestSeed = Currency::Dollars(1);

// False when the user gave up.
bool AskSeed(Game& game, Currency& candidate) {
  const std::int32_t limit = SeedLimit(game.generators);
  std::string text = SeedPrompt(limit);
  for (;;) {
    game.box.MsgValue1 = Currency::Dollars(game.generators.RngLastSeed);
    if (ShowMessage(game, kSeedTitle, text, kMsgOk | kMsgCancel | kMsgInput | kMsgQuestion) != kResultOk)
      return false;
    candidate = game.box.MsgValue1;
    if (candidate >= kLowestSeed && candidate <= Currency::Dollars(limit)) return true;
    text = SeedOutOfLimitsPrompt(limit);
  }
}

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
  if (game.events.RecordEventsActive) WriteEventsLogLine(game, SeedLogLine(generators));
}

void SeedRng(Game& game, bool useGivenSeed) { SeedRng(game, useGivenSeed, kZero); }

bool SelectGenerator(Game& game, int number) {
  if (number < 1 || number > kGeneratorCount) return false;
  game.generators.GeneratorIndex = number - 1;
  ReplaceMissingGenerator(game.generators);
  return true;
}

}  // namespace tessaryn
