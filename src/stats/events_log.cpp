#include "stats/events_log.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "base/bet_catalogue.h"
#include "base/letters.h"
#include "base/record_file.h"
#include "dice/percentage_dice.h"
#include "state/show_message.h"
#include "stats/log_fault.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kFlushAt = 256 * 1024;  // bytes of text
constexpr std::size_t kKeepUnwritten = 4 * 1024 * 1024;
constexpr std::int64_t kLongestLog = 4'294'967'295;  // the index counts in 32 bits
constexpr int kIndexBytes = 4;
constexpr std::int64_t kIndexedAtOnce = 64 * 1024 * 1024;  // bytes of text, a tenth of a second

void CloseFiles(EventsLog& log) {
  if (log.Files.textFile != nullptr) std::fclose(log.Files.textFile);
  if (log.Files.indexFile != nullptr) std::fclose(log.Files.indexFile);
  log.Files.textFile = log.Files.indexFile = nullptr;
}

void ForgetFiles(EventsLog& log) {
  CloseFiles(log);
  log.Files.textBuffer.clear();
  log.Files.indexBuffer.clear();
  log.Files.failedAt = 0;
}

void ReportFault(Game& game, const std::string& what) {
  if (StopWithLogFault(game, game.events.FaultReported, what))
    ShowMessage<Msg::kLogFaultReported>(game, With<"problem">(what));
}

std::string FaultText(const std::string& path, int error) {
  return MessageText<Msg::kLogFault>(With<"path">(path), With<"reason">(std::strerror(error)));
}

std::string FullText(const Game& game) { return "The Events Log is full: " + EventsLogPath(game) + "."; }

std::int64_t FileSize(const std::string& path) {
  std::error_code error;
  const auto size = fs::file_size(path, error);
  return error ? -1 : static_cast<std::int64_t>(size);
}

// Appends all of the buffer, or leaves the file as it was. Returns 0 or errno.
int AppendAll(std::FILE* file, const std::string& buffer) {
  if (buffer.empty()) return 0;
  errno = 0;
  const bool written =
      std::fwrite(buffer.data(), 1, buffer.size(), file) == buffer.size() && std::fflush(file) == 0;
  if (written) return 0;
  return errno == 0 ? EIO : errno;
}

std::int64_t IndexRecord(std::ifstream& index, std::int64_t line) {
  unsigned char bytes[kIndexBytes];
  index.clear();
  index.seekg((line - 1) * kIndexBytes);
  if (!index.read(reinterpret_cast<char*>(bytes), kIndexBytes)) return 0;
  return static_cast<std::int64_t>(bytes[0] | bytes[1] << 8 | bytes[2] << 16) |
         static_cast<std::int64_t>(bytes[3]) << 24;
}

// Whether the last record names the beginning of the text's last line: an index that another log, or
// another program, left behind doesn't.
bool IndexBelongs(const Game& game, std::int64_t textSize) {
  const std::int64_t indexSize = FileSize(EventsIndexPath(game));
  if (indexSize < kIndexBytes || indexSize % kIndexBytes != 0) return false;
  std::ifstream index(EventsIndexPath(game), std::ios::binary);
  const std::int64_t position = IndexRecord(index, indexSize / kIndexBytes);
  if (position < 1 || position > textSize) return false;
  std::ifstream text(EventsLogPath(game), std::ios::binary);
  if (position > 1) {
    text.seekg(position - 2);
    if (text.get() != '\n') return false;
  }
  std::string line;
  std::getline(text, line);
  const std::int64_t end = position - 1 + static_cast<std::int64_t>(line.size());
  return end == textSize || end + 1 == textSize;
}

bool EndsWithLine(const std::string& path, std::int64_t size) {
  std::ifstream text(path, std::ios::binary);
  text.seekg(size - 1);
  return text.get() == '\n';
}

void AppendIndexRecord(std::string& buffer, std::int64_t position) {
  char record[kIndexBytes];
  for (int i = 0; i < kIndexBytes; ++i) record[i] = static_cast<char>(position >> (8 * i) & 0xff);
  buffer.append(record, kIndexBytes);
}

