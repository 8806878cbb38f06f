// The command-line program as other programs use it: commands in, JSON lines out, exit codes.
#include <gtest/gtest.h>

#include <chrono>
#include <nlohmann/json.hpp>
#include <random>
#include <set>
#include <sstream>

#include "support/cli_process.h"

namespace tessaryn {
namespace {

using Json = nlohmann::json;
using test::Ran;
using test::RunCli;
using test::TempFolder;

// The lines that a list of commands is answered with, boxes included.
std::vector<Json> Play(const std::vector<std::string>& commands, std::vector<std::string> options = {}) {
  TempFolder folder;
  std::string input;
  for (const std::string& command : commands) input += command + "\n";
  options.insert(options.begin(), {"play", "--data-folder", folder.Path()});
  const Ran ran = RunCli(folder, options, input);
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  std::vector<Json> lines;
  for (const std::string& line : test::Lines(ran.out)) lines.push_back(Json::parse(line));
  return lines;
}

// The answers alone.
std::vector<Json> Answers(const std::vector<std::string>& commands) {
  std::vector<Json> answers;
  for (Json& line : Play(commands))
    if (!line.contains("message")) answers.push_back(std::move(line));
  return answers;
}

Json Message(const char* title, const char* text) {
  return {{"message", {{"title", title}, {"text", text}}}};
}

TEST(CliPlay, EveryCommandAnswersOnceWithItsOwnKeys) {
  const std::pair<const char*, Json> commands[] = {
      {"join 3 Ann 1000", {{"ok", true}}},
      {"join 5 \"Old Bob\" 250.5", {{"ok", true}}},
      {"rename 5 Bert", {{"ok", true}}},
      {"move 5 1", {{"ok", true}}},
      {"select 1", {{"ok", true}}},
      {"bet 3 passline 10", {{"ok", true}, {"change", 10}, {"amount", 10}}},
      {"bet 3 43 -4", {{"ok", true}, {"change", -4}, {"amount", 6}}},
      {"bet 1 place6 12", {{"ok", true}, {"change", 12}, {"amount", 12}}},
      {"call 1 on place6", {{"ok", true}, {"working", 2}}},
      {"call 1 off place6", {{"ok", true}, {"working", 0}}},
      {"buy 1 place6", {{"ok", true}}},
      {"remove 1 buy6", {{"ok", true}, {"change", -12}, {"amount", 0}}},
      {"undo", {{"ok", true}}},
      {"redo", {{"ok", true}}},
      {"bet 1 103 2.5", {{"ok", true}, {"change", 2.5}, {"amount", 2.5}}},
      {"roll 2 2",
       {{"ok", true}, {"rolls", 1}, {"rolled", 1}, {"die1", 2}, {"die2", 2}, {"total", 4}, {"point", 4}}},
      {"rng 4", {{"ok", true}, {"rng", 4}}},
      {"seed 7", {{"ok", true}}},
      {"atm 1 withdraw 100", {{"ok", true}, {"allowed", 100}, {"bankroll", 350.5}}},
      {"atm 1 deposit 50.5", {{"ok", true}, {"allowed", 50.5}, {"bankroll", 300}}},
      {"set MaxBet 500", {{"ok", true}}},
      {"get MaxBet", {{"ok", true}, {"name", "MaxBet"}, {"value", 500}}},
      {"set WinHandling@1 3", {{"ok", true}}},
      {"get WinHandling@1", {{"ok", true}, {"name", "WinHandling@1"}, {"value", 3}}},
      {"get AllowPutBets", {{"ok", true}, {"name", "AllowPutBets"}, {"value", "on"}}},
      {"get Point", {{"ok", true}, {"name", "Point"}, {"value", 4}}},
      {"answer yes no 5", {{"ok", true}, {"queued", 3}}},
      {"pass", {{"ok", true}, {"shooter", 1}}},
  };
  std::vector<std::string> lines;
  for (const auto& [command, answer] : commands) lines.push_back(command);
  const std::vector<Json> answers = Answers(lines);
  ASSERT_EQ(answers.size(), std::size(commands));
  for (std::size_t i = 0; i < answers.size(); ++i) EXPECT_EQ(answers[i], commands[i].second) << lines[i];
}

TEST(CliPlay, TheStateHasItsExactShape) {
  const std::vector<Json> answers = Answers({"join 3 Ann 1000", "bet 3 passline 10", "bet 3 buy4 50",
                                             "call 3 off buy4", "bet 3 107 2.5", "roll 4 5", "state"});
  const Json expected = {{"ok", true},
                         {"point", 9},
                         {"die1", 4},
                         {"die2", 5},
                         {"rolls", 1},
                         {"shooter", 3},
                         {"handSeat", 3},
                         {"selected", 3},
                         {"stopReason", ""},
                         {"recorder", {{"state", "off"}, {"file", ""}, {"next", 1}, {"rolls", 0}}},
                         {"seats",
                          {{{"seat", 3},
                            {"name", "Ann"},
                            {"bankroll", 1000},
                            {"onTable", 63},
                            {"rail", 937},
                            {"bets",
                             {{"43", {{"amount", 10}, {"working", 1}, {"committed", 10}}},
                              {"37", {{"amount", 50}, {"working", -1}, {"committed", 50}}}}},
                            {"checkstacks", {{"7", 2.5}}}}}}};
  EXPECT_EQ(answers.back(), expected);
}

TEST(CliPlay, StatisticsTellBetsRollsAndHands) {
  const std::vector<Json> answers = Answers(
      {"join 1 Ann 1000", "bet 1 passline 10", "roll 3 4", "stats 1 2", "stats 0 2", "stats 1 2 field"});
  const Json& seat = answers[3];
  const Json wins = {{"count", 1}, {"total", 10},   {"high", 10},
                     {"low", 10},  {"lastRoll", 1}, {"lastAmount", 10}};
  EXPECT_EQ(seat["bets"]["43"]["wins"], wins);
  EXPECT_EQ(seat["bets"].size(), 1u);
  EXPECT_EQ(seat["rolls"]["0"], 1);
  EXPECT_EQ(seat["rolls"]["7"], 1);
  EXPECT_FALSE(seat["rolls"].contains("1"));
  EXPECT_EQ(seat["numbers"]["7"], (Json{{"comeoutRolls", 1}, {"passes", 1}, {"misses", 0}}));
  EXPECT_EQ(seat["hands"]["handCount"], 1);
  EXPECT_EQ(answers[4]["rolls"]["7"], 1);
  EXPECT_EQ(answers[5]["bets"]["49"]["wins"]["count"], 0);
}

TEST(CliPlay, ReportsAreTablesOfLabelsAndTexts) {
  const std::vector<Json> answers =
      Answers({"join 1 Ann 1000", "bet 1 passline 10", "roll 3 4", "report summary",
               "report summary seats=", "report bet-results bets=field,43 scope=4",
               "report roll-totals group=21", "report bet-trends"});
  const Json& summary = answers[3];
  EXPECT_EQ(summary["report"], "summary");
  EXPECT_EQ(summary["columns"], Json::array({"table", "players"}));
  EXPECT_EQ(summary["rows"]["Total rolls"], Json::array({"1", "1"}));
  EXPECT_EQ(summary["rows"]["Net % Total $"], Json::array({"100"}));
  EXPECT_EQ(answers[4]["rows"]["Total rolls"], Json::array({"1", "0"}));
  EXPECT_EQ(answers[4]["rows"]["Wins Total $"], Json::array({""}));
  EXPECT_EQ(answers[5]["rows"]["Total $"], Json::array({"10", "10", "0", "10", "100"}));
  EXPECT_EQ(answers[6]["rows"]["3.4"], Json::array({"1", "0", "100.00", "5.56"}));
  EXPECT_EQ(answers[7]["rows"]["Pass Line"], Json::array({" 1"}));
}

TEST(CliPlay, CommandsThatMakeNoSenseSayWhatIsWrong) {
  const std::pair<const char*, const char*> commands[] = {
      {"dance", "unknown command \"dance\""},
      {"join", "expected: join SEAT NAME BANKROLL"},
      {"join 9 Ann 5", "\"9\" is no seat"},
      {"join x Ann 5", "\"x\" is no seat"},
      {"join 2 Ann lots", "\"lots\" is no amount"},
      {"join 2 123 5", "all numeric"},
      {"join 1 Bob 5", "Seat 1 is taken by Ann."},
      {"join 2 ann 5", "There's already a player named ann."},
      {"join 2 Bob 10000000", "The maximum player bankroll is $9,999,999"},
      {"leave 4", "there is no player at seat 4"},
      {"move 1 1", "Seat 1 is taken by Ann."},
      {"bet 1 nothing 5", "\"nothing\" is no bet"},
      {"bet 1 94 5", "\"94\" is no bet"},
      {"bet 1 0 5", "\"0\" is no bet"},
      {"bet 1 passline", "expected"},
      {"bet 1 passline ten", "\"ten\" is no amount"},
      {"call 1 sideways field", "neither on nor off"},
      {"call 1 on passline", "can't be called ON or OFF"},
      {"buy 1 field", "You may only buy Place bets."},
      {"redo", "nothing was taken back"},
      {"repeat 1", "every bet of the last roll is up"},
      {"roll 0 1", "\"0\" is no face"},
      {"roll 7 1", "\"7\" is no face"},
      {"roll 1", "roll"},
      {"roll", "Shooter has no line bet."},
      {"turbo 0", "\"0\" is no number of rolls"},
      {"turbo 1.5", "\"1.5\" is no number of rolls"},
      {"turbo 2000000001", "no number of rolls"},
      {"rng 9", "Reference to RNG out of limits."},
      {"seed 0", "must be a whole number from 1 to 2147483647"},
      {"seed 2147483648", "must be a whole number from 1 to 2147483647"},
      {"seed 1.5", "must be a whole number"},
      {"atm 1 steal 5", "neither deposit nor withdraw"},
      {"atm 1 deposit -5", "must not be negative"},
      {"set MaxBet", "expected"},
      {"set Nonsense 1", "There is no setting named \"Nonsense\"."},
      {"set Point 4", "Point can only be read."},
      {"get Nonsense", "There is no setting named \"Nonsense\"."},
      {"stats 9 0", "\"9\" is no seat"},
      {"stats 0 5", "\"5\" is no scope"},
      {"stats 1 0 nothing", "is no bet"},
      {"report", "a report is missing"},
      {"report totals", "\"totals\" is no report"},
      {"report hands scope=5", "\"5\" is no scope"},
      {"report hands seats=9", "\"9\" is no seat"},
      {"report hands seats=1,", "\"\" is no seat"},
      {"report hands seats=2", "there is no player at seat 2"},
      {"report bet-results bets=43,cs5", "\"cs5\" is no bet"},
      {"report hands units=dollars", "\"dollars\" is no unit"},
      {"report roll-totals group=12", "\"12\" is no group"},
      {"report roll-totals probability=", "\"\" is no probability"},
      {"report roll-frequencies item=90", "\"90\" is no roll item"},
      {"report hands colour=red", "\"colour=red\": expected scope="},
      {"answer", "expected"},
  };
  std::vector<std::string> lines{"join 1 Ann 1000"};
  for (const auto& [command, error] : commands) lines.push_back(command);
  lines.push_back("state");
  const std::vector<Json> answers = Answers(lines);
  ASSERT_EQ(answers.size(), lines.size());
  for (std::size_t i = 0; i < std::size(commands); ++i) {
    const Json& answer = answers[i + 1];
    EXPECT_EQ(answer["ok"], false) << lines[i + 1];
    ASSERT_TRUE(answer.contains("error")) << lines[i + 1];
    EXPECT_NE(answer["error"].get<std::string>().find(commands[i].second), std::string::npos) << answer;
    EXPECT_EQ(answer.size(), 2u) << answer;
  }
  EXPECT_EQ(answers.back()["seats"].size(), 1u);
  EXPECT_EQ(answers.back()["rolls"], 0);
}

TEST(CliPlay, BoxesComeAheadOfTheAnswerOfTheirCommand) {
  const std::vector<Json> lines = Play({"join 1 Ann 1000", "bet 1 come 5", "roll", "pass"});
  const Json expected[] = {
      {{"ok", true}},
      Message("Come Bet", "Ann,\r\rYou may not make a Come bet \runtil a point is established."),
      {{"ok", true}, {"change", 0}, {"amount", 0}},
      Message("Line Bet Required",
              "A line bet is required to shoot.\r\rAnn must make a Pass Line bet or a Don't Pass "
              "bet.\r\rNote: This "
              "requirement can be changed on the 'Bets tab' of the configuration screen."),
  };
  ASSERT_EQ(lines.size(), 7u);
  for (std::size_t i = 0; i < std::size(expected); ++i) EXPECT_EQ(lines[i], expected[i]);
  EXPECT_EQ(lines[4]["ok"], false);
  EXPECT_EQ(lines[5],
            Message("Pass the Dice", "Unable to pass the dice.\r\rThere are no other players at the table."));
  EXPECT_EQ(lines[6]["ok"], true);
}

TEST(CliPlay, QueuedAnswersAnswerAndWithoutThemNothingIsRisked) {
  const std::vector<std::string> begin{"join 1 Ann 1000", "bet 1 passline 10", "roll 2 2"};
  std::vector<std::string> commands = begin;
  commands.insert(commands.end(), {"leave 1", "answer yes", "leave 1", "state"});
  const std::vector<Json> lines = Play(commands);
  ASSERT_EQ(lines.size(), 9u);
  EXPECT_EQ(lines[3]["message"]["title"], "Remove Player");
  EXPECT_EQ(lines[4]["ok"], false) << "money under contract is not given away unasked";
  EXPECT_EQ(lines[7]["ok"], true);
  EXPECT_EQ(lines[8]["seats"].size(), 0u);
  commands = {"join 1 Ann 1000",   "bet 1 midway 5", "set UseMidway off", "answer no",
              "set UseMidway off", "answer yes",     "set UseMidway off", "get UseMidway"};
  const std::vector<Json> answers = Answers(commands);
  EXPECT_EQ(answers[2]["ok"], false);
  EXPECT_EQ(answers[4]["ok"], false);
  EXPECT_EQ(answers[6]["ok"], true);
  EXPECT_EQ(answers[7]["value"], "off");
}

TEST(CliPlay, TurboRollsExactlyAsManyAsAsked) {
  for (const char* rolls : {"1", "2", "16383", "16384", "20000"}) {
    const std::vector<Json> answers = Answers(
        {"set ShooterBetRule 0", "seed 5", std::string("turbo ") + rolls, std::string("turbo ") + rolls});
    EXPECT_EQ(std::to_string(answers[2]["rolled"].get<int>()), rolls);
    EXPECT_EQ(answers[3]["rolls"].get<int>(), 2 * answers[2]["rolls"].get<int>());
    EXPECT_FALSE(answers[2].contains("stopReason")) << answers[2];
  }
}

TEST(CliPlay, RubbishOnThePipeIsAnsweredLineByLine) {
  std::mt19937 random(11);
  const char* words[] = {
      "join",   "bet",   "roll", "1",     "8",     "-5",    "passline", "99999999999999999999",
      "set",    "state", "move", "\"",    "leave", "stats", "0",        "get",
      "MaxBet", "@",     "x@9",  "turbo", "call",  "on",    "field",    "3 4"};
  std::vector<std::string> lines{"join 1 Ann 100", "set ShooterBetRule 0"};
  for (int i = 0; i < 400; ++i) {
    std::string line = words[random() % std::size(words)];
    for (unsigned more = random() % 4; more > 0; --more)
      line += std::string(" ") + words[random() % std::size(words)];
    if (line.find("turbo") == 0) line = "turbo";
    if (random() % 20 == 0) line += static_cast<char>(128 + random() % 128);
    lines.push_back(line);
  }
  lines.push_back("state");
  const std::vector<Json> answers = Answers(lines);
  EXPECT_EQ(answers.size(), lines.size());
  EXPECT_EQ(answers.back()["ok"], true);
}

// Seeds come from the machine's own clock: one that began with the program would give all starts the same
// few.
TEST(CliPlay, EveryStartHasASeedOfItsOwn) {
  const auto tick = [] {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count() & 0xffffffff;
  };
  constexpr std::int64_t kLimit = 2'147'483'647;
  std::set<std::int64_t> seeds;
  for (int start = 0; start < 6; ++start) {
    const std::int64_t before = tick();
    const std::int64_t seed = Answers({"get RngLastSeed"})[0]["value"].get<std::int64_t>();
    EXPECT_LT((seed - before + 3 * kLimit) % kLimit, 60'000) << seed << " against " << before;
    seeds.insert(seed);
  }
  EXPECT_EQ(seeds.size(), 6u);
}

// --- run

TEST(CliRun, TheReportHasItsKeysAndASeedRepeatsIt) {
  TempFolder folder;
  const std::vector<std::string> options{
      "run",      "--data-folder",   folder.Path(), "--player", "Ann=5000",
      "--player", "Bob=100.5",       "--rolls",     "20000",    "--rng",
      "1",        "--seed",          "7",           "--set",    "ShooterBetRule=0",
      "--set",    "WinHandling@2=3", "--json"};
  Json runs[2];
  for (Json& run : runs) {
    const Ran ran = RunCli(folder, options);
    ASSERT_EQ(ran.exitCode, 0) << ran.err;
    ASSERT_EQ(test::Lines(ran.out).size(), 1u);
    run = Json::parse(ran.out);
    std::vector<std::string> keys;
    for (const auto& [key, value] : run.items()) keys.push_back(key);
    EXPECT_EQ(keys, (std::vector<std::string>{"rolls", "rollsPerSecond", "seats", "seconds", "stopReason",
                                              "table"}));
    for (const char* timed : {"seconds", "rollsPerSecond"}) run.erase(timed);
  }
  EXPECT_EQ(runs[0], runs[1]);
  const Json& run = runs[0];
  EXPECT_EQ(run["rolls"], 20000);
  EXPECT_EQ(run["stopReason"], "");
  std::vector<std::string> keys;
  for (const auto& [key, value] : run["table"].items()) keys.push_back(key);
  EXPECT_EQ(keys, (std::vector<std::string>{"comeoutRolls", "hands", "misses", "passes", "point", "totals"}));
  int rolls = 0;
  for (const auto& [total, count] : run["table"]["totals"].items()) rolls += count.get<int>();
  EXPECT_EQ(rolls, 20000);
  ASSERT_EQ(run["seats"].size(), 2u);
  const Json bob = {{"seat", 2},    {"name", "Bob"}, {"bankrollStart", 100.5}, {"bankroll", 100.5},
                    {"onTable", 0}, {"betsWon", 0},  {"betsLost", 0},          {"wagered", 0},
                    {"won", 0},     {"lost", 0},     {"bets", Json::object()}};
  EXPECT_EQ(run["seats"][1], bob);
}

TEST(CliRun, ARecordedRunPlaysBackToTheSameReport) {
  TempFolder folder;
  const std::string file = folder.File("game.rol");
  const std::vector<std::string> common{"run",   "--data-folder",    folder.Path(), "--player", "Ann=5000",
                                        "--set", "ShooterBetRule=0", "--rolls",     "5000",     "--json"};
  std::vector<std::string> record = common;
  record.insert(record.end(), {"--rng", "3", "--seed", "77", "--record", file});
  std::vector<std::string> play = common;
  play.insert(play.end(), {"--roll-file", file});
  const Ran recorded = RunCli(folder, record);
  ASSERT_EQ(recorded.exitCode, 0) << recorded.err;
  EXPECT_EQ(test::ReadFile(file).size(), 5000u);
  const Ran played = RunCli(folder, play);
  ASSERT_EQ(played.exitCode, 0) << played.err;
  EXPECT_EQ(Json::parse(recorded.out)["table"], Json::parse(played.out)["table"]);
}

TEST(CliRun, AnEventsLogIsWrittenWhereItIsWanted) {
  TempFolder folder;
  const std::string log = folder.File("my log.txt");
  const Ran ran = RunCli(folder, {"run", "--data-folder", folder.Path(), "--set", "ShooterBetRule=0",
                                  "--rolls", "100", "--events-log", log, "--json"});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  int rolls = 0;
  for (const std::string& line : test::Lines(test::ReadFile(log))) rolls += line.rfind(" Roll #", 0) == 0;
  EXPECT_EQ(rolls, 100);
}

TEST(CliExit, CodesTellBadThingsFromWrongUseAndNameThem) {
  TempFolder folder;
  test::WriteFile(folder.File("bad.rol"), "\x01\x02\x03 no rolls");
  test::WriteFile(folder.File("file"), "");
  struct Case {
    std::vector<std::string> arguments;
    int exitCode;
    const char* named;  // on standard error
  };
  const Case cases[] = {
      {{"run", "--rolls", "10", "--set", "ShooterBetRule=0", "--json"}, 0, ""},
      {{"run", "--rolls", "0", "--json"}, 0, ""},
      {{"run", "--player", "Ann=500"},
       1,
       "nothing was rolled: Shooter has no line bet.\nHint: have a script bet"},
      {{"run", "--player", "Ann=500", "--set", "ShooterBetRule=2"}, 1, "Shooter has no bet.\nHint: "},
      {{"run", "--json"}, 1, "No players are available to bet.\nHint: seat a player"},
      {{"run", "--set", "MaxBet=-1"}, 1, "MaxBet must be from 0"},
      {{"run", "--set", "Nonsense=1"}, 1, "Nonsense"},
      {{"run", "--set", "MaxBet"}, 1, "--set MaxBet"},
      {{"run", "--player", "Ann=lots"}, 1, "--player Ann=lots"},
      {{"run", "--player", "123=5"}, 1, "--player 123=5"},
      {{"run", "--player", "Ann=5", "--player", "ann=6"}, 1, "--player ann=6"},
      {{"run", "--seed", "0"}, 1, "--seed 0"},
      {{"run", "--seed", "x"}, 1, "--seed x"},
      {{"run", "--rng", "3", "--seed", "1000000"}, 1, "--seed 1000000"},
      {{"run", "--roll-file", folder.File("missing.rol")}, 1, "missing.rol"},
      {{"run", "--roll-file", folder.File("bad.rol")}, 1, "bad.rol"},
      {{"run", "--record", folder.File("no/such/folder.rol")}, 1, "folder.rol"},
      {{"run", "--probabilities", folder.File("missing.prb")}, 1, "missing.prb"},
      {{"run", "--data-folder", folder.File("file/below")}, 1, "below"},
      {{"play", "--set", "MaxBet=x"}, 1, "MaxBet"},
      {{"dice", "--seed", "0"}, 1, "--seed 0"},
      {{}, 2, "subcommand"},
      {{"juggle"}, 2, "juggle"},
      {{"run", "--rng", "9"}, 2, "--rng"},
      {{"run", "--rolls", "many"}, 2, "--rolls"},
      {{"run", "--rolls", "-1"}, 2, "--rolls"},
      {{"run", "--no-such-option"}, 2, "--no-such-option"},
      {{"dice", "--count", "x"}, 2, "--count"},
  };
  for (const Case& c : cases) {
    std::vector<std::string> arguments = c.arguments;
    const bool placed = std::find(arguments.begin(), arguments.end(), "--data-folder") != arguments.end();
    if (!arguments.empty() && !placed && arguments[0] != "juggle")
      arguments.insert(arguments.begin() + 1, {"--data-folder", folder.Path()});
    std::string shown;
    for (const std::string& argument : arguments) shown += argument + " ";
    const Ran ran = RunCli(folder, arguments);
    EXPECT_EQ(ran.exitCode, c.exitCode) << shown << "\n" << ran.err;
    EXPECT_NE(ran.err.find(c.named), std::string::npos) << shown << "\n" << ran.err;
    if (c.exitCode != 0) {
      EXPECT_EQ(ran.out, "") << shown;
    }
  }
  for (const char* command : {"run", "play", "dice"}) {
    const Ran help = RunCli(folder, {command, "--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_NE(help.out.find("Example:"), std::string::npos);
  }
}

// --- dice

TEST(CliDice, AreThePublishedGenerators) {
  TempFolder folder;
  // The library's generator of the same name, drawn with 32 bits as a fraction below 1.
  std::mt19937 published(5489);
  const Ran ran = RunCli(
      folder, {"dice", "--data-folder", folder.Path(), "--rng", "1", "--seed", "5489", "--count", "1000"});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  const std::vector<std::string> lines = test::Lines(ran.out);
  ASSERT_EQ(lines.size(), 1000u);
  const auto die = [&published] {
    return static_cast<int>(static_cast<double>(published()) / 4294967296.0 * 6) + 1;
  };
  for (const std::string& line : lines) {
    const int die1 = die();
    const int die2 = die();
    ASSERT_EQ(line, std::to_string(die1) + " " + std::to_string(die2));
  }
}

TEST(CliDice, TheEighthMakesBothFromOneDraw) {
  TempFolder folder;
  std::mt19937 published(42);
  const Ran ran = RunCli(folder, {"dice", "--data-folder", folder.Path(), "--rng", "8", "--seed", "42",
                                  "--count", "500", "--json"});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  const Json rolls = Json::parse(ran.out);
  ASSERT_EQ(rolls.size(), 500u);
  for (const Json& roll : rolls) {
    const int v = static_cast<int>(static_cast<double>(published()) / 4294967296.0 * 36);
    ASSERT_EQ(roll, (Json{v % 6 + 1, v / 6 + 1}));
  }
}

TEST(CliDice, EveryGeneratorRepeatsItsSeedAndShowsFaces) {
  TempFolder folder;
  for (int rng = 1; rng <= 8; ++rng) {
    const std::vector<std::string> arguments{"dice",  "--data-folder",     folder.Path(),
                                             "--rng", std::to_string(rng), "--seed",
                                             "999",   "--count",           "600"};
    const Ran first = RunCli(folder, arguments);
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_EQ(first.out, RunCli(folder, arguments).out);
    std::istringstream faces(first.out);
    int seen[7] = {};
    for (int face = 0; faces >> face;) {
      ASSERT_TRUE(face >= 1 && face <= 6);
      ++seen[face];
    }
    for (int face = 1; face <= 6; ++face) EXPECT_GT(seen[face], 100) << "generator " << rng;
  }
}

}  // namespace
}  // namespace tessaryn
