// How the program ends when the world is against it: results that can't be written, files that can't be had,
// signals. Always a clear error, the right exit code, and nothing half written.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <map>

#include "cli/script_report.h"
#include "dice/roll_file.h"
#include "support/cli_process.h"
#include "support/places.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;
using test::Ran;
using test::RunCli;
using test::Surroundings;
using test::TempFolder;
using Words = std::vector<std::string>;

// A folder with one good file of each kind, and places where nothing can be had.
struct Ground {
  TempFolder folder;   // what the program works on
  TempFolder streams;  // its standard streams and data folder

  Ground() {
    std::string script;
    for (int line = 0; line < 100; ++line) script += "bet 5 on field\n";
    test::WriteFile(At("good.bet"), script);
    test::WriteFile(At("good.rol"), std::string(5000, static_cast<char>(RollByte(3, 4))));
    test::WriteFile(At("good.txt"), "MaxBet = 500\n");
    test::WriteFile(At("file"), "");
    EXPECT_EQ(Run({"probabilities", At("good.prb"), "--new", "--total", "7=12000"}).exitCode, 0);
    mkfifo(At("pipe").c_str(), 0600);
    fs::create_directory(At("locked"));
  }
  std::string At(const std::string& name) const { return folder.File(name); }
  // Every "@/" of the words is the folder, "@" alone the place.
  Ran Run(Words words, const Surroundings& around = {}, const std::string& place = "",
          const std::string& input = "") const {
    for (std::string& word : words) {
      if (word == "@") word = place;
      if (word.starts_with("@/")) word = At(word.substr(2));
    }
    const bool takesFolder = words[0] != "check" && words[0] != "convert" && words[0] != "probabilities";
    if (takesFolder) words.insert(words.end(), {"--data-folder", streams.File("data")});
    return RunCli(streams, words, input, around);
  }
  // What is there, by name.
  std::map<std::string, std::string> Contents() const {
    std::map<std::string, std::string> contents;
    for (const auto& entry :
         fs::recursive_directory_iterator(folder.Path(), fs::directory_options::skip_permission_denied))
      contents[entry.path().string()] = entry.is_regular_file() ? test::ReadFile(entry.path().string()) : "";
    return contents;
  }
};

std::string Shown(const Words& words) {
  std::string text;
  for (const std::string& word : words) text += word + " ";
  return text;
}

const Words kPlayers = {"--player", "Ann=5000", "--set", "ShooterBetRule=0"};

