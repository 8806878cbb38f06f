#include "lab/measures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tessaryn {
namespace {

constexpr std::size_t kWaitingPlaces = 1'024;  // a power of two
constexpr double kZ = 1.96;

std::vector<CountedValue> Merged(const std::vector<CountedValue>& a, const std::vector<CountedValue>& b) {
  std::vector<CountedValue> both;
  both.reserve(a.size() + b.size());
  for (std::size_t i = 0, j = 0; i < a.size() || j < b.size();) {
    const bool fromA = j == b.size() || (i < a.size() && a[i].amount <= b[j].amount);
    const CountedValue& next = fromA ? a[i++] : b[j++];
    if (!both.empty() && both.back().amount == next.amount)
      both.back().count += next.count;
    else
      both.push_back(next);
  }
  return both;
}

}  // namespace

void CountValue(ValueCounts& counts, std::int64_t amount) {
  if (counts.waiting.empty()) counts.waiting.resize(kWaitingPlaces);
  std::size_t place = (static_cast<std::uint64_t>(amount) * 0x9E3779B97F4A7C15u) >> 54;
  while (counts.waiting[place].count != 0 && counts.waiting[place].amount != amount)
    place = (place + 1) % kWaitingPlaces;
  CountedValue& at = counts.waiting[place];
  at.amount = amount;
  if (++at.count == 1 && ++counts.places > static_cast<std::int64_t>(kWaitingPlaces / 2))
    SettleCounts(counts);
}

void SettleCounts(ValueCounts& counts) {
  if (counts.waiting.empty()) return;
  std::vector<CountedValue> rows;
  for (const CountedValue& value : counts.waiting)
    if (value.count != 0) rows.push_back(value);
  std::sort(rows.begin(), rows.end(),
            [](const CountedValue& a, const CountedValue& b) { return a.amount < b.amount; });
  counts.rows = counts.rows.empty() ? std::move(rows) : Merged(counts.rows, rows);
  counts.waiting.clear();
  counts.places = 0;
}

void AddCounts(ValueCounts& counts, const ValueCounts& other) {
  SettleCounts(counts);
  ValueCounts settled = other;
  SettleCounts(settled);
  counts.rows = Merged(counts.rows, settled.rows);
}

void AddSquared(ExactSum& sum, Int128 amount) {
  const auto size = static_cast<Word128>(amount < 0 ? -amount : amount);
  AddExact(sum, {amount, size * size, 0});
}

void AddExact(ExactSum& sum, const ExactSum& other) {
  sum.sum += other.sum;
  sum.squares += other.squares;
  sum.carried += other.carried + (sum.squares < other.squares ? 1 : 0);
}

void AddScriptErrors(std::vector<ScriptErrorKind>& errors, const std::vector<ScriptErrorKind>& more) {
  for (const ScriptErrorKind& kind : more) {
    const auto known = std::find_if(errors.begin(), errors.end(), [&](const ScriptErrorKind& one) {
      return one.code == kind.code && one.text == kind.text;
    });
    if (known == errors.end())
      errors.push_back(kind);
    else
      known->count += kind.count;
  }
}

void AddSession(SystemSums& sums, const SessionResult& result) {
  ++sums.sessions;
  sums.rolls += result.rolls;
  ++(result.net > kZero ? sums.won : result.net < kZero ? sums.lost : sums.brokeEven);
  if ((result.marks & kMarkRuined) != 0) {
    ++sums.ruined;
    CountValue(sums.ruins, result.rolls);
  }
  if ((result.marks & kMarkGoal) != 0) ++sums.goal;
  if ((result.marks & kMarkLimit) != 0) ++sums.limit;
  if ((result.marks & kMarkStopped) != 0) ++sums.stopped;
  if (result.rolls == 0) ++sums.unrolled;
  AddSquared(sums.net, result.net.raw);
  sums.luckUnit = result.luckUnit;
  AddSquared(sums.adjusted, Int128{result.net.raw} * result.luckUnit - result.luck);
  sums.handle += result.handle.raw;
  sums.price += result.price;
  sums.drawdown += result.maxDrawdown.raw;
  CountValue(sums.nets, result.net.raw);
  CountValue(sums.drawdowns, result.maxDrawdown.raw);
  CountValue(sums.lengths, result.rolls);
  sums.streak += result.losingStreak;
  CountValue(sums.streaks, result.losingStreak);
}

