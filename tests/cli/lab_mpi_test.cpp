// The laboratory as an MPI job of several processes on this machine: the bytes of one process, and what is
// left when one of them dies. Skipped where there is no MPI.
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "support/cli_process.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

constexpr const char* kLauncher = "/usr/bin/mpirun";

class LabMpi : public testing::Test {
 protected:
  void SetUp() override {
    if (access((std::string(kBinFolder) + "/tessaryn-mpi").c_str(), X_OK) != 0)
      GTEST_SKIP() << "tessaryn-mpi isn't built: MPI wasn't found";
    if (access(kLauncher, X_OK) != 0) GTEST_SKIP() << "mpirun isn't installed";
    setenv("OMPI_ALLOW_RUN_AS_ROOT", "1", 1);
    setenv("OMPI_ALLOW_RUN_AS_ROOT_CONFIRM", "1", 1);
  }
  // Rank 2 leaves its number in a file.
  Surroundings Ranks(int count) const {
    Surroundings around;
    around.program = "tessaryn-mpi";
    around.launcher = {kLauncher,
                       "-q",
                       "--oversubscribe",
                       "-n",
                       std::to_string(count),
                       "/bin/sh",
                       "-c",
                       "[ \"$OMPI_COMM_WORLD_RANK\" != 2 ] || echo $$ > '" + folder_.File("rank2") +
                           "'; exec \"$0\" \"$@\""};
    return around;
  }
  Ran Run(const std::vector<std::string>& words, const Surroundings& around) {
    return RunCli(folder_, words, "", around);
  }
  std::vector<std::string> Asked(const std::string& name, const std::string& sessions) const {
    return {"lab",
            "--bets",
            "passline=10",
            "--bets",
            "49=5",
            "--sessions",
            sessions,
            "--rolls",
            "50",
            "--set",
            "ShooterBetRule=0",
            "--json",
            "--out",
            folder_.File(name + ".lab"),
            "--csv",
            folder_.File(name + ".csv"),
            "--slg",
            folder_.File(name + ".slg")};
  }
  std::string Kept(const std::string& name) const {
    std::string all;
    for (const char* ending : {".lab", ".lab.rows", ".csv", ".1.slg", ".2.slg"})
      all += ReadFile(folder_.File(name + ending));
    return all;
  }
  TempFolder folder_;
};

TEST_F(LabMpi, BringsTheBytesOfOneProcessForAnyRanks) {
  const Ran alone = Run(Asked("alone", "70000"), {});
  ASSERT_EQ(alone.exitCode, 0) << alone.err;
  for (int count = 1; count <= 4; ++count) {
    const std::string name = "r" + std::to_string(count);
    const Ran ran = Run(Asked(name, "70000"), Ranks(count));
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_TRUE(ran.out == alone.out) << count << " ranks";
    EXPECT_TRUE(Kept(name) == Kept("alone")) << count << " ranks";
  }
  std::vector<std::string> known = {"lab", "--bets",      "43=10", "--rolls",
                                    "30",  "--precision", "1.1",   "--json"};
  EXPECT_EQ(Run(known, Ranks(3)).out, Run(known, {}).out);
  known = {"lab",    "--bets",   "49=5",   "--rolls", "30",     "--sessions", "900",
           "--find", "bankroll", "--ruin", "0.1",     "--json", "--set",      "ShooterBetRule=0"};
  EXPECT_EQ(Run(known, Ranks(2)).out, Run(known, {}).out);
}

TEST_F(LabMpi, TellsItsErrorsAsOneProcessDoes) {
  WriteFile(folder_.File("endless.bet"), "do\ncs1 = cs1 + 1\nloop\n");
  const struct {
    std::vector<std::string> words;
    int exitCode;
    const char* told;
  } cases[] = {{{"lab", "--bets", "43=x"}, 2, "no amount"},
               {{"lab", "--script", folder_.File("endless.bet")}, 1, "endless.bet, line "},
               {{"run"}, 2, "run"},
               {{"lab", "--help"}, 0, ""}};
  for (const auto& one : cases) {
    const Ran ran = Run(one.words, Ranks(3));
    EXPECT_EQ(ran.exitCode, one.exitCode) << one.told << "\n" << ran.err;
    EXPECT_NE(ran.err.find(one.told), std::string::npos) << ran.err;
  }
}

// What was in is in the file, whole, and one process alone goes on with it.
TEST_F(LabMpi, AnEndOnTheWayLosesNothing) {
  const std::string sessions = "400000";
  const Ran alone = Run(Asked("alone", sessions), {});
  for (const int signal : {SIGKILL, SIGINT, SIGTERM}) {
    const std::string name = "s" + std::to_string(signal);
    Surroundings around = Ranks(3);
    around.signal = signal == SIGKILL ? SIGTERM : signal;  // to mpirun
    around.when = [&, looks = 0]() mutable {
      const std::string rank = ReadFile(folder_.File("rank2"));
      if (ReadFile(folder_.File(name + ".lab")).empty() || rank.empty() || ++looks < 100) return false;
      if (signal == SIGKILL) kill(std::stoi(rank), SIGKILL);
      return signal != SIGKILL;
    };
    const Ran ran = Run(Asked(name, sessions), around);
    EXPECT_NE(ran.exitCode, 0);
    if (signal == SIGKILL) {
      EXPECT_EQ(ran.out, "") << "no result of a job that has failed";
      EXPECT_EQ(ReadFile(folder_.File(name + ".csv")), "");
    }
    const Ran rest = Run({"lab", "--json", "--resume", folder_.File(name + ".lab"), "--csv",
                          folder_.File(name + ".csv"), "--slg", folder_.File(name + ".slg")},
                         {});
    EXPECT_EQ(rest.out, alone.out) << rest.err;
    EXPECT_TRUE(Kept(name) == Kept("alone")) << signal;
  }
}

}  // namespace
}  // namespace tessaryn::test
