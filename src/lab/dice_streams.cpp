#include "lab/dice_streams.h"

#include "dice/generators.h"

namespace tessaryn {
namespace {

// One to one on 64 bits, and every bit of the result hangs on every bit of the number.
constexpr std::uint64_t Mixed(std::uint64_t number) {
  number = (number ^ (number >> 30)) * 0xbf58476d1ce4e5b9u;
  number = (number ^ (number >> 27)) * 0x94d049bb133111ebu;
  return number ^ (number >> 31);
}

constexpr std::uint64_t kOddStep = 0x9e3779b97f4a7c15u;
constexpr std::uint64_t kOtherStep = 0xd1342543de82ef95u;

bool DrawsFromTwister(int generator) {
  return generator == kGeneratorMersenne || generator == kGeneratorCokus ||
         generator == kGeneratorMersenneSingle;
}

}  // namespace

std::string StreamProblem(const Generators& generators) {
  const int generator = generators.GeneratorIndex;
  if (DrawsFromTwister(generator)) return {};
  return std::string(kGeneratorNames[generator]) +
         " can't give every session dice of its own; RNG #1, #2 and #8 can";
}

// For one seed the key differs from session to session, and so does each pair of words: a pair is one to one
// in the key. The second key keeps one session's words from being another's shifted along.
void SetDiceStream(Generators& generators, std::uint64_t seed, std::uint64_t session) {
  const std::uint64_t ofSeed = Mixed(seed + kOddStep);
  const std::uint64_t key = Mixed(ofSeed ^ Mixed(session + kOddStep));
  const std::uint64_t second = Mixed(ofSeed + session * kOtherStep + kOddStep);
  TwisterStream& stream =
      generators.GeneratorIndex == kGeneratorCokus ? generators.Cokus : generators.Mersenne;
  std::uint64_t counter = key;
  const std::uint64_t shift = second * kOtherStep;
  for (int i = 0; i < kTwisterWords; i += 2, counter += kOddStep) {
    const std::uint64_t pair = Mixed(Mixed(counter) + shift);
    stream.State[i] = static_cast<std::uint32_t>(pair);
    stream.State[i + 1] = static_cast<std::uint32_t>(pair >> 32);
  }
  stream.Seeded = true;
  stream.Next = kTwisterWords;
  generators.RndState = Mixed(key ^ second);
}

}  // namespace tessaryn