// Lines that wait from an earlier fault go behind what the files hold now.
void PlaceWaitingLines(EventsLog& log, std::int64_t textSize, std::int64_t lines) {
  // On a full disk every line tries again, and mostly the files are as they were.
  const auto waiting = static_cast<std::int64_t>(log.Files.indexBuffer.size()) / kIndexBytes;
  const auto waitingBytes = static_cast<std::int64_t>(log.Files.textBuffer.size());
  if (log.Files.textLength - waitingBytes == textSize && log.Files.lineCount - waiting == lines) return;
  log.Files.textLength = textSize;
  log.Files.lineCount = lines;
  log.Files.indexBuffer.clear();
  for (std::size_t at = 0; at < log.Files.textBuffer.size();) {
    AppendIndexRecord(log.Files.indexBuffer, textSize + static_cast<std::int64_t>(at) + 1);
    at = log.Files.textBuffer.find('\n', at) + 1;
    ++log.Files.lineCount;
  }
  log.Files.textLength += waitingBytes;
}

// A pipe would hold the program up until somebody reads it.
bool IsPipe(const std::string& path) {
  std::error_code ignored;
  return fs::is_fifo(path, ignored) || fs::is_socket(path, ignored);
}

// The error is a text.
std::string OpenFiles(Game& game) {
  EventsLog& log = game.events;
  if (log.Files.textFile != nullptr) return "";
  const std::string textPath = EventsLogPath(game);
  const std::string indexPath = EventsIndexPath(game);
  std::int64_t textSize = std::max<std::int64_t>(FileSize(textPath), 0);
  for (const std::string& path : {textPath, indexPath})
    if (IsPipe(path))
      return MessageText<Msg::kLogFault>(With<"path">(path), With<"reason">(MessageText<Msg::kIsNoFile>()));
  std::string problem;
  if (textSize > kLongestLog) return FullText(game);
  if (textSize > 0 && !IndexBelongs(game, textSize) && !RebuildEventsLogIndex(game, problem)) return problem;
  errno = 0;
  log.Files.textFile = std::fopen(textPath.c_str(), "ab");
  if (log.Files.textFile == nullptr) return FaultText(textPath, errno);
  log.Files.indexFile = std::fopen(indexPath.c_str(), textSize > 0 ? "ab" : "wb");
  if (log.Files.indexFile == nullptr) {
    const int error = errno;
    CloseFiles(log);
    return FaultText(indexPath, error);
  }
  std::setvbuf(log.Files.textFile, nullptr, _IONBF, 0);
  std::setvbuf(log.Files.indexFile, nullptr, _IONBF, 0);
  // A text that was edited by hand may lack its last line's end.
  if (textSize > 0 && !EndsWithLine(textPath, textSize) && std::fputc('\n', log.Files.textFile) != EOF)
    ++textSize;
  PlaceWaitingLines(log, textSize, std::max<std::int64_t>(FileSize(indexPath), 0) / kIndexBytes);
  return "";
}

// Both files go back to where they agreed.
void CutBack(EventsLog& log, const std::string& textPath, std::int64_t text, const std::string& indexPath,
             std::int64_t index) {
  CloseFiles(log);
  std::error_code ignored;
  if (text >= 0) fs::resize_file(textPath, static_cast<std::uintmax_t>(text), ignored);
  if (index >= 0) fs::resize_file(indexPath, static_cast<std::uintmax_t>(index), ignored);
}

// All or nothing of what waits. The error is a text; what waits is then tried again.
std::string WriteBuffers(Game& game) {
  EventsLog& log = game.events;
  if (log.Held || log.Files.textBuffer.empty()) return "";
  log.Files.failedAt = log.Files.textBuffer.size();
  if (std::string problem = OpenFiles(game); !problem.empty()) return problem;
  const std::string textPath = EventsLogPath(game);
  const std::string indexPath = EventsIndexPath(game);
  const std::int64_t textBefore = FileSize(textPath);
  const std::int64_t indexBefore = FileSize(indexPath);
  int error = AppendAll(log.Files.textFile, log.Files.textBuffer);
  std::string path = textPath;
  if (error == 0) {
    error = AppendAll(log.Files.indexFile, log.Files.indexBuffer);
    path = indexPath;
  }
  if (error != 0) {
    CutBack(log, textPath, textBefore, indexPath, indexBefore);
    return FaultText(path, error);
  }
  log.Files.textBuffer.clear();
  log.Files.indexBuffer.clear();
  log.FaultReported.clear();
  log.Files.failedAt = 0;
  return "";
}

