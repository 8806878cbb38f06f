#include "stats/log_index.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "base/letters.h"
#include "base/messages.h"
#include "base/record_file.h"

namespace tessaryn {
namespace {

constexpr std::size_t kMostMarks = std::size_t{1} << 20;
constexpr std::int64_t kIndexBlock = 256 * 1024;  // bytes of a look around a place
constexpr std::int64_t kReferenceBytes = 4;

// --- What lines tell of.

struct LineForm {
  std::string_view text;
  unsigned kinds;
};
constexpr LineForm kBeginnings[] = {
    {" Roll #", kLogKindRoll},
    {"    Pass (", kLogKindLine},
    {"    Miss (", kLogKindLine},
    {"    Point established", kLogKindLine},
    {"----", kLogKindHand},
    {"    The dice were passed to ", kLogKindHand},
    {"    Bets:", kLogKindBet},
    {"    Wins/losses:", kLogKindWin | kLogKindLoss},
    {"    Wins:", kLogKindWin},
    {"    Losses:", kLogKindLoss},
    {"    Bankroll:", kLogKindBankroll},
    {"    CheckStacks:", kLogKindStack},
};
// Behind a player's name; the first that is there tells.
constexpr LineForm kDeeds[] = {
    {" increased CheckStack #", kLogKindStack},
    {" decreased CheckStack #", kLogKindStack},
    {" increased to $", kLogKindBankroll},
    {" decreased to $", kLogKindBankroll},
    {" won $", kLogKindWin},
    {" lost $", kLogKindLoss},
    {" bet $", kLogKindBet},
    {" removed $", kLogKindBet},
    {" increased ", kLogKindBet},
    {" decreased ", kLogKindBet},
    {" called ", kLogKindBet},
    {" bet moved to ", kLogKindBet},
};
// What else stands behind the name of the one whom a line is about.
constexpr std::string_view kFurtherDeeds[] = {
    " activated ",      " deactivated ",    " at stick ",       "'s ",
    " joined the game", " moved to stick ", " cashed out with "};
constexpr std::string_view kOfTheTable[] = {"====", " New session", "----New hand"};

// Those that the window's language tells, in any of them.
bool IsToldDeed(std::string_view deed) {
  constexpr std::string_view kName = "{player}";
  for (int language = 1; language < kMessageLanguages; ++language)
    for (const Msg told :
         {Msg::kPartJoinedLeft, Msg::kPartJoinedRight, Msg::kPartNameChanged, Msg::kPartCashedOut}) {
      std::string_view text = PatternIn(language, told);
      if (text.starts_with(kName)) text.remove_prefix(kName.size());
      if (deed.starts_with(FirstPart(text).text)) return true;
    }
  return false;
}

bool IsAbout(std::string_view line, std::string_view player) {
  const std::size_t first = line.find_first_not_of(' ');
  if (first == std::string_view::npos) return false;
  const std::string_view words = line.substr(first);
  if (words.starts_with(player)) {
    const std::string_view deed = words.substr(player.size());
    for (const LineForm& form : kDeeds)
      if (deed.starts_with(form.text)) return true;
    for (const std::string_view text : kFurtherDeeds)
      if (deed.starts_with(text)) return true;
    if (IsToldDeed(deed)) return true;
  }
  if (words.starts_with("----")) {
    const std::size_t open = words.find('(');
    return open != std::string_view::npos && words.substr(open + 1).starts_with(player) &&
           words.substr(open + 1 + player.size()).starts_with(") coming out");
  }
  constexpr std::string_view kPassed = "The dice were passed to ";
  return words.starts_with(kPassed) && words.substr(kPassed.size()) == player;
}

// --- The text.

std::int64_t SizeOf(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 ? static_cast<std::int64_t>(status.st_size) : -1;
}

// What could be read: fewer bytes at the text's end.
void ReadBytes(int descriptor, std::int64_t from, std::int64_t count, std::string& bytes) {
  bytes.resize(static_cast<std::size_t>(std::max<std::int64_t>(count, 0)));
  std::size_t got = 0;
  while (got < bytes.size()) {
    const ssize_t more = pread(descriptor, bytes.data() + got, bytes.size() - got,
                               static_cast<off_t>(from) + static_cast<off_t>(got));
    if (more < 0 && errno == EINTR) continue;
    if (more <= 0) break;
    got += static_cast<std::size_t>(more);
  }
  bytes.resize(got);
}

std::int64_t ReferenceRecord(const LogIndex& index, std::int64_t row) {
  unsigned char bytes[kReferenceBytes];
  if (pread(index.Reference, bytes, sizeof bytes, static_cast<off_t>((row - 1) * kReferenceBytes)) !=
      kReferenceBytes)
    return index.Size;
  const std::int64_t position = bytes[0] | bytes[1] << 8 | bytes[2] << 16 | std::int64_t{bytes[3]} << 24;
  return std::clamp<std::int64_t>(position - 1, 0, index.Size);
}

// The length of the row at the head of the bytes with its end; 0 when its end is not in them.
std::size_t RowLength(std::string_view bytes) {
  const std::size_t most = std::min(bytes.size(), static_cast<std::size_t>(kLongestRow));
  const void* end = most == 0 ? nullptr : std::memchr(bytes.data(), '\n', most);
  if (end != nullptr) return static_cast<std::size_t>(static_cast<const char*>(end) - bytes.data()) + 1;
  return most == static_cast<std::size_t>(kLongestRow) ? most : 0;
}

std::string_view WithoutEnd(std::string_view row) {
  if (!row.empty() && row.back() == '\n') row.remove_suffix(1);
  if (!row.empty() && row.back() == '\r') row.remove_suffix(1);
  return row;
}

// Calls visit(begin, row with its end) for the rows from a row's beginning on, those that the filter keeps
// back too, as long as visit wants more and the text goes on. Returns where it came to.
template <typename Visit>
std::int64_t WalkRows(const LogIndex& index, std::int64_t from, std::int64_t to, Visit&& visit) {
  std::string bytes;
  while (from < to) {
    ReadBytes(index.Text, from, std::min(std::max(kIndexBlock, kLongestRow), index.Size - from), bytes);
    std::string_view rest = bytes;
    const bool last = from + static_cast<std::int64_t>(bytes.size()) >= index.Size;
    if (rest.empty()) return from;
    for (std::size_t length; from < to && !rest.empty(); rest.remove_prefix(length)) {
      length = RowLength(rest);
      if (length == 0 && !last) break;
      if (length == 0) length = rest.size();
      if (!visit(from, rest.substr(0, length))) return from;
      from += static_cast<std::int64_t>(length);
    }
  }
  return from;
}

// Where the row before a row's beginning begins.
std::int64_t RowBefore(const LogIndex& index, std::int64_t begin) {
  if (begin <= 0) return 0;
  std::string bytes;
  const std::int64_t from = std::max<std::int64_t>(begin - kLongestRow, 0);
  ReadBytes(index.Text, from, begin - from, bytes);
  if (bytes.size() < 2) return from;
  const std::size_t end = std::string_view(bytes).rfind('\n', bytes.size() - 2);
  return end == std::string::npos ? from : from + static_cast<std::int64_t>(end) + 1;
}

// The beginning of the line that holds the byte.
std::int64_t BeginOfLine(const LogIndex& index, std::int64_t byte) {
  byte = std::clamp<std::int64_t>(byte, 0, index.Size);
  return byte == 0 ? 0 : RowBefore(index, byte + 1);
}

void Mark(LogIndex& index, std::int64_t begin) {
  if (index.Rows++ % index.Stride != 0) return;
  index.Marks.push_back(begin);
  if (index.Marks.size() < kMostMarks) return;
  for (std::size_t i = 0; 2 * i < index.Marks.size(); ++i) index.Marks[i] = index.Marks[2 * i];
  index.Marks.resize((index.Marks.size() + 1) / 2);
  index.Stride *= 2;
}

bool Passes(const LogIndex& index, std::string_view row) {
  return !index.Filter.IsOn() || PassesLogFilter(index.Filter, WithoutEnd(row));
}

// Of rows that have been found. Requires 1 <= row <= LogRows.
std::int64_t BeginOfKnown(const LogIndex& index, std::int64_t row) {
  if (index.Reference >= 0) return ReferenceRecord(index, row);
  if (row > index.Rows) return index.Scanned;  // the last line, which has no end yet
  const std::int64_t mark = (row - 1) / index.Stride;
  std::int64_t wanted = (row - 1) % index.Stride;
  const std::int64_t from = index.Marks[static_cast<std::size_t>(mark)];
  return WalkRows(index, from, index.Scanned,
                  [&](std::int64_t, std::string_view text) { return !Passes(index, text) || wanted-- > 0; });
}

std::int64_t KnownRows(const LogIndex& index) { return index.Rows + (index.Tail ? 1 : 0); }

double BytesOfARow(const LogIndex& index) {
  constexpr double kUsual = 40;
  return index.Rows == 0 ? kUsual : static_cast<double>(index.Scanned) / static_cast<double>(index.Rows);
}

// The number of the row that begins there, by the log's own index.
std::int64_t RowByReference(const LogIndex& index, std::int64_t begin) {
  std::int64_t low = 1;
  for (std::int64_t high = index.Rows; low < high;) {
    const std::int64_t middle = low + (high - low + 1) / 2;
    if (ReferenceRecord(index, middle) <= begin)
      low = middle;
    else
      high = middle - 1;
  }
  return low;
}

}  // namespace

unsigned LogKindOf(std::string_view line) {
  for (const LineForm& form : kBeginnings)
    if (line.starts_with(form.text)) return form.kinds;
  if (line.starts_with("    "))
    for (const LineForm& form : kDeeds)
      if (line.find(form.text) != std::string_view::npos) return form.kinds;
  return kLogKindPlayer;
}

bool PassesLogFilter(const LogFilter& filter, std::string_view line) {
  const unsigned kind = LogKindOf(line);
  if ((kind & filter.Kinds) == 0) return false;
  if (filter.Player.empty() || (kind & (kLogKindRoll | kLogKindLine)) != 0) return true;
  for (const std::string_view text : kOfTheTable)
    if (line.starts_with(text)) return true;
  return IsAbout(line, filter.Player);
}

LogIndex::~LogIndex() { CloseLogIndex(*this); }

void CloseLogIndex(LogIndex& index) {
  if (index.Text >= 0) close(index.Text);
  if (index.Reference >= 0) close(index.Reference);
  index.Text = index.Reference = -1;
  index.Size = index.Scanned = index.Looked = index.Rows = 0;
  index.Tail = false;
  index.Stride = 1;
  index.Marks.clear();
}

std::string OpenLogIndex(LogIndex& index, const std::string& path, const std::string& reference,
                         const LogFilter& filter) {
  CloseLogIndex(index);
  index.Path = path;
  index.Filter = filter;
  index.Text = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (index.Text < 0) return FileErrorText("open", path, errno);
  struct stat status {};
  if (fstat(index.Text, &status) != 0 || !S_ISREG(status.st_mode)) {
    CloseLogIndex(index);
    return S_ISDIR(status.st_mode) ? FileErrorText("open", path, EISDIR)
                                   : MessageText<Msg::kNotAFile>(With<"path">(path));
  }
  if (!reference.empty() && !filter.IsOn())
    index.Reference = open(reference.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  LookAgain(index);
  return {};
}

bool LookAgain(LogIndex& index) {
  struct stat there {};
  struct stat held {};
  if (index.Text < 0 || fstat(index.Text, &held) != 0 || stat(index.Path.c_str(), &there) != 0) return false;
  const auto size = static_cast<std::int64_t>(held.st_size);
  if (there.st_dev != held.st_dev || there.st_ino != held.st_ino || size < index.Size) return false;
  if (size > index.Size) index.Tail = false;
  index.Size = size;
  if (index.Reference < 0) return true;
  index.Rows = std::max<std::int64_t>(SizeOf(index.Reference), 0) / kReferenceBytes;
  // A line whose record is not written yet isn't one yet, and a record is nothing without its line.
  while (index.Rows > 0 && ReferenceRecord(index, index.Rows) >= size) --index.Rows;
  return true;
}

bool IsLogIndexComplete(const LogIndex& index) {
  return index.Text < 0 || index.Reference >= 0 || index.Looked == index.Size;
}

bool StepLogIndex(LogIndex& index, std::int64_t bytes) {
  if (IsLogIndexComplete(index)) return false;
  const std::int64_t to = std::min(index.Size, index.Scanned + std::max(bytes, kLongestRow));
  std::string block;
  ReadBytes(index.Text, index.Scanned, to - index.Scanned, block);
  std::string_view rest = block;
  for (std::size_t length; (length = RowLength(rest)) > 0; rest.remove_prefix(length)) {
    if (Passes(index, rest.substr(0, length))) Mark(index, index.Scanned);
    index.Scanned += static_cast<std::int64_t>(length);
  }
  if (to < index.Size) return true;
  index.Looked = index.Size;
  index.Tail = !rest.empty() && Passes(index, rest);
  return false;
}

std::int64_t LogRows(const LogIndex& index) {
  if (index.Filter.IsOn() || IsLogIndexComplete(index)) return KnownRows(index);
  const double ahead = static_cast<double>(index.Size - index.Scanned) / BytesOfARow(index);
  return index.Rows + std::max<std::int64_t>(static_cast<std::int64_t>(ahead), 1);
}

LogPlace PlaceOfLogRow(const LogIndex& index, std::int64_t row) {
  row = std::clamp<std::int64_t>(row, 1, std::max<std::int64_t>(LogRows(index), 1));
  if (index.Text < 0 || LogRows(index) == 0) return {};
  if (row <= KnownRows(index)) return {row, BeginOfKnown(index, row), true};
  const double ahead = static_cast<double>(row - index.Rows - 1) * BytesOfARow(index);
  const std::int64_t begin = BeginOfLine(index, index.Scanned + static_cast<std::int64_t>(ahead));
  return {row, std::max(begin, index.Scanned), begin <= index.Scanned};
}

LogPlace PlaceOfLogByte(const LogIndex& index, std::int64_t byte) {
  if (index.Text < 0 || LogRows(index) == 0) return {};
  const std::int64_t begin = BeginOfLine(index, std::min(byte, index.Size - 1));
  if (index.Reference >= 0) return {RowByReference(index, begin), begin, true};
  if (begin >= index.Scanned && !IsLogIndexComplete(index) && !index.Filter.IsOn()) {
    const auto ahead =
        static_cast<std::int64_t>(static_cast<double>(begin - index.Scanned) / BytesOfARow(index));
    return {index.Rows + 1 + ahead, begin, begin == index.Scanned};
  }
  if (begin >= index.Scanned || index.Marks.empty()) return PlaceOfLogRow(index, KnownRows(index));
  const auto mark = std::upper_bound(index.Marks.begin(), index.Marks.end(), begin);
  if (mark == index.Marks.begin()) return PlaceOfLogRow(index, 1);
  LogPlace place{(mark - index.Marks.begin() - 1) * index.Stride, *(mark - 1), true};
  WalkRows(index, *(mark - 1), begin + 1, [&](std::int64_t at, std::string_view text) {
    if (Passes(index, text)) place = {place.Row + 1, at, true};
    return true;
  });
  return place;
}

LogPlace MoveInLog(const LogIndex& index, const LogPlace& from, std::int64_t rows) {
  if (from.Exact || index.Filter.IsOn() || index.Text < 0) {
    const std::int64_t row = std::max<std::int64_t>(from.Row + rows, 1);
    if (row <= KnownRows(index) || IsLogIndexComplete(index) || index.Filter.IsOn())
      return PlaceOfLogRow(index, row);
  }
  LogPlace place = from;
  for (; rows < 0 && place.Begin > 0; ++rows) place = {place.Row - 1, RowBefore(index, place.Begin), false};
  if (rows > 0)
    WalkRows(index, place.Begin, index.Size, [&](std::int64_t at, std::string_view) {
      if (at != place.Begin) place = {place.Row + 1, at, false}, --rows;
      return rows > 0;
    });
  if (place.Begin < index.Scanned) return PlaceOfLogByte(index, place.Begin);
  place.Row = std::max<std::int64_t>(place.Row, index.Rows + 1);
  return place;
}

std::vector<LogRow> ReadLogRows(const LogIndex& index, const LogPlace& from, int count) {
  std::vector<LogRow> rows;
  if (index.Text < 0 || count <= 0 || LogRows(index) == 0) return rows;
  // With a filter no farther than the last row that is known: the next may be gigabytes away.
  const bool filtered = index.Filter.IsOn();
  if (filtered) count = static_cast<int>(std::clamp<std::int64_t>(KnownRows(index) - from.Row + 1, 1, count));
  const std::int64_t to = filtered ? index.Scanned + (index.Tail ? 1 : 0) : index.Size;
  WalkRows(index, from.Begin, to, [&](std::int64_t at, std::string_view text) {
    if (Passes(index, text)) rows.push_back({at, std::string(WithoutEnd(text))});
    return static_cast<int>(rows.size()) < count;
  });
  return rows;
}

LogSearch BeginLogSearch(const LogIndex& index, std::string_view wanted, std::int64_t from, bool forward) {
  LogSearch search{Lowered(wanted), forward, std::clamp<std::int64_t>(from, 0, index.Size), -1};
  if (forward)
    search.At = WalkRows(index, search.At, index.Size,
                         [&](std::int64_t at, std::string_view) { return at <= search.At; });
  return search;
}

namespace {

// Of whole rows from begin on: the first or last that holds what is wanted and passes; -1 none.
std::int64_t FindIn(const LogIndex& index, const LogSearch& search, std::string_view rows,
                    std::int64_t begin) {
  const std::string lower = Lowered(rows);
  for (std::size_t at = search.Forward ? 0 : lower.size();;) {
    at = search.Forward ? lower.find(search.Wanted, at) : lower.rfind(search.Wanted, at);
    if (at == std::string::npos) return -1;
    const std::size_t before = at == 0 ? std::string::npos : lower.rfind('\n', at - 1);
    const std::size_t first = before == std::string::npos ? 0 : before + 1;
    const std::size_t end = std::min(lower.find('\n', at), lower.size());
    if (Passes(index, rows.substr(first, end - first))) return begin + static_cast<std::int64_t>(first);
    if (!search.Forward && first == 0) return -1;
    at = search.Forward ? end : first - 1;
  }
}

}  // namespace

SearchStep StepLogSearch(const LogIndex& index, LogSearch& search, std::int64_t bytes) {
  const bool over = search.Forward ? search.At >= index.Size : search.At <= 0;
  if (index.Text < 0 || over || search.Wanted.empty()) return SearchStep::kNotThere;
  bytes = std::max(bytes, 2 * kLongestRow);
  const std::int64_t from = search.Forward ? search.At : std::max<std::int64_t>(search.At - bytes, 0);
  const std::int64_t to = search.Forward ? std::min(index.Size, search.At + bytes) : search.At;
  std::string block;
  ReadBytes(index.Text, from, to - from, block);
  if (static_cast<std::int64_t>(block.size()) < to - from)
    return SearchStep::kNotThere;  // cut short meanwhile
  std::string_view rows = block;
  std::int64_t begin = from;
  if (search.Forward && to < index.Size) {
    // The row at the end is left to the next step; one that has no end here is searched in pieces.
    if (const std::size_t end = rows.rfind('\n'); end != std::string_view::npos)
      rows = rows.substr(0, end + 1);
  } else if (!search.Forward && from > 0) {
    const std::size_t end = rows.find('\n');
    if (end != std::string_view::npos && end + 1 < rows.size()) {
      rows.remove_prefix(end + 1);
      begin += static_cast<std::int64_t>(end) + 1;
    }
  }
  search.At = search.Forward ? begin + static_cast<std::int64_t>(rows.size()) : begin;
  search.Found = FindIn(index, search, rows, begin);
  return search.Found < 0 ? SearchStep::kGoesOn : SearchStep::kFound;
}

}  // namespace tessaryn
