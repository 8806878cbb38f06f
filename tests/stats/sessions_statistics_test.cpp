#include "stats/sessions_statistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "stats/sessions_records.h"

namespace tessaryn {
namespace {

using namespace test;

// --- The statistics, plainly: all values in memory, sorted.

double Rounded(double value) { return std::nearbyint(value * 1e4) / 1e4; }

struct Plain {
  std::vector<double> values;
  // In ten-thousandths, so that a rounding to the other side is no matter of the order of adding.
  std::int64_t sum = 0, net = 0, handle = 0;
  double mean = 0, variance = 0, deviation = 0, skew = 0, kurtosis = 0, median = 0;
  bool marked = false;
  std::vector<std::int64_t> columns = std::vector<std::int64_t>(525);
};

Plain Recompute(const Records& records, const SessionsQuery& query) {
  Plain p;
  const auto dollars = [](const Record& record, int field) { return SessionValue(record, field).ToDouble(); };
  for (const Record& record : records) {
    const double net = dollars(record, 8);
    const bool in = net < query.BreakPointLow.ToDouble()    ? query.IncludeLost
                    : net > query.BreakPointHigh.ToDouble() ? query.IncludeWon
                                                            : query.IncludeBrokeEven;
    const double value = dollars(record, query.Measure);
    const bool within = query.Outliers == OutlierRule::kNone ||
                        (value >= query.OutlierLow.ToDouble() && value <= query.OutlierHigh.ToDouble());
    if (!in || !within) continue;
    p.values.push_back(value);
    p.sum += SessionValue(record, query.Measure).raw;
    p.net += SessionValue(record, 8).raw;
    p.handle += SessionValue(record, 5).raw;
  }
  if (p.values.empty()) return p;
  const std::vector<double> inOrder = p.values;
  std::sort(p.values.begin(), p.values.end());
  const auto n = static_cast<double>(p.values.size());
  const double low = p.values.front();
  const double range = p.values.back() - low;
  p.mean = Rounded(static_cast<double>(p.sum) / 1e4 / n);
  for (const double value : inOrder) p.variance += (value - p.mean) * (value - p.mean);
  p.variance /= n;
  p.deviation = Rounded(std::sqrt(p.variance));
  std::vector<std::vector<double>> held(525);
  for (const double value : p.values) {
    const double column = range > 0 ? 524 * std::round((value - low) * 1e4) / std::round(range * 1e4) : 262;
    held[static_cast<std::size_t>(column + 1e-9)].push_back(value);
    if (p.deviation == 0) continue;
    p.skew += Rounded(std::pow((value - p.mean) / p.deviation, 3)) / n;
    p.kurtosis += Rounded(std::pow((value - p.mean) / p.deviation, 4)) / n;
  }
  if (p.deviation > 0) p.kurtosis -= 3;
  const auto columnOf = [&](std::size_t at) {  // the column of the value with this rank
    for (std::size_t column = 0;; at -= held[column++].size())
      if (at < held[column].size()) return column;
  };
  const std::size_t a = columnOf((p.values.size() - 1) / 2);
  const std::size_t b = columnOf(p.values.size() / 2);
  const auto middle = [&](std::size_t column) { return (held[column].front() + held[column].back()) / 2; };
  p.median = a == b ? middle(a) : (middle(a) + middle(b)) / 2;
  p.marked = a != b || held[a].front() != held[a].back();
  for (std::size_t column = 0; column < 525; ++column)
    p.columns[column] = static_cast<std::int64_t>(held[column].size());
  return p;
}

TEST(SessionsStatistics, AreThoseOfAPlainRecomputation) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  Random random(seed);
  TempFolder folder;
  for (int round = 0; round < 150; ++round) {
    const std::int64_t count = round < 10 ? round : Draw(random, 1, round % 10 == 0 ? 6'000 : 300);
    const std::int64_t spread =
        std::vector<std::int64_t>{0, 3, 600, 40'000'000}[static_cast<std::size_t>(Draw(random, 0, 3))];
    const std::int64_t unit = Draw(random, 0, 1) == 0 ? 1 : 10'000;
    Records records;
    for (std::int64_t n = 0; n < count; ++n) {
      Record record{};
      for (int field = 0; field < 12; ++field)
        PutSessionValue(record, field, Currency::FromRaw(Draw(random, -spread, spread) * unit));
      records.push_back(record);
    }
    SessionsQuery query;
    query.Measure = static_cast<int>(Draw(random, 0, 11));
    query.BreakPointLow = Currency::FromRaw(-Draw(random, 0, spread / 2) * unit);
    query.BreakPointHigh = Currency::FromRaw(Draw(random, 0, spread / 2) * unit);
    query.IncludeWon = Draw(random, 0, 3) > 0;
    query.IncludeLost = Draw(random, 0, 3) > 0;
    if (round % 3 == 1) query.Outliers = OutlierRule::kByValue;
    if (round % 3 == 2) query.Outliers = OutlierRule::kByDeviations;
    query.OutlierLow = round % 3 == 1 ? Currency::FromRaw(-spread * unit / 2) : Money("-1.25");
    query.OutlierHigh = round % 3 == 1 ? Currency::FromRaw(spread * unit / 3) : Money("1.5");
    SessionsQuery bounded = query;
    if (query.Outliers == OutlierRule::kByDeviations) {
      SessionsQuery all = query;
      all.Outliers = OutlierRule::kNone;
      const Plain classes = Recompute(records, all);
      bounded.OutlierLow =
          Currency::FromDouble(classes.mean) + Currency::FromDouble(classes.deviation * -1.25);
      bounded.OutlierHigh =
          Currency::FromDouble(classes.mean) + Currency::FromDouble(classes.deviation * 1.5);
    }
    const std::string path = folder.File("a.slg");
    std::remove(path.c_str());
    WriteAll(path, records);
    SessionsLogFile file;
    ASSERT_EQ(OpenedTo(file, path), "");
    SessionsStatistics s;
    bool overflow = false;
    ASSERT_EQ(ComputeSessions(file, query, s, overflow), "");
    const Plain p = Recompute(records, bounded);
    SCOPED_TRACE("round " + std::to_string(round));
    ASSERT_EQ(s.Included, static_cast<std::int64_t>(p.values.size()));
    ASSERT_EQ(s.Won + s.BrokeEven + s.Lost, count);
    if (p.values.empty()) continue;
    const double size = std::abs(p.values.front()) + std::abs(p.values.back()) + 1;
    EXPECT_EQ(s.Sum.raw, p.sum);
    EXPECT_EQ(s.Mean.ToDouble(), p.mean);
    EXPECT_NEAR(s.Variance, p.variance, 1e-9 * size * size);
    EXPECT_NEAR(s.StdDev.ToDouble(), p.deviation, 1.1e-4);
    EXPECT_NEAR(s.Skew, p.skew, 2e-3);
    EXPECT_NEAR(s.Kurtosis, p.kurtosis, 2e-3);
    EXPECT_NEAR(s.Median.ToDouble(), p.median, 2e-4 + 1e-12 * size);
    EXPECT_EQ(s.MedianMarked, p.marked);
    EXPECT_EQ(s.Low.ToDouble(), p.values.front());
    EXPECT_EQ(s.High.ToDouble(), p.values.back());
    EXPECT_NEAR(s.Mid.ToDouble(), (p.values.front() + p.values.back()) / 2, 1.1e-4);
    EXPECT_NEAR(s.AdvantagePercent.ToDouble(),
                p.handle == 0 ? 0 : 100.0 * static_cast<double>(p.net) / static_cast<double>(p.handle),
                1e-3 + 1e-9 * size);
    EXPECT_EQ(std::vector<std::int64_t>(s.Histogram, s.Histogram + 525), p.columns);
    const auto fullest = std::max_element(p.columns.begin(), p.columns.end()) - p.columns.begin();
    EXPECT_EQ(HistogramColumn(s.Mode, s.Low, s.High), fullest);
  }
}

TEST(SessionsStatistics, ValuesBeyondCountingAreAnErrorAndNoResult) {
  TempFolder folder;
  for (const std::int64_t raw : {Currency::kErrorRaw, Currency::kErrorRaw + 1}) {
    const std::string path = folder.File(std::to_string(raw) + ".slg");
    Record low{};
    Record high{};
    PutSessionValue(low, 8, Currency::FromRaw(raw));
    PutSessionValue(high, 8, Currency::FromRaw(std::numeric_limits<std::int64_t>::max()));
    WriteAll(path, {low, high, high});
    SessionsLogFile file;
    ASSERT_EQ(OpenedTo(file, path), "");
    SessionsStatistics s;
    bool overflow = false;
    EXPECT_NE(ComputeSessions(file, {}, s, overflow), "");
    EXPECT_TRUE(overflow);
    EXPECT_EQ(s.Total, 0);
  }
}

}  // namespace
}  // namespace tessaryn