void WriteAndTell(Game& game) {
  if (const std::string problem = WriteBuffers(game); !problem.empty()) ReportFault(game, problem);
}

// Lines that can't be written wait, up to a bound.
void KeepWithinBounds(EventsLog& log) {
  if (log.Files.textBuffer.size() > kKeepUnwritten) ForgetFiles(log);
  if (log.Files.textBuffer.empty()) log.Files.textLength = log.Files.lineCount = 0;
}

bool BeginsWithRoll(std::string_view text) {
  std::size_t first = 0;
  while (first < text.size() && text[first] == ' ') ++first;
  return first < text.size() && text[first] == 'R' && text.substr(first, 4) == "Roll";
}

// The files as another reader would see them; the index made anew if it can't belong to the text.
bool ReadyToRead(Game& game) {
  FlushEventsLog(game);
  const std::int64_t textSize = FileSize(EventsLogPath(game));
  if (textSize < 0) return false;
  if (textSize > 0 && !IndexBelongs(game, textSize)) {
    std::string error;
    return RebuildEventsLogIndex(game, error);
  }
  return true;
}

std::string LineAt(std::ifstream& text, std::ifstream& index, std::int64_t line) {
  const std::int64_t position = IndexRecord(index, line);
  if (position < 1) return "";
  text.clear();
  text.seekg(position - 1);
  std::string content;
  std::getline(text, content);
  if (!content.empty() && content.back() == '\r') content.pop_back();
  return content;
}

void BeginGroup(EventsLog& log, Msg heading) { log.PendingLogHeading = RowOf(heading).text; }
void EndGroup(EventsLog& log) { log.PendingLogHeading = {}; }

std::string FileNameOf(const std::string& path) { return fs::path(path).filename().string(); }

}  // namespace

EventsLog::~EventsLog() { CloseFiles(*this); }

std::string EventsLogPath(const Game& game) {
  return game.events.Path.empty() ? game.ownFolder + kEventsLogName : game.events.Path;
}

std::string EventsIndexPath(const Game& game) { return game.ownFolder + kEventsIndexName; }

void WriteWholeLine(Game& game, LogLine& line) {
  EventsLog& log = game.events;
  if (!log.RecordEventsActive) return;
  if (log.Files.textFile == nullptr) {
    // After a fault not every line tries again: a roll's end does.
    const bool waits = log.Held || !log.FaultReported.empty();
    const std::string problem = waits ? "" : OpenFiles(game);
    if (!problem.empty()) ReportFault(game, problem);
    if (log.Files.textFile == nullptr) KeepWithinBounds(log);
  }
  line.AddFixed<1>("\n");
  const std::string_view text = line.Text();
  if (log.Files.textLength + static_cast<std::int64_t>(text.size()) > kLongestLog) {
    ReportFault(game, FullText(game));
    return;
  }
  AppendIndexRecord(log.Files.indexBuffer, log.Files.textLength + 1);
  log.Files.textBuffer += text;
  log.Files.textLength += static_cast<std::int64_t>(text.size());
  ++log.Files.lineCount;
  if (log.KeepLatestRollOnTop && BeginsWithRoll(text))
    log.EventsLogTopLine = static_cast<std::int32_t>(log.Files.lineCount);
  if (log.Files.textBuffer.size() >= log.Files.failedAt + kFlushAt) WriteAndTell(game);
}

void WriteEventsLogLine(Game& game, std::string_view text) {
  if (!game.events.RecordEventsActive) return;
  LogLine line;
  line.Add(text);
  WriteWholeLine(game, line);
}

void FlushEventsLog(Game& game) {
  WriteAndTell(game);
  CloseFiles(game.events);
}

std::string CloseEventsLog(Game& game) {
  const std::string problem = WriteBuffers(game);
  CloseFiles(game.events);
  return problem.empty() ? game.events.FaultReported : problem;
}

