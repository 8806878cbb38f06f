// The end of an Auto-Roll or a Turbo-Roll, by whatever ends it.
#pragma once

#include <string>

namespace tessaryn {

struct Game;

// Ends the run that is on, with its reason shown; without one the reason alone is kept.
void StopRun(Game& game, const std::string& reason);

// The general error report: text + ", Error #" + number + line end + " occurred at: " + label. In a
// Turbo-Roll it becomes the stop reason instead, and the run stops.
void ReportError(Game& game, const std::string& text, int number, const char* label);

inline constexpr int kOverflowError = 6;
inline constexpr int kPathAccessError = 75;

}  // namespace tessaryn
