#include "lab/lab_state.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "base/record_file.h"

namespace tessaryn {
namespace {

// --- The file: a title, the fields by their lists, and a hash of all before it.

constexpr std::string_view kTitle = "Tessaryn Laboratory, Data Format 2\n";
constexpr std::string_view kAnyTitle = "Tessaryn Laboratory, Data Format ";
constexpr std::size_t kHashBytes = 8;
constexpr std::uint64_t kLongestList = std::uint64_t{1} << 32;

std::uint64_t HashOf(std::string_view bytes) {
  std::uint64_t hash = 0xcbf29ce484222325u;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3u;
  return hash;
}

struct Writer {
  std::string bytes;

  void Word(std::uint64_t word) {
    for (int i = 0; i < 8; ++i) bytes += static_cast<char>(word >> (8 * i));
  }
};

template <typename T>
void Put(Writer& out, const T& value);

template <typename List>
void PutList(Writer& out, const List& list) {
  out.Word(std::size(list));
  for (const auto& element : list) Put(out, element);
}

template <typename T>
void Put(Writer& out, const T& value) {
  if constexpr (std::is_same_v<T, Int128> || std::is_same_v<T, Word128>) {
    out.Word(static_cast<std::uint64_t>(value));
    out.Word(static_cast<std::uint64_t>(value >> 64));
  } else if constexpr (std::is_integral_v<T>) {
    out.Word(static_cast<std::uint64_t>(value));
  } else if constexpr (kIsId<T>) {
    Put(out, value.value);
  } else if constexpr (std::is_same_v<T, Currency>) {
    out.Word(static_cast<std::uint64_t>(value.raw));
  } else if constexpr (std::is_same_v<T, std::string>) {
    out.Word(value.size());
    out.bytes += value;
  } else if constexpr (HasFields<T>) {
    ForEachField(value, [&](const char*, const auto& field) { Put(out, field); });
  } else {
    PutList(out, value);
  }
}

struct Reader {
  std::string_view bytes;
  bool bad = false;

  std::uint64_t Word() {
    std::uint64_t word = 0;
    if (bytes.size() < 8) {
      bad = true;
      return 0;
    }
    for (int i = 0; i < 8; ++i)
      word |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]))
              << (8 * i);
    bytes.remove_prefix(8);
    return word;
  }
};

template <typename T>
void Get(Reader& in, T& value);

template <typename List>
void GetList(Reader& in, List& list) {
  const std::uint64_t size = in.Word();
  // An element has a byte at least: a size that lies would ask for all memory.
  if (size > in.bytes.size() || size > kLongestList) in.bad = true;
  if (in.bad) return;
  if constexpr (requires { list.resize(1); })
    list.resize(size);
  else if (size != std::size(list))
    in.bad = true;
  for (std::size_t i = 0; i < std::size(list) && !in.bad; ++i) Get(in, list[i]);
}

template <typename T>
void Get(Reader& in, T& value) {
  if constexpr (std::is_same_v<T, Int128> || std::is_same_v<T, Word128>) {
    const std::uint64_t low = in.Word();
    value = static_cast<T>(static_cast<Word128>(in.Word()) << 64 | low);
  } else if constexpr (std::is_same_v<T, bool>) {
    value = in.Word() != 0;
  } else if constexpr (std::is_integral_v<T>) {
    value = static_cast<T>(in.Word());
  } else if constexpr (kIsId<T>) {
    Get(in, value.value);
  } else if constexpr (std::is_same_v<T, Currency>) {
    value.raw = static_cast<std::int64_t>(in.Word());
  } else if constexpr (std::is_same_v<T, std::string>) {
    const std::uint64_t size = in.Word();
    if (size > in.bytes.size()) in.bad = true;
    if (in.bad) return;
    value = in.bytes.substr(0, size);
    in.bytes.remove_prefix(size);
  } else if constexpr (HasFields<T>) {
    ForEachField(value, [&](const char*, auto& field) { Get(in, field); });
  } else {
    GetList(in, value);
  }
}

template <typename T>
std::string BytesOf(const T& value) {
  Writer out;
  Put(out, value);
  return out.bytes;
}

std::size_t PairsOf(std::size_t systems) { return systems * (systems - (systems > 0 ? 1 : 0)) / 2; }

template <typename Sums, typename Visit>
void ForEachCounts(Sums& sums, Visit&& visit) {
  for (auto* counts : {&sums.nets, &sums.drawdowns, &sums.lengths, &sums.streaks, &sums.ruins})
    visit(*counts);
  for (auto& counts : sums.fan) visit(counts);
}

// Whether a file whose hash is right holds together, as one that a stranger wrote may not.
bool HoldsTogether(const LabState& state) {
  const Experiment& experiment = state.experiment;
  if (experiment.systems.empty() || experiment.systems.size() > kMostSystems) return false;
  if (state.systems.size() != experiment.systems.size() ||
      state.pairs.size() != PairsOf(state.systems.size()))
    return false;
  if (experiment.sessions < 1 || experiment.sessions > kMostLabSessions || experiment.shards < 1 ||
      experiment.shards > kMostShards || experiment.shard < 1 || experiment.shard > experiment.shards ||
      experiment.rolls < 0 || experiment.hands < 0 || experiment.hours < kZero || experiment.generator < 0 ||
      experiment.generator > 8)
    return false;
  for (const LabSystem& system : experiment.systems)
    for (const StackStart& start : system.stacks)
      if (start.stack < 0 || start.stack >= kCheckStacks || Abs(start.amount) > kStackLimit) return false;
  bool settled = true;
  for (const SystemSums& sums : state.systems)
    ForEachCounts(sums, [&](const ValueCounts& counts) {
      settled = settled && counts.waiting.empty() && counts.places == 0;
    });
  if (!settled) return false;
  const SessionRange range = SessionsOf(experiment);
  const bool whole = state.next == range.last || experiment.precision > kZero;
  return state.next >= range.first && state.next <= range.last && (!state.finished || whole);
}

