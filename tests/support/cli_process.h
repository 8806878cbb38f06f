// The command-line program run as a process.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/test_host.h"

namespace tessaryn::test {

struct Ran {
  // 128 and the signal's number for a program that was stopped by one before it could note it; -1 for one
  // that had to be killed.
  int exitCode = -1;
  std::string out;
  std::string err;
  bool killedBySignal = false;
};

// What stands around a run that isn't as usual.
struct Surroundings {
  std::string program = "tessaryn-cli";    // beside the tests
  std::vector<std::string> launcher = {};  // what starts it, by its path, with its arguments
  std::string out;                         // standard output, if it is not to be read
  bool noReader = false;                   // standard output is a pipe that nobody reads
  bool powerless = false;                  // permissions hold for the program, even if root started the test
  bool openInput = false;                  // standard input stays open behind the input
  long fileLimit = 0;                      // bytes that a file may have, as on a full disk; 0 any
  int signal = 0;                          // sent when the program notes signals, and
  std::function<bool()> when = {};         // this holds
};

// Its input and output go through files in the folder.
Ran RunCli(const TempFolder& folder, std::vector<std::string> arguments, const std::string& input = "",
           const Surroundings& around = {});

// Whether a process has a handler for a signal by now.
bool NotesSignal(int process, int signal);

}  // namespace tessaryn::test
