#include "stats/sessions_statistics.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/letters.h"

namespace tessaryn {
namespace {

constexpr std::string_view kMeasures[kSessionMeasures] = {
    "# Rolls",
    "# Bets Decided",
    "# Bets Won",
    "# Bets Lost",
    "# Bets Won/Lost (Net)",
    "$ Bets Decided (Handle)",
    "$ Bets Won",
    "$ Bets Lost",
    "$ Bets Won/Lost (Net)",
    "% Won or Lost (HA)",
    "Invested bankroll",
    "Ending bankroll",
};

constexpr std::string_view kLabels[kStatisticLabels] = {"Sum",      "Mean",    "Median", "Mode",
                                                        "High",     "Mid",     "Low",    "Range",
                                                        "Variance", "Std Dev", "Skew",   "Kurtosis"};

constexpr const char* kOverflow = "a sum of its values is beyond what can be counted";

// The records of several passes as one count.
SessionsGoOn Behind(const SessionsGoOn& goOn, std::int64_t before) {
  if (!goOn) return {};
  return [&goOn, before](std::int64_t done) { return goOn(before + done); };
}

// The mean of two, without their sum.
Currency Between(Currency a, Currency b) {
  const Currency sum = a + b;
  if (a == b) return a;
  if (!sum.IsError()) return Divide(sum, Currency::Dollars(2));
  return Currency::FromRaw(a.raw / 2 + b.raw / 2);
}

// First pass: classes, sums and extremes.
void Count(SessionsStatistics& s, const SessionsQuery& query, const Record& session) {
  const SessionClass which = ClassOf(query, session);
  ++(which == SessionClass::kWon ? s.Won : which == SessionClass::kLost ? s.Lost : s.BrokeEven);
  if (!TakesPart(query, session)) return;
  const Currency value = SessionValue(session, query.Measure);
  s.High = s.Included == 0 ? value : std::max(s.High, value);
  s.Low = s.Included == 0 ? value : std::min(s.Low, value);
  ++s.Included;
  s.Sum += value;
  s.Handle += SessionValue(session, kSessionHandle);
  s.Net += SessionValue(session, kSessionNet);
}

// Second pass: squares and columns.
void Place(SessionsStatistics& s, const SessionsQuery& query, const Record& session, double& squares) {
  if (!TakesPart(query, session)) return;
  const Currency value = SessionValue(session, query.Measure);
  const double away = (value - s.Mean).ToDouble();
  squares += away * away;
  const int column = HistogramColumn(value, s.Low, s.High);
  if (s.Histogram[column]++ == 0) {
    s.ColumnLow[column] = s.ColumnHigh[column] = value;
  } else {
    s.ColumnLow[column] = std::min(s.ColumnLow[column], value);
    s.ColumnHigh[column] = std::max(s.ColumnHigh[column], value);
  }
}

// Third pass. The terms are rounded one by one, and so are these two's last digits.
struct Moments {
  Currency Skew;
  Currency Kurtosis;
};
void AddMoments(Moments& moments, const SessionsStatistics& s, const SessionsQuery& query,
                const Record& session) {
  if (!TakesPart(query, session)) return;
  const double away = DeviationsOf(s, SessionValue(session, query.Measure));
  moments.Skew += Currency::FromDouble(away * away * away);
  moments.Kurtosis += Currency::FromDouble(away * away * away * away);
}

// What a column stands for: its value, or the middle of those that it holds.
Currency ColumnValue(const SessionsStatistics& s, int column) {
  return Between(s.ColumnLow[column], s.ColumnHigh[column]);
}
bool HoldsSeveral(const SessionsStatistics& s, int column) {
  return s.ColumnLow[column] != s.ColumnHigh[column];
}

SeatId NextOccupied(const SessionsStatistics& s, int column) {
  while (++column < kHistogramColumns - 1 && s.Histogram[column] == 0) {
  }
  return column;
}

void FindMedian(SessionsStatistics& s) {
  // Twice the position, which may lie between two sessions.
  const std::int64_t position = s.Included + 1;
  std::int64_t running = 0;
  int column = -1;
  do running += s.Histogram[++column];
  while (2 * running < position - 1);
  s.Median = ColumnValue(s, column);
  s.MedianMarked = HoldsSeveral(s, column);
  if (2 * running >= position) return;
  s.Median = Between(s.Median, ColumnValue(s, NextOccupied(s, column)));
  s.MedianMarked = true;
}

void FindMode(SessionsStatistics& s) {
  const auto fullest = std::max_element(std::begin(s.Histogram), std::end(s.Histogram));
  s.Mode = ColumnValue(s, static_cast<int>(fullest - std::begin(s.Histogram)));
}

// Sums, extremes and mean. The bounds are values.
std::string FirstPass(SessionsLogFile& file, const SessionsQuery& query, SessionsStatistics& s,
                      bool& overflow, const SessionsGoOn& goOn) {
  std::string error = CountSessions(file, s.Total);
  if (error.empty())
    error = ForEachSession(
        file, 1, s.Total, [&](const Record& session, std::int64_t) { Count(s, query, session); }, goOn);
  if (!error.empty() || s.Included == 0) return error;
  s.Range = s.High - s.Low;
  const auto included = static_cast<double>(s.Included);
  s.Mean = Currency::FromDouble(s.Sum.ToDouble() / included);
  overflow =
      s.Sum.IsError() || s.Range.IsError() || s.Mean.IsError() || s.Net.IsError() || s.Handle.IsError();
  if (overflow) return kOverflow;
  s.MeanColumn = HistogramColumn(std::clamp(s.Mean, s.Low, s.High), s.Low, s.High);
  if (s.Handle != kZero)
    s.AdvantagePercent = Currency::FromDouble(100 * s.Net.ToDouble() / s.Handle.ToDouble());
  overflow = s.AdvantagePercent.IsError();
  return overflow ? kOverflow : "";
}

std::string SecondPass(SessionsLogFile& file, const SessionsQuery& query, SessionsStatistics& s,
                       bool& overflow, const SessionsGoOn& goOn) {
  double squares = 0;
  std::string error = ForEachSession(
      file, 1, s.Total, [&](const Record& session, std::int64_t) { Place(s, query, session, squares); },
      goOn);
  if (!error.empty()) return error;
  s.Variance = squares / static_cast<double>(s.Included);
  s.StdDev = Currency::FromDouble(std::sqrt(s.Variance));
  overflow = s.StdDev.IsError() || !std::isfinite(s.Variance);
  return overflow ? kOverflow : "";
}

std::string ThirdPass(SessionsLogFile& file, const SessionsQuery& query, SessionsStatistics& s,
                      bool& overflow, const SessionsGoOn& goOn) {
  Moments moments;
  std::string error = ForEachSession(
      file, 1, s.Total, [&](const Record& session, std::int64_t) { AddMoments(moments, s, query, session); },
      goOn);
  if (!error.empty()) return error;
  overflow = moments.Skew.IsError() || moments.Kurtosis.IsError();
  if (overflow) return kOverflow;
  s.Skew = moments.Skew.ToDouble() / static_cast<double>(s.Included);
  s.Kurtosis = moments.Kurtosis.ToDouble() / static_cast<double>(s.Included) - 3.0;
  return {};
}

// Replaces bounds by deviations with values.
std::string BoundsOf(SessionsLogFile& file, SessionsQuery& query, bool& overflow, const SessionsGoOn& goOn) {
  SessionsQuery all = query;
  all.Outliers = OutlierRule::kNone;
  SessionsStatistics s;
  std::string error = FirstPass(file, all, s, overflow, goOn);
  if (error.empty() && s.Included > 0) error = SecondPass(file, all, s, overflow, Behind(goOn, s.Total));
  if (!error.empty()) return error;
  query.Outliers = OutlierRule::kByValue;
  query.OutlierLow = s.Mean + Multiply(query.OutlierLow, s.StdDev);
  query.OutlierHigh = s.Mean + Multiply(query.OutlierHigh, s.StdDev);
  overflow = query.OutlierLow.IsError() || query.OutlierHigh.IsError();
  return overflow ? kOverflow : "";
}

std::string Passes(SessionsLogFile& file, SessionsQuery query, SessionsStatistics& s, bool& overflow,
                   const SessionsGoOn& goOn) {
  const bool byDeviations = query.Outliers == OutlierRule::kByDeviations;
  std::string error = byDeviations ? BoundsOf(file, query, overflow, goOn) : "";
  std::int64_t done = 0;
  if (error.empty() && byDeviations) error = CountSessions(file, done);
  done *= 2;
  s.Query = query;
  if (error.empty()) error = FirstPass(file, query, s, overflow, Behind(goOn, done));
  if (!error.empty() || s.Included == 0) return error;
  done += s.Total;
  error = SecondPass(file, query, s, overflow, Behind(goOn, done));
  done += s.Total;
  if (error.empty() && s.StdDev > kZero) error = ThirdPass(file, query, s, overflow, Behind(goOn, done));
  if (!error.empty()) return error;
  FindMedian(s);
  FindMode(s);
  s.Mid = Between(s.High, s.Low);
  return {};
}

}  // namespace

SessionsQuery QueryOf(const SessionsLogs& screen) {
  return {std::clamp(screen.SessionsStat, 0, kSessionMeasures - 1),
          screen.BreakPointLow,
          screen.BreakPointHigh,
          screen.IncludeWon,
          screen.IncludeBrokeEven,
          screen.IncludeLost,
          screen.Outliers,
          screen.OutlierLow,
          screen.OutlierHigh};
}

SessionClass ClassOf(const SessionsQuery& query, const Record& session) {
  const Currency net = SessionValue(session, kSessionNet);
  if (net < query.BreakPointLow) return SessionClass::kLost;
  return net > query.BreakPointHigh ? SessionClass::kWon : SessionClass::kBrokeEven;
}

bool IsClassIncluded(const SessionsQuery& query, SessionClass which) {
  if (which == SessionClass::kWon) return query.IncludeWon;
  return which == SessionClass::kLost ? query.IncludeLost : query.IncludeBrokeEven;
}

bool TakesPart(const SessionsQuery& query, const Record& session) {
  if (!IsClassIncluded(query, ClassOf(query, session))) return false;
  if (query.Outliers == OutlierRule::kNone) return true;
  const Currency value = SessionValue(session, query.Measure);
  return value >= query.OutlierLow && value <= query.OutlierHigh;
}

std::string ComputeSessions(SessionsLogFile& file, const SessionsQuery& query, SessionsStatistics& statistics,
                            bool& overflow, const SessionsGoOn& goOn) {
  statistics = {};
  overflow = false;
  std::string error = Passes(file, query, statistics, overflow, goOn);
  if (error.empty()) return {};
  statistics = {};
  statistics.Query = query;
  if (query.Outliers == OutlierRule::kByDeviations) statistics.Query.Outliers = OutlierRule::kNone;
  return error;
}

int HistogramColumn(Currency value, Currency low, Currency high) {
  constexpr std::uint64_t kLast = kHistogramColumns - 1;
  const auto away = static_cast<std::uint64_t>(value.raw) - static_cast<std::uint64_t>(low.raw);
  const auto range = static_cast<std::uint64_t>(high.raw) - static_cast<std::uint64_t>(low.raw);
  if (range == 0) return kMiddleColumn;
  std::uint64_t scaled = 0;
  if (!__builtin_mul_overflow(away, kLast, &scaled)) return static_cast<int>(scaled / range);
  __extension__ using Wide = unsigned __int128;
  return static_cast<int>(static_cast<Wide>(away) * kLast / range);
}

HistogramBar BarOf(const SessionsStatistics& statistics, int first, int columns) {
  const int end = std::min(first + columns, kHistogramColumns);
  const double width = statistics.Range.ToDouble() / (kHistogramColumns - 1);
  const auto edge = [&](int column) {
    return std::min(statistics.High, statistics.Low + Currency::FromDouble(width * column));
  };
  HistogramBar bar{edge(first), edge(end), 0};
  for (int column = first; column < end; ++column) bar.Sessions += statistics.Histogram[column];
  return bar;
}

std::string_view MeasureName(int measure) { return kMeasures[measure]; }

int FindMeasure(std::string_view text) {
  for (int measure = 0; measure < kSessionMeasures; ++measure)
    if (SameLetters(text, kMeasures[measure])) return measure;
  int number = -1;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = fault == std::errc() && end == text.data() + text.size();
  return whole && number >= 0 && number < kSessionMeasures ? number : -1;
}

std::string SessionFieldName(int field) {
  if (field < kSessionMeasures) return std::string(kMeasures[field]);
  return "CheckStack " + std::to_string(field - kSessionStacks);
}

std::string_view StatisticName(int label) { return kLabels[label]; }

std::string StatisticText(const SessionsStatistics& s, int label) {
  if (s.Included == 0) return {};
  const Currency money[] = {s.Sum, s.Mean, s.Median, s.Mode, s.High, s.Mid, s.Low, s.Range};
  if (label < static_cast<int>(std::size(money))) return SessionsNumber(money[label]);
  if (label == 9) return SessionsNumber(s.StdDev);
  return SessionsNumber(label == 8 ? s.Variance : label == 10 ? s.Skew : s.Kurtosis);
}

std::string SessionsNumber(Currency value) {
  return value.IsWhole() ? FormatMoney(value) : PlainMoney(value);
}

std::string SessionsNumber(double value) {
  char text[400];
  std::snprintf(text, sizeof text, "%.8f", value);
  std::string number = text;
  number.erase(number.find_last_not_of('0') + 1);
  if (number.back() == '.') number.pop_back();
  return number == "-0" ? "0" : number;
}

std::string ShareText(std::int64_t part, std::int64_t total) {
  if (part == 0) return "0%";
  if (part == total) return "100";
  char text[16];
  std::snprintf(text, sizeof text, "%.1f%%", 100.0 * static_cast<double>(part) / static_cast<double>(total));
  return text;
}

double DeviationsOf(const SessionsStatistics& statistics, Currency value) {
  if (statistics.StdDev == kZero) return 0;
  return (value - statistics.Mean).ToDouble() / statistics.StdDev.ToDouble();
}

std::string ExportSessions(SessionsLogFile& file, const SessionsQuery& query, FileReplacement& table) {
  std::int64_t count = 0;
  std::string error = CountSessions(file, count);
  if (!error.empty()) return error;
  std::string lines = "Session #";
  for (int field = 0; field < kSessionFields; ++field) lines += "," + SessionFieldName(field);
  lines += '\n';
  const auto add = [&](const Record& session, std::int64_t number) {
    if (!TakesPart(query, session)) return;
    lines += std::to_string(number);
    char text[kLongestPlainMoney];
    for (int field = 0; field < kSessionFields; ++field) {
      lines += ',';
      lines.append(text, WritePlainMoney(text, SessionValue(session, field)));
    }
    lines += '\n';
  };
  const auto write = [&](std::int64_t) {
    std::string problem = WriteReplacement(table, lines);
    lines.clear();
    return problem;
  };
  error = ForEachSession(file, 1, count, add, write);
  return error.empty() && !lines.empty() ? write(count) : error;
}

std::string FindSessionValue(SessionsLogFile& file, int measure, Currency value, std::int64_t from, int step,
                             std::int64_t& found, const SessionsGoOn& goOn) {
  constexpr std::int64_t kBlock = 2'048;
  std::int64_t count = 0;
  found = 0;
  std::string error = CountSessions(file, count);
  std::vector<Record> records;
  for (std::int64_t at = std::min(from + step, step > 0 ? kMostSessions : count);
       error.empty() && at >= 1 && at <= count;) {
    // A block on from here, or back to here.
    const std::int64_t first = step > 0 ? at : std::max<std::int64_t>(at - kBlock + 1, 1);
    const std::int64_t last = step > 0 ? std::min(at + kBlock - 1, count) : at;
    error = ReadSessions(file, first, static_cast<std::size_t>(last - first + 1), records);
    for (; error.empty() && at >= first && at <= last; at += step)
      if (SessionValue(records[static_cast<std::size_t>(at - first)], measure) == value) {
        found = at;
        return {};
      }
    if (goOn && error.empty()) error = goOn(std::abs(at - from));
  }
  return error;
}

}  // namespace tessaryn
