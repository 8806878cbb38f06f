// The command-line program run as a process.
#pragma once

#include <string>
#include <vector>

#include "support/test_host.h"

namespace tessaryn::test {

struct Ran {
  int exitCode = -1;  // 128 and the signal's number for a program that was stopped by one
  std::string out;
  std::string err;
};

// Its input and output go through files in the folder.
Ran RunCli(const TempFolder& folder, std::vector<std::string> arguments, const std::string& input = "");

}  // namespace tessaryn::test
