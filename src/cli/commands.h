// The subcommands. Each adds itself to the program's options; what it does runs when it was chosen and
// leaves the exit code.
#pragma once

#include <CLI/CLI.hpp>
#include <chrono>
#include <cstdint>
#include <string>

namespace tessaryn {
struct LabHelpers;
}

namespace tessaryn::cli {

inline constexpr int kDone = 0;
inline constexpr int kBad = 1;  // what was asked about is bad
inline constexpr int kUsage = 2;

void AddRunCommand(CLI::App& program, int& exitCode);
void AddPlayCommand(CLI::App& program, int& exitCode);
void AddDiceCommand(CLI::App& program, int& exitCode);
void AddCheckCommand(CLI::App& program, int& exitCode);
void AddFormatCommand(CLI::App& program, int& exitCode);
void AddLspCommand(CLI::App& program, int& exitCode);
void AddConvertCommand(CLI::App& program, int& exitCode);
void AddAdvantageCommand(CLI::App& program, int& exitCode);
void AddProbabilitiesCommand(CLI::App& program, int& exitCode);
void AddRollsCommand(CLI::App& program, int& exitCode);
void AddSessionsCommand(CLI::App& program, int& exitCode);
void AddGameCommand(CLI::App& program, int& exitCode);
// helpers, who play along, may be null.
void AddLabCommand(CLI::App& program, int& exitCode, LabHelpers* helpers = nullptr);

// An error on standard error, behind the program's name. Returns kBad.
int Fail(const std::string& what);
// Whole lines that name files themselves.
int FailInLines(const std::string& lines);

// A file by its plain name is looked for in the data folder too, where tables keep theirs. An empty folder is
// the one that is used without --data-folder.
std::string PathInDataFolder(const std::string& name, std::string dataFolder);

double SecondsSince(std::chrono::steady_clock::time_point start);
// A number as reports show it: "12,345".
std::string Whole(std::int64_t number);

}  // namespace tessaryn::cli
