// Reading a text of lines of any size, as the Events Log is: where its rows begin, the lines there, and what
// is looked for in them. Nothing is read but what is asked for, memory stays below ten megabytes, and a text
// that grows is gone on with.
//
// A row is a line, or a line that a filter lets pass. The index is built a slice at a time (StepLogIndex),
// from the beginning on; without a filter the rows behind what has been read can be shown already, at a place
// that their number gives roughly. A line that is longer than kLongestRow is several rows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessaryn {

inline constexpr std::int64_t kLongestRow = 65'536;  // bytes

// What a line of the Events Log tells of, as bits.
enum LogKind : unsigned {
  kLogKindRoll = 1u << 0,
  kLogKindLine = 1u << 1,  // passes, misses and points
  kLogKindBet = 1u << 2,
  kLogKindWin = 1u << 3,
  kLogKindLoss = 1u << 4,
  kLogKindBankroll = 1u << 5,
  kLogKindStack = 1u << 6,
  kLogKindHand = 1u << 7,    // hands and shooters
  kLogKindPlayer = 1u << 8,  // who comes and goes, sessions, scripts and all else
  kLogAllKinds = (1u << 9) - 1,
};
unsigned LogKindOf(std::string_view line);

struct LogFilter {
  unsigned Kinds = kLogAllKinds;
  // Lines about others than this player don't pass, nor headings above them. Empty: everybody's.
  std::string Player = {};

  bool IsOn() const { return Kinds != kLogAllKinds || !Player.empty(); }
  friend bool operator==(const LogFilter&, const LogFilter&) = default;
};
bool PassesLogFilter(const LogFilter& filter, std::string_view line);

struct LogIndex {
  std::string Path;
  LogFilter Filter;
  int Text = -1;       // descriptors; -1 closed
  int Reference = -1;  // the log's own index, which knows all its lines; -1 none
  std::int64_t Size = 0;
  std::int64_t Scanned = 0;  // bytes, to a line's beginning
  std::int64_t Rows = 0;     // that begin in what is scanned
  std::int64_t Looked = 0;   // as Size was when the text's end was reached
  bool Tail = false;         // one more row: a last line without its end
  std::int64_t Stride = 1;
  std::vector<std::int64_t> Marks;  // where row 1, 1 + Stride, 1 + 2 * Stride ... begin

  LogIndex() = default;
  LogIndex(const LogIndex&) = delete;
  LogIndex& operator=(const LogIndex&) = delete;
  ~LogIndex();
};

// A place to show lines from. Row: 1 and up, about right as long as Exact is false.
struct LogPlace {
  std::int64_t Row = 1;
  std::int64_t Begin = 0;  // bytes from the text's beginning
  bool Exact = true;
};

// Opens a text and begins anew. reference: the path of an index that is known to belong to the text; empty
// for none. The error is a text; an index without a text is an empty one.
std::string OpenLogIndex(LogIndex& index, const std::string& path, const std::string& reference,
                         const LogFilter& filter);
void CloseLogIndex(LogIndex& index);
// What the files hold now. False if it is no longer the text that was opened: that wants to be opened anew.
bool LookAgain(LogIndex& index);
// Reads on, about so many bytes. True while there is more to read.
bool StepLogIndex(LogIndex& index, std::int64_t bytes);
bool IsLogIndexComplete(const LogIndex& index);

// How many rows there are; about so many without a filter while the index is incomplete, and those found so
// far with one.
std::int64_t LogRows(const LogIndex& index);
// Rows outside are taken as the first or last one.
LogPlace PlaceOfLogRow(const LogIndex& index, std::int64_t row);
// The row that holds the byte.
LogPlace PlaceOfLogByte(const LogIndex& index, std::int64_t byte);
// So many rows on or back, by the lines that are there.
LogPlace MoveInLog(const LogIndex& index, const LogPlace& from, std::int64_t rows);

struct LogRow {
  std::int64_t Begin = 0;
  std::string Text;  // without its end
};
// The row of the place and those behind it; fewer at the text's end.
std::vector<LogRow> ReadLogRows(const LogIndex& index, const LogPlace& from, int count);

// Looking for a text, case ignored, a slice at a time, in the rows that begin behind a byte (forward) or
// before it.
struct LogSearch {
  std::string Wanted;
  bool Forward = true;
  std::int64_t At = 0;      // how far it has come
  std::int64_t Found = -1;  // where the row begins
};
LogSearch BeginLogSearch(const LogIndex& index, std::string_view wanted, std::int64_t from, bool forward);
enum class SearchStep { kGoesOn, kFound, kNotThere };
SearchStep StepLogSearch(const LogIndex& index, LogSearch& search, std::int64_t bytes);

}  // namespace tessaryn
