// A game that is saved and opened is the game that was saved; a file that is none leaves the table alone.
#include "play/game_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <set>

#include "base/messages.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/game_file_fields.h"
#include "play/game_file_records.h"
#include "play/roll_cycle.h"
#include "play/script_session.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/session.h"
#include "stats/events_log.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

int Count(const char* variable, int usual) {
  const char* text = std::getenv(variable);
  return text != nullptr ? std::atoi(text) : usual;
}

// --- Every field of the state, by its lists.

template <typename T>
concept Celled = requires(T& value) {
  value.cells[0][0];
};
template <typename T>
inline constexpr bool kList = fields::kIsList<T>;
template <typename T>
concept Growing = requires(T& value) {
  value.emplace_back();
};

// A value of its own for each field and place, small enough for every record.
template <typename T>
void Fill(T& value, int& next) {
  if constexpr (HasFields<T>) {
    ForEachField(value, [&](const char*, auto& field) { Fill(field, next); });
  } else if constexpr (Celled<T>) {
    Fill(value.cells, next);
  } else if constexpr (std::is_same_v<T, std::string>) {
    value = "text " + std::to_string(next++);
  } else if constexpr (kList<T>) {
    if constexpr (Growing<T>) value.resize(3);
    for (auto& element : value) Fill(element, next);
  } else if constexpr (std::is_same_v<T, bool>) {
    value = !value;
  } else if constexpr (std::is_same_v<T, BetSet>) {
    value.words[0] = static_cast<std::uint64_t>(++next) << 1;
    value.words[1] = static_cast<std::uint64_t>(next % 1000);
  } else if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>) {
    value = static_cast<T>(++next % 120);
  } else if constexpr (kIsId<T>) {
    value = ++next % 120;
  } else if constexpr (std::is_same_v<T, PayoffRecord>) {
    value = {kZero, Currency::FromRaw(++next), Currency::FromRaw(++next), Currency::FromRaw(++next)};
  } else if constexpr (requires { value.raw; }) {
    value.raw = ++next;
  }
}

template <typename T>
void FindDifferences(const T& a, const T& b, const std::string& path, std::set<std::string>& found) {
  if constexpr (HasFields<T>) {
    ForEachMember(std::type_identity<T>{}, [&](const char* name, auto member) {
      FindDifferences(a.*member, b.*member, path + "." + name, found);
    });
  } else if constexpr (kList<T> && !Growing<T>) {
    for (std::size_t i = 0; i < std::size(a); ++i) FindDifferences(a[i], b[i], path, found);
  } else if constexpr (kList<T>) {
    if (FirstDifference(a, b) != "") found.insert(path);
  } else if constexpr (!std::is_pointer_v<T>) {
    if (!(a == b)) found.insert(path);
  }
}

bool IsLeftOut(const std::string& path) {
  return std::any_of(std::begin(kLeftOut), std::end(kLeftOut), [&](const FieldLeftOut& left) {
    return path == left.path || path.starts_with(std::string(left.path) + ".");
  });
}

// The fields in which two games differ and that a file should have kept.
std::string Lost(const Game& a, const Game& b) {
  std::set<std::string> found;
  FindDifferences(a, b, "", found);
  std::string lost;
  for (const std::string& path : found)
    if (!IsLeftOut(path)) lost += path + " ";
  return lost;
}

