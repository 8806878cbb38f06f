#include "play/game_file_fields.h"

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <functional>
#include <limits>
#include <map>
#include <type_traits>
#include <vector>

#include "state/game.h"

namespace tessaryn {

constexpr std::string_view kOfTheProgram = "of the program, not of the table";
constexpr std::string_view kRestarted = "generators go on from where the program's stand";
constexpr std::string_view kMadeAgain = "made again from other fields";
constexpr std::string_view kOfARun = "of a roll or run, and none is kept";
constexpr std::string_view kOtherFile = "in a file of its own";
constexpr std::string_view kReferred = "in a file reference, by its full path";
constexpr std::string_view kGranted = "granted for the program's run";

const FieldLeftOut kLeftOut[kFieldsLeftOut] = {
    {".maximums", kMadeAgain},
    {".file", kOfTheProgram},
    {".box", kOfTheProgram},
    {".applicationFolder", kOfTheProgram},
    {".dataFolder", kOfTheProgram},
    {".ownFolder", kOfTheProgram},
    {".folderLock", kOfTheProgram},
    {".host", kOfTheProgram},
    {".generators.MissingGeneratorFiles", kOfTheProgram},
    {".generators.Mersenne", kRestarted},
    {".generators.Cokus", kRestarted},
    {".generators.Ran1", kRestarted},
    {".generators.Ran2", kRestarted},
    {".generators.RndState", kRestarted},
    {".generators.LastErrorText", kOfARun},
    {".percentage.ProbMatrix", kOtherFile},
    {".percentage.DrawTable", kMadeAgain},
    {".rollFile.RollFileName", kReferred},
    {".rollFile.Durable", kOfTheProgram},
    {".rollFile.LastErrorText", kOfARun},
    {".rollFile.FaultReported", kOfARun},
    {".rollFile.Channel", kOtherFile},
    {".events.PendingLogHeading", kOfARun},
    {".events.FaultReported", kOfARun},
    {".events.Held", kOfTheProgram},
    {".events.Path", kOtherFile},
    {".events.Files", kOtherFile},
    {".autobet.Scripts.ScriptFileName", kReferred},
    {".autobet.Scripts.Kept", kMadeAgain},
    {".autobet.Scripts.Output", kOtherFile},
    {".autobet.ScriptsCompiled", kMadeAgain},
    {".autobet.Program", kMadeAgain},
    {".autobet.Prepared", kMadeAgain},
    {".autobet.AllowedOutputFolders", kGranted},
    {".autobet.OutputOwners", kGranted},
    {".autobet.ScriptRunning", kOfARun},
    {".autobet.ScriptInitializing", kOfARun},
    {".autobet.CurrentAutobettor", kOfARun},
    {".autobet.Work", kOfARun},
    {".autobet.ScriptError", kOfARun},
    {".autobet.ScriptFault", kOfARun},
    {".autobet.StepMode", kOfARun},
    {".autobet.StepsShown", kOfARun},
    {".autobet.StepsHold", kOfARun},
    {".autobet.StepWaiting", kOfARun},
    {".autobet.HotKeyRun", kOfARun},
    {".autobet.StatusCaption", kOfARun},
    {".autobet.BeginningNewSession", kOfARun},
    {".autobet.RollFileEndReached", kOfARun},
    {".table.OccupiedSeats", kMadeAgain},
    {".table.Seated", kMadeAgain},
    {".table.seats.SessionsLogName", kReferred},
    {".table.seats.SeatBets", kMadeAgain},
    {".table.AnyBets", kMadeAgain},
    {".table.SeatsUp", kMadeAgain},
    {".table.RollInProgress", kOfARun},
    {".table.AutoRollActive", kOfARun},
    {".table.TurboRollActive", kOfARun},
    {".table.LastActivityTick", kOfARun},
    {".table.TurboCalibration", kOfTheProgram},
};

namespace {

bool IsWithin(std::string_view path, std::string_view part) {
  return path.starts_with(part) && (path.size() == part.size() || path[part.size()] == '.');
}

bool IsLeftOut(std::string_view path) {
  for (const FieldLeftOut& left : kLeftOut)
    if (IsWithin(path, left.path)) return true;
  return false;
}

// --- Fields by columns: what an array of structs holds in one field stands together.

template <typename T>
inline constexpr bool kIsFixedList = std::is_array_v<T>;
template <typename T, std::size_t kSize>
inline constexpr bool kIsFixedList<std::array<T, kSize>> = true;
template <typename T>
inline constexpr bool kIsVector = false;
template <typename T>
inline constexpr bool kIsVector<std::vector<T>> = true;

template <typename T>
concept HasCells = requires(T& value) {
  value.cells[0][0];
};

// What can be done with a field of one type. Columns are handed on without their types, so that the walk
// through the fields is compiled once.
struct Writer;
struct Reader;
struct FieldRange;
struct FieldForm {
  void (*put)(Writer&, const void*);
  void (*get)(Reader&, void*);
  bool (*isInRange)(const void*, const FieldRange*);
};
struct Column {
  const std::string& path;
  const FieldForm& form;
  const std::vector<void*>& cells;
};
// False: the fields of that path aren't wanted.
using Wanted = std::function<bool(std::string_view path)>;
using Visit = std::function<void(const Column&)>;

template <typename T>
void VisitColumn(const std::string& path, const std::vector<T*>& cells, const Visit& visit);

// Calls visit for each field that holds no further fields, with its cells in all the places where it is.
template <typename T>
void ForEachColumn(const std::string& path, const std::vector<T*>& cells, const Wanted& wanted,
                   const Visit& visit) {
  if (!wanted(path)) return;
  if constexpr (HasFields<T>) {
    ForEachMember(std::type_identity<T>{}, [&](const char* name, auto member) {
      using Member = std::remove_reference_t<decltype(cells[0]->*member)>;
      std::vector<Member*> inner;
      inner.reserve(cells.size());
      for (T* cell : cells) inner.push_back(&(cell->*member));
      ForEachColumn(path + "." + name, inner, wanted, visit);
    });
  } else if constexpr (kIsFixedList<T>) {
    using Element = std::remove_reference_t<decltype((*cells[0])[0])>;
    std::vector<Element*> inner;
    inner.reserve(cells.size() * std::size(*cells[0]));
    for (T* cell : cells)
      for (Element& element : *cell) inner.push_back(&element);
    ForEachColumn(path, inner, wanted, visit);
  } else if constexpr (HasCells<T>) {
    using Cells = std::remove_reference_t<decltype((cells[0]->cells))>;
    std::vector<Cells*> inner;
    for (T* cell : cells) inner.push_back(&cell->cells);
    ForEachColumn(path, inner, wanted, visit);
  } else {
    VisitColumn(path, cells, visit);
  }
}

// --- Values.

constexpr int kLongestNumber = 10;  // bytes

struct Writer {
  std::string bytes;

