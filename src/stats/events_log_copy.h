// A log of any size saved under another name beside the game, which goes on writing it meanwhile.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tessaryn {

struct Game;

struct EventsLogCopy {
  std::string From, To;
  std::int64_t Copied = 0;  // bytes
  int Descriptor = -1;      // of the log that was copied, so that it is known again

  EventsLogCopy() = default;
  EventsLogCopy(const EventsLogCopy&) = delete;
  EventsLogCopy& operator=(const EventsLogCopy&) = delete;
  ~EventsLogCopy();
};

// Writes the log From, as long as it is now, to To, which is put in place when it is whole. Touches no game.
// goOn is told how many bytes are done, and ends it with a text. Errors are texts; empty for success.
std::string CopyEventsLog(EventsLogCopy& copy, const std::function<std::string(std::int64_t)>& goOn);
// What was written since goes behind, and the table's log goes on under the new name. A log that began anew
// meanwhile, or another one, stays the table's: the copy is of the old one, and whole.
std::string UseEventsLogCopy(Game& game, const EventsLogCopy& copy);

// The Save As command, at once.
bool SaveEventsLogAs(Game& game, const std::string& path, std::string& error);

}  // namespace tessaryn