void AddSums(SystemSums& sums, const SystemSums& later) {
  for (std::int64_t SystemSums::*count :
       {&SystemSums::sessions, &SystemSums::rolls, &SystemSums::won, &SystemSums::brokeEven,
        &SystemSums::lost, &SystemSums::ruined, &SystemSums::goal, &SystemSums::limit, &SystemSums::stopped,
        &SystemSums::unrolled, &SystemSums::streak})
    sums.*count += later.*count;
  AddExact(sums.net, later.net);
  if (sums.luckUnit == 0) sums.luckUnit = later.luckUnit;
  AddExact(sums.adjusted, later.adjusted);
  sums.handle += later.handle;
  sums.price += later.price;
  sums.drawdown += later.drawdown;
  for (ValueCounts SystemSums::*counts : {&SystemSums::nets, &SystemSums::drawdowns, &SystemSums::lengths,
                                          &SystemSums::streaks, &SystemSums::ruins})
    AddCounts(sums.*counts, later.*counts);
  for (int mark = 0; mark < kFanMarks; ++mark) AddCounts(sums.fan[mark], later.fan[mark]);
  AddScriptErrors(sums.errors, later.errors);
  sums.acted = sums.acted || later.acted;
  if (sums.stopReason.empty()) sums.stopReason = later.stopReason;
}

MeanFigure FigureMean(const ExactSum& sum, std::int64_t count, double unit) {
  MeanFigure figure;
  if (count == 0) return figure;
  const auto n = static_cast<long double>(count);
  const auto total = static_cast<long double>(sum.sum);
  figure.mean = static_cast<double>(total / n / static_cast<long double>(unit));
  if (count > 1) {
    const long double spread = std::ldexp(static_cast<long double>(sum.carried), 128) +
                               static_cast<long double>(sum.squares) - total / n * total;
    figure.stdDev =
        static_cast<double>(std::sqrt(std::max(spread, 0.0L) / (n - 1)) / static_cast<long double>(unit));
  }
  const double half = kZ * figure.stdDev / std::sqrt(static_cast<double>(count));
  figure.ci95 = {figure.mean - half, figure.mean + half};
  return figure;
}

ShareFigure FigureShare(std::int64_t count, std::int64_t of) {
  if (of == 0) return {};
  const auto n = static_cast<double>(of);
  const double p = static_cast<double>(count) / n;
  const double whole = 1 + kZ * kZ / n;
  const double middle = (p + kZ * kZ / (2 * n)) / whole;
  const double half = kZ / whole * std::sqrt(p * (1 - p) / n + kZ * kZ / (4 * n * n));
  // At the ends the bound is the end itself, which rounding would miss by a hair.
  return {p, {count == 0 ? 0.0 : middle - half, count == of ? 1.0 : middle + half}};
}

std::int64_t Quantile(const ValueCounts& counts, int percent) {
  std::int64_t all = 0;
  for (const CountedValue& row : counts.rows) all += row.count;
  std::int64_t below = 0;
  for (const CountedValue& row : counts.rows) {
    below += row.count;
    if (below * 100 >= all * percent) return row.amount;
  }
  return 0;
}

namespace {

// The largest amount of which every value is a whole multiple: narrower bins would be empty.
std::int64_t CommonStep(const ValueCounts& counts) {
  std::int64_t step = 0;
  for (const CountedValue& row : counts.rows) step = std::gcd(step, row.amount);
  return step;
}

}  // namespace

std::vector<Bin> Histogram(const ValueCounts& counts) {
  std::vector<Bin> bins;
  if (counts.rows.empty()) return bins;
  constexpr std::int64_t kMostBins = 60;
  const std::int64_t low = counts.rows.front().amount;
  const std::int64_t high = counts.rows.back().amount;
  std::int64_t width = std::max<std::int64_t>(CommonStep(counts), 1);
  const auto first = [&] { return (low - ((low % width) + width) % width) / width; };
  for (int step = 0; (high - first() * width) / width >= kMostBins; ++step)
    width = step % 3 == 1 ? width / 2 * 5 : width * 2;  // 1, 2, 5, 10, 20, 50 ... steps
  for (std::int64_t at = first() * width; at <= high; at += width) bins.push_back({at, at + width, 0});
  std::size_t bin = 0;
  for (const CountedValue& row : counts.rows) {
    while (row.amount >= bins[bin].high) ++bin;
    bins[bin].count += row.count;
  }
  return bins;
}

}  // namespace tessaryn