TEST(GameFile, EveryFieldIsKeptButWhatIsListed) {
  test::TestHost host;
  const auto game = StartGame(host, test::kBinFolder, "/");
  int next = 0;
  Fill(*game, next);
  game->table.OccupiedSeats = kSeats;
  game->host = &host;
  GameReferences references;
  const RecordFile file = WriteGameRecords(*game, references, GameFileKind::kGame);
  const auto read = StartGame(host, test::kBinFolder, "/");
  std::set<std::string> changed;
  FindDifferences(*game, *read, "", changed);
  ASSERT_TRUE(ReadGameRecords(file, *read, references));
  // Units are figured anew behind the reading.
  ForEachField(read->payoffs, [](const char*, auto& rows) {
    for (PayoffRecord& row : rows) row.BetUnit = kZero;
  });
  EXPECT_EQ(Lost(*game, *read), "");
  for (const FieldLeftOut& left : kLeftOut) {
    const bool names = std::any_of(changed.begin(), changed.end(),
                                   [&](const std::string& path) { return path.starts_with(left.path); });
    const bool shared = left.path.find("maximums") != left.path.npos || left.path.ends_with("Lock") ||
                        left.path == ".host" || left.path.ends_with("Kept") ||
                        left.path.ends_with("Output") || left.path.ends_with("Prepared") ||
                        left.path.ends_with("Channel") || left.path.ends_with("Files") ||
                        left.path.ends_with("Heading") || left.path.ends_with("Owners");
    EXPECT_TRUE(names || shared) << left.path << " is no field, or was not filled";
  }
}

// --- Games at random.

constexpr const char* kScript[] = {"if comeout roll then bet 10 on passline endif",
                                   "if count(> 0, come bets) < 2 then bet 5 on come endif",
                                   "cs1 = cs1 + wins last roll $", "cs2 = cs2 + 1"};

struct RandomTable : test::TestTable {
  std::mt19937 choices;

  explicit RandomTable(unsigned seed) : choices(seed) {
    for (int seat = 1; seat <= kSeats; ++seat)
      if (Pick(4) != 0 || seat == 3) Join(seat, "Pal" + std::to_string(seat), "50000");
    Set("ShooterBetRule", "0");
    Set("MessageMask", "0");
    Set("FirePayoffs.4", "30 for 1");
    Set("CheckValue.1", Pick(2) == 0 ? "1" : "0.5");
    game->events.RecordEventsActive = true;
    for (int seat = 1; seat <= kSeats; ++seat) {
      Handling& handling = game->table.seats[seat].handling;
      handling.WinHandling = 1 + Pick(7);
      handling.LoseHandling = 1 + Pick(7);
      handling.AutoTakeOdds = Pick(2) == 0;
      handling.AdjustValue[4] = Currency::FromRaw(Pick(100) * 1000);
    }
    UseScripts();
    UseDice();
    game->screen.HotKeys = {{'q', "/x/q.bet", "press"}, {'7', "/x/7.bet", ""}};
    game->screen.SavedViews[4] = {700, 30, -5, 8};
    game->screen.Folders[kScriptFolder] = "/tmp/scripts";
  }
  int Pick(int count) { return static_cast<int>(choices() % static_cast<unsigned>(count)); }

  void FillHistory(int rolls) {
    ScreenState& screen = game->screen;
    for (int n = 0; n < rolls; ++n)
      screen.DiceHistory.push_back({1 + Pick(6), 1 + Pick(6), Pick(3) + 4, Pick(9)});
    screen.DiceHistoryThrows = Throws(game->stats);
  }

