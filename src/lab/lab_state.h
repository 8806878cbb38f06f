// How far an experiment has come, and its file. The bytes of a file are the same for the same sessions,
// however they were played.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lab/experiment.h"
#include "lab/measures.h"

namespace tessaryn {

// What is kept of single sessions, in a file beside: see session_rows.h.
struct RowsKept {
  bool lines = false;    // what a line of CSV tells
  bool records = false;  // what a Sessions Log holds
  std::int64_t sessions = 0;
  std::uint64_t hash = 0;  // of their bytes

  bool Any() const { return lines || records; }
};
TESSARYN_FIELDS(RowsKept, lines, records, sessions, hash)

struct LabState {
  Experiment experiment;
  RowsKept rows;
  std::int64_t next = 0;  // the first session that is not in yet
  bool finished = false;
  std::vector<SystemSums> systems;
  std::vector<ExactSum> pairs;  // a less b, in the order of ForEachPair
};
TESSARYN_FIELDS(LabState, experiment, rows, next, finished, systems, pairs)

// What comes of sessions that were played elsewhere, to be taken in behind those before them.
struct LabPiece {
  std::int64_t first = 0;  // first <= k < last
  std::int64_t last = 0;
  std::vector<SystemSums> systems;
  std::vector<ExactSum> pairs;
  std::string rows;   // of the sessions, if they are kept
  std::string error;  // why they can't be played; empty for none
};
TESSARYN_FIELDS(LabPiece, first, last, systems, pairs, rows, error)

// Visits the pairs of systems, visit(pair, a, b) with a before b.
template <typename Visit>
void ForEachPair(std::size_t systems, Visit&& visit) {
  std::size_t pair = 0;
  for (std::size_t a = 0; a < systems; ++a)
    for (std::size_t b = a + 1; b < systems; ++b) visit(pair++, a, b);
}

// An experiment before its first session.
LabState BeginLab(const Experiment& experiment, bool keepLines, bool keepRecords);
// Sessions that are in.
std::int64_t SessionsDone(const LabState& state);

// Every count in its place, ready to be read.
void SettleState(LabState& state);

// Errors are texts; empty is success.
std::string LabBytes(LabState& state);
std::string ReadLab(const std::string& path, LabState& state);
// Of bytes that came from name.
std::string ReadLabBytes(const std::string& name, std::string_view bytes, LabState& state);
std::string WriteLab(const std::string& path, std::string_view bytes);
// Between two processes of one build. Requires settled counts. False for bytes that are no piece.
std::string PieceBytes(const LabPiece& piece);
bool ReadPiece(std::string_view bytes, LabPiece& piece);
// The shards, in any order, as if they had been played in one; paths and shards come back in the order of
// their sessions. The error names the file that doesn't belong.
std::string MergeLabs(std::vector<std::string>& paths, std::vector<LabState>& shards, LabState& whole);
// Whether it is the same experiment, whatever the shard.
bool IsSameExperiment(const Experiment& a, const Experiment& b);

}  // namespace tessaryn
