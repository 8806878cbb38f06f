#include "autobet/run/script_watch.h"

namespace tessaryn {

std::vector<TracedStatement> TraceInOrder(const ScriptWatch& watch) {
  std::vector<TracedStatement> ordered;
  const std::size_t count = watch.trace.size();
  const std::size_t oldest = count < watch.traceLength || count == 0 ? 0 : watch.traced % count;
  ordered.reserve(count);
  for (std::size_t i = 0; i < count; ++i) ordered.push_back(watch.trace[(oldest + i) % count]);
  return ordered;
}

void NoteTraced(ScriptWatch& watch, const TracedStatement& statement, std::int64_t nanoseconds) {
  if (watch.traceLength > 0) {
    if (watch.trace.size() < watch.traceLength)
      watch.trace.push_back(statement);
    else
      watch.trace[watch.traced % watch.traceLength] = statement;
    ++watch.traced;
  }
  if (!watch.profile || statement.line < 1) return;
  std::vector<LineProfile>& lines = watch.lines[statement.seat];
  const auto line = static_cast<std::size_t>(statement.line);
  if (lines.size() <= line) lines.resize(line + 1);
  ++lines[line].count;
  lines[line].nanoseconds += nanoseconds;
}

}  // namespace tessaryn