  void UseScripts() {
    const std::vector<std::string> lines(std::begin(kScript), std::end(kScript));
    SetScript(*game, 3, lines, "");
    std::string error;
    if (Pick(2) == 0) {
      EXPECT_TRUE(SaveScript(*game, 3, folder.File("three.bet"), error)) << error;
    }
    if (Pick(2) == 0) game->autobet.Scripts[3].Unsaved = true;
    SetScriptActive(*game, 3, true);
  }
  // Generator 3, edited percentage dice or not, and a roll file in each state of the recorder.
  void UseDice() {
    Generators& generators = game->generators;
    generators.GeneratorIndex = 2;
    generators.RngSeedState = 1 + Pick(700'000);
    generators.RngLastSeed = 1 + Pick(999'999);
    generators.RngReseedNewSessions = Pick(2) == 0;
    generators.RngUserSeed = !generators.RngReseedNewSessions && Pick(2) == 0;
    if (Pick(2) == 0) {
      PercentageDice& dice = game->percentage;
      EXPECT_TRUE(SetProbabilityCell(dice, kTotalRow, 1 + Pick(11), 9'000 + Pick(9'000), true));
      dice.ProbDirty = true;
      EXPECT_TRUE(ActivatePercentageDice(dice, true));
    }
    const int state = Pick(3);
    if (state == kRecorderOff) return;
    std::string rolls;
    for (int i = 0; i < 150; ++i) rolls += static_cast<char>(RollByte(1 + Pick(6), 1 + Pick(6)));
    game->rollFile.RollFileInsertMode = Pick(2) == 0;
    UseRollFile(folder.File("dice.rol"), rolls, state, 1 + Pick(150));
  }
  void UseRollFile(const std::string& path, const std::string& rolls, int state, std::int32_t cursor) {
    RollFile& file = game->rollFile;
    test::WriteFile(path, rolls);
    EXPECT_EQ(OpenRollFile(file, path), "");
    EXPECT_EQ(SetRecorderState(file, state), "");
    SetRollFileCursor(file, cursor);
  }
  // Goes on with a copy of its roll file, so that another table can have that.
  void LeaveRollFileTo(const test::TempFolder& other) {
    RollFile& file = game->rollFile;
    const std::string path = file.RollFileName;
    if (path.empty()) return;
    const int state = file.RecorderState;
    const std::int32_t cursor = file.RollFileCursor;
    EXPECT_EQ(CloseRollFile(file), "");
    UseRollFile(other.File("dice.rol"), test::ReadFile(path), state, cursor);
  }
  void Play(int rolls) {
    for (int roll = 0; roll < rolls; ++roll) {
      for (int i = 0; i < 3; ++i) {
        const int seat = 1 + Pick(kSeats);
        if (!IsOccupied(game->table, seat)) continue;
        ChangeBet(*game, seat, 1 + Pick(kBets), Currency::Dollars(Pick(40) - 8));
        if (Pick(9) == 0) CallBet(*game, seat, 31 + Pick(6), Pick(2) == 0);
        if (Pick(9) == 0)
          SetBetAmount(*game, seat, kFirstCheckStack + Pick(100), Currency::FromRaw(Pick(99)));
      }
      if (Pick(60) == 0) NewSession(*game, Pick(2) == 0, Pick(2) == 0, true, kContinueRollFile);
      if (Pick(2) == 0)
        Roll(1 + Pick(6), 1 + Pick(6));
      else
        RollDice(*game);
    }
  }
};

// The same choices and dice at two tables.
void PlayAlike(RandomTable& a, RandomTable& b, int rolls) {
  b.choices = a.choices;
  a.Play(rolls);
  b.Play(rolls);
}

enum class KeptAs { kOwnName, kDefault, kAutosave };

// Where the game is then.
std::string Keep(RandomTable& table, KeptAs as) {
  std::string error;
  Game& game = *table.game;
  std::string path = table.folder.File("game.crp");
  if (as == KeptAs::kOwnName) {
    // Unsaved edits go with the other two alone.
    if (game.percentage.ProbDirty) {
      EXPECT_TRUE(SaveProbabilityFile(game.percentage, table.folder.File("loaded.prb"), error)) << error;
    }
    EXPECT_TRUE(SaveGame(game, path, error)) << error;
  } else if (as == KeptAs::kDefault) {
    EXPECT_TRUE(SaveDefaultGame(game, error)) << error;
    path = DefaultGamePath(game);
  } else {
    EXPECT_TRUE(AutosaveGame(game, error)) << error;
    path = AutosavePath(game);
  }
  return path;
}

TEST(GameFile, AGameThatWasOpenedGoesOnAsTheOneThatWasSaved) {
  const int games = Count("TESSARYN_GAME_FILES", 12);
  for (int number = 0; number < games; ++number) {
    SCOPED_TRACE("game " + std::to_string(number));
    const auto as = static_cast<KeptAs>(number % 3);
    RandomTable played(static_cast<unsigned>(number));
    played.Play(played.Pick(120));
    Keep(played, as);
    played.FillHistory(number == 0 ? kMostKeptRolls : played.Pick(60));
    EXPECT_FALSE(IsSessionUnsaved(*played.game)) << "the dice history alone is no change";
    const std::string path = Keep(played, as);
    const std::string first = test::ReadFile(path);

    const test::TempFolder aside;
    played.LeaveRollFileTo(aside);
    RandomTable opened(1);
    opened.game->screen.HotKeys.clear();
    opened.host.boxes.clear();
    if (as == KeptAs::kAutosave) {
      opened.game->ownFolder = played.game->ownFolder;
      opened.host.answers = {"yes"};
      ASSERT_TRUE(OfferAutosave(*opened.game)) << opened.host.LastText();
    } else {
      ASSERT_TRUE(OpenGame(*opened.game, path)) << opened.host.LastText();
    }
    EXPECT_EQ(opened.host.boxes.size(), as == KeptAs::kAutosave) << opened.host.LastText();
    EXPECT_EQ(GameCaption(*opened.game), as == KeptAs::kOwnName ? "Tessaryn (game.crp)" : "Tessaryn");
    EXPECT_FALSE(IsSessionUnsaved(*opened.game));
    EXPECT_EQ(CheckConsistency(*opened.game), "");
    EXPECT_EQ(Lost(*played.game, *opened.game), "");
    EXPECT_TRUE(played.game->percentage.ProbMatrix == opened.game->percentage.ProbMatrix);
    EXPECT_EQ(played.game->autobet.Scripts[3].ScriptFileName, opened.game->autobet.Scripts[3].ScriptFileName);
    std::string error;
    if (as != KeptAs::kAutosave) {
      ASSERT_TRUE(SaveGame(*opened.game, path, error)) << error;
      EXPECT_TRUE(test::ReadFile(path) == first) << "saved again, the file differs";
    }

    // On with the same dice, each with its own log.
    FlushEventsLog(*played.game);
    opened.game->events.Path = opened.folder.File("log.txt");
    if (!played.Log().empty())
      test::WriteFile(opened.game->events.Path, test::ReadFile(EventsLogPath(*played.game)));
    PlayAlike(played, opened, 60);
    EXPECT_EQ(played.Log(), opened.Log());
    opened.game->events.Path = played.game->events.Path;
    EXPECT_EQ(Lost(*played.game, *opened.game), "");
    EXPECT_EQ(IsSessionUnsaved(*opened.game), as == KeptAs::kOwnName);
    FlushRollFile(played.game->rollFile);
    FlushRollFile(opened.game->rollFile);
    EXPECT_EQ(test::ReadFile(played.game->rollFile.RollFileName),
              test::ReadFile(opened.game->rollFile.RollFileName));
  }
}

TEST(GameFile, APathIsKeptToItsLastCharacterOrNamed) {
  for (const std::size_t bytes : {kPathWidth - 1, kPathWidth, kPathWidth + 1}) {
    test::TestTable table;
    table.Join(1, "Zo\u00eb");
    std::string name = "/";
    while (name.size() + 2 <= bytes) name += "\u00e9";
    if (name.size() < bytes) name += 'x';
    table.game->table.seats[1].SessionsLogName = table.game->screen.Folders[kScriptFolder] = name;
    std::string error;
    const std::string path = table.folder.File("game.crp");
    ASSERT_EQ(SaveGame(*table.game, path, error), bytes <= kPathWidth) << error;
    EXPECT_EQ(error.find(name) != std::string::npos, bytes > kPathWidth) << error;
    EXPECT_EQ(fs::exists(path), bytes <= kPathWidth);
    table.game->table.seats[1].SessionsLogName.clear();
    if (bytes > kPathWidth) {
      ASSERT_TRUE(SaveGame(*table.game, path, error)) << error;  // a folder alone may be longer
    }
    test::TestTable opened;
    ASSERT_TRUE(OpenGame(*opened.game, path)) << opened.host.LastText();
    EXPECT_EQ(opened.game->table.seats[1].SessionsLogName, bytes <= kPathWidth ? name : "");
    EXPECT_EQ(opened.game->screen.Folders[kScriptFolder], name);
  }
}

// --- What a game refers to.

struct ReferringTable : test::TestTable {
  std::string gamePath = folder.File("game.crp");