bool RebuildEventsLogIndex(Game& game, std::string& error) {
  EventsLog& log = game.events;
  CloseFiles(log);
  const std::string path = EventsLogPath(game);
  std::ifstream text(path, std::ios::binary);
  if (!text) {
    error = MessageText<Msg::kNotReadable>(With<"path">(path));
    return false;
  }
  const std::string indexPath = EventsIndexPath(game);
  std::ofstream index(indexPath, std::ios::binary | std::ios::trunc);
  std::string buffer;
  std::string block(kFlushAt, '\0');
  bool atBegin = true;
  for (std::int64_t position = 1; text; position += static_cast<std::int64_t>(text.gcount())) {
    text.read(block.data(), static_cast<std::streamsize>(block.size()));
    const char* const end = block.data() + text.gcount();
    for (const char* at = block.data(); at < end;) {
      if (atBegin) AppendIndexRecord(buffer, position + (at - block.data()));
      const void* lineEnd = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
      atBegin = lineEnd != nullptr;
      at = atBegin ? static_cast<const char*>(lineEnd) + 1 : end;
    }
    index.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    buffer.clear();
  }
  index.flush();
  if (!index) {
    error = MessageText<Msg::kNotWritable>(With<"path">(indexPath));
    return false;
  }
  return true;
}

std::int64_t EventsLogLineCount(Game& game) {
  if (!ReadyToRead(game)) return 0;
  return std::max<std::int64_t>(FileSize(EventsIndexPath(game)), 0) / kIndexBytes;
}

std::string ReadEventsLogLine(Game& game, std::int64_t line) {
  if (line < 1 || !ReadyToRead(game)) return "";
  std::ifstream text(EventsLogPath(game), std::ios::binary);
  std::ifstream index(EventsIndexPath(game), std::ios::binary);
  return LineAt(text, index, line);
}

void ClearEventsLog(Game& game) {
  ForgetFiles(game.events);
  std::error_code ignored;
  fs::remove(EventsIndexPath(game), ignored);
  fs::remove(EventsLogPath(game), ignored);
  game.events.EventsLogTopLine = 1;
  game.events.Files.textLength = game.events.Files.lineCount = 0;
}

bool EventsIndexFits(const Game& game) {
  const std::int64_t textSize = FileSize(EventsLogPath(game));
  return textSize > 0 && IndexBelongs(game, textSize);
}

NewEvents NewEventsLog(Game& game) {
  FlushEventsLog(game);
  const bool defaultName = Lowered(FileNameOf(EventsLogPath(game))) == Lowered(kEventsLogName);
  if (defaultName && FileSize(EventsLogPath(game)) > 0) {
    const int answer = ShowMessage<Msg::kAskSaveEventsLog>(game);
    if (answer == kResultCancel) return NewEvents::kCancelled;
    if (answer == kResultYes) return NewEvents::kRenameFirst;
  }
  ClearEventsLog(game);
  return NewEvents::kStarted;
}

void StartEventsLog(Game& game) {
  FlushEventsLog(game);
  game.events.Path.clear();
  ClearEventsLog(game);
}

bool OpenEventsLog(Game& game, const std::string& path, std::string& error) {
  std::ifstream test(path, std::ios::binary);
  if (!test || fs::is_directory(path)) {
    error = MessageText<Msg::kNamedFileNotFound>(With<"path">(path));
    return false;
  }
  FlushEventsLog(game);
  const std::string before = game.events.Path;
  game.events.Path = path;
  // An index that is of another text is no index: whoever needs one makes it.
  std::error_code ignored;
  if (FileSize(path) > kIndexedAtOnce) {
    fs::remove(EventsIndexPath(game), ignored);
  } else if (!RebuildEventsLogIndex(game, error)) {
    game.events.Path = before;
    return false;
  }
  game.events.EventsLogTopLine = 1;
  return true;
}

void RecordAllEvents(EventsLog& log, bool on) {
  for (bool* flag : {&log.RecordRolls, &log.RecordBetChanges, &log.RecordBetsWon, &log.RecordBetsLost,
                     &log.RecordCheckStackChanges, &log.RecordPassesMisses, &log.RecordShooterChanges,
                     &log.RecordBankrollChanges})
    *flag = on;
}

// --- The lines.