  void Unsigned(std::uint64_t value) {
    for (; value > 127; value >>= 7) bytes += static_cast<char>(value | 128);
    bytes += static_cast<char>(value);
  }
  void Number(std::int64_t value) {
    Unsigned(static_cast<std::uint64_t>(value) << 1 ^ static_cast<std::uint64_t>(value >> 63));
  }
  void Text(std::string_view text) {
    Unsigned(text.size());
    bytes += text;
  }
};

struct Reader {
  std::string_view rest;
  bool failed = false;

  std::uint64_t Unsigned() {
    std::uint64_t value = 0;
    for (int i = 0; i < kLongestNumber; ++i) {
      if (rest.empty()) break;
      const auto byte = static_cast<unsigned char>(rest.front());
      rest.remove_prefix(1);
      value |= static_cast<std::uint64_t>(byte & 127) << (7 * i);
      if (byte < 128) return value;
    }
    failed = true;
    return 0;
  }
  std::int64_t Number() {
    const std::uint64_t value = Unsigned();
    return static_cast<std::int64_t>(value >> 1 ^ (~(value & 1) + 1));
  }
  std::string_view Text() {
    const std::uint64_t size = Unsigned();
    if (size > rest.size()) failed = true;
    if (failed) return {};
    const std::string_view text = rest.substr(0, size);
    rest.remove_prefix(size);
    return text;
  }
};

template <typename T>
concept WholeNumber = std::is_integral_v<T> || std::is_enum_v<T>;
template <typename T>
concept HasRaw = requires(T value) {
  { value.raw } -> std::convertible_to<std::int64_t>;
};
template <typename T>
concept HasValue = requires(T value) {
  requires std::is_integral_v<decltype(value.value)>;
};

// Kinds of field that have a form here. Those that have none are left out, and the list above says why.
template <typename T>
inline constexpr bool kIsKept =
    WholeNumber<T> || std::is_floating_point_v<T> || std::is_same_v<T, std::string> ||
    std::is_same_v<T, BetSet> || std::is_same_v<T, PayoffRecord> || HasRaw<T> || HasValue<T> || HasFields<T>;
template <typename T>
inline constexpr bool kIsKept<std::vector<T>> = kIsKept<T>;

template <typename T>
void Put(Writer& to, const T& value) {
  if constexpr (WholeNumber<T>) {
    to.Number(static_cast<std::int64_t>(value));
  } else if constexpr (std::is_floating_point_v<T>) {
    to.Number(std::bit_cast<std::int64_t>(static_cast<double>(value)));
  } else if constexpr (std::is_same_v<T, std::string>) {
    to.Text(value);
  } else if constexpr (std::is_same_v<T, BetSet>) {
    for (const std::uint64_t word : value.words) to.Unsigned(word);
  } else if constexpr (std::is_same_v<T, PayoffRecord>) {
    for (const Currency part : {value.PayTo, value.ForFlag, value.PayPer}) to.Number(part.raw);
  } else if constexpr (HasRaw<T>) {
    to.Number(value.raw);
  } else if constexpr (HasValue<T>) {
    to.Number(value.value);
  } else if constexpr (kIsVector<T>) {
    to.Unsigned(value.size());
    for (const auto& element : value) Put(to, element);
  } else if constexpr (HasFields<T>) {
    ForEachField(value, [&](const char*, const auto& field) { Put(to, field); });
  } else {
    static_assert(!sizeof(T), "a kind of field that no file can hold: leave it out, or give it a form");
  }
}

template <typename T>
void Get(Reader& from, T& value) {
  if constexpr (std::is_same_v<T, bool>) {
    value = from.Number() != 0;
  } else if constexpr (std::is_same_v<T, std::uint64_t>) {
    value = static_cast<std::uint64_t>(from.Number());
  } else if constexpr (WholeNumber<T>) {
    const std::int64_t number = from.Number();
    value = static_cast<T>(number);
    if (static_cast<std::int64_t>(value) != number) from.failed = true;
  } else if constexpr (std::is_floating_point_v<T>) {
    value = static_cast<T>(std::bit_cast<double>(from.Number()));
  } else if constexpr (std::is_same_v<T, std::string>) {
    value = from.Text();
  } else if constexpr (std::is_same_v<T, BetSet>) {
    for (std::uint64_t& word : value.words) word = from.Unsigned();
  } else if constexpr (std::is_same_v<T, PayoffRecord>) {
    for (Currency* part : {&value.PayTo, &value.ForFlag, &value.PayPer}) part->raw = from.Number();
  } else if constexpr (HasRaw<T>) {
    value.raw = from.Number();
  } else if constexpr (HasValue<T>) {
    Get(from, value.value);
  } else if constexpr (kIsVector<T>) {
    value.clear();
    // Each element takes a byte at least, so a wrong count soon comes to the end.
    for (std::uint64_t left = from.Unsigned(); left > 0 && !from.failed; --left)
      Get(from, value.emplace_back());
  } else if constexpr (HasFields<T>) {
    ForEachField(value, [&](const char*, auto& field) { Get(from, field); });
  }
}

// --- What a value may be.

enum class Bits { kNone, kBets, kStacks };

struct FieldRange {
  std::string_view name;  // what the path ends with
  std::int64_t least;
  std::int64_t most;
  Bits bits = Bits::kNone;
};

constexpr std::int64_t kMostCount = 2'147'000'000;
constexpr std::int64_t kFarthest = 100'000;  // of windows and views
constexpr std::int64_t kSeatBits = (1 << kSeatRows) - 1;

// Settings are not among them: ClampSettings brings those within their own limits.
constexpr FieldRange kRanges[] = {
    {"ShooterSeat", 0, kSeats},
    {"HandSeat", 0, kSeats},
    {"PreviousHandSeat", 0, kSeats},
    {"SelectedSeat", 0, kSeats},
    {"BetStreak", -kMostCount, kMostCount},
    {"BetStreakBefore", -kMostCount, kMostCount},
    {"calledOn", 0, 0, Bits::kBets},
    {"calledOff", 0, 0, Bits::kBets},
    {"byDefault", 0, 0, Bits::kBets},
    {"BetDefaultWorking", 0, 0, Bits::kBets},
    {"TouchedSinceBefore", 0, 0, Bits::kBets},
    {"TouchedSinceAfter", 0, 0, Bits::kBets},
    {"StacksSinceBefore", 0, 0, Bits::kStacks},
    {"StacksSinceAfter", 0, 0, Bits::kStacks},
    {"CompBetFlags", 0, 0, Bits::kBets},
    {"HandBets", 0, 0, Bits::kBets},
    {"LastHandBets", 0, 0, Bits::kBets},
    {"SeatsSinceBefore", 0, kSeatBits},
    {"SeatsSinceAfter", 0, kSeatBits},
    {"ComeMovedTo", 0, kBets},
    {"DontComeMovedTo", 0, kBets},
    {"VisibleStacks", 0, kCheckStacks - 1},
    {"Die1", 1, 6},
    {"Die2", 1, 6},
    {"ManualDie1", 0, 6},
    {"ManualDie2", 0, 6},
    {"NumberMarks", 0, kAllMarks},
    {"FourRollCount", 0, kMostCount},
    {"FireMarks", 0, 63},
    {"FireCount", 0, 6},
    {"SharpShooterCount", 0, kMostCount},
    {"RideTheLineCount", 0, kMostCount},
    {"PairCounts", 0, kMostCount},
    {"RollTotals", 0, kMostCount},
    {"ThrowsBeforeSession", 0, 1'000'000'000'000'000'000},
    {"ItemLastRoll", 0, kMostCount},
    {"RollGapCounts", 0, kMostCount},
    {"NumberCounts", 0, kMostCount},
    {"HandCount", 0, kMostCount},
    {"MostRollsInHand", 0, kMostCount},
    {"MostComeoutRollsInHand", 0, kMostCount},
    {"MostPassesInHand", 0, kMostCount},
    {"MostMissesInHand", 0, kMostCount},
    {"RollsNotSeen", 0, kMostCount},
    {"HandComeoutRolls", 0, kMostCount},
    {"HandPasses", 0, kMostCount},
    {"HandMisses", 0, kMostCount},
    {"HandSlotsUsed", 0, kSeatBits},
    {"LastHandSlotsUsed", 0, kSeatBits},
    {"graph.Next", 0, kPlotRows - 1},
    {"PlotPoints", 0, 1'000'000'000'000'000'000},
    {"PlotCount", 0, kPlotCells},
    {"PagesFilled", 0, 1'000'000'000'000'000'000},
    {"PlotSeat", 1, kSeats},
    {"PlotType", kPlotPage, kPlotScroll},
    {"ScaleMode", kScaleManual, kScaleSnapBack},
    {"MovingAverageRolls", 0, kPlotCells},
    {"RefRoll1", 0, kPlotCells},
    {"RefRoll2", 0, kPlotCells},
    {"ScaleUnit", 100, 10'000'000'000},
    {"ScaleBase", 100, 10'000'000'000},
    {"GraphStyle", kGraphPlain, kGraphSolid},
    {"GraphColors", -1, 0xFFFFFF},
    {"TogetherSeats", 0, kSeatBits},
    {"GraphsPerPage", 1, kMostGraphsOnPage},
    {"CheckStackSeat", 0, kSeats},
    {"ListFontSize", 0, 16},
    {"HighPoint", 0, 1'000'000'000'000'000'000},
    {"LowPoint", 0, 1'000'000'000'000'000'000},
    {"RngSeedState", 0, std::numeric_limits<std::int32_t>::max()},
    {"RngLastSeed", 0, std::numeric_limits<std::int32_t>::max()},
    {"ProbDisplayMode", kShowPercentage, kShowFromTrueRollsOutOf},
    {"RecorderState", kRecorderOff, kRecorderPlayback},
    {"RollFileCursor", 1, std::numeric_limits<std::int32_t>::max()},
    {"RollFileSelectEnd", 1, std::numeric_limits<std::int32_t>::max()},
    {"EventsLogTopLine", 1, std::numeric_limits<std::int32_t>::max()},
    {"SessionAhead", 0, kEverySeat},
    {"MainWindow", kMainNormal, kMainMaximised},
    {"Top", -kFarthest, kFarthest},
    {"Left", -kFarthest, kFarthest},
    {"Width", 0, kFarthest},
    {"Height", 0, kFarthest},
    {"DiceHistoryThrows", 0, 1'000'000'000'000'000'000},
    {"RailLeft", -kFarthest, kFarthest},
    {"RailTop", -kFarthest, kFarthest},
    {"TableZoom", 0, kMostZoom},
    {"TableAngle", 0, 359},
    {"TableOffsetX", -kFarthest, kFarthest},
    {"TableOffsetY", -kFarthest, kFarthest},
    {"ClickAmount", 0, kBankrollLimit.raw},
    {"BetAmountMode", 1, 2},
};

const FieldRange* RangeOf(std::string_view path) {
  for (const FieldRange& range : kRanges) {
    if (!path.ends_with(range.name)) continue;
    if (path[path.size() - range.name.size() - 1] == '.') return &range;
  }
  return nullptr;
}

// The bits of a set that it may have.
BetSet Allowed(Bits bits) { return bits == Bits::kStacks ? BetRange(0, kCheckStacks - 1) : kAllTableBets; }

template <typename T>
bool IsInRange(const T& value, const FieldRange* range) {
  const auto within = [range](std::int64_t number) {
    return range == nullptr || (number >= range->least && number <= range->most);
  };
  if constexpr (std::is_same_v<T, BetSet>)
    return range == nullptr || Without(value, Allowed(range->bits)).Empty();
  else if constexpr (WholeNumber<T>)
    return within(static_cast<std::int64_t>(value));
  else if constexpr (std::is_same_v<T, PayoffRecord>)
    return !value.PayTo.IsError() && !value.ForFlag.IsError() && !value.PayPer.IsError();
  else if constexpr (HasRaw<T>)
    return value.raw != Currency::kErrorRaw && within(value.raw);
  else if constexpr (std::is_floating_point_v<T>)
    return value - value == 0;  // no infinity, and not "not a number"
  else
    return true;
}

// --- Columns.

template <typename T>
constexpr FieldForm kFormOf = {
    [](Writer& to, const void* cell) { Put(to, *static_cast<const T*>(cell)); },
    [](Reader& from, void* cell) { Get(from, *static_cast<T*>(cell)); },
    [](const void* cell, const FieldRange* range) { return IsInRange(*static_cast<const T*>(cell), range); },
};

template <typename T>
void VisitColumn(const std::string& path, const std::vector<T*>& cells, const Visit& visit) {
  if constexpr (kIsKept<T>) visit({path, kFormOf<T>, std::vector<void*>(cells.begin(), cells.end())});
}

void ForEachKeptColumn(Game& game, const Wanted& wanted, const Visit& visit) {
  ForEachColumn(std::string(), std::vector<Game*>{&game}, wanted, visit);
}
// The visitor only reads.
void ForEachKeptColumn(const Game& game, const Wanted& wanted, const Visit& visit) {
  ForEachKeptColumn(const_cast<Game&>(game), wanted, visit);
}

}  // namespace

std::string EncodeFields(const Game& game, bool autosave, bool withScreens) {
  Writer stream;
  const auto wanted = [&](std::string_view path) {
    if (IsWithin(path, ".file")) return autosave;
    if (!withScreens && (IsWithin(path, ".screen") || path == ".events.EventsLogTopLine")) return false;
    return !IsLeftOut(path);
  };
  ForEachKeptColumn(game, wanted, [&](const Column& column) {
    Writer values;
    for (const void* cell : column.cells) column.form.put(values, cell);
    stream.Text(column.path);
    stream.Unsigned(column.cells.size());
    stream.Text(values.bytes);
  });
  return stream.bytes;
}

bool DecodeFields(std::string_view bytes, Game& game) {
  struct Written {
    std::uint64_t cells = 0;
    std::string_view values;
  };
  std::map<std::string_view, Written> columns;
  Reader stream{bytes};
  while (!stream.rest.empty() && !stream.failed) {
    const std::string_view path = stream.Text();
    Written column{stream.Unsigned(), {}};
    column.values = stream.Text();
    columns[path] = column;
  }
  bool good = !stream.failed;
  const auto wanted = [](std::string_view path) { return IsWithin(path, ".file") || !IsLeftOut(path); };
  ForEachKeptColumn(game, wanted, [&](const Column& column) {
    const auto found = columns.find(column.path);
    if (found == columns.end()) return;
    Reader values{found->second.values};
    const std::size_t count = std::min<std::uint64_t>(column.cells.size(), found->second.cells);
    for (std::size_t i = 0; i < count && !values.failed; ++i) column.form.get(values, column.cells[i]);
    good = good && !values.failed && (found->second.cells > count || values.rest.empty());
  });
  return good;
}

std::string FieldOutOfRange(const Game& game) {
  std::string found;
  const auto wanted = [](std::string_view path) { return !IsLeftOut(path); };
  ForEachKeptColumn(game, wanted, [&](const Column& column) {
    const FieldRange* range = RangeOf(column.path);
    for (const void* cell : column.cells)
      if (found.empty() && !column.form.isInRange(cell, range)) found = column.path;
  });
  return found;
}

}  // namespace tessaryn
