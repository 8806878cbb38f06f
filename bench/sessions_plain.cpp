// What bench/sessions.sh stands on: a command measured, and a Sessions Log beside a plain recomputation of
// what brought it: the dice of generator 3, the Field's money, each session, the statistics of three
// measures. Knows nothing of the table's code.
//
//   tessaryn_sessions_plain measure NAME COMMAND...
//   tessaryn_sessions_plain compare FILE.slg SESSIONS SEED FOLDER    FOLDER has "<measure>.json" of
//   `sessions`
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace {

constexpr std::int64_t kUnit = 10'000;  // a dollar in a log's amounts
constexpr int kRolls = 100;
constexpr int kBet = 5;
constexpr int kBankroll = 1'000;
constexpr int kColumns = 525;

int Measure(const char* name, char** command) {
  const pid_t child = fork();
  if (child == 0) {
    execvp(command[0], command);
    _exit(127);
  }
  int status = 0;
  rusage used{};
  wait4(child, &status, 0, &used);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  std::fprintf(stderr, "%-12s %8.2f s %8.1f MB\n", name, seconds(used.ru_utime) + seconds(used.ru_stime),
               static_cast<double>(used.ru_maxrss) / 1024);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

struct Dice {
  std::int64_t state;

  int Face() {
    state = (state * 1366 + 150'889) % 714'025;
    return static_cast<int>(6 * (static_cast<double>(state) / 714'025.0)) + 1;
  }
};

struct Session {
  std::int64_t won = 0, wonDollars = 0;
};

Session Play(Dice& dice) {
  Session session;
  for (int roll = 0; roll < kRolls; ++roll) {
    const int total = dice.Face() + dice.Face();
    if (total >= 5 && total <= 8) continue;
    ++session.won;
    session.wonDollars += kBet * (total == 2 || total == 12 ? 2 : 1);
  }
  return session;
}

// The fields of a record that this play fills; what is behind them is 0.
std::vector<std::int64_t> Fields(const Session& session) {
  const std::int64_t lost = kRolls - session.won;
  const std::int64_t net = session.wonDollars - lost * kBet;
  const std::int64_t handle = std::int64_t{kRolls} * kBet;
  const auto percent = std::llrint(100.0 * static_cast<double>(net) / static_cast<double>(handle) *
                                   static_cast<double>(kUnit));
  return {kRolls * kUnit,
          kRolls * kUnit,
          session.won * kUnit,
          lost * kUnit,
          (session.won - lost) * kUnit,
          handle * kUnit,
          session.wonDollars * kUnit,
          lost * kBet * kUnit,
          net * kUnit,
          percent,
          kBankroll * kUnit,
          (kBankroll + net) * kUnit};
}

int faults = 0;

void Check(bool holds, const std::string& what) {
  if (holds || ++faults > 20) return;
  std::fprintf(stderr, "differs: %s\n", what.c_str());
}

bool Near(double a, double b) { return std::abs(a - b) <= 1.1e-4 + 1e-6 * std::abs(b); }

double Rounded(double value) { return std::nearbyint(value * 1e4) / 1e4; }

// All values in memory, sorted.
void CompareStatistics(const std::string& file, std::vector<std::int64_t> raws, std::int64_t netSum,
                       std::int64_t handleSum) {
  std::ifstream stream(file);
  const nlohmann::json told = nlohmann::json::parse(stream);
  const auto is = [&](const char* name, double value) {
    const double found = told[name].get<double>();
    Check(Near(found, value),
          file + " " + name + ": " + std::to_string(found) + ", not " + std::to_string(value));
  };
  std::vector<double> values;
  double sum = 0;
  for (const std::int64_t raw : raws) sum += static_cast<double>(raw) / kUnit;
  for (const std::int64_t raw : raws) values.push_back(static_cast<double>(raw) / kUnit);
  const auto n = static_cast<double>(values.size());
  const double mean = Rounded(sum / n);
  double squares = 0;
  for (const double value : values) squares += (value - mean) * (value - mean);
  const double deviation = Rounded(std::sqrt(squares / n));
  double cubes = 0;
  double fourths = 0;
  for (const double value : values) {
    if (deviation == 0) break;
    cubes += Rounded(std::pow((value - mean) / deviation, 3));
    fourths += Rounded(std::pow((value - mean) / deviation, 4));
  }
  std::sort(raws.begin(), raws.end());
  const std::int64_t low = raws.front();
  const std::int64_t range = raws.back() - low;
  std::vector<std::int64_t> columns(kColumns);
  for (const std::int64_t raw : raws)
    ++columns[static_cast<std::size_t>(range == 0 ? 262 : (raw - low) * 524 / range)];
  is("n", n);
  is("sum", sum);
  is("mean", mean);
  is("variance", squares / n);
  is("stdDev", deviation);
  is("skew", deviation == 0 ? 0 : cubes / n);
  is("kurtosis", deviation == 0 ? 0 : fourths / n - 3);
  is("low", static_cast<double>(low) / kUnit);
  is("high", static_cast<double>(raws.back()) / kUnit);
  is("range", static_cast<double>(range) / kUnit);
  is("advantagePercent", 100 * static_cast<double>(netSum) / static_cast<double>(handleSum));
  Check(told["histogram"].get<std::vector<std::int64_t>>() == columns, file + " histogram");
  // These values are few and far between, so that a column holds no two of them, and the median is one of
  // them.
  const double middle = static_cast<double>(raws[(raws.size() - 1) / 2] + raws[raws.size() / 2]) / 2 / kUnit;
  is("median", middle);
}

int Compare(const std::string& path, std::int64_t sessions, std::int64_t seed, const std::string& folder) {
  std::ifstream file(path, std::ios::binary);
  char record[256];
  file.read(record, sizeof record);
  std::int32_t count = 0;
  std::memcpy(&count, record + 92, sizeof count);
  Check(count == sessions, "the header tells of " + std::to_string(count) + " sessions");
  Dice dice{seed};
  dice.Face();  // setting the seed draws once
  constexpr int kMeasures[] = {6, 8, 9};
  std::vector<std::vector<std::int64_t>> values(std::size(kMeasures));
  std::int64_t netSum = 0;
  std::int64_t handleSum = 0;
  for (std::int64_t number = 1; number <= sessions; ++number) {
    std::int64_t found[32] = {};
    file.read(reinterpret_cast<char*>(found), sizeof found);
    Check(file.good(), "the log ends at session " + std::to_string(number));
    std::vector<std::int64_t> fields = Fields(Play(dice));
    for (std::size_t i = 0; i < std::size(kMeasures); ++i)
      values[i].push_back(fields[static_cast<std::size_t>(kMeasures[i])]);
    netSum += fields[8];
    handleSum += fields[5];
    fields.resize(32);
    for (std::size_t field = 0; field < fields.size(); ++field)
      Check(found[field] == fields[field], "session " + std::to_string(number) + ", field " +
                                               std::to_string(field) + ": " + std::to_string(found[field]) +
                                               ", not " + std::to_string(fields[field]));
  }
  Check(file.peek() == std::ifstream::traits_type::eof(), "the log goes on behind its last session");
  for (std::size_t i = 0; i < std::size(kMeasures); ++i)
    CompareStatistics(folder + "/" + std::to_string(kMeasures[i]) + ".json", values[i], netSum, handleSum);
  std::printf("%lld sessions, %d differences\n", static_cast<long long>(sessions), faults);
  return faults == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** words) {
  const std::string command = count > 1 ? words[1] : "";
  if (command == "measure" && count > 3) return Measure(words[2], words + 3);
  if (command == "compare" && count == 6)
    return Compare(words[2], std::atoll(words[3]), std::atoll(words[4]), words[5]);
  std::fprintf(stderr, "see bench/sessions.sh\n");
  return 2;
}
