#include "lab/session_rows.h"

#include <unistd.h>

#include <cerrno>

#include "stats/sessions_log_file.h"

namespace tessaryn {
namespace {

constexpr std::size_t kLineBytes = 12 * 8;
constexpr std::size_t kBufferBytes = 1u << 20;
constexpr std::uint64_t kHashStart = 0xcbf29ce484222325u;

std::size_t RowBytes(const RowsKept& kept) {
  return (kept.lines ? kLineBytes : 0) + (kept.records ? kRecordBytes : 0);
}

void Hash(std::uint64_t& hash, const char* bytes, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i)
    hash = (hash ^ static_cast<unsigned char>(bytes[i])) * 0x100000001b3u;
}

std::string NameOf(const SessionRows& rows) { return rows.path.empty() ? "the sessions' rows" : rows.path; }

std::string Fault(const SessionRows& rows, const char* action) {
  return FileErrorText(action, NameOf(rows), errno);
}

// Rows as they stand in the file: visit(row's bytes).
template <typename Visit>
std::string ForEachRow(SessionRows& rows, Visit&& visit) {
  if (std::string error = FlushRows(rows); !error.empty()) return error;
  const std::size_t size = RowBytes(rows.kept);
  std::string row(size, '\0');
  std::rewind(rows.file);
  const std::int64_t count = rows.kept.sessions * static_cast<std::int64_t>(rows.systems);
  for (std::int64_t i = 0; i < count; ++i) {
    if (std::fread(row.data(), 1, size, rows.file) != size)
      return std::ferror(rows.file) != 0
                 ? Fault(rows, "read")
                 : NameOf(rows) + ": the file holds less than the experiment knows of";
    if (std::string error = visit(row); !error.empty()) return error;
  }
  return {};
}

// To the file, once there is much.
void EmptyBuffer(SessionRows& rows) {
  if (rows.file == nullptr || rows.buffer.size() < kBufferBytes || !rows.fault.empty()) return;
  if (std::fwrite(rows.buffer.data(), 1, rows.buffer.size(), rows.file) != rows.buffer.size())
    rows.fault = Fault(rows, "write");
  rows.buffer.clear();
}

// The rows that are kept must be those that were written.
std::string CheckRows(SessionRows& rows, const RowsKept& kept) {
  rows.kept = kept;
  std::uint64_t hash = kHashStart;
  const std::string error = ForEachRow(rows, [&](const std::string& row) {
    Hash(hash, row.data(), row.size());
    return std::string();
  });
  if (!error.empty()) return error;
  if (hash != kept.hash) return NameOf(rows) + ": these are not the rows of the experiment";
  const auto end = static_cast<off_t>(kept.sessions) * static_cast<off_t>(rows.systems * RowBytes(kept));
  if (ftruncate(fileno(rows.file), end) != 0) return Fault(rows, "write");
  return std::fseek(rows.file, 0, SEEK_END) == 0 ? "" : Fault(rows, "read");
}

}  // namespace

SessionRows::~SessionRows() {
  if (file != nullptr) std::fclose(file);
}

std::string RowsPathOf(const std::string& labPath) { return labPath.empty() ? "" : labPath + ".rows"; }

std::string OpenRows(SessionRows& rows, const std::string& path, const LabState& state) {
  rows.path = path;
  rows.systems = state.systems.size();
  const bool goesOn = state.rows.sessions > 0;
  rows.file = path.empty() ? std::tmpfile() : std::fopen(path.c_str(), goesOn ? "r+b" : "w+b");
  if (rows.file == nullptr) return Fault(rows, goesOn ? "read" : "write");
  if (goesOn) return CheckRows(rows, state.rows);
  rows.kept = state.rows;
  rows.kept.hash = kHashStart;
  return {};
}

void AddRow(SessionRows& rows, const SessionResult& result, const Record& record) {
  const std::size_t start = rows.buffer.size();
  const auto word = [&](std::int64_t number) {
    for (int i = 0; i < 8; ++i)
      rows.buffer += static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i));
  };
  if (rows.kept.lines)
    for (const std::int64_t number :
         {result.net.raw, result.handle.raw, result.maxDrawdown.raw, result.highest.raw, result.rolls,
          result.hands, std::int64_t{result.marks}, static_cast<std::int64_t>(result.luck),
          static_cast<std::int64_t>(result.luck >> 64), result.luckUnit,
          static_cast<std::int64_t>(result.price), static_cast<std::int64_t>(result.price >> 64)})
      word(number);
  if (rows.kept.records) rows.buffer.append(reinterpret_cast<const char*>(record.data()), record.size());
  Hash(rows.kept.hash, rows.buffer.data() + start, rows.buffer.size() - start);
  EmptyBuffer(rows);
}

void AddPieceRows(SessionRows& rows, const LabPiece& piece) {
  rows.buffer += piece.rows;
  Hash(rows.kept.hash, piece.rows.data(), piece.rows.size());
  rows.kept.sessions += piece.last - piece.first;
  EmptyBuffer(rows);
}

std::string FlushRows(SessionRows& rows) {
  if (!rows.fault.empty()) return rows.fault;
  if (std::fwrite(rows.buffer.data(), 1, rows.buffer.size(), rows.file) != rows.buffer.size() ||
      std::fflush(rows.file) != 0 || (!rows.path.empty() && fsync(fileno(rows.file)) != 0))
    rows.fault = Fault(rows, "write");
  rows.buffer.clear();
  return rows.fault;
}