namespace {

constexpr int kLastLeftSeat = 4;

// Counted from the stick.
int StickPlace(SeatId seat) {
  return seat <= kLastLeftSeat ? kLastLeftSeat + 1 - seat : seat - kLastLeftSeat;
}

// The pending heading, if any, and then the line.
void WriteGroupedLine(Game& game, LogLine& line) {
  EventsLog& log = game.events;
  if (!log.PendingLogHeading.empty()) {
    const std::string_view heading = log.PendingLogHeading;
    EndGroup(log);
    WriteEventsLogLine(game, heading);
  }
  WriteWholeLine(game, line);
}

// A line of the group in hand, which is about a player.
template <Msg kId, typename... Arguments>
void WriteOf(Game& game, SeatId seat, const Arguments&... arguments) {
  if (!game.events.RecordEventsActive) return;
  LogLine line;
  FormLogLine<kId>(line, game.settings.Language, With<"player">(game.table.seats[seat].SeatName),
                   arguments...);
  WriteGroupedLine(game, line);
}

// One of two lines with the same arguments.
template <Msg kFirst, Msg kSecond, typename... Arguments>
void WriteEither(bool first, Game& game, SeatId seat, const Arguments&... arguments) {
  if (first)
    WriteOf<kFirst>(game, seat, arguments...);
  else
    WriteOf<kSecond>(game, seat, arguments...);
}

void WriteScript(Game& game, SeatId seat, bool active) {
  const std::string& file = game.autobet.Scripts[seat].ScriptFileName;
  if (!active)
    WriteOf<Msg::kLogScriptDeactivated>(game, seat);
  else if (file.empty())
    WriteOf<Msg::kLogUntitledActivated>(game, seat);
  else
    WriteOf<Msg::kLogScriptActivated>(game, seat, With<"file">(file));
}

void LogScriptChanges(Game& game) {
  EventsLog& log = game.events;
  BeginGroup(log, Msg::kLogAutoBets);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const bool active = game.autobet.ScriptActive[seat];
    if (active == log.ScriptActiveLogged[seat]) continue;
    log.ScriptActiveLogged[seat] = active;
    if (IsOccupied(game.table, seat)) WriteScript(game, seat, active);
  }
}

void LogAtmMovements(Game& game) {
  TableState& table = game.table;
  BeginGroup(game.events, Msg::kLogBankroll);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const Currency total = game.stats.AtmTotal[Slot(kAllSessions, seat)];
    const Currency moved = total - table.seats[seat].AtmLogged;
    table.seats[seat].AtmLogged = total;
    if (moved == kZero || !IsOccupied(table, seat) || !game.events.RecordBankrollChanges) continue;
    WriteEither<Msg::kLogAtmIncreased, Msg::kLogAtmDecreased>(
        moved > kZero, game, seat, With<"bankroll">(table.BankrollCurrent[seat]), With<"amount">(Abs(moved)));
  }
}

// A change that a Come or Don't Come bet's move made is told by its own line.
bool MadeByMove(const TableState& table, SeatId seat, BetId bet) {
  const BetId toCome = table.ComeMovedTo[seat];
  const BetId toDontCome = table.DontComeMovedTo[seat];
  if (bet == kCome) return toCome != 0 && table.BetAmount(seat, bet) == kZero;
  if (bet == kDontCome) return toDontCome != 0 && table.BetAmount(seat, bet) == kZero;
  return (bet == toCome || bet == toDontCome) && bet != 0 &&
         table.BetAmount(seat, bet) == table.BetCommitted(seat, bet);
}

void LogAmountChange(Game& game, SeatId seat, BetId bet) {
  const TableState& table = game.table;
  const Currency before = table.BetBeforeRoll(seat, bet);
  const Currency now = table.BetAmount(seat, bet);
  if (now == before || MadeByMove(table, seat, bet)) return;
  const char* name = FactsOf(bet).name;
  if (now == kZero)
    WriteOf<Msg::kLogBetRemoved>(game, seat, With<"amount">(before), With<"bet">(name));
  else if (before == kZero)
    WriteOf<Msg::kLogBetMade>(game, seat, With<"amount">(now), With<"bet">(name));
  else
    WriteEither<Msg::kLogBetDecreased, Msg::kLogBetIncreased>(now < before, game, seat, With<"bet">(name),
                                                              With<"amount">(now));
}

