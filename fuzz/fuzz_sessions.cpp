// Opens any bytes as a Sessions Log. What is refused stays as it is; of what opens the statistics are
// computed, and it is appended to and deleted from beside a plain list.
#include <vector>

#include "fuzz_support.h"
#include "stats/sessions_statistics.h"

using namespace tessaryn;

namespace {

void Ok(const std::string& problem) { fuzz::Require(problem.empty(), problem); }

std::vector<Record> Held(SessionsLogFile& file) {
  std::int64_t count = 0;
  std::vector<Record> records;
  Ok(CountSessions(file, count));
  Ok(ForEachSession(file, 1, count, [&](const Record& record, std::int64_t) { records.push_back(record); }));
  return records;
}

void Compute(SessionsLogFile& file, std::uint8_t choice) {
  SessionsQuery query;
  query.Measure = choice % kSessionMeasures;
  query.Outliers = static_cast<OutlierRule>(choice / 16 % 3);
  query.OutlierLow = Currency::Dollars(-2);
  query.OutlierHigh = Currency::Dollars(choice);
  SessionsStatistics s;
  bool overflow = false;
  const std::string problem = ComputeSessions(file, query, s, overflow);
  fuzz::Require(problem.empty() != overflow, "a fault of the file after it was opened");
  std::int64_t counted = 0;
  for (const std::int64_t column : s.Histogram) counted += column;
  fuzz::Require(counted == s.Included, "sessions beside the histogram");
  for (int label = 0; label < kStatisticLabels; ++label) StatisticText(s, label);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  folder.Empty();
  if (size < 4) return 0;
  // The last bytes are what is done; the others are the file, behind a header if the first byte wants one.
  const std::size_t kept = size - 3;
  std::string bytes;
  SessionsLogFile file;
  if ((data[0] & 1) != 0) {
    Ok(OpenSessionsFile(file, folder.Name("a.slg"), SessionsAccess::kCreate));
    bytes = fuzz::Bytes(folder.Name("a.slg"));
    bytes[92] = static_cast<char>((kept - 1) / kRecordBytes);
    bytes[93] = 0;
    bytes.append(reinterpret_cast<const char*>(data) + 1, kept - 1);
  } else {
    bytes.assign(reinterpret_cast<const char*>(data), kept);
  }
  const std::string path =
      folder.Write("a.slg", reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  if (!OpenSessionsFile(file, path, SessionsAccess::kChange).empty()) {
    fuzz::Require(fuzz::Bytes(path) == bytes, "a refused file was changed");
    return 0;
  }
  std::vector<Record> model = Held(file);
  Compute(file, data[size - 3]);
  Record session{};
  PutSessionValue(session, kSessionNet, Currency::FromRaw(data[size - 1]));
  Ok(AppendSession(file, session));
  model.push_back(session);
  const std::int64_t first = data[size - 2] % 16;
  const std::int64_t last = first + data[size - 1] % 4;
  const bool good = first >= 1 && last <= static_cast<std::int64_t>(model.size());
  fuzz::Require(DeleteSessionRange(file, first, last).empty() == good,
                "a range out of the log, or none in it");
  if (good) model.erase(model.begin() + first - 1, model.begin() + last);
  fuzz::Require(Held(file) == model, "other sessions than were left");
  return 0;
}
