#include "cli/script_report.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "autobet/language/characters.h"
#include "autobet/language/script_text.h"
#include "cli/commands.h"
namespace tessaryn::cli {
namespace {

// A source line with the bytes first to last marked under it, a sign for each character.
std::string MarkedLine(const std::string& line, int number, int first, int last) {
  char head[32];
  std::snprintf(head, sizeof head, "%6d | ", number);
  std::string text = head + line + "\n       | ";
  const int length = static_cast<int>(line.size());
  const auto from = static_cast<std::size_t>(std::clamp(first, 0, length));
  const auto to = static_cast<std::size_t>(std::clamp(last, static_cast<int>(from), length));
  for (std::size_t i = 0; i < from; i += CharacterAt(line, i).bytes) text += line[i] == '\t' ? '\t' : ' ';
  text += '^';
  const std::size_t marked = CountCharacters(std::string_view(line).substr(from, to - from));
  text.append(marked > 0 ? marked - 1 : 0, '~');
  return text + "\n";
}

// A byte of a line as a column in characters, from 0.
int ColumnOf(const std::vector<std::string>& lines, int line, int byte) {
  if (line < 1 || static_cast<std::size_t>(line) > lines.size() || byte < 0) return byte;
  const std::string_view text = lines[static_cast<std::size_t>(line) - 1];
  return static_cast<int>(CountCharacters(text.substr(0, static_cast<std::size_t>(byte))));
}

constexpr int kMostLinesShown = 6;

std::string MarkedSpan(const std::vector<std::string>& lines, const ScriptDiagnostic& span) {
  std::string text;
  for (int number = span.firstLine; number <= span.lastLine; ++number) {
    // Of a long stretch the two ends say enough.
    if (number == span.firstLine + kMostLinesShown / 2 && span.lastLine - number > kMostLinesShown / 2) {
      text += "   ... |\n";
      number = span.lastLine - kMostLinesShown / 2 + 1;
    }
    if (number < 1 || static_cast<std::size_t>(number) > lines.size()) continue;
    const std::string& line = lines[static_cast<std::size_t>(number) - 1];
    const int first = number == span.firstLine ? span.firstColumn : 0;
    const int last = number == span.lastLine ? span.lastColumn : static_cast<int>(line.size());
    text += MarkedLine(line, number, first, last);
  }
  return text;
}

}  // namespace

std::string Shown(std::string text) {
  for (char& c : text)
    if ((static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t') || c == '\x7f') c = '?';
  return text;
}

std::string CheckReport(const std::string& file, const std::vector<std::string>& lines,
                        const ScriptCheck& check) {
  if (!check.diagnostic.Failed())
    return file + ": " + (check.ok ? "" : "error: ") + AsLines(check.text) + "\n";
  const ScriptDiagnostic& span = check.diagnostic;
  const std::string place = file + ":" + std::to_string(span.firstLine) + ":" +
                            std::to_string(ColumnOf(lines, span.firstLine, span.firstColumn) + 1) + ": ";
  std::string text = place + "error: " + OnOneLine(span.message) + "\n" + MarkedSpan(lines, span);
  if (!span.offer.empty()) text += place + "note: Did you mean \"" + span.offer + "\"?\n";
  return Shown(std::move(text));
}

Json CheckJson(const std::string& file, const std::vector<std::string>& lines, const ScriptCheck& check) {
  const ScriptDiagnostic& span = check.diagnostic;
  return {{"file", file},
          {"ok", check.ok},
          {"message", check.text},
          {"firstLine", span.firstLine},
          {"firstColumn", ColumnOf(lines, span.firstLine, span.firstColumn)},
          {"lastLine", span.lastLine},
          {"lastColumn", ColumnOf(lines, span.lastLine, span.lastColumn)},
          {"line", span.firstLine},
          {"column", span.Failed() ? ColumnOf(lines, span.firstLine, span.firstColumn) + 1 : 0}};
}

std::string ErrorReport(const ScriptErrorKind& kind) {
  std::string text = kind.text;
  std::replace(text.begin(), text.end(), '\r', ' ');
  return Shown("error " + std::to_string(kind.code) + " in line " + std::to_string(kind.line) + ": " + text +
               "\n    " + kind.statement);
}

Json ErrorJson(const ScriptErrorKind& kind) {
  return {{"code", kind.code},
          {"text", kind.text},
          {"count", kind.count},
          {"line", kind.line},
          {"statement", kind.statement}};
}

Json ErrorsJson(const Game& game) {
  Json errors = Json::array();
  for (SeatId seat = 0; seat <= kSeats; ++seat)
    for (const ScriptErrorKind& kind : game.autobet.Scripts[seat].Errors) {
      errors.push_back({{"seat", seat}});
      errors.back().update(ErrorJson(kind));
    }
  return errors;
}

void PrintErrors(const Game& game) {
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const std::vector<ScriptErrorKind>& errors = game.autobet.Scripts[seat].Errors;
    if (errors.empty()) continue;
    std::printf("\nRun-time errors of %s's script, and where each came up first:\n",
                game.table.seats[seat].SeatName.c_str());
    for (const ScriptErrorKind& kind : errors)
      std::printf("%12s x %s\n", FormatMoney(Currency::Dollars(kind.count)).c_str(),
                  ErrorReport(kind).c_str());
  }
}

bool EveryScriptCouldAct(const Game& game) {
  bool could = true;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const SeatScript& script = game.autobet.Scripts[seat];
    if (script.Acted || script.Errors.empty()) continue;
    could = false;
    Fail(game.table.seats[seat].SeatName +
         "'s script could never act: " + ErrorReport(script.Errors.front()));
  }
  return could;
}

ScriptSurroundings SurroundingsOfPlayers(const std::vector<std::string>& players) {
  ScriptSurroundings surroundings;
  for (std::size_t i = 0; i < players.size() && i < kSeats; ++i)
    surroundings.seatNames[i + 1] = players[i].substr(0, players[i].rfind('='));
  return surroundings;
}

std::string TokenList(const CompiledScript& script) {
  std::string text;
  for (std::size_t i = 1; i < script.tokens.size(); ++i) {
    char value[32];
    const auto end = std::to_chars(value, value + sizeof value, script.tokens[i].value).ptr;
    text += std::to_string(script.tokens[i].kind) + " " + std::string(value, end) + "\n";
  }
  return text;
}

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char c : text)
    if (!IsBlank(c) || (!line.empty() && line.back() != ' ')) line += IsBlank(c) ? ' ' : c;
  while (line.ends_with(' ')) line.pop_back();
  return line;
}

std::string AsLines(const std::string& text) {
  std::string lines = text;
  for (char& c : lines)
    if (c == '\r') c = '\n';
  return lines;
}

}  // namespace tessaryn::cli
