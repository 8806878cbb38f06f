// Opens game files: any bytes, or the file of a table in play with changes that the bytes tell. What is
// refused leaves the table as it was; what is opened is a table that agrees with itself, plays, and is, saved
// and opened, the same again.
#include <algorithm>
#include <memory>
#include <vector>

#include "base/record_file.h"
#include "fuzz_host.h"
#include "fuzz_support.h"
#include "play/auto_roll.h"
#include "play/game_file.h"
#include "play/game_file_fields.h"
#include "play/game_file_records.h"
#include "play/players.h"
#include "play/script_session.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "state/game.h"

using namespace tessaryn;

namespace {

// The bytes of an input, taken one after the other; zeros behind the last.
struct Input {
  const std::uint8_t* at;
  const std::uint8_t* end;

  bool Empty() const { return at == end; }
  std::size_t Byte() { return Empty() ? 0 : *at++; }
  std::size_t Word() {
    const std::size_t low = Byte();
    return low | Byte() << 8;
  }
  std::size_t Place() {
    const std::size_t low = Word();
    return low | Byte() << 16;
  }
};

// A field of the further records: what stands before its values, and those.
struct Field {
  std::string head;
  std::string values;
};

std::size_t Natural(const std::string& bytes, std::size_t& at) {
  std::size_t value = 0;
  for (unsigned shift = 0; at < bytes.size(); shift += 7) {
    const auto byte = static_cast<unsigned char>(bytes[at++]);
    value |= static_cast<std::size_t>(byte & 127) << shift;
    if (byte < 128) break;
  }
  return value;
}

void AppendNatural(std::string& bytes, std::size_t value) {
  for (; value > 127; value >>= 7) bytes += static_cast<char>(value | 128);
  bytes += static_cast<char>(value);
}

struct GameParts {
  std::string records;  // up to the final one
  std::vector<Field> fields;
};

GameParts TakeApart(const Game& game) {
  const std::string stream = EncodeFields(game, false, true);
  const RecordFile file = WriteGameRecords(game, {}, GameFileKind::kGame);
  const std::size_t further = (stream.size() + kRecordBytes - 1) / kRecordBytes;
  GameParts parts;
  parts.records.assign(reinterpret_cast<const char*>(file.Records.data()),
                       (file.Records.size() - 1 - further) * kRecordBytes);
  for (std::size_t at = 0; at < stream.size();) {
    const std::size_t start = at;
    const std::size_t name = Natural(stream, at);
    at += name;
    Natural(stream, at);
    Field field{stream.substr(start, at - start), ""};
    const std::size_t size = Natural(stream, at);
    field.values = stream.substr(at, size);
    at += size;
    parts.fields.push_back(std::move(field));
  }
  return parts;
}

std::string PutTogether(const GameParts& parts) {
  std::string stream;
  for (const Field& field : parts.fields) {
    stream += field.head;
    AppendNatural(stream, field.values.size());
    stream += field.values;
  }
  const std::size_t further = (stream.size() + kRecordBytes - 1) / kRecordBytes;
  Record final{};
  PutInt32(final, 0, static_cast<std::int32_t>(parts.records.size() / kRecordBytes + 1 + further));
  PutInt32(final, 4, static_cast<std::int32_t>(further));
  PutInt32(final, 8, static_cast<std::int32_t>(stream.size()));
  stream.resize(further * kRecordBytes);
  return parts.records + std::string(final.begin(), final.end()) + stream;
}

// A hand in progress with a script, bets and CheckStacks.
GameParts TableInPlay(const std::string& folder) {
  fuzz::FuzzHost host;
  const std::unique_ptr<Game> game = StartGame(host, "/nonexistent/", folder);
  std::string error;
  for (const int seat : {1, 3, 8}) {
    JoinPlayer(*game, seat, "Pal " + std::to_string(seat), Currency::Dollars(5'000), error);
    for (int bet = 1; bet <= kBets; bet += 4) PlaceBet(*game, seat, bet, Currency::Dollars(6));
    SetBetAmount(*game, seat, kFirstCheckStack + seat, Currency::FromRaw(12'345));
  }
  SetScript(*game, 3, {"if comeout roll then bet 10 on passline endif"}, "");
  game->screen.HotKeys = {{'q', "/x/q.bet", "press"}};
  for (int roll = 0; roll < 40; ++roll) RollDice(*game);
  return TakeApart(*game);
}

// A few changes of bytes and numbers in the records, and of whole fields behind them.
std::string Changed(GameParts parts, Input input) {
  for (int changes = 0; changes < 40 && !input.Empty(); ++changes) {
    const std::size_t kind = input.Byte();
    if (kind % 4 == 0) {
      parts.records[input.Place() % parts.records.size()] = static_cast<char>(input.Byte());
    } else if (kind % 4 == 1) {
      const std::size_t at = input.Place() * 4 % parts.records.size();
      for (std::size_t i = 0; i < 4; ++i) parts.records[at + i] = static_cast<char>(input.Byte());
    } else {
      Field& field = parts.fields[input.Word() % parts.fields.size()];
      const std::size_t at = kind % 4 == 2 ? 0 : input.Word() % (field.values.size() + 1);
      std::string values;
      for (std::size_t count = input.Byte() % 32; count > 0; --count)
        values += static_cast<char>(input.Byte());
      if (kind % 8 < 4) field.values.resize(std::max(field.values.size(), at + values.size()));
      field.values.replace(at, values.size(), values);
    }
  }
  return PutTogether(parts);
}

// The sum over the further records would keep most changes from what is behind it.
std::string Sealed(std::string bytes) {
  RecordFile file;
  if (!SplitRecords(bytes, file) || file.Records.empty()) return bytes;
  SealGameRecords(file);
  return {reinterpret_cast<const char*>(file.Records.data()), file.Records.size() * kRecordBytes};
}

std::string SavedBytes(Game& game, const fuzz::Folder& folder, const char* name) {
  std::string error;
  return SaveGame(game, folder.Name(name), error) ? fuzz::Bytes(folder.Name(name)) : std::string();
}

void RequireSame(Game& game, const fuzz::Folder& folder) {
  const std::string saved = SavedBytes(game, folder, "out.crp");
  if (saved.empty()) return;  // a path that no file can hold, say
  fuzz::FuzzHost host;
  const std::unique_ptr<Game> again = StartGame(host, "/nonexistent/", folder.PathWithSeparator());
  fuzz::Require(OpenGame(*again, folder.Name("out.crp")), "what was saved isn't opened");
  fuzz::Require(SavedBytes(*again, folder, "again.crp") == saved, "saved and opened, the game is another");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  static const GameParts inPlay = TableInPlay(folder.PathWithSeparator());
  if (size == 0) return 0;
  folder.Empty();
  fuzz::FuzzHost host;
  const std::unique_ptr<Game> game = StartGame(host, "/nonexistent/", folder.PathWithSeparator());
  std::string error;
  JoinPlayer(*game, 1, "Ann", Currency::Dollars(5'000), error);
  const std::string bytes =
      Sealed(data[0] == 0 ? std::string(data + 1, data + size) : Changed(inPlay, {data + 1, data + size}));
  const std::string path =
      folder.Write("in.crp", reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  const auto before = std::make_unique<Game>(*game);
  if (!OpenGame(*game, path)) {
    before->box = game->box;
    const std::string changed = FirstDifference(*before, *game);
    fuzz::Require(changed.empty(), "a refused file changed " + changed);
    return 0;
  }
  // Wherever a path of the input leads, nothing is written there.
  game->events.RecordEventsActive = false;
  game->rollFile.RecorderState = kRecorderOff;
  for (bool& active : game->autobet.ScriptActive) active = false;
  std::string problem = CheckConsistency(*game);
  fuzz::Require(problem.empty(), problem);
  for (int roll = 0; roll < 20; ++roll) RollDice(*game);
  problem = CheckConsistency(*game);
  fuzz::Require(problem.empty(), problem);
  if (data[0] % 4 == 1) RequireSame(*game, folder);
  return 0;
}
