// What keeps the risk of ruin where the user wants it: found by bisection, every try on the same dice.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "lab/measures.h"

namespace tessaryn {

struct LabHelpers;  // laboratory.h

struct LabQuestion {
  int stack = -1;   // the CheckStack whose start is looked for; -1: the bankroll
  double ruin = 0;  // the share of sessions that may be ruined, above 0 and below 1
};

struct LabAnswer {
  bool found = false;  // false: none does
  bool any = false;    // every start of the CheckStack does, up to the largest
  Currency value;      // whole dollars: the least bankroll, or the largest start, that keeps to it
  ShareFigure ruined;  // with it
  // The values by the bounds of the shares: what surely keeps to it, and what might. Where none is found, the
  // end of what can be played.
  Currency low;
  Currency high;
};

struct LabSearch {
  int threads = 1;
  std::string applicationFolder;
  std::function<bool()> goesOn;         // asked several times a second
  const LabHelpers* helpers = nullptr;  // as of a run
};

// For one system of the experiment, with its sessions, ends and dice. The error; empty for none.
std::string FindForRuin(const Experiment& experiment, std::size_t system, const LabQuestion& question,
                        const LabSearch& search, LabAnswer& answer);

}  // namespace tessaryn