// A run long enough for its files to meet their limit.
Words LongRun(Words more) {
  Words words = {"run", "--rolls", "20000", "--seed", "7"};
  words.insert(words.end(), kPlayers.begin(), kPlayers.end());
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

// A file that a command reads or writes stands as "@".
const std::vector<Words> kReaders = {LongRun({"--script", "@"}),
                                     LongRun({"--settings", "@"}),
                                     LongRun({"--roll-file", "@"}),
                                     LongRun({"--probabilities", "@"}),
                                     {"play", "--settings", "@"},
                                     {"dice", "--probabilities", "@"},
                                     {"advantage", "--settings", "@"},
                                     {"check", "@"},
                                     {"convert", "@", "@/new.bet"},
                                     {"rolls", "@"},
                                     {"probabilities", "@"}};
const std::vector<Words> kWriters = {LongRun({"--record", "@"}),
                                     LongRun({"--events-log", "@"}),
                                     LongRun({"--save-settings", "@"}),
                                     {"play", "--record", "@"},
                                     {"play", "--save-settings", "@"},
                                     {"advantage", "--save-settings", "@"},
                                     {"convert", "@/good.bet", "@"},
                                     {"rolls", "@/good.rol", "--export", "@"},
                                     {"rolls", "@/good.rol", "--export-rolls", "@"},
                                     {"probabilities", "@/good.prb", "--force", "--out", "@"}};

TEST(CliEndings, FilesThatCannotBeHadAreNamedAndNothingIsTouched) {
  Ground ground;
  const auto before = ground.Contents();
  const fs::path locked = ground.At("locked");
  fs::permissions(locked, fs::perms::none);
  Surroundings around;
  around.powerless = true;
  for (const char* place : {"none/x", "file/x", "locked/x", ""})
    for (const std::vector<Words>& commands : {kReaders, kWriters})
      for (const Words& words : commands) {
        SCOPED_TRACE(Shown(words) + "at " + place);
        const Ran ran = ground.Run(words, around, ground.At(place));
        EXPECT_EQ(ran.exitCode, 1) << ran.err;
        EXPECT_NE(ran.err.find(ground.At(place)), std::string::npos) << ran.err;
        EXPECT_EQ(ran.out, "");
        EXPECT_EQ(ground.Contents(), before);
      }
  fs::permissions(locked, fs::perms::owner_all);
}

// "Standard output" is where results go; convert has none.
TEST(CliEndings, ResultsThatCannotBeWrittenAreAnError) {
  Ground ground;
  const Words commands[] = {LongRun({}),
                            LongRun({"--json"}),
                            {"play"},
                            {"dice", "--count", "1000000000"},
                            {"advantage"},
                            {"check", "@/good.bet"},
                            {"rolls", "@/good.rol"},
                            {"probabilities", "@/good.prb"},
                            {"run", "--help"}};
  const auto before = ground.Contents();
  for (const Words& words : commands)
    for (const bool full : {true, false}) {
      SCOPED_TRACE(Shown(words) + (full ? "on a full disk" : "without a reader"));
      Surroundings around;
      if (full) around.out = "/dev/full";
      around.noReader = !full;
      const Ran ran = ground.Run(words, around, "", "state\nstate\n");
      EXPECT_EQ(ran.exitCode, 1) << ran.err;
      EXPECT_NE(ran.err.find("standard output can't be written"), std::string::npos) << ran.err;
      EXPECT_FALSE(ran.killedBySignal);
      EXPECT_EQ(ground.Contents(), before);
    }
}

TEST(CliEndings, OnAFullDiskTheOldFileStays) {
  Ground ground;
  for (const Words& words : kWriters) {
    SCOPED_TRACE(Shown(words));
    const std::string option = words[words.size() - 2];
    if (option == "--record" || option == "--events-log") continue;  // these are written as the game goes on
    test::WriteFile(ground.At("old"), "old");
    const auto before = ground.Contents();
    Surroundings around;
    around.fileLimit = 200;
    if (words[0] == "probabilities") around.fileLimit = 1000;
    const Ran ran = ground.Run(words, around, ground.At("old"));
    EXPECT_EQ(ran.exitCode, 1) << ran.err;
    EXPECT_NE(ran.err.find(ground.At("old") + ": File too large"), std::string::npos) << ran.err;
    EXPECT_EQ(ground.Contents(), before);
    fs::remove(ground.At("old"));
  }
}

// Of a log and a recording that are asked for: how many rolls each has. Half a line or a byte that is no roll
// counts as a fault.
struct Written {
  std::int64_t logged = 0;
  std::int64_t recorded = 0;
};

Written WrittenOf(const std::string& log, const std::string& recording) {
  Written written;
  const std::string text = test::ReadFile(log);
  EXPECT_TRUE(text.empty() || text.back() == '\n') << "half a line";
  for (const std::string& line : test::Lines(text)) written.logged += line.starts_with(" Roll #");
  for (const char roll : test::ReadFile(recording)) {
    EXPECT_TRUE(CheckRollValue(static_cast<unsigned char>(roll)));
    ++written.recorded;
  }
  return written;
}

TEST(CliEndings, ALogOrRecordingThatCannotBeWrittenStopsTheRunAtOnce) {
  struct Case {
    const char* option;
    std::string target;
    const char* told;
    bool limited;
  };
  const Case cases[] = {
      {"--events-log", "/dev/full", "The Events Log can't be written: /dev/full: No space", false},
      {"--events-log", "@/pipe", "it is not a file", false},
      {"--events-log", "@/new", "File too large", true},
      {"--record", "@/new", "File too large", true},
      {"--record", "/dev/full", "it is not a file", false},
      {"--record", "@/pipe", "it is not a file", false},
      {"--roll-file", "@/pipe", "it is not a file", false}};
  for (const Case& c : cases)
    for (const bool plays : {false, true}) {
      SCOPED_TRACE(std::string(c.option) + " " + c.target + (plays ? " in play" : " in run"));
      Ground ground;
      Words words = {plays ? "play" : "run", c.option, c.target, "--seed", "7"};
      words.insert(words.end(), kPlayers.begin(), kPlayers.end());
      if (!plays) words.insert(words.end(), {"--rolls", "400000"});
      Surroundings around;
      if (c.limited) around.fileLimit = 300'000;
      const Ran ran = ground.Run(words, around, "", "turbo 400000\nstate\n");
      EXPECT_EQ(ran.exitCode, 1) << ran.err;
      const std::size_t at = ran.err.find(c.told);
      EXPECT_NE(at, std::string::npos) << ran.err;
      EXPECT_EQ(ran.err.find(c.told, at + 1), std::string::npos) << "told twice: " << ran.err;
      EXPECT_TRUE(c.limited || ran.out.empty()) << "found before the first roll";
      const bool log = std::string(c.option) == "--events-log";
      const Written written = WrittenOf(log ? ground.At("new") : "", log ? "" : ground.At("new"));
      EXPECT_LE(std::max(written.logged, written.recorded), 300'000);
    }
}

TEST(CliEndings, NoFileIsTouchedBeforeEveryOptionIsFoundGood) {
  Ground ground;
  test::WriteFile(ground.At("old.rol"), "$$$$");
  test::WriteFile(ground.At("log.txt"), "a line\n");
  test::WriteFile(ground.At("rules.txt"), "mine");
  test::WriteFile(ground.At("bad.bet"), "bet bet bet\n");
  const Words bad[] = {
      {"--seed", "0"},          {"--set", "MaxBet=x"},         {"--player", "Ann=5"},  // twice the same name
      {"--settings", "@/none"}, {"--probabilities", "@/none"}, {"--script", "@/bad.bet"},
      {"--script", "@/none"},   {"--roll-file", "@/good.rol"}, {"--no-such-option"}};
  const auto before = ground.Contents();
  for (const char* command : {"run", "play"})
    for (const Words& option : bad) {
      SCOPED_TRACE(command + (" " + Shown(option)));
      Words words = {command,           "--record",    "@/old.rol", "--events-log", "@/log.txt",
                     "--save-settings", "@/rules.txt", "--player",  "Ann=5000"};
      words.insert(words.end(), option.begin(), option.end());
      const Ran ran = ground.Run(words);
      EXPECT_EQ(ran.exitCode, option[0] == "--no-such-option" ? 2 : 1) << ran.err;
      EXPECT_EQ(ground.Contents(), before);
      EXPECT_FALSE(fs::exists(ground.streams.File("data"))) << "not even the data folder is made";
    }
  for (const Words& pair : {Words{"--record", "@/new", "--events-log", "@/new"},
                            Words{"--roll-file", "@/good.rol", "--events-log", "@/good.rol"}}) {
    Words words = LongRun(pair);
    EXPECT_EQ(ground.Run(words).exitCode, 1);
    EXPECT_EQ(ground.Contents(), before);
  }
}

TEST(CliEndings, LogAndRecordingAreOfTheSameRollAfterASignal) {
  const std::pair<int, const char*> signals[] = {{SIGINT, "Stopped by Ctrl-C."},
                                                 {SIGTERM, "Stopped by SIGTERM."},
                                                 {SIGHUP, "Stopped by SIGHUP."},
                                                 {SIGPIPE, "Stopped by SIGPIPE."}};
  for (const auto& [signal, told] : signals)
    for (const bool plays : {false, true}) {
      SCOPED_TRACE(std::string(told) + (plays ? " play" : " run"));
      Ground ground;
      const std::string recording = ground.At("new.rol");
      Words words = {plays ? "play" : "run", "--record", recording, "--events-log", ground.At("log.txt")};
      words.insert(words.end(), kPlayers.begin(), kPlayers.end());
      if (!plays) words.insert(words.end(), {"--rolls", "2000000000"});
      Surroundings around;
      around.signal = signal;
      around.openInput = true;
      around.when = [&recording] {
        std::error_code none;
        return fs::file_size(recording, none) > 100'000 && !none;
      };
      const Ran ran = ground.Run(words, around, "", "turbo 2000000000\nstate\n");
      EXPECT_EQ(ran.exitCode, 128 + signal) << ran.err;
      EXPECT_FALSE(ran.killedBySignal);
      EXPECT_NE(ran.err.find(told), std::string::npos) << ran.err;
      EXPECT_NE(ran.out.find(told), std::string::npos) << ran.out << "the run's own reason";
      const Written written = WrittenOf(ground.At("log.txt"), recording);
      EXPECT_GT(written.recorded, 100'000);
      EXPECT_EQ(written.logged, written.recorded);
    }
}

// Whatever a command waits for or is busy with.
TEST(CliEndings, EveryCommandHeedsSignals) {
  Ground ground;
  test::WriteFile(ground.At("loop.bet"), "do\nadd 1 to cs0\nif cs0 < 0 then exitdo endif\nloop\n");
  test::WriteFile(ground.At("long.rol"), "");
  fs::resize_file(ground.At("long.rol"), 2'000'000'000);  // without blocks on the disk
  const Words commands[] = {{"dice", "--count", "1000000000000"},
                            {"rolls", "@/long.rol"},
                            LongRun({"--script", "@/loop.bet"}),
                            LongRun({}),
                            {"play"}};
  const auto names = [&ground] {
    Words found;
    for (const auto& entry : fs::directory_iterator(ground.folder.Path())) found.push_back(entry.path());
    return found;
  };
  const Words before = names();
  for (const Words& words : commands)
    for (const int signal : {SIGTERM, SIGINT}) {
      SCOPED_TRACE(Shown(words) + "and signal " + std::to_string(signal));
      Surroundings around;
      around.signal = signal;
      around.openInput = true;
      if (words[0] == "dice") around.out = "/dev/null";
      const Ran ran = ground.Run(words, around);
      EXPECT_EQ(ran.exitCode, 128 + signal) << ran.err;
      EXPECT_FALSE(ran.killedBySignal);
      EXPECT_NE(ran.err.find("Stopped by "), std::string::npos) << ran.err;
      EXPECT_EQ(names(), before);
    }
}

// --- At a terminal.

// The program behind a terminal's two ends.
class TerminalPlay {
 public:
  explicit TerminalPlay(const TempFolder& folder) : master_(posix_openpt(O_RDWR | O_NOCTTY)) {
    EXPECT_TRUE(master_ >= 0 && grantpt(master_) == 0 && unlockpt(master_) == 0);
    const std::string slave = ptsname(master_);
    const std::string program = std::string(test::kBinFolder) + "/tessaryn-cli";
    child_ = fork();
    if (child_ != 0) return;
    setsid();
    const int end = open(slave.c_str(), O_RDWR);  // the terminal of the new session
    for (const int stream : {0, 1, 2}) dup2(end, stream);
    setenv("TERM", "dumb", 1);
    execl(program.c_str(), program.c_str(), "play", "--data-folder", folder.Path().c_str(), nullptr);
    _exit(127);
  }
  ~TerminalPlay() {
    if (child_ > 0) kill(child_, SIGKILL);
    close(master_);
  }
  void Type(const std::string& keys) { EXPECT_GT(write(master_, keys.data(), keys.size()), 0); }
  void Send(int signal) { kill(child_, signal); }
  // Reads until the text stands there.
  bool Sees(const std::string& text) {
    while (shown_.find(text) == std::string::npos) {
      pollfd ready{master_, POLLIN, 0};
      char block[4096];
      if (poll(&ready, 1, 10'000) <= 0) return false;
      const ssize_t count = read(master_, block, sizeof block);
      if (count <= 0) return false;
      shown_.append(block, static_cast<std::size_t>(count));
    }
    shown_.erase(0, shown_.find(text) + text.size());
    return true;
  }
  int Exit() {
    while (Sees("\n")) {
    }
    kill(child_, SIGKILL);  // one that has closed its terminal has its exit code already
    int status = 0;
    waitpid(child_, &status, 0);
    child_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  int master_;
  pid_t child_ = -1;
  std::string shown_;
};

TEST(CliEndings, APromptHeedsSignals) {
  for (const int signal : {SIGTERM, SIGHUP, SIGPIPE}) {
    TempFolder folder;
    TerminalPlay play(folder);
    ASSERT_TRUE(play.Sees("table> "));
    play.Send(signal);
    EXPECT_EQ(play.Exit(), 128 + signal);
  }
  TempFolder folder;
  TerminalPlay play(folder);
  ASSERT_TRUE(play.Sees("table> "));
  const std::string recording = folder.File("new.rol");
  play.Type("set ShooterBetRule 0\nrollfile " + recording + " record\nturbo 2000000000\n");
  std::error_code none;
  for (int look = 0; look < 5000 && (fs::file_size(recording, none) < 100'000 || none); ++look) usleep(2000);
  play.Type("\x03");  // the key
  ASSERT_TRUE(play.Sees("Stopped by Ctrl-C."));
  ASSERT_TRUE(play.Sees("table> "));
  play.Type("join 1 An");
  ASSERT_TRUE(play.Sees("An"));
  play.Type("\x03");
  ASSERT_TRUE(play.Sees("Ctrl-C again"));
  ASSERT_TRUE(play.Sees("table> "));
  play.Type("get BarNumber\n");
  ASSERT_TRUE(play.Sees("12")) << "what was typed is gone, and the table goes on";
  ASSERT_TRUE(play.Sees("table> "));
  play.Type("\x03");
  ASSERT_TRUE(play.Sees("Ctrl-C again"));
  ASSERT_TRUE(play.Sees("table> "));
  play.Type("\x03");
  EXPECT_EQ(play.Exit(), 128 + SIGINT);
}

}  // namespace
}  // namespace tessaryn