std::string Damaged(const std::string& path) { return path + ": the file is damaged"; }

}  // namespace

void SettleState(LabState& state) {
  for (SystemSums& sums : state.systems) ForEachCounts(sums, SettleCounts);
}

LabState BeginLab(const Experiment& experiment, bool keepLines, bool keepRecords) {
  LabState state;
  state.experiment = experiment;
  state.rows.lines = keepLines;
  state.rows.records = keepRecords;
  state.next = SessionsOf(experiment).first;
  state.finished = state.next == SessionsOf(experiment).last;  // a shard without sessions
  state.systems.resize(experiment.systems.size());
  state.pairs.resize(PairsOf(experiment.systems.size()));
  return state;
}

std::int64_t SessionsDone(const LabState& state) { return state.next - SessionsOf(state.experiment).first; }

std::string LabBytes(LabState& state) {
  SettleState(state);
  Writer out;
  out.bytes = kTitle;
  Put(out, state);
  out.Word(HashOf(out.bytes));
  return out.bytes;
}

std::string ReadLab(const std::string& path, LabState& state) {
  std::string bytes;
  constexpr std::uint64_t kLargest = std::uint64_t{4} << 30;
  if (std::string error = ReadWholeFile(path, bytes, kLargest); !error.empty()) return error;
  return ReadLabBytes(path, bytes, state);
}

std::string ReadLabBytes(const std::string& name, std::string_view bytes, LabState& state) {
  if (!bytes.starts_with(kAnyTitle)) return name + ": this is no laboratory's file";
  if (!bytes.starts_with(kTitle))
    return name + ": the file is of another version of the laboratory, or damaged";
  if (bytes.size() < kTitle.size() + kHashBytes) return Damaged(name);
  const std::string_view content = bytes.substr(0, bytes.size() - kHashBytes);
  Reader hash{bytes.substr(content.size())};
  if (hash.Word() != HashOf(content)) return Damaged(name);
  Reader in{content.substr(kTitle.size())};
  LabState read;
  Get(in, read);
  if (in.bad || !in.bytes.empty() || !HoldsTogether(read)) return Damaged(name);
  state = std::move(read);
  return {};
}

std::string PieceBytes(const LabPiece& piece) { return BytesOf(piece); }

bool ReadPiece(std::string_view bytes, LabPiece& piece) {
  Reader in{bytes};
  Get(in, piece);
  return !in.bad && in.bytes.empty();
}

std::string WriteLab(const std::string& path, std::string_view bytes) { return ReplaceFile(path, bytes); }

bool IsSameExperiment(const Experiment& a, const Experiment& b) {
  Experiment other = b;
  other.shard = a.shard;
  return BytesOf(a) == BytesOf(other);
}

namespace {

std::string ReadShards(std::vector<std::string>& paths, std::vector<LabState>& shards) {
  shards.resize(paths.size());
  for (std::size_t i = 0; i < paths.size(); ++i)
    if (std::string error = ReadLab(paths[i], shards[i]); !error.empty()) return error;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (!IsSameExperiment(shards[0].experiment, shards[i].experiment))
      return paths[i] + ": this is another experiment than that of " + paths[0];
    if (!shards[i].finished) return paths[i] + ": this shard is not finished; go on with --resume";
  }
  std::vector<std::size_t> order(paths.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return shards[a].experiment.shard < shards[b].experiment.shard;
  });
  std::vector<LabState> sorted;
  std::vector<std::string> names;
  for (const std::size_t i : order) {
    sorted.push_back(std::move(shards[i]));
    names.push_back(paths[i]);
  }
  shards = std::move(sorted);
  paths = std::move(names);
  return {};
}

std::string FindGap(const std::vector<LabState>& shards, const std::vector<std::string>& names) {
  const int count = shards[0].experiment.shards;
  int expected = 1;
  for (std::size_t i = 0; i < shards.size(); ++i, ++expected) {
    const int shard = shards[i].experiment.shard;
    if (shard < expected)
      return names[i] + ": shard " + std::to_string(shard) + " of " + std::to_string(count) +
             " is there already, in " + names[i - 1];
    if (shard > expected) break;
  }
  if (expected > count) return {};
  return names.back() + ": shard " + std::to_string(expected) + " of " + std::to_string(count) +
         " is missing";
}

}  // namespace

std::string MergeLabs(std::vector<std::string>& paths, std::vector<LabState>& shards, LabState& whole) {
  if (paths.empty()) return "no shard to merge";
  if (std::string error = ReadShards(paths, shards); !error.empty()) return error;
  if (std::string error = FindGap(shards, paths); !error.empty()) return error;
  Experiment experiment = shards[0].experiment;
  experiment.shard = experiment.shards = 1;
  whole = BeginLab(experiment, true, true);
  for (LabState& shard : shards) {
    for (std::size_t i = 0; i < whole.systems.size(); ++i) AddSums(whole.systems[i], shard.systems[i]);
    for (std::size_t i = 0; i < whole.pairs.size(); ++i) AddExact(whole.pairs[i], shard.pairs[i]);
    whole.rows.lines = whole.rows.lines && shard.rows.lines;
    whole.rows.records = whole.rows.records && shard.rows.records;
  }
  whole.next = experiment.sessions;
  whole.finished = true;
  return {};
}

}  // namespace tessaryn