std::string AppendRows(SessionRows& rows, SessionRows& other) {
  const std::size_t size = RowBytes(other.kept);
  std::string error = ForEachRow(other, [&](const std::string& row) {
    const std::size_t from = rows.kept.lines || !other.kept.lines ? 0 : kLineBytes;
    const std::size_t to = rows.kept.records || !other.kept.records ? size : kLineBytes;
    rows.buffer.append(row, from, to - from);
    Hash(rows.kept.hash, row.data() + from, to - from);
    return rows.buffer.size() < kBufferBytes ? std::string() : FlushRows(rows);
  });
  rows.kept.sessions += other.kept.sessions;
  return error;
}

namespace {

// A name that holds what parts the fields stands in quotes.
std::string CsvText(const std::string& text) {
  if (text.find_first_of(",\"\n\r") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

double DollarsOf(std::int64_t low, std::int64_t high, std::int64_t unit) {
  const auto parts =
      static_cast<WideInt>(high) * (static_cast<WideInt>(1) << 64) + static_cast<std::uint64_t>(low);
  return static_cast<double>(parts) / static_cast<double>(unit) / Currency::kPerDollar;
}

SessionLine LineOf(const std::string& row) {
  std::int64_t words[kLineBytes / 8];
  for (std::size_t i = 0; i < std::size(words); ++i) {
    std::uint64_t word = 0;
    for (std::size_t byte = 0; byte < 8; ++byte)
      word |= static_cast<std::uint64_t>(static_cast<unsigned char>(row[i * 8 + byte])) << (8 * byte);
    words[i] = static_cast<std::int64_t>(word);
  }
  SessionLine line;
  line.net = Currency::FromRaw(words[0]);
  line.handle = Currency::FromRaw(words[1]);
  line.maxDrawdown = Currency::FromRaw(words[2]);
  line.highest = Currency::FromRaw(words[3]);
  line.rolls = words[4];
  line.hands = words[5];
  line.marks = static_cast<int>(words[6]);
  line.luck = DollarsOf(words[7], words[8], words[9]);
  line.price = DollarsOf(words[10], words[11], words[9]);
  return line;
}

std::string CsvLine(const SessionLine& line, std::int64_t session, const std::string& system) {
  std::string text = std::to_string(session) + "," + system;
  for (const Currency amount : {line.net, line.handle, line.maxDrawdown, line.highest})
    text += "," + PlainMoney(amount);
  for (const double dollars : {line.luck, line.price}) {
    char shown[48];
    std::snprintf(shown, sizeof shown, ",%.9g", dollars);
    text += shown;
  }
  text += "," + std::to_string(line.rolls) + "," + std::to_string(line.hands);
  for (const int mark : {kMarkRuined, kMarkGoal, kMarkLimit, kMarkStopped})
    text += (line.marks & mark) != 0 ? ",1" : ",0";
  return text + "\n";
}

constexpr const char* kCsvHeader =
    "session,system,net,handle,maxDrawdown,highest,luck,price,rolls,hands,ruined,goal,limit,stopped\n";

}  // namespace

std::string ForEachLine(SessionRows& rows, const std::function<void(const SessionLine&)>& visit) {
  return ForEachRow(rows, [&](const std::string& row) {
    visit(LineOf(row));
    return std::string();
  });
}

std::string WriteRowsAsCsv(SessionRows& rows, const Experiment& experiment, const std::string& path) {
  std::vector<std::string> names;
  for (const LabSystem& system : experiment.systems) names.push_back(CsvText(LabelOf(system)));
  FileReplacement csv;
  if (std::string error = BeginReplacement(csv, path); !error.empty()) return error;
  std::string text = kCsvHeader;
  std::int64_t row = 0;
  const std::int64_t first = SessionsOf(experiment).first;
  std::string error = ForEachRow(rows, [&](const std::string& bytes) {
    const auto systems = static_cast<std::int64_t>(names.size());
    text += CsvLine(LineOf(bytes), first + row / systems + 1, names[static_cast<std::size_t>(row % systems)]);
    ++row;
    if (text.size() < kBufferBytes) return std::string();
    std::string fault = WriteReplacement(csv, text);
    text.clear();
    return fault;
  });
  if (error.empty()) error = WriteReplacement(csv, text);
  return error.empty() ? CommitReplacement(csv) : error;
}

std::string SessionsLogOf(const std::string& path, std::size_t system, std::size_t systems) {
  if (systems == 1) return path;
  const std::string number = "." + std::to_string(system + 1);
  const auto dot = path.rfind('.');
  const auto slash = path.rfind('/');
  const bool hasEnding = dot != std::string::npos && (slash == std::string::npos || dot > slash + 1);
  return hasEnding ? path.substr(0, dot) + number + path.substr(dot) : path + number;
}

std::string WriteRowsAsLogs(SessionRows& rows, const std::string& path) {
  const std::size_t recordAt = rows.kept.lines ? kLineBytes : 0;
  for (std::size_t system = 0; system < rows.systems; ++system) {
    FileReplacement log;
    std::string error = BeginReplacement(log, SessionsLogOf(path, system, rows.systems));
    const Record header = SessionsLogHeader(rows.kept.sessions);
    std::string bytes(reinterpret_cast<const char*>(header.data()), header.size());
    std::size_t row = 0;
    if (error.empty())
      error = ForEachRow(rows, [&](const std::string& kept) {
        if (row++ % rows.systems == system) bytes.append(kept, recordAt, kRecordBytes);
        if (bytes.size() < kBufferBytes) return std::string();
        std::string fault = WriteReplacement(log, bytes);
        bytes.clear();
        return fault;
      });
    if (error.empty()) error = WriteReplacement(log, bytes);
    if (error.empty()) error = CommitReplacement(log);
    if (!error.empty()) return error;
  }
  return {};
}

}  // namespace tessaryn
