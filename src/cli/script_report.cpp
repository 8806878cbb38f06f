#include "cli/script_report.h"

#include <charconv>
#include <algorithm>
#include <cstdio>

#include "cli/script_commands.h"

namespace tessaryn::cli {
namespace {

// What is no script may hold bytes that a terminal takes for commands.
std::string Shown(std::string text) {
  for (char& c : text)
    if ((static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t') || c == '\x7f') c = '?';
  return text;
}

// A source line with the columns first to last marked under it.
std::string MarkedLine(const std::string& line, int number, int first, int last) {
  char head[32];
  std::snprintf(head, sizeof head, "%6d | ", number);
  std::string text = head + line + "\n       | ";
  const int length = static_cast<int>(line.size());
  const int from = std::clamp(first, 0, length);
  const int to = std::clamp(last, from, length);
  for (int i = 0; i < from; ++i) text += line[static_cast<std::size_t>(i)] == '\t' ? '\t' : ' ';
  text += '^';
  text.append(static_cast<std::size_t>(std::max(to - from - 1, 0)), '~');
  return text + "\n";
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

std::string CheckReport(const std::string& file, const std::vector<std::string>& lines,
                        const ScriptCheck& check) {
  if (!check.diagnostic.Failed()) return file + ": " + AsLines(check.text) + "\n";
  const std::string place = file + ":" + std::to_string(check.diagnostic.firstLine) + ":" +
                            std::to_string(check.diagnostic.firstColumn + 1);
  return Shown(place + ": " + check.title + "\n" + AsLines(check.text) + "\n" +
               MarkedSpan(lines, check.diagnostic));
}

Json CheckJson(const std::string& file, const ScriptCheck& check) {
  const ScriptDiagnostic& span = check.diagnostic;
  return {{"file", file},
          {"ok", check.ok},
          {"message", check.text},
          {"firstLine", span.firstLine},
          {"firstColumn", span.firstColumn},
          {"lastLine", span.lastLine},
          {"lastColumn", span.lastColumn}};
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

}  // namespace tessaryn::cli