void LogCallChange(Game& game, SeatId seat, BetId bet) {
  const TableState& table = game.table;
  const int before = WorkingValue(table.seats[seat].BetWorkingBeforeRoll, bet);
  const int now = WorkingValue(table.seats[seat].BetWorking, bet);
  const char* name = FactsOf(bet).name;
  if (now == before) return;
  if (now == -1)
    WriteOf<Msg::kLogCalledOff>(game, seat, With<"bet">(name));
  else if (now == 2)
    WriteOf<Msg::kLogCalledOn>(game, seat, With<"bet">(name));
  else if ((before == -1 || before == 2) && table.seats[seat].SeatBets.Has(bet))
    WriteOf<Msg::kLogCallRemoved>(game, seat, With<"bet">(name));
}

void LogBetChanges(Game& game) {
  const TableState& table = game.table;
  BeginGroup(game.events, Msg::kLogBets);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(table, seat)) continue;
    const WorkingState& now = table.seats[seat].BetWorking;
    const WorkingState& before = table.seats[seat].BetWorkingBeforeRoll;
    const BetSet called = now.calledOn | now.calledOff | before.calledOn | before.calledOff;
    (table.seats[seat].TouchedSinceBefore | called).ForEach([&](BetId bet) {
      LogAmountChange(game, seat, bet);
      if (called.Has(bet)) LogCallChange(game, seat, bet);
    });
  }
}

void LogCheckStackChanges(Game& game) {
  const TableState& table = game.table;
  BeginGroup(game.events, Msg::kLogStacks);
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    table.seats[seat].StacksSinceBefore.ForEach([&](int stack) {
      const BetId bet = kFirstCheckStack + stack;
      const Currency before = table.BetBeforeRoll(seat, bet);
      const Currency now = table.BetAmount(seat, bet);
      if (now == before || !IsOccupied(table, seat)) return;
      WriteEither<Msg::kLogStackIncreased, Msg::kLogStackDecreased>(now > before, game, seat,
                                                                    With<"stack">(stack), With<"value">(now));
    });
}

}  // namespace

void LogChangesBeforeRoll(Game& game) {
  EventsLog& log = game.events;
  LogScriptChanges(game);
  LogAtmMovements(game);
  if (log.RecordBetChanges) LogBetChanges(game);
  if (log.RecordCheckStackChanges) LogCheckStackChanges(game);
  EndGroup(log);
}

namespace {

template <Msg kId, typename... Arguments>
void WriteRoll(Game& game, const Arguments&... arguments) {
  const TableState& table = game.table;
  WriteLogLine<kId>(game, With<"roll">(SessionRolls(game.stats) + 1), With<"total">(table.RollTotal),
                    With<"die1">(table.Die1), With<"die2">(table.Die2), arguments...);
}

}  // namespace

void LogRoll(Game& game, RollSource source) {
  if (!game.events.RecordRolls) return;
  if (source == RollSource::kPad) return WriteRoll<Msg::kLogRollFromPad>(game);
  if (source == RollSource::kFile) return WriteRoll<Msg::kLogRollFromFile>(game);
  const PercentageDice& dice = game.percentage;
  const int number = game.generators.GeneratorIndex + 1;
  if (!dice.PercentageDiceActive)
    WriteRoll<Msg::kLogRollFromGenerator>(game, With<"generator">(number));
  else if (dice.ProbFileName.empty())
    WriteRoll<Msg::kLogRollFromUntitled>(game, With<"generator">(number));
  else
    WriteRoll<Msg::kLogRollFromMatrix>(game, With<"generator">(number), With<"file">(ProbabilityTitle(dice)));
}

void LogWinOrLoss(Game& game, SeatId seat, BetId bet, Currency net) {
  const EventsLog& log = game.events;
  const bool won = net > kZero;
  if (!(won ? log.RecordBetsWon : log.RecordBetsLost)) return;
  WriteEither<Msg::kLogWon, Msg::kLogLost>(won, game, seat, With<"amount">(Abs(net)),
                                           With<"bet">(FactsOf(bet).name));
}

void LogBetMoved(Game& game, SeatId seat, BetId fromBet, BetId toBet) {
  if (!game.events.RecordBetChanges) return;
  WriteLogLine<Msg::kLogBetMoved>(game, With<"player">(game.table.seats[seat].SeatName),
                                  With<"bet">(FactsOf(fromBet).name), With<"number">(FactsOf(toBet).name));
}

