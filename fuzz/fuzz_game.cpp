// Opens any bytes as a game file. What is refused leaves the table as it was; what is opened is a table that
// agrees with itself, plays, and is, saved and opened, the same again.
#include <memory>

#include "base/record_file.h"
#include "fuzz_host.h"
#include "fuzz_support.h"
#include "play/auto_roll.h"
#include "play/game_file.h"
#include "play/game_file_records.h"
#include "play/players.h"
#include "play/start_up.h"
#include "rules/consistency.h"
#include "state/game.h"

using namespace tessaryn;

namespace {

// The sum over the further records would keep most changes from what is behind it.
std::string Sealed(const std::uint8_t* data, std::size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  RecordFile file;
  if (!SplitRecords(bytes, file) || file.Records.empty()) return bytes;
  SealGameRecords(file);
  return {reinterpret_cast<const char*>(file.Records.data()), file.Records.size() * kRecordBytes};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  fuzz::FuzzHost host;
  const std::unique_ptr<Game> game = StartGame(host, "/nonexistent/", folder.PathWithSeparator());
  std::string error;
  JoinPlayer(*game, 1, "Ann", Currency::Dollars(5'000), error);
  const std::string bytes = Sealed(data, size);
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
  return 0;
}
