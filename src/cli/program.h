// What a program of commands does around them.
#pragma once

#include <CLI/CLI.hpp>

namespace tessaryn::cli {

// Parses the arguments, which runs the command that was chosen. Returns what the program ends with: exitCode,
// which the command has left, unless standard output failed or a signal ended the work.
int RunProgram(CLI::App& program, int argc, char** argv, const int& exitCode);

}  // namespace tessaryn::cli
