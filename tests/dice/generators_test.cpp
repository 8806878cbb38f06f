#include "dice/generators.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <random>
#include <vector>

#include "support/places.h"

namespace tessaryn {
namespace {

std::unique_ptr<Generators> WithLibraries() {
  auto generators = std::make_unique<Generators>();
  LoadSupportLibraries(*generators, test::kBinFolder);
  return generators;
}

bool Seed(Generators& generators, int index, std::int64_t seed) {
  generators.GeneratorIndex = index;
  return SeedGenerator(generators, Currency::Dollars(seed));
}

struct PlainExports {
  void (*Seed)(unsigned long) = nullptr;
  double (*Real)() = nullptr;
};

PlainExports Exports(const char* file, const char* seed, const char* real) {
  void* library = dlopen((std::string(test::kBinFolder) + "/" + file).c_str(), RTLD_NOW | RTLD_NODELETE);
  if (library == nullptr) return {};
  PlainExports exports{reinterpret_cast<void (*)(unsigned long)>(dlsym(library, seed)),
                       reinterpret_cast<double (*)()>(dlsym(library, real))};
  dlclose(library);
  return exports;
}

// The older seeding, word by word, as whoever reads it for the first time would write it.
std::mt19937 OldSeeding(std::uint32_t seed) {
  std::string words;
  for (int i = 0; i < 624; ++i) {
    std::uint32_t word = seed & 0xffff0000u;
    seed = 69069u * seed + 1u;
    word |= (seed & 0xffff0000u) >> 16;
    seed = 69069u * seed + 1u;
    words += std::to_string(word) + " ";
  }
  std::mt19937 engine;
  std::istringstream(words + "624") >> engine;
  return engine;
}

TEST(SupportLibraries, NamedExportsDrawThePublishedSequence) {
  const PlainExports twister = Exports("mt19937ar.dll", "init_genrand", "genrand_real2");
  ASSERT_TRUE(twister.Seed != nullptr && twister.Real != nullptr);
  twister.Seed(5489);
  EXPECT_EQ(twister.Real() * 4294967296.0, 3499211612.0);
  EXPECT_EQ(twister.Real() * 4294967296.0, 581869302.0);
  double last = 0;
  for (int i = 3; i <= 10000; ++i) last = twister.Real();
  EXPECT_EQ(last * 4294967296.0, 4123659995.0);

  const PlainExports cokus = Exports("cokus.dll", "srandMT", "randomMT");
  ASSERT_TRUE(cokus.Seed != nullptr && cokus.Real != nullptr);
  cokus.Seed(4357);
  std::mt19937 model = OldSeeding(4357);
  for (int i = 0; i < 5000; ++i) ASSERT_EQ(cokus.Real() * 4294967296.0, static_cast<double>(model()));
}

TEST(SupportLibraries, ABrokenOrForeignFileCountsAsMissing) {
  const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "tessaryn_libraries";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "mt19937ar.dll") << "not a library";
  std::filesystem::copy_file(std::string(test::kBinFolder) + "/mt19937ar.dll", folder / "cokus.dll",
                             std::filesystem::copy_options::overwrite_existing);
  Generators generators;
  LoadSupportLibraries(generators, folder.string());
  EXPECT_EQ(generators.MissingGeneratorFiles, kMissingMersenne | kMissingCokus);
  std::filesystem::remove_all(folder);
  LoadSupportLibraries(generators, folder.string());
  EXPECT_EQ(generators.MissingGeneratorFiles, kMissingMersenne | kMissingCokus);
  LoadSupportLibraries(generators, std::string(test::kBinFolder) + "/");
  EXPECT_EQ(generators.MissingGeneratorFiles, 0);
}

TEST(Generators, TwisterDiceFollowTheFormulasInDoubleArithmetic) {
  auto generators = WithLibraries();
  for (std::uint32_t seed : {1u, 999'999u, 2'147'483'647u}) {
    for (int index : {kGeneratorMersenne, kGeneratorCokus, kGeneratorMersenneSingle}) {
      ASSERT_TRUE(Seed(*generators, index, seed));
      std::mt19937 model = index == kGeneratorCokus ? OldSeeding(seed) : std::mt19937(seed);
      const auto real = [&] { return static_cast<double>(model()) * (1.0 / 4294967296.0); };
      for (int roll = 0; roll < 3000; ++roll) {
        int die1 = 0, die2 = 0, expected1 = 0, expected2 = 0;
        if (roll % 5 == 4) {
          ASSERT_EQ(DrawNumber(*generators, roll), static_cast<int>(real() * 100000) + 1);
          continue;
        }
        DrawDice(*generators, roll, die1, die2);
        if (index == kGeneratorMersenneSingle) {
          const int v = static_cast<int>(real() * 36);
          expected2 = v / 6 + 1;
          expected1 = v - 6 * (v / 6) + 1;
        } else {
          expected1 = static_cast<int>(real() * 6) + 1;
          expected2 = static_cast<int>(real() * 6) + 1;
        }
        ASSERT_TRUE(die1 == expected1 && die2 == expected2) << "index " << index << " roll " << roll;
      }
    }
  }
}

// The two shuffling generators as the book has them, all in wide floating point and integers.
struct NaiveRan1 {
  long double ix1 = 0, ix2 = 0, ix3 = 0;
  float r[98] = {};
  void Step1() { ix1 = std::fmod(7141 * ix1 + 54773, 259200.0L); }
  void Step2() { ix2 = std::fmod(8121 * ix2 + 28411, 134456.0L); }
  float Join() const {
    const double sum = static_cast<double>(ix1) + static_cast<double>(ix2) * 7.4373773e-6;
    return std::min(static_cast<float>(sum * 3.8580247e-6), std::nextafter(1.0f, 0.0f));
  }
  explicit NaiveRan1(std::int64_t seed) {
    ix1 = static_cast<long double>((54773 + seed) % 259200);
    Step1();
    ix2 = std::fmod(ix1, 134456.0L);
    Step1();
    ix3 = std::fmod(ix1, 243000.0L);
    for (int j = 1; j <= 97; ++j) Step1(), Step2(), r[j] = Join();
  }
  float Draw() {
    Step1(), Step2();
    ix3 = std::fmod(4561 * ix3 + 51349, 243000.0L);
    const int j = static_cast<int>(std::floor(97 * ix3 / 243000)) + 1;
    const float result = r[j];
    r[j] = Join();
    return result;
  }
};

struct NaiveRan2 {
  std::int64_t idum = 0, iy = 0, ir[98] = {};
  std::int64_t Step() { return idum = (1366 * idum + 150889) % 714025; }
  explicit NaiveRan2(std::int64_t seed) {
    idum = (150889 + seed) % 714025;
    for (int j = 1; j <= 97; ++j) ir[j] = Step();
    iy = Step();
  }
  float Draw() {
    const int j = static_cast<int>(std::floor(97.0 * static_cast<double>(iy) / 714025.0)) + 1;
    iy = ir[j];
    ir[j] = Step();
    return static_cast<float>(static_cast<double>(iy) * 1.4005112e-6);
  }
};

TEST(Generators, ShufflingGeneratorsAgreeWithTheBookAtEverySeedRange) {
  Generators generators;
  for (std::int64_t seed : {std::int64_t{1}, std::int64_t{54773}, std::int64_t{259200}, std::int64_t{714025},
                            std::int64_t{2'000'000'000}, std::int64_t{2'147'483'647}}) {
    NaiveRan1 first(seed);
    NaiveRan2 second(seed);
    // Seeding draws once by itself.
    ASSERT_EQ(Ran1(generators, static_cast<std::int32_t>(-seed)), first.Draw());
    ASSERT_EQ(Ran2(generators, static_cast<std::int32_t>(-seed)), second.Draw());
    for (int i = 0; i < 20'000; ++i) {
      ASSERT_EQ(Ran1(generators, 1), first.Draw()) << "seed " << seed << " draw " << i;
      ASSERT_EQ(Ran2(generators, 1), second.Draw()) << "seed " << seed << " draw " << i;
    }
  }
  EXPECT_TRUE(generators.LastErrorText.empty());
}

// The joined congruences reach 1.0 as a float at their very top; a 7 on a die would run off every table.
TEST(Generators, TheTopOfRan1StaysBelowOne) {
  Generators generators;
  Ran1(generators, -1);
  // Step to the top on the next call: 7141 * x + 54773 = 259199 (mod 259200), likewise for ix2.
  for (std::int32_t x = 0; x < 259200; ++x)
    if ((std::int64_t{7141} * x + 54773) % 259200 == 259199) generators.Ran1.ix1 = x;
  for (std::int32_t x = 0; x < 134456; ++x)
    if ((std::int64_t{8121} * x + 28411) % 134456 == 134455) generators.Ran1.ix2 = x;
  Ran1(generators, 1);
  const float stored = generators.Ran1.r[generators.Ran1.j];
  EXPECT_LT(stored, 1.0f);
  EXPECT_GT(stored, 0.9999f);
}

TEST(Generators, AnUnusableStateIsToldAndGivesNoDieOutsideOneToSix) {
  Generators generators;
  generators.Ran1.Initialised = generators.Ran2.Initialised = true;
  generators.Ran1.ix3 = -100'000;
  generators.Ran2.iy = 714'025 * 2;
  EXPECT_EQ(Ran1(generators, 1), 0.0f);
  EXPECT_EQ(generators.LastErrorText, "An error occurred in function Ran1\r");
  EXPECT_EQ(Ran2(generators, 1), 0.0f);
  EXPECT_EQ(generators.LastErrorText, "An error occurred in function Ran2\r");
  for (std::int32_t state : {-2'147'483'647, -1, 0, 714'024, 2'147'483'647}) {
    generators.RngSeedState = state;
    const int die = Rng3(generators, 6);
    EXPECT_TRUE(die >= 1 && die <= 6) << state;
  }
}

TEST(Generators, CongruenceFollowsItsOneLine) {
  Generators generators;
  ASSERT_TRUE(Seed(generators, kGeneratorCongruence, 999'999));
  std::int64_t state = (999'999LL * 1366 + 150889) % 714025;
  for (int i = 0; i < 100'000; ++i) {
    const int n = i % 3 == 0 ? 100'000 : 6;
    state = (state * 1366 + 150889) % 714025;
    ASSERT_EQ(Rng3(generators, n), static_cast<int>(n * (static_cast<double>(state) / 714025.0)) + 1);
  }
}

TEST(Generators, ARollIsServedWholeByTheSideOfItsCount) {
  auto mixed = WithLibraries();
  auto even = WithLibraries();
  auto odd = WithLibraries();
  const struct {
    int mixed, even, odd;
  } cases[] = {{kGeneratorMersenneRan1, kGeneratorMersenne, kGeneratorRan1},
               {kGeneratorCokusRan2, kGeneratorCokus, kGeneratorRan2}};
  for (const auto& c : cases) {
    ASSERT_TRUE(Seed(*mixed, c.mixed, 77) && Seed(*even, c.even, 77) && Seed(*odd, c.odd, 77));
    for (std::int64_t roll = 0; roll < 2000; ++roll) {
      Generators& side = roll % 2 == 0 ? *even : *odd;
      if (roll % 7 == 3) {
        ASSERT_EQ(DrawNumber(*mixed, roll), DrawNumber(side, 0));
        continue;
      }
      int dice[4];
      DrawDice(*mixed, roll, dice[0], dice[1]);
      DrawDice(side, 0, dice[2], dice[3]);
      ASSERT_TRUE(dice[0] == dice[2] && dice[1] == dice[3]) << roll;
    }
  }
}

TEST(Generators, TablesOnOneThreadDoNotMixTheirSequences) {
  auto alone = WithLibraries();
  Seed(*alone, kGeneratorMersenne, 42);
  std::vector<int> expected;
  for (int roll = 0; roll < 5000; ++roll) expected.push_back(DrawNumber(*alone, 0));

  auto first = WithLibraries();
  auto second = WithLibraries();
  Seed(*first, kGeneratorMersenne, 42);
  Seed(*second, kGeneratorMersenne, 42);
  for (std::size_t roll = 0; roll < expected.size(); ++roll) {
    ASSERT_EQ(DrawNumber(*first, 0), expected[roll]);
    for (std::size_t i = 0; i < roll % 3; ++i) DrawNumber(*second, 0);
  }
  Generators copy = *first;  // a copied table goes on by itself
  const int next = DrawNumber(*first, 0);
  EXPECT_EQ(DrawNumber(copy, 0), next);
  Seed(*first, kGeneratorMersenne, 42);  // what was drawn ahead is forgotten
  EXPECT_EQ(DrawNumber(*first, 0), expected[0]);
}

TEST(Generators, RoundingReaches100001OnlyWhereItIsTold) {
  Generators generators;
  Ran2(generators, -5);
  std::int32_t highest = 0;
  for (int i = 0; i < 3'000'000; ++i)
    highest = std::max(highest, (generators.GeneratorIndex = kGeneratorRan2, DrawNumber(generators, 0)));
  EXPECT_EQ(highest, 100'001);
  generators.GeneratorIndex = kGeneratorCongruence;
  highest = 0;
  for (int i = 0; i < 3'000'000; ++i) highest = std::max(highest, DrawNumber(generators, 0));
  EXPECT_EQ(highest, 100'000);
}

// Chi-square over the 36 combinations, 35 degrees of freedom: beyond 80 comes once in 20,000 fair trials.
TEST(Generators, EveryGeneratorRollsFairDice) {
  auto generators = WithLibraries();
  for (int index = 0; index < kGeneratorCount; ++index) {
    ASSERT_TRUE(Seed(*generators, index, 20'240));
    constexpr int kRolls = 720'000;
    std::array<int, 36> counts{};
    for (int roll = 0; roll < kRolls; ++roll) {
      int die1 = 0, die2 = 0;
      DrawDice(*generators, roll, die1, die2);
      ASSERT_TRUE(die1 >= 1 && die1 <= 6 && die2 >= 1 && die2 <= 6);
      ++counts[(die1 - 1) * 6 + die2 - 1];
    }
    double chiSquare = 0;
    for (int count : counts) chiSquare += (count - 20'000.0) * (count - 20'000.0) / 20'000.0;
    // The congruence goes through its whole period of 714,025 and is more even than chance.
    EXPECT_LT(chiSquare, 80) << "RNG #" << index + 1;
  }
}

TEST(Seeding, LimitsAreThoseOfTheSelectedGenerator) {
  auto generators = WithLibraries();
  const struct {
    int index;
    std::int64_t candidate;
    bool accepted;
  } cases[] = {{kGeneratorCongruence, 1'000'000, false},
               {kGeneratorCongruence, 999'999, true},
               {kGeneratorMersenne, 2'147'483'647, true},
               {kGeneratorRan1, 2'147'483'647, true},
               {kGeneratorRan2, 2'147'483'647, true},
               {kGeneratorMersenne, 2'147'483'648, false},
               {kGeneratorMersenne, 0, false},
               {kGeneratorCokusRan2, -5, false}};
  for (const auto& c : cases) {
    generators->GeneratorIndex = c.index;
    generators->RngSeedState = generators->RngLastSeed = 7;
    EXPECT_EQ(SeedGenerator(*generators, Currency::Dollars(c.candidate)), c.accepted) << c.candidate;
    EXPECT_EQ(generators->RngLastSeed, c.accepted ? c.candidate : 7);
  }
  generators->GeneratorIndex = kGeneratorMersenne;
  EXPECT_FALSE(SeedGenerator(*generators, Currency::Error()));
  EXPECT_TRUE(SeedGenerator(*generators, Currency::FromDouble(2.5)));
  EXPECT_EQ(generators->RngLastSeed, 2);
}

TEST(Seeding, AClockSeedIsNeverRefusedAndDoesNotRepeatWithinATick) {
  auto generators = WithLibraries();
  for (int index = 0; index < kGeneratorCount; ++index) {
    generators->GeneratorIndex = index;
    for (std::uint32_t tick :
         {0u, 1u, 49u, 50u, 150u, 99'999'900u, 100'000'000u, 2'147'483'648u, 4'294'967'295u}) {
      generators->RngLastSeed = 0;
      ASSERT_TRUE(SeedGenerator(*generators, TimeSeed(*generators, tick))) << index << " " << tick;
      const std::int32_t before = generators->RngLastSeed;
      ASSERT_TRUE(SeedGenerator(*generators, TimeSeed(*generators, tick)));
      const std::int32_t step = before == SeedLimit(*generators) ? 0 : 1;
      EXPECT_EQ(generators->RngLastSeed, before + step) << index << " " << tick;
    }
  }
}

TEST(Seeding, StartLeavesTheBestGeneratorThatItsLibrariesAllow) {
  for (int missing : {0, 1, 2, 3}) {
    auto generators = WithLibraries();
    generators->MissingGeneratorFiles = missing;
    StartGenerators(*generators, 123'456);
    const int expected[] = {kGeneratorMersenne, kGeneratorCokus, kGeneratorMersenne, kGeneratorRan2};
    EXPECT_EQ(generators->GeneratorIndex, expected[missing]);
    EXPECT_TRUE(generators->Ran1.Initialised && generators->Ran2.Initialised);
    EXPECT_EQ(generators->Mersenne.Seeded, (missing & kMissingMersenne) == 0);
    EXPECT_EQ(generators->Cokus.Seeded, (missing & kMissingCokus) == 0);
    for (int index = -1; index <= kGeneratorCount; ++index) {
      generators->GeneratorIndex = index;
      ReplaceMissingGenerator(*generators);
      const bool twister = index == 0 || index == 5 || index == 7;
      const bool cokus = index == 1 || index == 6;
      const bool kept = index >= 0 && index < kGeneratorCount && !(twister && (missing & kMissingMersenne)) &&
                        !(cokus && (missing & kMissingCokus));
      EXPECT_EQ(generators->GeneratorIndex, kept ? index : kGeneratorRan2) << missing << " " << index;
    }
  }
}

TEST(Seeding, TheRuntimeGeneratorRepeatsItselfAndLeavesTheDiceAlone) {
  auto first = WithLibraries();
  auto second = WithLibraries();
  Seed(*first, kGeneratorMersenne, 9);
  Seed(*second, kGeneratorMersenne, 9);
  double sum = 0;
  for (int i = 0; i < 100'000; ++i) {
    const double x = Rnd(*first);
    ASSERT_TRUE(x >= 0 && x < 1);
    ASSERT_EQ(x, Rnd(*second));
    sum += x;
    if (i % 1000 == 0) Rnd(*second), Rnd(*first), DrawNumber(*first, 0), DrawNumber(*second, 0);
  }
  EXPECT_NEAR(sum / 100'000, 0.5, 0.005);
  RandomizeRnd(*second, 5);
  EXPECT_NE(Rnd(*first), Rnd(*second));
  EXPECT_EQ(DrawNumber(*first, 0), DrawNumber(*second, 0));
}

}  // namespace
}  // namespace tessaryn
