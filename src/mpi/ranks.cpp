#include "mpi/ranks.h"

#define OMPI_SKIP_MPICXX 1
#define MPICH_SKIP_MPICXX 1
#include <mpi.h>
#include <sched.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <thread>

#include "base/interrupts.h"
#include "base/program_folders.h"

namespace tessaryn::mpi {
namespace {

constexpr auto kLook = std::chrono::milliseconds(1);
// A rank that was told to stop answers in a fraction of it; a job that is ended has little more.
constexpr auto kPatience = std::chrono::milliseconds(600);

enum Tag { kExperiment, kRange, kStop, kPiece, kEnd };

// What kRange, kStop and kPiece begin with: a piece that was given up must not be taken for the next one.
struct Request {
  std::uint64_t number = 0;
  std::int64_t first = 0;
  std::int64_t last = 0;
};

void Send(Ranks& ranks, int rank, Tag tag, const std::string& bytes) {
  const std::lock_guard guard(ranks.lock);
  MPI_Send(bytes.data(), static_cast<int>(bytes.size()), MPI_BYTE, rank, tag, MPI_COMM_WORLD);
}

// The next message of the rank, if there is one.
bool Receive(Ranks& ranks, int rank, int tag, int& received, std::string& bytes) {
  const std::lock_guard guard(ranks.lock);
  int there = 0;
  MPI_Status status;
  MPI_Iprobe(rank, tag, MPI_COMM_WORLD, &there, &status);
  if (there == 0) return false;
  int size = 0;
  MPI_Get_count(&status, MPI_BYTE, &size);
  bytes.resize(static_cast<std::size_t>(size));
  received = status.MPI_TAG;
  MPI_Recv(bytes.data(), size, MPI_BYTE, rank, received, MPI_COMM_WORLD, MPI_STATUS_IGNORE);
  return true;
}

// Processes of one build on one kind of machine.
template <typename T>
std::string BytesOf(const T& value) {
  return std::string(reinterpret_cast<const char*>(&value), sizeof value);
}
template <typename T>
T ValueOf(const std::string& bytes) {
  T value{};
  std::memcpy(&value, bytes.data(), std::min(sizeof value, bytes.size()));
  return value;
}

// Where the launcher has bound a rank to processors, those; else they are shared by the ranks of the machine.
int ThreadsOfRank() {
  cpu_set_t bound;
  const int all = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  const int mine = sched_getaffinity(0, sizeof bound, &bound) == 0 ? CPU_COUNT(&bound) : all;
  MPI_Comm machine;
  int neighbours = 1;
  MPI_Comm_split_type(MPI_COMM_WORLD, MPI_COMM_TYPE_SHARED, 0, MPI_INFO_NULL, &machine);
  MPI_Comm_size(machine, &neighbours);
  MPI_Comm_free(&machine);
  return mine < all ? mine : std::max(1, all / neighbours);
}

// --- Rank 0.

std::string RankName(int rank) { return "rank " + std::to_string(rank); }

std::string Ask(Ranks& ranks, int rank, SessionRange range, const std::atomic<bool>& stop, LabPiece& piece) {
  using Clock = std::chrono::steady_clock;
  const std::uint64_t number = ++ranks.asked[static_cast<std::size_t>(rank)];
  Send(ranks, rank, kRange, BytesOf(Request{number, range.first, range.last}));
  bool told = false;
  Clock::time_point stopped;
  std::string bytes;
  for (int tag = kPiece; !Receive(ranks, rank, kPiece, tag, bytes);) {
    if (stop && !told) {
      Send(ranks, rank, kStop, BytesOf(number));
      told = true;
      stopped = Clock::now();
    }
    // A rank whose script takes long is waited for, unless the job is being ended.
    if (told && Interrupted() && Clock::now() - stopped > kPatience) {
      const std::lock_guard guard(ranks.lock);
      ranks.lost = true;
      return RankName(rank) + " doesn't answer any more";
    }
    std::this_thread::sleep_for(kLook);
  }
  if (!ReadPiece(bytes, piece)) return RankName(rank) + " is of another build";
  if (!stop && piece.error.empty() && piece.last < range.last) return RankName(rank) + " was stopped";
  return {};
}

void TellExperiment(Ranks& ranks, const LabState& state, int threads) {
  LabState fresh = BeginLab(state.experiment, state.rows.lines, state.rows.records);
  const std::string bytes = BytesOf(threads) + LabBytes(fresh);
  for (int rank = 1; rank < ranks.count; ++rank) Send(ranks, rank, kExperiment, bytes);
}

// --- The others.

struct Player {
  LabState state;
  std::unique_ptr<FreshTables> fresh;
  LabRun run;
  std::string error;  // of the experiment
};

void TakeExperiment(const Ranks& ranks, const std::string& bytes, Player& player) {
  const int threads = ValueOf<int>(bytes);
  player.run.threads = threads > 0 ? threads : ranks.threads;
  player.run.applicationFolder = ApplicationFolder();
  player.fresh = std::make_unique<FreshTables>();
  player.error =
      ReadLabBytes(RankName(ranks.rank), std::string_view(bytes).substr(sizeof threads), player.state);
}

void Play(Ranks& ranks, const Request& request, Player& player) {
  int tag = kStop;
  std::string bytes;
  bool stopped = false;
  player.run.progress = [&](const LabProgress&) {
    while (Receive(ranks, 0, kStop, tag, bytes))
      stopped = stopped || ValueOf<std::uint64_t>(bytes) == request.number;
    return !stopped && !Interrupted();
  };
  LabPiece piece;
  piece.error = player.error;
  if (piece.error.empty())
    piece = PlayPiece(player.state, {request.first, request.last}, player.run, *player.fresh);
  Send(ranks, 0, kPiece, PieceBytes(piece));
}

}  // namespace

std::string JoinRanks(Ranks& ranks, int* argc, char*** argv) {
  int provided = 0;
  MPI_Init_thread(argc, argv, MPI_THREAD_SERIALIZED, &provided);
  MPI_Comm_rank(MPI_COMM_WORLD, &ranks.rank);
  MPI_Comm_size(MPI_COMM_WORLD, &ranks.count);
  ranks.asked.resize(static_cast<std::size_t>(ranks.count));
  ranks.threads = ThreadsOfRank();
  return provided >= MPI_THREAD_SERIALIZED ? "" : "this MPI can't be called by several threads";
}

LabHelpers HelpersOf(Ranks& ranks) {
  LabHelpers helpers;
  helpers.count = ranks.count - 1;
  helpers.threadsHere = ranks.threads;
  helpers.begin = [&ranks](const LabState& state, int threads) { TellExperiment(ranks, state, threads); };
  helpers.play = [&ranks](int helper, SessionRange range, const std::atomic<bool>& stop, LabPiece& piece) {
    return Ask(ranks, helper + 1, range, stop, piece);
  };
  return helpers;
}

void Help(Ranks& ranks) {
  NoteSignals();
  Player player;
  std::string bytes;
  for (int tag = kExperiment; tag != kEnd;) {
    if (!Receive(ranks, 0, MPI_ANY_TAG, tag, bytes)) {
      std::this_thread::sleep_for(kLook);
      continue;
    }
    if (tag == kExperiment) TakeExperiment(ranks, bytes, player);
    if (tag == kRange) Play(ranks, ValueOf<Request>(bytes), player);
  }
}

void LeaveRanks(Ranks& ranks) {
  if (ranks.lost) MPI_Abort(MPI_COMM_WORLD, 1);
  if (ranks.rank == 0)
    for (int rank = 1; rank < ranks.count; ++rank) Send(ranks, rank, kEnd, "");
  MPI_Finalize();
}

}  // namespace tessaryn::mpi
