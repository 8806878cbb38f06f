// What a Sessions Log says of a measure: classes, the spread of the sessions' values, and their histogram.
// The log is walked through a block at a time and never held.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "stats/sessions_log_file.h"

namespace tessaryn {

inline constexpr int kHistogramColumns = 525;
inline constexpr int kMiddleColumn = 262;  // where all values go that are equal

enum class SessionClass { kLost, kBrokeEven, kWon };

// What is asked of a log.
struct SessionsQuery {
  int Measure = kSessionNet;  // 0 to 11
  Currency BreakPointLow;     // Requires low <= high
  Currency BreakPointHigh;
  bool IncludeWon = true;
  bool IncludeBrokeEven = true;
  bool IncludeLost = true;
  OutlierRule Outliers = OutlierRule::kNone;  // with both bounds taken in
  Currency OutlierLow;
  Currency OutlierHigh;
};
// As the screen has it set.
SessionsQuery QueryOf(const SessionsLogs& screen);

struct SessionsStatistics {
  SessionsQuery Query;     // what was asked, its bounds now by value
  std::int64_t Total = 0;  // of the log
  std::int64_t Won = 0;
  std::int64_t BrokeEven = 0;
  std::int64_t Lost = 0;
  // --- Of the sessions that take part. All zero when there are none.
  std::int64_t Included = 0;
  Currency Sum;
  Currency Mean;
  Currency Median;
  bool MedianMarked = false;  // not a value that is known to be in the log: " *"
  Currency Mode;
  Currency High;
  Currency Mid;
  Currency Low;
  Currency Range;
  double Variance = 0;
  Currency StdDev;
  double Skew = 0;
  double Kurtosis = 0;
  Currency Net;     // of field 8
  Currency Handle;  // of field 5
  Currency AdvantagePercent;
  int MeanColumn = kMiddleColumn;
  std::int64_t Histogram[kHistogramColumns] = {};
  // The lowest and highest value that lies in a column.
  Currency ColumnLow[kHistogramColumns];
  Currency ColumnHigh[kHistogramColumns];
};

SessionClass ClassOf(const SessionsQuery& query, const Record& session);
bool IsClassIncluded(const SessionsQuery& query, SessionClass which);

// Whether a session takes part. Requires bounds by value, as a computation leaves them.
bool TakesPart(const SessionsQuery& query, const Record& session);

// The passes over the log. goOn counts the records of all of them, kSessionPasses at most for each session.
// The error is a text, and statistics are then cleared but for their query; overflow tells whether the values
// themselves, and not the file, are what is wrong.
inline constexpr int kSessionPasses = 5;
std::string ComputeSessions(SessionsLogFile& file, const SessionsQuery& query, SessionsStatistics& statistics,
                            bool& overflow, const SessionsGoOn& goOn = {});

// Column 0 to 524 of a value. Requires low <= value <= high and that the range fits.
int HistogramColumn(Currency value, Currency low, Currency high);
// So many columns as one bar of a drawing. Requires 0 <= first < 525.
inline constexpr int kBarColumns[] = {1, 3, 7, 15};  // by GraphBarWidth
struct HistogramBar {
  Currency Low;  // the values that it stands for
  Currency High;
  std::int64_t Sessions = 0;
};
HistogramBar BarOf(const SessionsStatistics& statistics, int first, int columns);

// --- Names and texts, as the screen has them.
// "# Rolls" and so on; 0 to 11.
std::string_view MeasureName(int measure);
// By name, case ignored, or number 0 to 11; -1 for none.
int FindMeasure(std::string_view text);
// The fields as columns of a table: the measures' names and "CheckStack 0" up; 0 to 31.
std::string SessionFieldName(int field);
inline constexpr int kStatisticLabels = 12;
// "Sum", "Mean" ... in the order of the screen, 0 to 11, and what stands beside it; blank without sessions.
std::string_view StatisticName(int label);
std::string StatisticText(const SessionsStatistics& statistics, int label);
// "#,#;-#,#;0" for a whole value, else up to eight decimals.
std::string SessionsNumber(Currency value);
std::string SessionsNumber(double value);
// "12.5%"; "0%" for none of them, and "100" for all.
std::string ShareText(std::int64_t part, std::int64_t total);
// (value - mean) / standard deviation; 0 without one.
double DeviationsOf(const SessionsStatistics& statistics, Currency value);

// The sessions that take part as a table, a line each with its number and all fields. The table is begun and
// committed by the caller. Requires bounds by value.
std::string ExportSessions(SessionsLogFile& file, const SessionsQuery& query, FileReplacement& table);

// The next session after (step 1) or before (step -1) from, whose measure has the value; 0 for none.
std::string FindSessionValue(SessionsLogFile& file, int measure, Currency value, std::int64_t from, int step,
                             std::int64_t& found, const SessionsGoOn& goOn = {});

}  // namespace tessaryn