void LogBankrollChanges(Game& game) {
  if (!game.events.RecordBankrollChanges) return;
  const TableState& table = game.table;
  BeginGroup(game.events, Msg::kLogBankroll);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const Currency change = table.BankrollCurrent[seat] - table.BankrollBeforeRoll[seat];
    if (change == kZero || !IsOccupied(table, seat)) continue;
    WriteEither<Msg::kLogBankrollIncreased, Msg::kLogBankrollDecreased>(
        change > kZero, game, seat, With<"bankroll">(table.BankrollCurrent[seat]),
        With<"amount">(Abs(change)));
  }
  EndGroup(game.events);
}

namespace {

void WriteShooter(Game& game, bool same) {
  const SeatId seat = game.table.ShooterSeat;
  if (seat == 0)
    WriteLogLine<Msg::kLogNewHand>(game);
  else if (same)
    WriteLogLine<Msg::kLogSameShooter>(game, With<"player">(game.table.seats[seat].SeatName));
  else
    WriteLogLine<Msg::kLogNewShooter>(game, With<"player">(game.table.seats[seat].SeatName));
}

}  // namespace

void LogHandEnd(Game& game) {
  if (!game.events.RecordShooterChanges) return;
  const TableState& table = game.table;
  WriteShooter(game, table.PreviousHandSeat == table.HandSeat && table.HandSeat == table.ShooterSeat);
}

void LogPlayback(Game& game) {
  WriteLogLine<Msg::kLogPlayback>(game, With<"file">(FileTitle(game.rollFile.RollFileName)));
}

void LogJoined(Game& game, SeatId seat) {
  const TableState& table = game.table;
  const auto player = With<"player">(table.seats[seat].SeatName);
  const int place = StickPlace(seat);
  if (seat <= kLastLeftSeat)
    WriteLogLine<Msg::kLogJoinedLeft>(game, player, With<"place">(place),
                                      With<"bankroll">(table.BankrollCurrent[seat]));
  else
    WriteLogLine<Msg::kLogJoinedRight>(game, player, With<"place">(place),
                                       With<"bankroll">(table.BankrollCurrent[seat]));
}

void LogPlayerMoved(Game& game, SeatId seat) {
  const auto player = With<"player">(game.table.seats[seat].SeatName);
  const int place = StickPlace(seat);
  if (seat <= kLastLeftSeat)
    WriteLogLine<Msg::kLogMovedLeft>(game, player, With<"place">(place));
  else
    WriteLogLine<Msg::kLogMovedRight>(game, player, With<"place">(place));
}

void LogSessionStart(Game& game) {
  EventsLog& log = game.events;
  if (!log.RecordEventsActive) return;
  const TableState& table = game.table;
  FlushEventsLog(game);
  if (FileSize(EventsLogPath(game)) >= 0) WriteLogLine<Msg::kLogRule>(game);
  WriteLogLine<Msg::kLogNewSession>(game, With<"date">(game.host->DateText()),
                                    With<"time">(game.host->TimeText()));
  BeginGroup(log, Msg::kLogPlayers);
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(table, seat))
      WriteEither<Msg::kLogPlayerLeft, Msg::kLogPlayerRight>(seat <= kLastLeftSeat, game, seat,
                                                             With<"place">(StickPlace(seat)),
                                                             With<"bankroll">(table.BankrollCurrent[seat]));
  EndGroup(log);
  if (game.rollFile.RecorderState == kRecorderPlayback)
    WriteLogLine<Msg::kLogSessionPlayback>(game, With<"file">(FileNameOf(game.rollFile.RollFileName)));
  BeginGroup(log, Msg::kLogAutoBets);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    log.ScriptActiveLogged[seat] = game.autobet.ScriptActive[seat];
    if (IsOccupied(table, seat) && game.autobet.ScriptActive[seat]) WriteScript(game, seat, true);
  }
  EndGroup(log);
  if (log.RecordShooterChanges)
    WriteShooter(game, false);
  else
    WriteLogLine<Msg::kLogNewHand>(game);
  FlushEventsLog(game);
}

}  // namespace tessaryn
