// The processes of an MPI job. Rank 0 leads: it reads the options, asks the others for pieces of the
// experiment, and writes what comes of it. The others play what they are asked for until they are let go.
//
// Messages are looked for and never waited for, so that a rank plays on all its processors, and notes
// signals.
#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

#include "lab/laboratory.h"

namespace tessaryn::mpi {

struct Ranks {
  int rank = 0;
  int count = 1;
  int threads = 1;                   // this one's part of its machine's processors
  std::mutex lock;                   // of all calls into MPI
  std::vector<std::uint64_t> asked;  // the number of the last piece that each rank was asked for
  bool lost = false;                 // a rank doesn't answer any more
};

// Joins the job. The error; empty for none.
std::string JoinRanks(Ranks& ranks, int* argc, char*** argv);

// For rank 0: the others as helpers. ranks outlives them.
LabHelpers HelpersOf(Ranks& ranks);
// For the others: what they do all the time.
void Help(Ranks& ranks);

// Leaves the job, letting the others go. Where one is lost, the job is ended instead.
void LeaveRanks(Ranks& ranks);

}  // namespace tessaryn::mpi
