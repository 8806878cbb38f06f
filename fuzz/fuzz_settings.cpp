// Applies any text as a settings file. What is refused changes nothing; what is taken gives, saved and
// applied to another table, the same settings.
#include <memory>

#include "fuzz_host.h"
#include "fuzz_support.h"
#include "play/players.h"
#include "play/settings_file.h"
#include "play/start_up.h"
#include "rules/consistency.h"
#include "state/game.h"

using namespace tessaryn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  fuzz::FuzzHost host;
  const std::unique_ptr<Game> game = StartGame(host, "/nonexistent/", folder.PathWithSeparator());
  std::string error;
  JoinPlayer(*game, 1, "Ann", Currency::Dollars(5'000), error);
  const std::string before = SettingsText(*game);
  error = ApplySettingsFile(*game, folder.Write("in.txt", data, size));
  if (!error.empty()) {
    fuzz::Require(SettingsText(*game) == before, "a refused file changed a setting: " + error);
    return 0;
  }
  const std::string problem = CheckConsistency(*game);
  fuzz::Require(problem.empty(), problem);
  const std::string saved = folder.Name("out.txt");
  error = SaveSettingsFile(*game, saved);
  fuzz::Require(error.empty(), error);
  const std::unique_ptr<Game> again = StartGame(host, "/nonexistent/", folder.PathWithSeparator());
  error = ApplySettingsFile(*again, saved);
  fuzz::Require(error.empty(), "what was saved is refused: " + error);
  fuzz::Require(SettingsText(*again) == SettingsText(*game), "saved and applied, the settings are others");
  return 0;
}