  ReferringTable() {
    Join(2, "Ann");
    Set("ShooterBetRule", "0");
    std::string error;
    test::WriteFile(folder.File("dice.rol"), "\x24\x48\x6c");
    EXPECT_EQ(OpenRollFile(game->rollFile, folder.File("dice.rol")), "");
    EXPECT_EQ(SetRecorderState(game->rollFile, kRecorderPlayback), "");
    RollDice(*game);
    SetProbabilityCell(game->percentage, kTotalRow, 6, 30'000, true);
    EXPECT_TRUE(SaveProbabilityFile(game->percentage, folder.File("loaded.prb"), error)) << error;
    game->events.Path = folder.File("log.txt");
    game->events.RecordEventsActive = true;
    WriteEventsLogLine(*game, "a line");
    SetScript(*game, 2, {"bet 5 on field"}, "");
    EXPECT_TRUE(SaveScript(*game, 2, folder.File("ann.bet"), error)) << error;
    SetScriptActive(*game, 2, true);
    game->table.seats[2].SessionsLogName = folder.File("sessions.slg");
    test::WriteFile(game->table.seats[2].SessionsLogName, "log");
    EXPECT_TRUE(SaveGame(*game, gamePath, error)) << error;
  }
};

TEST(GameFile, EachFileThatItRefersToHasItsToldCheck) {
  const struct {
    const char* file;
    bool removed;  // else changed
    Msg message;
    std::vector<MessageArgument> arguments = {};
  } cases[] = {
      {"dice.rol", true, Msg::kRollFileMissing},
      {"dice.rol", false, Msg::kRollFileAltered},
      {"loaded.prb", true, Msg::kProbabilitiesMissing},
      {"loaded.prb", false, Msg::kProbabilitiesAltered},
      {"log.txt", true, Msg::kEventsLogMissing},
      {"ann.bet", true, Msg::kScriptMissing, {{"player", "Ann"}}},
      {"ann.bet", false, Msg::kScriptAltered, {{"player", "Ann"}}},
      {"sessions.slg", true, Msg::kSessionsLogMissing, {{"player", "Ann"}, {"existing", false}}},
  };
  for (const auto& wanted : cases) {
    SCOPED_TRACE(test::NameOf(wanted.message));
    ReferringTable saved;
    const std::string file = saved.folder.File(wanted.file);
    EXPECT_EQ(CloseRollFile(saved.game->rollFile), "");
    EXPECT_EQ(CloseEventsLog(*saved.game), "");
    if (wanted.removed)
      fs::remove(file);
    else
      fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(1));
    test::TestTable opened;
    ASSERT_TRUE(OpenGame(*opened.game, saved.gamePath));
    ASSERT_EQ(opened.host.boxes.size(), 1u);
    EXPECT_TRUE(opened.host.Said(wanted.message, wanted.arguments));
    EXPECT_TRUE(opened.host.Said(wanted.message, {{"path", file}}));
    const Game& game = *opened.game;
    const bool gone = wanted.removed;
    const std::string name = wanted.file;
    EXPECT_EQ(game.rollFile.RecorderState, gone && name == "dice.rol" ? kRecorderOff : kRecorderPlayback);
    EXPECT_EQ(game.rollFile.RollFileCursor, gone && name == "dice.rol" ? 1 : 2);
    EXPECT_EQ(game.percentage.ProbMatrix == FairProbabilities(), gone && name == "loaded.prb");
    EXPECT_EQ(game.events.Path.empty(), name == "log.txt");
    EXPECT_EQ(game.autobet.ScriptActive[2], !(gone && name == "ann.bet"));
    EXPECT_EQ(game.table.seats[2].SessionsLogName,
              name == "sessions.slg" ? game.dataFolder + "ann.slg" : saved.folder.File("sessions.slg"));
  }
}

TEST(GameFile, UnsavedProbabilitiesAreKeptWithTheDefaultGameAlone) {
  test::TestTable table;
  std::string error;
  ASSERT_TRUE(SetProbabilityCell(table.game->percentage, kTotalRow, 6, 30'000, true));
  table.game->percentage.ProbDirty = true;
  const ProbabilityCells edited = table.game->percentage.ProbMatrix;
  ASSERT_TRUE(SaveGame(*table.game, table.folder.File("own.crp"), error)) << error;
  EXPECT_FALSE(fs::exists(table.folder.File("default.prb")));
  EXPECT_TRUE(table.game->percentage.ProbDirty);
  ASSERT_TRUE(AutosaveGame(*table.game, error)) << error;
  EXPECT_TRUE(table.game->percentage.ProbDirty);
  table.host.answers = {"yes"};
  table.game->percentage = PercentageDice{};
  EXPECT_TRUE(OfferAutosave(*table.game));
  EXPECT_TRUE(table.game->percentage.ProbMatrix == edited);
  EXPECT_TRUE(table.game->percentage.ProbDirty);
  EXPECT_EQ(GameCaption(*table.game), "Tessaryn (own.crp)");
  ASSERT_TRUE(SaveDefaultGame(*table.game, error)) << error;
  EXPECT_FALSE(HasAutosave(*table.game));
  test::TestTable own;
  ASSERT_TRUE(OpenGame(*own.game, table.folder.File("own.crp")));
  EXPECT_TRUE(own.game->percentage.ProbMatrix == FairProbabilities());
  table.game->percentage = PercentageDice{};
  ASSERT_TRUE(OpenFirstGame(*table.game, ""));
  EXPECT_TRUE(table.game->percentage.ProbMatrix == edited);
  EXPECT_EQ(GameCaption(*table.game), "Tessaryn");
}

// --- The start.

TEST(GameFile, TheStartOpensWhatItIsToldAndWhatIsThere) {
  test::TestTable table;
  table.Join(1, "Ann");
  std::string error;
  EXPECT_FALSE(OpenFirstGame(*table.game, "  "));  // nothing there, and no word
  EXPECT_TRUE(table.host.boxes.empty());
  ASSERT_TRUE(SaveDefaultGame(*table.game, error)) << error;
  table.Join(2, "Bob");
  ASSERT_TRUE(SaveDefaultGame(*table.game, error)) << error;
  ASSERT_TRUE(SaveGame(*table.game, table.folder.File("Evening.CRP"), error)) << error;
  const struct {
    std::string argument;
    Msg message;
    const char* caption;
  } cases[] = {{"", Msg::kNone, "Tessaryn"},
               {" \"" + table.folder.File("Evening.CRP") + "\" ", Msg::kNone, "Tessaryn (Evening.CRP)"},
               {"evening.txt", Msg::kNotAGameFileName, "Tessaryn"},
               {"none.crp", Msg::kGameNotFound, "Tessaryn"}};
  for (const auto& wanted : cases) {
    table.host.boxes.clear();
    EXPECT_TRUE(OpenFirstGame(*table.game, wanted.argument)) << wanted.argument;
    EXPECT_TRUE(table.host.Said(wanted.message)) << wanted.argument;
    EXPECT_LE(table.host.boxes.size(), 1u);
    EXPECT_EQ(GameCaption(*table.game), wanted.caption) << wanted.argument;
    EXPECT_EQ(table.State().OccupiedSeats, 2);
  }
  // A damaged default: told, the one before is offered, and at the end it is not lost.
  test::WriteFile(DefaultGamePath(*table.game), "Tessaryn Pro Game File, Data Format 2.2");
  table.host.boxes.clear();
  table.host.answers = {"yes"};
  EXPECT_TRUE(OpenFirstGame(*table.game, ""));
  ASSERT_EQ(table.host.boxes.size(), 2u);
  EXPECT_TRUE(Says(table.host.boxes[0], Msg::kGameDamaged, {{"path", DefaultGamePath(*table.game)}}));
  EXPECT_TRUE(table.host.Said(Msg::kAskOpenBackup));
  EXPECT_EQ(table.State().OccupiedSeats, 1);
  ASSERT_TRUE(SaveDefaultGame(*table.game, error)) << error;
  EXPECT_EQ(fs::file_size(table.folder.File(kDamagedGameFile)), 39u);
}

// --- Files that are none.

// What an open leaves: the table that was there, with a box; or one that plays.
void ExpectRefusedOrSound(test::TestTable& table, const std::string& path, const std::string& what,
                          int& opened) {
  const auto before = std::make_unique<Game>(*table.game);
  table.host.boxes.clear();
  if (OpenGame(*table.game, path)) {
    ++opened;
    ASSERT_EQ(CheckConsistency(*table.game), "") << what;
    for (int roll = 0; roll < 3; ++roll) table.Roll(1 + roll, 4);
    return;
  }
  ASSERT_FALSE(table.host.boxes.empty()) << what;
  const Msg said = table.host.boxes[0].id;
  ASSERT_TRUE(said == Msg::kGameDamaged || said == Msg::kNotAGameFile || said == Msg::kGameIncompatible)
      << what << ": " << test::NameOf(said);
  before->box = table.game->box;
  ASSERT_EQ(FirstDifference(*before, *table.game), "") << what;
}

TEST(GameFile, ATruncatedOrMutatedFileIsRefusedOrSound) {
  RandomTable played(static_cast<unsigned>(Count("TESSARYN_GAME_SEED", 5)));
  played.Play(80);
  std::string error;
  const std::string path = played.folder.File("game.crp");
  ASSERT_TRUE(SaveGame(*played.game, path, error)) << error;
  const std::string whole = test::ReadFile(path);
  const std::string bad = played.folder.File("bad.crp");
  test::TestTable table;
  // So many at record boundaries, if there are as many, and as many anywhere.
  const std::size_t records = whole.size() / kRecordBytes;
  const auto cuts = static_cast<std::size_t>(Count("TESSARYN_GAME_CUTS", 25));
  const std::size_t step = std::max<std::size_t>(records / cuts, 1);
  std::vector<std::size_t> sizes;
  for (std::size_t record = 0; record < records; record += step) sizes.push_back(record * kRecordBytes);
  for (std::size_t cut = 0; cut < cuts; ++cut) sizes.push_back(played.choices() % whole.size());
  const auto before = std::make_unique<Game>(*table.game);
  for (const std::size_t size : sizes) {
    test::WriteFile(bad, whole.substr(0, size));
    table.host.boxes.clear();
    ASSERT_FALSE(OpenGame(*table.game, bad)) << size;
    ASSERT_EQ(table.host.boxes.size(), 1u) << size;
  }
  before->box = table.game->box;
  EXPECT_EQ(FirstDifference(*before, *table.game), "");
  int opened = 0;
  const int mutations = Count("TESSARYN_GAME_MUTATIONS", 60);
  for (int i = 0; i < mutations; ++i) {
    std::string bytes = whole;
    for (int changes = 1 + played.Pick(4); changes > 0; --changes) {
      // Half of them where the fixed records and the further ones are.
      const std::size_t at = played.choices() % (i % 2 == 0 ? bytes.size() : 60 * kRecordBytes);
      bytes[i % 3 == 0 ? bytes.size() - 1 - at % 120'000 : at] = static_cast<char>(played.choices());
    }
    RecordFile file;
    if (i % 4 != 0 && SplitRecords(bytes, file)) {
      SealGameRecords(file);
      bytes.assign(reinterpret_cast<const char*>(file.Records.data()), bytes.size());
    }
    test::WriteFile(bad, bytes);
    ASSERT_NO_FATAL_FAILURE(ExpectRefusedOrSound(table, bad, "mutation " + std::to_string(i), opened));
  }
  RecordProperty("opened", opened);
}

TEST(GameFile, FilesOfOthersAreToldApart) {
  test::TestTable table;
  std::string error;
  const std::string path = table.folder.File("x.crp");
  const std::pair<std::string, Msg> cases[] = {
      {"", Msg::kNotAGameFile},
      {std::string(5000, '\0'), Msg::kNotAGameFile},
      {"Tessaryn Pro Game File, Data Format 2.1", Msg::kGameIncompatible},
      {"Tessaryn Pro Game File, Data Format 2.2", Msg::kGameDamaged}};
  for (const auto& [content, message] : cases) {
    test::WriteFile(path, content);
    EXPECT_FALSE(OpenGame(*table.game, path));
    EXPECT_TRUE(table.host.Said(message, {{"path", path}}));
  }
  table.Join(1, "Ann");
  table.game->table.seats[1].SessionsLogName = "/" + std::string(200, 'x');
  EXPECT_FALSE(SaveGame(*table.game, path, error));
  EXPECT_NE(error.find(MessageText<Msg::kPathOfSessionsLog>(With<"player">("Ann"))), std::string::npos)
      << error;
  EXPECT_EQ(test::ReadFile(path), cases[3].first);
}

// --- The disk.

// In a child of its own: a file may have so many bytes at most, as on a full disk.
bool SavesWithin(Game& game, const std::string& path, rlim_t bytes) {
  const pid_t child = fork();
  if (child == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
    std::string error;
    _exit(SaveGame(game, path, error) ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(GameFile, AWriteThatFailsAnywhereLeavesTheOldFile) {
  RandomTable table(3);
  std::string error;
  const std::string path = table.folder.File("game.crp");
  ASSERT_TRUE(SaveGame(*table.game, path, error)) << error;
  const std::string old = test::ReadFile(path);
  table.game->events.RecordEventsActive = false;
  table.Play(40);
  for (int i = 0, points = Count("TESSARYN_GAME_FAULTS", 12); i < points; ++i) {
    // Each byte of the first two records in turn, then anywhere.
    const rlim_t bytes = points > 600 && i < 512 ? static_cast<rlim_t>(i)
                         : i == 0                ? 0
                                                 : table.choices() % (old.size() * 9 / 10);
    EXPECT_FALSE(SavesWithin(*table.game, path, bytes));
    ASSERT_TRUE(test::ReadFile(path) == old) << bytes;
  }
  EXPECT_TRUE(SavesWithin(*table.game, path, RLIM_INFINITY));
  EXPECT_FALSE(test::ReadFile(path) == old);
  for (const auto& entry : fs::directory_iterator(table.folder.Path()))
    EXPECT_FALSE(entry.path().filename().string().starts_with(".tessaryn-")) << entry.path();
}

TEST(GameFile, AProgramThatIsKilledLeavesTheOldFileOrTheNewOne) {
  RandomTable table(4);
  std::string error;
  ASSERT_TRUE(SaveDefaultGame(*table.game, error)) << error;
  for (int i = 0, rounds = Count("TESSARYN_GAME_KILLS", 8); i < rounds; ++i) {
    const pid_t child = fork();
    if (child == 0)
      for (;;) {
        table.game->table.Die1 = table.game->table.Die1 % 6 + 1;
        SaveDefaultGame(*table.game, error);
      }
    usleep(static_cast<useconds_t>(20'000 + table.Pick(60'000)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::unique_ptr<Game> read;
    GameReferences references;
    for (const std::string& path : {DefaultGamePath(*table.game), BackupGamePath(*table.game)}) {
      if (path != DefaultGamePath(*table.game) && !fs::exists(path)) continue;
      const GameFileProblem problem = ReadGame(table.host, test::kBinFolder, path, read, references);
      ASSERT_FALSE(problem.Found()) << path << ": " << problem.reason;
    }
  }
  const auto left =
      std::count_if(fs::directory_iterator(table.folder.Path()), {}, [](const fs::directory_entry& entry) {
        return entry.path().filename().string().starts_with(".tessaryn-");
      });
  RecordProperty("within_a_write", static_cast<int>(left));
  ClearLeftovers(table.folder.Path());
}

}  // namespace
}  // namespace tessaryn
