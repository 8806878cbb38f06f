#include "dice/generators.h"

#include <dlfcn.h>

#include <cmath>

#include "base/messages.h"

namespace tessaryn {
namespace {

// A number of 32 bits stands for itself / 2^32, so that these equal Int(x * sides) in double arithmetic.
inline int ScaleWord(std::uint32_t word, std::uint32_t sides) {
  return static_cast<int>((static_cast<std::uint64_t>(word) * sides) >> 32);
}

// Once in 624 numbers. A table that never loaded the library is served by #4, which stands in for it.
[[gnu::noinline]] void Refill(Generators& generators, TwisterStream& stream) {
  stream.Next = 0;
  if (stream.NextBlock == nullptr) {
    for (auto& number : stream.Numbers)
      number = static_cast<std::uint32_t>(static_cast<double>(Ran2(generators, 1)) * 4294967296.0);
    return;
  }
  if (!stream.Seeded) stream.SeedBlock(stream.State, 5489u);
  stream.Seeded = true;
  stream.NextBlock(stream.State, stream.Numbers);
}

inline std::uint32_t NextWord(Generators& generators, TwisterStream& stream) {
  if (stream.Next >= kTwisterWords) [[unlikely]]
    Refill(generators, stream);
  return stream.Numbers[stream.Next++];
}

void SeedStream(TwisterStream& stream, std::int32_t seed) {
  stream.Next = kTwisterWords;
  stream.Seeded = stream.SeedBlock != nullptr;
  if (stream.Seeded) stream.SeedBlock(stream.State, static_cast<std::uint32_t>(seed));
}

bool LoadStream(TwisterStream& stream, const std::string& path, const char* seedName, const char* nextName) {
  stream = TwisterStream{};
  void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (library == nullptr) return false;
  const auto seed = reinterpret_cast<TwisterStream::SeedBlockFunction>(dlsym(library, seedName));
  const auto next = reinterpret_cast<TwisterStream::NextBlockFunction>(dlsym(library, nextName));
  dlclose(library);
  if (seed == nullptr || next == nullptr) return false;
  stream.SeedBlock = seed;
  stream.NextBlock = next;
  return true;
}

// What a generator makes of a float x of 0 <= x < 1.
inline int DieFromReal(float x) { return static_cast<int>(static_cast<double>(x) * 6.0) + 1; }
inline std::int32_t RoundedNumber(float x) {
  return static_cast<std::int32_t>(std::lrint(static_cast<double>(x) * 100000.0)) + 1;
}

constexpr std::int32_t kRan1Modulus1 = 259200;
constexpr std::int32_t kRan1Modulus2 = 134456;
constexpr std::int32_t kRan1Modulus3 = 243000;

inline void Step(std::int32_t& value, std::int32_t factor, std::int32_t addend, std::int32_t modulus) {
  value = static_cast<std::int32_t>((static_cast<std::int64_t>(factor) * value + addend) % modulus);
}
inline void StepIx1(Ran1State& state) { Step(state.ix1, 7141, 54773, kRan1Modulus1); }
inline void StepIx2(Ran1State& state) { Step(state.ix2, 8121, 28411, kRan1Modulus2); }

// The two congruences joined. The quotients are truncated decimals, so the topmost few values would reach
// 1 as a float; they are held just below it.
inline float JoinedReal(const Ran1State& state) {
  constexpr float kBelowOne = 0x1.fffffep-1f;
  const double joined = (state.ix1 + state.ix2 * 7.4373773e-6) * 3.8580247e-6;
  const float result = static_cast<float>(joined);
  return result < 1.0f ? result : kBelowOne;
}

void SeedRan1(Ran1State& state, std::int32_t idum) {
  state.Initialised = true;
  state.ix1 = static_cast<std::int32_t>((54773 - static_cast<std::int64_t>(idum)) % kRan1Modulus1);
  StepIx1(state);
  state.ix2 = state.ix1 % kRan1Modulus2;
  StepIx1(state);
  state.ix3 = state.ix1 % kRan1Modulus3;
  for (int j = 1; j <= 97; ++j) {
    StepIx1(state);
    StepIx2(state);
    state.r[j] = JoinedReal(state);
  }
}

constexpr std::int32_t kRan2Modulus = 714025;
constexpr std::int32_t kRan2Factor = 1366;
constexpr std::int32_t kRan2Addend = 150889;

inline void StepIdum(Ran2State& state) { Step(state.idum, kRan2Factor, kRan2Addend, kRan2Modulus); }

void SeedRan2(Ran2State& state, std::int32_t idum) {
  state.Initialised = true;
  state.idum = static_cast<std::int32_t>((kRan2Addend - static_cast<std::int64_t>(idum)) % kRan2Modulus);
  for (int j = 1; j <= 97; ++j) {
    StepIdum(state);
    state.ir[j] = state.idum;
  }
  StepIdum(state);
  state.iy = state.idum;
}

// The slot that a congruence chooses; 0, which is no slot, for a negative one.
inline std::int32_t ChosenSlot(std::int32_t value, std::int32_t modulus) {
  return value < 0 ? 0 : 97 * value / modulus + 1;
}

inline bool IsEven(std::int64_t rolls) { return (rolls & 1) == 0; }

// The generator that serves the whole roll.
inline int ServingGenerator(const Generators& generators, std::int64_t sessionRolls) {
  switch (generators.GeneratorIndex) {
    case kGeneratorMersenneRan1:
      return IsEven(sessionRolls) ? kGeneratorMersenne : kGeneratorRan1;
    case kGeneratorCokusRan2:
      return IsEven(sessionRolls) ? kGeneratorCokus : kGeneratorRan2;
    default:
      return generators.GeneratorIndex;
  }
}

}  // namespace

float Ran1(Generators& generators, std::int32_t idum) {
  Ran1State& state = generators.Ran1;
  if (idum < 0 || !state.Initialised) SeedRan1(state, idum);
  StepIx1(state);
  StepIx2(state);
  Step(state.ix3, 4561, 51349, kRan1Modulus3);
  state.j = ChosenSlot(state.ix3, kRan1Modulus3);
  if (state.j < 1 || state.j > 97) {
    generators.LastErrorText = MessageText<Msg::kGeneratorFault>(With<"function">("Ran1"));
    return 0;
  }
  const float result = state.r[state.j];
  state.r[state.j] = JoinedReal(state);
  return result;
}

float Ran2(Generators& generators, std::int32_t idum) {
  Ran2State& state = generators.Ran2;
  if (idum < 0 || !state.Initialised) SeedRan2(state, idum);
  state.j = ChosenSlot(state.iy, kRan2Modulus);
  if (state.j < 1 || state.j > 97) {
    generators.LastErrorText = MessageText<Msg::kGeneratorFault>(With<"function">("Ran2"));
    return 0;
  }
  state.iy = state.ir[state.j];
  const float result = static_cast<float>(state.iy * 1.4005112e-6);
  StepIdum(state);
  state.ir[state.j] = state.idum;
  return result;
}

std::int32_t Rng3(Generators& generators, std::int32_t n) {
  std::int32_t& state = generators.RngSeedState;
  Step(state, kRan2Factor, kRan2Addend, kRan2Modulus);
  if (state < 0) state += kRan2Modulus;  // a game file may have brought any state
  const double x = state / 714025.0;
  return static_cast<std::int32_t>(n * x) + 1;
}

void DrawDice(Generators& generators, std::int64_t sessionRolls, int& die1, int& die2) {
  switch (ServingGenerator(generators, sessionRolls)) {
    case kGeneratorMersenne:
      die1 = ScaleWord(NextWord(generators, generators.Mersenne), 6) + 1;
      die2 = ScaleWord(NextWord(generators, generators.Mersenne), 6) + 1;
      return;
    case kGeneratorCokus:
      die1 = ScaleWord(NextWord(generators, generators.Cokus), 6) + 1;
      die2 = ScaleWord(NextWord(generators, generators.Cokus), 6) + 1;
      return;
    case kGeneratorCongruence:
      die1 = Rng3(generators, 6);
      die2 = Rng3(generators, 6);
      return;
    case kGeneratorRan1:
      die1 = DieFromReal(Ran1(generators, 1));
      die2 = DieFromReal(Ran1(generators, 1));
      return;
    case kGeneratorMersenneSingle: {
      const int combination = ScaleWord(NextWord(generators, generators.Mersenne), 36);
      die2 = combination / 6 + 1;
      die1 = combination % 6 + 1;
      return;
    }
    default:
      die1 = DieFromReal(Ran2(generators, 1));
      die2 = DieFromReal(Ran2(generators, 1));
  }
}

std::int32_t DrawNumber(Generators& generators, std::int64_t sessionRolls) {
  switch (ServingGenerator(generators, sessionRolls)) {
    case kGeneratorMersenne:
    case kGeneratorMersenneSingle:
      return ScaleWord(NextWord(generators, generators.Mersenne), 100000) + 1;
    case kGeneratorCokus:
      return ScaleWord(NextWord(generators, generators.Cokus), 100000) + 1;
    case kGeneratorCongruence:
      return Rng3(generators, 100000);
    case kGeneratorRan1:
      return RoundedNumber(Ran1(generators, 1));
    default:
      return RoundedNumber(Ran2(generators, 1));
  }
}

void LoadSupportLibraries(Generators& generators, const std::string& applicationFolder) {
  std::string folder = applicationFolder.empty() ? "." : applicationFolder;
  if (folder.back() != '/') folder += '/';
  generators.MissingGeneratorFiles = 0;
  if (!LoadStream(generators.Mersenne, folder + "mt19937ar.dll", "init_genrand_block", "genrand_block"))
    generators.MissingGeneratorFiles |= kMissingMersenne;
  if (!LoadStream(generators.Cokus, folder + "cokus.dll", "srandMT_block", "randomMT_block"))
    generators.MissingGeneratorFiles |= kMissingCokus;
}

void StartGenerators(Generators& generators, std::uint32_t tick) {
  const auto start = [&](int index) {
    generators.GeneratorIndex = index;
    SeedGenerator(generators, TimeSeed(generators, tick));
  };
  start(kGeneratorCongruence);
  start(kGeneratorRan1);
  start(kGeneratorRan2);
  if ((generators.MissingGeneratorFiles & kMissingCokus) == 0) start(kGeneratorCokus);
  if ((generators.MissingGeneratorFiles & kMissingMersenne) == 0) start(kGeneratorMersenne);
}

void ReplaceMissingGenerator(Generators& generators) {
  static constexpr int kNeeds[kGeneratorCount] = {
      kMissingMersenne, kMissingCokus, 0, 0, 0, kMissingMersenne, kMissingCokus, kMissingMersenne};
  std::int32_t& index = generators.GeneratorIndex;
  if (index < 0 || index >= kGeneratorCount || (kNeeds[index] & generators.MissingGeneratorFiles) != 0)
    index = kGeneratorRan2;
}

std::int32_t SeedLimit(const Generators& generators) {
  return generators.GeneratorIndex == kGeneratorCongruence ? kSeedLimitCongruence : kSeedLimit;
}

Currency TimeSeed(const Generators& generators, std::uint32_t tick) {
  const std::int64_t limit = SeedLimit(generators);
  std::int64_t seed = tick;
  if (generators.GeneratorIndex == kGeneratorCongruence) seed = std::llrint(tick / 100.0);
  seed = seed == 0 ? 1 : (seed - 1) % limit + 1;
  if (seed == generators.RngLastSeed && seed < limit) ++seed;
  return Currency::Dollars(seed);
}

bool SeedGenerator(Generators& generators, Currency candidate) {
  if (candidate < Currency::Dollars(1) || candidate > Currency::Dollars(SeedLimit(generators))) return false;
  const auto seed = static_cast<std::int32_t>(std::llrint(candidate.ToDouble()));
  generators.RngSeedState = seed;
  generators.RngLastSeed = seed;
  switch (generators.GeneratorIndex) {
    case kGeneratorMersenne:
    case kGeneratorMersenneSingle:
      SeedStream(generators.Mersenne, seed);
      break;
    case kGeneratorCokus:
      SeedStream(generators.Cokus, seed);
      break;
    case kGeneratorCongruence:
      Rng3(generators, 6);
      break;
    case kGeneratorRan1:
      Ran1(generators, -seed);
      break;
    case kGeneratorMersenneRan1:
      SeedStream(generators.Mersenne, seed);
      Ran1(generators, -seed);
      break;
    case kGeneratorCokusRan2:
      SeedStream(generators.Cokus, seed);
      Ran2(generators, -seed);
      break;
    default:
      Ran2(generators, -seed);
  }
  return true;
}

double Rnd(Generators& generators) {
  std::uint64_t mixed = generators.RndState += 0x9e3779b97f4a7c15u;
  mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9u;
  mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebu;
  mixed ^= mixed >> 31;
  return static_cast<double>(mixed >> 11) * 0x1p-53;
}

int RndPick(Generators& generators, int n) { return static_cast<int>(Rnd(generators) * n) + 1; }

void RandomizeRnd(Generators& generators, std::uint32_t tick) {
  generators.RndState = tick * 0xd1342543de82ef95u + 1;
}

}  // namespace tessaryn
